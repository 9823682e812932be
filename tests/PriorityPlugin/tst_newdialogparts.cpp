#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>
#include <qnewprioritywidget.h>
#include <qprioritywidget.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QScopedPointer>
#include <QtTest>

/** The new-network dialog's operations that have no way in from outside, called directly. */
class tst_NewDialogParts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void metaObject();
    void sendWithoutPage();
    void sendMakesAWifiEntry();
    void nullPageIsIgnored();
    void repeatWithoutPage();
    void repeatIsFoundByNameOnly();
    void okWithoutPageCreatesAndCloses();
    void profileWithoutWidgets();
    void disabledBoxesAreNotRead();
    void createReturnsTheResult();
    void createWithoutWlanIsZero_data();
    void createWithoutWlanIsZero();
    void configurationReturnsTheResult();
    void deletingTakesOneNetwork();
    void releaseDeletesTheButtonBarOnly();
    void releaseForgetsWhatItLists();
    void releaseKeepsTheEapMethods();
    void okWithoutNameBoxSkipsItsCheck();
    void frameWithoutBody();
    void bodyWithoutFrame();
    void closingTheBodyClosesTheFrame();

private:
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QPriorityWidget> m_page;
    QScopedPointer<QNewPriorityWidgetEx> m_frame;
    QNewPriorityWidget *m_body;
    FakeWLAN m_wlan;
    FakeContainer m_container;
};

void tst_NewDialogParts::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &m_wlan);
    StandInHost::container = &m_container;
    m_wlan.networks.clear();
    m_wlan.created.clear();
    m_wlan.createResult = 0;
    m_wlan.config.authenticationList = QStringList() << "open"
                                                     << "WPA(EAP)";
    QList<PriorityList> stored;
    stored << Entry("X") << Entry("M", "2");
    PriorityXMLParser::GetInstance()->SavePriorityList(stored);
    m_page.reset(new QPriorityWidget);
    m_frame.reset(new QNewPriorityWidgetEx(nullptr, Qt::WindowCloseButtonHint));
    m_body = m_frame->findChild<QNewPriorityWidget *>();
}

void tst_NewDialogParts::cleanup()
{
    m_frame.reset();
    m_page.reset();
    StandInHost::container = nullptr;
    m_directory.reset();
}

void tst_NewDialogParts::metaObject()
{
    const QMetaObject &meta = QNewPriorityWidget::staticMetaObject;
    QCOMPARE(meta.className(), "QNewPriorityWidget");
    const char *const slotsInOrder[] = {"OnOK()", "OnCancel()", "onHighLighted(QString)",
                                        "OnNetworkNameComboxSelChenged(int)"};
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(meta.indexOfSlot(slotsInOrder[i]), meta.methodOffset() + i);
    }
    QCOMPARE(m_frame->metaObject()->className(), "QDialog");
}

void tst_NewDialogParts::sendWithoutPage()
{
    const QByteArray before = m_directory->Read("Priority.xml");
    QString name = "Mine";
    TraceCapture trace;
    m_body->SendPriorityList(name);
    QCOMPARE(trace.Lines(), QStringList());
    QCOMPARE(m_directory->Read("Priority.xml"), before);
}

void tst_NewDialogParts::sendMakesAWifiEntry()
{
    m_frame->SetMsgParnet(m_page.data());
    QString name = "Mine";
    m_body->SendPriorityList(name);
    QList<PriorityList> list;
    m_page->GetPriority(&list);
    QCOMPARE(AsTexts(list), QStringList() << "X/1"
                                          << "M/2"
                                          << "Mine/1");
}

void tst_NewDialogParts::nullPageIsIgnored()
{
    m_frame->SetMsgParnet(m_page.data());
    m_frame->SetMsgParnet(nullptr);
    QString name = "X";
    QVERIFY(m_body->isProfileList(name));
}

void tst_NewDialogParts::repeatWithoutPage()
{
    QString name = "X";
    QVERIFY(!m_body->isProfileList(name));
}

void tst_NewDialogParts::repeatIsFoundByNameOnly()
{
    m_frame->SetMsgParnet(m_page.data());
    QString name = "M";
    QVERIFY(m_body->isProfileList(name));
    name = "x";
    QVERIFY(!m_body->isProfileList(name));
    name = "";
    QVERIFY(!m_body->isProfileList(name));
}

