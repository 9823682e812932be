#include "StoredFixture.h"

#include <IConnectionPlugin.h>
#include <IUIPlugin.h>
#include <Row.h>

#include <QScopedPointer>
#include <QSignalSpy>
#include <QtTest>

namespace
{

const int roundMilliseconds = 10;
const int mostRounds = 1000;

const char profiles[] =
    "<wlanprofiles>"
    "<profile type='1' profileName='Office' ssid='OfficeNet' authentication='WPA2PSK' encryption='CCMP' "
    "keyMaterial='12345678'/>"
    "<profile type='1' profileName='Home' ssid='Home' authentication='open' encryption='none'/>"
    "<profile type='1' profileName='Far' ssid='Far' authentication='open' encryption='none'/>"
    "<profile type='2' profileName='Phone'/>"
    "</wlanprofiles>";

QByteArray Networks(const QByteArray &failure = QByteArray())
{
    return "<wlannetworks>"
           "<network name='OfficeNet' signal='80' authentication='WPA2PSK' encryption='CCMP' failure='" +
           failure +
           "'/>"
           "<network name='Home' signal='70' authentication='WPA2PSK' encryption='CCMP'/>"
           "<network name='Guest' signal='60' authentication='open' encryption='none'/>"
           "<network name='Locked' signal='50' authentication='WPA2PSK' encryption='CCMP' failure='" +
           failure +
           "'/>"
           "<network name='Campus' signal='40' authentication='WPA2(EAP)' encryption='CCMP'/>"
           "</wlannetworks>";
}

} // namespace

/** The interface of connections over the two files. */
class StoredConnectionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void NothingIsConnectedAtFirst();
    void ProfilesCanBeUsedOrNot();
    void NetworksHaveTheirProfiles();
    void DamagedFileMakesNothingKnown_data();
    void DamagedFileMakesNothingKnown();
    void ChangedFileIsTold();

    void ProfileIsConnectedInStages();
    void OneAdapterHasOneConnection();
    void WifiCarriesTheTrafficBeforeTheModem();
    void FailureIsTold_data();
    void FailureIsTold();
    void UnheardOfFailureIsNone();
    void ProfileOutOfRangeFails();
    void CancelledOrderEnds();
    void ConnectionIsEnded();
    void OpenNetworkIsJoinedAndRemembered();
    void NetworkIsRememberedWithItsKey();
    void WrongKeyLeavesNoProfile();
    void OrderIsRefused();
    void KnownNetworkIsJoinedByItsProfile();
    void ForgottenProfileIsGoneAlone();
    void ReadOnlyProfileIsNotForgotten();
    void ProfileIsForgottenByAllOfItsId();

private:
    QObject *Service() const;
    IConnectionPlugin *Connections() const { return qobject_cast<IConnectionPlugin *>(Service()); }
    ConnectionState State() const;
    QList<ActiveConnection> Active() const;
    QList<ConnectionProfile> Profiles() const;
    QList<VisibleNetwork> VisibleNetworks() const;
    ConnectAttempt Attempt(int number) const;
    /** Now or soon. */
    bool ComesTo(int number, int stage) const;
    QByteArray ProfilesFile() const { return StoredFixture::Read(m_files->ProfilesPath()); }

    QScopedPointer<StoredFixture> m_files;
};

void StoredConnectionsTest::init()
{
    m_files.reset(new StoredFixture);
    StoredFixture::Write(m_files->ProfilesPath(), profiles);
    StoredFixture::Write(m_files->NetworksPath(), Networks());
}

void StoredConnectionsTest::cleanup()
{
    m_files.reset();
}

QObject *StoredConnectionsTest::Service() const
{
    QObject *service = nullptr;
    if (!StoredFixture::Root()->QueryInterface(4104, &service)) {
        qFatal("the plug-in gives no connections");
    }
    return service;
}

ConnectionState StoredConnectionsTest::State() const
{
    ConnectionState state;
    Connections()->GetConnectionState(&state);
    return state;
}

QList<ActiveConnection> StoredConnectionsTest::Active() const
{
    QList<ActiveConnection> connections;
    Connections()->GetActiveConnections(&connections);
    return connections;
}

QList<ConnectionProfile> StoredConnectionsTest::Profiles() const
{
    QList<ConnectionProfile> list;
    Connections()->GetProfiles(&list);
    return list;
}

