#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <NetworkManagerResult.h>
#include <Row.h>
#include <TraceCapture.h>

#include <QtTest>

#include <pwd.h>
#include <unistd.h>

namespace
{

const char wifi[] = "802-11-wireless";
const char security[] = "802-11-wireless-security";
const char profileInterface[] = "org.freedesktop.NetworkManager.Settings.Connection";
const char modifyOwn[] = "org.freedesktop.NetworkManager.settings.modify.own";
const char modifyShared[] = "org.freedesktop.NetworkManager.settings.modify.system";

QString Myself()
{
    return QString::fromLocal8Bit(getpwuid(geteuid())->pw_name);
}

/** "key=value" of a section, in alphabetical order. */
QStringList Texts(const QVariantMap &section)
{
    QStringList texts;
    for (QVariantMap::const_iterator i = section.constBegin(); i != section.constEnd(); ++i) {
        const bool isList = i.value().userType() == QMetaType::QStringList;
        texts.append(i.key() + "=" + (isList ? i.value().toStringList().join(",") : i.value().toString()));
    }
    return texts;
}

} // namespace

/** What the plug-in tells of profiles and what it stores. */
class tst_networkmanagerprofiles : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void KindsAreTold_data();
    void KindsAreTold();
    void OrderIsAlphabeticalWhateverNetworkManagersIs();
    void ProfilesOfOneNameAreAllListed();
    void HotspotIsNotListed_data();
    void HotspotIsNotListed();

    void ProfileIsFilled();
    void UnknownNameLeavesTheOutputAlone();
    void NameIsCaseSensitive();
    void OfOneNameTheLatestIsGiven();
    void OfOneNameTheWifiProfileIsGiven();
    void KeyIsNeverAskedFor();
    void ReadOnlyIsToldOfWhatCannotBeChanged_data();
    void ReadOnlyIsToldOfWhatCannotBeChanged();
    void SecurityOfAProfileIsTold_data();
    void SecurityOfAProfileIsTold();

    void NewProfileHasTheSecurityOfTheDialog_data();
    void NewProfileHasTheSecurityOfTheDialog();
    void WepKeyHasItsIndex_data();
    void WepKeyHasItsIndex();
    void MethodsWithAnAccountAreRefused_data();
    void MethodsWithAnAccountAreRefused();
    void NetworkNameIsSentAsItsBytes();
    void ChangedProfileKeepsWhatIsNotKnownHere();
    void AccountThatNothingUsesIsKept();
    void ChangeIsBoundToTheVersionThatWasRead_data();
    void ChangeIsBoundToTheVersionThatWasRead();
    void ChangeBySomebodyElseInTheMiddleIsTold();
    void QuestionForWepKeysIsNoChangeBySomebodyElse_data();
    void QuestionForWepKeysIsNoChangeBySomebodyElse();
    void WepProfileIsKeptWhenItsOtherKeysCannotBeHad_data();
    void WepProfileIsKeptWhenItsOtherKeysCannotBeHad();
    void ReadOnlyProfileIsNotChanged();
    void ProfileIsForEverybodyOrForItsMaker_data();
    void ProfileIsForEverybodyOrForItsMaker();
    void WhatCannotBeStoredIsRefusedBeforeItIsSent_data();
    void WhatCannotBeStoredIsRefusedBeforeItIsSent();
    void KeyIsInNoLine();
    void ProfileIsStoredWhileTheProgramEnds();
    void ProgramEndsWithoutAnAnswer();
};

void tst_networkmanagerprofiles::KindsAreTold_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("told");

    Row("Wi-Fi", "802-11-wireless", QStringList("A/1"));
    Row("GSM", "gsm", QStringList("A/2"));
    Row("CDMA", "cdma", QStringList("A/2"));
    Row("wired", "802-3-ethernet", QStringList());
    Row("VPN", "vpn", QStringList());
    Row("unheard of", "telepathy", QStringList());
}

void tst_networkmanagerprofiles::KindsAreTold()
{
    QFETCH(QString, type);
    Fake().AddProfile("A", type);
    QTEST(LoadedWLAN::Remembered(), "told");
}

