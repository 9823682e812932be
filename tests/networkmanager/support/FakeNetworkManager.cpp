#include "FakeNetworkManager.h"

#include "PrivateBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QEvent>
#include <QMutexLocker>
#include <QUuid>

#include <limits>

namespace
{

typedef QMap<QDBusObjectPath, NMVariantMapMap> ManagedObjects;

const char service[] = "org.freedesktop.NetworkManager";
const char root[] = "/org/freedesktop/NetworkManager";
const char settingsPath[] = "/org/freedesktop/NetworkManager/Settings";
const char settingsInterface[] = "org.freedesktop.NetworkManager.Settings";
const char profileInterface[] = "org.freedesktop.NetworkManager.Settings.Connection";
const char wirelessInterface[] = "org.freedesktop.NetworkManager.Device.Wireless";
const char accessPointInterface[] = "org.freedesktop.NetworkManager.AccessPoint";
const char managerInterface[] = "org.freedesktop.NetworkManager";
const char deviceInterface[] = "org.freedesktop.NetworkManager.Device";
const char modemInterface[] = "org.freedesktop.NetworkManager.Device.Modem";
const char objectsInterface[] = "org.freedesktop.DBus.ObjectManager";
const char activeInterface[] = "org.freedesktop.NetworkManager.Connection.Active";
const char propertiesInterface[] = "org.freedesktop.DBus.Properties";
const char noSuchObject[] = "org.freedesktop.DBus.Error.UnknownMethod";

NMVariantMapMap SettingsIn(const QDBusMessage &call)
{
    return qdbus_cast<NMVariantMapMap>(call.arguments().at(0).value<QDBusArgument>());
}

const int everyCall = std::numeric_limits<int>::max();
const char security[] = "802-11-wireless-security";
const unsigned int disconnected = 30;
const unsigned int failed = 120;
const unsigned int activating = 1;
const unsigned int deactivated = 4;
const unsigned int volatileFlag = 0x4;

QVariant PathValue(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path));
}

QVariant PathList(const QStringList &paths)
{
    QList<QDBusObjectPath> list;
    for (const QString &path : paths) {
        list.append(QDBusObjectPath(path));
    }
    return QVariant::fromValue(list);
}

const char *const keys[] = {"psk", "wep-key0", "wep-key1", "wep-key2", "wep-key3"};

/** NetworkManager gives keys to nobody who only asks for the settings. */
NMVariantMapMap WithoutKeys(NMVariantMapMap settings)
{
    if (settings.contains(security)) {
        for (const char *key : keys) {
            settings[security].remove(key);
        }
    }
    return settings;
}

NMVariantMapMap KeysOf(const NMVariantMapMap &settings)
{
    NMVariantMapMap secrets;
    for (const char *key : keys) {
        if (settings.value(security).contains(key)) {
            secrets[security][key] = settings.value(security).value(key);
        }
    }
    return secrets;
}

} // namespace

FakeNetworkManager::FakeNetworkManager()
    : m_connection(QDBusConnection::connectToBus(QDBusConnection::SystemBus, "FakeNetworkManager")),
      m_mostCalls(everyCall), m_count(0)
{
    qDBusRegisterMetaType<NMVariantMapMap>();
    qDBusRegisterMetaType<ManagedObjects>();
    qDBusRegisterMetaType<NMStringMap>();
    m_objects[root][managerInterface]["PrimaryConnection"] = PathValue("/");
    m_objects[root][managerInterface]["WirelessEnabled"] = true;
    m_connection.registerVirtualObject("/org/freedesktop", this, QDBusConnection::SubPath);
    moveToThread(&m_thread);
    m_thread.start();
}

FakeNetworkManager::~FakeNetworkManager()
{
    Vanish();
    m_connection.unregisterObject("/org/freedesktop", QDBusConnection::UnregisterTree);
    m_thread.quit();
    m_thread.wait();
    QDBusConnection::disconnectFromBus("FakeNetworkManager");
}

bool FakeNetworkManager::Appear()
{
    const bool isThere = m_connection.registerService(service);
    Settle();
    return isThere;
}

void FakeNetworkManager::Vanish()
{
    m_connection.unregisterService(service);
    Settle();
}

