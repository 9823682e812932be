#ifndef FAKEWLAN_H
#define FAKEWLAN_H

#include <IWLANUIPlugin.h>

#include <QMap>
#include <QStringList>

/** A WLAN plug-in as a plain object behind the real interface: it answers from its members and records its
 * calls. */
class FakeWLAN : public QObject, public IWLANUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IWLANUIPlugin)

public:
    FakeWLAN();

    int CreateWLANProfile(WLANProfile profile) override;
    int GetRememberedList(QList<RememberedList> *list) override;
    int GetProfileByName(QString name, WLANProfile *profile) override;
    int GetConfigData(WLANConfigData *config) override;
    int GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list) override;
    int GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile) override;

    void Remember(const QString &name, const QString &type);
    void AddReadOnly(const QString &name, const QString &readOnly);

    QMap<QString, WLANProfile> profiles;
    QList<RememberedList> remembered;
    QList<WlanAvilableNetworkInfo> networks;
    WLANConfigData config;
    QList<WLANProfile> created;
    int createResult;
    QStringList calls;
};

#endif
