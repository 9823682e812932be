#include "DragTableWidget.h"

#include <QHeaderView>

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
