#ifndef IBASEPLUGIN_H
#define IBASEPLUGIN_H

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

#include <QObject>
#include <QString>

/**
 * A plug-in's root object as the host's loader sees it.
 *
 * How a host uses it, in this order:
 *   1. load the library, compare the text of qt_plugin_query_verification_data() with the host's own;
 *   2. call qt_plugin_instance(): the root object, a QObject that stays the same until it is deleted;
 *   3. qobject_cast to IBasePlugin (or IUIPlugin);
 *   4. Init(), once; false means: do not use this plug-in;
 *   5. QueryInterface() for each interface wanted, as often as wanted;
 *   6. IDestroyEvent::OnDestroy() at shutdown, then delete the root object.
 *
 * Table: destructor, Release, GetLastError (IBaseInterface, the primary base), then the operations below in
 * their order. The IDestroyEvent part has a table of its own.
 */
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    /** Prepares the plug-in. False: the plug-in can't work and must not be asked for anything else. */
    virtual bool Init() = 0;

    /** Kind of plug-in, a number of the host's; 0 when the plug-in is of no particular kind. */
    virtual int GetPluginType() = 0;

    /** Class id as UUID text without braces, or empty when only the host's own table knows it. */
    virtual QString GetCLSID() = 0;

    /** Version number of the plug-in, 0 when it keeps none. */
    virtual int GetVersion() = 0;

    /** Name of the plug-in for logs and messages. */
    virtual QString GetPluginName() = 0;

    /** Whether the host may unload the plug-in while the dashboard runs. */
    virtual bool IsAllowRelease() = 0;

    /**
     * Hands out the object that implements an interface.
     *
     * @param interfaceNumber  the host's number of the interface, one of InterfaceNumber (ContractNumbers.h)
     * or of numbers that only the host knows.
     * @param object           receives the object, which stays the plug-in's; to be cast with qobject_cast by
     *                         interface identifier. Must not be null. Left untouched when the result is
     * false.
     * @return whether the plug-in has an object for that number.
     */
    virtual bool QueryInterface(int interfaceNumber, QObject **object) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.torvik.netquillforge.plugin.IBasePlugin")

#endif
