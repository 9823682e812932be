#include "Report.h"

#include <cstdio>

namespace
{

const double microsecondsPerSecond = 1e6;

} // namespace

void Report::Add(const QString &operation, int entries, const Compared &compared, double target)
{
    const Row row = {operation, entries, compared, target};
    m_rows.append(row);
}

double Report::Growth(const QString &operation, int fewer, int more) const
{
    double before = 0;
    double after = 0;
    for (int i = 0; i < m_rows.size(); ++i) {
        const Row &row = m_rows.at(i);
        if (row.operation == operation) {
            before = row.entries == fewer ? row.compared.product : before;
            after = row.entries == more ? row.compared.product : after;
        }
    }
    return before > 0 ? after / before : 0;
}

void Report::AddFact(const QString &what, const QString &figure)
{
    m_facts.append(qMakePair(what, figure));
}

void Report::Print() const
{
    std::printf("\n| operation | entries | PriorityPlugin, us | baseline, us | ratio | at most |\n");
    std::printf("|---|---:|---:|---:|---:|---:|\n");
    for (int i = 0; i < m_rows.size(); ++i) {
        const Row &row = m_rows.at(i);
        const QString target = row.target > 0 ? QString::number(row.target) : QLatin1String("told only");
        std::printf("| %s | %d | %.1f | %.1f | %.2f | %s |\n", qPrintable(row.operation), row.entries,
                    row.compared.product * microsecondsPerSecond,
                    row.compared.baseline * microsecondsPerSecond, row.compared.ratio, qPrintable(target));
    }
    std::printf("\n| what else | |\n|---|---:|\n");
    for (int i = 0; i < m_facts.size(); ++i) {
        std::printf("| %s | %s |\n", qPrintable(m_facts.at(i).first), qPrintable(m_facts.at(i).second));
    }
    std::fflush(stdout);
}
