#ifndef WLANPLUGIN_H
#define WLANPLUGIN_H

#include <IUIPlugin.h>
#include <ToolkitPlugin.h>

class CLivePicture;
class CNetworkManagerClient;
class CNetworkManagerConnections;
class CNetworkManagerWLANService;
class CPriorityKeeper;

/**
 * Root object of the WLAN plug-in over NetworkManager. It has no window and no settings page.
 *
 * Init fails where NetworkManager does not answer on the system bus. From Init to OnDestroy the priority list
 * takes effect on NetworkManager's profiles, whether anybody asks for the service or not.
 */
class CWLANPlugin : public QObject, public IUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin)
    TOOLKIT_PLUGIN_METADATA("com.torvik.netquillforge.plugin.IUIPlugin")

public:
    CWLANPlugin();
    ~CWLANPlugin() override;

    void Release() override;

    /** A NetworkManagerResult: why Init failed. */
    int GetLastError() override;

    void OnDestroy() override;
    void UnSDKRegisterEvent() override;

    bool Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;

    /** There are services between Init and OnDestroy only. */
    bool QueryInterface(int interfaceNumber, QObject **object) override;

    bool ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    bool ChangeLang(const QString &language) override;

private:
    Q_DISABLE_COPY(CWLANPlugin)

    int m_lastError;
    CNetworkManagerClient *m_client;
    CLivePicture *m_picture;
    CNetworkManagerWLANService *m_service;
    CNetworkManagerConnections *m_connections;
    CPriorityKeeper *m_keeper;
};

#endif
