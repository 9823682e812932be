#include "FakeConnections.h"

FakeConnections::FakeConnections() : told(KnownConnections()) {}

void FakeConnections::GetConnectionState(ConnectionState *state)
{
    ++reads;
    *state = told.state;
}

void FakeConnections::GetActiveConnections(QList<ActiveConnection> *connections)
{
    *connections = told.active;
}

void FakeConnections::GetProfiles(QList<ConnectionProfile> *profiles)
{
    *profiles = told.profiles;
}

void FakeConnections::GetVisibleNetworks(QList<VisibleNetwork> *networks)
{
    *networks = told.networks;
}

void FakeConnections::LookForNetworks()
{
    ++looks;
}

int FakeConnections::ConnectProfile(const QString &profileId)
{
    ordered.append(profileId);
    return answer;
}

int FakeConnections::ConnectNetwork(const QString &networkId, const QString &key)
{
    joined.append(networkId + '/' + key);
    return answer;
}

int FakeConnections::Disconnect(const QString &connectionId)
{
    ended.append(connectionId);
    return answer;
}

void FakeConnections::GetAttempt(int number, ConnectAttempt *result)
{
    *result = attempts.value(number, attempt);
}

void FakeConnections::CancelAttempt(int number)
{
    cancelled.append(number);
}

void FakeConnections::GetProfileDetails(const QString &profileId, ProfileDetails *result)
{
    *result = details.value(profileId);
}

int FakeConnections::Forget(const QString &profileId, const QString &lastingId)
{
    forgotten.append(profileId + '/' + lastingId);
    return answer > 0 ? static_cast<int>(forgotten.size()) : answer;
}

int FakeConnections::SetConnectsByItself(const QString &profileId, bool isOn)
{
    wished.append(isOn ? profileId : '-' + profileId);
    return static_cast<int>(wished.size());
}

void FakeConnections::Tell()
{
    emit OnConnectionsChanged();
}

ConnectionProfile SavedProfile(const QString &name, int use, const QString &type)
{
    ConnectionProfile profile;
    profile.id = type + name;
    profile.name = name;
    profile.type = type;
    profile.use = use;
    profile.connectsByItself = true;
    return profile;
}

ActiveConnection ConnectionOf(const QString &name, int stage, bool carriesTraffic, const QString &type)
{
    ActiveConnection connection;
    connection.id = QLatin1String("connection ") + type + name;
    connection.profileId = type + name;
    connection.name = name;
    connection.type = type;
    connection.stage = stage;
    connection.carriesTraffic = carriesTraffic;
    return connection;
}

Connections KnownConnections()
{
    Connections connections;
    connections.teller = Connections::Plugin;
    connections.state.sourceName = QLatin1String("networkmanager");
    connections.state.source = ConnectionState::SourceKnown;
    connections.state.mayConnect = true;
    return connections;
}

WithConnections::WithConnections(IPluginContainer *others, QObject *connections)
    : m_others(others), m_connections(connections)
{
}

QObject *WithConnections::GetPluginObject(const QString &classId, int interfaceNumber)
{
    const int connectionInterface = 4104;
    const int orderInterface = 4105;
    if (interfaceNumber == connectionInterface || interfaceNumber == orderInterface) {
        return m_connections;
    }
    return m_others ? m_others->GetPluginObject(classId, interfaceNumber) : nullptr;
}
