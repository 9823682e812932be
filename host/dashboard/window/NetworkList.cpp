#include "NetworkList.h"

#include "RowDrag.h"

#include <DashboardText.h>
#include <NetworkDelegate.h>
#include <OverviewText.h>
#include <Searchable.h>
#include <Settings.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace
{

int RowInUse(const Overview &overview)
{
    for (int i = 0; i < overview.entries.size(); ++i) {
        if (overview.entries.at(i).isInUse) {
            return i;
        }
    }
    return -1;
}

// In the place of a repetition, which is told of networks of the list only.
const int notListed = -1;
const int header = -2;

QString FoldedKey()
{
    return QLatin1String("list/unlistedFolded");
}

/** What is on the row; a name of nothing but blanks would leave it empty. */
QString Caption(const PriorityList &entry)
{
    const QString name = entry.name.simplified();
    return name.isEmpty() ? DashboardText("IDS_CHANGE_UNNAMED") : name;
}

} // namespace

/** Its texts are made when they are asked for: of a long list few are ever seen. */
class NetworkList::Row : public QListWidgetItem
{
public:
    Row(const NetworkList *list, int row) : m_list(list), m_row(row) {}

    QVariant data(int role) const override
    {
        const QVariant shown = m_list->Shown(m_row, role);
        return shown.isValid() ? shown : QListWidgetItem::data(role);
    }

private:
    const NetworkList *const m_list;
    const int m_row;
};

NetworkList::NetworkList() : m_isFolded(Settings::Read(FoldedKey()).toBool()), m_drag(new RowDrag(this))
{
    setObjectName(QLatin1String("overviewList"));
    setItemDelegate(new NetworkDelegate(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Not at a single click, which is what some desktops take for opening.
    connect(this, &QListWidget::itemDoubleClicked, this, &NetworkList::ConnectWanted);
    connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem *clicked) {
        if (IsHeader(row(clicked))) {
            Fold();
        }
    });
    connect(m_drag, &RowDrag::Dropped, this, &NetworkList::Dropped);
}

void NetworkList::SetDraggable(bool isOn)
{
    m_drag->SetOn(isOn);
}

QList<ListedEntry> NetworkList::RowsOf(const Overview &overview) const
{
    QList<PriorityList> entries;
    for (const Overview::Entry &entry : overview.entries) {
        entries.append(entry.entry);
    }
    QList<ListedEntry> rows = ListEdit::Numbered(entries);
    // Of a list that can't be read in full nobody knows what is not in it.
    if (rows.isEmpty() || overview.unlisted.isEmpty() || !overview.IsListWhole()) {
        return rows;
    }
    rows.append(ListedEntry{PriorityList(), header});
    // A search is for all that is there.
    for (int i = 0; i < overview.unlisted.size() && (!m_isFolded || IsSearched()); ++i) {
        rows.append(ListedEntry{overview.unlisted.at(i).entry, notListed});
    }
    return rows;
}

void NetworkList::Show(const Overview &overview)
{
    const bool isFirst = m_rows.isEmpty();
    const QList<ListedEntry> selected = Selected() + SelectedRows(notListed);
    const int formerRow = currentRow();
    const ListedEntry current = m_rows.value(formerRow);
    const Sight sight = InSight();
    const QList<ListedEntry> rows = RowsOf(overview);
    const bool isSame = rows == m_rows;
    {
        // Whoever follows the selection is to see it with the networks that it belongs to.
        const QSignalBlocker blocker(this);
        m_overview = overview;
        m_rows = rows;
        m_listed = static_cast<int>(overview.entries.size());
        m_drag->SetEnd(m_listed);
        while (count() > m_rows.size()) {
            delete takeItem(count() - 1);
        }
        while (count() < m_rows.size()) {
            addItem(new Row(this, count()));
        }
        // The line between them is lower than the rows; without it the view needs to ask one row only.
        setUniformItemSizes(!IsHeader(m_listed));
        emit model()->dataChanged(model()->index(0, 0), model()->index(count() - 1, 0));
        if (isFirst) {
            setCurrentRow(RowInUse(overview));
        } else if (!isSame) {
            Choose(selected, current, formerRow);
            Keep(sight);
        }
        ShowFound();
    }
    emit itemSelectionChanged();
}