void tst_networkmanagerprofiles::OrderIsAlphabeticalWhateverNetworkManagersIs()
{
    const char *const names[] = {"b", "Zoo", "a", "B", "10", "2", "\xc3\xa4"};
    for (const char *name : names) {
        Fake().AddProfile(QString::fromUtf8(name));
    }
    const QStringList told = LoadedWLAN::Remembered();
    QCOMPARE(told.size(), 7);
    QVERIFY(told.indexOf("a/1") < told.indexOf("B/1"));
    QVERIFY(told.indexOf("B/1") < told.indexOf("b/1"));
    QVERIFY(told.indexOf("b/1") < told.indexOf("Zoo/1"));
    QCOMPARE(LoadedWLAN::Remembered(), told);
}

void tst_networkmanagerprofiles::ProfilesOfOneNameAreAllListed()
{
    Fake().AddProfile("A");
    Fake().AddProfile("A");
    QCOMPARE(LoadedWLAN::Remembered(), QStringList() << "A/1"
                                                     << "A/1");
}

void tst_networkmanagerprofiles::HotspotIsNotListed_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("told");
    Row("hotspot", "ap", QStringList("B/1"));
    Row("without a station", "adhoc",
        (QStringList() << "A/1"
                       << "B/1"));
}

void tst_networkmanagerprofiles::HotspotIsNotListed()
{
    QFETCH(QString, mode);
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings[wifi]["mode"] = mode;
    Fake().AddProfile(settings);
    Fake().AddProfile("B");
    QTEST(LoadedWLAN::Remembered(), "told");
}

void tst_networkmanagerprofiles::ProfileIsFilled()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("Office");
    settings["connection"]["autoconnect"] = false;
    settings[wifi]["ssid"] = QByteArray("office net");
    settings[wifi]["mode"] = "adhoc";
    Fake().AddProfile(settings);

    const WLANProfile profile = LoadedWLAN::ProfileNamed("Office");
    QCOMPARE(profile.profileName, QString("Office"));
    QCOMPARE(profile.ssid, QString("office net"));
    QCOMPARE(profile.bssType, QString("IBSS"));
    QCOMPARE(profile.connectionMode, QString("manual"));
    QCOMPARE(profile.readOnly, QString("false"));
    QCOMPARE(profile.authentication, QString("open"));
    QCOMPARE(profile.encryption, QString("none"));
    QCOMPARE(profile.keyType, QString("passPhrase"));
    QCOMPARE(profile.keyIndex, QString("0"));
    QVERIFY(profile.keyMaterial.isNull());
}

void tst_networkmanagerprofiles::UnknownNameLeavesTheOutputAlone()
{
    WLANProfile profile;
    profile.text17 = "as it was";
    TraceCapture trace;
    QCOMPARE(LoadedWLAN::Wlan()->GetProfileByName("nobody", &profile), int(NetworkManagerResultUnknownName));
    QCOMPARE(profile.text17, QString("as it was"));
    QVERIFY(profile.profileName.isNull() && profile.readOnly.isNull());
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_networkmanagerprofiles::NameIsCaseSensitive()
{
    Fake().AddProfile("home");
    WLANProfile profile;
    QCOMPARE(LoadedWLAN::Wlan()->GetProfileByName("Home", &profile), int(NetworkManagerResultUnknownName));
}

void tst_networkmanagerprofiles::OfOneNameTheLatestIsGiven()
{
    const qulonglong times[] = {100, 300, 200};
    for (const qulonglong time : times) {
        NMVariantMapMap settings = FakeNetworkManager::Settings("A");
        settings["connection"]["timestamp"] = time;
        settings[wifi]["ssid"] = QByteArray::number(time);
        Fake().AddProfile(settings);
    }
    QCOMPARE(LoadedWLAN::ProfileNamed("A").ssid, QString("300"));
}

void tst_networkmanagerprofiles::OfOneNameTheWifiProfileIsGiven()
{
    NMVariantMapMap mobile = FakeNetworkManager::Settings("A", "gsm");
    mobile["connection"]["timestamp"] = qulonglong(300);
    Fake().AddProfile(mobile);
    Fake().AddProfile("A");
    QCOMPARE(LoadedWLAN::ProfileNamed("A").ssid, QString("A"));
}

void tst_networkmanagerprofiles::KeyIsNeverAskedFor()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings[security]["key-mgmt"] = "wpa-psk";
    settings[security]["psk"] = "open sesame";
    Fake().AddProfile(settings);
    QVERIFY(LoadedWLAN::ProfileNamed("A").keyMaterial.isNull());
    QCOMPARE(Fake().CallCount("GetSecrets"), 0);
}

