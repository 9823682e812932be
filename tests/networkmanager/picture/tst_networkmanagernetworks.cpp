#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <Row.h>

#include <QtTest>

namespace
{

const char accessPointInterface[] = "org.freedesktop.NetworkManager.AccessPoint";

// As NetworkManager's interface has them.
const unsigned int privacy = 0x1;
const unsigned int tkip = 0x4;
const unsigned int ccmp = 0x8;
const unsigned int psk = 0x100;
const unsigned int eap = 0x200;
const unsigned int sae = 0x400;
const unsigned int owe = 0x800;
const unsigned int oweTransition = 0x1000;
const unsigned int suiteB = 0x2000;

WLANProfile ProfileOf(const QString &network)
{
    WlanAvilableNetworkInfo info;
    info.networkName = network;
    WLANProfile profile;
    LoadedWLAN::Wlan()->GetNetworkProfile(info, &profile);
    return profile;
}

QString SecurityOf(const WLANProfile &profile)
{
    return profile.authentication + " " + profile.encryption + " " + profile.keyType + " " + profile.keyIndex;
}

QStringList Methods()
{
    WLANConfigData config;
    LoadedWLAN::Wlan()->GetConfigData(&config);
    return config.authenticationList;
}

} // namespace

/** What the plug-in tells of networks in range and of this machine's devices. */
class tst_networkmanagernetworks : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void NetworksComeOnceTheStrongestFirst();
    void SignalAndChannelAreTold();
    void ImpossibleSignalStaysInRange();
    void HiddenNetworksAreLeftOut_data();
    void HiddenNetworksAreLeftOut();
    void NamesThatAreNotUtf8AreToldApart();
    void DevicesAreToldToLookNowAndThen();
    void NobodyLooksWithoutPermission_data();
    void NobodyLooksWithoutPermission();

    void SecurityIsReadFromTheFlags_data();
    void SecurityIsReadFromTheFlags();
    void StrongestStationCounts();
    void UnknownNetworkIsNotFilled();
    void RememberedNetworkOutOfRangeIsFilled();
    void NetworkSeenNowCountsMore();
    void RememberedWepKeyIndexIsKept();
    void KeyIsLeftToTheUser();

    void MethodsAreThoseOfTheDevicesWithoutAnAccount_data();
    void MethodsAreThoseOfTheDevicesWithoutAnAccount();
    void OtherMembersAreLeftAlone();
};

void tst_networkmanagernetworks::NetworksComeOnceTheStrongestFirst()
{
    Fake().AddAccessPoint("weak", 10);
    Fake().AddAccessPoint("strong", 90);
    Fake().AddAccessPoint("middle", 30);
    Fake().AddAccessPoint("weak", 50);
    QCOMPARE(LoadedWLAN::InRange(), QStringList() << "strong"
                                                  << "weak"
                                                  << "middle");
}

void tst_networkmanagernetworks::SignalAndChannelAreTold()
{
    const QString point = Fake().AddAccessPoint("A", 71);
    Fake().SetProperty(point, accessPointInterface, "Frequency", 5180U);
    QList<WlanAvilableNetworkInfo> networks;
    QCOMPARE(LoadedWLAN::Wlan()->GetAvailableNetworks(&networks), 0);
    QCOMPARE(networks.size(), 1);
    QCOMPARE(networks.first().value1, 71);
    QCOMPARE(networks.first().value2, 36);
    QCOMPARE(networks.first().value3, 0);
    QCOMPARE(networks.first().value4, 0);
    QCOMPARE(networks.first().value5, 0);
}

void tst_networkmanagernetworks::ImpossibleSignalStaysInRange()
{
    Fake().AddAccessPoint("A", 255);
    QList<WlanAvilableNetworkInfo> networks;
    LoadedWLAN::Wlan()->GetAvailableNetworks(&networks);
    QCOMPARE(networks.value(0).value1, 100);
}

void tst_networkmanagernetworks::HiddenNetworksAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("ssid");
    Row("empty", QByteArray(""));
    Row("zeros", QByteArray(8, '\0'));
}

void tst_networkmanagernetworks::HiddenNetworksAreLeftOut()
{
    QFETCH(QByteArray, ssid);
    Fake().AddAccessPoint(ssid, 90);
    Fake().AddAccessPoint("A", 10);
    QCOMPARE(LoadedWLAN::InRange(), QStringList("A"));
}

