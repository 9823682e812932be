#include "NetworkManagerState.h"

#include "NetworkManagerClient.h"

#include <NetworkManagerQt/Setting>

#include <QVariantMap>

namespace
{

const int strongestSignal = 100;

QString Text(const QVariantMap &properties, const char *name)
{
    return properties.value(QLatin1String(name)).toString();
}

unsigned int Number(const QVariantMap &properties, const char *name, unsigned int otherwise = 0)
{
    return properties.value(QLatin1String(name), otherwise).toUInt();
}

bool IsOn(const QVariantMap &properties, const char *name)
{
    return properties.value(QLatin1String(name), true).toBool();
}

/** The path of another object; empty for "/", which stands for none. */
QString Path(const QVariantMap &properties, const char *name)
{
    const QString path = Text(properties, name);
    return path == QLatin1String("/") ? QString() : path;
}

/** Of "02:00:00:00:00:01". */
QByteArray AddressIn(const QVariantMap &properties, const char *name)
{
    return QByteArray::fromHex(Text(properties, name).toLatin1());
}

AccessPoint ReadAccessPoint(const QString &path, const QVariantMap &properties)
{
    AccessPoint point;
    point.path = path;
    point.ssid = properties.value(QLatin1String("Ssid")).toByteArray();
    point.bssid = AddressIn(properties, "HwAddress");
    point.strength = qBound(0, properties.value(QLatin1String("Strength")).toInt(), strongestSignal);
    point.frequency = properties.value(QLatin1String("Frequency")).toInt();
    point.mode = Number(properties, "Mode", NM_802_11_MODE_INFRA);
    point.flags = Number(properties, "Flags");
    point.wpaFlags = Number(properties, "WpaFlags");
    point.rsnFlags = Number(properties, "RsnFlags");
    return point;
}

void ReadWifi(const QVariantMap &wireless, const QVariantMap &common, NetworkDevice *device)
{
    device->kind = NetworkDevice::Wifi;
    device->capabilities = Number(wireless, "WirelessCapabilities");
    device->accessPoints = wireless.value(QLatin1String("AccessPoints")).toStringList();
    device->lastScan = wireless.value(QLatin1String("LastScan")).toLongLong();
    device->activeAccessPoint = Path(wireless, "ActiveAccessPoint");
    const QVariantMap *const sources[] = {&wireless, &common};
    for (const QVariantMap *source : sources) {
        device->addresses << AddressIn(*source, "PermHwAddress") << AddressIn(*source, "HwAddress");
    }
    device->addresses.removeAll(QByteArray());
}

NetworkDevice ReadDevice(const QString &path, const NMVariantMapMap &interfaces)
{
    const QVariantMap common = interfaces.value(CNetworkManagerClient::DeviceInterface());
    NetworkDevice device;
    device.path = path;
    device.name = Text(common, "Interface");
    device.state = Number(common, "State", NM_DEVICE_STATE_DISCONNECTED);
    device.reason = Number(common, "StateReason");
    device.activeConnection = Path(common, "ActiveConnection");
    device.metered = Number(common, "Metered");
    if (interfaces.contains(CNetworkManagerClient::WirelessDeviceInterface())) {
        ReadWifi(interfaces.value(CNetworkManagerClient::WirelessDeviceInterface()), common, &device);
    } else if (interfaces.contains(CNetworkManagerClient::ModemInterface())) {
        const QVariantMap modem = interfaces.value(CNetworkManagerClient::ModemInterface());
        device.kind = NetworkDevice::Modem;
        device.capabilities = Number(modem, "ModemCapabilities");
        device.modemId = Text(modem, "DeviceId");
    }
    return device;
}

ProfilePlace ReadProfile(const QString &path, const QVariantMap &properties)
{
    const unsigned int passing = NM_SETTINGS_CONNECTION_FLAG_UNSAVED |
                                 NM_SETTINGS_CONNECTION_FLAG_NM_GENERATED |
                                 NM_SETTINGS_CONNECTION_FLAG_VOLATILE | NM_SETTINGS_CONNECTION_FLAG_EXTERNAL;
    ProfilePlace place;
    place.path = path;
    place.file = Text(properties, "Filename");
    place.version = properties.value(QLatin1String("VersionId")).toULongLong();
    place.isPassing = properties.value(QLatin1String("Unsaved")).toBool() ||
                      (Number(properties, "Flags") & passing) != 0 ||
                      (properties.contains(QLatin1String("Filename")) && place.file.isEmpty());
    return place;
}

ActiveObject ReadConnection(const QString &path, const QVariantMap &properties)
{
    ActiveObject connection;
    connection.path = path;
    connection.profile = Path(properties, "Connection");
    connection.name = Text(properties, "Id");
    connection.type = Text(properties, "Type");
    connection.state = Number(properties, "State");
    connection.devices = properties.value(QLatin1String("Devices")).toStringList();
    connection.isVpn = properties.value(QLatin1String("Vpn")).toBool();
    return connection;
}

void ReadManager(const QVariantMap &properties, NetworkManagerState *state)
{
    const bool isOn = IsOn(properties, "NetworkingEnabled");
    state->primaryConnection = Path(properties, "PrimaryConnection");
    state->connectivity = Number(properties, "Connectivity");
    state->wifi.isEnabled = isOn && IsOn(properties, "WirelessEnabled");
    state->wifi.isUnblocked = IsOn(properties, "WirelessHardwareEnabled");
    state->mobile.isEnabled = isOn && IsOn(properties, "WwanEnabled");
    state->mobile.isUnblocked = IsOn(properties, "WwanHardwareEnabled");
}

} // namespace

