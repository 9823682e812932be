#ifndef STOREDCONNECTIONS_H
#define STOREDCONNECTIONS_H

#include "ProfileStore.h"
#include "RangeSource.h"

#include <IConnectionPlugin.h>

#include <QFileSystemWatcher>
#include <QMap>
#include <QTimer>

/**
 * The connection interface over the two files, for trying a host and for tests: nothing real is connected.
 * There is one adapter for Wi-Fi and one modem, each with one connection at most, which ends with the
 * program. Connecting goes through all stages in about a second, and fails as the networks' file tells
 * (RangeSource.h). The files are read for every operation; while either can't be read nothing is known.
 *
 * Ids are the type and the name of a profile, or the name of a network, as the names are unique there.
 */
class CStoredConnections : public QObject, public IConnectionPlugin
{
    Q_OBJECT
    Q_INTERFACES(IConnectionPlugin)

public:
    explicit CStoredConnections(QObject *parent);

    void GetConnectionState(ConnectionState *state) override;
    void GetActiveConnections(QList<ActiveConnection> *connections) override;
    void GetProfiles(QList<ConnectionProfile> *profiles) override;
    void GetVisibleNetworks(QList<VisibleNetwork> *networks) override;

    /** Reads the file again, as every operation does. */
    void LookForNetworks() override;

    int ConnectProfile(const QString &profileId) override;
    int ConnectNetwork(const QString &networkId, const QString &key) override;
    int Disconnect(const QString &connectionId) override;
    void GetAttempt(int attempt, ConnectAttempt *result) override;
    void CancelAttempt(int attempt) override;
    void GetProfileDetails(const QString &profileId, ProfileDetails *details) override;

    /** Has come to its end when it answers. */
    int Forget(const QString &profileId, const QString &lastingId) override;

signals:
    void OnConnectionsChanged();

private slots:
    void Watch();
    void Advance();

private:
    Q_DISABLE_COPY(CStoredConnections)

    /** Both files as they are. */
    struct Files {
        bool areRead = false;
        QList<StoredProfile> profiles;
        QList<NetworkInRange> networks;
    };

    /** An order to connect, and the connection that it has led to. */
    struct Order {
        ConnectAttempt told;
        QString type;
        QString network;
        /** To be stored when it is connected; without a name when it is stored already. */
        WLANProfile profile;
        /** How it is to fail; FailureNone when it is not. */
        int failure = FailureNone;
    };

    Files Read();
    const StoredProfile *Find(const Files &files, const QString &profileId) const;
    int Begin(const Order &order);
    void Move(Order *order);
    void Change();

    CProfileStore m_profiles;
    CRangeSource m_range;
    QFileSystemWatcher m_watcher;
    QTimer m_step;
    QTimer m_pause;
    QMap<int, Order> m_orders;
    /** By type: the order whose connection is up, coming up or going down. */
    QMap<QString, int> m_active;
    QMap<QString, int> m_failures;
};

#endif
