#include "Eventually.h"

#include <HostControl.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <TextPattern.h>
#include <TraceLog.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

namespace
{

class Talker : public QThread
{
protected:
    void run() override
    {
        for (int i = 0; i < 200; ++i) {
            qDebug("line of a thread");
        }
    }
};

QStringList LinesOf(const QByteArray &log)
{
    QStringList lines = QString::fromUtf8(log).split('\n');
    lines.removeLast();
    return lines;
}

} // namespace

class TraceLogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void LineIsWrittenWithTimeAndKind();
    void OnlyTheUserCanReadTheFile();
    void WiderPermissionsAreNarrowed();
    void FileIsAppendedTo();
    void FullFileIsSetAside();
    void LinesAreHandedToListeners();
    void LineBreaksAreIndented();
    void OnlyTheLastLinesAreKept();
    void FileThatCannotBeWrittenIsSaidOnce_data();
    void FileThatCannotBeWrittenIsSaidOnce();
    void LinkIsNotFollowed();
    void LinesOfThreadsAreWhole();
};

void TraceLogTest::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(HostControl::SetLanguage("en"));
}

void TraceLogTest::LineIsWrittenWithTimeAndKind()
{
    const TemporaryDirectory directory;
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("%s", QString::fromUtf8("Café").toLocal8Bit().constData());
    qWarning("careful");
    const QStringList lines = LinesOf(directory.Read("dashboard.log"));
    QCOMPARE(lines.size(), 2);
    const QString time("\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} ");
    QVERIFY2(TextPattern::Fits(lines.at(0), time + QString::fromUtf8("D Café")), qPrintable(lines.at(0)));
    QVERIFY2(TextPattern::Fits(lines.at(1), time + "W careful"), qPrintable(lines.at(1)));
}

void TraceLogTest::OnlyTheUserCanReadTheFile()
{
    const TemporaryDirectory directory;
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("line");
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(QFile::permissions(directory.FilePath("dashboard.log")) & others, QFile::Permissions());
    QVERIFY(QFile::permissions(directory.FilePath("dashboard.log")) & QFile::ReadOwner);
}

void TraceLogTest::WiderPermissionsAreNarrowed()
{
    const TemporaryDirectory directory;
    directory.Write("dashboard.log", "earlier\n");
    QVERIFY(QFile::setPermissions(directory.FilePath("dashboard.log"), QFile::ReadOwner | QFile::WriteOwner |
                                                                           QFile::ReadGroup |
                                                                           QFile::ReadOther));
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("line");
    QVERIFY(
        !(QFile::permissions(directory.FilePath("dashboard.log")) & (QFile::ReadGroup | QFile::ReadOther)));
}

void TraceLogTest::FileIsAppendedTo()
{
    const TemporaryDirectory directory;
    directory.Write("dashboard.log", "earlier\n");
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("later");
    const QByteArray content = directory.Read("dashboard.log");
    QVERIFY(content.startsWith("earlier\n"));
    QVERIFY(content.endsWith("later\n"));
}

void TraceLogTest::FullFileIsSetAside()
{
    const TemporaryDirectory directory;
    const QByteArray full(static_cast<int>(TraceLog::FileLimit), 'x');
    directory.Write("dashboard.log", full);
    directory.Write("dashboard.log.1", "older\n");
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("new");
    QCOMPARE(directory.Read("dashboard.log.1"), full);
    QCOMPARE(LinesOf(directory.Read("dashboard.log")).size(), 1);
    QVERIFY(directory.Read("dashboard.log").endsWith("new\n"));
}

void TraceLogTest::LinesAreHandedToListeners()
{
    const TemporaryDirectory directory;
    TraceLog log(directory.FilePath("dashboard.log"));
    QSignalSpy spy(&log, SIGNAL(LinesAdded(QStringList)));
    qDebug("one");
    qDebug("two");
    QVERIFY(Eventually([&spy]() { return spy.count() == 1; }));
    QCOMPARE(spy.at(0).at(0).toStringList(), QStringList() << "one"
                                                           << "two");
    QCOMPARE(log.Lines(), QStringList() << "one"
                                        << "two");
}

void TraceLogTest::LineBreaksAreIndented()
{
    const TemporaryDirectory directory;
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("a name\n2020-01-01 00:00:00.000 D forged");
    const QStringList lines = LinesOf(directory.Read("dashboard.log"));
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(1), QString("    2020-01-01 00:00:00.000 D forged"));
}

void TraceLogTest::OnlyTheLastLinesAreKept()
{
    const TemporaryDirectory directory;
    const TraceLog log(directory.FilePath("dashboard.log"));
    const int limit = TraceLog::LineLimit;
    for (int i = 0; i < limit + 5; ++i) {
        qDebug("%d", i);
    }
    QCOMPARE(log.Lines().size(), limit);
    QCOMPARE(log.Lines().first(), QString("5"));
}

void TraceLogTest::FileThatCannotBeWrittenIsSaidOnce_data()
{
    QTest::addColumn<QString>("name");
    Row("no directory for it", "absent/dashboard.log");
    Row("a directory in its place", "folder");
}

void TraceLogTest::FileThatCannotBeWrittenIsSaidOnce()
{
    QFETCH(QString, name);
    const TemporaryDirectory directory;
    QVERIFY(QDir().mkpath(directory.FilePath("folder")));
    TraceLog log(directory.FilePath(name));
    QSignalSpy spy(&log, SIGNAL(LinesAdded(QStringList)));
    qDebug("one");
    QVERIFY(Eventually([&spy]() { return spy.count() == 1; }));
    qDebug("two");
    QVERIFY(Eventually([&spy]() { return spy.count() == 2; }));
    const QStringList notices = log.Lines().filter("cannot be written");
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices.first().contains(directory.FilePath(name)));
    QVERIFY(log.Lines().contains("one") && log.Lines().contains("two"));
}

void TraceLogTest::LinkIsNotFollowed()
{
    const TemporaryDirectory directory;
    directory.Write("precious", "mine");
    QVERIFY(QFile::link(directory.FilePath("precious"), directory.FilePath("dashboard.log")));
    const TraceLog log(directory.FilePath("dashboard.log"));
    qDebug("line");
    QCOMPARE(directory.Read("precious"), QByteArray("mine"));
}

void TraceLogTest::LinesOfThreadsAreWhole()
{
    const TemporaryDirectory directory;
    const TraceLog log(directory.FilePath("dashboard.log"));
    Talker talkers[4];
    for (Talker &talker : talkers) {
        talker.start();
    }
    for (Talker &talker : talkers) {
        talker.wait();
    }
    const QStringList lines = LinesOf(directory.Read("dashboard.log"));
    QCOMPARE(lines.size(), 800);
    for (const QString &line : lines) {
        QVERIFY2(TextPattern::Fits(line, "\\S+ \\S+ D line of a thread"), qPrintable(line));
    }
}

QTEST_MAIN(TraceLogTest)
#include "tst_tracelog.moc"
