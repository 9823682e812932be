#ifndef METRICFIT_H
#define METRICFIT_H

#include <QList>

/**
 * Finds route metrics that follow an order and differ from those that are there in as few places as possible.
 *
 * The smaller metric comes first. Places are counted from 0, the first one.
 */
namespace MetricFit
{

/** Wired connections, of 100 and a little more, stay before all. */
const qint64 lowest = 150;
/** NetworkManager adds 20,000 where it found no internet: such a connection is to come after all others. */
const qint64 highest = 19999;

struct Place {
    qint64 metric = 0;
    /** It can't be changed. */
    bool isFixed = false;
};

struct Result {
    /** For each place. */
    QList<qint64> metrics;
    /** The fixed places that contradict the order. The others are fitted without them. */
    QList<int> contradicting;
};

Result Fit(const QList<Place> &places);

} // namespace MetricFit

#endif
