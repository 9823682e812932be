#ifndef STARTUP_H
#define STARTUP_H

#include "HostExport.h"
#include "IPluginContainer.h"

/** Where a plug-in finds the rest of the dashboard. Core UI library, GUI thread. */
class HOST_EXPORT Startup
{
public:
    /**
     * The host's container, or null before the host has one and after it is gone. Owned by the host; not to
     * be kept beyond the operation at hand.
     */
    static IPluginContainer *GetPluginContainer();
};

#endif
