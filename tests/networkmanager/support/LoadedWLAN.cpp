#include "LoadedWLAN.h"

#include <QLibrary>
#include <QSignalSpy>

QString LoadedWLAN::FileName()
{
    return QLatin1String(BUILD_DIRECTORY "/plugins/WLANNetworkManager/libWLANNetworkManager.so");
}

QObject *LoadedWLAN::RootObject()
{
    typedef QObject *(*Instance)();
    QLibrary library(FileName());
    const Instance instance = reinterpret_cast<Instance>(library.resolve("qt_plugin_instance"));
    if (!instance) {
        qFatal("%s", qPrintable(library.errorString()));
    }
    return instance();
}

IUIPlugin *LoadedWLAN::Root()
{
    return qobject_cast<IUIPlugin *>(RootObject());
}

QObject *LoadedWLAN::Service()
{
    QObject *service = nullptr;
    return Root()->QueryInterface(4102, &service) ? service : nullptr;
}

IWLANUIPlugin *LoadedWLAN::Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(Service());
}

QObject *LoadedWLAN::ConnectionService()
{
    QObject *service = nullptr;
    return Root()->QueryInterface(4104, &service) ? service : nullptr;
}

IConnectionPlugin *LoadedWLAN::Connections()
{
    return qobject_cast<IConnectionPlugin *>(ConnectionService());
}

QObject *LoadedWLAN::OrderService()
{
    QObject *service = nullptr;
    return Root()->QueryInterface(4105, &service) ? service : nullptr;
}

IOrderPlugin *LoadedWLAN::Order()
{
    return qobject_cast<IOrderPlugin *>(OrderService());
}

ConnectionState LoadedWLAN::State()
{
    ConnectionState state;
    Connections()->GetConnectionState(&state);
    return state;
}

QList<ActiveConnection> LoadedWLAN::Active()
{
    QList<ActiveConnection> connections;
    Connections()->GetActiveConnections(&connections);
    return connections;
}

QList<ConnectionProfile> LoadedWLAN::Profiles()
{
    QList<ConnectionProfile> profiles;
    Connections()->GetProfiles(&profiles);
    return profiles;
}

ConnectionProfile LoadedWLAN::ConnectionProfileNamed(const QString &name)
{
    const QList<ConnectionProfile> profiles = Profiles();
    for (const ConnectionProfile &profile : profiles) {
        if (profile.name == name) {
            return profile;
        }
    }
    return ConnectionProfile();
}

QList<VisibleNetwork> LoadedWLAN::Networks()
{
    QList<VisibleNetwork> networks;
    Connections()->GetVisibleNetworks(&networks);
    return networks;
}

VisibleNetwork LoadedWLAN::NetworkNamed(const QString &name)
{
    const QList<VisibleNetwork> networks = Networks();
    for (const VisibleNetwork &network : networks) {
        if (network.name == name) {
            return network;
        }
    }
    return VisibleNetwork();
}

ConnectAttempt LoadedWLAN::Attempt(int number)
{
    ConnectAttempt attempt;
    Connections()->GetAttempt(number, &attempt);
    return attempt;
}

QStringList LoadedWLAN::Remembered()
{
    QList<RememberedList> list;
    Wlan()->GetRememberedList(&list);
    QStringList texts;
    for (int i = 0; i < list.size(); ++i) {
        texts.append(list.at(i).name + "/" + list.at(i).type);
    }
    return texts;
}

QStringList LoadedWLAN::InRange()
{
    QList<WlanAvilableNetworkInfo> networks;
    Wlan()->GetAvailableNetworks(&networks);
    QStringList names;
    for (int i = 0; i < networks.size(); ++i) {
        names.append(networks.at(i).networkName);
    }
    return names;
}

WLANProfile LoadedWLAN::ProfileNamed(const QString &name)
{
    WLANProfile profile;
    Wlan()->GetProfileByName(name, &profile);
    return profile;
}

int LoadedWLAN::Store(const WLANProfile &profile)
{
    const int longEnough = 20000;
    QSignalSpy ended(Service(), SIGNAL(ProfileEnded(int)));
    Wlan()->CreateWLANProfile(profile);
    if (ended.isEmpty()) {
        ended.wait(longEnough);
    }
    return ended.isEmpty() ? -1 : ended.at(0).at(0).toInt();
}

WLANProfile LoadedWLAN::NewProfile(const QString &name, const QString &authentication,
                                   const QString &encryption, const QString &key)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.ssid = name;
    profile.bssType = "ESS";
    profile.connectionMode = "manual";
    profile.text4 = "0";
    profile.keyFlag = "false";
    profile.authentication = authentication;
    profile.encryption = encryption;
    profile.keyType = encryption == "WEP" ? "networkKey" : "passPhrase";
    profile.keyMaterial = key;
    profile.keyIndex = "0";
    return profile;
}
