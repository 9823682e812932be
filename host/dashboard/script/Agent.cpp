#include "Agent.h"

#include <DashboardLanguage.h>
#include <FileWatcher.h>
#include <HostControl.h>
#include <ListKeeper.h>
#include <PluginHost.h>
#include <PluginList.h>
#include <PluginObjects.h>
#include <ProfileNames.h>
#include <SwitchNotice.h>
#include <UserData.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QLockFile>
#include <QScopedPointer>
#include <QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace
{

/** Reading and writing end; hardly anything else may be done while a signal is handled. */
int signalPipe[2] = {-1, -1};

extern "C" void PassOn(int)
{
    const char sign = 0;
    // A pipe that is full has told already.
    static_cast<void>(write(signalPipe[1], &sign, 1) == 1);
}

bool CatchSignals()
{
    if (pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return false;
    }
    struct sigaction action = {};
    action.sa_handler = PassOn;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
    return true;
}

/** Not every session sends a signal at its end. Its bus goes with it. */
void EndWithTheSession()
{
    // Without an address D-Bus might start a bus for the question.
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        QDBusConnection::sessionBus().connect(QString(), QLatin1String("/org/freedesktop/DBus/Local"),
                                              QLatin1String("org.freedesktop.DBus.Local"),
                                              QLatin1String("Disconnected"), QCoreApplication::instance(),
                                              SLOT(quit()));
    }
}

} // namespace

CommandStatus Agent::Run(const Arguments &arguments, const QString &libraryPath, const Companion &companion)
{
    QLockFile onlyOne(UserData::FilePath(QLatin1String("agent.use")));
    // However long it runs; one that has died is found out by its process.
    onlyOne.setStaleLockTime(0);
    if (!onlyOne.tryLock(0) && onlyOne.error() == QLockFile::LockFailedError) {
        return CommandAnswer::Fail(CommandListInUse, QLatin1String("an agent of yours is running already"));
    }
    PluginHost plugins(libraryPath, PluginHost::KnownPlugins(arguments.ChosenWlan()));
    plugins.Load();
    const QList<PluginHost::Plugin> loaded = plugins.Plugins();
    for (const PluginHost::Plugin &plugin : loaded) {
        if (plugin.state != PluginReady) {
            return CommandAnswer::Fail(plugin.known.hasSettingsPage ? CommandNoPlugin : CommandNoSource,
                                       PluginHost::ProblemText(plugin));
        }
    }
    if (!PluginObjects::Ordering()) {
        return CommandAnswer::Fail(CommandNoSource,
                                   QLatin1String("these networks are not ruled by the list"));
    }
    if (!CatchSignals()) {
        return CommandAnswer::Fail(CommandNotWritten, QLatin1String("no pipe can be made"));
    }
    EndWithTheSession();
    // Its messages are for whoever starts it, its notices for the user.
    DashboardLanguage::Apply(DashboardLanguage::Choose(arguments.language, DashboardLanguage::Stored(),
                                                       DashboardLanguage::OfSystem(),
                                                       HostControl::LanguageNames()));
    const SwitchNotice notice;
    PluginList list;
    ListKeeper keeper(UserData::Directory(), &list, nullptr);
    const ProfileNames names(UserData::FilePath(ProfileNames::FileName()), &keeper, nullptr);
    FileWatcher watcher(keeper.ListPath(), nullptr);
    QObject::connect(&watcher, &FileWatcher::Changed, &keeper, [&watcher, &keeper] {
        watcher.Note();
        keeper.Follow();
    });
    const QScopedPointer<QObject> beside(companion(&keeper));
    QSocketNotifier notifier(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    QCoreApplication::exec();
    return CommandDone;
}
