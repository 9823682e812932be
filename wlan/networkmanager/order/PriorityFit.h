#ifndef PRIORITYFIT_H
#define PRIORITYFIT_H

#include <QList>

/**
 * Finds priorities that follow an order and differ from those that are there in as few places as possible.
 *
 * The greater priority comes first. Places are counted from 0, the first one, and no two have the same
 * priority while NetworkManager's range has room for them. What has to change is spread so that what is moved
 * later finds a gap: a single move then changes one place, or up to three where there is no gap. More change
 * only where no three suffice, and then enough of them to make gaps again.
 */
namespace PriorityFit
{

const int highest = 999;
const int lowest = -999;

struct Place {
    /** The priority that is there. */
    int priority = 0;
    /** It can't be changed. */
    bool isFixed = false;
    /** It can't stay as it is: profiles that share the place have several priorities. */
    bool isMixed = false;
};

struct Result {
    /** For each place. */
    QList<int> priorities;
    /** The fixed places that contradict the order, from the first on. The others are fitted without them. */
    QList<int> contradicting;
};

/**
 * @param floor  the greatest priority of what has to come after all places that can be changed, from
 *               lowest - 1 to highest. When the room above it does not suffice, the last ones go below it.
 */
Result Fit(const QList<Place> &places, int floor);

} // namespace PriorityFit

#endif
