#include "DashboardProcess.h"

#include <Row.h>
#include <TemporaryDirectory.h>
#include <TextPattern.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QtTest>

#include <csignal>

namespace
{

Outcome RunTour(const QStringList &arguments, const QStringList &environment)
{
    return RunProgram(BUILD_DIRECTORY "/bin/priority-dashboard-tour", arguments, environment);
}

QString LastLine(const QString &text)
{
    return text.trimmed().section('\n', -1);
}

/** What the tour printed of the step with a picture of that name. */
QString StepOf(const QString &out, const QString &name, const QString &directory)
{
    const QStringList pictures = QDir(directory).entryList(QStringList("[0-9][0-9]-" + name + ".png"));
    const QString number = pictures.value(0).left(2);
    const int begin = out.indexOf(QString("step %1: ").arg(number.toInt()));
    const int next = out.indexOf(QString("step %1: ").arg(number.toInt() + 1), begin);
    const int end = next < 0 ? out.indexOf("tour: ", begin) : next;
    return begin < 0 ? QString() : out.mid(begin, end - begin);
}

} // namespace

/** The tour, as it is started from a terminal. */
class TourTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void WhatCannotBeFollowedIsSaidInOneLine_data();
    void WhatCannotBeFollowedIsSaidInOneLine();
    void TourSucceeds();
    void TourSucceedsAtAnyScale_data();
    void TourSucceedsAtAnyScale();
    void TourShowsConnectingAddingAndCreating();
    void TourUndoesExportsAndImports();
    void TourTellsNoKeys();
    void TourSucceedsFromRightToLeft();
    void TourLeavesTheUsersDataAlone();
    void TourKeepsItsTracesOutOfTheTerminal();
    void TourFailsWhenStepsHaveNoEffect_data();
    void TourFailsWhenStepsHaveNoEffect();
    void TourThatHangsEndsByItself();
    void TourRefusesForeignContent();

private:
    QStringList Environment() const { return QStringList("XDG_DATA_HOME=" + m_directory->FilePath("user")); }
    QString TourPath() const { return m_directory->FilePath("tour"); }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void TourTest::init()
{
    m_directory.reset(new TemporaryDirectory);
}

void TourTest::WhatCannotBeFollowedIsSaidInOneLine_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("told");
    Row("no directory", QStringList(), "name one directory");
    Row("two directories",
        (QStringList() << "/dev/null/a"
                       << "/dev/null/b"),
        "name one directory");
    Row("unknown option", QStringList("--fast"), "fast");
    Row("unknown language",
        (QStringList() << "--language=tlh"
                       << "TOUR"),
        "\"tlh\"; there are: ar, de, en, ");
    Row("library path that is not there",
        (QStringList() << "--library-path=/absent"
                       << "TOUR"),
        "/absent");
    Row("where nothing can be made", QStringList("/dev/null/tour"), "/dev/null/tour");
}

void TourTest::WhatCannotBeFollowedIsSaidInOneLine()
{
    QFETCH(QStringList, given);
    QFETCH(QString, told);
    const Outcome outcome = RunTour(given.replaceInStrings("TOUR", TourPath()), Environment());
    QCOMPARE(outcome.status, 2);
    QVERIFY2(outcome.err.startsWith("priority-dashboard-tour: "), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(told), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count('\n'), 1);
    QCOMPARE(outcome.out, QString());
}

void TourTest::TourSucceeds()
{
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment() << "QT_QPA_PLATFORM=");
    QVERIFY2(outcome.status == 0, qPrintable(outcome.out + outcome.err));
    QVERIFY(!outcome.out.contains("FAILED"));
    const QStringList counts = TextPattern::FindAll(LastLine(outcome.out), "^tour: (\\d+) steps, 0 failed$");
    QVERIFY2(!counts.isEmpty(), qPrintable(outcome.out));
    const int steps = counts.first().toInt();
    QCOMPARE(steps, 41);
    const QDir directory(TourPath());
    for (int i = 1; i <= steps; ++i) {
        const QString number = QString("%1").arg(i, 2, 10, QChar('0'));
        const QStringList pictures = directory.entryList(QStringList(number + "-*.png"));
        QVERIFY2(!pictures.isEmpty(), qPrintable(number));
        QVERIFY(!QImage(directory.filePath(pictures.first())).isNull());
        QVERIFY(outcome.out.contains(QString("step %1: ").arg(i)));
    }
    QVERIFY(outcome.out.contains("\n   1. Home (Wi-Fi)\n"));
}

void TourTest::TourSucceedsAtAnyScale_data()
{
    QTest::addColumn<QString>("scale");
    QTest::addColumn<QSize>("size");
    Row("150 %", "1.5", QSize(1230, 960));
    Row("200 %", "2", QSize(1640, 1280));
}

void TourTest::TourSucceedsAtAnyScale()
{
    QFETCH(QString, scale);
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment() << "QT_SCALE_FACTOR=" + scale);
    QVERIFY2(outcome.status == 0, qPrintable(outcome.out + outcome.err));
    QTEST(QImage(TourPath() + "/01-empty.png").size(), "size");
}

