#ifndef PRIORITYPLUGIN_H
#define PRIORITYPLUGIN_H

#include <INotify.h>
#include <IUIPlugin.h>
#include <ToolkitPlugin.h>

class CPriorityService;

/**
 * The plug-in's root object. It has no window of its own: it hands out the priority service, forwards the
 * language change to it and takes it down at the end.
 */
class CPriorityPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)
    TOOLKIT_PLUGIN_METADATA("com.torvik.netquillforge.plugin.IUIPlugin")

public:
    CPriorityPlugin();
    ~CPriorityPlugin() override;

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

    int Notify(unsigned int event, unsigned int first, unsigned int second) override;

private:
    Q_DISABLE_COPY(CPriorityPlugin)

    CPriorityService *m_service;
};

#endif
