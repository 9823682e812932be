#include "NetworkSecurity.h"

#include <NetworkManagerState.h>

#include <ConnectionRecords.h>
#include <ProfileRules.h>
#include <WLANRecords.h>

#include <NetworkManagerQt/Security8021xSetting>
#include <NetworkManagerQt/WirelessSecuritySetting>

using NetworkManager::Security8021xSetting;
using NetworkManager::WirelessSecuritySetting;

namespace
{

const char openSystem[] = "open";
const char sharedKey[] = "shared";
const char wpaPersonal[] = "WPAPSK";
const char wpa2Personal[] = "WPA2PSK";
const char wpaEnterprise[] = "WPA(EAP)";
const char wpa2Enterprise[] = "WPA2(EAP)";
const char dynamicWep[] = "IEEE 802.1X";

const char noEncryption[] = "none";
const char noWord[] = "";
const char wepEncryption[] = "WEP";
const char tkipEncryption[] = "TKIP";
const char ccmpEncryption[] = "CCMP";

/** What a method consists of for NetworkManager. */
const char *const methodKeys[] = {"key-mgmt", "auth-alg",     "proto",
                                  "pairwise", "wep-key-type", "wep-key-flags"};

const char *const keyManagementsWithAccount[] = {"wpa-eap", "wpa-eap-suite-b-192", "ieee8021x"};

bool Is(const QString &word, const char *expected)
{
    return word == QLatin1String(expected);
}

void Tell(const char *authentication, const char *encryption, int keyIndex, WLANProfile *profile)
{
    profile->authentication = QLatin1String(authentication);
    profile->encryption = QLatin1String(encryption);
    profile->keyType = QLatin1String(Is(profile->encryption, wepEncryption) ? "networkKey" : "passPhrase");
    profile->keyIndex = QString::number(keyIndex);
}

/** Of the ciphers of a network that has WPA, the better one; a network that tells of none has the usual one.
 */
const char *CipherOf(unsigned int flags)
{
    const bool isOnlyOld =
        (flags & NM_802_11_AP_SEC_PAIR_TKIP) != 0 && (flags & NM_802_11_AP_SEC_PAIR_CCMP) == 0;
    return isOnlyOld ? tkipEncryption : ccmpEncryption;
}

const char *CipherOf(const QList<WirelessSecuritySetting::WpaEncryptionCapabilities> &pairwise)
{
    const bool isOnlyOld =
        pairwise.contains(WirelessSecuritySetting::Tkip) && !pairwise.contains(WirelessSecuritySetting::Ccmp);
    return isOnlyOld ? tkipEncryption : ccmpEncryption;
}

/** @param index  0 to 3. */
void SetWepKey(const WLANProfile &profile, int index, WirelessSecuritySetting *security)
{
    switch (index) {
    case 0:
        security->setWepKey0(profile.keyMaterial);
        break;
    case 1:
        security->setWepKey1(profile.keyMaterial);
        break;
    case 2:
        security->setWepKey2(profile.keyMaterial);
        break;
    default:
        security->setWepKey3(profile.keyMaterial);
        break;
    }
    security->setWepTxKeyindex(static_cast<quint32>(index));
    security->setWepKeyType(Is(profile.keyType, "passPhrase") ? WirelessSecuritySetting::Passphrase
                                                              : WirelessSecuritySetting::Hex);
}

/** False when the words make no WEP profile. */
bool MakeWep(const WLANProfile &profile, WirelessSecuritySetting *security)
{
    const int keyCount = 4;
    bool isNumber = false;
    const int index = profile.keyIndex.toInt(&isNumber);
    const bool isShared = Is(profile.authentication, sharedKey);
    if (!isNumber || index < 0 || index >= keyCount ||
        !(isShared || Is(profile.authentication, openSystem))) {
        return false;
    }
    security->setKeyMgmt(WirelessSecuritySetting::Wep);
    security->setAuthAlg(isShared ? WirelessSecuritySetting::Shared : WirelessSecuritySetting::Open);
    SetWepKey(profile, index, security);
    return true;
}

/** False when the words make no profile with WPA. */
bool MakeWpa(const WLANProfile &profile, WirelessSecuritySetting *security)
{
    const bool isSecond = Is(profile.authentication, wpa2Personal);
    const bool isOnlyOld = Is(profile.encryption, tkipEncryption);
    if (!(isSecond || Is(profile.authentication, wpaPersonal)) ||
        !(isOnlyOld || Is(profile.encryption, ccmpEncryption))) {
        return false;
    }
    security->setKeyMgmt(WirelessSecuritySetting::WpaPsk);
    security->setProto(QList<WirelessSecuritySetting::WpaProtocolVersion>()
                       << (isSecond ? WirelessSecuritySetting::Rsn : WirelessSecuritySetting::Wpa));
    security->setPairwise(QList<WirelessSecuritySetting::WpaEncryptionCapabilities>()
                          << (isOnlyOld ? WirelessSecuritySetting::Tkip : WirelessSecuritySetting::Ccmp));
    security->setPsk(profile.keyMaterial);
    return true;
}

/** What a device needs to be able to do for a method. */
bool IsPossible(const QString &method, unsigned int capabilities)
{
    const bool hasWep =
        (capabilities & (NM_WIFI_DEVICE_CAP_CIPHER_WEP40 | NM_WIFI_DEVICE_CAP_CIPHER_WEP104)) != 0;
    const bool hasCipher =
        (capabilities & (NM_WIFI_DEVICE_CAP_CIPHER_TKIP | NM_WIFI_DEVICE_CAP_CIPHER_CCMP)) != 0;
    if (Is(method, wpaPersonal)) {
        return hasCipher && (capabilities & NM_WIFI_DEVICE_CAP_WPA) != 0;
    }
    if (Is(method, wpa2Personal)) {
        return hasCipher && (capabilities & NM_WIFI_DEVICE_CAP_RSN) != 0;
    }
    return Is(method, openSystem) || hasWep;
}

bool IsPossible(const QString &method, const QList<NetworkDevice> &devices)
{
    for (int i = 0; i < devices.size(); ++i) {
        if (IsPossible(method, devices.at(i).capabilities)) {
            return true;
        }
    }
    return devices.isEmpty();
}

struct PairwiseCipher {
    WirelessSecuritySetting::WpaEncryptionCapabilities word;
    unsigned int flag;
};

const PairwiseCipher pairwiseCiphers[] = {
    {WirelessSecuritySetting::Wep40, NM_802_11_AP_SEC_PAIR_WEP40},
    {WirelessSecuritySetting::Wep104, NM_802_11_AP_SEC_PAIR_WEP104},
    {WirelessSecuritySetting::Tkip, NM_802_11_AP_SEC_PAIR_TKIP},
    {WirelessSecuritySetting::Ccmp, NM_802_11_AP_SEC_PAIR_CCMP},
};

/** Whether the network has a cipher that the profile allows; one that names none allows all. */
bool SharesCipher(const WirelessSecuritySetting &security, unsigned int flags)
{
    unsigned int allowed = 0;
    unsigned int known = 0;
    for (const PairwiseCipher &cipher : pairwiseCiphers) {
        known |= cipher.flag;
        allowed |= security.pairwise().contains(cipher.word) ? cipher.flag : 0;
    }
    return allowed == 0 || (flags & known) == 0 || (flags & allowed) != 0;
}

/** Whether the network has one of the ways to manage keys, in a version of WPA that both sides can do. */
bool SharesKeyManagement(const WirelessSecuritySetting &security, const AccessPoint &point,
                         unsigned int capabilities, unsigned int management)
{
    const QList<WirelessSecuritySetting::WpaProtocolVersion> versions = security.proto();
    const bool isFirstAllowed = versions.isEmpty() || versions.contains(WirelessSecuritySetting::Wpa);
    const bool isSecondAllowed = versions.isEmpty() || versions.contains(WirelessSecuritySetting::Rsn);
    const bool hasFirst = capabilities == 0 || (capabilities & NM_WIFI_DEVICE_CAP_WPA) != 0;
    const bool hasSecond = capabilities == 0 || (capabilities & NM_WIFI_DEVICE_CAP_RSN) != 0;
    return (isFirstAllowed && hasFirst && (point.wpaFlags & management) != 0 &&
            SharesCipher(security, point.wpaFlags)) ||
           (isSecondAllowed && hasSecond && (point.rsnFlags & management) != 0 &&
            SharesCipher(security, point.rsnFlags));
}

bool CanDoWep(unsigned int capabilities)
{
    return capabilities == 0 ||
           (capabilities & (NM_WIFI_DEVICE_CAP_CIPHER_WEP40 | NM_WIFI_DEVICE_CAP_CIPHER_WEP104)) != 0;
}

const unsigned int personalManagement = NM_802_11_AP_SEC_KEY_MGMT_PSK | NM_802_11_AP_SEC_KEY_MGMT_SAE;
const unsigned int accountManagement =
    NM_802_11_AP_SEC_KEY_MGMT_802_1X | NM_802_11_AP_SEC_KEY_MGMT_EAP_SUITE_B_192;
const unsigned int keylessManagement = NM_802_11_AP_SEC_KEY_MGMT_OWE | NM_802_11_AP_SEC_KEY_MGMT_OWE_TM;

} // namespace

