#include "PriorityKeeper.h"

#include "FirstConnections.h"

#include <LivePicture.h>
#include <NetworkManagerClient.h>

#include <FileWatcher.h>
#include <IPriorityPlugin.h>
#include <ListRules.h>
#include <OrdinaryFile.h>
#include <PluginSearch.h>

#include <QStringList>

#include <limits>
#include <utility>

namespace
{

const int pauseMilliseconds = 100;

QString RecordsFile(const QString &userDirectory)
{
    return userDirectory.isEmpty() ? QString() : userDirectory + QLatin1String("NetworkManager.ini");
}

/** Whether there is an entry in the file, by its bytes. */
bool HasEntries(const QString &listPath)
{
    QByteArray bytes;
    return OrdinaryFile::Read(listPath, std::numeric_limits<int>::max(), &bytes) && bytes.contains("<item");
}

IPriorityPlugin *Priority()
{
    return qobject_cast<IPriorityPlugin *>(FindPluginObject(priorityClassId, PriorityInterface));
}

int ObstacleOf(const NetworkProfile &profile)
{
    return profile.isOthers     ? ObstacleOtherUsers
           : profile.isPassing  ? ObstaclePassing
           : profile.isReadOnly ? ObstacleNotAllowed
                                : ObstaclePassword;
}

/** The profiles as they are once all of that is written. */
QList<NetworkProfile> WithChanges(QList<NetworkProfile> profiles, const QList<PriorityChange> &changes)
{
    for (NetworkProfile &profile : profiles) {
        for (const PriorityChange &change : changes) {
            if (change.profile.path == profile.path) {
                profile.priority = change.priority;
            }
        }
    }
    return profiles;
}

} // namespace

CPriorityKeeper::CPriorityKeeper(CNetworkManagerClient *client, CLivePicture *picture,
                                 const QString &userDirectory, QObject *parent)
    : QObject(parent), m_client(client), m_picture(picture),
      m_listPath(userDirectory + QLatin1String("Priority.xml")), m_file(new FileWatcher(m_listPath, this)),
      m_rules(new FileWatcher(ListRules::FilePath(), this)), m_records(RecordsFile(userDirectory)),
      m_notice("IDS_WLAN_ORDER_TITLE"), m_writer(client, nullptr), m_metrics(client, nullptr),
      m_isTurnNew(false), m_isWaiting(false), m_isDueAgain(false)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(Begin()));

    connect(m_picture, SIGNAL(Changed()), this, SLOT(TakePicture()));
    connect(&m_writer, SIGNAL(Finished()), this, SLOT(TakeResults()));
    connect(&m_metrics, &CMetricKeeper::Finished, this, &CPriorityKeeper::TakeMetrics);
    connect(m_file, SIGNAL(Changed()), this, SLOT(Trigger()));
    connect(m_rules, SIGNAL(Changed()), this, SLOT(Trigger()));
    connect(m_client, SIGNAL(Appeared()), this, SLOT(Trigger()));
    m_client->Listen(CNetworkManagerClient::SettingsPath(), CNetworkManagerClient::SettingsInterface(),
                     QLatin1String("NewConnection"), QString(), this, SLOT(Trigger()));
    m_client->Listen(CNetworkManagerClient::ManagerPath(), CNetworkManagerClient::PropertiesInterface(),
                     QLatin1String("PropertiesChanged"), CNetworkManagerClient::ManagerInterface(), this,
                     SLOT(TakeManagerChange(QString, QVariantMap, QStringList)));
    m_client->Listen(QString(), CNetworkManagerClient::PropertiesInterface(),
                     QLatin1String("PropertiesChanged"), CNetworkManagerClient::ActiveConnectionInterface(),
                     this, SLOT(TakeConnectionChange(QString, QVariantMap, QStringList)));
    Trigger();
}

void CPriorityKeeper::Trigger()
{
    if (!m_pause.isActive()) {
        m_pause.start();
    }
}

void CPriorityKeeper::Forget(const QString &uuid)
{
    m_forgotten.insert(uuid);
    Trigger();
}

