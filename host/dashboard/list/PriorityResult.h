#ifndef PRIORITYRESULT_H
#define PRIORITYRESULT_H

/** What IPriorityPlugin::GetPriorityList answers; PriorityNoPlugin where there is nobody to ask. */
enum PriorityResult {
    PriorityNoPlugin = -1,
    PriorityRead = 0,
    PriorityDamaged = 6,
    PriorityMissing = 23,
    PriorityNotOpened = 25
};

#endif
