#include "PowerSupply.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

namespace
{

/** Empty when it is not told. */
QByteArray Told(const QDir &supply, const char *what)
{
    QFile file(supply.filePath(QLatin1String(what)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

} // namespace

QString PowerSupply::SystemDirectory()
{
    return QLatin1String("/sys/class/power_supply");
}

bool PowerSupply::IsOnBattery(const QString &directory)
{
    bool hasBattery = false;
    const QDir supplies(directory);
    const QStringList names = supplies.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QDir supply(supplies.filePath(name));
        if (Told(supply, "type") == "Battery") {
            hasBattery = hasBattery || Told(supply, "scope") != "Device";
        } else if (Told(supply, "online") == "1") {
            return false;
        }
    }
    return hasBattery;
}
