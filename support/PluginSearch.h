#ifndef PLUGINSEARCH_H
#define PLUGINSEARCH_H

#include <ContractNumbers.h>
#include <Startup.h>

/** The object that the host's container knows for the class id and the number, or null. It belongs to its
 * plug-in: look for it each time. */
inline QObject *FindPluginObject(const char *classId, InterfaceNumber number)
{
    IPluginContainer *container = Startup::GetPluginContainer();
    return container ? container->GetPluginObject(QLatin1String(classId), number) : nullptr;
}

#endif
