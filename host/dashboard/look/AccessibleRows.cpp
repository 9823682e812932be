#include "AccessibleRows.h"

#include "RowClick.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>

namespace
{

const char *const rowsAreWidgets = "rowsAreWidgets";

/** The table in which widget is a row, or null. */
QTableWidget *TableOfRow(const QObject *widget)
{
    const QObject *viewport = widget->parent();
    QTableWidget *table = qobject_cast<QTableWidget *>(viewport ? viewport->parent() : nullptr);
    return table && table->viewport() == viewport && table->property(rowsAreWidgets).toBool() ? table
                                                                                              : nullptr;
}

int RowOf(const QTableWidget *table, const QWidget *widget)
{
    return table->indexAt(widget->geometry().center()).row();
}

class AccessibleRow : public QAccessibleWidget
{
public:
    explicit AccessibleRow(QWidget *row) : QAccessibleWidget(row, QAccessible::Cell) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const QTableWidget *table = TableOfRow(object());
        const int row = table ? RowOf(table, widget()) : -1;
        if (row >= 0) {
            state.selectable = true;
            state.selected = table->selectionModel()->isRowSelected(row, QModelIndex());
            state.focusable = true;
            state.focused = table->hasFocus() && table->currentRow() == row;
        }
        return state;
    }

    QAccessibleInterface *parent() const override
    {
        QTableWidget *table = TableOfRow(object());
        return table ? QAccessible::queryAccessibleInterface(table) : QAccessibleWidget::parent();
    }

    QStringList actionNames() const override { return QStringList(pressAction()); }

    void doAction(const QString &name) override
    {
        QTableWidget *table = TableOfRow(object());
        if (table && name == pressAction()) {
            ClickRow(table, RowOf(table, widget()));
        }
    }
};

/**
 * A table of one column whose headers are hidden. The children are counted as Qt does, because that
 * is how it tells which of them has got the focus: the line of the column's header first, and before each
 * cell its row's header.
 */
class AccessibleTable : public QAccessibleWidget
{
public:
    explicit AccessibleTable(QTableWidget *table) : QAccessibleWidget(table, QAccessible::Table) {}

    int childCount() const override { return 2 * (Table()->rowCount() + 1); }

    QAccessibleInterface *child(int index) const override
    {
        const int row = index / 2 - 1;
        if (index < 0 || row >= Table()->rowCount()) {
            return nullptr;
        }
        QWidget *cell = index % 2 == 1 && row >= 0 ? Table()->cellWidget(row, 0) : nullptr;
        if (cell) {
            return InterfaceOfRow(cell);
        }
        QHeaderView *header = row < 0 ? Table()->horizontalHeader() : Table()->verticalHeader();
        return QAccessible::queryAccessibleInterface(header);
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const QWidget *widget = child ? qobject_cast<QWidget *>(child->object()) : nullptr;
        const int row = widget && TableOfRow(widget) == Table() ? RowOf(Table(), widget) : -1;
        return row < 0 ? -1 : 2 * (row + 1) + 1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint place = Table()->viewport()->mapFromGlobal(QPoint(x, y));
        const int row = Table()->viewport()->rect().contains(place) ? Table()->rowAt(place.y()) : -1;
        return row < 0 ? nullptr : child(2 * (row + 1) + 1);
    }

    QAccessibleInterface *focusChild() const override
    {
        const int row = Table()->currentRow();
        return Table()->hasFocus() && row >= 0 ? child(2 * (row + 1) + 1) : QAccessibleWidget::focusChild();
    }

private:
    QTableWidget *Table() const { return static_cast<QTableWidget *>(object()); }

    static QAccessibleInterface *InterfaceOfRow(QWidget *row)
    {
        QAccessibleInterface *known = QAccessible::queryAccessibleInterface(row);
        if (known->role() != QAccessible::Cell) {
            // From before the widget was put into the table.
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
            known = QAccessible::queryAccessibleInterface(row);
        }
        return known;
    }
};

QAccessibleInterface *Make(const QString &className, QObject *object)
{
    if (className == QLatin1String("QTableWidget") && object->property(rowsAreWidgets).toBool()) {
        return new AccessibleTable(static_cast<QTableWidget *>(object));
    }
    if (className == QLatin1String("QWidget") && object->isWidgetType() && TableOfRow(object)) {
        return new AccessibleRow(static_cast<QWidget *>(object));
    }
    return nullptr;
}

bool IsMadeOfWidgets(const QTableWidget *table)
{
    return table->columnCount() == 1 && table->horizontalHeader()->isHidden() &&
           table->verticalHeader()->isHidden();
}

} // namespace

AccessibleRows::AccessibleRows(QObject *parent) : QObject(parent)
{
    QAccessible::installFactory(&Make);
    QApplication::instance()->installEventFilter(this);
}

AccessibleRows::~AccessibleRows()
{
    QAccessible::removeFactory(&Make);
}

bool AccessibleRows::eventFilter(QObject *watched, QEvent *event)
{
    QTableWidget *table = event->type() == QEvent::Show ? qobject_cast<QTableWidget *>(watched) : nullptr;
    if (table && IsMadeOfWidgets(table) && !table->property(rowsAreWidgets).toBool()) {
        // Which table is one of these is known only now, and Qt may have asked for it long ago.
        QAccessibleInterface *known = QAccessible::queryAccessibleInterface(table);
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
        table->setProperty(rowsAreWidgets, true);
    }
    return false;
}
