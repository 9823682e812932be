#include "ListKeeper.h"

#include "BidiText.h"
#include "DamagedFile.h"
#include "DashboardText.h"
#include "ListChangeText.h"
#include "ListEntries.h"
#include "ListLock.h"
#include "OrderFile.h"
#include "PluginObjects.h"
#include "PriorityResult.h"

#include <IPriorityPlugin.h>
#include <PrivateFile.h>

#include <QFile>
#include <QFileInfo>
#include <QScopedPointer>

namespace
{

const int waitMilliseconds = 1000;

QDateTime WholeSeconds(const QDateTime &time)
{
    const QDateTime utc = time.toUTC();
    return utc.addMSecs(-utc.time().msec());
}

QDateTime Now()
{
    return WholeSeconds(QDateTime::currentDateTime());
}

} // namespace

class ListKeeper::Session
{
public:
    explicit Session(ListKeeper *keeper)
        : m_keeper(keeper), m_isDirectoryThere(keeper->m_file.Prepare()),
          m_lock(new DirectoryLock(keeper->m_file.Directory())),
          m_listLock(new ListLock(QFileInfo(keeper->m_listPath).path(), ListLock::Changing, waitMilliseconds))
    {
        m_keeper->m_isBusy = true;
        // Where nothing can be kept there is nobody to share it with: the history lives as long as the
        // program.
        m_keeper->m_isHeldByOther = (m_isDirectoryThere && !m_lock->IsHeld()) || m_listLock->IsRefused();
        m_isUsable = !m_keeper->m_isHeldByOther && m_keeper->m_file.Load(&m_keeper->m_history);
        m_keeper->ReadList();
        m_keeper->KeepIfDamaged();
        if (m_isUsable) {
            m_keeper->FinishInterrupted();
            m_keeper->RecordIfNew();
        }
    }

    ~Session()
    {
        m_keeper->m_isBusy = false;
        // Whoever is told may have the Wi-Fi plug-in work in the same directory, or begin a session.
        m_listLock.reset();
        m_lock.reset();
        emit m_keeper->Changed();
    }

    bool IsUsable() const { return m_isUsable; }

private:
    Q_DISABLE_COPY(Session)

    ListKeeper *const m_keeper;
    const bool m_isDirectoryThere;
    QScopedPointer<DirectoryLock> m_lock;
    QScopedPointer<ListLock> m_listLock;
    bool m_isUsable;
};

ListKeeper::ListKeeper(const QString &userData, QObject *parent)
    : QObject(parent), m_listPath(userData + QLatin1String("Priority.xml")), m_file(userData),
      m_reading(NoPlugin), m_isBusy(false), m_isHeldByOther(false)
{
    Follow();
}

void ListKeeper::Follow()
{
    // The keeper's own change is told like any other.
    if (m_isBusy) {
        return;
    }
    const Reading before = m_reading;
    ReadList();
    if (m_reading == NoPlugin) {
        if (before != NoPlugin) {
            emit Changed();
        }
        return;
    }
    if (IsListNew() || IsDamaged() || m_isHeldByOther || m_file.HasChanged()) {
        const Session session(this);
    } else if (m_reading != before) {
        emit Changed();
    }
}

void ListKeeper::BeginOpening()
{
    Follow();
    m_opened = Now();
}

void ListKeeper::EndOpening()
{
    Follow();
    m_opened = QDateTime();
}

void ListKeeper::ReadList()
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    QList<PriorityList> entries;
    const int status = priority ? priority->GetPriorityList(&entries) : PriorityMissing;
    if (!priority) {
        m_reading = NoPlugin;
    } else if (status == PriorityRead || status == PriorityMissing) {
        m_reading = Readable;
    } else {
        m_reading = status == PriorityDamaged ? Damaged : NotOpened;
    }
    m_entries = ListEntries::Storable(entries);
}

bool ListKeeper::IsListNew() const
{
    return m_reading == Readable &&
           (m_history.IsEmpty() || !ListEntries::IsSame(m_entries, m_history.Entries()));
}

void ListKeeper::RecordIfNew()
{
    if (IsListNew()) {
        ListState state;
        state.time = TimeOfChange();
        state.entries = m_entries;
        m_history.RecordJoined(state, m_opened);
        m_file.Save(&m_history);
    }
}

/** The file tells when a change was made that nobody watched. */
QDateTime ListKeeper::TimeOfChange() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QFileInfo file(m_listPath);
    const QDateTime written = file.lastModified();
    const bool isLikely =
        file.exists() && written <= now && (m_history.IsEmpty() || written >= m_history.Since());
    return WholeSeconds(isLikely ? written : now);
}

