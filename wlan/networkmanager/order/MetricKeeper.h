#ifndef METRICKEEPER_H
#define METRICKEEPER_H

#include "MetricPlan.h"

#include <NetworkManagerResult.h>

#include <QDBusMessage>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class CCallBatch;
class CNetworkManagerClient;

/**
 * Sets the route metrics of devices that are connected, and gives them back: for as long as they stay
 * connected, and not in their profiles.
 *
 * What a device has is read directly before, with its version: what somebody else changes meanwhile is not
 * overwritten. It is asked only for what is not known to be in effect already.
 */
class CMetricKeeper : public QObject
{
    Q_OBJECT

public:
    /** @param client  outlives the keeper. */
    CMetricKeeper(CNetworkManagerClient *client, QObject *parent);

    /**
     * Decides what Start is to do. What MetricPlan::Make tells of records applies: they are to be saved
     * before Start, as what was set and not recorded could never be told from what somebody else has set.
     *
     * @return the profiles with a metric that somebody has chosen and that contradicts the list.
     */
    QList<NetworkProfile> Plan(const QList<PriorityList> &list, const ConnectionPicture &picture,
                               QMap<QString, PriorityRecord> *records);

    /**
     * Finished comes when all is done, within this call when there is nothing to be done.
     *
     * @param records  outlive that; what was given back is taken out of them.
     */
    void Start(QMap<QString, PriorityRecord> *records);

    bool IsWorking() const { return m_isWorking; }

    struct Failure {
        NetworkProfile profile;
        NetworkManagerResult result = NetworkManagerResultSuccess;
    };
    /** Of the last Start. */
    const QList<Failure> &Failures() const { return m_failures; }
    /** It has to be planned anew: somebody else has changed something. */
    bool IsDueAgain() const { return m_isDueAgain; }

signals:
    void Finished();

private:
    Q_DISABLE_COPY(CMetricKeeper)

    void Ask(const QList<QDBusMessage> &calls, void (CMetricKeeper::*takeReplies)());
    void TakeApplied();
    void TakeReplies();
    void NoteApplied(const MetricChange &change, const QDBusMessage &reply);
    bool Compare(const MetricWish &wish, NMVariantMapMap *settings);
    void NoteDone(const MetricWish &wish);
    /** True when it is one, and what it was for was not done. */
    bool IsError(const MetricChange &change, const QDBusMessage &reply, const char *signature);
    void Forget();

    CNetworkManagerClient *const m_client;
    CCallBatch *m_batch;
    QMap<QString, PriorityRecord> *m_records;
    QList<MetricChange> m_changes;
    QList<MetricChange> m_written;
    QList<QDBusMessage> m_calls;
    QList<Failure> m_failures;
    /** The connection that carried the traffic when it was last planned. */
    QString m_primary;
    /** By the keys of wishes. */
    QHash<QString, qint64> m_inEffect;
    QHash<QString, qint64> m_chosen;
    bool m_isWorking;
    bool m_isDueAgain;
};

#endif
