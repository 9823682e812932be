#include "ChildProcess.h"
#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <DashboardProcess.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QtTest>

#include <csignal>

namespace
{

// As NetworkManager's interface has them.
const unsigned int activated = 2;

} // namespace

/** The program's commands over a fake NetworkManager. */
class tst_networkmanagercommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void StatusTellsWhatNetworkManagerTells();
    void ConnectWaitsUntilItIsUp();
    void CommandsDoNotRuleByTheList();
    void ApplyBringsTheOrderAndTellsIt();
    void ApplyTellsWhatItCannotChange();
    void ApplyWithADamagedListChangesNothing();
    void ReleaseGivesBackWhatWasThereAndEndsTheRule();
    void ChangeOfTheListTakesEffect();
    void AgentKeepsTheOrderUntilItIsEnded_data();
    void AgentKeepsTheOrderUntilItIsEnded();
    void AgentEndsWithItsSession();
    void AgentWaitsForNetworkManager();
    void ProfileThatIsRenamedKeepsItsPlace_data();
    void ProfileThatIsRenamedKeepsItsPlace();
    void SecondAgentIsRefused();
    void AgentThatWasKilledIsFollowedByAnother();
    void OrderWithoutNetworkManagerIsTold_data();
    void OrderWithoutNetworkManagerIsTold();
    void NetworkManagerThatIsNotThereIsTold();

private:
    QStringList Environment() const { return QStringList("XDG_DATA_HOME=" + m_directory->Path()); }
    QString AddProfile(const QString &name, const QByteArray &ssid);
    void StartAgent(QProcess *process) const;
    void SetList(const QByteArray &first, const QByteArray &second) const;

    PrivateBus m_bus;
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<FakeNetworkManager> m_fake;
};

void tst_networkmanagercommands::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
}

void tst_networkmanagercommands::init()
{
    m_directory.reset(new TemporaryDirectory);
    QVERIFY(QDir().mkpath(m_directory->FilePath("priority-dashboard")));
    m_directory->Write("priority-dashboard/Priority.xml",
                       "<zeltdoc><profile><item name=\"Office\" type=\"1\"/><item name=\"Home\" type=\"1\"/>"
                       "<item name=\"Coffee\" type=\"1\"/></profile></zeltdoc>");
    m_fake.reset();
    m_fake.reset(new FakeNetworkManager);
}

QString tst_networkmanagercommands::AddProfile(const QString &name, const QByteArray &ssid)
{
    NMVariantMapMap settings = FakeNetworkManager::Settings(name);
    settings["802-11-wireless"]["ssid"] = ssid;
    return m_fake->AddProfile(settings);
}

void tst_networkmanagercommands::StatusTellsWhatNetworkManagerTells()
{
    const QString device = m_fake->AddDevice();
    m_fake->AddAccessPoint("HomeNet", 90);
    m_fake->AddAccessPoint("CoffeeNet", 40);
    AddProfile("Home", "HomeNet");
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    AddProfile("Office", "OfficeNet");
    QVERIFY(m_fake->Appear());
    const QString connection = m_fake->Connect(coffee, activated, device);
    m_fake->SetManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath(connection)));
    const Outcome outcome = RunDashboard(QStringList("--status"), Environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString("source\tnetworkmanager\nactive\t1\tCoffee\tactivated\n"
                                  "traffic\t1\tCoffee\nchoice\t1\tHome\n"));
    QCOMPARE(outcome.status, 0);
}

void tst_networkmanagercommands::ConnectWaitsUntilItIsUp()
{
    m_fake->AddDevice();
    m_fake->AddAccessPoint("HomeNet", 90);
    AddProfile("Home", "HomeNet");
    QVERIFY(m_fake->Appear());
    QProcess process;
    ChangeEnvironment(&process, Environment());
    process.start(BUILD_DIRECTORY "/bin/priority-dashboard", {"--connect", "Home"});
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->ConnectionPaths().size() == 1, 30000);
    QVERIFY(!process.waitForFinished(500));
    m_fake->SetConnectionState(m_fake->ConnectionPaths().constFirst(), activated);
    const Outcome outcome = OutcomeOf(&process);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
}