bool NetworkSecurity::Fits(const NMVariantMapMap &settings, const AccessPoint &point,
                           unsigned int capabilities)
{
    WirelessSecuritySetting security;
    security.fromMap(settings.value(security.name()));
    const QString word = settings.value(security.name()).value(QLatin1String("key-mgmt")).toString();
    const bool isPrivate = (point.flags & NM_802_11_AP_FLAGS_PRIVACY) != 0;
    if (word.isEmpty()) {
        // A network that encrypts without a key may be open as well.
        const unsigned int others = (point.wpaFlags | point.rsnFlags) & ~NM_802_11_AP_SEC_KEY_MGMT_OWE_TM;
        return !isPrivate && others == 0;
    }
    if (Is(word, "none")) {
        return IsWep(point) && CanDoWep(capabilities);
    }
    if (Is(word, "ieee8021x")) {
        return isPrivate && CanDoWep(capabilities);
    }
    if (Is(word, "owe")) {
        return (point.rsnFlags & keylessManagement) != 0;
    }
    if (Is(word, "wpa-none")) {
        return point.mode == NM_802_11_MODE_ADHOC;
    }
    unsigned int management = 0;
    if (Is(word, "wpa-psk")) {
        management = personalManagement;
    } else if (Is(word, "sae")) {
        management = NM_802_11_AP_SEC_KEY_MGMT_SAE;
    } else if (Is(word, "wpa-eap")) {
        management = NM_802_11_AP_SEC_KEY_MGMT_802_1X;
    } else if (Is(word, "wpa-eap-suite-b-192")) {
        management = NM_802_11_AP_SEC_KEY_MGMT_EAP_SUITE_B_192;
    }
    return SharesKeyManagement(security, point, capabilities, management);
}

