#include "HandMadeWlan.h"
#include "HostServices.h"
#include "LoadedLibrary.h"
#include "RootTable.h"
#include "ServiceTable.h"

#include <Row.h>
#include <TemporaryDirectory.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

/**
 * What the priority plug-in calls: the WLAN plug-in and the container by their positions, the records that
 * cross with the calls, and the host's services by their mangled names.
 */
class CalledPositionsTest : public QObject
{
    Q_OBJECT

public:
    CalledPositionsTest() : m_library("PriorityPlugin") {}

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void WlanIsLookedUpByItsIdentifiers();
    void OtherContainersAnswersAreNotCast();

    void SelectionCallsTheTenth();
    void SixteenthTextProtects_data();
    void SixteenthTextProtects();
    void AddDialogCallsTheEighth();
    void NewDialogCallsTheEleventhAndTheTwentySecond();
    void ChoiceCallsTheTwentyThird();
    void OkCallsTheSeventh();

    void DialogsAreFrames();
    void NamesAreElidedOnTheRight();
    void QuestionHasItsArguments();
    void NoticeHasItsArguments();
    void ServicesAreAllAskedHere();

private:
    void Show();
    void Select(int row);
    template <typename Widget> Widget *Find(const char *name)
    {
        return m_window->findChild<Widget *>(QLatin1String(name));
    }
    void Click(const char *button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }
    QStringList Items(const char *box);
    void Choose(const char *box, const QString &text);

    LoadedLibrary m_library;
    QObject *m_service;
    HandMadeWlan m_wlan;
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QWidget> m_window;
};

namespace
{

const char *const twoEntries = "<zeltdoc><item name='Home' type='1'/><item name='Phone' type='2'/></zeltdoc>";

bool IsEmpty(const Profile &profile)
{
    for (int i = 0; i < ProfileTextCount; ++i) {
        if (!profile.texts[i].isEmpty()) {
            return false;
        }
    }
    return true;
}

Network MakeNetwork(const QString &name, int firstValue)
{
    Network network;
    network.name = name;
    for (int i = 0; i < networkValueCount; ++i) {
        network.values[i] = firstValue + i;
    }
    return network;
}

} // namespace

void CalledPositionsTest::initTestCase()
{
    const TemporaryDirectory empty;
    HostServices::Reset(empty.Path());
    void *root = m_library.Root()->qt_metacast(rootIdentifier);
    QVERIFY(At<QueryOperation>(root, RootTable::queryInterface)(root, settingNumber, &m_service));
}

void CalledPositionsTest::cleanupTestCase()
{
    void *farewell = NextPart(m_library.Root()->qt_metacast(rootIdentifier));
    At<PlainOperation>(farewell, DestroyTable::onDestroy)(farewell);
    delete m_library.Root();
}

void CalledPositionsTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    HostServices::Reset(m_directory->Path());
    HostServices::container = m_wlan.Container();
    m_wlan.Reset();
    m_wlan.configuration.methods << "open"
                                 << "shared"
                                 << "WPA2PSK";
    m_window.reset(new QWidget);
    m_window->resize(600, 500);
    m_window->show();
    m_directory->Write("Priority.xml", twoEntries);
}

void CalledPositionsTest::cleanup()
{
    const QList<QDialog *> dialogs = m_window->findChildren<QDialog *>();
    qDeleteAll(dialogs);
    void *setting = m_service->qt_metacast(settingIdentifier);
    At<AnswerOperation>(setting, SettingTable::hide)(setting);
    m_window.reset();
    m_directory.reset();
}

void CalledPositionsTest::Show()
{
    void *setting = m_service->qt_metacast(settingIdentifier);
    QRect rect;
    QVERIFY(At<ShowPageOperation>(setting, SettingTable::show)(setting, m_window.data(), rect));
    QCOMPARE(Find<QTableWidget>("priorityTable")->rowCount(), 2);
}

void CalledPositionsTest::Select(int row)
{
    QTableWidget *table = Find<QTableWidget>("priorityTable");
    const QRect cell = table->visualItemRect(table->item(row, 0));
    const QPoint point = cell.isEmpty() ? QPoint(5, table->rowViewportPosition(row) + 5) : cell.center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QCOMPARE(table->currentRow(), row);
}

QStringList CalledPositionsTest::Items(const char *box)
{
    QStringList items;
    for (int i = 0; i < Find<QComboBox>(box)->count(); ++i) {
        items.append(Find<QComboBox>(box)->itemText(i));
    }
    return items;
}

void CalledPositionsTest::Choose(const char *box, const QString &text)
{
    const int index = Find<QComboBox>(box)->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    Find<QComboBox>(box)->setCurrentIndex(index);
}