const Overview::Entry &NetworkList::EntryAt(int row) const
{
    return row < m_listed ? m_overview.entries.at(row) : m_overview.unlisted.at(row - m_listed - 1);
}

QString NetworkList::DetailOf(int row) const
{
    return row < m_listed ? OverviewText::Detail(m_overview, row)
                          : OverviewText::UnlistedDetail(EntryAt(row));
}

QVariant NetworkList::Shown(int row, int role) const
{
    // While rows are taken away those that go may still be asked.
    if (row >= m_rows.size()) {
        return QVariant();
    }
    if (IsHeader(row)) {
        return ShownInHeader(role);
    }
    const Overview::Entry &entry = EntryAt(row);
    const bool isListed = row < m_listed;
    switch (role) {
    case Qt::DisplayRole:
        return Caption(entry.entry);
    case NetworkDelegate::HasNoPlaceRole:
        return !isListed;
    case NetworkDelegate::DetailTextRole:
        return DetailOf(row);
    case NetworkDelegate::StateTextRole:
        return OverviewText::State(m_overview, entry);
    case NetworkDelegate::MarkRole:
        return OverviewText::Mark(m_overview, entry);
    case NetworkDelegate::KindRole:
        return entry.IsWifi() ? Glyphs::Wifi : Glyphs::Mobile;
    case NetworkDelegate::ReachRole:
        return OverviewText::Reach(m_overview, entry);
    case NetworkDelegate::SignalRole:
        return entry.signal;
    case Qt::ToolTipRole:
        return isListed ? OverviewText::Reason(m_overview, row).toHtmlEscaped() : QString();
    case Qt::AccessibleDescriptionRole:
        return isListed ? OverviewText::Reason(m_overview, row) : QString();
    case Qt::AccessibleTextRole:
        return QString::fromLatin1("%1, %2, %3")
            .arg(Caption(entry.entry), isListed ? OverviewText::Kind(entry) : DetailOf(row),
                 OverviewText::State(m_overview, entry));
    default:
        return QVariant();
    }
}

QVariant NetworkList::ShownInHeader(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return DashboardText("IDS_UNLISTED_TITLE").arg(DashboardNumber(m_overview.unlisted.size()));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return DashboardText("IDS_UNLISTED_HINT");
    case NetworkDelegate::IsSectionRole:
    case NetworkDelegate::HasNoPlaceRole:
        return true;
    case NetworkDelegate::FoldRole:
        return m_isFolded && !IsSearched() ? NetworkDelegate::Folded : NetworkDelegate::Open;
    default:
        return QVariant();
    }
}

QList<int> NetworkList::SelectedPlaces() const
{
    QList<int> places;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected) {
        places.append(index.row());
    }
    std::sort(places.begin(), places.end());
    return places;
}

QList<ListedEntry> NetworkList::SelectedRows(int repetition) const
{
    QList<ListedEntry> entries;
    const QList<int> places = SelectedPlaces();
    for (const int place : places) {
        if (repetition < 0 ? m_rows.at(place).repetition == repetition : place < m_listed) {
            entries.append(m_rows.at(place));
        }
    }
    return entries;
}

QList<ListedEntry> NetworkList::Selected() const
{
    return SelectedRows(0);
}

QList<PriorityList> NetworkList::SelectedUnlisted() const
{
    QList<PriorityList> entries;
    const QList<ListedEntry> rows = SelectedRows(notListed);
    for (const ListedEntry &row : rows) {
        entries.append(row.entry);
    }
    return entries;
}

const Overview::Entry *NetworkList::Current(const Overview &overview) const
{
    const int row = currentRow();
    const int unlisted = row - m_listed - 1;
    if (row >= 0 && row < m_listed && row < overview.entries.size()) {
        return &overview.entries.at(row);
    }
    return row > m_listed && unlisted < overview.unlisted.size() ? &overview.unlisted.at(unlisted) : nullptr;
}

void NetworkList::Select(const QList<ListedEntry> &entries)
{
    const int first = entries.isEmpty() ? -1 : RowOf(entries.first());
    if (first >= 0) {
        Choose(entries, entries.first(), first);
        scrollToItem(currentItem());
    }
}

