#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <Row.h>

#include <QSignalSpy>
#include <QtTest>

namespace
{

// As NetworkManager's interface has them.
const unsigned int activating = 1;
const unsigned int activated = 2;
const unsigned int deactivated = 4;
const unsigned int preparing = 40;
const unsigned int configuring = 50;
const unsigned int needAuthentication = 60;
const unsigned int gettingAddress = 70;
const unsigned int noSecrets = 7;
const unsigned int supplicantTimeout = 11;
const unsigned int dhcpFailed = 17;
const unsigned int privacy = 0x1;
const unsigned int ccmp = 0x8;
const unsigned int psk = 0x100;
const unsigned int eap = 0x200;

const int longerThanTheFirstSign = 8000;

const char networkControl[] = "org.freedesktop.NetworkManager.network-control";
const char accessPointInterface[] = "org.freedesktop.NetworkManager.AccessPoint";
const char security[] = "802-11-wireless-security";

} // namespace

/** The interface of connections over a fake NetworkManager. */
class tst_networkmanagerconnections : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void PictureIsKnownSoonAfterTheStart();
    void ChangesAreTold_data();
    void ChangesAreTold();
    void NamesOfProfilesAreToldApart();
    void ChangesThatComeTogetherAreToldOnce();
    void WhatSaysNothingIsNotTold();
    void NullOutputsAreLeftAlone();
    void NothingIsKnownOnceItHasGone();
    void NothingOldIsKnownAfterARestart();
    void FrozenIsFoundOutWhileSomebodyWatches();
    void NoCallWaits();
    void DialogsAreAnsweredFromMemory();
    void IdleAsksLittle();
    void NothingIsAskedWhileNobodyWatches();
    void WhoSpeaksIsNotAskedForASign();
    void DevicesLookForNetworksWhenOrdered();
    void ProfileThatIsChangedWhileItIsReadIsReadAgain();
    void ProfileThatIsRemovedWhileItIsReadStaysAway();
    void ProfileThatIsRemovedWhileItIsReadIsNotWaitedFor();
    void LargePictureIsRead();

    void ProfileIsConnected();
    void StagesAreTold();
    void FailureIsTold_data();
    void FailureIsTold();
    void FailureIsForgottenOnceItIsConnected();
    void OrderIsRefused_data();
    void OrderIsRefused();
    void PasswordIsLeftToNetworkManagerToAskFor();
    void ErrorOfTheOrderIsTold_data();
    void ErrorOfTheOrderIsTold();
    void CancelledOrderEnds();
    void OrderCancelledAtOnceEnds();
    void OrderEndsWithNetworkManager();
    void ConnectionThatHasGoneAtOnceHasFailed();
    void OpenNetworkIsJoinedAndRemembered();
    void NetworkIsJoinedWithItsKey();
    void WrongKeyLeavesNoProfile();
    void KeyThatIsNoneIsRefused_data();
    void KeyThatIsNoneIsRefused();
    void KnownNetworkIsJoinedByItsProfile();
    void NewProfileHasANameOfItsOwn();
    void ProfileThatCannotBeStoredIsTold();
    void ConnectionIsEnded();
    void NumbersAreNotUsedAgain();

private:
    QString AddProfile(const QString &name, const QByteArray &ssid, bool hasKey = false);
};

QString tst_networkmanagerconnections::AddProfile(const QString &name, const QByteArray &ssid, bool hasKey)
{
    NMVariantMapMap settings = FakeNetworkManager::Settings(name);
    settings["802-11-wireless"]["ssid"] = ssid;
    if (hasKey) {
        settings[security]["key-mgmt"] = "wpa-psk";
    }
    return Fake().AddProfile(settings);
}

void tst_networkmanagerconnections::PictureIsKnownSoonAfterTheStart()
{
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
    QCOMPARE(LoadedWLAN::State().sourceName, QString("networkmanager"));
    QVERIFY(LoadedWLAN::State().mayConnect);
}

void tst_networkmanagerconnections::ChangesAreTold_data()
{
    QTest::addColumn<QString>("change");
    const char *const changes[] = {"signal",     "network gone", "renamed",      "deleted",
                                   "connecting", "device gone",  "switched off", "right lost"};
    for (const char *change : changes) {
        Row(change, QString(change));
    }
}

