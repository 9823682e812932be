#include "NetworkManagerDaemon.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace
{

const char service[] = "org.freedesktop.NetworkManager";

void Write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size()) {
        qFatal("a test file can't be written");
    }
}

} // namespace

NetworkManagerDaemon::NetworkManagerDaemon(PrivateBus *bus) : m_bus(bus) {}

bool NetworkManagerDaemon::Start(const QString &authorization, const QString &unmanaged)
{
    const QString program = ChildProcess::Find("NetworkManager");
    if (program.isEmpty() || ChildProcess::Find("nmcli").isEmpty()) {
        m_whyNot = "NetworkManager is neither installed nor in " TEST_TOOLS_DIRECTORY;
        return false;
    }
    QDir().mkpath(m_bus->Path("profiles"));
    QDir().mkpath(m_bus->Path("empty"));
    Write(m_bus->Path("nm.conf"),
          "[main]\nplugins=keyfile\ndns=none\nrc-manager=unmanaged\nno-auto-default=*\nhostname-mode=none\n"
          "auth-polkit=" +
              authorization.toLatin1() + "\n[keyfile]\npath=" + QFile::encodeName(m_bus->Path("profiles")) +
              "\nunmanaged-devices=" + unmanaged.toLatin1() + "\n");
    const QString empty = m_bus->Path("empty");
    if (!m_daemon.Begin(program,
                        QStringList() << "--no-daemon"
                                      << "--debug"
                                      << "--config=" + m_bus->Path("nm.conf") << "--config-dir=" + empty
                                      << "--system-config-dir=" + empty
                                      << "--intern-config=" + m_bus->Path("nm-intern.conf")
                                      << "--state-file=" + m_bus->Path("nm.state")
                                      << "--pid-file=" + m_bus->Path("nm.pid"),
                        m_bus->Path("nm.log"))) {
        m_whyNot = "NetworkManager can't be started";
        return false;
    }
    if (!PrivateBus::WaitForService(service)) {
        m_whyNot = "NetworkManager does not come up";
        return false;
    }
    return true;
}

void NetworkManagerDaemon::End()
{
    m_daemon.End();
    PrivateBus::WaitForServiceToGo(service);
}

void NetworkManagerDaemon::Kill()
{
    m_daemon.Kill();
    PrivateBus::WaitForServiceToGo(service);
}

QString NetworkManagerDaemon::Nmcli(const QStringList &arguments)
{
    QProcess nmcli;
    nmcli.start(ChildProcess::Find("nmcli"), arguments);
    if (!nmcli.waitForFinished() || nmcli.exitCode() != 0) {
        return "nmcli failed: " + QString::fromUtf8(nmcli.readAllStandardError());
    }
    PrivateBus::WaitForArrivals(PrivateBus::PluginConnection());
    QString output = QString::fromUtf8(nmcli.readAllStandardOutput());
    output.chop(output.endsWith('\n') ? 1 : 0);
    return output;
}

bool NetworkManagerDaemon::Add(const QString &name, const QStringList &settings)
{
    const QString output = Nmcli(QStringList() << "connection"
                                               << "add"
                                               << "type"
                                               << "wifi"
                                               << "con-name" << name << "ssid" << name << settings);
    return output.contains("successfully added");
}

QStringList NetworkManagerDaemon::Priorities()
{
    const QString output = Nmcli(QStringList() << "--terse"
                                               << "--fields"
                                               << "NAME,AUTOCONNECT-PRIORITY"
                                               << "connection"
                                               << "show");
    QStringList lines = output.isEmpty() ? QStringList() : output.split('\n');
    lines.sort();
    return lines;
}

QStringList NetworkManagerDaemon::Keyfiles() const
{
    return QDir(m_bus->Path("profiles")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QStringList NetworkManagerDaemon::KeyfilesWith(const QByteArray &text) const
{
    QStringList files = Keyfiles();
    for (int i = files.size() - 1; i >= 0; --i) {
        QFile file(m_bus->Path("profiles/" + files.at(i)));
        if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains(text)) {
            files.removeAt(i);
        }
    }
    return files;
}

QByteArray NetworkManagerDaemon::Keyfile(const QString &name) const
{
    const QStringList files =
        Keyfiles().filter(QRegularExpression("^" + QRegularExpression::escape(name) + "\\b.*"));
    QFile file(m_bus->Path("profiles/" + files.value(0)));
    return files.size() == 1 && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void NetworkManagerDaemon::WriteKeyfile(const QString &name, const QByteArray &content) const
{
    const QString path = m_bus->Path("profiles/" + name + ".nmconnection");
    Write(path, content);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

void NetworkManagerDaemon::RemoveProfiles() const
{
    const QStringList files = Keyfiles();
    for (int i = 0; i < files.size(); ++i) {
        QFile::remove(m_bus->Path("profiles/" + files.at(i)));
    }
    Nmcli(QStringList() << "connection"
                        << "reload");
}
