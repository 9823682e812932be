#include "FallbackRules.h"

#include <algorithm>

namespace
{

const char wifiType[] = "1";
const char mobileType[] = "2";

bool IsMobile(const QString &type)
{
    return type == QLatin1String(mobileType);
}

/** Whether the internet is reached without mobile broadband. Wi-Fi that NetworkManager finds no internet
 * behind leaves the traffic to mobile broadband while that is up. */
bool IsUp(const FollowView &view)
{
    const int connectivity = view.records.state.connectivity;
    const bool hasInternet = connectivity == ConnectionState::ConnectivityFull ||
                             connectivity == ConnectionState::ConnectivityNotKnown;
    return hasInternet && std::any_of(view.records.connections.constBegin(),
                                      view.records.connections.constEnd(), [](const ActiveConnection &one) {
                                          return one.carriesTraffic && one.stage == StageConnected &&
                                                 !IsMobile(one.type);
                                      });
}

/** The entries of mobile broadband, if they are the fallback. */
QList<PriorityList> Fallbacks(const QList<PriorityList> &list)
{
    QList<PriorityList> fallbacks;
    bool hasWifi = false;
    for (const PriorityList &entry : list) {
        if (entry.type == QLatin1String(wifiType)) {
            hasWifi = true;
            if (!fallbacks.isEmpty()) {
                return QList<PriorityList>();
            }
        } else if (IsMobile(entry.type)) {
            fallbacks.append(entry);
        }
    }
    return hasWifi ? fallbacks : QList<PriorityList>();
}

/** Their profiles that connect by themselves, in the order of the list. */
QList<ConnectionProfile> ProfilesOf(const QList<PriorityList> &fallbacks, const FollowView &view)
{
    QList<ConnectionProfile> found;
    for (const PriorityList &entry : fallbacks) {
        for (const ConnectionProfile &profile : view.records.profiles) {
            if (profile.connectsByItself && profile.type == entry.type && profile.name == entry.name) {
                found.append(profile);
            }
        }
    }
    return found;
}

const ActiveConnection *ConnectionOf(const ConnectionProfile &profile, const FollowView &view)
{
    for (const ActiveConnection &connection : view.records.connections) {
        if (connection.profileId == profile.id) {
            return &connection;
        }
    }
    return nullptr;
}

void NoteConnections(const FollowView &view, FallbackHistory *history)
{
    QSet<QString> known;
    QSet<QString> byHand;
    for (const ActiveConnection &connection : view.records.connections) {
        const QString &profile = connection.profileId;
        const bool isNew = !history->known.contains(connection.id);
        const bool isOrdered =
            view.byHand.contains(connection.id) ||
            (isNew && history->ended.contains(profile) && !history->gone.contains(profile));
        known.insert(connection.id);
        if (history->byHand.contains(connection.id) || isOrdered) {
            byHand.insert(connection.id);
        }
        if (isNew) {
            history->ended.remove(profile);
        }
    }
    history->known = known;
    history->byHand = byHand;
}

void NoteModems(const FollowView &view, FallbackHistory *history)
{
    history->gone.intersect(history->ended);
    for (const ConnectionProfile &profile : view.records.profiles) {
        if (history->ended.contains(profile.id) && profile.use != ConnectionProfile::UsePossible) {
            history->gone.insert(profile.id);
        }
    }
}

void LookAgain(qint64 time, qint64 now, FallbackStep *step)
{
    const qint64 left = std::max<qint64>(1, time - now);
    step->lookAgainIn = step->lookAgainIn == 0 ? left : std::min(left, step->lookAgainIn);
}

bool HasMobile(const FollowView &view)
{
    return std::any_of(view.records.connections.constBegin(), view.records.connections.constEnd(),
                       [](const ActiveConnection &one) { return IsMobile(one.type); });
}

void Connect(const QList<ConnectionProfile> &profiles, const FollowView &view, qint64 now, FallbackStep *step)
{
    const auto usable =
        std::find_if(profiles.constBegin(), profiles.constEnd(), [](const ConnectionProfile &profile) {
            return profile.use == ConnectionProfile::UsePossible;
        });
    if (usable == profiles.constEnd() || HasMobile(view)) {
        return;
    }
    FallbackHistory &history = step->history;
    qint64 due = history.since + FallbackRules::secondsUntilConnected;
    if (history.lastTry != FallbackHistory::never) {
        due = std::max(due, history.lastTry + FallbackRules::secondsBetweenTries);
    }
    if (now < due) {
        LookAgain(due, now, step);
        return;
    }
    step->profile = usable->id;
    step->device = usable->device;
    history.lastTry = now;
    history.ended.remove(usable->id);
    LookAgain(now + FallbackRules::secondsBetweenTries, now, step);
}

void End(const QList<ConnectionProfile> &profiles, const FollowView &view, qint64 now, FallbackStep *step)
{
    FallbackHistory &history = step->history;
    const qint64 due = history.since + FallbackRules::secondsUntilEnded;
    for (const ConnectionProfile &profile : profiles) {
        const ActiveConnection *connection = ConnectionOf(profile, view);
        if (!connection || connection->stage == StageDisconnecting ||
            history.byHand.contains(connection->id) || history.ended.contains(profile.id)) {
            continue;
        }
        if (now < due) {
            LookAgain(due, now, step);
            continue;
        }
        step->ended.append(*connection);
        history.ended.insert(profile.id);
    }
}

} // namespace

FallbackStep FallbackRules::Next(const QList<PriorityList> &list, const FollowView &view, qint64 now,
                                 const FallbackHistory &history)
{
    FallbackStep step;
    step.history = history;
    if (view.records.state.source != ConnectionState::SourceKnown) {
        const QSet<QString> ended = history.ended;
        step.history = FallbackHistory();
        // Another NetworkManager knows nothing of what the last one was told.
        if (view.records.state.source == ConnectionState::SourceNotKnown) {
            step.history.ended = ended;
        }
        return step;
    }
    NoteConnections(view, &step.history);
    NoteModems(view, &step.history);
    const bool isUp = IsUp(view);
    if (step.history.since == FallbackHistory::never || isUp != step.history.isUp) {
        step.history.isUp = isUp;
        step.history.since = now;
    }
    const QList<ConnectionProfile> profiles = ProfilesOf(Fallbacks(list), view);
    if (!view.mayConnect || profiles.isEmpty()) {
        return step;
    }
    if (!isUp) {
        Connect(profiles, view, now, &step);
        return step;
    }
    step.history.lastTry = FallbackHistory::never;
    if (!view.hasVpn) {
        End(profiles, view, now, &step);
    }
    return step;
}