void CPriorityKeeper::DropForgotten()
{
    for (const QString &uuid : std::as_const(m_forgotten)) {
        m_records.Forget(uuid);
    }
    m_forgotten.clear();
    SaveRecords();
}

void CPriorityKeeper::BeginTurn()
{
    m_isTurnNew = true;
    Trigger();
}

void CPriorityKeeper::TakeManagerChange(const QString &, const QVariantMap &changed, const QStringList &)
{
    if (changed.contains(QLatin1String("ActiveConnections")) ||
        changed.contains(QLatin1String("PrimaryConnection"))) {
        Trigger();
    }
}

void CPriorityKeeper::TakeConnectionChange(const QString &, const QVariantMap &changed, const QStringList &)
{
    if (changed.contains(QLatin1String("State"))) {
        Trigger();
    }
}

void CPriorityKeeper::Begin()
{
    if (m_writer.IsWriting() || m_metrics.IsWorking()) {
        m_isDueAgain = true;
        return;
    }
    m_isWaiting = m_picture->IsOnItsWay();
    if (!m_isWaiting) {
        Compare();
    }
}

void CPriorityKeeper::TakePicture()
{
    if (m_isWaiting && !m_pause.isActive()) {
        Begin();
    }
}

void CPriorityKeeper::Compare()
{
    m_complaints.clear();
    m_outcome = OrderOutcome();
    m_outcome.stage = OrderOutcome::StageOrderDone;
    // Copies: whoever is told of what is done here may have the picture changed.
    const ConnectionPicture picture = m_picture->Now();
    if (picture.source != ConnectionState::SourceKnown) {
        Complain(QString::fromLatin1("the list is not compared: %1").arg(DescriptionOf(m_picture->Result())));
        m_isWaiting = true;
        emit Begun();
        Fail(OrderOutcome::FailureOrderSource);
        return;
    }
    if (m_picture->Shortfall() != NetworkManagerResultSuccess) {
        Complain(QString::fromLatin1("not all profiles are compared with the list: %1")
                     .arg(DescriptionOf(m_picture->Shortfall())));
    }
    if (!m_records.Open()) {
        m_isDueAgain = true;
        End();
        return;
    }
    DropForgotten();
    emit Begun();
    IPriorityPlugin *priority = Priority();
    QList<PriorityList> list;
    const bool isRead = priority && ReadList(priority, &list);
    const bool isRuling = ListRules::IsRuling();
    // What was there before is given back by a damaged list, too.
    if (!priority || (isRuling && !isRead)) {
        Fail(OrderOutcome::FailureOrderList);
    } else if (isRead && AddFirstConnections(priority, picture, list)) {
        SaveRecords();
        m_isDueAgain = true;
        End();
    } else {
        Write(picture, isRuling ? list : QList<PriorityList>());
    }
}

bool CPriorityKeeper::ReadList(IPriorityPlugin *priority, QList<PriorityList> *list)
{
    m_file->Note();
    m_rules->Note();
    switch (priority->GetPriorityList(list)) {
    case PriorityRead:
        // A priority plug-in that has been taken down answers with a list that is read and empty.
        return !list->isEmpty() || !HasEntries(m_listPath);
    case PriorityMissing:
        return true;
    default:
        // What can be read of a damaged list is not the list.
        return false;
    }
}

bool CPriorityKeeper::AddFirstConnections(IPriorityPlugin *priority, const ConnectionPicture &picture,
                                          const QList<PriorityList> &list)
{
    const QList<NetworkProfile> found =
        FirstConnections::Find(picture.profiles, picture.state.ConnectedProfiles(), list, &m_records);
    const ListRules::NewNetworks place = ListRules::PlaceOfNewNetworks();
    QList<PriorityList> entries;
    for (const NetworkProfile &profile : found) {
        m_records.connected.insert(profile.uuid);
        PriorityList entry;
        entry.name = profile.name;
        entry.type = profile.TypeText();
        entries.append(entry);
    }
    if (place == ListRules::NewNotInTheList || entries.isEmpty()) {
        return false;
    }
    if (place == ListRules::NewAtTheEnd) {
        priority->AddPriorityList(entries);
    } else {
        for (const PriorityList &entry : std::as_const(entries)) {
            priority->AddTopPriority(entry);
        }
    }
    return true;
}

