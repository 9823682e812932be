#include "ConnectedWindow.h"
#include "Lists.h"

#include <NetworkDelegate.h>
#include <Row.h>

#include <QAction>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

/** What the window makes of what is told of connections, and of orders. */
class ConnectionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_world.reset(); }

    void ChangeIsShown();
    void ChangesThatComeTogetherAreReadOnce();
    void NothingIsAskedWhileNothingChanges();
    void WindowThatNobodySeesIsToldNothing_data();
    void WindowThatNobodySeesIsToldNothing();
    void SourceThatGoesIsToldAtTheTop();
    void WindowOfPracticeNetworksIsMarked();
    void RowTellsAssistiveTechnologyItsReason();
    void SwitchOrdersTheChoice();
    void SwitchIsThereOnlyForUse_data();
    void SwitchIsThereOnlyForUse();
    void SwitchWaitsWhileItIsUnderWay();
    void RefusedSwitchIsTold_data();
    void RefusedSwitchIsTold();
    void FailedSwitchIsToldUntilItIsConnected();
    void EntryIsConnected_data();
    void EntryIsConnected();
    void SingleClickOrdersNothing();
    void EntryThatIsConnectedIsNotOrdered();
    void EntryWithoutProfileTellsWhy();
    void StopEndsWhatIsComingUp();
    void DisconnectEndsWhatIsInUse();
    void DisconnectIsThereOnlyForUse_data();
    void DisconnectIsThereOnlyForUse();
    void RefusedDisconnectIsToldUntilItIsGone();
    void RefreshLooksForNetworks();

private:
    QAction *Disconnect() const { return m_world->window->findChild<QAction *>("disconnectAction"); }
    void DoubleClickRow(int row);
    QPushButton *Switch() const { return m_world->window->findChild<QPushButton *>("switchButton"); }
    QString Problems() const
    {
        return m_world->window->findChild<QWidget *>("banner")->isVisible()
                   ? QString("%1 %2").arg(m_world->Text("bannerTitle"), m_world->Text("bannerText")).trimmed()
                   : QString();
    }

    QScopedPointer<ConnectedWindow> m_world;
};

/** The list has Home before Café, and Café is in use. */
void ConnectionsTest::init()
{
    m_world.reset(new ConnectedWindow);
    m_world->priority->list = Listed(QString::fromUtf8("Home, Café"));
    m_world->connections->told.profiles << SavedProfile("Home") << SavedProfile(QString::fromUtf8("Café"));
    m_world->connections->told.active << ConnectionOf(QString::fromUtf8("Café"), StageConnected, true);
    m_world->Open();
}

void ConnectionsTest::ChangeIsShown()
{
    QCOMPARE(m_world->Text("headlineLabel"), QString::fromUtf8("In use now: Café"));
    QCOMPARE(m_world->State(1), QString("In use now"));
    m_world->connections->told.active = {ConnectionOf("Home", StageConnected, true)};
    m_world->Follow();
    QCOMPARE(m_world->Text("headlineLabel"), QString("In use now: Home"));
    QCOMPARE(m_world->State(0), QString("In use now"));
    QCOMPARE(m_world->State(1), QString("In range"));
}

void ConnectionsTest::ChangesThatComeTogetherAreReadOnce()
{
    const int reads = m_world->connections->reads;
    for (int i = 0; i < 5; ++i) {
        m_world->connections->Tell();
    }
    m_world->Follow();
    QTest::qWait(50);
    QCOMPARE(m_world->connections->reads, reads + 1);
}

void ConnectionsTest::NothingIsAskedWhileNothingChanges()
{
    for (const QTimer *timer : m_world->window->findChildren<QTimer *>()) {
        QVERIFY2(!timer->isActive(), qPrintable(timer->objectName()));
    }
}

void ConnectionsTest::WindowThatNobodySeesIsToldNothing_data()
{
    QTest::addColumn<bool>("isHidden");
    Row("minimised", false);
    Row("hidden", true);
}

void ConnectionsTest::WindowThatNobodySeesIsToldNothing()
{
    QFETCH(bool, isHidden);
    QVERIFY(m_world->connections->IsWatched());
    if (isHidden) {
        m_world->window->hide();
    } else {
        m_world->window->showMinimized();
    }
    QTRY_VERIFY(!m_world->connections->IsWatched());
    m_world->connections->told.active = {ConnectionOf("Home", StageConnected, true)};
    m_world->AwaitReading([this] { m_world->window->showNormal(); });
    QVERIFY(m_world->connections->IsWatched());
    QCOMPARE(m_world->Text("headlineLabel"), QString("In use now: Home"));
}

