#include "DialogScene.h"

#include <Row.h>
#include <TraceCapture.h>

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QValidator>
#include <QtTest>

/** The new-network dialog: its widgets, the names it offers, what choosing one does, and closing it. */
class tst_NewDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void frame();
    void texts();
    void longTextsAreElided();
    void labelsLeadToTheirFields();
    void rowsFromTopToBottom();
    void fieldSettings();
    void keyCharacters_data();
    void keyCharacters();
    void keyLength();
    void nameIsFreeText();
    void names_data();
    void names();
    void namesWithAFileThatCannotBeRead_data();
    void namesWithAFileThatCannotBeRead();
    void fileCountsNotTheShownList();
    void longNameKeepsTheDialogInShape();
    void nothingIsChosenAtFirst();
    void fillingTheNamesRunsTheSlot();
    void noNetworkInRange();
    void namesThatComeOrNotReachTheFields_data();
    void namesThatComeOrNotReachTheFields();
    void choosingPresetsTheFields();
    void wholeRecordIsHandedBack();
    void unknownProfileKeepsTheFields();
    void presetsOfAMethodNotOffered();
    void typedNameResetsTheFields();
    void typedNameKeepsItsCase();
    void closingSendsNothing_data();
    void closingSendsNothing();
    void openingAgainStartsAfresh();
    void dialogDeletedByOthers();
    void bothDialogsLiveSideBySide();
    void trace();

private:
    QLabel *Label(const char *name) { return m_scene.Find<QLabel>(name); }
    QLineEdit *Field(const char *name) { return m_scene.Find<QLineEdit>(name); }
    QComboBox *NameBox() { return m_scene.Box("networkNameBox"); }
    void AddNetworks(const QString &names);
    /** Authentication, encryption, key index and key as the fields show them. */
    QStringList Fields();

    DialogScene m_scene;
};

/** Keeps the record of the last network that it was asked about. */
class CuriousWLAN : public FakeWLAN
{
public:
    int GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile) override
    {
        last = network;
        profileCameEmpty = profile->authentication.isEmpty() && profile->keyMaterial.isEmpty() &&
                           profile->profileName.isEmpty();
        return FakeWLAN::GetNetworkProfile(network, profile);
    }

    WlanAvilableNetworkInfo last;
    bool profileCameEmpty;
};

/** Writes a key into the dialog that asks for the networks in range. */
class WritingWLAN : public FakeWLAN
{
public:
    int GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list) override
    {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            if (widget->objectName() == "keyEdit") {
                qobject_cast<QLineEdit *>(widget)->setText("written");
            }
        }
        return FakeWLAN::GetAvailableNetworks(list);
    }
};

void tst_NewDialog::init()
{
    m_scene.Begin();
    m_scene.SetMethods(Words("open WPA2PSK WPA(EAP)"));
}

void tst_NewDialog::cleanup()
{
    m_scene.End();
}

void tst_NewDialog::AddNetworks(const QString &names)
{
    const QStringList list = Words(names);
    for (int i = 0; i < list.size(); ++i) {
        m_scene.AddNetwork(list.at(i));
    }
}

QStringList tst_NewDialog::Fields()
{
    return QStringList() << m_scene.Box("authenticationBox")->currentText()
                         << m_scene.Box("encryptionBox")->currentText()
                         << m_scene.Box("keyIndexBox")->currentText() << Field("keyEdit")->text()
                         << Field("confirmKeyEdit")->text();
}

void tst_NewDialog::frame()
{
    m_scene.Open("newButton");
    QDialog *frame = m_scene.Find<QDialog>("newDialog");
    QVERIFY(frame->isVisible());
    QVERIFY(frame->isModal());
    QCOMPARE(frame->minimumSize(), QSize(360, 340));
    QCOMPARE(frame->maximumSize(), QSize(360, 340));
    QCOMPARE(frame->windowTitle(), QString("en:IDS_NEWPROFILE"));
    QCOMPARE(frame->parentWidget(), m_scene.Page());
    QVERIFY(frame->windowFlags() & Qt::WindowCloseButtonHint);
    QWidget *body = m_scene.Find<QWidget>("newDialogBody");
    QVERIFY(body->isVisible());
    QVERIFY(!body->isWindow());
    QCOMPARE(body->window(), static_cast<QWidget *>(frame));
    QCOMPARE(frame->focusWidget(), static_cast<QWidget *>(NameBox()));
    QVERIFY(m_scene.Find<QPushButton>("newOkButton")->isDefault());
}

