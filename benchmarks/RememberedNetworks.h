#ifndef REMEMBEREDNETWORKS_H
#define REMEMBEREDNETWORKS_H

#include <IWLANUIPlugin.h>

/** A WLAN plug-in that only hands out a list, so that its own work is no part of what is measured. */
class RememberedNetworks : public QObject, public IWLANUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IWLANUIPlugin)

public:
    QList<RememberedList> remembered;

    int CreateWLANProfile(WLANProfile) override { return 0; }
    int GetRememberedList(QList<RememberedList> *list) override
    {
        *list += remembered;
        return 0;
    }
    int GetProfileByName(QString, WLANProfile *) override { return 0; }
    int GetConfigData(WLANConfigData *) override { return 0; }
    int GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *) override { return 0; }
    int GetNetworkProfile(const WlanAvilableNetworkInfo &, WLANProfile *) override { return 0; }
};

#endif
