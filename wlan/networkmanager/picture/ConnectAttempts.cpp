#include "ConnectAttempts.h"

#include "LivePicture.h"

#include <NetworkManagerClient.h>
#include <ProfileUpdate.h>

#include <NetworkManagerQt/Setting>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <algorithm>

namespace
{

// Somebody may be asked for a password first.
const int orderMilliseconds = 120000;

QVariant PathArgument(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path.isEmpty() ? QLatin1String("/") : path));
}

QDBusMessage ManagerCall(const char *method)
{
    return CNetworkManagerClient::Call(CNetworkManagerClient::ManagerPath(),
                                       CNetworkManagerClient::ManagerInterface(), QLatin1String(method));
}

int FailureOf(NetworkManagerResult result)
{
    switch (result) {
    case NetworkManagerResultPermissionDenied:
        return FailureNotAllowed;
    case NetworkManagerResultNoBus:
    case NetworkManagerResultNotRunning:
    case NetworkManagerResultNotAnswering:
        return FailureSource;
    case NetworkManagerResultProfileRefused:
        return FailureRefused;
    default:
        return FailureOther;
    }
}

const ActiveConnection *Find(const QList<ActiveConnection> &connections, const QString &id)
{
    for (const ActiveConnection &connection : connections) {
        if (connection.id == id) {
            return &connection;
        }
    }
    return nullptr;
}

} // namespace

CConnectAttempts::CConnectAttempts(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent)
    : QObject(parent), m_client(client), m_picture(picture)
{
    connect(m_picture, SIGNAL(ConnectionMoved(QString)), this, SLOT(TakeMove(QString)));
    connect(m_picture, SIGNAL(ConnectionFailed(QString, int, int)), this,
            SLOT(TakeFailure(QString, int, int)));
    connect(m_picture, SIGNAL(Changed()), this, SLOT(TakePicture()));
}

int CConnectAttempts::Connect(const QString &name, const QString &profile, const QString &device)
{
    Attempt attempt;
    attempt.told.name = name;
    attempt.told.profileId = profile;
    return Begin(attempt, ActivationOf(profile, device));
}

QDBusMessage CConnectAttempts::ActivationOf(const QString &profile, const QString &device)
{
    QDBusMessage call = ManagerCall("ActivateConnection");
    call << PathArgument(profile) << PathArgument(device) << PathArgument(QString());
    return call;
}

int CConnectAttempts::ConnectNew(const NMVariantMapMap &settings, const QString &device,
                                 const QString &accessPoint)
{
    Attempt attempt;
    attempt.told.name = settings.value(QLatin1String("connection")).value(QLatin1String("id")).toString();
    attempt.isNew = true;
    QVariantMap options;
    options.insert(QLatin1String("persist"), QLatin1String("volatile"));
    QDBusMessage call = ManagerCall("AddAndActivateConnection2");
    call << QVariant::fromValue(settings) << PathArgument(device) << PathArgument(accessPoint) << options;
    return Begin(attempt, call);
}

int CConnectAttempts::Disconnect(const ActiveConnection &connection)
{
    Attempt attempt;
    attempt.told.name = connection.name;
    attempt.told.profileId = connection.profileId;
    attempt.told.stage = StageDisconnecting;
    attempt.connection = connection.id;
    attempt.isToEnd = true;
    QDBusMessage call = ManagerCall("DeactivateConnection");
    call << PathArgument(connection.id);
    return Begin(attempt, call);
}

int CConnectAttempts::Forget(const ConnectionProfile &profile)
{
    Attempt attempt;
    attempt.told.name = profile.name;
    attempt.told.profileId = profile.id;
    attempt.told.stage = StageForgetting;
    attempt.isToForget = true;
    attempt.lastingId = profile.lastingId;
    return Begin(attempt, CNetworkManagerClient::Call(profile.id, CNetworkManagerClient::ProfileInterface(),
                                                      QLatin1String("Delete")));
}

int CConnectAttempts::Begin(const Attempt &attempt, const QDBusMessage &call)
{
    const int number = static_cast<int>(m_attempts.size()) + 1;
    m_attempts.insert(number, attempt);
    if (attempt.told.stage == StageNotKnown) {
        m_attempts[number].told.stage = StagePreparing;
    }
    Send(number, call);
    return number;
}

