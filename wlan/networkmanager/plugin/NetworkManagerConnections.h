#ifndef NETWORKMANAGERCONNECTIONS_H
#define NETWORKMANAGERCONNECTIONS_H

#include <ConnectAttempts.h>

#include <IConnectionPlugin.h>

#include <QHash>
#include <QMetaMethod>
#include <QObject>

class CLivePicture;
class CNetworkManagerClient;

/** The connection interface over NetworkManager. Ids are its paths. */
class CNetworkManagerConnections : public QObject, public IConnectionPlugin
{
    Q_OBJECT
    Q_INTERFACES(IConnectionPlugin)

public:
    /** @param client  outlives this, as picture does. */
    CNetworkManagerConnections(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent);

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
    void GetProfileDetails(const QString &profileId, ProfileDetails *details) override;
    int Forget(const QString &profileId, const QString &lastingId) override;

signals:
    void OnConnectionsChanged();
    void OnProfilesChanged();

    /** By an order of this program. */
    void ProfileForgotten(const QString &lastingId);

protected:
    void connectNotify(const QMetaMethod &signal) override;

private slots:
    void TellSoon();
    void Tell();
    void LookAtNames();
    void LookWhoWatches();

private:
    Q_DISABLE_COPY(CNetworkManagerConnections)

    int Refusal();
    QString FreeName(const QString &name);

    CLivePicture *const m_picture;
    CConnectAttempts m_attempts;
    /** By their uuids. */
    QHash<QString, QString> m_names;
    bool m_isToTell;
};

#endif
