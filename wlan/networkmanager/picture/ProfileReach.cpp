#include "ProfileReach.h"

#include <NetworkSecurity.h>

#include <NetworkManagerQt/Setting>
#include <NetworkManagerQt/Utils>

#include <algorithm>
#include <utility>

namespace
{

typedef CProfileReach::Sighting Sighting;

const int lowest5GHz = 4900;
const int lowest6GHz = 5925;

QVariantMap WirelessOf(const NetworkProfile &profile)
{
    return profile.settings.value(QLatin1String("802-11-wireless"));
}

QString TextOf(const QVariantMap &section, const char *key)
{
    return section.value(QLatin1String(key)).toString();
}

QList<QByteArray> AddressesIn(const QVariantMap &section, const char *key)
{
    QList<QByteArray> addresses;
    const QStringList texts = section.value(QLatin1String(key)).toStringList();
    for (const QString &text : texts) {
        addresses.append(QByteArray::fromHex(text.toLatin1()));
    }
    return addresses;
}

bool IsOnInterface(const NetworkProfile &profile, const NetworkDevice &device)
{
    const QString name = TextOf(profile.settings.value(QLatin1String("connection")), "interface-name");
    return name.isEmpty() || name == device.name;
}

/** Whether the profile's locks let it use the adapter. */
bool IsForAdapter(const NetworkProfile &profile, const NetworkDevice &device)
{
    const QVariantMap wireless = WirelessOf(profile);
    const QByteArray address = wireless.value(QLatin1String("mac-address")).toByteArray();
    if (!IsOnInterface(profile, device) || (!address.isEmpty() && !device.addresses.contains(address))) {
        return false;
    }
    const QList<QByteArray> refused =
        AddressesIn(wireless, "mac-address-blacklist") + AddressesIn(wireless, "mac-address-denylist");
    for (const QByteArray &own : device.addresses) {
        if (refused.contains(own)) {
            return false;
        }
    }
    return true;
}

bool IsInBand(const QString &band, int frequency)
{
    if (band == QLatin1String("bg")) {
        return frequency < lowest5GHz;
    }
    if (band == QLatin1String("a")) {
        return frequency >= lowest5GHz && frequency < lowest6GHz;
    }
    return band != QLatin1String("6GHz") || frequency >= lowest6GHz;
}

/** Whether the profile's locks let it use the station. */
bool IsForStation(const NetworkProfile &profile, const AccessPoint &point)
{
    const QVariantMap wireless = WirelessOf(profile);
    const QByteArray station = wireless.value(QLatin1String("bssid")).toByteArray();
    const int channel = wireless.value(QLatin1String("channel")).toInt();
    return (station.isEmpty() || station == point.bssid) &&
           IsInBand(TextOf(wireless, "band"), point.frequency) &&
           (channel == 0 || channel == NetworkManager::findChannel(point.frequency));
}

bool IsMadeHere(const NetworkProfile &profile)
{
    const QString mode = TextOf(WirelessOf(profile), "mode");
    return mode == QLatin1String("adhoc") || mode == QLatin1String("mesh");
}

bool IsOfMode(const NetworkProfile &profile, const AccessPoint &point)
{
    return IsMadeHere(profile) ? point.mode != NM_802_11_MODE_INFRA : point.mode == NM_802_11_MODE_INFRA;
}

bool IsForModem(const NetworkProfile &profile, const NetworkDevice &device)
{
    const bool isCdma = profile.settings.contains(QLatin1String("cdma"));
    const unsigned int gsmKinds = NM_DEVICE_MODEM_CAPABILITY_GSM_UMTS | NM_DEVICE_MODEM_CAPABILITY_LTE |
                                  NM_DEVICE_MODEM_CAPABILITY_5GNR;
    const unsigned int cdmaKinds = NM_DEVICE_MODEM_CAPABILITY_CDMA_EVDO;
    const unsigned int kinds = isCdma ? cdmaKinds : gsmKinds;
    const QString modem = TextOf(profile.settings.value(QLatin1String("gsm")), "device-id");
    return IsOnInterface(profile, device) &&
           (device.capabilities == 0 || (device.capabilities & kinds) != 0) &&
           (modem.isEmpty() || modem == device.modemId);
}

bool IsSimLocked(const NetworkDevice &device)
{
    return !device.IsReady() && (device.reason == NM_DEVICE_STATE_REASON_GSM_SIM_PIN_REQUIRED ||
                                 device.reason == NM_DEVICE_STATE_REASON_GSM_SIM_PUK_REQUIRED ||
                                 device.reason == NM_DEVICE_STATE_REASON_SIM_PIN_INCORRECT);
}

bool IsStronger(const Sighting &left, const Sighting &right)
{
    return left.point->strength > right.point->strength;
}

CProfileReach::Reach None(int use)
{
    return {use, QList<Sighting>(), nullptr};
}

/** Why there is nothing whatever the profile is; UsePossible when there may be something. */
int UseOf(const RadioState &radio, bool isThere)
{
    if (!isThere) {
        return ConnectionProfile::UseNoDevice;
    }
    if (!radio.isUnblocked) {
        return ConnectionProfile::UseDeviceBlocked;
    }
    return radio.isEnabled ? ConnectionProfile::UsePossible : ConnectionProfile::UseDeviceOff;
}

} // namespace

