#include "NetworkList.h"

#include "RowDrag.h"

#include <DashboardText.h>
#include <NetworkDelegate.h>
#include <Overview.h>
#include <OverviewText.h>
#include <Searchable.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

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

/** What is on the row; a name of nothing but blanks would leave it empty. */
QString Caption(const PriorityList &entry)
{
    const QString name = entry.name.simplified();
    return name.isEmpty() ? DashboardText("IDS_CHANGE_UNNAMED") : name;
}

} // namespace

NetworkList::NetworkList() : m_drag(new RowDrag(this))
{
    setObjectName(QLatin1String("overviewList"));
    setItemDelegate(new NetworkDelegate(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    // Not at a single click, which is what some desktops take for opening.
    connect(this, &QListWidget::itemDoubleClicked, this, &NetworkList::ConnectWanted);
    connect(m_drag, &RowDrag::Dropped, this, &NetworkList::Dropped);
}

void NetworkList::SetDraggable(bool isOn)
{
    m_drag->SetOn(isOn);
}

void NetworkList::Show(const Overview &overview)
{
    const bool isFirst = m_rows.isEmpty();
    const QList<ListedEntry> selected = Selected();
    const int formerRow = currentRow();
    const ListedEntry current = m_rows.value(formerRow);
    const Sight sight = InSight();
    QList<PriorityList> entries;
    for (const Overview::Entry &entry : overview.entries) {
        entries.append(entry.entry);
    }
    const QList<ListedEntry> rows = ListEdit::Numbered(entries);
    const bool isSame = rows == m_rows;
    {
        // Whoever follows the selection is to see it with the networks that it belongs to.
        const QSignalBlocker blocker(this);
        m_rows = rows;
        while (count() > m_rows.size()) {
            delete takeItem(count() - 1);
        }
        while (count() < m_rows.size()) {
            addItem(new QListWidgetItem);
        }
        for (int i = 0; i < m_rows.size(); ++i) {
            ShowRow(i, overview);
        }
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

void NetworkList::ShowRow(int row, const Overview &overview)
{
    const Overview::Entry &entry = overview.entries.at(row);
    const QString state = OverviewText::State(overview, row);
    const QString reason = OverviewText::Reason(overview, row);
    const QString name = Caption(entry.entry);
    QListWidgetItem *shown = item(row);
    shown->setText(name);
    shown->setData(NetworkDelegate::DetailTextRole, OverviewText::Detail(overview, row));
    shown->setData(NetworkDelegate::StateTextRole, state);
    shown->setData(NetworkDelegate::MarkRole, OverviewText::Mark(overview, row));
    shown->setData(NetworkDelegate::KindRole, entry.IsWifi() ? Glyphs::Wifi : Glyphs::Mobile);
    shown->setData(NetworkDelegate::ReachRole, OverviewText::Reach(overview, row));
    shown->setData(NetworkDelegate::SignalRole, entry.signal);
    shown->setToolTip(reason.toHtmlEscaped());
    shown->setData(Qt::AccessibleDescriptionRole, reason);
    shown->setData(Qt::AccessibleTextRole,
                   QString::fromLatin1("%1, %2, %3").arg(name, OverviewText::Kind(entry), state));
}

QList<ListedEntry> NetworkList::Selected() const
{
    QList<ListedEntry> entries;
    for (int i = 0; i < m_rows.size(); ++i) {
        if (item(i)->isSelected()) {
            entries.append(m_rows.at(i));
        }
    }
    return entries;
}

int NetworkList::CurrentPlace() const
{
    return currentRow();
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
    const int row = formerRow < 0 || kept >= 0 ? kept : qMin(formerRow, count() - 1);
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

void NetworkList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit ConnectWanted();
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
    QListWidgetItem *first = nullptr;
    for (int i = 0; i < count(); ++i) {
        const bool isFound = Searchable(item(i)->text()).contains(m_wanted);
        item(i)->setHidden(!isFound);
        if (!isFound) {
            item(i)->setSelected(false);
        } else if (!first) {
            first = item(i);
        }
    }
    if (currentItem() && currentItem()->isHidden()) {
        setCurrentItem(first);
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
