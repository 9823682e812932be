#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <NetworkManagerResult.h>
#include <Row.h>
#include <TraceCapture.h>

#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QLocalServer>
#include <QLocalSocket>
#include <QtTest>

namespace
{

typedef QMap<QDBusObjectPath, NMVariantMapMap> ManagedObjects;

const char accessPointInterface[] = "org.freedesktop.NetworkManager.AccessPoint";

/** What each operation answers, in the order of their positions, and whether it left its output as it was. */
QList<int> AnswersOfAll(bool *areOutputsUntouched)
{
    IWLANUIPlugin *wlan = LoadedWLAN::Wlan();
    QList<RememberedList> remembered;
    WLANProfile named;
    WLANConfigData config;
    QList<WlanAvilableNetworkInfo> networks;
    WLANProfile near;
    WlanAvilableNetworkInfo network;
    network.networkName = "A";
    QList<int> answers;
    answers << wlan->CreateWLANProfile(LoadedWLAN::NewProfile("A", "open", "none", ""))
            << wlan->GetRememberedList(&remembered) << wlan->GetProfileByName("A", &named)
            << wlan->GetConfigData(&config) << wlan->GetAvailableNetworks(&networks)
            << wlan->GetNetworkProfile(network, &near);
    *areOutputsUntouched = remembered.isEmpty() && named.profileName.isNull() &&
                           config.authenticationList.isEmpty() && networks.isEmpty() &&
                           near.profileName.isNull();
    return answers;
}

QList<int> EachBut(int result, int last)
{
    return QList<int>() << result << result << result << result << result << last;
}

} // namespace

/** A NetworkManager that goes, comes back, hangs, refuses, or answers what it should not. */
class tst_networkmanagerfaults : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void MeaninglessAnswersAreRefused_data();
    void MeaninglessAnswersAreRefused();
    void WhoAnsweredWithNonsenseIsAskedAgain();
    void ErrorsAreTold_data();
    void ErrorsAreTold();
    void ComplaintIsWrittenOnceUntilItChanges();
    void PropertiesOfOddTypesHarmNobody();
    void SettingsOfOddTypesHarmNobody();
    void UnreadablePermissionsCountAsAllowed_data();
    void UnreadablePermissionsCountAsAllowed();
    void OneUnreadableProfileIsToldAndTheOthersStay_data();
    void OneUnreadableProfileIsToldAndTheOthersStay();
    void ProfileThatGoesBetweenListingAndAskingIsLeftOut();
    void ProfileThatIsGoneIsLeftOutQuietly_data();
    void ProfileThatIsGoneIsLeftOutQuietly();
    void ProfileOfSomebodyElseIsLeftOutQuietly();
    void AnswersToStoringAreTold_data();
    void AnswersToStoringAreTold();
    void RefusedChangeLeavesTheProfile();
    void ProfileIsNotChangedWhileAnotherOneCannotBeRead();

    void MissingNetworkManagerIsTold();
    void NetworkManagerThatComesBackIsUsedAgain();
    void NothingIsToldUntilThereIsAnAnswer();
    void NothingIsToldUntilAllProfilesAre();
    void SilentNetworkManagerIsTold();
    void SilentNetworkManagerIsAskedForASignOnce();
    void NetworkManagerThatSpeaksAgainIsUsedAgain();
    void ManyProfilesAndNetworksAreAllTold();

    void LostBusIsTold();
    void NewBusIsUsedWhenItComes();
    void BusThatDoesNotGreetBackKeepsNobodyWaiting();
};

void tst_networkmanagerfaults::MeaninglessAnswersAreRefused_data()
{
    QTest::addColumn<QList<QVariant>>("arguments");
    Row("nothing", QList<QVariant>());
    Row("a number", (QList<QVariant>() << 42));
    Row("a text", (QList<QVariant>() << QString("objects")));
    Row("a variant", (QList<QVariant>() << QVariant::fromValue(QDBusVariant(QString("objects")))));
    Row("settings in place of objects", (QList<QVariant>() << QVariant::fromValue(NMVariantMapMap())));
    Row("more than was asked for",
        (QList<QVariant>() << QVariant::fromValue(ManagedObjects()) << QString("and more")));
}

