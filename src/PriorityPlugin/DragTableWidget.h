#ifndef DRAGTABLEWIDGET_H
#define DRAGTABLEWIDGET_H

#include <QTableWidget>

/** The priority page's table. Rows move by buttons and arrow keys only; nothing can be dragged. */
class DragTableWidget : public QTableWidget
{
public:
    explicit DragTableWidget(QWidget *parent);
    ~DragTableWidget() override;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
};

/** What the tables of both lists have in common: one column of cell widgets, nothing to edit, one row at a
 * time. */
void SetUpListTable(QTableWidget *table);

#endif
