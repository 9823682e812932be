#ifndef LISTKEEPERTEXT_H
#define LISTKEEPERTEXT_H

#include <ListKeeper.h>

#include <QString>

/** What a ListKeeper has to say, in words of the current language. */
namespace ListKeeperText
{

/** Null for no obstacle. */
QString Reason(const ListKeeper &keeper, ListKeeper::Obstacle obstacle);

/** What Undo and Redo would take back and bring back; null when they can't. */
QString Undo(const ListKeeper &keeper);
QString Redo(const ListKeeper &keeper);

/** What changed the list last, with the time; null when that isn't known. */
QString LastChange(const ListKeeper &keeper);

} // namespace ListKeeperText

#endif
