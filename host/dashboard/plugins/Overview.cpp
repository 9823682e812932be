#include "Overview.h"

#include "PluginObjects.h"

#include <QHash>
#include <QPair>
#include <QSet>

#include <utility>

namespace
{

bool IsKnownType(const PriorityList &entry)
{
    return entry.type == QLatin1String("1") || entry.type == QLatin1String("2");
}

/** Of a connection or profile. An entry of another type is not known to the connection manager. */
template <class Record> bool IsOf(const PriorityList &entry, const Record &record)
{
    return IsKnownType(entry) && record.type == entry.type && record.name == entry.name;
}

const ActiveConnection *ConnectionOf(const PriorityList &entry, const QList<ActiveConnection> &active)
{
    const ActiveConnection *found = nullptr;
    for (const ActiveConnection &connection : active) {
        if (IsOf(entry, connection) && (!found || (connection.carriesTraffic && !found->carriesTraffic))) {
            found = &connection;
        }
    }
    return found;
}

int RankOf(const ConnectionProfile &profile, const QString &activeId)
{
    if (!activeId.isEmpty() && profile.id == activeId) {
        return 0;
    }
    switch (profile.use) {
    case ConnectionProfile::UsePossible:
        return profile.failure == FailureNone ? 1 : 2;
    case ConnectionProfile::UseHiddenIsTried:
        return 3;
    default:
        return 4;
    }
}

/** Profiles by their names and types, so that a long list takes no longer an entry than a short one. */
typedef QHash<QPair<QString, QString>, QList<const ConnectionProfile *>> ProfilesByKey;

ConnectionProfile ProfileOf(const PriorityList &entry, const QString &activeId, const ProfilesByKey &profiles)
{
    const ConnectionProfile *best = nullptr;
    const QList<const ConnectionProfile *> known = IsKnownType(entry)
                                                       ? profiles.value(qMakePair(entry.name, entry.type))
                                                       : QList<const ConnectionProfile *>();
    for (const ConnectionProfile *profile : known) {
        if (!best || RankOf(*profile, activeId) < RankOf(*best, activeId)) {
            best = profile;
        }
    }
    return best ? *best : ConnectionProfile();
}

Overview::Entry EntryOf(const PriorityList &listed, const Connections &connections,
                        const ProfilesByKey &profiles, bool isRepeated)
{
    Overview::Entry entry;
    entry.entry = listed;
    entry.isRepeated = isRepeated;
    const ActiveConnection *connection = ConnectionOf(listed, connections.active);
    entry.profile = ProfileOf(listed, connection ? connection->profileId : QString(), profiles);
    entry.signal = entry.profile.signal;
    if (connection && !isRepeated) {
        entry.stage = connection->stage;
        entry.isInUse = connection->carriesTraffic;
        entry.signal = connection->signal;
    }
    return entry;
}

} // namespace

bool Overview::Entry::IsWifi() const
{
    return entry.type == QLatin1String("1");
}

bool Overview::Entry::CanBeUsed() const
{
    return isInUse || stage == StageConnected ||
           (!profile.id.isEmpty() && profile.use == ConnectionProfile::UsePossible);
}

Overview Overview::Of(const ListReading &list)
{
    return Make(list.status, list.entries, Connections::Read());
}

Overview Overview::Make(int status, const QList<PriorityList> &list, const Connections &connections)
{
    Overview overview;
    overview.status = status;
    overview.connections = connections;
    if (!connections.AreKnown()) {
        overview.connections.active.clear();
        overview.connections.profiles.clear();
        overview.connections.networks.clear();
    }
    ProfilesByKey profiles;
    for (const ConnectionProfile &profile : std::as_const(overview.connections.profiles)) {
        profiles[qMakePair(profile.name, profile.type)].append(&profile);
    }
    QSet<QPair<QString, QString>> seen;
    for (const PriorityList &listed : list) {
        const QPair<QString, QString> key(listed.name, listed.type);
        overview.entries.append(EntryOf(listed, overview.connections, profiles, seen.contains(key)));
        seen.insert(key);
        if (overview.m_choice < 0 && overview.entries.constLast().CanBeUsed()) {
            overview.m_choice = static_cast<int>(overview.entries.size()) - 1;
        }
    }
    const QList<PriorityList> remembered = overview.connections.Remembered();
    for (const PriorityList &saved : remembered) {
        if (!seen.contains(qMakePair(saved.name, saved.type))) {
            overview.unlisted.append(EntryOf(saved, overview.connections, profiles, false));
        }
    }
    return overview;
}

bool Overview::IsListWhole() const
{
    return status == PriorityRead || status == PriorityMissing;
}

const Overview::Entry *Overview::InUse() const
{
    for (const Entry &entry : entries) {
        if (entry.isInUse) {
            return &entry;
        }
    }
    return nullptr;
}

const Overview::Entry *Overview::Choice() const
{
    return m_choice < 0 ? nullptr : &entries.at(m_choice);
}

const ActiveConnection *Overview::ComingUp() const
{
    for (const ActiveConnection &connection : connections.active) {
        if (!connections.InUse() && !connection.isVpn && Connections::IsComingUp(connection.stage)) {
            return &connection;
        }
    }
    return nullptr;
}

bool Overview::CanSwitch() const
{
    const Entry *choice = Choice();
    const ActiveConnection *inUse = connections.InUse();
    // What goes before the list, such as a cable, keeps the traffic whatever else is connected.
    const bool isBeforeTheList =
        inUse && inUse->type != QLatin1String("1") && inUse->type != QLatin1String("2");
    return IsListWhole() && connections.state.mayConnect && !isBeforeTheList && choice && !choice->isInUse &&
           (choice->stage == StageNotKnown || choice->stage == StageDisconnecting);
}
