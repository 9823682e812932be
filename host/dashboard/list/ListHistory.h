#ifndef LISTHISTORY_H
#define LISTHISTORY_H

#include "ListDifference.h"

#include <PriorityList.h>

#include <QDateTime>
#include <QList>

/** The priority list as it was at some time. */
struct ListState {
    /** When it became so, in UTC, whole seconds. */
    QDateTime time;
    QList<PriorityList> entries;
    /** Where an earlier list was gone back to, the time of that one; null for any other change. */
    QDateTime backTo;
    /** Whether Undo and Redo pass it by. */
    bool isPassedBy = false;
    /** The place of the entry that was moved to make it so; -1 for any other change, and where nobody has
     * told which one of two neighbours it was. */
    int moved = -1;
};

bool operator==(const ListState &left, const ListState &right);

/**
 * The record of the priority list: its states, oldest first, and which of them is in force.
 *
 * - A change is a new state at the end. So is going back to an earlier list: no state is cut off by it.
 * - Undo and Redo add nothing. They walk along those states that led to the one in force or were undone from
 *   there. Once the list changes after an undo, two states are added: that it was gone back, and the change.
 *   Undo takes the change back and then goes further back; what was undone before stays in the record, but
 *   Undo and Redo pass it by.
 * - Moves of one entry that follow each other are one state, which has the time of the last of them: within
 *   the same opening of the page, or not more than JoinedSeconds apart, and on one day. Who made them makes
 *   no difference. Two neighbours that have changed places may both have been moved: where nobody has told
 *   which, such a step belongs to the moves of either. Moves that take the entry back to where it was leave
 * no state.
 * - The last Recent states are kept, and besides them the last state of each of the latest Days days on which
 *   there was a change, as the states' times tell in the local time. Whatever the clock shows now makes no
 *   difference, so that nothing goes because it was wrong for a while.
 */
class ListHistory
{
public:
    static const int Recent = 50;
    static const int Days = 14;
    /** So many states there are at most. */
    static const int Most = Recent + Days;
    static const int JoinedSeconds = 10;

    ListHistory() = default;

    /** The record that was kept as these states. position is one of them that is not passed by, or -1 when
     * there are none; since is as Since, or null. */
    ListHistory(const QList<ListState> &states, int position, const QDateTime &since);

    bool IsEmpty() const { return m_states.isEmpty(); }
    const QList<ListState> &States() const { return m_states; }

    /** Place of the state in force; -1 when there is none. */
    int Position() const { return m_position; }

    /** When the state in force came into force other than by its change; null when it did not. */
    QDateTime CameBack() const { return m_cameBack; }

    /** Since when the state in force is in force; null when there is none. */
    QDateTime Since() const;

    /** The place of a state that stood at place, or stands elsewhere by now; -1 when it is gone. */
    int Find(int place, const ListState &state) const;

    /** The entries in force; none when the history is empty. */
    QList<PriorityList> Entries() const;

    // Places of the states that Undo and Redo lead to; -1 when they lead nowhere.
    int UndoPlace() const;
    int RedoPlace() const;

    /** The moves of one entry alone that can have led from one state to a later one: one, or two where nobody
     * has told which of two neighbours was moved. */
    static QList<ListDifference::Move> Moves(const ListState &from, const ListState &to);

    /** A new state, which is then in force. */
    void Record(const ListState &state);

    /**
     * As Record, but a move of one entry is joined with the moves of it before.
     *
     * @param opened  since when the page has been open; null when it isn't.
     */
    void RecordJoined(const ListState &state, const QDateTime &opened);

    /** Makes the state of that place the one in force, unless it is passed by. since is null when it is in
     * force since its own time. */
    void GoTo(int position, const QDateTime &since);

    /** The state that the list is being taken to; -1 when it isn't. GoTo and Record end that. */
    int Target() const { return m_target; }
    void SetTarget(int position);

    /** Takes the older half of the states before the one in force away; false when there are none. */
    bool Shorten();

private:
    bool CanBeInForce(int place) const;
    void RecordReturn(const QDateTime &time);
    void RemoveOld();
    bool IsJoined(const ListState &state, const QDateTime &opened) const;

    QList<ListState> m_states;
    int m_position = -1;
    QDateTime m_cameBack;
    int m_target = -1;
};

#endif