void CConnectAttempts::Send(int number, const QDBusMessage &call)
{
    QDBusPendingCallWatcher *watcher =
        new QDBusPendingCallWatcher(m_client->Send(call, orderMilliseconds), this);
    connect(watcher, SIGNAL(finished(QDBusPendingCallWatcher *)), this,
            SLOT(TakeReply(QDBusPendingCallWatcher *)));
    m_calls.insert(watcher, number);
}

void CConnectAttempts::Cancel(int number)
{
    if (!m_attempts.contains(number)) {
        return;
    }
    Attempt &attempt = m_attempts[number];
    if (!IsUnderWay(attempt) || attempt.isToEnd || attempt.isToForget || attempt.isCancelled ||
        attempt.isBeingStored) {
        return;
    }
    attempt.isCancelled = true;
    if (m_picture->Now().source != ConnectionState::SourceKnown) {
        // Nobody can say what will become of it.
        End(number, StageFailed, FailureSource);
    } else if (!attempt.connection.isEmpty()) {
        SendEnd(attempt.connection);
    }
}

void CConnectAttempts::SendEnd(const QString &connection)
{
    QDBusMessage call = ManagerCall("DeactivateConnection");
    call << PathArgument(connection);
    m_client->Tell(call);
}

void CConnectAttempts::TakeReply(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const int number = m_calls.take(watcher);
    const QDBusMessage reply = watcher->reply();
    Attempt &attempt = m_attempts[number];
    if (!IsUnderWay(attempt)) {
        return;
    }
    const char *signature = attempt.isNew ? "ooa{sv}" : "o";
    if (attempt.isBeingStored) {
        signature = ProfileUpdate::signature;
    } else if (attempt.isToEnd || attempt.isToForget) {
        signature = "";
    }
    const NetworkManagerResult result = ResultOf(reply, signature);
    if (attempt.isToForget) {
        TakeForgetting(number, result);
    } else if (attempt.isBeingStored) {
        End(number, StageConnected, result == NetworkManagerResultSuccess ? FailureNone : FailureNotStored);
    } else if (result != NetworkManagerResultSuccess) {
        m_client->Note(result);
        TakeRefusal(number, result);
    } else if (attempt.isToEnd) {
        m_picture->Now();
        Follow(number);
    } else {
        TakeConnection(number, reply);
    }
}

/** A call that is not answered does not tell of NetworkManager: somebody may still be asked for a password.
 */
void CConnectAttempts::TakeForgetting(int number, NetworkManagerResult result)
{
    const Attempt attempt = m_attempts.value(number);
    // NetworkManager tells that a profile is gone before it answers. Somebody else may have deleted it, too.
    const ConnectionPicture &picture = m_picture->Now();
    const bool isThere = std::any_of(
        picture.profiles.constBegin(), picture.profiles.constEnd(),
        [&attempt](const NetworkProfile &profile) { return profile.path == attempt.told.profileId; });
    if (!IsUnderWay(m_attempts.value(number))) {
        return;
    }
    if (result == NetworkManagerResultSuccess ||
        (picture.source == ConnectionState::SourceKnown && !isThere)) {
        emit Forgotten(attempt.lastingId);
        End(number, StageForgotten, FailureNone);
    } else {
        End(number, StageFailed, FailureOf(result));
    }
}

void CConnectAttempts::TakeRefusal(int number, NetworkManagerResult result)
{
    // Falling silent may have ended it.
    if (!IsUnderWay(m_attempts.value(number))) {
        return;
    }
    if (m_attempts.value(number).isToEnd &&
        !Find(m_picture->Records().connections, m_attempts.value(number).connection)) {
        // It has ended by itself meanwhile.
        End(number, StageDisconnected, FailureNone);
    } else {
        End(number, StageFailed, FailureOf(result));
    }
}

void CConnectAttempts::TakeConnection(int number, const QDBusMessage &reply)
{
    Attempt &attempt = m_attempts[number];
    const QList<QVariant> arguments = reply.arguments();
    if (attempt.isNew) {
        attempt.told.profileId = arguments.at(0).value<QDBusObjectPath>().path();
    }
    attempt.connection = arguments.at(attempt.isNew ? 1 : 0).value<QDBusObjectPath>().path();
    emit Taken(attempt.connection);
    if (attempt.isCancelled) {
        SendEnd(attempt.connection);
    }
    // NetworkManager tells of the connection before it answers, so it has come and gone if it isn't there.
    m_picture->Now();
    Follow(number);
}

