#ifndef NETWORKMANAGERORDER_H
#define NETWORKMANAGERORDER_H

#include <IOrderPlugin.h>

#include <QList>

class CPriorityKeeper;

/** Answers for the keeper, which works by itself: an order is the first whole comparison that begins after
 * it. */
class CNetworkManagerOrder : public QObject, public IOrderPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOrderPlugin)

public:
    /** @param keeper  outlives the orders. */
    CNetworkManagerOrder(CPriorityKeeper *keeper, QObject *parent);

    int Apply() override;
    void GetOutcome(int order, OrderOutcome *outcome) override;

signals:
    void OnOrderChanged();

private slots:
    void Begin();
    void End(const OrderOutcome &outcome, bool isDueAgain);

private:
    Q_DISABLE_COPY(CNetworkManagerOrder)

    CPriorityKeeper *const m_keeper;
    /** By number, counted from 1. */
    QList<OrderOutcome> m_outcomes;
    /** Orders, by number, that the next comparison is for, and those that the one now is for. */
    QList<int> m_waiting;
    QList<int> m_running;
};

#endif
