#include <AgentStart.h>
#include <Appearance.h>
#include <Arguments.h>
#include <Commands.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Installation.h>
#include <MainWindow.h>
#include <OneWindow.h>
#include <PluginHost.h>
#include <StatusIcon.h>
#include <SwitchNotice.h>
#include <Terminal.h>
#include <TraceLog.h>
#include <UserData.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedPointer>
#include <QStandardPaths>

#include <clocale>
#include <cstdio>

namespace
{

const int exitNoDisplay = 1;
const int exitRefused = 2;

void PrintOut(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
}

int Refuse(const QString &problem, int status)
{
    Terminal::Complain(problem);
    return status;
}

QString LibraryPath(const Arguments &arguments)
{
    const QString path = arguments.pluginLibraryPath.isNull()
                             ? Installation::LibraryPath(QApplication::applicationDirPath())
                             : arguments.pluginLibraryPath;
    return QDir::cleanPath(QDir().absoluteFilePath(path));
}

/** Whether there is something to show windows on; Qt aborts the program when there is nothing. */
bool HasDisplay()
{
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/** Whatever a desktop has set, commands run where its display is out of reach. So does an agent, which has
 * its work to do, with its icon or without. */
QByteArray PlatformOfIcon()
{
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    const QByteArray usual = qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "xcb" : "wayland;xcb";
    return (chosen.isEmpty() ? usual : chosen) + ";offscreen";
}

/** Lets windows follow the scale of their screens, 150 % as well as 200 %. */
void FollowScreenScale()
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/** Nothing of the user's is touched while somebody tries the program. */
void UseDemoDirectory()
{
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    qputenv("XDG_DATA_HOME", QFile::encodeName(dataHome + QLatin1String("/priority-dashboard-demo")));
}

/** Whether there is a file for the language at all, useful or not. */
bool IsKnown(const QString &language)
{
    bool isKnown = HostControl::LanguageNames().contains(language);
    const QList<LanguageProblem> problems = HostControl::LanguageProblems();
    for (int i = 0; i < problems.size(); ++i) {
        isKnown = isKnown || QFileInfo(problems.at(i).path).completeBaseName() == language;
    }
    return isKnown;
}

void StartLanguage(const Arguments &arguments)
{
    const QList<LanguageProblem> problems = HostControl::LanguageProblems();
    for (int i = 0; i < problems.size(); ++i) {
        TraceLog::Warn(DashboardLanguage::ProblemText(problems.at(i)));
    }
    // Scripts are told the same everywhere.
    const bool isTheUsers = arguments.commands.isEmpty();
    const QString language = DashboardLanguage::Choose(
        arguments.language, isTheUsers ? DashboardLanguage::Stored() : QString(),
        isTheUsers ? DashboardLanguage::OfSystem() : QStringList(), HostControl::LanguageNames());
    if (!DashboardLanguage::Apply(language)) {
        TraceLog::Warn(
            QString::fromLatin1("the texts for the language \"%1\" are missing; their names are shown")
                .arg(language));
    }
}

/** Sets up where plug-ins and languages are looked for. Null, or what of the command line can't be followed.
 */
QString PrepareHost(const Arguments &arguments)
{
    const QString libraryPath = LibraryPath(arguments);
    if (!QFileInfo(libraryPath).isDir()) {
        return QString::fromLatin1("there is no directory %1").arg(libraryPath);
    }
    HostControl::SetPluginLibraryPath(libraryPath);
    HostControl::SetLanguageDirectory(Installation::LanguageDirectory(QApplication::applicationDirPath()));
    if (!arguments.language.isNull() && !IsKnown(arguments.language)) {
        return QString::fromLatin1("there is no language \"%1\"; there are: %2")
            .arg(arguments.language, HostControl::LanguageNames().join(QLatin1String(", ")));
    }
    return QString();
}

void Open(MainWindow *window, const QString &part)
{
    if (part == QLatin1String("connect")) {
        window->OpenConnect();
    } else if (part == QLatin1String("settings")) {
        window->OpenSettings();
    }
}

/** What the window of this start would show; null when it is to have a window of its own in any case. */
QString WindowKey(const Arguments &arguments)
{
    const QString data = QFileInfo(UserData::Directory()).canonicalFilePath();
    if (arguments.isDemo || data.isEmpty()) {
        return QString();
    }
    const QStringList parts = {data, LibraryPath(arguments), QString::number(arguments.ChosenWlan()),
                               arguments.language};
    return parts.join(QLatin1Char('\n'));
}

/** How a window is opened that shows what this program works with. */
QStringList WindowCommand(const Arguments &arguments)
{
    QStringList command(QApplication::applicationFilePath());
    if (!arguments.pluginLibraryPath.isNull()) {
        command << QLatin1String("--library-path") << LibraryPath(arguments);
    }
    return command;
}

int RunWindow(const Arguments &arguments, TraceLog *log, const OneWindow *oneWindow)
{
    if (UserData::Directory().isEmpty()) {
        TraceLog::Warn(QLatin1String("there is no directory for your data and none can be made; "
                                     "what you change will not be kept"));
    }
    Appearance::Apply(Appearance::Stored());

    PluginHost plugins(LibraryPath(arguments), PluginHost::KnownPlugins(arguments.ChosenWlan()));
    plugins.Load();
    const QList<PluginHost::Plugin> loaded = plugins.Plugins();
    for (int i = 0; i < loaded.size(); ++i) {
        if (loaded.at(i).state != PluginReady) {
            TraceLog::Warn(PluginHost::ProblemText(loaded.at(i)));
        }
    }
    const SwitchNotice notice;
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, log);
    window.FitToScreen();
    window.show();
    Open(&window, arguments.show);
    if (oneWindow) {
        QObject::connect(oneWindow, &OneWindow::StartedAgain, &window, [&window](const QStringList &later) {
            OneWindow::Raise(&window);
            // What is being done in a dialog comes first.
            if (!QApplication::activeModalWidget()) {
                Open(&window, Arguments::Parse(later).show);
            }
        });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    // As Qt does when it starts; until then nobody knows in which encoding the arguments are.
    std::setlocale(LC_ALL, "");
    const Arguments arguments = Arguments::Read(argc, argv);
    switch (arguments.action) {
    case Arguments::Help:
        PrintOut(Arguments::HelpText());
        return 0;
    case Arguments::Version:
        PrintOut(Arguments::VersionText());
        return 0;
    case Arguments::Refuse:
        return Refuse(arguments.problem, exitRefused);
    case Arguments::Run:
        break;
    }

    if (arguments.isDemo) {
        UseDemoDirectory();
    }
    const bool isForScripts = !arguments.commands.isEmpty();
    const bool hasIcon = isForScripts && arguments.commands.constFirst().kind == Command::Agent &&
                         HasDisplay() && AgentStart::IsIconWanted();
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (isForScripts) {
        qputenv("QT_QPA_PLATFORM", hasIcon ? PlatformOfIcon() : QByteArray("offscreen"));
    }
    if (!HasDisplay()) {
        const QCoreApplication application(argc, argv);
        const QString problem = PrepareHost(arguments);
        return problem.isNull() ? Refuse(QLatin1String("there is no display to open a window on; "
                                                       "set DISPLAY"),
                                         exitNoDisplay)
                                : Refuse(problem, exitRefused);
    }

    // The name of the installed desktop file: how desktops find the name and the icon of the window.
    QGuiApplication::setDesktopFileName(QLatin1String("com.torvik.netquillforge.PriorityDashboard"));
    FollowScreenScale();
    // The log before Qt, which has things to say while it starts.
    TraceLog log(UserData::FilePath(QLatin1String("dashboard.log")));
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QLatin1String("priority-dashboard"));
    QApplication::setApplicationVersion(Arguments::VersionText().section(QLatin1Char(' '), 1).trimmed());
    const QString problem = PrepareHost(arguments);
    if (!problem.isNull()) {
        return Refuse(problem, exitRefused);
    }
    StartLanguage(arguments);
    if (isForScripts) {
        // It is for this program, and not for what the icon starts.
        qputenv("QT_QPA_PLATFORM", platform);
        return Commands::Run(arguments, LibraryPath(arguments), [&](ListKeeper *keeper) {
            return hasIcon ? new StatusIcon(keeper, WindowCommand(arguments)) : nullptr;
        });
    }
    const QString key = WindowKey(arguments);
    const QScopedPointer<OneWindow> oneWindow(key.isNull() ? nullptr : new OneWindow(key));
    return RunWindow(arguments, &log, oneWindow.data());
}
