#ifndef SEARCHABLE_H
#define SEARCHABLE_H

#include <QString>

/** A name as it is searched for: letters of either case and with any accent are the same. */
QString Searchable(const QString &name);

#endif
