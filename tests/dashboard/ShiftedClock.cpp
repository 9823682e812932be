#include "ShiftedClock.h"

#include <qglobal.h>

#include <ctime>

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace
{

long shift = 0;
long passed = 0;

} // namespace

extern "C" Q_DECL_EXPORT int clock_gettime(clockid_t clock, struct timespec *time) noexcept
{
    const long result = syscall(SYS_clock_gettime, clock, time);
    if (result == 0 && clock == CLOCK_REALTIME) {
        time->tv_sec += shift;
    } else if (result == 0 && clock == CLOCK_MONOTONIC) {
        time->tv_sec += passed;
    }
    return static_cast<int>(result);
}

extern "C" Q_DECL_EXPORT int gettimeofday(struct timeval *time, void *) noexcept
{
    struct timespec precise;
    const int result = clock_gettime(CLOCK_REALTIME, &precise);
    time->tv_sec = precise.tv_sec;
    time->tv_usec = precise.tv_nsec / 1000;
    return result;
}

void ShiftedClock::Shift(long seconds)
{
    shift = seconds;
}

void ShiftedClock::Pass(long seconds)
{
    passed += seconds;
}

void ShiftedClock::ShiftToNoon(long seconds)
{
    struct timespec now;
    syscall(SYS_clock_gettime, CLOCK_REALTIME, &now);
    struct tm noon;
    localtime_r(&now.tv_sec, &noon);
    ++noon.tm_mday;
    noon.tm_hour = 12;
    noon.tm_min = 0;
    noon.tm_sec = 0;
    shift = mktime(&noon) + seconds - now.tv_sec;
}