void TourTest::TourShowsConnectingAddingAndCreating()
{
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment());
    QCOMPARE(outcome.status, 0);
    // Added by both the dialog and another plug-in, each network stands in the list once.
    const QString added = StepOf(outcome.out, "add-ok", TourPath());
    QCOMPARE(added.count("Office"), 1);
    QVERIFY2(TextPattern::IsIn(added, "6\\. Office.*\n.*7\\. Old printer.*\n$"), qPrintable(added));
    QVERIFY(StepOf(outcome.out, "add-elsewhere", TourPath()).contains("\n   1. Office"));
    QVERIFY(TextPattern::IsIn(StepOf(outcome.out, "new-ok", TourPath()), "8\\. Summer house.*\n$"));
    QCOMPARE(StepOf(outcome.out, "new-repeated", TourPath()).count("Summer house"), 1);
    QVERIFY(TextPattern::IsIn(StepOf(outcome.out, "connect-ok", TourPath()), "10\\. Neighbour.*\n$"));
}

void TourTest::TourUndoesExportsAndImports()
{
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment());
    QCOMPARE(outcome.status, 0);
    const QString connected("Neighbour");
    QVERIFY(!StepOf(outcome.out, "undo", TourPath()).contains(connected));
    QVERIFY(StepOf(outcome.out, "redo", TourPath()).contains(connected));
    QVERIFY(!StepOf(outcome.out, "restore-ok", TourPath()).contains(connected));
    QVERIFY(StepOf(outcome.out, "import-dialog", TourPath()).contains(connected));
    QVERIFY(!StepOf(outcome.out, "import-ok", TourPath()).contains(connected));
    const QByteArray order = m_directory->Read("tour/data/order.xml");
    QVERIFY(order.contains("Summer house"));
    QVERIFY(!order.contains("sea-and"));
}

void TourTest::TourTellsNoKeys()
{
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment());
    QCOMPARE(outcome.status, 0);
    const QByteArray profiles = m_directory->Read("tour/data/priority-dashboard/WLANProfiles.xml");
    QVERIFY(profiles.contains("sea-and-sand"));
    const QString log = QString::fromUtf8(m_directory->Read("tour/data/priority-dashboard/dashboard.log"));
    QVERIFY(log.contains("GetAvilableNetwork"));
    const QString told = outcome.out + outcome.err + log;
    QVERIFY(!told.contains("sea-and"));
    QVERIFY(!told.contains("correct horse"));
}

void TourTest::TourSucceedsFromRightToLeft()
{
    const Outcome outcome = RunTour(QStringList() << TourPath() << "--language"
                                                  << "he",
                                    Environment());
    QVERIFY2(outcome.status == 0, qPrintable(outcome.out + outcome.err));
}

void TourTest::TourLeavesTheUsersDataAlone()
{
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment());
    QCOMPARE(outcome.status, 0);
    QVERIFY(!QDir(m_directory->FilePath("user")).exists());
    QVERIFY(QFile::exists(TourPath() + "/data/priority-dashboard/Priority.xml"));
}

void TourTest::TourKeepsItsTracesOutOfTheTerminal()
{
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment() << "XDG_RUNTIME_DIR=");
    QCOMPARE(outcome.err, QString());
    QVERIFY(!outcome.out.contains("Entered"));
    const QString log("tour/data/priority-dashboard/dashboard.log");
    QVERIFY(m_directory->Read(log).contains("Entered"));
    QVERIFY(!(QFile::permissions(m_directory->FilePath(log)) & (QFile::ReadGroup | QFile::ReadOther)));
}

void TourTest::TourFailsWhenStepsHaveNoEffect_data()
{
    QTest::addColumn<QString>("libraryPath");
    QTest::addColumn<QString>("told");
    Row("the priority plug-in is missing", BUILD_DIRECTORY "/tests/fixtures",
        "libPriorityPlugin.so was not found");
    Row("the priority plug-in does nothing", BUILD_DIRECTORY "/tests/fixtures/Idle", "");
}

void TourTest::TourFailsWhenStepsHaveNoEffect()
{
    QFETCH(QString, libraryPath);
    QFETCH(QString, told);
    const Outcome outcome =
        RunTour(QStringList() << TourPath() << "--library-path" << libraryPath, Environment());
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.out.contains("FAILED: "));
    QVERIFY2(TextPattern::Fits(LastLine(outcome.out), "tour: \\d+ steps, [1-9]\\d* failed"),
             qPrintable(outcome.out));
    QVERIFY2(outcome.err.contains(told), qPrintable(outcome.err));
}

void TourTest::TourThatHangsEndsByItself()
{
    // The shell tells the number of the process that it then becomes; the alarm is sent in place of the
    // clock's.
    QProcess process;
    process.start("sh", QStringList() << "-c"
                                      << "echo $$; exec \"$0\" \"$1\" --library-path \"$2\""
                                      << BUILD_DIRECTORY "/bin/priority-dashboard-tour" << TourPath()
                                      << BUILD_DIRECTORY "/tests/fixtures/Idle");
    QByteArray out;
    while (!out.contains("step 1") && process.waitForReadyRead()) {
        out += process.readAllStandardOutput();
    }
    const int number = out.left(out.indexOf('\n')).toInt();
    QVERIFY(number > 1);
    QCOMPARE(kill(number, SIGALRM), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 3);
    QVERIFY(process.readAllStandardOutput().contains("gave up"));
}

void TourTest::TourRefusesForeignContent()
{
    QVERIFY(QDir().mkpath(TourPath()));
    m_directory->Write("tour/03-mine.png", "mine");
    const Outcome outcome = RunTour(QStringList() << TourPath(), Environment());
    QCOMPARE(outcome.status, 2);
    QVERIFY(outcome.err.contains("03-mine.png"));
    QCOMPARE(m_directory->Read("tour/03-mine.png"), QByteArray("mine"));
}

QTEST_GUILESS_MAIN(TourTest)
#include "tst_tour.moc"
