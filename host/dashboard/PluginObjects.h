#ifndef PLUGINOBJECTS_H
#define PLUGINOBJECTS_H

class IPriorityPlugin;
class IWLANUIPlugin;
class QObject;

/** What the dashboard itself wants of its plug-ins; each is null when it isn't to be had. Not to be kept. */
class PluginObjects
{
public:
    static IPriorityPlugin *Priority();
    static IWLANUIPlugin *Wlan();

    /** Whether the list can be written without a loss: all of it can be read, or there is none yet. */
    static bool IsListWhole();

    /** The object behind Priority(), which has the signal OnUpdataPriorityView(). */
    static QObject *PriorityService();
};

#endif
