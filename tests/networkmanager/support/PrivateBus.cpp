#include "PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QLocalSocket>
#include <QtTest>

namespace
{

const int steps = 500;
const int stepMilliseconds = 20;

bool WaitUntilRegistered(const QString &name, bool isRegistered)
{
    for (int i = 0; i < steps; ++i) {
        if (PrivateBus::Connection().interface()->isServiceRegistered(name) == isRegistered) {
            return true;
        }
        QTest::qSleep(stepMilliseconds);
    }
    return false;
}

/** The socket is there a moment before it is listened to. */
bool WaitUntilListening(const QString &path)
{
    for (int i = 0; i < steps; ++i) {
        QLocalSocket socket;
        socket.connectToServer(path);
        if (socket.waitForConnected(stepMilliseconds)) {
            return true;
        }
        QTest::qSleep(stepMilliseconds);
    }
    return false;
}

} // namespace

PrivateBus::PrivateBus()
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", QFile::encodeName("unix:path=" + Path("bus")));
}

bool PrivateBus::Start()
{
    const QString program = ChildProcess::Find("dbus-daemon");
    if (program.isEmpty()) {
        m_whyNot = "dbus-daemon is not installed";
        return false;
    }
    m_directory.Write("bus.conf", "<busconfig>\n"
                                  "<type>system</type>\n"
                                  "<listen>unix:path=" +
                                      QFile::encodeName(Path("bus")) +
                                      "</listen>\n"
                                      "<auth>EXTERNAL</auth>\n"
                                      "<policy context=\"default\">\n"
                                      "<allow user=\"*\"/><allow own=\"*\"/>\n"
                                      "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/>\n"
                                      "</policy>\n"
                                      "</busconfig>\n");
    // Anybody may use the bus: some tests do so as another user.
    QFile::setPermissions(Path("."), QFile::Permissions(0x7755));
    QFile::remove(Path("bus"));
    if (!m_daemon.Begin(program,
                        QStringList() << "--config-file=" + Path("bus.conf") << "--nofork"
                                      << "--nopidfile",
                        Path("bus.log"))) {
        m_whyNot = "dbus-daemon can't be started";
        return false;
    }
    if (!WaitUntilListening(Path("bus"))) {
        m_whyNot = "dbus-daemon does not come up";
        return false;
    }
    return true;
}

void PrivateBus::WaitForArrivals(const QDBusConnection &connection)
{
    const int patience = 1000;
    if (connection.isConnected()) {
        connection.call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                       "org.freedesktop.DBus", "GetId"),
                        QDBus::Block, patience);
    }
}

bool PrivateBus::WaitForService(const QString &name)
{
    return WaitUntilRegistered(name, true);
}

bool PrivateBus::WaitForServiceToGo(const QString &name)
{
    return WaitUntilRegistered(name, false);
}
