#include "PriorityPlan.h"

#include "PriorityFit.h"

#include <QHash>
#include <QPair>
#include <QSet>

namespace
{

const int defaultPriority = 0;

typedef QHash<QPair<bool, QString>, int> Places;

Places PlacesIn(const QList<PriorityList> &list)
{
    Places places;
    for (const PriorityList &entry : list) {
        const QPair<bool, QString> key = NetworkProfile::ListKeyOf(entry);
        if (!places.contains(key)) {
            const int place = static_cast<int>(places.size());
            places.insert(key, place);
        }
    }
    return places;
}

/** -1 for what is not in the list, or can't be connected. */
int PlaceOf(const NetworkProfile &profile, const Places &places)
{
    const bool isForTheList = profile.kind != NetworkProfile::OtherKind && !profile.uuid.isEmpty();
    return isForTheList && !profile.lacksAccount ? places.value(profile.ListKey(), -1) : -1;
}

bool IsOwn(const NetworkProfile &profile, const QMap<QString, PriorityRecord> &records)
{
    return records.contains(profile.uuid) && records.value(profile.uuid).IsOwn(profile.priority);
}

/** As well when what another program of ours has written has not arrived here yet. */
bool IsKnown(const NetworkProfile &profile, const QMap<QString, PriorityRecord> &records)
{
    const bool isBefore = records.contains(profile.uuid) && records[profile.uuid].before == profile.priority;
    return isBefore || IsOwn(profile, records);
}

/** What it has without the list, as far as that can be changed. */
int PriorityBefore(const NetworkProfile &profile, const QMap<QString, PriorityRecord> &records)
{
    return profile.isFreelyChangeable && IsOwn(profile, records) ? records.value(profile.uuid).before
                                                                 : profile.priority;
}

void AddProfile(const NetworkProfile &profile, bool isFirst, PriorityFit::Place *place)
{
    const bool isFixed = !profile.isFreelyChangeable;
    if (isFirst || (isFixed && !place->isFixed)) {
        place->priority = profile.priority;
        place->isMixed = place->isMixed && !isFixed;
    } else if (!place->isFixed && place->priority != profile.priority) {
        place->isMixed = true;
    }
    place->isFixed = place->isFixed || isFixed;
}

bool IsOutside(const NetworkProfile &profile, const Places &places)
{
    return PlaceOf(profile, places) < 0 && profile.kind != NetworkProfile::OtherKind && !profile.isHotspot;
}

/** For the places that there are profiles for. */
struct FittedPlaces {
    QHash<int, int> priorities;
    QSet<int> contradicting;
};

/** Those that NetworkManager could take before the last profile that follows the list. */
QList<NetworkProfile> Overtaking(const QList<NetworkProfile> &profiles, const Places &places,
                                 const FittedPlaces &fitted, const QMap<QString, PriorityRecord> &records)
{
    int last = PriorityFit::highest + 1;
    for (const NetworkProfile &profile : profiles) {
        const int place = PlaceOf(profile, places);
        if (place >= 0 && profile.isFreelyChangeable) {
            last = qMin(last, fitted.priorities.value(place));
        }
    }
    QList<NetworkProfile> overtaking;
    for (const NetworkProfile &profile : profiles) {
        if (IsOutside(profile, places) && PriorityBefore(profile, records) >= last) {
            overtaking.append(profile);
        }
    }
    return overtaking;
}

FittedPlaces Fitted(const QList<NetworkProfile> &profiles, const Places &places,
                    const QMap<QString, PriorityRecord> &records)
{
    QMap<int, PriorityFit::Place> there;
    QList<int> unlisted;
    for (const NetworkProfile &profile : profiles) {
        const int place = PlaceOf(profile, places);
        if (place >= 0) {
            const bool isFirst = !there.contains(place);
            AddProfile(profile, isFirst, &there[place]);
        } else if (IsOutside(profile, places)) {
            unlisted.append(PriorityBefore(profile, records));
        }
    }
    int floor = defaultPriority;
    for (const int priority : unlisted) {
        if (priority > floor && there.size() <= PriorityFit::highest - priority) {
            floor = priority;
        }
    }
    const PriorityFit::Result result = PriorityFit::Fit(there.values(), floor);
    const QList<int> keys = there.keys();
    FittedPlaces fitted;
    for (int i = 0; i < keys.size(); ++i) {
        fitted.priorities.insert(keys.at(i), result.priorities.at(i));
    }
    for (const int place : result.contradicting) {
        fitted.contradicting.insert(keys.at(place));
    }
    return fitted;
}

} // namespace

QMap<QString, int> PriorityPlan::Places(const QList<PriorityList> &list,
                                        const QList<NetworkProfile> &profiles)
{
    const ::Places all = PlacesIn(list);
    QMap<QString, int> places;
    for (const NetworkProfile &profile : profiles) {
        const int place = PlaceOf(profile, all);
        if (place >= 0) {
            places.insert(profile.uuid, place);
        }
    }
    return places;
}

PlannedPriorities PriorityPlan::Make(const QList<PriorityList> &list, const QList<NetworkProfile> &profiles,
                                     QMap<QString, PriorityRecord> *records)
{
    const ::Places places = PlacesIn(list);
    const FittedPlaces fitted = Fitted(profiles, places, *records);
    PlannedPriorities planned;
    planned.overtaking = Overtaking(profiles, places, fitted, *records);
    for (const NetworkProfile &profile : profiles) {
        const int place = PlaceOf(profile, places);
        if (!profile.isFreelyChangeable && fitted.contradicting.contains(place)) {
            planned.contradicting.append(profile);
        }
        if (!profile.isFreelyChangeable && place < 0 && IsOwn(profile, *records)) {
            planned.owing.append(profile);
        }
        if (!profile.isFreelyChangeable || profile.kind == NetworkProfile::OtherKind ||
            profile.uuid.isEmpty()) {
            continue;
        }
        const bool isKnown = IsKnown(profile, *records);
        PriorityChange change;
        change.profile = profile;
        change.priority = fitted.priorities.value(place, PriorityBefore(profile, *records));
        change.isListed = place >= 0;
        const bool isToBeWritten = change.priority != profile.priority;
        if (isToBeWritten) {
            planned.changes.append(change);
        }
        if (isToBeWritten || (isKnown && place >= 0)) {
            PriorityRecord &record = (*records)[profile.uuid];
            if (!isKnown) {
                record = PriorityRecord();
                record.before = profile.priority;
            }
            if (isToBeWritten) {
                record.AddOwn(change.priority);
            }
        } else {
            records->remove(profile.uuid);
        }
    }
    return planned;
}
