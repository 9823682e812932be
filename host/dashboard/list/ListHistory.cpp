#include "ListHistory.h"

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

QList<PriorityList> MovedEntries(const ListState &from, const ListState &to)
{
    QList<PriorityList> entries;
    const QList<ListDifference::Move> moves = ListHistory::Moves(from, to);
    for (const ListDifference::Move &move : moves) {
        entries.append(to.entries.at(move.to));
    }
    return entries;
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
bool AreMovesOfOne(const ListState &first, const ListState &second, const ListState &last)
{
    const QList<PriorityList> moved = MovedEntries(second, last);
    // What moves the entry from the second to the last, and from the first to the last, has moved it between
    // the first two as well.
    const bool isBack = ListEntries::IsSame(first.entries, last.entries);
    const QList<PriorityList> movedBefore =
        isBack ? MovedEntries(first, second) : ListDifference::OnlyMoved(first.entries, last.entries);
    for (const PriorityList &entry : moved) {
        const bool isOther =
            second.moved >= 0 && !ListEntries::IsSame(second.entries.at(second.moved), entry);
        if (Contains(movedBefore, entry) && !isOther) {
            return true;
        }
    }
    return false;
}

/** The place of the entry that both steps have moved; -1 when nobody has told which that is. */
int MovedByBoth(const ListState &second, const ListState &last)
{
    if (last.moved >= 0 || second.moved < 0) {
        return last.moved;
    }
    const PriorityList &moved = second.entries.at(second.moved);
    for (int i = 0; i < last.entries.size(); ++i) {
        if (ListEntries::IsSame(last.entries.at(i), moved)) {
            return i;
        }
    }
    return -1;
}

} // namespace

bool operator==(const ListState &left, const ListState &right)
{
    return IsSameList(left, right) && left.backTo == right.backTo && left.isPassedBy == right.isPassedBy &&
           left.moved == right.moved;
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

QList<ListDifference::Move> ListHistory::Moves(const ListState &from, const ListState &to)
{
    const QList<ListDifference::Move> moves = ListDifference::OnlyMoves(from.entries, to.entries);
    QList<ListDifference::Move> told;
    for (const ListDifference::Move &move : moves) {
        if (to.moved >= 0 && ListEntries::IsSame(to.entries.at(to.moved), to.entries.at(move.to))) {
            told.append(move);
        }
    }
    return told.isEmpty() ? moves : told;
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
    back.moved = -1;
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
        const int moved = MovedByBoth(m_states.last(), state);
        m_states.last() = state;
        m_states.last().moved = moved;
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
           LocalDay(newest) == LocalDay(state) && AreMovesOfOne(m_states.at(last - 1), newest, state);
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
