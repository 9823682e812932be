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

/** Name and type of every remembered profile. */
QStringList Remembered()
{
    QList<RememberedList> list;
    Wlan()->GetRememberedList(&list);
    QStringList texts;
    for (int i = 0; i < list.size(); ++i) {
        texts.append(list.at(i).name + "/" + list.at(i).type);
    }
    return texts;
}

WLANProfile ProfileNamed(const QString &name)
{
    WLANProfile profile;
    profile.profileName = name;
    return profile;
}

QStringList Texts(const WLANProfile &profile)
{
    return QStringList() << profile.profileName << profile.text1 << profile.text2 << profile.text3
                         << profile.text4 << profile.ssid << profile.bssType << profile.connectionMode
                         << profile.authentication << profile.encryption << profile.keyType << profile.keyFlag
                         << profile.keyMaterial << profile.keyIndex << profile.text14 << profile.readOnly
                         << profile.text16 << profile.text17;
}

/** A profile whose texts all differ, each with text in it. */
WLANProfile FullProfile(const QString &text)
{
    WLANProfile profile;
    profile.profileName = text;
    profile.text1 = "1" + text;
    profile.text2 = "2" + text;
    profile.text3 = "3" + text;
    profile.text4 = "4" + text;
    profile.ssid = "5" + text;
    profile.bssType = "6" + text;
    profile.connectionMode = "7" + text;
    profile.authentication = "8" + text;
    profile.encryption = "9" + text;
    profile.keyType = "10" + text;
    profile.keyFlag = "11" + text;
    profile.keyMaterial = "12" + text;
    profile.keyIndex = "13" + text;
    profile.text14 = "14" + text;
    profile.readOnly = "15" + text;
    profile.text16 = "16" + text;
    profile.text17 = "17" + text;
    return profile;
}

} // namespace

class tst_storedprofiles : public QObject
{
    Q_OBJECT

private slots:
    void FirstUseFindsASample();
    void SampleHasOneReadOnlyProfile();
    void SampleIsNotMadeAgainOverAnEmptyList();
    void ListFollowsTheFileAndAppends();
    void ProfileIsFoundByItsExactName_data();
    void ProfileIsFoundByItsExactName();
    void UnknownNameLeavesTheOutputUntouched();
    void NewProfileIsAppendedAndRemembered();
    void ReadOnlyProfileIsNotChanged();
    void OnlyTheExactWordProtectsAProfile_data();
    void OnlyTheExactWordProtectsAProfile();
    void MobileEntryIsNotChangedByAWifiProfile();
    void EmptyNameIsRefused();
    void NullPointersAreRefused();
    void AnyTextComesBackAsItWas_data();
    void AnyTextComesBackAsItWas();
    void BackslashesWrittenByHandAreRead_data();
    void BackslashesWrittenByHandAreRead();
    void MissingTextsAreEmptyAndTheTypeIsWifi();
    void OfANameThatStandsTwiceTheFirstIsGiven();
};

void tst_storedprofiles::FirstUseFindsASample()
{
    StoredFixture fixture;
    QVERIFY(!QFile::exists(fixture.ProfilesPath()));
    const QStringList expected = QStringList() << "Home/1"
                                               << "Office/1" << QString::fromUtf8("Café/1")
                                               << QString::fromUtf8("شبكة المنزل/1") << "Old printer/1"
                                               << "Company/1"
                                               << "Mobile broadband/2";
    QCOMPARE(Remembered(), expected);
    QVERIFY(QFile::exists(fixture.ProfilesPath()));
    StoredFixture::Restart();
    QCOMPARE(Remembered(), expected);
}

void tst_storedprofiles::SampleHasOneReadOnlyProfile()
{
    StoredFixture fixture;
    QStringList protectedNames;
    const QStringList all = Remembered();
    for (int i = 0; i < all.size(); ++i) {
        WLANProfile profile;
        QCOMPARE(Wlan()->GetProfileByName(all.at(i).section('/', 0, 0), &profile), int(WLANResultSuccess));
        if (profile.readOnly == "true") {
            protectedNames.append(profile.profileName);
        }
    }
    QCOMPARE(protectedNames, QStringList() << "Company");
}

void tst_storedprofiles::SampleIsNotMadeAgainOverAnEmptyList()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(), "<wlanprofiles/>");
    QCOMPARE(Remembered(), QStringList());
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), QByteArray("<wlanprofiles/>"));
}

void tst_storedprofiles::ListFollowsTheFileAndAppends()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(),
                         "<wlanprofiles><profile profileName='z'/><profile type='3' profileName='a'/>"
                         "<!-- a comment --><profile type='1' profileName='m'/></wlanprofiles>");
    QList<RememberedList> list;
    RememberedList before;
    before.name = "before";
    list.append(before);
    QCOMPARE(Wlan()->GetRememberedList(&list), int(WLANResultSuccess));
    QCOMPARE(list.size(), 4);
    QCOMPARE(list.first().name, QString("before"));
    QCOMPARE(Remembered(), QStringList() << "z/1"
                                         << "a/3"
                                         << "m/1");
}

