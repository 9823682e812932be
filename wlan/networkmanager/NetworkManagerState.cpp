#include "NetworkManagerState.h"

#include "NetworkManagerClient.h"

#include <NetworkManagerQt/Setting>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMap>
#include <QVariantMap>

namespace
{

typedef QMap<QDBusObjectPath, NMVariantMapMap> ManagedObjects;

const int strongestSignal = 100;

AccessPoint ReadAccessPoint(const QVariantMap &properties)
{
    AccessPoint point;
    point.ssid = properties.value(QLatin1String("Ssid")).toByteArray();
    point.strength = qBound(0, properties.value(QLatin1String("Strength")).toInt(), strongestSignal);
    point.frequency = properties.value(QLatin1String("Frequency")).toInt();
    point.flags = properties.value(QLatin1String("Flags")).toUInt();
    point.wpaFlags = properties.value(QLatin1String("WpaFlags")).toUInt();
    point.rsnFlags = properties.value(QLatin1String("RsnFlags")).toUInt();
    return point;
}

WirelessDevice ReadDevice(const QString &path, const QVariantMap &properties)
{
    WirelessDevice device;
    device.path = path;
    device.capabilities = properties.value(QLatin1String("WirelessCapabilities")).toUInt();
    return device;
}

ProfilePlace ReadProfile(const QString &path, const QVariantMap &properties)
{
    const unsigned int passing = NM_SETTINGS_CONNECTION_FLAG_UNSAVED |
                                 NM_SETTINGS_CONNECTION_FLAG_NM_GENERATED |
                                 NM_SETTINGS_CONNECTION_FLAG_VOLATILE | NM_SETTINGS_CONNECTION_FLAG_EXTERNAL;
    ProfilePlace place;
    place.path = path;
    place.file = properties.value(QLatin1String("Filename")).toString();
    place.version = properties.value(QLatin1String("VersionId")).toULongLong();
    place.isPassing = properties.value(QLatin1String("Unsaved")).toBool() ||
                      (properties.value(QLatin1String("Flags")).toUInt() & passing) != 0 ||
                      (properties.contains(QLatin1String("Filename")) && place.file.isEmpty());
    return place;
}

} // namespace

QDBusMessage NetworkManagerState::Call()
{
    return CNetworkManagerClient::Call(QLatin1String("/org/freedesktop"),
                                       QLatin1String("org.freedesktop.DBus.ObjectManager"),
                                       QLatin1String("GetManagedObjects"));
}

NetworkManagerState NetworkManagerState::FromReply(const QDBusMessage &reply)
{
    const ManagedObjects objects = qdbus_cast<ManagedObjects>(reply.arguments().at(0).value<QDBusArgument>());
    NetworkManagerState state;
    for (ManagedObjects::const_iterator object = objects.constBegin(); object != objects.constEnd();
         ++object) {
        const QString path = object.key().path();
        const NMVariantMapMap &interfaces = object.value();
        for (NMVariantMapMap::const_iterator i = interfaces.constBegin(); i != interfaces.constEnd(); ++i) {
            if (i.key() == CNetworkManagerClient::AccessPointInterface()) {
                state.accessPoints.append(ReadAccessPoint(i.value()));
            } else if (i.key() == CNetworkManagerClient::WirelessDeviceInterface()) {
                state.devices.append(ReadDevice(path, i.value()));
            } else if (i.key() == CNetworkManagerClient::ProfileInterface()) {
                state.profiles.append(ReadProfile(path, i.value()));
            } else if (i.key() == CNetworkManagerClient::ActiveConnectionInterface() &&
                       i.value().value(QLatin1String("State")).toUInt() ==
                           NM_ACTIVE_CONNECTION_STATE_ACTIVATED) {
                state.connectedProfiles.append(
                    i.value().value(QLatin1String("Connection")).value<QDBusObjectPath>().path());
            }
        }
    }
    return state;
}
