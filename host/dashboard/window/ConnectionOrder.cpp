#include "ConnectionOrder.h"

#include <Connections.h>
#include <DashboardText.h>
#include <IConnectionPlugin.h>
#include <OverviewText.h>
#include <PluginObjects.h>

void ConnectionOrder::Connect(const QString &name, const QString &profileId)
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    m_isToConnect = true;
    m_name = name;
    m_id = profileId;
    m_number = plugin ? plugin->ConnectProfile(profileId) : int(IConnectionPlugin::RefusedSource);
}

void ConnectionOrder::Disconnect(const ActiveConnection &connection)
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    m_isToConnect = false;
    m_name = connection.name;
    m_id = connection.id;
    m_number = plugin ? plugin->Disconnect(connection.id) : int(IConnectionPlugin::RefusedSource);
}

ConnectAttempt ConnectionOrder::Attempt() const
{
    ConnectAttempt attempt;
    IConnectionPlugin *plugin = m_number > 0 ? PluginObjects::Connecting() : nullptr;
    if (plugin) {
        plugin->GetAttempt(m_number, &attempt);
    }
    return attempt;
}

bool ConnectionOrder::IsUnderWay() const
{
    const int stage = Attempt().stage;
    return Connections::IsComingUp(stage) || stage == StageDisconnecting;
}

bool ConnectionOrder::HasComeAbout(const QList<ActiveConnection> &active) const
{
    for (const ActiveConnection &connection : active) {
        if (!m_isToConnect && connection.id == m_id) {
            return false;
        }
        if (m_isToConnect && connection.profileId == m_id && connection.stage != StageDisconnecting) {
            return true;
        }
    }
    return !m_isToConnect;
}

int ConnectionOrder::Failure() const
{
    switch (m_number) {
    case 0:
        return FailureNone;
    case IConnectionPlugin::RefusedNotAllowed:
        return FailureNotAllowed;
    case IConnectionPlugin::RefusedKey:
        return FailureKeyMissing;
    default:
        break;
    }
    if (m_number < 0) {
        return FailureOther;
    }
    const ConnectAttempt attempt = Attempt();
    return attempt.stage == StageFailed ? attempt.failure : int(FailureNone);
}

QString ConnectionOrder::Reason() const
{
    if (m_isToConnect && m_id.isEmpty()) {
        return DashboardText("IDS_USE_NOT_SAVED");
    }
    return m_number == IConnectionPlugin::RefusedAccount ? DashboardText("IDS_USE_NO_ACCOUNT")
                                                         : OverviewText::OutcomeOfSaved(Failure());
}

bool ConnectionOrder::HasFailed(const QList<ActiveConnection> &active) const
{
    return Failure() != FailureNone && !HasComeAbout(active);
}

QString ConnectionOrder::Failed() const
{
    return DashboardText(m_isToConnect ? "IDS_SWITCH_FAILED" : "IDS_DISCONNECT_FAILED")
        .arg(OverviewText::Name(m_name));
}