QString FakeNetworkManager::Add(const QString &kind, const QString &interface, const QVariantMap &properties)
{
    const QMutexLocker locker(&m_mutex);
    const QString path = QString("%1/%2/%3").arg(root, kind).arg(++m_count);
    m_objects[path][interface] = properties;
    if (kind == "Devices") {
        QVariantMap &device = m_objects[path][deviceInterface];
        device["Interface"] = QString("device%1").arg(m_count);
        device["State"] = disconnected;
        device["ActiveConnection"] = PathValue("/");
        m_lastDevice = path;
    }
    TellOfObject(path);
    return path;
}

void FakeNetworkManager::TellOfObject(const QString &path)
{
    Signal("/org/freedesktop", objectsInterface, "InterfacesAdded",
           QList<QVariant>() << PathValue(path) << QVariant::fromValue(m_objects.value(path)));
}

void FakeNetworkManager::TakeAway(const QString &path)
{
    const QStringList interfaces = m_objects.take(path).keys();
    m_settings.remove(path);
    Signal("/org/freedesktop", objectsInterface, "InterfacesRemoved",
           QList<QVariant>() << PathValue(path) << interfaces);
}

void FakeNetworkManager::Put(const QString &path, const QString &interface, const QString &property,
                             const QVariant &value)
{
    m_objects[path][interface][property] = value;
    QVariantMap changed;
    changed[property] = value;
    Signal(path, propertiesInterface, "PropertiesChanged",
           QList<QVariant>() << interface << changed << QStringList());
}

