#include "TabStops.h"

#include <WindowActivation.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest>

namespace
{

const int mostStops = 100;

bool IsControl(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QPlainTextEdit *>(widget) ||
           (qobject_cast<const QAbstractItemView *>(widget) && !qobject_cast<const QHeaderView *>(widget));
}

} // namespace

QList<QWidget *> TabStops::Walk(QWidget *window, bool isForward)
{
    QList<QWidget *> stops;
    ActivateWindow(window);
    if (!window->focusWidget()) {
        QTest::keyClick(window, Qt::Key_Tab);
    }
    for (int i = 0; i < mostStops; ++i) {
        QWidget *stop = QApplication::focusWidget();
        if (!stop || stops.contains(stop)) {
            break;
        }
        stops.append(stop);
        QTest::keyClick(stop, isForward ? Qt::Key_Tab : Qt::Key_Backtab,
                        isForward ? Qt::NoModifier : Qt::ShiftModifier);
    }
    return stops;
}

QList<QWidget *> TabStops::Controls(QWidget *window)
{
    QList<QWidget *> controls;
    foreach (QWidget *widget, window->findChildren<QWidget *>()) {
        if (widget->window() == window && widget->isVisible() && widget->isEnabled() && IsControl(widget) &&
            !IsPartOfABox(widget)) {
            controls.append(widget);
        }
    }
    return controls;
}

bool TabStops::IsPartOfABox(const QObject *object)
{
    for (const QObject *parent = object->parent(); parent; parent = parent->parent()) {
        if (qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent)) {
            return true;
        }
    }
    return false;
}

QString TabStops::Named(const QWidget *widget)
{
    return QString::fromLatin1("%1 (%2)").arg(widget->objectName(),
                                              QLatin1String(widget->metaObject()->className()));
}
