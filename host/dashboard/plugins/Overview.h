#ifndef OVERVIEW_H
#define OVERVIEW_H

#include "Connections.h"

#include <ListSource.h>

#include <PriorityList.h>

#include <QList>

/** The priority list beside what the connection manager tells: what is in use, and what the list would
 * choose. */
struct Overview {
    struct Entry {
        PriorityList entry;
        /** Of the profiles of this name and type the best one; without an id when there is none. */
        ConnectionProfile profile;
        /** A ConnectionStage: how far its connection is; StageNotKnown when it has none. */
        int stage = StageNotKnown;
        /** Its connection carries the traffic. */
        bool isInUse = false;
        /** Percent, or -1. */
        int signal = -1;
        /** It stands higher in the list already. What is told of its connection is told there. */
        bool isRepeated = false;

        bool IsWifi() const;
        bool CanBeUsed() const;
    };

    /** How the list was read, as IPriorityPlugin::GetPriorityList tells; -1: there is no priority plug-in to
     * ask. */
    int status = -1;
    Connections connections;
    QList<Entry> entries;
    /** The saved networks that the list doesn't have. */
    QList<Entry> unlisted;

    /** From the list as it was read, and from what the Wi-Fi plug-in tells of connections now. */
    static Overview Of(const ListReading &list);

    /** As Of, from what the plug-ins have answered. */
    static Overview Make(int status, const QList<PriorityList> &list, const Connections &connections);

    /** Whether entries has the whole list; one that can't be read in full may have more. */
    bool IsListWhole() const;

    /** The entry in use, or null: then nothing is, or something that is not in the list. */
    const Entry *InUse() const;

    /** The first entry that can be used now, which is what the list would choose; or null. */
    const Entry *Choice() const;

    /** The connection that is coming up while none is in use, or null. */
    const ActiveConnection *ComingUp() const;

    /** Whether an order can put Choice() in the place of what is in use, and the user may give it. */
    bool CanSwitch() const;

private:
    /** The place of Choice(); -1 when there is none. */
    int m_choice = -1;
};

#endif
