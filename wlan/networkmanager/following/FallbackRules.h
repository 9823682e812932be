#ifndef FALLBACKRULES_H
#define FALLBACKRULES_H

#include "FollowRules.h"

#include <PriorityList.h>

#include <QList>
#include <QSet>
#include <QString>

/** What has to be remembered from one look to the next. Times are seconds. */
struct FallbackHistory {
    static const qint64 never = -1;

    /** Whether the internet was reached without mobile broadband, and since when that has been so. */
    bool isUp = false;
    qint64 since = never;
    /** When a profile was last connected, as long as the internet has not been reached without it. */
    qint64 lastTry = never;
    /** The ids of profiles that were ended, and that NetworkManager therefore doesn't connect by itself; of
     * these, those of which the modem has been away since. */
    QSet<QString> ended;
    QSet<QString> gone;
    /** The ids of connections that have been seen, and of those that somebody else wanted. */
    QSet<QString> known;
    QSet<QString> byHand;
};

/** What is to be done now. */
struct FallbackStep {
    FallbackHistory history;
    /** To be connected by that device; empty when nothing is. */
    QString profile;
    QString device;
    /** To be ended. */
    QList<ActiveConnection> ended;
    /** Seconds until time alone may change the answer; 0 when it won't. */
    qint64 lookAgainIn = 0;
};

/** Mobile broadband as the fallback: connected while nothing else is there, and only then. */
namespace FallbackRules
{

const qint64 secondsUntilConnected = 30;
const qint64 secondsUntilEnded = 60;
/** After a try that came to nothing. */
const qint64 secondsBetweenTries = 300;

/**
 * To be asked whenever something has changed, and when lookAgainIn is over. It goes by its arguments alone.
 *
 * Entries of mobile broadband are the fallback when all Wi-Fi entries, of which there is at least one, stand
 * above them. They are wanted while the internet is not reached by anything else, be that in the list or not.
 * Only profiles that connect by themselves are connected and ended, and never a connection that the user has
 * ordered: that is what byHand tells, and what comes up though it was ended here. During a VPN nothing is
 * ended, as the VPN may go through it.
 *
 * @param now  seconds, by a clock that is never put back.
 */
FallbackStep Next(const QList<PriorityList> &list, const FollowView &view, qint64 now,
                  const FallbackHistory &history);

} // namespace FallbackRules

#endif
