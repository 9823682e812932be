#include "FollowRules.h"

#include <algorithm>

namespace
{

typedef FollowHistory::Entry Entry;

const char wifiType[] = "1";
const char otherType[] = "0";

Entry EntryOf(const QString &type, const QString &name)
{
    return Entry(type == QLatin1String(wifiType), name);
}

bool IsWifi(const ConnectionProfile &profile)
{
    return profile.type == QLatin1String(wifiType);
}

const ConnectionProfile *ProfileOf(const FollowView &view, const QString &id)
{
    for (const ConnectionProfile &profile : view.records.profiles) {
        if (profile.id == id) {
            return &profile;
        }
    }
    return nullptr;
}

int PlaceOf(const QList<PriorityList> &list, const ActiveConnection &connection)
{
    for (int i = 0; i < list.size(); ++i) {
        if (connection.type != QLatin1String(otherType) &&
            NetworkProfile::ListKeyOf(list.at(i)) == EntryOf(connection.type, connection.name)) {
            return i;
        }
    }
    return -1;
}

/** Null when it is nothing of the list. */
const ActiveConnection *InUse(const QList<PriorityList> &list, const FollowView &view)
{
    const ActiveConnection *first = nullptr;
    for (const ActiveConnection &connection : view.records.connections) {
        const bool isListed = PlaceOf(list, connection) >= 0;
        if (connection.carriesTraffic) {
            return isListed && connection.stage == StageConnected ? &connection : nullptr;
        }
        first = !first && isListed && connection.stage == StageConnected ? &connection : first;
    }
    return first;
}

bool HasTakenAPlace(const ActiveConnection &newOne, const FollowView &view, const FollowHistory &history)
{
    for (const ActiveConnection &other : view.records.connections) {
        if (other.id != newOne.id && other.device == newOne.device &&
            history.connections.contains(other.id) &&
            (other.stage == StageConnected || other.stage == StageDisconnecting)) {
            return true;
        }
    }
    return false;
}

bool IsByHand(const ActiveConnection &newOne, const FollowView &view, const FollowHistory &history)
{
    const ConnectionProfile *profile = ProfileOf(view, newOne.profileId);
    return newOne.profileId != history.tried &&
           ((profile && !profile->connectsByItself) || HasTakenAPlace(newOne, view, history));
}

void NoteConnections(const FollowView &view, FollowHistory *history)
{
    QHash<QString, FollowHistory::Connection> connections;
    for (const ActiveConnection &connection : view.records.connections) {
        FollowHistory::Connection known = history->connections.value(connection.id);
        // Its device may not be told at once.
        if (known.device.isEmpty() && !connection.device.isEmpty()) {
            known.device = connection.device;
            known.isByHand = IsByHand(connection, view, *history);
        }
        known.isByHand = known.isByHand || view.byHand.contains(connection.id);
        connections.insert(connection.id, known);
    }
    history->connections = connections;
}

void NoteSightings(const FollowView &view, qint64 now, FollowHistory *history)
{
    QHash<QPair<QString, QString>, FollowHistory::Sighting> sightings;
    for (const ConnectionProfile &profile : view.records.profiles) {
        const bool isWeak = IsWifi(profile) && profile.signal < FollowRules::leastSignal;
        if (profile.use != ConnectionProfile::UsePossible || isWeak) {
            continue;
        }
        // Nobody scans for mobile broadband, so it has to be ready for as long.
        const qint64 scan =
            IsWifi(profile) ? view.scans.value(profile.device) : now / FollowRules::secondsBetweenScans;
        const QPair<QString, QString> key(profile.id, profile.device);
        FollowHistory::Sighting sighting = history->sightings.value(key);
        if (!history->sightings.contains(key)) {
            sighting.scan = scan;
        } else if (sighting.scan != scan) {
            sighting.scan = scan;
            ++sighting.count;
        }
        sightings.insert(key, sighting);
    }
    history->sightings = sightings;
}

void EndTry(bool isGood, qint64 now, FollowHistory *history)
{
    if (isGood) {
        history->blocks.remove(history->triedEntry);
    } else {
        FollowHistory::Block &block = history->blocks[history->triedEntry];
        qint64 seconds = FollowRules::secondsBlocked;
        for (int i = 0; i < block.failures && seconds < FollowRules::secondsBlockedAtMost; ++i) {
            seconds *= 2;
        }
        ++block.failures;
        block.until = now + seconds;
    }
    history->tried.clear();
    history->triedIsUpSince = FollowHistory::never;
}

bool HasInternet(const ActiveConnection &connection, const FollowView &view)
{
    const int connectivity = view.records.state.connectivity;
    return connection.carriesTraffic && (connectivity == ConnectionState::ConnectivityFull ||
                                         connectivity == ConnectionState::ConnectivityNotKnown);
}

void Judge(const FollowView &view, qint64 now, FollowHistory *history)
{
    if (history->tried.isEmpty()) {
        return;
    }
    const ActiveConnection *found = nullptr;
    for (const ActiveConnection &connection : view.records.connections) {
        found = connection.profileId == history->tried ? &connection : found;
    }
    const bool wasUp = history->triedIsUpSince != FollowHistory::never || view.tryStage == StageConnected;
    if (view.tryStage >= StageDisconnected || (wasUp && (!found || found->stage == StageDisconnecting))) {
        EndTry(false, now, history);
    } else if (found && found->stage == StageConnected) {
        if (history->triedIsUpSince == FollowHistory::never) {
            history->triedIsUpSince = now;
        } else if (now - history->triedIsUpSince >= FollowRules::secondsToSettle) {
            EndTry(HasInternet(*found, view), now, history);
        }
    }
}

/** NetworkManager, or somebody else, is about to change what is in use. */
bool IsOnItsWay(const FollowView &view)
{
    for (const ActiveConnection &connection : view.records.connections) {
        if (connection.type != QLatin1String(otherType) && connection.stage != StageConnected) {
            return true;
        }
    }
    return false;
}

bool IsFree(const QString &device, const FollowView &view)
{
    for (const ActiveConnection &connection : view.records.connections) {
        if (connection.device == device) {
            return false;
        }
    }
    return true;
}

/** Whether connecting it there would move the traffic, and end nothing but what is in use. */
bool IsPlaceFor(const ConnectionProfile &profile, const ActiveConnection &inUse, const FollowView &view)
{
    return profile.device == inUse.device ||
           (IsWifi(profile) && inUse.type != QLatin1String(wifiType) && IsFree(profile.device, view));
}

/** Whether a scan, or time, can make it one to switch to. */
bool IsWorthLooking(const ConnectionProfile &profile, const ActiveConnection &inUse)
{
    switch (profile.use) {
    case ConnectionProfile::UsePossible:
        return IsWifi(profile) || profile.device == inUse.device;
    case ConnectionProfile::UseHiddenIsTried:
    case ConnectionProfile::UseOutOfRange:
    case ConnectionProfile::UseOtherSecurity:
    case ConnectionProfile::UseOtherDevice:
        return IsWifi(profile);
    default:
        return false;
    }
}

/** Those of the entries above the one in use that connect by themselves, the topmost first. */
QList<ConnectionProfile> Above(const QList<PriorityList> &list, const ActiveConnection &inUse,
                               const FollowView &view)
{
    QList<ConnectionProfile> above;
    const int end = PlaceOf(list, inUse);
    for (int i = 0; i < end; ++i) {
        for (const ConnectionProfile &profile : view.records.profiles) {
            if (profile.connectsByItself &&
                EntryOf(profile.type, profile.name) == NetworkProfile::ListKeyOf(list.at(i))) {
                above.append(profile);
            }
        }
    }
    return above;
}

void Look(const QList<ConnectionProfile> &above, const ActiveConnection &inUse, const FollowView &view,
          qint64 now, FollowStep *step)
{
    bool isWorth = false;
    bool isWifiWorth = false;
    for (const ConnectionProfile &profile : above) {
        const bool isThis = IsWorthLooking(profile, inUse);
        isWorth = isWorth || isThis;
        isWifiWorth = isWifiWorth || (isThis && IsWifi(profile));
    }
    if (!isWorth) {
        return;
    }
    const qint64 pause =
        view.isOnBattery ? FollowRules::secondsBetweenScansOnBattery : FollowRules::secondsBetweenScans;
    qint64 &last = step->history.lastLook;
    if (last == FollowHistory::never || now - last >= pause) {
        last = now;
        step->isScanDue = isWifiWorth;
    }
    step->lookAgainIn = last + pause - now;
}

void Switch(const QList<ConnectionProfile> &above, const ActiveConnection &inUse, const FollowView &view,
            qint64 now, FollowStep *step)
{
    FollowHistory &history = step->history;
    if (history.lastSwitch != FollowHistory::never &&
        now - history.lastSwitch < FollowRules::secondsBetweenSwitches) {
        return;
    }
    for (const ConnectionProfile &profile : above) {
        const Entry entry = EntryOf(profile.type, profile.name);
        const QPair<QString, QString> key(profile.id, profile.device);
        if (history.sightings.value(key).count >= FollowRules::leastScansInARow &&
            now >= history.blocks.value(entry).until && IsPlaceFor(profile, inUse, view)) {
            step->profile = profile.id;
            step->device = profile.device;
            step->inUse = inUse.name;
            history.tried = profile.id;
            history.triedEntry = entry;
            history.triedIsUpSince = FollowHistory::never;
            history.lastSwitch = now;
            return;
        }
    }
}

} // namespace

