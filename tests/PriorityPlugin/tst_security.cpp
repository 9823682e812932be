#include <FakeWLAN.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <qnewprioritywidget.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedPointer>
#include <QtTest>

/** The security fields of the new-network dialog: what each method makes of them, and the checks. */
class tst_Security : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void methods_data();
    void methods();
    void unknownMethodEmptiesEncryptionOnly_data();
    void unknownMethodEmptiesEncryptionOnly();
    void methodsAreFilledInAsAWhole_data();
    void methodsAreFilledInAsAWhole();
    void methodsGrowUpToSix();
    void methodsGrowOnceForEachChoice();
    void otherBoxesNeverGrow();
    void noMethods();
    void firstMethodIsSetUp();
    void methodPointedAtCounts();
    void chosenItemIsFoundExactly_data();
    void chosenItemIsFoundExactly();
    void keyIndexIsAPosition_data();
    void keyIndexIsAPosition();
    void keyGoesIntoBothFields();
    void keyNeedsBothFields();
    void hexadecimalTexts();
    void keyLength_data();
    void keyLength();
    void keyLengthOfADisabledField();
    void keyLengthWithoutWidgets();
    void faultsInTheirOrder_data();
    void faultsInTheirOrder();
    void noticeArguments_data();
    void noticeArguments();
    void noticeAnswerIsIgnored();
    void noFault();
    void keysAreComparedWithoutMethodsToo();
    void methodsWithoutAKeyPassWhateverWasTyped();

private:
    void Build(const QString &methods);
    QComboBox *Box(const char *name) { return m_body->findChild<QComboBox *>(QLatin1String(name)); }
    QLineEdit *Field(const char *name) { return m_body->findChild<QLineEdit *>(QLatin1String(name)); }
    QString Items(const char *box);
    bool Shown(const char *widget)
    {
        return !m_body->findChild<QWidget *>(QLatin1String(widget))->isHidden();
    }
    /** "shown" or "hidden" when label and box agree. */
    QString Pair(const char *label, const char *box);
    QString KeyFields();
    QString State();

    TemporaryDirectory m_directory;
    QScopedPointer<QNewPriorityWidgetEx> m_frame;
    QNewPriorityWidget *m_body;
    FakeWLAN m_wlan;
    FakeContainer m_container;
};

static const char allMethods[] = "open,shared,WPAPSK,WPA2PSK,WPA(EAP),WPA2(EAP)";

void tst_Security::init()
{
    StandInHost::Reset(m_directory.Path());
    m_container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &m_wlan);
    StandInHost::container = &m_container;
    Build(allMethods);
}

void tst_Security::cleanup()
{
    m_frame.reset();
    StandInHost::container = nullptr;
}

void tst_Security::Build(const QString &methods)
{
    m_wlan.config.authenticationList = methods.isEmpty() ? QStringList() : methods.split(",");
    m_frame.reset(new QNewPriorityWidgetEx(nullptr, Qt::WindowCloseButtonHint));
    m_frame->Init();
    m_frame->show();
    m_body = m_frame->findChild<QNewPriorityWidget *>();
}

QString tst_Security::Items(const char *name)
{
    QStringList items;
    for (int i = 0; i < Box(name)->count(); ++i) {
        items << Box(name)->itemText(i);
    }
    return items.join(",");
}

QString tst_Security::Pair(const char *label, const char *box)
{
    return Shown(label) != Shown(box) ? "label and box differ" : Shown(box) ? "shown" : "hidden";
}

QString tst_Security::KeyFields()
{
    const QLineEdit *key = Field("keyEdit");
    const QLineEdit *confirm = Field("confirmKeyEdit");
    if (key->isEnabled() != confirm->isEnabled() || key->focusPolicy() != confirm->focusPolicy() ||
        key->text() != confirm->text()) {
        return "the fields differ";
    }
    return QString(key->isEnabled() ? "enabled" : "disabled") + "/" + QString::number(key->focusPolicy()) +
           "/" + key->text();
}

/** What a method sets, in one text. */
QString tst_Security::State()
{
    return Items("encryptionBox") + " " + Pair("keyIndexLabel", "keyIndexBox") + " " +
           (Box("keyIndexBox")->isEnabled() ? "enabled" : "disabled") + " " + Pair("eapLabel", "eapBox") +
           " " + KeyFields();
}

