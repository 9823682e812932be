#include "FakeNetworkManager.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMutexLocker>
#include <QUuid>

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
const char activeInterface[] = "org.freedesktop.NetworkManager.Connection.Active";
const char propertiesInterface[] = "org.freedesktop.DBus.Properties";
const char noSuchObject[] = "org.freedesktop.DBus.Error.UnknownMethod";

NMVariantMapMap SettingsIn(const QDBusMessage &call)
{
    return qdbus_cast<NMVariantMapMap>(call.arguments().at(0).value<QDBusArgument>());
}

const char security[] = "802-11-wireless-security";
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
      m_count(0)
{
    qDBusRegisterMetaType<NMVariantMapMap>();
    qDBusRegisterMetaType<ManagedObjects>();
    qDBusRegisterMetaType<NMStringMap>();
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
    return m_connection.registerService(service);
}

void FakeNetworkManager::Vanish()
{
    m_connection.unregisterService(service);
}

QString FakeNetworkManager::Add(const QString &kind, const QString &interface, const QVariantMap &properties)
{
    const QMutexLocker locker(&m_mutex);
    const QString path = QString("%1/%2/%3").arg(root, kind).arg(++m_count);
    m_objects[path][interface] = properties;
    return path;
}

QString FakeNetworkManager::AddDevice(unsigned int capabilities)
{
    QVariantMap properties;
    properties["WirelessCapabilities"] = capabilities;
    return Add("Devices", wirelessInterface, properties);
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
    return Add("AccessPoint", accessPointInterface, properties);
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
    Signal(settingsPath, settingsInterface, "NewConnection",
           QList<QVariant>() << QVariant::fromValue(QDBusObjectPath(path)));
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
    return path;
}

QString FakeNetworkManager::Connect(const QString &profile, unsigned int state)
{
    QVariantMap properties;
    properties["Connection"] = QVariant::fromValue(QDBusObjectPath(profile));
    properties["State"] = state;
    const QString path = Add("ActiveConnection", activeInterface, properties);
    QVariantMap changed;
    changed["ActiveConnections"] = QVariant::fromValue(QList<QDBusObjectPath>() << QDBusObjectPath(path));
    Signal(root, propertiesInterface, "PropertiesChanged",
           QList<QVariant>() << QString(service) << changed << QStringList());
    return path;
}

void FakeNetworkManager::SetConnectionState(const QString &activeConnection, unsigned int state)
{
    SetProperty(activeConnection, activeInterface, "State", state);
    QVariantMap changed;
    changed["State"] = state;
    Signal(activeConnection, propertiesInterface, "PropertiesChanged",
           QList<QVariant>() << QString(activeInterface) << changed << QStringList());
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
    const QMutexLocker locker(&m_mutex);
    m_objects.remove(path);
    m_settings.remove(path);
}

void FakeNetworkManager::SetProperty(const QString &path, const QString &interface, const QString &property,
                                     const QVariant &value)
{
    const QMutexLocker locker(&m_mutex);
    m_objects[path][interface][property] = value;
}

void FakeNetworkManager::SetSetting(const QString &profile, const QString &section, const QString &key,
                                    const QVariant &value)
{
    const QMutexLocker locker(&m_mutex);
    m_settings[profile][section][key] = value;
}

void FakeNetworkManager::SetChangesByKeyQuestion(qulonglong changes)
{
    const QMutexLocker locker(&m_mutex);
    m_changesByKeyQuestion = changes;
}

void FakeNetworkManager::SetRight(const QString &right, const QString &value)
{
    const QMutexLocker locker(&m_mutex);
    m_rights[right] = value;
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
    const QString keys[] = {QString(), method, method + message.path()};
    for (const QString &key : keys) {
        if (m_misbehaviour.contains(key)) {
            const Misbehaviour &misbehaviour = m_misbehaviour[key];
            if (misbehaviour.isSilent) {
                return true;
            }
            return connection.send(misbehaviour.error.isEmpty()
                                       ? message.createReply(misbehaviour.arguments)
                                       : message.createErrorReply(misbehaviour.error, "it can't be done"));
        }
    }
    const QDBusMessage answer = Answer(message);
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
    return AnswerOfProfile(call);
}

QDBusMessage FakeNetworkManager::AnswerOfProfile(const QDBusMessage &call)
{
    const QString path = call.path();
    if (path == m_leaving) {
        m_objects.remove(path);
        m_settings.remove(path);
    }
    if (m_settings.contains(path) && call.member() == "GetSettings") {
        return call.createReply(QVariant::fromValue(WithoutKeys(m_settings.value(path))));
    }
    const QVariant version = m_objects.value(path).value(profileInterface).value("VersionId");
    if (m_settings.contains(path) && call.member() == "GetSecrets") {
        if (version.isValid()) {
            m_objects[path][profileInterface]["VersionId"] = version.toULongLong() + m_changesByKeyQuestion;
        }
        return call.createReply(QVariant::fromValue(KeysOf(m_settings.value(path))));
    }
    if (m_settings.contains(path) && call.member() == "Update2") {
        m_conditions = qdbus_cast<QVariantMap>(call.arguments().at(2).value<QDBusArgument>());
        if (m_conditions.value("version-id", version) != version) {
            return call.createErrorReply("org.freedesktop.NetworkManager.Settings.VersionIdMismatch",
                                         "changed");
        }
        m_settings[path] = SettingsIn(call);
        return call.createReply(QVariantMap());
    }
    return call.createErrorReply(noSuchObject, "there is nothing of that path");
}
