#include "OverviewText.h"

#include "ListChangeText.h"

#include <DashboardText.h>
#include <SignalStrength.h>

namespace
{

struct Word {
    int value;
    const char *id;
};

template <std::size_t count> QString TextOf(const Word (&words)[count], int value)
{
    for (const Word &word : words) {
        if (word.value == value) {
            return DashboardText(word.id);
        }
    }
    return QString();
}

const Word stages[] = {
    {StagePreparing, "IDS_STAGE_PREPARING"},
    {StageAuthenticating, "IDS_STAGE_AUTHENTICATING"},
    {StageGettingAddress, "IDS_STAGE_ADDRESS"},
};

const Word obstacles[] = {
    {ConnectionProfile::UseHiddenIsTried, "IDS_USE_HIDDEN"},
    {ConnectionProfile::UseOutOfRange, "IDS_WHY_OUT_OF_RANGE"},
    {ConnectionProfile::UseOtherSecurity, "IDS_USE_OTHER_SECURITY"},
    {ConnectionProfile::UseOtherDevice, "IDS_USE_OTHER_DEVICE"},
    {ConnectionProfile::UseNoDevice, "IDS_USE_NO_DEVICE"},
    {ConnectionProfile::UseDeviceOff, "IDS_USE_OFF"},
    {ConnectionProfile::UseDeviceBlocked, "IDS_USE_BLOCKED"},
    {ConnectionProfile::UseSimLocked, "IDS_USE_SIM"},
    {ConnectionProfile::UseOtherUsers, "IDS_USE_OTHER_USERS"},
    {ConnectionProfile::UseNoAccount, "IDS_USE_NO_ACCOUNT"},
};

const Word failures[] = {
    {FailureOther, "IDS_FAILED_OTHER"},
    {FailureWrongKey, "IDS_FAILED_KEY"},
    {FailureKeyMissing, "IDS_FAILED_NO_KEY"},
    {FailureNoAnswer, "IDS_FAILED_NO_ANSWER"},
    {FailureNoAddress, "IDS_FAILED_NO_ADDRESS"},
    {FailureRefused, "IDS_FAILED_REFUSED"},
    {FailureSim, "IDS_FAILED_SIM"},
    {FailureStopped, "IDS_FAILED_STOPPED"},
    {FailureDevice, "IDS_FAILED_DEVICE"},
    {FailureNotAllowed, "IDS_FAILED_NOT_ALLOWED"},
    {FailureSource, "IDS_FAILED_OTHER"},
};

const Word outcomes[] = {
    {FailureWrongKey, "IDS_TRIED_KEY"},
    {FailureKeyMissing, "IDS_TRIED_NO_KEY"},
    {FailureNoAnswer, "IDS_TRIED_NO_ANSWER"},
    {FailureNoAddress, "IDS_TRIED_NO_ADDRESS"},
    {FailureRefused, "IDS_TRIED_REFUSED"},
    {FailureSim, "IDS_TRIED_SIM"},
    {FailureStopped, "IDS_TRIED_STOPPED"},
    {FailureDevice, "IDS_TRIED_DEVICE"},
    {FailureNotAllowed, "IDS_FAILED_NOT_ALLOWED"},
};

QString Sentences(const QStringList &sentences)
{
    return DashboardJoined("IDS_SENTENCES", sentences);
}

bool IsNetworkManager(const Overview &overview)
{
    return overview.connections.state.sourceName == QLatin1String("networkmanager");
}

bool IsGone(const Overview &overview)
{
    return overview.connections.teller == Connections::Plugin && IsNetworkManager(overview) &&
           overview.connections.state.source == ConnectionState::SourceGone;
}

bool IsNotCertain(const Overview::Entry &entry)
{
    return !entry.profile.id.isEmpty() && (entry.profile.use == ConnectionProfile::UseHiddenIsTried ||
                                           TextOf(obstacles, entry.profile.use).isEmpty());
}

/** The id of a text, and how the state is drawn. */
struct EntryState {
    const char *id;
    Glyphs::Mark mark;
};

EntryState StateOfConnection(const Overview::Entry &entry)
{
    if (entry.isInUse) {
        return {"IDS_STATE_IN_USE", Glyphs::MarkInUse};
    }
    if (entry.stage == StageConnected) {
        return {"IDS_STATE_CONNECTED", Glyphs::NoMark};
    }
    return {entry.stage == StageDisconnecting ? "IDS_STATE_DISCONNECTING" : "IDS_STATE_CONNECTING",
            Glyphs::NoMark};
}

/** Of an entry that can be used now. */
EntryState StateOfUsable(const Overview::Entry &entry)
{
    switch (entry.profile.failure) {
    case FailureNone:
    case FailureStopped:
        break;
    case FailureWrongKey:
        return {"IDS_STATE_KEY_REFUSED", Glyphs::MarkError};
    default:
        return {"IDS_STATE_FAILED", Glyphs::MarkError};
    }
    if (!entry.profile.connectsByItself) {
        return {"IDS_STATE_BY_HAND", Glyphs::NoMark};
    }
    return {entry.IsWifi() ? "IDS_STATE_IN_RANGE" : "IDS_STATE_FALLBACK", Glyphs::NoMark};
}

EntryState StateOf(const Overview &overview, const Overview::Entry &entry)
{
    if (entry.isRepeated) {
        return {"IDS_STATE_TWICE", Glyphs::MarkWarning};
    }
    if (entry.isInUse || entry.stage == StageConnected || entry.stage == StageDisconnecting ||
        Connections::IsComingUp(entry.stage)) {
        return StateOfConnection(entry);
    }
    if (!overview.connections.AreKnown()) {
        return {"IDS_STATE_UNKNOWN", Glyphs::NoMark};
    }
    if (entry.profile.id.isEmpty()) {
        return {"IDS_STATE_NOT_SAVED", Glyphs::MarkWarning};
    }
    switch (entry.profile.use) {
    case ConnectionProfile::UsePossible:
        return StateOfUsable(entry);
    case ConnectionProfile::UseHiddenIsTried:
        return {"IDS_STATE_HIDDEN", Glyphs::NoMark};
    case ConnectionProfile::UseOutOfRange:
        return {"IDS_STATE_OUT_OF_RANGE", Glyphs::NoMark};
    case ConnectionProfile::UseNoDevice:
        return {entry.IsWifi() ? "IDS_STATE_NO_ADAPTER" : "IDS_STATE_NO_MODEM", Glyphs::NoMark};
    case ConnectionProfile::UseDeviceOff:
    case ConnectionProfile::UseDeviceBlocked:
        return {"IDS_STATE_OFF", Glyphs::NoMark};
    case ConnectionProfile::UseSimLocked:
        return {"IDS_STATE_SIM", Glyphs::MarkWarning};
    default:
        break;
    }
    return IsNotCertain(entry) ? EntryState{"IDS_STATE_UNKNOWN", Glyphs::NoMark}
                               : EntryState{"IDS_STATE_CANNOT", Glyphs::MarkWarning};
}

/** Why nothing is known of connections. */
QString NotKnownText(const Overview &overview)
{
    if (overview.connections.teller == Connections::NoPlugin) {
        return DashboardText("IDS_HEAD_RANGE_UNKNOWN");
    }
    if (overview.connections.teller == Connections::NoAnswers || !IsNetworkManager(overview)) {
        return DashboardText("IDS_HEAD_NOT_TOLD");
    }
    return DashboardText(IsGone(overview) ? "IDS_HEAD_GONE_WHY" : "IDS_HEAD_ASKING");
}

/** Why the list's choice is not in use. */
QString ChoiceReason(const Overview &overview)
{
    const Overview::Entry &choice = *overview.Choice();
    if (choice.stage == StageConnected) {
        return DashboardText("IDS_HEAD_NO_TRAFFIC").arg(ListChangeText::Name(choice.entry));
    }
    if (Connections::IsComingUp(choice.stage)) {
        return TextOf(stages, choice.stage);
    }
    if (choice.profile.failure != FailureNone) {
        return OverviewText::Failure(choice.profile.failure);
    }
    if (!choice.profile.connectsByItself) {
        return DashboardText("IDS_USE_BY_HAND");
    }
    return overview.connections.InUse() && IsNetworkManager(overview) ? DashboardText("IDS_USE_KEPT")
                                                                      : QString();
}

QStringList ChoiceText(const Overview &overview)
{
    const Overview::Entry *choice = overview.Choice();
    const ActiveConnection *inUse = overview.connections.InUse();
    if (!choice || choice->isInUse) {
        return QStringList();
    }
    const QString name = ListChangeText::Name(choice->entry);
    if (inUse && inUse->type == QLatin1String("0")) {
        return QStringList(DashboardText("IDS_HEAD_WITHOUT_IT").arg(name));
    }
    return QStringList() << DashboardText("IDS_HEAD_CHOICE").arg(name) << ChoiceReason(overview);
}

const char *InUseTextId(const Overview &overview)
{
    switch (overview.connections.state.connectivity) {
    case ConnectionState::ConnectivityPortal:
        return "IDS_HEAD_PORTAL";
    case ConnectionState::ConnectivityLimited:
        return "IDS_HEAD_LIMITED";
    default:
        return "IDS_HEAD_IN_USE";
    }
}

/** What keeps the traffic from the internet. */
QString ConnectivityText(const Overview &overview)
{
    switch (overview.connections.state.connectivity) {
    case ConnectionState::ConnectivityPortal:
        return DashboardText("IDS_HEAD_PORTAL_WHY");
    case ConnectionState::ConnectivityLimited:
        return DashboardText("IDS_HEAD_LIMITED_WHY");
    default:
        return QString();
    }
}

/** How what is in use stands to the list. */
QString InUseText(const Overview &overview, const ActiveConnection &inUse)
{
    const Overview::Entry *listed = overview.InUse();
    if (listed && listed == overview.Choice()) {
        // "Usable" is not the word for what leads nowhere.
        return ConnectivityText(overview).isEmpty() ? DashboardText("IDS_HEAD_FIRST") : QString();
    }
    if (inUse.type == QLatin1String("0")) {
        return DashboardText("IDS_HEAD_OTHER_KIND");
    }
    return listed || !overview.IsListWhole() ? QString() : DashboardText("IDS_HEAD_NOT_LISTED");
}

QStringList VpnTexts(const QList<ActiveConnection> &active)
{
    QStringList sentences;
    for (const ActiveConnection &connection : active) {
        if (connection.isVpn && connection.stage == StageConnected && !connection.carriesTraffic) {
            sentences.append(DashboardText("IDS_HEAD_VPN").arg(OverviewText::Name(connection.name)));
        }
    }
    return sentences;
}

/** Why nothing is in use, as far as the list can tell. */
QStringList NothingInUseTexts(const Overview &overview)
{
    QStringList sentences = ChoiceText(overview);
    if (!overview.Choice()) {
        sentences.prepend(DashboardText("IDS_HEAD_NOTHING_USABLE"));
        if (!overview.connections.networks.isEmpty()) {
            sentences.append(DashboardText("IDS_HEAD_CONNECT_HINT"));
        }
    }
    return sentences;
}

} // namespace