void ConnectionsTest::SourceThatGoesIsToldAtTheTop()
{
    m_world->connections->told.state.source = ConnectionState::SourceGone;
    m_world->Follow();
    QCOMPARE(m_world->Text("headlineLabel"), QString("NetworkManager is not running"));
    QCOMPARE(m_world->State(1), QString("Not known if in range"));
    QVERIFY(!Switch()->isVisible());
}

void ConnectionsTest::WindowOfPracticeNetworksIsMarked()
{
    QCOMPARE(m_world->window->windowTitle(), QString("Network dashboard"));
    m_world->connections->told.state.sourceName = "stored";
    m_world->Follow();
    QCOMPARE(m_world->window->windowTitle(), QString("Network dashboard (practice)"));
}

void ConnectionsTest::RowTellsAssistiveTechnologyItsReason()
{
    const QListWidgetItem *item = m_world->List()->item(0);
    QCOMPARE(item->data(Qt::AccessibleTextRole).toString(), QString("Home, Wi-Fi, In range"));
    QCOMPARE(item->data(Qt::AccessibleDescriptionRole).toString(),
             QString("Your list would choose Home. NetworkManager keeps a connection that works until you "
                     "switch."));
    QCOMPARE(item->toolTip(), item->data(Qt::AccessibleDescriptionRole).toString());
}

void ConnectionsTest::SwitchOrdersTheChoice()
{
    QVERIFY(Switch()->isVisible() && Switch()->isEnabled());
    QCOMPARE(Switch()->accessibleName(), QString("Switch to Home"));
    QTest::mouseClick(Switch(), Qt::LeftButton);
    QCOMPARE(m_world->connections->ordered, QStringList("1Home"));
}

void ConnectionsTest::SwitchIsThereOnlyForUse_data()
{
    QTest::addColumn<QString>("inUse");
    QTest::addColumn<bool>("mayConnect");
    QTest::addColumn<bool>("isThere");
    Row("another is in use", QString::fromUtf8("Café"), true, true);
    Row("nothing is in use", "", true, true);
    Row("the choice is in use", "Home", true, false);
    Row("the user may not connect", QString::fromUtf8("Café"), false, false);
}

void ConnectionsTest::SwitchIsThereOnlyForUse()
{
    QFETCH(QString, inUse);
    QFETCH(bool, mayConnect);
    m_world->connections->told.state.mayConnect = mayConnect;
    m_world->connections->told.active.clear();
    if (!inUse.isEmpty()) {
        m_world->connections->told.active << ConnectionOf(inUse, StageConnected, true);
    }
    m_world->Follow();
    QTEST(Switch()->isVisible(), "isThere");
}

void ConnectionsTest::SwitchWaitsWhileItIsUnderWay()
{
    m_world->connections->attempt.stage = StagePreparing;
    QTest::mouseClick(Switch(), Qt::LeftButton);
    QVERIFY(Switch()->isVisible() && !Switch()->isEnabled());
    m_world->connections->attempt.stage = StageCancelled;
    m_world->Follow();
    QVERIFY(Switch()->isEnabled());
    QVERIFY(Problems().isEmpty());
}

void ConnectionsTest::RefusedSwitchIsTold_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("told");
    Row("not allowed", int(IConnectionPlugin::RefusedNotAllowed),
        "Home was not connected. You are not allowed to do that.");
    Row("key", int(IConnectionPlugin::RefusedKey),
        "Home was not connected. A key is needed, and none is saved.");
    Row("gone", int(IConnectionPlugin::RefusedUnknown), "Home was not connected.");
}

void ConnectionsTest::RefusedSwitchIsTold()
{
    QFETCH(int, answer);
    m_world->connections->answer = answer;
    QTest::mouseClick(Switch(), Qt::LeftButton);
    QTEST(Problems(), "told");
}

void ConnectionsTest::FailedSwitchIsToldUntilItIsConnected()
{
    QTest::mouseClick(Switch(), Qt::LeftButton);
    QVERIFY(Problems().isEmpty());
    m_world->connections->attempt.stage = StageFailed;
    m_world->connections->attempt.failure = FailureWrongKey;
    m_world->Follow();
    QCOMPARE(Problems(),
             QString("Home was not connected. The saved key was refused. You can change it in the "
                     "network settings of your desktop."));
    m_world->connections->told.active << ConnectionOf("Home", StageConnected, false);
    m_world->Follow();
    QVERIFY(Problems().isEmpty());
}