void tst_Security::methods_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("encryptions");
    QTest::addColumn<QString>("keyIndex");
    QTest::addColumn<QString>("keyIndexEnabled");
    QTest::addColumn<QString>("eap");
    QTest::addColumn<bool>("hasKey");
    Row("open", "open", "none,WEP", "shown", "enabled", "hidden", true);
    Row("shared", "shared", "none,WEP", "shown", "enabled", "hidden", true);
    Row("WPAPSK", "WPAPSK", "CCMP,TKIP", "shown", "disabled", "hidden", true);
    Row("WPA2PSK", "WPA2PSK", "CCMP,TKIP", "shown", "disabled", "hidden", true);
    Row("WPA(EAP)", "WPA(EAP)", "CCMP,TKIP", "hidden", "unchanged", "shown", false);
    Row("WPA2(EAP)", "WPA2(EAP)", "CCMP,TKIP", "hidden", "unchanged", "shown", false);
    Row("IEEE 802.1X", "IEEE 802.1X", "none", "hidden", "unchanged", "shown", false);
}

void tst_Security::methods()
{
    QFETCH(QString, method);
    QFETCH(QString, encryptions);
    QFETCH(QString, keyIndex);
    QFETCH(QString, keyIndexEnabled);
    QFETCH(QString, eap);
    QFETCH(bool, hasKey);
    const char *const before[] = {"open", "WPAPSK", "IEEE 802.1X"};
    for (const char *previous : before) {
        m_body->onHighLighted("open");
        m_body->onHighLighted(previous);
        const bool wasEnabled = Box("keyIndexBox")->isEnabled();
        m_body->SetKeyMaterialInfo("typed");
        Box("encryptionBox")->setEnabled(false);
        m_body->onHighLighted(method);
        QCOMPARE(Items("encryptionBox"), encryptions);
        QCOMPARE(Box("encryptionBox")->currentIndex(), 0);
        QVERIFY(Box("encryptionBox")->isEnabled());
        QCOMPARE(Pair("keyIndexLabel", "keyIndexBox"), keyIndex);
        QCOMPARE(Box("keyIndexBox")->isEnabled(),
                 keyIndexEnabled == "unchanged" ? wasEnabled : keyIndexEnabled == "enabled");
        QCOMPARE(Pair("eapLabel", "eapBox"), eap);
        QCOMPARE(KeyFields(), QString(hasKey ? "enabled/11/typed" : "disabled/0/"));
    }
}

void tst_Security::unknownMethodEmptiesEncryptionOnly_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("method");
    const char *const unknown[] = {"WPA", "", "OPEN", "wpa2psk", "open ", "IEEE 802.1x"};
    const char *const before[] = {"open", "WPAPSK", "WPA(EAP)"};
    for (const char *method : unknown) {
        for (const char *previous : before) {
            Row(qPrintable(QString("'%1' after %2").arg(method).arg(previous)), previous, method);
        }
    }
}

void tst_Security::unknownMethodEmptiesEncryptionOnly()
{
    QFETCH(QString, before);
    QFETCH(QString, method);
    m_body->onHighLighted(before);
    m_body->SetKeyMaterialInfo("typed");
    const QString state = State();
    m_body->onHighLighted(method);
    QCOMPARE(State(), state.mid(state.indexOf(' ')));
    QVERIFY(Box("encryptionBox")->isEnabled());
}

void tst_Security::methodsAreFilledInAsAWhole_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("expected");
    Row("one", "open", "open,open");
    Row("two", "open,shared", "open,shared,open,shared");
    Row("three", "open,shared,WPAPSK", "open,shared,WPAPSK,open,shared,WPAPSK");
    Row("four", "open,shared,WPAPSK,WPA2PSK", "open,shared,WPAPSK,WPA2PSK,open,shared");
    Row("six", allMethods, allMethods);
    Row("seven", QString(allMethods) + ",IEEE 802.1X", allMethods);
    Row("unknown methods too", "x,y,z", "x,y,z,x,y,z");
}

void tst_Security::methodsAreFilledInAsAWhole()
{
    QFETCH(QString, configured);
    QFETCH(QString, expected);
    Build(configured);
    QCOMPARE(Items("authenticationBox"), expected);
    QCOMPARE(Box("authenticationBox")->currentIndex(), 0);
}

