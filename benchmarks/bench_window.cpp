#include "BareToolkit.h"
#include "Comparison.h"
#include "Stopwatch.h"

#include <Appearance.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <MainWindow.h>
#include <OrderFile.h>
#include <PluginHost.h>
#include <PrivateFile.h>
#include <TemporaryDirectory.h>
#include <TraceLog.h>
#include <UserData.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFile>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QMouseEvent>
#include <QProcess>
#include <QStringListModel>
#include <QtTest>

#include <cstdio>
#include <functional>

/*
 * The dashboard's window beside a QMainWindow with a QListView of the same names, each in a process of its
 * own that tells what it cost.
 */
namespace
{

const int changes = 20;
const char figuresOf[] = "figures";

QString NameOf(int network)
{
    return QString("network-%1").arg(network, 4, 10, QLatin1Char('0'));
}

/** @param first  the number of the first; the others follow, and those before it come last. */
QList<PriorityList> Entries(int count, int first)
{
    QList<PriorityList> entries;
    for (int i = 0; i < count; ++i) {
        PriorityList entry;
        entry.name = NameOf((first + i) % count);
        entry.type = "1";
        entries.append(entry);
    }
    return entries;
}

QString ListPath()
{
    return UserData::FilePath(QLatin1String("Priority.xml"));
}

QStringList NamesInFile()
{
    QList<PriorityList> list;
    BareRead(ListPath(), &list);
    QStringList names;
    for (const PriorityList &entry : std::as_const(list)) {
        names.append(entry.name);
    }
    return names;
}

/** What the process has for itself, in kilobytes: what it shares with others counts in part. */
double Memory()
{
    QFile file(QLatin1String("/proc/self/smaps_rollup"));
    file.open(QIODevice::ReadOnly);
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:")) {
            return line.mid(4).simplified().split(' ').first().toDouble();
        }
    }
    return 0;
}

/** Tells when a view has painted the name that is to be the first. */
class FirstName : public QObject
{
public:
    explicit FirstName(QAbstractItemView *view) : m_view(view) { view->viewport()->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isPainted =
            m_isPainted || (event->type() == QEvent::Paint && m_view->model()->index(0, 0).data() == m_name);
        return false;
    }
    void Await(const QString &name)
    {
        m_name = name;
        m_isPainted = false;
        QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
        while (!m_isPainted) {
            dispatcher->processEvents(QEventLoop::WaitForMoreEvents);
        }
        while (dispatcher->processEvents(QEventLoop::AllEvents)) {
        }
    }

private:
    QAbstractItemView *const m_view;
    QString m_name;
    bool m_isPainted = false;
};

/** The second row goes to the top. */
void Drag(QAbstractItemView *view)
{
    QWidget *rows = view->viewport();
    const QRect taken = view->visualRect(view->model()->index(1, 0));
    QTest::mousePress(rows, Qt::LeftButton, Qt::NoModifier, taken.center());
    for (int y = taken.center().y(); y > 2; y -= 5) {
        const QPointF place(taken.center().x(), y);
        QMouseEvent move(QEvent::MouseMove, place, rows->mapToGlobal(place.toPoint()), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(rows, &move);
    }
    QTest::mouseRelease(rows, Qt::LeftButton, Qt::NoModifier, QPoint(taken.center().x(), 2));
}

/** Shows the window, has its list changed from outside and rows dragged. Prints the seconds of processor time
 * until it was painted, of one change and of one drag, and the memory. */
int Live(QMainWindow *window, QAbstractItemView *view, const std::function<void()> &takeChange,
         const std::function<void()> &takeDrag)
{
    FirstName first(view);
    window->show();
    first.Await(NameOf(0));
    // Of the process, from its beginning.
    const double started = double(std::clock()) / CLOCKS_PER_SEC;
    const double memory = Memory();
    const int count = view->model()->rowCount();
    double taken = 0;
    for (int i = 1; i <= changes; ++i) {
        PrivateFile::Replace(ListPath(), OrderFile::Document(Entries(count, i % count)));
        const Stopwatch stopwatch;
        takeChange();
        first.Await(NameOf(i % count));
        taken += stopwatch.Elapsed();
    }
    double dragged = 0;
    for (int i = 0; i < changes; ++i) {
        const QString name = view->model()->index(1, 0).data().toString();
        view->scrollToTop();
        const Stopwatch stopwatch;
        Drag(view);
        takeDrag();
        first.Await(name);
        dragged += stopwatch.Elapsed();
    }
    std::printf("%s %.6f %.6f %.6f %.0f\n", figuresOf, started, taken / changes, dragged / changes, memory);
    return 0;
}

int LiveBare()
{
    QMainWindow window;
    QStringListModel model(NamesInFile());
    QListView view;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    window.setCentralWidget(&view);
    window.resize(820, 640);
    return Live(
        &window, &view, [&model] { model.setStringList(NamesInFile()); },
        [&model] { model.moveRow(QModelIndex(), 1, QModelIndex(), 0); });
}

int LiveDashboard()
{
    TraceLog log(UserData::FilePath(QLatin1String("dashboard.log")));
    HostControl::SetPluginLibraryPath(QLatin1String(BUILD_DIRECTORY));
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    DashboardLanguage::Apply(QLatin1String("en"));
    Appearance::Apply(Appearance::Stored());
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY), PluginHost::KnownPlugins(WlanNetworkManager));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.FitToScreen();
    QListWidget *list = window.findChild<QListWidget *>(QLatin1String("overviewList"));
    const auto byItself = [] {
    };
    return Live(&window, list, byItself, byItself);
}

