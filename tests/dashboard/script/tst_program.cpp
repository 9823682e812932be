#include "DashboardProcess.h"

#include <Row.h>
#include <TemporaryDirectory.h>
#include <TextPattern.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QtTest>

#include <csignal>

/** The program itself, as it is started from a terminal. */
class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void HelpAndVersionArePrinted_data();
    void HelpAndVersionArePrinted();
    void WhatCannotBeFollowedIsSaidInOneLine_data();
    void WhatCannotBeFollowedIsSaidInOneLine();
    void BadArgumentCountsBeforeAMissingDisplay();
    void MissingDisplayIsSaidInOneLine();
    void ToolkitThatCannotStartSaysWhy();

private:
    QStringList Environment() const { return QStringList("XDG_DATA_HOME=" + m_directory->FilePath("user")); }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void ProgramTest::init()
{
    m_directory.reset(new TemporaryDirectory);
}

void ProgramTest::HelpAndVersionArePrinted_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("start");
    Row("help", "--help", "Usage: priority-dashboard");
    Row("version", "--version", "priority-dashboard ");
}

void ProgramTest::HelpAndVersionArePrinted()
{
    QFETCH(QString, option);
    QFETCH(QString, start);
    const Outcome outcome = RunDashboard(QStringList(option), Environment() << "QT_QPA_PLATFORM=");
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.startsWith(start));
    QCOMPARE(outcome.err, QString());
}

void ProgramTest::WhatCannotBeFollowedIsSaidInOneLine_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("told");
    Row("unknown option", QStringList("--fast"), "--fast");
    Row("missing value", QStringList("--wlan"), "--wlan");
    Row("unknown source of networks", QStringList("--wlan=wicd"), "\"wicd\"");
    Row("unknown language",
        (QStringList() << "--language"
                       << "tlh"),
        "\"tlh\"; there are: ar, de, en, ");
    Row("library path that is not there",
        (QStringList() << "--library-path"
                       << "/absent/of course"),
        "/absent/of course");
}

void ProgramTest::WhatCannotBeFollowedIsSaidInOneLine()
{
    QFETCH(QStringList, given);
    QFETCH(QString, told);
    const Outcome outcome = RunDashboard(given, Environment() << "XDG_RUNTIME_DIR=");
    QCOMPARE(outcome.status, 2);
    QVERIFY2(outcome.err.startsWith("priority-dashboard: "), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(told), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count('\n'), 1);
    QCOMPARE(outcome.out, QString());
}

void ProgramTest::BadArgumentCountsBeforeAMissingDisplay()
{
    const Outcome outcome = RunDashboard(QStringList("--language=tlh"), Environment() << "QT_QPA_PLATFORM="
                                                                                      << "DISPLAY="
                                                                                      << "WAYLAND_DISPLAY=");
    QCOMPARE(outcome.status, 2);
    QVERIFY2(outcome.err.contains("\"tlh\""), qPrintable(outcome.err));
    QCOMPARE(static_cast<int>(outcome.err.count('\n')), 1);
}

void ProgramTest::MissingDisplayIsSaidInOneLine()
{
    const Outcome outcome = RunDashboard(QStringList(), Environment() << "QT_QPA_PLATFORM="
                                                                      << "DISPLAY="
                                                                      << "WAYLAND_DISPLAY=");
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("no display"));
    QCOMPARE(outcome.err.count('\n'), 1);
}

void ProgramTest::ToolkitThatCannotStartSaysWhy()
{
    if (QString(qVersion()).startsWith("4.")) {
        qWarning("this generation of Qt has no platforms to choose from");
        return;
    }
    const Outcome outcome = RunDashboard(QStringList(), Environment() << "QT_QPA_PLATFORM=nonsense");
    QCOMPARE(outcome.status, -1);
    const QStringList lines = outcome.err.trimmed().split('\n');
    QVERIFY2(lines.size() > 1, qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains("\"nonsense\""), qPrintable(outcome.err));
    for (int i = 0; i < lines.size(); ++i) {
        QVERIFY2(lines.at(i).startsWith("priority-dashboard: "), qPrintable(lines.at(i)));
    }
}

QTEST_GUILESS_MAIN(ProgramTest)
#include "tst_program.moc"