void tst_networkmanagerconnections::ChangesAreTold()
{
    QFETCH(QString, change);
    const QString device = Fake().AddDevice();
    const QString point = Fake().AddAccessPoint("net", 40);
    const QString profile = AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::ConnectionProfileNamed("Office").signal, 40);
    QTest::qWait(100);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    if (change == "signal") {
        Fake().SetProperty(point, accessPointInterface, "Strength", QVariant::fromValue(uchar(80)));
        QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Office").signal, 80);
    } else if (change == "network gone") {
        Fake().Remove(point);
        QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Office").use, int(ConnectionProfile::UseOutOfRange));
        QVERIFY(LoadedWLAN::Networks().isEmpty());
    } else if (change == "renamed") {
        Fake().SetSetting(profile, "connection", "id", "Work");
        QCOMPARE(LoadedWLAN::Profiles().value(0).name, QString("Work"));
    } else if (change == "deleted") {
        Fake().Remove(profile);
        QVERIFY(LoadedWLAN::Profiles().isEmpty());
    } else if (change == "connecting") {
        Fake().Connect(profile, activating, device);
        QCOMPARE(LoadedWLAN::Active().value(0).name, QString("Office"));
    } else if (change == "device gone") {
        Fake().Remove(device);
        QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Office").use, int(ConnectionProfile::UseNoDevice));
    } else if (change == "switched off") {
        Fake().SetManagerProperty("WirelessEnabled", false);
        QCOMPARE(LoadedWLAN::State().wifi, int(ConnectionState::RadioOff));
    } else {
        Fake().SetRight(networkControl, "no");
        QVERIFY(!LoadedWLAN::State().mayConnect);
    }
    QTRY_VERIFY(!told.isEmpty());
}

void tst_networkmanagerconnections::NamesOfProfilesAreToldApart()
{
    Fake().AddDevice();
    const QString point = Fake().AddAccessPoint("net", 40);
    const QString profile = AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::ConnectionProfileNamed("Office").signal, 40);
    const QString lastingId = LoadedWLAN::ConnectionProfileNamed("Office").lastingId;
    QTest::qWait(100);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnProfilesChanged()));
    Fake().SetProperty(point, accessPointInterface, "Strength", QVariant::fromValue(uchar(80)));
    QTRY_COMPARE(LoadedWLAN::ConnectionProfileNamed("Office").signal, 80);
    QVERIFY(told.isEmpty());
    Fake().SetSetting(profile, "connection", "id", "Work");
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(!lastingId.isEmpty());
    QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Work").lastingId, lastingId);
}

void tst_networkmanagerconnections::ChangesThatComeTogetherAreToldOnce()
{
    Fake().AddDevice();
    const QString point = Fake().AddAccessPoint("net", 40);
    QTest::qWait(100);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    for (int strength = 50; strength < 60; ++strength) {
        Fake().SetProperty(point, accessPointInterface, "Strength", QVariant::fromValue(uchar(strength)));
    }
    QTest::qWait(300);
    QVERIFY2(told.size() >= 1 && told.size() <= 5, qPrintable(QString::number(told.size())));
    QCOMPARE(LoadedWLAN::NetworkNamed("net").signal, 59);
}

void tst_networkmanagerconnections::WhatSaysNothingIsNotTold()
{
    Fake().AddDevice();
    const QString point = Fake().AddAccessPoint("net", 40);
    QTest::qWait(200);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    Fake().SetProperty(point, accessPointInterface, "LastSeen", 17);
    Fake().SetProperty(point, accessPointInterface, "Strength", QVariant::fromValue(uchar(40)));
    QTest::qWait(200);
    QVERIFY(told.isEmpty());
}

void tst_networkmanagerconnections::NullOutputsAreLeftAlone()
{
    IConnectionPlugin *connections = LoadedWLAN::Connections();
    connections->GetConnectionState(nullptr);
    connections->GetActiveConnections(nullptr);
    connections->GetProfiles(nullptr);
    connections->GetVisibleNetworks(nullptr);
    connections->GetAttempt(1, nullptr);
    connections->CancelAttempt(77);
    QCOMPARE(LoadedWLAN::Attempt(77).stage, int(StageNotKnown));
}

void tst_networkmanagerconnections::NothingIsKnownOnceItHasGone()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    Fake().Connect(AddProfile("Office", "net"), activated);
    QTRY_COMPARE(LoadedWLAN::Active().size(), 1);
    Fake().Vanish();
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    QVERIFY(LoadedWLAN::Active().isEmpty());
    QVERIFY(LoadedWLAN::Profiles().isEmpty());
    QVERIFY(LoadedWLAN::Networks().isEmpty());
}

