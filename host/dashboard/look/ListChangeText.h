#ifndef LISTCHANGETEXT_H
#define LISTCHANGETEXT_H

#include <ListHistory.h>

#include <QDateTime>
#include <QList>
#include <QString>

/** Changes of the priority list in words of the current language. */
namespace ListChangeText
{

/** What was done, such as "Moved Café up" or "Added 3 networks · Removed Office"; one line whatever the names
 * hold. */
QString Describe(const QList<PriorityList> &before, const QList<PriorityList> &after);

/** What was done from one of the states to a later one; also such as "Restored the list of 3/1/26 9:05 AM".
 */
QString DescribeStep(const QList<ListState> &states, int from, int to);

/** As Describe, and where the later state tells which entry was moved, it is told of that one. */
QString DescribeStep(const ListState &from, const ListState &to);

/** What will be done, in sentences, such as "3 networks will be added. Office will be removed." */
QString Announce(const QList<PriorityList> &before, const QList<PriorityList> &after);

/** An entry's name on one line, shortened when it is long, reading in its own direction. */
QString Name(const PriorityList &entry);

/** The names of a few entries; of many the first ones. */
QString Names(const QList<PriorityList> &entries);

/** Date and time of day as the speakers of the current language write them, short. */
QString Moment(const QDateTime &time);

} // namespace ListChangeText

#endif