void ConnectionsTest::DoubleClickRow(int row)
{
    QListWidget *list = m_world->List();
    const QPoint place = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void ConnectionsTest::EntryIsConnected_data()
{
    QTest::addColumn<int>("key");
    Row("Return", int(Qt::Key_Return));
    Row("Enter", int(Qt::Key_Enter));
    Row("double click", 0);
}

void ConnectionsTest::EntryIsConnected()
{
    QFETCH(int, key);
    if (key == 0) {
        DoubleClickRow(0);
    } else {
        m_world->List()->setCurrentRow(0);
        m_world->List()->setFocus();
        QTest::keyClick(m_world->List(), Qt::Key(key), Qt::ControlModifier);
    }
    QCOMPARE(m_world->connections->ordered, QStringList("1Home"));
}

void ConnectionsTest::SingleClickOrdersNothing()
{
    QListWidget *list = m_world->List();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(0)).center());
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(m_world->connections->ordered, QStringList());
}

void ConnectionsTest::EntryThatIsConnectedIsNotOrdered()
{
    DoubleClickRow(1);
    QCOMPARE(m_world->connections->ordered, QStringList());
}

void ConnectionsTest::EntryWithoutProfileTellsWhy()
{
    m_world->connections->told.profiles.removeFirst();
    m_world->connections->answer = IConnectionPlugin::RefusedUnknown;
    m_world->Follow();
    DoubleClickRow(0);
    QCOMPARE(Problems(), QString("Home was not connected. This computer has no saved network of that name."));
}

void ConnectionsTest::StopEndsWhatIsComingUp()
{
    QPushButton *stop = m_world->window->findChild<QPushButton *>("stopButton");
    QVERIFY(!stop->isVisible());
    m_world->connections->told.active = {ConnectionOf("Home", StageAuthenticating, false)};
    m_world->Follow();
    QVERIFY(stop->isVisible());
    QTest::mouseClick(stop, Qt::LeftButton);
    QCOMPARE(m_world->connections->ended, QStringList(m_world->connections->told.active.at(0).id));
}

void ConnectionsTest::DisconnectEndsWhatIsInUse()
{
    QVERIFY(Disconnect()->isEnabled());
    Disconnect()->trigger();
    QCOMPARE(m_world->connections->ended, QStringList(m_world->connections->told.active.at(0).id));
    QVERIFY(Problems().isEmpty());
}

void ConnectionsTest::DisconnectIsThereOnlyForUse_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("stage");
    QTest::addColumn<bool>("mayConnect");
    QTest::addColumn<bool>("isThere");
    Row("Wi-Fi", "1", int(StageConnected), true, true);
    Row("mobile broadband", "2", int(StageConnected), true, true);
    Row("coming up", "1", int(StageAuthenticating), true, true);
    Row("going down", "1", int(StageDisconnecting), true, false);
    Row("cable", "0", int(StageConnected), true, false);
    Row("the user may not", "1", int(StageConnected), false, false);
}

void ConnectionsTest::DisconnectIsThereOnlyForUse()
{
    QFETCH(QString, type);
    QFETCH(int, stage);
    QFETCH(bool, mayConnect);
    m_world->connections->told.state.mayConnect = mayConnect;
    m_world->connections->told.active = {ConnectionOf("Office", stage, stage == StageConnected, type)};
    m_world->Follow();
    QTEST(Disconnect()->isEnabled(), "isThere");
}

void ConnectionsTest::RefusedDisconnectIsToldUntilItIsGone()
{
    m_world->connections->answer = IConnectionPlugin::RefusedNotAllowed;
    Disconnect()->trigger();
    QCOMPARE(Problems(), QString::fromUtf8("Café was not disconnected. You are not allowed to do that."));
    m_world->connections->told.active.clear();
    m_world->Follow();
    QVERIFY(Problems().isEmpty());
}

void ConnectionsTest::RefreshLooksForNetworks()
{
    QCOMPARE(m_world->connections->looks, 0);
    m_world->window->findChild<QAction *>("refreshAction")->trigger();
    QCOMPARE(m_world->connections->looks, 1);
}

QTEST_MAIN(ConnectionsTest)
#include "tst_connections.moc"
