#ifndef NETWORKMANAGERPLUGIN_H
#define NETWORKMANAGERPLUGIN_H

#include <NetworkManagerResult.h>

#include <ComplaintLog.h>
#include <SiblingPlugin.h>
#include <ToolkitPlugin.h>

class CListFollower;
class CLivePicture;
class CNetworkManagerClient;
class CNetworkManagerConnections;
class CNetworkManagerOrder;
class CNetworkManagerWLANService;
class CPriorityKeeper;

/**
 * Root object of the WLAN plug-in over NetworkManager.
 *
 * From Init to OnDestroy the priority list takes effect on NetworkManager's profiles, whether anybody asks
 * for the service or not, and is followed while the user wants that. There are services between the two only.
 */
class CNetworkManagerPlugin : public CSiblingPlugin
{
    Q_OBJECT
    TOOLKIT_PLUGIN_METADATA("com.torvik.netquillforge.plugin.IUIPlugin")

public:
    ~CNetworkManagerPlugin() override;

    /** A NetworkManagerResult: why NetworkManager was last not to be had, or a profile not stored. */
    int GetLastError() override;

    /** Waits for nobody, and is true without a NetworkManager, too: it may come at any time. */
    bool Init() override;
    void OnDestroy() override;
    QString GetPluginName() override;

private slots:
    void TakePicture();
    void NoteFailure(int result);

private:
    QObject *Service(int interfaceNumber) override;

    CComplaintLog m_complaints{"WLANNetworkManager"};
    int m_lastError = NetworkManagerResultSuccess;
    CNetworkManagerClient *m_client = nullptr;
    CLivePicture *m_picture = nullptr;
    CNetworkManagerWLANService *m_service = nullptr;
    CNetworkManagerConnections *m_connections = nullptr;
    CPriorityKeeper *m_keeper = nullptr;
    CNetworkManagerOrder *m_order = nullptr;
    CListFollower *m_follower = nullptr;
};

#endif
