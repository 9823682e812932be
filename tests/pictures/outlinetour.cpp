#include <Appearance.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <MainWindow.h>
#include <Outline.h>
#include <PluginHost.h>
#include <Tour.h>
#include <TourDirectory.h>
#include <TraceLog.h>
#include <UserData.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontInfo>

#include <cstdio>

namespace
{

bool IsTimeColon(const QString &text, int i)
{
    return i > 0 && i + 1 < text.size() && text.at(i) == QLatin1Char(':') && text.at(i - 1).isDigit() &&
           text.at(i + 1).isDigit();
}

/** Without the times, which are others each time; they stand between brackets or quotation marks. */
QString Lasting(const QString &outline)
{
    QString lasting;
    for (int i = 0; i < outline.size(); ++i) {
        if (!IsTimeColon(outline, i)) {
            lasting.append(outline.at(i));
            continue;
        }
        lasting.truncate(qMax(lasting.lastIndexOf(QLatin1Char('"')), lasting.lastIndexOf(QLatin1Char('('))) +
                         1);
        lasting.append(QLatin1String("<time>"));
        while (i + 1 < outline.size() && outline.at(i + 1) != QLatin1Char('"') &&
               outline.at(i + 1) != QLatin1Char(')')) {
            ++i;
        }
    }
    return lasting;
}

/** The size of desktops, and the family that all machines have on which tests run. */
bool UseDesktopFont()
{
    QFont font(QLatin1String("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    return QFontInfo(font).family() == font.family();
}

class OutlineWriter : public QObject
{
    Q_OBJECT

public:
    OutlineWriter(const QWidget *window, const QDir &directory)
        : m_window(window), m_directory(directory), m_areAllWritten(true)
    {
    }

    bool AreAllWritten() const { return m_areAllWritten; }

public slots:
    void Write(const QString &name)
    {
        const QWidget *dialog = QApplication::activeModalWidget();
        const QByteArray outline = Lasting(Outline(dialog ? dialog : m_window)).toUtf8();
        QFile file(m_directory.filePath(name + QLatin1String(".txt")));
        m_areAllWritten =
            file.open(QIODevice::WriteOnly) && file.write(outline) == outline.size() && m_areAllWritten;
    }

private:
    const QWidget *const m_window;
    const QDir m_directory;
    bool m_areAllWritten;
};

} // namespace

/** Takes the tour in a language, and writes an outline of each of its pictures. */
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: outlinetour TOUR-DIRECTORY OUTLINE-DIRECTORY LANGUAGE\n");
        return 2;
    }
    TourDirectory tourDirectory(QFile::decodeName(argv[1]));
    const QDir directory(QFile::decodeName(argv[2]));
    if (!tourDirectory.Prepare().isNull() || !directory.mkpath(QLatin1String("."))) {
        std::fprintf(stderr, "the directories can't be made\n");
        return 2;
    }
    qputenv("XDG_DATA_HOME", QFile::encodeName(tourDirectory.DataPath()));
    TraceLog log(UserData::FilePath(QLatin1String("dashboard.log")));
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QLatin1String("priority-dashboard"));
    HostControl::SetPluginLibraryPath(QLatin1String(BUILD_DIRECTORY));
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    HostControl::ApplyLook();
    Appearance::Apply(Appearance::System);
    if (!UseDesktopFont()) {
        std::fprintf(stderr, "the font DejaVu Sans is missing; install fonts-dejavu-core\n");
        return 2;
    }
    if (!DashboardLanguage::Apply(QLatin1String(argv[3]))) {
        std::fprintf(stderr, "there is no language %s\n", argv[3]);
        return 2;
    }
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY), PluginHost::KnownPlugins(WlanStored));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    OutlineWriter writer(&window, directory);
    Tour tour(&window, tourDirectory);
    QObject::connect(&tour, SIGNAL(PictureTaken(QString)), &writer, SLOT(Write(QString)));
    tour.Start();
    const int status = QApplication::exec();
    return status == 0 && !writer.AreAllWritten() ? 1 : status;
}

#include "outlinetour.moc"
