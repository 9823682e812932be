#include "FakeNetworkManager.h"
#include "HandedOutPlugin.h"
#include "LoadedWLAN.h"
#include "MockNetworkManager.h"
#include "PrivateBus.h"

#include <NetworkManagerResult.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QScopedPointer>
#include <QtTest>

#include <algorithm>

namespace
{

const char objects[] = "/org/freedesktop";
const char accessPoint[] = "org.freedesktop.NetworkManager.AccessPoint";
const char wirelessDevice[] = "org.freedesktop.NetworkManager.Device.Wireless";
const char activeConnection[] = "org.freedesktop.NetworkManager.Connection.Active";

// As NetworkManager's interface has them.
const unsigned int privacy = 0x1;
const unsigned int tkip = 0x4;
const unsigned int ccmp = 0x8;
const unsigned int psk = 0x100;
const unsigned int eap = 0x200;
const unsigned int activating = 1;
const unsigned int activated = 2;

WLANProfile ProfileInRange(const QString &network)
{
    WlanAvilableNetworkInfo info;
    info.networkName = network;
    WLANProfile profile;
    LoadedWLAN::Wlan()->GetNetworkProfile(info, &profile);
    return profile;
}

QString SecurityOf(const WLANProfile &profile)
{
    return profile.authentication + " " + profile.encryption + " " + profile.keyType;
}

QStringList Methods()
{
    WLANConfigData config;
    LoadedWLAN::Wlan()->GetConfigData(&config);
    return config.authenticationList;
}

} // namespace

/** The plug-in over the devices, access points and signals that python3-dbusmock has for NetworkManager. */
class tst_networkmanagertemplate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void NetworksOfAllDevicesComeOnceTheStrongestFirst();
    void SecurityIsReadFromTheFlags_data();
    void SecurityIsReadFromTheFlags();
    void StrongestStationTellsTheSecurity();
    void NetworkNameThatIsNotUtf8ComesBackByteForByte();
    void HiddenNetworksAreLeftOut_data();
    void HiddenNetworksAreLeftOut();
    void ThreeHundredAccessPointsAreAllTold();
    void AccessPointsThatComeAndGoAreFollowed();
    void AccessPointsThatComeAndGoDoNotHaveTheListCompared();
    void MethodsAreThoseOfTheDevices();
    void DevicesAreToldToLookAgainAfterAPause();

    void StoredProfileIsRememberedAndGivesNoKeyBack();
    void ReplacedProfileKeepsItsPath();
    void ReplacingWhereItCannotBeDoneIsTold();
    void MobileBroadbandIsRememberedAndIsNoWifi();
    void ProfileThatGoesBetweenListingAndAskingIsLeftOutQuietly();
    void ProfileThatWasDeletedIsUnknown();

    void OrderOfTheListTakesEffect();
    void ConnectionIsAddedWhenItIsMadeAndNotBefore();
    void ListIsFollowed();

private:
    MockNetworkManager &Mock() { return *m_mock; }
    /** Has the real priority plug-in in the container, with an empty list, and waits until that is compared.
     */
    void BeginWithList();
    QStringList Listed();
    int ComparisonCount() { return Mock().CallCount(objects, "GetManagedObjects"); }
    /** Gives time to whatever might still come. */
    static void Settle() { QTest::qWait(600); }

    PrivateBus m_bus;
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<MockNetworkManager> m_mock;
    HandedOutPlugin m_priority;
};

void tst_networkmanagertemplate::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
    MockNetworkManager mock(&m_bus);
    if (!mock.Start()) {
        QSKIP(qPrintable(mock.WhyNot()));
    }
}

void tst_networkmanagertemplate::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_mock.reset(new MockNetworkManager(&m_bus));
    QVERIFY2(m_mock->Start(), qPrintable(m_mock->WhyNot()));
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
}

void tst_networkmanagertemplate::cleanup()
{
    LoadedWLAN::Root()->OnDestroy();
    m_mock.reset();
    StandInHost::Reset(QString());
}

void tst_networkmanagertemplate::BeginWithList()
{
    LoadedWLAN::Root()->OnDestroy();
    m_priority.HandOut();
    const int before = ComparisonCount();
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_VERIFY(ComparisonCount() > before);
    Settle();
}

