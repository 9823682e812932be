#include "ConnectionPicture.h"

#include "FailureWords.h"
#include "ProfileReach.h"

#include <NetworkSecurity.h>
#include <SsidText.h>

#include <WLANRecords.h>

#include <NetworkManagerQt/Setting>

#include <QPair>

#include <algorithm>
#include <utility>

namespace
{

typedef CProfileReach::Sighting Sighting;

/** The parts of a picture by their paths. */
struct Places {
    explicit Places(const ConnectionPicture &picture)
    {
        for (const NetworkProfile &profile : picture.profiles) {
            profiles.insert(profile.path, &profile);
        }
        for (const NetworkDevice &device : picture.state.devices) {
            devices.insert(device.path, &device);
        }
        for (const AccessPoint &point : picture.state.accessPoints) {
            points.insert(point.path, &point);
        }
    }

    QHash<QString, const NetworkProfile *> profiles;
    QHash<QString, const NetworkDevice *> devices;
    QHash<QString, const AccessPoint *> points;
};

/** By the paths of their profiles. */
typedef QHash<QString, ActiveConnection> ConnectionsByProfile;

int RadioOf(const RadioState &radio, bool isThere)
{
    if (!isThere) {
        return ConnectionState::RadioMissing;
    }
    if (!radio.isUnblocked) {
        return ConnectionState::RadioBlocked;
    }
    return radio.isEnabled ? ConnectionState::RadioOn : ConnectionState::RadioOff;
}

bool HasDevice(const NetworkManagerState &state, NetworkDevice::Kind kind)
{
    for (const NetworkDevice &device : state.devices) {
        if (device.kind == kind && device.IsManaged()) {
            return true;
        }
    }
    return false;
}

int ConnectivityOf(unsigned int connectivity)
{
    switch (connectivity) {
    case NM_CONNECTIVITY_NONE:
        return ConnectionState::ConnectivityNone;
    case NM_CONNECTIVITY_PORTAL:
        return ConnectionState::ConnectivityPortal;
    case NM_CONNECTIVITY_LIMITED:
        return ConnectionState::ConnectivityLimited;
    case NM_CONNECTIVITY_FULL:
        return ConnectionState::ConnectivityFull;
    default:
        return ConnectionState::ConnectivityNotKnown;
    }
}

ConnectionState StateOf(const ConnectionPicture &picture)
{
    ConnectionState state;
    state.sourceName = QLatin1String("networkmanager");
    state.source = picture.source;
    if (picture.source == ConnectionState::SourceKnown) {
        state.wifi = RadioOf(picture.state.wifi, HasDevice(picture.state, NetworkDevice::Wifi));
        state.mobile = RadioOf(picture.state.mobile, HasDevice(picture.state, NetworkDevice::Modem));
        state.connectivity = ConnectivityOf(picture.state.connectivity);
        state.mayConnect = picture.rights.control != CallerRights::Denied;
    }
    return state;
}

int StageOf(const ActiveObject &object, const NetworkDevice *device)
{
    switch (object.state) {
    case NM_ACTIVE_CONNECTION_STATE_ACTIVATING:
        return device ? FailureWords::StageOf(device->state) : StagePreparing;
    case NM_ACTIVE_CONNECTION_STATE_ACTIVATED:
        return StageConnected;
    case NM_ACTIVE_CONNECTION_STATE_DEACTIVATING:
        return StageDisconnecting;
    default:
        return StageNotKnown;
    }
}

ActiveConnection ConnectionOf(const ActiveObject &object, const Places &places, const QString &primary)
{
    const NetworkDevice *device = places.devices.value(object.devices.value(0));
    const NetworkProfile *profile = places.profiles.value(object.profile);
    const AccessPoint *point = device ? places.points.value(device->activeAccessPoint) : nullptr;
    ActiveConnection connection;
    connection.id = object.path;
    connection.profileId = object.profile;
    connection.name = profile ? profile->name : object.name;
    connection.type = NetworkProfile::TypeTextOf(NetworkProfile::KindOf(object.type));
    connection.device = device ? device->name : QString();
    connection.stage = StageOf(object, device);
    connection.carriesTraffic = object.path == primary;
    connection.isVpn = object.isVpn;
    if (NetworkProfile::KindOf(object.type) == NetworkProfile::Wifi) {
        connection.network = SsidText::FromBytes(profile ? profile->ssid
                                                 : point ? point->ssid
                                                         : QByteArray());
        connection.signal = point ? point->strength : -1;
    }
    return connection;
}

bool ComesFirst(const ActiveConnection &left, const ActiveConnection &right)
{
    if (left.carriesTraffic != right.carriesTraffic) {
        return left.carriesTraffic;
    }
    return left.stage == StageConnected && right.stage != StageConnected;
}

QList<ActiveConnection> ConnectionsOf(const ConnectionPicture &picture, const Places &places)
{
    QList<ActiveConnection> connections;
    for (const ActiveObject &object : picture.state.connections) {
        const ActiveConnection connection = ConnectionOf(object, places, picture.state.primaryConnection);
        // Every computer is connected to itself.
        if (connection.stage != StageNotKnown && object.type != QLatin1String("loopback")) {
            connections.append(connection);
        }
    }
    std::stable_sort(connections.begin(), connections.end(), ComesFirst);
    return connections;
}

QString AuthenticationOf(const AccessPoint &point)
{
    WLANProfile words;
    NetworkSecurity::Describe(point, &words);
    return words.authentication;
}

ConnectionProfile RecordOf(const NetworkProfile &profile, const CProfileReach::Reach &reach,
                           const ProfileFailure &failure)
{
    ConnectionProfile record;
    record.id = profile.path;
    record.lastingId = profile.uuid;
    record.name = profile.name;
    record.type = profile.TypeText();
    record.use = reach.use;
    record.device = reach.device ? reach.device->name : QString();
    record.signal = reach.sightings.isEmpty() ? -1 : reach.sightings.first().point->strength;
    record.failure = failure.failure;
    record.failedAt = failure.when;
    record.lastConnected = static_cast<qint64>(profile.lastConnected);
    record.connectsByItself = profile.connectsByItself;
    if (profile.kind == NetworkProfile::Wifi) {
        WLANProfile words;
        NetworkSecurity::Describe(profile.settings, &words);
        record.network = SsidText::FromBytes(profile.ssid);
        record.security = words.authentication;
        record.isHidden = profile.isHidden;
    }
    return record;
}

/** A profile that is in use can be used, whatever else is told: a station may not be in the list for a
 * moment. */
void TakeOver(const ActiveConnection &connection, ConnectionProfile *record)
{
    if (connection.stage >= StagePreparing && connection.stage <= StageConnected) {
        record->use = ConnectionProfile::UsePossible;
        record->device = connection.device;
        record->signal = connection.signal >= 0 ? connection.signal : record->signal;
    }
}

/** The networks that devices receive, with a network for each station. */
class CNetworkList
{
public:
    explicit CNetworkList(const QList<Sighting> &sightings)
    {
        QHash<QPair<QByteArray, int>, int> known;
        for (const Sighting &sighting : sightings) {
            const AccessPoint &point = *sighting.point;
            if (point.IsHidden()) {
                continue;
            }
            const QPair<QByteArray, int> key(point.ssid, NetworkSecurity::ProtectionOf(point));
            if (!known.contains(key)) {
                known.insert(key, static_cast<int>(m_networks.size()));
                VisibleNetwork network;
                network.id =
                    QString::fromLatin1("%1 %2").arg(QLatin1String(point.ssid.toHex())).arg(key.second);
                network.name = SsidText::FromBytes(point.ssid);
                network.protection = key.second;
                m_networks.append(network);
            }
            Add(sighting, known.value(key));
        }
    }

