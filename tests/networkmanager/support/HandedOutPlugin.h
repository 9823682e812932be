#ifndef HANDEDOUTPLUGIN_H
#define HANDEDOUTPLUGIN_H

#include <LoadedPlugin.h>
#include <StandInHost.h>

/** The priority plug-in, which the stand-in host hands out to the WLAN plug-in. */
class HandedOutPlugin : public LoadedPlugin
{
public:
    /** Initialises it. From then on others find it. */
    void HandOut();

    FakeContainer container;
};

#endif
