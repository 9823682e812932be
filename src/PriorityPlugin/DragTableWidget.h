#ifndef DRAGTABLEWIDGET_H
#define DRAGTABLEWIDGET_H

#include <QPointer>
#include <QTableWidget>

/** The priority page's table. Rows move by buttons and arrow keys only; nothing can be dragged. */
class DragTableWidget : public QTableWidget
{
public:
    explicit DragTableWidget(QWidget *parent);
    ~DragTableWidget() override;
};

/** What the tables of both lists have in common: one column of cell widgets, nothing to edit, one row at a
 * time. */
void SetUpListTable(QTableWidget *table);

/** A click beside the rows leaves the highlight as it is. Some generations of Qt would take it away.
 */
void IgnoreMouseBesideRows(QTableWidget *table);

/** Puts widget, which the table owns from then on, into the row's only cell. */
void SetRowWidget(QTableWidget *table, int row, QWidget *widget);

/**
 * While this object lives, new widgets in a container are shown without a paint event of their own. Qt
 * compares each widget with such an event to all others in the table, and a long list has thousands. The
 * widgets in sight are painted together with their container.
 */
class ShownAsOne
{
public:
    explicit ShownAsOne(QWidget *container);
    ~ShownAsOne();

private:
    Q_DISABLE_COPY(ShownAsOne)

    QPointer<QWidget> m_container;
};

#endif
