#ifndef OVERVIEW_H
#define OVERVIEW_H

#include "SignalStrength.h"

#include <ListSource.h>

#include <PriorityList.h>
#include <WLANRecords.h>

#include <QHash>
#include <QList>
#include <QString>

/** What the connection manager would make of the priority list now. */
struct Overview {
    enum Range { OutOfRange, InRange, RangeUnknown };

    struct Entry {
        PriorityList entry;
        Range range = RangeUnknown;
        bool isInUse = false;
        /** Percent, or SignalStrength::unknown. */
        int signal = SignalStrength::unknown;

        bool IsWifi() const;
    };

    /** How the list was read, as IPriorityPlugin::GetPriorityList tells; -1: there is no priority plug-in to
     * ask. */
    int status = -1;
    bool isRangeKnown = false;
    /** The percentage, or SignalStrength::unknown, of each network in range, in the list or not. */
    QHash<QString, int> signalOf;
    QList<Entry> entries;

    /** From the list as it was read, and from the networks in range, for which the Wi-Fi plug-in is asked. */
    static Overview Of(const ListReading &list);

    /** As Of, from what the plug-ins have answered. networksInRange counts only when isRangeKnown. */
    static Overview Make(int status, const QList<PriorityList> &list, bool isRangeKnown,
                         const QList<WlanAvilableNetworkInfo> &networksInRange);

    /** Whether entries has the whole list; one that can't be read in full may have more. */
    bool IsListWhole() const;

    /** Whether the Wi-Fi plug-in would tell something else now. */
    bool HasRangeChanged() const;

    /** The entry in use, or null. */
    const Entry *InUse() const;
};

#endif