void CalledPositionsTest::WlanIsLookedUpByItsIdentifiers()
{
    Show();
    Select(0);
    QCOMPARE(m_wlan.lookUps.first(), QString("7545FB07-0E7A-4F27-A449-872DB09C106D 4102"));
    QCOMPARE(m_wlan.lookUps.removeAll(m_wlan.lookUps.first()), HostServices::containerQuestions);
    QCOMPARE(m_wlan.lookUps, QStringList());
    QCOMPARE(m_wlan.identifiers.first(), QString("com.torvik.netquillforge.plugin.IWLANUIPlugin"));
    m_wlan.identifiers.removeAll(m_wlan.identifiers.first());
    QCOMPARE(m_wlan.identifiers, QStringList());
    QCOMPARE(m_wlan.ContainerCalls(), QStringList(QString("3 x %1").arg(HostServices::containerQuestions)));
}

void CalledPositionsTest::OtherContainersAnswersAreNotCast()
{
    HostServices::container = nullptr;
    Show();
    Select(0);
    QVERIFY(HostServices::containerQuestions > 0);
    QCOMPARE(m_wlan.Calls(), QStringList());
}

void CalledPositionsTest::SelectionCallsTheTenth()
{
    Show();
    m_wlan.Reset();
    Select(0);
    QVERIFY(!m_wlan.namesAskedFor.isEmpty());
    QCOMPARE(m_wlan.Calls(), QStringList(QString("10 x %1").arg(m_wlan.namesAskedFor.size())));
    QCOMPARE(m_wlan.namesAskedFor.first(), QString("Home"));
    QVERIFY(IsEmpty(m_wlan.byNameBefore));
}

void CalledPositionsTest::SixteenthTextProtects_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < ProfileTextCount; ++i) {
        Row(qPrintable(QString("text %1").arg(i)), i);
    }
}

void CalledPositionsTest::SixteenthTextProtects()
{
    QFETCH(int, index);
    m_wlan.byName.texts[index] = "true";
    Show();
    Select(0);
    QCOMPARE(Find<QPushButton>("deleteButton")->isEnabled(), index != ProfileReadOnly);
}

