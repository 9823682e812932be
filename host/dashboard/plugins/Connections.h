#ifndef CONNECTIONS_H
#define CONNECTIONS_H

#include <ConnectionRecords.h>
#include <PriorityList.h>

#include <QList>

/** What the Wi-Fi plug-in tells of connections, all of one time. */
struct Connections {
    enum Teller {
        NoPlugin,  /**< There is no Wi-Fi plug-in. */
        NoAnswers, /**< There is one, which tells nothing of connections. */
        Plugin
    };

    Teller teller = NoPlugin;
    ConnectionState state;
    QList<ActiveConnection> active;
    QList<ConnectionProfile> profiles;
    QList<VisibleNetwork> networks;

    /** Asks the plug-in behind the host's container. */
    static Connections Read();

    /** Whether the lists tell what is so now; otherwise nothing is known. */
    bool AreKnown() const;

    /** The connection that carries the traffic, or null. */
    const ActiveConnection *InUse() const;

    static bool IsComingUp(int stage);

    /** The profiles that the entry means. */
    QList<ConnectionProfile> ProfilesOf(const PriorityList &entry) const;

    /** The entries that mean the profiles, in the order of these, each once. */
    QList<PriorityList> Remembered() const;
};

#endif
