#include "MetricPlan.h"

#include "MetricFit.h"

#include <ConnectionPicture.h>

#include <NetworkManagerQt/ActiveConnection>

#include <QSet>

#include <algorithm>
#include <utility>

namespace
{

// NetworkManager's own.
const qint64 wifiMetric = 600;
const qint64 mobileMetric = 700;

const char *const sections[] = {"ipv4", "ipv6"};

/** A device that is connected by a profile for which the list can have an entry. */
struct Member {
    QString number;
    QString device;
    NetworkProfile profile;
    /** -1 for what is not in the list. */
    int place = -1;
    bool isPrimary = false;
};

QString NumberOf(const QString &connection)
{
    return connection.section(QLatin1Char('/'), -1);
}

QString KeyOf(const QString &number, const QString &section)
{
    return number + QLatin1Char('.') + section;
}

qint64 DefaultOf(const Member &member)
{
    return member.profile.kind == NetworkProfile::Wifi ? wifiMetric : mobileMetric;
}

/** Through which traffic can go. */
bool HasDefaultRoute(const NMVariantMapMap &settings, const QString &section)
{
    const QVariantMap addresses = settings.value(section);
    const QString method = addresses.value(QLatin1String("method")).toString();
    const char *const without[] = {"disabled", "ignore", "link-local", "shared"};
    return !addresses.value(QLatin1String("never-default")).toBool() &&
           std::none_of(std::begin(without), std::end(without),
                        [&method](const char *name) { return method == QLatin1String(name); });
}

int PlaceIn(const QList<PriorityList> &list, const NetworkProfile &profile)
{
    for (int place = 0; place < list.size(); ++place) {
        if (NetworkProfile::ListKeyOf(list.at(place)) == profile.ListKey()) {
            return place;
        }
    }
    return -1;
}

/** In the order of the list. */
QList<Member> MembersOf(const QList<PriorityList> &list, const ConnectionPicture &picture)
{
    QList<Member> members;
    for (const ActiveObject &connection : picture.state.connections) {
        const auto profile =
            std::find_if(picture.profiles.begin(), picture.profiles.end(),
                         [&connection](const NetworkProfile &one) { return one.path == connection.profile; });
        if (connection.state != NetworkManager::ActiveConnection::Activated || connection.isVpn ||
            connection.devices.size() != 1 || profile == picture.profiles.end() ||
            profile->kind == NetworkProfile::OtherKind) {
            continue;
        }
        Member member;
        member.number = NumberOf(connection.path);
        member.device = connection.devices.first();
        member.profile = *profile;
        member.place = PlaceIn(list, *profile);
        member.isPrimary = connection.path == picture.state.primaryConnection;
        members.append(member);
    }
    std::stable_sort(members.begin(), members.end(), [](const Member &left, const Member &right) {
        return left.place != right.place ? left.place < right.place : left.isPrimary && !right.isPrimary;
    });
    return members;
}

void ForgetEnded(const NetworkManagerState &state, QMap<QString, PriorityRecord> *records)
{
    QSet<QString> numbers;
    for (const ActiveObject &connection : state.connections) {
        numbers.insert(NumberOf(connection.path));
    }
    const QStringList keys = records->keys();
    for (const QString &key : keys) {
        if (!numbers.contains(key.section(QLatin1Char('.'), 0, 0))) {
            records->remove(key);
        }
    }
}

class Planning
{
public:
    Planning(const QList<Member> &members, const QHash<QString, qint64> &chosen,
             QMap<QString, PriorityRecord> *records)
        : m_members(members), m_chosen(chosen), m_records(records), m_isUntouched(records->isEmpty()),
          m_changes(members.size()), m_contradicts(members.size(), false)
    {
        for (const char *section : sections) {
            Plan(QLatin1String(section));
        }
    }

