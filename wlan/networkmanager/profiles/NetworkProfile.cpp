#include "NetworkProfile.h"

#include "NetworkSecurity.h"
#include "SsidText.h"

#include <PriorityList.h>
#include <WLANRecords.h>

#include <NetworkManagerQt/ConnectionSettings>
#include <NetworkManagerQt/WirelessSetting>

#include <QStringList>
#include <QVariantMap>

namespace
{

QString WifiType()
{
    return QLatin1String("1");
}

/** Files there are part of the system's own set-up, or gone with the next start. */
bool IsSystemFile(const QString &file)
{
    return file.startsWith(QLatin1String("/usr/")) || file.startsWith(QLatin1String("/run/"));
}

/** Entries of the permissions are "user:NAME:". */
bool IsAmong(const QStringList &permissions, const QString &userName)
{
    for (int i = 0; i < permissions.size(); ++i) {
        if (permissions.at(i).section(QLatin1Char(':'), 0, 0) == QLatin1String("user") &&
            permissions.at(i).section(QLatin1Char(':'), 1, 1) == userName) {
            return true;
        }
    }
    return false;
}

QString AdHocWord()
{
    return QLatin1String("IBSS");
}

/** NetworkManager's own word for what a WLANProfile has none for, such as a hotspot. */
QString BssTypeOf(const NMVariantMapMap &settings)
{
    const QString mode =
        settings.value(QLatin1String("802-11-wireless")).value(QLatin1String("mode")).toString();
    if (mode.isEmpty() || mode == QLatin1String("infrastructure")) {
        return NetworkProfile::InfrastructureWord();
    }
    return mode == QLatin1String("adhoc") ? AdHocWord() : mode;
}

} // namespace

NetworkProfile NetworkProfile::Make(const ProfilePlace &place, const NMVariantMapMap &settings,
                                    const CallerRights &rights, const QString &userName)
{
    const QVariantMap connection = settings.value(QLatin1String("connection"));
    NetworkProfile profile;
    profile.path = place.path;
    profile.settings = settings;
    profile.version = place.version;
    profile.uuid = connection.value(QLatin1String("uuid")).toString();
    profile.name = connection.value(QLatin1String("id")).toString();
    profile.kind = KindOf(connection.value(QLatin1String("type")).toString());
    profile.lastConnected = connection.value(QLatin1String("timestamp")).toULongLong();
    profile.priority = connection.value(QLatin1String("autoconnect-priority")).toInt();
    profile.connectsByItself = connection.value(QLatin1String("autoconnect"), true).toBool();
    if (profile.kind == Wifi) {
        NetworkManager::WirelessSetting wireless;
        wireless.fromMap(settings.value(wireless.name()));
        profile.ssid = wireless.ssid();
        profile.isHidden = wireless.hidden();
        profile.isHotspot = wireless.mode() == NetworkManager::WirelessSetting::Ap;
        profile.lacksAccount = NetworkSecurity::LacksAccount(settings);
    }

    const QStringList permissions = connection.value(QLatin1String("permissions")).toStringList();
    profile.isOthers = !permissions.isEmpty() && !IsAmong(permissions, userName);
    const CallerRights::Right right = permissions.size() == 1 ? rights.changeOwn : rights.changeShared;
    profile.isPassing = place.isPassing;
    profile.isReadOnly = place.isPassing || IsSystemFile(place.file) || profile.isOthers ||
                         right == CallerRights::Denied ||
                         connection.value(QLatin1String("read-only")).toBool();
    profile.isFreelyChangeable = !profile.isReadOnly && right == CallerRights::Allowed;
    return profile;
}

NMVariantMapMap NetworkProfile::NewSettings(const QString &name, const CallerRights &rights)
{
    using NetworkManager::ConnectionSettings;
    QVariantMap connection;
    connection.insert(QLatin1String("id"), name);
    connection.insert(QLatin1String("uuid"), ConnectionSettings::createNewUuid());
    connection.insert(QLatin1String("type"), ConnectionSettings::typeAsString(ConnectionSettings::Wireless));
    if (rights.changeShared != CallerRights::Allowed && rights.changeOwn == CallerRights::Allowed) {
        connection.insert(QLatin1String("permissions"),
                          QStringList(QString::fromLatin1("user:%1:").arg(CallerRights::UserName())));
    }
    NMVariantMapMap settings;
    settings.insert(QLatin1String("connection"), connection);
    return settings;
}

void NetworkProfile::Describe(WLANProfile *profile) const
{
    profile->profileName = name;
    profile->connectionMode = QLatin1String(connectsByItself ? "auto" : "manual");
    profile->readOnly = QLatin1String(isReadOnly ? "true" : "false");
    if (kind == Wifi) {
        profile->ssid = SsidText::FromBytes(ssid);
        profile->bssType = BssTypeOf(settings);
        NetworkSecurity::Describe(settings, profile);
    }
}

QString NetworkProfile::InfrastructureWord()
{
    return QLatin1String("ESS");
}

QString NetworkProfile::ModeOf(const QString &bssType)
{
    return QLatin1String(bssType == AdHocWord() ? "adhoc" : "infrastructure");
}

NetworkProfile::Kind NetworkProfile::KindOf(const QString &connectionType)
{
    switch (NetworkManager::ConnectionSettings::typeFromString(connectionType)) {
    case NetworkManager::ConnectionSettings::Wireless:
        return NetworkProfile::Wifi;
    case NetworkManager::ConnectionSettings::Gsm:
    case NetworkManager::ConnectionSettings::Cdma:
        return NetworkProfile::MobileBroadband;
    default:
        return NetworkProfile::OtherKind;
    }
}

QString NetworkProfile::TypeTextOf(Kind kind)
{
    switch (kind) {
    case Wifi:
        return WifiType();
    case MobileBroadband:
        return QLatin1String("2");
    default:
        return QLatin1String("0");
    }
}

QPair<bool, QString> NetworkProfile::ListKey() const
{
    return qMakePair(kind == Wifi, name);
}

QPair<bool, QString> NetworkProfile::ListKeyOf(const PriorityList &entry)
{
    return qMakePair(entry.type == WifiType(), entry.name);
}

bool NetworkProfile::ComesBefore(const NetworkProfile &left, const NetworkProfile &right)
{
    const int alphabetical = QString::compare(left.name, right.name, Qt::CaseInsensitive);
    if (alphabetical != 0) {
        return alphabetical < 0;
    }
    if (left.name != right.name) {
        return left.name < right.name;
    }
    if (left.lastConnected != right.lastConnected) {
        return left.lastConnected > right.lastConnected;
    }
    return left.uuid != right.uuid ? left.uuid < right.uuid : left.path < right.path;
}
