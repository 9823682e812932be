#include "NetworkManagerConnections.h"

#include <DetailsOfProfile.h>
#include <HandConnections.h>
#include <LivePicture.h>
#include <NetworkManagerClient.h>
#include <NetworkSecurity.h>
#include <ProfileReach.h>
#include <SsidText.h>

#include <QVariantMap>

namespace
{

template <typename Record> const Record *Find(const QList<Record> &records, const QString &id)
{
    for (const Record &record : records) {
        if (record.id == id) {
            return &record;
        }
    }
    return nullptr;
}

template <typename Record> void Give(const QList<Record> &records, QList<Record> *output)
{
    if (output) {
        *output = records;
    }
}

/** The strongest station of a network; null points when there is none any more. */
CProfileReach::Sighting StrongestOf(const CProfileReach &reach, const VisibleNetwork &network)
{
    CProfileReach::Sighting strongest = {nullptr, nullptr};
    for (const CProfileReach::Sighting &sighting : reach.Sightings()) {
        if (SsidText::FromBytes(sighting.point->ssid) == network.name &&
            NetworkSecurity::ProtectionOf(*sighting.point) == network.protection &&
            (!strongest.point || sighting.point->strength > strongest.point->strength)) {
            strongest = sighting;
        }
    }
    return strongest;
}

} // namespace

CNetworkManagerConnections::CNetworkManagerConnections(CNetworkManagerClient *client, CLivePicture *picture,
                                                       QObject *parent)
    : QObject(parent), m_picture(picture), m_attempts(client, picture, nullptr), m_isToTell(false)
{
    connect(m_picture, SIGNAL(Changed()), this, SIGNAL(OnConnectionsChanged()));
    connect(m_picture, &CLivePicture::Changed, this, &CNetworkManagerConnections::LookAtNames);
    connect(m_picture, SIGNAL(AboutToAskForSign()), this, SLOT(LookWhoWatches()));
    connect(&m_attempts, SIGNAL(Changed()), this, SLOT(TellSoon()));
    connect(&m_attempts, &CConnectAttempts::Taken, this, &HandConnections::Note);
    connect(&m_attempts, &CConnectAttempts::Forgotten, this, &CNetworkManagerConnections::ProfileForgotten);
    connect(client, &CNetworkManagerClient::Vanished, this, &HandConnections::Forget);
}

void CNetworkManagerConnections::TellSoon()
{
    if (!m_isToTell) {
        m_isToTell = true;
        QMetaObject::invokeMethod(this, "Tell", Qt::QueuedConnection);
    }
}

void CNetworkManagerConnections::Tell()
{
    m_isToTell = false;
    emit OnConnectionsChanged();
}

void CNetworkManagerConnections::LookAtNames()
{
    const ConnectionPicture &picture = m_picture->Now();
    if (picture.source != ConnectionState::SourceKnown) {
        return;
    }
    QHash<QString, QString> names;
    for (const NetworkProfile &profile : picture.profiles) {
        names.insert(profile.uuid, profile.name);
    }
    if (names != m_names) {
        m_names = names;
        emit OnProfilesChanged();
    }
}

void CNetworkManagerConnections::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&CNetworkManagerConnections::OnConnectionsChanged)) {
        m_picture->SetWatched(true);
    }
}

void CNetworkManagerConnections::LookWhoWatches()
{
    // Nobody is told of a receiver that is deleted.
    m_picture->SetWatched(
        isSignalConnected(QMetaMethod::fromSignal(&CNetworkManagerConnections::OnConnectionsChanged)));
}

void CNetworkManagerConnections::GetConnectionState(ConnectionState *state)
{
    if (state) {
        *state = m_picture->Records().state;
    }
}

void CNetworkManagerConnections::GetActiveConnections(QList<ActiveConnection> *connections)
{
    Give(m_picture->Records().connections, connections);
}

void CNetworkManagerConnections::GetProfiles(QList<ConnectionProfile> *profiles)
{
    Give(m_picture->Records().profiles, profiles);
}

void CNetworkManagerConnections::GetVisibleNetworks(QList<VisibleNetwork> *networks)
{
    Give(m_picture->Records().networks, networks);
}

