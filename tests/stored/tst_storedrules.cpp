#include "StoredFixture.h"

#include <IWLANUIPlugin.h>
#include <Row.h>
#include <WLANResult.h>

#include <QtTest>

namespace
{

IWLANUIPlugin *Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(StoredFixture::Service());
}

/** "authentication|encryption" or "authentication|encryption|key" */
void SetMethod(const QString &words, WLANProfile *profile)
{
    profile->authentication = words.section('|', 0, 0);
    profile->encryption = words.section('|', 1, 1);
    profile->keyMaterial = words.section('|', 2);
}

/** As the dialog makes it. */
WLANProfile NewProfile(const QString &name, const QString &network, const QString &method)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.ssid = network;
    profile.bssType = "ESS";
    profile.connectionMode = "manual";
    profile.text4 = "0";
    profile.keyFlag = "false";
    profile.keyIndex = "2";
    SetMethod(method, &profile);
    profile.keyType = profile.encryption == "WEP" ? "networkKey" : "passPhrase";
    return profile;
}

/** With a text of its own in each field that no dialog knows. */
WLANProfile OldProfile(const QString &name, const QString &network, const QString &method)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.ssid = network;
    profile.bssType = "ESS";
    profile.connectionMode = "auto";
    profile.text1 = "address";
    profile.text2 = "proxy";
    profile.text3 = "metered";
    profile.text4 = "4";
    profile.keyFlag = "flag";
    profile.keyIndex = "3";
    profile.keyType = "networkKey";
    profile.text14 = "station";
    profile.readOnly = "never";
    profile.text16 = "owner";
    profile.text17 = "note";
    SetMethod(method, &profile);
    return profile;
}

QString Texts(const WLANProfile &profile)
{
    return (QStringList() << profile.profileName << profile.text1 << profile.text2 << profile.text3
                          << profile.text4 << profile.ssid << profile.bssType << profile.connectionMode
                          << profile.authentication << profile.encryption << profile.keyType
                          << profile.keyFlag << profile.keyMaterial << profile.keyIndex << profile.text14
                          << profile.readOnly << profile.text16 << profile.text17)
        .join("|");
}

QString TextsOf(const QString &name)
{
    WLANProfile profile;
    return Wlan()->GetProfileByName(name, &profile) == WLANResultSuccess ? Texts(profile) : QString("none");
}

int RememberedCount()
{
    QList<RememberedList> list;
    Wlan()->GetRememberedList(&list);
    return static_cast<int>(list.size());
}

/** A file with that one profile, which is called "Under the roof" and is for the network "attic". */
void Remember(const StoredFixture &fixture, const WLANProfile &profile)
{
    StoredFixture::Write(fixture.ProfilesPath(), "<wlanprofiles/>");
    QCOMPARE(Wlan()->CreateWLANProfile(profile), int(WLANResultSuccess));
}

const char *const wpa2 = "WPA2PSK|CCMP|open sesame";
const char *const hexadecimal = "0123456789abcdefABCDEF0123456789abcdefABCDEF0123456789abcdefABCDEF";

QString Hexadecimal(int length)
{
    return QString(hexadecimal).left(length);
}

} // namespace

/** What a new profile does to those that are remembered: it destroys nothing. */
class tst_storedrules : public QObject
{
    Q_OBJECT

private slots:
    void ProfileOfThatNameIsChangedOrKept_data();
    void ProfileOfThatNameIsChangedOrKept();
    void ProfileOfAnotherKindOfNetworkIsKept();
    void ProfileWithoutANetworkNameDoesNotTakeItAway();
    void SeveralProfilesOfOneNameAreKept();
    void ProfileOfAnotherNameIsNeverChanged_data();
    void ProfileOfAnotherNameIsNeverChanged();
    void CaseCounts_data();
    void CaseCounts();
    void NetworksThatOthersMakeAreOtherNetworks();
    void ProfilesWithoutANetworkNameAreForNone();
};

