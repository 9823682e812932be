#include "UserActions.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QtTest>

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

/** What a window manager does: a dialog that closes leaves the keyboard to the window before it. */
void ActivateWindowOf(QWidget *widget)
{
    const bool isPopup = (widget->window()->windowFlags() & Qt::WindowType_Mask) == Qt::Popup;
    if (QApplication::activeWindow() != widget->window() && !isPopup) {
        widget->window()->activateWindow();
        // A dialog counts as active to Qt's own wait as soon as the window before it is.
        const bool isActive =
            QTest::qWaitFor([widget] { return QApplication::activeWindow() == widget->window(); });
        Q_UNUSED(isActive);
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
    QTest::mousePress(target.data(), Qt::LeftButton, Qt::NoModifier, targetPosition);
    if (target) {
        QTest::mouseRelease(target.data(), Qt::LeftButton, Qt::NoModifier, targetPosition);
    }
    return QString();
}

/** Why keys would not go to widget or into it; null, and it has the keyboard. */
QString FocusObstacle(QWidget *widget)
{
    QString obstacle = Obstacle(widget);
    if (!obstacle.isNull()) {
        return obstacle;
    }
    ActivateWindowOf(widget);
    return IsSameOrInside(QApplication::focusWidget(), widget)
               ? QString()
               : QString::fromLatin1("%1 doesn't have the keyboard's focus").arg(NameOf(widget));
}

} // namespace

QString UserActions::Click(QWidget *widget)
{
    return ClickAt(widget, widget->rect().center());
}

QString UserActions::ClickRow(QAbstractItemView *view, int row)
{
    if (row < 0 || row >= view->model()->rowCount()) {
        return QString::fromLatin1("%1 has no row %2").arg(NameOf(view)).arg(row + 1);
    }
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    return ClickAt(view->viewport(), view->visualRect(index).center());
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
        // A menu takes a click for its own only when the mouse has come to it from where it was opened.
        const int steps = 8;
        const QPoint place = menu->actionGeometry(action).center();
        for (int i = 1; i <= steps; ++i) {
            QTest::mouseMove(menu, place - QPoint(0, steps - i));
        }
        problem = ClickAt(menu, place);
    }
    if (menu->isVisible()) {
        menu->close();
    }
    return problem;
}

QString UserActions::PressKey(int key, QWidget *widget, Qt::KeyboardModifiers modifiers)
{
    QString obstacle = FocusObstacle(widget);
    if (obstacle.isNull()) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    return obstacle;
}

QString UserActions::TypeText(const QString &text, QWidget *widget)
{
    QString obstacle = FocusObstacle(widget);
    if (obstacle.isNull()) {
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    return obstacle;
}
