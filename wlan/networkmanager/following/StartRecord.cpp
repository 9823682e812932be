#include "StartRecord.h"

#include <UserData.h>

#include <QFile>
#include <QSettings>

namespace
{

QString StartKey()
{
    return QLatin1String("start");
}

/** Names the time since the computer was started. */
QString ThisStart()
{
    QFile file(QLatin1String("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
}

} // namespace

StartRecord::StartRecord(const char *file, const char *key)
    : m_path(UserData::FilePath(QLatin1String(file))), m_key(QLatin1String(key))
{
}

QStringList StartRecord::Read() const
{
    if (m_path.isEmpty() || !QFile::exists(m_path)) {
        return QStringList();
    }
    const QSettings settings(m_path, QSettings::IniFormat);
    return settings.value(StartKey()).toString() == ThisStart() ? settings.value(m_key).toStringList()
                                                                : QStringList();
}

void StartRecord::Write(const QStringList &texts) const
{
    if (m_path.isEmpty()) {
        return;
    }
    if (texts.isEmpty()) {
        QFile::remove(m_path);
        return;
    }
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(StartKey(), ThisStart());
    settings.setValue(m_key, texts);
}
