#ifndef PLUGINOBJECTS_H
#define PLUGINOBJECTS_H

#include <PriorityList.h>

#include <QList>

class IConnectionPlugin;
class IOrderPlugin;
class IPriorityPlugin;
class IWLANUIPlugin;
class QObject;

/** What the dashboard itself wants of its plug-ins; each is null when it isn't to be had. Not to be kept. */
class PluginObjects
{
public:
    static IPriorityPlugin *Priority();
    static IWLANUIPlugin *Wlan();
    static IConnectionPlugin *Connecting();
    static IOrderPlugin *Ordering();

    /** The networks that the Wi-Fi plug-in remembers, as entries of the list; false when there is none to
     * ask.
     */
    static bool RememberedNetworks(QList<PriorityList> *networks);

    /** Whether the list can be written without a loss: all of it can be read, or there is none yet. */
    static bool IsListWhole();

    /** The object behind Priority(), which has the signal OnUpdataPriorityView(). */
    static QObject *PriorityService();

    /** The object behind Connecting(), which has the signal OnConnectionsChanged(). */
    static QObject *ConnectionService();

    /** The object behind Ordering(), which has the signals OnOrderChanged() and, if it switches by
     * itself, OnSwitched(QString, QString). */
    static QObject *OrderService();
};

#endif
