#include "NetworkManagerClient.h"

#include <NetworkManagerQt/GenericTypes>
#include <NetworkManagerQt/Setting>

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QEvent>
#include <QStringList>

#include <limits>

namespace
{

// As long as it takes: whoever is held up answers in the end, and who has died is told by the bus.
const int signMilliseconds = std::numeric_limits<int>::max();
const int checkMilliseconds = 4000;

QDBusMessage VersionCall()
{
    QDBusMessage call =
        CNetworkManagerClient::Call(CNetworkManagerClient::ManagerPath(),
                                    CNetworkManagerClient::PropertiesInterface(), QLatin1String("Get"));
    call << CNetworkManagerClient::ManagerInterface() << QLatin1String("Version");
    return call;
}

} // namespace

CNetworkManagerClient::CNetworkManagerClient(QObject *parent)
    : QObject(parent), m_bus(nullptr), m_isSilent(false), m_isSeekingBus(true), m_isLost(false)
{
    qDBusRegisterMetaType<NMVariantMapMap>();
    connect(&m_bus, SIGNAL(Found()), this, SLOT(TakeBus()));
    connect(&m_bus, &CSystemBus::Lost, this, &CNetworkManagerClient::TakeLoss);
    if (m_bus.Connection().isConnected()) {
        TakeBus();
    }
}

CNetworkManagerClient::~CNetworkManagerClient() = default;

QString CNetworkManagerClient::ServiceName()
{
    return QLatin1String(NM_DBUS_SERVICE);
}

QString CNetworkManagerClient::RootPath()
{
    return QLatin1String("/org/freedesktop");
}

QString CNetworkManagerClient::ObjectsInterface()
{
    return QLatin1String("org.freedesktop.DBus.ObjectManager");
}

QString CNetworkManagerClient::ManagerPath()
{
    return QLatin1String(NM_DBUS_PATH);
}

QString CNetworkManagerClient::ManagerInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE);
}

QString CNetworkManagerClient::SettingsPath()
{
    return QLatin1String(NM_DBUS_PATH_SETTINGS);
}

QString CNetworkManagerClient::SettingsInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_SETTINGS);
}

QString CNetworkManagerClient::ProfileInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_SETTINGS_CONNECTION);
}

QString CNetworkManagerClient::ActiveConnectionInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_ACTIVE_CONNECTION);
}

QString CNetworkManagerClient::DeviceInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_DEVICE);
}

QString CNetworkManagerClient::WirelessDeviceInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_DEVICE_WIRELESS);
}

QString CNetworkManagerClient::ModemInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_DEVICE_MODEM);
}

QString CNetworkManagerClient::AccessPointInterface()
{
    return QLatin1String(NM_DBUS_INTERFACE_ACCESS_POINT);
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

QDBusPendingCall CNetworkManagerClient::Send(const QDBusMessage &call, int limitMilliseconds)
{
    // Qt would bring the error of a lost bus only when it is done with greeting the next one.
    if (!m_bus.Connection().isConnected()) {
        return QDBusPendingCall::fromError(
            QDBusError(QDBusError::Disconnected, QLatin1String("there is no connection to the bus")));
    }
    return m_bus.Connection().asyncCall(call, limitMilliseconds);
}

void CNetworkManagerClient::Tell(const QDBusMessage &call)
{
    m_bus.Connection().send(call);
}

void CNetworkManagerClient::Listen(const QString &path, const QString &interface, const QString &signal,
                                   const QString &firstArgument, QObject *receiver, const char *slot)
{
    Subscription subscription;
    subscription.path = path;
    subscription.interface = interface;
    subscription.signal = signal;
    subscription.arguments = firstArgument.isEmpty() ? QStringList() : QStringList(firstArgument);
    subscription.receiver = receiver;
    subscription.slot = slot;
    m_subscriptions.append(subscription);
    Subscribe(subscription);
}

void CNetworkManagerClient::Subscribe(const Subscription &subscription)
{
    // Qt ends the program when the connection is one that has been lost.
    if (subscription.receiver && HasBus()) {
        QDBusConnection(m_bus.Connection())
            .connect(ServiceName(), subscription.path, subscription.interface, subscription.signal,
                     subscription.arguments, QString(), subscription.receiver, subscription.slot.constData());
    }
}

void CNetworkManagerClient::TakeBus()
{
    m_isSilent = false;
    m_isSeekingBus = false;
    m_isLost = false;
    m_owner.reset(
        new QDBusServiceWatcher(ServiceName(), m_bus.Connection(), QDBusServiceWatcher::WatchForOwnerChange));
    connect(m_owner.data(), SIGNAL(serviceOwnerChanged(QString, QString, QString)), this,
            SLOT(TakeOwner(QString, QString, QString)));
    for (int i = 0; i < m_subscriptions.size(); ++i) {
        Subscribe(m_subscriptions.at(i));
    }
    emit Appeared();
    // Whether it answers is found out meanwhile.
    Check();
}

void CNetworkManagerClient::TakeArrived()
{
    if (m_owner) {
        QCoreApplication::sendPostedEvents(m_owner.data(), QEvent::MetaCall);
    }
    if (!HasBus() && !m_isSeekingBus && !m_isLost) {
        m_isLost = true;
        emit Vanished();
    }
}

void CNetworkManagerClient::TakeLoss()
{
    m_isSeekingBus = false;
    TakeArrived();
}

void CNetworkManagerClient::Note(NetworkManagerResult result)
{
    if (result == NetworkManagerResultNotAnswering && !m_isSilent) {
        m_isSilent = true;
        AskForSign();
        emit FellSilent();
    }
}

void CNetworkManagerClient::Check()
{
    if (m_isSilent || m_check) {
        return;
    }
    m_check = new QDBusPendingCallWatcher(Send(VersionCall(), checkMilliseconds), this);
    connect(m_check, SIGNAL(finished(QDBusPendingCallWatcher *)), this,
            SLOT(TakeCheck(QDBusPendingCallWatcher *)));
}

void CNetworkManagerClient::TakeCheck(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    m_check = nullptr;
    Note(ResultOf(watcher->reply(), "v"));
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

void CNetworkManagerClient::TakeOwner(const QString &, const QString &, const QString &now)
{
    m_isSilent = false;
    if (now.isEmpty()) {
        emit Vanished();
    } else {
        emit Appeared();
    }
}
