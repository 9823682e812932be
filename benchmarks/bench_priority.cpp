#include "BareToolkit.h"
#include "BenchmarkHost.h"
#include "Comparison.h"
#include "PaintWatch.h"
#include "Report.h"
#include "Stopwatch.h"

#include <FunctonTrick.h>
#include <HostControl.h>
#include <TemporaryDirectory.h>

#include <QDialog>
#include <QDir>
#include <QPushButton>
#include <QtTest>

#include <malloc.h>

namespace
{

const double closeToBare = 1.15;
// Here the looks at the directory and at the old content, and the trace, have their share.
const double closeToBareShortSave = 1.3;
const int shortList = 10;
const double listTarget = 4;
const double dialogTarget = 1.5;
const double growthTarget = 13;
const int memoryRows = 2000;

const char reading[] = "read the file";
const char saving[] = "save the file";
const char rebuilding[] = "rebuild the page";
const char movingDown[] = "Down key to painted page";
const char addingOnTop[] = "entry added on top, to painted page";
const char besideIconPerItem[] = "rebuild the page; baseline: list of items, an icon read for each";
const char besideSharedIcon[] = "rebuild the page; baseline: list of items, one icon for all";
const char openingDialog[] = "open the add dialog, to painted";

qint64 traceLines = 0;

void CountAndDiscard(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++traceLines;
}

/** One name in ten is too long to be shown in full. */
QString NetworkName(int i)
{
    return i % 10 == 9 ? QString::fromLatin1("The network of the upper floor of house %1").arg(i)
                       : QString::fromLatin1("Network %1").arg(i);
}

QList<PriorityList> Entries(int count, int step)
{
    QList<PriorityList> entries;
    for (int i = step - 1; i < count; i += step) {
        PriorityList entry;
        entry.name = NetworkName(i);
        entry.type = QLatin1String("1");
        entries.append(entry);
    }
    return entries;
}

QStringList Names(const QList<PriorityList> &entries)
{
    QStringList names;
    for (int i = 0; i < entries.size(); ++i) {
        names.append(entries.at(i).name);
    }
    return names;
}

int RoundsFor(int count)
{
    return count >= 10000 ? 3 : count >= 1000 ? 7 : count >= 100 ? 15 : 41;
}

/** So many of a short work that the clock's own time doesn't show. */
int RunsFor(int count)
{
    return qMax(1, 2000 / count);
}

qint64 BytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

} // namespace

class bench_Priority : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void read_data() { Counts(); }
    void read();
    void save_data() { Counts(); }
    void save();
    void rebuild_data() { Counts(); }
    void rebuild();
    void rebuildBesideList_data() { Counts(); }
    void rebuildBesideList();
    void downKey_data() { CountsAnd200(); }
    void downKey();
    void addTop_data() { Counts(); }
    void addTop();
    void addDialog_data() { Counts(); }
    void addDialog();
    void growth_data();
    void growth();
    void priceOfTheTrace();
    void memory();

private:
    void Counts();
    void CountsAnd200();
    void ShowPageWith(const QList<PriorityList> &entries);
    void Measure(const char *operation, int count, double target, const Work &product, const Work &baseline,
                 int runs);
    void MeasureMemory(const QString &what, const std::function<void()> &build);

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<BenchmarkHost> m_host;
    QScopedPointer<QWidget> m_bareWindow;
    BareTable *m_bareTable;
    BareList *m_bareList;
    QString m_priorityFile;
    QString m_bareFile;
    QPixmap m_icon;
    QString m_iconPath;
    Report m_report;
};

void bench_Priority::initTestCase()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory->Path()));
    QVERIFY(QDir().mkpath(m_directory->FilePath(QLatin1String("priority-dashboard"))));
    m_priorityFile = m_directory->FilePath(QLatin1String("priority-dashboard/Priority.xml"));
    m_bareFile = m_directory->FilePath(QLatin1String("priority-dashboard/Bare.xml"));

    qInstallMessageHandler(CountAndDiscard);
    const QString build = QLatin1String(BUILD_DIRECTORY);
    HostControl::SetPluginLibraryPath(build);
    HostControl::SetLanguageDirectory(build + QLatin1String("/share/priority-dashboard/languages"));
    QVERIFY(HostControl::SetLanguage(QLatin1String("en")));
    m_host.reset(new BenchmarkHost(build));
    m_iconPath = build + QLatin1String("/plugins/PriorityPlugin/wifi.png");
    QVERIFY(m_icon.load(m_iconPath));

    ShowPageWith(Entries(10, 1));
    m_bareWindow.reset(new QWidget);
    m_bareWindow->resize(m_host->Window()->size());
    m_bareTable = new BareTable(m_bareWindow.data());
    m_bareTable->resize(m_host->Table()->size());
    m_bareList = new BareList(m_bareWindow.data());
    m_bareList->resize(m_host->Table()->size());
    m_bareList->hide();
    m_bareWindow->show();
}

