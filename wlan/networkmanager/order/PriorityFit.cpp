#include "PriorityFit.h"

#include <QVector>

namespace
{

/** The room for places in NetworkManager's range; what comes after has the lowest priority. */
const int room = PriorityFit::highest - PriorityFit::lowest + 1;
/** As many changes as a move may cost that finds no gap, unless there is no other way. */
const int mostTogether = 3;
/** With it, what is moved to one place three times finds a gap each time. */
const int wideGap = 8;
/** At an end of the range there is room left for as many more: most of what is moved is moved there. */
const int keptAtTheEnd = 7;

class Fitting
{
public:
    Fitting(const QList<PriorityFit::Place> &places, int floor)
        : m_places(places), m_count(qMin(static_cast<int>(places.size()), room)),
          m_reach(qMin(LastFree(places) + 1, PriorityFit::highest - floor)), m_floor(floor),
          m_stays(m_count, false)
    {
        ChooseStaying();
        MakeRoom();
    }

    QList<int> Priorities() const;

private:
    static int LastFree(const QList<PriorityFit::Place> &places)
    {
        int last = static_cast<int>(places.size()) - 1;
        while (last >= 0 && places.at(last).isFixed) {
            --last;
        }
        return last;
    }

    /** So that all places before and behind have room. */
    int Highest(int place) const { return PriorityFit::highest - place; }
    int Lowest(int place) const
    {
        return place < m_reach ? m_floor + m_reach - place : PriorityFit::lowest + m_count - 1 - place;
    }

    bool CanStay(int place) const
    {
        const PriorityFit::Place &there = m_places.at(place);
        return !there.isMixed && there.priority >= Lowest(place) && there.priority <= Highest(place);
    }

    /** Of a place that stays, or of what is beyond the first and the last. */
    int PriorityOf(int place) const
    {
        if (place < 0) {
            return PriorityFit::highest + 1;
        }
        return place < m_count ? m_places.at(place).priority : Lowest(m_count - 1) - 1;
    }

    /** The room on the other side of a place that could change; -1 when it can't. */
    int RoomBeyond(int place, int direction) const
    {
        const int beyond = place + direction;
        const bool isEnd = beyond < 0 || beyond >= m_count;
        if (place < 0 || place >= m_count || m_places.at(place).isFixed || !(isEnd || m_stays.at(beyond))) {
            return -1;
        }
        return qAbs(PriorityOf(beyond) - PriorityOf(place));
    }

    int NextStaying(int place) const
    {
        const int next = static_cast<int>(m_stays.indexOf(true, place));
        return next < 0 ? m_count : next;
    }

    void ChooseStaying();
    void MakeRoom();
    bool IsTight(int first, int end) const;

    const QList<PriorityFit::Place> &m_places;
    const int m_count;
    /** How many places, from the first on, have to be above the floor. */
    const int m_reach;
    const int m_floor;
    QVector<bool> m_stays;
};

/**
 * The most places that can stay together: between any two there has to be room for what stands between them.
 * A fixed place counts more than all others.
 */
void Fitting::ChooseStaying()
{
    QVector<int> weight(m_count, 0);
    QVector<int> before(m_count, -1);
    int last = -1;
    for (int i = 0; i < m_count; ++i) {
        if (!CanStay(i)) {
            continue;
        }
        for (int j = 0; j < i; ++j) {
            if (weight.at(j) > weight.at(i) && m_places.at(j).priority - m_places.at(i).priority >= i - j) {
                weight[i] = weight.at(j);
                before[i] = j;
            }
        }
        weight[i] += m_places.at(i).isFixed ? room + 1 : 1;
        last = last < 0 || weight.at(i) > weight.at(last) ? i : last;
    }
    for (int i = last; i >= 0; i = before.at(i)) {
        m_stays[i] = true;
    }
}

/**
 * Where places side by side have to change and would stand close together, neighbours change with them, for
 * the next move to find a gap.
 */
void Fitting::MakeRoom()
{
    int first = 0;
    while (first < m_count) {
        int end = NextStaying(first);
        while (IsTight(first, end)) {
            const int before = RoomBeyond(first - 1, -1);
            const int behind = RoomBeyond(end, 1);
            if (before < 0 && behind < 0) {
                break;
            }
            if (before > behind) {
                --first;
                m_stays[first] = false;
            } else {
                m_stays[end] = false;
                ++end;
            }
        }
        first = end + 1;
    }
}

bool Fitting::IsTight(int first, int end) const
{
    const int count = end - first;
    if (count < 2 || m_stays.count(false) == mostTogether) {
        return false;
    }
    const int there = PriorityOf(first - 1) - PriorityOf(end);
    const int whole = PriorityOf(-1) - PriorityOf(m_count);
    // Much less than each would have if all were spread evenly.
    return there < wideGap * (count + 1) && 4 * there * (m_count + 1) < 3 * whole * (count + 1);
}

QList<int> Fitting::Priorities() const
{
    QList<int> priorities;
    for (int first = 0; first < m_count; ++first) {
        const int end = NextStaying(first);
        const int count = end - first;
        const int above = PriorityOf(first - 1);
        const int below = PriorityOf(end);
        const bool isAtTheTop = first == 0 && end < m_count;
        const bool isAtTheBottom = first > 0 && end == m_count;
        int parts = count + 1 + (isAtTheTop || isAtTheBottom ? keptAtTheEnd : 0);
        if (parts > above - below) {
            parts = count + 1;
        }
        for (int i = 1; i <= count; ++i) {
            const int priority = isAtTheTop ? below + (above - below) * (count + 1 - i) / parts
                                            : above - (above - below) * i / parts;
            priorities.append(qMax(priority, Lowest(first + i - 1)));
        }
        if (end < m_count) {
            priorities.append(below);
        }
        first = end;
    }
    while (priorities.size() < m_places.size()) {
        priorities.append(PriorityFit::lowest);
    }
    return priorities;
}

} // namespace

PriorityFit::Result PriorityFit::Fit(const QList<Place> &places, int floor)
{
    const Fitting fitting(places, floor);
    Result result;
    result.priorities = fitting.Priorities();
    for (int i = 0; i < places.size(); ++i) {
        if (places.at(i).isFixed && result.priorities.at(i) != places.at(i).priority) {
            result.contradicting.append(i);
            result.priorities[i] = places.at(i).priority;
        }
    }
    return result;
}