QString OverviewText::Signal(int percent)
{
    return percent == SignalStrength::unknown
               ? QString()
               : DashboardText("IDS_CONNECT_PERCENT").arg(DashboardNumber(percent));
}

QString OverviewText::Name(const QString &name)
{
    PriorityList entry;
    entry.name = name;
    return ListChangeText::Name(entry);
}

QString OverviewText::Headline(const Overview &overview)
{
    if (!overview.connections.AreKnown()) {
        return DashboardText(IsGone(overview) ? "IDS_HEAD_GONE" : "IDS_HEAD_UNKNOWN");
    }
    QString headline = DashboardText("IDS_HEAD_NONE");
    if (const ActiveConnection *inUse = overview.connections.InUse()) {
        headline = DashboardText(InUseTextId(overview)).arg(OverviewText::Name(inUse->name));
    } else if (const ActiveConnection *comingUp = overview.ComingUp()) {
        headline = DashboardText("IDS_HEAD_CONNECTING").arg(OverviewText::Name(comingUp->name));
    }
    return Marked(overview, headline);
}

QString OverviewText::Marked(const Overview &overview, const QString &text)
{
    const bool isReal = overview.connections.state.sourceName != QLatin1String("stored");
    return isReal ? text : DashboardText("IDS_HEAD_PRACTICE").arg(text);
}