void tst_Security::methodsGrowUpToSix()
{
    Build("open,shared");
    m_body->onHighLighted("shared");
    QCOMPARE(Items("authenticationBox"), QString("open,shared,open,shared,open,shared"));
    m_body->onHighLighted("open");
    QCOMPARE(Box("authenticationBox")->count(), 6);
}

void tst_Security::methodsGrowOnceForEachChoice()
{
    Build("open");
    QCOMPARE(Items("authenticationBox"), QString("open,open"));
    QTest::keyClick(Box("authenticationBox"), Qt::Key_Down);
    QCOMPARE(Box("authenticationBox")->currentIndex(), 1);
    QCOMPARE(Items("authenticationBox"), QString("open,open,open"));
}

void tst_Security::otherBoxesNeverGrow()
{
    for (int i = 0; i < 5; ++i) {
        m_body->onHighLighted(i % 2 ? "open" : "WPA(EAP)");
        QCOMPARE(Items("keyIndexBox"), QString("1,2,3,4"));
        QCOMPARE(Items("eapBox"), QString("AUTO,SIM,AKA"));
        QCOMPARE(Box("encryptionBox")->count(), 2);
    }
}

void tst_Security::noMethods()
{
    Build("");
    QCOMPARE(Box("authenticationBox")->count(), 0);
    QCOMPARE(Box("encryptionBox")->count(), 0);
    QCOMPARE(Box("keyIndexBox")->count(), 0);
    Box("encryptionBox")->addItem("none");
    m_body->onHighLighted("");
    QCOMPARE(Box("encryptionBox")->count(), 0);
    QCOMPARE(Items("keyIndexBox"), QString("1,2,3,4"));
    QVERIFY(!m_body->CheckPasswordAndAuth());
    QCOMPARE(StandInHost::messages.last().text, QString("en:IDS_ERROR_WRONG_AUTHENTICATION"));
}

void tst_Security::firstMethodIsSetUp()
{
    Build("WPA2(EAP),open,shared,WPAPSK,WPA2PSK,WPA(EAP)");
    QCOMPARE(Box("authenticationBox")->currentText(), QString("WPA2(EAP)"));
    QCOMPARE(State(), QString("CCMP,TKIP hidden enabled shown disabled/0/"));
    QCOMPARE(Items("eapBox"), QString("AUTO,SIM,AKA"));
}

void tst_Security::methodPointedAtCounts()
{
    QComboBox *box = Box("authenticationBox");
    box->showPopup();
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Down);
    QCOMPARE(Items("encryptionBox"), QString("CCMP,TKIP"));
    QTest::keyClick(box->view(), Qt::Key_Escape);
    QCOMPARE(box->currentText(), QString("open"));
    QCOMPARE(State(), QString("CCMP,TKIP shown disabled hidden enabled/11/"));
}

void tst_Security::chosenItemIsFoundExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    Row("last", "WPA2(EAP)", 5);
    Row("first", "open", 0);
    Row("case", "OPEN", -1);
    Row("part", "WPA", -1);
    Row("pattern", "o*", -1);
    Row("blank", "open ", -1);
    Row("empty", "", -1);
}

void tst_Security::chosenItemIsFoundExactly()
{
    QFETCH(QString, text);
    QFETCH(int, index);
    m_body->SetAuthenticationInfo("shared");
    m_body->SetAuthenticationInfo(text);
    QCOMPARE(Box("authenticationBox")->currentIndex(), index);
    m_body->onHighLighted("open");
    m_body->SetEncryptionInfo("WEP");
    QCOMPARE(Box("encryptionBox")->currentIndex(), 1);
    m_body->SetEncryptionInfo("wep");
    QCOMPARE(Box("encryptionBox")->currentIndex(), -1);
}

void tst_Security::keyIndexIsAPosition_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    Row("0", "0", "1");
    Row("1", "1", "2");
    Row("2", "2", "3");
    Row("3", "3", "4");
    Row("empty", "", "1");
    Row("word", "two", "1");
    Row("hexadecimal", "0x2", "1");
    Row("beyond", "4", "");
    Row("negative", "-1", "");
}

void tst_Security::keyIndexIsAPosition()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    m_body->SetKeyIndexInfo("1");
    m_body->SetKeyIndexInfo(text);
    QCOMPARE(Box("keyIndexBox")->currentText(), shown);
}

