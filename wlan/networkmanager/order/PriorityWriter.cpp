#include "PriorityWriter.h"

#include <CallBatch.h>
#include <NetworkManagerClient.h>
#include <ProfileUpdate.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QEvent>

namespace
{

// Nobody waits, and writing a profile takes its time.
const int readMilliseconds = 10000;
const int writeMilliseconds = 60000;
const int restMilliseconds = 500;

QString ConnectionSection()
{
    return QLatin1String("connection");
}

const char *const priorityKey = "autoconnect-priority";

/** Whether all that a priority depends on is as it was when it was planned. */
bool IsAsPlanned(const NMVariantMapMap &planned, const NMVariantMapMap &now)
{
    for (const char *key : {"id", "type", "uuid", "permissions", priorityKey}) {
        if (planned.value(ConnectionSection()).value(QLatin1String(key)) !=
            now.value(ConnectionSection()).value(QLatin1String(key))) {
            return false;
        }
    }
    return true;
}

bool IsUnanswered(NetworkManagerResult result)
{
    return result == NetworkManagerResultNotAnswering || result == NetworkManagerResultNotRunning ||
           result == NetworkManagerResultNoBus;
}

} // namespace

CPriorityWriter::CPriorityWriter(CNetworkManagerClient *client, QObject *parent)
    : QObject(parent), m_client(client), m_batch(nullptr), m_isWriting(false), m_isSent(false)
{
    m_client->Listen(QString(), CNetworkManagerClient::ProfileInterface(), QLatin1String("Updated"),
                     QString(), this, SLOT(TakeUpdate(QDBusMessage)));
}

ProfileValue ProfileValue::Priority(const NetworkProfile &profile, int priority)
{
    return {profile, QLatin1String(priorityKey), priority};
}

ProfileValue ProfileValue::ConnectsByItself(const NetworkProfile &profile, bool isOn)
{
    return {profile, QLatin1String("autoconnect"), isOn};
}

int CPriorityWriter::ObstacleOf(NetworkManagerResult result)
{
    switch (result) {
    case NetworkManagerResultNotAnswering:
    case NetworkManagerResultNotRunning:
    case NetworkManagerResultNoBus:
        return ObstacleNoAnswer;
    case NetworkManagerResultPermissionDenied:
        return ObstacleNotAllowed;
    default:
        return ObstacleRefused;
    }
}

OrderKept CPriorityWriter::KeptOf(const NetworkProfile &profile, int obstacle)
{
    OrderKept kept;
    kept.name = profile.name;
    kept.obstacle = obstacle;
    kept.profileId = profile.path;
    return kept;
}

void CPriorityWriter::Start(const QList<ProfileValue> &values)
{
    m_values = values;
    m_results.clear();
    m_isWriting = true;
    Next();
}

void CPriorityWriter::Next()
{
    if (m_results.size() == m_values.size()) {
        m_isWriting = false;
        emit Finished();
        return;
    }
    if (IsAtRest(Current().profile)) {
        Ask(CNetworkManagerClient::Call(Current().profile.path, CNetworkManagerClient::ProfileInterface(),
                                        QLatin1String("GetSettings")),
            readMilliseconds, SLOT(TakeSettings()));
    } else {
        Note(NetworkManagerResultChangedMeanwhile);
    }
}

bool CPriorityWriter::IsAtRest(const NetworkProfile &profile) const
{
    return profile.version != 0 || !m_changed.contains(profile.path) ||
           m_changed.value(profile.path).hasExpired(restMilliseconds);
}

void CPriorityWriter::Ask(const QDBusMessage &call, int limitMilliseconds, const char *slot)
{
    if (m_batch) {
        // It is still telling that it has finished.
        m_batch->deleteLater();
    }
    m_batch = new CCallBatch(m_client, QList<QDBusMessage>() << call, CTimeLimit(limitMilliseconds), this);
    connect(m_batch, SIGNAL(Finished()), this, slot);
    m_batch->Start();
}

void CPriorityWriter::TakeSettings()
{
    // The word of a change may have arrived with the settings.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    const QDBusMessage reply = m_batch->Replies().at(0);
    const NetworkManagerResult result = ResultOf(reply, NetworkProfile::Signature());
    m_client->Note(result);
    if (result != NetworkManagerResultSuccess) {
        Note(result);
        return;
    }
    const NetworkProfile &profile = Current().profile;
    NMVariantMapMap settings = qdbus_cast<NMVariantMapMap>(reply.arguments().at(0).value<QDBusArgument>());
    if (!IsAtRest(profile) || !IsAsPlanned(profile.settings, settings)) {
        Note(NetworkManagerResultChangedMeanwhile);
        return;
    }
    // The version is older than these settings, or theirs.
    settings[ConnectionSection()].insert(Current().key, Current().value);
    m_isSent = true;
    Ask(ProfileUpdate::Call(profile, settings), writeMilliseconds, SLOT(TakeReply()));
}

void CPriorityWriter::TakeReply()
{
    m_isSent = false;
    Note(ResultOf(m_batch->Replies().at(0), ProfileUpdate::signature));
}

void CPriorityWriter::TakeUpdate(const QDBusMessage &signal)
{
    if (!m_isSent || signal.path() != Current().profile.path) {
        m_changed[signal.path()].start();
    }
}

void CPriorityWriter::Note(NetworkManagerResult result)
{
    do {
        m_results.append(result);
    } while (IsUnanswered(result) && m_results.size() < m_values.size());
    Next();
}
