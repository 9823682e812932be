#ifndef RULEDPLACES_H
#define RULEDPLACES_H

#include <Overview.h>

#include <OrderRecords.h>

#include <QList>
#include <QString>

/** A place of the list that has no effect, in words. */
struct PlaceWithoutEffect {
    enum Remedy { NoRemedy, TurnOn, Connect };

    PriorityList entry;
    QString profileId;
    QString reason;
    Remedy remedy = NoRemedy;
};

/** What the list rules in the connection manager, and what it can't. */
namespace RuledPlaces
{

/**
 * In the order of the list. None while nothing is known of connections, or nobody has followed the list as
 * yet.
 *
 * @param standing  as IOrderPlugin::GetStanding tells.
 */
QList<PlaceWithoutEffect> WithoutEffect(const Overview &overview, const OrderOutcome &standing);

/** Why a profile could not be changed; @param obstacle  an OrderObstacle. */
QString Reason(int obstacle);

} // namespace RuledPlaces

#endif
