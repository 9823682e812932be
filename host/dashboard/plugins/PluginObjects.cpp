#include "PluginObjects.h"

#include <IConnectionPlugin.h>
#include <IOrderPlugin.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <PluginSearch.h>

QObject *PluginObjects::PriorityService()
{
    return FindPluginObject(priorityClassId, PriorityInterface);
}

IPriorityPlugin *PluginObjects::Priority()
{
    return qobject_cast<IPriorityPlugin *>(PriorityService());
}

bool PluginObjects::IsListWhole()
{
    QList<PriorityList> entries;
    IPriorityPlugin *priority = Priority();
    const int status = priority ? priority->GetPriorityList(&entries) : PriorityRead;
    return status == PriorityRead || status == PriorityMissing;
}

IWLANUIPlugin *PluginObjects::Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(FindPluginObject(wlanClassId, WLANInterface));
}

QObject *PluginObjects::ConnectionService()
{
    return FindPluginObject(wlanClassId, ConnectionInterface);
}

IConnectionPlugin *PluginObjects::Connecting()
{
    return qobject_cast<IConnectionPlugin *>(ConnectionService());
}

QObject *PluginObjects::OrderService()
{
    return FindPluginObject(wlanClassId, OrderInterface);
}

IOrderPlugin *PluginObjects::Ordering()
{
    return qobject_cast<IOrderPlugin *>(OrderService());
}

bool PluginObjects::RememberedNetworks(QList<PriorityList> *networks)
{
    IWLANUIPlugin *wlan = Wlan();
    if (!wlan) {
        return false;
    }
    QList<RememberedList> remembered;
    wlan->GetRememberedList(&remembered);
    for (const RememberedList &network : std::as_const(remembered)) {
        PriorityList entry;
        entry.name = network.name;
        entry.type = network.type;
        networks->append(entry);
    }
    return true;
}