int NetworkSecurity::ProtectionOf(const AccessPoint &point)
{
    const unsigned int flags = point.wpaFlags | point.rsnFlags;
    if ((flags & personalManagement) != 0) {
        return VisibleNetwork::ProtectionKey;
    }
    if ((flags & accountManagement) != 0) {
        return VisibleNetwork::ProtectionAccount;
    }
    return IsWep(point) ? VisibleNetwork::ProtectionWeakKey : VisibleNetwork::ProtectionOpen;
}

bool NetworkSecurity::KeepsKey(const NMVariantMapMap &settings)
{
    WirelessSecuritySetting security;
    security.fromMap(settings.value(security.name()));
    const NetworkManager::Setting::SecretFlags flags =
        HasStaticWep(settings) ? security.wepKeyFlags() : security.pskFlags();
    return (flags & (NetworkManager::Setting::AgentOwned | NetworkManager::Setting::NotSaved)) == 0;
}

bool NetworkSecurity::IsWep(const AccessPoint &point)
{
    return (point.flags & NM_802_11_AP_FLAGS_PRIVACY) != 0 && point.wpaFlags == 0 && point.rsnFlags == 0;
}

void NetworkSecurity::Describe(const AccessPoint &point, WLANProfile *profile)
{
    if ((point.rsnFlags & personalManagement) != 0) {
        Tell(wpa2Personal, CipherOf(point.rsnFlags), 0, profile);
    } else if ((point.wpaFlags & personalManagement) != 0) {
        Tell(wpaPersonal, CipherOf(point.wpaFlags), 0, profile);
    } else if ((point.rsnFlags & accountManagement) != 0) {
        Tell(wpa2Enterprise, CipherOf(point.rsnFlags), 0, profile);
    } else if ((point.wpaFlags & accountManagement) != 0) {
        Tell(wpaEnterprise, CipherOf(point.wpaFlags), 0, profile);
    } else if ((point.rsnFlags & NM_802_11_AP_SEC_KEY_MGMT_OWE) != 0) {
        Tell(noWord, noWord, 0, profile);
    } else if (IsWep(point)) {
        Tell(openSystem, wepEncryption, 0, profile);
    } else {
        Tell(openSystem, noEncryption, 0, profile);
    }
}