bool NetworkDevice::IsManaged() const
{
    return state > NM_DEVICE_STATE_UNMANAGED;
}

bool NetworkDevice::IsReady() const
{
    return state >= NM_DEVICE_STATE_DISCONNECTED;
}

NetworkManagerState NetworkManagerState::FromObjects(const NetworkManagerObjects &objects)
{
    NetworkManagerState state;
    for (NetworkManagerObjects::const_iterator object = objects.constBegin(); object != objects.constEnd();
         ++object) {
        const QString &path = object.key();
        const NMVariantMapMap &interfaces = object.value();
        if (path == CNetworkManagerClient::ManagerPath()) {
            ReadManager(interfaces.value(CNetworkManagerClient::ManagerInterface()), &state);
        }
        if (interfaces.contains(CNetworkManagerClient::DeviceInterface()) ||
            interfaces.contains(CNetworkManagerClient::WirelessDeviceInterface())) {
            state.devices.append(ReadDevice(path, interfaces));
        }
        for (NMVariantMapMap::const_iterator i = interfaces.constBegin(); i != interfaces.constEnd(); ++i) {
            if (i.key() == CNetworkManagerClient::AccessPointInterface()) {
                state.accessPoints.append(ReadAccessPoint(path, i.value()));
            } else if (i.key() == CNetworkManagerClient::ProfileInterface()) {
                state.profiles.append(ReadProfile(path, i.value()));
            } else if (i.key() == CNetworkManagerClient::ActiveConnectionInterface()) {
                state.connections.append(ReadConnection(path, i.value()));
            }
        }
    }
    return state;
}

ProfilePlace NetworkManagerState::PlaceOf(const QString &path, const NetworkManagerObjects &objects)
{
    return ReadProfile(path, objects.value(path).value(CNetworkManagerClient::ProfileInterface()));
}

QList<NetworkDevice> NetworkManagerState::WifiDevices() const
{
    QList<NetworkDevice> found;
    for (const NetworkDevice &device : devices) {
        if (device.kind == NetworkDevice::Wifi) {
            found.append(device);
        }
    }
    return found;
}

QString NetworkManagerState::DevicePath(const QString &name) const
{
    for (const NetworkDevice &device : devices) {
        if (!name.isEmpty() && device.name == name) {
            return device.path;
        }
    }
    return QString();
}

QList<QString> NetworkManagerState::ConnectedProfiles() const
{
    QList<QString> connected;
    for (const ActiveObject &connection : connections) {
        if (connection.state == NM_ACTIVE_CONNECTION_STATE_ACTIVATED) {
            connected.append(connection.profile);
        }
    }
    return connected;
}
