#ifndef LISTKEEPER_H
#define LISTKEEPER_H

#include "HistoryFile.h"
#include "ListHistory.h"
#include "ListSource.h"

#include <QObject>
#include <QString>

#include <functional>

/**
 * Keeps the history of the priority list and takes the list back to its earlier states.
 *
 * Whoever changes the list, the change is found by comparing the list with the newest state: so changes that
 * were made while no dashboard ran are found too. A list that can't be read is no state; once it can be read
 * again, it is compared with what was there before. Whatever is found of a damaged list is copied beside it
 * as soon as it is seen: whoever changes the list then writes what could be read, and the rest would be lost.
 *
 * The list itself is the priority plug-in's. To change it as a whole, the keeper puts a new file in the place
 * of the earlier one, in one go and in the form in which the plug-in writes it, and then has everybody told
 * who shows the list. What comes back with an earlier state are its entries in their order, in the form in
 * which the plug-in writes them; what somebody else had put around them in the file doesn't.
 *
 * Operations that can fail answer why they did nothing. ListKeeperText has words for that.
 */
class ListKeeper : public QObject
{
    Q_OBJECT

public:
    /** Why something isn't or can't be done. */
    enum Obstacle {
        NoObstacle,
        ListNotOffered, /**< There is no priority plug-in. */
        ListNotOpened,
        ListDamaged,    /**< Only a part of it can be read. */
        ListBusy,       /**< Another program is working with it. */
        ListNotWritten, /**< The new list could not be put in its place. */
        ListNotKept,    /**< It is damaged and could not be copied. */
        NothingToUndo,
        NothingToRedo,
        NoRedoOfDamage, /**< Undo repairs the damaged list. */
        StateGone,      /**< The state to restore is no longer kept. */
        HistoryDamaged,
        HistoryNotReadable,
        HistoryNotWritable,
        HistoryNotSetAside
    };

    /** @param userData  the user data directory with a trailing separator.
     * @param source  of the list; not owned, outlives this. */
    ListKeeper(const QString &userData, ListSource *source, QObject *parent);

    const ListHistory &History() const { return m_history; }

    /** How the list was last read: that of all who show it. */
    const ListReading &LastReading() const { return m_reading; }

    /** Its entries, as a file can carry them. */
    QList<PriorityList> Entries() const { return m_entries; }

    /** Whether the keeper is changing the list just now; it tells when it is done. */
    bool IsBusy() const { return m_isBusy; }

    QString ListPath() const { return m_listPath; }
    const HistoryFile &File() const { return m_file; }

    // Why that can't be done now.
    Obstacle UndoObstacle() const;
    Obstacle RedoObstacle() const;
    Obstacle ChangeObstacle() const;
    Obstacle EditObstacle() const;

    Obstacle Undo();
    Obstacle Redo();

    /**
     * Makes the list of a state of the history the list again. That is a change like any other.
     *
     * @param place  where it stood when it was looked up; it is found again when others have gone meanwhile.
     */
    Obstacle Restore(int place, const ListState &state);

    /** Makes entries the list. */
    Obstacle Replace(const QList<PriorityList> &entries);

    /** What is made of the list; it may be called with another one than LastReading has. */
    typedef std::function<QList<PriorityList>(const QList<PriorityList> &)> ListChange;

    /**
     * Makes of the list what change makes of it, while no other program can change it. In the history that is
     * what a change on the page with the list is: moves of one entry that follow each other are joined. A
     * list that can't be read to its end is not edited. A history that can't be used is no obstacle.
     *
     * @param moved  the entry that the change moves; null when it does something else.
     */
    Obstacle Edit(const ListChange &change, const PriorityList *moved = nullptr);

    /** Whether the list can be read up to some place only. */
    bool IsDamaged() const { return m_reading.status == PriorityDamaged; }

    /** Where the damaged file was copied to; null when it isn't damaged or could not be copied. */
    QString CopyPath() const { return m_copyPath; }

    /**
     * Why nothing may write the list. A list that is damaged and was copied may be written once the user has
     * decided how.
     */
    Obstacle WriteObstacle() const;

    // What can be done with a damaged list. A list that is whole by then is left alone.
    bool CanBringBack() const;
    /** Makes the list what it was last when it was whole: the one in force in the history. */
    Obstacle BringBack();
    /** Makes what can be read of it the list, if that is what it was: entries. */
    Obstacle GoOnWith(const QList<PriorityList> &entries);

    /** While the page with the list is open, moves that follow each other on it are one change. Begin before
     * it is shown, end once it is closed. */
    void BeginOpening();
    void EndOpening();

    typedef std::function<int()> PlaceInHand;

    /** @param place  tells which entry the user works with on that page: its place in the list; -1 when
     * nobody knows. When neighbours have changed places, that is the one that was moved. */
    void SetPlaceInHand(const PlaceInHand &place) { m_placeInHand = place; }

    /** What is wrong with the history. */
    Obstacle HistoryProblem() const;

    /** Whether there is a history file that can't be used and that SetHistoryAside would rename. */
    bool IsHistoryUnusable() const;

    /** Renames that file and begins a new history. */
    Obstacle SetHistoryAside();

public slots:
    /** Looks whether the list has changed. */
    void Follow();

signals:
    /** The list is this now, or is about to be written so. For those who show it: writing and recording take
     * longer than showing. Changed follows, and LastReading then tells what has become of it. Nobody works
     * with the list until then. */
    void Coming(const QList<PriorityList> &entries);

    /** The history, or what can be done with it, may have changed. */
    void Changed();

private:
    /** The history and the list, safe from other dashboards and their commands while this lives. */
    class Session;

    void ReadList();
    void Take(const ListReading &reading);
    void RecordIfNew(const PriorityList *moved = nullptr);
    QDateTime TimeOfChange() const;
    int MovedInHand() const;
    /** Makes entries, which a file can carry, the list; backTo is as ListState's. */
    Obstacle Change(const QList<PriorityList> &entries, const QDateTime &backTo);
    Obstacle GoTo(int position);
    /** @param otherwise  the history when the list can't be written. @param since  as ListHistory::GoTo. */
    Obstacle GoTo(int position, ListHistory otherwise, const QDateTime &since = QDateTime());
    /** Ends what a program that died on the way to another state has begun. Its file may be gone or cut
     * short: the plug-in rewrites it in place. */
    void FinishInterrupted();
    Obstacle Write(const QList<PriorityList> &entries);
    /** Copies a list file that can't be read to its end, before anything replaces it. */
    void KeepIfDamaged();
    bool IsListNew() const;
    /** No file yet is a whole list, too. */
    bool IsWhole() const;
    bool IsReadable() const;

    ListSource *const m_source;
    const QString m_listPath;
    HistoryFile m_file;
    ListHistory m_history;
    ListReading m_reading;
    QList<PriorityList> m_entries;
    QString m_copyPath;
    /** Since when the page has been open; null when it isn't. */
    QDateTime m_opened;
    PlaceInHand m_placeInHand;
    bool m_isBusy;
    bool m_isHeldByOther;
};

#endif
