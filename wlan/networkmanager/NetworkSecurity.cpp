#include "NetworkSecurity.h"

#include "NetworkManagerState.h"

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
const char wepEncryption[] = "WEP";
const char tkipEncryption[] = "TKIP";
const char ccmpEncryption[] = "CCMP";

/** The four methods of WPA. */
struct WpaMethod {
    const char *authentication;
    WirelessSecuritySetting::WpaProtocolVersion protocol;
    WirelessSecuritySetting::KeyMgmt keyManagement;
};

const WpaMethod wpaMethods[] = {
    {wpaPersonal, WirelessSecuritySetting::Wpa, WirelessSecuritySetting::WpaPsk},
    {wpa2Personal, WirelessSecuritySetting::Rsn, WirelessSecuritySetting::WpaPsk},
    {wpaEnterprise, WirelessSecuritySetting::Wpa, WirelessSecuritySetting::WpaEap},
    {wpa2Enterprise, WirelessSecuritySetting::Rsn, WirelessSecuritySetting::WpaEap},
};

const WpaMethod *FindWpaMethod(const QString &authentication)
{
    for (const WpaMethod &method : wpaMethods) {
        if (authentication == QLatin1String(method.authentication)) {
            return &method;
        }
    }
    return nullptr;
}

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

void SetWepKey(const WLANProfile &profile, int index, WirelessSecuritySetting *security)
{
    typedef void (WirelessSecuritySetting::*KeySetter)(const QString);
    const KeySetter setters[] = {&WirelessSecuritySetting::setWepKey0, &WirelessSecuritySetting::setWepKey1,
                                 &WirelessSecuritySetting::setWepKey2, &WirelessSecuritySetting::setWepKey3};
    (security->*setters[index])(profile.keyMaterial);
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
    const WpaMethod *method = FindWpaMethod(profile.authentication);
    if (!method || !(Is(profile.encryption, tkipEncryption) || Is(profile.encryption, ccmpEncryption))) {
        return false;
    }
    security->setKeyMgmt(method->keyManagement);
    security->setProto(QList<WirelessSecuritySetting::WpaProtocolVersion>() << method->protocol);
    security->setPairwise(QList<WirelessSecuritySetting::WpaEncryptionCapabilities>()
                          << (Is(profile.encryption, tkipEncryption) ? WirelessSecuritySetting::Tkip
                                                                     : WirelessSecuritySetting::Ccmp));
    if (method->keyManagement == WirelessSecuritySetting::WpaPsk) {
        security->setPsk(profile.keyMaterial);
    }
    return true;
}

bool NeedsEap(const WirelessSecuritySetting &security)
{
    return security.keyMgmt() == WirelessSecuritySetting::WpaEap ||
           security.keyMgmt() == WirelessSecuritySetting::Ieee8021x;
}

/** What a device needs to be able to do for a method. */
bool IsPossible(const QString &method, unsigned int capabilities)
{
    const bool hasWep =
        (capabilities & (NM_WIFI_DEVICE_CAP_CIPHER_WEP40 | NM_WIFI_DEVICE_CAP_CIPHER_WEP104)) != 0;
    const bool hasCipher =
        (capabilities & (NM_WIFI_DEVICE_CAP_CIPHER_TKIP | NM_WIFI_DEVICE_CAP_CIPHER_CCMP)) != 0;
    if (const WpaMethod *wpa = FindWpaMethod(method)) {
        const unsigned int needed =
            wpa->protocol == WirelessSecuritySetting::Rsn ? NM_WIFI_DEVICE_CAP_RSN : NM_WIFI_DEVICE_CAP_WPA;
        return hasCipher && (capabilities & needed) != 0;
    }
    return Is(method, openSystem) || hasWep;
}

bool IsPossible(const QString &method, const QList<WirelessDevice> &devices)
{
    for (int i = 0; i < devices.size(); ++i) {
        if (IsPossible(method, devices.at(i).capabilities)) {
            return true;
        }
    }
    return devices.isEmpty();
}

} // namespace

bool NetworkSecurity::IsWep(const AccessPoint &point)
{
    return (point.flags & NM_802_11_AP_FLAGS_PRIVACY) != 0 && point.wpaFlags == 0 && point.rsnFlags == 0;
}

void NetworkSecurity::Describe(const AccessPoint &point, WLANProfile *profile)
{
    const unsigned int personal = NM_802_11_AP_SEC_KEY_MGMT_PSK | NM_802_11_AP_SEC_KEY_MGMT_SAE;
    const unsigned int enterprise =
        NM_802_11_AP_SEC_KEY_MGMT_802_1X | NM_802_11_AP_SEC_KEY_MGMT_EAP_SUITE_B_192;
    if ((point.rsnFlags & personal) != 0) {
        Tell(wpa2Personal, CipherOf(point.rsnFlags), 0, profile);
    } else if ((point.wpaFlags & personal) != 0) {
        Tell(wpaPersonal, CipherOf(point.wpaFlags), 0, profile);
    } else if ((point.rsnFlags & enterprise) != 0) {
        Tell(wpa2Enterprise, CipherOf(point.rsnFlags), 0, profile);
    } else if ((point.wpaFlags & enterprise) != 0) {
        Tell(wpaEnterprise, CipherOf(point.wpaFlags), 0, profile);
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
    case WirelessSecuritySetting::Unknown:
        Tell(openSystem, noEncryption, 0, profile);
        break;
    }
}

bool NetworkSecurity::Apply(const WLANProfile &profile, NMVariantMapMap *settings)
{
    WirelessSecuritySetting security;
    const bool isPlain = Is(profile.authentication, openSystem) && Is(profile.encryption, noEncryption);
    if (Is(profile.authentication, dynamicWep) && Is(profile.encryption, noEncryption)) {
        security.setKeyMgmt(WirelessSecuritySetting::Ieee8021x);
    } else if (!isPlain && !(Is(profile.encryption, wepEncryption) ? MakeWep(profile, &security)
                                                                   : MakeWpa(profile, &security))) {
        return false;
    }
    Security8021xSetting eap;
    settings->remove(security.name());
    settings->remove(eap.name());
    if (!isPlain) {
        settings->insert(security.name(), security.toMap());
    }
    if (NeedsEap(security)) {
        eap.setEapMethods(QList<Security8021xSetting::EapMethod>() << Security8021xSetting::EapMethodSim);
        settings->insert(eap.name(), eap.toMap());
    }
    return true;
}

QList<QString> NetworkSecurity::Methods(const QList<WirelessDevice> &devices, bool isEapKnown)
{
    const char *const withoutEap[] = {openSystem, sharedKey, wpaPersonal, wpa2Personal};
    const char *const withEap[] = {wpaEnterprise, wpa2Enterprise, dynamicWep};
    QList<QString> methods;
    for (const char *method : withoutEap) {
        if (IsPossible(QLatin1String(method), devices)) {
            methods.append(QLatin1String(method));
        }
    }
    for (const char *method : withEap) {
        if (isEapKnown && IsPossible(QLatin1String(method), devices)) {
            methods.append(QLatin1String(method));
        }
    }
    return methods;
}
