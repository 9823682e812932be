#include "ListFollower.h"

#include "HandConnections.h"
#include "PowerSupply.h"

#include <LivePicture.h>
#include <NetworkManagerClient.h>

#include <IPriorityPlugin.h>
#include <ListRules.h>
#include <PluginSearch.h>
#include <UserData.h>

#include <QDBusObjectPath>
#include <QDBusPendingCall>

#include <algorithm>
#include <utility>

namespace
{

const char lockName[] = "follow.use";
const qint64 millisecondsPerSecond = 1000;
// A program that has died leaves its lock behind, which nothing tells of.
const qint64 patienceWithOthers = 120000;
// The end of a program waits no longer.
const int handBackMilliseconds = 1000;

const ConnectionProfile *ProfileOf(const QString &id, const QList<ConnectionProfile> &profiles)
{
    const auto found = std::find_if(profiles.constBegin(), profiles.constEnd(),
                                    [&id](const ConnectionProfile &profile) { return profile.id == id; });
    return found == profiles.constEnd() ? nullptr : &*found;
}

bool HasConnection(const QString &profile, const QList<ActiveConnection> &connections)
{
    return std::any_of(connections.constBegin(), connections.constEnd(),
                       [&profile](const ActiveConnection &connection) {
                           return connection.profileId == profile && connection.stage != StageDisconnecting;
                       });
}

} // namespace

CListFollower::Turn::Turn(const QString &lockPath, const QString &listPath)
    : lock(lockPath), lockFile(lockPath, nullptr), listFile(listPath, nullptr)
{
    // However long it runs.
    lock.setStaleLockTime(0);
}

CListFollower::CListFollower(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent)
    : QObject(parent), m_client(client), m_picture(picture), m_ended("saving.ini", "ended"),
      m_attempts(client, picture, nullptr), m_rules(ListRules::FilePath(), nullptr)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_turn->isOnBattery = PowerSupply::IsOnBattery(PowerSupply::SystemDirectory());
        Step();
    });
    connect(&m_rules, &FileWatcher::Changed, this, &CListFollower::TakeRules);
    m_clock.start();
    TakeRules();
    if (!(m_turn && m_turn->isSaving) && !m_ended.Read().isEmpty()) {
        connect(m_picture, &CLivePicture::Changed, this, &CListFollower::HandBackLeft);
    }
}

CListFollower::~CListFollower()
{
    if (m_turn && m_turn->lock.isLocked()) {
        HandBack(UntilAnswered);
    }
}

void CListFollower::TakeRules()
{
    m_rules.Note();
    const bool isRuling = ListRules::IsRuling();
    const bool isFollowing = isRuling && ListRules::IsFollowing();
    const bool isSaving = isRuling && ListRules::IsSavingData();
    if (m_turn && m_turn->isSaving && !isSaving && m_turn->lock.isLocked()) {
        HandBack(WithoutWaiting);
    }
    if ((isFollowing || isSaving) && !m_turn) {
        Begin();
    } else if (!isFollowing && !isSaving && m_turn) {
        End();
    }
    if (m_turn) {
        m_turn->isFollowing = isFollowing;
        m_turn->isSaving = isSaving;
    }
}

void CListFollower::Begin()
{
    m_turn.reset(new Turn(UserData::FilePath(QLatin1String(lockName)),
                          UserData::FilePath(QLatin1String("Priority.xml"))));
    m_turn->isOnBattery = PowerSupply::IsOnBattery(PowerSupply::SystemDirectory());
    connect(&m_turn->lockFile, &FileWatcher::Changed, this, [this] {
        m_turn->sinceRefusal.invalidate();
        Step();
    });
    connect(&m_turn->listFile, &FileWatcher::Changed, this, [this] {
        m_turn->isListDue = true;
        Step();
    });
    connect(m_picture, &CLivePicture::Changed, this, &CListFollower::Step);
    connect(m_picture, &CLivePicture::ConnectionMoved, this, &CListFollower::Step);
    connect(&m_attempts, &CConnectAttempts::Changed, this, &CListFollower::Step);
    // The priority plug-in may not have begun.
    QMetaObject::invokeMethod(this, &CListFollower::Step, Qt::QueuedConnection);
}

void CListFollower::End()
{
    disconnect(m_picture, nullptr, this, nullptr);
    disconnect(&m_attempts, nullptr, this, nullptr);
    m_timer.stop();
    m_turn.reset();
}

bool CListFollower::HasTurn()
{
    if (m_turn->lock.isLocked()) {
        return true;
    }
    if (m_turn->sinceRefusal.isValid() && !m_turn->sinceRefusal.hasExpired(patienceWithOthers)) {
        return false;
    }
    m_turn->sinceRefusal.start();
    if (!m_turn->lock.tryLock(0)) {
        return false;
    }
    m_turn->ended = m_ended.Read();
    return true;
}

void CListFollower::ReadList()
{
    IPriorityPlugin *priority =
        qobject_cast<IPriorityPlugin *>(FindPluginObject(priorityClassId, PriorityInterface));
    if (!m_turn->isListDue || !priority) {
        return;
    }
    m_turn->isListDue = false;
    m_turn->listFile.Note();
    QList<PriorityList> list;
    // What can be read of a damaged list is not the list.
    const bool isRead = priority->GetPriorityList(&list) == PriorityRead;
    m_turn->list = isRead ? list : QList<PriorityList>();
}

