#include "ListCommands.h"

#include <DirectoryLock.h>
#include <IPriorityPlugin.h>
#include <ListEntries.h>
#include <OneLine.h>
#include <PluginObjects.h>
#include <Terminal.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPair>
#include <QStringList>
#include <QXmlStreamReader>

#include <cstdio>

namespace
{

const QChar column = QLatin1Char('\t');

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

QString Line(const QString &first, const QString &second)
{
    return first + column + second + QLatin1Char('\n');
}

/** The columns of an entry. */
QString Columns(const PriorityList &entry)
{
    return OneLine::Escaped(entry.type) + column + OneLine::Escaped(entry.name);
}

/** The lines about entries that are listed more than once. */
QStringList Repeats(const QList<PriorityList> &list)
{
    typedef QPair<QString, QString> Key;
    QHash<Key, QStringList> positions;
    QList<PriorityList> firsts;
    for (int i = 0; i < list.size(); ++i) {
        QStringList &ofEntry = positions[Key(list.at(i).name, list.at(i).type)];
        if (ofEntry.isEmpty()) {
            firsts.append(list.at(i));
        }
        ofEntry.append(QString::number(i + 1));
    }
    QStringList lines;
    for (int i = 0; i < firsts.size(); ++i) {
        const QStringList ofEntry = positions.value(Key(firsts.at(i).name, firsts.at(i).type));
        if (ofEntry.size() > 1) {
            lines.append(Line(QLatin1String("duplicate"),
                              ofEntry.join(QLatin1String(",")) + column + Columns(firsts.at(i))));
        }
    }
    return lines;
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

ListCommands::Status Fail(ListCommands::Status status, const QString &problem)
{
    Terminal::Complain(problem);
    return status;
}

ListCommands::Status Print(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const std::size_t size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        return Fail(ListCommands::NotWritten, QLatin1String("the standard output can't be written"));
    }
    return ListCommands::Done;
}

} // namespace

ListCommands::ListCommands(const QString &file) : m_file(file) {}

ListCommands::Status ListCommands::Run(const QList<ListCommand> &commands) const
{
    DirectoryLock::Use use = DirectoryLock::Reading;
    for (int i = 0; i < commands.size(); ++i) {
        if (commands.at(i).IsChange()) {
            use = DirectoryLock::Changing;
        }
    }
    const DirectoryLock lock(QFileInfo(m_file).absolutePath(), use, waitMilliseconds);
    if (lock.IsRefused()) {
        return Fail(ListInUse, QLatin1String("another command has been busy with the list for too long"));
    }
    Status status = Done;
    for (int i = 0; i < commands.size() && status == Done; ++i) {
        status = RunOne(commands.at(i));
    }
    return status;
}

ListCommands::Status ListCommands::RunOne(const ListCommand &command) const
{
    if (!PluginObjects::Priority()) {
        return Fail(NoPlugin, QLatin1String("the priority plug-in offers no list"));
    }
    switch (command.kind) {
    case ListCommand::List:
        return List();
    case ListCommand::Check:
        return Check();
    case ListCommand::Add:
        return Add(command.entry);
    case ListCommand::AddTop:
        return AddTop(command.entry);
    }
    return Done;
}

ListCommands::Status ListCommands::List() const
{
    QList<PriorityList> list;
    const int result = PluginObjects::Priority()->GetPriorityList(&list);
    QString lines;
    for (int i = 0; i < list.size(); ++i) {
        lines += Line(QString::number(i + 1), Columns(list.at(i)));
    }
    const Status printed = Print(lines);
    return printed == Done ? FailToRead(result) : printed;
}

ListCommands::Status ListCommands::Check() const
{
    QList<PriorityList> list;
    const int result = PluginObjects::Priority()->GetPriorityList(&list);
    const char *const state = result == PriorityRead      ? "readable"
                              : result == PriorityMissing ? "does not exist yet"
                              : result == PriorityDamaged ? "damaged"
                                                          : "can't be opened";
    const QStringList repeats = Repeats(list);
    const Status printed =
        Print(Line(QLatin1String("file"), OneLine::Escaped(m_file)) +
              Line(QLatin1String("state"), QLatin1String(state)) +
              Line(QLatin1String("entries"), QString::number(list.size())) + repeats.join(QString()));
    if (printed != Done) {
        return printed;
    }
    const Status read = FailToRead(result);
    if (read == Done && !repeats.isEmpty()) {
        return Fail(EntriesRepeated, QString::fromLatin1("%1: entries listed more than once: %2")
                                         .arg(m_file, QString::number(repeats.size())));
    }
    return read;
}

ListCommands::Status ListCommands::Add(const PriorityList &entry) const
{
    QList<PriorityList> before;
    const Status read = Read(&before);
    if (read != Done) {
        return read;
    }
    const int position = PositionOf(entry, before);
    if (position > 0) {
        return Fail(AlreadyListed, QString::fromLatin1("\"%1\" of type %2 is listed already, at position %3")
                                       .arg(entry.name, entry.type, QString::number(position)));
    }
    QList<PriorityList> entries;
    entries.append(entry);
    PluginObjects::Priority()->AddPriorityList(entries);
    QList<PriorityList> after;
    PluginObjects::Priority()->GetPriorityList(&after);
    return PositionOf(entry, after) > 0 ? Done : FailToWrite(before, after);
}

ListCommands::Status ListCommands::AddTop(const PriorityList &entry) const
{
    QList<PriorityList> before;
    const Status read = Read(&before);
    if (read != Done) {
        return read;
    }
    PluginObjects::Priority()->AddTopPriority(entry);
    QList<PriorityList> after;
    PluginObjects::Priority()->GetPriorityList(&after);
    return PositionOf(entry, after) == 1 ? Done : FailToWrite(before, after);
}

/** The list before a change. What can't be read in full is not changed: the plug-in would write back the part
 * that could be read. */
ListCommands::Status ListCommands::Read(QList<PriorityList> *list) const
{
    return FailToRead(PluginObjects::Priority()->GetPriorityList(list));
}

ListCommands::Status ListCommands::FailToRead(int result) const
{
    switch (result) {
    case PriorityRead:
    case PriorityMissing:
        return Done;
    case PriorityDamaged:
        return Fail(FileDamaged, m_file + QLatin1Char(':') + DamageOf(m_file));
    default:
        return Fail(FileNotOpened, QString::fromLatin1("%1 can't be opened").arg(m_file));
    }
}

ListCommands::Status ListCommands::FailToWrite(const QList<PriorityList> &before,
                                               const QList<PriorityList> &after) const
{
    const char *const problem = ListEntries::IsSame(before, after)
                                    ? "%1 can't be written; the list is as it was"
                                    : "%1 can't be written";
    return Fail(NotWritten, QString::fromLatin1(problem).arg(m_file));
}
