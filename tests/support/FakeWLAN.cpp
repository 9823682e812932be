#include "FakeWLAN.h"

FakeWLAN::FakeWLAN() : createResult(0) {}

int FakeWLAN::CreateWLANProfile(WLANProfile profile)
{
    calls.append("CreateWLANProfile " + profile.profileName);
    created.append(profile);
    return createResult;
}

int FakeWLAN::GetRememberedList(QList<RememberedList> *list)
{
    calls.append("GetRememberedList");
    *list += remembered;
    return 0;
}

int FakeWLAN::GetProfileByName(QString name, WLANProfile *profile)
{
    calls.append("GetProfileByName " + name);
    if (!profiles.contains(name)) {
        return 1;
    }
    *profile = profiles.value(name);
    return 0;
}

int FakeWLAN::GetConfigData(WLANConfigData *out)
{
    calls.append("GetConfigData");
    *out = config;
    return 0;
}

int FakeWLAN::GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list)
{
    calls.append("GetAvailableNetworks");
    *list += networks;
    return 0;
}

int FakeWLAN::GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile)
{
    calls.append("GetNetworkProfile " + network.networkName);
    if (!profiles.contains(network.networkName)) {
        return 0;
    }
    *profile = profiles.value(network.networkName);
    return 1;
}

void FakeWLAN::Remember(const QString &name, const QString &type)
{
    RememberedList entry;
    entry.name = name;
    entry.type = type;
    remembered.append(entry);
}

void FakeWLAN::AddReadOnly(const QString &name, const QString &readOnly)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.readOnly = readOnly;
    profiles.insert(name, profile);
}
