#ifndef EVENTUALLY_H
#define EVENTUALLY_H

#include <functional>

/** Whether condition becomes true while events are handled; gives up after a time that no working program
 * needs. */
bool Eventually(const std::function<bool()> &condition);

#endif