void tst_networkmanagerconnections::NothingOldIsKnownAfterARestart()
{
    const QString profile = AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 1);
    Fake().Vanish();
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    Fake().Remove(profile);
    AddProfile("Home", "net");
    Fake().Appear();
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
    QCOMPARE(LoadedWLAN::Profiles().size(), 1);
    QCOMPARE(LoadedWLAN::Profiles().value(0).name, QString("Home"));
}

void tst_networkmanagerconnections::FrozenIsFoundOutWhileSomebodyWatches()
{
    AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 1);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    // Whoever else asks has his answer.
    QTest::qWait(1000);
    Fake().DoNotAnswerAnything();
    const int longEnough = 15000;
    QTRY_COMPARE_WITH_TIMEOUT(LoadedWLAN::State().source, int(ConnectionState::SourceNotKnown), longEnough);
    QVERIFY(LoadedWLAN::Profiles().isEmpty());
    QTRY_VERIFY(!told.isEmpty());
}

void tst_networkmanagerconnections::NoCallWaits()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 1);
    const VisibleNetwork network = LoadedWLAN::NetworkNamed("net");
    const ConnectionProfile profile = LoadedWLAN::ConnectionProfileNamed("Office");
    // Nothing is read from the bus any more, so whoever waits for an answer waits until it gives up.
    Bus().Freeze();
    QElapsedTimer timer;
    timer.start();
    LoadedWLAN::State();
    LoadedWLAN::Active();
    LoadedWLAN::Profiles();
    LoadedWLAN::Networks();
    LoadedWLAN::Connections()->LookForNetworks();
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(profile.id);
    LoadedWLAN::Connections()->ConnectNetwork(network.id, QString());
    LoadedWLAN::Connections()->CancelAttempt(attempt);
    const qint64 taken = timer.elapsed();
    Bus().Thaw();
    // An answer that is waited for takes at least two seconds here.
    QVERIFY2(taken < 1000, qPrintable(QString::number(taken)));
}

void tst_networkmanagerconnections::DialogsAreAnsweredFromMemory()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    AddProfile("net", "net");
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("net/1"));
    QTest::qWait(500);
    Bus().Freeze();
    QElapsedTimer timer;
    timer.start();
    const QStringList remembered = LoadedWLAN::Remembered();
    const QStringList inRange = LoadedWLAN::InRange();
    const WLANProfile profile = LoadedWLAN::ProfileNamed("net");
    WLANConfigData config;
    const int configured = LoadedWLAN::Wlan()->GetConfigData(&config);
    WlanAvilableNetworkInfo network;
    network.networkName = "net";
    WLANProfile preset;
    const int filled = LoadedWLAN::Wlan()->GetNetworkProfile(network, &preset);
    const qint64 taken = timer.elapsed();
    Bus().Thaw();
    QVERIFY2(taken < 1000, qPrintable(QString::number(taken)));
    QCOMPARE(remembered, QStringList("net/1"));
    QCOMPARE(inRange, QStringList("net"));
    QCOMPARE(profile.ssid, QString("net"));
    QCOMPARE(configured, 0);
    QCOMPARE(config.authenticationList.size(), 4);
    QCOMPARE(filled, 1);
}

void tst_networkmanagerconnections::IdleAsksLittle()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 1);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    QTest::qWait(500);
    Fake().ForgetCalls();
    QTest::qWait(20000);
    QVERIFY2(Fake().CallCount() <= 5, qPrintable(QString::number(Fake().CallCount())));
    QCOMPARE(Fake().CallCount("RequestScan"), 0);
    QCOMPARE(Fake().CallCount("GetManagedObjects"), 0);
}