QStringList tst_networkmanagertemplate::Listed()
{
    QList<PriorityList> list;
    m_priority.Priority()->GetPriorityList(&list);
    return AsTexts(list);
}

void tst_networkmanagertemplate::NetworksOfAllDevicesComeOnceTheStrongestFirst()
{
    const QString first = Mock().AddWifiDevice("wlan0");
    const QString second = Mock().AddWifiDevice("wlan1");
    Mock().AddAccessPoint(first, "weak", 10);
    Mock().AddAccessPoint(first, "several", 35);
    Mock().AddAccessPoint(first, "middle", 40);
    Mock().AddAccessPoint(second, "several", 80);
    Mock().AddAccessPoint(second, "several", 20);
    QList<WlanAvilableNetworkInfo> networks;
    QCOMPARE(LoadedWLAN::Wlan()->GetAvailableNetworks(&networks), 0);
    QCOMPARE(networks.size(), 3);
    QCOMPARE(networks.at(0).networkName, QString("several"));
    QCOMPARE(networks.at(0).value1, 80);
    QCOMPARE(networks.at(0).value2, 6);
    QCOMPARE(networks.at(1).networkName, QString("middle"));
    QCOMPARE(networks.at(2).networkName, QString("weak"));
}

void tst_networkmanagertemplate::SecurityIsReadFromTheFlags_data()
{
    QTest::addColumn<unsigned int>("flags");
    QTest::addColumn<unsigned int>("wpa");
    QTest::addColumn<unsigned int>("rsn");
    QTest::addColumn<QString>("told");
    Row("open", 0U, 0U, 0U, "open none passPhrase");
    Row("WEP", privacy, 0U, 0U, "open WEP networkKey");
    Row("WPA", privacy, (psk | tkip), 0U, "WPAPSK TKIP passPhrase");
    Row("WPA2", privacy, 0U, (psk | ccmp), "WPA2PSK CCMP passPhrase");
    Row("WPA with EAP", privacy, (eap | tkip), 0U, "WPA(EAP) TKIP passPhrase");
    Row("WPA2 with EAP", privacy, 0U, (eap | ccmp), "WPA2(EAP) CCMP passPhrase");
}

void tst_networkmanagertemplate::SecurityIsReadFromTheFlags()
{
    QFETCH(unsigned int, flags);
    QFETCH(unsigned int, wpa);
    QFETCH(unsigned int, rsn);
    const QString device = Mock().AddWifiDevice("wlan0");
    Mock().AddAccessPoint(device, "another", 90, psk | tkip | ccmp);
    const QString path = Mock().AddAccessPoint(device, "A", 50);
    Mock().SetProperty(path, accessPoint, "Flags", flags);
    Mock().SetProperty(path, accessPoint, "WpaFlags", wpa);
    Mock().SetProperty(path, accessPoint, "RsnFlags", rsn);
    QTEST(SecurityOf(ProfileInRange("A")), "told");
    QCOMPARE(SecurityOf(ProfileInRange("another")), QString("WPA2PSK CCMP passPhrase"));
}

void tst_networkmanagertemplate::StrongestStationTellsTheSecurity()
{
    const QString device = Mock().AddWifiDevice("wlan0");
    const QString open = Mock().AddAccessPoint(device, "A", 70);
    Mock().AddAccessPoint(device, "A", 60, psk | ccmp);
    QCOMPARE(SecurityOf(ProfileInRange("A")), QString("open none passPhrase"));
    Mock().SetProperty(open, accessPoint, "Strength", QVariant::fromValue(uchar(50)));
    QCOMPARE(SecurityOf(ProfileInRange("A")), QString("WPA2PSK CCMP passPhrase"));
}

