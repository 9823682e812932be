#include "Settings.h"

#include <UserData.h>

#include <QSettings>

namespace
{

QString FilePath()
{
    return UserData::FilePath(QLatin1String("dashboard.ini"));
}

} // namespace

QVariant Settings::Read(const QString &key)
{
    const QString path = FilePath();
    return path.isEmpty() ? QVariant() : QSettings(path, QSettings::IniFormat).value(key);
}

void Settings::Write(const QString &key, const QVariant &value)
{
    const QString path = FilePath();
    if (path.isEmpty()) {
        return;
    }
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        qWarning("the choice \"%s\" can't be kept in %s", key.toLocal8Bit().constData(),
                 path.toLocal8Bit().constData());
    }
}
