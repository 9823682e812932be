#ifndef COMPLAINTLOG_H
#define COMPLAINTLOG_H

#include <QStringList>

/**
 * Writes what is wrong to the log, once: whatever a plug-in works on is asked anew for every operation, and a
 * fault that stays is not to fill the log. Complaints must not contain keys, nor anything read from where
 * keys stand.
 */
class CComplaintLog
{
public:
    /** @param source  the plug-in's name, which every line begins with. */
    explicit CComplaintLog(const char *source);

    /** Writes those of complaints that the last call did not have. */
    void Tell(const QStringList &complaints);

    /** Makes the next Tell write all of its complaints. */
    void Forget();

private:
    const char *const m_source;
    QStringList m_told;
};

#endif