void tst_storedprofiles::ProfileIsFoundByItsExactName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("known");

    Row("as it is", "Home", true);
    Row("mobile broadband", "Mobile broadband", true);
    Row("other case", "home", false);
    Row("blank behind", "Home ", false);
    Row("part", "Hom", false);
    Row("empty", "", false);
}

void tst_storedprofiles::ProfileIsFoundByItsExactName()
{
    QFETCH(QString, name);
    QFETCH(bool, known);
    StoredFixture fixture;
    WLANProfile profile;
    QCOMPARE(Wlan()->GetProfileByName(name, &profile),
             int(known ? WLANResultSuccess : WLANResultUnknownName));
    QCOMPARE(profile.profileName, known ? name : QString());
}

void tst_storedprofiles::UnknownNameLeavesTheOutputUntouched()
{
    StoredFixture fixture;
    WLANProfile profile = FullProfile("before");
    QCOMPARE(Wlan()->GetProfileByName("nobody", &profile), int(WLANResultUnknownName));
    QCOMPARE(Texts(profile), Texts(FullProfile("before")));
}

void tst_storedprofiles::NewProfileIsAppendedAndRemembered()
{
    StoredFixture fixture;
    const QStringList before = Remembered();
    QCOMPARE(Wlan()->CreateWLANProfile(FullProfile("new")), int(WLANResultSuccess));
    StoredFixture::Restart();
    QCOMPARE(Remembered(), before + (QStringList() << "new/1"));
    WLANProfile profile;
    QCOMPARE(Wlan()->GetProfileByName("new", &profile), int(WLANResultSuccess));
    QCOMPARE(Texts(profile), Texts(FullProfile("new")));
}

void tst_storedprofiles::ReadOnlyProfileIsNotChanged()
{
    StoredFixture fixture;
    Remembered();
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("Company")), int(WLANResultReadOnlyProfile));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), before);
}

void tst_storedprofiles::OnlyTheExactWordProtectsAProfile_data()
{
    QTest::addColumn<QString>("readOnly");
    QTest::addColumn<int>("result");

    Row("true", "true", int(WLANResultReadOnlyProfile));
    Row("TRUE", "TRUE", int(WLANResultSuccess));
    Row("1", "1", int(WLANResultSuccess));
    Row("blank", "true ", int(WLANResultSuccess));
    Row("empty", "", int(WLANResultSuccess));
}

void tst_storedprofiles::OnlyTheExactWordProtectsAProfile()
{
    QFETCH(QString, readOnly);
    QFETCH(int, result);
    StoredFixture fixture;
    WLANProfile profile = ProfileNamed("guarded");
    profile.readOnly = readOnly;
    QCOMPARE(Wlan()->CreateWLANProfile(profile), int(WLANResultSuccess));
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("guarded")), result);
}

void tst_storedprofiles::MobileEntryIsNotChangedByAWifiProfile()
{
    StoredFixture fixture;
    const QStringList before = Remembered();
    QVERIFY(before.contains("Mobile broadband/2"));
    WLANProfile wifi = ProfileNamed("Mobile broadband");
    wifi.ssid = "wifi";
    QCOMPARE(Wlan()->CreateWLANProfile(wifi), int(WLANResultSuccess));
    QCOMPARE(Remembered(), before + (QStringList() << "Mobile broadband/1"));
    WLANProfile profile;
    Wlan()->GetProfileByName("Mobile broadband", &profile);
    QCOMPARE(profile.ssid, QString("wifi"));
}

void tst_storedprofiles::EmptyNameIsRefused()
{
    StoredFixture fixture;
    const QStringList before = Remembered();
    QCOMPARE(Wlan()->CreateWLANProfile(WLANProfile()), int(WLANResultEmptyName));
    QCOMPARE(Remembered(), before);
}

void tst_storedprofiles::NullPointersAreRefused()
{
    StoredFixture fixture;
    QCOMPARE(Wlan()->GetRememberedList(nullptr), int(WLANResultNullPointer));
    QCOMPARE(Wlan()->GetProfileByName("Home", nullptr), int(WLANResultNullPointer));
    QCOMPARE(Wlan()->GetConfigData(nullptr), int(WLANResultNullPointer));
    QCOMPARE(Wlan()->GetAvailableNetworks(nullptr), int(WLANResultNullPointer));
    QCOMPARE(Wlan()->GetNetworkProfile(WlanAvilableNetworkInfo(), nullptr), 0);
}

