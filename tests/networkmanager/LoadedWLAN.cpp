#include "LoadedWLAN.h"

#include <QLibrary>

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