void tst_Security::keyGoesIntoBothFields()
{
    // What a profile holds is shown although it couldn't be typed.
    m_body->SetKeyMaterialInfo("pass phrase.");
    QCOMPARE(Field("keyEdit")->text(), QString("pass phrase."));
    QCOMPARE(Field("confirmKeyEdit")->text(), QString("pass phrase."));
    m_body->SetKeyMaterialInfo(QString());
    QCOMPARE(Field("keyEdit")->text(), QString());
    QCOMPARE(Field("confirmKeyEdit")->text(), QString());
}

void tst_Security::keyNeedsBothFields()
{
    QNewPriorityWidget body(nullptr, Qt::WindowFlags());
    body.CreateNetPassword();
    body.SetKeyMaterialInfo("typed");
    QCOMPARE(body.findChild<QLineEdit *>("keyEdit")->text(), QString());
    body.CreateConfNetworkKey();
    body.SetKeyMaterialInfo("typed");
    QCOMPARE(body.findChild<QLineEdit *>("keyEdit")->text(), QString("typed"));
}

void tst_Security::hexadecimalTexts()
{
    QVERIFY(m_body->isHexString(""));
    QVERIFY(m_body->isHexString("09afAF"));
    QVERIFY(!m_body->isHexString("09afg"));
}

void tst_Security::keyLength_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("fault");
    Row("WEP 5", "open", "WEP", "abxyz", 0);
    Row("WEP empty", "open", "WEP", "", 1);
    Row("WEP 10 digits", "open", "WEP", "0123456789", 0);
    Row("WEP 10 letters", "open", "WEP", "abcdefghij", 1);
    Row("WEP 16", "shared", "WEP", "0123456789abcdef", 1);
    Row("WEP 32", "shared", "WEP", QString("0123456789abcdef").repeated(2), 0);
    Row("none", "open", "none", "x", 0);
    Row("TKIP 7", "WPAPSK", "TKIP", "1234567", 2);
    Row("TKIP 8", "WPAPSK", "TKIP", "xyz45678", 0);
    Row("CCMP 63", "WPA2PSK", "CCMP", QString(63, 'x'), 0);
    Row("CCMP 64", "WPA2PSK", "CCMP", QString(64, 'f'), 0);
    Row("CCMP 64 with a g", "WPA2PSK", "CCMP", QString(63, 'f') + "g", 2);
    Row("CCMP 65", "WPA2PSK", "CCMP", QString(65, 'f'), 2);
}

void tst_Security::keyLength()
{
    QFETCH(QString, method);
    QFETCH(QString, encryption);
    QFETCH(QString, key);
    QFETCH(int, fault);
    m_body->SetAuthenticationInfo(method);
    m_body->onHighLighted(method);
    m_body->SetEncryptionInfo(encryption);
    m_body->SetKeyMaterialInfo(key);
    QCOMPARE(Box("encryptionBox")->currentText(), encryption);
    QCOMPARE(m_body->CheckKeyLength(), fault);
}

void tst_Security::keyLengthOfADisabledField()
{
    m_body->onHighLighted("WPA(EAP)");
    QCOMPARE(Box("encryptionBox")->currentText(), QString("CCMP"));
    QCOMPARE(m_body->CheckKeyLength(), 0);
    Field("keyEdit")->setEnabled(true);
    QCOMPARE(m_body->CheckKeyLength(), 2);
}

void tst_Security::keyLengthWithoutWidgets()
{
    QNewPriorityWidget body(nullptr, Qt::WindowFlags());
    QCOMPARE(body.CheckKeyLength(), 0);
    body.CreateNetPassword();
    QCOMPARE(body.CheckKeyLength(), 0);
}

void tst_Security::faultsInTheirOrder_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("confirmed");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<QString>("message");
    const QString wep = "IDS_ERROR_KEY_WRONG_LENGTH_40";
    const QString wpa = "IDS_ERROR_KEY_WRONG_LENGTH_128";
    const QString different = "IDS_ERROR_KEY_DIFFERENT";
    const QString authentication = "IDS_ERROR_WRONG_AUTHENTICATION";
    Row("everything wrong, WEP", "open", "WEP", "abc", "x", false, wep);
    Row("everything wrong, WPA", "WPAPSK", "CCMP", "abc", "x", false, wpa);
    Row("different, no method", "open", "WEP", "abcde", "x", false, different);
    Row("no method", "open", "WEP", "abcde", "abcde", false, authentication);
    Row("different by case", "open", "WEP", "abcde", "abcdE", true, different);
    Row("different without encryption", "open", "none", "a", "", true, different);
    Row("WEP", "open", "WEP", "abc", "abc", true, wep);
    Row("WPA", "WPA2PSK", "TKIP", "abc", "abc", true, wpa);
}

