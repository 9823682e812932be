#include "PluginList.h"

#include "PluginObjects.h"

#include <IPriorityPlugin.h>

#include <QMetaObject>

ListReading PluginList::Read()
{
    ListReading reading;
    if (IPriorityPlugin *priority = PluginObjects::Priority()) {
        reading.status = priority->GetPriorityList(&reading.entries);
    }
    return reading;
}

void PluginList::FileReplaced()
{
    // The plug-in's own signal: its page follows it, and so do other plug-ins.
    if (QObject *service = PluginObjects::PriorityService()) {
        QMetaObject::invokeMethod(service, "OnUpdataPriorityView");
    }
}