void tst_NewDialog::texts()
{
    StandInHost::language = "ar";
    m_scene.Open("newButton");
    QCOMPARE(Label("networkNameLabel")->text(), QString("ar:IDS_LIST_NETWORK_NAME"));
    QCOMPARE(Label("keyLabel")->text(), QString("ar:IDS_KEY"));
    QCOMPARE(Label("confirmKeyLabel")->text(), QString("ar:IDS_KEY_CONFIRM"));
    QCOMPARE(m_scene.Find<QPushButton>("newOkButton")->text(), QString("ar:IDS_OK"));
    QCOMPARE(m_scene.Find<QPushButton>("newCancelButton")->text(), QString("ar:IDS_CANCEL"));
}

void tst_NewDialog::longTextsAreElided()
{
    m_scene.ShowPage();
    StandInHost::elidedTexts.clear();
    StandInHost::elideModes.clear();
    m_scene.Click("newButton");
    QCOMPARE(StandInHost::elidedTexts, QList<QString>() << "en:IDS_AUTHENTICATION"
                                                        << "en:IDS_ENCRYPTION"
                                                        << "en:IDS_KEYINDEX"
                                                        << "en:IDS_EAP_METHOD");
    QCOMPARE(StandInHost::elideModes,
             QList<int>() << Qt::ElideRight << Qt::ElideRight << Qt::ElideRight << Qt::ElideRight);
    // The stand-in's ids are too long for the labels' width.
    QVERIFY(Label("authenticationLabel")->text().startsWith("en:"));
    QCOMPARE(m_scene.Box("authenticationBox")->accessibleName(), QString("en:IDS_AUTHENTICATION"));
}

void tst_NewDialog::labelsLeadToTheirFields()
{
    m_scene.Open("newButton");
    const char *const pairs[][2] = {{"networkNameLabel", "networkNameBox"},
                                    {"keyLabel", "keyEdit"},
                                    {"confirmKeyLabel", "confirmKeyEdit"},
                                    {"authenticationLabel", "authenticationBox"},
                                    {"encryptionLabel", "encryptionBox"},
                                    {"keyIndexLabel", "keyIndexBox"},
                                    {"eapLabel", "eapBox"}};
    for (const auto &pair : pairs) {
        QVERIFY(Label(pair[0])->buddy());
        QCOMPARE(Label(pair[0])->buddy(), m_scene.Find<QWidget>(pair[1]));
        QVERIFY(!m_scene.Find<QWidget>(pair[1])->accessibleName().isEmpty());
    }
}

/** The names of a layout's widgets in order; "(...)" is a layout inside, a number is a spacing. */
static QString Content(QLayout *layout)
{
    QStringList content;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget()) {
            content << item->widget()->objectName();
        } else if (item->layout()) {
            content << "(" + Content(item->layout()) + ")";
        } else {
            content << QString::number(item->spacerItem()->sizeHint().height());
        }
    }
    return content.join(" ");
}

