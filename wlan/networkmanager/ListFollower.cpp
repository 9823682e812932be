#include "ListFollower.h"

#include "HandConnections.h"
#include "LivePicture.h"
#include "PowerSupply.h"

#include <IPriorityPlugin.h>
#include <ListRules.h>
#include <PluginSearch.h>
#include <UserData.h>

#include <utility>

namespace
{

const qint64 millisecondsPerSecond = 1000;
// A program that has died leaves its lock behind, which nothing tells of.
const qint64 patienceWithOthers = 120000;

} // namespace

CListFollower::Turn::Turn(const QString &lockPath, const QString &listPath)
    : lock(lockPath), lockFile(lockPath, nullptr), listFile(listPath, nullptr)
{
    // However long it runs.
    lock.setStaleLockTime(0);
}

CListFollower::CListFollower(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent)
    : QObject(parent), m_picture(picture), m_attempts(client, picture, nullptr),
      m_rules(ListRules::FilePath(), nullptr)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_turn->isOnBattery = PowerSupply::IsOnBattery(PowerSupply::SystemDirectory());
        Step();
    });
    connect(&m_rules, &FileWatcher::Changed, this, &CListFollower::TakeRules);
    m_clock.start();
    TakeRules();
}

void CListFollower::TakeRules()
{
    m_rules.Note();
    const bool isWanted = ListRules::IsFollowing() && ListRules::IsRuling();
    if (isWanted && !m_turn) {
        Begin();
    } else if (!isWanted && m_turn) {
        End();
    }
}

void CListFollower::Begin()
{
    m_turn.reset(new Turn(UserData::FilePath(QLatin1String("follow.use")),
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
    return m_turn->lock.tryLock(0);
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
    const ConnectionPicture picture = m_picture->Now();
    FollowView view = FollowView::Of(picture, records);
    view.byHand = HandConnections::Known();
    view.isOnBattery = m_turn->isOnBattery;
    view.tryStage = m_attempts.Result(m_try).stage;
    const FollowStep step =
        FollowRules::Next(m_turn->list, view, m_clock.elapsed() / millisecondsPerSecond, m_turn->history);
    TellSwitch(view.tryStage);
    m_turn->history = step.history;
    if (step.lookAgainIn == 0) {
        m_timer.stop();
    } else {
        m_timer.start(static_cast<int>(step.lookAgainIn * millisecondsPerSecond));
    }
    if (step.isScanDue) {
        m_picture->LookForNetworks();
    }
    if (!step.profile.isEmpty()) {
        m_turn->name.clear();
        for (const ConnectionProfile &profile : records.profiles) {
            m_turn->name = profile.id == step.profile ? profile.name : m_turn->name;
        }
        m_turn->former = step.inUse;
        m_try = m_attempts.Connect(m_turn->name, step.profile, picture.state.DevicePath(step.device));
    }
}
