#ifndef LISTKEEPER_H
#define LISTKEEPER_H

#include "HistoryFile.h"
#include "ListHistory.h"

#include <QObject>
#include <QString>

/**
 * Keeps the history of the priority list and takes the list back to its earlier states.
 *
 * Whoever changes the list, the change is found by comparing the list with the newest state: so changes that
 * were made while no dashboard ran are found too. A list that can't be read is no state; once it can be read
 * again, it is compared with what was there before. Whatever is found of a damaged list is copied beside it
 * as soon as it is seen: whoever changes the list then writes what could be read, and the rest would be lost.
 *
 * The list itself is the priority plug-in's. To change it as a whole, the keeper puts a new file in the place
 * of the earlier one, in one go, and then has the plug-in rewrite it through IPriorityPlugin, which tells
 * everybody who shows the list. What comes back with an earlier state are its entries in their order, in the
 * form in which the plug-in writes them; what somebody else had put around them in the file doesn't.
 *
 * Operations that can fail answer null, or in plain words of the current language why they did nothing.
 */
class ListKeeper : public QObject
{
    Q_OBJECT

public:
    /** @param userData  the user data directory with a trailing separator. */
    ListKeeper(const QString &userData, QObject *parent);

    const ListHistory &History() const { return m_history; }

    /** The list as it was last looked at. */
    QList<PriorityList> Entries() const { return m_entries; }

    // Why that can't be done now, in plain words; null when it can.
    QString UndoObstacle() const;
    QString RedoObstacle() const;
    QString ChangeObstacle() const;

    /** What Undo and Redo would take back and bring back, in words; empty when they can't. */
    QString UndoText() const;
    QString RedoText() const;

    /** What changed the list last, in words, with the time; empty when that isn't known. */
    QString LastChangeText() const;

    QString Undo();
    QString Redo();

    /**
     * Makes the list of a state of the history the list again. That is a change like any other.
     *
     * @param place  where it stood when it was looked up; it is found again when others have gone meanwhile.
     */
    QString Restore(int place, const ListState &state);

    /** Makes entries the list. */
    QString Replace(const QList<PriorityList> &entries);

    /** Whether the list can be read up to some place only. */
    bool IsDamaged() const { return m_reading == Damaged; }

    /** Where the damaged file was copied to; null when it isn't damaged or could not be copied. */
    QString CopyPath() const { return m_copyPath; }

    /**
     * Why nothing may write the list, in plain words; null when there is no such reason. A list that is
     * damaged and was copied may be written once the user has decided how.
     */
    QString WriteObstacle() const;

    // What can be done with a damaged list. A list that is whole by then is left alone.
    bool CanBringBack() const;
    /** Makes the list what it was last when it was whole: the one in force in the history. */
    QString BringBack();
    /** Makes what can be read of it the list, if that is what it was: entries. */
    QString GoOnWith(const QList<PriorityList> &entries);

    /** While the page with the list is open, moves that follow each other on it are one change. Begin before
     * it is shown, end once it is closed. */
    void BeginOpening();
    void EndOpening();

    /** What is wrong with the history; null when nothing is. */
    QString ProblemText() const;

    /** Whether there is a history file that can't be used and that SetHistoryAside would rename. */
    bool IsHistoryUnusable() const;

    /** Renames that file and begins a new history. */
    QString SetHistoryAside();

public slots:
    /** Looks whether the list has changed. */
    void Follow();

signals:
    /** The history, or what can be done with it, may have changed. */
    void Changed();

private:
    enum Reading { NoPlugin, Readable, Damaged, NotOpened };

    /** The history and the list, safe from other dashboards and their commands while this lives. */
    class Session;

    void ReadList();
    void RecordIfNew();
    QDateTime TimeOfChange() const;
    /** Makes entries, which a file can carry, the list; backTo is as ListState's. */
    QString Change(const QList<PriorityList> &entries, const QDateTime &backTo);
    QString GoTo(int position);
    /** @param otherwise  the history when the list can't be written. @param since  as ListHistory::GoTo. */
    QString GoTo(int position, ListHistory otherwise, const QDateTime &since = QDateTime());
    /** Ends what a program that died on the way to another state has begun. Its file may be gone or cut
     * short: the plug-in rewrites it in place. */
    void FinishInterrupted();
    QString Write(const QList<PriorityList> &entries);
    /** Copies a list file that can't be read to its end, before anything replaces it. */
    void KeepIfDamaged();
    bool IsListNew() const;

    const QString m_listPath;
    HistoryFile m_file;
    ListHistory m_history;
    Reading m_reading;
    QList<PriorityList> m_entries;
    QString m_copyPath;
    /** Since when the page has been open; null when it isn't. */
    QDateTime m_opened;
    bool m_isBusy;
    bool m_isHeldByOther;
};

#endif