void tst_networkmanagerconnections::NothingIsAskedWhileNobodyWatches()
{
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
    {
        QSignalSpy deleted(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
        QTest::qWait(500);
    }
    Fake().ForgetCalls();
    QTest::qWait(longerThanTheFirstSign);
    QCOMPARE(Fake().CallCount(), 0);
}

void tst_networkmanagerconnections::WhoSpeaksIsNotAskedForASign()
{
    Fake().AddDevice();
    const QString point = Fake().AddAccessPoint("net", 40);
    QTRY_COMPARE(LoadedWLAN::Networks().size(), 1);
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    QTest::qWait(500);
    Fake().ForgetCalls();
    for (int strength = 0; strength < longerThanTheFirstSign / 1000; ++strength) {
        Fake().SetProperty(point, accessPointInterface, "Strength",
                           QVariant::fromValue(static_cast<uchar>(strength)));
        QTest::qWait(1000);
    }
    QCOMPARE(Fake().CallCount(), 0);
}

void tst_networkmanagerconnections::DevicesLookForNetworksWhenOrdered()
{
    Fake().AddDevice();
    LoadedWLAN::Networks();
    LoadedWLAN::Profiles();
    Fake().Settle();
    QCOMPARE(Fake().CallCount("RequestScan"), 0);
    LoadedWLAN::Connections()->LookForNetworks();
    Fake().Settle();
    QCOMPARE(Fake().CallCount("RequestScan"), 1);
}

void tst_networkmanagerconnections::ProfileThatIsChangedWhileItIsReadIsReadAgain()
{
    const QString profile = AddProfile("Office", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 1);
    Fake().Hold("GetSettings");
    Fake().SetSetting(profile, "connection", "id", "second");
    Fake().SetSetting(profile, "connection", "id", "third");
    Fake().Hold(QString());
    Fake().Release();
    QTRY_COMPARE(LoadedWLAN::Profiles().value(0).name, QString("third"));
}

void tst_networkmanagerconnections::ProfileThatIsRemovedWhileItIsReadStaysAway()
{
    const QString profile = AddProfile("Office", "net");
    const QString other = AddProfile("Café", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 2);
    Fake().Hold("GetSettings");
    Fake().SetSetting(profile, "connection", "id", "second");
    Fake().Settle();
    Fake().Remove(profile);
    Fake().Settle();
    Fake().Hold(QString());
    Fake().Release();
    Fake().SetSetting(other, "connection", "id", "Harbour");
    QTRY_COMPARE(LoadedWLAN::Profiles().value(0).name, QString("Harbour"));
    QCOMPARE(LoadedWLAN::Profiles().size(), 1);
}

void tst_networkmanagerconnections::ProfileThatIsRemovedWhileItIsReadIsNotWaitedFor()
{
    const QString profile = AddProfile("Office", "net");
    AddProfile("Café", "net");
    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 2);
    Fake().Hold("GetSettings");
    Fake().SetSetting(profile, "connection", "id", "second");
    Fake().Settle();
    Fake().Remove(profile);
    Fake().Settle();
    const QStringList remembered = LoadedWLAN::Remembered();
    Fake().Hold(QString());
    Fake().Release();
    QCOMPARE(remembered, QStringList(QString::fromUtf8("Café/1")));
}

void tst_networkmanagerconnections::LargePictureIsRead()
{
    LoadedWLAN::Root()->OnDestroy();
    Fake().AddDevice();
    for (int i = 0; i < 300; ++i) {
        Fake().AddAccessPoint("net" + QByteArray::number(i), i % 100);
    }
    for (int i = 0; i < 500; ++i) {
        AddProfile(QString("Profile %1").arg(i), "net" + QByteArray::number(i));
    }
    QVERIFY(LoadedWLAN::Root()->Init());
    const int longEnough = 20000;
    QTRY_COMPARE_WITH_TIMEOUT(LoadedWLAN::State().source, int(ConnectionState::SourceKnown), longEnough);
    QCOMPARE(LoadedWLAN::Profiles().size(), 500);
    QCOMPARE(LoadedWLAN::Networks().size(), 300);
    QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Profile 299").use, int(ConnectionProfile::UsePossible));
    QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Profile 300").use, int(ConnectionProfile::UseOutOfRange));
}

void tst_networkmanagerconnections::ProfileIsConnected()
{
    const QString device = Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    const QString profile = AddProfile("Office", "net");
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(profile);
    QVERIFY(attempt > 0);
    QCOMPARE(LoadedWLAN::Attempt(attempt).stage, int(StagePreparing));
    QCOMPARE(LoadedWLAN::Attempt(attempt).name, QString("Office"));
    QCOMPARE(LoadedWLAN::Attempt(attempt).profileId, profile);
    Fake().Settle();
    QCOMPARE(Fake().CallCount("ActivateConnection"), 1);
    QCOMPARE(LoadedWLAN::Active().value(0).name, QString("Office"));
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    Fake().SetConnectionState(Fake().ConnectionPaths().value(0), activated);
    QCOMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageConnected));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failure, int(FailureNone));
    QTRY_VERIFY(!told.isEmpty());
}

