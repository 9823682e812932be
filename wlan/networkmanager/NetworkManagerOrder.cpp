#include "NetworkManagerOrder.h"

#include "PriorityKeeper.h"

#include <utility>

CNetworkManagerOrder::CNetworkManagerOrder(CPriorityKeeper *keeper, QObject *parent)
    : QObject(parent), m_keeper(keeper)
{
    connect(m_keeper, &CPriorityKeeper::Begun, this, &CNetworkManagerOrder::Begin);
    connect(m_keeper, &CPriorityKeeper::Ended, this, &CNetworkManagerOrder::End);
}

int CNetworkManagerOrder::Apply()
{
    OrderOutcome outcome;
    outcome.stage = OrderOutcome::StageOrderUnderWay;
    m_outcomes.append(outcome);
    const int order = static_cast<int>(m_outcomes.size());
    m_waiting.append(order);
    m_keeper->Trigger();
    return order;
}

void CNetworkManagerOrder::GetOutcome(int order, OrderOutcome *outcome)
{
    if (outcome) {
        *outcome = m_outcomes.value(order - 1);
    }
}

void CNetworkManagerOrder::Begin()
{
    m_running += m_waiting;
    m_waiting.clear();
}

void CNetworkManagerOrder::End(const OrderOutcome &outcome, bool isDueAgain)
{
    for (const int order : std::as_const(m_running)) {
        OrderOutcome &whole = m_outcomes[order - 1];
        whole.changes += outcome.changes;
        whole.kept = outcome.kept;
        if (!isDueAgain) {
            whole.stage = outcome.stage;
            whole.failure = outcome.failure;
        }
    }
    if (!isDueAgain && !m_running.isEmpty()) {
        m_running.clear();
        emit OnOrderChanged();
    }
}
