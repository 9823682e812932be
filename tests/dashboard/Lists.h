#ifndef LISTS_H
#define LISTS_H

#include <PriorityList.h>

#include <QList>
#include <QStringList>

/** Lists as tests write them down: "Home, Mobile/2" is a Wi-Fi entry and one of type "2". */
QList<PriorityList> Listed(const QString &text);
QString AsText(const QList<PriorityList> &entries);

/** A text without the marks that let the names in it read in their own direction. */
QString Plain(QString text);

#endif
