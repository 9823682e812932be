#include "DialogScene.h"

#include <Row.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/** OK in the new-network dialog: the profile that the WLAN plug-in gets, and the entry that the page gets. */
class tst_NewProfile : public QObject, public MessageVisitor
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void allFields_data();
    void allFields();
    void keyIndexes_data();
    void keyIndexes();
    void hiddenKeyIndexIsRead();
    void disabledKeyIndexIsNot();
    void keyIndexWithoutAChoice();
    void everyTryIsAFreshProfile();
    void entryIsAppendedAndSelected();
    void emptyNameIsRefusedFirst();
    void fieldsStayAfterAnEmptyName();
    void blankNameIsAName();
    void repeatedNameIsRefused_data();
    void repeatedNameIsRefused();
    void caseMakesAnotherName();
    void profileIsCreatedBeforeTheRepeatIsNoticed();
    void okAgainAfterARepeat();
    void resultOfTheWlanPluginIsIgnored();
    void shownListCountsForRepeats();
    void fieldsStayAfterARefusal();
    void enterIsOk();

private:
    void MessageIsOpen() override { m_createdAtMessage = m_scene.wlan.created.size(); }
    QLineEdit *Field(const char *name) { return m_scene.Find<QLineEdit>(name); }
    void Choose(const char *box, const QString &text);
    void EnterName(const QString &name) { m_scene.Box("networkNameBox")->setEditText(name); }
    void EnterKey(const QString &key);

    DialogScene m_scene;
    int m_createdAtMessage;
};

void tst_NewProfile::init()
{
    m_scene.Begin();
    m_scene.SetMethods(QStringList() << "open"
                                     << "shared"
                                     << "WPAPSK"
                                     << "WPA2PSK"
                                     << "WPA(EAP)"
                                     << "WPA2(EAP)");
    StandInHost::messageVisitor = this;
    m_createdAtMessage = -1;
}

void tst_NewProfile::cleanup()
{
    m_scene.End();
}

void tst_NewProfile::Choose(const char *box, const QString &text)
{
    const int index = m_scene.Box(box)->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    m_scene.Box(box)->setCurrentIndex(index);
}

void tst_NewProfile::EnterKey(const QString &key)
{
    QTest::keyClicks(Field("keyEdit"), key);
    QTest::keyClicks(Field("confirmKeyEdit"), key);
}

void tst_NewProfile::allFields_data()
{
    QTest::addColumn<QString>("authentication");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("keyType");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");
    const char *const wep[] = {"open", "shared"};
    for (const char *method : wep) {
        Row(qPrintable(QString(method) + " none"), method, "none", "passPhrase", "", "");
        Row(qPrintable(QString(method) + " none with a key"), method, "none", "passPhrase", "abc", "abc");
        Row(qPrintable(QString(method) + " WEP"), method, "WEP", "networkKey", "abcde", "abcde");
    }
    const char *const wpa[] = {"WPAPSK", "WPA2PSK", "WPA(EAP)", "WPA2(EAP)"};
    const char *const ciphers[] = {"CCMP", "TKIP"};
    for (const char *method : wpa) {
        const bool hasKey = QString(method).endsWith("PSK");
        for (const char *cipher : ciphers) {
            Row(qPrintable(QString(method) + " " + cipher), method, cipher, "passPhrase", "Pass:word",
                (hasKey ? "Pass:word" : ""));
        }
    }
    Row("IEEE 802.1X", "IEEE 802.1X", "none", "passPhrase", "Pass:word", "");
}