QList<VisibleNetwork> StoredConnectionsTest::VisibleNetworks() const
{
    QList<VisibleNetwork> networks;
    Connections()->GetVisibleNetworks(&networks);
    return networks;
}

ConnectAttempt StoredConnectionsTest::Attempt(int number) const
{
    ConnectAttempt attempt;
    Connections()->GetAttempt(number, &attempt);
    return attempt;
}

bool StoredConnectionsTest::ComesTo(int number, int stage) const
{
    for (int i = 0; i < mostRounds && Attempt(number).stage != stage; ++i) {
        QTest::qWait(roundMilliseconds);
    }
    return Attempt(number).stage == stage;
}

void StoredConnectionsTest::NothingIsConnectedAtFirst()
{
    QCOMPARE(State().source, int(ConnectionState::SourceKnown));
    QCOMPARE(State().sourceName, QString("stored"));
    QVERIFY(State().mayConnect);
    QVERIFY(Active().isEmpty());
    QCOMPARE(Attempt(1).stage, int(StageNotKnown));
}

void StoredConnectionsTest::ProfilesCanBeUsedOrNot()
{
    const QList<ConnectionProfile> list = Profiles();
    QCOMPARE(static_cast<int>(list.size()), 4);
    QCOMPARE(list.at(0).name, QString("Office"));
    QCOMPARE(list.at(0).network, QString("OfficeNet"));
    QCOMPARE(list.at(0).use, int(ConnectionProfile::UsePossible));
    QCOMPARE(list.at(0).signal, 80);
    QCOMPARE(list.at(1).use, int(ConnectionProfile::UseOtherSecurity));
    QCOMPARE(list.at(2).use, int(ConnectionProfile::UseOutOfRange));
    QCOMPARE(list.at(2).signal, -1);
    QCOMPARE(list.at(3).type, QString("2"));
    QCOMPARE(list.at(3).use, int(ConnectionProfile::UsePossible));
}

void StoredConnectionsTest::NetworksHaveTheirProfiles()
{
    const QList<VisibleNetwork> networks = VisibleNetworks();
    QCOMPARE(static_cast<int>(networks.size()), 5);
    QCOMPARE(networks.at(0).name, QString("OfficeNet"));
    QCOMPARE(networks.at(0).profileIds, QStringList(Profiles().at(0).id));
    QCOMPARE(networks.at(0).protection, int(VisibleNetwork::ProtectionKey));
    QVERIFY(networks.at(1).profileIds.isEmpty());
    QCOMPARE(networks.at(2).protection, int(VisibleNetwork::ProtectionOpen));
    QCOMPARE(networks.at(4).protection, int(VisibleNetwork::ProtectionAccount));
}

void StoredConnectionsTest::DamagedFileMakesNothingKnown_data()
{
    QTest::addColumn<bool>("isOfProfiles");
    Row("profiles", true);
    Row("networks", false);
}

void StoredConnectionsTest::DamagedFileMakesNothingKnown()
{
    QFETCH(bool, isOfProfiles);
    StoredFixture::Write(isOfProfiles ? m_files->ProfilesPath() : m_files->NetworksPath(), "<wlan");
    QCOMPARE(State().source, int(ConnectionState::SourceNotKnown));
    QVERIFY(Profiles().isEmpty());
    QVERIFY(VisibleNetworks().isEmpty());
    QCOMPARE(Connections()->ConnectProfile("1 Office"), int(IConnectionPlugin::RefusedSource));
}

void StoredConnectionsTest::ChangedFileIsTold()
{
    QSignalSpy told(Service(), SIGNAL(OnConnectionsChanged()));
    // What belongs to the start.
    QTest::qWait(200);
    told.clear();
    StoredFixture::Write(m_files->NetworksPath(), "<wlannetworks/>");
    for (int i = 0; i < mostRounds && told.isEmpty(); ++i) {
        QTest::qWait(roundMilliseconds);
    }
    QVERIFY(!told.isEmpty());
    QVERIFY(VisibleNetworks().isEmpty());
}

