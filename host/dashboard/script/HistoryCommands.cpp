#include "HistoryCommands.h"

#include "ListCommands.h"

#include <ListEdit.h>
#include <ListEntries.h>
#include <OrderFile.h>
#include <OrdinaryFile.h>
#include <PluginList.h>
#include <UserData.h>

#include <QDeadlineTimer>
#include <QFile>

#include <functional>

namespace
{

const int waitMilliseconds = 5000;

/** Does it until no other program is busy with the list, or has been for too long. */
ListKeeper::Obstacle Patiently(const std::function<ListKeeper::Obstacle()> &change)
{
    const QDeadlineTimer limit(waitMilliseconds);
    ListKeeper::Obstacle obstacle = change();
    while (obstacle == ListKeeper::ListBusy && !limit.hasExpired()) {
        obstacle = change();
    }
    return obstacle;
}

/** The file, and where in it something is wrong. */
QString At(const QString &path, const FileFault &fault)
{
    return QString::fromLatin1("%1:%2").arg(path, QString::number(fault.line));
}

} // namespace

void HistoryCommands::Note()
{
    PluginList list;
    const int status = list.Read().status;
    if (status == PriorityRead || status == PriorityMissing) {
        const ListKeeper keeper(UserData::Directory(), &list, nullptr);
    }
}

CommandStatus HistoryCommands::Run(const Command &command)
{
    PluginList list;
    const ListReading reading = list.Read();
    const ListCommands lists(UserData::FilePath(QLatin1String("Priority.xml")), false);
    const CommandStatus read = lists.FailToRead(reading.status);
    if (read != CommandDone) {
        return read;
    }
    if (command.kind == Command::Export) {
        return Export(command.file, reading.entries);
    }
    ListKeeper keeper(UserData::Directory(), &list, nullptr);
    return command.kind == Command::Import ? Import(command.file, &keeper) : Change(command, &keeper);
}

CommandStatus HistoryCommands::Export(const QString &path, const QList<PriorityList> &entries)
{
    QByteArray former;
    QList<PriorityList> formerEntries;
    const bool isOurs = OrdinaryFile::Read(path, OrderFile::largestFile, &former) &&
                        OrderFile::Parse(former, &formerEntries).kind == FileFault::None;
    // Whoever is asked can say yes; a command that was mistyped asks nobody.
    if (QFile::exists(path) && !isOurs) {
        return CommandAnswer::Fail(
            CommandNotWritten, QString::fromLatin1("%1 is there and is no list; it is left alone").arg(path));
    }
    return OrderFile::Write(path, entries)
               ? CommandDone
               : CommandAnswer::Fail(CommandNotWritten, QString::fromLatin1("%1 can't be written").arg(path));
}

CommandStatus HistoryCommands::Import(const QString &path, ListKeeper *keeper)
{
    QByteArray bytes;
    if (!OrdinaryFile::Read(path, OrderFile::largestFile, &bytes)) {
        return CommandAnswer::Fail(CommandFileNotOpened, QString::fromLatin1("%1 can't be read").arg(path));
    }
    QList<PriorityList> entries;
    const FileFault fault = OrderFile::Parse(bytes, &entries);
    if (fault.kind != FileFault::None) {
        return CommandAnswer::Fail(CommandFileDamaged,
                                   QString::fromLatin1("%1: this is no list").arg(At(path, fault)));
    }
    if (ListEntries::IsSame(entries, keeper->Entries())) {
        return CommandDone;
    }
    return Answer(Patiently([&] { return keeper->Replace(entries); }), *keeper);
}

CommandStatus HistoryCommands::Change(const Command &command, ListKeeper *keeper)
{
    if (command.kind == Command::Undo) {
        return Answer(Patiently([keeper] { return keeper->Undo(); }), *keeper);
    }
    if (command.kind == Command::Redo) {
        return Answer(Patiently([keeper] { return keeper->Redo(); }), *keeper);
    }
    bool isThere = false;
    const auto edit = [&command, &isThere](const QList<PriorityList> &list) {
        const int place = ListEdit::PlaceOf(command.entry, list);
        isThere = place >= 0;
        if (!isThere) {
            return list;
        }
        // Behind itself it is one place further down than before its neighbour.
        const int to = command.position - 1 > place ? command.position : command.position - 1;
        return command.kind == Command::Remove ? ListEdit::Removed(list, {place})
                                               : ListEdit::Moved(list, {place}, to);
    };
    const ListKeeper::Obstacle obstacle = Patiently(
        [&] { return keeper->Edit(edit, command.kind == Command::Move ? &command.entry : nullptr); });
    if (obstacle == ListKeeper::NoObstacle && !isThere) {
        return CommandAnswer::Fail(CommandNothingThere, QString::fromLatin1("\"%1\" of type %2 is not listed")
                                                            .arg(command.entry.name, command.entry.type));
    }
    return Answer(obstacle, *keeper);
}

CommandStatus HistoryCommands::Answer(ListKeeper::Obstacle obstacle, const ListKeeper &keeper)
{
    const QString list = keeper.ListPath();
    const QString history = keeper.File().Path();
    switch (obstacle) {
    case ListKeeper::NoObstacle:
        break;
    case ListKeeper::NothingToUndo:
        return CommandAnswer::Fail(CommandNoStep, QLatin1String("there is nothing to undo"));
    case ListKeeper::NothingToRedo:
        return CommandAnswer::Fail(CommandNoStep, QLatin1String("there is nothing to redo"));
    case ListKeeper::ListBusy:
        return CommandAnswer::Fail(CommandListInUse,
                                   QLatin1String("another program has been busy with the list for too long"));
    case ListKeeper::HistoryDamaged:
        return CommandAnswer::Fail(
            CommandFileDamaged,
            QString::fromLatin1("%1: the earlier lists are damaged").arg(At(history, keeper.File().Fault())));
    case ListKeeper::HistoryNotReadable:
        return CommandAnswer::Fail(CommandFileNotOpened,
                                   QString::fromLatin1("%1 can't be read").arg(history));
    case ListKeeper::ListDamaged:
        return CommandAnswer::Fail(CommandFileDamaged, QString::fromLatin1("%1 is damaged").arg(list));
    case ListKeeper::ListNotOpened:
        return CommandAnswer::Fail(CommandFileNotOpened, QString::fromLatin1("%1 can't be opened").arg(list));
    default:
        return CommandAnswer::Fail(
            CommandNotWritten, QString::fromLatin1("%1 can't be written; the list is as it was").arg(list));
    }
    return CommandDone;
}