void tst_networkmanagertemplate::NetworkNameThatIsNotUtf8ComesBackByteForByte()
{
    const QByteArray ssid("Caf\xe9\xff\x80");
    const QString device = Mock().AddWifiDevice("wlan0");
    Mock().SetProperty(Mock().AddAccessPoint(device, "A", 50), accessPoint, "Ssid", ssid);
    const QStringList names = LoadedWLAN::InRange();
    QCOMPARE(names, QStringList("Caf\\xE9\\xFF\\x80"));
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile(names.at(0), "open", "none", "")), 0);
    QCOMPARE(Mock().ProfilePaths().size(), 1);
    QCOMPARE(Mock().SettingsOf(Mock().ProfilePaths().at(0))["802-11-wireless"]["ssid"].toByteArray(), ssid);
    QTRY_COMPARE(LoadedWLAN::ProfileNamed(names.at(0)).ssid, names.at(0));
}

void tst_networkmanagertemplate::HiddenNetworksAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("ssid");
    Row("empty", QByteArray(""));
    Row("zeros", QByteArray(8, '\0'));
}

void tst_networkmanagertemplate::HiddenNetworksAreLeftOut()
{
    QFETCH(QByteArray, ssid);
    const QString device = Mock().AddWifiDevice("wlan0");
    const QString hidden = Mock().AddAccessPoint(device, "X", 90);
    Mock().AddAccessPoint(device, "A", 10);
    Mock().SetProperty(hidden, accessPoint, "Ssid", ssid);
    QCOMPARE(LoadedWLAN::InRange(), QStringList("A"));
}

void tst_networkmanagertemplate::ThreeHundredAccessPointsAreAllTold()
{
    const QString device = Mock().AddWifiDevice("wlan0");
    QStringList expected;
    for (int i = 0; i < 100; ++i) {
        const QString name = QString("network %1").arg(i);
        Mock().AddAccessPoint(device, name, 100 - i);
        Mock().AddAccessPoint(device, name, 0);
        Mock().AddAccessPoint(device, name, 0);
        expected.append(name);
    }
    QCOMPARE(LoadedWLAN::InRange(), expected);
}

void tst_networkmanagertemplate::AccessPointsThatComeAndGoAreFollowed()
{
    const QString device = Mock().AddWifiDevice("wlan0");
    QCOMPARE(LoadedWLAN::InRange(), QStringList());
    const QString a = Mock().AddAccessPoint(device, "A", 50);
    const QString b = Mock().AddAccessPoint(device, "B", 60);
    QCOMPARE(LoadedWLAN::InRange(), QStringList() << "B"
                                                  << "A");
    Mock().SetProperty(a, accessPoint, "Strength", QVariant::fromValue(uchar(90)));
    QCOMPARE(LoadedWLAN::InRange(), QStringList() << "A"
                                                  << "B");
    Mock().RemoveAccessPoint(device, a);
    QCOMPARE(LoadedWLAN::InRange(), QStringList("B"));
    QCOMPARE(ProfileInRange("A").profileName, QString());
    Mock().RemoveAccessPoint(device, b);
    QCOMPARE(LoadedWLAN::InRange(), QStringList());
    Mock().AddAccessPoint(device, "A", 10);
    QCOMPARE(LoadedWLAN::InRange(), QStringList("A"));
}

void tst_networkmanagertemplate::AccessPointsThatComeAndGoDoNotHaveTheListCompared()
{
    BeginWithList();
    const QString device = Mock().AddWifiDevice("wlan0");
    Settle();
    const int before = ComparisonCount();
    for (int i = 0; i < 20; ++i) {
        const QString path = Mock().AddAccessPoint(device, "A", i);
        Mock().SetProperty(path, accessPoint, "Strength", QVariant::fromValue(uchar(50)));
        Mock().RemoveAccessPoint(device, path);
    }
    Settle();
    QCOMPARE(ComparisonCount(), before);
}

void tst_networkmanagertemplate::MethodsAreThoseOfTheDevices()
{
    const QString all = "open|shared|WPAPSK|WPA2PSK";
    const QString device = Mock().AddWifiDevice("wlan0");
    QCOMPARE(Methods().join("|"), all);
    Mock().SetProperty(device, wirelessDevice, "WirelessCapabilities", 0x2cU);
    QCOMPARE(Methods().join("|"), QString("open|WPA2PSK"));
    Mock().AddWifiDevice("wlan1");
    QCOMPARE(Methods().join("|"), all);
}