void tst_NewDialog::rowsFromTopToBottom()
{
    m_scene.Open("newButton");
    QBoxLayout *layout = qobject_cast<QBoxLayout *>(m_scene.Find<QWidget>("newDialogBody")->layout());
    QCOMPARE(layout->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(Content(layout), QString("10 (networkNameLabel networkNameBox) "
                                      "10 (keyLabel keyEdit) "
                                      "10 (confirmKeyLabel confirmKeyEdit) "
                                      "10 ((authenticationLabel authenticationBox) "
                                      "(encryptionLabel encryptionBox) "
                                      "(keyIndexLabel keyIndexBox eapLabel eapBox)) "
                                      "10 newButtonBar"));
    QCOMPARE(Content(m_scene.Find<QWidget>("newButtonBar")->layout()),
             QString("newOkButton newCancelButton"));
    const QBoxLayout::Direction directions[] = {QBoxLayout::LeftToRight, QBoxLayout::TopToBottom,
                                                QBoxLayout::TopToBottom, QBoxLayout::LeftToRight};
    for (int row = 0; row < 4; ++row) {
        QBoxLayout *inner = qobject_cast<QBoxLayout *>(layout->itemAt(2 * row + 1)->layout());
        QCOMPARE(inner->direction(), directions[row]);
        QCOMPARE(int(inner->alignment()), row < 3 ? int(Qt::AlignLeft) : 0);
    }
}

void tst_NewDialog::fieldSettings()
{
    m_scene.Open("newButton");
    QVERIFY(NameBox()->isEditable());
    QCOMPARE(NameBox()->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(!NameBox()->validator());
    QVERIFY(NameBox()->maxCount() > 1000000);
    QCOMPARE(m_scene.Box("authenticationBox")->maxCount(), 6);
    QCOMPARE(m_scene.Box("encryptionBox")->maxCount(), 4);
    QCOMPARE(m_scene.Box("keyIndexBox")->maxCount(), 4);
    QCOMPARE(m_scene.Box("eapBox")->maxCount(), 3);
    QCOMPARE(m_scene.Find<QWidget>("newOkButton")->minimumWidth(), 90);
    QCOMPARE(m_scene.Find<QWidget>("newOkButton")->maximumWidth(), 90);
    QCOMPARE(m_scene.Find<QWidget>("newCancelButton")->maximumWidth(), 90);
    const char *const keyFields[] = {"keyEdit", "confirmKeyEdit"};
    for (const char *name : keyFields) {
        QCOMPARE(Field(name)->echoMode(), QLineEdit::Password);
        QCOMPARE(Field(name)->contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(Field(name)->parentWidget(), m_scene.Find<QWidget>("newDialogBody"));
        QCOMPARE(Field(name)->validator()->objectName(), QString("NewPriroity_RegExpValidator"));
    }
    QCOMPARE(Field("keyEdit")->validator(), Field("confirmKeyEdit")->validator());
    QCOMPARE(Field("keyEdit")->validator()->parent(),
             static_cast<QObject *>(m_scene.Find<QWidget>("newDialogBody")));
}

void tst_NewDialog::keyCharacters_data()
{
    QTest::addColumn<QString>("characters");
    QTest::addColumn<bool>("accepted");
    Row("letters and digits", "azAZ09_", true);
    Row("signs", "-~!@#$%^&*()+{}[]:", true);
    Row("other letters", QString::fromUtf8("\xc3\xa9\xd8\xa8\xe4\xb8\xad"), true);
    Row("refused", QString::fromUtf8(" .,;/\\'\"<>?=|`\xe2\x82\xac\t"), false);
}

void tst_NewDialog::keyCharacters()
{
    QFETCH(QString, characters);
    QFETCH(bool, accepted);
    m_scene.Open("newButton");
    for (int i = 0; i < characters.size(); ++i) {
        const char *const keyFields[] = {"keyEdit", "confirmKeyEdit"};
        for (const char *name : keyFields) {
            Field(name)->clear();
            Field(name)->insert(QString(characters.at(i)));
            QVERIFY2(Field(name)->text().isEmpty() != accepted,
                     qPrintable(QString("U+%1").arg(characters.at(i).unicode(), 4, 16)));
        }
    }
}

void tst_NewDialog::keyLength()
{
    m_scene.Open("newButton");
    Field("keyEdit")->insert(QString(127, 'k'));
    QTest::keyClicks(Field("keyEdit"), "kk");
    QCOMPARE(Field("keyEdit")->text(), QString(128, 'k'));
    Field("confirmKeyEdit")->insert(QString(129, 'k'));
    QCOMPARE(Field("confirmKeyEdit")->text(), QString());
}

void tst_NewDialog::nameIsFreeText()
{
    m_scene.Open("newButton");
    QTest::keyClicks(NameBox(), "my net. ,;/\\");
    QCOMPARE(NameBox()->currentText(), QString("my net. ,;/\\"));
    NameBox()->lineEdit()->clear();
    NameBox()->lineEdit()->insert(QString(129, 'n'));
    QCOMPARE(NameBox()->currentText().size(), 129);
}

void tst_NewDialog::names_data()
{
    QTest::addColumn<QString>("inRange");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    Row("nothing stored", "N1 N2", "", "N1 N2");
    Row("only the first of a name goes", "N1 N2 N1", "N1", "N2 N1");
    Row("one goes for each entry", "N1 N2 N1", "N1 N1", "N2");
    Row("mobile broadband takes nothing out", "N1 N2", "N1/2", "N1 N2");
    Row("type is compared exactly", "N1 N2", "N1/01 N2/ N1/10", "N1 N2");
    Row("case counts", "N1 n2", "n1 N2", "N1 n2");
    Row("all stored", "N1 N2", "N2 N1", "");
    Row("repeated names stay", "N1 N1 N1", "X", "N1 N1 N1");
    Row("order stays", "Z A M", "", "Z A M");
}

void tst_NewDialog::names()
{
    QFETCH(QString, inRange);
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    AddNetworks(inRange);
    m_scene.Store(Words(stored));
    m_scene.Open("newButton");
    QCOMPARE(Items(NameBox()).join(" "), expected);
}

void tst_NewDialog::namesWithAFileThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("file");
    Row("missing", QByteArray());
    Row("broken behind the name", QByteArray("<r><item name='N1' type='1'/><item"));
}

void tst_NewDialog::namesWithAFileThatCannotBeRead()
{
    QFETCH(QByteArray, file);
    AddNetworks("N1 N2");
    if (!file.isNull()) {
        m_scene.directory->Write("Priority.xml", file);
    }
    m_scene.Open("newButton");
    QCOMPARE(Items(NameBox()), Words("N1 N2"));
}

void tst_NewDialog::fileCountsNotTheShownList()
{
    AddNetworks("A B");
    m_scene.Store(Words("A"));
    m_scene.ShowPage();
    m_scene.Store(Words("B"));
    m_scene.Click("newButton");
    QCOMPARE(Items(NameBox()), Words("A"));
}

void tst_NewDialog::longNameKeepsTheDialogInShape()
{
    AddNetworks("N1");
    m_scene.Open("newButton");
    const QSize size = NameBox()->minimumSizeHint();
    m_scene.AddNetwork(QString(32, 'W'));
    m_scene.Click("newButton");
    QCOMPARE(NameBox()->count(), 2);
    QCOMPARE(NameBox()->minimumSizeHint(), size);
    QCOMPARE(NameBox()->sizeHint(), size);
}

void tst_NewDialog::nothingIsChosenAtFirst()
{
    AddNetworks("N1 N2");
    m_scene.wlan.profiles.insert("N1", Profile("WPA2PSK", "TKIP", "2", "secret78"));
    m_scene.Open("newButton");
    QCOMPARE(NameBox()->currentIndex(), -1);
    QCOMPARE(NameBox()->currentText(), QString());
    QCOMPARE(Fields(), QStringList() << "open"
                                     << "none"
                                     << "1"
                                     << ""
                                     << "");
}

void tst_NewDialog::fillingTheNamesRunsTheSlot()
{
    AddNetworks("N1 N2 N3");
    m_scene.Open("newButton");
    QCOMPARE(m_scene.wlan.calls, QStringList() << "GetConfigData"
                                               << "GetAvailableNetworks"
                                               << "GetNetworkProfile N1");
    QCOMPARE(m_scene.container.lookUps.size(), 3);
}

void tst_NewDialog::noNetworkInRange()
{
    m_scene.Open("newButton");
    QCOMPARE(NameBox()->count(), 0);
    QCOMPARE(NameBox()->currentIndex(), -1);
    QCOMPARE(m_scene.wlan.calls, QStringList() << "GetConfigData"
                                               << "GetAvailableNetworks");
}

void tst_NewDialog::namesThatComeOrNotReachTheFields_data()
{
    QTest::addColumn<bool>("inRange");
    QTest::addColumn<QString>("key");
    Row("a network in range: the fields are reset", true, "");
    Row("none: they are left alone", false, "written");
}

void tst_NewDialog::namesThatComeOrNotReachTheFields()
{
    QFETCH(bool, inRange);
    QFETCH(QString, key);
    WritingWLAN wlan;
    wlan.config = m_scene.wlan.config;
    if (inRange) {
        AddNetworks("N1");
        wlan.networks = m_scene.wlan.networks;
    }
    m_scene.container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &wlan);
    m_scene.Open("newButton");
    QCOMPARE(Field("keyEdit")->text(), key);
    m_scene.End();
    m_scene.Begin();
}

void tst_NewDialog::choosingPresetsTheFields()
{
    AddNetworks("N0 N1 N2");
    m_scene.Store(Words("N0"));
    m_scene.wlan.profiles.insert("N1", Profile("WPA2PSK", "TKIP", "0", "wrong one"));
    m_scene.wlan.profiles.insert("N2", Profile("open", "WEP", "3", "key N2"));
    m_scene.Open("newButton");
    QTest::keyClick(NameBox(), Qt::Key_Down);
    QTest::keyClick(NameBox(), Qt::Key_Down);
    QCOMPARE(NameBox()->currentText(), QString("N2"));
    QCOMPARE(Fields(), QStringList() << "open"
                                     << "WEP"
                                     << "4"
                                     << "key N2"
                                     << "key N2");
}

void tst_NewDialog::wholeRecordIsHandedBack()
{
    CuriousWLAN wlan;
    WlanAvilableNetworkInfo network;
    network.networkName = "N1";
    network.value1 = 11;
    network.value2 = -22;
    network.value3 = 33;
    network.value4 = -44;
    network.value5 = 55;
    wlan.networks << network;
    m_scene.container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &wlan);
    m_scene.Open("newButton");
    QCOMPARE(wlan.last.networkName, QString("N1"));
    QCOMPARE(wlan.last.value1, 11);
    QCOMPARE(wlan.last.value2, -22);
    QCOMPARE(wlan.last.value3, 33);
    QCOMPARE(wlan.last.value4, -44);
    QCOMPARE(wlan.last.value5, 55);
    QVERIFY(wlan.profileCameEmpty);
    m_scene.End();
    m_scene.Begin();
}

