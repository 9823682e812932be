#ifndef METRICPLAN_H
#define METRICPLAN_H

#include "PriorityRecords.h"

#include <NetworkProfile.h>

#include <PriorityList.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

struct ConnectionPicture;

/** The route metric that a connection is to have for one kind of addresses. */
struct MetricWish {
    /** In the records: for as long as the connection is up, nothing else has it. */
    QString key;
    /** The section of the settings: "ipv4" or "ipv6". */
    QString section;
    /** What the profile says. */
    qint64 own = -1;
    /** The same as own: what was set is to be given back. */
    qint64 metric = -1;
};

/** What a device that is connected is to have. */
struct MetricChange {
    QString device;
    NetworkProfile profile;
    QList<MetricWish> wishes;
};

struct PlannedMetrics {
    QList<MetricChange> changes;
    /** Profiles in the list with a metric that somebody has chosen and that contradicts the list. */
    QList<NetworkProfile> contradicting;
};

/**
 * Which active connection carries the traffic: of several, NetworkManager takes the one with the lowest route
 * metric, and by its defaults Wi-Fi comes before mobile broadband whatever the list says.
 */
namespace MetricPlan
{

/** -1 stands for NetworkManager's default. */
const qint64 defaultMetric = -1;

/** The one in a profile's settings, or in those by which a device is connected. */
qint64 MetricIn(const NMVariantMapMap &settings, const QString &section);

/**
 * What has to be set for the first listed connection that is up to carry the traffic, the second one when
 * that ends, and so on; and what was set and is no longer asked for. Empty in the most common case, that of
 * one connection.
 *
 * Connections that are not in the list are left alone, and so is a metric that somebody has chosen: the
 * others are fitted around it.
 *
 * @param chosen   by the keys of wishes: metrics that somebody else has set for a connection that is up.
 * @param records  by the same keys. Receives what is about to be set, and loses what ended with its
 *                 connection.
 */
PlannedMetrics Make(const QList<PriorityList> &list, const ConnectionPicture &picture,
                    const QHash<QString, qint64> &chosen, QMap<QString, PriorityRecord> *records);

} // namespace MetricPlan

#endif