void tst_networkmanagerprofiles::ReadOnlyIsToldOfWhatCannotBeChanged_data()
{
    QTest::addColumn<QStringList>("permissions");
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("shared");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("readOnly");

    const QStringList everybody;
    const QStringList mine("user:" + Myself() + ":");
    const QStringList others("user:somebody.else:");
    const QStringList ours = QStringList() << others << mine;
    Row("everybody's", everybody, "yes", "yes", "", QVariant(), "false");
    Row("mine", mine, "yes", "no", "", QVariant(), "false");
    Row("mine, by nobody", mine, "no", "yes", "", QVariant(), "true");
    Row("ours", ours, "no", "yes", "", QVariant(), "false");
    Row("others'", others, "yes", "yes", "", QVariant(), "true");
    Row("everybody's, by nobody", everybody, "yes", "no", "", QVariant(), "true");
    Row("with a password", everybody, "no", "auth", "", QVariant(), "false");
    Row("not on disk", everybody, "yes", "yes", "Unsaved", QVariant(true), "true");
    Row("unsaved flag", everybody, "yes", "yes", "Flags", QVariant(1U), "true");
    Row("made by itself", everybody, "yes", "yes", "Flags", QVariant(2U), "true");
    Row("volatile", everybody, "yes", "yes", "Flags", QVariant(4U), "true");
    Row("external", everybody, "yes", "yes", "Flags", QVariant(8U), "true");
    Row("no file", everybody, "yes", "yes", "Filename", QVariant(""), "true");
    Row("the system's", everybody, "yes", "yes", "Filename",
        QVariant("/usr/lib/NetworkManager/system-connections/a"), "true");
    Row("until the next start", everybody, "yes", "yes", "Filename",
        QVariant("/run/NetworkManager/system-connections/a"), "true");
}

void tst_networkmanagerprofiles::ReadOnlyIsToldOfWhatCannotBeChanged()
{
    QFETCH(QStringList, permissions);
    QFETCH(QString, own);
    QFETCH(QString, shared);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    if (!permissions.isEmpty()) {
        settings["connection"]["permissions"] = permissions;
    }
    const QString path = Fake().AddProfile(settings);
    Fake().SetRight(modifyOwn, own);
    Fake().SetRight(modifyShared, shared);
    if (!property.isEmpty()) {
        Fake().SetProperty(path, profileInterface, property, value);
    }
    QTEST(LoadedWLAN::ProfileNamed("A").readOnly, "readOnly");
}

void tst_networkmanagerprofiles::SecurityOfAProfileIsTold_data()
{
    QTest::addColumn<QVariantMap>("section");
    QTest::addColumn<QString>("told");

    QVariantMap section;
    Row("none", section, "open none passPhrase 0");
    section["key-mgmt"] = "none";
    Row("WEP", section, "open WEP networkKey 0");
    section["auth-alg"] = "shared";
    section["wep-tx-keyidx"] = 2U;
    Row("shared WEP", section, "shared WEP networkKey 2");
    section.clear();
    section["key-mgmt"] = "ieee8021x";
    Row("dynamic WEP", section, "IEEE 802.1X none passPhrase 0");
    section["key-mgmt"] = "wpa-psk";
    Row("PSK", section, "WPA2PSK CCMP passPhrase 0");
    section["proto"] = QStringList("wpa");
    section["pairwise"] = QStringList("tkip");
    Row("old PSK", section, "WPAPSK TKIP passPhrase 0");
    section["proto"] = QStringList() << "wpa"
                                     << "rsn";
    section["pairwise"] = QStringList() << "tkip"
                                        << "ccmp";
    Row("both", section, "WPA2PSK CCMP passPhrase 0");
    section["key-mgmt"] = "wpa-eap";
    Row("EAP", section, "WPA2(EAP) CCMP passPhrase 0");
    section["proto"] = QStringList("wpa");
    Row("old EAP", section, "WPA(EAP) CCMP passPhrase 0");
    section.clear();
    section["key-mgmt"] = "sae";
    Row("SAE", section, "WPA2PSK CCMP passPhrase 0");
    section["key-mgmt"] = "owe";
    Row("OWE", section, "open none passPhrase 0");
}

