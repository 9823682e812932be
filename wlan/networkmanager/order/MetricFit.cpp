#include "MetricFit.h"

#include <QVector>

namespace
{

/** Between places at the end that are all moved behind what is there. */
const qint64 step = 50;

class Fitting
{
public:
    explicit Fitting(const QList<MetricFit::Place> &places)
        : m_places(places), m_count(static_cast<int>(places.size())), m_stays(m_count, false)
    {
        ChooseStaying();
    }

    MetricFit::Result Result() const;

private:
    /** What is changed between the two has room there, too. */
    bool CanBothStay(int left, int right) const
    {
        const qint64 from = right - left > 1 ? qMax(MetricAt(left), MetricFit::lowest - 1) : MetricAt(left);
        return MetricAt(right) - from >= right - left;
    }
    bool CanBeFirst(int place) const { return place == 0 || MetricAt(place) >= MetricFit::lowest + place; }
    bool CanBeLast(int place) const
    {
        const int behind = m_count - 1 - place;
        return behind == 0 || MetricAt(place) + behind <= MetricFit::highest;
    }
    qint64 MetricAt(int place) const { return m_places.at(place).metric; }
    void ChooseStaying();
    int NextStaying(int from) const;

    const QList<MetricFit::Place> &m_places;
    const int m_count;
    QVector<bool> m_stays;
};

/** As many as possible, and rather one that is fixed than all others. */
void Fitting::ChooseStaying()
{
    QVector<int> most(m_count, 0);
    QVector<int> next(m_count, -1);
    int first = -1;
    for (int place = m_count - 1; place >= 0; --place) {
        const int weight = m_places.at(place).isFixed ? m_count + 1 : 1;
        most[place] = CanBeLast(place) ? weight : 0;
        for (int later = place + 1; later < m_count; ++later) {
            if (most.at(later) > 0 && CanBothStay(place, later) && most.at(later) + weight > most.at(place)) {
                most[place] = most.at(later) + weight;
                next[place] = later;
            }
        }
        // Of two choices that are as good, the later stays: the metrics of others don't come between.
        if (CanBeFirst(place) && most.at(place) > (first < 0 ? 0 : most.at(first))) {
            first = place;
        }
    }
    for (int place = first; place >= 0; place = next.at(place)) {
        m_stays[place] = true;
    }
}

int Fitting::NextStaying(int from) const
{
    while (from < m_count && !m_stays.at(from)) {
        ++from;
    }
    return from;
}

MetricFit::Result Fitting::Result() const
{
    MetricFit::Result result;
    qint64 before = MetricFit::lowest - 1;
    for (int first = 0; first < m_count; ++first) {
        const int end = NextStaying(first);
        const int parts = end - first + 1;
        const qint64 behind =
            end < m_count ? MetricAt(end) : qMin(before + step * parts, MetricFit::highest + 1);
        for (int i = first; i < end; ++i) {
            const bool isFixed = m_places.at(i).isFixed;
            const qint64 between = before + (behind - before) * (i - first + 1) / parts;
            result.metrics.append(isFixed ? MetricAt(i) : between);
            if (isFixed) {
                result.contradicting.append(i);
            }
        }
        if (end < m_count) {
            result.metrics.append(behind);
            before = qMax(behind, MetricFit::lowest - 1);
        }
        first = end;
    }
    return result;
}

} // namespace

MetricFit::Result MetricFit::Fit(const QList<Place> &places)
{
    return Fitting(places).Result();
}
