#include "ConnectionCommands.h"

#include <IConnectionPlugin.h>
#include <IOrderPlugin.h>
#include <ListKeeper.h>
#include <ListRules.h>
#include <OneLine.h>
#include <Overview.h>
#include <PluginList.h>
#include <PluginObjects.h>
#include <ProfileNames.h>
#include <UserData.h>

#include <QEventLoop>
#include <QJsonArray>
#include <QTimer>

#include <functional>

namespace
{

// A connection manager that is busy may take its time to tell how things stand.
const int answerMilliseconds = 10000;

struct Word {
    int value;
    const char *word;
};

// Writing hundreds of profiles takes its time, and another program of this user may do it first.
const int orderMilliseconds = 120000;

const Word failures[] = {
    {FailureWrongKey, "the key was refused"},
    {FailureKeyMissing, "a key is missing"},
    {FailureNoAnswer, "it did not answer"},
    {FailureNoAddress, "it gave no address"},
    {FailureRefused, "it did not let this computer in"},
    {FailureSim, "the SIM card does not work"},
    {FailureStopped, "it was ended by hand or for another one"},
    {FailureDevice, "its adapter or modem is not available"},
    {FailureNotAllowed, "you may not do that, or only with a password"},
    {FailureSource, "the connection manager does not answer any more"},
};

template <int count> QString TextOf(int value, const Word (&words)[count])
{
    for (const Word &known : words) {
        if (known.value == value) {
            return QLatin1String(known.word);
        }
    }
    return QLatin1String("the connection manager gives no reason");
}

QString FailureText(int failure)
{
    return TextOf(failure, failures);
}

const Word obstacles[] = {
    {ObstacleOtherUsers, "it belongs to other users"},
    {ObstaclePassing, "it is not stored"},
    {ObstacleNotAllowed, "you may not change it"},
    {ObstaclePassword, "changing it needs a password"},
    {ObstacleRefused, "NetworkManager refused the change"},
    {ObstacleNoAnswer, "NetworkManager did not answer"},
    {ObstacleOwnMetric, "it has a route metric that somebody has chosen"},
    {ObstacleOtherList, "another list or program has set it again since"},
};

/** What scripts are told of a stage; null for one that is not known. */
const char *StageWord(int stage)
{
    return Connections::IsComingUp(stage) ? "activating"
           : stage == StageConnected      ? "activated"
           : stage == StageDisconnecting  ? "deactivating"
                                          : nullptr;
}

/** Waits until it is so, which changes can only make so that the object tells by that signal; false when the
 * time runs out. */
bool Await(QObject *(*teller)(), const char *signal, const std::function<bool()> &isSo,
           const QDeadlineTimer &deadline)
{
    bool isItSo = isSo();
    while (!isItSo && !deadline.hasExpired() && teller()) {
        QEventLoop loop;
        QObject::connect(teller(), signal, &loop, SLOT(quit()));
        QTimer::singleShot(static_cast<int>(deadline.remainingTime()), &loop, SLOT(quit()));
        loop.exec();
        isItSo = isSo();
    }
    return isItSo;
}

bool AwaitConnections(const std::function<bool()> &isSo, const QDeadlineTimer &deadline)
{
    return Await(&PluginObjects::ConnectionService, SIGNAL(OnConnectionsChanged()), isSo, deadline);
}

/** Waits until the order has come to its end. */
OrderOutcome OutcomeOf(int order)
{
    OrderOutcome outcome;
    Await(
        &PluginObjects::OrderService, SIGNAL(OnOrderChanged()),
        [order, &outcome] {
            if (IOrderPlugin *plugin = PluginObjects::Ordering()) {
                plugin->GetOutcome(order, &outcome);
            }
            return outcome.stage != OrderOutcome::StageOrderUnderWay;
        },
        QDeadlineTimer(orderMilliseconds));
    return outcome;
}

/** The list takes effect under the names that profiles have now. */
void CatchUpWithNames()
{
    PluginList list;
    ListKeeper keeper(UserData::Directory(), &list, nullptr);
    const ProfileNames names(UserData::FilePath(ProfileNames::FileName()), &keeper, nullptr);
}

ConnectionState StateNow()
{
    ConnectionState state;
    if (IConnectionPlugin *plugin = PluginObjects::Connecting()) {
        plugin->GetConnectionState(&state);
    }
    return state;
}

PriorityList EntryOf(const ActiveConnection &connection)
{
    PriorityList entry;
    entry.name = connection.name;
    entry.type = connection.type;
    return entry;
}

QString Quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

CommandStatus FailRefused(int refusal, const QString &name)
{
    switch (refusal) {
    case IConnectionPlugin::RefusedUnknown:
        return CommandAnswer::Fail(
            CommandNothingThere,
            QString::fromLatin1("nothing called %1 is saved or in range").arg(Quoted(name)));
    case IConnectionPlugin::RefusedKey:
        return CommandAnswer::Fail(CommandNothingThere,
                                   QString::fromLatin1("%1 needs a key; set it up first").arg(Quoted(name)));
    case IConnectionPlugin::RefusedAccount:
        return CommandAnswer::Fail(
            CommandNothingThere,
            QString::fromLatin1("%1 needs an account; set it up first").arg(Quoted(name)));
    case IConnectionPlugin::RefusedSource:
        return CommandAnswer::Fail(CommandNoSource, FailureText(FailureSource));
    case IConnectionPlugin::RefusedNotAllowed:
        return CommandAnswer::Fail(CommandNotConnected, FailureText(FailureNotAllowed));
    default:
        return CommandAnswer::Fail(CommandNotConnected, FailureText(FailureOther));
    }
}

/** Waits until the order has come to its end. */
CommandStatus Follow(int order, const QString &name, int goal, const QDeadlineTimer &deadline)
{
    if (order <= 0) {
        return FailRefused(order, name);
    }
    ConnectAttempt attempt;
    const bool isOver = AwaitConnections(
        [order, &attempt] {
            if (IConnectionPlugin *plugin = PluginObjects::Connecting()) {
                plugin->GetAttempt(order, &attempt);
            }
            return !Connections::IsComingUp(attempt.stage) && attempt.stage != StageDisconnecting;
        },
        deadline);
    const char *const what = goal == StageConnected ? "%1 was not connected: %2" : "%1 was not ended: %2";
    const QString problem = QLatin1String(what);
    if (!isOver) {
        return CommandAnswer::Fail(
            CommandNotConnected,
            problem.arg(Quoted(name), QLatin1String("it takes longer than --wait allows, and goes on")));
    }
    if (attempt.stage != goal) {
        return CommandAnswer::Fail(CommandNotConnected,
                                   problem.arg(Quoted(name), FailureText(attempt.failure)));
    }
    if (attempt.failure == FailureNotStored) {
        CommandAnswer::Fail(CommandDone,
                            QString::fromLatin1("%1 is connected, but could not be saved").arg(Quoted(name)));
    }
    return CommandDone;
}

/** The network in range of that name; null when there is none. */
const VisibleNetwork *InRange(const PriorityList &entry, const QList<VisibleNetwork> &networks)
{
    const VisibleNetwork *found = nullptr;
    for (const VisibleNetwork &network : networks) {
        if (entry.type != QLatin1String("1") || network.name != entry.name) {
            continue;
        }
        // An open network may be a stranger's that bears the name of one with a key.
        const bool isSafer =
            found && found->profileIds.isEmpty() &&
            (!network.profileIds.isEmpty() || network.protection != VisibleNetwork::ProtectionOpen);
        if (!found || isSafer) {
            found = &network;
        }
    }
    return found;
}

QJsonValue JsonOrNull(const PriorityList *entry)
{
    return entry ? QJsonValue(CommandAnswer::Json(*entry)) : QJsonValue();
}

QString FieldsOrDash(const PriorityList *entry)
{
    return entry ? CommandAnswer::Fields(*entry) : QString(QLatin1Char('-'));
}

} // namespace

