#include "PriorityRecords.h"

#include <QSettings>
#include <QStringList>

namespace
{

QString ConnectedKey()
{
    return QLatin1String("connected");
}

QString ToldKey()
{
    return QLatin1String("told");
}

QString PrioritiesGroup()
{
    return QLatin1String("priorities");
}

/** A record is three numbers with blanks between them. */
bool ReadRecord(const QString &text, PriorityRecord *record)
{
    int *const numbers[] = {&record->before, &record->written, &record->intended};
    const QStringList parts = text.split(QLatin1Char(' '));
    bool isSound = parts.size() == 3;
    for (int i = 0; i < 3 && isSound; ++i) {
        *numbers[i] = parts.at(i).toInt(&isSound);
    }
    return isSound;
}

QSet<QString> ReadUuids(const QSettings &settings, const QString &key)
{
    QSet<QString> uuids;
    const QStringList list = settings.value(key).toStringList();
    for (const QString &uuid : list) {
        uuids.insert(uuid);
    }
    return uuids;
}

void WriteUuids(const QSet<QString> &uuids, const QString &key, QSettings *settings)
{
    QStringList list = uuids.values();
    list.sort();
    settings->setValue(key, list);
}

} // namespace

CPriorityRecords::CPriorityRecords(const QString &file) : m_file(file)
{
    if (m_file.isEmpty()) {
        return;
    }
    QSettings settings(m_file, QSettings::IniFormat);
    isConnectedKnown = settings.contains(ConnectedKey());
    connected = ReadUuids(settings, ConnectedKey());
    told = ReadUuids(settings, ToldKey());
    settings.beginGroup(PrioritiesGroup());
    const QStringList keys = settings.childKeys();
    for (int i = 0; i < keys.size(); ++i) {
        PriorityRecord record;
        if (ReadRecord(settings.value(keys.at(i)).toString(), &record)) {
            priorities.insert(keys.at(i), record);
        }
    }
    m_savedPriorities = priorities;
    m_savedConnected = connected;
    m_savedTold = told;
    m_isConnectedSaved = isConnectedKnown;
}

bool CPriorityRecords::Save()
{
    if (m_file.isEmpty() || (priorities == m_savedPriorities && connected == m_savedConnected &&
                             told == m_savedTold && isConnectedKnown == m_isConnectedSaved)) {
        return true;
    }
    QSettings settings(m_file, QSettings::IniFormat);
    if (isConnectedKnown) {
        WriteUuids(connected, ConnectedKey(), &settings);
    }
    WriteUuids(told, ToldKey(), &settings);
    settings.beginGroup(PrioritiesGroup());
    settings.remove(QString());
    for (QMap<QString, PriorityRecord>::const_iterator i = priorities.constBegin();
         i != priorities.constEnd(); ++i) {
        settings.setValue(i.key(), QString::fromLatin1("%1 %2 %3")
                                       .arg(i.value().before)
                                       .arg(i.value().written)
                                       .arg(i.value().intended));
    }
    settings.endGroup();
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        return false;
    }
    m_savedPriorities = priorities;
    m_savedConnected = connected;
    m_savedTold = told;
    m_isConnectedSaved = isConnectedKnown;
    return true;
}
