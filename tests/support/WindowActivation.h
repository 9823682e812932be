#ifndef WINDOWACTIVATION_H
#define WINDOWACTIVATION_H

#include <QApplication>
#include <QWidget>
#include <QtTest>

/**
 * Gives the keyboard to a window; an open menu has it already. A dialog counts as active to Qt's own wait as
 * soon as the window before it is.
 */
inline void ActivateWindow(QWidget *window)
{
    window->activateWindow();
    const bool isMenu = (window->windowFlags() & Qt::WindowType_Mask) == Qt::Popup;
    QVERIFY(isMenu || QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
}

#endif
