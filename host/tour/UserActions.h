#ifndef USERACTIONS_H
#define USERACTIONS_H

#include <QString>
#include <qnamespace.h>

class QAction;
class QMenu;
class QAbstractItemView;
class QWidget;

/**
 * What a user does with mouse and keyboard. Each answers null, or in plain words why a user couldn't do it:
 * nothing can be clicked that is hidden, disabled, covered, or behind a modal dialog.
 */
namespace UserActions
{

QString Click(QWidget *widget);
QString ClickRow(QAbstractItemView *view, int row);

/** Opens a menu of the menu bar, and chooses from it. */
QString ChooseFromMenu(QMenu *menu, QAction *action);

/** Presses and releases a key where the keyboard's focus is, which has to be widget or in it. */
QString PressKey(int key, QWidget *widget, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
QString TypeText(const QString &text, QWidget *widget);

} // namespace UserActions

#endif