FollowView FollowView::Of(const ConnectionPicture &picture, const ConnectionRecords &records)
{
    FollowView view;
    view.records = records;
    view.mayConnect = picture.rights.control == CallerRights::Allowed;
    for (const NetworkDevice &device : picture.state.devices) {
        view.scans.insert(device.name, device.lastScan);
    }
    for (const ActiveObject &connection : picture.state.connections) {
        // NetworkManager has a word of its own for VPNs that it makes without a plug-in.
        view.hasVpn = view.hasVpn || connection.isVpn || connection.type == QLatin1String("wireguard");
    }
    return view;
}

FollowStep FollowRules::Next(const QList<PriorityList> &list, const FollowView &view, qint64 now,
                             const FollowHistory &history)
{
    FollowStep step;
    step.history = history;
    if (view.records.state.source != ConnectionState::SourceKnown) {
        step.history.sightings.clear();
        if (view.records.state.source == ConnectionState::SourceGone) {
            step.history.connections.clear();
        }
        return step;
    }
    NoteConnections(view, &step.history);
    NoteSightings(view, now, &step.history);
    Judge(view, now, &step.history);
    const ActiveConnection *inUse = InUse(list, view);
    if (inUse && view.mayConnect && !view.hasVpn && !step.history.connections.value(inUse->id).isByHand &&
        !IsOnItsWay(view)) {
        const QList<ConnectionProfile> above = Above(list, *inUse, view);
        Look(above, *inUse, view, now, &step);
        Switch(above, *inUse, view, now, &step);
    }
    if (step.history.triedIsUpSince != FollowHistory::never) {
        const qint64 settled = std::max<qint64>(1, step.history.triedIsUpSince + secondsToSettle - now);
        step.lookAgainIn = step.lookAgainIn == 0 ? settled : std::min(settled, step.lookAgainIn);
    }
    return step;
}
