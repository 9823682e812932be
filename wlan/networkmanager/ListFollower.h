#ifndef LISTFOLLOWER_H
#define LISTFOLLOWER_H

#include "ConnectAttempts.h"
#include "FollowRules.h"

#include <FileWatcher.h>

#include <QElapsedTimer>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <memory>

class CLivePicture;
class CNetworkManagerClient;

/**
 * Follows the list while the user wants that: switches to an entry above the one in use when FollowRules says
 * so. Of several programs of one user one does, the others wait for its end.
 *
 * While the list is not followed, nothing is looked at, no timer runs and NetworkManager is asked nothing.
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
        FollowHistory history;
        bool isOnBattery = false;
        /** Of a switch that has not come up yet, the names of both networks; empty otherwise. */
        QString name;
        QString former;
    };

    void TakeRules();
    void Begin();
    void End();
    void Step();
    bool HasTurn();
    void ReadList();
    void TellSwitch(int stage);

    CLivePicture *const m_picture;
    CConnectAttempts m_attempts;
    FileWatcher m_rules;
    std::unique_ptr<Turn> m_turn;
    /** The number of the last switch. */
    int m_try = 0;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

#endif
