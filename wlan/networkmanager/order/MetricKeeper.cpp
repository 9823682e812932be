#include "MetricKeeper.h"

#include <CallBatch.h>
#include <ConnectionPicture.h>
#include <NetworkManagerClient.h>
#include <ProfileUpdate.h>

#include <QDBusArgument>

#include <algorithm>
#include <utility>

namespace
{

// Nobody waits.
const int limitMilliseconds = 10000;

const char appliedSignature[] = "a{sa{sv}}t";

/** The device was disconnected, or has gone, before it could be asked. */
bool IsGone(const QDBusMessage &reply)
{
    const char *const names[] = {"org.freedesktop.NetworkManager.Device.NotActive",
                                 "org.freedesktop.DBus.Error.UnknownMethod",
                                 "org.freedesktop.DBus.Error.UnknownObject"};
    return reply.type() == QDBusMessage::ErrorMessage &&
           std::any_of(std::begin(names), std::end(names),
                       [&reply](const char *name) { return reply.errorName() == QLatin1String(name); });
}

void SetMetric(const MetricWish &wish, NMVariantMapMap *settings)
{
    const QString name = QLatin1String("route-metric");
    if (wish.metric == MetricPlan::defaultMetric) {
        (*settings)[wish.section].remove(name);
    } else {
        (*settings)[wish.section].insert(name, wish.metric);
    }
}

} // namespace

CMetricKeeper::CMetricKeeper(CNetworkManagerClient *client, QObject *parent)
    : QObject(parent), m_client(client), m_batch(nullptr), m_records(nullptr), m_isWorking(false),
      m_isDueAgain(false)
{
    // The next NetworkManager counts its connections anew.
    connect(m_client, &CNetworkManagerClient::Vanished, this, &CMetricKeeper::Forget);
}

void CMetricKeeper::Forget()
{
    m_inEffect.clear();
    m_chosen.clear();
}

QList<NetworkProfile> CMetricKeeper::Plan(const QList<PriorityList> &list, const ConnectionPicture &picture,
                                          QMap<QString, PriorityRecord> *records)
{
    if (picture.state.primaryConnection != m_primary) {
        // Perhaps because somebody has undone what was set here.
        m_primary = picture.state.primaryConnection;
        Forget();
    }
    const QMap<QString, PriorityRecord> before = *records;
    const PlannedMetrics planned = MetricPlan::Make(list, picture, m_chosen, records);
    const auto isInEffect = [this, &before](const MetricWish &wish) {
        const QList<int> own = before.value(wish.key).own;
        return wish.metric != wish.own && !own.isEmpty() && own.last() == wish.metric &&
               m_inEffect.value(wish.key, wish.own) == wish.metric;
    };
    m_changes.clear();
    for (const MetricChange &change : planned.changes) {
        if (!std::all_of(change.wishes.begin(), change.wishes.end(), isInEffect)) {
            m_changes.append(change);
        }
    }
    return planned.contradicting;
}

void CMetricKeeper::Start(QMap<QString, PriorityRecord> *records)
{
    m_records = records;
    m_failures.clear();
    m_written.clear();
    m_calls.clear();
    m_isDueAgain = false;
    m_isWorking = true;
    QList<QDBusMessage> calls;
    for (const MetricChange &change : std::as_const(m_changes)) {
        calls.append(CNetworkManagerClient::Call(change.device, CNetworkManagerClient::DeviceInterface(),
                                                 QLatin1String("GetAppliedConnection"))
                     << 0U);
    }
    Ask(calls, &CMetricKeeper::TakeApplied);
}

void CMetricKeeper::Ask(const QList<QDBusMessage> &calls, void (CMetricKeeper::*takeReplies)())
{
    if (m_batch) {
        // It is still telling that it has finished.
        m_batch->deleteLater();
    }
    m_batch = new CCallBatch(m_client, calls, CTimeLimit(limitMilliseconds), this);
    connect(m_batch, &CCallBatch::Finished, this, takeReplies);
    m_batch->Start();
}

void CMetricKeeper::TakeApplied()
{
    const QList<QDBusMessage> replies = m_batch->Replies();
    for (int i = 0; i < replies.size(); ++i) {
        if (!IsError(m_changes.at(i), replies.at(i), appliedSignature)) {
            NoteApplied(m_changes.at(i), replies.at(i));
        }
    }
    Ask(m_calls, &CMetricKeeper::TakeReplies);
}

void CMetricKeeper::NoteApplied(const MetricChange &change, const QDBusMessage &reply)
{
    NMVariantMapMap settings = qdbus_cast<NMVariantMapMap>(reply.arguments().at(0).value<QDBusArgument>());
    MetricChange written = change;
    written.wishes.clear();
    for (const MetricWish &wish : change.wishes) {
        if (Compare(wish, &settings)) {
            written.wishes.append(wish);
        }
    }
    if (!written.wishes.isEmpty()) {
        m_written.append(written);
        m_calls.append(CNetworkManagerClient::Call(change.device, CNetworkManagerClient::DeviceInterface(),
                                                   QLatin1String("Reapply"))
                       << QVariant::fromValue(ProfileUpdate::WithoutOldForms(settings))
                       << reply.arguments().at(1).toULongLong() << 0U);
    }
}

/** Whether it is to be written; then it is in settings. */
bool CMetricKeeper::Compare(const MetricWish &wish, NMVariantMapMap *settings)
{
    const qint64 there = MetricPlan::MetricIn(*settings, wish.section);
    if (there == wish.metric) {
        NoteDone(wish);
        return false;
    }
    const bool isOurs = m_records->value(wish.key).IsOwn(static_cast<int>(there));
    if (there != wish.own && !isOurs) {
        m_records->remove(wish.key);
        m_chosen.insert(wish.key, there);
        m_isDueAgain = true;
        return false;
    }
    SetMetric(wish, settings);
    return true;
}

void CMetricKeeper::NoteDone(const MetricWish &wish)
{
    if (wish.metric == wish.own) {
        m_records->remove(wish.key);
        m_inEffect.remove(wish.key);
    } else {
        m_inEffect.insert(wish.key, wish.metric);
    }
}

bool CMetricKeeper::IsError(const MetricChange &change, const QDBusMessage &reply, const char *signature)
{
    const NetworkManagerResult result = ResultOf(reply, signature);
    m_client->Note(result);
    if (result == NetworkManagerResultChangedMeanwhile) {
        m_isDueAgain = true;
    } else if (result != NetworkManagerResultSuccess && !IsGone(reply)) {
        Failure failure;
        failure.profile = change.profile;
        failure.result = result;
        m_failures.append(failure);
    }
    return result != NetworkManagerResultSuccess;
}

void CMetricKeeper::TakeReplies()
{
    const QList<QDBusMessage> replies = m_batch->Replies();
    for (int i = 0; i < replies.size(); ++i) {
        if (!IsError(m_written.at(i), replies.at(i), "")) {
            for (const MetricWish &wish : m_written.at(i).wishes) {
                NoteDone(wish);
            }
        }
    }
    m_isWorking = false;
    emit Finished();
}