namespace
{

const int changed = WLANResultSuccess;
const int undescribed = WLANResultUndescribedProfile;
const int weaker = WLANResultWeakerMethod;
const int incomplete = WLANResultIncompleteKey;

struct Change {
    const char *row;
    const char *before;
    const char *wanted;
    int result;
};

const Change changesOfMethod[] = {
    {"account, WPA2", "WPA2(EAP)|CCMP", "WPA2(EAP)|CCMP", undescribed},
    {"account, WPA", "WPA(EAP)|TKIP", "WPA2PSK|CCMP|open sesame", undescribed},
    {"account, WEP", "IEEE 802.1X|none", "open|none", undescribed},
    {"method of another program", "WPA3|GCMP|open sesame", "WPA2PSK|CCMP|open sesame", undescribed},
    {"words that don't go together", "open|CCMP|open sesame", "WPA2PSK|CCMP|open sesame", undescribed},

    {"open stays open", "open|none", "open|none", changed},
    {"no words are open", "|", "open|none", changed},
    {"open to WEP", "open|none", "open|WEP|12345", changed},
    {"open to WPA", "open|none", "WPAPSK|TKIP|open sesame", changed},
    {"open to an account", "open|none", "WPA2(EAP)|CCMP", incomplete},
    {"shared without WEP to WEP", "shared|none", "shared|WEP|12345", changed},
    {"WEP to open", "open|WEP|12345", "open|none", weaker},
    {"shared WEP to open", "shared|WEP|12345", "shared|none", weaker},
    {"WEP to the other WEP", "open|WEP|12345", "shared|WEP|abcde", changed},
    {"the other WEP to WEP", "shared|WEP|12345", "open|WEP|abcde", changed},
    {"WEP to WPA", "shared|WEP|12345", "WPAPSK|TKIP|open sesame", changed},
    {"WPA to open", "WPAPSK|TKIP|open sesame", "open|none", weaker},
    {"WPA to WEP", "WPAPSK|TKIP|open sesame", "open|WEP|12345", weaker},
    {"WPA to WPA", "WPAPSK|TKIP|open sesame", "WPAPSK|TKIP|sesame street", changed},
    {"WPA with CCMP to TKIP", "WPAPSK|CCMP|open sesame", "WPAPSK|TKIP|sesame street", weaker},
    {"WPA with TKIP to CCMP", "WPAPSK|TKIP|open sesame", "WPAPSK|CCMP|sesame street", changed},
    {"WPA with CCMP to WPA2 with TKIP", "WPAPSK|CCMP|open sesame", "WPA2PSK|TKIP|sesame street", weaker},
    {"WPA2 with TKIP to WPA with CCMP", "WPA2PSK|TKIP|open sesame", "WPAPSK|CCMP|sesame street", weaker},
    {"WPA to WPA2", "WPAPSK|CCMP|open sesame", "WPA2PSK|CCMP|sesame street", changed},
    {"WPA2 to WPA", "WPA2PSK|CCMP|open sesame", "WPAPSK|CCMP|sesame street", weaker},
    {"WPA2 to WPA2", "WPA2PSK|CCMP|open sesame", "WPA2PSK|CCMP|sesame street", changed},
    {"WPA2 to open", "WPA2PSK|CCMP|open sesame", "open|none", weaker},
    {"WPA2 to an account", "WPA2PSK|CCMP|open sesame", "WPA2(EAP)|CCMP", incomplete},
    {"WPA2 to an account with a key", "WPA2PSK|CCMP|open sesame", "WPA2(EAP)|CCMP|sesame street", incomplete},
};

const Change changesOfKey[] = {
    {"no key", "WPA2PSK|CCMP|open sesame", "WPA2PSK|CCMP|", incomplete},
    {"no key for a stronger method", "open|none", "WPA2PSK|CCMP|", incomplete},
    {"7 characters", "WPA2PSK|CCMP|open sesame", "WPA2PSK|CCMP|1234567", incomplete},
    {"8 characters", "WPA2PSK|CCMP|open sesame", "WPA2PSK|CCMP|12345678", changed},
    {"4 characters for WEP", "open|WEP|12345", "open|WEP|1234", incomplete},
    {"6 characters for WEP", "open|WEP|12345", "open|WEP|123456", incomplete},
    {"13 characters for WEP", "open|WEP|12345", "open|WEP|thirteen sign", changed},
    {"10 characters that are no digits", "open|WEP|12345", "open|WEP|012345678g", incomplete},
    {"key that nothing used", "open|none|left over", "open|none", incomplete},
    {"key that nothing would use", "open|none|left over", "open|none|open sesame", incomplete},
    {"key that nothing used gives way to one", "open|none|left over", "WPA2PSK|CCMP|open sesame", changed},
};

} // namespace

void tst_storedrules::ProfileOfThatNameIsChangedOrKept_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("result");

    for (const Change &change : changesOfMethod) {
        Row(change.row, QString(change.before), QString(change.wanted), change.result);
    }
    for (const Change &change : changesOfKey) {
        Row(change.row, QString(change.before), QString(change.wanted), change.result);
    }
    const QString wpa = "WPA2PSK|CCMP|";
    const QString wep = "open|WEP|";
    Row("63 characters", wpa + "open sesame", wpa + QString(63, 'z'), changed);
    Row("64 characters", wpa + "open sesame", wpa + QString(64, 'z'), incomplete);
    Row("64 digits", wpa + "open sesame", wpa + Hexadecimal(64), changed);
    Row("65 digits", wpa + "open sesame", wpa + Hexadecimal(65), incomplete);
    Row("10 digits for WEP", wep + "12345", wep + Hexadecimal(10), changed);
    Row("26 digits for WEP", wep + "12345", wep + Hexadecimal(26), changed);
    Row("32 digits for WEP", wep + "12345", wep + Hexadecimal(32), changed);
    Row("31 digits for WEP", wep + "12345", wep + Hexadecimal(31), incomplete);
}

