#ifndef PRIORITYRECORDS_H
#define PRIORITYRECORDS_H

#include <QMap>
#include <QSet>
#include <QString>

/** What was done to the priority of one profile. */
struct PriorityRecord {
    /** What it was before. */
    int before = 0;
    /** What it was made, and what it is being made: the program may end before it is. */
    int written = 0;
    int intended = 0;

    bool IsOwn(int priority) const { return priority == written || priority == intended; }
    bool operator==(const PriorityRecord &other) const
    {
        return before == other.before && written == other.written && intended == other.intended;
    }
};

/**
 * What has to outlive the program for it to tell its own work from that of others: the priorities that it
 * wrote, the profiles that it has known as connected, and those that it has told of. Profiles are named by
 * their uuid; there is nothing else in the file.
 */
class CPriorityRecords
{
public:
    /** @param file  an INI file, which may be missing. Empty: nothing outlives the program. */
    explicit CPriorityRecords(const QString &file);

    QMap<QString, PriorityRecord> priorities;

    /** False when there is no file yet: nothing can be told of what was connected before. */
    bool isConnectedKnown = false;
    QSet<QString> connected;

    /** Profiles of which the user has been told that they keep the list from taking full effect. */
    QSet<QString> told;

    /** Writes the file if anything has changed; false when it can't be written. */
    bool Save();

private:
    Q_DISABLE_COPY(CPriorityRecords)

    const QString m_file;
    QMap<QString, PriorityRecord> m_savedPriorities;
    QSet<QString> m_savedConnected;
    QSet<QString> m_savedTold;
    bool m_isConnectedSaved = false;
};

#endif
