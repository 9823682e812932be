#include <Appearance.h>
#include <Arguments.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Installation.h>
#include <ListCommands.h>
#include <MainWindow.h>
#include <PluginHost.h>
#include <Terminal.h>
#include <ToolkitCompat.h>
#include <Tour.h>
#include <TraceLog.h>
#include <UserData.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QScopedPointer>

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
    // A tour looks the same wherever it is taken, and scripts are told the same everywhere.
    const bool isTheUsers = arguments.tourDirectory.isNull() && arguments.commands.isEmpty();
    const QString language = DashboardLanguage::Choose(
        arguments.language, isTheUsers ? DashboardLanguage::Stored() : QString(),
        isTheUsers ? DashboardLanguage::OfSystem() : QStringList(), HostControl::LanguageNames());
    if (!DashboardLanguage::Apply(language)) {
        TraceLog::Warn(
            QString::fromLatin1("the texts for the language \"%1\" are missing; their names are shown")
                .arg(language));
    }
}

/** The size that desktops use; without a desktop the toolkit takes a larger one, and pictures would show
 * that. */
void UseDesktopFontSize()
{
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
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
    if (arguments.language == QLatin1String("pseudo")) {
        HostControl::OfferPseudoLanguage();
    }
    if (!arguments.language.isNull() && !IsKnown(arguments.language)) {
        return QString::fromLatin1("there is no language \"%1\"; there are: %2")
            .arg(arguments.language, HostControl::LanguageNames().join(QLatin1String(", ")));
    }
    return QString();
}

int RunCommands(const Arguments &arguments)
{
    const QString listPath = UserData::FilePath(QLatin1String("Priority.xml"));
    if (listPath.isEmpty()) {
        return Refuse(QLatin1String("there is no directory for your data and none can be made"),
                      ListCommands::FileNotOpened);
    }
    PluginHost plugins(LibraryPath(arguments), QList<KnownPlugin>() << PluginHost::PriorityPlugin());
    plugins.Load();
    const PluginHost::Plugin priority = plugins.Plugins().at(0);
    if (priority.state != PluginReady) {
        return Refuse(PluginHost::ProblemText(priority), ListCommands::NoPlugin);
    }
    return ListCommands(listPath).Run(arguments.commands);
}

int RunWindow(const Arguments &arguments, const TourDirectory &tourDirectory, TraceLog *log)
{
    if (!arguments.tourDirectory.isNull()) {
        UseDesktopFontSize();
    }
    if (UserData::Directory().isEmpty()) {
        TraceLog::Warn(QLatin1String("there is no directory for your data and none can be made; "
                                     "what you change will not be kept"));
    }
    // A tour looks the same wherever it is taken.
    Appearance::Apply(arguments.tourDirectory.isNull() ? Appearance::Stored() : Appearance::System);

    PluginHost plugins(LibraryPath(arguments), PluginHost::KnownPlugins(arguments.ChosenWlan()));
    plugins.Load();
    const QList<PluginHost::Plugin> loaded = plugins.Plugins();
    for (int i = 0; i < loaded.size(); ++i) {
        if (plugins.IsMissed(loaded.at(i))) {
            TraceLog::Warn(PluginHost::ProblemText(loaded.at(i)));
        }
    }
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, log);
    window.show();
    QScopedPointer<Tour> tour;
    if (!arguments.tourDirectory.isNull()) {
        tour.reset(new Tour(&window, tourDirectory));
        tour->Start();
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    // As the toolkit does when it starts; until then nobody knows in which encoding the arguments are.
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

    TourDirectory tourDirectory(arguments.tourDirectory);
    if (!arguments.tourDirectory.isNull()) {
        const QString problem = tourDirectory.Prepare();
        if (!problem.isNull()) {
            return Refuse(problem, exitRefused);
        }
        qputenv("XDG_DATA_HOME", QFile::encodeName(tourDirectory.DataPath()));
    }
    const bool isForScripts = !arguments.commands.isEmpty();
    // Whatever a desktop has set: scripts run where its display is out of reach.
    if (isForScripts || (!arguments.tourDirectory.isNull() && qgetenv("QT_QPA_PLATFORM").isEmpty())) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (!ToolkitCompat::HasDisplay()) {
        const QCoreApplication application(argc, argv);
        const QString problem = PrepareHost(arguments);
        return problem.isNull() ? Refuse(QLatin1String("there is no display to open a window on; "
                                                       "set DISPLAY, or look at a tour with --tour DIR"),
                                         exitNoDisplay)
                                : Refuse(problem, exitRefused);
    }

    if (arguments.tourDirectory.isNull()) {
        ToolkitCompat::FollowScreenScale();
    }
    // The log before the toolkit, which has things to say while it starts.
    TraceLog log(UserData::FilePath(QLatin1String("dashboard.log")));
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QLatin1String("priority-dashboard"));
    QApplication::setApplicationVersion(Arguments::VersionText().section(QLatin1Char(' '), 1).trimmed());
    const QString problem = PrepareHost(arguments);
    if (!problem.isNull()) {
        return Refuse(problem, exitRefused);
    }
    StartLanguage(arguments);
    return isForScripts ? RunCommands(arguments) : RunWindow(arguments, tourDirectory, &log);
}
