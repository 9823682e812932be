#include "DashboardProcess.h"
#include "Lists.h"

#include <OrderFile.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QStandardPaths>
#include <QtTest>

/** What bash offers when the Tab key is pressed in a command line of the dashboard. */
class CompletionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void WordIsCompleted_data();
    void WordIsCompleted();

private:
    TemporaryDirectory m_directory;
};

void CompletionTest::initTestCase()
{
    if (QStandardPaths::findExecutable("bash").isEmpty()) {
        QSKIP("bash is not installed");
    }
    QVERIFY(QDir().mkpath(m_directory.FilePath("priority-dashboard")));
    const QString names =
        QString::fromUtf8("Home, My phone/2, a:b, It's, x\"y, --odd, Café, tab\there, Home/2");
    m_directory.Write("priority-dashboard/Priority.xml", OrderFile::Document(Listed(names)));
    m_directory.Write("a list.xml", QByteArray());
}

void CompletionTest::WordIsCompleted_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("offered");
    const auto add = [](const char *typed, const char *offered) {
        Row(typed, QString::fromUtf8(typed), QString::fromUtf8(offered));
    };
    add("--und", "--undo");
    add("--re", "--remove --redo --release");
    add("--undo --red", "--redo");
    add("--remove ", "Home My\\ phone:2 a:b:1 It\\'s x\\\"y Café $'tab\\there' Home:2");
    add("--remove H", "Home Home:2");
    add("--connect My\\ p", "My\\ phone:2");
    add("--remove 'My p", "My phone:2");
    add("--remove \"It", "It's");
    add("--remove=--", "--odd");
    // bash puts in place what stands behind the last colon or equals sign.
    add("--move a:", "b:1");
    add("--move=a:", "b:1");
    add("--move Home ", "");
    add("--add H", "");
    add("--wlan ", "networkmanager stored");
    add("--wlan=s", "stored");
    add("--show ", "connect settings");
    add("--import a", "a list.xml");
    add("--remove Nothing", "");
}

void CompletionTest::WordIsCompleted()
{
    QFETCH(QString, typed);
    const QString script =
        QString("cd '%1'\n"
                "compopt() { :; }\n"
                ". '%2'\n"
                "COMP_LINE=\"$0 $1\" COMP_POINT=$((${#0} + ${#1} + 1))\n"
                "_priority_dashboard\n"
                "IFS=' '; printf '%s' \"${COMPREPLY[*]}\"\n")
            .arg(m_directory.Path(), SOURCE_DIRECTORY "/packaging/priority-dashboard.bash");
    const Outcome outcome =
        RunProgram("bash", {"-c", script, BUILD_DIRECTORY "/bin/priority-dashboard", typed},
                   {"XDG_DATA_HOME=" + m_directory.Path(), "LC_ALL=C.UTF-8"});
    QCOMPARE(outcome.err, QString());
    QTEST(outcome.out, "offered");
}

QTEST_GUILESS_MAIN(CompletionTest)
#include "tst_completion.moc"
