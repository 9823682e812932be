#ifndef DIRECTORYLOCK_H
#define DIRECTORYLOCK_H

#include <QString>

/**
 * Keeps other processes away from the files of a directory while it is in scope.
 *
 * It is the directory that is locked, so no file of its own is left behind, and the lock ends with the
 * process however that ends. A directory that can't be locked counts as free: then its files are as safe as
 * without a lock.
 *
 * Two locks on one directory in one process count as those of two processes.
 */
class DirectoryLock
{
public:
    enum Use { Reading, Changing };

    /** Readers share the directory; whoever changes something in it is alone. Waits for others, but not
     * longer than it is told to. */
    DirectoryLock(const QString &directory, Use use, int waitMilliseconds = 1000);
    ~DirectoryLock();

    /** Whether somebody else has been holding the directory all that time. */
    bool IsRefused() const { return m_isRefused; }

private:
    Q_DISABLE_COPY(DirectoryLock)

    int m_directory;
    bool m_isRefused;
};

#endif