void tst_networkmanagerprofiles::SecurityOfAProfileIsTold()
{
    QFETCH(QVariantMap, section);
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    if (!section.isEmpty()) {
        settings[security] = section;
    }
    Fake().AddProfile(settings);
    const WLANProfile profile = LoadedWLAN::ProfileNamed("A");
    QTEST(profile.authentication + " " + profile.encryption + " " + profile.keyType + " " + profile.keyIndex,
          "told");
}

void tst_networkmanagerprofiles::NewProfileHasTheSecurityOfTheDialog_data()
{
    QTest::addColumn<QString>("authentication");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("stored");

    Row("open", "open", "none", "", QStringList());
    Row("open, with a key typed", "open", "none", "whatever", QStringList());
    Row("WEP", "open", "WEP", "12345",
        (QStringList() << "auth-alg=open"
                       << "key-mgmt=none"
                       << "wep-key-type=1"
                       << "wep-key0=12345"));
    Row("shared WEP", "shared", "WEP", "12345",
        (QStringList() << "auth-alg=shared"
                       << "key-mgmt=none"
                       << "wep-key-type=1"
                       << "wep-key0=12345"));
    Row("WPA, TKIP", "WPAPSK", "TKIP", "12345678",
        (QStringList() << "key-mgmt=wpa-psk"
                       << "pairwise=tkip"
                       << "proto=wpa"
                       << "psk=12345678"));
    Row("WPA, CCMP", "WPAPSK", "CCMP", "12345678",
        (QStringList() << "key-mgmt=wpa-psk"
                       << "pairwise=ccmp"
                       << "proto=wpa"
                       << "psk=12345678"));
    Row("WPA2, TKIP", "WPA2PSK", "TKIP", "12345678",
        (QStringList() << "key-mgmt=wpa-psk"
                       << "pairwise=tkip"
                       << "proto=rsn"
                       << "psk=12345678"));
    Row("WPA2, CCMP", "WPA2PSK", "CCMP", "12345678",
        (QStringList() << "key-mgmt=wpa-psk"
                       << "pairwise=ccmp"
                       << "proto=rsn"
                       << "psk=12345678"));
}

void tst_networkmanagerprofiles::NewProfileHasTheSecurityOfTheDialog()
{
    QFETCH(QString, authentication);
    QFETCH(QString, encryption);
    QFETCH(QString, key);
    QFETCH(QStringList, stored);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", authentication, encryption, key)), 0);
    QCOMPARE(Fake().ProfilePaths().size(), 1);
    const NMVariantMapMap settings = Fake().SettingsOf(Fake().ProfilePaths().first());
    QStringList texts = Texts(settings.value(security));
    texts.removeAll("wep-tx-keyidx=0");
    QCOMPARE(texts, stored);
    QCOMPARE(settings["connection"].value("id").toString(), QString("A"));
    QCOMPARE(settings["connection"].value("type").toString(), QString(wifi));
    QCOMPARE(settings["connection"].value("uuid").toString().size(), 36);
    QCOMPARE(settings[wifi].value("ssid").toByteArray(), QByteArray("A"));
    QCOMPARE(settings[wifi].value("mode").toString(), QString("infrastructure"));
    QVERIFY(!settings.contains("802-1x"));
}

void tst_networkmanagerprofiles::WepKeyHasItsIndex_data()
{
    QTest::addColumn<QString>("index");
    for (int i = 0; i < 4; ++i) {
        const QString index = QString::number(i);
        Row(qPrintable(index), index);
    }
}

void tst_networkmanagerprofiles::WepKeyHasItsIndex()
{
    QFETCH(QString, index);
    WLANProfile profile = LoadedWLAN::NewProfile("A", "open", "WEP", "0123456789");
    profile.keyIndex = index;
    QCOMPARE(LoadedWLAN::Store(profile), 0);
    const QVariantMap stored = Fake().SettingsOf(Fake().ProfilePaths().value(0)).value(security);
    QCOMPARE(stored.value("wep-key" + index).toString(), QString("0123456789"));
    QCOMPARE(stored.value("wep-tx-keyidx").toUInt(), index.toUInt());
    QTRY_COMPARE(LoadedWLAN::ProfileNamed("A").keyIndex, index);
}

