#ifndef NETWORKLIST_H
#define NETWORKLIST_H

#include <ListEdit.h>

#include <QList>
#include <QListWidget>

struct Overview;
class RowDrag;

/**
 * The networks of the list, one in each row. What is selected, the current row and what is in sight belong to
 * the networks and not to their rows: they stay with them wherever the list moves these.
 */
class NetworkList : public QListWidget
{
    Q_OBJECT

public:
    NetworkList();

    void Show(const Overview &overview);

    /** All that are shown, row by row. */
    QList<ListedEntry> Rows() const { return m_rows; }

    /** What is selected, in the order of the list. */
    QList<ListedEntry> Selected() const;

    /** The place of the current network, counted from 0; -1 when there is none. */
    int CurrentPlace() const;

    /** Selects those entries that are shown, and nothing else; without any it changes nothing. */
    void Select(const QList<ListedEntry> &entries);

    /** Shows those networks only that have text in their names; without text all. What is hidden is not
     * selected. */
    void Find(const QString &text);
    bool IsSearched() const { return !m_wanted.isEmpty(); }

    /** Whether every network is hidden. */
    bool HasFoundNothing() const;

    /** Has screen readers tell what was done. */
    void Announce(const QString &what);

    /** Whether rows can be dragged. */
    void SetDraggable(bool isOn);

signals:
    /** The current network was double-clicked, or Enter was pressed. */
    void ConnectWanted();

    /** A menu for what is selected is wanted, at that place of the screen. */
    void MenuWanted(const QPoint &place);

    /** Escape was pressed. */
    void Left();

    /** What is selected was dropped before the entry of that row; the count of rows is the end. */
    void Dropped(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    /** What is in sight: a row, and how far below the upper edge it begins. */
    struct Sight {
        ListedEntry entry;
        int top = 0;
        bool isKept = false;
    };

    Sight InSight() const;
    void Keep(const Sight &sight);
    void ShowRow(int row, const Overview &overview);
    void Choose(const QList<ListedEntry> &selected, const ListedEntry &current, int formerRow);
    int RowOf(const ListedEntry &entry) const { return static_cast<int>(m_rows.indexOf(entry)); }
    void AskForMenu();
    void ShowFound();

    QList<ListedEntry> m_rows;
    RowDrag *m_drag;
    QString m_wanted;
};

#endif
