#include "DashboardProcess.h"

#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/** The commands that tell of connections and change them, given to the program itself over practice networks.
 */
class StatusCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void StatusTellsHowConnectionsStand_data();
    void StatusTellsHowConnectionsStand();
    void ConnectTellsHowItEnded_data();
    void ConnectTellsHowItEnded();
    void ConnectLeavesTheListAlone();
    void StatusOfADamagedListTellsWhatIsKnown();
    void AnswersAreJsonWhenAskedFor_data();
    void AnswersAreJsonWhenAskedFor();
    void DemoTouchesNothingOfTheUsers();
    void OptionThatHasNothingToDoIsRefused_data();
    void OptionThatHasNothingToDoIsRefused();

private:
    Outcome Run(const QString &arguments) const;

    QScopedPointer<TemporaryDirectory> m_directory;
};

/** Office is out of range; Home's key is refused. Profiles are the sample's. */
void StatusCommandTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    QVERIFY(QDir().mkpath(m_directory->FilePath("priority-dashboard")));
    m_directory->Write("priority-dashboard/WLANNetworks.xml",
                       "<wlannetworks>"
                       "<network name=\"Home\" signal=\"90\" authentication=\"WPA2PSK\" encryption=\"CCMP\" "
                       "failure=\"key\"/>"
                       "<network name=\"Café\" signal=\"60\"/>"
                       "<network name=\"Library\" signal=\"40\"/>"
                       "<network name=\"Campus\" signal=\"30\" authentication=\"WPA2(EAP)\" "
                       "encryption=\"CCMP\"/>"
                       "<network name=\"Neighbour\" signal=\"20\" authentication=\"WPA2PSK\" "
                       "encryption=\"CCMP\"/>"
                       "</wlannetworks>");
    m_directory->Write("priority-dashboard/Priority.xml",
                       "<zeltdoc><profile><item name=\"Office\" type=\"1\"/><item name=\"Home\" type=\"1\"/>"
                       "<item name=\"Café\" type=\"1\"/></profile></zeltdoc>");
}

/** Blanks between the arguments. */
Outcome StatusCommandTest::Run(const QString &arguments) const
{
    return RunDashboard(QStringList("--wlan=stored") + arguments.split(' '),
                        QStringList("XDG_DATA_HOME=" + m_directory->Path()));
}

void StatusCommandTest::StatusTellsHowConnectionsStand_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("out");
    Row("nothing connected", "--status", "source\tstored\ntraffic\t-\nchoice\t1\tHome\n");
    Row("connected", "--connect Café --status",
        "source\tstored\nactive\t1\tCafé\tactivated\ntraffic\t1\tCafé\n"
        "choice\t1\tHome\n");
    Row("two connected", "--connect=Mobile\u00a0broadband:mobile --connect Café --status",
        "source\tstored\nactive\t1\tCafé\tactivated\nactive\t2\tMobile broadband\tactivated\n"
        "traffic\t1\tCafé\nchoice\t1\tHome\n");
    Row("disconnected", "--connect Café --disconnect --status",
        "source\tstored\ntraffic\t-\nchoice\t1\tHome\n");
    Row("the list has changed before", "--add-top Café --status",
        "source\tstored\ntraffic\t-\nchoice\t1\tCafé\n");
    Row("and the list is there afterwards", "--status --list",
        "source\tstored\ntraffic\t-\nchoice\t1\tHome\n1\t1\tOffice\n2\t1\tHome\n3\t1\tCafé\n");
}

void StatusCommandTest::StatusTellsHowConnectionsStand()
{
    QFETCH(QString, arguments);
    Outcome outcome;
    outcome = RunDashboard(QStringList("--wlan=stored") +
                               arguments.split(' ').replaceInStrings(QChar(0xa0), QLatin1String(" ")),
                           QStringList("XDG_DATA_HOME=" + m_directory->Path()));
    QCOMPARE(outcome.err, QString());
    QTEST(outcome.out, "out");
    QCOMPARE(outcome.status, 0);
}

void StatusCommandTest::ConnectTellsHowItEnded_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("problem");
    Row("saved", "--connect Café", 0, "");
    Row("open, in range, not saved", "--connect Library", 0, "");
    Row("key refused", "--connect Home:wifi", 13, "\"Home\" was not connected: the key was refused");
    Row("out of range", "--connect Office", 13, "\"Office\" was not connected: it did not answer");
    Row("needs a key", "--connect Neighbour", 12, "\"Neighbour\" needs a key; set it up first");
    Row("needs an account", "--connect Campus", 12, "\"Campus\" needs an account; set it up first");
    Row("nothing of that name", "--connect Nowhere", 12, "nothing called \"Nowhere\" is saved or in range");
    Row("of another type", "--connect Café:mobile", 12, "nothing called \"Café\" is saved or in range");
    Row("nothing to disconnect", "--disconnect", 12, "nothing is connected");
    Row("the first failure is the last command", "--disconnect --status", 12, "nothing is connected");
}

