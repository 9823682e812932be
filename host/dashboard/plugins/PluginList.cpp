#include "PluginList.h"

#include "PluginObjects.h"

#include <IPriorityPlugin.h>

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
    // Adding nothing has the plug-in write its file anew, and tell everybody.
    if (IPriorityPlugin *priority = PluginObjects::Priority()) {
        QList<PriorityList> nothing;
        priority->AddPriorityList(nothing);
    }
}