void tst_networkmanagerfaults::MeaninglessAnswersAreRefused()
{
    QFETCH(QList<QVariant>, arguments);
    const QString path = Fake().AddProfile("A");
    const NMVariantMapMap before = Fake().SettingsOf(path);
    Fake().AnswerWith("GetManagedObjects", arguments);
    StartPluginAgain();
    TraceCapture trace;
    bool areOutputsUntouched = false;
    QCOMPARE(AnswersOfAll(&areOutputsUntouched), EachBut(NetworkManagerResultUnusableAnswer, 0));
    QVERIFY(areOutputsUntouched);
    QVERIFY(trace.Lines().contains(
        "WLANNetworkManager: GetRememberedList: NetworkManager's answer can't be understood"));
    QCOMPARE(Fake().SettingsOf(path), before);
    QCOMPARE(Fake().ProfilePaths(), QStringList(path));
}

void tst_networkmanagerfaults::WhoAnsweredWithNonsenseIsAskedAgain()
{
    const int longEnough = 20000;
    Fake().AddProfile("A");
    Fake().AnswerWith("GetManagedObjects", QList<QVariant>());
    StartPluginAgain();
    QCOMPARE(LoadedWLAN::Remembered(), QStringList());
    Fake().Behave();
    QTRY_COMPARE_WITH_TIMEOUT(LoadedWLAN::Remembered(), QStringList("A/1"), longEnough);
}

void tst_networkmanagerfaults::ErrorsAreTold_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("result");
    Row("denied", "org.freedesktop.NetworkManager.PermissionDenied",
        int(NetworkManagerResultPermissionDenied));
    Row("denied by the bus", "org.freedesktop.DBus.Error.AccessDenied",
        int(NetworkManagerResultPermissionDenied));
    Row("failed", "org.freedesktop.NetworkManager.Failed", int(NetworkManagerResultFailed));
    Row("unheard of", "com.example.Error", int(NetworkManagerResultFailed));
    Row("gone", "org.freedesktop.DBus.Error.NameHasNoOwner", int(NetworkManagerResultNotRunning));
}

void tst_networkmanagerfaults::ErrorsAreTold()
{
    QFETCH(QString, error);
    QFETCH(int, result);
    Fake().AddProfile("A");
    Fake().AnswerWithError("GetManagedObjects", error);
    StartPluginAgain();
    TraceCapture trace;
    bool areOutputsUntouched = false;
    QCOMPARE(AnswersOfAll(&areOutputsUntouched), EachBut(result, 0));
    QVERIFY(areOutputsUntouched);
    QCOMPARE(trace.Lines().filter("WLANNetworkManager: ").size(), 6);
}

void tst_networkmanagerfaults::ComplaintIsWrittenOnceUntilItChanges()
{
    Fake().AnswerWithError("GetManagedObjects", "org.freedesktop.NetworkManager.Failed");
    StartPluginAgain();
    TraceCapture trace;
    LoadedWLAN::Remembered();
    LoadedWLAN::Remembered();
    QCOMPARE(trace.Lines().size(), 1);
    Fake().Behave();
    LoadedWLAN::Remembered();
    Fake().Vanish();
    LoadedWLAN::Remembered();
    QCOMPARE(trace.Lines().size(), 2);
}

void tst_networkmanagerfaults::PropertiesOfOddTypesHarmNobody()
{
    const QString odd = Fake().AddAccessPoint("A", 50);
    const char *const properties[] = {"Strength", "Frequency", "Flags", "WpaFlags", "RsnFlags"};
    for (const char *property : properties) {
        Fake().SetProperty(odd, accessPointInterface, property,
                           QStringList() << "not"
                                         << "a number");
    }
    const QString nameless = Fake().AddAccessPoint("", 60);
    Fake().SetProperty(nameless, accessPointInterface, "Ssid", QStringList("no bytes"));
    Fake().AddAccessPoint("B", 70);
    QCOMPARE(LoadedWLAN::InRange(), QStringList() << "B"
                                                  << "A");
    QCOMPARE(LoadedWLAN::ProfileNamed("A").authentication, QString());
}

