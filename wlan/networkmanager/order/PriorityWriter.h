#ifndef PRIORITYWRITER_H
#define PRIORITYWRITER_H

#include <NetworkManagerResult.h>
#include <NetworkProfile.h>

#include <OrderRecords.h>

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

class CCallBatch;
class CNetworkManagerClient;

/** What a key of a profile's section "connection" is to have. */
struct ProfileValue {
    NetworkProfile profile;
    QString key;
    QVariant value;

    static ProfileValue Priority(const NetworkProfile &profile, int priority);
    static ProfileValue ConnectsByItself(const NetworkProfile &profile, bool isOn);
};

/**
 * Writes priorities, or whether profiles connect by themselves, one after the other, each into the settings
 * as they are at that moment.
 *
 * NetworkManager takes a profile as a whole only. So its settings are read directly before, and what somebody
 * else has changed since then is not overwritten: from 1.44 on NetworkManager compares the version that was
 * known before. An earlier one only tells of each change, which may come too late. With it, a profile that
 * somebody else has just changed is left until it has rested, as changes often come in rows.
 */
class CPriorityWriter : public QObject
{
    Q_OBJECT

public:
    /** @param client  outlives the writer. */
    CPriorityWriter(CNetworkManagerClient *client, QObject *parent);

    /** Finished comes when all is done, within this call when there is nothing to be written. */
    void Start(const QList<ProfileValue> &values);

    bool IsWriting() const { return m_isWriting; }

    const QList<ProfileValue> &Values() const { return m_values; }
    /**
     * What came of each of them. NetworkManagerResultChangedMeanwhile: it has to be planned anew, with what
     * the profile has become. What followed a call that was not answered was not tried.
     */
    const QList<NetworkManagerResult> &Results() const { return m_results; }

    /** The OrderObstacle that a result which is no success stands for. */
    static int ObstacleOf(NetworkManagerResult result);

    static OrderKept KeptOf(const NetworkProfile &profile, int obstacle);

signals:
    void Finished();

private slots:
    void TakeSettings();
    void TakeReply();
    void TakeUpdate(const QDBusMessage &signal);

private:
    Q_DISABLE_COPY(CPriorityWriter)

    const ProfileValue &Current() const { return m_values.at(m_results.size()); }
    void Next();
    void Ask(const QDBusMessage &call, int limitMilliseconds, const char *slot);
    void Note(NetworkManagerResult result);
    bool IsAtRest(const NetworkProfile &profile) const;

    CNetworkManagerClient *const m_client;
    CCallBatch *m_batch;
    QList<ProfileValue> m_values;
    QList<NetworkManagerResult> m_results;
    bool m_isWriting;
    /** The call that writes is under way. */
    bool m_isSent;
    /** When somebody else changed a profile, by its path. */
    QHash<QString, QElapsedTimer> m_changed;
};

#endif
