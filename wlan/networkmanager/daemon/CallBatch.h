#ifndef CALLBATCH_H
#define CALLBATCH_H

#include "TimeLimit.h"

#include <QDBusMessage>
#include <QHash>
#include <QList>
#include <QObject>

class CNetworkManagerClient;
class QDBusPendingCallWatcher;

/**
 * Several calls with one time limit for all. Only some are under way at a time: a bus lets a client have no
 * more than 128 unanswered calls and refuses those beyond.
 */
class CCallBatch : public QObject
{
    Q_OBJECT

public:
    /** @param client  outlives the batch. */
    CCallBatch(CNetworkManagerClient *client, const QList<QDBusMessage> &calls, const CTimeLimit &limit,
               QObject *parent);

    /** Finished comes when all is answered, within this call when there is nothing to be asked. */
    void Start();

    /** One for each call, in their order; what was not answered in time has an error in its place. */
    QList<QDBusMessage> Replies() const { return m_replies; }

signals:
    void Finished();

private slots:
    void TakeReply(QDBusPendingCallWatcher *watcher);

private:
    Q_DISABLE_COPY(CCallBatch)

    void SendMore();

    CNetworkManagerClient *const m_client;
    const QList<QDBusMessage> m_calls;
    const CTimeLimit m_limit;
    QList<QDBusMessage> m_replies;
    QHash<QDBusPendingCallWatcher *, int> m_underWay;
    int m_next;
};

#endif