void FakeNetworkManager::Settle()
{
    const QDBusConnection plugin = PrivateBus::PluginConnection();
    if (!plugin.isConnected() || QThread::currentThread() == &m_thread) {
        return;
    }
    // A signal has the plug-in ask, and the answer is the end of it.
    for (int i = 0; i < 3; ++i) {
        PrivateBus::WaitForArrivals(plugin);
        PrivateBus::WaitForArrivals(m_connection);
        QMetaObject::invokeMethod(this, "Rest", Qt::BlockingQueuedConnection);
        PrivateBus::WaitForArrivals(m_connection);
        PrivateBus::WaitForArrivals(plugin);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
}

QString FakeNetworkManager::AddDevice(unsigned int capabilities)
{
    QVariantMap properties;
    properties["WirelessCapabilities"] = capabilities;
    properties["AccessPoints"] = PathList(QStringList());
    properties["ActiveAccessPoint"] = PathValue("/");
    const QString path = Add("Devices", wirelessInterface, properties);
    Settle();
    return path;
}

QString FakeNetworkManager::AddModem()
{
    QVariantMap properties;
    properties["ModemCapabilities"] = 0xffffU;
    const QString path = Add("Devices", modemInterface, properties);
    Settle();
    return path;
}

QString FakeNetworkManager::AddAccessPoint(const QByteArray &ssid, int strength, unsigned int flags,
                                           unsigned int wpaFlags, unsigned int rsnFlags)
{
    QVariantMap properties;
    properties["Ssid"] = ssid;
    properties["Strength"] = QVariant::fromValue(static_cast<uchar>(strength));
    properties["Frequency"] = 2437U;
    properties["Flags"] = flags;
    properties["WpaFlags"] = wpaFlags;
    properties["RsnFlags"] = rsnFlags;
    properties["Mode"] = 2U;
    const QString path = Add("AccessPoint", accessPointInterface, properties);
    {
        const QMutexLocker locker(&m_mutex);
        if (m_objects.contains(m_lastDevice)) {
            m_points[m_lastDevice].append(path);
            Put(m_lastDevice, wirelessInterface, "AccessPoints", PathList(m_points.value(m_lastDevice)));
        }
    }
    Settle();
    return path;
}

NMVariantMapMap FakeNetworkManager::Settings(const QString &name, const QString &type)
{
    NMVariantMapMap settings;
    settings["connection"]["id"] = name;
    settings["connection"]["type"] = type;
    settings["connection"]["uuid"] = QUuid::createUuid().toString().mid(1, 36);
    if (type == "802-11-wireless") {
        settings[type]["ssid"] = name.toUtf8();
        settings[type]["mode"] = "infrastructure";
    }
    return settings;
}

QString FakeNetworkManager::AddProfile(const QString &name, const QString &type)
{
    return AddProfile(Settings(name, type));
}

QString FakeNetworkManager::AddProfile(const NMVariantMapMap &settings)
{
    QString path;
    {
        const QMutexLocker locker(&m_mutex);
        path = Store(settings);
    }
    Settle();
    return path;
}

QString FakeNetworkManager::Store(const NMVariantMapMap &settings)
{
    const QString path = QString("%1/%2").arg(settingsPath).arg(++m_count);
    QVariantMap properties;
    properties["Unsaved"] = false;
    properties["Flags"] = 0U;
    properties["Filename"] = "/etc/NetworkManager/system-connections/a.nmconnection";
    m_objects[path][profileInterface] = properties;
    m_settings[path] = settings;
    TellOfObject(path);
    Signal(settingsPath, settingsInterface, "NewConnection", QList<QVariant>() << PathValue(path));
    return path;
}

QString FakeNetworkManager::Connect(const QString &profile, unsigned int state, const QString &device)
{
    QString path;
    {
        const QMutexLocker locker(&m_mutex);
        path = MakeConnection(profile, state, device);
    }
    Settle();
    return path;
}

QString FakeNetworkManager::MakeConnection(const QString &profile, unsigned int state, const QString &device)
{
    const QVariantMap connection = m_settings.value(profile).value("connection");
    QVariantMap properties;
    properties["Connection"] = PathValue(profile);
    properties["State"] = state;
    properties["Id"] = connection.value("id");
    properties["Type"] = connection.value("type");
    properties["Devices"] = PathList(device.isEmpty() ? QStringList() : QStringList(device));
    const QString path = QString("%1/ActiveConnection/%2").arg(root).arg(++m_count);
    m_objects[path][activeInterface] = properties;
    TellOfObject(path);
    if (!device.isEmpty()) {
        Put(device, deviceInterface, "ActiveConnection", PathValue(path));
        m_applied[device] = m_settings.value(profile);
        ++m_appliedVersions[device];
    }
    Put(root, managerInterface, "ActiveConnections", PathList(QStringList(path)));
    return path;
}

void FakeNetworkManager::SetConnectionState(const QString &activeConnection, unsigned int state)
{
    {
        const QMutexLocker locker(&m_mutex);
        Put(activeConnection, activeInterface, "State", state);
        if (state == deactivated) {
            EndConnection(activeConnection);
        }
    }
    Settle();
}

void FakeNetworkManager::EndConnection(const QString &activeConnection)
{
    const QString profile =
        m_objects[activeConnection][activeInterface]["Connection"].value<QDBusObjectPath>().path();
    TakeAway(activeConnection);
    if (m_objects.value(profile).value(profileInterface).value("Flags").toUInt() == volatileFlag) {
        TakeAway(profile);
    }
}

void FakeNetworkManager::SetDeviceState(const QString &device, unsigned int state, unsigned int reason)
{
    {
        const QMutexLocker locker(&m_mutex);
        const QVariant before = m_objects[device][deviceInterface]["State"];
        Signal(device, deviceInterface, "StateChanged",
               QList<QVariant>() << state << before.toUInt() << reason);
        Put(device, deviceInterface, "State", state);
    }
    Settle();
}

void FakeNetworkManager::SetApplied(const QString &device, const QString &section, const QString &key,
                                    const QVariant &value)
{
    const QMutexLocker locker(&m_mutex);
    m_applied[device][section][key] = value;
    ++m_appliedVersions[device];
}

NMVariantMapMap FakeNetworkManager::AppliedTo(const QString &device)
{
    const QMutexLocker locker(&m_mutex);
    return m_applied.value(device);
}

QList<int> FakeNetworkManager::MetricsOf(const QString &device)
{
    const NMVariantMapMap settings = AppliedTo(device);
    QList<int> metrics;
    for (const char *section : {"ipv4", "ipv6"}) {
        metrics.append(settings.value(section).value("route-metric", -1).toInt());
    }
    return metrics;
}

void FakeNetworkManager::Fail(const QString &activeConnection, unsigned int reason)
{
    QString device;
    {
        const QMutexLocker locker(&m_mutex);
        const QVariantMap properties = m_objects.value(activeConnection).value(activeInterface);
        device = properties.value("Devices").value<QList<QDBusObjectPath>>().value(0).path();
    }
    SetDeviceState(device, failed, reason);
    SetConnectionState(activeConnection, deactivated);
    {
        const QMutexLocker locker(&m_mutex);
        Put(device, deviceInterface, "ActiveConnection", PathValue("/"));
    }
    SetDeviceState(device, disconnected);
}

QStringList FakeNetworkManager::ConnectionPaths()
{
    const QMutexLocker locker(&m_mutex);
    QStringList paths;
    for (QMap<QString, NMVariantMapMap>::const_iterator i = m_objects.constBegin(); i != m_objects.constEnd();
         ++i) {
        if (i.value().contains(activeInterface)) {
            paths.append(i.key());
        }
    }
    return paths;
}

void FakeNetworkManager::SetManagerProperty(const QString &property, const QVariant &value)
{
    SetProperty(root, managerInterface, property, value);
}

void FakeNetworkManager::Signal(const QString &path, const QString &interface, const QString &name,
                                const QList<QVariant> &arguments)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, interface, name);
    signal.setArguments(arguments);
    m_connection.send(signal);
}