CProfileReach::CProfileReach(const NetworkManagerState &state) : m_state(state)
{
    QHash<QString, const AccessPoint *> points;
    for (const AccessPoint &point : state.accessPoints) {
        points.insert(point.path, &point);
    }
    for (const NetworkDevice &device : state.devices) {
        for (const QString &path : device.accessPoints) {
            const AccessPoint *point = points.value(path);
            if (!point || !device.IsReady()) {
                continue;
            }
            const int place = static_cast<int>(m_sightings.size());
            if (point->IsHidden()) {
                m_hidden.insert(point->bssid, place);
            } else {
                m_byName.insert(point->ssid, place);
            }
            const Sighting sighting = {&device, point};
            m_sightings.append(sighting);
        }
    }
}

CProfileReach::Reach CProfileReach::Of(const NetworkProfile &profile) const
{
    if (profile.isOthers) {
        return None(ConnectionProfile::UseOtherUsers);
    }
    if (profile.lacksAccount) {
        return None(ConnectionProfile::UseNoAccount);
    }
    return profile.kind == NetworkProfile::Wifi ? OfWifi(profile) : OfMobile(profile);
}

QList<Sighting> CProfileReach::Named(const NetworkProfile &profile) const
{
    QList<int> places = m_byName.values(profile.ssid);
    // A network that hides its name is known again by the stations through which it was used.
    const QList<QByteArray> stations = AddressesIn(WirelessOf(profile), "seen-bssids");
    for (const QByteArray &station : stations) {
        places += m_hidden.values(station);
    }
    QList<Sighting> sightings;
    for (int place : std::as_const(places)) {
        if (IsOfMode(profile, *m_sightings.at(place).point)) {
            sightings.append(m_sightings.at(place));
        }
    }
    return sightings;
}

CProfileReach::Reach CProfileReach::OfWifi(const NetworkProfile &profile) const
{
    bool isThere = false;
    bool isFree = false;
    const NetworkDevice *first = nullptr;
    for (const NetworkDevice &device : m_state.devices) {
        if (device.kind == NetworkDevice::Wifi && device.IsManaged()) {
            isThere = true;
            isFree = isFree || IsForAdapter(profile, device);
            first = !first && device.IsReady() && IsForAdapter(profile, device) ? &device : first;
        }
    }
    const int use = UseOf(m_state.wifi, isThere);
    if (use != ConnectionProfile::UsePossible) {
        return None(use);
    }
    if (!first) {
        return None(isFree ? ConnectionProfile::UseNoDevice : ConnectionProfile::UseOtherDevice);
    }
    Reach reach = None(ConnectionProfile::UseOutOfRange);
    const QList<Sighting> named = Named(profile);
    for (const Sighting &sighting : named) {
        if (!IsForAdapter(profile, *sighting.device) || !IsForStation(profile, *sighting.point)) {
            reach.use =
                reach.use == ConnectionProfile::UseOutOfRange ? ConnectionProfile::UseOtherDevice : reach.use;
        } else if (NetworkSecurity::Fits(profile.settings, *sighting.point, sighting.device->capabilities)) {
            reach.sightings.append(sighting);
        } else {
            reach.use = ConnectionProfile::UseOtherSecurity;
        }
    }
    if (!reach.sightings.isEmpty()) {
        std::stable_sort(reach.sightings.begin(), reach.sightings.end(), IsStronger);
        reach.use = ConnectionProfile::UsePossible;
        reach.device = reach.sightings.first().device;
    } else if (reach.use == ConnectionProfile::UseOutOfRange && IsMadeHere(profile)) {
        reach.use = ConnectionProfile::UsePossible;
        reach.device = first;
    } else if (reach.use == ConnectionProfile::UseOutOfRange && profile.isHidden) {
        reach.use = ConnectionProfile::UseHiddenIsTried;
        reach.device = first;
    }
    return reach;
}

CProfileReach::Reach CProfileReach::OfMobile(const NetworkProfile &profile) const
{
    bool isThere = false;
    int use = ConnectionProfile::UseOtherDevice;
    for (const NetworkDevice &device : m_state.devices) {
        if (device.kind != NetworkDevice::Modem || !device.IsManaged()) {
            continue;
        }
        isThere = true;
        if (!IsForModem(profile, device)) {
            continue;
        }
        if (device.IsReady() && UseOf(m_state.mobile, true) == ConnectionProfile::UsePossible) {
            return {ConnectionProfile::UsePossible, QList<Sighting>(), &device};
        }
        use = IsSimLocked(device) ? ConnectionProfile::UseSimLocked : ConnectionProfile::UseNoDevice;
    }
    const int radio = UseOf(m_state.mobile, isThere);
    return None(radio == ConnectionProfile::UsePossible ? use : radio);
}