QString ListKeeper::ChangeObstacle() const
{
    if (m_reading == NoPlugin) {
        return DashboardText("IDS_UNDO_NO_PLUGIN");
    }
    if (m_reading == NotOpened) {
        return DashboardText("IDS_LIST_NOT_OPENED");
    }
    return IsHistoryUnusable() ? ProblemText() : QString();
}

QString ListKeeper::UndoObstacle() const
{
    QString obstacle = ChangeObstacle();
    if (!obstacle.isNull()) {
        return obstacle;
    }
    const bool canUndo = IsDamaged() ? !m_history.IsEmpty() : m_history.UndoPlace() >= 0;
    return canUndo ? QString() : DashboardText("IDS_UNDO_NOTHING");
}

QString ListKeeper::RedoObstacle() const
{
    QString obstacle = ChangeObstacle();
    if (!obstacle.isNull()) {
        return obstacle;
    }
    if (CanBringBack()) {
        return DashboardText("IDS_REDO_DAMAGED");
    }
    return m_history.RedoPlace() >= 0 ? QString() : DashboardText("IDS_REDO_NOTHING");
}

QString ListKeeper::UndoText() const
{
    if (!UndoObstacle().isNull()) {
        return QString();
    }
    if (IsDamaged()) {
        return DashboardText("IDS_CHANGE_DAMAGED");
    }
    return ListChangeText::DescribeStep(m_history.States(), m_history.UndoPlace(), m_history.Position());
}

QString ListKeeper::RedoText() const
{
    if (!RedoObstacle().isNull()) {
        return QString();
    }
    return ListChangeText::DescribeStep(m_history.States(), m_history.Position(), m_history.RedoPlace());
}

QString ListKeeper::LastChangeText() const
{
    if (!UndoObstacle().isNull() || IsDamaged()) {
        return QString();
    }
    const ListState &state = m_history.States().at(m_history.Position());
    return DashboardText("IDS_LAST_CHANGE").arg(UndoText(), ListChangeText::Moment(state.time));
}

QString ListKeeper::Undo()
{
    const Session session(this);
    QString obstacle = m_isHeldByOther ? DashboardText("IDS_LIST_BUSY") : UndoObstacle();
    if (!obstacle.isNull()) {
        return obstacle;
    }
    return GoTo(IsDamaged() ? m_history.Position() : m_history.UndoPlace());
}

QString ListKeeper::Redo()
{
    const Session session(this);
    QString obstacle = m_isHeldByOther ? DashboardText("IDS_LIST_BUSY") : RedoObstacle();
    return obstacle.isNull() ? GoTo(m_history.RedoPlace()) : obstacle;
}

QString ListKeeper::Restore(int place, const ListState &state)
{
    const Session session(this);
    QString obstacle = m_isHeldByOther ? DashboardText("IDS_LIST_BUSY") : ChangeObstacle();
    if (!obstacle.isNull()) {
        return obstacle;
    }
    const int position = m_history.Find(place, state);
    if (position < 0) {
        return DashboardText("IDS_RESTORE_GONE");
    }
    const ListState &earlier = m_history.States().at(position);
    return Change(earlier.entries, earlier.time);
}

QString ListKeeper::Replace(const QList<PriorityList> &entries)
{
    const Session session(this);
    QString obstacle = m_isHeldByOther ? DashboardText("IDS_LIST_BUSY") : ChangeObstacle();
    if (!obstacle.isNull()) {
        return obstacle;
    }
    return Change(ListEntries::Storable(entries), QDateTime());
}

QString ListKeeper::Change(const QList<PriorityList> &entries, const QDateTime &backTo)
{
    const ListHistory before = m_history;
    ListState state;
    state.time = Now();
    state.entries = entries;
    state.backTo = backTo;
    if (before.IsEmpty()) {
        QString problem = Write(state.entries);
        RecordIfNew();
        return problem;
    }
    if (ListEntries::IsSame(before.Entries(), state.entries)) {
        return GoTo(before.Position(), before);
    }
    // As a state to go to: then an end on the way is made good like that of an undo.
    m_history.Record(state);
    const int position = m_history.Position();
    m_history.GoTo(m_history.UndoPlace(), QDateTime());
    return GoTo(position, before);
}

QString ListKeeper::GoTo(int position)
{
    return GoTo(position, m_history, Now());
}

