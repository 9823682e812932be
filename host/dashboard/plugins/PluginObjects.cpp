#include "PluginObjects.h"

#include <IPluginContainer.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <PriorityResult.h>
#include <Startup.h>

namespace
{

const int priorityInterface = 4103;
const int wlanInterface = 4102;

QObject *Find(const char *classId, int interfaceNumber)
{
    IPluginContainer *container = Startup::GetPluginContainer();
    return container ? container->GetPluginObject(QLatin1String(classId), interfaceNumber) : nullptr;
}

} // namespace

QObject *PluginObjects::PriorityService()
{
    return Find("D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05", priorityInterface);
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
    return qobject_cast<IWLANUIPlugin *>(Find("7545FB07-0E7A-4F27-A449-872DB09C106D", wlanInterface));
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
