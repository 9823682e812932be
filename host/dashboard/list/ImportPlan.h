#ifndef IMPORTPLAN_H
#define IMPORTPLAN_H

#include <PriorityList.h>

#include <QList>

/** What taking a list in would make of the list that is there. */
struct ImportPlan {
    enum Effect { Stays, Added, MovedUp, MovedDown, Moved, Removed };

    struct Row {
        PriorityList entry;
        Effect effect = Stays;
        /** The Wi-Fi plug-in doesn't remember it. */
        bool isUnknown = false;
    };

    /** The entries of the new list in their order, then those that are removed. */
    QList<Row> rows;

    /** Whether the new list is any other than the one that is there. */
    bool IsChange() const;

    /** @param known  the networks that the Wi-Fi plug-in remembers; null when there is nobody to ask, and
     * then no entry counts as unknown. */
    static ImportPlan Make(const QList<PriorityList> &before, const QList<PriorityList> &after,
                           const QList<PriorityList> *known);
};

#endif
