#include "ConnectedWindow.h"
#include "Lists.h"

#include <ContractNumbers.h>
#include <ForgetDialog.h>
#include <OrderFile.h>
#include <Row.h>

#include <QAction>
#include <QFile>
#include <QPushButton>
#include <QtTest>

namespace
{

const char *const done = "Forgot Home. Its place in the list can be brought back, its key can’t.";

} // namespace

/** How a network is forgotten in the window. */
class ForgetDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_world.reset(); }

    void QuestionTellsWhatWillBeDone_data();
    void QuestionTellsWhatWillBeDone();
    void ReturnForgetsNothing();
    void QuestionFollows();
    void QuestionClosesWhenNothingIsLeft();
    void ForgottenNetworkLeavesTheList();
    void PlaceComesBackWithUndo();
    void ForgottenNetworkIsToldAtTheFoot();
    void RefusedForgettingLeavesTheList_data();
    void RefusedForgettingLeavesTheList();
    void ListIsLeftAloneUntilAllAreForgotten();
    void WhoClosesTheDialogIsToldOfAFailure();
    void QuestionTellsThatItIsNotInTheList_data();
    void QuestionTellsThatItIsNotInTheList();
    void QuestionTellsTheSameOfAListThatIsNotToBeOpened();
    void ForgettingWhatIsNotListedLeavesTheList_data();
    void ForgettingWhatIsNotListedLeavesTheList();
    void WhatCannotBeForgottenIsNotOffered_data();
    void WhatCannotBeForgottenIsNotOffered();

private:
    ForgetDialog *Dialog() const { return m_world->window->findChild<ForgetDialog *>(); }
    QAction *Action() const { return m_world->window->findChild<QAction *>("forgetAction"); }
    QPushButton *Button(const char *name) const { return Dialog()->findChild<QPushButton *>(name); }
    QString Said(const char *label) const { return Plain(m_world->Text(label)); }
    QString List() const { return AsText(m_world->priority->list); }
    /** For the first network. */
    void Open();
    /** For the same, which is not in the list then. */
    void OpenUnlisted();
    void AddProfile(const QString &id);
    /** Of all orders. */
    void Tell(int stage, int failure = FailureNone);

    QScopedPointer<ConnectedWindow> m_world;
};

/** Home before Café; what is written to the list's file is the list. */
void ForgetDialogTest::init()
{
    m_world.reset(new ConnectedWindow);
    m_world->priority->list = Listed(QString::fromUtf8("Home, Café"));
    m_world->connections->told.profiles << SavedProfile("Home") << SavedProfile(QString::fromUtf8("Café"));
    m_world->connections->told.profiles[0].lastingId = "lasting";
    m_world->connections->attempt.stage = StageForgetting;
    FakePriority *priority = m_world->priority;
    connect(priority, &FakePriority::OnUpdataPriorityView, priority, [priority] {
        QFile file(qgetenv("XDG_DATA_HOME") + "/priority-dashboard/Priority.xml");
        priority->list.clear();
        if (file.open(QIODevice::ReadOnly)) {
            OrderFile::Parse(file.readAll(), &priority->list);
        }
    });
    m_world->Open();
}

void ForgetDialogTest::Open()
{
    m_world->List()->setCurrentRow(0);
    Action()->trigger();
    QVERIFY(Dialog() && Dialog()->isVisible());
}

void ForgetDialogTest::OpenUnlisted()
{
    m_world->priority->list.removeFirst();
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    m_world->List()->setCurrentRow(m_world->List()->count() - 1);
    Action()->trigger();
    QVERIFY(Dialog() && Dialog()->isVisible());
}

void ForgetDialogTest::AddProfile(const QString &id)
{
    ConnectionProfile profile = SavedProfile("Home");
    profile.id = id;
    m_world->connections->told.profiles.append(profile);
    m_world->Follow();
}

void ForgetDialogTest::Tell(int stage, int failure)
{
    m_world->connections->attempt.stage = stage;
    m_world->connections->attempt.failure = failure;
    m_world->Follow();
}

void ForgetDialogTest::QuestionTellsWhatWillBeDone_data()
{
    QTest::addColumn<int>("profiles");
    QTest::addColumn<bool>("isInUse");
    QTest::addColumn<QString>("text");
    const QString forGood = QString::fromUtf8(" Its place can be brought back, its key can’t.");
    Row("one", 1, false, "This computer will forget it with its key, and it will leave your list." + forGood);
    Row("three", 3, false,
        "This computer will forget all 3 profiles of that name with their keys, and it "
        "will leave your list." +
            forGood);
    Row("in use", 1, true,
        "You are connected to it; the connection will end. This computer will forget "
        "it with its key, and it will leave your list." +
            forGood);
}