void tst_NewDialog::unknownProfileKeepsTheFields()
{
    AddNetworks("N1 N2");
    m_scene.wlan.profiles.insert("N1", Profile("WPA2PSK", "TKIP", "0", "secret78"));
    m_scene.Open("newButton");
    NameBox()->setCurrentIndex(0);
    const QStringList before = Fields();
    QCOMPARE(before.at(1), QString("TKIP"));
    NameBox()->setCurrentIndex(1);
    QCOMPARE(Fields(), before);
}

void tst_NewDialog::presetsOfAMethodNotOffered()
{
    AddNetworks("N1");
    m_scene.wlan.profiles.insert("N1", Profile("shared", "WEP", "1", "abcde"));
    m_scene.Open("newButton");
    NameBox()->setCurrentIndex(0);
    QCOMPARE(m_scene.Box("authenticationBox")->currentIndex(), -1);
    QCOMPARE(m_scene.Box("encryptionBox")->currentIndex(), -1);
    QCOMPARE(m_scene.Box("encryptionBox")->count(), 0);
    QCOMPARE(m_scene.Box("keyIndexBox")->currentText(), QString("2"));
    QCOMPARE(Field("keyEdit")->text(), QString("abcde"));
}

void tst_NewDialog::typedNameResetsTheFields()
{
    AddNetworks("N1");
    m_scene.wlan.profiles.insert("N1", Profile("open", "WEP", "3", "abcde"));
    m_scene.Open("newButton");
    NameBox()->setCurrentIndex(0);
    NameBox()->lineEdit()->selectAll();
    QTest::keyClicks(NameBox(), "Elsewhere");
    QCOMPARE(Fields().at(1), QString("WEP"));
    QTest::keyClick(NameBox(), Qt::Key_Return);
    QCOMPARE(Items(NameBox()), Words("N1 Elsewhere"));
    QCOMPARE(NameBox()->currentIndex(), 1);
    QCOMPARE(Fields(), QStringList() << ""
                                     << ""
                                     << "1"
                                     << ""
                                     << "");
    QCOMPARE(m_scene.Box("authenticationBox")->currentIndex(), -1);
    QCOMPARE(m_scene.Box("encryptionBox")->count(), 0);
}