void tst_NewDialogParts::okWithoutPageCreatesAndCloses()
{
    m_frame->Init();
    m_frame->show();
    m_body->findChild<QComboBox *>("networkNameBox")->setEditText("X");
    m_body->OnOK();
    QVERIFY(!m_frame->isVisible());
    QCOMPARE(m_wlan.created.size(), 1);
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_NewDialogParts::profileWithoutWidgets()
{
    WLANProfile profile;
    m_body->GetProfileData(profile);
    QVERIFY(profile.profileName.isNull());
    QVERIFY(profile.ssid.isNull());
    QVERIFY(profile.keyMaterial.isNull());
    QCOMPARE(profile.authentication, QString("open"));
    QCOMPARE(profile.encryption, QString("none"));
    QCOMPARE(profile.keyIndex, QString("0"));
    QCOMPARE(profile.keyType, QString("passPhrase"));
    QCOMPARE(profile.connectionMode, QString("manual"));
    QCOMPARE(profile.bssType, QString("ESS"));
    QCOMPARE(profile.text4, QString("0"));
    QCOMPARE(profile.keyFlag, QString("false"));
}

void tst_NewDialogParts::disabledBoxesAreNotRead()
{
    m_frame->Init();
    m_body->onHighLighted("open");
    m_body->SetAuthenticationInfo("WPA(EAP)");
    m_body->SetEncryptionInfo("TKIP");
    m_body->SetKeyIndexInfo("2");
    m_body->findChild<QComboBox *>("authenticationBox")->setEnabled(false);
    m_body->findChild<QComboBox *>("encryptionBox")->setEnabled(false);
    m_body->findChild<QComboBox *>("keyIndexBox")->setEnabled(false);
    m_body->findChild<QLineEdit *>("keyEdit")->setText("typed");
    WLANProfile profile;
    m_body->GetProfileData(profile);
    QCOMPARE(profile.authentication, QString("open"));
    QCOMPARE(profile.encryption, QString("none"));
    QCOMPARE(profile.keyIndex, QString("0"));
    // The key field is read all the same, though the method disabled it.
    QVERIFY(!m_body->findChild<QLineEdit *>("keyEdit")->isEnabled());
    QCOMPARE(profile.keyMaterial, QString("typed"));
}

void tst_NewDialogParts::createReturnsTheResult()
{
    m_wlan.createResult = 7;
    WLANProfile profile;
    profile.profileName = "P";
    QCOMPARE(m_body->CreateProfile(profile), 7);
    QCOMPARE(m_wlan.created.size(), 1);
    QCOMPARE(m_wlan.created.first().profileName, QString("P"));
}

void tst_NewDialogParts::createWithoutWlanIsZero_data()
{
    QTest::addColumn<bool>("hasContainer");
    QTest::addColumn<bool>("hasObject");
    Row("no container", false, false);
    Row("no object under the class id", true, false);
    Row("object of another interface", true, true);
}

void tst_NewDialogParts::createWithoutWlanIsZero()
{
    QFETCH(bool, hasContainer);
    QFETCH(bool, hasObject);
    QObject other;
    FakeContainer container;
    if (hasObject) {
        container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &other);
    }
    StandInHost::container = hasContainer ? &container : nullptr;
    m_wlan.createResult = 7;
    WLANProfile profile;
    QCOMPARE(m_body->CreateProfile(profile), 0);
    QVERIFY(m_wlan.created.isEmpty());
}

void tst_NewDialogParts::configurationReturnsTheResult()
{
    class RefusingWLAN : public FakeWLAN
    {
    public:
        int GetConfigData(WLANConfigData *) override { return 9; }
    };
    RefusingWLAN wlan;
    m_container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &wlan);
    QCOMPARE(m_body->ReadConfigData(), 9);
}

void tst_NewDialogParts::deletingTakesOneNetwork()
{
    WlanAvilableNetworkInfo network;
    network.networkName = "N";
    m_wlan.networks << network << network << network;
    m_body->GetAvilableNetwork();
    m_body->CreateNetworkName();
    m_body->DeleteAvilableNetwork(Entry("N", "2"));
    m_body->DeleteAvilableNetwork(Entry("n", "1"));
    m_body->DeleteAvilableNetwork(Entry("N", "1"));
    m_body->SetNetworkNameCombox();
    QCOMPARE(m_body->findChild<QComboBox *>("networkNameBox")->count(), 2);
}

