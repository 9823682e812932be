#ifndef FAKECONNECTIONS_H
#define FAKECONNECTIONS_H

#include <Connections.h>
#include <IConnectionPlugin.h>
#include <IOrderPlugin.h>
#include <IPluginContainer.h>

#include <QMap>
#include <QStringList>

/** Connections as they are told, behind the real interface; orders are recorded. */
class FakeConnections : public QObject, public IConnectionPlugin, public IOrderPlugin
{
    Q_OBJECT
    Q_INTERFACES(IConnectionPlugin IOrderPlugin)

public:
    FakeConnections();

    void GetConnectionState(ConnectionState *state) override;
    void GetActiveConnections(QList<ActiveConnection> *connections) override;
    void GetProfiles(QList<ConnectionProfile> *profiles) override;
    void GetVisibleNetworks(QList<VisibleNetwork> *networks) override;
    void LookForNetworks() override;
    int ConnectProfile(const QString &profileId) override;
    int ConnectNetwork(const QString &networkId, const QString &key) override;
    int Disconnect(const QString &connectionId) override;
    void GetAttempt(int attempt, ConnectAttempt *result) override;
    void CancelAttempt(int attempt) override;
    void GetProfileDetails(const QString &profileId, ProfileDetails *result) override;
    int Forget(const QString &profileId, const QString &lastingId) override;
    int Apply() override { return 0; }
    void GetOutcome(int, OrderOutcome *result) override { *result = outcome; }
    void GetStanding(OrderOutcome *result) override { *result = standing; }
    int SetConnectsByItself(const QString &profileId, bool isOn) override;

    /** Tells that something has changed. */
    void Tell();

    bool IsWatched() const { return receivers(SIGNAL(OnConnectionsChanged())) > 0; }

    /** NetworkManager, known, and the user may connect, unless a test tells otherwise. */
    Connections told;
    ConnectAttempt attempt;
    /** Where they are not all the same: by their numbers. */
    QMap<int, ConnectAttempt> attempts;
    OrderOutcome outcome;
    OrderOutcome standing;
    /** The profiles that were to connect by themselves, or, with a minus before, not to. */
    QStringList wished;
    int answer = 1;
    /** Ids that were ordered to be connected. */
    QStringList ordered;
    /** The networks that were ordered to be connected, "id/key" each. */
    QStringList joined;
    QList<int> cancelled;
    /** The connections that were ordered to be ended. */
    QStringList ended;
    /** By the ids of the profiles. */
    QMap<QString, ProfileDetails> details;
    /** The profiles that were to be forgotten, "id/lastingId" each. */
    QStringList forgotten;
    int reads = 0;
    int looks = 0;

signals:
    void OnConnectionsChanged();
    void OnProfilesChanged();
    void OnOrderChanged();
    void OnSwitched(const QString &name, const QString &former);
};

/** A profile whose id is its type and name. */
ConnectionProfile SavedProfile(const QString &name, int use = ConnectionProfile::UsePossible,
                               const QString &type = QLatin1String("1"));

/** A connection of that profile. */
ActiveConnection ConnectionOf(const QString &name, int stage, bool carriesTraffic,
                              const QString &type = QLatin1String("1"));

/** What NetworkManager tells while it is known and nothing is connected. */
Connections KnownConnections();

/** Another container with these connections in the place of its own. */
class WithConnections : public IPluginContainer
{
public:
    /** @param others  may be null. */
    WithConnections(IPluginContainer *others, QObject *connections);

    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override;

private:
    IPluginContainer *const m_others;
    QObject *const m_connections;
};

#endif
