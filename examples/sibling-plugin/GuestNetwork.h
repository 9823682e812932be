#ifndef GUESTNETWORK_H
#define GUESTNETWORK_H

#include <IBasePlugin.h>

/** A plug-in that keeps the office network first in the priority list and sees to it that "Guest" is in it. */
class GuestNetwork : public QObject, public IBasePlugin
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin)

public:
    void Release() override {}
    int GetLastError() override { return 0; }

    void OnDestroy() override {}
    void UnSDKRegisterEvent() override {}

    bool Init() override;
    int GetPluginType() override { return 0; }
    QString GetCLSID() override { return QLatin1String("0C2B4E5A-5B5D-4C53-9B5E-6B9A1C7F2D10"); }
    int GetVersion() override { return 1; }
    QString GetPluginName() override { return QLatin1String("GuestNetwork"); }
    bool IsAllowRelease() override { return false; }
    bool QueryInterface(int, QObject **) override { return false; }

private slots:
    void ExtendList();
    void OnListChanged();
};

#endif
