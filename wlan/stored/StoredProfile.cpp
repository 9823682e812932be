#include "StoredProfile.h"

namespace
{

StoredProfile WifiProfile(const QString &name, const char *authentication, const char *encryption,
                          const char *key)
{
    StoredProfile stored;
    stored.type = QLatin1String("1");
    stored.profile =
        NewWifiProfile(name, QLatin1String(authentication), QLatin1String(encryption), QLatin1String(key));
    return stored;
}

} // namespace

WLANProfile NewWifiProfile(const QString &name, const QString &authentication, const QString &encryption,
                           const QString &key)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.ssid = name;
    profile.text4 = QLatin1String("0");
    profile.bssType = QLatin1String("ESS");
    profile.connectionMode = QLatin1String("manual");
    profile.authentication = authentication;
    profile.encryption = encryption;
    profile.keyType = profile.encryption == QLatin1String("WEP") ? QLatin1String("networkKey")
                                                                 : QLatin1String("passPhrase");
    profile.keyFlag = QLatin1String("false");
    profile.keyMaterial = key;
    profile.keyIndex = QLatin1String("0");
    return profile;
}

QList<StoredProfile> SampleProfiles()
{
    QList<StoredProfile> profiles;
    profiles.append(WifiProfile(QLatin1String("Home"), "WPA2PSK", "CCMP", "correct horse"));
    profiles.append(WifiProfile(QLatin1String("Office"), "WPA2(EAP)", "CCMP", ""));
    profiles.append(WifiProfile(QString::fromUtf8("Café"), "open", "none", ""));
    profiles.append(WifiProfile(QString::fromUtf8("شبكة المنزل"), "WPAPSK", "TKIP", "sand and sea"));

    StoredProfile printer = WifiProfile(QLatin1String("Old printer"), "shared", "WEP", "print");
    printer.profile.keyIndex = QLatin1String("1");
    profiles.append(printer);

    StoredProfile company = WifiProfile(QLatin1String("Company"), "WPA2PSK", "CCMP", "managed centrally");
    company.profile.readOnly = QLatin1String("true");
    profiles.append(company);

    StoredProfile mobile;
    mobile.type = QLatin1String("2");
    mobile.profile.profileName = QLatin1String("Mobile broadband");
    profiles.append(mobile);
    return profiles;
}
