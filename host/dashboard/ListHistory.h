#ifndef LISTHISTORY_H
#define LISTHISTORY_H

#include <PriorityList.h>

#include <QDateTime>
#include <QList>

/** The priority list as it was at some time. */
struct ListState {
    /** When it became so, in UTC, whole seconds. */
    QDateTime time;
    QList<PriorityList> entries;
};

bool operator==(const ListState &left, const ListState &right);

/**
 * The last states of the priority list, oldest first, and which of them is the one in force. Those behind it
 * were undone and can be redone until the list changes in another way.
 */
class ListHistory
{
public:
    static const int Limit = 50;

    bool IsEmpty() const { return m_states.isEmpty(); }
    const QList<ListState> &States() const { return m_states; }

    /** Place of the state in force; -1 when there is none. */
    int Position() const { return m_position; }

    /** The place of a state that stood at place, or stands elsewhere by now; -1 when it is gone. */
    int Find(int place, const ListState &state) const;

    /** The entries in force; none when the history is empty. */
    QList<PriorityList> Entries() const;

    bool CanUndo() const { return m_position > 0; }
    bool CanRedo() const { return m_position + 1 < m_states.size(); }

    /** A new state, which is then in force. States that were undone go, and of more than Limit the oldest. */
    void Record(const ListState &state);

    /** Makes the state of that place the one in force; the others stay what they are. */
    void GoTo(int position);

    /** The state that the list is being taken to; -1 when it isn't. GoTo and Record end that. */
    int Target() const { return m_target; }
    void SetTarget(int position);

    /** Takes the older half of the states before the one in force away; false when there are none. */
    bool Shorten();

private:
    QList<ListState> m_states;
    int m_position = -1;
    int m_target = -1;
};

#endif
