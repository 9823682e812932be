#include "CallerRights.h"

#include "NetworkManagerClient.h"

#include <NetworkManagerQt/GenericTypes>

#include <QDBusArgument>
#include <QDBusMessage>

#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace
{

CallerRights::Right ReadRight(const NMStringMap &rights, const char *name)
{
    const QString right = rights.value(QLatin1String(name));
    if (right == QLatin1String("no")) {
        return CallerRights::Denied;
    }
    return right == QLatin1String("auth") ? CallerRights::AllowedOnceAsked : CallerRights::Allowed;
}

} // namespace

QDBusMessage CallerRights::Call()
{
    return CNetworkManagerClient::Call(CNetworkManagerClient::ManagerPath(),
                                       CNetworkManagerClient::ManagerInterface(),
                                       QLatin1String("GetPermissions"));
}

CallerRights CallerRights::FromReply(const QDBusMessage &reply)
{
    const NMStringMap told = qdbus_cast<NMStringMap>(reply.arguments().at(0).value<QDBusArgument>());
    CallerRights rights;
    rights.changeOwn = ReadRight(told, "org.freedesktop.NetworkManager.settings.modify.own");
    rights.changeShared = ReadRight(told, "org.freedesktop.NetworkManager.settings.modify.system");
    rights.scan = ReadRight(told, "org.freedesktop.NetworkManager.wifi.scan");
    rights.control = ReadRight(told, "org.freedesktop.NetworkManager.network-control");
    return rights;
}

QString CallerRights::UserName()
{
    const std::size_t roomForEntry = 16384;
    std::vector<char> room(roomForEntry);
    passwd entry;
    passwd *found = nullptr;
    if (getpwuid_r(geteuid(), &entry, room.data(), room.size(), &found) != 0 || !found) {
        return QString();
    }
    return QString::fromLocal8Bit(found->pw_name);
}
