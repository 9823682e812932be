#ifndef SHOWNTEXTS_H
#define SHOWNTEXTS_H

#include <QList>
#include <QString>

class QWidget;

/** A text that a user of a window can come upon: see, point at, or have read out. */
struct ShownText {
    /** The widget's name and what of it, such as "okButton, tool tip". */
    QString where;
    QString text;
};

/** All of them in the visible part of window; without those that Qt brings along. */
QList<ShownText> ShownTexts(const QWidget *window);

#endif
