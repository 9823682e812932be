#ifndef COMMANDANSWER_H
#define COMMANDANSWER_H

#include <PriorityList.h>

#include <QJsonObject>
#include <QString>

/** How a command ended, as the program's exit status. The smaller numbers are those of the whole program. */
enum CommandStatus {
    CommandDone = 0,
    CommandAlreadyListed = 4,
    CommandNoPlugin = 5,
    CommandFileDamaged = 6,
    CommandFileNotOpened = 7,
    CommandNotWritten = 8,
    CommandEntriesRepeated = 9,
    CommandListInUse = 10,
    CommandNoSource = 11,
    CommandNothingThere = 12,
    CommandNotConnected = 13,
    CommandNotInEffect = 14,
    CommandNoStep = 15
};

/** What commands print. Answers go to the standard output, in UTF-8 whatever the locale; problems to the
 * standard error output, one line each. */
namespace CommandAnswer
{

/** Fields with tabs between them. */
QString Line(const QString &first, const QString &second);

/** The fields of an entry: type and name. */
QString Fields(const PriorityList &entry);
QJsonObject Json(const PriorityList &entry);

CommandStatus Print(const QString &text);
CommandStatus Print(const QJsonObject &object);

/** Tells the problem. @return status. */
CommandStatus Fail(CommandStatus status, const QString &problem);

} // namespace CommandAnswer

#endif