ConnectionCommands::ConnectionCommands(bool isJson, int waitSeconds, const QString &problem)
    : m_isJson(isJson), m_waitSeconds(waitSeconds), m_problem(problem)
{
}

/** Why nothing is known of connections; null when it is. */
QString ConnectionCommands::SourceProblem() const
{
    if (!PluginObjects::Connecting()) {
        return m_problem.isNull() ? QLatin1String("the Wi-Fi plug-in tells nothing of connections")
                                  : m_problem;
    }
    AwaitConnections([] { return StateNow().source != ConnectionState::SourceNotKnown; },
                     QDeadlineTimer(answerMilliseconds));
    switch (StateNow().source) {
    case ConnectionState::SourceKnown:
        return QString();
    case ConnectionState::SourceGone:
        return QLatin1String("the connection manager is not running");
    default:
        return QLatin1String("the connection manager does not answer");
    }
}

CommandStatus ConnectionCommands::Run(const Command &command, const ListReading &list) const
{
    const QDeadlineTimer deadline(static_cast<qint64>(m_waitSeconds) * 1000);
    const QString problem = SourceProblem();
    if (!problem.isNull()) {
        const QLatin1String none("none");
        const CommandStatus printed =
            command.kind != Command::Status ? CommandDone
            : m_isJson ? CommandAnswer::Print(QJsonObject{{QLatin1String("source"), none}})
                       : CommandAnswer::Print(CommandAnswer::Line(QLatin1String("source"), none));
        return printed == CommandDone ? CommandAnswer::Fail(CommandNoSource, problem) : printed;
    }
    switch (command.kind) {
    case Command::Connect:
        return Connect(command.entry, deadline);
    case Command::Disconnect:
        return Disconnect(deadline);
    case Command::Apply:
    case Command::Release:
        return Order(command.kind == Command::Apply);
    default:
        return Tell(list);
    }
}

void ConnectionCommands::FollowList() const
{
    IOrderPlugin *plugin = PluginObjects::Ordering();
    if (plugin && SourceProblem().isNull()) {
        CatchUpWithNames();
        OutcomeOf(plugin->Apply());
    }
}