void CPriorityKeeper::Write(const ConnectionPicture &picture, const QList<PriorityList> &list)
{
    const QList<NetworkProfile> &profiles = picture.profiles;
    const QList<NetworkProfile> ruled = TakeTurn(profiles, list);
    const PlannedPriorities planned = PriorityPlan::Make(list, ruled, &m_records.priorities);
    if (m_records.turn.list.isEmpty()) {
        KeepFormer(planned.changes);
    }
    const QList<NetworkProfile> yielded =
        m_records.turn.Contradicting(list, WithChanges(profiles, planned.changes));
    Tell(planned, yielded);
    for (const NetworkProfile &profile : yielded) {
        Keep(profile, ObstacleOtherList);
    }
    const QList<NetworkProfile> kept = planned.contradicting + planned.owing;
    for (const NetworkProfile &profile : kept) {
        Keep(profile, ObstacleOf(profile));
    }
    const QList<NetworkProfile> chosen = m_metrics.Plan(list, picture, &m_records.metrics);
    for (const NetworkProfile &profile : chosen) {
        Keep(profile, ObstacleOwnMetric);
        Complain(
            QString::fromLatin1("\"%1\" has a route metric that somebody has chosen, and that contradicts "
                                "the list")
                .arg(profile.name));
    }
    // Saved first: a priority that was written and not recorded could never be told from somebody else's.
    SaveRecords();
    m_changes = planned.changes;
    QList<ProfileValue> values;
    for (const PriorityChange &change : std::as_const(m_changes)) {
        values.append(ProfileValue::Priority(change.profile, change.priority));
    }
    m_writer.Start(values);
}

/** What a list of somebody else has written is nobody's own: it is not what is given back later. */
void CPriorityKeeper::KeepFormer(const QList<PriorityChange> &changes)
{
    for (const PriorityChange &change : changes) {
        const QString &uuid = change.profile.uuid;
        if (change.isListed && m_records.turn.before.contains(uuid)) {
            m_records.priorities[uuid].before = m_records.turn.before.value(uuid);
        }
    }
}

/** The profiles that the list rules now. */
QList<NetworkProfile> CPriorityKeeper::TakeTurn(const QList<NetworkProfile> &profiles,
                                                const QList<PriorityList> &list)
{
    m_list = PriorityTurn::NameOf(list);
    if (m_isTurnNew || m_records.turn.list != m_list) {
        m_records.turn = m_records.turn.Next();
    }
    m_isTurnNew = false;
    const QList<NetworkProfile> setRight = m_records.turn.TakeChanges(list, profiles, &m_records.priorities);
    for (const NetworkProfile &profile : setRight) {
        Complain(QString::fromLatin1("somebody else has set the priority of \"%1\" against the list: it is "
                                     "set right once")
                     .arg(profile.name));
    }
    m_left.clear();
    const QMap<QString, int> places = PriorityPlan::Places(list, profiles);
    for (const NetworkProfile &profile : profiles) {
        if (places.contains(profile.uuid)) {
            m_left.insert(profile.uuid, profile.priority);
        }
    }
    return m_records.turn.Ruled(profiles);
}

void CPriorityKeeper::SaveRecords()
{
    const QString complaint = QLatin1String("NetworkManager.ini can't be written: what this program has "
                                            "changed in NetworkManager will be forgotten when it ends");
    if (!m_records.Save() && !m_complaints.contains(complaint)) {
        Complain(complaint);
    }
}

