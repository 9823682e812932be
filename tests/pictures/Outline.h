#ifndef OUTLINE_H
#define OUTLINE_H

#include <QString>

class QWidget;

/**
 * What can be seen of window, as text: a line for each widget, in the order in which they stand on the
 * screen, from the top and from the left, whichever way the language reads. A line has the widget's class,
 * its name, its texts as they are on the screen, and its place in its parent: left, top, width and height. A
 * number with "~" before it may be another with other fonts or another style; the others are the plug-in's
 * own. Questions have no numbers: they are as large as their texts. Widgets side by side are below a line
 * "side by side". What covers another widget or sticks out of its parent has a line that tells.
 */
QString Outline(const QWidget *window);

#endif