    void Add(const NetworkProfile &profile, const QList<Sighting> &sightings)
    {
        for (const Sighting &sighting : sightings) {
            const int place = m_places.value(sighting.point->path, -1);
            if (place >= 0 && !m_networks.at(place).profileIds.contains(profile.path)) {
                m_networks[place].profileIds.append(profile.path);
            }
        }
    }

    QList<VisibleNetwork> InOrder() const
    {
        QList<VisibleNetwork> networks = m_networks;
        std::stable_sort(networks.begin(), networks.end(), IsBetter);
        return networks;
    }

private:
    static bool IsBetter(const VisibleNetwork &left, const VisibleNetwork &right)
    {
        return left.signal != right.signal ? left.signal > right.signal : left.name < right.name;
    }

    void Add(const Sighting &sighting, int place)
    {
        const AccessPoint &point = *sighting.point;
        m_places.insert(point.path, place);
        VisibleNetwork &network = m_networks[place];
        if (point.strength > network.signal) {
            network.signal = point.strength;
            network.security = AuthenticationOf(point);
        }
        network.isInUse = network.isInUse || (point.path == sighting.device->activeAccessPoint &&
                                              !sighting.device->activeConnection.isEmpty());
    }

    QList<VisibleNetwork> m_networks;
    QHash<QString, int> m_places;
};

/** As NetworkManager chooses; it never chooses what doesn't connect by itself. */
bool IsRatherUsed(const NetworkProfile *left, const NetworkProfile *right)
{
    if (left->connectsByItself != right->connectsByItself) {
        return left->connectsByItself;
    }
    return left->priority != right->priority ? left->priority > right->priority
                                             : left->lastConnected > right->lastConnected;
}

QList<const NetworkProfile *> InOrderOfUse(const QList<NetworkProfile> &profiles)
{
    QList<const NetworkProfile *> ordered;
    for (const NetworkProfile &profile : profiles) {
        ordered.append(&profile);
    }
    std::stable_sort(ordered.begin(), ordered.end(), IsRatherUsed);
    return ordered;
}

bool WasConnectedLater(const NetworkProfile *left, const NetworkProfile *right)
{
    return left->lastConnected > right->lastConnected;
}

} // namespace

ConnectionRecords ConnectionRecords::Of(const ConnectionPicture &picture)
{
    ConnectionRecords records;
    records.state = StateOf(picture);
    if (picture.source != ConnectionState::SourceKnown) {
        return records;
    }
    const Places places(picture);
    records.connections = ConnectionsOf(picture, places);
    ConnectionsByProfile inUse;
    for (const ActiveConnection &connection : std::as_const(records.connections)) {
        inUse.insert(connection.profileId, connection);
    }
    const CProfileReach reach(picture.state);
    CNetworkList networks(reach.Sightings());
    QList<const NetworkProfile *> byUse;
    QHash<QString, QList<Sighting>> sightings;
    const QList<const NetworkProfile *> ordered = InOrderOfUse(picture.profiles);
    for (const NetworkProfile *rather : ordered) {
        const NetworkProfile &profile = *rather;
        if (profile.kind == NetworkProfile::OtherKind || profile.isHotspot) {
            continue;
        }
        const CProfileReach::Reach found = reach.Of(profile);
        ConnectionProfile record = RecordOf(profile, found, picture.failures.value(profile.path));
        TakeOver(inUse.value(profile.path), &record);
        records.profiles.append(record);
        byUse.append(&profile);
        sightings.insert(profile.path, found.sightings);
    }
    std::stable_sort(byUse.begin(), byUse.end(), WasConnectedLater);
    for (const NetworkProfile *profile : byUse) {
        networks.Add(*profile, sightings.value(profile->path));
    }
    records.networks = networks.InOrder();
    return records;
}
