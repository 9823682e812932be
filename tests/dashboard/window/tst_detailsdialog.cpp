#include "ConnectedWindow.h"
#include "Lists.h"

#include <DetailsDialog.h>
#include <Row.h>

#include <QAction>
#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

namespace
{

// Noon on 1 March 2026, wherever it is read.
const qint64 lastConnected = 1772366400;

} // namespace

/** What the window tells of one network. */
class DetailsDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_world.reset(); }

    void KeyOpensTheDetails_data();
    void KeyOpensTheDetails();
    void EscapeClosesThem();
    void NameIsWholeAndCanBeCopied();
    void FactsAreTold();
    void WhatIsNotKnownIsLeftOut();
    void DeviceIsTold_data();
    void DeviceIsTold();
    void MeteredIsTold_data();
    void MeteredIsTold();
    void EachProfileIsTold();
    void NetworkWithoutAProfileSaysSo();
    void BoxTellsWhatIsSo();
    void RefusedWishIsTold_data();
    void RefusedWishIsTold();
    void WishIsToldOfWhereItWasMade();
    void ProfileThatMayNotBeChangedIsNotSwitched();
    void ConnectionIsFollowed();
    void ProfileThatIsGoneIsFollowed();
    void NewNameIsFollowed();

private:
    DetailsDialog *Dialog() const { return m_world->window->findChild<DetailsDialog *>(); }
    /** Of the first network. */
    void Open();
    /** What is behind that caption in all parts of the dialog; null where nothing is. */
    QString Fact(const char *captionId) const;
    QList<QCheckBox *> Boxes() const { return Dialog()->findChildren<QCheckBox *>("byItselfBox"); }
    QString Problem() const;
    void EndWish(int stage, int obstacle = -1);
    ConnectionProfile &Home() { return m_world->connections->told.profiles[0]; }
    ProfileDetails &HomeDetails() { return m_world->connections->details[Home().id]; }

    QScopedPointer<ConnectedWindow> m_world;
};

/** Home before Café. */
void DetailsDialogTest::init()
{
    m_world.reset(new ConnectedWindow);
    m_world->priority->list = Listed(QString::fromUtf8("Home, Café"));
    m_world->connections->told.profiles << SavedProfile("Home") << SavedProfile(QString::fromUtf8("Café"));
    HomeDetails().id = Home().id;
    m_world->Open();
}

void DetailsDialogTest::Open()
{
    m_world->List()->setCurrentRow(0);
    m_world->window->findChild<QAction *>("detailsAction")->trigger();
    QVERIFY(Dialog() && Dialog()->isVisible());
}

QString DetailsDialogTest::Fact(const char *captionId) const
{
    QStringList facts;
    for (const QLabel *label : Dialog()->findChildren<QLabel *>(QLatin1String(captionId))) {
        if (label->isVisible()) {
            facts.append(Plain(label->text()));
        }
    }
    return facts.isEmpty() ? QString() : facts.join('|');
}

QString DetailsDialogTest::Problem() const
{
    QStringList problems;
    for (const QLabel *label : Dialog()->findChildren<QLabel *>("profileProblemLabel")) {
        problems.append(label->isVisible() ? Plain(label->text()) : QString());
    }
    return problems.join('|');
}

void DetailsDialogTest::EndWish(int stage, int obstacle)
{
    m_world->connections->outcome.stage = stage;
    if (obstacle >= 0) {
        m_world->connections->outcome.kept.append(OrderKept());
        m_world->connections->outcome.kept.last().obstacle = obstacle;
    }
    m_world->AwaitReading([this] { emit m_world->connections->OnOrderChanged(); });
}

void DetailsDialogTest::KeyOpensTheDetails_data()
{
    QTest::addColumn<int>("key");
    Row("Return", int(Qt::Key_Return));
    Row("Enter", int(Qt::Key_Enter));
    Row("F9", int(Qt::Key_F9));
}

void DetailsDialogTest::KeyOpensTheDetails()
{
    QFETCH(int, key);
    m_world->window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_world->window.data()));
    m_world->List()->setCurrentRow(1);
    m_world->List()->setFocus();
    QTest::keyClick(m_world->List(), Qt::Key(key));
    QVERIFY(Dialog());
    QCOMPARE(Dialog()->findChild<QLabel *>("detailsNameLabel")->text(), QString::fromUtf8("Café"));
    QVERIFY(m_world->connections->ordered.isEmpty());
}

