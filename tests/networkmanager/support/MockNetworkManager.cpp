#include "MockNetworkManager.h"

#include "PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace
{

const char service[] = "org.freedesktop.NetworkManager";
const char managerPath[] = "/org/freedesktop/NetworkManager";
const char managerInterface[] = "org.freedesktop.NetworkManager";
const char settingsPath[] = "/org/freedesktop/NetworkManager/Settings";
const char settingsInterface[] = "org.freedesktop.NetworkManager.Settings";
const char profileInterface[] = "org.freedesktop.NetworkManager.Settings.Connection";
const char wirelessInterface[] = "org.freedesktop.NetworkManager.Device.Wireless";
const char mockInterface[] = "org.freedesktop.DBus.Mock";

const int disconnected = 30;
const unsigned int infrastructure = 2;
const unsigned int channel6 = 2437;
const unsigned int bitRate = 54000;

/** The one thing that it answers, if any; there is no going on without an answer. */
QVariant Ask(const QString &path, const QString &interface, const QString &method,
             const QList<QVariant> &arguments = QList<QVariant>())
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    const QDBusMessage reply = PrivateBus::Connection().call(call);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        qFatal("%s: %s", qPrintable(method), qPrintable(reply.errorMessage()));
    }
    PrivateBus::WaitForArrivals(PrivateBus::PluginConnection());
    return reply.arguments().value(0);
}

QVariant Control(const QString &method, const QList<QVariant> &arguments)
{
    return Ask(managerPath, mockInterface, method, arguments);
}

/** @param code  what the method does, in Python. */
void AddMethod(const QString &path, const QString &interface, const QString &method, const QString &takes,
               const QString &answers, const QString &code)
{
    Ask(path, mockInterface, "AddMethod",
        QList<QVariant>() << interface << method << takes << answers << code);
}

} // namespace

MockNetworkManager::MockNetworkManager(PrivateBus *bus) : m_bus(bus), m_count(0)
{
    qDBusRegisterMetaType<NMVariantMapMap>();
}

MockNetworkManager::~MockNetworkManager()
{
    m_program.End();
    PrivateBus::WaitForServiceToGo(service);
}

bool MockNetworkManager::Start()
{
    const QString python = ChildProcess::Find("python3");
    QProcess import;
    import.start(python, QStringList() << "-c"
                                       << "import dbusmock");
    if (python.isEmpty() || !import.waitForFinished() || import.exitCode() != 0) {
        m_whyNot = "python3-dbusmock is not installed";
        return false;
    }
    if (!m_program.Begin(python,
                         QStringList() << "-m"
                                       << "dbusmock"
                                       << "--template"
                                       << "networkmanager",
                         m_bus->Path("mock.log")) ||
        !PrivateBus::WaitForService(service)) {
        m_whyNot = "python3-dbusmock's NetworkManager does not come up";
        return false;
    }
    // As a desktop session has it.
    AddMethod(managerPath, managerInterface, "GetPermissions", "", "a{ss}",
              "ret = {'org.freedesktop.NetworkManager.network-control': 'yes'}");
    return true;
}

QString MockNetworkManager::AddWifiDevice(const QString &name)
{
    const QString path =
        Control("AddWiFiDevice", QList<QVariant>() << name << name << disconnected).toString();
    Ask(path, mockInterface, "AddProperty",
        QList<QVariant>() << wirelessInterface << "LastScan"
                          << QVariant::fromValue(QDBusVariant(qlonglong(-1))));
    return path;
}

QString MockNetworkManager::AddModem(const QString &name)
{
    const QString path = QString("%1/Devices/%2").arg(managerPath, name);
    AddMethod(
        managerPath, mockInterface, "AddModem", "ss", "",
        "self.AddObject(args[0], 'org.freedesktop.NetworkManager.Device.Modem',\n"
        "    {'ModemCapabilities': dbus.UInt32(8), 'CurrentCapabilities': dbus.UInt32(4)}, [])\n"
        "objects[args[0]].AddProperties('org.freedesktop.NetworkManager.Device',\n"
        "    {'DeviceType': dbus.UInt32(8), 'State': dbus.UInt32(30), 'Interface': args[1],\n"
        "     'ActiveConnection': dbus.ObjectPath('/'), 'StateReason': (dbus.UInt32(30), dbus.UInt32(0)),\n"
        "     'AvailableConnections': dbus.Array([], signature='o')})\n"
        "self.object_manager_emit_added(args[0])\n"
        "self.EmitSignal('org.freedesktop.NetworkManager', 'DeviceAdded', 'o', [args[0]])\n");
    Control("AddModem", QList<QVariant>() << path << name);
    return path;
}

