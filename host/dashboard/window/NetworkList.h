#ifndef NETWORKLIST_H
#define NETWORKLIST_H

#include <ListEdit.h>
#include <Overview.h>

#include <QList>
#include <QListWidget>

class RowDrag;

/**
 * The networks of the list, one in each row, and below them, under a line that folds them, the saved ones
 * that are not in the list. What is selected, the current row and what is in sight belong to the networks and
 * not to their rows: they stay with them wherever the list moves these.
 */
class NetworkList : public QListWidget
{
    Q_OBJECT

public:
    NetworkList();

    void Show(const Overview &overview);

    /** Those of the list, row by row. */
    QList<ListedEntry> Listed() const { return m_rows.mid(0, m_listed); }

    /** What is selected of the list, in its order. */
    QList<ListedEntry> Selected() const;

    /** What is selected of those that are not in the list. */
    QList<PriorityList> SelectedUnlisted() const;

    /** The current network, of what was shown; null when there is none. */
    const Overview::Entry *Current(const Overview &overview) const;

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
    /** The current network was double-clicked, or Enter was pressed with Ctrl. */
    void ConnectWanted();

    /** Enter was pressed. */
    void DetailsWanted();

    /** A menu for what is selected is wanted, at that place of the screen. */
    void MenuWanted(const QPoint &place);

    /** The line was pressed that folds what is below it: show it all again. */
    void Folded();

    /** Escape was pressed. */
    void Left();

    /** What is selected was dropped before the entry of that row; the count of rows is the end. */
    void Dropped(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    class Row;

    /** What is in sight: a row, and how far below the upper edge it begins. */
    struct Sight {
        ListedEntry entry;
        int top = 0;
        bool isKept = false;
    };

    Sight InSight() const;
    void Keep(const Sight &sight);
    /** What a row shows; not valid: nothing of that kind. */
    QVariant Shown(int row, int role) const;
    QVariant ShownInHeader(int role) const;
    const Overview::Entry &EntryAt(int row) const;
    QString DetailOf(int row) const;
    /** Of those that have it; any that is 0 or more: of the list. */
    QList<ListedEntry> SelectedRows(int repetition) const;
    QList<ListedEntry> RowsOf(const Overview &overview) const;
    /** Of what is selected, from above to below. */
    QList<int> SelectedPlaces() const;
    bool IsHeader(int row) const { return row == m_listed && row < count(); }
    bool TakeHeaderKey(const QKeyEvent *event);
    void Fold();
    void Choose(const QList<ListedEntry> &selected, const ListedEntry &current, int formerRow);
    int RowOf(const ListedEntry &entry) const { return static_cast<int>(m_rows.indexOf(entry)); }
    void AskForMenu();
    void ShowFound();
    void SetShown(int row, bool isShown);

    Overview m_overview;
    QList<ListedEntry> m_rows;
    /** How many of the rows are of the list. */
    int m_listed = 0;
    bool m_isFolded;
    RowDrag *m_drag;
    QString m_wanted;
    bool m_isAnyHidden = false;
};

#endif
