#ifndef NETWORKMANAGEROBJECTS_H
#define NETWORKMANAGEROBJECTS_H

#include <NetworkManagerQt/GenericTypes>

#include <QMap>
#include <QString>

class QDBusMessage;

/**
 * The properties of NetworkManager's objects by their paths, as plain values: paths are texts, lists of paths
 * lists of texts, and of a state with its reason the reason is kept. What has no plain value is left out.
 */
typedef QMap<QString, NMVariantMapMap> NetworkManagerObjects;

namespace ManagedObjects
{

/** Asks for all of them at one moment. */
QDBusMessage Call();
const char signature[] = "a{oa{sa{sv}}}";

/** @param reply  of that signature. */
NetworkManagerObjects FromReply(const QDBusMessage &reply);

/**
 * Takes in one signal of NetworkManager: objects that have come or gone, and properties that have changed.
 * A change of what is not known of an object is left out: the object comes with all that it has.
 *
 * @return the path of the object that is another one now; empty when nothing has changed.
 */
QString Apply(const QDBusMessage &signal, NetworkManagerObjects *objects);

} // namespace ManagedObjects

#endif