void tst_networkmanagerconnections::StagesAreTold()
{
    const QString device = Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(AddProfile("Office", "net"));
    Fake().Settle();
    const unsigned int states[] = {preparing, configuring, needAuthentication, gettingAddress};
    const int stages[] = {StagePreparing, StageAuthenticating, StageAuthenticating, StageGettingAddress};
    for (int i = 0; i < 4; ++i) {
        Fake().SetDeviceState(device, states[i]);
        QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, stages[i]);
        QCOMPARE(LoadedWLAN::Active().value(0).stage, stages[i]);
    }
}

void tst_networkmanagerconnections::FailureIsTold_data()
{
    QTest::addColumn<unsigned int>("deviceState");
    QTest::addColumn<unsigned int>("reason");
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("failure");
    Row("wrong key", needAuthentication, noSecrets, int(StageAuthenticating), int(FailureWrongKey));
    Row("no answer", configuring, supplicantTimeout, int(StageAuthenticating), int(FailureNoAnswer));
    Row("no address", gettingAddress, dhcpFailed, int(StageGettingAddress), int(FailureNoAddress));
}

void tst_networkmanagerconnections::FailureIsTold()
{
    QFETCH(unsigned int, deviceState);
    QFETCH(unsigned int, reason);
    const QString device = Fake().AddDevice();
    Fake().AddAccessPoint("net", 40, privacy, 0, psk | ccmp);
    const QString profile = AddProfile("Office", "net", true);
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(profile);
    Fake().Settle();
    Fake().SetDeviceState(device, deviceState);
    Fake().Fail(Fake().ConnectionPaths().value(0), reason);
    QCOMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageFailed));
    QTEST(LoadedWLAN::Attempt(attempt).failedStage, "stage");
    QTEST(LoadedWLAN::Attempt(attempt).failure, "failure");
    QTEST(LoadedWLAN::ConnectionProfileNamed("Office").failure, "failure");
    QVERIFY(LoadedWLAN::ConnectionProfileNamed("Office").failedAt > 0);
    QVERIFY(Fake().ProfilePaths().contains(profile));
}

void tst_networkmanagerconnections::FailureIsForgottenOnceItIsConnected()
{
    const QString device = Fake().AddDevice();
    const QString profile = AddProfile("Office", "net");
    Fake().Fail(Fake().Connect(profile, activating, device), dhcpFailed);
    QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Office").failure, int(FailureNoAddress));
    Fake().Connect(profile, activated, device);
    QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Office").failure, int(FailureNone));
}

void tst_networkmanagerconnections::OrderIsRefused_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("refusal");
    Row("nothing of that id", "unknown", int(IConnectionPlugin::RefusedUnknown));
    Row("gone", "gone", int(IConnectionPlugin::RefusedSource));
    Row("not allowed", "no", int(IConnectionPlugin::RefusedNotAllowed));
}

void tst_networkmanagerconnections::OrderIsRefused()
{
    QFETCH(QString, state);
    QFETCH(int, refusal);
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    const QString profile = AddProfile("Office", "net");
    QString active = Fake().Connect(profile, activated);
    QTRY_COMPARE(LoadedWLAN::Active().size(), 1);
    QString network = LoadedWLAN::NetworkNamed("net").id;
    QString ordered = profile;
    if (state == "gone") {
        Fake().Vanish();
        QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    } else if (state == "unknown") {
        ordered = network = active = "/nothing";
    } else {
        Fake().SetRight(networkControl, state);
    }
    QCOMPARE(LoadedWLAN::Connections()->ConnectProfile(ordered), refusal);
    QCOMPARE(LoadedWLAN::Connections()->ConnectNetwork(network, QString()), refusal);
    QCOMPARE(LoadedWLAN::Connections()->Disconnect(active), refusal);
    Fake().Settle();
    QCOMPARE(Fake().CallCount("ActivateConnection"), 0);
    QCOMPARE(Fake().CallCount("DeactivateConnection"), 0);
}

