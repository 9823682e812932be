#ifndef PROFILEWRITER_H
#define PROFILEWRITER_H

#include <NetworkManagerResult.h>
#include <NetworkProfile.h>

#include <WLANRecords.h>

#include <QList>
#include <QObject>

class CCallBatch;
class CLivePicture;
class CNetworkManagerClient;
class QDBusMessage;

/**
 * Stores profiles, one after the other, each as ProfileRules.h has it beside the profiles that there are by
 * then. Nobody waits for it: NetworkManager may have to ask the user for a password first.
 */
class CProfileWriter : public QObject
{
    Q_OBJECT

public:
    /** @param client  outlives the writer, as picture does. */
    CProfileWriter(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent);

    /** Ended comes, within this call when nothing has to be asked. Call it with what can be sent. */
    void Store(const WLANProfile &wanted);

    /** Gives what is under way a last moment: the program ends. */
    void Finish();

signals:
    /**
     * @param name    that the profile was to have.
     * @param better  of a profile that is in the way, for NetworkManagerResultBetterProfile.
     */
    void Ended(NetworkManagerResult result, const QString &name, const QString &better);

private slots:
    void Continue();
    void TakeSilence();

private:
    Q_DISABLE_COPY(CProfileWriter)

    typedef void (CProfileWriter::*Step)(const QDBusMessage &reply);

    NetworkManagerResult Begin();
    void Add();
    void Change();
    void AskForWepKeys();
    void TakeWepKeys(const QDBusMessage &reply);
    void TakeVersionAfterKeys(const QDBusMessage &reply);
    void SendChange();
    void TakeAdded(const QDBusMessage &reply);
    void TakeChanged(const QDBusMessage &reply);
    void Ask(const QDBusMessage &call, Step then);
    void End(NetworkManagerResult result);

    CNetworkManagerClient *const m_client;
    CLivePicture *const m_picture;
    /** The first one is under way. */
    QList<WLANProfile> m_waiting;
    NetworkProfile m_changed;
    QString m_better;
    CCallBatch *m_batch;
};

#endif