void bench_Priority::cleanupTestCase()
{
    m_report.Print();
    m_host.reset();
    m_bareWindow.reset();
    qInstallMessageHandler(nullptr);
    m_directory.reset();
}

void bench_Priority::Counts()
{
    QTest::addColumn<int>("count");
    QTest::newRow("10") << 10;
    QTest::newRow("100") << 100;
    QTest::newRow("1000") << 1000;
    QTest::newRow("10000") << 10000;
}

void bench_Priority::CountsAnd200()
{
    Counts();
    QTest::newRow("200") << 200;
}

void bench_Priority::ShowPageWith(const QList<PriorityList> &entries)
{
    BareWrite(m_priorityFile, entries);
    BareWrite(m_bareFile, entries);
    m_host->ShowPage();
    PaintWatch(m_host->Table()->viewport()).Await();
}

void bench_Priority::Measure(const char *operation, int count, double target, const Work &product,
                             const Work &baseline, int runs)
{
    const Compared compared = Compare(product, baseline, RoundsFor(count), runs);
    m_report.Add(QLatin1String(operation), count, compared, target);
    QVERIFY2(target == 0 || compared.ratio <= target,
             qPrintable(QString::fromLatin1("ratio %1").arg(compared.ratio, 0, 'f', 3)));
}

void bench_Priority::read()
{
    QFETCH(int, count);
    BareWrite(m_priorityFile, Entries(count, 1));
    IPriorityPlugin *const priority = m_host->Priority();
    Work product;
    product.run = [priority] {
        QList<PriorityList> list;
        priority->GetPriorityList(&list);
    };
    Work bare;
    bare.run = [this] {
        QList<PriorityList> list;
        BareRead(m_priorityFile, &list);
    };
    Measure(reading, count, closeToBare, product, bare, RunsFor(count));
}

void bench_Priority::save()
{
    QFETCH(int, count);
    const QList<PriorityList> entries = Entries(count, 1);
    ShowPageWith(entries);
    m_host->HidePage();
    ISettingUIPlugin *const setting = m_host->Setting();
    Work product;
    product.run = [setting] {
        setting->OnClickSettingOkButton();
    };
    Work bare;
    bare.run = [this, &entries] {
        BareWrite(m_bareFile, entries);
    };
    Measure(saving, count, count <= shortList ? closeToBareShortSave : closeToBare, product, bare,
            RunsFor(count));
}

void bench_Priority::rebuild()
{
    QFETCH(int, count);
    const QList<PriorityList> entries = Entries(count, 1);
    const QStringList names = Names(entries);
    ShowPageWith(entries);
    PaintWatch pageWatch(m_host->Table()->viewport());
    PaintWatch bareWatch(m_bareTable->viewport());
    Work product;
    product.run = [&] {
        QMetaObject::invokeMethod(m_host->Page(), "UpdataPriorityList");
        pageWatch.Await();
    };
    Work bare;
    bare.run = [&] {
        m_bareTable->Rebuild(m_icon, names);
        bareWatch.Await();
    };
    Measure(rebuilding, count, closeToBare, product, bare, 1);
}

void bench_Priority::rebuildBesideList()
{
    QFETCH(int, count);
    const QList<PriorityList> entries = Entries(count, 1);
    const QStringList names = Names(entries);
    ShowPageWith(entries);
    m_bareTable->hide();
    m_bareList->show();
    PaintWatch pageWatch(m_host->Table()->viewport());
    PaintWatch listWatch(m_bareList->viewport());
    Work product;
    product.run = [&] {
        QMetaObject::invokeMethod(m_host->Page(), "UpdataPriorityList");
        pageWatch.Await();
    };
    Work iconPerItem;
    iconPerItem.run = [&] {
        m_bareList->Rebuild(m_iconPath, names);
        listWatch.Await();
    };
    Work sharedIcon;
    sharedIcon.run = [&] {
        m_bareList->RebuildWithOneIcon(QIcon(m_icon), names);
        listWatch.Await();
    };
    Measure(besideSharedIcon, count, 0, product, sharedIcon, 1);
    Measure(besideIconPerItem, count, listTarget, product, iconPerItem, 1);
    m_bareList->hide();
    m_bareTable->show();
}