void NetworkSecurity::Describe(const NMVariantMapMap &settings, WLANProfile *profile)
{
    WirelessSecuritySetting security;
    security.fromMap(settings.value(security.name()));
    const bool isOnlyOld = security.proto().contains(WirelessSecuritySetting::Wpa) &&
                           !security.proto().contains(WirelessSecuritySetting::Rsn);
    switch (security.keyMgmt()) {
    case WirelessSecuritySetting::Wep:
        Tell(security.authAlg() == WirelessSecuritySetting::Shared ? sharedKey : openSystem, wepEncryption,
             static_cast<int>(security.wepTxKeyindex()), profile);
        break;
    case WirelessSecuritySetting::Ieee8021x:
        Tell(dynamicWep, noEncryption, 0, profile);
        break;
    case WirelessSecuritySetting::WpaNone:
    case WirelessSecuritySetting::WpaPsk:
    case WirelessSecuritySetting::SAE:
        Tell(isOnlyOld ? wpaPersonal : wpa2Personal, CipherOf(security.pairwise()), 0, profile);
        break;
    case WirelessSecuritySetting::WpaEap:
    case WirelessSecuritySetting::WpaEapSuiteB192:
        Tell(isOnlyOld ? wpaEnterprise : wpa2Enterprise, CipherOf(security.pairwise()), 0, profile);
        break;
    default:
        // Without a key, be it unknown or OWE, which only later generations of the library know.
        Tell(openSystem, noEncryption, 0, profile);
        break;
    }
}

bool NetworkSecurity::IsDescribed(const NMVariantMapMap &settings)
{
    const WirelessSecuritySetting names;
    if (settings.contains(Security8021xSetting().name())) {
        return false;
    }
    if (!settings.contains(names.name())) {
        return true;
    }
    WirelessSecuritySetting security;
    security.fromMap(settings.value(names.name()));
    const NetworkManager::Setting::SecretFlags flags = security.pskFlags() | security.wepKeyFlags();
    if ((flags & (NetworkManager::Setting::AgentOwned | NetworkManager::Setting::NotSaved)) != 0) {
        return false;
    }
    return security.keyMgmt() == WirelessSecuritySetting::WpaPsk ||
           (HasStaticWep(settings) && security.wepKeyType() != WirelessSecuritySetting::Passphrase);
}

bool NetworkSecurity::HasStaticWep(const NMVariantMapMap &settings)
{
    WirelessSecuritySetting security;
    security.fromMap(settings.value(security.name()));
    return security.keyMgmt() == WirelessSecuritySetting::Wep;
}

