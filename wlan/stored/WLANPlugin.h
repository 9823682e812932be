#ifndef WLANPLUGIN_H
#define WLANPLUGIN_H

#include <IUIPlugin.h>
#include <ToolkitPlugin.h>

#include <QPointer>

class CStoredConnections;
class CStoredWLANService;

/** Root object of the WLAN plug-in that keeps its profiles in a file. It has no window and no settings page.
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
    int GetLastError() override;

    void OnDestroy() override;
    void UnSDKRegisterEvent() override;

    bool Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;
    bool QueryInterface(int interfaceNumber, QObject **object) override;

    bool ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    bool ChangeLang(const QString &language) override;

private:
    Q_DISABLE_COPY(CWLANPlugin)

    QPointer<CStoredWLANService> m_service;
    QPointer<CStoredConnections> m_connections;
};

#endif