void tst_NewDialog::typedNameKeepsItsCase()
{
    AddNetworks("Home");
    m_scene.Open("newButton");
    QTest::keyClicks(NameBox(), "home");
    QTest::keyClick(NameBox(), Qt::Key_Return);
    QCOMPARE(NameBox()->currentText(), QString("home"));
    QCOMPARE(Items(NameBox()), Words("Home home"));
}

void tst_NewDialog::closingSendsNothing_data()
{
    QTest::addColumn<QString>("way");
    Row("Cancel", "Cancel");
    Row("title bar", "title bar");
    Row("Escape", "Escape");
}

void tst_NewDialog::closingSendsNothing()
{
    QFETCH(QString, way);
    m_scene.Store(Words("X"));
    m_scene.Open("newButton");
    NameBox()->setEditText("Mine");
    const QByteArray before = m_scene.File();
    TraceCapture trace;
    m_scene.CloseDialog("newDialog", way);
    QVERIFY(!m_scene.IsOpen("newDialog"));
    QCOMPARE(trace.Lines(), QStringList());
    QCOMPARE(m_scene.File(), before);
    QVERIFY(m_scene.wlan.created.isEmpty());
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_NewDialog::openingAgainStartsAfresh()
{
    m_scene.Open("newButton");
    NameBox()->setEditText("Mine");
    Field("keyEdit")->setText("secret78");
    const QPointer<QWidget> first = m_scene.Find<QWidget>("newDialog");
    m_scene.Click("newButton");
    QVERIFY(!first);
    QCOMPARE(m_scene.Page()->findChildren<QWidget *>("newDialog").size(), 1);
    QVERIFY(m_scene.IsOpen("newDialog"));
    QCOMPARE(NameBox()->currentText(), QString());
    QCOMPARE(Field("keyEdit")->text(), QString());
}

void tst_NewDialog::dialogDeletedByOthers()
{
    m_scene.Open("newButton");
    delete m_scene.Find<QWidget>("newDialog");
    m_scene.Click("newButton");
    QVERIFY(m_scene.IsOpen("newDialog"));
}

void tst_NewDialog::bothDialogsLiveSideBySide()
{
    m_scene.Open("newButton");
    m_scene.Click("addButton");
    QVERIFY(m_scene.IsOpen("newDialog"));
    QVERIFY(m_scene.IsOpen("addDialog"));
}

void tst_NewDialog::trace()
{
    AddNetworks("N1 N2");
    m_scene.Store(Words("N1 M/2"));
    m_scene.ShowPage();
    const QString dialog = "TIME: ../../src/PriorityPlugin/qnewprioritywidget.cpp: ";
    const QString store = "../../src/PriorityPlugin/PriorityXMLParser.cpp: ";
    TraceCapture trace;
    m_scene.Click("newButton");
    QCOMPARE(
        trace.Normalised(),
        QStringList() << dialog + "GetAvilableNetwork: Entered " << dialog + "GetAvilableNetwork: Exit"
                      << dialog + "FitterAvilableNetwork: Entered "
                      << "BUILD: " + store + "GetInstance: Entered"
                      << "TIME: " + store + "GetPriorityList: Entered "
                      << "BUILD: " + store + "getUserDataDirectory before calling ZELT_GetUserDataDirectory()"
                      << "BUILD: " + store +
                             "getUserDataDirectory after calling ZELT_GetUserDataDirectory(), retVal=0"
                      << "TIME: " + store + "GetPriorityList: Exit"
                      << dialog + "DeleteAvilableNetwork: Entered " << dialog + "DeleteAvilableNetwork: Exit"
                      << dialog + "DeleteAvilableNetwork: Entered " << dialog + "DeleteAvilableNetwork: Exit"
                      << dialog + "FitterAvilableNetwork: Exit");
}

QTEST_MAIN(tst_NewDialog)
#include "tst_newdialog.moc"
