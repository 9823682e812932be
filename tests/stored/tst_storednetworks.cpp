#include "StoredFixture.h"

#include <IWLANUIPlugin.h>
#include <Row.h>
#include <TraceCapture.h>
#include <WLANResult.h>

#include <QDir>
#include <QtTest>

namespace
{

IWLANUIPlugin *Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(StoredFixture::Service());
}

/** Name and the five numbers of every network in range. */
QStringList InRange()
{
    QList<WlanAvilableNetworkInfo> list;
    Wlan()->GetAvailableNetworks(&list);
    QStringList texts;
    for (int i = 0; i < list.size(); ++i) {
        const WlanAvilableNetworkInfo &network = list.at(i);
        texts.append(QString("%1 %2 %3 %4 %5 %6")
                         .arg(network.networkName)
                         .arg(network.value1)
                         .arg(network.value2)
                         .arg(network.value3)
                         .arg(network.value4)
                         .arg(network.value5));
    }
    return texts;
}

WlanAvilableNetworkInfo NetworkNamed(const QString &name)
{
    WlanAvilableNetworkInfo network;
    network.networkName = name;
    return network;
}

QByteArray File(const QByteArray &networks)
{
    return "<wlannetworks>\n" + networks + "\n</wlannetworks>\n";
}

/** "name authentication encryption keyType keyMaterial keyIndex" or "unknown". */
QString Known(const QString &name)
{
    WLANProfile profile;
    if (Wlan()->GetNetworkProfile(NetworkNamed(name), &profile) == 0) {
        return profile.profileName.isEmpty() ? "unknown" : "unknown, but filled";
    }
    if (profile.ssid != profile.profileName) {
        return "ssid and name differ";
    }
    return (QStringList() << profile.profileName << profile.authentication << profile.encryption
                          << profile.keyType << profile.keyMaterial << profile.keyIndex)
        .join(" ");
}

} // namespace

class tst_storednetworks : public QObject
{
    Q_OBJECT

private slots:
    void SampleIsInRangeWithoutAFile();
    void SampleHasRememberedAndUnknownNetworks();
    void NetworksComeStrongestFirst();
    void EqualSignalsKeepTheOrderOfTheFile();
    void EachNameComesOnceWithItsStrongestSignal();
    void HiddenNetworksAreLeftOut();
    void NetworksAreAppended();
    void FileIsReadAnewEveryTimeAndNeverWritten();
    void UnusableNumbersAreToldWithTheirLine_data();
    void UnusableNumbersAreToldWithTheirLine();
    void DamagedFileGivesTheNetworksBeforeTheDamage();
    void UnreadableFileGivesNoNetworks();
    void NamesAreUnescaped();
    void ProfileOfANetworkJoinsWhatIsSeenAndWhatIsRemembered_data();
    void ProfileOfANetworkJoinsWhatIsSeenAndWhatIsRemembered();
    void UnknownNetworkLeavesTheOutputUntouched();
    void MobileEntryIsNoNetwork();
    void ConfigurationHasTheSixMethodsOfTheDialogAndNothingElse();
};

void tst_storednetworks::SampleIsInRangeWithoutAFile()
{
    StoredFixture fixture;
    QCOMPARE(InRange(), QStringList() << "Home 92 6 0 0 0"
                                      << "Neighbour 71 11 0 0 0" << QString::fromUtf8("Café 64 1 0 0 0")
                                      << "Company 55 36 0 0 0"
                                      << "Library 38 13 0 0 0"
                                      << "Workshop 27 3 0 0 0"
                                      << "Campus 19 44 0 0 0");
    QVERIFY(!QFile::exists(fixture.NetworksPath()));
}

void tst_storednetworks::SampleHasRememberedAndUnknownNetworks()
{
    StoredFixture fixture;
    QCOMPARE(Known("Home"), QString("Home WPA2PSK CCMP passPhrase correct horse 0"));
    QCOMPARE(Known("Neighbour"), QString("Neighbour WPAPSK TKIP passPhrase  "));
    QCOMPARE(Known("Workshop"), QString("Workshop shared WEP networkKey  "));
    QCOMPARE(Known("Old printer"), QString("Old printer shared WEP networkKey print 1"));
    QCOMPARE(Known("nobody"), QString("unknown"));
}