QString OverviewText::Explanation(const Overview &overview)
{
    if (!overview.connections.AreKnown()) {
        return NotKnownText(overview);
    }
    QStringList sentences;
    const ActiveConnection *inUse = overview.connections.InUse();
    const ActiveConnection *comingUp = overview.ComingUp();
    if (inUse) {
        sentences << ConnectivityText(overview) << InUseText(overview, *inUse)
                  << VpnTexts(overview.connections.active);
    } else if (comingUp) {
        sentences << TextOf(stages, comingUp->stage);
    }
    if (overview.status < 0) {
        sentences << DashboardText("IDS_HEAD_NO_PRIORITY_PLUGIN");
    } else if (!overview.IsListWhole()) {
        sentences << DashboardText("IDS_HEAD_UNREADABLE");
    } else if (overview.entries.isEmpty()) {
        sentences << DashboardText("IDS_HEAD_EMPTY");
    } else if (inUse) {
        sentences << ChoiceText(overview);
    } else if (!comingUp) {
        sentences << NothingInUseTexts(overview);
    }
    return Sentences(sentences);
}

QString OverviewText::Kind(const Overview::Entry &entry)
{
    return DashboardText(entry.IsWifi() ? "IDS_KIND_WIFI" : "IDS_KIND_MOBILE");
}