/** While the plug-in is loaded it could bring the order of the list to NetworkManager; nobody has asked it
 * to. */
void tst_networkmanagercommands::CommandsDoNotRuleByTheList()
{
    m_fake->AddDevice();
    m_fake->AddAccessPoint("HomeNet", 90);
    const QString home = AddProfile("Home", "HomeNet");
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    m_fake->DoNotAnswer("ActivateConnection");
    QVERIFY(m_fake->Appear());
    const Outcome outcome = RunDashboard({"--wait=2", "--status", "--connect=Home"}, Environment());
    QCOMPARE(outcome.status, 13);
    QVERIFY2(outcome.err.contains("\"Home\" was not connected"), qPrintable(outcome.err));
    QCOMPARE(m_fake->PriorityOf(home), 0);
    QCOMPARE(m_fake->PriorityOf(coffee), 0);
    QVERIFY(!QFile::exists(m_directory->FilePath("priority-dashboard/NetworkManager.ini")));
}

void tst_networkmanagercommands::ApplyBringsTheOrderAndTellsIt()
{
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    const QString home = AddProfile("Home\tsweet", "HomeNet");
    m_directory->Write("priority-dashboard/Priority.xml",
                       "<zeltdoc><profile><item name=\"Home&#9;sweet\" type=\"1\"/>"
                       "<item name=\"Coffee\" type=\"1\"/></profile></zeltdoc>");
    QVERIFY(m_fake->Appear());
    const Outcome outcome = RunDashboard(QStringList("--apply"), Environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString("set\tCoffee\t0\t%1\nset\tHome\\tsweet\t0\t%2\n")
                              .arg(m_fake->PriorityOf(coffee))
                              .arg(m_fake->PriorityOf(home)));
    QVERIFY(m_fake->PriorityOf(home) > m_fake->PriorityOf(coffee));
    const Outcome again = RunDashboard(QStringList("--apply"), Environment());
    QCOMPARE(again.out, QString());
    QCOMPARE(again.status, 0);
}

void tst_networkmanagercommands::ApplyTellsWhatItCannotChange()
{
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    AddProfile("Home", "HomeNet");
    m_fake->SetSetting(coffee, "connection", "autoconnect-priority", 999);
    m_fake->SetSetting(coffee, "connection", "read-only", true);
    QVERIFY(m_fake->Appear());
    const Outcome outcome = RunDashboard(QStringList("--apply"), Environment());
    QCOMPARE(outcome.status, 14);
    QVERIFY2(outcome.out.contains("kept\tCoffee\tyou may not change it\n"), qPrintable(outcome.out));
    QCOMPARE(m_fake->PriorityOf(coffee), 999);
}

void tst_networkmanagercommands::ApplyWithADamagedListChangesNothing()
{
    AddProfile("Home", "HomeNet");
    m_directory->Write("priority-dashboard/Priority.xml", "<zeltdoc><item name='Home' type='1'/><item");
    QVERIFY(m_fake->Appear());
    QCOMPARE(RunDashboard(QStringList("--apply"), Environment()).status, 6);
    QCOMPARE(m_fake->CallCount("Update2"), 0);
}

void tst_networkmanagercommands::ReleaseGivesBackWhatWasThereAndEndsTheRule()
{
    const QString home = AddProfile("Home", "HomeNet");
    m_fake->SetSetting(home, "connection", "autoconnect-priority", -7);
    QVERIFY(m_fake->Appear());
    QCOMPARE(RunDashboard(QStringList("--apply"), Environment()).status, 0);
    const int ruled = m_fake->PriorityOf(home);
    QVERIFY(ruled > 0);
    const Outcome outcome = RunDashboard(QStringList("--release"), Environment());
    QCOMPARE(outcome.out, QString("set\tHome\t%1\t-7\n").arg(ruled));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(m_fake->PriorityOf(home), -7);
    m_fake->ForgetCalls();
    QCOMPARE(RunDashboard(QStringList("--add-top=Home"), Environment()).status, 0);
    QCOMPARE(m_fake->CallCount(), 0);
    QCOMPARE(RunDashboard(QStringList("--apply"), Environment()).status, 0);
    QVERIFY(m_fake->PriorityOf(home) > 0);
}

