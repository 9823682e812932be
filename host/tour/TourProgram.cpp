#include "TourProgram.h"

#include "Tour.h"

#include <Appearance.h>
#include <CommonUtils.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Installation.h>
#include <MainWindow.h>
#include <PluginHost.h>
#include <TraceLog.h>
#include <UserData.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>

#include <cstdio>
#include <cstdlib>

namespace
{

const int exitRefused = 2;

[[noreturn]] void Refuse(const QString &problem)
{
    std::fprintf(stderr, "priority-dashboard-tour: %s\n", problem.toLocal8Bit().constData());
    std::exit(exitRefused);
}

/** The size that desktops use; without a desktop Qt takes a larger one, and the pictures would show that. */
void UseDesktopFontSize()
{
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
}

} // namespace

TourProgram::Options TourProgram::Read(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(
        "Shows the dashboard to itself: works with a list of its own through real clicks and keys,\n"
        "saves a picture of each step in DIR, and checks each effect.\n\n"
        "Exit status: 0 done, 1 a step had not its effect, 2 the command line can't be followed,\n"
        "3 the tour took too long."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption language(
        QLatin1String("language"),
        QLatin1String("The language to begin with, such as en or ar; pseudo shows "
                      "what can't be translated and what is cut off."),
        QLatin1String("NAME"), QLatin1String("en"));
    const QCommandLineOption libraryPath(QLatin1String("library-path"),
                                         QLatin1String("Look for plug-ins in DIR/plugins."),
                                         QLatin1String("DIR"));
    parser.addOptions({language, libraryPath});
    parser.addPositionalArgument(QLatin1String("DIR"), QLatin1String("Where the pictures are saved."));
    if (!parser.parse(application.arguments())) {
        Refuse(parser.errorText());
    }
    if (parser.isSet(help)) {
        parser.showHelp();
    }
    const QStringList directories = parser.positionalArguments();
    if (directories.size() != 1) {
        Refuse(QLatin1String("name one directory for the pictures; see --help"));
    }
    Options options;
    options.directory = directories.first();
    options.language = parser.value(language);
    options.pluginDirectory = parser.value(libraryPath);
    return options;
}

TourProgram::TourProgram(int *argc, char **argv, const Options &options)
    : m_options(options), m_directory(options.directory)
{
    const QString problem = m_directory.Prepare();
    if (!problem.isNull()) {
        Refuse(problem);
    }
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory.DataPath()));
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    m_log.reset(new TraceLog(UserData::FilePath(QLatin1String("dashboard.log"))));
    m_application.reset(new QApplication(*argc, argv));
    QApplication::setApplicationName(QLatin1String("priority-dashboard"));
    const QString program = QApplication::applicationDirPath();
    const QString libraryPath =
        options.pluginDirectory.isEmpty() ? Installation::LibraryPath(program) : options.pluginDirectory;
    if (!QFileInfo(libraryPath).isDir()) {
        Refuse(QString::fromLatin1("there is no directory %1").arg(libraryPath));
    }
    HostControl::SetPluginLibraryPath(QDir(libraryPath).absolutePath());
    HostControl::SetLanguageDirectory(options.language == QLatin1String("pseudo")
                                          ? program + QLatin1String("/../share/pseudo-language")
                                          : Installation::LanguageDirectory(program));
    if (!DashboardLanguage::Apply(options.language)) {
        Refuse(QString::fromLatin1("there is no language \"%1\"; there are: %2")
                   .arg(options.language, HostControl::LanguageNames().join(QLatin1String(", "))));
    }
    UseDesktopFontSize();
    Appearance::Apply(Appearance::System);
}

TourProgram::~TourProgram() = default;

void TourProgram::Open()
{
    m_plugins.reset(
        new PluginHost(CommonUtils::GetPluginLibraryPath(), PluginHost::KnownPlugins(WlanStored)));
    m_plugins->Load();
    const QList<PluginHost::Plugin> plugins = m_plugins->Plugins();
    for (const PluginHost::Plugin &plugin : plugins) {
        if (plugin.state != PluginReady) {
            TraceLog::Warn(PluginHost::ProblemText(plugin));
        }
    }
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_plugins.get(), m_language.get(), m_log.get()));
    m_window->show();
    m_tour.reset(new Tour(m_window.get(), m_directory));
}

int TourProgram::Run()
{
    return m_tour->Run() ? EXIT_SUCCESS : EXIT_FAILURE;
}
