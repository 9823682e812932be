#include "RuledPlaces.h"

#include "OverviewText.h"

#include <DashboardText.h>

namespace
{

const OrderKept *KeptOf(const QString &profileId, const OrderOutcome &standing)
{
    for (const OrderKept &kept : standing.kept) {
        if (!profileId.isEmpty() && kept.profileId == profileId) {
            return &kept;
        }
    }
    return nullptr;
}

/** It could be used, and NetworkManager may have stopped trying. */
bool HasFailed(const Overview::Entry &entry)
{
    return entry.stage == StageNotKnown && entry.profile.use == ConnectionProfile::UsePossible &&
           entry.profile.failure != FailureNone && entry.profile.failure != FailureStopped;
}

PlaceWithoutEffect PlaceOf(const Overview::Entry &entry, const OrderOutcome &standing)
{
    PlaceWithoutEffect place;
    place.entry = entry.entry;
    place.profileId = entry.profile.id;
    const OrderKept *kept = KeptOf(entry.profile.id, standing);
    if (entry.isRepeated) {
        place.reason = DashboardText("IDS_USE_TWICE");
    } else if (entry.profile.id.isEmpty()) {
        place.reason = DashboardText("IDS_USE_NOT_SAVED");
    } else if (!entry.profile.connectsByItself) {
        place.reason = DashboardText("IDS_RULED_BY_HAND");
        place.remedy = PlaceWithoutEffect::TurnOn;
    } else if (kept) {
        place.reason = RuledPlaces::Reason(kept->obstacle);
    } else if (HasFailed(entry)) {
        place.reason = DashboardJoined("IDS_SENTENCES", {OverviewText::Failure(entry.profile.failure),
                                                         DashboardText("IDS_RULED_RETRIES")});
        place.remedy = PlaceWithoutEffect::Connect;
    }
    return place;
}

} // namespace

QList<PlaceWithoutEffect> RuledPlaces::WithoutEffect(const Overview &overview, const OrderOutcome &standing)
{
    QList<PlaceWithoutEffect> places;
    if (!overview.connections.AreKnown() || standing.stage != OrderOutcome::StageOrderDone) {
        return places;
    }
    for (const Overview::Entry &entry : overview.entries) {
        const PlaceWithoutEffect place = PlaceOf(entry, standing);
        if (!place.reason.isEmpty()) {
            places.append(place);
        }
    }
    return places;
}

QString RuledPlaces::Reason(int obstacle)
{
    switch (obstacle) {
    case ObstacleOtherUsers:
        return DashboardText("IDS_USE_OTHER_USERS");
    case ObstaclePassing:
        return DashboardText("IDS_RULED_PASSING");
    case ObstacleNotAllowed:
    case ObstaclePassword:
        return DashboardText("IDS_RULED_NOT_ALLOWED");
    case ObstacleOtherList:
        return DashboardText("IDS_RULED_OTHER_LIST");
    case ObstacleOwnMetric:
        return DashboardText("IDS_RULED_OWN_METRIC");
    default:
        return DashboardText("IDS_RULED_REFUSED");
    }
}
