#include "ConnectedWindow.h"
#include "Lists.h"

#include <Row.h>
#include <RuledDialog.h>

#include <QAction>
#include <QDir>
#include <QPushButton>
#include <QtTest>

/** What the window says about the places of the list that have no effect. */
class RuledDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_world.reset(); }

    void ButtonTellsWhetherAllPlacesHaveTheirEffect();
    void PlacesWithoutEffectAreListed();
    void ChangeOfTheStandingIsFollowed();
    void NetworkIsTurnedOn();
    void NetworkThatCannotBeTurnedOnIsTold_data();
    void NetworkThatCannotBeTurnedOnIsTold();
    void NetworkIsConnected();
    void SettingsAreOpened();
    void ListThatDoesNotRuleHasNoSuchButton();
    void NothingIsSaidOnceNothingIsKnown();

private:
    RuledDialog *Dialog() const { return m_world->window->findChild<RuledDialog *>(); }
    QPushButton *Button() const { return m_world->window->findChild<QPushButton *>("ruledButton"); }
    QStringList Rows() const;
    /** In the rows of the dialog. */
    void Click(const QString &text);
    ConnectionProfile &Home() { return m_world->connections->told.profiles[0]; }

    QScopedPointer<ConnectedWindow> m_world;
};

/** Home before Café; the list was followed. */
void RuledDialogTest::init()
{
    m_world.reset(new ConnectedWindow);
    qputenv("XDG_CONFIG_HOME", qgetenv("XDG_DATA_HOME"));
    m_world->priority->list = Listed(QString::fromUtf8("Home, Café"));
    m_world->connections->told.profiles << SavedProfile("Home") << SavedProfile(QString::fromUtf8("Café"));
    m_world->connections->standing.stage = OrderOutcome::StageOrderDone;
    m_world->Open();
}

QStringList RuledDialogTest::Rows() const
{
    QStringList rows;
    for (const QLabel *label : Dialog()->findChildren<QLabel *>("ruledReasonLabel")) {
        rows.append(label->text());
    }
    return rows;
}

void RuledDialogTest::Click(const QString &text)
{
    for (QPushButton *button : Dialog()->findChildren<QPushButton *>("ruledRowButton")) {
        if (button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable("no button " + text));
}

void RuledDialogTest::ButtonTellsWhetherAllPlacesHaveTheirEffect()
{
    QCOMPARE(Button()->text(), QString("What this means"));
    Home().connectsByItself = false;
    m_world->Follow();
    QCOMPARE(Button()->text(), QString("Why not all?"));
}

void RuledDialogTest::PlacesWithoutEffectAreListed()
{
    m_world->window->findChild<QAction *>("ruledAction")->trigger();
    QVERIFY(Dialog()->isVisible());
    QCOMPARE(Rows().first(), QString("Every place in your list has its effect."));
    Home().connectsByItself = false;
    m_world->Follow();
    QCOMPARE(Rows().first(), QString("It does not connect by itself, so its place has no effect."));
    QCOMPARE(Plain(Dialog()->findChild<QLabel *>("ruledTitleLabel")->text()), QString("Home"));
}

void RuledDialogTest::ChangeOfTheStandingIsFollowed()
{
    Button()->click();
    OrderKept kept;
    kept.obstacle = ObstacleRefused;
    kept.profileId = Home().id;
    m_world->connections->standing.kept.append(kept);
    m_world->AwaitReading([this] { emit m_world->connections->OnOrderChanged(); });
    QCOMPARE(Rows().first(), QString("NetworkManager did not take its place."));
}

void RuledDialogTest::NetworkIsTurnedOn()
{
    Home().connectsByItself = false;
    m_world->Follow();
    Button()->click();
    Click("Turn on");
    QTRY_COMPARE(m_world->connections->wished, QStringList(Home().id));
    Home().connectsByItself = true;
    m_world->connections->outcome.stage = OrderOutcome::StageOrderDone;
    m_world->Follow();
    QCOMPARE(Rows().first(), QString("Every place in your list has its effect."));
    QVERIFY(!Dialog()->findChild<QLabel *>("ruledProblemLabel")->isVisible());
}

void RuledDialogTest::NetworkThatCannotBeTurnedOnIsTold_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("obstacle");
    QTest::addColumn<QString>("told");
    Row("not allowed", int(OrderOutcome::StageOrderDone), int(ObstacleNotAllowed),
        "Home still does not connect by itself. You are not allowed to do that.");
    Row("refused", int(OrderOutcome::StageOrderDone), int(ObstacleRefused),
        "Home still does not connect by itself.");
    Row("NetworkManager is gone", int(OrderOutcome::StageOrderFailed), -1,
        "Home still does not connect by itself.");
}

void RuledDialogTest::NetworkThatCannotBeTurnedOnIsTold()
{
    QFETCH(int, stage);
    QFETCH(int, obstacle);
    Home().connectsByItself = false;
    m_world->Follow();
    Button()->click();
    m_world->connections->outcome.stage = OrderOutcome::StageOrderUnderWay;
    Click("Turn on");
    QTRY_COMPARE(m_world->connections->wished.size(), 1);
    m_world->Follow();
    const QLabel *problem = Dialog()->findChild<QLabel *>("ruledProblemLabel");
    QVERIFY(!problem->isVisible());
    m_world->connections->outcome.stage = stage;
    if (obstacle >= 0) {
        m_world->connections->outcome.kept.append(OrderKept());
        m_world->connections->outcome.kept.last().obstacle = obstacle;
    }
    m_world->AwaitReading([this] { emit m_world->connections->OnOrderChanged(); });
    QVERIFY(problem->isVisible());
    QTEST(Plain(problem->text()), "told");
}

void RuledDialogTest::NetworkIsConnected()
{
    Home().failure = FailureNoAnswer;
    m_world->Follow();
    Button()->click();
    Click("Connect");
    QTRY_COMPARE(m_world->connections->ordered, QStringList(Home().id));
}

void RuledDialogTest::SettingsAreOpened()
{
    Button()->click();
    Click(QString::fromUtf8("Settings…"));
    QTRY_VERIFY(m_world->window->findChild<QWidget *>("settingsDialog"));
    QVERIFY(!Dialog() || !Dialog()->isVisible());
}

void RuledDialogTest::ListThatDoesNotRuleHasNoSuchButton()
{
    QVERIFY(Button()->isVisible());
    QFile rules(qgetenv("XDG_DATA_HOME") + "/priority-dashboard/rules.ini");
    QVERIFY(rules.open(QIODevice::WriteOnly));
    rules.write("[General]\nruling=no\n");
    rules.close();
    m_world->Follow();
    QVERIFY(!Button()->isVisible());
    QVERIFY(!m_world->window->findChild<QAction *>("ruledAction")->isEnabled());
}

void RuledDialogTest::NothingIsSaidOnceNothingIsKnown()
{
    Button()->click();
    QVERIFY(Dialog()->isVisible());
    m_world->connections->told.state.source = ConnectionState::SourceGone;
    m_world->Follow();
    QTRY_VERIFY(!Dialog());
    QVERIFY(!Button()->isVisible());
}

QTEST_MAIN(RuledDialogTest)

#include "tst_ruleddialog.moc"
