#ifndef IDESTROYEVENT_H
#define IDESTROYEVENT_H

/**
 * The host's farewell to a plug-in. Reached through IBasePlugin, whose second base it is; it has no interface
 * identifier and is not to be asked for with qobject_cast.
 *
 * Table: destructor, OnDestroy, UnSDKRegisterEvent.
 */
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /**
     * The dashboard is closing. The plug-in takes down everything it created: pages, services, stores. Called
     * once, on the GUI thread, after the settings dialog was closed and before the root object is deleted and
     * the library unloaded. Interface pointers obtained from QueryInterface are invalid afterwards.
     */
    virtual void OnDestroy() = 0;

    /** The SDK is going away: unregister from its events. May come before or after OnDestroy, or not at all.
     */
    virtual void UnSDKRegisterEvent() = 0;
};

#endif
