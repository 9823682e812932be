#include "CallBatch.h"

#include "NetworkManagerClient.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>

namespace
{

const int mostUnderWay = 32;

} // namespace

CCallBatch::CCallBatch(CNetworkManagerClient *client, const QList<QDBusMessage> &calls,
                       const CTimeLimit &limit, QObject *parent)
    : QObject(parent), m_client(client), m_calls(calls), m_limit(limit), m_next(0)
{
    const QDBusMessage unanswered =
        QDBusMessage::createError(QDBusError::NoReply, QLatin1String("not answered in time"));
    for (int i = 0; i < m_calls.size(); ++i) {
        m_replies.append(unanswered);
    }
}

void CCallBatch::Start()
{
    SendMore();
    if (m_underWay.isEmpty()) {
        emit Finished();
    }
}

void CCallBatch::SendMore()
{
    while (m_next < m_calls.size() && m_underWay.size() < mostUnderWay && m_limit.Remaining() > 0) {
        QDBusPendingCallWatcher *watcher =
            new QDBusPendingCallWatcher(m_client->Send(m_calls.at(m_next), m_limit.Remaining()), this);
        connect(watcher, SIGNAL(finished(QDBusPendingCallWatcher *)), this,
                SLOT(TakeReply(QDBusPendingCallWatcher *)));
        m_underWay.insert(watcher, m_next);
        ++m_next;
    }
}

void CCallBatch::TakeReply(QDBusPendingCallWatcher *watcher)
{
    m_replies[m_underWay.take(watcher)] = watcher->reply();
    watcher->deleteLater();
    SendMore();
    if (m_underWay.isEmpty()) {
        emit Finished();
    }
}
