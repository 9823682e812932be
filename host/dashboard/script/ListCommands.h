#ifndef LISTCOMMANDS_H
#define LISTCOMMANDS_H

#include "Command.h"
#include "CommandAnswer.h"

#include <PriorityList.h>

#include <QList>
#include <QString>

/** Does what the command line asks of the list, through the priority plug-in behind the host's container. */
class ListCommands
{
public:
    /**
     * @param file    path of the list's file, to tell problems and to look for what is wrong with it.
     * @param isJson  whether answers are JSON.
     */
    ListCommands(const QString &file, bool isJson);

    /** One command after the other; the first that fails is the last. No command of another process comes
     * between them. */
    CommandStatus Run(const QList<Command> &commands) const;

    /** Tells why a list could not be read in full, if it could not. @param result  a PriorityResult. */
    CommandStatus FailToRead(int result) const;

private:
    CommandStatus RunOne(const Command &command) const;
    CommandStatus List() const;
    CommandStatus Check() const;
    CommandStatus Add(const PriorityList &entry) const;
    CommandStatus AddTop(const PriorityList &entry) const;

    CommandStatus Read(QList<PriorityList> *list) const;
    CommandStatus FailToWrite(const QList<PriorityList> &before, const QList<PriorityList> &after) const;

    const QString m_file;
    const bool m_isJson;
};

#endif
