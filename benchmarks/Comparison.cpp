#include "Comparison.h"

#include "Stopwatch.h"

#include <algorithm>

namespace
{

double TimeOf(const Work &work, int runs)
{
    double spent = 0;
    for (int i = 0; i < runs; ++i) {
        if (work.prepare) {
            work.prepare();
        }
        const Stopwatch stopwatch;
        work.run();
        spent += stopwatch.Elapsed();
    }
    return spent / runs;
}

double TimeOfUnprepared(const Work &work, int runs)
{
    const Stopwatch stopwatch;
    for (int i = 0; i < runs; ++i) {
        work.run();
    }
    return stopwatch.Elapsed() / runs;
}

double RoundOf(const Work &work, int runs)
{
    return work.prepare ? TimeOf(work, runs) : TimeOfUnprepared(work, runs);
}

} // namespace

double Median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

Compared Compare(const Work &product, const Work &baseline, int rounds, int runs)
{
    RoundOf(product, 1);
    RoundOf(baseline, 1);
    QVector<double> productTimes;
    QVector<double> baselineTimes;
    QVector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const bool productFirst = round % 2 == 0;
        const double first = RoundOf(productFirst ? product : baseline, runs);
        const double second = RoundOf(productFirst ? baseline : product, runs);
        productTimes.append(productFirst ? first : second);
        baselineTimes.append(productFirst ? second : first);
        ratios.append(productTimes.last() / baselineTimes.last());
    }
    const Compared compared = {Median(productTimes), Median(baselineTimes), Median(ratios)};
    return compared;
}
