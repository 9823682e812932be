#ifndef NETWORKMANAGERCLIENT_H
#define NETWORKMANAGERCLIENT_H

#include "NetworkManagerResult.h"
#include "SystemBus.h"

#include <QByteArray>
#include <QDBusMessage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QScopedPointer>
#include <QString>
#include <QStringList>

class QDBusPendingCall;
class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

/**
 * The way to NetworkManager on the system bus.
 *
 * NetworkManagerQt serves for what the calls carry: names, flags, the classes of single settings. The calls
 * are made here, and not by its objects and notifiers, which, in 5.103 and 6.13 alike,
 * - wait for every answer on the thread of their caller, without a limit: a NetworkManager that does not
 *   answer held listConnections() up for 50 seconds, networkInterfaces() for 75, permissions() for 25;
 * - have no bus any more, for good, once the system bus has been restarted;
 * - lose what they have no member for: ConnectionSettings, read and written back, lost the sections "proxy",
 *   "user" and "match" and 18 more properties, such as "connection.dns-over-tls" and "ipv4.dhcp-timeout";
 * - have no Update2, and don't tell where and how a profile is kept (Filename, Flags).
 *
 * A NetworkManager that let a call run out of time counts as silent until it answers a question that is put
 * to it aside: while it is silent, operations fail at once instead of making their caller wait again.
 *
 * When the bus is lost, operations fail at once, too, until it is there again.
 */
class CNetworkManagerClient : public QObject
{
    Q_OBJECT

public:
    explicit CNetworkManagerClient(QObject *parent);
    ~CNetworkManagerClient() override;

    static QString ServiceName();
    /** Of the object that tells of all others. */
    static QString RootPath();
    static QString ObjectsInterface();
    static QString ManagerPath();
    static QString ManagerInterface();
    static QString SettingsPath();
    static QString SettingsInterface();
    static QString ProfileInterface();
    static QString ActiveConnectionInterface();
    static QString DeviceInterface();
    static QString WirelessDeviceInterface();
    static QString ModemInterface();
    static QString AccessPointInterface();
    static QString PropertiesInterface();

    /** A call to NetworkManager, which is not started for its sake. */
    static QDBusMessage Call(const QString &path, const QString &interface, const QString &method);

    QDBusPendingCall Send(const QDBusMessage &call, int limitMilliseconds);

    /** Sends a call of which the answer is of no interest. */
    void Tell(const QDBusMessage &call);

    /**
     * Calls slot of receiver for a signal of NetworkManager, on a later bus, too; an empty path stands for
     * every object.
     */
    void Listen(const QString &path, const QString &interface, const QString &signal,
                const QString &firstArgument, QObject *receiver, const char *slot);

    bool HasBus() const { return m_bus.Connection().isConnected(); }
    /** Whether it is not known as yet if there is a bus. */
    bool IsSeekingBus() const { return m_isSeekingBus; }
    bool IsSilent() const { return m_isSilent; }

    /** To be told of every answer that was waited for. */
    void Note(NetworkManagerResult result);

public slots:
    /** Has the coming and going of NetworkManager told now, as far as it has arrived. */
    void TakeArrived();

    /** Asks for a sign, so that a NetworkManager that has stopped answering is found out. */
    void Check();

signals:
    /** NetworkManager has gone, or the bus has. */
    void Vanished();

    /** NetworkManager has not answered in time. */
    void FellSilent();

    /** NetworkManager has come, has come back or speaks again, or there is a new bus that it may be on. */
    void Appeared();

private slots:
    void TakeBus();
    void TakeLoss();
    void TakeOwner(const QString &name, const QString &before, const QString &now);
    void TakeCheck(QDBusPendingCallWatcher *watcher);
    void TakeSign(QDBusPendingCallWatcher *watcher);

private:
    Q_DISABLE_COPY(CNetworkManagerClient)

    struct Subscription {
        QString path;
        QString interface;
        QString signal;
        QStringList arguments;
        QPointer<QObject> receiver;
        QByteArray slot;
    };

    void Subscribe(const Subscription &subscription);
    void AskForSign();

    CSystemBus m_bus;
    QScopedPointer<QDBusServiceWatcher> m_owner;
    QList<Subscription> m_subscriptions;
    bool m_isSilent;
    bool m_isSeekingBus;
    bool m_isLost;
    QPointer<QDBusPendingCallWatcher> m_check;
    QPointer<QDBusPendingCallWatcher> m_sign;
};

#endif
