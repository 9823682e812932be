#include "Connections.h"

#include "PluginObjects.h"

#include <IConnectionPlugin.h>

#include <QPair>
#include <QSet>

Connections Connections::Read()
{
    Connections read;
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    if (!plugin) {
        read.teller = PluginObjects::Wlan() ? NoAnswers : NoPlugin;
        return read;
    }
    read.teller = Plugin;
    plugin->GetConnectionState(&read.state);
    plugin->GetActiveConnections(&read.active);
    plugin->GetProfiles(&read.profiles);
    plugin->GetVisibleNetworks(&read.networks);
    return read;
}

bool Connections::AreKnown() const
{
    return teller == Plugin && state.source == ConnectionState::SourceKnown;
}

const ActiveConnection *Connections::InUse() const
{
    for (const ActiveConnection &connection : active) {
        if (AreKnown() && connection.carriesTraffic) {
            return &connection;
        }
    }
    return nullptr;
}

QList<PriorityList> Connections::Remembered() const
{
    QList<PriorityList> entries;
    QSet<QPair<QString, QString>> known;
    for (const ConnectionProfile &profile : profiles) {
        PriorityList entry;
        entry.name = profile.name;
        entry.type = profile.type;
        if (!known.contains(qMakePair(entry.name, entry.type))) {
            known.insert(qMakePair(entry.name, entry.type));
            entries.append(entry);
        }
    }
    return entries;
}

bool Connections::IsComingUp(int stage)
{
    return stage == StagePreparing || stage == StageAuthenticating || stage == StageGettingAddress;
}

QList<ConnectionProfile> Connections::ProfilesOf(const PriorityList &entry) const
{
    QList<ConnectionProfile> found;
    for (const ConnectionProfile &profile : profiles) {
        if (profile.type == entry.type && profile.name == entry.name) {
            found.append(profile);
        }
    }
    return found;
}