void tst_networkmanagerfaults::SettingsOfOddTypesHarmNobody()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("odd");
    settings["connection"]["autoconnect-priority"] = QString("first of all");
    settings["connection"]["permissions"] = 7;
    settings["connection"]["timestamp"] = QStringList("yesterday");
    settings["802-11-wireless"]["mode"] = 3;
    settings["802-11-wireless-security"]["key-mgmt"] = 9;
    settings["802-11-wireless-security"]["pairwise"] = 1.5;
    Fake().AddProfile(settings);
    NMVariantMapMap empty;
    empty["unheard-of"]["key"] = 1;
    Fake().AddProfile(empty);
    Fake().AddProfile("plain");
    QCOMPARE(LoadedWLAN::Remembered(), QStringList() << "odd/1"
                                                     << "plain/1");
    QCOMPARE(LoadedWLAN::ProfileNamed("odd").ssid, QString("odd"));
}

void tst_networkmanagerfaults::UnreadablePermissionsCountAsAllowed_data()
{
    QTest::addColumn<QList<QVariant>>("arguments");
    QTest::addColumn<QString>("error");
    Row("meaningless", (QList<QVariant>() << 42), "");
    Row("error", QList<QVariant>(), "org.freedesktop.NetworkManager.Failed");
}

void tst_networkmanagerfaults::UnreadablePermissionsCountAsAllowed()
{
    QFETCH(QList<QVariant>, arguments);
    QFETCH(QString, error);
    Fake().AddProfile("A");
    if (error.isEmpty()) {
        Fake().AnswerWith("GetPermissions", arguments);
    } else {
        Fake().AnswerWithError("GetPermissions", error);
    }
    StartPluginAgain();
    QCOMPARE(LoadedWLAN::ProfileNamed("A").readOnly, QString("false"));
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
}

void tst_networkmanagerfaults::OneUnreadableProfileIsToldAndTheOthersStay_data()
{
    QTest::addColumn<QList<QVariant>>("arguments");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("result");
    Row("meaningless", (QList<QVariant>() << QString("settings")), "",
        int(NetworkManagerResultUnusableAnswer));
    Row("nothing", QList<QVariant>(), "", int(NetworkManagerResultUnusableAnswer));
    Row("error", QList<QVariant>(), "org.freedesktop.NetworkManager.Settings.Failed",
        int(NetworkManagerResultFailed));
}

void tst_networkmanagerfaults::OneUnreadableProfileIsToldAndTheOthersStay()
{
    QFETCH(QList<QVariant>, arguments);
    QFETCH(QString, error);
    QFETCH(int, result);
    Fake().AddProfile("A");
    const QString unreadable = Fake().AddProfile("B");
    Fake().AddProfile("C");
    if (error.isEmpty()) {
        Fake().AnswerWith("GetSettings", arguments, unreadable);
    } else {
        Fake().AnswerWithError("GetSettings", error, unreadable);
    }
    StartPluginAgain();
    TraceCapture trace;
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), result);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(0).name, QString("A"));
    QCOMPARE(list.at(1).name, QString("C"));
    QCOMPARE(trace.Lines().filter("GetRememberedList").size(), 1);
    WLANProfile profile;
    QCOMPARE(LoadedWLAN::Wlan()->GetProfileByName("A", &profile), 0);
    QCOMPARE(LoadedWLAN::Wlan()->GetProfileByName("B", &profile), result);
}

void tst_networkmanagerfaults::ProfileThatGoesBetweenListingAndAskingIsLeftOut()
{
    Fake().AddProfile("A");
    Fake().RemoveWhenAsked(Fake().AddProfile("B"));
    StartPluginAgain();
    TraceCapture trace;
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), 0);
    QCOMPARE(list.size(), 1);
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_networkmanagerfaults::ProfileThatIsGoneIsLeftOutQuietly_data()
{
    // D-Bus libraries differ in what they answer for an object that is not there.
    QTest::addColumn<QString>("error");
    Row("no such method", "org.freedesktop.DBus.Error.UnknownMethod");
    Row("no such object", "org.freedesktop.DBus.Error.UnknownObject");
    Row("no such interface", "org.freedesktop.DBus.Error.UnknownInterface");
}

