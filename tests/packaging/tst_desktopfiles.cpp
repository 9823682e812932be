#include <Arguments.h>
#include <Row.h>
#include <TextPattern.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

namespace
{

const char desktopFile[] = SOURCE_DIRECTORY "/packaging/com.torvik.netquillforge.PriorityDashboard.desktop";
const char metainfo[] = SOURCE_DIRECTORY "/packaging/com.torvik.netquillforge.PriorityDashboard.metainfo.xml";

QString Content(const char *path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList Languages()
{
    QStringList languages;
    const QStringList files = QDir(SOURCE_DIRECTORY "/host/languages").entryList({"*.ts"});
    for (const QString &file : files) {
        languages.append(file.section('.', 0, 0));
    }
    return languages;
}

} // namespace

/** What desktops and software centres read of the dashboard. */
class DesktopFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void ValidatorsAreContent_data();
    void ValidatorsAreContent();
    void EveryTextIsInEveryLanguage_data();
    void EveryTextIsInEveryLanguage();
    void ProgramFollowsWhatIsStarted();
};

void DesktopFilesTest::ValidatorsAreContent_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    Row("desktop file", "desktop-file-validate", QStringList(desktopFile));
    QStringList validation = {"validate", "--no-net", metainfo};
    QProcess process;
    process.start("appstreamcli", validation);
    // There is no home page to name. Only later releases ask for one, and only they know this tag.
    if (process.waitForFinished() && process.readAll().contains("url-homepage-missing")) {
        validation.insert(1, "--override=url-homepage-missing=info");
    }
    Row("metainfo", "appstreamcli", validation);
}

void DesktopFilesTest::ValidatorsAreContent()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        QSKIP(qPrintable(program + " is not installed"));
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    QVERIFY(process.waitForFinished());
    const QByteArray told = process.readAll();
    QVERIFY2(process.exitCode() == 0 && !told.contains("warning"), told.constData());
}

void DesktopFilesTest::EveryTextIsInEveryLanguage_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("translated");
    for (const char *key : {"Name", "Comment", "Keywords"}) {
        Row(key, Content(desktopFile), QString("\n%1=").arg(key), QString("\n%1[%2]=").arg(key));
    }
    for (const char *tag : {"name", "summary", "p"}) {
        Row(tag, Content(metainfo), QString("<%1>").arg(tag), QString("<%1 xml:lang=\"%2\">").arg(tag));
    }
}

void DesktopFilesTest::EveryTextIsInEveryLanguage()
{
    QFETCH(QString, content);
    QFETCH(QString, plain);
    QFETCH(QString, translated);
    const auto texts = content.count(plain);
    QVERIFY(texts > 0);
    QStringList languages = Languages();
    QVERIFY(languages.removeOne("en"));
    QVERIFY(languages.contains("zh_CN"));
    for (const QString &language : std::as_const(languages)) {
        QVERIFY2(content.count(translated.arg(language)) == texts, qPrintable(language));
    }
}

void DesktopFilesTest::ProgramFollowsWhatIsStarted()
{
    const QStringList commands = TextPattern::FindAll(Content(desktopFile), "\nExec=([^\n]*)");
    QStringList shown;
    for (const QString &command : commands) {
        QStringList words = command.split(' ');
        QCOMPARE(words.takeFirst(), QString("priority-dashboard"));
        const Arguments arguments = Arguments::Parse(words);
        QCOMPARE(arguments.action, Arguments::Run);
        shown.append(arguments.show);
    }
    QCOMPARE(shown, QStringList({"", "connect", "settings"}));
}

QTEST_APPLESS_MAIN(DesktopFilesTest)
#include "tst_desktopfiles.moc"