void tst_NewProfile::allFields()
{
    QFETCH(QString, authentication);
    QFETCH(QString, encryption);
    QFETCH(QString, keyType);
    QFETCH(QString, key);
    QFETCH(QString, stored);
    m_scene.SetMethods(QStringList() << "open" << authentication);
    m_scene.Open("newButton");
    EnterName("My net");
    EnterKey(key);
    Choose("authenticationBox", authentication);
    Choose("encryptionBox", encryption);
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList());
    QCOMPARE(m_scene.wlan.created.size(), 1);
    const WLANProfile profile = m_scene.wlan.created.first();
    QCOMPARE(profile.profileName, QString("My net"));
    QVERIFY(profile.text1.isNull());
    QVERIFY(profile.text2.isNull());
    QVERIFY(profile.text3.isNull());
    QCOMPARE(profile.text4, QString("0"));
    QCOMPARE(profile.ssid, QString("My net"));
    QCOMPARE(profile.bssType, QString("ESS"));
    QCOMPARE(profile.connectionMode, QString("manual"));
    QCOMPARE(profile.authentication, authentication);
    QCOMPARE(profile.encryption, encryption);
    QCOMPARE(profile.keyType, keyType);
    QCOMPARE(profile.keyFlag, QString("false"));
    QCOMPARE(profile.keyMaterial, stored);
    QCOMPARE(profile.keyIndex, QString("0"));
    QVERIFY(profile.text14.isNull());
    QVERIFY(profile.readOnly.isNull());
    QVERIFY(profile.text16.isEmpty() && !profile.text16.isNull());
    QVERIFY(profile.text17.isNull());
    QCOMPARE(m_scene.Stored(), QStringList("My net"));
    QVERIFY(!m_scene.IsOpen("newDialog"));
}

void tst_NewProfile::keyIndexes_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("stored");
    Row("1", "1", "0");
    Row("2", "2", "1");
    Row("3", "3", "2");
    Row("4", "4", "3");
}

void tst_NewProfile::keyIndexes()
{
    QFETCH(QString, shown);
    QFETCH(QString, stored);
    m_scene.Open("newButton");
    EnterName("My net");
    Choose("encryptionBox", "WEP");
    Choose("keyIndexBox", shown);
    EnterKey("abcde");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 1);
    QCOMPARE(m_scene.wlan.created.first().keyIndex, stored);
    QCOMPARE(m_scene.wlan.created.first().keyType, QString("networkKey"));
}

void tst_NewProfile::hiddenKeyIndexIsRead()
{
    m_scene.Open("newButton");
    EnterName("My net");
    Choose("keyIndexBox", "3");
    Choose("authenticationBox", "WPA(EAP)");
    QVERIFY(!m_scene.Box("keyIndexBox")->isVisible());
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 1);
    QCOMPARE(m_scene.wlan.created.first().keyIndex, QString("2"));
}

void tst_NewProfile::disabledKeyIndexIsNot()
{
    m_scene.Open("newButton");
    EnterName("My net");
    Choose("keyIndexBox", "3");
    Choose("authenticationBox", "WPA2PSK");
    Choose("authenticationBox", "WPA2(EAP)");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 1);
    QCOMPARE(m_scene.wlan.created.first().keyIndex, QString("0"));
}

void tst_NewProfile::keyIndexWithoutAChoice()
{
    m_scene.AddNetwork("N1");
    m_scene.wlan.profiles.insert("N1", Profile("open", "none", "7", ""));
    m_scene.Open("newButton");
    m_scene.Box("networkNameBox")->setCurrentIndex(0);
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 1);
    QCOMPARE(m_scene.wlan.created.first().keyIndex, QString("-1"));
}

void tst_NewProfile::everyTryIsAFreshProfile()
{
    m_scene.Store(Words("X"));
    m_scene.Open("newButton");
    EnterName("X");
    Choose("encryptionBox", "WEP");
    EnterKey("abcde");
    m_scene.Click("newOkButton");
    EnterName("Y");
    Choose("encryptionBox", "none");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 2);
    QCOMPARE(m_scene.wlan.created.at(1).profileName, QString("Y"));
    QCOMPARE(m_scene.wlan.created.at(1).keyType, QString("passPhrase"));
}

void tst_NewProfile::entryIsAppendedAndSelected()
{
    m_scene.Store(Words("X Y/2"));
    m_scene.Open("newButton");
    EnterName("Mine");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.Stored(), Words("X Y/2 Mine"));
    QCOMPARE(m_scene.Find<QTableWidget>("priorityTable")->currentRow(), 2);
    QVERIFY(!m_scene.IsOpen("newDialog"));
}

