#ifndef LIVEPICTURE_H
#define LIVEPICTURE_H

#include "ConnectionPicture.h"

#include <NetworkManagerResult.h>

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

class CCallBatch;
class CNetworkManagerClient;
class CProfileReader;

/**
 * NetworkManager as it is now, kept from its signals: it is asked for everything when it appears, for the
 * settings of a profile when these change, and for what the user may do when that changes. Nothing is asked
 * again and again.
 *
 * A NetworkManager that goes, restarts or stops answering leaves no old picture behind: until all is known
 * again, nothing is.
 */
class CLivePicture : public QObject
{
    Q_OBJECT

public:
    /** @param client  outlives the picture. */
    CLivePicture(CNetworkManagerClient *client, QObject *parent);

    /** As far as its signals have come. Valid until the next operation, and until the event loop. */
    const ConnectionPicture &Now();
    const ConnectionRecords &Records();

    /**
     * Whether something has been asked for that Now lacks as yet; Changed comes with it. False, too, while
     * NetworkManager is gone or does not answer.
     */
    bool IsOnItsWay();

    /** Why the last picture was not to be had, or is not there any more. */
    NetworkManagerResult Result() const { return m_result; }
    /** Why a profile that this user may see is missing; success when none is. */
    NetworkManagerResult Shortfall() const
    {
        return m_missed.isEmpty() ? NetworkManagerResultSuccess : m_missed.constBegin().value();
    }

    /** Asks for a profile that the caller has just changed or made: its signal may come later. */
    void Expect(const QString &profile);

    /** Has the devices look for networks, where the user may order that, but not again and again. */
    void LookForNetworks();

    /**
     * While somebody watches, a NetworkManager that falls silent is found out within seconds: it is asked for
     * a sign when it has told nothing for a while. There is no other way to tell it from one that has nothing
     * to tell. While nobody watches, it is not asked.
     */
    void SetWatched(bool isWatched);

    /** The profile of a connection that is there now; empty when it has none. */
    QString ProfileOf(const QString &connection);

signals:
    /** Once for changes that come close together. */
    void Changed();

    /** Is the moment to tell that nobody watches any more. */
    void AboutToAskForSign();

    /** At once, before Changed, so that no state is missed. */
    void ConnectionMoved(const QString &connection);

    /**
     * A connection has failed or was ended. Comes at once, and mostly twice: what the device tells comes
     * first.
     *
     * @param stage    how far it had come; StageNotKnown where that is not told.
     * @param failure  a ConnectionFailure.
     */
    void ConnectionFailed(const QString &connection, int stage, int failure);

private slots:
    void Read();
    void TakeReading();
    void TakeSignal(const QDBusMessage &signal);
    void TakeDeviceState(const QDBusMessage &signal);
    void TakeConnectionState(const QDBusMessage &signal);
    void TakeProfileChange(const QDBusMessage &signal);
    void TakeProfiles();
    void AskForRights();
    void TakeRights();
    void TakeLoss();
    void TakeSilence();
    void Check();

private:
    Q_DISABLE_COPY(CLivePicture)

    void Drop(int source, NetworkManagerResult result);
    void Apply(const QDBusMessage &signal);
    void AskForProfiles();
    void BeginBatch();
    void StoreProfile(const QString &path, const QDBusMessage &reply);
    void ForgetProfile(const QString &path);
    void NoteChange();
    void NoteSuccess(const QString &connection);
    bool HasKey(const QString &profile) const;

    CNetworkManagerClient *const m_client;
    NetworkManagerObjects m_objects;
    ConnectionPicture m_picture;
    ConnectionRecords m_records;
    bool m_isStateDue;
    bool m_areRecordsDue;
    NetworkManagerResult m_result;
    /** Profiles by their paths, and why they could not be read. */
    QMap<QString, NetworkManagerResult> m_missed;
    CProfileReader *m_reader;
    /** What came while everything was being asked for. */
    QList<QDBusMessage> m_early;
    CCallBatch *m_batch;
    /** By the places of the batch's calls; empty for what has gone meanwhile. */
    QStringList m_asked;
    QSet<QString> m_due;
    CCallBatch *m_rightsBatch;
    QElapsedTimer m_sinceLook;
    QTimer m_pause;
    QTimer m_retry;
    QTimer m_check;
};

#endif
