#ifndef STOPWATCH_H
#define STOPWATCH_H

#include <ctime>

/**
 * Runs from its creation on. It counts the processor time of this process, the system's work for it included,
 * so that other programs on the machine don't count.
 */
class Stopwatch
{
public:
    Stopwatch() : m_start(Now()) {}

    /** Seconds. */
    double Elapsed() const { return Now() - m_start; }

private:
    static double Now()
    {
        timespec time;
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
    }

    double m_start;
};

#endif
