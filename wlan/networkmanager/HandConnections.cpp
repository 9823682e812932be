#include "HandConnections.h"

#include <ListRules.h>
#include <UserData.h>

#include <QFile>
#include <QSettings>
#include <QStringList>

namespace
{

// None of them matters for long.
const int mostKept = 50;

QString FilePath()
{
    return UserData::FilePath(QLatin1String("byhand.ini"));
}

QString StartKey()
{
    return QLatin1String("start");
}

QString ConnectionsKey()
{
    return QLatin1String("connections");
}

/** Names the time since the computer was started. */
QString ThisStart()
{
    QFile file(QLatin1String("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
}

QStringList ConnectionsIn(const QSettings &settings)
{
    return settings.value(StartKey()).toString() == ThisStart()
               ? settings.value(ConnectionsKey()).toStringList()
               : QStringList();
}

} // namespace

void HandConnections::Note(const QString &connection)
{
    const QString path = FilePath();
    if (path.isEmpty() || !ListRules::IsFollowing()) {
        return;
    }
    QSettings settings(path, QSettings::IniFormat);
    QStringList connections = ConnectionsIn(settings);
    connections.append(connection);
    settings.setValue(StartKey(), ThisStart());
    while (connections.size() > mostKept) {
        connections.removeFirst();
    }
    settings.setValue(ConnectionsKey(), connections);
}

QSet<QString> HandConnections::Known()
{
    const QString path = FilePath();
    if (path.isEmpty() || !QFile::exists(path)) {
        return QSet<QString>();
    }
    const QStringList connections = ConnectionsIn(QSettings(path, QSettings::IniFormat));
    return QSet<QString>(connections.constBegin(), connections.constEnd());
}

void HandConnections::Forget()
{
    const QString path = FilePath();
    if (!path.isEmpty()) {
        QFile::remove(path);
    }
}
