#include "Arguments.h"
#include "DashboardLanguage.h"
#include "HostControl.h"
#include "Installation.h"
#include "MainWindow.h"
#include "PluginHost.h"
#include "Tour.h"
#include "TraceLog.h"
#include "UserData.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QScopedPointer>

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
    std::fprintf(stderr, "dashboard: %s\n", problem.toLocal8Bit().constData());
    return status;
}

/** Whether there is something to show windows on; the toolkit would abort when there is nothing. */
bool HasDisplay()
{
    return !qgetenv("QT_QPA_PLATFORM").isEmpty() || !qgetenv("DISPLAY").isEmpty() ||
           !qgetenv("WAYLAND_DISPLAY").isEmpty();
}

QString LibraryPath(const Arguments &arguments)
{
    const QString path = arguments.pluginLibraryPath.isNull()
                             ? Installation::LibraryPath(QApplication::applicationDirPath())
                             : arguments.pluginLibraryPath;
    return QDir::cleanPath(QDir().absoluteFilePath(path));
}

/** Null, or why the language that was asked for can't be had. */
QString StartLanguage(const Arguments &arguments)
{
    const QStringList available = HostControl::LanguageNames();
    if (!arguments.language.isNull() && !available.contains(arguments.language)) {
        return QString::fromLatin1("there is no language \"%1\"; there are: %2")
            .arg(arguments.language, available.join(QLatin1String(", ")));
    }
    // A tour looks the same wherever it is taken.
    const bool isTour = !arguments.tourDirectory.isNull();
    const QString language =
        DashboardLanguage::Choose(arguments.language, isTour ? QString() : DashboardLanguage::Stored(),
                                  isTour ? QString() : QLocale::system().name(), available);
    if (!DashboardLanguage::Apply(language)) {
        TraceLog::Warn(
            QString::fromLatin1("the texts for the language \"%1\" are missing; their names are shown")
                .arg(language));
    }
    return QString();
}

/** The size that desktops use; without a desktop the toolkit takes a larger one, and pictures would show
 * that. */
void UseDesktopFontSize()
{
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
}

int Run(const Arguments &arguments, const TourDirectory &tourDirectory)
{
    TraceLog log(UserData::FilePath(QLatin1String("dashboard.log")));
    if (UserData::Directory().isEmpty()) {
        TraceLog::Warn(QLatin1String("there is no directory for your data and none can be made; "
                                     "what you change will not be kept"));
    }
    const QString libraryPath = LibraryPath(arguments);
    if (!QFileInfo(libraryPath).isDir()) {
        return Refuse(QString::fromLatin1("there is no directory %1").arg(libraryPath), exitRefused);
    }
    HostControl::SetPluginLibraryPath(libraryPath);
    HostControl::SetLanguageDirectory(Installation::LanguageDirectory(QApplication::applicationDirPath()));
    const QString languageProblem = StartLanguage(arguments);
    if (!languageProblem.isNull()) {
        return Refuse(languageProblem, exitRefused);
    }
    HostControl::ApplyLook();

    PluginHost plugins(libraryPath, PluginHost::KnownPlugins());
    plugins.Load();
    const QList<PluginHost::Plugin> loaded = plugins.Plugins();
    for (int i = 0; i < loaded.size(); ++i) {
        if (loaded.at(i).state != PluginReady) {
            TraceLog::Warn(PluginHost::ProblemText(loaded.at(i)));
        }
    }
    DashboardLanguage language(&plugins, nullptr);
    MainWindow window(&plugins, &language, &log);
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
    QStringList given;
    for (int i = 1; i < argc; ++i) {
        given.append(QString::fromLocal8Bit(argv[i]));
    }
    const Arguments arguments = Arguments::Parse(given);
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
        if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
    }
    if (!HasDisplay()) {
        return Refuse(QLatin1String("there is no display to open a window on; "
                                    "set DISPLAY, or look at a tour with --tour DIR"),
                      exitNoDisplay);
    }

    const QApplication application(argc, argv);
    QApplication::setApplicationName(QLatin1String("dashboard"));
    QApplication::setApplicationVersion(Arguments::VersionText().section(QLatin1Char(' '), 1).trimmed());
    if (!arguments.tourDirectory.isNull()) {
        UseDesktopFontSize();
    }
    return Run(arguments, tourDirectory);
}