void tst_networkmanagerprofiles::MethodsWithAnAccountAreRefused_data()
{
    QTest::addColumn<QString>("authentication");
    QTest::addColumn<QString>("encryption");
    Row("WPA", "WPA(EAP)", "TKIP");
    Row("WPA2", "WPA2(EAP)", "CCMP");
    Row("802.1X", "IEEE 802.1X", "none");
}

void tst_networkmanagerprofiles::MethodsWithAnAccountAreRefused()
{
    QFETCH(QString, authentication);
    QFETCH(QString, encryption);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", authentication, encryption, "")),
             int(NetworkManagerResultNoAccount));
    QCOMPARE(Fake().ProfilePaths(), QStringList());
}

void tst_networkmanagerprofiles::NetworkNameIsSentAsItsBytes()
{
    Fake().AddAccessPoint("Caf\xe9", 50);
    QCOMPARE(LoadedWLAN::InRange(), QStringList("Caf\\xE9"));
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("Caf\\xE9", "open", "none", "")), 0);
    const NMVariantMapMap settings = Fake().SettingsOf(Fake().ProfilePaths().value(0));
    QCOMPARE(settings[wifi].value("ssid").toByteArray(), QByteArray("Caf\xe9"));
    QCOMPARE(settings["connection"].value("id").toString(), QString("Caf\\xE9"));
    QTRY_COMPARE(LoadedWLAN::ProfileNamed("Caf\\xE9").ssid, QString("Caf\\xE9"));
}

void tst_networkmanagerprofiles::ChangedProfileKeepsWhatIsNotKnownHere()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["connection"]["invented-later"] = 12;
    settings[wifi]["ssid"] = QByteArray("before");
    settings[wifi]["invented-later"] = true;
    settings[security]["key-mgmt"] = "wpa-psk";
    settings[security]["invented-later"] = "kept";
    settings["invented-later"]["a"] = QStringList() << "b"
                                                    << "c";
    const QString path = Fake().AddProfile(settings);

    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "12345678")), 0);
    QCOMPARE(Fake().ProfilePaths(), QStringList(path));
    settings[wifi]["ssid"] = QByteArray("A");
    settings[security]["psk"] = "12345678";
    QCOMPARE(Fake().SettingsOf(path), settings);
}

void tst_networkmanagerprofiles::AccountThatNothingUsesIsKept()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings[security]["key-mgmt"] = "wpa-psk";
    settings["802-1x"]["identity"] = "me";
    const QString path = Fake().AddProfile(settings);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "12345678")),
             int(NetworkManagerResultUndescribedProfile));
    QCOMPARE(Fake().SettingsOf(path), settings);
}

void tst_networkmanagerprofiles::ChangeIsBoundToTheVersionThatWasRead_data()
{
    QTest::addColumn<QVariant>("version");
    QTest::addColumn<QVariantMap>("conditions");
    QVariantMap conditions;
    Row("not told", QVariant(), conditions);
    conditions["version-id"] = qulonglong(7);
    Row("told", QVariant(qulonglong(7)), conditions);
}

void tst_networkmanagerprofiles::ChangeIsBoundToTheVersionThatWasRead()
{
    QFETCH(QVariant, version);
    const QString path = Fake().AddProfile("A");
    if (version.isValid()) {
        Fake().SetProperty(path, profileInterface, "VersionId", version);
    }
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "none", "")), 0);
    QCOMPARE(Fake().CallCount("Update2"), 1);
    QTEST(Fake().ConditionsOfTheLastChange(), "conditions");
}

void tst_networkmanagerprofiles::ChangeBySomebodyElseInTheMiddleIsTold()
{
    Fake().AddProfile("A");
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.Settings.VersionIdMismatch");
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "none", "")),
             int(NetworkManagerResultChangedMeanwhile));
}