void tst_NewProfile::emptyNameIsRefusedFirst()
{
    m_scene.Open("newButton");
    Choose("authenticationBox", "WPA2PSK");
    QTest::keyClicks(Field("keyEdit"), "short");
    m_scene.Click("newOkButton");
    QCOMPARE(StandInHost::messages.size(), 1);
    const MessageCall call = StandInHost::messages.first();
    QCOMPARE(int(call.icon), 1);
    QCOMPARE(call.parent, m_scene.Find<QWidget>("newDialogBody"));
    QCOMPARE(call.title, QString("en:IDS_PROFILE_BOX_TITLE"));
    QCOMPARE(call.text, QString("en:IDS_ERROR_EMPTY_SSID"));
    QCOMPARE(call.button1, QString("IDS_OK"));
    QVERIFY(call.button2.isEmpty());
    QVERIFY(call.button3.isEmpty());
    QVERIFY(call.modal);
    QCOMPARE(int(call.flags), 0x08000000);
    QVERIFY(!call.dialog);
    QVERIFY(call.detail.isNull());
    QVERIFY(call.onTop);
    QVERIFY(m_scene.wlan.created.isEmpty());
    QVERIFY(m_scene.IsOpen("newDialog"));
}

void tst_NewProfile::fieldsStayAfterAnEmptyName()
{
    m_scene.Open("newButton");
    Choose("authenticationBox", "shared");
    Choose("encryptionBox", "WEP");
    Choose("keyIndexBox", "3");
    QTest::keyClicks(Field("keyEdit"), "abcde");
    QTest::keyClicks(Field("confirmKeyEdit"), "abcd");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList("en:IDS_ERROR_EMPTY_SSID"));
    QVERIFY(m_scene.IsOpen("newDialog"));
    QCOMPARE(m_scene.Box("networkNameBox")->currentText(), QString());
    QCOMPARE(m_scene.Box("authenticationBox")->currentText(), QString("shared"));
    QCOMPARE(m_scene.Box("encryptionBox")->currentText(), QString("WEP"));
    QCOMPARE(m_scene.Box("keyIndexBox")->currentText(), QString("3"));
    QCOMPARE(m_scene.Box("eapBox")->currentText(), QString("AUTO"));
    QCOMPARE(Field("keyEdit")->text(), QString("abcde"));
    QCOMPARE(Field("confirmKeyEdit")->text(), QString("abcd"));
}

void tst_NewProfile::blankNameIsAName()
{
    m_scene.Open("newButton");
    EnterName(" ");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.Stored(), QStringList(" "));
}

void tst_NewProfile::repeatedNameIsRefused_data()
{
    QTest::addColumn<QString>("listed");
    Row("Wi-Fi", "Mine");
    Row("mobile broadband", "Mine/2");
    Row("behind others", "A B/2 Mine C");
}

void tst_NewProfile::repeatedNameIsRefused()
{
    QFETCH(QString, listed);
    m_scene.Store(Words(listed));
    m_scene.Open("newButton");
    EnterName("Mine");
    const QByteArray before = m_scene.File();
    m_scene.Click("newOkButton");
    QCOMPARE(StandInHost::messages.size(), 1);
    const MessageCall call = StandInHost::messages.first();
    QCOMPARE(int(call.icon), 1);
    QCOMPARE(call.parent, m_scene.Find<QWidget>("newDialogBody"));
    QCOMPARE(call.title, QString("en:IDS_PROFILE_BOX_TITLE"));
    QCOMPARE(call.text, QString("en:IDS_PROFILE_NAME_REPEAT"));
    QCOMPARE(call.button1, QString("IDS_OK"));
    QVERIFY(call.button2.isEmpty());
    QVERIFY(call.button3.isEmpty());
    QVERIFY(call.modal);
    QCOMPARE(int(call.flags), 0x08000000);
    QVERIFY(!call.dialog);
    QVERIFY(call.detail.isNull());
    QVERIFY(call.onTop);
    QCOMPARE(m_scene.File(), before);
    QVERIFY(m_scene.IsOpen("newDialog"));
}

