#include "PriorityPlan.h"

#include <QHash>
#include <QPair>

namespace
{

const int highestPriority = 999;
const int lowestPriority = -999;

typedef QHash<QPair<bool, QString>, int> Places;

Places PlacesIn(const QList<PriorityList> &list)
{
    Places places;
    for (int i = 0; i < list.size(); ++i) {
        const QPair<bool, QString> key = NetworkProfile::ListKeyOf(list.at(i));
        if (!places.contains(key)) {
            const int place = places.size();
            places.insert(key, place);
        }
    }
    return places;
}

} // namespace

int PriorityPlan::PriorityAt(int place)
{
    return qMax(lowestPriority, highestPriority - place);
}

QList<PriorityChange> PriorityPlan::Make(const QList<PriorityList> &list,
                                         const QList<NetworkProfile> &profiles,
                                         QMap<QString, PriorityRecord> *records)
{
    const Places places = PlacesIn(list);
    QList<PriorityChange> changes;
    for (int i = 0; i < profiles.size(); ++i) {
        const NetworkProfile &profile = profiles.at(i);
        if (!profile.isFreelyChangeable || profile.kind == NetworkProfile::OtherKind ||
            profile.uuid.isEmpty()) {
            continue;
        }
        const int place = profile.lacksAccount ? -1 : places.value(profile.ListKey(), -1);
        const PriorityRecord record = records->value(profile.uuid);
        const bool isOwn = records->contains(profile.uuid) && record.IsOwn(profile.priority);
        const int before = isOwn ? record.before : profile.priority;

        PriorityChange change;
        change.profile = profile;
        change.priority = place >= 0 ? PriorityAt(place) : before;
        const bool isToBeWritten = change.priority != profile.priority;
        if (isToBeWritten) {
            changes.append(change);
        }
        if (isToBeWritten || (isOwn && place >= 0)) {
            PriorityRecord next;
            next.before = before;
            next.written = isOwn ? profile.priority : change.priority;
            next.intended = change.priority;
            records->insert(profile.uuid, next);
        } else {
            records->remove(profile.uuid);
        }
    }
    return changes;
}
