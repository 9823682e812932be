#ifndef HANDMADEWLAN_H
#define HANDMADEWLAN_H

#include "HandMade.h"
#include "Records.h"

#include <QObject>
#include <QStringList>

/**
 * A WLAN plug-in and the container that hands it out, as tables of entries. The plug-in answers from its
 * members, the container for one class id and one number only.
 */
class HandMadeWlan : public QObject
{
public:
    HandMadeWlan();

    /** What Startup::GetPluginContainer has to answer for this one to be found. */
    void *Container() { return &m_container; }

    /** Forgets calls and answers. */
    void Reset();

    /** Tells the part behind the interface's identifier, as Qt's casts ask for it. */
    void *qt_metacast(const char *identifier) override;

    /** How often each position was called, as "<position> x <calls>", for those called at all. */
    QStringList Calls() const;
    QStringList ContainerCalls() const;

    /** "<class id> <number>" of each look-up, and each identifier that was asked for. */
    QStringList lookUps;
    QStringList identifiers;

    QList<Entry> remembered;
    Profile byName;
    Configuration configuration;
    QList<Network> networks;
    Profile ofNetwork;

    /* What came along. Profiles to fill are kept as they came. */
    Profile created;
    QStringList namesAskedFor;
    Profile byNameBefore;
    Network networkAskedFor;
    Profile ofNetworkBefore;

private:
    HandMadeObject m_container;
    HandMadeObject m_interface;
};

#endif
