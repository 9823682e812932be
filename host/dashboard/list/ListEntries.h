#ifndef LISTENTRIES_H
#define LISTENTRIES_H

#include <PriorityList.h>

#include <QList>

/** What the dashboard asks of entries of the priority list. */
namespace ListEntries
{

bool IsSame(const PriorityList &left, const PriorityList &right);
bool IsSame(const QList<PriorityList> &left, const QList<PriorityList> &right);

bool IsWifi(const PriorityList &entry);

/** Whether a file can carry the entry as it is. */
bool IsStorable(const PriorityList &entry);

/** The entries as a file can carry them; what it can't carry comes back as PriorityList::name tells. */
QList<PriorityList> Storable(const QList<PriorityList> &entries);

} // namespace ListEntries

#endif
