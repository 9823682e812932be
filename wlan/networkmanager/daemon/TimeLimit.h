#ifndef TIMELIMIT_H
#define TIMELIMIT_H

#include <QElapsedTimer>
#include <QtGlobal>

/** The time that is left for an operation, however many calls it takes. */
class CTimeLimit
{
public:
    explicit CTimeLimit(int milliseconds) : m_milliseconds(milliseconds) { m_timer.start(); }

    /** In milliseconds, 0 when it is over. */
    int Remaining() const { return static_cast<int>(qMax<qint64>(0, m_milliseconds - m_timer.elapsed())); }

private:
    int m_milliseconds;
    QElapsedTimer m_timer;
};

#endif
