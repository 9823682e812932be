#include "PriorityRecords.h"

#include <QSettings>
#include <QStringList>

#include <utility>

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

/** A record is numbers with blanks between them: the former one, then our own. */
bool ReadRecord(const QString &text, PriorityRecord *record)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    QList<int> numbers;
    for (const QString &part : parts) {
        bool isSound = false;
        numbers.append(part.toInt(&isSound));
        if (!isSound) {
            return false;
        }
    }
    record->before = numbers.takeFirst();
    for (const int number : std::as_const(numbers)) {
        record->AddOwn(number);
    }
    return !record->own.isEmpty();
}

QString WrittenRecord(const PriorityRecord &record)
{
    QStringList numbers(QString::number(record.before));
    for (const int number : record.own) {
        numbers.append(QString::number(number));
    }
    return numbers.join(QLatin1Char(' '));
}

QString MetricsGroup()
{
    return QLatin1String("metrics");
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

QMap<QString, PriorityRecord> ReadRecords(const QString &group, QSettings *settings)
{
    QMap<QString, PriorityRecord> records;
    settings->beginGroup(group);
    const QStringList keys = settings->childKeys();
    for (const QString &key : keys) {
        PriorityRecord record;
        if (ReadRecord(settings->value(key).toString(), &record)) {
            records.insert(key, record);
        }
    }
    settings->endGroup();
    return records;
}

void WriteRecords(const QMap<QString, PriorityRecord> &records, const QString &group, QSettings *settings)
{
    settings->beginGroup(group);
    settings->remove(QString());
    for (QMap<QString, PriorityRecord>::const_iterator i = records.constBegin(); i != records.constEnd();
         ++i) {
        settings->setValue(i.key(), WrittenRecord(i.value()));
    }
    settings->endGroup();
}

void WriteUuids(const QSet<QString> &uuids, const QString &key, QSettings *settings)
{
    QStringList list = uuids.values();
    list.sort();
    settings->setValue(key, list);
}

QMap<QString, int> ReadNumbers(const QString &group, QSettings *settings)
{
    QMap<QString, int> numbers;
    settings->beginGroup(group);
    const QStringList keys = settings->childKeys();
    for (const QString &key : keys) {
        numbers.insert(key, settings->value(key).toInt());
    }
    settings->endGroup();
    return numbers;
}

void WriteNumbers(const QMap<QString, int> &numbers, const QString &group, QSettings *settings)
{
    settings->beginGroup(group);
    for (QMap<QString, int>::const_iterator i = numbers.constBegin(); i != numbers.constEnd(); ++i) {
        settings->setValue(i.key(), i.value());
    }
    settings->endGroup();
}

QString TurnGroup()
{
    return QLatin1String("turn");
}

PriorityTurn ReadTurn(QSettings *settings)
{
    PriorityTurn turn;
    settings->beginGroup(TurnGroup());
    turn.list = settings->value(QLatin1String("list")).toString();
    turn.left = ReadNumbers(QLatin1String("left"), settings);
    turn.before = ReadNumbers(QLatin1String("before"), settings);
    turn.yielded = ReadUuids(*settings, QLatin1String("yielded"));
    const QStringList pairs = settings->value(QLatin1String("contested")).toStringList();
    for (const QString &pair : pairs) {
        turn.contested.insert(qMakePair(pair.section(QLatin1Char(' '), 0, 0).toInt(),
                                        pair.section(QLatin1Char(' '), 1).toInt()));
    }
    settings->endGroup();
    return turn;
}

void WriteTurn(const PriorityTurn &turn, QSettings *settings)
{
    QStringList pairs;
    for (const QPair<int, int> &pair : turn.contested) {
        pairs.append(QString::fromLatin1("%1 %2").arg(pair.first).arg(pair.second));
    }
    pairs.sort();
    settings->beginGroup(TurnGroup());
    settings->remove(QString());
    settings->setValue(QLatin1String("list"), turn.list);
    WriteNumbers(turn.left, QLatin1String("left"), settings);
    WriteNumbers(turn.before, QLatin1String("before"), settings);
    WriteUuids(turn.yielded, QLatin1String("yielded"), settings);
    settings->setValue(QLatin1String("contested"), pairs);
    settings->endGroup();
}

} // namespace

void PriorityRecord::AddOwn(int priority)
{
    const int mostOwn = 8;
    own.removeAll(priority);
    own.append(priority);
    if (own.size() > mostOwn) {
        own.removeFirst();
    }
}

CPriorityRecords::CPriorityRecords(const QString &file) : m_file(file) {}

bool CPriorityRecords::Open()
{
    if (m_file.isEmpty()) {
        return true;
    }
    auto lock = std::make_unique<QLockFile>(m_file + QLatin1String(".use"));
    // It is over when the program that has it is, and not earlier.
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) {
        return false;
    }
    m_lock = std::move(lock);
    if (m_isUnsaved) {
        return true;
    }
    QSettings settings(m_file, QSettings::IniFormat);
    isConnectedKnown = settings.contains(ConnectedKey());
    connected = ReadUuids(settings, ConnectedKey());
    told = ReadUuids(settings, ToldKey());
    priorities = ReadRecords(PrioritiesGroup(), &settings);
    metrics = ReadRecords(MetricsGroup(), &settings);
    turn = ReadTurn(&settings);
    Note();
    return true;
}

void CPriorityRecords::Close()
{
    m_lock.reset();
}

/** What is in the file now. */
void CPriorityRecords::Note()
{
    m_savedPriorities = priorities;
    m_savedMetrics = metrics;
    m_savedConnected = connected;
    m_savedTold = told;
    m_savedTurn = turn;
    m_isConnectedSaved = isConnectedKnown;
}

void CPriorityRecords::Forget(const QString &uuid)
{
    priorities.remove(uuid);
    connected.remove(uuid);
    told.remove(uuid);
    turn.left.remove(uuid);
    turn.before.remove(uuid);
    turn.yielded.remove(uuid);
}

bool CPriorityRecords::Save()
{
    if (m_file.isEmpty() ||
        (priorities == m_savedPriorities && metrics == m_savedMetrics && connected == m_savedConnected &&
         told == m_savedTold && turn == m_savedTurn && isConnectedKnown == m_isConnectedSaved)) {
        return true;
    }
    QSettings settings(m_file, QSettings::IniFormat);
    if (isConnectedKnown) {
        WriteUuids(connected, ConnectedKey(), &settings);
    }
    WriteUuids(told, ToldKey(), &settings);
    WriteRecords(priorities, PrioritiesGroup(), &settings);
    WriteRecords(metrics, MetricsGroup(), &settings);
    WriteTurn(turn, &settings);
    settings.sync();
    m_isUnsaved = settings.status() != QSettings::NoError;
    if (m_isUnsaved) {
        return false;
    }
    Note();
    return true;
}
