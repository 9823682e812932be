#include "PriorityTurn.h"

#include "PriorityPlan.h"
#include "PriorityRecords.h"

#include <QCryptographicHash>

#include <utility>

namespace
{

typedef QSet<QPair<int, int>> Pairs;

bool IsContradiction(int place, int priority, int otherPlace, int otherPriority)
{
    return place < otherPlace ? priority <= otherPriority : place > otherPlace && priority >= otherPriority;
}

/** The pairs of places that a profile has in the wrong order with others. */
Pairs WrongPairs(const NetworkProfile &profile, const QList<NetworkProfile> &others,
                 const QMap<QString, int> &places)
{
    const int place = places.value(profile.uuid);
    Pairs wrong;
    for (const NetworkProfile &other : others) {
        const int otherPlace = places.value(other.uuid);
        if (IsContradiction(place, profile.priority, otherPlace, other.priority)) {
            wrong.insert(qMakePair(qMin(place, otherPlace), qMax(place, otherPlace)));
        }
    }
    return wrong;
}

QList<NetworkProfile> Changeable(const QList<NetworkProfile> &profiles, const QMap<QString, int> &places)
{
    QList<NetworkProfile> changeable;
    for (const NetworkProfile &profile : profiles) {
        if (profile.isFreelyChangeable && places.contains(profile.uuid)) {
            changeable.append(profile);
        }
    }
    return changeable;
}

} // namespace

QString PriorityTurn::NameOf(const QList<PriorityList> &list)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const PriorityList &entry : list) {
        hash.addData((entry.type + QLatin1Char('\0') + entry.name + QLatin1Char('\0')).toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex());
}

PriorityTurn PriorityTurn::Next() const
{
    PriorityTurn next;
    for (QMap<QString, int>::const_iterator i = before.constBegin(); i != before.constEnd(); ++i) {
        if (list.isEmpty() || yielded.contains(i.key())) {
            next.before.insert(i.key(), i.value());
        }
    }
    return next;
}

QList<NetworkProfile> PriorityTurn::TakeChanges(const QList<PriorityList> &theList,
                                                const QList<NetworkProfile> &profiles,
                                                QMap<QString, PriorityRecord> *records)
{
    const QMap<QString, int> places = PriorityPlan::Places(theList, profiles);
    const QList<NetworkProfile> ruled = Changeable(Ruled(profiles), places);
    Pairs wrong;
    Pairs wrongAgain;
    QList<NetworkProfile> setRight;
    for (const NetworkProfile &profile : ruled) {
        const PriorityRecord record = records->value(profile.uuid);
        const bool isOurs = !record.own.isEmpty() && record.own.constLast() == profile.priority;
        const int was = left.value(profile.uuid, profile.priority);
        if (isOurs || was == profile.priority) {
            continue;
        }
        // It counts once, however long it takes to be set right.
        left.insert(profile.uuid, profile.priority);
        const Pairs pairs = WrongPairs(profile, ruled, places);
        wrong += pairs;
        const bool isAgain = pairs.intersects(contested);
        const int without = record.own.isEmpty() ? was : record.before;
        if (isAgain) {
            yielded.insert(profile.uuid);
            wrongAgain += Pairs(pairs).intersect(contested);
            before.insert(profile.uuid, before.value(profile.uuid, without));
        } else if (!pairs.isEmpty()) {
            before.insert(profile.uuid, without);
            setRight.append(profile);
        }
    }
    contested += wrong;
    for (const QPair<int, int> &pair : std::as_const(wrongAgain)) {
        for (const NetworkProfile &profile : ruled) {
            const int place = places.value(profile.uuid);
            const bool isOfThePair = place == pair.first || place == pair.second;
            if (isOfThePair && before.contains(profile.uuid) && records->contains(profile.uuid)) {
                (*records)[profile.uuid].before = before.value(profile.uuid);
            }
        }
    }
    return setRight;
}

QList<NetworkProfile> PriorityTurn::Ruled(const QList<NetworkProfile> &profiles) const
{
    QList<NetworkProfile> ruled;
    for (const NetworkProfile &profile : profiles) {
        if (!yielded.contains(profile.uuid)) {
            ruled.append(profile);
        }
    }
    return ruled;
}

QList<NetworkProfile> PriorityTurn::Contradicting(const QList<PriorityList> &theList,
                                                  const QList<NetworkProfile> &profiles) const
{
    const QMap<QString, int> places = PriorityPlan::Places(theList, profiles);
    const QList<NetworkProfile> changeable = Changeable(profiles, places);
    QList<NetworkProfile> contradicting;
    for (const NetworkProfile &profile : changeable) {
        if (yielded.contains(profile.uuid) && !WrongPairs(profile, changeable, places).isEmpty()) {
            contradicting.append(profile);
        }
    }
    return contradicting;
}