void CListFollower::TellSwitch(int stage)
{
    if (stage == StageConnected && !m_turn->former.isEmpty()) {
        emit Switched(m_turn->name, std::exchange(m_turn->former, QString()));
    }
}

void CListFollower::Step()
{
    if (!m_turn || !HasTurn()) {
        return;
    }
    ReadList();
    // What has arrived meanwhile comes here again, so all is taken before the history is.
    const ConnectionRecords records = m_picture->Records();
    FollowView view = FollowView::Of(m_picture->Now(), records);
    view.byHand = HandConnections::Known();
    view.isOnBattery = m_turn->isOnBattery;
    const qint64 now = m_clock.elapsed() / millisecondsPerSecond;
    const qint64 forFollowing = m_turn->isFollowing ? FollowList(view, now) : 0;
    const qint64 forSaving = m_turn->isSaving ? SaveData(view, now) : 0;
    if (forFollowing == 0 && forSaving == 0) {
        m_timer.stop();
        return;
    }
    const qint64 next =
        forFollowing == 0 || forSaving == 0 ? forFollowing + forSaving : qMin(forFollowing, forSaving);
    m_timer.start(static_cast<int>(next * millisecondsPerSecond));
}

qint64 CListFollower::FollowList(const FollowView &view, qint64 now)
{
    FollowView ofTry = view;
    ofTry.tryStage = m_attempts.Result(m_try).stage;
    const FollowStep step = FollowRules::Next(m_turn->list, ofTry, now, m_turn->history);
    TellSwitch(ofTry.tryStage);
    m_turn->history = step.history;
    if (step.isScanDue) {
        m_picture->LookForNetworks();
    }
    if (!step.profile.isEmpty()) {
        const ConnectionProfile *profile = ProfileOf(step.profile, view.records.profiles);
        m_turn->name = profile ? profile->name : QString();
        m_turn->former = step.inUse;
        m_try = Connect(step.profile, step.device, view);
    }
    return step.lookAgainIn;
}

qint64 CListFollower::SaveData(const FollowView &view, qint64 now)
{
    const FallbackStep step = FallbackRules::Next(m_turn->list, view, now, m_turn->fallback);
    m_turn->fallback = step.history;
    NoteEnded(view, step);
    for (const ActiveConnection &connection : step.ended) {
        m_attempts.Disconnect(connection);
    }
    if (!step.profile.isEmpty()) {
        Connect(step.profile, step.device, view);
    }
    return step.lookAgainIn;
}

int CListFollower::Connect(const QString &profile, const QString &device, const FollowView &view)
{
    const ConnectionProfile *known = ProfileOf(profile, view.records.profiles);
    return m_attempts.Connect(known ? known->name : QString(), profile,
                              m_picture->Now().state.DevicePath(device));
}

/** Before anything is ended, so that nothing is forgotten if the program dies. */
void CListFollower::NoteEnded(const FollowView &view, const FallbackStep &step)
{
    QStringList ended = m_turn->ended;
    for (const ActiveConnection &connection : view.records.connections) {
        const ConnectionProfile *profile = ProfileOf(connection.profileId, view.records.profiles);
        if (profile && HasConnection(profile->id, view.records.connections)) {
            ended.removeAll(profile->lastingId);
        }
    }
    for (const ActiveConnection &connection : step.ended) {
        if (const ConnectionProfile *profile = ProfileOf(connection.profileId, view.records.profiles)) {
            ended.append(profile->lastingId);
        }
    }
    if (ended != m_turn->ended) {
        m_turn->ended = ended;
        m_ended.Write(ended);
    }
}

void CListFollower::HandBackLeft()
{
    if (m_picture->Now().source == ConnectionState::SourceNotKnown) {
        return;
    }
    disconnect(m_picture, &CLivePicture::Changed, this, &CListFollower::HandBackLeft);
    QLockFile lock(UserData::FilePath(QLatin1String(lockName)));
    lock.setStaleLockTime(0);
    // Who has the turn already knows of them.
    if ((m_turn && m_turn->lock.isLocked()) || lock.tryLock(0)) {
        HandBack(WithoutWaiting);
    }
}

void CListFollower::HandBack(Patience patience)
{
    const QStringList ended = m_ended.Read();
    if (ended.isEmpty()) {
        return;
    }
    if (m_picture->Now().source == ConnectionState::SourceNotKnown) {
        connect(m_picture, &CLivePicture::Changed, this, &CListFollower::HandBackLeft, Qt::UniqueConnection);
        return;
    }
    m_ended.Write(QStringList());
    if (m_turn) {
        m_turn->ended.clear();
        m_turn->fallback = FallbackHistory();
    }
    const ConnectionRecords records = m_picture->Records();
    for (const ConnectionProfile &profile : records.profiles) {
        if (!ended.contains(profile.lastingId) || !profile.connectsByItself ||
            profile.use != ConnectionProfile::UsePossible || HasConnection(profile.id, records.connections)) {
            continue;
        }
        QDBusPendingCall call = m_client->Send(
            CConnectAttempts::ActivationOf(profile.id, m_picture->Now().state.DevicePath(profile.device)),
            handBackMilliseconds);
        if (patience == UntilAnswered) {
            call.waitForFinished();
        }
    }
}