void ForgetDialogTest::QuestionTellsWhatWillBeDone()
{
    QFETCH(int, profiles);
    QFETCH(bool, isInUse);
    if (isInUse) {
        m_world->connections->told.active << ConnectionOf("Home", StageConnected, true);
        m_world->Follow();
    }
    for (int i = 1; i < profiles; ++i) {
        AddProfile(QString("other %1").arg(i));
    }
    Open();
    QCOMPARE(Said("forgetTitleLabel"), QString("Forget Home?"));
    QTEST(Said("forgetTextLabel"), "text");
}

void ForgetDialogTest::ReturnForgetsNothing()
{
    Open();
    QVERIFY(Button("forgetCancelButton")->isDefault());
    QTest::keyClick(Dialog(), Qt::Key_Return);
    QTRY_VERIFY(!Dialog());
    QVERIFY(m_world->connections->forgotten.isEmpty());
    QCOMPARE(List(), QString::fromUtf8("Home, Café"));
}

void ForgetDialogTest::QuestionFollows()
{
    Open();
    AddProfile("other");
    QVERIFY(Said("forgetTextLabel").contains("all 2 profiles"));
    Button("forgetButton")->click();
    QCOMPARE(m_world->connections->forgotten, QStringList({"1Home/lasting", "other/"}));
}

void ForgetDialogTest::QuestionClosesWhenNothingIsLeft()
{
    Open();
    m_world->connections->told.profiles.removeFirst();
    m_world->Follow();
    QTRY_VERIFY(!Dialog());
    QCOMPARE(List(), QString::fromUtf8("Home, Café"));
}

void ForgetDialogTest::ForgottenNetworkLeavesTheList()
{
    Open();
    Button("forgetButton")->click();
    QCOMPARE(m_world->connections->forgotten, QStringList("1Home/lasting"));
    m_world->connections->told.profiles.removeFirst();
    m_world->Follow();
    QCOMPARE(List(), QString::fromUtf8("Home, Café"));
    Tell(StageForgotten);
    QCOMPARE(List(), QString::fromUtf8("Café"));
    QTRY_VERIFY(!Dialog());
}

void ForgetDialogTest::PlaceComesBackWithUndo()
{
    Open();
    Button("forgetButton")->click();
    Tell(StageForgotten);
    m_world->window->findChild<QAction *>("undoAction")->trigger();
    QCOMPARE(List(), QString::fromUtf8("Home, Café"));
    QVERIFY(Said("lastChangeLabel") != QString::fromUtf8(done));
}

void ForgetDialogTest::ForgottenNetworkIsToldAtTheFoot()
{
    Open();
    Button("forgetButton")->click();
    Tell(StageForgotten);
    m_world->window->resize(1600, 800);
    m_world->Follow();
    QCOMPARE(Said("lastChangeLabel"), QString::fromUtf8(done));
}

void ForgetDialogTest::RefusedForgettingLeavesTheList_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("told");
    const QString failed = "Home was not forgotten. It stays in your list.";
    Row("not allowed", 1, int(FailureNotAllowed), failed + " You are not allowed to do that.");
    Row("failed", 1, int(FailureOther), failed);
    Row("not answered", 1, int(FailureSource),
        "There was no answer, so it is not known if Home is forgotten. It stays in your list.");
    Row("refused at once", int(IConnectionPlugin::RefusedNotAllowed), int(FailureNone),
        failed + " You are not allowed to do that.");
    Row("gone meanwhile", int(IConnectionPlugin::RefusedSource), int(FailureNone), failed);
}

void ForgetDialogTest::RefusedForgettingLeavesTheList()
{
    QFETCH(int, answer);
    QFETCH(int, failure);
    Open();
    m_world->connections->answer = answer;
    Button("forgetButton")->click();
    Tell(StageFailed, failure);
    QTEST(Said("forgetProblemLabel"), "told");
    QCOMPARE(List(), QString::fromUtf8("Home, Café"));
    QVERIFY(!Button("forgetButton")->isVisible());
}

void ForgetDialogTest::ListIsLeftAloneUntilAllAreForgotten()
{
    AddProfile("other");
    Open();
    Button("forgetButton")->click();
    m_world->connections->attempts[1].stage = StageForgotten;
    m_world->Follow();
    QVERIFY(!Dialog()->findChild<QLabel *>("forgetProblemLabel")->isVisible());
    Tell(StageFailed, FailureOther);
    QCOMPARE(Said("forgetProblemLabel"),
             QString("Home was not forgotten. It stays in your list. Forgotten profiles: 1 of 2."));
    QCOMPARE(List(), QString::fromUtf8("Home, Café"));
}

