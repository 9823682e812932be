#ifndef NETWORKMANAGERPLUGIN_H
#define NETWORKMANAGERPLUGIN_H

#include "NetworkManagerResult.h"

#include <SiblingPlugin.h>
#include <ToolkitPlugin.h>

class CLivePicture;
class CNetworkManagerClient;
class CNetworkManagerConnections;
class CNetworkManagerWLANService;
class CPriorityKeeper;

/**
 * Root object of the WLAN plug-in over NetworkManager.
 *
 * Init fails where NetworkManager does not answer on the system bus. From Init to OnDestroy the priority list
 * takes effect on NetworkManager's profiles, whether anybody asks for the service or not. There are services
 * between the two only.
 */
class CNetworkManagerPlugin : public CSiblingPlugin
{
    Q_OBJECT
    TOOLKIT_PLUGIN_METADATA("com.torvik.netquillforge.plugin.IUIPlugin")

public:
    ~CNetworkManagerPlugin() override;

    /** A NetworkManagerResult: why Init failed. */
    int GetLastError() override;

    bool Init() override;
    void OnDestroy() override;
    QString GetPluginName() override;

private:
    QObject *Service(int interfaceNumber) override;

    int m_lastError = NetworkManagerResultSuccess;
    CNetworkManagerClient *m_client = nullptr;
    CLivePicture *m_picture = nullptr;
    CNetworkManagerWLANService *m_service = nullptr;
    CNetworkManagerConnections *m_connections = nullptr;
    CPriorityKeeper *m_keeper = nullptr;
};

#endif