struct Figures {
    double started = 0;
    double change = 0;
    double drag = 0;
    double memory = 0;
};

Figures Run(const char *what, const QString &directory, int entries)
{
    PrivateFile::Replace(directory + QLatin1String("/priority-dashboard/Priority.xml"),
                         OrderFile::Document(Entries(entries, 0)));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), QStringList(QLatin1String(what)));
    process.waitForFinished(-1);
    const QList<QByteArray> words = process.readAllStandardOutput().simplified().split(' ');
    if (words.value(0) != figuresOf || words.size() != 5) {
        qFatal("%s did not come to its end", what);
    }
    return {words.at(1).toDouble(), words.at(2).toDouble(), words.at(3).toDouble(), words.at(4).toDouble()};
}

bool isMissed = false;

/** The most that each ratio may be: somewhat above what was measured. */
struct Bounds {
    int entries;
    double start;
    double change;
    double drag;
    double memory;
};

const Bounds bounds[] = {{10, 2.5, 7, 20, 1.6}, {1000, 7, 9, 180, 2.1}};

void Tell(const char *what, int entries, const char *unit, double factor, double most,
          double Figures::*figure, const QVector<Figures> &dashboard, const QVector<Figures> &bare)
{
    QVector<double> ratios;
    QVector<double> product;
    QVector<double> baseline;
    for (int i = 0; i < bare.size(); ++i) {
        product.append(dashboard.at(i).*figure * factor);
        baseline.append(bare.at(i).*figure * factor);
        ratios.append(product.at(i) / baseline.at(i));
    }
    const double ratio = Median(ratios);
    std::printf("| %s | %d | %.1f %s | %.1f %s | %.2f | %.1f |\n", what, entries, Median(product), unit,
                Median(baseline), unit, ratio, most);
    std::fflush(stdout);
    isMissed = isMissed || ratio > most;
}

void Measure(const Bounds &bound)
{
    const int rounds = 11;
    const int entries = bound.entries;
    const TemporaryDirectory directory;
    qputenv("XDG_DATA_HOME", directory.Path().toLocal8Bit());
    UserData::Directory();
    QVector<Figures> dashboard;
    QVector<Figures> bare;
    for (int i = 0; i < rounds; ++i) {
        bare.append(Run("--bare", directory.Path(), entries));
        dashboard.append(Run("--dashboard", directory.Path(), entries));
    }
    Tell("start to painted window", entries, "ms", 1000, bound.start, &Figures::started, dashboard, bare);
    Tell("change from outside to painted", entries, "ms", 1000, bound.change, &Figures::change, dashboard,
         bare);
    Tell("row dragged to painted", entries, "ms", 1000, bound.drag, &Figures::drag, dashboard, bare);
    Tell("memory", entries, "MB", 1.0 / 1024, bound.memory, &Figures::memory, dashboard, bare);
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray what = argc > 1 ? argv[1] : "";
    if (what.isEmpty()) {
        const QCoreApplication application(argc, argv);
        std::printf("| operation | entries | dashboard | bare Qt | ratio | at most |\n");
        std::printf("|---|---:|---:|---:|---:|---:|\n");
        for (const Bounds &bound : bounds) {
            Measure(bound);
        }
        return isMissed ? 1 : 0;
    }
    const QApplication application(argc, argv);
    return what == "--bare" ? LiveBare() : LiveDashboard();
}
