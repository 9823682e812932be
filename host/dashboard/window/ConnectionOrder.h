#ifndef CONNECTIONORDER_H
#define CONNECTIONORDER_H

#include <ConnectionRecords.h>

#include <QList>
#include <QString>

/** The user's last order to connect or to disconnect, and what has become of it. */
class ConnectionOrder
{
public:
    /** Each takes the place of the order before it. */
    void Connect(const QString &name, const QString &profileId);
    void Disconnect(const ActiveConnection &connection);

    bool IsUnderWay() const;

    /** Whether it has not come about and won't; false, too, when it has come about in another way. */
    bool HasFailed(const QList<ActiveConnection> &active) const;

    // What has not come about, and why; the second is empty when that is not known.
    QString Failed() const;
    QString Reason() const;

private:
    ConnectAttempt Attempt() const;
    bool HasComeAbout(const QList<ActiveConnection> &active) const;
    /** A ConnectionFailure; FailureNone while nothing is wrong. */
    int Failure() const;

    bool m_isToConnect = true;
    QString m_name;
    /** Of the profile to connect, or of the connection to end. */
    QString m_id;
    /** As IConnectionPlugin answers it; 0: none was given. */
    int m_number = 0;
};

#endif