bool NetworkSecurity::LacksAccount(const NMVariantMapMap &settings)
{
    const QVariantMap security = settings.value(WirelessSecuritySetting().name());
    const QVariantMap eap = settings.value(Security8021xSetting().name());
    const bool hasAccount = !eap.value(QLatin1String("identity")).toString().isEmpty() ||
                            !eap.value(QLatin1String("client-cert")).toByteArray().isEmpty() ||
                            !security.value(QLatin1String("leap-username")).toString().isEmpty();
    const QString keyManagement = security.value(QLatin1String("key-mgmt")).toString();
    bool needsAccount = false;
    for (const char *word : keyManagementsWithAccount) {
        needsAccount = needsAccount || Is(keyManagement, word);
    }
    return needsAccount && !hasAccount;
}

bool NetworkSecurity::NeedsAccount(const WLANProfile &profile)
{
    return Is(profile.authentication, wpaEnterprise) || Is(profile.authentication, wpa2Enterprise) ||
           Is(profile.authentication, dynamicWep);
}

bool NetworkSecurity::Apply(const WLANProfile &profile, NMVariantMapMap *settings)
{
    if (Is(profile.authentication, openSystem) && Is(profile.encryption, noEncryption)) {
        return true;
    }
    WirelessSecuritySetting security;
    if (!(Is(profile.encryption, wepEncryption) ? MakeWep(profile, &security)
                                                : MakeWpa(profile, &security))) {
        return false;
    }
    WLANProfile before;
    Describe(*settings, &before);
    const bool isSameMethod =
        before.authentication == profile.authentication && before.encryption == profile.encryption;
    QVariantMap &section = (*settings)[security.name()];
    for (const char *key : methodKeys) {
        if (!isSameMethod) {
            section.remove(QLatin1String(key));
        }
    }
    // Left out of what is made where it is 0.
    section.remove(QLatin1String("wep-tx-keyidx"));
    const QVariantMap made = security.toMap();
    for (QVariantMap::const_iterator i = made.constBegin(); i != made.constEnd(); ++i) {
        // What type a WEP key is of holds for all four.
        const bool isOfTheKey =
            i.key() == QLatin1String("psk") ||
            (i.key().startsWith(QLatin1String("wep-")) && i.key() != QLatin1String("wep-key-type"));
        if (isOfTheKey || !isSameMethod) {
            section.insert(i.key(), i.value());
        }
    }
    return true;
}

bool NetworkSecurity::ApplyKey(const AccessPoint &point, const QString &key, NMVariantMapMap *settings)
{
    const bool hasPassPhrase = (point.wpaFlags & NM_802_11_AP_SEC_KEY_MGMT_PSK) != 0 ||
                               (point.rsnFlags & NM_802_11_AP_SEC_KEY_MGMT_PSK) != 0;
    WLANProfile words;
    Describe(point, &words);
    words.keyMaterial = key;
    QVariantMap security;
    switch (ProtectionOf(point)) {
    case VisibleNetwork::ProtectionOpen:
        if ((point.rsnFlags & NM_802_11_AP_SEC_KEY_MGMT_OWE) != 0) {
            security.insert(QLatin1String("key-mgmt"), QLatin1String("owe"));
            settings->insert(WirelessSecuritySetting().name(), security);
        }
        return true;
    case VisibleNetwork::ProtectionKey:
        // A network that has WPA3 alone takes keys of every length.
        if (hasPassPhrase ? !ProfileRules::IsKeyComplete(words) : key.isEmpty()) {
            return false;
        }
        security.insert(QLatin1String("key-mgmt"), QLatin1String(hasPassPhrase ? "wpa-psk" : "sae"));
        security.insert(QLatin1String("psk"), key);
        settings->insert(WirelessSecuritySetting().name(), security);
        return true;
    case VisibleNetwork::ProtectionWeakKey:
        return ProfileRules::IsKeyComplete(words) && Apply(words, settings);
    default:
        return false;
    }
}

QList<QString> NetworkSecurity::Methods(const QList<NetworkDevice> &devices)
{
    const char *const withoutAccount[] = {openSystem, sharedKey, wpaPersonal, wpa2Personal};
    QList<QString> methods;
    for (const char *method : withoutAccount) {
        if (IsPossible(QLatin1String(method), devices)) {
            methods.append(QLatin1String(method));
        }
    }
    return methods;
}
