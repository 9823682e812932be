#ifndef PRIORITYTURN_H
#define PRIORITYTURN_H

#include <NetworkProfile.h>

#include <PriorityList.h>

#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>

struct PriorityRecord;

/**
 * What is known of a list since it last changed, so that two lists of two users don't write over each other
 * without an end: what somebody else sets against the list is set right once. When they do it again, they
 * mean it, and what they have set stays. So of two lists the one that was changed last rules.
 *
 * A turn ends when the list changes, and when the user orders that the list takes effect.
 */
struct PriorityTurn {
    /** Which list it is; empty before its first whole comparison. */
    QString list;
    /** The priorities that the last comparison left, by the uuids of the listed profiles. */
    QMap<QString, int> left;
    /** What profiles that somebody else has set against the list had without it before that. Of yielded ones
     * it is known in the next turn, too, until that has had its whole comparison. */
    QMap<QString, int> before;
    /** Pairs of places, the upper one first, whose profiles somebody else has put in the wrong order. */
    QSet<QPair<int, int>> contested;
    /** By their uuids, profiles that keep what somebody else has set. */
    QSet<QString> yielded;

    static QString NameOf(const QList<PriorityList> &list);

    PriorityTurn Next() const;

    /**
     * Finds out what somebody else has set against the list since the last comparison.
     *
     * @param records  where somebody else does it again, what profiles had without the list is what it was
     *                 before they began: what a list of theirs has written is nobody's own.
     * @return the profiles that are to be set right.
     */
    QList<NetworkProfile> TakeChanges(const QList<PriorityList> &theList,
                                      const QList<NetworkProfile> &profiles,
                                      QMap<QString, PriorityRecord> *records);

    /** Those that the list still rules. */
    QList<NetworkProfile> Ruled(const QList<NetworkProfile> &profiles) const;

    /** Those that were yielded and do not fit their place. */
    QList<NetworkProfile> Contradicting(const QList<PriorityList> &theList,
                                        const QList<NetworkProfile> &profiles) const;

    bool operator==(const PriorityTurn &other) const
    {
        return list == other.list && left == other.left && before == other.before &&
               contested == other.contested && yielded == other.yielded;
    }
};

#endif
