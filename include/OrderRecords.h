#ifndef ORDERRECORDS_H
#define ORDERRECORDS_H

#include <QList>
#include <QString>

/*
 * What a WLAN plug-in tells of the list's effect on the connection manager, and IOrderPlugin carries. Like
 * the records of IConnectionPlugin these are exchanged by address between libraries that are built
 * separately: their fields, the order of these and the numbers of the words are binary contract.
 *
 * All are plain values, and default construction says nothing that is not so. In every enumeration 0 is "not
 * known"; a number that a caller does not know counts as 0, as there may be more of them later.
 *
 * Priorities are the connection manager's own numbers: of two profiles that could both be used, it takes the
 * one with the greater. NetworkManager's go from -999 to 999, and 0 is what nobody has set.
 */

/** Why a profile keeps the priority, or its connection the route metric, that it has. */
enum OrderObstacle {
    ObstacleNotKnown = 0,
    /** It belongs to other users of this computer. */
    ObstacleOtherUsers = 1,
    /** It is not stored: somebody has made it for a while. */
    ObstaclePassing = 2,
    /** It is part of the system's own set-up, or this user may not change it, not even with a password. */
    ObstacleNotAllowed = 3,
    /** It can be changed after a password only, which nobody is asked for. */
    ObstaclePassword = 4,
    /** The connection manager refused the change. */
    ObstacleRefused = 5,
    /** The connection manager did not answer. */
    ObstacleNoAnswer = 6,
    /** Somebody has chosen a route metric for it: of several connections that are up, another one carries the
     * traffic. */
    ObstacleOwnMetric = 7,
    /** Somebody else's list or program has given it another priority, and again after it was set right. */
    ObstacleOtherList = 8
};

/** A profile that was given another priority. */
struct OrderChange {
    /** Of the profile. Several profiles may have one name. */
    QString name;
    int before = 0;
    int after = 0;
};

/** A profile that was to be changed, or to carry the traffic, and could not be made to. */
struct OrderKept {
    QString name;
    /** An OrderObstacle. */
    int obstacle = ObstacleNotKnown;
    /** The ConnectionProfile::id. */
    QString profileId;
};

/** What came of an order. */
struct OrderOutcome {
    enum Stage {
        /** There is no such order. */
        StageOrderNotKnown = 0,
        StageOrderUnderWay = 1,
        /** All was done but for what kept tells. */
        StageOrderDone = 2,
        /** Nothing could be done; failure tells why. */
        StageOrderFailed = 3
    };
    enum Failure {
        FailureOrderNone = 0,
        /** The connection manager is gone, or does not answer. */
        FailureOrderSource = 1,
        /** There is no list, or it can't be read to its end. */
        FailureOrderList = 2
    };

    int stage = StageOrderNotKnown;
    int failure = FailureOrderNone;
    /** In the order in which they were made. */
    QList<OrderChange> changes;
    QList<OrderKept> kept;
};

#endif
