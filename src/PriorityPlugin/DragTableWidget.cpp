#include "DragTableWidget.h"

#include <QHeaderView>

DragTableWidget::DragTableWidget(QWidget *parent) : QTableWidget(parent) {}

DragTableWidget::~DragTableWidget() = default;

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
