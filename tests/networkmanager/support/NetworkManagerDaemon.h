#ifndef NETWORKMANAGERDAEMON_H
#define NETWORKMANAGERDAEMON_H

#include "ChildProcess.h"
#include "PrivateBus.h"

#include <QByteArray>
#include <QStringList>

/**
 * NetworkManager itself, with profiles of its own and mostly nothing to manage, on a private bus. To be used
 * in a process that has entered a namespace.
 */
class NetworkManagerDaemon
{
public:
    explicit NetworkManagerDaemon(PrivateBus *bus);

    /** @param authorization  NetworkManager's own word: "false" allows everybody everything, "root-only"
     * root.
     * @param unmanaged  NetworkManager's own words for the devices that it leaves alone. */
    bool Start(const QString &authorization = QLatin1String("false"),
               const QString &unmanaged = QLatin1String("*"));
    QString WhyNot() const { return m_whyNot; }
    bool IsRunning() const { return m_daemon.state() == QProcess::Running; }
    void End();
    void Kill();
    void Freeze() { m_daemon.Freeze(); }
    void Thaw() { m_daemon.Thaw(); }

    /** Runs NetworkManager's own program for the command line; what it printed, without the last line feed.
     */
    static QString Nmcli(const QStringList &arguments);

    /** A profile made elsewhere; settings are nmcli's words. */
    static bool Add(const QString &name, const QStringList &settings = QStringList());

    /** "name:priority" of every profile, in alphabetical order. */
    static QStringList Priorities();

    /** The one keyfile whose name begins like that, as it is on disk. */
    QByteArray Keyfile(const QString &name) const;
    QStringList Keyfiles() const;
    QStringList KeyfilesWith(const QByteArray &text) const;
    /** NetworkManager finds it when it is told to reload. */
    void WriteKeyfile(const QString &name, const QByteArray &content) const;
    void RemoveProfiles() const;

private:
    Q_DISABLE_COPY(NetworkManagerDaemon)

    PrivateBus *const m_bus;
    ChildProcess m_daemon;
    QString m_whyNot;
};

#endif