void tst_storedprofiles::AnyTextComesBackAsItWas_data()
{
    QTest::addColumn<QString>("text");

    QString controls;
    for (ushort unit = 0; unit < 0x20; ++unit) {
        controls += QChar(unit);
    }
    QString upperControls;
    for (ushort unit = 0x7f; unit < 0xa1; ++unit) {
        upperControls += QChar(unit);
    }
    const QChar high(ushort(0xd83d));
    const QChar low(ushort(0xde00));
    Row("controls", controls);
    Row("upper controls", upperControls);
    Row("zero in the middle", "a" + QString(QChar(ushort(0))) + "b");
    Row("line ends", "a\nb\r\nc\rd\te");
    Row("blanks around", "  a  b  ");
    Row("only a blank", " ");
    Row("markup", "<a href=\"x\">&amp;'</a>]]>");
    Row("non-ASCII", QString::fromUtf8("Café مقهى 咖啡"));
    Row("pair", QString(high) + low);
    Row("lone high", "a" + QString(high) + "b");
    Row("lone low", "a" + QString(low) + "b");
    Row("high at the end", "a" + QString(high));
    Row("swapped pair", QString(low) + high);
    Row("two high and a low", QString(high) + high + low);
    Row("U+FFFE and U+FFFF", QString(QChar(ushort(0xfffe))) + QChar(ushort(0xffff)));
    Row("U+FDD0 and U+FFFD", QString(QChar(ushort(0xfdd0))) + QChar(ushort(0xfffd)));
    Row("U+1FFFE", QString(QChar(ushort(0xd83f))) + QChar(ushort(0xdffe)));
    Row("byte order mark", QString(QChar(ushort(0xfeff))) + "a");
    Row("line separator", QString(QChar(ushort(0x2028))) + "a");
    Row("backslash", "\\");
    Row("two backslashes", "\\\\");
    Row("looks escaped", "\\u0041 \\\\u0041 \\u004 \\x");
    Row("percent", "%1 %s %n");
    Row("long", QString(100000, QChar('x')));
}

void tst_storedprofiles::AnyTextComesBackAsItWas()
{
    QFETCH(QString, text);
    StoredFixture fixture;
    const WLANProfile stored = FullProfile(text);
    QCOMPARE(Wlan()->CreateWLANProfile(stored), int(WLANResultSuccess));
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("behind")), int(WLANResultSuccess));

    StoredFixture::Restart();
    WLANProfile given;
    QCOMPARE(Wlan()->GetProfileByName(text, &given), int(WLANResultSuccess));
    QCOMPARE(Texts(given), Texts(stored));
    QCOMPARE(Remembered().last(), QString("behind/1"));
}

void tst_storedprofiles::BackslashesWrittenByHandAreRead_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("name");

    Row("escape", QByteArray("\\u00e9\\u00C9"), QString::fromUtf8("éÉ"));
    Row("doubled", QByteArray("a\\\\b"), "a\\b");
    Row("single", QByteArray("a\\b"), "a\\b");
    Row("at the end", QByteArray("a\\"), "a\\");
    Row("short escape", QByteArray("\\u12"), "\\u12");
    Row("no digits", QByteArray("\\u00g1"), "\\u00g1");
    Row("doubled before u", QByteArray("\\\\u0041"), "\\u0041");
}

void tst_storedprofiles::BackslashesWrittenByHandAreRead()
{
    QFETCH(QByteArray, written);
    QFETCH(QString, name);
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(),
                         "<wlanprofiles><profile profileName='" + written + "'/></wlanprofiles>");
    QCOMPARE(Remembered(), QStringList() << name + "/1");
}

void tst_storedprofiles::MissingTextsAreEmptyAndTheTypeIsWifi()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(),
                         "<?xml version='1.0'?>\n<wlanprofiles>\n<profile profileName='n' ssid='s'/>\n"
                         "</wlanprofiles>\n");
    QCOMPARE(Remembered(), QStringList() << "n/1");
    WLANProfile profile;
    QCOMPARE(Wlan()->GetProfileByName("n", &profile), int(WLANResultSuccess));
    WLANProfile expected = ProfileNamed("n");
    expected.ssid = "s";
    QCOMPARE(Texts(profile), Texts(expected));
}

void tst_storedprofiles::OfANameThatStandsTwiceTheFirstIsGiven()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(), "<wlanprofiles><profile profileName='n' ssid='first'/>"
                                                 "<profile profileName='n' ssid='second'/></wlanprofiles>");
    WLANProfile profile;
    Wlan()->GetProfileByName("n", &profile);
    QCOMPARE(profile.ssid, QString("first"));
}

QTEST_MAIN(tst_storedprofiles)
#include "tst_storedprofiles.moc"
