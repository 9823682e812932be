#ifndef TRACECAPTURE_H
#define TRACECAPTURE_H

#include <QStringList>

/** Collects every line of qDebug and its relatives while it is in scope. One at a time. */
class TraceCapture
{
public:
    TraceCapture();
    ~TraceCapture();

    QStringList Lines() const;
    void Clear();

    /** The lines with every time of day "hh:mm:ss:zzz" written as "TIME" and "hh:mm:ss" as "BUILD". */
    QStringList Normalised() const;

private:
    Q_DISABLE_COPY(TraceCapture)
};

#endif