void tst_networkmanagertemplate::DevicesAreToldToLookAgainAfterAPause()
{
    const int pause = 10000;
    const int allowance = 20000;
    const QString first = Mock().AddWifiDevice("wlan0");
    const QString second = Mock().AddWifiDevice("wlan1");
    QElapsedTimer timer;
    timer.start();
    LoadedWLAN::InRange();
    QTRY_COMPARE(Mock().CallCount(first, "RequestScan"), 1);
    QTRY_COMPARE(Mock().CallCount(second, "RequestScan"), 1);
    while (Mock().CallCount(first, "RequestScan") < 2 && timer.elapsed() < pause + allowance) {
        LoadedWLAN::InRange();
        QTest::qWait(200);
    }
    QCOMPARE(Mock().CallCount(first, "RequestScan"), 2);
    QTRY_COMPARE(Mock().CallCount(second, "RequestScan"), 2);
    QVERIFY2(timer.elapsed() >= pause, qPrintable(QString::number(timer.elapsed())));
}

void tst_networkmanagertemplate::StoredProfileIsRememberedAndGivesNoKeyBack()
{
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "open sesame")), 0);
    QCOMPARE(Mock().ProfilePaths().size(), 1);
    const NMVariantMapMap settings = Mock().SettingsOf(Mock().ProfilePaths().at(0));
    QCOMPARE(settings["802-11-wireless-security"]["key-mgmt"].toString(), QString("wpa-psk"));
    // Other than NetworkManager, the template hands out keys to whoever asks for the settings.
    QCOMPARE(settings["802-11-wireless-security"]["psk"].toString(), QString("open sesame"));
    QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
    const WLANProfile profile = LoadedWLAN::ProfileNamed("A");
    QCOMPARE(profile.ssid, QString("A"));
    QCOMPARE(SecurityOf(profile), QString("WPA2PSK CCMP passPhrase"));
    QCOMPARE(profile.readOnly, QString("false"));
    QVERIFY(profile.keyMaterial.isNull());
    QVERIFY(ProfileInRange("A").keyMaterial.isNull());
}

void tst_networkmanagertemplate::ReplacedProfileKeepsItsPath()
{
    const QString path = Mock().AddProfile(FakeNetworkManager::Settings("A"));
    Mock().AddUpdate2(path);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "open sesame")), 0);
    QCOMPARE(Mock().ProfilePaths(), QStringList(path));
    QTRY_COMPARE(SecurityOf(LoadedWLAN::ProfileNamed("A")), QString("WPA2PSK CCMP passPhrase"));
}

void tst_networkmanagertemplate::ReplacingWhereItCannotBeDoneIsTold()
{
    const QString path = Mock().AddProfile(FakeNetworkManager::Settings("A"));
    const NMVariantMapMap before = Mock().SettingsOf(path);
    TraceCapture trace;
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "open sesame")),
             int(NetworkManagerResultFailed));
    QCOMPARE(trace.Lines(),
             QStringList("WLANNetworkManager: CreateWLANProfile: NetworkManager answered with an error"));
    QCOMPARE(Mock().ProfilePaths(), QStringList(path));
    QCOMPARE(Mock().SettingsOf(path), before);
}

void tst_networkmanagertemplate::MobileBroadbandIsRememberedAndIsNoWifi()
{
    Mock().AddModem("wwan0");
    Mock().AddProfile(FakeNetworkManager::Settings("Mobile", "gsm"));
    Mock().AddProfile(FakeNetworkManager::Settings("Wired", "802-3-ethernet"));
    Mock().AddProfile(FakeNetworkManager::Settings("Wireless"));
    QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList({"Mobile/2", "Wireless/1"}));
    QCOMPARE(LoadedWLAN::ProfileNamed("Mobile").profileName, QString("Mobile"));
    QCOMPARE(LoadedWLAN::ProfileNamed("Mobile").ssid, QString());
    QCOMPARE(LoadedWLAN::InRange(), QStringList());
    // A modem tells nothing of what Wi-Fi can do.
    QCOMPARE(Methods().size(), 4);
}

