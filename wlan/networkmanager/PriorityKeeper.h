#ifndef PRIORITYKEEPER_H
#define PRIORITYKEEPER_H

#include "PriorityPlan.h"
#include "PriorityRecords.h"

#include <ComplaintLog.h>
#include <PriorityList.h>

#include <QList>
#include <QObject>
#include <QTimer>

class CCallBatch;
class FileWatcher;
class CNetworkManagerClient;
class CProfileReader;
class QDBusMessage;

/**
 * Keeps the priority list and NetworkManager's priorities together: whatever changes in the list is written
 * to NetworkManager, and a network that is connected for the first time goes to the top of the list.
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
     * @param userDirectory  with a trailing separator, as the priority plug-in has it; may be empty.
     */
    CPriorityKeeper(CNetworkManagerClient *client, const QString &userDirectory, QObject *parent);

public slots:
    /** Has the two compared soon. */
    void Trigger();

    /**
     * Drops what has been read and not yet written, and begins anew: a profile is about to be changed, and
     * its former settings must not be written over that.
     */
    void StartAgain();

private slots:
    void Begin();
    void TakeProfiles();
    void TakeReplies();
    void TakeManagerChange(const QString &interface, const QVariantMap &changed, const QStringList &);
    void TakeConnectionChange(const QString &interface, const QVariantMap &changed, const QStringList &);

private:
    Q_DISABLE_COPY(CPriorityKeeper)

    bool ReadList(QList<PriorityList> *list);
    bool RaiseFirstConnections(const QList<PriorityList> &list);
    void Write(const QList<PriorityList> &list);
    void Complain(const QString &text);
    void End();

    CNetworkManagerClient *const m_client;
    const QString m_listPath;
    FileWatcher *m_file;
    CPriorityRecords m_records;
    CComplaintLog m_log{"WLANNetworkManager"};
    QStringList m_complaints;
    QTimer m_pause;
    QTimer m_retry;
    CProfileReader *m_reader;
    CCallBatch *m_batch;
    QList<PriorityChange> m_changes;
    bool m_isDueAgain;
};

#endif
