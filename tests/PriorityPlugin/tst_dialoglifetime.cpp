#include "DialogScene.h"

#include <Row.h>

#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/** Hosts that take the page away while a dialog of it is open. The last test ends the plug-in. */
class tst_DialogLifetime : public QObject, public MessageVisitor
{
    Q_OBJECT

private slots:
    void init();

    void hostDialogDismissedBehindADialog();
    void hostDialogDeletedBehindDialogs();
    void hostDialogDeletedDuringANotice_data();
    void hostDialogDeletedDuringANotice();
    void dialogDeletedDuringANotice();
    void pluginDestroyedDuringANotice();

private:
    enum Visit { DeleteHostDialog, DeleteDialog, DestroyPlugin };

    void MessageIsOpen() override;
    void OpenBoth();

    DialogScene m_scene;
    Visit m_visit;
};

void tst_DialogLifetime::init()
{
    m_scene.Begin();
    m_scene.SetMethods(Words("open"));
    m_scene.wlan.Remember("A", "1");
    m_scene.Store(Words("X"));
}

void tst_DialogLifetime::MessageIsOpen()
{
    switch (m_visit) {
    case DeleteHostDialog:
        m_scene.window.reset();
        break;
    case DeleteDialog:
        delete m_scene.Find<QWidget>("newDialog");
        break;
    case DestroyPlugin:
        m_scene.plugin.Plugin()->OnDestroy();
        break;
    }
}

void tst_DialogLifetime::OpenBoth()
{
    m_scene.Open("addButton");
    m_scene.Click("newButton");
}

void tst_DialogLifetime::hostDialogDismissedBehindADialog()
{
    m_scene.Open("addButton");
    const QPointer<QWidget> dialog = m_scene.Find<QWidget>("addDialog");
    QVERIFY(m_scene.plugin.Setting()->OnClickSettingCancelButton());
    m_scene.window.reset();
    QVERIFY(dialog);
    m_scene.window.reset(new QWidget);
    m_scene.Open("addButton");
    QVERIFY(!dialog);
    QVERIFY(m_scene.IsOpen("addDialog"));
    m_scene.End();
}

void tst_DialogLifetime::hostDialogDeletedBehindDialogs()
{
    OpenBoth();
    const QPointer<QWidget> addDialog = m_scene.Find<QWidget>("addDialog");
    const QPointer<QWidget> newDialog = m_scene.Find<QWidget>("newDialog");
    m_scene.window.reset();
    QVERIFY(!addDialog);
    QVERIFY(!newDialog);
    m_scene.window.reset(new QWidget);
    OpenBoth();
    QVERIFY(m_scene.IsOpen("addDialog"));
    QVERIFY(m_scene.IsOpen("newDialog"));
    m_scene.End();
}

void tst_DialogLifetime::hostDialogDeletedDuringANotice_data()
{
    QTest::addColumn<QString>("name");
    Row("no name", "");
    Row("keys differ", "Mine");
    Row("repeated name", "X");
}

void tst_DialogLifetime::hostDialogDeletedDuringANotice()
{
    QFETCH(QString, name);
    m_scene.Open("newButton");
    m_scene.Box("networkNameBox")->setEditText(name);
    if (name == "Mine") {
        QTest::keyClicks(m_scene.Find<QWidget>("keyEdit"), "abc");
    }
    StandInHost::messageVisitor = this;
    m_visit = DeleteHostDialog;
    m_scene.Click("newOkButton");
    QCOMPARE(StandInHost::messages.size(), 1);
    QVERIFY(!m_scene.window);
    QCOMPARE(m_scene.Stored(), Words("X"));
}

void tst_DialogLifetime::dialogDeletedDuringANotice()
{
    m_scene.Open("newButton");
    StandInHost::messageVisitor = this;
    m_visit = DeleteDialog;
    m_scene.Click("newOkButton");
    QVERIFY(!m_scene.Find<QWidget>("newDialog"));
    m_scene.Click("newButton");
    QVERIFY(m_scene.IsOpen("newDialog"));
    m_scene.End();
}

void tst_DialogLifetime::pluginDestroyedDuringANotice()
{
    OpenBoth();
    const QPointer<QWidget> page = m_scene.Page();
    const QPointer<QWidget> addDialog = m_scene.Find<QWidget>("addDialog");
    const QPointer<QWidget> newDialog = m_scene.Find<QWidget>("newDialog");
    StandInHost::messageVisitor = this;
    m_visit = DestroyPlugin;
    m_scene.Click("newOkButton");
    QVERIFY(!page);
    QVERIFY(!addDialog);
    QVERIFY(!newDialog);
    QVERIFY(m_scene.window->children().isEmpty());
    StandInHost::container = nullptr;
}

QTEST_MAIN(tst_DialogLifetime)
#include "tst_dialoglifetime.moc"