void StoredConnectionsTest::ProfileIsConnectedInStages()
{
    QSignalSpy told(Service(), SIGNAL(OnConnectionsChanged()));
    const int attempt = Connections()->ConnectProfile(Profiles().at(0).id);
    QVERIFY(attempt > 0);
    QVERIFY(told.isEmpty());
    const int stages[] = {StagePreparing, StageAuthenticating, StageGettingAddress, StageConnected};
    for (int stage : stages) {
        QVERIFY(ComesTo(attempt, stage));
        QCOMPARE(Active().at(0).stage, stage);
        QCOMPARE(Active().at(0).carriesTraffic, stage == StageConnected);
    }
    QCOMPARE(Active().at(0).name, QString("Office"));
    QCOMPARE(Active().at(0).network, QString("OfficeNet"));
    QCOMPARE(Active().at(0).signal, 80);
    QVERIFY(VisibleNetworks().at(0).isInUse);
    QVERIFY(told.size() >= 3);
}

void StoredConnectionsTest::OneAdapterHasOneConnection()
{
    StoredFixture::Write(m_files->NetworksPath(),
                         "<wlannetworks><network name='Home' signal='9'/><network name='Far' signal='9'/>"
                         "</wlannetworks>");
    const int first = Connections()->ConnectProfile("1 Home");
    const int second = Connections()->ConnectProfile("1 Far");
    QCOMPARE(Attempt(first).stage, int(StageFailed));
    QCOMPARE(Attempt(first).failure, int(FailureStopped));
    QVERIFY(ComesTo(second, StageConnected));
    QCOMPARE(static_cast<int>(Active().size()), 1);
    QCOMPARE(Active().at(0).name, QString("Far"));
}

void StoredConnectionsTest::WifiCarriesTheTrafficBeforeTheModem()
{
    const int phone = Connections()->ConnectProfile("2 Phone");
    QVERIFY(ComesTo(phone, StageConnected));
    QVERIFY(Active().at(0).carriesTraffic);
    const int office = Connections()->ConnectProfile("1 Office");
    QCOMPARE(Active().at(0).name, QString("Phone"));
    QVERIFY(ComesTo(office, StageConnected));
    QCOMPARE(Active().at(0).name, QString("Office"));
    QVERIFY(Active().at(0).carriesTraffic);
    QVERIFY(!Active().at(1).carriesTraffic);
}

void StoredConnectionsTest::FailureIsTold_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("failure");
    Row("key", QByteArray("key"), int(StageAuthenticating), int(FailureWrongKey));
    Row("answer", QByteArray("answer"), int(StagePreparing), int(FailureNoAnswer));
    Row("address", QByteArray("address"), int(StageGettingAddress), int(FailureNoAddress));
    Row("refused", QByteArray("refused"), int(StageAuthenticating), int(FailureRefused));
}

void StoredConnectionsTest::FailureIsTold()
{
    QFETCH(QByteArray, word);
    StoredFixture::Write(m_files->NetworksPath(), Networks(word));
    const int attempt = Connections()->ConnectProfile("1 Office");
    QVERIFY(ComesTo(attempt, StageFailed));
    QTEST(Attempt(attempt).failedStage, "stage");
    QTEST(Attempt(attempt).failure, "failure");
    QTEST(Profiles().at(0).failure, "failure");
    QVERIFY(Active().isEmpty());
}

void StoredConnectionsTest::UnheardOfFailureIsNone()
{
    StoredFixture::Write(m_files->NetworksPath(), Networks("weather"));
    const int attempt = Connections()->ConnectProfile("1 Office");
    QVERIFY(ComesTo(attempt, StageConnected));
}

void StoredConnectionsTest::ProfileOutOfRangeFails()
{
    const int attempt = Connections()->ConnectProfile("1 Far");
    QVERIFY(ComesTo(attempt, StageFailed));
    QCOMPARE(Attempt(attempt).failure, int(FailureNoAnswer));
}

void StoredConnectionsTest::CancelledOrderEnds()
{
    const int attempt = Connections()->ConnectProfile("1 Office");
    Connections()->CancelAttempt(attempt);
    QCOMPARE(Attempt(attempt).stage, int(StageCancelled));
    QVERIFY(Active().isEmpty());
}

void StoredConnectionsTest::ConnectionIsEnded()
{
    const int attempt = Connections()->ConnectProfile("1 Office");
    QVERIFY(ComesTo(attempt, StageConnected));
    const int ending = Connections()->Disconnect(Active().at(0).id);
    QVERIFY(ending > attempt);
    QCOMPARE(Attempt(ending).stage, int(StageDisconnected));
    QCOMPARE(Attempt(attempt).stage, int(StageConnected));
    QVERIFY(Active().isEmpty());
    QCOMPARE(Connections()->Disconnect("1"), int(IConnectionPlugin::RefusedUnknown));
}

