#include "NetworkManagerOrder.h"

#include <LivePicture.h>
#include <PriorityKeeper.h>

#include <algorithm>
#include <utility>

namespace
{

// Longer than a profile rests that somebody else has just changed.
const int pauseMilliseconds = 600;
const int mostTries = 20;

bool IsSame(const OrderKept &left, const OrderKept &right)
{
    return left.profileId == right.profileId && left.name == right.name && left.obstacle == right.obstacle;
}

bool IsSame(const OrderOutcome &left, const OrderOutcome &right)
{
    return left.stage == right.stage && left.failure == right.failure &&
           std::equal(left.kept.constBegin(), left.kept.constEnd(), right.kept.constBegin(),
                      right.kept.constEnd(),
                      [](const OrderKept &one, const OrderKept &other) { return IsSame(one, other); });
}

} // namespace

CNetworkManagerOrder::CNetworkManagerOrder(CNetworkManagerClient *client, CLivePicture *picture,
                                           CPriorityKeeper *keeper, QObject *parent)
    : QObject(parent), m_picture(picture), m_keeper(keeper), m_writer(client, nullptr)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &CNetworkManagerOrder::WriteWish);
    connect(&m_writer, &CPriorityWriter::Finished, this, &CNetworkManagerOrder::TakeWish);
    connect(m_keeper, &CPriorityKeeper::Begun, this, &CNetworkManagerOrder::Begin);
    connect(m_keeper, &CPriorityKeeper::Ended, this, &CNetworkManagerOrder::End);
}

/** The number of a new order. */
int CNetworkManagerOrder::Begun()
{
    OrderOutcome outcome;
    outcome.stage = OrderOutcome::StageOrderUnderWay;
    m_outcomes.append(outcome);
    return static_cast<int>(m_outcomes.size());
}

int CNetworkManagerOrder::Apply()
{
    const int order = Begun();
    m_waiting.append(order);
    m_keeper->BeginTurn();
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
    if (isDueAgain) {
        return;
    }
    OrderOutcome standing = outcome;
    standing.changes.clear();
    const bool isNew = !m_running.isEmpty() || !IsSame(standing, m_standing);
    m_running.clear();
    m_standing = standing;
    if (isNew) {
        emit OnOrderChanged();
    }
}

void CNetworkManagerOrder::GetStanding(OrderOutcome *outcome)
{
    if (outcome) {
        *outcome = m_standing;
    }
}

int CNetworkManagerOrder::SetConnectsByItself(const QString &profileId, bool isOn)
{
    const int order = Begun();
    m_wishes.append({order, profileId, isOn, 0});
    if (m_wishes.size() == 1) {
        m_pause.start(0);
    }
    return order;
}

void CNetworkManagerOrder::WriteWish()
{
    const ConnectionPicture &picture = m_picture->Now();
    Wish &wish = m_wishes.first();
    ++wish.tries;
    if (picture.source != ConnectionState::SourceKnown) {
        EndWish(OrderOutcome::StageOrderFailed, QList<OrderKept>());
        return;
    }
    const auto profile =
        std::find_if(picture.profiles.constBegin(), picture.profiles.constEnd(),
                     [&wish](const NetworkProfile &one) { return one.path == wish.profileId; });
    if (profile == picture.profiles.constEnd()) {
        NetworkProfile gone;
        gone.path = wish.profileId;
        EndWish(OrderOutcome::StageOrderDone, {CPriorityWriter::KeptOf(gone, ObstacleNotKnown)});
    } else if (profile->connectsByItself == wish.isOn) {
        EndWish(OrderOutcome::StageOrderDone, QList<OrderKept>());
    } else {
        m_writer.Start({ProfileValue::ConnectsByItself(*profile, wish.isOn)});
    }
}

void CNetworkManagerOrder::TakeWish()
{
    const NetworkManagerResult result = m_writer.Results().constFirst();
    const NetworkProfile profile = m_writer.Values().constFirst().profile;
    if (result == NetworkManagerResultSuccess) {
        m_picture->Expect(profile.path);
        EndWish(OrderOutcome::StageOrderDone, QList<OrderKept>());
    } else if (result == NetworkManagerResultChangedMeanwhile && m_wishes.constFirst().tries < mostTries) {
        m_pause.start(pauseMilliseconds);
    } else {
        EndWish(OrderOutcome::StageOrderDone,
                {CPriorityWriter::KeptOf(profile, CPriorityWriter::ObstacleOf(result))});
    }
}

void CNetworkManagerOrder::EndWish(int stage, const QList<OrderKept> &kept)
{
    OrderOutcome &outcome = m_outcomes[m_wishes.takeFirst().order - 1];
    outcome.stage = stage;
    outcome.failure = stage == OrderOutcome::StageOrderFailed ? OrderOutcome::FailureOrderSource
                                                              : OrderOutcome::FailureOrderNone;
    outcome.kept = kept;
    if (!m_wishes.isEmpty()) {
        m_pause.start(0);
    }
    emit OnOrderChanged();
}
