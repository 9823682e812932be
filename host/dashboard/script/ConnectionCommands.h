#ifndef CONNECTIONCOMMANDS_H
#define CONNECTIONCOMMANDS_H

#include "Command.h"
#include "CommandAnswer.h"

#include <ListSource.h>

#include <QDeadlineTimer>
#include <QString>

/**
 * Does what the command line asks of connections, through the Wi-Fi plug-in behind the host's container, and
 * waits until it has come about. Needs an event loop that does not run.
 */
class ConnectionCommands
{
public:
    /**
     * @param isJson       whether answers are JSON.
     * @param waitSeconds  how long a connection may take to come up, or to end.
     * @param problem      why there is no plug-in to ask; null when there is one.
     */
    ConnectionCommands(bool isJson, int waitSeconds, const QString &problem);

    /** @param list  as it is now; for Status. */
    CommandStatus Run(const Command &command, const ListReading &list) const;

    /** Has the list take effect, and says nothing: the list itself is as it was wanted. */
    void FollowList() const;

private:
    QString SourceProblem() const;
    CommandStatus Tell(const ListReading &list) const;
    CommandStatus Connect(const PriorityList &entry, const QDeadlineTimer &deadline) const;
    CommandStatus Disconnect(const QDeadlineTimer &deadline) const;
    CommandStatus Order(bool isRuling) const;

    const bool m_isJson;
    const int m_waitSeconds;
    const QString m_problem;
};

#endif