void FakeNetworkManager::Remove(const QString &path)
{
    {
        const QMutexLocker locker(&m_mutex);
        TakeAway(path);
    }
    Settle();
}

void FakeNetworkManager::SetProperty(const QString &path, const QString &interface, const QString &property,
                                     const QVariant &value)
{
    {
        const QMutexLocker locker(&m_mutex);
        Put(path, interface, property, value);
    }
    Settle();
}

void FakeNetworkManager::SetSetting(const QString &profile, const QString &section, const QString &key,
                                    const QVariant &value)
{
    {
        const QMutexLocker locker(&m_mutex);
        m_settings[profile][section][key] = value;
        TellOfChange(profile);
    }
    Settle();
}

QVariant FakeNetworkManager::VersionOf(const QString &profile) const
{
    return m_objects.value(profile).value(profileInterface).value("VersionId");
}

void FakeNetworkManager::TellOfChange(const QString &profile)
{
    const QVariant version = VersionOf(profile);
    if (version.isValid()) {
        Put(profile, profileInterface, "VersionId", version.toULongLong() + 1);
    }
    Signal(profile, profileInterface, "Updated", QList<QVariant>());
}

void FakeNetworkManager::SetChangesByKeyQuestion(qulonglong changes)
{
    const QMutexLocker locker(&m_mutex);
    m_changesByKeyQuestion = changes;
}

void FakeNetworkManager::SetRight(const QString &right, const QString &value)
{
    {
        const QMutexLocker locker(&m_mutex);
        m_rights[right] = value;
        Signal(root, managerInterface, "CheckPermissions", QList<QVariant>());
    }
    Settle();
}

NMVariantMapMap FakeNetworkManager::SettingsOf(const QString &profile)
{
    const QMutexLocker locker(&m_mutex);
    return m_settings.value(profile);
}

QStringList FakeNetworkManager::ProfilePaths()
{
    const QMutexLocker locker(&m_mutex);
    return m_settings.keys();
}

QVariantMap FakeNetworkManager::ConditionsOfTheLastChange()
{
    const QMutexLocker locker(&m_mutex);
    return m_conditions;
}

QVariantMap FakeNetworkManager::OptionsOfTheLastNewConnection()
{
    const QMutexLocker locker(&m_mutex);
    return m_options;
}

int FakeNetworkManager::PriorityOf(const QString &profile)
{
    return SettingsOf(profile).value("connection").value("autoconnect-priority").toInt();
}

void FakeNetworkManager::SetAnswer(const QString &method, const QString &path, bool isSilent,
                                   const QString &error, const QList<QVariant> &arguments)
{
    Misbehaviour misbehaviour;
    misbehaviour.isSilent = isSilent;
    misbehaviour.error = error;
    misbehaviour.arguments = arguments;
    const QMutexLocker locker(&m_mutex);
    m_misbehaviour[method + path] = misbehaviour;
}

void FakeNetworkManager::AnswerWith(const QString &method, const QList<QVariant> &arguments,
                                    const QString &path)
{
    SetAnswer(method, path, false, QString(), arguments);
}

