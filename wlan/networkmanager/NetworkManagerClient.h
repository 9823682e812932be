#ifndef NETWORKMANAGERCLIENT_H
#define NETWORKMANAGERCLIENT_H

#include "NetworkManagerResult.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QPointer>
#include <QString>

class QDBusPendingCall;
class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

/**
 * The way to NetworkManager on the system bus.
 *
 * NetworkManagerQt has objects for all that NetworkManager offers, but they wait for every answer, for 25
 * seconds if need be. So the calls are made here, each with a time limit, and that library serves for what
 * the calls carry.
 *
 * A NetworkManager that let a call run out of time counts as silent until it answers a question that is put
 * to it aside: while it is silent, operations fail at once instead of making their caller wait again.
 */
class CNetworkManagerClient : public QObject
{
    Q_OBJECT

public:
    /** How long the user may be kept waiting by one operation. */
    static const int patienceMilliseconds = 2000;

    explicit CNetworkManagerClient(QObject *parent);

    static QString ServiceName();
    static QString ManagerPath();
    static QString ManagerInterface();
    static QString SettingsPath();
    static QString SettingsInterface();
    static QString ProfileInterface();
    static QString ActiveConnectionInterface();
    static QString DeviceInterface();
    static QString WirelessDeviceInterface();
    static QString AccessPointInterface();
    static QString PropertiesInterface();

    /** A call to NetworkManager, which is not started for its sake. */
    static QDBusMessage Call(const QString &path, const QString &interface, const QString &method);

    /** Whether NetworkManager answers now; waits no longer than the limit. */
    NetworkManagerResult Probe(int limitMilliseconds);

    QDBusPendingCall Send(const QDBusMessage &call, int limitMilliseconds);

    /** Sends a call of which the answer is of no interest. */
    void Tell(const QDBusMessage &call);

    /** Calls slot of receiver for a signal of NetworkManager; an empty path stands for every object. */
    void Listen(const QString &path, const QString &interface, const QString &signal,
                const QString &firstArgument, QObject *receiver, const char *slot);

    bool IsSilent() const { return m_isSilent; }

    /** To be told of every answer that was waited for. */
    void Note(NetworkManagerResult result);

signals:
    /** NetworkManager has come, has come back or speaks again. */
    void Appeared();

private slots:
    void TakeOwner();
    void TakeSign(QDBusPendingCallWatcher *watcher);

private:
    Q_DISABLE_COPY(CNetworkManagerClient)

    void AskForSign();

    QDBusConnection m_connection;
    QDBusServiceWatcher *m_owner;
    bool m_isSilent;
    QPointer<QDBusPendingCallWatcher> m_sign;
};

#endif