QString MockNetworkManager::AddAccessPoint(const QString &device, const QString &ssid, int strength,
                                           unsigned int security)
{
    ++m_count;
    return Control("AddAccessPoint", QList<QVariant>()
                                         << device << QString::number(m_count) << ssid << "02:00:00:00:00:01"
                                         << infrastructure << channel6 << bitRate
                                         << QVariant::fromValue(static_cast<uchar>(strength)) << security)
        .toString();
}

QString MockNetworkManager::AddProfile(const NMVariantMapMap &settings)
{
    return Ask(settingsPath, settingsInterface, "AddConnection",
               QList<QVariant>() << QVariant::fromValue(settings))
        .value<QDBusObjectPath>()
        .path();
}

QString MockNetworkManager::AddActiveConnection(const QString &device, const QString &profile,
                                                unsigned int state)
{
    ++m_count;
    return Control("AddActiveConnection", QList<QVariant>() << QStringList(device) << profile << "/"
                                                            << QString::number(m_count) << state)
        .toString();
}

void MockNetworkManager::RemoveActiveConnection(const QString &device, const QString &activeConnection)
{
    Control("RemoveActiveConnection", QList<QVariant>() << device << activeConnection);
}

void MockNetworkManager::AddManagerProperty(const QString &property, const QVariant &value)
{
    Control("AddProperty", QList<QVariant>()
                               << managerInterface << property << QVariant::fromValue(QDBusVariant(value)));
}

void MockNetworkManager::SetManagerProperty(const QString &property, const QVariant &value)
{
    SetProperty(managerPath, managerInterface, property, value);
}

void MockNetworkManager::RemoveAccessPoint(const QString &device, const QString &accessPoint)
{
    Control("RemoveAccessPoint", QList<QVariant>() << device << accessPoint);
}

void MockNetworkManager::DeleteProfile(const QString &profile)
{
    Ask(profile, profileInterface, "Delete");
}

void MockNetworkManager::SetProperty(const QString &path, const QString &interface, const QString &property,
                                     const QVariant &value)
{
    Ask(path, "org.freedesktop.DBus.Properties", "Set",
        QList<QVariant>() << interface << property << QVariant::fromValue(QDBusVariant(value)));
}

void MockNetworkManager::AddUpdate2(const QString &profile)
{
    AddMethod(profile, profileInterface, "Update2", "a{sa{sv}}ua{sv}", "a{sv}",
              "self.settings = args[0]\n"
              "self.EmitSignal('org.freedesktop.NetworkManager.Settings.Connection', 'Updated', '', [])\n"
              "ret = {}\n");
}

void MockNetworkManager::DeleteAfterListing(const QString &profile)
{
    AddMethod("/org/freedesktop", "org.freedesktop.DBus.ObjectManager", "GetManagedObjects", "",
              "a{oa{sa{sv}}}",
              QString("ret = {dbus.ObjectPath(k): objects[k].props for k in objects.keys()\n"
                      "    if k.startswith('/org/freedesktop/')}\n"
                      "if '%1' in objects:\n"
                      "    objects['%1'].ConnectionDelete(objects['%1'])\n")
                  .arg(profile));
}

NMVariantMapMap MockNetworkManager::SettingsOf(const QString &profile)
{
    return qdbus_cast<NMVariantMapMap>(Ask(profile, profileInterface, "GetSettings").value<QDBusArgument>());
}

QStringList MockNetworkManager::ProfilePaths()
{
    const QList<QDBusObjectPath> paths =
        qdbus_cast<QList<QDBusObjectPath>>(Ask(settingsPath, settingsInterface, "ListConnections"));
    QStringList texts;
    for (int i = 0; i < paths.size(); ++i) {
        texts.append(paths.at(i).path());
    }
    return texts;
}

int MockNetworkManager::CallCount(const QString &path, const QString &method)
{
    const QDBusArgument calls =
        Ask(path, mockInterface, "GetMethodCalls", QList<QVariant>() << method).value<QDBusArgument>();
    int count = 0;
    calls.beginArray();
    while (!calls.atEnd()) {
        calls.asVariant();
        ++count;
    }
    calls.endArray();
    return count;
}