QString OverviewText::State(const Overview &overview, const Overview::Entry &entry)
{
    const QString state = DashboardText(StateOf(overview, entry).id);
    const QString signal =
        entry.CanBeUsed() || entry.stage != StageNotKnown ? Signal(entry.signal) : QString();
    return signal.isEmpty() ? state : state + QString::fromUtf8(" · ") + signal;
}

Glyphs::Mark OverviewText::Mark(const Overview &overview, const Overview::Entry &entry)
{
    return StateOf(overview, entry).mark;
}

Glyphs::Reach OverviewText::Reach(const Overview &overview, const Overview::Entry &entry)
{
    if (entry.CanBeUsed() || entry.stage != StageNotKnown) {
        return Glyphs::InReach;
    }
    return !overview.connections.AreKnown() || IsNotCertain(entry) ? Glyphs::ReachNotKnown
                                                                   : Glyphs::OutOfReach;
}

QString OverviewText::Detail(const Overview &overview, int place)
{
    const Overview::Entry &entry = overview.entries.at(place);
    const bool isOutOfRange =
        entry.profile.use == ConnectionProfile::UseOutOfRange && entry.profile.failure == FailureNone;
    QString reason;
    if (entry.isRepeated) {
        reason = Reason(overview, place);
    } else if (!overview.connections.AreKnown() || entry.isInUse || (isOutOfRange && !entry.CanBeUsed())) {
        reason = QString();
    } else {
        reason = &entry == overview.Choice() ? ChoiceReason(overview) : Reason(overview, place);
    }
    return reason.isEmpty() ? Kind(entry) : Kind(entry) + QString::fromUtf8(" · ") + reason;
}

QString OverviewText::UnlistedDetail(const Overview::Entry &entry)
{
    return DashboardText("IDS_UNLISTED_SAVED").arg(Kind(entry));
}

QString OverviewText::Reason(const Overview &overview, int place)
{
    const Overview::Entry &entry = overview.entries.at(place);
    const Overview::Entry *choice = overview.Choice();
    if (entry.isRepeated) {
        return DashboardText("IDS_USE_TWICE");
    }
    if (!overview.connections.AreKnown()) {
        return NotKnownText(overview);
    }
    if (entry.isInUse && &entry == choice) {
        return DashboardText("IDS_HEAD_FIRST");
    }
    if (&entry == choice) {
        return Sentences(ChoiceText(overview));
    }
    if (Connections::IsComingUp(entry.stage)) {
        return TextOf(stages, entry.stage);
    }
    if (entry.profile.id.isEmpty() && entry.stage == StageNotKnown) {
        return DashboardText("IDS_USE_NOT_SAVED");
    }
    QStringList sentences;
    if (entry.CanBeUsed()) {
        sentences.append(DashboardText("IDS_USE_LOWER").arg(ListChangeText::Name(choice->entry)));
    } else {
        sentences.append(IsNotCertain(entry) && entry.profile.use != ConnectionProfile::UseHiddenIsTried
                             ? DashboardText("IDS_USE_NOT_KNOWN")
                             : TextOf(obstacles, entry.profile.use));
    }
    sentences.append(entry.isInUse ? QString() : Failure(entry.profile.failure));
    return Sentences(sentences);
}

QString OverviewText::Stage(int stage)
{
    return TextOf(stages, stage);
}

QString OverviewText::Failure(int failure)
{
    return TextOf(failures, failure);
}

QString OverviewText::Outcome(int failure)
{
    return TextOf(outcomes, failure);
}

QString OverviewText::OutcomeOfSaved(int failure)
{
    return failure == FailureWrongKey ? DashboardText("IDS_TRIED_SAVED_KEY") : Outcome(failure);
}

QString OverviewText::NotDone(const char *what, const QString &name, const QString &reason)
{
    const QString sentence = DashboardText(what).arg(Name(name));
    return reason.isEmpty() ? sentence : Sentences(QStringList() << sentence << reason);
}
