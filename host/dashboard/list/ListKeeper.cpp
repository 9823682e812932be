#include "ListKeeper.h"

#include "DamagedFile.h"
#include "ListEdit.h"
#include "ListEntries.h"
#include "ListSource.h"
#include "OrderFile.h"
#include <DirectoryLock.h>

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
    /** @param known  the list as it was just read; null to read it here, where others are kept out. */
    Session(ListKeeper *keeper, const ListReading *known)
        : m_keeper(keeper), m_isDirectoryThere(keeper->m_file.Prepare()),
          m_lock(new DirectoryLock(keeper->m_file.Directory(), DirectoryLock::Changing)),
          m_listLock(new DirectoryLock(QFileInfo(keeper->m_listPath).path(), DirectoryLock::Changing,
                                       waitMilliseconds))
    {
        m_keeper->m_isBusy = true;
        // Without a directory nobody shares the history. It then lasts as long as the program.
        m_keeper->m_isHeldByOther = (m_isDirectoryThere && m_lock->IsRefused()) || m_listLock->IsRefused();
        m_isUsable = !m_keeper->m_isHeldByOther && m_keeper->m_file.Load(&m_keeper->m_history);
        if (known) {
            m_keeper->Take(*known);
        } else {
            m_keeper->ReadList();
        }
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
    QScopedPointer<DirectoryLock> m_listLock;
    bool m_isUsable;
};

ListKeeper::ListKeeper(const QString &userData, ListSource *source, QObject *parent)
    : QObject(parent), m_source(source), m_listPath(userData + QLatin1String("Priority.xml")),
      m_file(userData), m_isBusy(false), m_isHeldByOther(false)
{
    Follow();
}