void tst_networkmanagertemplate::ProfileThatGoesBetweenListingAndAskingIsLeftOutQuietly()
{
    Mock().AddProfile(FakeNetworkManager::Settings("A"));
    const QString leaving = Mock().AddProfile(FakeNetworkManager::Settings("B"));
    Settle();
    Mock().DeleteAfterListing(leaving);
    LoadedWLAN::Root()->OnDestroy();
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
    TraceCapture trace;
    QList<RememberedList> list;
    QCOMPARE(LoadedWLAN::Wlan()->GetRememberedList(&list), 0);
    QCOMPARE(Mock().ProfilePaths().size(), 1);
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.at(0).name, QString("A"));
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_networkmanagertemplate::ProfileThatWasDeletedIsUnknown()
{
    Mock().AddProfile(FakeNetworkManager::Settings("A"));
    const QString b = Mock().AddProfile(FakeNetworkManager::Settings("B"));
    QTRY_COMPARE(LoadedWLAN::Remembered(), QStringList({"A/1", "B/1"}));
    Mock().DeleteProfile(b);
    WLANProfile profile;
    QCOMPARE(LoadedWLAN::Wlan()->GetProfileByName("B", &profile), int(NetworkManagerResultUnknownName));
    QVERIFY(profile.profileName.isNull());
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
}

void tst_networkmanagertemplate::OrderOfTheListTakesEffect()
{
    BeginWithList();
    const QString wifi = Mock().AddProfile(FakeNetworkManager::Settings("Wireless"));
    const QString mobile = Mock().AddProfile(FakeNetworkManager::Settings("Mobile", "gsm"));
    Mock().AddUpdate2(wifi);
    Mock().AddUpdate2(mobile);
    m_priority.Priority()->AddTopPriority(Entry("Wireless"));
    PriorityList entry;
    entry.name = "Mobile";
    entry.type = "2";
    m_priority.Priority()->AddTopPriority(entry);
    const auto priorityOf = [this](const QString &profile) {
        return Mock().SettingsOf(profile)["connection"]["autoconnect-priority"].toInt();
    };
    QTRY_VERIFY(priorityOf(wifi) > 0);
    QTRY_VERIFY(priorityOf(mobile) > priorityOf(wifi));
}

void tst_networkmanagertemplate::ConnectionIsAddedWhenItIsMadeAndNotBefore()
{
    BeginWithList();
    const QString device = Mock().AddWifiDevice("wlan0");
    const QString profile = Mock().AddProfile(FakeNetworkManager::Settings("A"));
    m_priority.Priority()->AddTopPriority(Entry("X"));
    const QString connection = Mock().AddActiveConnection(device, profile, activating);
    Settle();
    QCOMPARE(Listed(), QStringList("X/1"));
    Mock().SetProperty(connection, activeConnection, "State", activated);
    QTRY_COMPARE(Listed(), QStringList() << "X/1"
                                         << "A/1");
}

void tst_networkmanagertemplate::ListIsFollowed()
{
    m_directory->Write("rules.ini", "[General]\nfollowing=yes\n");
    m_directory->Write("Priority.xml", "<zeltdoc><item name=\"Top\" type=\"1\"/>"
                                       "<item name=\"Low\" type=\"1\"/></zeltdoc>");
    const QString device = Mock().AddWifiDevice("wlan0");
    const QString profile = Mock().AddProfile(FakeNetworkManager::Settings("Low"));
    Mock().AddProfile(FakeNetworkManager::Settings("Top"));
    Mock().AddAccessPoint(device, "Low", 70);
    Mock().AddAccessPoint(device, "Top", 70);
    Mock().AddActiveConnection(device, profile, activated);
    BeginWithList();
    for (qlonglong scan = 1; scan <= 2; ++scan) {
        QCOMPARE(LoadedWLAN::Active().size(), 1);
        Mock().SetProperty(device, wirelessDevice, "LastScan", scan);
        Settle();
    }
    const auto isConnected = [](const QString &name) {
        const QList<ActiveConnection> active = LoadedWLAN::Active();
        return std::any_of(active.constBegin(), active.constEnd(),
                           [&name](const ActiveConnection &one) { return one.name == name; });
    };
    QTRY_VERIFY(isConnected("Top"));
}

QTEST_MAIN(tst_networkmanagertemplate)
#include "tst_networkmanagertemplate.moc"
