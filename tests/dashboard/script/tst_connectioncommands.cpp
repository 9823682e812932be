#include "FakeConnections.h"
#include "Lists.h"

#include <ConnectionCommands.h>
#include <HostControl.h>
#include <Row.h>

#include <QElapsedTimer>
#include <QTimer>
#include <QtTest>

/** What commands order of the Wi-Fi plug-in, and what they make of what it tells. */
class ConnectionCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void SavedNetworkIsConnected_data();
    void SavedNetworkIsConnected();
    void ConnectedNetworkIsLeftAlone();
    void NetworkInRangeIsJoined_data();
    void NetworkInRangeIsJoined();
    void RefusalIsAStatus_data();
    void RefusalIsAStatus();
    void EndOfAnOrderIsAStatus_data();
    void EndOfAnOrderIsAStatus();
    void CommandWaitsForTheEnd();
    void CommandGivesUpWhenTimeIsOver();
    void SourceIsWaitedFor();
    void SourceThatIsGoneIsToldAtOnce_data();
    void SourceThatIsGoneIsToldAtOnce();
    void WhatCarriesTheTrafficIsEnded_data();
    void WhatCarriesTheTrafficIsEnded();

private:
    CommandStatus Run(Command::Kind kind, const QString &entry = QString(), int waitSeconds = 60) const;

    QScopedPointer<FakeConnections> m_fake;
    QScopedPointer<WithConnections> m_container;
};

void ConnectionCommandsTest::init()
{
    m_fake.reset(new FakeConnections);
    m_fake->attempt.stage = StageConnected;
    m_container.reset(new WithConnections(nullptr, m_fake.data()));
    HostControl::SetPluginContainer(m_container.data());
}

void ConnectionCommandsTest::cleanup()
{
    HostControl::SetPluginContainer(nullptr);
}

CommandStatus ConnectionCommandsTest::Run(Command::Kind kind, const QString &entry, int waitSeconds) const
{
    Command command;
    command.kind = kind;
    command.entry = Listed(entry).value(0);
    ListReading list;
    list.status = PriorityRead;
    return ConnectionCommands(false, waitSeconds, QString()).Run(command, list);
}

void ConnectionCommandsTest::SavedNetworkIsConnected_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("ordered");
    QTest::addColumn<int>("status");
    Row("Wi-Fi", "Home", "1Home", int(CommandDone));
    Row("mobile broadband", "Home/2", "2Home", int(CommandDone));
    Row("out of range, as it may be hidden", "Far", "1Far", int(CommandDone));
    Row("another kind", "Home/0", "", int(CommandNothingThere));
    Row("other case", "home", "", int(CommandNothingThere));
}

void ConnectionCommandsTest::SavedNetworkIsConnected()
{
    QFETCH(QString, entry);
    QFETCH(int, status);
    m_fake->told.profiles << SavedProfile("Home") << SavedProfile("Home", ConnectionProfile::UsePossible, "2")
                          << SavedProfile("Home", ConnectionProfile::UsePossible, "0")
                          << SavedProfile("Far", ConnectionProfile::UseOutOfRange);
    QCOMPARE(int(Run(Command::Connect, entry)), status);
    QTEST(m_fake->ordered.join(','), "ordered");
}

void ConnectionCommandsTest::ConnectedNetworkIsLeftAlone()
{
    m_fake->told.profiles << SavedProfile("Home");
    m_fake->told.active << ConnectionOf("Home", StageConnected, true);
    QCOMPARE(int(Run(Command::Connect, "Home")), int(CommandDone));
    QVERIFY(m_fake->ordered.isEmpty());
}

void ConnectionCommandsTest::NetworkInRangeIsJoined_data()
{
    QTest::addColumn<QString>("inRange");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("joined");
    Row("open", "Park 1", "Park", "0/");
    Row("of mobile broadband", "Park 1", "Park/2", "");
    Row("another name", "Park 1", "park", "");
    // It is refused, as no key is known, rather than connected to a stranger's.
    Row("open one that bears the name of one with a key", "Park 1, Park 2", "Park", "1/");
    Row("the same the other way round", "Park 2, Park 1", "Park", "0/");
    Row("one that a profile would join", "Park 2, Park 1 *", "Park", "1/");
}

void ConnectionCommandsTest::NetworkInRangeIsJoined()
{
    QFETCH(QString, inRange);
    QFETCH(QString, entry);
    for (const PriorityList &written : Listed(inRange)) {
        VisibleNetwork network;
        network.id = QString::number(m_fake->told.networks.size());
        network.name = written.name.section(' ', 0, 0);
        network.protection = written.name.section(' ', 1, 1).toInt();
        if (written.name.endsWith('*')) {
            network.profileIds << "of another name";
        }
        m_fake->told.networks.append(network);
    }
    Run(Command::Connect, entry);
    QTEST(m_fake->joined.join(','), "joined");
}