void tst_networkmanagercommands::ChangeOfTheListTakesEffect()
{
    const QString home = AddProfile("Home", "HomeNet");
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    QVERIFY(m_fake->Appear());
    const Outcome outcome = RunDashboard(QStringList("--add-top=Coffee"), Environment());
    QCOMPARE(outcome.err + outcome.out, QString());
    QCOMPARE(outcome.status, 0);
    QVERIFY(m_fake->PriorityOf(coffee) > m_fake->PriorityOf(home));
    QVERIFY(m_fake->PriorityOf(home) > 0);
    QCOMPARE(RunDashboard({"--wlan=stored", "--add-top=Home"}, Environment()).status, 0);
    QVERIFY(m_fake->PriorityOf(coffee) > m_fake->PriorityOf(home));
}

void tst_networkmanagercommands::StartAgent(QProcess *process) const
{
    ChangeEnvironment(process, Environment());
    process->start(BUILD_DIRECTORY "/bin/priority-dashboard", {"--agent"});
}

void tst_networkmanagercommands::SetList(const QByteArray &first, const QByteArray &second) const
{
    m_directory->Write("priority-dashboard/Priority.xml", "<zeltdoc><profile><item name=\"" + first +
                                                              "\" type=\"1\"/><item name=\"" + second +
                                                              "\" type=\"1\"/></profile></zeltdoc>");
}

void tst_networkmanagercommands::AgentKeepsTheOrderUntilItIsEnded_data()
{
    QTest::addColumn<int>("signal");
    Row("SIGTERM", SIGTERM);
    Row("SIGINT", SIGINT);
    Row("SIGHUP", SIGHUP);
}

void tst_networkmanagercommands::AgentKeepsTheOrderUntilItIsEnded()
{
    QFETCH(int, signal);
    const QString home = AddProfile("Home", "HomeNet");
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    QVERIFY(m_fake->Appear());
    SetList("Home", "Coffee");
    QProcess agent;
    StartAgent(&agent);
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(coffee) > 0, 30000);
    QVERIFY(m_fake->PriorityOf(home) > m_fake->PriorityOf(coffee));
    SetList("Coffee", "Home");
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(coffee) > m_fake->PriorityOf(home), 30000);
    QCOMPARE(kill(static_cast<pid_t>(agent.processId()), signal), 0);
    const Outcome outcome = OutcomeOf(&agent);
    QCOMPARE(outcome.err + outcome.out, QString());
    QCOMPARE(outcome.status, 0);
    QVERIFY(m_fake->PriorityOf(coffee) > m_fake->PriorityOf(home));
}

void tst_networkmanagercommands::AgentEndsWithItsSession()
{
    ChildProcess session;
    const QString log = m_bus.Path("session.log");
    QVERIFY(session.Begin(ChildProcess::Find("dbus-daemon"),
                          {"--session", "--nofork", "--address=unix:path=" + m_bus.Path("session")}, log));
    QTRY_VERIFY(QFile::exists(m_bus.Path("session")));
    QProcess agent;
    ChangeEnvironment(&agent, Environment() << "DBUS_SESSION_BUS_ADDRESS=unix:path=" + m_bus.Path("session"));
    agent.start(BUILD_DIRECTORY "/bin/priority-dashboard", {"--agent"});
    const QString home = AddProfile("Home", "HomeNet");
    QVERIFY(m_fake->Appear());
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(home) > 0, 30000);
    session.Kill();
    const Outcome outcome = OutcomeOf(&agent);
    QCOMPARE(outcome.err + outcome.out, QString());
    QCOMPARE(outcome.status, 0);
}

void tst_networkmanagercommands::AgentWaitsForNetworkManager()
{
    const QString home = AddProfile("Home", "HomeNet");
    QProcess agent;
    StartAgent(&agent);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_directory->FilePath("priority-dashboard/agent.use")), 30000);
    QVERIFY(m_fake->Appear());
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(home) > 0, 30000);
    agent.terminate();
    QCOMPARE(OutcomeOf(&agent).status, 0);
}

