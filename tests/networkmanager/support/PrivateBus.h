#ifndef PRIVATEBUS_H
#define PRIVATEBUS_H

#include "ChildProcess.h"

#include <TemporaryDirectory.h>

#include <QDBusConnection>
#include <QString>

/**
 * A D-Bus daemon of the test's own that stands in for the system bus, with the system bus's limits. The
 * address is told to D-Bus when the bus is made, and D-Bus reads it once in a process: there is one bus in a
 * process.
 */
class PrivateBus
{
public:
    /** Not yet running. */
    PrivateBus();

    /** False when there is no D-Bus daemon to be had; WhyNot tells. */
    bool Start();
    QString WhyNot() const { return m_whyNot; }

    /** As a crash does. It can be started again, but the test's own connection does not come back. */
    void Kill() { m_daemon.Kill(); }

    /** Keeps it from answering until Thaw. */
    void Freeze() { m_daemon.Freeze(); }
    void Thaw() { m_daemon.Thaw(); }

    QString Path(const QString &fileName) const { return m_directory.FilePath(fileName); }

    /** A connection of the test's own. */
    static QDBusConnection Connection() { return QDBusConnection::systemBus(); }

    /** That of a plug-in in this process; not connected when there is none. */
    static QDBusConnection PluginConnection() { return QDBusConnection(QLatin1String("WLANNetworkManager")); }

    /** Returns when all that the bus has for the connection has arrived there; no bus is waited for for long.
     */
    static void WaitForArrivals(const QDBusConnection &connection);

    /** Whether somebody has that name on the bus, now or soon. */
    static bool WaitForService(const QString &name);
    static bool WaitForServiceToGo(const QString &name);

private:
    Q_DISABLE_COPY(PrivateBus)

    TemporaryDirectory m_directory;
    ChildProcess m_daemon;
    QString m_whyNot;
};

#endif