void tst_networkmanagerprofiles::QuestionForWepKeysIsNoChangeBySomebodyElse_data()
{
    QTest::addColumn<qulonglong>("changes");
    QTest::addColumn<int>("result");
    Row("not counted", qulonglong(0), 0);
    Row("counted", qulonglong(1), 0);
    Row("somebody else's, too", qulonglong(2), int(NetworkManagerResultChangedMeanwhile));
}

void tst_networkmanagerprofiles::QuestionForWepKeysIsNoChangeBySomebodyElse()
{
    QFETCH(qulonglong, changes);
    QFETCH(int, result);
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings[security]["key-mgmt"] = "none";
    settings[security]["wep-key1"] = "abcde";
    const QString path = Fake().AddProfile(settings);
    Fake().SetProperty(path, profileInterface, "VersionId", qulonglong(7));
    Fake().SetChangesByKeyQuestion(changes);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "WEP", "12345")), result);
    QCOMPARE(Fake().SettingsOf(path) == settings, result != 0);
    QCOMPARE(Fake().SettingsOf(path)[security]["wep-key1"], QVariant("abcde"));
}

void tst_networkmanagerprofiles::WepProfileIsKeptWhenItsOtherKeysCannotBeHad_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("result");
    Row("none there", "org.freedesktop.NetworkManager.AgentManager.NoSecrets", 0);
    Row("denied", "org.freedesktop.NetworkManager.Settings.PermissionDenied",
        int(NetworkManagerResultPermissionDenied));
    Row("failed", "org.freedesktop.NetworkManager.Settings.Failed", int(NetworkManagerResultFailed));
}

void tst_networkmanagerprofiles::WepProfileIsKeptWhenItsOtherKeysCannotBeHad()
{
    QFETCH(QString, error);
    QFETCH(int, result);
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings[security]["key-mgmt"] = "none";
    const QString path = Fake().AddProfile(settings);
    Fake().AnswerWithError("GetSecrets", error);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "WEP", "12345")), result);
    QCOMPARE(Fake().CallCount("Update2"), result == 0 ? 1 : 0);
    QCOMPARE(Fake().SettingsOf(path) == settings, result != 0);
}

void tst_networkmanagerprofiles::ReadOnlyProfileIsNotChanged()
{
    const NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    const QString path = Fake().AddProfile(settings);
    Fake().SetProperty(path, profileInterface, "Unsaved", true);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "12345678")),
             int(NetworkManagerResultReadOnlyProfile));
    QCOMPARE(Fake().ProfilePaths(), QStringList(path));
    QCOMPARE(Fake().SettingsOf(path), settings);
}

void tst_networkmanagerprofiles::ProfileIsForEverybodyOrForItsMaker_data()
{
    QTest::addColumn<QString>("shared");
    QTest::addColumn<QString>("own");
    QTest::addColumn<QStringList>("permissions");
    const QStringList mine("user:" + Myself() + ":");
    Row("may do all", "yes", "yes", QStringList());
    Row("may do own", "no", "yes", mine);
    Row("would have to give a password", "auth", "yes", mine);
    Row("password for both", "auth", "auth", QStringList());
}

void tst_networkmanagerprofiles::ProfileIsForEverybodyOrForItsMaker()
{
    QFETCH(QString, shared);
    QFETCH(QString, own);
    Fake().SetRight(modifyShared, shared);
    Fake().SetRight(modifyOwn, own);
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "open", "none", "")), 0);
    QTEST(Fake().SettingsOf(Fake().ProfilePaths().value(0))["connection"].value("permissions").toStringList(),
          "permissions");
}