void tst_networkmanagercommands::ProfileThatIsRenamedKeepsItsPlace_data()
{
    QTest::addColumn<bool>("isAgentThere");
    Row("while an agent runs", true);
    Row("while nothing runs", false);
}

void tst_networkmanagercommands::ProfileThatIsRenamedKeepsItsPlace()
{
    QFETCH(bool, isAgentThere);
    const QString home = AddProfile("Home", "HomeNet");
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    QVERIFY(m_fake->Appear());
    SetList("Home", "Coffee");
    QCOMPARE(RunDashboard({"--apply"}, Environment()).status, 0);
    QProcess agent;
    if (isAgentThere) {
        StartAgent(&agent);
        QTRY_VERIFY_WITH_TIMEOUT(m_fake->CallCount("GetManagedObjects") > 1, 30000);
    }
    m_fake->SetSetting(home, "connection", "id", QString("Flat"));
    const auto list = [this] {
        return RunDashboard({"--list"}, Environment()).out;
    };
    if (!isAgentThere) {
        QCOMPARE(list(), QString("1\t1\tHome\n2\t1\tCoffee\n"));
        QCOMPARE(RunDashboard({"--apply"}, Environment()).out, QString());
    }
    QTRY_COMPARE_WITH_TIMEOUT(list(), QString("1\t1\tFlat\n2\t1\tCoffee\n"), 30000);
    agent.terminate();
    agent.waitForFinished();
    QVERIFY(m_fake->PriorityOf(home) > m_fake->PriorityOf(coffee));
}

void tst_networkmanagercommands::SecondAgentIsRefused()
{
    const QString home = AddProfile("Home", "HomeNet");
    QVERIFY(m_fake->Appear());
    QProcess agent;
    StartAgent(&agent);
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(home) > 0, 30000);
    const Outcome second = RunDashboard(QStringList("--agent"), Environment());
    QCOMPARE(second.status, 10);
    QCOMPARE(second.err.count('\n'), 1);
    QCOMPARE(agent.state(), QProcess::Running);
    agent.terminate();
    QCOMPARE(OutcomeOf(&agent).status, 0);
}

void tst_networkmanagercommands::AgentThatWasKilledIsFollowedByAnother()
{
    const QString home = AddProfile("Home", "HomeNet");
    const QString coffee = AddProfile("Coffee", "CoffeeNet");
    QVERIFY(m_fake->Appear());
    SetList("Home", "Coffee");
    QProcess killed;
    StartAgent(&killed);
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(coffee) > 0, 30000);
    killed.kill();
    QVERIFY(killed.waitForFinished());
    SetList("Coffee", "Home");
    QProcess agent;
    StartAgent(&agent);
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->PriorityOf(coffee) > m_fake->PriorityOf(home), 30000);
    agent.terminate();
    QCOMPARE(OutcomeOf(&agent).status, 0);
}

void tst_networkmanagercommands::OrderWithoutNetworkManagerIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    Row("apply", QStringList("--apply"));
    Row("release", QStringList("--release"));
    Row("apply, practice networks", QStringList({"--wlan=stored", "--apply"}));
    Row("release, practice networks", QStringList({"--wlan=stored", "--release"}));
    Row("agent of practice networks", QStringList({"--wlan=stored", "--agent"}));
}

void tst_networkmanagercommands::OrderWithoutNetworkManagerIsTold()
{
    QFETCH(QStringList, arguments);
    const Outcome outcome = RunDashboard(arguments, Environment());
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err.count('\n'), 1);
    QCOMPARE(outcome.status, 11);
    // Whether the list rules is as the user has chosen it.
    QVERIFY(!QFile::exists(m_directory->FilePath("priority-dashboard/rules.ini")));
}

void tst_networkmanagercommands::NetworkManagerThatIsNotThereIsTold()
{
    const Outcome outcome = RunDashboard({"--wlan=networkmanager", "--status"}, Environment());
    QCOMPARE(outcome.out, QString("source\tnone\n"));
    QCOMPARE(outcome.status, 11);
    QVERIFY2(outcome.err.count('\n') == 1, qPrintable(outcome.err));
}

QTEST_GUILESS_MAIN(tst_networkmanagercommands)
#include "tst_networkmanagercommands.moc"
