#ifndef TABSTOPS_H
#define TABSTOPS_H

#include <QList>
#include <QString>

class QObject;
class QWidget;

/** The way of the keyboard through a window. */
namespace TabStops
{

/** Where the focus comes by pressing the key Tab, or Shift and Tab, from where it is, until it comes back
 * there. */
QList<QWidget *> Walk(QWidget *window, bool isForward);

/** What the user works with: buttons, fields, boxes and lists that can be seen and are enabled. */
QList<QWidget *> Controls(QWidget *window);

/** A box's own field and list, which the user takes for the box. */
bool IsPartOfABox(const QObject *object);

QString Named(const QWidget *widget);

} // namespace TabStops

#endif