void tst_networkmanagerprofiles::WhatCannotBeStoredIsRefusedBeforeItIsSent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ssid");
    QTest::addColumn<QString>("authentication");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("index");
    QTest::addColumn<int>("result");

    const QString zero = QString("a") + QChar(ushort(0)) + "b";
    const QString half = QString("a") + QChar(ushort(0xd800));
    const QString longest(32, 'x');
    const int badName = NetworkManagerResultUnusableName;
    const int badNetwork = NetworkManagerResultUnusableNetworkName;
    const int badSecurity = NetworkManagerResultUnusableSecurity;
    Row("no name", "", "A", "open", "none", "", "0", badName);
    Row("zero in the name", zero, "A", "open", "none", "", "0", badName);
    Row("half a character in the name", half, "A", "open", "none", "", "0", badName);
    Row("no network name", "A", "", "open", "none", "", "0", badNetwork);
    Row("longest network name", "A", longest, "open", "none", "", "0", 0);
    Row("network name too long", "A", longest + "x", "open", "none", "", "0", badNetwork);
    Row("too many bytes", "A", QString(17, QChar(ushort(0xe9))), "open", "none", "", "0", badNetwork);
    Row("unknown authentication", "A", "A", "WPA3", "CCMP", "12345678", "0", badSecurity);
    Row("unknown encryption", "A", "A", "WPAPSK", "AES", "12345678", "0", badSecurity);
    Row("shared without encryption", "A", "A", "shared", "none", "", "0", badSecurity);
    Row("open with CCMP", "A", "A", "open", "CCMP", "12345678", "0", badSecurity);
    Row("WPA with WEP", "A", "A", "WPAPSK", "WEP", "12345678", "0", badSecurity);
    Row("no index", "A", "A", "open", "WEP", "12345", "", badSecurity);
    Row("index too large", "A", "A", "open", "WEP", "12345", "4", badSecurity);
    Row("negative index", "A", "A", "open", "WEP", "12345", "-1", badSecurity);
    Row("zero in the key", "A", "A", "WPA2PSK", "CCMP", zero + "12345678", "0", badSecurity);
}

void tst_networkmanagerprofiles::WhatCannotBeStoredIsRefusedBeforeItIsSent()
{
    QFETCH(QString, name);
    QFETCH(QString, ssid);
    QFETCH(QString, authentication);
    QFETCH(QString, encryption);
    QFETCH(QString, key);
    QFETCH(QString, index);
    QFETCH(int, result);
    WLANProfile profile = LoadedWLAN::NewProfile(name, authentication, encryption, key);
    profile.ssid = ssid;
    profile.keyIndex = index;
    TraceCapture trace;
    QCOMPARE(LoadedWLAN::Store(profile), result);
    QCOMPARE(Fake().CallCount("AddConnection"), result == 0 ? 1 : 0);
    QCOMPARE(trace.Lines().size(), result == 0 ? 0 : 1);
}

void tst_networkmanagerprofiles::KeyIsInNoLine()
{
    TraceCapture trace;
    const char *const errors[] = {"org.freedesktop.NetworkManager.Settings.Connection.InvalidProperty",
                                  "org.freedesktop.NetworkManager.Settings.PermissionDenied"};
    for (const char *error : errors) {
        Fake().AnswerWithError("AddConnection", error);
        LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "open sesame"));
        LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA3", "CCMP", "open sesame"));
    }
    QVERIFY(trace.Lines().size() >= 2);
    QVERIFY(!trace.Lines().join("\n").contains("sesame"));
    const QStringList files = QDir(Directory().Path()).entryList(QDir::Files | QDir::Hidden);
    for (int i = 0; i < files.size(); ++i) {
        QVERIFY(!Directory().Read(files.at(i)).contains("sesame"));
    }
}

void tst_networkmanagerprofiles::ProfileIsStoredWhileTheProgramEnds()
{
    Fake().DoNotAnswer("GetSettings");
    Fake().AddProfile("A");
    QCOMPARE(LoadedWLAN::Wlan()->CreateWLANProfile(LoadedWLAN::NewProfile("B", "open", "none", "")), 0);
    QCOMPARE(Fake().CallCount("AddConnection"), 0);
    QTimer::singleShot(0, this, [this] { Fake().Behave(); });
    LoadedWLAN::Root()->OnDestroy();
    QCOMPARE(Fake().ProfilePaths().size(), 2);
}

void tst_networkmanagerprofiles::ProgramEndsWithoutAnAnswer()
{
    Fake().DoNotAnswer("AddConnection");
    QCOMPARE(LoadedWLAN::Wlan()->CreateWLANProfile(LoadedWLAN::NewProfile("A", "open", "none", "")), 0);
    LoadedWLAN::Root()->OnDestroy();
    QCOMPARE(Fake().CallCount("AddConnection"), 1);
}

QTEST_GUILESS_MAIN(tst_networkmanagerprofiles)
#include "tst_networkmanagerprofiles.moc"
