#ifndef FOLLOWRULES_H
#define FOLLOWRULES_H

#include <ConnectionPicture.h>

#include <PriorityList.h>

#include <QHash>
#include <QList>
#include <QPair>
#include <QSet>
#include <QString>

/** What following the list goes by, all of one moment. */
struct FollowView {
    ConnectionRecords records;
    /** When each Wi-Fi device last finished looking for networks, by the names of the devices. Only whether
     * it is another time than before counts. */
    QHash<QString, qint64> scans;
    /** Without anybody being asked for a password. */
    bool mayConnect = false;
    bool hasVpn = false;
    bool isOnBattery = false;
    /** The ids of connections that the user has ordered in windows and commands of ours. */
    QSet<QString> byHand;
    /** Of the last switch: the ConnectionStage that its order has come to. */
    int tryStage = StageNotKnown;

    /** All but what NetworkManager doesn't tell. */
    static FollowView Of(const ConnectionPicture &picture, const ConnectionRecords &records);
};

/** What has to be remembered from one look to the next. Times are seconds. */
struct FollowHistory {
    static const qint64 never = -1;

    /** Whether an entry is of Wi-Fi, and its name, as in NetworkProfile::ListKey. */
    typedef QPair<bool, QString> Entry;

    struct Sighting {
        qint64 scan = 0;
        int count = 0;
    };
    struct Connection {
        QString device;
        bool isByHand = false;
    };
    struct Block {
        int failures = 0;
        qint64 until = 0;
    };

    /** By the ids of profiles and the names of devices. */
    QHash<QPair<QString, QString>, Sighting> sightings;
    QHash<QString, Connection> connections;
    QHash<Entry, Block> blocks;
    /** The profile of the last switch while it is open what that has come to; empty otherwise. */
    QString tried;
    Entry triedEntry;
    qint64 triedIsUpSince = never;
    qint64 lastSwitch = never;
    qint64 lastLook = never;
};

/** What is to be done now. */
struct FollowStep {
    FollowHistory history;
    /** To be connected by that device; empty when nothing is to be switched. */
    QString profile;
    QString device;
    /** The name of the connection in use, of which it takes the place. */
    QString inUse;
    /** The devices are to look for networks. */
    bool isScanDue = false;
    /** Seconds until time alone may change the answer; 0 when it won't. */
    qint64 lookAgainIn = 0;
};

/** Following the list: which entry above the one in use is switched to, and when. */
namespace FollowRules
{

const int leastSignal = 40;
const int leastScansInARow = 2;
/** So there are never more than twelve switches an hour. */
const qint64 secondsBetweenSwitches = 300;
/** The first of them; twice as long after the next failure, and so on, up to the longest. */
const qint64 secondsBlocked = 600;
const qint64 secondsBlockedAtMost = 2400;
const qint64 secondsBetweenScans = 120;
const qint64 secondsBetweenScansOnBattery = 360;
/** What a connection gets to find out whether the internet is behind it. */
const qint64 secondsToSettle = 60;

/**
 * To be asked whenever something has changed, and when lookAgainIn is over. It goes by its arguments alone.
 *
 * The entry in use is the one that carries the traffic; where nothing does, the first one that is connected.
 * What is not in the list is never switched away from, nor is what the user has connected: that is what is
 * told by byHand, what doesn't connect by itself, and what took the place of a connection that was up, which
 * NetworkManager never does by itself. An entry is switched to on the device of the one in use, or, by Wi-Fi
 * that is free, away from mobile broadband: nothing else would move the traffic.
 *
 * @param now  seconds, by a clock that is never put back.
 */
FollowStep Next(const QList<PriorityList> &list, const FollowView &view, qint64 now,
                const FollowHistory &history);

} // namespace FollowRules

#endif
