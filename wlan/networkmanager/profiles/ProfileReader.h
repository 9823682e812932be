#ifndef PROFILEREADER_H
#define PROFILEREADER_H

#include "NetworkProfile.h"

#include <CallerRights.h>
#include <NetworkManagerResult.h>
#include <NetworkManagerState.h>
#include <TimeLimit.h>

#include <QDBusMessage>
#include <QList>
#include <QObject>

class CCallBatch;
class CNetworkManagerClient;

/** Asks NetworkManager for all that the operations need: first what there is, then each profile. */
class CProfileReader : public QObject
{
    Q_OBJECT

public:
    /** @param client  outlives the reader. */
    CProfileReader(CNetworkManagerClient *client, const CTimeLimit &limit, QObject *parent);

    /** Begins; Finished comes in any case. Call it once. */
    void Start();

    NetworkManagerResult Result() const { return m_result; }
    const NetworkManagerObjects &Objects() const { return m_objects; }
    const NetworkManagerState &State() const { return m_state; }
    const CallerRights &Rights() const { return m_rights; }

    /**
     * In the order of ComesBefore. A profile that went away while it was being asked for is not among them.
     * When the time was over, these are the profiles that were read by then.
     */
    const QList<NetworkProfile> &Profiles() const { return m_profiles; }

    /** Those that are there, that this user may see, and that could not be read, each with why. */
    const QMap<QString, NetworkManagerResult> &Missed() const { return m_missed; }

    /** Whether an answer without settings is of a profile that is there and that this user may see. */
    static bool IsMissed(const QDBusMessage &reply);

signals:
    void Finished();

private slots:
    void TakeState();
    void TakeProfiles();

private:
    Q_DISABLE_COPY(CProfileReader)

    void Ask(const QList<QDBusMessage> &calls, const char *slot);
    void Finish(NetworkManagerResult result);

    CNetworkManagerClient *const m_client;
    const CTimeLimit m_limit;
    CCallBatch *m_batch;
    NetworkManagerResult m_result;
    QMap<QString, NetworkManagerResult> m_missed;
    NetworkManagerObjects m_objects;
    NetworkManagerState m_state;
    CallerRights m_rights;
    QList<NetworkProfile> m_profiles;
};

#endif
