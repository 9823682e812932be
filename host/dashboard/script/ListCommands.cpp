#include "ListCommands.h"

#include <DirectoryLock.h>
#include <IPriorityPlugin.h>
#include <ListEntries.h>
#include <OneLine.h>
#include <PluginObjects.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QPair>
#include <QStringList>
#include <QXmlStreamReader>

#include <utility>

namespace
{

const int waitMilliseconds = 5000;

/** Counted from 1; 0 when it isn't there. */
int PositionOf(const PriorityList &entry, const QList<PriorityList> &list)
{
    for (int i = 0; i < list.size(); ++i) {
        if (ListEntries::IsSame(list.at(i), entry)) {
            return i + 1;
        }
    }
    return 0;
}

/** An entry that is listed more than once, and where, counted from 1. */
struct Repeat {
    PriorityList entry;
    QStringList positions;
};

QList<Repeat> Repeats(const QList<PriorityList> &list)
{
    typedef QPair<QString, QString> Key;
    QHash<Key, int> placeOf;
    QList<Repeat> all;
    for (int i = 0; i < list.size(); ++i) {
        const Key key(list.at(i).name, list.at(i).type);
        if (!placeOf.contains(key)) {
            placeOf.insert(key, static_cast<int>(all.size()));
            all.append({list.at(i), QStringList()});
        }
        all[placeOf.value(key)].positions.append(QString::number(i + 1));
    }
    QList<Repeat> repeats;
    for (const Repeat &repeat : std::as_const(all)) {
        if (repeat.positions.size() > 1) {
            repeats.append(repeat);
        }
    }
    return repeats;
}

/** Line and reason of what is wrong with a file that is not well-formed. */
QString DamageOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError()
               ? QString::fromLatin1("%1: %2").arg(QString::number(reader.lineNumber()), reader.errorString())
               : QString::fromLatin1(" it could not be read to its end");
}

} // namespace

ListCommands::ListCommands(const QString &file, bool isJson) : m_file(file), m_isJson(isJson) {}

CommandStatus ListCommands::Run(const QList<Command> &commands) const
{
    DirectoryLock::Use use = DirectoryLock::Reading;
    for (int i = 0; i < commands.size(); ++i) {
        if (commands.at(i).IsChange()) {
            use = DirectoryLock::Changing;
        }
    }
    const DirectoryLock lock(QFileInfo(m_file).absolutePath(), use, waitMilliseconds);
    if (lock.IsRefused()) {
        return CommandAnswer::Fail(CommandListInUse,
                                   QLatin1String("another command has been busy with the list for too long"));
    }
    CommandStatus status = CommandDone;
    for (int i = 0; i < commands.size() && status == CommandDone; ++i) {
        status = RunOne(commands.at(i));
    }
    return status;
}

CommandStatus ListCommands::RunOne(const Command &command) const
{
    if (!PluginObjects::Priority()) {
        return CommandAnswer::Fail(CommandNoPlugin, QLatin1String("the priority plug-in offers no list"));
    }
    switch (command.kind) {
    case Command::List:
        return List();
    case Command::Check:
        return Check();
    case Command::Add:
        return Add(command.entry);
    case Command::AddTop:
        return AddTop(command.entry);
    default:
        return CommandDone;
    }
}

CommandStatus ListCommands::List() const
{
    QList<PriorityList> list;
    const int result = PluginObjects::Priority()->GetPriorityList(&list);
    QString lines;
    QJsonArray entries;
    for (int i = 0; i < list.size(); ++i) {
        lines += CommandAnswer::Line(QString::number(i + 1), CommandAnswer::Fields(list.at(i)));
        QJsonObject entry = CommandAnswer::Json(list.at(i));
        entry.insert(QLatin1String("position"), i + 1);
        entries.append(entry);
    }
    const CommandStatus printed = m_isJson
                                      ? CommandAnswer::Print(QJsonObject{{QLatin1String("entries"), entries}})
                                      : CommandAnswer::Print(lines);
    return printed == CommandDone ? FailToRead(result) : printed;
}