void StatusCommandTest::ConnectTellsHowItEnded()
{
    QFETCH(QString, arguments);
    QFETCH(QString, problem);
    const Outcome outcome = Run(arguments);
    QCOMPARE(outcome.err, problem.isEmpty() ? QString() : "priority-dashboard: " + problem + '\n');
    QTEST(outcome.status, "status");
    QCOMPARE(outcome.out, QString());
}

void StatusCommandTest::ConnectLeavesTheListAlone()
{
    const QByteArray before = m_directory->Read("priority-dashboard/Priority.xml");
    QCOMPARE(Run("--connect Library").status, 0);
    QCOMPARE(m_directory->Read("priority-dashboard/Priority.xml"), before);
    QVERIFY(m_directory->Read("priority-dashboard/WLANProfiles.xml").contains("Library"));
}

void StatusCommandTest::StatusOfADamagedListTellsWhatIsKnown()
{
    m_directory->Write("priority-dashboard/Priority.xml", "<z><item name=\"Café\" type=\"1\"/>\n<item");
    const Outcome outcome = Run("--status");
    QCOMPARE(outcome.out, QString("source\tstored\ntraffic\t-\nchoice\t1\tCafé\n"));
    QVERIFY2(outcome.err.contains("Priority.xml:2"), qPrintable(outcome.err));
    QCOMPARE(outcome.status, 6);
}

void StatusCommandTest::AnswersAreJsonWhenAskedFor_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("json");
    QTest::addColumn<int>("status");
    Row("list", "--list --json", R"({"entries":[{"position":1,"type":"1","name":"Office"},
                                 {"position":2,"type":"1","name":"Home"},
                                 {"position":3,"type":"1","name":"Café"}]})",
        0);
    Row("name that is escaped elsewhere", "--json --add-top=a\\\tb:mobile --list",
        R"({"entries":[{"position":1,"type":"2","name":"a\\\tb"},
                                 {"position":2,"type":"1","name":"Office"},
                                 {"position":3,"type":"1","name":"Home"},
                                 {"position":4,"type":"1","name":"Café"}]})",
        0);
    Row("check", "--json --check", R"({"file":"FILE","state":"readable","entries":3,"repeated":[]})", 0);
    Row("status", "--json --status", R"({"source":"stored","active":[],"traffic":null,
                                   "choice":{"type":"1","name":"Home"}})",
        0);
    Row("status while connected", "--json --connect Café --status", R"({"source":"stored",
                                   "active":[{"type":"1","name":"Café","state":"activated"}],
                                   "traffic":{"type":"1","name":"Café"},
                                   "choice":{"type":"1","name":"Home"}})",
        0);
}

void StatusCommandTest::AnswersAreJsonWhenAskedFor()
{
    QFETCH(QString, arguments);
    QFETCH(QString, json);
    json.replace("FILE", m_directory->FilePath("priority-dashboard/Priority.xml"));
    const Outcome outcome = Run(arguments);
    QCOMPARE(outcome.err, QString());
    QTEST(outcome.status, "status");
    QVERIFY(outcome.out.endsWith('\n') && outcome.out.count('\n') == 1);
    QCOMPARE(QJsonDocument::fromJson(outcome.out.toUtf8()), QJsonDocument::fromJson(json.toUtf8()));
    QVERIFY(!QJsonDocument::fromJson(json.toUtf8()).isNull());
}

void StatusCommandTest::DemoTouchesNothingOfTheUsers()
{
    const QByteArray before = m_directory->Read("priority-dashboard/Priority.xml");
    const Outcome outcome = RunDashboard({"--demo", "--add=Park", "--list", "--status"},
                                         QStringList("XDG_DATA_HOME=" + m_directory->Path()));
    QCOMPARE(outcome.out, QString("1\t1\tPark\nsource\tstored\ntraffic\t-\nchoice\t-\n"));
    QCOMPARE(m_directory->Read("priority-dashboard/Priority.xml"), before);
    QVERIFY(!QFile::exists(m_directory->FilePath("priority-dashboard/WLANProfiles.xml")));
    QVERIFY(!QFile::exists(m_directory->FilePath("priority-dashboard/dashboard.log")));
}

void StatusCommandTest::OptionThatHasNothingToDoIsRefused_data()
{
    QTest::addColumn<QString>("arguments");
    Row("JSON without an answer", "--json --add Park");
    Row("JSON for a window", "--json");
    Row("JSON with a value", "--json=yes --list");
    Row("nothing to wait for", "--wait 5 --list");
    Row("no seconds", "--wait 0 --connect Café");
    Row("no number", "--wait long --connect Café");
    Row("too many seconds", "--wait 86401 --connect Café");
    Row("no name", "--connect");
    Row("disconnect with a name", "--disconnect=Café");
}

void StatusCommandTest::OptionThatHasNothingToDoIsRefused()
{
    QFETCH(QString, arguments);
    const Outcome outcome = Run(arguments);
    QCOMPARE(outcome.status, 2);
    QVERIFY2(outcome.err.startsWith("priority-dashboard: ") && outcome.err.count('\n') == 1,
             qPrintable(outcome.err));
}

QTEST_MAIN(StatusCommandTest)
#include "tst_statuscommand.moc"
