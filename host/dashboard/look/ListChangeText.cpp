#include "ListChangeText.h"

#include "BidiText.h"

#include <DashboardText.h>
#include <ListDifference.h>

#include <QLocale>
#include <QStringList>

namespace
{

const int longestName = 40;
const int namesTold = 5;

const char *MoveTextId(const ListDifference::Move &move)
{
    // The neighbour of an entry that moved by one may be the one that was moved; "up" is true of both.
    if (move.distance > 1 && move.isFirst) {
        return "IDS_CHANGE_MOVED_TOP";
    }
    if (move.distance > 1 && move.isLast) {
        return "IDS_CHANGE_MOVED_END";
    }
    return move.direction == ListDifference::Down ? "IDS_CHANGE_MOVED_DOWN" : "IDS_CHANGE_MOVED_UP";
}

QString OneOrMany(const char *oneId, const char *manyId, const QList<PriorityList> &list,
                  const QList<int> &places)
{
    return places.size() == 1 ? DashboardText(oneId).arg(ListChangeText::Name(list.at(places.first())))
                              : DashboardText(manyId).arg(places.size());
}

} // namespace

QString ListChangeText::Describe(const QList<PriorityList> &before, const QList<PriorityList> &after)
{
    const ListDifference difference = ListDifference::Between(before, after);
    if (difference.IsNone()) {
        return DashboardText("IDS_CHANGE_NONE");
    }
    if (after.isEmpty() && before.size() > 1) {
        return DashboardText("IDS_CHANGE_EMPTIED");
    }
    QStringList parts;
    if (!difference.added.isEmpty()) {
        parts.append(OneOrMany("IDS_CHANGE_ADDED_ONE", "IDS_CHANGE_ADDED_MANY", after, difference.added));
    }
    if (!difference.removed.isEmpty()) {
        parts.append(
            OneOrMany("IDS_CHANGE_DELETED_ONE", "IDS_CHANGE_DELETED_MANY", before, difference.removed));
    }
    if (difference.moved.size() == 1) {
        const ListDifference::Move &move = difference.moved.first();
        parts.append(DashboardText(MoveTextId(move)).arg(Name(after.at(move.to))));
    } else if (!difference.moved.isEmpty()) {
        parts.append(DashboardText("IDS_CHANGE_MOVED_MANY").arg(difference.moved.size()));
    }
    return parts.join(QString::fromUtf8(" · "));
}

QString ListChangeText::DescribeStep(const QList<ListState> &states, int from, int to)
{
    const ListState &state = states.at(to);
    // With others in between, it stands for the change that had led to the list that was gone back to.
    return state.backTo.isValid() && from == to - 1
               ? DashboardText("IDS_CHANGE_WENT_BACK").arg(Moment(state.backTo))
               : Describe(states.at(from).entries, state.entries);
}

QString ListChangeText::Name(const PriorityList &entry)
{
    QString name = entry.name.simplified();
    if (name.isEmpty()) {
        return DashboardText("IDS_CHANGE_UNNAMED");
    }
    if (name.size() > longestName) {
        const bool cutsPair = name.at(longestName - 1).isHighSurrogate();
        name = name.left(cutsPair ? longestName - 1 : longestName) + QChar(0x2026);
    }
    return InOwnDirection(name);
}

QString ListChangeText::Names(const QList<PriorityList> &entries)
{
    QStringList names;
    for (int i = 0; i < entries.size() && i < namesTold; ++i) {
        names.append(Name(entries.at(i)));
    }
    if (entries.size() > namesTold) {
        names.append(QString(QChar(0x2026)));
    }
    return names.join(QLatin1String(", "));
}

QString ListChangeText::Moment(const QDateTime &time)
{
    return QLocale(Change::GetLangName()).toString(time.toLocalTime(), QLocale::ShortFormat);
}