void CNetworkManagerConnections::LookForNetworks()
{
    m_picture->LookForNetworks();
}

int CNetworkManagerConnections::Refusal()
{
    const ConnectionState &state = m_picture->Records().state;
    if (state.source != ConnectionState::SourceKnown) {
        return RefusedSource;
    }
    return state.mayConnect ? 0 : int(RefusedNotAllowed);
}

int CNetworkManagerConnections::ConnectProfile(const QString &profileId)
{
    if (const int refusal = Refusal()) {
        return refusal;
    }
    const ConnectionProfile *found = Find(m_picture->Records().profiles, profileId);
    if (!found) {
        return RefusedUnknown;
    }
    const ConnectionProfile profile = *found;
    if (profile.use == ConnectionProfile::UseNoAccount) {
        return RefusedAccount;
    }
    return m_attempts.Connect(profile.name, profile.id, m_picture->Now().state.DevicePath(profile.device));
}

int CNetworkManagerConnections::ConnectNetwork(const QString &networkId, const QString &key)
{
    if (const int refusal = Refusal()) {
        return refusal;
    }
    const VisibleNetwork *found = Find(m_picture->Records().networks, networkId);
    if (!found) {
        return RefusedUnknown;
    }
    const VisibleNetwork network = *found;
    if (!network.profileIds.isEmpty()) {
        return ConnectProfile(network.profileIds.first());
    }
    if (network.protection == VisibleNetwork::ProtectionAccount) {
        return RefusedAccount;
    }
    const ConnectionPicture &picture = m_picture->Now();
    const CProfileReach reach(picture.state);
    const CProfileReach::Sighting station = StrongestOf(reach, network);
    if (!station.point) {
        return RefusedUnknown;
    }
    NMVariantMapMap settings = NetworkProfile::NewSettings(FreeName(network.name), picture.rights);
    QVariantMap &wireless = settings[QLatin1String("802-11-wireless")];
    wireless.insert(QLatin1String("ssid"), station.point->ssid);
    if (!NetworkSecurity::ApplyKey(*station.point, key, &settings)) {
        return RefusedKey;
    }
    return m_attempts.ConnectNew(settings, station.device->path, station.point->path);
}

QString CNetworkManagerConnections::FreeName(const QString &name)
{
    QString free = name;
    bool isFree = false;
    for (int i = 1; !isFree; ++i) {
        isFree = true;
        for (const NetworkProfile &profile : m_picture->Now().profiles) {
            isFree = isFree && profile.name != free;
        }
        if (!isFree) {
            free = QString::fromLatin1("%1 %2").arg(name).arg(i);
        }
    }
    return free;
}

int CNetworkManagerConnections::Disconnect(const QString &connectionId)
{
    if (const int refusal = Refusal()) {
        return refusal;
    }
    const ActiveConnection *found = Find(m_picture->Records().connections, connectionId);
    return found ? m_attempts.Disconnect(*found) : int(RefusedUnknown);
}

void CNetworkManagerConnections::GetAttempt(int attempt, ConnectAttempt *result)
{
    if (result) {
        // What has come of it since.
        m_picture->Now();
        *result = m_attempts.Result(attempt);
    }
}

void CNetworkManagerConnections::CancelAttempt(int attempt)
{
    m_attempts.Cancel(attempt);
}

void CNetworkManagerConnections::GetProfileDetails(const QString &profileId, ProfileDetails *details)
{
    if (details) {
        *details = DetailsOfProfile::Find(m_picture->Now(), profileId);
    }
}

int CNetworkManagerConnections::Forget(const QString &profileId, const QString &lastingId)
{
    if (m_picture->Records().state.source != ConnectionState::SourceKnown) {
        return RefusedSource;
    }
    const ConnectionProfile *found = Find(m_picture->Records().profiles, profileId);
    // Paths begin anew with another NetworkManager, and may then be those of other profiles.
    if (!found || found->lastingId != lastingId) {
        return RefusedUnknown;
    }
    const ConnectionProfile profile = *found;
    const int change = DetailsOfProfile::Find(m_picture->Now(), profileId).change;
    return change == ProfileDetails::ChangeNotAllowed ? int(RefusedNotAllowed) : m_attempts.Forget(profile);
}