void StoredConnectionsTest::OpenNetworkIsJoinedAndRemembered()
{
    const int attempt = Connections()->ConnectNetwork("Guest", QString());
    QVERIFY(!ProfilesFile().contains("Guest"));
    QVERIFY(ComesTo(attempt, StageConnected));
    QCOMPARE(Attempt(attempt).failure, int(FailureNone));
    QVERIFY(ProfilesFile().contains("profileName=\"Guest\""));
    QCOMPARE(Attempt(attempt).profileId, Profiles().last().id);
}

void StoredConnectionsTest::NetworkIsRememberedWithItsKey()
{
    const int attempt = Connections()->ConnectNetwork("Locked", "open sesame");
    QVERIFY(ComesTo(attempt, StageConnected));
    QVERIFY(ProfilesFile().contains("keyMaterial=\"open sesame\""));
}

void StoredConnectionsTest::WrongKeyLeavesNoProfile()
{
    StoredFixture::Write(m_files->NetworksPath(), Networks("key"));
    const QByteArray before = ProfilesFile();
    const int attempt = Connections()->ConnectNetwork("Locked", "open sesame");
    QVERIFY(ComesTo(attempt, StageFailed));
    QCOMPARE(Attempt(attempt).failure, int(FailureWrongKey));
    QCOMPARE(ProfilesFile(), before);
}

void StoredConnectionsTest::OrderIsRefused()
{
    QCOMPARE(Connections()->ConnectProfile("1 nobody"), int(IConnectionPlugin::RefusedUnknown));
    QCOMPARE(Connections()->ConnectNetwork("nobody", QString()), int(IConnectionPlugin::RefusedUnknown));
    QCOMPARE(Connections()->ConnectNetwork("Locked", "short"), int(IConnectionPlugin::RefusedKey));
    QCOMPARE(Connections()->ConnectNetwork("Campus", "12345678"), int(IConnectionPlugin::RefusedAccount));
    QCOMPARE(Connections()->Disconnect("1"), int(IConnectionPlugin::RefusedUnknown));
    QVERIFY(Active().isEmpty());
}

void StoredConnectionsTest::KnownNetworkIsJoinedByItsProfile()
{
    const int attempt = Connections()->ConnectNetwork("OfficeNet", QString());
    QCOMPARE(Attempt(attempt).profileId, QString("1 Office"));
}

void StoredConnectionsTest::ForgottenProfileIsGoneAlone()
{
    const QList<ConnectionProfile> before = Profiles();
    const int connecting = Connections()->ConnectProfile("1 Office");
    const int number = Connections()->Forget("1 Office", QString());
    QCOMPARE(Attempt(number).stage, int(StageForgotten));
    QCOMPARE(Attempt(connecting).stage, int(StageCancelled));
    QVERIFY(Active().isEmpty());
    QCOMPARE(Profiles().size(), before.size() - 1);
    QVERIFY(!ProfilesFile().contains("profileName=\"Office\""));
    QCOMPARE(Connections()->Forget("1 Office", QString()), int(IConnectionPlugin::RefusedUnknown));
}

void StoredConnectionsTest::ReadOnlyProfileIsNotForgotten()
{
    QByteArray readOnly = ProfilesFile();
    StoredFixture::Write(m_files->ProfilesPath(),
                         readOnly.replace("profileName='Office'", "profileName='Office' readOnly='true'"));
    ProfileDetails details;
    Connections()->GetProfileDetails("1 Office", &details);
    QCOMPARE(details.change, int(ProfileDetails::ChangeNotAllowed));
    QCOMPARE(Connections()->Forget("1 Office", QString()), int(IConnectionPlugin::RefusedNotAllowed));
    QCOMPARE(ProfilesFile(), readOnly);
}

void StoredConnectionsTest::ProfileIsForgottenByAllOfItsId()
{
    const QByteArray before = ProfilesFile();
    QCOMPARE(Connections()->Forget("1 Office", "another one"), int(IConnectionPlugin::RefusedUnknown));
    QCOMPARE(ProfilesFile(), before);
}

QTEST_GUILESS_MAIN(StoredConnectionsTest)
#include "tst_storedconnections.moc"
