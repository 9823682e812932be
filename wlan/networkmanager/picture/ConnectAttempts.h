#ifndef CONNECTATTEMPTS_H
#define CONNECTATTEMPTS_H

#include <NetworkManagerResult.h>

#include <ConnectionRecords.h>

#include <NetworkManagerQt/GenericTypes>

#include <QHash>
#include <QMap>
#include <QObject>
#include <QString>

class CLivePicture;
class CNetworkManagerClient;
class QDBusMessage;
class QDBusPendingCallWatcher;

/** The orders to connect, to disconnect and to forget, from their beginning to what they came to. */
class CConnectAttempts : public QObject
{
    Q_OBJECT

public:
    /** @param client   outlives this, as picture does. */
    CConnectAttempts(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent);

    /** The call that connects a profile, both by their paths; an empty one leaves the choice to
     * NetworkManager.
     */
    static QDBusMessage ActivationOf(const QString &profile, const QString &device);

    /** All by their paths; an empty one leaves the choice to NetworkManager. The number of the order. */
    int Connect(const QString &name, const QString &profile, const QString &device);

    /**
     * With a new profile, which NetworkManager keeps for as long as it is connected. It is stored only when
     * it has been connected, so that nothing of it is left otherwise, even if this program ends in between.
     */
    int ConnectNew(const NMVariantMapMap &settings, const QString &device, const QString &accessPoint);

    int Disconnect(const ActiveConnection &connection);

    int Forget(const ConnectionProfile &profile);

    /** Of an unknown number: nothing known. */
    ConnectAttempt Result(int number) const { return m_attempts.value(number).told; }

    void Cancel(int number);

signals:
    void Changed();

    /** NetworkManager has taken an order to connect, and made this connection for it. */
    void Taken(const QString &connection);

    /** A profile is gone as it was ordered. */
    void Forgotten(const QString &lastingId);

private slots:
    void TakeReply(QDBusPendingCallWatcher *watcher);
    void TakeMove(const QString &connection);
    void TakeFailure(const QString &connection, int stage, int failure);
    void TakePicture();

private:
    Q_DISABLE_COPY(CConnectAttempts)

    struct Attempt {
        ConnectAttempt told;
        /** Empty until NetworkManager has taken the order. */
        QString connection;
        bool isNew = false;
        bool isToEnd = false;
        bool isToForget = false;
        QString lastingId;
        bool isCancelled = false;
        bool isBeingStored = false;
    };

    struct Ending {
        int stage;
        int failure;
    };

    int Begin(const Attempt &attempt, const QDBusMessage &call);
    void Send(int number, const QDBusMessage &call);
    void TakeConnection(int number, const QDBusMessage &reply);
    void TakeEnding(int number);
    void TakeForgetting(int number, NetworkManagerResult result);
    void TakeRefusal(int number, NetworkManagerResult result);
    void Follow(int number);
    void Store(int number);
    void SendEnd(const QString &connection);
    void End(int number, int stage, int failure);
    QList<int> NumbersUnderWay() const;
    static bool IsUnderWay(const Attempt &attempt);

    CNetworkManagerClient *const m_client;
    CLivePicture *const m_picture;
    QMap<int, Attempt> m_attempts;
    QHash<QDBusPendingCallWatcher *, int> m_calls;
    /** What became of connections, while it may not be known yet that they are those of an order. */
    QHash<QString, Ending> m_endings;
};

#endif