QString ListKeeper::GoTo(int position, ListHistory otherwise, const QDateTime &since)
{
    const QList<PriorityList> entries = m_history.States().at(position).entries;
    m_history.SetTarget(position);
    m_file.Save(&m_history);
    QString problem = Write(entries);
    if (problem.isNull()) {
        m_history.GoTo(m_history.Target(), since);
    } else {
        otherwise.SetTarget(-1);
        m_history = otherwise;
    }
    m_file.Save(&m_history);
    RecordIfNew();
    return problem;
}

void ListKeeper::FinishInterrupted()
{
    if (m_history.Target() < 0 || m_reading == NoPlugin) {
        return;
    }
    const QList<PriorityList> entries = m_history.States().at(m_history.Target()).entries;
    const bool isCutShort = IsDamaged() || !QFile::exists(m_listPath);
    if (isCutShort && !Write(entries).isNull()) {
        return;
    }
    const bool hasArrived = m_reading == Readable && ListEntries::IsSame(m_entries, entries);
    m_history.GoTo(hasArrived ? m_history.Target() : m_history.Position(), Now());
    m_file.Save(&m_history);
}

QString ListKeeper::Write(const QList<PriorityList> &entries)
{
    if (IsDamaged() && m_copyPath.isNull()) {
        return WriteObstacle();
    }
    if (PrivateFile::Replace(m_listPath, OrderFile::Document(entries)) == PrivateFile::OutcomeDone) {
        // Adding nothing has the plug-in write its file anew, and tell everybody.
        QList<PriorityList> nothing;
        PluginObjects::Priority()->AddPriorityList(nothing);
    }
    ReadList();
    const bool isWritten = m_reading == Readable && ListEntries::IsSame(m_entries, entries);
    return isWritten ? QString() : DashboardText("IDS_LIST_NOT_WRITTEN").arg(InOwnDirection(m_listPath));
}

void ListKeeper::KeepIfDamaged()
{
    // What another program is writing may only look damaged.
    m_copyPath = IsDamaged() && !m_isHeldByOther ? DamagedFile::Keep(m_listPath) : QString();
}

QString ListKeeper::WriteObstacle() const
{
    if (m_reading == NotOpened) {
        return DashboardText("IDS_LIST_NOT_OPENED");
    }
    if (!IsDamaged() || !m_copyPath.isNull()) {
        return QString();
    }
    return m_isHeldByOther ? DashboardText("IDS_LIST_BUSY")
                           : DashboardText("IDS_LIST_NOT_KEPT").arg(InOwnDirection(m_listPath));
}

bool ListKeeper::CanBringBack() const
{
    return IsDamaged() && UndoObstacle().isNull();
}

QString ListKeeper::BringBack()
{
    const Session session(this);
    if (!IsDamaged()) {
        return WriteObstacle();
    }
    QString obstacle = m_isHeldByOther ? DashboardText("IDS_LIST_BUSY") : UndoObstacle();
    return obstacle.isNull() ? GoTo(m_history.Position()) : obstacle;
}

QString ListKeeper::GoOnWith(const QList<PriorityList> &entries)
{
    const Session session(this);
    if (!IsDamaged()) {
        return WriteObstacle();
    }
    if (m_isHeldByOther || !ListEntries::IsSame(m_entries, entries)) {
        return DashboardText("IDS_LIST_BUSY");
    }
    // The list doesn't depend on its history, which is left alone when it can't be used.
    return IsHistoryUnusable() ? Write(m_entries) : Change(m_entries, QDateTime());
}

QString ListKeeper::ProblemText() const
{
    switch (m_file.LastTrouble()) {
    case HistoryFile::Damaged:
        return DashboardText("IDS_HISTORY_DAMAGED").arg(InOwnDirection(m_file.Path()), m_file.Fault().Text());
    case HistoryFile::NotReadable:
        return DashboardText("IDS_HISTORY_NOT_READABLE").arg(InOwnDirection(m_file.Path()));
    case HistoryFile::NotWritable:
        return DashboardText("IDS_HISTORY_NOT_WRITABLE").arg(InOwnDirection(m_file.Path()));
    case HistoryFile::NoTrouble:
        break;
    }
    return QString();
}

bool ListKeeper::IsHistoryUnusable() const
{
    return m_file.LastTrouble() == HistoryFile::Damaged || m_file.LastTrouble() == HistoryFile::NotReadable;
}

QString ListKeeper::SetHistoryAside()
{
    {
        const Session session(this);
        if (!IsHistoryUnusable()) {
            return QString();
        }
        if (m_isHeldByOther) {
            return DashboardText("IDS_LIST_BUSY");
        }
        if (m_file.SetAside().isNull()) {
            return DashboardText("IDS_HISTORY_NOT_SET_ASIDE").arg(InOwnDirection(m_file.Path()));
        }
    }
    Follow();
    return QString();
}