void ListKeeper::Follow()
{
    // The keeper's own change is told like any other.
    if (m_isBusy) {
        return;
    }
    const int before = m_reading.status;
    ReadList();
    if (m_reading.status == PriorityNoPlugin) {
        if (before != m_reading.status) {
            emit Changed();
        }
        return;
    }
    if (IsListNew() || IsDamaged() || m_isHeldByOther || m_file.HasChanged()) {
        if (IsListNew()) {
            emit Coming(m_reading.entries);
        }
        // A whole list is one that there was. Anything else may be what another program is about to write.
        const Session session(this, m_reading.status == PriorityRead ? &m_reading : nullptr);
    } else if (m_reading.status != before) {
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
    Take(m_source->Read());
}

void ListKeeper::Take(const ListReading &reading)
{
    m_reading = reading;
    m_entries = ListEntries::Storable(reading.entries);
}

bool ListKeeper::IsListNew() const
{
    return IsWhole() && (m_history.IsEmpty() || !ListEntries::IsSame(m_entries, m_history.Entries()));
}

void ListKeeper::RecordIfNew(const PriorityList *moved)
{
    if (IsListNew()) {
        ListState state;
        state.time = TimeOfChange();
        state.entries = m_entries;
        state.moved = moved ? ListEdit::PlaceOf(*moved, m_entries) : MovedInHand();
        m_history.RecordJoined(state, m_opened);
        m_file.Save(&m_history);
    }
}

int ListKeeper::MovedInHand() const
{
    const int place = m_placeInHand ? m_placeInHand() : -1;
    const QList<ListDifference::Move> moves = ListDifference::OnlyMoves(m_history.Entries(), m_entries);
    for (const ListDifference::Move &move : moves) {
        if (move.to == place) {
            return place;
        }
    }
    return -1;
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

bool ListKeeper::IsWhole() const
{
    return m_reading.status == PriorityRead || m_reading.status == PriorityMissing;
}

bool ListKeeper::IsReadable() const
{
    return IsWhole() || IsDamaged();
}

ListKeeper::Obstacle ListKeeper::ChangeObstacle() const
{
    if (m_reading.status == PriorityNoPlugin) {
        return ListNotOffered;
    }
    if (!IsReadable()) {
        return ListNotOpened;
    }
    return IsHistoryUnusable() ? HistoryProblem() : NoObstacle;
}

ListKeeper::Obstacle ListKeeper::EditObstacle() const
{
    if (m_reading.status == PriorityNoPlugin) {
        return ListNotOffered;
    }
    if (IsDamaged()) {
        return ListDamaged;
    }
    return IsWhole() ? NoObstacle : ListNotOpened;
}

ListKeeper::Obstacle ListKeeper::UndoObstacle() const
{
    const Obstacle obstacle = ChangeObstacle();
    if (obstacle != NoObstacle) {
        return obstacle;
    }
    const bool canUndo = IsDamaged() ? !m_history.IsEmpty() : m_history.UndoPlace() >= 0;
    return canUndo ? NoObstacle : NothingToUndo;
}

ListKeeper::Obstacle ListKeeper::RedoObstacle() const
{
    const Obstacle obstacle = ChangeObstacle();
    if (obstacle != NoObstacle) {
        return obstacle;
    }
    if (CanBringBack()) {
        return NoRedoOfDamage;
    }
    return m_history.RedoPlace() >= 0 ? NoObstacle : NothingToRedo;
}

ListKeeper::Obstacle ListKeeper::Undo()
{
    const Session session(this, nullptr);
    const Obstacle obstacle = m_isHeldByOther ? ListBusy : UndoObstacle();
    if (obstacle != NoObstacle) {
        return obstacle;
    }
    return GoTo(IsDamaged() ? m_history.Position() : m_history.UndoPlace());
}

ListKeeper::Obstacle ListKeeper::Redo()
{
    const Session session(this, nullptr);
    const Obstacle obstacle = m_isHeldByOther ? ListBusy : RedoObstacle();
    return obstacle == NoObstacle ? GoTo(m_history.RedoPlace()) : obstacle;
}

ListKeeper::Obstacle ListKeeper::Restore(int place, const ListState &state)
{
    const Session session(this, nullptr);
    const Obstacle obstacle = m_isHeldByOther ? ListBusy : ChangeObstacle();
    if (obstacle != NoObstacle) {
        return obstacle;
    }
    const int position = m_history.Find(place, state);
    if (position < 0) {
        return StateGone;
    }
    const ListState &earlier = m_history.States().at(position);
    return Change(earlier.entries, earlier.time);
}

ListKeeper::Obstacle ListKeeper::Replace(const QList<PriorityList> &entries)
{
    const Session session(this, nullptr);
    const Obstacle obstacle = m_isHeldByOther ? ListBusy : ChangeObstacle();
    if (obstacle != NoObstacle) {
        return obstacle;
    }
    return Change(ListEntries::Storable(entries), QDateTime());
}

ListKeeper::Obstacle ListKeeper::Edit(const ListChange &change, const PriorityList *moved)
{
    const Session session(this, nullptr);
    const Obstacle obstacle = m_isHeldByOther ? ListBusy : EditObstacle();
    if (obstacle != NoObstacle) {
        return obstacle;
    }
    const QList<PriorityList> entries = ListEntries::Storable(change(m_entries));
    if (ListEntries::IsSame(m_entries, entries)) {
        return NoObstacle;
    }
    // If the program dies now, its next start finds the change in the list.
    const Obstacle problem = Write(entries);
    if (session.IsUsable()) {
        RecordIfNew(problem == NoObstacle ? moved : nullptr);
    }
    return problem;
}

ListKeeper::Obstacle ListKeeper::Change(const QList<PriorityList> &entries, const QDateTime &backTo)
{
    const ListHistory before = m_history;
    ListState state;
    state.time = Now();
    state.entries = entries;
    state.backTo = backTo;
    if (before.IsEmpty()) {
        const Obstacle problem = Write(state.entries);
        RecordIfNew();
        return problem;
    }
    if (ListEntries::IsSame(before.Entries(), state.entries)) {
        return GoTo(before.Position(), before);
    }
    // First the new state is only a target. If the program dies now, its next start finishes the change.
    m_history.Record(state);
    const int position = m_history.Position();
    m_history.GoTo(m_history.UndoPlace(), QDateTime());
    return GoTo(position, before);
}

ListKeeper::Obstacle ListKeeper::GoTo(int position)
{
    return GoTo(position, m_history, Now());
}

ListKeeper::Obstacle ListKeeper::GoTo(int position, ListHistory otherwise, const QDateTime &since)
{
    const QList<PriorityList> entries = m_history.States().at(position).entries;
    m_history.SetTarget(position);
    m_file.Save(&m_history);
    const Obstacle problem = Write(entries);
    if (problem == NoObstacle) {
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
    if (m_history.Target() < 0 || m_reading.status == PriorityNoPlugin) {
        return;
    }
    const QList<PriorityList> entries = m_history.States().at(m_history.Target()).entries;
    const bool isCutShort = IsDamaged() || !QFile::exists(m_listPath);
    if (isCutShort && Write(entries) != NoObstacle) {
        return;
    }
    const bool hasArrived = IsWhole() && ListEntries::IsSame(m_entries, entries);
    m_history.GoTo(hasArrived ? m_history.Target() : m_history.Position(), Now());
    m_file.Save(&m_history);
}

ListKeeper::Obstacle ListKeeper::Write(const QList<PriorityList> &entries)
{
    if (IsDamaged() && m_copyPath.isNull()) {
        return WriteObstacle();
    }
    emit Coming(entries);
    if (PrivateFile::Replace(m_listPath, OrderFile::Document(entries)) == PrivateFile::OutcomeDone) {
        m_source->FileReplaced();
    }
    ReadList();
    const bool isWritten = IsWhole() && ListEntries::IsSame(m_entries, entries);
    return isWritten ? NoObstacle : ListNotWritten;
}

void ListKeeper::KeepIfDamaged()
{
    // What another program is writing may only look damaged.
    m_copyPath = IsDamaged() && !m_isHeldByOther ? DamagedFile::Keep(m_listPath) : QString();
}

ListKeeper::Obstacle ListKeeper::WriteObstacle() const
{
    if (m_reading.status != PriorityNoPlugin && !IsReadable()) {
        return ListNotOpened;
    }
    if (!IsDamaged() || !m_copyPath.isNull()) {
        return NoObstacle;
    }
    return m_isHeldByOther ? ListBusy : ListNotKept;
}

bool ListKeeper::CanBringBack() const
{
    return IsDamaged() && UndoObstacle() == NoObstacle;
}

ListKeeper::Obstacle ListKeeper::BringBack()
{
    const Session session(this, nullptr);
    if (!IsDamaged()) {
        return WriteObstacle();
    }
    const Obstacle obstacle = m_isHeldByOther ? ListBusy : UndoObstacle();
    return obstacle == NoObstacle ? GoTo(m_history.Position()) : obstacle;
}

ListKeeper::Obstacle ListKeeper::GoOnWith(const QList<PriorityList> &entries)
{
    const Session session(this, nullptr);
    if (!IsDamaged()) {
        return WriteObstacle();
    }
    if (m_isHeldByOther || !ListEntries::IsSame(m_entries, entries)) {
        return ListBusy;
    }
    // The list doesn't depend on its history, which is left alone when it can't be used.
    return IsHistoryUnusable() ? Write(m_entries) : Change(m_entries, QDateTime());
}

ListKeeper::Obstacle ListKeeper::HistoryProblem() const
{
    switch (m_file.LastTrouble()) {
    case HistoryFile::Damaged:
        return HistoryDamaged;
    case HistoryFile::NotReadable:
        return HistoryNotReadable;
    case HistoryFile::NotWritable:
        return HistoryNotWritable;
    case HistoryFile::NoTrouble:
        break;
    }
    return NoObstacle;
}

bool ListKeeper::IsHistoryUnusable() const
{
    return m_file.LastTrouble() == HistoryFile::Damaged || m_file.LastTrouble() == HistoryFile::NotReadable;
}

ListKeeper::Obstacle ListKeeper::SetHistoryAside()
{
    {
        const Session session(this, nullptr);
        if (!IsHistoryUnusable()) {
            return NoObstacle;
        }
        if (m_isHeldByOther) {
            return ListBusy;
        }
        if (m_file.SetAside().isNull()) {
            return HistoryNotSetAside;
        }
    }
    Follow();
    return NoObstacle;
}