void tst_networkmanagerfaults::ProfileThatIsGoneIsLeftOutQuietly()
{
    QFETCH(QString, error);
    Fake().AddProfile("A");
    Fake().AnswerWithError("GetSettings", error, Fake().AddProfile("B"));
    StartPluginAgain();
    TraceCapture trace;
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), 0);
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_networkmanagerfaults::ProfileOfSomebodyElseIsLeftOutQuietly()
{
    Fake().AddProfile("A");
    Fake().AnswerWithError("GetSettings", "org.freedesktop.NetworkManager.Settings.PermissionDenied",
                           Fake().AddProfile("B"));
    StartPluginAgain();
    TraceCapture trace;
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), 0);
    QCOMPARE(list.size(), 1);
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_networkmanagerfaults::AnswersToStoringAreTold_data()
{
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("result");
    const bool areKnown[] = {false, true};
    for (const bool isKnown : areKnown) {
        const QByteArray kind = isKnown ? "changed: " : "new: ";
        Row(kind + "denied", isKnown, "org.freedesktop.NetworkManager.Settings.PermissionDenied",
            int(NetworkManagerResultPermissionDenied));
        Row(kind + "bad key", isKnown, "org.freedesktop.NetworkManager.Settings.Connection.InvalidProperty",
            int(NetworkManagerResultProfileRefused));
        Row(kind + "bad profile", isKnown, "org.freedesktop.NetworkManager.Settings.InvalidConnection",
            int(NetworkManagerResultProfileRefused));
        Row(kind + "failed", isKnown, "org.freedesktop.NetworkManager.Settings.Failed",
            int(NetworkManagerResultFailed));
        Row(kind + "meaningless", isKnown, "", int(NetworkManagerResultUnusableAnswer));
    }
}

void tst_networkmanagerfaults::AnswersToStoringAreTold()
{
    QFETCH(bool, isKnown);
    QFETCH(QString, error);
    QFETCH(int, result);
    const QString method = isKnown ? "Update2" : "AddConnection";
    if (isKnown) {
        Fake().AddProfile("A");
    }
    if (error.isEmpty()) {
        Fake().AnswerWith(method, QList<QVariant>() << 42);
    } else {
        Fake().AnswerWithError(method, error);
    }
    TraceCapture trace;
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "none", "")), result);
    QCOMPARE(Fake().CallCount(method), 1);
    QCOMPARE(trace.Lines().filter("CreateWLANProfile: ").size(), 1);
}

void tst_networkmanagerfaults::RefusedChangeLeavesTheProfile()
{
    const QString path = Fake().AddProfile("A");
    const NMVariantMapMap before = Fake().SettingsOf(path);
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.Settings.PermissionDenied");
    LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "12345678"));
    QCOMPARE(Fake().SettingsOf(path), before);
    QCOMPARE(Fake().ProfilePaths(), QStringList(path));
}

void tst_networkmanagerfaults::ProfileIsNotChangedWhileAnotherOneCannotBeRead()
{
    const QString path = Fake().AddProfile("A");
    const NMVariantMapMap before = Fake().SettingsOf(path);
    Fake().AnswerWithError("GetSettings", "org.freedesktop.NetworkManager.Settings.Failed");
    Fake().AddProfile("B");
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "12345678")),
             int(NetworkManagerResultFailed));
    QCOMPARE(Fake().SettingsOf(path), before);
    // What is new can't take anything away.
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("C", "open", "none", "")), 0);
}

void tst_networkmanagerfaults::MissingNetworkManagerIsTold()
{
    Fake().Vanish();
    TraceCapture trace;
    bool areOutputsUntouched = false;
    QCOMPARE(AnswersOfAll(&areOutputsUntouched), EachBut(NetworkManagerResultNotRunning, 0));
    QVERIFY(areOutputsUntouched);
    QVERIFY(trace.Lines().contains("WLANNetworkManager: GetRememberedList: NetworkManager is not running"));
}

void tst_networkmanagerfaults::NetworkManagerThatComesBackIsUsedAgain()
{
    Fake().AddProfile("A");
    Fake().Vanish();
    QCOMPARE(LoadedWLAN::Remembered(), QStringList());
    QVERIFY(Fake().Appear());
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
}

void tst_networkmanagerfaults::NothingIsToldUntilThereIsAnAnswer()
{
    Fake().DoNotAnswer("GetManagedObjects");
    StartPluginAgain();
    TraceCapture trace;
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), int(NetworkManagerResultNotKnownYet));
    QCOMPARE(trace.Lines(),
             QStringList("WLANNetworkManager: GetRememberedList: NetworkManager has not answered yet"));
}

