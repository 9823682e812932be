#include "ListHistory.h"

#include "ListDifference.h"
#include "ListEntries.h"

namespace
{

bool IsSameList(const ListState &left, const ListState &right)
{
    return left.time == right.time && ListEntries::IsSame(left.entries, right.entries);
}

QDate LocalDay(const ListState &state)
{
    return state.time.toLocalTime().date();
}

bool Contains(const QList<PriorityList> &list, const PriorityList &entry)
{
    for (const PriorityList &one : list) {
        if (ListEntries::IsSame(one, entry)) {
            return true;
        }
    }
    return false;
}

/** Whether both steps can be moves of the same entry. */
bool AreMovesOfOne(const QList<PriorityList> &first, const QList<PriorityList> &second,
                   const QList<PriorityList> &last)
{
    const QList<PriorityList> moved = ListDifference::OnlyMoved(second, last);
    if (ListEntries::IsSame(first, last)) {
        return !moved.isEmpty();
    }
    // What moves the entry from the second to the last, and from the first to the last, has moved it between
    // the first two as well.
    const QList<PriorityList> movedInAll = ListDifference::OnlyMoved(first, last);
    for (const PriorityList &entry : moved) {
        if (Contains(movedInAll, entry)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool operator==(const ListState &left, const ListState &right)
{
    return IsSameList(left, right) && left.backTo == right.backTo && left.isPassedBy == right.isPassedBy;
}

ListHistory::ListHistory(const QList<ListState> &states, int position, const QDateTime &since)
    : m_states(states), m_position(position), m_cameBack(since)
{
}

QDateTime ListHistory::Since() const
{
    return IsEmpty() || m_cameBack.isValid() ? m_cameBack : m_states.at(m_position).time;
}

QList<PriorityList> ListHistory::Entries() const
{
    return IsEmpty() ? QList<PriorityList>() : m_states.at(m_position).entries;
}

int ListHistory::Find(int place, const ListState &state) const
{
    // The same list can have come about twice within a second.
    if (IsSameList(m_states.value(place), state)) {
        return place;
    }
    for (int i = 0; i < m_states.size(); ++i) {
        if (IsSameList(m_states.at(i), state)) {
            return i;
        }
    }
    return -1;
}

int ListHistory::UndoPlace() const
{
    int place = m_position - 1;
    while (place >= 0 && m_states.at(place).isPassedBy) {
        --place;
    }
    return qMax(place, -1);
}

int ListHistory::RedoPlace() const
{
    int place = m_position + 1;
    while (place < m_states.size() && m_states.at(place).isPassedBy) {
        ++place;
    }
    return place < m_states.size() ? place : -1;
}

void ListHistory::Record(const ListState &state)
{
    if (RedoPlace() >= 0) {
        RecordReturn(m_cameBack.isValid() ? m_cameBack : state.time);
    }
    m_states.append(state);
    m_position = m_states.size() - 1;
    m_cameBack = QDateTime();
    m_target = -1;
    RemoveOld();
}

void ListHistory::RecordReturn(const QDateTime &time)
{
    ListState back = m_states.at(m_position);
    back.backTo = back.time;
    back.time = time;
    // It stands for the state that was gone back to as well.
    for (int i = m_position; i < m_states.size(); ++i) {
        m_states[i].isPassedBy = true;
    }
    m_states.append(back);
}

void ListHistory::RemoveOld()
{
    const int recentFrom = m_states.size() - Recent;
    QList<QDate> days;
    for (int i = m_states.size() - 1; i >= 0; --i) {
        const QDate day = LocalDay(m_states.at(i));
        const bool isLastOfDay = days.size() < Days && !days.contains(day);
        if (isLastOfDay) {
            days.append(day);
        } else if (i < recentFrom) {
            m_states.removeAt(i);
        }
    }
    m_position = m_states.size() - 1;
}

void ListHistory::RecordJoined(const ListState &state, const QDateTime &opened)
{
    if (!IsJoined(state, opened)) {
        Record(state);
        return;
    }
    const int before = UndoPlace();
    if (ListEntries::IsSame(m_states.at(before).entries, state.entries)) {
        m_states.removeLast();
        m_position = before;
        m_cameBack = state.time;
    } else {
        m_states.last() = state;
    }
    m_target = -1;
}

bool ListHistory::IsJoined(const ListState &state, const QDateTime &opened) const
{
    const int last = m_states.size() - 1;
    if (last < 1 || m_position != last || UndoPlace() != last - 1) {
        return false;
    }
    const ListState &newest = m_states.at(last);
    const qint64 seconds = newest.time.secsTo(state.time);
    const bool isOfSameOpening = opened.isValid() && newest.time >= opened;
    return !newest.backTo.isValid() && seconds >= 0 && (seconds <= JoinedSeconds || isOfSameOpening) &&
           LocalDay(newest) == LocalDay(state) &&
           AreMovesOfOne(m_states.at(last - 1).entries, newest.entries, state.entries);
}

bool ListHistory::CanBeInForce(int place) const
{
    return place >= 0 && place < m_states.size() && !m_states.at(place).isPassedBy;
}

void ListHistory::GoTo(int position, const QDateTime &since)
{
    if (CanBeInForce(position) && position != m_position) {
        m_position = position;
        m_cameBack = since;
    }
    m_target = -1;
}

void ListHistory::SetTarget(int position)
{
    m_target = CanBeInForce(position) ? position : -1;
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
