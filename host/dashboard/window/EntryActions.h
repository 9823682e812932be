#ifndef ENTRYACTIONS_H
#define ENTRYACTIONS_H

#include <ListEdit.h>
#include <ListKeeper.h>
#include <Overview.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class NetworkList;
class PlaceDialog;
class QAction;
class QKeySequence;
class QMenu;
class QPoint;
class QWidget;

/** What the user can do with the networks that are selected in the window's list: as menu entries, keys,
 * buttons and by dragging. */
class EntryActions : public QObject
{
    Q_OBJECT

public:
    /** @param keeper, @param list  not owned; outlive this. @param window  owns this. */
    EntryActions(ListKeeper *keeper, NetworkList *list, QWidget *window);

    /** What changes the list; not owned. */
    void FillMenu(QMenu *menu);

    /** The menu of what is selected, for more to be added. */
    QMenu *Menu() const { return m_menu; }

    /** The same as small buttons; whoever calls puts them into a layout. */
    QWidget *CreateButtons();

    void Show(const Overview &overview);
    void Retranslate();

public slots:
    void Update();

signals:
    /** A saved network is to be connected: its name, and its profile's id. */
    void ConnectWanted(const QString &name, const QString &profileId);

private:
    /** What becomes of a list that has some of the entries, at places. */
    typedef std::function<QList<PriorityList>(const QList<int> &places, const QList<PriorityList> &list)>
        Change;

    /** Before which place entries at places, of a list of that size, go; below 0: nowhere. */
    typedef std::function<int(const QList<int> &places, const QList<PriorityList> &list)> Goal;

    /** An action that moves what is selected. */
    struct MoveAction {
        QAction *action;
        Goal goal;
        /** Where it goes depends on its neighbours, and these may be hidden. */
        bool needsNeighbours;
    };

    QAction *CreateAction(const char *name, const QKeySequence &key);
    void AddMove(const char *name, const char *key, const Goal &goal, bool needsNeighbours);
    void OpenMenu(const QPoint &place);
    void Connect();
    /** Puts what is in the list, and behind it what is not, to that goal. */
    void Place(const QList<ListedEntry> &entries, const QList<PriorityList> &unlisted, const Goal &goal);
    void OpenPlace();
    void Add();
    void Drop(int row);
    void Remove();
    void Edit(const QList<ListedEntry> &entries, bool isMoveOfOne, const Change &change);
    void Announce(const ListState &before, const ListState &after);
    bool CanConnect() const;
    QString MoveObstacle(const MoveAction &move) const;
    QString PlaceObstacle() const;
    QString SelectionObstacle() const;
    static void SetText(QAction *action, const char *id);
    static void SetHelp(QAction *action, const QString &obstacle);

    QWidget *const m_window;
    ListKeeper *const m_keeper;
    NetworkList *const m_list;
    Overview m_overview;
    QMenu *m_menu;
    QAction *m_connect;
    QList<MoveAction> m_moves;
    QAction *m_place = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_add = nullptr;
    QPointer<PlaceDialog> m_placeDialog;
};

#endif