void tst_Security::faultsInTheirOrder()
{
    QFETCH(QString, method);
    QFETCH(QString, encryption);
    QFETCH(QString, key);
    QFETCH(QString, confirmed);
    QFETCH(bool, chosen);
    QFETCH(QString, message);
    m_body->SetAuthenticationInfo(chosen ? method : QString());
    m_body->onHighLighted(method);
    m_body->SetEncryptionInfo(encryption);
    Field("keyEdit")->setText(key);
    Field("confirmKeyEdit")->setText(confirmed);
    QVERIFY(!m_body->CheckPasswordAndAuth());
    QCOMPARE(StandInHost::messages.size(), 1);
    QCOMPARE(StandInHost::messages.first().text, "en:" + message);
}

void tst_Security::noticeArguments_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("confirmed");
    QTest::addColumn<QString>("text");
    Row("WEP", "open", "WEP", "abc", "abc", "ar:IDS_ERROR_KEY_WRONG_LENGTH_40");
    Row("WPA", "WPAPSK", "CCMP", "abc", "abc", "ar:IDS_ERROR_KEY_WRONG_LENGTH_128");
    Row("different", "open", "none", "abc", "abd", "ar:IDS_ERROR_KEY_DIFFERENT");
    Row("no method", "", "", "", "", "ar:IDS_ERROR_WRONG_AUTHENTICATION");
}

void tst_Security::noticeArguments()
{
    QFETCH(QString, method);
    QFETCH(QString, encryption);
    QFETCH(QString, key);
    QFETCH(QString, confirmed);
    QFETCH(QString, text);
    m_body->SetAuthenticationInfo(method);
    m_body->SetEncryptionInfo(encryption);
    Field("keyEdit")->setText(key);
    Field("confirmKeyEdit")->setText(confirmed);
    StandInHost::language = "ar";
    QVERIFY(!m_body->CheckPasswordAndAuth());
    QCOMPARE(StandInHost::messages.size(), 1);
    const MessageCall call = StandInHost::messages.first();
    QCOMPARE(int(call.icon), 1);
    QCOMPARE(call.parent, static_cast<QWidget *>(m_body));
    QCOMPARE(call.title, QString("ar:IDS_PROFILE_BOX_TITLE"));
    QCOMPARE(call.text, text);
    QCOMPARE(call.button1, QString("IDS_OK"));
    QVERIFY(call.button2.isEmpty());
    QVERIFY(call.button3.isEmpty());
    QVERIFY(call.modal);
    QCOMPARE(int(call.flags), 0x08000000);
    QVERIFY(!call.dialog);
    QVERIFY(call.detail.isNull());
    QVERIFY(call.onTop);
}

void tst_Security::noticeAnswerIsIgnored()
{
    StandInHost::messageAnswer = QMessageBox::Cancel;
    Field("keyEdit")->setText("a");
    QVERIFY(!m_body->CheckPasswordAndAuth());
    StandInHost::messageAnswer = QMessageBox::Ok;
    QVERIFY(!m_body->CheckPasswordAndAuth());
    QCOMPARE(StandInHost::messages.size(), 2);
}

void tst_Security::noFault()
{
    QVERIFY(m_body->CheckPasswordAndAuth());
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_Security::keysAreComparedWithoutMethodsToo()
{
    Build("");
    Field("keyEdit")->setText("abcde");
    QVERIFY(!m_body->CheckPasswordAndAuth());
    QCOMPARE(StandInHost::messages.last().text, QString("en:IDS_ERROR_KEY_DIFFERENT"));
}

void tst_Security::methodsWithoutAKeyPassWhateverWasTyped()
{
    Field("keyEdit")->setText("abcde");
    Field("confirmKeyEdit")->setText("other");
    m_body->SetAuthenticationInfo("WPA(EAP)");
    QVERIFY(m_body->CheckPasswordAndAuth());
    QVERIFY(StandInHost::messages.isEmpty());
}

QTEST_MAIN(tst_Security)
#include "tst_security.moc"
