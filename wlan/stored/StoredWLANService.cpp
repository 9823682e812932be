#include "StoredWLANService.h"

namespace
{

/** The place of the first profile of that name and kind, or -1. */
int FindProfile(const QList<StoredProfile> &profiles, const QString &name, bool wifi)
{
    for (int i = 0; i < profiles.size(); ++i) {
        if (profiles.at(i).IsWifi() == wifi && profiles.at(i).profile.profileName == name) {
            return i;
        }
    }
    return -1;
}

int FindNetwork(const QList<NetworkInRange> &networks, const QString &name)
{
    for (int i = 0; i < networks.size(); ++i) {
        if (networks.at(i).name == name) {
            return i;
        }
    }
    return -1;
}

/** The id of the text that tells the user; null when there is nothing to be told. */
const char *NoticeOf(WLANResult result)
{
    switch (result) {
    case WLANResultEmptyName:
        return "IDS_WLAN_BAD_NAME";
    case WLANResultReadOnlyProfile:
        return "IDS_WLAN_KEPT_READ_ONLY";
    case WLANResultSeveralProfiles:
        return "IDS_WLAN_KEPT_SEVERAL";
    case WLANResultUndescribedProfile:
        return "IDS_WLAN_KEPT_UNDESCRIBED";
    case WLANResultWeakerMethod:
        return "IDS_WLAN_KEPT_STRONGER";
    case WLANResultIncompleteKey:
        return "IDS_WLAN_KEPT_KEY";
    case WLANResultBetterProfile:
        return "IDS_WLAN_BETTER_PROFILE";
    case WLANResultFileDamaged:
        return "IDS_WLAN_FILE_DAMAGED";
    case WLANResultBusy:
        return "IDS_WLAN_BUSY";
    case WLANResultNoDirectory:
    case WLANResultFileNotReadable:
    case WLANResultFileNotWritable:
    case WLANResultSymbolicLink:
        return "IDS_WLAN_FILE_UNUSABLE";
    case WLANResultSuccess:
    case WLANResultNullPointer:
    case WLANResultUnknownName:
        break;
    }
    return nullptr;
}

} // namespace

CStoredWLANService::CStoredWLANService(QObject *parent) : QObject(parent) {}

int CStoredWLANService::CreateWLANProfile(WLANProfile profile)
{
    QString better;
    const WLANResult result = m_profiles.Store(profile, &better);
    if (const char *id = NoticeOf(result)) {
        m_notice.Tell(id, profile.profileName, better);
    }
    return result;
}

int CStoredWLANService::GetRememberedList(QList<RememberedList> *list)
{
    if (!list) {
        return WLANResultNullPointer;
    }
    QList<StoredProfile> profiles;
    const WLANResult result = m_profiles.List(&profiles);
    for (int i = 0; i < profiles.size(); ++i) {
        RememberedList remembered;
        remembered.name = profiles.at(i).profile.profileName;
        remembered.type = profiles.at(i).type;
        list->append(remembered);
    }
    return result;
}

int CStoredWLANService::GetProfileByName(QString name, WLANProfile *profile)
{
    if (!profile) {
        return WLANResultNullPointer;
    }
    QList<StoredProfile> profiles;
    const WLANResult result = m_profiles.List(&profiles);
    int found = FindProfile(profiles, name, true);
    if (found < 0) {
        found = FindProfile(profiles, name, false);
    }
    if (found < 0) {
        return result == WLANResultSuccess ? WLANResultUnknownName : result;
    }
    *profile = profiles.at(found).profile;
    return WLANResultSuccess;
}

int CStoredWLANService::GetConfigData(WLANConfigData *config)
{
    if (!config) {
        return WLANResultNullPointer;
    }
    // No more than the dialog has room for; a profile with EAP is for the SIM card.
    QList<QString> methods;
    methods << QLatin1String("open") << QLatin1String("shared") << QLatin1String("WPAPSK")
            << QLatin1String("WPA2PSK") << QLatin1String("WPA(EAP)") << QLatin1String("WPA2(EAP)");
    config->authenticationList = methods;
    return WLANResultSuccess;
}

int CStoredWLANService::GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list)
{
    if (!list) {
        return WLANResultNullPointer;
    }
    QList<NetworkInRange> networks;
    const WLANResult result = m_range.List(&networks);
    for (int i = 0; i < networks.size(); ++i) {
        WlanAvilableNetworkInfo info;
        info.networkName = networks.at(i).name;
        info.value1 = networks.at(i).signal;
        info.value2 = networks.at(i).channel;
        list->append(info);
    }
    return result;
}

int CStoredWLANService::GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile)
{
    if (!profile) {
        return 0;
    }
    QList<NetworkInRange> networks;
    m_range.List(&networks);
    const int inRange = FindNetwork(networks, network.networkName);
    QList<StoredProfile> profiles;
    m_profiles.List(&profiles);
    const int remembered = FindProfile(profiles, network.networkName, true);
    if (inRange < 0 && remembered < 0) {
        return 0;
    }
    if (remembered >= 0) {
        const WLANProfile &known = profiles.at(remembered).profile;
        profile->profileName = known.profileName;
        profile->ssid = known.ssid;
        profile->authentication = known.authentication;
        profile->encryption = known.encryption;
        profile->keyType = known.keyType;
        profile->keyMaterial = known.keyMaterial;
        profile->keyIndex = known.keyIndex;
    }
    if (inRange >= 0) {
        // What the network sends out now counts more than what it was when it was remembered.
        const NetworkInRange &seen = networks.at(inRange);
        profile->profileName = seen.name;
        profile->ssid = seen.name;
        profile->authentication = seen.authentication;
        profile->encryption = seen.encryption;
        profile->keyType = seen.encryption == QLatin1String("WEP") ? QLatin1String("networkKey")
                                                                   : QLatin1String("passPhrase");
    }
    return 1;
}