void FakeNetworkManager::AnswerWithError(const QString &method, const QString &error, const QString &path)
{
    SetAnswer(method, path, false, error, QList<QVariant>());
}

void FakeNetworkManager::DoNotAnswer(const QString &method, const QString &path)
{
    SetAnswer(method, path, true, QString(), QList<QVariant>());
}

void FakeNetworkManager::DoNotAnswerAnything()
{
    DoNotAnswer(QString());
}

void FakeNetworkManager::Behave()
{
    const QMutexLocker locker(&m_mutex);
    m_misbehaviour.clear();
    m_mostCalls = everyCall;
    for (const QDBusMessage &call : std::as_const(m_unanswered)) {
        m_connection.send(Answer(call));
    }
    m_unanswered.clear();
}

void FakeNetworkManager::TakeOnly(int calls, bool isLastAnswered)
{
    const QMutexLocker locker(&m_mutex);
    m_calls.clear();
    m_mostCalls = calls;
    m_isLastAnswered = isLastAnswered;
}

void FakeNetworkManager::Hold(const QString &method)
{
    const QMutexLocker locker(&m_mutex);
    m_held = method;
}

void FakeNetworkManager::Release()
{
    const QMutexLocker locker(&m_mutex);
    for (int i = 0; i < m_heldAnswers.size(); ++i) {
        m_connection.send(m_heldAnswers.at(i));
    }
    m_heldAnswers.clear();
}

void FakeNetworkManager::RemoveWhenAsked(const QString &profile)
{
    const QMutexLocker locker(&m_mutex);
    m_leaving = profile;
}

int FakeNetworkManager::CallCount(const QString &method)
{
    const QMutexLocker locker(&m_mutex);
    return m_calls.count(method);
}

int FakeNetworkManager::CallCount()
{
    const QMutexLocker locker(&m_mutex);
    return static_cast<int>(m_calls.size());
}

void FakeNetworkManager::ForgetCalls()
{
    const QMutexLocker locker(&m_mutex);
    m_calls.clear();
}

bool FakeNetworkManager::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const QMutexLocker locker(&m_mutex);
    const QString method = message.member();
    m_calls.append(method);
    if (m_calls.size() > m_mostCalls) {
        return true;
    }
    const QString names[] = {QString(), method, method + message.path()};
    for (const QString &key : names) {
        if (m_misbehaviour.contains(key)) {
            const Misbehaviour &misbehaviour = m_misbehaviour[key];
            if (misbehaviour.isSilent) {
                m_unanswered.append(message);
                return true;
            }
            return connection.send(misbehaviour.error.isEmpty()
                                       ? message.createReply(misbehaviour.arguments)
                                       : message.createErrorReply(misbehaviour.error, "it can't be done"));
        }
    }
    const QDBusMessage answer = Answer(message);
    if (m_calls.size() == m_mostCalls && !m_isLastAnswered) {
        return true;
    }
    if (method == m_held) {
        m_heldAnswers.append(answer);
        return true;
    }
    return connection.send(answer);
}

QDBusMessage FakeNetworkManager::Answer(const QDBusMessage &call)
{
    const QString method = call.member();
    if (method == "Get") {
        return call.createReply(QVariant::fromValue(QDBusVariant(QString("1.42.4"))));
    }
    if (method == "GetPermissions") {
        return call.createReply(QVariant::fromValue(m_rights));
    }
    if (method == "GetManagedObjects") {
        ManagedObjects objects;
        for (QMap<QString, NMVariantMapMap>::const_iterator i = m_objects.constBegin();
             i != m_objects.constEnd(); ++i) {
            objects.insert(QDBusObjectPath(i.key()), i.value());
        }
        return call.createReply(QVariant::fromValue(objects));
    }
    if (method == "AddConnection") {
        return call.createReply(QVariant::fromValue(QDBusObjectPath(Store(SettingsIn(call)))));
    }
    if (method == "RequestScan" && m_objects.contains(call.path())) {
        return call.createReply();
    }
    if (m_applied.contains(call.path())) {
        return AnswerOfDevice(call);
    }
    return call.path() == root ? AnswerOfManager(call) : AnswerOfProfile(call);
}

