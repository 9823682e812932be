#ifndef COMPLAINTLOG_H
#define COMPLAINTLOG_H

#include <QStringList>

/**
 * Writes what is wrong with a file to the log, once: the files are read anew for every operation, and a fault
 * that stays is not to fill the log. Complaints must not contain anything read from a file that holds keys.
 */
class CComplaintLog
{
public:
    /** Writes those of complaints that the last call did not have. */
    void Tell(const QStringList &complaints);

    /** Makes the next Tell write all of its complaints. */
    void Forget();

private:
    QStringList m_told;
};

#endif
