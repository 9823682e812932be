#ifndef COMPARISON_H
#define COMPARISON_H

#include <QVector>

#include <functional>

/** Something whose time is taken. prepare comes before each run and is not counted. */
struct Work {
    std::function<void()> run;
    std::function<void()> prepare;
};

/** Seconds of processor time of one run, and how often the first took as long as the other; medians. */
struct Compared {
    double product;
    double baseline;
    double ratio;
};

/**
 * Takes the time of two works in turn, so that what the machine does meanwhile hits both alike.
 *
 * @param rounds  how often each is measured; the first to be measured changes from round to round.
 * @param runs    how often each runs in a round, for works too short to be measured alone.
 */
Compared Compare(const Work &product, const Work &baseline, int rounds, int runs);

/** The middle one of values. */
double Median(QVector<double> values);

#endif