CommandStatus ConnectionCommands::Order(bool isRuling) const
{
    // Looked for first: the choice is that of the real networks, and practice networks leave it alone.
    IOrderPlugin *plugin = PluginObjects::Ordering();
    if (!plugin) {
        return CommandAnswer::Fail(CommandNoSource,
                                   QLatin1String("these networks are not ruled by the list"));
    }
    if (!ListRules::SetRuling(isRuling)) {
        return CommandAnswer::Fail(CommandNotWritten,
                                   QString::fromLatin1("%1 can't be written").arg(ListRules::FilePath()));
    }
    if (isRuling) {
        CatchUpWithNames();
    }
    const OrderOutcome outcome = OutcomeOf(plugin->Apply());
    QString lines;
    for (const OrderChange &change : outcome.changes) {
        lines +=
            CommandAnswer::Line(QLatin1String("set"), OneLine::Escaped(change.name) + QLatin1Char('\t') +
                                                          QString::number(change.before) + QLatin1Char('\t') +
                                                          QString::number(change.after));
    }
    for (const OrderKept &kept : outcome.kept) {
        lines += CommandAnswer::Line(QLatin1String("kept"), OneLine::Escaped(kept.name) + QLatin1Char('\t') +
                                                                TextOf(kept.obstacle, obstacles));
    }
    const CommandStatus printed = CommandAnswer::Print(lines);
    if (printed != CommandDone) {
        return printed;
    }
    if (outcome.stage == OrderOutcome::StageOrderUnderWay) {
        return CommandAnswer::Fail(
            CommandListInUse, QLatin1String("another program has been busy with the order for too long"));
    }
    if (outcome.failure == OrderOutcome::FailureOrderSource) {
        return CommandAnswer::Fail(CommandNoSource, FailureText(FailureSource));
    }
    return outcome.kept.isEmpty() ? CommandDone : CommandNotInEffect;
}

CommandStatus ConnectionCommands::Tell(const ListReading &list) const
{
    const Overview overview = Overview::Of(list);
    const Connections &told = overview.connections;
    const PriorityList inUse = told.InUse() ? EntryOf(*told.InUse()) : PriorityList();
    const PriorityList *const traffic = told.InUse() ? &inUse : nullptr;
    const PriorityList *const choice = overview.Choice() ? &overview.Choice()->entry : nullptr;
    QString lines = CommandAnswer::Line(QLatin1String("source"), OneLine::Escaped(told.state.sourceName));
    QJsonArray active;
    for (const ActiveConnection &connection : told.active) {
        const char *const stage = StageWord(connection.stage);
        if (!stage) {
            continue;
        }
        const PriorityList entry = EntryOf(connection);
        QJsonObject object = CommandAnswer::Json(entry);
        object.insert(QLatin1String("state"), QLatin1String(stage));
        active.append(object);
        lines += CommandAnswer::Line(QLatin1String("active"),
                                     CommandAnswer::Fields(entry) + QLatin1Char('\t') + QLatin1String(stage));
    }
    lines += CommandAnswer::Line(QLatin1String("traffic"), FieldsOrDash(traffic)) +
             CommandAnswer::Line(QLatin1String("choice"), FieldsOrDash(choice));
    return m_isJson ? CommandAnswer::Print(QJsonObject{{QLatin1String("source"), told.state.sourceName},
                                                       {QLatin1String("active"), active},
                                                       {QLatin1String("traffic"), JsonOrNull(traffic)},
                                                       {QLatin1String("choice"), JsonOrNull(choice)}})
                    : CommandAnswer::Print(lines);
}

CommandStatus ConnectionCommands::Connect(const PriorityList &entry, const QDeadlineTimer &deadline) const
{
    ListReading asked;
    asked.entries.append(entry);
    const Overview overview = Overview::Of(asked);
    const Overview::Entry &known = overview.entries.first();
    if (known.stage == StageConnected) {
        return CommandDone;
    }
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    const VisibleNetwork *network = InRange(entry, overview.connections.networks);
    const int order = !known.profile.id.isEmpty() ? plugin->ConnectProfile(known.profile.id)
                      : network                   ? plugin->ConnectNetwork(network->id, QString())
                                                  : int(IConnectionPlugin::RefusedUnknown);
    return Follow(order, entry.name, StageConnected, deadline);
}

CommandStatus ConnectionCommands::Disconnect(const QDeadlineTimer &deadline) const
{
    const Connections told = Connections::Read();
    const ActiveConnection *const inUse = told.InUse();
    if (!inUse) {
        return CommandAnswer::Fail(CommandNothingThere, QLatin1String("nothing is connected"));
    }
    if (inUse->type != QLatin1String("1") && inUse->type != QLatin1String("2")) {
        return CommandAnswer::Fail(
            CommandNothingThere,
            QString::fromLatin1("%1 is neither Wi-Fi nor mobile broadband").arg(Quoted(inUse->name)));
    }
    return Follow(PluginObjects::Connecting()->Disconnect(inUse->id), inUse->name, StageDisconnected,
                  deadline);
}