void tst_networkmanagerconnections::PasswordIsLeftToNetworkManagerToAskFor()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    const QString profile = AddProfile("Office", "net");
    Fake().SetRight(networkControl, "auth");
    QTRY_VERIFY(LoadedWLAN::State().mayConnect);
    QVERIFY(LoadedWLAN::Connections()->ConnectProfile(profile) > 0);
    QTRY_COMPARE(Fake().CallCount("ActivateConnection"), 1);
}

void tst_networkmanagerconnections::ErrorOfTheOrderIsTold_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("failure");
    Row("denied", "org.freedesktop.NetworkManager.PermissionDenied", int(FailureNotAllowed));
    Row("any other", "org.freedesktop.NetworkManager.UnknownDevice", int(FailureOther));
}

void tst_networkmanagerconnections::ErrorOfTheOrderIsTold()
{
    QFETCH(QString, error);
    Fake().AddDevice();
    const QString profile = AddProfile("Office", "net");
    Fake().AnswerWithError("ActivateConnection", error);
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(profile);
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageFailed));
    QTEST(LoadedWLAN::Attempt(attempt).failure, "failure");
}

void tst_networkmanagerconnections::CancelledOrderEnds()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    const QString profile = AddProfile("Office", "net");
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(profile);
    Fake().Settle();
    QCOMPARE(Fake().ConnectionPaths().size(), 1);
    LoadedWLAN::Connections()->CancelAttempt(attempt);
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageCancelled));
    QVERIFY(Fake().ConnectionPaths().isEmpty());
    QVERIFY(Fake().ProfilePaths().contains(profile));
}

void tst_networkmanagerconnections::OrderCancelledAtOnceEnds()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(AddProfile("Office", "net"));
    LoadedWLAN::Connections()->CancelAttempt(attempt);
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageCancelled));
    QVERIFY(Fake().ConnectionPaths().isEmpty());
}

void tst_networkmanagerconnections::OrderEndsWithNetworkManager()
{
    Fake().AddDevice();
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(AddProfile("Office", "net"));
    Fake().Settle();
    Fake().Vanish();
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageFailed));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failure, int(FailureSource));
}

void tst_networkmanagerconnections::ConnectionThatHasGoneAtOnceHasFailed()
{
    const QString device = Fake().AddDevice();
    const QString profile = AddProfile("Office", "net", true);
    Fake().Hold("ActivateConnection");
    const int attempt = LoadedWLAN::Connections()->ConnectProfile(profile);
    Fake().Settle();
    Fake().Fail(Fake().ConnectionPaths().value(0), noSecrets);
    QCOMPARE(LoadedWLAN::Attempt(attempt).stage, int(StagePreparing));
    Fake().Release();
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageFailed));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failure, int(FailureWrongKey));
}

void tst_networkmanagerconnections::OpenNetworkIsJoinedAndRemembered()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("Caf\xc3\xa9", 40);
    const int attempt =
        LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::Networks().value(0).id, QString());
    QVERIFY(attempt > 0);
    Fake().Settle();
    QCOMPARE(Fake().OptionsOfTheLastNewConnection().value("persist").toString(), QString("volatile"));
    Fake().SetConnectionState(Fake().ConnectionPaths().value(0), activated);
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageConnected));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failure, int(FailureNone));
    QCOMPARE(Fake().ProfilePaths().size(), 1);
    const QString profile = Fake().ProfilePaths().value(0);
    QCOMPARE(LoadedWLAN::Attempt(attempt).profileId, profile);
    const NMVariantMapMap settings = Fake().SettingsOf(profile);
    QCOMPARE(settings["connection"]["id"].toString(), QString::fromUtf8("Café"));
    QCOMPARE(settings["802-11-wireless"]["ssid"].toByteArray(), QByteArray("Caf\xc3\xa9"));
    QVERIFY(!settings.contains(security));
    // It outlives its connection.
    Fake().SetConnectionState(Fake().ConnectionPaths().value(0), deactivated);
    QCOMPARE(Fake().ProfilePaths().size(), 1);
}

void tst_networkmanagerconnections::NetworkIsJoinedWithItsKey()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40, privacy, 0, psk | ccmp);
    LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::NetworkNamed("net").id, "open sesame");
    Fake().Settle();
    const NMVariantMapMap settings = Fake().SettingsOf(Fake().ProfilePaths().value(0));
    QCOMPARE(settings[security]["key-mgmt"].toString(), QString("wpa-psk"));
    QCOMPARE(settings[security]["psk"].toString(), QString("open sesame"));
}