void tst_networkmanagernetworks::NamesThatAreNotUtf8AreToldApart()
{
    Fake().AddAccessPoint("Caf\xe9", 90, privacy, 0, psk | ccmp);
    Fake().AddAccessPoint("Caf\xe8", 80);
    Fake().AddAccessPoint("Caf\xc3\xa9", 70);
    QCOMPARE(LoadedWLAN::InRange(), QStringList() << "Caf\\xE9"
                                                  << "Caf\\xE8" << QString::fromUtf8("Café"));
    QCOMPARE(SecurityOf(ProfileOf("Caf\\xE9")), QString("WPA2PSK CCMP passPhrase 0"));
    QCOMPARE(SecurityOf(ProfileOf("Caf\\xE8")), QString("open none passPhrase 0"));
}

void tst_networkmanagernetworks::DevicesAreToldToLookNowAndThen()
{
    Fake().AddDevice();
    Fake().AddDevice();
    LoadedWLAN::InRange();
    LoadedWLAN::InRange();
    QTRY_COMPARE(Fake().CallCount("RequestScan"), 2);
    LoadedWLAN::InRange();
    QCOMPARE(Fake().CallCount("RequestScan"), 2);
}

void tst_networkmanagernetworks::NobodyLooksWithoutPermission_data()
{
    QTest::addColumn<QString>("right");
    Row("never", "no");
    Row("with a password", "auth");
}

void tst_networkmanagernetworks::NobodyLooksWithoutPermission()
{
    QFETCH(QString, right);
    Fake().AddDevice();
    Fake().SetRight("org.freedesktop.NetworkManager.wifi.scan", right);
    LoadedWLAN::InRange();
    LoadedWLAN::InRange();
    QCOMPARE(Fake().CallCount("RequestScan"), 0);
}

void tst_networkmanagernetworks::SecurityIsReadFromTheFlags_data()
{
    QTest::addColumn<unsigned int>("flags");
    QTest::addColumn<unsigned int>("wpa");
    QTest::addColumn<unsigned int>("rsn");
    QTest::addColumn<QString>("told");

    Row("open", 0U, 0U, 0U, "open none passPhrase 0");
    Row("WEP", privacy, 0U, 0U, "open WEP networkKey 0");
    Row("WPA", privacy, (psk | tkip), 0U, "WPAPSK TKIP passPhrase 0");
    Row("WPA with both ciphers", privacy, (psk | tkip | ccmp), 0U, "WPAPSK CCMP passPhrase 0");
    Row("WPA2", privacy, 0U, (psk | ccmp), "WPA2PSK CCMP passPhrase 0");
    Row("WPA2 with TKIP", privacy, 0U, (psk | tkip), "WPA2PSK TKIP passPhrase 0");
    Row("WPA and WPA2", privacy, (psk | tkip), (psk | ccmp), "WPA2PSK CCMP passPhrase 0");
    Row("WPA3", privacy, 0U, (sae | ccmp), "WPA2PSK CCMP passPhrase 0");
    Row("WPA with EAP", privacy, (eap | tkip), 0U, "WPA(EAP) TKIP passPhrase 0");
    Row("WPA2 with EAP", privacy, 0U, (eap | ccmp), "WPA2(EAP) CCMP passPhrase 0");
    Row("WPA3 with EAP", privacy, 0U, suiteB, "WPA2(EAP) CCMP passPhrase 0");
    Row("key and EAP", privacy, 0U, (psk | eap | ccmp), "WPA2PSK CCMP passPhrase 0");
    Row("encrypted without a key", privacy, 0U, (owe | ccmp), "  passPhrase 0");
    Row("open, with an encrypted one beside", 0U, 0U, oweTransition, "open none passPhrase 0");
}

void tst_networkmanagernetworks::SecurityIsReadFromTheFlags()
{
    QFETCH(unsigned int, flags);
    QFETCH(unsigned int, wpa);
    QFETCH(unsigned int, rsn);
    Fake().AddAccessPoint("A", 50, flags, wpa, rsn);
    const WLANProfile profile = ProfileOf("A");
    QTEST(SecurityOf(profile), "told");
    QCOMPARE(profile.profileName, QString("A"));
    QCOMPARE(profile.ssid, QString("A"));
    QCOMPARE(profile.bssType, QString("ESS"));
}

void tst_networkmanagernetworks::StrongestStationCounts()
{
    Fake().AddAccessPoint("A", 20, privacy);
    Fake().AddAccessPoint("A", 60, privacy, 0, psk | ccmp);
    QCOMPARE(SecurityOf(ProfileOf("A")), QString("WPA2PSK CCMP passPhrase 0"));
}

