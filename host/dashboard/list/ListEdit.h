#ifndef LISTEDIT_H
#define LISTEDIT_H

#include <PriorityList.h>

#include <QList>

/** An entry of a list, and which one of those that are equal: counted from 0, from the top. */
struct ListedEntry {
    PriorityList entry;
    int repetition = 0;
};

bool operator==(const ListedEntry &left, const ListedEntry &right);

/** What becomes of a list when somebody edits it. Places are counted from 0. */
namespace ListEdit
{

/** Where the entry stands first; -1 when it isn't there. */
int PlaceOf(const PriorityList &entry, const QList<PriorityList> &list);
int PlaceOf(const ListedEntry &entry, const QList<PriorityList> &list);

/** The places of those entries that the list has; they rise. */
QList<int> PlacesOf(const QList<ListedEntry> &entries, const QList<PriorityList> &list);

/** The entries of a list, each told from those that are equal. */
QList<ListedEntry> Numbered(const QList<PriorityList> &list);

/**
 * The entries at places, which rise, together and in their order before the one that stands at before now;
 * at the end when none does.
 */
QList<PriorityList> Moved(const QList<PriorityList> &list, const QList<int> &places, int before);

/** Whether that leaves the list as it is. */
bool IsInPlace(const QList<PriorityList> &list, const QList<int> &places, int before);

/** The place of the first of them then, in a list of that size. */
int PlaceOfMoved(const QList<int> &places, int before, int size);

/** Before which place entries at places, which rise, go for the first of them to get to that place, in a list
 * of that size. */
int BeforeForPlace(const QList<int> &places, int place, int size);

/** Without the entries at places, which rise. */
QList<PriorityList> Removed(const QList<PriorityList> &list, const QList<int> &places);

/** With those of the entries that it doesn't have before the one that stands at before; at the end when none
 * does. */
QList<PriorityList> Added(const QList<PriorityList> &list, const QList<PriorityList> &entries, int before);

} // namespace ListEdit

#endif
