#include "RowClick.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTableWidget>

namespace
{

bool CanBeClicked(const QTableWidget *table)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return table->isVisible() && table->isEnabled() && (!modal || modal == table->window());
}

void SendMouse(QEvent::Type type, Qt::MouseButtons held, QWidget *target, const QPoint &position)
{
    QMouseEvent event(type, position, target->mapToGlobal(position), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

} // namespace

void ClickRow(QTableWidget *table, int row)
{
    if (row < 0 || row >= table->rowCount() || !CanBeClicked(table)) {
        return;
    }
    const QModelIndex index = table->model()->index(row, 0);
    table->scrollTo(index);
    table->setFocus(Qt::MouseFocusReason);
    const QPoint center = table->visualRect(index).center();
    SendMouse(QEvent::MouseButtonPress, Qt::LeftButton, table->viewport(), center);
    SendMouse(QEvent::MouseButtonRelease, Qt::NoButton, table->viewport(), center);
}
