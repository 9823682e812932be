#ifndef LISTSOURCE_H
#define LISTSOURCE_H

#include <ContractNumbers.h>
#include <PriorityList.h>

#include <QList>

/** In place of a PriorityResult where there is nobody to ask. */
const int PriorityNoPlugin = -1;

/** What whoever keeps the list has answered for it. */
struct ListReading {
    /** A PriorityResult, or PriorityNoPlugin. */
    int status = PriorityNoPlugin;
    QList<PriorityList> entries;
};

/** Where the list is read, and who tells everybody of a file that took the place of another. */
class ListSource
{
public:
    virtual ~ListSource() = default;

    virtual ListReading Read() = 0;

    /** The file is another now: has everybody told who shows the list. */
    virtual void FileReplaced() = 0;
};

#endif