void tst_storednetworks::NetworksComeStrongestFirst()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(),
                         File("<network name='weak' signal='0'/><network name='strong' signal='100'/>"
                              "<network name='middle' signal='50'/>"));
    QCOMPARE(InRange(), QStringList() << "strong 100 0 0 0 0"
                                      << "middle 50 0 0 0 0"
                                      << "weak 0 0 0 0 0");
}

void tst_storednetworks::EqualSignalsKeepTheOrderOfTheFile()
{
    StoredFixture fixture;
    QByteArray networks;
    QStringList expected;
    for (int i = 0; i < 40; ++i) {
        networks += "<network name='n" + QByteArray::number(i) + "' signal='50'/>";
        expected.append(QString("n%1 50 0 0 0 0").arg(i));
    }
    StoredFixture::Write(fixture.NetworksPath(), File(networks));
    QCOMPARE(InRange(), expected);
}

void tst_storednetworks::EachNameComesOnceWithItsStrongestSignal()
{
    StoredFixture fixture;
    StoredFixture::Write(
        fixture.NetworksPath(),
        File("<network name='n' signal='10' channel='1'/><network name='n' signal='80' channel='36' "
             "authentication='WPA2PSK' encryption='CCMP'/><network name='N' signal='20'/>"));
    QCOMPARE(InRange(), QStringList() << "n 80 36 0 0 0"
                                      << "N 20 0 0 0 0");
    QCOMPARE(Known("n"), QString("n WPA2PSK CCMP passPhrase  "));
}

void tst_storednetworks::HiddenNetworksAreLeftOut()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(), File("<network name='' signal='90'/><network signal='80'/>"
                                                      "<network name=' ' signal='70'/>"));
    QCOMPARE(InRange(), QStringList() << "  70 0 0 0 0");
    QCOMPARE(Known(""), QString("unknown"));
}

void tst_storednetworks::NetworksAreAppended()
{
    StoredFixture fixture;
    QList<WlanAvilableNetworkInfo> list;
    list.append(NetworkNamed("before"));
    QCOMPARE(Wlan()->GetAvailableNetworks(&list), int(WLANResultSuccess));
    QCOMPARE(list.size(), 8);
    QCOMPARE(list.first().networkName, QString("before"));
}

void tst_storednetworks::FileIsReadAnewEveryTimeAndNeverWritten()
{
    StoredFixture fixture;
    const QByteArray first = File("<network name='a' signal='1'/>");
    StoredFixture::Write(fixture.NetworksPath(), first);
    QCOMPARE(InRange(), QStringList() << "a 1 0 0 0 0");
    QCOMPARE(StoredFixture::Read(fixture.NetworksPath()), first);
    StoredFixture::Write(fixture.NetworksPath(), File(""));
    QCOMPARE(InRange(), QStringList());
    QVERIFY(QFile::remove(fixture.NetworksPath()));
    QCOMPARE(InRange().size(), 7);
}

void tst_storednetworks::UnusableNumbersAreToldWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("numbers");
    QTest::addColumn<QStringList>("expected");

    const QStringList leftOut = QStringList() << "good 1 0 0 0 0";
    const QStringList withoutChannel = QStringList() << "n 50 0 0 0 0"
                                                     << "good 1 0 0 0 0";
    Row("no signal", QByteArray(""), leftOut);
    Row("empty signal", QByteArray("signal=''"), leftOut);
    Row("word", QByteArray("signal='good'"), leftOut);
    Row("percent sign", QByteArray("signal='50%'"), leftOut);
    Row("fraction", QByteArray("signal='50.5'"), leftOut);
    Row("negative", QByteArray("signal='-1'"), leftOut);
    Row("too much", QByteArray("signal='101'"), leftOut);
    Row("beyond any number", QByteArray("signal='99999999999'"), leftOut);
    Row("channel word", QByteArray("signal='50' channel='six'"), withoutChannel);
    Row("negative channel", QByteArray("signal='50' channel='-6'"), withoutChannel);
}

void tst_storednetworks::UnusableNumbersAreToldWithTheirLine()
{
    QFETCH(QByteArray, numbers);
    QFETCH(QStringList, expected);
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(),
                         File("<network name='good' signal='1'/>\n<network name='n' " + numbers + "/>"));
    const TraceCapture capture;
    QCOMPARE(InRange(), expected);
    InRange();
    QCOMPARE(capture.Lines().size(), 1);
    QVERIFY(capture.Lines().first().contains(fixture.NetworksPath() + ", line 3:"));
}