void CalledPositionsTest::AddDialogCallsTheEighth()
{
    Entry remembered;
    remembered.name = "Office";
    remembered.type = "1";
    m_wlan.remembered.append(remembered);
    Show();
    m_wlan.Reset();
    m_wlan.remembered.append(remembered);
    Click("addButton");
    QCOMPARE(m_wlan.Calls(), QStringList("8 x 1"));
    QTableWidget *table = Find<QTableWidget>("rememberTable");
    QCOMPARE(table->rowCount(), 1);
    QTest::mouseClick(table->cellWidget(0, 0)->findChild<QCheckBox *>(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(6, 6));
    Click("addOkButton");
    QVERIFY(m_directory->Read("Priority.xml").contains("<item name=\"Office\" type=\"1\"/>"));
}

void CalledPositionsTest::NewDialogCallsTheEleventhAndTheTwentySecond()
{
    m_wlan.networks << MakeNetwork("Near", 10) << MakeNetwork("Far", 20);
    m_wlan.configuration.settings.insert("setting", "value");
    m_wlan.configuration.texts2 << "second";
    m_wlan.configuration.texts3 << "third";
    m_wlan.configuration.signOns << SignOn();
    Show();
    Click("newButton");
    QVERIFY(m_wlan.Calls().contains("11 x 1"));
    QVERIFY(m_wlan.Calls().contains("22 x 1"));
    // Filling the box fills it a second time.
    const QStringList methods = m_wlan.configuration.methods;
    QCOMPARE(Items("authenticationBox"), methods + methods);
    QCOMPARE(Items("networkNameBox"), QStringList() << "Near"
                                                    << "Far");
}

void CalledPositionsTest::ChoiceCallsTheTwentyThird()
{
    m_wlan.networks << MakeNetwork("Near", 10) << MakeNetwork("Far", 20);
    m_wlan.ofNetwork.texts[ProfileName] = "name of the profile";
    m_wlan.ofNetwork.texts[ProfileSsid] = "ssid of the profile";
    m_wlan.ofNetwork.texts[ProfileAuthentication] = "shared";
    m_wlan.ofNetwork.texts[ProfileEncryption] = "WEP";
    m_wlan.ofNetwork.texts[ProfileKeyMaterial] = "abcde";
    m_wlan.ofNetwork.texts[ProfileKeyIndex] = "2";
    Show();
    Click("newButton");
    Choose("networkNameBox", "Far");
    const QStringList calls = m_wlan.Calls().filter("23 x ");
    QCOMPARE(static_cast<int>(calls.size()), 1);
    QCOMPARE(m_wlan.networkAskedFor.name, QString("Far"));
    for (int i = 0; i < networkValueCount; ++i) {
        QCOMPARE(m_wlan.networkAskedFor.values[i], 20 + i);
    }
    QVERIFY(IsEmpty(m_wlan.ofNetworkBefore));
    QCOMPARE(Find<QComboBox>("authenticationBox")->currentText(), QString("shared"));
    QCOMPARE(Find<QComboBox>("encryptionBox")->currentText(), QString("WEP"));
    QCOMPARE(Find<QComboBox>("keyIndexBox")->currentText(), QString("3"));
    QCOMPARE(Find<QLineEdit>("keyEdit")->text(), QString("abcde"));
    QCOMPARE(Find<QLineEdit>("confirmKeyEdit")->text(), QString("abcde"));
}

void CalledPositionsTest::OkCallsTheSeventh()
{
    Show();
    Click("newButton");
    Find<QComboBox>("networkNameBox")->setEditText("Campus");
    Choose("authenticationBox", "shared");
    Choose("encryptionBox", "WEP");
    Choose("keyIndexBox", "4");
    QTest::keyClicks(Find<QLineEdit>("keyEdit"), "abcde");
    QTest::keyClicks(Find<QLineEdit>("confirmKeyEdit"), "abcde");
    m_wlan.Reset();
    Click("newOkButton");
    QCOMPARE(HostServices::messages, QStringList());
    QVERIFY(m_wlan.Calls().contains("7 x 1"));
    const char *const texts[] = {"Campus", "",       "",       "",    "0",          "Campus",
                                 "ESS",    "manual", "shared", "WEP", "networkKey", "false",
                                 "abcde",  "3",      "",       "",    "",           ""};
    for (int i = 0; i < ProfileTextCount; ++i) {
        QCOMPARE(m_wlan.created.texts[i], QString(texts[i]));
    }
    QVERIFY(m_directory->Read("Priority.xml").contains("<item name=\"Campus\" type=\"1\"/>"));
}

void CalledPositionsTest::DialogsAreFrames()
{
    Show();
    Click("addButton");
    Click("newButton");
    QCOMPARE(HostServices::frames, QStringList() << "type 1"
                                                 << "type 1");
    QCOMPARE(HostServices::titles, QStringList() << "en:IDS_PROFILE_ADD_TITLE"
                                                 << "en:IDS_NEWPROFILE");
    QCOMPARE(HostServices::bodies, 2);
    QCOMPARE(HostServices::lineEdits, 2);
    qDeleteAll(m_window->findChildren<QDialog *>());
    QCOMPARE(HostServices::framesGone, 2);
}

void CalledPositionsTest::NamesAreElidedOnTheRight()
{
    Show();
    QCOMPARE(HostServices::elidedTexts, QStringList() << "Home, mode 1"
                                                      << "Phone, mode 1");
}

void CalledPositionsTest::QuestionHasItsArguments()
{
    Show();
    Select(1);
    Click("deleteButton");
    QCOMPARE(HostServices::messages,
             QStringList("4|en:IDS_PROFILE_BOX_TITLE|en:IDS_WARNING_DELETE|IDS_OK|IDS_CANCEL||modal|8000000|"
                         "no dialog|no detail|on top"));
    QVERIFY(m_directory->Read("Priority.xml").contains("Phone"));
    HostServices::messageAnswer = 4194304;
    Select(1);
    Click("deleteButton");
    QVERIFY(m_directory->Read("Priority.xml").contains("Phone"));
    HostServices::messageAnswer = 1024;
    Select(1);
    Click("deleteButton");
    QVERIFY(!m_directory->Read("Priority.xml").contains("Phone"));
    QVERIFY(m_directory->Read("Priority.xml").contains("Home"));
}

void CalledPositionsTest::NoticeHasItsArguments()
{
    Show();
    Click("newButton");
    Find<QComboBox>("networkNameBox")->setEditText("Home");
    Click("newOkButton");
    QCOMPARE(static_cast<int>(HostServices::messages.size()), 1);
    QVERIFY2(HostServices::messages.first().startsWith("1|en:IDS_PROFILE_BOX_TITLE|en:IDS_"),
             qPrintable(HostServices::messages.first()));
    QVERIFY2(HostServices::messages.first().endsWith("||modal|8000000|no dialog|no detail|on top"),
             qPrintable(HostServices::messages.first()));
}

void CalledPositionsTest::ServicesAreAllAskedHere()
{
    Show();
    QVERIFY(HostServices::userDataQuestions > 0);
    QVERIFY(HostServices::languageQuestions > 0);
    Click("addButton");
    QVERIFY(HostServices::libraryPathQuestions > 0);
    QVERIFY(HostServices::texts.contains("PriorityPlugin/IDS_PROFILE_UP"));
    QCOMPARE(HostServices::texts.filter("PriorityPlugin/"), HostServices::texts);
}

QTEST_MAIN(CalledPositionsTest)
#include "tst_calledpositions.moc"