void tst_networkmanagerfaults::NothingIsToldUntilAllProfilesAre()
{
    Fake().AddProfile("A");
    Fake().DoNotAnswer("GetSettings", Fake().AddProfile("B"));
    StartPluginAgain();
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), int(NetworkManagerResultNotKnownYet));
    QCOMPARE(list.size(), 0);
    Fake().Behave();
    QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList({"A/1", "B/1"}));
}

void tst_networkmanagerfaults::SilentNetworkManagerIsTold()
{
    Fake().DoNotAnswerAnything();
    StartPluginAgain();
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "none", "")),
             int(NetworkManagerResultNotAnswering));
}

void tst_networkmanagerfaults::SilentNetworkManagerIsAskedForASignOnce()
{
    Fake().DoNotAnswerAnything();
    Fake().ForgetCalls();
    StartPluginAgain();
    const int longEnough = 20000;
    // One is how it is found out, and the other is for the day on which it speaks again.
    QTRY_COMPARE_WITH_TIMEOUT(Fake().CallCount("Get"), 2, longEnough);
    QTest::qWait(1000);
    QCOMPARE(Fake().CallCount("Get"), 2);
}

void tst_networkmanagerfaults::NetworkManagerThatSpeaksAgainIsUsedAgain()
{
    Fake().AddProfile("A");
    Fake().DoNotAnswer("GetManagedObjects");
    StartPluginAgain();
    QCOMPARE(LoadedWLAN::Remembered(), QStringList());
    Fake().Behave();
    // It is asked aside whether it speaks, and the answer needs a turn of the event loop.
    QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
}

void tst_networkmanagerfaults::ManyProfilesAndNetworksAreAllTold()
{
    const int profileCount = 500;
    const int networkCount = 300;
    for (int i = 0; i < profileCount; ++i) {
        Fake().AddProfile(QString("profile %1").arg(i));
    }
    for (int i = 0; i < networkCount; ++i) {
        Fake().AddAccessPoint("network " + QByteArray::number(i), i % 100);
    }
    Fake().AddProfile("twice");
    Fake().AddProfile("twice");
    QList<RememberedList> remembered;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&remembered), 0);
    QCOMPARE(remembered.size(), profileCount + 2);
    QCOMPARE(LoadedWLAN::InRange().size(), networkCount);
    QCOMPARE(LoadedWLAN::ProfileNamed("profile 499").ssid, QString("profile 499"));
}

void tst_networkmanagerfaults::LostBusIsTold()
{
    Fake().AddProfile("A");
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
    Bus().Kill();
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    TraceCapture trace;
    bool areOutputsUntouched = false;
    QCOMPARE(AnswersOfAll(&areOutputsUntouched), EachBut(NetworkManagerResultNoBus, 0));
    QVERIFY(areOutputsUntouched);
    QVERIFY(trace.Lines().contains("WLANNetworkManager: GetRememberedList: there is no system bus"));
    StartBusAgain();
}

void tst_networkmanagerfaults::NewBusIsUsedWhenItComes()
{
    QObject *service = LoadedWLAN::Service();
    const char *const names[] = {"A", "B"};
    for (const char *name : names) {
        Bus().Kill();
        // Long enough for it to be sought in vain more than once.
        QTest::qWait(2500);
        QCOMPARE(LoadedWLAN::Remembered(), QStringList());
        StartBusAgain();
        Fake().AddProfile(name);
        QVERIFY(Fake().Appear());
        QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList(QString("%1/1").arg(name)));
    }
    QCOMPARE(LoadedWLAN::Service(), service);
}

void tst_networkmanagerfaults::BusThatDoesNotGreetBackKeepsNobodyWaiting()
{
    Bus().Kill();
    QLocalServer silent;
    QLocalServer::removeServer(Bus().Path("bus"));
    QVERIFY(silent.listen(Bus().Path("bus")));
    QTRY_VERIFY(silent.hasPendingConnections());
    bool areOutputsUntouched = false;
    QCOMPARE(AnswersOfAll(&areOutputsUntouched), EachBut(NetworkManagerResultNoBus, 0));
    silent.nextPendingConnection()->abort();
    silent.close();
    StartBusAgain();
    Fake().AddProfile("A");
    QVERIFY(Fake().Appear());
    QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
}

QTEST_GUILESS_MAIN(tst_networkmanagerfaults)
#include "tst_networkmanagerfaults.moc"
