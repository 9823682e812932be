#include "ProfileReader.h"

#include <CallBatch.h>
#include <NetworkManagerClient.h>

#include <QDBusArgument>

#include <algorithm>

namespace
{

bool IsGone(const QDBusMessage &reply)
{
    const char *const errors[] = {"org.freedesktop.DBus.Error.UnknownMethod",
                                  "org.freedesktop.DBus.Error.UnknownObject",
                                  "org.freedesktop.DBus.Error.UnknownInterface"};
    for (const char *error : errors) {
        if (reply.errorName() == QLatin1String(error)) {
            return true;
        }
    }
    return false;
}

} // namespace

CProfileReader::CProfileReader(CNetworkManagerClient *client, const CTimeLimit &limit, QObject *parent)
    : QObject(parent), m_client(client), m_limit(limit), m_batch(nullptr),
      m_result(NetworkManagerResultNotAnswering)
{
}

void CProfileReader::Start()
{
    if (m_client->IsSilent()) {
        Finish(NetworkManagerResultNotAnswering);
        return;
    }
    QList<QDBusMessage> calls;
    calls << ManagedObjects::Call() << CallerRights::Call();
    Ask(calls, SLOT(TakeState()));
}

void CProfileReader::Ask(const QList<QDBusMessage> &calls, const char *slot)
{
    if (m_batch) {
        // It may still be telling that it has finished.
        m_batch->deleteLater();
    }
    m_batch = new CCallBatch(m_client, calls, m_limit, this);
    connect(m_batch, SIGNAL(Finished()), this, slot);
    m_batch->Start();
}

void CProfileReader::TakeState()
{
    const QList<QDBusMessage> replies = m_batch->Replies();
    const NetworkManagerResult result = ResultOf(replies.at(0), ManagedObjects::signature);
    if (result != NetworkManagerResultSuccess) {
        Finish(result);
        return;
    }
    m_objects = ManagedObjects::FromReply(replies.at(0));
    m_state = NetworkManagerState::FromObjects(m_objects);
    if (ResultOf(replies.at(1), CallerRights::Signature()) == NetworkManagerResultSuccess) {
        m_rights = CallerRights::FromReply(replies.at(1));
    }
    QList<QDBusMessage> calls;
    for (int i = 0; i < m_state.profiles.size(); ++i) {
        calls.append(CNetworkManagerClient::Call(m_state.profiles.at(i).path,
                                                 CNetworkManagerClient::ProfileInterface(),
                                                 QLatin1String("GetSettings")));
    }
    Ask(calls, SLOT(TakeProfiles()));
}

void CProfileReader::TakeProfiles()
{
    const QList<QDBusMessage> replies = m_batch->Replies();
    const QString userName = CallerRights::UserName();
    NetworkManagerResult worst = NetworkManagerResultSuccess;
    for (int i = 0; i < replies.size(); ++i) {
        const NetworkManagerResult result = ResultOf(replies.at(i), NetworkProfile::Signature());
        if (result == NetworkManagerResultSuccess) {
            m_profiles.append(NetworkProfile::Make(
                m_state.profiles.at(i),
                qdbus_cast<NMVariantMapMap>(replies.at(i).arguments().at(0).value<QDBusArgument>()), m_rights,
                userName));
        } else if (result == NetworkManagerResultNotAnswering || result == NetworkManagerResultNotRunning ||
                   result == NetworkManagerResultNoBus) {
            worst = result;
        } else if (IsMissed(replies.at(i))) {
            m_missed.insert(m_state.profiles.at(i).path, result);
        }
    }
    std::sort(m_profiles.begin(), m_profiles.end(), NetworkProfile::ComesBefore);
    Finish(worst);
}

bool CProfileReader::IsMissed(const QDBusMessage &reply)
{
    const NetworkManagerResult result = ResultOf(reply, NetworkProfile::Signature());
    return result != NetworkManagerResultSuccess && result != NetworkManagerResultPermissionDenied &&
           !IsGone(reply);
}

void CProfileReader::Finish(NetworkManagerResult result)
{
    m_result = result;
    m_client->Note(result);
    emit Finished();
}