void NetworkList::Choose(const QList<ListedEntry> &selected, const ListedEntry &current, int formerRow)
{
    QItemSelection rows;
    for (const ListedEntry &entry : selected) {
        const int row = RowOf(entry);
        if (row >= 0) {
            rows.select(indexFromItem(item(row)), indexFromItem(item(row)));
        }
    }
    // Where the current one has gone, what stands in its place is nearest to it.
    const int kept = RowOf(current);
    const int row = formerRow < 0 || kept >= 0 ? kept : qMin(formerRow, m_listed - 1);
    const QModelIndex index = indexFromItem(item(row));
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    if (rows.isEmpty() && !selected.isEmpty() && index.isValid()) {
        rows.select(index, index);
    }
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

NetworkList::Sight NetworkList::InSight() const
{
    Sight sight;
    const int top = verticalScrollBar()->value() > 0 ? indexAt(QPoint(0, 0)).row() : -1;
    for (int i = top; i >= 0 && i < count() && !sight.isKept; ++i) {
        // What the user moves leaves the others where they are.
        if (!item(i)->isSelected()) {
            sight.entry = m_rows.at(i);
            sight.top = visualItemRect(item(i)).top();
            sight.isKept = true;
        }
    }
    return sight;
}

void NetworkList::Keep(const Sight &sight)
{
    const int row = sight.isKept ? RowOf(sight.entry) : -1;
    if (row >= 0) {
        QScrollBar *bar = verticalScrollBar();
        bar->setValue(bar->value() + visualItemRect(item(row)).top() - sight.top);
    }
}

bool NetworkList::TakeHeaderKey(const QKeyEvent *event)
{
    const int key = event->key();
    const bool isTaken =
        IsHeader(currentRow()) && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space);
    if (isTaken) {
        Fold();
    }
    return isTaken;
}

void NetworkList::Fold()
{
    m_isFolded = !m_isFolded;
    Settings::Write(FoldedKey(), m_isFolded);
    emit Folded();
}

void NetworkList::keyPressEvent(QKeyEvent *event)
{
    const bool isMove = event->modifiers() == Qt::AltModifier;
    // Where what is selected can't be moved, the keys for that do nothing else.
    if (isMove || TakeHeaderKey(event)) {
        event->setAccepted(!isMove);
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (event->modifiers() & Qt::ControlModifier) {
            emit ConnectWanted();
        } else {
            emit DetailsWanted();
        }
    } else if (event->key() == Qt::Key_Escape) {
        emit Left();
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        AskForMenu();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

void NetworkList::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse) {
        emit MenuWanted(event->globalPos());
    } else {
        AskForMenu();
    }
}

void NetworkList::Find(const QString &text)
{
    m_wanted = Searchable(text);
    ShowFound();
    emit itemSelectionChanged();
}

bool NetworkList::HasFoundNothing() const
{
    for (int i = 0; i < count(); ++i) {
        if (!item(i)->isHidden()) {
            return false;
        }
    }
    return IsSearched();
}

void NetworkList::ShowFound()
{
    if (!IsSearched() && !m_isAnyHidden) {
        return;
    }
    m_isAnyHidden = IsSearched();
    QListWidgetItem *first = nullptr;
    bool hasUnlisted = !IsSearched();
    for (int i = 0; i < count(); ++i) {
        if (IsHeader(i)) {
            continue;
        }
        const bool isFound = Searchable(item(i)->text()).contains(m_wanted);
        SetShown(i, isFound);
        hasUnlisted = hasUnlisted || (isFound && i > m_listed);
        first = !first && isFound ? item(i) : first;
    }
    if (IsHeader(m_listed)) {
        SetShown(m_listed, hasUnlisted);
    }
    if (currentItem() && currentItem()->isHidden()) {
        setCurrentItem(first);
    }
}

/** Each call would lay the list out anew. */
void NetworkList::SetShown(int row, bool isShown)
{
    if (item(row)->isHidden() == isShown) {
        item(row)->setHidden(!isShown);
    }
    if (!isShown) {
        item(row)->setSelected(false);
    }
}

void NetworkList::Announce(const QString &what)
{
    setAccessibleDescription(what);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(this, what);
    QAccessible::updateAccessibility(&announcement);
#endif
}

void NetworkList::AskForMenu()
{
    if (currentItem()) {
        scrollToItem(currentItem());
    }
    emit MenuWanted(viewport()->mapToGlobal(visualItemRect(currentItem()).center()));
}
