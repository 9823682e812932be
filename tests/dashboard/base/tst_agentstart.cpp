#include <AgentStart.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopedPointer>
#include <QStandardPaths>
#include <QSysInfo>
#include <QtTest>

/** The entry that has sessions start the agent, and the life of the agent itself. */
class AgentStartTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void EntryIsThereWhileItIsOn();
    void EntryNamesProgramAndLibraryPath_data();
    void EntryNamesProgramAndLibraryPath();
    void EntryThatStartsNoAgentIsOff_data();
    void EntryThatStartsNoAgentIsOff();
    void FileOfAnotherProgramIsLeftAlone();
    void EntryThatWasDisabledIsTurnedOnAndRestored();
    void EntryThatCannotBeWrittenStaysOff();
    void AgentRunsFromOnToOff();
    void AgentThatHasJustBeenStartedIsEnded();
    void AgentThatRanBeforeGoesOn();
    void AnotherProcessWithTheNumberOfTheAgentIsNotEnded();

private:
    static QString Harmless() { return QStandardPaths::findExecutable("true"); }
    static AgentStart Real() { return {BUILD_DIRECTORY "/bin/priority-dashboard", BUILD_DIRECTORY}; }
    QByteArray Entry() const { return m_directory->Read("autostart/priority-dashboard-agent.desktop"); }
    void SetEntry(const QByteArray &entry) const
    {
        m_directory->Write("autostart/priority-dashboard-agent.desktop", entry);
    }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void AgentStartTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_directory->Path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory->Path()));
    // No real networks are ruled from here.
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
    QVERIFY(QDir().mkpath(m_directory->FilePath("autostart")));
}

void AgentStartTest::EntryIsThereWhileItIsOn()
{
    QVERIFY(QDir().rmdir(m_directory->FilePath("autostart")));
    AgentStart agent(Harmless(), QString());
    QVERIFY(!agent.Now().IsOn());
    QVERIFY(agent.TurnOn());
    QVERIFY(agent.Now().IsOn());
    QCOMPARE(AgentStart::FilePath(), m_directory->FilePath("autostart/priority-dashboard-agent.desktop"));
    QVERIFY(agent.TurnOff());
    QVERIFY(!QFile::exists(AgentStart::FilePath()));
}

void AgentStartTest::EntryNamesProgramAndLibraryPath_data()
{
    QTest::addColumn<QString>("libraryPath");
    QTest::addColumn<QByteArray>("arguments");
    Row("the program's own", QString(), QByteArray(" --agent\n"));
    Row("another", "/opt/my plug-ins", QByteArray(" --agent --library-path \"/opt/my plug-ins\"\n"));
    Row("with signs that mean something", "/a\"b`c$d\\e%f",
        QByteArray(" --agent --library-path \"/a\\\\\"b\\\\`c\\\\$d\\\\\\\\e%%f\"\n"));
}

void AgentStartTest::EntryNamesProgramAndLibraryPath()
{
    QFETCH(QString, libraryPath);
    QFETCH(QByteArray, arguments);
    AgentStart agent(Harmless(), libraryPath);
    QVERIFY(agent.TurnOn());
    QCOMPARE(Entry(), "[Desktop Entry]\nType=Application\nName=Network priority\nExec=\"" +
                          Harmless().toUtf8() + "\"" + arguments);
}

void AgentStartTest::EntryThatStartsNoAgentIsOff_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<bool>("isOn");
    Row("agent", QByteArray("Exec=dashboard --agent\n"), true);
    Row("another program", QByteArray("Exec=dashboard\n"), false);
    Row("hidden", QByteArray("Exec=dashboard --agent\nHidden=true\n"), false);
    Row("disabled", QByteArray("Exec=dashboard --agent\nX-GNOME-Autostart-enabled=false\n"), false);
    Row("in another group", QByteArray("[Desktop Action x]\nExec=dashboard --agent\n"), false);
}

void AgentStartTest::EntryThatStartsNoAgentIsOff()
{
    QFETCH(QByteArray, lines);
    SetEntry("[Desktop Entry]\nType=Application\n" + lines);
    QTEST(AgentStart(Harmless(), QString()).Now().IsOn(), "isOn");
}

void AgentStartTest::FileOfAnotherProgramIsLeftAlone()
{
    SetEntry("[Desktop Entry]\nExec=another\n");
    QVERIFY(!AgentStart(Harmless(), QString()).TurnOn());
    QCOMPARE(Entry(), QByteArray("[Desktop Entry]\nExec=another\n"));
}

void AgentStartTest::EntryThatWasDisabledIsTurnedOnAndRestored()
{
    const QByteArray disabled = "[Desktop Entry]\nExec=nice dashboard --agent\nHidden=true\n";
    SetEntry(disabled);
    AgentStart agent(Harmless(), QString());
    const AgentStart::State before = agent.Now();
    QVERIFY(agent.TurnOn());
    QVERIFY(agent.Now().IsOn());
    QVERIFY(agent.Restore(before));
    QCOMPARE(Entry(), disabled);
}

void AgentStartTest::EntryThatCannotBeWrittenStaysOff()
{
    m_directory->Write("a file", "");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_directory->FilePath("a file")));
    AgentStart agent(Harmless(), QString());
    QVERIFY(!agent.TurnOn());
    QVERIFY(!agent.Now().IsOn());
}

void AgentStartTest::AgentRunsFromOnToOff()
{
    AgentStart agent = Real();
    QVERIFY(!agent.Now().isRunning);
    QVERIFY(agent.TurnOn());
    // Another window sees it, too.
    QTRY_VERIFY(Real().Now().isRunning);
    QVERIFY(Real().TurnOff());
    QVERIFY(!agent.Now().isRunning);
}

void AgentStartTest::AgentThatHasJustBeenStartedIsEnded()
{
    AgentStart agent = Real();
    QVERIFY(agent.TurnOn());
    QVERIFY(agent.TurnOff());
    QTest::qWait(1000);
    QVERIFY(!agent.Now().isRunning);
}

void AgentStartTest::AgentThatRanBeforeGoesOn()
{
    AgentStart agent = Real();
    QVERIFY(agent.TurnOn());
    QTRY_VERIFY(agent.Now().isRunning);
    const AgentStart::State before = agent.Now();
    QVERIFY(agent.TurnOff());
    QVERIFY(agent.Restore(before));
    QTRY_VERIFY(agent.Now().isRunning);
    QVERIFY(agent.TurnOff());
}

void AgentStartTest::AnotherProcessWithTheNumberOfTheAgentIsNotEnded()
{
    QProcess other;
    other.start("sh", {"-c", "read line", "sh", "--agent"});
    QVERIFY(other.waitForStarted());
    const QByteArray lock = QByteArray::number(other.processId()) + "\npriority-dashboard\n" +
                            QSysInfo::machineHostName().toUtf8() + "\n";
    QVERIFY(QDir().mkpath(m_directory->FilePath("priority-dashboard")));
    m_directory->Write("priority-dashboard/agent.use", lock);
    AgentStart agent = Real();
    QVERIFY(!agent.Now().isRunning);
    QVERIFY(agent.TurnOff());
    QVERIFY(!other.waitForFinished(300));
    other.closeWriteChannel();
    QVERIFY(other.waitForFinished());
}

QTEST_GUILESS_MAIN(AgentStartTest)
#include "tst_agentstart.moc"
