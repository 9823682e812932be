#ifndef IPLUGINCONTAINER_H
#define IPLUGINCONTAINER_H

#include <QObject>
#include <QString>

/**
 * The host's container of loaded plug-ins. Obtained from Startup::GetPluginContainer; owned by the host.
 */
class IPluginContainer
{
public:
    virtual ~IPluginContainer() {}

    /**
     * The object that the plug-in registered under classId hands out for an interface number, or null when
     * there is no such plug-in, when it is not ready, or when it knows no such interface.
     *
     * @param classId          UUID text without braces, compared without regard to case.
     * @param interfaceNumber  as in IBasePlugin::QueryInterface.
     * @return owned by that plug-in and valid until its OnDestroy; to be cast with qobject_cast.
     */
    virtual QObject *GetPluginObject(const QString &classId, int interfaceNumber) = 0;
};

#endif