void tst_storedrules::ProfileOfThatNameIsChangedOrKept()
{
    QFETCH(QString, before);
    QFETCH(QString, wanted);
    QFETCH(int, result);
    StoredFixture fixture;
    const WLANProfile old = OldProfile("Under the roof", "attic", before);
    Remember(fixture, old);
    QCOMPARE(Wlan()->CreateWLANProfile(OldProfile("Downstairs", "cellar", wpa2)), int(WLANResultSuccess));
    const QByteArray file = StoredFixture::Read(fixture.ProfilesPath());

    const WLANProfile made = NewProfile("Under the roof", "skylight", wanted);
    QCOMPARE(Wlan()->CreateWLANProfile(made), result);
    if (result != WLANResultSuccess) {
        QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), file);
        return;
    }
    WLANProfile expected = old;
    expected.ssid = "skylight";
    SetMethod(wanted, &expected);
    expected.keyType = made.keyType;
    expected.keyIndex = "2";
    QCOMPARE(TextsOf("Under the roof"), Texts(expected));
    QCOMPARE(TextsOf("Downstairs"), Texts(OldProfile("Downstairs", "cellar", wpa2)));
    QCOMPARE(RememberedCount(), 2);
}

void tst_storedrules::ProfileOfAnotherKindOfNetworkIsKept()
{
    StoredFixture fixture;
    WLANProfile old = OldProfile("Under the roof", "attic", wpa2);
    old.bssType = "IBSS";
    Remember(fixture, old);
    const QByteArray file = StoredFixture::Read(fixture.ProfilesPath());
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("Under the roof", "attic", wpa2)),
             int(WLANResultUndescribedProfile));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), file);
}

void tst_storedrules::ProfileWithoutANetworkNameDoesNotTakeItAway()
{
    StoredFixture fixture;
    Remember(fixture, OldProfile("Under the roof", "attic", wpa2));
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("Under the roof", "", wpa2)), int(WLANResultSuccess));
    WLANProfile profile;
    Wlan()->GetProfileByName("Under the roof", &profile);
    QCOMPARE(profile.ssid, QString("attic"));
}

void tst_storedrules::SeveralProfilesOfOneNameAreKept()
{
    StoredFixture fixture;
    const QByteArray file = "<wlanprofiles><profile profileName='Roof' ssid='attic'/>"
                            "<profile profileName='Roof' ssid='skylight'/></wlanprofiles>";
    StoredFixture::Write(fixture.ProfilesPath(), file);
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("Roof", "attic", "open|none")),
             int(WLANResultSeveralProfiles));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), file);
}

void tst_storedrules::ProfileOfAnotherNameIsNeverChanged_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("result");
    Row("account", "WPA2(EAP)|CCMP", wpa2, int(WLANResultBetterProfile));
    Row("weaker", wpa2, "open|none", int(WLANResultBetterProfile));
    Row("key not complete", wpa2, "WPA2PSK|CCMP|short", int(WLANResultBetterProfile));
    Row("the same", wpa2, "WPA2PSK|CCMP|sesame street", int(WLANResultSuccess));
    Row("stronger", "open|none", wpa2, int(WLANResultSuccess));
}

void tst_storedrules::ProfileOfAnotherNameIsNeverChanged()
{
    QFETCH(QString, before);
    QFETCH(QString, wanted);
    QFETCH(int, result);
    StoredFixture fixture;
    Remember(fixture, OldProfile("Under the roof", "attic", before));
    QCOMPARE(Wlan()->CreateWLANProfile(OldProfile("Downstairs", "cellar", "open|none")),
             int(WLANResultSuccess));
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("attic", "attic", wanted)), result);
    QCOMPARE(TextsOf("Under the roof"), Texts(OldProfile("Under the roof", "attic", before)));
    QCOMPARE(TextsOf("attic"),
             result == WLANResultSuccess ? Texts(NewProfile("attic", "attic", wanted)) : QString("none"));
}

void tst_storedrules::CaseCounts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("network");
    Row("of the name", "under the roof", "skylight");
    Row("of the network name", "Upstairs", "Attic");
}

void tst_storedrules::CaseCounts()
{
    QFETCH(QString, name);
    QFETCH(QString, network);
    StoredFixture fixture;
    const WLANProfile old = OldProfile("Under the roof", "attic", wpa2);
    Remember(fixture, old);
    const WLANProfile made = NewProfile(name, network, "open|none");
    QCOMPARE(Wlan()->CreateWLANProfile(made), int(WLANResultSuccess));
    QCOMPARE(TextsOf("Under the roof"), Texts(old));
    QCOMPARE(TextsOf(name), Texts(made));
}

void tst_storedrules::NetworksThatOthersMakeAreOtherNetworks()
{
    StoredFixture fixture;
    WLANProfile old = OldProfile("Under the roof", "attic", wpa2);
    old.bssType = "IBSS";
    Remember(fixture, old);
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("attic", "attic", "open|none")), int(WLANResultSuccess));
    QCOMPARE(TextsOf("Under the roof"), Texts(old));
}

void tst_storedrules::ProfilesWithoutANetworkNameAreForNone()
{
    StoredFixture fixture;
    Remember(fixture, OldProfile("Under the roof", "", wpa2));
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("attic", "", "open|none")), int(WLANResultSuccess));
    QCOMPARE(RememberedCount(), 2);
}

QTEST_GUILESS_MAIN(tst_storedrules)
#include "tst_storedrules.moc"
