#include "PageKeys.h"

#include <RowClick.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTableWidget>

namespace
{

/** The next widget of the window that Tab stops at, or the one before. */
QWidget *NextStop(QWidget *from, bool isForward)
{
    QWidget *stop = from;
    do {
        stop = isForward ? stop->nextInFocusChain() : stop->previousInFocusChain();
    } while (stop != from && !(stop->isEnabled() && stop->isVisibleTo(from->window()) &&
                               stop->focusPolicy() & Qt::TabFocus && !stop->isWindow()));
    return stop;
}

void ChooseNextRow(QTableWidget *list, int step)
{
    const int current = list->currentRow();
    const int first = step > 0 ? 0 : list->rowCount() - 1;
    ClickRow(list, current < 0 ? first : current + step);
}

} // namespace

PageKeys::PageKeys(QWidget *dialog, QWidget *pages) : QObject(dialog), m_dialog(dialog), m_pages(pages)
{
    // Before the filters that plug-ins put on their lists.
    QApplication::instance()->installEventFilter(this);
}

bool PageKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    QTableWidget *list = qobject_cast<QTableWidget *>(watched);
    return list && m_pages->isAncestorOf(list) && Take(list, static_cast<QKeyEvent *>(event));
}

bool PageKeys::Take(QTableWidget *list, QKeyEvent *key)
{
    const bool isWithControl = key->modifiers() & Qt::ControlModifier;
    switch (key->key()) {
    case Qt::Key_Tab:
        NextStop(list, true)->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Backtab:
        NextStop(list, false)->setFocus(Qt::BacktabFocusReason);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isWithControl) {
            ChooseNextRow(list, key->key() == Qt::Key_Up ? -1 : 1);
        }
        return isWithControl;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        QApplication::sendEvent(m_dialog, key);
        return true;
    default:
        return false;
    }
}