void DetailsDialogTest::EscapeClosesThem()
{
    Open();
    QTest::keyClick(Dialog(), Qt::Key_Escape);
    QTRY_VERIFY(!Dialog());
}

void DetailsDialogTest::NameIsWholeAndCanBeCopied()
{
    const QString name = QString("A name ").repeated(20) + "<b>";
    m_world->priority->list[0].name = name;
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    Open();
    const QLabel *label = Dialog()->findChild<QLabel *>("detailsNameLabel");
    QCOMPARE(label->text(), name);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

void DetailsDialogTest::FactsAreTold()
{
    Home().security = "WPA2PSK";
    Home().lastConnected = lastConnected;
    Home().signal = 64;
    HomeDetails().priority = -7;
    HomeDetails().isPriorityKnown = true;
    HomeDetails().areUsersKnown = true;
    HomeDetails().users = QStringList({"anna", "ben"});
    m_world->Follow();
    Open();
    QCOMPARE(Fact("IDS_DETAILS_PLACE"), QString("1 of 2"));
    QCOMPARE(Fact("IDS_DETAILS_STATE"), QString::fromUtf8("In range · 64%\nYour list would choose Home."));
    QCOMPARE(Fact("IDS_DETAILS_SECURITY"), QString("WPA2PSK"));
    QVERIFY(Fact("IDS_DETAILS_LAST_USED").contains("2026") || Fact("IDS_DETAILS_LAST_USED").contains("26"));
    QCOMPARE(Fact("IDS_DETAILS_PRIORITY"), QString("-7"));
    QCOMPARE(Fact("IDS_DETAILS_USERS"), QString("anna and ben"));
    HomeDetails().users.clear();
    m_world->Follow();
    QCOMPARE(Fact("IDS_DETAILS_USERS"), QString("All users of this computer"));
}

void DetailsDialogTest::WhatIsNotKnownIsLeftOut()
{
    Open();
    for (const char *fact : {"IDS_DETAILS_SECURITY", "IDS_DETAILS_LAST_USED", "IDS_DETAILS_PRIORITY",
                             "IDS_DETAILS_METERED", "IDS_DETAILS_USERS"}) {
        QVERIFY2(Fact(fact).isNull(), fact);
    }
}

void DetailsDialogTest::DeviceIsTold_data()
{
    QTest::addColumn<QString>("bound");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("told");
    Row("any", "", "", "Any");
    Row("any, one of them now", "", "wlan0", "Any, at present wlan0");
    Row("bound", "wlan1", "wlan1", "Only wlan1");
}

void DetailsDialogTest::DeviceIsTold()
{
    QFETCH(QString, bound);
    QFETCH(QString, now);
    HomeDetails().boundDevice = bound;
    Home().device = now;
    m_world->Follow();
    Open();
    QTEST(Fact("IDS_DETAILS_DEVICE"), "told");
}

void DetailsDialogTest::MeteredIsTold_data()
{
    QTest::addColumn<int>("metered");
    QTest::addColumn<QString>("told");
    Row("yes", int(ProfileDetails::MeteredYes), "Yes");
    Row("no", int(ProfileDetails::MeteredNo), "No");
    Row("guessed yes", int(ProfileDetails::MeteredGuessedYes), "Probably yes");
    Row("guessed no", int(ProfileDetails::MeteredGuessedNo), "Probably no");
    Row("a later word", 99, QString());
}

void DetailsDialogTest::MeteredIsTold()
{
    QFETCH(int, metered);
    HomeDetails().metered = metered;
    Open();
    QTEST(Fact("IDS_DETAILS_METERED"), "told");
}

void DetailsDialogTest::EachProfileIsTold()
{
    Home().security = "WPA2PSK";
    m_world->connections->told.profiles << SavedProfile("Home");
    m_world->connections->told.profiles.last().id = "other";
    m_world->connections->told.profiles.last().security = "open";
    m_world->connections->told.profiles.last().connectsByItself = false;
    m_world->Follow();
    Open();
    QCOMPARE(Fact("profileHeadingLabel"), QString("Profile 1 of 2|Profile 2 of 2"));
    QCOMPARE(Fact("IDS_DETAILS_SECURITY"), QString("WPA2PSK|open"));
    QVERIFY(Boxes().at(0)->isChecked());
    QVERIFY(!Boxes().at(1)->isChecked());
}

void DetailsDialogTest::NetworkWithoutAProfileSaysSo()
{
    m_world->connections->told.profiles.removeFirst();
    m_world->Follow();
    Open();
    QCOMPARE(Fact("IDS_DETAILS_STATE"),
             QString("Not saved here\nThis computer has no saved network of that name."));
    QVERIFY(Boxes().isEmpty());
}

void DetailsDialogTest::BoxTellsWhatIsSo()
{
    Open();
    Boxes().first()->click();
    QCOMPARE(m_world->connections->wished, QStringList("-" + Home().id));
    QVERIFY(Boxes().first()->isChecked());
    // While that is under way nothing else is ordered.
    Boxes().first()->click();
    QCOMPARE(m_world->connections->wished.size(), 1);
    Home().connectsByItself = false;
    EndWish(OrderOutcome::StageOrderDone);
    QVERIFY(!Boxes().first()->isChecked());
    QCOMPARE(Problem(), QString());
    Boxes().first()->click();
    QCOMPARE(m_world->connections->wished.last(), Home().id);
}

void DetailsDialogTest::RefusedWishIsTold_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("obstacle");
    QTest::addColumn<QString>("told");
    Row("not allowed", int(OrderOutcome::StageOrderDone), int(ObstacleNotAllowed),
        "Home still connects by itself. You are not allowed to do that.");
    Row("NetworkManager is gone", int(OrderOutcome::StageOrderFailed), -1, "Home still connects by itself.");
}

