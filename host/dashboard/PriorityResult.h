#ifndef PRIORITYRESULT_H
#define PRIORITYRESULT_H

/** What IPriorityPlugin::GetPriorityList answers. */
enum PriorityResult { PriorityRead = 0, PriorityDamaged = 6, PriorityMissing = 23, PriorityNotOpened = 25 };

#endif