QDBusMessage FakeNetworkManager::AnswerOfDevice(const QDBusMessage &call)
{
    const QString device = call.path();
    if (call.member() == "GetAppliedConnection") {
        return call.createReply(QList<QVariant>() << QVariant::fromValue(WithoutKeys(m_applied.value(device)))
                                                  << m_appliedVersions.value(device));
    }
    if (call.member() == "Reapply") {
        if (call.arguments().at(1).toULongLong() != m_appliedVersions.value(device)) {
            return call.createErrorReply("org.freedesktop.NetworkManager.Device.VersionIdMismatch",
                                         "changed");
        }
        m_applied[device] = SettingsIn(call);
        ++m_appliedVersions[device];
        return call.createReply();
    }
    return call.createErrorReply(noSuchObject, "there is no such method");
}

QDBusMessage FakeNetworkManager::AnswerOfManager(const QDBusMessage &call)
{
    const QString method = call.member();
    const QList<QVariant> arguments = call.arguments();
    if (method == "ActivateConnection") {
        const QString profile = arguments.at(0).value<QDBusObjectPath>().path();
        if (!m_settings.contains(profile)) {
            return call.createErrorReply("org.freedesktop.NetworkManager.UnknownConnection", "there is none");
        }
        const QString device = arguments.at(1).value<QDBusObjectPath>().path();
        return call.createReply(
            PathValue(MakeConnection(profile, activating, device == "/" ? m_lastDevice : device)));
    }
    if (method == "AddAndActivateConnection2") {
        m_options = qdbus_cast<QVariantMap>(arguments.at(3).value<QDBusArgument>());
        const QString profile = Store(SettingsIn(call));
        Put(profile, profileInterface, "Flags", m_options.value("persist") == "volatile" ? volatileFlag : 0U);
        const QString device = arguments.at(1).value<QDBusObjectPath>().path();
        const QString connection = MakeConnection(profile, activating, device);
        return call.createReply(QList<QVariant>()
                                << PathValue(profile) << PathValue(connection) << QVariantMap());
    }
    if (method == "DeactivateConnection") {
        const QString connection = arguments.at(0).value<QDBusObjectPath>().path();
        if (!m_objects.contains(connection)) {
            return call.createErrorReply("org.freedesktop.NetworkManager.ConnectionNotActive",
                                         "there is none");
        }
        Put(connection, activeInterface, "State", deactivated);
        EndConnection(connection);
        return call.createReply();
    }
    return call.createErrorReply(noSuchObject, "there is no such method");
}

QDBusMessage FakeNetworkManager::AnswerOfProfile(const QDBusMessage &call)
{
    const QString path = call.path();
    if (path == m_leaving && m_objects.contains(path)) {
        TakeAway(path);
    }
    if (m_settings.contains(path) && call.member() == "GetSettings") {
        return call.createReply(QVariant::fromValue(WithoutKeys(m_settings.value(path))));
    }
    if (m_settings.contains(path) && call.member() == "Delete") {
        TakeAway(path);
        return call.createReply();
    }
    const QVariant version = VersionOf(path);
    if (m_settings.contains(path) && call.member() == "GetSecrets") {
        if (version.isValid()) {
            Put(path, profileInterface, "VersionId", version.toULongLong() + m_changesByKeyQuestion);
        }
        return call.createReply(QVariant::fromValue(KeysOf(m_settings.value(path))));
    }
    if (m_settings.contains(path) && call.member() == "Update2") {
        m_conditions = qdbus_cast<QVariantMap>(call.arguments().at(2).value<QDBusArgument>());
        if (m_conditions.value("version-id", version) != version) {
            return call.createErrorReply("org.freedesktop.NetworkManager.Settings.VersionIdMismatch",
                                         "changed");
        }
        const unsigned int toDisk = 0x1;
        if (!SettingsIn(call).isEmpty()) {
            m_settings[path] = SettingsIn(call);
        }
        if (call.arguments().at(1).toUInt() == toDisk) {
            Put(path, profileInterface, "Flags", 0U);
        }
        TellOfChange(path);
        return call.createReply(QVariantMap());
    }
    return call.createErrorReply(noSuchObject, "there is nothing of that path");
}
