#ifndef HISTORYCOMMANDS_H
#define HISTORYCOMMANDS_H

#include "Command.h"
#include "CommandAnswer.h"

#include <ListKeeper.h>

/** Does what the command line asks of the list as a whole, in the way of the window: each change is a step of
 * the history that Undo takes back. */
class HistoryCommands
{
public:
    /** Follows the list, which the history has to know before it is changed in any other way. Does nothing
     * with one that can't be read to its end. */
    static void Note();

    static CommandStatus Run(const Command &command);

private:
    static CommandStatus Export(const QString &path, const QList<PriorityList> &entries);
    static CommandStatus Import(const QString &path, ListKeeper *keeper);
    static CommandStatus Change(const Command &command, ListKeeper *keeper);
    static CommandStatus Answer(ListKeeper::Obstacle obstacle, const ListKeeper &keeper);
};

#endif
