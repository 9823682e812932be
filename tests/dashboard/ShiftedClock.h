#ifndef SHIFTEDCLOCK_H
#define SHIFTEDCLOCK_H

/** The time of day as the process sees it, because the executable exports the functions that tell it. The
 * times of files stay those of the system. */
namespace ShiftedClock
{

/** From now on the clock shows so many seconds more than the system's; of later calls the last one counts. */
void Shift(long seconds);

/** Has that much time pass for clocks that are never put, timers included. */
void Pass(long seconds);

/** Puts the clock to so many seconds after tomorrow's noon, far from the end of a day. */
void ShiftToNoon(long seconds);

} // namespace ShiftedClock

#endif
