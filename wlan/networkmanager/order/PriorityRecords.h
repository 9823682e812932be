#ifndef PRIORITYRECORDS_H
#define PRIORITYRECORDS_H

#include "PriorityTurn.h"

#include <QList>
#include <QLockFile>
#include <QMap>
#include <QSet>
#include <QString>

#include <memory>

/** What was done to the priority of one profile, or to the route metric of one connection. */
struct PriorityRecord {
    /** What it was before. */
    int before = 0;
    /**
     * What it was made, the latest last. That one is perhaps still to be written, and an earlier one is what
     * there is while another program of ours is slower: so some of them are kept.
     */
    QList<int> own;

    bool IsOwn(int priority) const { return own.contains(priority); }
    void AddOwn(int priority);
    bool operator==(const PriorityRecord &other) const { return before == other.before && own == other.own; }
};

/**
 * What has to outlive the program for it to tell its own work from that of others: the priorities and route
 * metrics that it set, the profiles that it has known as connected, those that it has told of, and what
 * somebody else has set against the list. Profiles are named by their uuid, connections by NetworkManager's
 * number, and the list by a hash; there is nothing else in the file.
 *
 * All programs of a user share the file. Who works with it has it alone, from Open to Close, which is to
 * include what is done to NetworkManager: another one would take our priorities for somebody's own.
 */
class CPriorityRecords
{
public:
    /** @param file  an INI file, which may be missing. Empty: nothing outlives the program. */
    explicit CPriorityRecords(const QString &file);

    /** Reads the file anew, unless it could not be written. False, and nothing is read: another program has
     * it now. */
    bool Open();
    void Close();

    QMap<QString, PriorityRecord> priorities;

    /** As MetricPlan has them: the route metrics of connections that are up. */
    QMap<QString, PriorityRecord> metrics;

    /** False when there is no file yet: nothing can be told of what was connected before. */
    bool isConnectedKnown = false;
    QSet<QString> connected;

    /** Profiles of which the user has been told that they keep the list from taking full effect. */
    QSet<QString> told;

    PriorityTurn turn;

    /** Loses all that is known of a profile: one that is made again with its uuid is another one. */
    void Forget(const QString &uuid);

    /** Writes the file if anything has changed; false when it can't be written. */
    bool Save();

private:
    Q_DISABLE_COPY(CPriorityRecords)

    void Note();

    const QString m_file;
    std::unique_ptr<QLockFile> m_lock;
    QMap<QString, PriorityRecord> m_savedPriorities;
    QMap<QString, PriorityRecord> m_savedMetrics;
    QSet<QString> m_savedConnected;
    QSet<QString> m_savedTold;
    PriorityTurn m_savedTurn;
    bool m_isConnectedSaved = false;
    /** What is known here is more than the file has, as it can't be written. */
    bool m_isUnsaved = false;
};

#endif
