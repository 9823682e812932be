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
#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QFileSystemWatcher>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QProcess>
#include <QStringListModel>
#include <QTimer>
#include <QWindow>
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

    bool eventFilter(QObject *viewport, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || m_isPainting || m_isPainted ||
            m_view->model()->index(0, 0).data() != m_name) {
            return false;
        }
        m_isPainting = true;
        QCoreApplication::sendEvent(viewport, event);
        m_isPainting = false;
        m_isPainted = true;
        m_seconds = m_stopwatch.Elapsed();
        return true;
    }
    /** From now on. */
    void Expect(const QString &name)
    {
        m_name = name;
        m_isPainted = false;
        m_stopwatch = Stopwatch();
    }
    double Elapsed() const { return m_stopwatch.Elapsed(); }
    /** The seconds until it was painted; what is to be done then is done at the return. */
    double Await()
    {
        QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
        while (!m_isPainted) {
            dispatcher->processEvents(QEventLoop::WaitForMoreEvents);
        }
        while (dispatcher->processEvents(QEventLoop::AllEvents)) {
        }
        return m_seconds;
    }

private:
    QAbstractItemView *const m_view;
    QString m_name;
    Stopwatch m_stopwatch;
    double m_seconds = 0;
    bool m_isPainting = false;
    bool m_isPainted = false;
};

/** The second row goes to the top. Bare Qt drags in an event loop of its own, so each step is for the next
 * turn of whichever loop runs. */
void Drag(QAbstractItemView *view)
{
    QWidget *rows = view->viewport();
    QWindow *window = view->window()->windowHandle();
    const QRect taken = view->visualRect(view->model()->index(1, 0));
    const auto at = [rows, window, taken](int y) {
        return window->mapFromGlobal(rows->mapToGlobal(QPoint(taken.center().x(), y)));
    };
    QList<std::function<void()>> steps;
    steps.append([=] { QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, at(taken.center().y())); });
    for (int y = taken.center().y(); y > 2; y -= 5) {
        steps.append([=] { QTest::mouseMove(window, at(y)); });
    }
    steps.append([=] { QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, at(2)); });
    for (const std::function<void()> &step : std::as_const(steps)) {
        QTimer::singleShot(0, view, step);
    }
}

/** Shows the window, has its list changed from outside and rows dragged. Prints the seconds of processor time
 * until it was painted, of one change, of one drag until it was painted and until all was done, and the
 * memory. */
int Live(QMainWindow *window, QAbstractItemView *view)
{
    FirstName first(view);
    first.Expect(NameOf(0));
    const double before = double(std::clock()) / CLOCKS_PER_SEC;
    window->show();
    // Of the process, from its beginning.
    const double started = before + first.Await();
    const double memory = Memory();
    const int count = view->model()->rowCount();
    double taken = 0;
    for (int i = 1; i <= changes; ++i) {
        // The last comes to the top.
        const int newFirst = (count - i % count) % count;
        PrivateFile::Replace(ListPath(), OrderFile::Document(Entries(count, newFirst)));
        first.Expect(NameOf(newFirst));
        taken += first.Await();
    }
    double dragged = 0;
    double done = 0;
    for (int i = 0; i < changes; ++i) {
        view->scrollToTop();
        first.Expect(view->model()->index(1, 0).data().toString());
        Drag(view);
        dragged += first.Await();
        done += first.Elapsed();
    }
    std::printf("%s %.6f %.6f %.6f %.6f %.0f\n", figuresOf, started, taken / changes, dragged / changes,
                done / changes, memory);
    return 0;
}

int LiveBare()
{
    QMainWindow window;
    QStringListModel model(NamesInFile());
    QListView view;
    view.setUniformItemSizes(true);
    view.setDragDropMode(QAbstractItemView::InternalMove);
    view.setModel(&model);
    window.setCentralWidget(&view);
    window.resize(820, 640);
    QFileSystemWatcher watcher(QStringList(UserData::Directory()));
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &model,
                     [&model] { model.setStringList(NamesInFile()); });
    return Live(&window, &view);
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
    return Live(&window, list);
}

struct Figures {
    double started = 0;
    double change = 0;
    double drag = 0;
    double done = 0;
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
    if (words.value(0) != figuresOf || words.size() != 6) {
        qFatal("%s did not come to its end", what);
    }
    return {words.at(1).toDouble(), words.at(2).toDouble(), words.at(3).toDouble(), words.at(4).toDouble(),
            words.at(5).toDouble()};
}

bool isMissed = false;

/** The most that each ratio may be: somewhat above what was measured. */
struct Bounds {
    int entries;
    double start;
    double change;
    double drag;
    double done;
    double memory;
};

const Bounds bounds[] = {{10, 1.7, 4, 1, 4, 1.3}, {1000, 2.7, 3, 2.2, 60, 1.4}};

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
    Tell("row dragged to written and told", entries, "ms", 1000, bound.done, &Figures::done, dashboard, bare);
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