void CConnectAttempts::TakeMove(const QString &connection)
{
    const QList<int> numbers = NumbersUnderWay();
    for (int number : numbers) {
        if (m_attempts.value(number).connection == connection) {
            Follow(number);
        }
    }
}

void CConnectAttempts::Follow(int number)
{
    Attempt &attempt = m_attempts[number];
    if (!IsUnderWay(attempt) || attempt.isBeingStored ||
        m_picture->Now().source != ConnectionState::SourceKnown) {
        return;
    }
    const ActiveConnection *connection = Find(m_picture->Records().connections, attempt.connection);
    if (!connection) {
        TakeEnding(number);
    } else if (!attempt.isToEnd && connection->stage == StageConnected) {
        if (attempt.isNew && !attempt.isCancelled) {
            Store(number);
        } else if (!attempt.isCancelled) {
            End(number, StageConnected, FailureNone);
        }
    } else if (!attempt.isToEnd && connection->stage < StageConnected &&
               connection->stage != attempt.told.stage) {
        attempt.told.stage = connection->stage;
        emit Changed();
    }
}

void CConnectAttempts::TakeEnding(int number)
{
    const Attempt attempt = m_attempts.value(number);
    if (attempt.isToEnd) {
        End(number, StageDisconnected, FailureNone);
    } else if (attempt.isCancelled) {
        End(number, StageCancelled, FailureNone);
    } else {
        const Ending unknown = {StageNotKnown, FailureOther};
        const Ending ending = m_endings.value(attempt.connection, unknown);
        if (ending.stage != StageNotKnown) {
            m_attempts[number].told.stage = ending.stage;
        }
        End(number, StageFailed, ending.failure);
    }
}

void CConnectAttempts::Store(int number)
{
    Attempt &attempt = m_attempts[number];
    attempt.isBeingStored = true;
    QDBusMessage call = CNetworkManagerClient::Call(
        attempt.told.profileId, CNetworkManagerClient::ProfileInterface(), QLatin1String("Update2"));
    // No settings: they stay as they are, the key included.
    const unsigned int toDisk = NM_SETTINGS_UPDATE2_FLAG_TO_DISK;
    call << QVariant::fromValue(NMVariantMapMap()) << toDisk << QVariantMap();
    Send(number, call);
}

void CConnectAttempts::TakeFailure(const QString &connection, int stage, int failure)
{
    const Ending ending = {stage, failure};
    if (!m_endings.contains(connection) && !m_calls.isEmpty()) {
        m_endings.insert(connection, ending);
    }
    const QList<int> numbers = NumbersUnderWay();
    for (int number : numbers) {
        if (m_attempts.value(number).connection == connection) {
            m_endings.insert(connection, m_endings.value(connection, ending));
            TakeEnding(number);
        }
    }
}

void CConnectAttempts::TakePicture()
{
    const int source = m_picture->Now().source;
    const QList<int> numbers = NumbersUnderWay();
    for (int number : numbers) {
        if (source == ConnectionState::SourceGone) {
            End(number, StageFailed, FailureSource);
        } else if (source == ConnectionState::SourceKnown && !m_attempts.value(number).connection.isEmpty()) {
            // The stage is that of the device, which moves on by itself.
            Follow(number);
        }
    }
}

void CConnectAttempts::End(int number, int stage, int failure)
{
    Attempt &attempt = m_attempts[number];
    attempt.told.failedStage = stage == StageFailed ? attempt.told.stage : int(StageNotKnown);
    attempt.told.stage = stage;
    attempt.told.failure = failure;
    m_endings.remove(attempt.connection);
    if (NumbersUnderWay().isEmpty()) {
        m_endings.clear();
    }
    emit Changed();
}

QList<int> CConnectAttempts::NumbersUnderWay() const
{
    QList<int> numbers;
    for (QMap<int, Attempt>::const_iterator i = m_attempts.constBegin(); i != m_attempts.constEnd(); ++i) {
        if (IsUnderWay(i.value())) {
            numbers.append(i.key());
        }
    }
    return numbers;
}

bool CConnectAttempts::IsUnderWay(const Attempt &attempt)
{
    const int stage = attempt.told.stage;
    return stage == StageForgetting ||
           (stage != StageNotKnown && stage != StageConnected && stage < StageDisconnected);
}
