#include "PriorityKeeper.h"

#include "CallBatch.h"
#include "FirstConnections.h"
#include "NetworkManagerClient.h"
#include "ProfileReader.h"
#include "ProfileUpdate.h"

#include <FileWatcher.h>
#include <IPriorityPlugin.h>
#include <OrdinaryFile.h>
#include <PluginSearch.h>

#include <QStringList>

#include <limits>

namespace
{

const int pauseMilliseconds = 100;
const int retryMilliseconds = 10000;
// Nobody waits, and writing a profile takes its time.
const int readMilliseconds = 10000;
const int writeMilliseconds = 60000;

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

QDBusMessage WriteCall(const PriorityChange &change)
{
    NMVariantMapMap settings = change.profile.settings;
    settings[QLatin1String("connection")].insert(QLatin1String("autoconnect-priority"), change.priority);
    return ProfileUpdate::Call(change.profile, settings);
}

} // namespace

CPriorityKeeper::CPriorityKeeper(CNetworkManagerClient *client, const QString &userDirectory, QObject *parent)
    : QObject(parent), m_client(client), m_listPath(userDirectory + QLatin1String("Priority.xml")),
      m_file(new FileWatcher(m_listPath, this)), m_records(RecordsFile(userDirectory)), m_reader(nullptr),
      m_batch(nullptr), m_isDueAgain(false)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(Begin()));
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryMilliseconds);
    connect(&m_retry, SIGNAL(timeout()), this, SLOT(Begin()));

    connect(m_file, SIGNAL(Changed()), this, SLOT(Trigger()));
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

void CPriorityKeeper::StartAgain()
{
    if (m_reader) {
        m_reader->disconnect(this);
        m_reader->deleteLater();
        m_reader = nullptr;
    }
    delete m_batch;
    m_batch = nullptr;
    m_changes.clear();
    Trigger();
}

void CPriorityKeeper::TakeManagerChange(const QString &, const QVariantMap &changed, const QStringList &)
{
    if (changed.contains(QLatin1String("ActiveConnections"))) {
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
    if (m_reader || m_batch) {
        m_isDueAgain = true;
        return;
    }
    m_retry.stop();
    m_complaints.clear();
    m_reader = new CProfileReader(m_client, CTimeLimit(readMilliseconds), this);
    connect(m_reader, SIGNAL(Finished()), this, SLOT(TakeProfiles()));
    m_reader->Start();
}

void CPriorityKeeper::TakeProfiles()
{
    const NetworkManagerResult result = m_reader->Result();
    QList<PriorityList> list;
    if (result != NetworkManagerResultSuccess) {
        Complain(QString::fromLatin1("the list is not compared: %1").arg(DescriptionOf(result)));
        m_retry.start();
        End();
        return;
    }
    if (m_reader->Shortfall() != NetworkManagerResultSuccess) {
        Complain(QString::fromLatin1("not all profiles are compared with the list: %1")
                     .arg(DescriptionOf(m_reader->Shortfall())));
    }
    if (!ReadList(&list)) {
        End();
        return;
    }
    if (RaiseFirstConnections(list)) {
        list.clear();
        ReadList(&list);
    }
    // Whoever is told of a new first entry may have changed a profile.
    if (m_reader) {
        Write(list);
    }
}

bool CPriorityKeeper::ReadList(QList<PriorityList> *list)
{
    m_file->Note();
    IPriorityPlugin *priority =
        qobject_cast<IPriorityPlugin *>(FindPluginObject(priorityClassId, PriorityInterface));
    if (!priority) {
        return false;
    }
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

bool CPriorityKeeper::RaiseFirstConnections(const QList<PriorityList> &list)
{
    const QList<NetworkProfile> found =
        FirstConnections::Find(m_reader->Profiles(), m_reader->State().ConnectedProfiles(), list, &m_records);
    for (int i = 0; i < found.size(); ++i) {
        IPriorityPlugin *priority =
            qobject_cast<IPriorityPlugin *>(FindPluginObject(priorityClassId, PriorityInterface));
        if (!priority) {
            break;
        }
        PriorityList entry;
        entry.name = found.at(i).name;
        entry.type = found.at(i).TypeText();
        priority->AddTopPriority(entry);
        m_records.connected.insert(found.at(i).uuid);
    }
    return !found.isEmpty();
}

void CPriorityKeeper::Write(const QList<PriorityList> &list)
{
    const PlannedPriorities planned = PriorityPlan::Make(list, m_reader->Profiles(), &m_records.priorities);
    m_changes = planned.changes;
    for (const NetworkProfile &profile : planned.contradicting) {
        Complain(QString::fromLatin1("\"%1\" can't be changed, and its priority contradicts the list")
                     .arg(profile.name));
    }
    for (const NetworkProfile &profile : planned.overtaking) {
        Complain(QString::fromLatin1("\"%1\" is not in the list and comes before entries of it: there are no "
                                     "greater priorities for these")
                     .arg(profile.name));
    }
    // Saved first: a priority that was written and not recorded could never be told from somebody else's.
    if (!m_records.Save()) {
        Complain(QLatin1String(
            "NetworkManager.ini can't be written: what this program has changed in NetworkManager "
            "will be forgotten when it ends"));
    }
    QList<QDBusMessage> calls;
    for (int i = 0; i < m_changes.size(); ++i) {
        calls.append(WriteCall(m_changes.at(i)));
    }
    m_batch = new CCallBatch(m_client, calls, CTimeLimit(writeMilliseconds), this);
    connect(m_batch, SIGNAL(Finished()), this, SLOT(TakeReplies()));
    m_batch->Start();
}

void CPriorityKeeper::TakeReplies()
{
    const QList<QDBusMessage> replies = m_batch->Replies();
    for (int i = 0; i < replies.size(); ++i) {
        const NetworkManagerResult result = ResultOf(replies.at(i), ProfileUpdate::signature);
        if (result == NetworkManagerResultChangedMeanwhile) {
            m_isDueAgain = true;
        } else if (result != NetworkManagerResultSuccess) {
            Complain(QString::fromLatin1("the priority of \"%1\" is not changed: %2")
                         .arg(m_changes.at(i).profile.name, DescriptionOf(result)));
        }
    }
    End();
}

void CPriorityKeeper::Complain(const QString &text)
{
    m_complaints.append(text);
}

void CPriorityKeeper::End()
{
    m_log.Tell(m_complaints);
    if (m_reader) {
        m_reader->deleteLater();
        m_reader = nullptr;
    }
    if (m_batch) {
        m_batch->deleteLater();
        m_batch = nullptr;
    }
    m_changes.clear();
    if (m_isDueAgain) {
        m_isDueAgain = false;
        Trigger();
    }
}