void tst_storednetworks::DamagedFileGivesTheNetworksBeforeTheDamage()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(), File("<network name='a' signal='1'/>\n<network name=b/>"));
    const TraceCapture capture;
    QList<WlanAvilableNetworkInfo> list;
    QCOMPARE(Wlan()->GetAvailableNetworks(&list), int(WLANResultFileDamaged));
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.first().networkName, QString("a"));
    QCOMPARE(capture.Lines().size(), 1);
    QVERIFY(capture.Lines().first().contains(fixture.NetworksPath() + " is damaged at line 3,"));
}

void tst_storednetworks::UnreadableFileGivesNoNetworks()
{
    StoredFixture fixture;
    QVERIFY(QDir().mkdir(fixture.NetworksPath()));
    const TraceCapture capture;
    QList<WlanAvilableNetworkInfo> list;
    QCOMPARE(Wlan()->GetAvailableNetworks(&list), int(WLANResultFileNotReadable));
    QVERIFY(list.isEmpty());
    QCOMPARE(capture.Lines().size(), 1);
}

void tst_storednetworks::NamesAreUnescaped()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(), File("<network name='a\\u0007\\\\' signal='1'/>"));
    QCOMPARE(InRange(), QStringList() << QString("a\a\\") + " 1 0 0 0 0");
}

void tst_storednetworks::ProfileOfANetworkJoinsWhatIsSeenAndWhatIsRemembered_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("known");

    Row("in range", "seen", "seen shared WEP networkKey  ");
    Row("in range, nothing said of security", "plain", "plain open none passPhrase  ");
    Row("remembered", "kept", "kept WPAPSK TKIP passPhrase key of kept 0");
    Row("both", "both", "both WPA2PSK CCMP passPhrase key of both 3");
    Row("neither", "Both", "unknown");
}

void tst_storednetworks::ProfileOfANetworkJoinsWhatIsSeenAndWhatIsRemembered()
{
    QFETCH(QString, name);
    QFETCH(QString, known);
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(),
                         File("<network name='seen' signal='9' authentication='shared' encryption='WEP'/>"
                              "<network name='both' signal='8' authentication='WPA2PSK' encryption='CCMP'/>"
                              "<network name='plain' signal='7'/>"));
    StoredFixture::Write(fixture.ProfilesPath(),
                         "<wlanprofiles>"
                         "<profile profileName='both' ssid='both' authentication='shared' encryption='WEP' "
                         "keyType='networkKey' keyMaterial='key of both' keyIndex='3'/>"
                         "<profile profileName='kept' ssid='kept' authentication='WPAPSK' encryption='TKIP' "
                         "keyType='passPhrase' keyMaterial='key of kept' keyIndex='0'/>"
                         "</wlanprofiles>");
    QCOMPARE(Known(name), known);
}

void tst_storednetworks::UnknownNetworkLeavesTheOutputUntouched()
{
    StoredFixture fixture;
    WLANProfile profile;
    profile.ssid = "before";
    QCOMPARE(Wlan()->GetNetworkProfile(NetworkNamed("nobody"), &profile), 0);
    QCOMPARE(profile.ssid, QString("before"));
}

void tst_storednetworks::MobileEntryIsNoNetwork()
{
    StoredFixture fixture;
    QCOMPARE(Known("Mobile broadband"), QString("unknown"));
}

void tst_storednetworks::ConfigurationHasTheSixMethodsOfTheDialogAndNothingElse()
{
    StoredFixture fixture;
    WLANConfigData config;
    QCOMPARE(Wlan()->GetConfigData(&config), int(WLANResultSuccess));
    QCOMPARE(config.authenticationList, QList<QString>() << "open"
                                                         << "shared"
                                                         << "WPAPSK"
                                                         << "WPA2PSK"
                                                         << "WPA(EAP)"
                                                         << "WPA2(EAP)");
    QVERIFY(config.settings.isEmpty());
    QVERIFY(config.textList2.isEmpty());
    QVERIFY(config.textList3.isEmpty());
    QVERIFY(config.wisprList.isEmpty());

    Wlan()->GetConfigData(&config);
    QCOMPARE(config.authenticationList.size(), 6);
}

QTEST_MAIN(tst_storednetworks)
#include "tst_storednetworks.moc"
