#include "UserActions.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTableWidget>
#include <ToolkitCompat.h>

namespace
{

bool IsSameOrInside(const QWidget *inner, const QWidget *outer)
{
    return inner && outer && (inner == outer || outer->isAncestorOf(inner));
}

QString NameOf(const QWidget *widget)
{
    return widget->objectName();
}

/** Why no user could work with widget now, or null. */
QString Obstacle(const QWidget *widget)
{
    if (!widget->isVisible()) {
        return QString::fromLatin1("%1 can't be seen").arg(NameOf(widget));
    }
    if (!widget->isEnabled()) {
        return QString::fromLatin1("%1 is disabled").arg(NameOf(widget));
    }
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && widget->window() != modal->window()) {
        return QString::fromLatin1("%1 is behind the dialog %2").arg(NameOf(widget), NameOf(modal));
    }
    return QString();
}

void SendMouse(QEvent::Type type, QWidget *target, const QPoint &position)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, position, target->mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

/** A menu takes a click for its own only when the mouse has come to it from where it was opened. */
void MoveAlong(QWidget *menu, const QPoint &position)
{
    const int steps = 8;
    for (int i = 0; i < steps; ++i) {
        SendMouse(QEvent::MouseMove, menu, position - QPoint(0, steps - 1 - i));
    }
}

/** What a window manager does: a dialog that closes leaves the keyboard to the window before it. */
void ActivateWindowOf(QWidget *widget)
{
    const bool isPopup = (widget->window()->windowFlags() & Qt::WindowType_Mask) == Qt::Popup;
    if (QApplication::activeWindow() != widget->window() && !isPopup) {
        ToolkitCompat::ActivateWindow(widget->window());
    }
}

/** The toolkit moves the focus for the window system's clicks only. */
void FocusByClick(QWidget *target)
{
    for (QWidget *widget = target; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) {
            widget->setFocus(Qt::MouseFocusReason);
            return;
        }
    }
}

QString ClickAt(QWidget *widget, const QPoint &position)
{
    QString obstacle = Obstacle(widget);
    if (!obstacle.isNull()) {
        return obstacle;
    }
    QWidget *window = widget->window();
    QPointer<QWidget> target = window->childAt(widget->mapTo(window, position));
    if (!target) {
        target = window;
    }
    if (!IsSameOrInside(target.data(), widget)) {
        return QString::fromLatin1("%1 is covered").arg(NameOf(widget));
    }
    const QPoint targetPosition = target->mapFrom(window, widget->mapTo(window, position));
    ActivateWindowOf(widget);
    FocusByClick(target.data());
    SendMouse(QEvent::MouseButtonPress, target.data(), targetPosition);
    if (target) {
        SendMouse(QEvent::MouseButtonRelease, target.data(), targetPosition);
    }
    return QString();
}

QString SendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text, QWidget *widget)
{
    QString obstacle = Obstacle(widget);
    if (!obstacle.isNull()) {
        return obstacle;
    }
    ActivateWindowOf(widget);
    QPointer<QWidget> target = QApplication::focusWidget();
    if (!IsSameOrInside(target.data(), widget)) {
        return QString::fromLatin1("%1 doesn't have the keyboard's focus").arg(NameOf(widget));
    }
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target.data(), &press);
    if (target) {
        QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(target.data(), &release);
    }
    return QString();
}

} // namespace

QString UserActions::Click(QWidget *widget)
{
    return ClickAt(widget, widget->rect().center());
}

QString UserActions::ClickRow(QTableWidget *table, int row)
{
    if (row < 0 || row >= table->rowCount()) {
        return QString::fromLatin1("%1 has no row %2").arg(NameOf(table)).arg(row + 1);
    }
    const QModelIndex index = table->model()->index(row, 0);
    table->scrollTo(index);
    return ClickAt(table->viewport(), table->visualRect(index).center());
}

QString UserActions::ChooseFromMenu(QMenu *menu, QAction *action)
{
    QMenuBar *bar = qobject_cast<QMenuBar *>(menu->parentWidget());
    if (!bar) {
        return QString::fromLatin1("%1 is in no menu bar").arg(NameOf(menu));
    }
    QString problem = ClickAt(bar, bar->actionGeometry(menu->menuAction()).center());
    if (problem.isNull() && !action->isEnabled()) {
        problem = QString::fromLatin1("%1 is disabled").arg(action->objectName());
    }
    if (problem.isNull()) {
        MoveAlong(menu, menu->actionGeometry(action).center());
        problem = ClickAt(menu, menu->actionGeometry(action).center());
    }
    if (menu->isVisible()) {
        menu->close();
    }
    return problem;
}

QString UserActions::PressKey(int key, QWidget *widget, Qt::KeyboardModifiers modifiers)
{
    return SendKey(key, modifiers, QString(), widget);
}

QString UserActions::TypeText(const QString &text, QWidget *widget)
{
    for (int i = 0; i < text.size(); ++i) {
        QString problem = SendKey(0, Qt::NoModifier, text.mid(i, 1), widget);
        if (!problem.isNull()) {
            return problem;
        }
    }
    return QString();
}