void tst_networkmanagernetworks::UnknownNetworkIsNotFilled()
{
    Fake().AddAccessPoint("A", 50);
    const char *const names[] = {"B", "a", ""};
    for (const char *name : names) {
        WlanAvilableNetworkInfo info;
        info.networkName = name;
        WLANProfile profile;
        QCOMPARE(LoadedWLAN::Wlan()->GetNetworkProfile(info, &profile), 0);
        QVERIFY(profile.profileName.isNull() && profile.authentication.isNull());
    }
}

void tst_networkmanagernetworks::RememberedNetworkOutOfRangeIsFilled()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("profile");
    settings["802-11-wireless"]["ssid"] = QByteArray("network");
    settings["802-11-wireless-security"]["key-mgmt"] = "wpa-psk";
    Fake().AddProfile(settings);
    QCOMPARE(SecurityOf(ProfileOf("network")), QString("WPA2PSK CCMP passPhrase 0"));
    QCOMPARE(ProfileOf("network").profileName, QString("network"));
}

void tst_networkmanagernetworks::NetworkSeenNowCountsMore()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["802-11-wireless-security"]["key-mgmt"] = "none";
    Fake().AddProfile(settings);
    Fake().AddAccessPoint("A", 50, privacy, 0, psk | ccmp);
    QCOMPARE(SecurityOf(ProfileOf("A")), QString("WPA2PSK CCMP passPhrase 0"));
}

void tst_networkmanagernetworks::RememberedWepKeyIndexIsKept()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["802-11-wireless-security"]["key-mgmt"] = "none";
    settings["802-11-wireless-security"]["auth-alg"] = "shared";
    settings["802-11-wireless-security"]["wep-tx-keyidx"] = 3U;
    Fake().AddProfile(settings);
    Fake().AddAccessPoint("A", 50, privacy);
    QCOMPARE(SecurityOf(ProfileOf("A")), QString("shared WEP networkKey 3"));
}

void tst_networkmanagernetworks::KeyIsLeftToTheUser()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["802-11-wireless-security"]["key-mgmt"] = "wpa-psk";
    settings["802-11-wireless-security"]["psk"] = "open sesame";
    Fake().AddProfile(settings);
    QVERIFY(ProfileOf("A").keyMaterial.isNull());
}

void tst_networkmanagernetworks::MethodsAreThoseOfTheDevicesWithoutAnAccount_data()
{
    QTest::addColumn<QList<unsigned int>>("devices");
    QTest::addColumn<QString>("methods");

    const unsigned int wep = 0x3;
    const unsigned int ciphers = 0xc;
    const unsigned int wpa = 0x10;
    const unsigned int rsn = 0x20;
    const QString all = "open|shared|WPAPSK|WPA2PSK";
    Row("no device", QList<unsigned int>(), all);
    Row("one that can do all", (QList<unsigned int>() << (wep | ciphers | wpa | rsn)), all);
    Row("no WEP", (QList<unsigned int>() << (ciphers | wpa | rsn)), "open|WPAPSK|WPA2PSK");
    Row("WEP only", (QList<unsigned int>() << wep), "open|shared");
    Row("no WPA2", (QList<unsigned int>() << (ciphers | wpa)), "open|WPAPSK");
    Row("protocol without a cipher", (QList<unsigned int>() << (wpa | rsn)), "open");
    Row("nothing", (QList<unsigned int>() << 0U), "open");
    Row("two devices", (QList<unsigned int>() << wep << (ciphers | rsn)), "open|shared|WPA2PSK");
}

void tst_networkmanagernetworks::MethodsAreThoseOfTheDevicesWithoutAnAccount()
{
    QFETCH(QList<unsigned int>, devices);
    for (int i = 0; i < devices.size(); ++i) {
        Fake().AddDevice(devices.at(i));
    }
    QTEST(Methods().join("|"), "methods");
}

void tst_networkmanagernetworks::OtherMembersAreLeftAlone()
{
    WLANConfigData config;
    config.settings["a"] = "b";
    config.textList2 << "c";
    config.authenticationList << "what was there";
    QCOMPARE(LoadedWLAN::Wlan()->GetConfigData(&config), 0);
    QCOMPARE(config.settings.value("a"), QString("b"));
    QCOMPARE(config.textList2, QList<QString>() << "c");
    QCOMPARE(config.authenticationList.size(), 4);
}

QTEST_GUILESS_MAIN(tst_networkmanagernetworks)
#include "tst_networkmanagernetworks.moc"