void DetailsDialogTest::RefusedWishIsTold()
{
    QFETCH(int, stage);
    QFETCH(int, obstacle);
    Open();
    Boxes().first()->click();
    EndWish(stage, obstacle);
    QTEST(Problem(), "told");
    QVERIFY(Boxes().first()->isChecked());
}

void DetailsDialogTest::WishIsToldOfWhereItWasMade()
{
    m_world->connections->told.profiles << SavedProfile("Home");
    m_world->connections->told.profiles.last().id = "other";
    m_world->Follow();
    Open();
    Boxes().first()->click();
    // NetworkManager rather connects the other one now.
    m_world->connections->told.profiles.swapItemsAt(0, 2);
    EndWish(OrderOutcome::StageOrderDone, ObstacleRefused);
    QCOMPARE(Problem(), QString("Home still connects by itself.|"));
}

void DetailsDialogTest::ProfileThatMayNotBeChangedIsNotSwitched()
{
    HomeDetails().change = ProfileDetails::ChangeNotAllowed;
    Open();
    QVERIFY(!Boxes().first()->isEnabled());
    QCOMPARE(Boxes().first()->toolTip(), QString("You are not allowed to do that."));
}

void DetailsDialogTest::ConnectionIsFollowed()
{
    Open();
    m_world->connections->told.active << ConnectionOf("Home", StageConnected, true);
    m_world->Follow();
    QVERIFY(Fact("IDS_DETAILS_STATE").startsWith("In use now"));
}

void DetailsDialogTest::ProfileThatIsGoneIsFollowed()
{
    Open();
    m_world->connections->told.profiles.removeFirst();
    m_world->priority->list.removeFirst();
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(Fact("IDS_DETAILS_STATE"), QString("Not saved here"));
}

void DetailsDialogTest::NewNameIsFollowed()
{
    Home().lastingId = "lasting";
    m_world->Follow();
    Open();
    Home().name = "Attic";
    m_world->priority->list[0].name = "Attic";
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    QCOMPARE(Dialog()->findChild<QLabel *>("detailsNameLabel")->text(), QString("Attic"));
    QCOMPARE(Fact("IDS_DETAILS_PLACE"), QString("1 of 2"));
    QCOMPARE(Boxes().size(), 1);
}

QTEST_MAIN(DetailsDialogTest)

#include "tst_detailsdialog.moc"
