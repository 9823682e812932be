#ifndef STOREDPLUGIN_H
#define STOREDPLUGIN_H

#include <SiblingPlugin.h>
#include <ToolkitPlugin.h>

#include <QPointer>

class CStoredConnections;
class CStoredWLANService;

/** Root object of the WLAN plug-in that keeps its profiles in a file. */
class CStoredPlugin : public CSiblingPlugin
{
    Q_OBJECT
    TOOLKIT_PLUGIN_METADATA("com.torvik.netquillforge.plugin.IUIPlugin")

public:
    ~CStoredPlugin() override;

    void OnDestroy() override;
    QString GetPluginName() override;

private:
    QObject *Service(int interfaceNumber) override;

    QPointer<CStoredWLANService> m_service;
    QPointer<CStoredConnections> m_connections;
};

#endif