void tst_networkmanagerconnections::WrongKeyLeavesNoProfile()
{
    const QString device = Fake().AddDevice();
    Fake().AddAccessPoint("net", 40, privacy, 0, psk | ccmp);
    const int attempt =
        LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::NetworkNamed("net").id, "open sesame");
    Fake().Settle();
    Fake().SetDeviceState(device, needAuthentication);
    Fake().Fail(Fake().ConnectionPaths().value(0), noSecrets);
    QCOMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageFailed));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failure, int(FailureWrongKey));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failedStage, int(StageAuthenticating));
    QVERIFY(Fake().ProfilePaths().isEmpty());
    QCOMPARE(Fake().CallCount("Update2"), 0);
}

void tst_networkmanagerconnections::KeyThatIsNoneIsRefused_data()
{
    QTest::addColumn<unsigned int>("flags");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("refusal");
    Row("none", (psk | ccmp), "", int(IConnectionPlugin::RefusedKey));
    Row("too short", (psk | ccmp), "1234567", int(IConnectionPlugin::RefusedKey));
    Row("WEP of no length", 0U, "1234", int(IConnectionPlugin::RefusedKey));
    Row("account", (eap | ccmp), "12345678", int(IConnectionPlugin::RefusedAccount));
}

void tst_networkmanagerconnections::KeyThatIsNoneIsRefused()
{
    QFETCH(unsigned int, flags);
    QFETCH(QString, key);
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40, privacy, 0, flags);
    QTEST(LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::NetworkNamed("net").id, key), "refusal");
    Fake().Settle();
    QVERIFY(Fake().ProfilePaths().isEmpty());
}

void tst_networkmanagerconnections::KnownNetworkIsJoinedByItsProfile()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40, privacy, 0, psk | ccmp);
    const QString profile = AddProfile("Office", "net", true);
    const int attempt =
        LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::NetworkNamed("net").id, "another key");
    QCOMPARE(LoadedWLAN::Attempt(attempt).profileId, profile);
    Fake().Settle();
    QCOMPARE(Fake().ProfilePaths(), QStringList(profile));
    QCOMPARE(Fake().CallCount("ActivateConnection"), 1);
}

void tst_networkmanagerconnections::NewProfileHasANameOfItsOwn()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    AddProfile("net", "another network");
    const int attempt =
        LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::NetworkNamed("net").id, QString());
    QCOMPARE(LoadedWLAN::Attempt(attempt).name, QString("net 1"));
}

void tst_networkmanagerconnections::ProfileThatCannotBeStoredIsTold()
{
    Fake().AddDevice();
    Fake().AddAccessPoint("net", 40);
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.PermissionDenied");
    const int attempt =
        LoadedWLAN::Connections()->ConnectNetwork(LoadedWLAN::NetworkNamed("net").id, QString());
    Fake().Settle();
    Fake().SetConnectionState(Fake().ConnectionPaths().value(0), activated);
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageConnected));
    QCOMPARE(LoadedWLAN::Attempt(attempt).failure, int(FailureNotStored));
}

void tst_networkmanagerconnections::ConnectionIsEnded()
{
    const QString device = Fake().AddDevice();
    const QString path = Fake().Connect(AddProfile("Office", "net"), activated, device);
    Fake().DoNotAnswer("DeactivateConnection");
    const int attempt = LoadedWLAN::Connections()->Disconnect(path);
    QVERIFY(attempt > 0);
    QCOMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageDisconnecting));
    QTRY_COMPARE(Fake().CallCount("DeactivateConnection"), 1);
    Fake().SetConnectionState(path, deactivated);
    QTRY_COMPARE(LoadedWLAN::Attempt(attempt).stage, int(StageDisconnected));
    QVERIFY(LoadedWLAN::Active().isEmpty());
}

void tst_networkmanagerconnections::NumbersAreNotUsedAgain()
{
    Fake().AddDevice();
    const QString profile = AddProfile("Office", "net");
    const int first = LoadedWLAN::Connections()->ConnectProfile(profile);
    const int second = LoadedWLAN::Connections()->ConnectProfile(profile);
    QVERIFY(first > 0);
    QVERIFY(second > first);
}

QTEST_GUILESS_MAIN(tst_networkmanagerconnections)
#include "tst_networkmanagerconnections.moc"
