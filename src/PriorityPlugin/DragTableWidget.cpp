#include "DragTableWidget.h"

#include <QHeaderView>

namespace
{

/** Widgets that are visible already stay as they are. */
void AskForNoPainting(QWidget *widget, bool none)
{
    if (!none || !widget->isVisible()) {
        widget->setAttribute(Qt::WA_DontShowOnScreen, none);
    }
}

void AskForNoPaintingWithin(QWidget *container, bool none)
{
    const QObjectList &children = container->children();
    for (int i = 0; i < children.size(); ++i) {
        QWidget *child = qobject_cast<QWidget *>(children.at(i));
        // A dialog of the page is its child too, and shown on its own.
        if (child && !child->isWindow()) {
            AskForNoPainting(child, none);
            AskForNoPaintingWithin(child, none);
        }
    }
}

} // namespace

DragTableWidget::DragTableWidget(QWidget *parent) : QTableWidget(parent) {}

DragTableWidget::~DragTableWidget() = default;

/*
 * A click beside the rows leaves the page's selected row as it is. Some generations of the toolkit would take
 * the highlight away all the same.
 */
QItemSelectionModel::SelectionFlags DragTableWidget::selectionCommand(const QModelIndex &index,
                                                                      const QEvent *event) const
{
    if (event && !index.isValid()) {
        return QItemSelectionModel::NoUpdate;
    }
    return QTableWidget::selectionCommand(index, event);
}

void SetUpListTable(QTableWidget *table)
{
    table->setColumnCount(1);
    table->setColumnWidth(0, 300);
    table->horizontalHeader()->setVisible(false);
    table->verticalHeader()->setVisible(false);
    table->setShowGrid(false);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
}

void SetRowWidget(QTableWidget *table, int row, QWidget *widget)
{
    const ShownAsOne shown(widget);
    AskForNoPainting(widget, true);
    table->setCellWidget(row, 0, widget);
    AskForNoPainting(widget, false);
}

ShownAsOne::ShownAsOne(QWidget *container) : m_container(container)
{
    AskForNoPaintingWithin(container, true);
}

ShownAsOne::~ShownAsOne()
{
    if (m_container) {
        AskForNoPaintingWithin(m_container, false);
    }
}
