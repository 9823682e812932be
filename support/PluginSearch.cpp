#include "PluginSearch.h"

#include <Startup.h>

QObject *FindPluginObject(const char *classId, InterfaceNumber number)
{
    IPluginContainer *container = Startup::GetPluginContainer();
    return container ? container->GetPluginObject(QLatin1String(classId), number) : nullptr;
}