CommandStatus ListCommands::Check() const
{
    QList<PriorityList> list;
    const int result = PluginObjects::Priority()->GetPriorityList(&list);
    const QLatin1String state(result == PriorityRead      ? "readable"
                              : result == PriorityMissing ? "does not exist yet"
                              : result == PriorityDamaged ? "damaged"
                                                          : "can't be opened");
    const QList<Repeat> repeats = Repeats(list);
    QString lines = CommandAnswer::Line(QLatin1String("file"), OneLine::Escaped(m_file)) +
                    CommandAnswer::Line(QLatin1String("state"), state) +
                    CommandAnswer::Line(QLatin1String("entries"), QString::number(list.size()));
    QJsonArray repeated;
    for (const Repeat &repeat : repeats) {
        lines += CommandAnswer::Line(QLatin1String("duplicate"), repeat.positions.join(QLatin1Char(',')) +
                                                                     QLatin1Char('\t') +
                                                                     CommandAnswer::Fields(repeat.entry));
        repeated.append(CommandAnswer::Json(repeat.entry));
    }
    const CommandStatus printed =
        m_isJson ? CommandAnswer::Print(QJsonObject{{QLatin1String("file"), m_file},
                                                    {QLatin1String("state"), state},
                                                    {QLatin1String("entries"), static_cast<int>(list.size())},
                                                    {QLatin1String("repeated"), repeated}})
                 : CommandAnswer::Print(lines);
    if (printed != CommandDone) {
        return printed;
    }
    const CommandStatus read = FailToRead(result);
    if (read == CommandDone && !repeats.isEmpty()) {
        return CommandAnswer::Fail(CommandEntriesRepeated,
                                   QString::fromLatin1("%1: entries listed more than once: %2")
                                       .arg(m_file, QString::number(repeats.size())));
    }
    return read;
}

CommandStatus ListCommands::Add(const PriorityList &entry) const
{
    QList<PriorityList> before;
    const CommandStatus read = Read(&before);
    if (read != CommandDone) {
        return read;
    }
    const int position = PositionOf(entry, before);
    if (position > 0) {
        return CommandAnswer::Fail(CommandAlreadyListed,
                                   QString::fromLatin1("\"%1\" of type %2 is listed already, at position %3")
                                       .arg(entry.name, entry.type, QString::number(position)));
    }
    QList<PriorityList> entries;
    entries.append(entry);
    PluginObjects::Priority()->AddPriorityList(entries);
    QList<PriorityList> after;
    PluginObjects::Priority()->GetPriorityList(&after);
    return PositionOf(entry, after) > 0 ? CommandDone : FailToWrite(before, after);
}

CommandStatus ListCommands::AddTop(const PriorityList &entry) const
{
    QList<PriorityList> before;
    const CommandStatus read = Read(&before);
    if (read != CommandDone) {
        return read;
    }
    PluginObjects::Priority()->AddTopPriority(entry);
    QList<PriorityList> after;
    PluginObjects::Priority()->GetPriorityList(&after);
    return PositionOf(entry, after) == 1 ? CommandDone : FailToWrite(before, after);
}

/** The list before a change. What can't be read in full is not changed: the plug-in would write back the part
 * that could be read. */
CommandStatus ListCommands::Read(QList<PriorityList> *list) const
{
    return FailToRead(PluginObjects::Priority()->GetPriorityList(list));
}

CommandStatus ListCommands::FailToRead(int result) const
{
    switch (result) {
    case PriorityRead:
    case PriorityMissing:
        return CommandDone;
    case PriorityDamaged:
        return CommandAnswer::Fail(CommandFileDamaged, m_file + QLatin1Char(':') + DamageOf(m_file));
    default:
        return CommandAnswer::Fail(CommandFileNotOpened,
                                   QString::fromLatin1("%1 can't be opened").arg(m_file));
    }
}

CommandStatus ListCommands::FailToWrite(const QList<PriorityList> &before,
                                        const QList<PriorityList> &after) const
{
    const char *const problem = ListEntries::IsSame(before, after)
                                    ? "%1 can't be written; the list is as it was"
                                    : "%1 can't be written";
    return CommandAnswer::Fail(CommandNotWritten, QString::fromLatin1(problem).arg(m_file));
}
