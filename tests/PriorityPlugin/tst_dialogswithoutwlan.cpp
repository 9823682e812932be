#include "DialogScene.h"

#include <Row.h>

#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/** How the WLAN plug-in can be out of reach. */
enum Absence { NoContainer, NoObject, ObjectOfAnotherKind };
Q_DECLARE_METATYPE(Absence)

/** A container whose WLAN plug-in vanishes for good after a number of look-ups. */
class VanishingContainer : public IPluginContainer
{
public:
    QObject *GetPluginObject(const QString &, int) override
    {
        if (answers > 0) {
            --answers;
            // A container that is gone can't be asked again.
            if (answers == 0 && absence == NoContainer) {
                StandInHost::container = nullptr;
            }
            return wlan;
        }
        return absence == ObjectOfAnotherKind ? &other : nullptr;
    }

    int answers;
    Absence absence;
    QObject *wlan;
    QObject other;
};

/** The dialogs while the WLAN plug-in is missing, or goes away between any two calls. */
class tst_DialogsWithoutWLAN : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void addDialogIsEmpty_data() { Absences(); }
    void addDialogIsEmpty();
    void newDialogIsEmpty_data() { Absences(); }
    void newDialogIsEmpty();
    void vanishedAfterTheConfiguration_data() { Absences(); }
    void vanishedAfterTheConfiguration();
    void vanishedAfterTheNetworks_data() { Absences(); }
    void vanishedAfterTheNetworks();
    void vanishedBeforeTheChoice_data() { Absences(); }
    void vanishedBeforeTheChoice();
    void vanishedBeforeTheCreation_data() { Absences(); }
    void vanishedBeforeTheCreation();
    void everyOperationLooksAfresh();

private:
    static void Absences();
    /** From now on the WLAN plug-in answers so many look-ups and then is gone. */
    void VanishAfter(int answers);

    DialogScene m_scene;
    VanishingContainer m_vanishing;
};

void tst_DialogsWithoutWLAN::init()
{
    m_scene.Begin();
    m_scene.SetMethods(Words("open WPA2PSK WPA(EAP)"));
    m_scene.AddNetwork("N1");
    m_scene.AddNetwork("N2");
    m_scene.wlan.profiles.insert("N1", Profile("WPA2PSK", "TKIP", "0", "secret78"));
    m_scene.wlan.Remember("A", "1");
}

void tst_DialogsWithoutWLAN::cleanup()
{
    m_scene.End();
}

void tst_DialogsWithoutWLAN::Absences()
{
    QTest::addColumn<Absence>("absence");
    Row("no container", NoContainer);
    Row("no object under the class id", NoObject);
    Row("object of another kind", ObjectOfAnotherKind);
}

void tst_DialogsWithoutWLAN::VanishAfter(int answers)
{
    QFETCH(Absence, absence);
    m_vanishing.answers = answers;
    m_vanishing.absence = absence;
    m_vanishing.wlan = &m_scene.wlan;
    StandInHost::container = answers == 0 && absence == NoContainer ? nullptr : &m_vanishing;
}

void tst_DialogsWithoutWLAN::addDialogIsEmpty()
{
    m_scene.Store(Words("X"));
    m_scene.ShowPage();
    VanishAfter(0);
    m_scene.Click("addButton");
    QVERIFY(m_scene.IsOpen("addDialog"));
    const QTableWidget *table = m_scene.Find<QTableWidget>("rememberTable");
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->columnCount(), 0);
    QVERIFY(table->showGrid());
    m_scene.Click("addOkButton");
    QVERIFY(!m_scene.IsOpen("addDialog"));
    QCOMPARE(m_scene.Stored(), Words("X"));
    QVERIFY(m_scene.wlan.calls.isEmpty());
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_DialogsWithoutWLAN::newDialogIsEmpty()
{
    m_scene.ShowPage();
    VanishAfter(0);
    m_scene.Click("newButton");
    QVERIFY(m_scene.IsOpen("newDialog"));
    QCOMPARE(m_scene.Box("networkNameBox")->count(), 0);
    QCOMPARE(m_scene.Box("networkNameBox")->currentIndex(), -1);
    QCOMPARE(m_scene.Box("authenticationBox")->count(), 0);
    QCOMPARE(m_scene.Box("encryptionBox")->count(), 0);
    QVERIFY(m_scene.wlan.calls.isEmpty());
    QVERIFY(StandInHost::messages.isEmpty());
    m_scene.Box("networkNameBox")->setEditText("Mine");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList("en:IDS_ERROR_WRONG_AUTHENTICATION"));
}

void tst_DialogsWithoutWLAN::vanishedAfterTheConfiguration()
{
    m_scene.ShowPage();
    VanishAfter(1);
    m_scene.Click("newButton");
    QCOMPARE(m_scene.wlan.calls, QStringList("GetConfigData"));
    QCOMPARE(m_scene.Box("networkNameBox")->count(), 0);
    QCOMPARE(m_scene.Box("authenticationBox")->currentText(), QString("open"));
    m_scene.Box("networkNameBox")->setEditText("Mine");
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.Stored(), Words("Mine"));
}

void tst_DialogsWithoutWLAN::vanishedAfterTheNetworks()
{
    m_scene.ShowPage();
    VanishAfter(2);
    m_scene.Click("newButton");
    QCOMPARE(m_scene.wlan.calls, QStringList() << "GetConfigData"
                                               << "GetAvailableNetworks");
    QCOMPARE(Items(m_scene.Box("networkNameBox")), Words("N1 N2"));
    QCOMPARE(m_scene.Box("networkNameBox")->currentIndex(), -1);
    QCOMPARE(m_scene.Box("authenticationBox")->currentText(), QString("open"));
}

void tst_DialogsWithoutWLAN::vanishedBeforeTheChoice()
{
    m_scene.Open("newButton");
    m_scene.wlan.calls.clear();
    VanishAfter(0);
    m_scene.Box("networkNameBox")->setCurrentIndex(0);
    QVERIFY(m_scene.wlan.calls.isEmpty());
    QCOMPARE(m_scene.Box("authenticationBox")->currentText(), QString("open"));
    QCOMPARE(m_scene.Box("encryptionBox")->currentText(), QString("none"));
}

void tst_DialogsWithoutWLAN::vanishedBeforeTheCreation()
{
    m_scene.Open("newButton");
    m_scene.Box("networkNameBox")->setEditText("Mine");
    VanishAfter(0);
    m_scene.Click("newOkButton");
    QVERIFY(m_scene.wlan.created.isEmpty());
    QCOMPARE(m_scene.Stored(), Words("Mine"));
    QVERIFY(!m_scene.IsOpen("newDialog"));
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_DialogsWithoutWLAN::everyOperationLooksAfresh()
{
    StandInHost::container = nullptr;
    m_scene.Open("newButton");
    m_scene.Box("networkNameBox")->setEditText("Mine");
    m_scene.Box("authenticationBox")->addItem("open");
    StandInHost::container = &m_scene.container;
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), 1);
    m_scene.Click("addButton");
    QCOMPARE(m_scene.Find<QTableWidget>("rememberTable")->rowCount(), 1);
}

QTEST_MAIN(tst_DialogsWithoutWLAN)
#include "tst_dialogswithoutwlan.moc"
