#ifndef NETWORKMANAGERORDER_H
#define NETWORKMANAGERORDER_H

#include <PriorityWriter.h>

#include <IOrderPlugin.h>

#include <QList>
#include <QTimer>

class CLivePicture;
class CNetworkManagerClient;
class CPriorityKeeper;

/** Answers for the keeper, which works by itself: an order to apply is the first whole comparison that begins
 * after it. What the user wants of one profile is written here. */
class CNetworkManagerOrder : public QObject, public IOrderPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOrderPlugin)

public:
    /** @param client  outlives the orders, as picture and keeper do. */
    CNetworkManagerOrder(CNetworkManagerClient *client, CLivePicture *picture, CPriorityKeeper *keeper,
                         QObject *parent);

    int Apply() override;
    void GetOutcome(int order, OrderOutcome *outcome) override;
    void GetStanding(OrderOutcome *outcome) override;
    int SetConnectsByItself(const QString &profileId, bool isOn) override;

signals:
    void OnOrderChanged();
    void OnSwitched(const QString &name, const QString &former);

private slots:
    void Begin();
    void End(const OrderOutcome &outcome, bool isDueAgain);
    void WriteWish();
    void TakeWish();

private:
    Q_DISABLE_COPY(CNetworkManagerOrder)

    /** For a profile to connect by itself or not. */
    struct Wish {
        int order;
        QString profileId;
        bool isOn;
        int tries;
    };

    int Begun();
    void EndWish(int stage, const QList<OrderKept> &kept);

    CLivePicture *const m_picture;
    CPriorityKeeper *const m_keeper;
    CPriorityWriter m_writer;
    OrderOutcome m_standing;
    /** One after the other. */
    QList<Wish> m_wishes;
    QTimer m_pause;
    /** By number, counted from 1. */
    QList<OrderOutcome> m_outcomes;
    /** Orders, by number, that the next comparison is for, and those that the one now is for. */
    QList<int> m_waiting;
    QList<int> m_running;
};

#endif
