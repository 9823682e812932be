#include "NetworkManagerClient.h"

#include <NetworkManagerQt/GenericTypes>

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QStringList>

namespace
{

const int signMilliseconds = 20000;

/**
 * One connection for all clients, kept for as long as the program runs: the toolkit spoils its memory when a
 * connection is closed while calls on it are unanswered. One that the bus has closed has none.
 */
QDBusConnection Connection()
{
    const QString name = QLatin1String("WLANNetworkManager");
    if (!QDBusConnection(name).isConnected()) {
        QDBusConnection::disconnectFromBus(name);
        QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
    }
    return QDBusConnection(name);
}

QDBusMessage VersionCall()
{
    QDBusMessage call =
        CNetworkManagerClient::Call(CNetworkManagerClient::ManagerPath(),
                                    CNetworkManagerClient::PropertiesInterface(), QLatin1String("Get"));
    call << CNetworkManagerClient::ManagerInterface() << QLatin1String("Version");
    return call;
}

} // namespace

const int CNetworkManagerClient::patienceMilliseconds;

CNetworkManagerClient::CNetworkManagerClient(QObject *parent)
    : QObject(parent), m_connection(Connection()),
      m_owner(new QDBusServiceWatcher(ServiceName(), m_connection, QDBusServiceWatcher::WatchForRegistration,
                                      this)),
      m_isSilent(false)
{
    qDBusRegisterMetaType<NMVariantMapMap>();
    connect(m_owner, SIGNAL(serviceRegistered(QString)), this, SLOT(TakeOwner()));
}

QString CNetworkManagerClient::ServiceName()
{
    return QLatin1String("org.freedesktop.NetworkManager");
}

QString CNetworkManagerClient::ManagerPath()
{
    return QLatin1String("/org/freedesktop/NetworkManager");
}

QString CNetworkManagerClient::ManagerInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager");
}

QString CNetworkManagerClient::SettingsPath()
{
    return QLatin1String("/org/freedesktop/NetworkManager/Settings");
}

QString CNetworkManagerClient::SettingsInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager.Settings");
}

QString CNetworkManagerClient::ProfileInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager.Settings.Connection");
}

QString CNetworkManagerClient::ActiveConnectionInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager.Connection.Active");
}

QString CNetworkManagerClient::DeviceInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager.Device");
}

QString CNetworkManagerClient::WirelessDeviceInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager.Device.Wireless");
}

QString CNetworkManagerClient::AccessPointInterface()
{
    return QLatin1String("org.freedesktop.NetworkManager.AccessPoint");
}

QString CNetworkManagerClient::PropertiesInterface()
{
    return QLatin1String("org.freedesktop.DBus.Properties");
}

QDBusMessage CNetworkManagerClient::Call(const QString &path, const QString &interface, const QString &method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(ServiceName(), path, interface, method);
    call.setAutoStartService(false);
    return call;
}

NetworkManagerResult CNetworkManagerClient::Probe(int limitMilliseconds)
{
    if (!m_connection.isConnected()) {
        return NetworkManagerResultNoBus;
    }
    QDBusPendingCall call = Send(VersionCall(), limitMilliseconds);
    call.waitForFinished();
    const NetworkManagerResult result = ResultOf(call.reply(), "v");
    Note(result);
    return result;
}

QDBusPendingCall CNetworkManagerClient::Send(const QDBusMessage &call, int limitMilliseconds)
{
    return m_connection.asyncCall(call, limitMilliseconds);
}

void CNetworkManagerClient::Tell(const QDBusMessage &call)
{
    m_connection.send(call);
}

void CNetworkManagerClient::Listen(const QString &path, const QString &interface, const QString &signal,
                                   const QString &firstArgument, QObject *receiver, const char *slot)
{
    const QStringList arguments = firstArgument.isEmpty() ? QStringList() : QStringList(firstArgument);
    m_connection.connect(ServiceName(), path, interface, signal, arguments, QString(), receiver, slot);
}

void CNetworkManagerClient::Note(NetworkManagerResult result)
{
    if (result == NetworkManagerResultNotAnswering && !m_isSilent) {
        m_isSilent = true;
        AskForSign();
    }
}

void CNetworkManagerClient::AskForSign()
{
    m_sign = new QDBusPendingCallWatcher(Send(VersionCall(), signMilliseconds), this);
    connect(m_sign, SIGNAL(finished(QDBusPendingCallWatcher *)), this,
            SLOT(TakeSign(QDBusPendingCallWatcher *)));
}

void CNetworkManagerClient::TakeSign(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    if (!m_isSilent) {
        return;
    }
    const NetworkManagerResult result = ResultOf(watcher->reply(), "v");
    if (result == NetworkManagerResultNotAnswering) {
        AskForSign();
        return;
    }
    m_isSilent = false;
    if (result == NetworkManagerResultSuccess) {
        emit Appeared();
    }
}

void CNetworkManagerClient::TakeOwner()
{
    m_isSilent = false;
    emit Appeared();
}