void tst_NewDialogParts::releaseDeletesTheButtonBarOnly()
{
    m_frame->Init();
    const int labels = m_body->findChildren<QLabel *>().size();
    const int boxes = m_body->findChildren<QComboBox *>().size();
    const int fields = m_body->findChildren<QLineEdit *>().size();
    m_body->release();
    m_body->release();
    QVERIFY(!m_body->findChild<QWidget *>("newButtonBar"));
    QVERIFY(!m_body->findChild<QPushButton *>("newOkButton"));
    QVERIFY(!m_body->findChild<QPushButton *>("newCancelButton"));
    QCOMPARE(m_body->findChildren<QLabel *>().size(), labels);
    QCOMPARE(m_body->findChildren<QComboBox *>().size(), boxes);
    QCOMPARE(m_body->findChildren<QLineEdit *>().size(), fields);
    QVERIFY(m_body->layout());
    QVERIFY(m_body->findChild<QObject *>("NewPriroity_RegExpValidator"));
}

void tst_NewDialogParts::releaseForgetsWhatItLists()
{
    m_frame->SetMsgParnet(m_page.data());
    m_frame->Init();
    QComboBox *keyIndex = m_body->findChild<QComboBox *>("keyIndexBox");
    QComboBox *authentication = m_body->findChild<QComboBox *>("authenticationBox");
    QComboBox *encryption = m_body->findChild<QComboBox *>("encryptionBox");
    m_body->release();
    keyIndex->clear();
    const int encryptions = encryption->count();
    m_body->onHighLighted("WPA(EAP)");
    QCOMPARE(keyIndex->count(), 0);
    QCOMPARE(encryption->count(), encryptions);
    m_body->SetAuthenticationInfo("WPA(EAP)");
    QCOMPARE(authentication->currentText(), QString("open"));
    m_body->SetEncryptionInfo("WEP");
    m_body->SetKeyIndexInfo("2");
    m_body->SetKeyMaterialInfo("typed");
    QCOMPARE(m_body->findChild<QLineEdit *>("keyEdit")->text(), QString());
    QCOMPARE(m_body->CheckKeyLength(), 0);
    QString name = "X";
    QVERIFY(!m_body->isProfileList(name));
    WLANProfile profile;
    m_body->GetProfileData(profile);
    QVERIFY(profile.profileName.isNull());
}

void tst_NewDialogParts::releaseKeepsTheEapMethods()
{
    m_frame->Init();
    QComboBox *eap = m_body->findChild<QComboBox *>("eapBox");
    QLabel *label = m_body->findChild<QLabel *>("eapLabel");
    m_body->release();
    eap->clear();
    m_body->onHighLighted("WPA(EAP)");
    QCOMPARE(eap->count(), 3);
    QVERIFY(!eap->isHidden() && !label->isHidden());
    m_body->onHighLighted("open");
    QVERIFY(eap->isHidden() && label->isHidden());
}

void tst_NewDialogParts::okWithoutNameBoxSkipsItsCheck()
{
    m_body->CreateNetPassword();
    m_body->CreateConfNetworkKey();
    m_body->CreateExtenWidget();
    m_body->OnOK();
    QCOMPARE(StandInHost::messages.size(), 1);
    QCOMPARE(StandInHost::messages.first().text, QString("en:IDS_ERROR_WRONG_AUTHENTICATION"));
}

void tst_NewDialogParts::frameWithoutBody()
{
    delete m_body;
    m_frame->SetMsgParnet(m_page.data());
    m_frame->Init();
    QVERIFY(!m_frame->findChild<QComboBox *>());
}

void tst_NewDialogParts::bodyWithoutFrame()
{
    QNewPriorityWidget body(nullptr, Qt::WindowFlags());
    body.Init();
    body.show();
    body.OnCancel();
    QVERIFY(!body.isVisible());
}

void tst_NewDialogParts::closingTheBodyClosesTheFrame()
{
    m_frame->Init();
    m_frame->show();
    QVERIFY(m_body->close());
    QVERIFY(!m_frame->isVisible());
}

QTEST_MAIN(tst_NewDialogParts)
#include "tst_newdialogparts.moc"
