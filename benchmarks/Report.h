#ifndef REPORT_H
#define REPORT_H

#include "Comparison.h"

#include <QList>
#include <QMap>
#include <QString>

/** All that was measured, as tables in the form that documents take. */
class Report
{
public:
    /** target is the most that the ratio may be; 0 when it is only told. */
    void Add(const QString &operation, int entries, const Compared &compared, double target);

    /** How much longer the operation takes with the larger of two numbers of entries; 0 when one is not
     * measured. */
    double Growth(const QString &operation, int fewer, int more) const;

    void AddFact(const QString &what, const QString &figure);

    /** Processor times in microseconds. */
    void Print() const;

private:
    struct Row {
        QString operation;
        int entries;
        Compared compared;
        double target;
    };

    QList<Row> m_rows;
    QList<QPair<QString, QString>> m_facts;
};

#endif