void ConnectionCommandsTest::RefusalIsAStatus_data()
{
    QTest::addColumn<int>("refusal");
    QTest::addColumn<int>("status");
    Row("unknown", int(IConnectionPlugin::RefusedUnknown), int(CommandNothingThere));
    Row("source", int(IConnectionPlugin::RefusedSource), int(CommandNoSource));
    Row("not allowed", int(IConnectionPlugin::RefusedNotAllowed), int(CommandNotConnected));
    Row("key", int(IConnectionPlugin::RefusedKey), int(CommandNothingThere));
    Row("account", int(IConnectionPlugin::RefusedAccount), int(CommandNothingThere));
    Row("of a later version", -99, int(CommandNotConnected));
}

void ConnectionCommandsTest::RefusalIsAStatus()
{
    QFETCH(int, refusal);
    m_fake->told.profiles << SavedProfile("Home");
    m_fake->answer = refusal;
    QTEST(int(Run(Command::Connect, "Home")), "status");
}

void ConnectionCommandsTest::EndOfAnOrderIsAStatus_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("failure");
    QTest::addColumn<int>("status");
    Row("connected", int(StageConnected), int(FailureNone), int(CommandDone));
    Row("connected, not saved", int(StageConnected), int(FailureNotStored), int(CommandDone));
    Row("failed", int(StageFailed), int(FailureWrongKey), int(CommandNotConnected));
    Row("cancelled", int(StageCancelled), int(FailureNone), int(CommandNotConnected));
    Row("not known", int(StageNotKnown), int(FailureNone), int(CommandNotConnected));
}

void ConnectionCommandsTest::EndOfAnOrderIsAStatus()
{
    QFETCH(int, stage);
    QFETCH(int, failure);
    m_fake->told.profiles << SavedProfile("Home");
    m_fake->attempt.stage = stage;
    m_fake->attempt.failure = failure;
    QTEST(int(Run(Command::Connect, "Home")), "status");
}

void ConnectionCommandsTest::CommandWaitsForTheEnd()
{
    m_fake->told.profiles << SavedProfile("Home");
    m_fake->attempt.stage = StagePreparing;
    const int last = StageConnected;
    QTimer steps;
    connect(&steps, &QTimer::timeout, this, [this] {
        ++m_fake->attempt.stage;
        m_fake->Tell();
    });
    steps.start(0);
    QCOMPARE(int(Run(Command::Connect, "Home")), int(CommandDone));
    QCOMPARE(m_fake->attempt.stage, last);
}

void ConnectionCommandsTest::CommandGivesUpWhenTimeIsOver()
{
    m_fake->told.profiles << SavedProfile("Home");
    m_fake->attempt.stage = StageAuthenticating;
    QElapsedTimer time;
    time.start();
    QCOMPARE(int(Run(Command::Connect, "Home", 1)), int(CommandNotConnected));
    QVERIFY(time.elapsed() >= 1000);
}

void ConnectionCommandsTest::SourceIsWaitedFor()
{
    m_fake->told.state.source = ConnectionState::SourceNotKnown;
    QTimer::singleShot(0, this, [this] {
        m_fake->told.state.source = ConnectionState::SourceKnown;
        m_fake->Tell();
    });
    QCOMPARE(int(Run(Command::Status)), int(CommandDone));
}

void ConnectionCommandsTest::SourceThatIsGoneIsToldAtOnce_data()
{
    QTest::addColumn<int>("kind");
    Row("status", int(Command::Status));
    Row("connect", int(Command::Connect));
    Row("disconnect", int(Command::Disconnect));
}

void ConnectionCommandsTest::SourceThatIsGoneIsToldAtOnce()
{
    QFETCH(int, kind);
    m_fake->told.state.source = ConnectionState::SourceGone;
    QCOMPARE(int(Run(static_cast<Command::Kind>(kind), "Home")), int(CommandNoSource));
    HostControl::SetPluginContainer(nullptr);
    QCOMPARE(int(Run(static_cast<Command::Kind>(kind), "Home")), int(CommandNoSource));
}

void ConnectionCommandsTest::WhatCarriesTheTrafficIsEnded_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("carriesTraffic");
    QTest::addColumn<int>("stage");
    QTest::addColumn<QString>("ended");
    QTest::addColumn<int>("status");
    Row("Wi-Fi", "1", true, int(StageDisconnected), "connection 1Home", int(CommandDone));
    Row("mobile broadband", "2", true, int(StageDisconnected), "connection 2Home", int(CommandDone));
    Row("cable", "0", true, int(StageDisconnected), "", int(CommandNothingThere));
    Row("no traffic", "1", false, int(StageDisconnected), "", int(CommandNothingThere));
    Row("fails", "1", true, int(StageFailed), "connection 1Home", int(CommandNotConnected));
}

void ConnectionCommandsTest::WhatCarriesTheTrafficIsEnded()
{
    QFETCH(QString, type);
    QFETCH(bool, carriesTraffic);
    QFETCH(int, stage);
    m_fake->told.active << ConnectionOf("Home", StageConnected, carriesTraffic, type);
    m_fake->attempt.stage = stage;
    QTEST(int(Run(Command::Disconnect)), "status");
    QTEST(m_fake->ended.join(','), "ended");
}

QTEST_GUILESS_MAIN(ConnectionCommandsTest)
#include "tst_connectioncommands.moc"