void CPriorityKeeper::Tell(const PlannedPriorities &planned, const QList<NetworkProfile> &yielded)
{
    for (const NetworkProfile &profile : yielded) {
        Complain(
            QString::fromLatin1("\"%1\" does not have its place: somebody else's list or program has set "
                                "its priority again")
                .arg(profile.name));
    }
    for (const NetworkProfile &profile : planned.contradicting) {
        Complain(QString::fromLatin1("\"%1\" can't be changed, and its priority contradicts the list")
                     .arg(profile.name));
    }
    for (const NetworkProfile &profile : planned.overtaking) {
        Complain(QString::fromLatin1("\"%1\" is not in the list and comes before entries of it: there are no "
                                     "greater priorities for these")
                     .arg(profile.name));
    }
    const QSet<QString> told = m_records.told;
    m_records.told.clear();
    const QString fixed = FirstUntold(planned.contradicting, told);
    const QString overtaking = FirstUntold(planned.overtaking, told);
    const QString other = FirstUntold(yielded, told);
    if (!fixed.isNull()) {
        m_notice.Tell(planned.contradicting.size() == 1 ? "IDS_WLAN_ORDER_FIXED" : "IDS_WLAN_ORDER_SEVERAL",
                      fixed);
    }
    if (!overtaking.isNull()) {
        m_notice.Tell("IDS_WLAN_ORDER_OVERTAKEN", overtaking);
    }
    if (!other.isNull()) {
        m_notice.Tell("IDS_WLAN_ORDER_OTHER", other);
    }
}

QString CPriorityKeeper::FirstUntold(const QList<NetworkProfile> &profiles, const QSet<QString> &told)
{
    // Who is not told now is told when there is a window.
    const bool hasAudience = CUserNotice::HasAudience();
    QString first;
    for (const NetworkProfile &profile : profiles) {
        const bool isTold = told.contains(profile.uuid);
        if (isTold || hasAudience) {
            m_records.told.insert(profile.uuid);
        }
        if (!isTold && hasAudience && first.isNull()) {
            first = profile.name;
        }
    }
    return first;
}

void CPriorityKeeper::TakeResults()
{
    const QList<NetworkManagerResult> results = m_writer.Results();
    for (int i = 0; i < results.size(); ++i) {
        const PriorityChange &change = m_changes.at(i);
        if (results.at(i) == NetworkManagerResultChangedMeanwhile) {
            m_isDueAgain = true;
        } else if (results.at(i) == NetworkManagerResultSuccess) {
            OrderChange made;
            made.name = change.profile.name;
            made.before = change.profile.priority;
            made.after = change.priority;
            m_outcome.changes.append(made);
            if (change.isListed) {
                m_left.insert(change.profile.uuid, change.priority);
                m_records.turn.left.insert(change.profile.uuid, change.priority);
            }
        } else {
            Keep(change.profile, CPriorityWriter::ObstacleOf(results.at(i)));
            Complain(QString::fromLatin1("the priority of \"%1\" is not changed: %2")
                         .arg(change.profile.name, DescriptionOf(results.at(i))));
        }
    }
    if (!m_isDueAgain) {
        m_records.turn.left = m_left;
        m_records.turn.list = m_list;
    }
    m_metrics.Start(&m_records.metrics);
}

void CPriorityKeeper::TakeMetrics()
{
    for (const CMetricKeeper::Failure &failure : m_metrics.Failures()) {
        Keep(failure.profile, CPriorityWriter::ObstacleOf(failure.result));
        Complain(QString::fromLatin1("the route metric of \"%1\" is not changed: %2")
                     .arg(failure.profile.name, DescriptionOf(failure.result)));
    }
    m_isDueAgain = m_isDueAgain || m_metrics.IsDueAgain();
    SaveRecords();
    End();
}

void CPriorityKeeper::Keep(const NetworkProfile &profile, int obstacle)
{
    m_outcome.kept.append(CPriorityWriter::KeptOf(profile, obstacle));
}

/** Nothing could be compared. */
void CPriorityKeeper::Fail(int failure)
{
    m_outcome.stage = OrderOutcome::StageOrderFailed;
    m_outcome.failure = failure;
    End();
}

void CPriorityKeeper::Complain(const QString &text)
{
    m_complaints.append(text);
}

void CPriorityKeeper::End()
{
    m_records.Close();
    m_log.Tell(m_complaints);
    emit Ended(m_outcome, m_isDueAgain);
    if (m_isDueAgain) {
        m_isDueAgain = false;
        Trigger();
    }
}