void bench_Priority::downKey()
{
    QFETCH(int, count);
    const QList<PriorityList> entries = Entries(count, 1);
    const QStringList names = Names(entries);
    ShowPageWith(entries);
    PaintWatch pageWatch(m_host->Table()->viewport());
    PaintWatch bareWatch(m_bareTable->viewport());
    QMetaObject::invokeMethod(m_host->Page(), "OnCellClicked", Q_ARG(int, count / 2), Q_ARG(int, 0));
    const std::function<void(Qt::Key)> press = [&](Qt::Key key) {
        QTest::keyPress(m_host->Table(), key);
        pageWatch.Await();
    };
    Work product;
    product.prepare = [&] {
        press(Qt::Key_Up);
    };
    product.run = [&] {
        press(Qt::Key_Down);
    };
    Work bare;
    bare.run = [&] {
        QList<PriorityList> list;
        BareRead(m_bareFile, &list);
        BareWrite(m_bareFile, list);
        m_bareTable->Rebuild(m_icon, names);
        bareWatch.Await();
    };
    Measure(movingDown, count, closeToBare, product, bare, 1);
    QList<PriorityList> kept;
    BareRead(m_priorityFile, &kept);
    QCOMPARE(kept.size(), count);
}

void bench_Priority::addTop()
{
    QFETCH(int, count);
    QList<PriorityList> entries = Entries(count, 1);
    const QStringList names = Names(entries);
    ShowPageWith(entries);
    PaintWatch pageWatch(m_host->Table()->viewport());
    PaintWatch bareWatch(m_bareTable->viewport());
    Work product;
    product.run = [&] {
        m_host->Priority()->AddTopPriority(entries.last());
        pageWatch.Await();
        entries.prepend(entries.takeLast());
    };
    Work bare;
    bare.run = [&] {
        QList<PriorityList> list;
        BareRead(m_bareFile, &list);
        BareWrite(m_bareFile, list);
        list.clear();
        BareRead(m_bareFile, &list);
        m_bareTable->Rebuild(m_icon, names);
        bareWatch.Await();
    };
    Measure(addingOnTop, count, closeToBare, product, bare, 1);
    QList<PriorityList> kept;
    BareRead(m_priorityFile, &kept);
    QCOMPARE(Names(kept), Names(entries));
}

void bench_Priority::addDialog()
{
    QFETCH(int, count);
    ShowPageWith(Entries(count, 2));
    m_host->wlan.remembered.clear();
    QStringList shown;
    for (int i = 0; i < count; ++i) {
        RememberedList network;
        network.name = NetworkName(i);
        network.type = QLatin1String("1");
        m_host->wlan.remembered.append(network);
        if (i % 2 == 0) {
            shown.append(network.name);
        }
    }
    QPushButton *addButton = m_host->Page()->findChild<QPushButton *>(QLatin1String("addButton"));
    QScopedPointer<BareDialog> bareDialog;
    const std::function<void()> closeBoth = [&] {
        delete m_host->Page()->findChild<QDialog *>(QLatin1String("addDialog"));
        bareDialog.reset();
        QCoreApplication::processEvents();
    };
    Work product;
    product.prepare = closeBoth;
    product.run = [&] {
        addButton->click();
        PaintWatch(m_host->Page()->findChild<QTableWidget *>(QLatin1String("rememberTable"))->viewport())
            .Await();
    };
    Work bare;
    bare.prepare = closeBoth;
    bare.run = [&] {
        bareDialog.reset(new BareDialog(m_host->Window(), m_icon, shown));
        bareDialog->setModal(true);
        bareDialog->setFixedSize(306, 341);
        bareDialog->show();
        PaintWatch(bareDialog->Table()->viewport()).Await();
    };
    product.run();
    QCOMPARE(m_host->Page()->findChild<QTableWidget *>(QLatin1String("rememberTable"))->rowCount(),
             count / 2);
    Measure(openingDialog, count, dialogTarget, product, bare, 1);
    closeBoth();
}