void tst_NewProfile::caseMakesAnotherName()
{
    m_scene.Store(Words("mine"));
    m_scene.Open("newButton");
    EnterName("Mine");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList());
    QCOMPARE(m_scene.Stored(), Words("mine Mine"));
}

void tst_NewProfile::profileIsCreatedBeforeTheRepeatIsNoticed()
{
    m_scene.Store(Words("Mine"));
    m_scene.Open("newButton");
    EnterName("Mine");
    m_scene.Click("newOkButton");
    QCOMPARE(m_createdAtMessage, 1);
    QCOMPARE(m_scene.wlan.created.first().profileName, QString("Mine"));
}

static QStringList AllFields(const WLANProfile &profile)
{
    return QStringList() << profile.profileName << profile.text1 << profile.text2 << profile.text3
                         << profile.text4 << profile.ssid << profile.bssType << profile.connectionMode
                         << profile.authentication << profile.encryption << profile.keyType << profile.keyFlag
                         << profile.keyMaterial << profile.keyIndex << profile.text14 << profile.readOnly
                         << profile.text16 << profile.text17;
}

void tst_NewProfile::okAgainAfterARepeat()
{
    m_scene.Store(Words("Mine"));
    m_scene.Open("newButton");
    EnterName("Mine");
    Choose("authenticationBox", "shared");
    Choose("encryptionBox", "WEP");
    Choose("keyIndexBox", "3");
    EnterKey("abcde");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 1);
    const QStringList first = AllFields(m_scene.wlan.created.first());
    QCOMPARE(first, QStringList() << "Mine" << QString() << QString() << QString() << "0"
                                  << "Mine"
                                  << "ESS"
                                  << "manual"
                                  << "shared"
                                  << "WEP"
                                  << "networkKey"
                                  << "false"
                                  << "abcde"
                                  << "2" << QString() << QString() << "" << QString());
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 2);
    QCOMPARE(AllFields(m_scene.wlan.created.at(1)), first);
    QCOMPARE(m_scene.MessageTexts(), QStringList() << "en:IDS_PROFILE_NAME_REPEAT"
                                                   << "en:IDS_PROFILE_NAME_REPEAT");
}

void tst_NewProfile::resultOfTheWlanPluginIsIgnored()
{
    m_scene.wlan.createResult = 5;
    m_scene.Open("newButton");
    EnterName("Mine");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.Stored(), Words("Mine"));
    QVERIFY(!m_scene.IsOpen("newDialog"));
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_NewProfile::shownListCountsForRepeats()
{
    m_scene.Store(Words("A"));
    m_scene.ShowPage();
    m_scene.Store(Words("B"));
    m_scene.Click("newButton");
    EnterName("A");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList("en:IDS_PROFILE_NAME_REPEAT"));
    EnterName("B");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts().size(), 1);
    QCOMPARE(m_scene.Stored(), Words("B"));
}

void tst_NewProfile::fieldsStayAfterARefusal()
{
    m_scene.Open("newButton");
    EnterName("Mine");
    Choose("authenticationBox", "WPA2PSK");
    Choose("encryptionBox", "TKIP");
    EnterKey("short");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList("en:IDS_ERROR_KEY_WRONG_LENGTH_128"));
    QVERIFY(m_scene.wlan.created.isEmpty());
    QVERIFY(m_scene.IsOpen("newDialog"));
    QCOMPARE(m_scene.Box("networkNameBox")->currentText(), QString("Mine"));
    QCOMPARE(m_scene.Box("authenticationBox")->currentText(), QString("WPA2PSK"));
    QCOMPARE(m_scene.Box("encryptionBox")->currentText(), QString("TKIP"));
    QCOMPARE(Field("keyEdit")->text(), QString("short"));
    QCOMPARE(Field("confirmKeyEdit")->text(), QString("short"));
}

void tst_NewProfile::enterIsOk()
{
    m_scene.Open("newButton");
    EnterName("Mine");
    QTest::keyClick(Field("confirmKeyEdit"), Qt::Key_Return);
    QCOMPARE(m_scene.Stored(), Words("Mine"));
}

QTEST_MAIN(tst_NewProfile)
#include "tst_newprofile.moc"
