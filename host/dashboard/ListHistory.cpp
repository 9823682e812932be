#include "ListHistory.h"

#include "ListEntries.h"

bool operator==(const ListState &left, const ListState &right)
{
    return left.time == right.time && ListEntries::IsSame(left.entries, right.entries);
}

QList<PriorityList> ListHistory::Entries() const
{
    return IsEmpty() ? QList<PriorityList>() : m_states.at(m_position).entries;
}

int ListHistory::Find(int place, const ListState &state) const
{
    // The same list can have come about twice within a second.
    return m_states.value(place) == state ? place : m_states.indexOf(state);
}

void ListHistory::Record(const ListState &state)
{
    m_states = m_states.mid(0, m_position + 1);
    m_states.append(state);
    m_target = -1;
    while (m_states.size() > Limit) {
        m_states.removeFirst();
    }
    m_position = m_states.size() - 1;
}

void ListHistory::GoTo(int position)
{
    if (position >= 0 && position < m_states.size()) {
        m_position = position;
    }
    m_target = -1;
}

void ListHistory::SetTarget(int position)
{
    m_target = position < m_states.size() ? qMax(position, -1) : -1;
}

bool ListHistory::Shorten()
{
    if (m_position <= 0) {
        return false;
    }
    const int taken = (m_position + 1) / 2;
    m_states = m_states.mid(taken);
    m_position -= taken;
    SetTarget(m_target - taken);
    return true;
}