void ForgetDialogTest::WhoClosesTheDialogIsToldOfAFailure()
{
    Open();
    Button("forgetButton")->click();
    QTest::keyClick(Dialog(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(Dialog() && !Dialog()->isVisible());
    Tell(StageFailed, FailureNotAllowed);
    QVERIFY(Dialog()->isVisible());
    QTest::keyClick(Dialog(), Qt::Key_Escape);
    QTRY_VERIFY(!Dialog());
}

void ForgetDialogTest::QuestionTellsThatItIsNotInTheList_data()
{
    QTest::addColumn<int>("profiles");
    QTest::addColumn<QString>("text");
    const QString end =
        QString::fromUtf8(" It is not in your list, so your list stays as it is. This can’t be "
                          "undone, and its key can’t be brought back.");
    Row("one", 1, "This computer will forget it with its key." + end);
    Row("two", 2, "This computer will forget all 2 profiles of that name with their keys." + end);
}

void ForgetDialogTest::QuestionTellsThatItIsNotInTheList()
{
    QFETCH(int, profiles);
    for (int i = 1; i < profiles; ++i) {
        AddProfile("other");
    }
    OpenUnlisted();
    QTEST(Said("forgetTextLabel"), "text");
}

void ForgetDialogTest::QuestionTellsTheSameOfAListThatIsNotToBeOpened()
{
    Open();
    const QString text = Said("forgetTextLabel");
    m_world->priority->status = PriorityNotOpened;
    m_world->priority->list.clear();
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    QCOMPARE(Said("forgetTextLabel"), text);
}

void ForgetDialogTest::ForgettingWhatIsNotListedLeavesTheList_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("told");
    Row("forgotten", int(StageForgotten), int(FailureNone), "lastChangeLabel",
        QString::fromUtf8("Forgot Home. Its key can’t be brought back."));
    Row("not allowed", int(StageFailed), int(FailureNotAllowed), "forgetProblemLabel",
        "Home was not forgotten. You are not allowed to do that.");
    Row("not answered", int(StageFailed), int(FailureSource), "forgetProblemLabel",
        "There was no answer, so it is not known if Home is forgotten.");
}

/** Also where another program puts the network into the list meanwhile. */
void ForgetDialogTest::ForgettingWhatIsNotListedLeavesTheList()
{
    QFETCH(int, stage);
    QFETCH(int, failure);
    QFETCH(QString, label);
    OpenUnlisted();
    m_world->window->resize(1600, 800);
    Button("forgetButton")->click();
    QCOMPARE(m_world->connections->forgotten, QStringList("1Home/lasting"));
    m_world->priority->list = Listed(QString::fromUtf8("Café, Home"));
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    Tell(stage, failure);
    QTEST(Said(label.toLatin1().constData()), "told");
    QCOMPARE(List(), QString::fromUtf8("Café, Home"));
}

void ForgetDialogTest::WhatCannotBeForgottenIsNotOffered_data()
{
    QTest::addColumn<QString>("reason");
    Row("not saved", "It is not saved here, so there is nothing to forget. It can be removed from the list.");
    Row("not allowed", "You are not allowed to do that.");
    Row("not known", "It is not known now which networks are saved.");
    Row("list not to be opened", QString());
}

void ForgetDialogTest::WhatCannotBeForgottenIsNotOffered()
{
    QFETCH(QString, reason);
    const QString tag = QTest::currentDataTag();
    m_world->List()->setCurrentRow(0);
    QVERIFY(Action()->isEnabled());
    if (tag == "not saved") {
        m_world->connections->told.profiles.removeFirst();
    } else if (tag == "not allowed") {
        m_world->connections->details["1Home"].change = ProfileDetails::ChangeNotAllowed;
    } else if (tag == "not known") {
        m_world->connections->told.state.source = ConnectionState::SourceNotKnown;
    } else {
        m_world->priority->status = PriorityNotOpened;
    }
    m_world->AwaitReading([this] { m_world->window->Refresh(); });
    QVERIFY(!Action()->isEnabled());
    if (!reason.isEmpty()) {
        QCOMPARE(Action()->whatsThis(), reason);
    }
}

QTEST_MAIN(ForgetDialogTest)

#include "tst_forgetdialog.moc"
