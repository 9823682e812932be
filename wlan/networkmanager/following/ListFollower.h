#ifndef LISTFOLLOWER_H
#define LISTFOLLOWER_H

#include "FallbackRules.h"
#include "StartRecord.h"

#include <ConnectAttempts.h>

#include <FileWatcher.h>

#include <QElapsedTimer>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <memory>

class CLivePicture;
class CNetworkManagerClient;

/**
 * Does what the list asks for while time passes, as far as the user wants it: switches to an entry above the
 * one in use when FollowRules says so, and connects and ends mobile broadband as FallbackRules says. Of
 * several programs of one user one does, the others wait for its end.
 *
 * While neither is wanted, nothing is looked at, no timer runs and NetworkManager is asked nothing.
 *
 * NetworkManager doesn't connect by itself what was ended. So all that was ended and has not been connected
 * since is connected again when nobody saves data any more: when the user has switched it off, at the end of
 * the program, or at the beginning of the next one where there was no time for it.
 */
class CListFollower : public QObject
{
    Q_OBJECT

public:
    /**
     * @param client   outlives this.
     * @param picture  as well.
     */
    CListFollower(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent);
    ~CListFollower() override;

signals:
    /** A switch has come up. */
    void Switched(const QString &name, const QString &former);

private:
    Q_DISABLE_COPY(CListFollower)

    /** What there is while the list is followed. */
    struct Turn {
        Turn(const QString &lockPath, const QString &listPath);

        QLockFile lock;
        QElapsedTimer sinceRefusal;
        FileWatcher lockFile;
        FileWatcher listFile;
        QList<PriorityList> list;
        bool isListDue = true;
        bool isFollowing = false;
        FollowHistory history;
        bool isSaving = false;
        FallbackHistory fallback;
        /** Of what is to be connected again, as it is kept. */
        QStringList ended;
        bool isOnBattery = false;
        /** Of a switch that has not come up yet, the names of both networks; empty otherwise. */
        QString name;
        QString former;
    };

    enum Patience { WithoutWaiting, UntilAnswered };

    void TakeRules();
    void Begin();
    void End();
    void Step();
    qint64 FollowList(const FollowView &view, qint64 now);
    qint64 SaveData(const FollowView &view, qint64 now);
    int Connect(const QString &profile, const QString &device, const FollowView &view);
    void NoteEnded(const FollowView &view, const FallbackStep &step);
    void HandBackLeft();
    void HandBack(Patience patience);
    bool HasTurn();
    void ReadList();
    void TellSwitch(int stage);

    CNetworkManagerClient *const m_client;
    CLivePicture *const m_picture;
    const StartRecord m_ended;
    CConnectAttempts m_attempts;
    FileWatcher m_rules;
    std::unique_ptr<Turn> m_turn;
    /** The number of the last switch. */
    int m_try = 0;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

#endif
