#ifndef PRIORITYKEEPER_H
#define PRIORITYKEEPER_H

#include "MetricKeeper.h"
#include "PriorityPlan.h"
#include "PriorityWriter.h"

#include <ComplaintLog.h>
#include <OrderRecords.h>
#include <PriorityList.h>
#include <UserNotice.h>

#include <QList>
#include <QObject>
#include <QSet>
#include <QTimer>

class CLivePicture;
class CNetworkManagerClient;
class FileWatcher;
class IPriorityPlugin;
struct ConnectionPicture;

/**
 * Keeps the priority list and NetworkManager's priorities together: whatever changes in the list is written
 * to NetworkManager, and a network that is connected for the first time goes to its place in the list. Of
 * several connections that are up, the first one in the list carries the traffic. While the user does not
 * want the list to rule, all profiles and connections have what they had before.
 *
 * Works in the background: nobody waits for it, and it may be deleted at any time. The list is read and
 * changed through the priority plug-in alone; its file is only watched.
 */
class CPriorityKeeper : public QObject
{
    Q_OBJECT

public:
    /**
     * @param client         outlives the keeper.
     * @param picture        as well.
     * @param userDirectory  with a trailing separator, as the priority plug-in has it; may be empty.
     */
    CPriorityKeeper(CNetworkManagerClient *client, CLivePicture *picture, const QString &userDirectory,
                    QObject *parent);

    /** What the user orders now comes before what somebody else has set against the list. */
    void BeginTurn();

public slots:
    /** Has the two compared soon. */
    void Trigger();

    /** Has all that is known of a profile forgotten, which is gone for good. */
    void Forget(const QString &uuid);

signals:
    /** A comparison begins. It ends with Ended, perhaps before this call is over. */
    void Begun();

    /** @param isDueAgain  another comparison follows: something has changed meanwhile. */
    void Ended(const OrderOutcome &outcome, bool isDueAgain);

private slots:
    void Begin();
    void TakePicture();
    void TakeResults();
    void TakeMetrics();
    void TakeManagerChange(const QString &interface, const QVariantMap &changed, const QStringList &);
    void TakeConnectionChange(const QString &interface, const QVariantMap &changed, const QStringList &);

private:
    Q_DISABLE_COPY(CPriorityKeeper)

    void Compare();
    void DropForgotten();
    bool ReadList(IPriorityPlugin *priority, QList<PriorityList> *list);
    bool AddFirstConnections(IPriorityPlugin *priority, const ConnectionPicture &picture,
                             const QList<PriorityList> &list);
    void Write(const ConnectionPicture &picture, const QList<PriorityList> &list);
    void KeepFormer(const QList<PriorityChange> &changes);
    QList<NetworkProfile> TakeTurn(const QList<NetworkProfile> &profiles, const QList<PriorityList> &list);
    void SaveRecords();
    void Tell(const PlannedPriorities &planned, const QList<NetworkProfile> &yielded);
    /** The name of the first profile that the user has not been told of, who is told of all of them now. */
    QString FirstUntold(const QList<NetworkProfile> &profiles, const QSet<QString> &told);
    void Complain(const QString &text);
    void Keep(const NetworkProfile &profile, int obstacle);
    void Fail(int failure);
    void End();

    CNetworkManagerClient *const m_client;
    CLivePicture *const m_picture;
    const QString m_listPath;
    FileWatcher *m_file;
    FileWatcher *m_rules;
    CPriorityRecords m_records;
    CComplaintLog m_log{"WLANNetworkManager"};
    QStringList m_complaints;
    OrderOutcome m_outcome;
    CUserNotice m_notice;
    QTimer m_pause;
    CPriorityWriter m_writer;
    CMetricKeeper m_metrics;
    /** What is being written. */
    QList<PriorityChange> m_changes;
    /** What this comparison leaves, and of which list; see PriorityTurn. */
    QMap<QString, int> m_left;
    QString m_list;
    /** Profiles, by their uuids, that the records are still to lose. */
    QSet<QString> m_forgotten;
    bool m_isTurnNew;
    /** For the picture to be complete. */
    bool m_isWaiting;
    bool m_isDueAgain;
};

#endif
