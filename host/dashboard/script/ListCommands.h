#ifndef LISTCOMMANDS_H
#define LISTCOMMANDS_H

#include <PriorityList.h>

#include <QList>
#include <QString>

/** One thing that the command line asks of the list. */
struct ListCommand {
    enum Kind { List, Check, Add, AddTop };

    Kind kind = List;
    PriorityList entry; /**< What Add and AddTop add. */

    bool IsChange() const { return kind == Add || kind == AddTop; }
};

/**
 * Does what the command line asks of the list, through the priority plug-in behind the host's container.
 * Answers go to the standard output, in UTF-8 whatever the locale; problems to the standard error output, one
 * line each.
 */
class ListCommands
{
public:
    /** How it ended, as the program's exit status. The smaller numbers are those of the whole program. */
    enum Status {
        Done = 0,
        AlreadyListed = 4,
        NoPlugin = 5,
        FileDamaged = 6,
        FileNotOpened = 7,
        NotWritten = 8,
        EntriesRepeated = 9,
        ListInUse = 10
    };

    /** @param file  path of the list's file, to tell problems and to look for what is wrong with it. */
    explicit ListCommands(const QString &file);

    /** One command after the other; the first that fails is the last. No command of another process comes
     * between them. */
    Status Run(const QList<ListCommand> &commands) const;

private:
    Status RunOne(const ListCommand &command) const;
    Status List() const;
    Status Check() const;
    Status Add(const PriorityList &entry) const;
    Status AddTop(const PriorityList &entry) const;

    Status Read(QList<PriorityList> *list) const;
    Status FailToRead(int result) const;
    Status FailToWrite(const QList<PriorityList> &before, const QList<PriorityList> &after) const;

    const QString m_file;
};

#endif