void bench_Priority::growth_data()
{
    QTest::addColumn<QString>("operation");
    const char *const operations[] = {reading, saving, rebuilding, movingDown, addingOnTop, openingDialog};
    for (const char *operation : operations) {
        QTest::newRow(operation) << QString::fromLatin1(operation);
    }
}

void bench_Priority::growth()
{
    QFETCH(QString, operation);
    const double growth = m_report.Growth(operation, 1000, 10000);
    if (growth == 0) {
        QSKIP("1,000 and 10,000 entries have to be measured first");
    }
    m_report.AddFact(QLatin1String("growth from 1,000 to 10,000 entries, at most 13: ") + operation,
                     QString::number(growth, 'f', 1));
    QVERIFY2(growth <= growthTarget, qPrintable(QString::number(growth)));
}

void bench_Priority::priceOfTheTrace()
{
    const int calls = 20000;
    QVector<double> times;
    for (int round = 0; round < 11; ++round) {
        const Stopwatch stopwatch;
        for (int i = 0; i < calls; ++i) {
            const CFunctonTrick trick(QLatin1String("../../src/PriorityPlugin/PriorityListItem.cpp"),
                                      QLatin1String("UpdateLabelContents"), ",strIcon:%s,strName:%s",
                                      "/usr/lib/priority-dashboard/plugins/PriorityPlugin/wifi.png",
                                      "Network 17");
        }
        times.append(stopwatch.Elapsed() / (2 * calls));
    }
    const double line = Median(times);
    m_report.AddFact(QLatin1String("one trace line, ns"), QString::number(line * 1e9, 'f', 0));

    const int count = 1000;
    const QList<PriorityList> entries = Entries(count, 1);
    ShowPageWith(entries);
    const std::function<void(const char *, const std::function<void()> &)> tell =
        [&](const char *operation, const std::function<void()> &run) {
            const qint64 before = traceLines;
            run();
            const qint64 lines = traceLines - before;
            m_report.AddFact(
                QString::fromLatin1("trace of \"%1\", 1,000 entries: lines; us")
                    .arg(QLatin1String(operation)),
                QString::fromLatin1("%1; %2").arg(lines).arg(double(lines) * line * 1e6, 0, 'f', 1));
        };
    PaintWatch pageWatch(m_host->Table()->viewport());
    IPriorityPlugin *const priority = m_host->Priority();
    tell(reading, [&] {
        QList<PriorityList> list;
        priority->GetPriorityList(&list);
    });
    tell(rebuilding, [&] { QMetaObject::invokeMethod(m_host->Page(), "UpdataPriorityList"); });
    QMetaObject::invokeMethod(m_host->Page(), "OnCellClicked", Q_ARG(int, count / 2), Q_ARG(int, 0));
    tell(movingDown, [&] { QTest::keyPress(m_host->Table(), Qt::Key_Down); });
    tell(addingOnTop, [&] { priority->AddTopPriority(entries.last()); });
    ISettingUIPlugin *const setting = m_host->Setting();
    tell(saving, [&] { setting->OnClickSettingOkButton(); });
}

void bench_Priority::MeasureMemory(const QString &what, const std::function<void()> &build)
{
    const qint64 before = BytesInUse();
    build();
    const qint64 perRow = (BytesInUse() - before) / memoryRows;
    m_report.AddFact(QLatin1String("memory of a row, bytes: ") + what, QString::number(perRow));
}

void bench_Priority::memory()
{
    const QList<PriorityList> entries = Entries(memoryRows, 1);
    const QStringList names = Names(entries);
    ShowPageWith(QList<PriorityList>());
    PaintWatch pageWatch(m_host->Table()->viewport());
    PaintWatch bareWatch(m_bareTable->viewport());
    m_bareTable->Rebuild(m_icon, QStringList());
    bareWatch.Await();
    BareWrite(m_priorityFile, entries);
    MeasureMemory(QLatin1String("the page, its list included"), [&] {
        QMetaObject::invokeMethod(m_host->Page(), "UpdataPriorityList");
        pageWatch.Await();
    });
    MeasureMemory(QLatin1String("the bare table"), [&] {
        m_bareTable->Rebuild(m_icon, names);
        bareWatch.Await();
    });
}

QTEST_MAIN(bench_Priority)
#include "bench_priority.moc"