    PlannedMetrics Planned() const;

private:
    void Plan(const QString &section);
    MetricFit::Place PlaceOf(const Member &member, const QString &section) const;
    qint64 Own(const Member &member, const QString &section) const
    {
        return m_chosen.value(KeyOf(member.number, section),
                              MetricPlan::MetricIn(member.profile.settings, section));
    }
    void Wish(int place, const QString &section, qint64 metric);

    const QList<Member> &m_members;
    const QHash<QString, qint64> &m_chosen;
    QMap<QString, PriorityRecord> *const m_records;
    const bool m_isUntouched;
    QVector<QList<MetricWish>> m_changes;
    QVector<bool> m_contradicts;
};

MetricFit::Place Planning::PlaceOf(const Member &member, const QString &section) const
{
    MetricFit::Place place;
    place.metric = Own(member, section);
    place.isFixed = place.metric != MetricPlan::defaultMetric;
    if (place.isFixed) {
        return place;
    }
    place.metric = DefaultOf(member);
    // Of several devices of a kind one has the default, the others a little more; which one is known only
    // where it carries the traffic, and as long as that is not by what was set here.
    const bool isSecond =
        m_isUntouched && !member.isPrimary &&
        std::any_of(m_members.begin(), m_members.end(), [&member](const Member &other) {
            return other.isPrimary && other.place >= 0 && other.profile.kind == member.profile.kind;
        });
    if (isSecond) {
        ++place.metric;
    }
    return place;
}

void Planning::Plan(const QString &section)
{
    QList<int> listed;
    QList<MetricFit::Place> places;
    for (int i = 0; i < m_members.size(); ++i) {
        const Member &member = m_members.at(i);
        if (member.place >= 0 && HasDefaultRoute(member.profile.settings, section)) {
            listed.append(i);
            places.append(PlaceOf(member, section));
        }
    }
    const MetricFit::Result result = MetricFit::Fit(places);
    for (int i = 0; i < m_members.size(); ++i) {
        const int place = static_cast<int>(listed.indexOf(i));
        const bool isAsItWas = place < 0 || result.metrics.at(place) == places.at(place).metric;
        const qint64 own = MetricPlan::MetricIn(m_members.at(i).profile.settings, section);
        Wish(i, section, isAsItWas ? own : result.metrics.at(place));
    }
    for (const int place : result.contradicting) {
        m_contradicts[listed.at(place)] = true;
    }
}

void Planning::Wish(int place, const QString &section, qint64 metric)
{
    MetricWish wish;
    wish.key = KeyOf(m_members.at(place).number, section);
    wish.section = section;
    wish.own = MetricPlan::MetricIn(m_members.at(place).profile.settings, section);
    wish.metric = metric;
    if (metric != wish.own) {
        (*m_records)[wish.key].before = static_cast<int>(MetricPlan::defaultMetric);
        (*m_records)[wish.key].AddOwn(static_cast<int>(metric));
    }
    if (m_records->contains(wish.key)) {
        m_changes[place].append(wish);
    }
}

PlannedMetrics Planning::Planned() const
{
    PlannedMetrics planned;
    for (int i = 0; i < m_members.size(); ++i) {
        if (!m_changes.at(i).isEmpty()) {
            MetricChange change;
            change.device = m_members.at(i).device;
            change.profile = m_members.at(i).profile;
            change.wishes = m_changes.at(i);
            planned.changes.append(change);
        }
        if (m_contradicts.at(i)) {
            planned.contradicting.append(m_members.at(i).profile);
        }
    }
    return planned;
}

} // namespace

qint64 MetricPlan::MetricIn(const NMVariantMapMap &settings, const QString &section)
{
    const QVariant metric = settings.value(section).value(QLatin1String("route-metric"));
    return metric.isValid() ? metric.toLongLong() : defaultMetric;
}

PlannedMetrics MetricPlan::Make(const QList<PriorityList> &list, const ConnectionPicture &picture,
                                const QHash<QString, qint64> &chosen, QMap<QString, PriorityRecord> *records)
{
    ForgetEnded(picture.state, records);
    return Planning(MembersOf(list, picture), chosen, records).Planned();
}
