#include "Commands.h"

#include "Agent.h"
#include "ConnectionCommands.h"
#include "HistoryCommands.h"
#include "ListCommands.h"

#include <HostControl.h>
#include <IPluginContainer.h>
#include <ListRules.h>
#include <PluginHost.h>
#include <PluginList.h>
#include <UserData.h>

#include <algorithm>

namespace
{

/** The plug-ins but for the one that keeps the list. */
QList<KnownPlugin> WithoutTheList(const QList<KnownPlugin> &known)
{
    QList<KnownPlugin> others;
    for (const KnownPlugin &plugin : known) {
        if (!plugin.hasSettingsPage) {
            others.append(plugin);
        }
    }
    return others;
}

/** Why no Wi-Fi plug-in can be asked; null when one can. */
QString ProblemOf(const PluginHost &plugins)
{
    const QList<PluginHost::Plugin> all = plugins.Plugins();
    for (const PluginHost::Plugin &plugin : all) {
        if (plugin.state != PluginReady) {
            return PluginHost::ProblemText(plugin);
        }
    }
    return QString();
}

/** Hands out what either of two has. */
class BothPlugins : public IPluginContainer
{
public:
    BothPlugins(IPluginContainer *list, IPluginContainer *networks) : m_list(list), m_networks(networks) {}

    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override
    {
        QObject *object = m_list->GetPluginObject(classId, interfaceNumber);
        return object ? object : m_networks->GetPluginObject(classId, interfaceNumber);
    }

private:
    IPluginContainer *const m_list;
    IPluginContainer *const m_networks;
};

bool IsAnyChange(const QList<Command> &commands)
{
    return std::any_of(commands.constBegin(), commands.constEnd(),
                       [](const Command &command) { return command.IsChange(); });
}

/** Those from *next on that are done in one go; *next is behind them then. */
QList<Command> OfListFrom(const QList<Command> &commands, int *next)
{
    QList<Command> ofList;
    while (*next < commands.size() && !commands.at(*next).IsOfConnections()) {
        const bool isOfHistory = commands.at(*next).IsOfHistory();
        if (isOfHistory && !ofList.isEmpty()) {
            break;
        }
        ofList.append(commands.at(*next));
        ++*next;
        if (isOfHistory) {
            break;
        }
    }
    return ofList;
}

CommandStatus RunOfList(const QList<Command> &commands, const ListCommands &lists)
{
    if (commands.constFirst().IsOfHistory()) {
        return HistoryCommands::Run(commands.constFirst());
    }
    // What is added is a change that can be undone, too.
    const bool isChange = IsAnyChange(commands);
    if (isChange) {
        HistoryCommands::Note();
    }
    const CommandStatus status = lists.Run(commands);
    if (isChange) {
        HistoryCommands::Note();
    }
    return status;
}

} // namespace

CommandStatus Commands::Run(const Arguments &arguments, const QString &libraryPath,
                            const Agent::Companion &companion)
{
    const QString listPath = UserData::FilePath(QLatin1String("Priority.xml"));
    if (listPath.isEmpty()) {
        return CommandAnswer::Fail(CommandFileNotOpened,
                                   QLatin1String("there is no directory for your data and none can be made"));
    }
    if (!arguments.commands.isEmpty() && arguments.commands.constFirst().kind == Command::Agent) {
        return Agent::Run(arguments, libraryPath, companion);
    }
    PluginHost priority(libraryPath, QList<KnownPlugin>() << PluginHost::PriorityPlugin());
    priority.Load();
    if (priority.Plugins().at(0).state != PluginReady) {
        return CommandAnswer::Fail(CommandNoPlugin, PluginHost::ProblemText(priority.Plugins().at(0)));
    }
    // Each in a container of its own: a Wi-Fi plug-in that can reach the list rules by it, and these commands
    // do what they are told and no more.
    PluginHost networks(libraryPath, WithoutTheList(PluginHost::KnownPlugins(arguments.ChosenWlan())));
    BothPlugins both(&priority, &networks);
    QString problem;
    const auto askNetworks = [&](IPluginContainer *container) {
        if (networks.Plugins().constFirst().state == PluginNotLoaded) {
            networks.Load();
            problem = ProblemOf(networks);
        }
        HostControl::SetPluginContainer(container);
        return ConnectionCommands(arguments.isJson, arguments.WaitSeconds(), problem);
    };
    const ListCommands lists(listPath, arguments.isJson);
    const QList<Command> &commands = arguments.commands;
    CommandStatus status = CommandDone;
    for (int i = 0; i < commands.size() && status == CommandDone;) {
        HostControl::SetPluginContainer(&priority);
        const QList<Command> ofList = OfListFrom(commands, &i);
        if (!ofList.isEmpty()) {
            status = RunOfList(ofList, lists);
            if (IsAnyChange(ofList) && ListRules::IsRuling()) {
                askNetworks(&both).FollowList();
            }
            continue;
        }
        const ListReading list = PluginList().Read();
        const Command command = commands.at(i);
        ++i;
        IPluginContainer *container =
            command.IsOfOrder() ? static_cast<IPluginContainer *>(&both) : &networks;
        status = askNetworks(container).Run(command, list);
        if (status == CommandDone && (command.kind == Command::Status || command.kind == Command::Apply)) {
            status = lists.FailToRead(list.status);
        }
    }
    HostControl::SetPluginContainer(nullptr);
    return status;
}
