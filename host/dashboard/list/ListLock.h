#ifndef LISTLOCK_H
#define LISTLOCK_H

#include <QString>

/**
 * Keeps the commands of other processes away from the list while it is in scope. The plug-in deletes the file
 * and writes it anew: a command that reads in between would find no list, and add to nothing.
 *
 * It is the directory that is locked, so no file of its own is left behind, and the lock ends with the
 * process however that ends. A directory that can't be locked counts as free: then the list is as safe as
 * without a lock.
 */
class ListLock
{
public:
    enum Use { Reading, Changing };

    /** Readers share the directory; whoever changes the list is alone. Waits for others, but not longer than
     * it is told to. */
    ListLock(const QString &directory, Use use, int waitMilliseconds);
    ~ListLock();

    /** Whether somebody else has been holding the list all that time. */
    bool IsRefused() const { return m_isRefused; }

private:
    Q_DISABLE_COPY(ListLock)

    int m_directory;
    bool m_isRefused;
};

#endif
