#ifndef SIBLINGPLUGIN_H
#define SIBLINGPLUGIN_H

#include <IUIPlugin.h>

/**
 * Root object of a WLAN plug-in, but for what its services are. It has no window and no settings page.
 *
 * OnDestroy ends the services. A derived class calls its own in its destructor.
 */
class CSiblingPlugin : public QObject, public IUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin)

public:
    CSiblingPlugin();

    void Release() override;
    int GetLastError() override;

    void UnSDKRegisterEvent() override;

    bool Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    bool IsAllowRelease() override;
    bool QueryInterface(int interfaceNumber, QObject **object) override;

    bool ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    bool ChangeLang(const QString &language) override;

private:
    Q_DISABLE_COPY(CSiblingPlugin)

    /** The object for an InterfaceNumber, which stays the plug-in's; null for any other number, and while
     * there is none. */
    virtual QObject *Service(int interfaceNumber) = 0;
};

#endif
