#include "Lists.h"
#include "PluginWorld.h"
#include "ShiftedClock.h"

#include <DirectoryLock.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <ListEdit.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <OrderFile.h>
#include <PluginList.h>
#include <PluginObjects.h>
#include <PrivateFile.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <Row.h>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/** The keeper over the real plug-in. That lives once in a process, so it is loaded for all tests together. */
class ListKeeperTest : public QObject
{
    Q_OBJECT

public slots:
    void TryTheList();

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void FirstLookIsTheOldestState();
    void ChangesByWhomeverAreKept_data();
    void ChangesByWhomeverAreKept();
    void UndoAndRedoWalkThroughTheStates();
    void UndoRestoresTheVeryBytesThePluginWrote();
    void UndoOfAForeignChangeRestoresTheEntries();
    void ChangeAfterUndoCutsNothingOff();
    void ChangeNotYetSeenIsTheOneUndone();
    void ChangeMadeWhileNotRunningIsFoundWithItsTime();
    void TimeInTheFutureIsNotBelieved();
    void HistoryOutlivesTheProgram();
    void RestoreIsAChangeThatCanBeUndone();
    void RestoreOfTheListAsItIsAddsNothing();
    void MovesInARowAreOneChange();
    void MovesOfOneOpeningAreOneChange_data();
    void MovesOfOneOpeningAreOneChange();
    void ImportIsNotJoinedWithMoves();
    void ClockThatWasWrongLosesNothing_data();
    void ClockThatWasWrongLosesNothing();
    void RestoreOfAStateNoLongerKeptIsTold();
    void ReplaceIsAChangeThatCanBeUndone();
    void EditIsMadeOfTheListAsItIsThen();
    void EditsThatMoveOneEntryAreOneChange();
    void EditThatTellsWhatItMovesIsKeptSo();
    void EntryInHandIsToldOfWhenItIsWhatMoved();
    void EditNeedsNoHistory();
    void NothingEditsAListThatCannotBeReadToItsEnd();
    void EverybodyIsToldOfAnUndo();
    void RemovedFileIsAnEmptyListAndComesBack();
    void DamagedListIsNoStateAndUndoRepairsIt();
    void DamagedListIsCopiedAsSoonAsItIsSeen();
    void EachDifferentDamageIsKept();
    void NothingWritesADamagedListThatCannotBeCopied();
    void DamageMadeByAnotherInTheMiddleOfItsWorkIsNotCopied();
    void LastWholeListIsBroughtBack();
    void WhatCouldBeReadBecomesTheList();
    void OtherEntriesThanWereSeenDoNotBecomeTheList();
    void WholeListIsNotMended();
    void WhatCouldBeReadBecomesTheListWithoutAHistory_data();
    void WhatCouldBeReadBecomesTheListWithoutAHistory();
    void ListThatCannotBeOpenedIsLeftAlone();
    void AwkwardNamesAreNoEndlessChange();
    void WithoutThePluginNothingCanBeDone();
    void DamagedHistoryIsToldAndLeftAloneUntilSetAside();
    void HistoryThatCannotBeWrittenLastsForTheProgram();
    void ListThatCannotBeWrittenIsTold();
    void ImportThatCannotBeWrittenLeavesTheHistoryAsItWas();
    void TwoDashboardsKeepOneHistory();
    void UndoElsewhereIsFollowed();
    void HistoryHeldByAnotherIsNotTouched();
    void ListHeldByACommandIsNotTouched();
    void ListInTheMiddleOfACommandIsReadAgain();
    void CommandsAreKeptOutDuringAnUndo();
    void InterruptedUndoIsFinished_data();
    void InterruptedUndoIsFinished();
    void SuddenEndInTheMiddleOfUndoLosesNothing();
    void FiftyStatesAreKept();

private:
    void WriteList(const QString &entries) const
    {
        m_world.Write("Priority.xml", OrderFile::Document(Listed(entries)));
    }
    bool SetTimeOfList(const QDateTime &time) const { return m_world.SetTime("Priority.xml", time); }
    /** Writes the list so many seconds after noon. */
    void WriteListAfterNoon(const QString &entries, long seconds) const
    {
        ShiftedClock::ShiftToNoon(seconds);
        WriteList(entries);
        QVERIFY(SetTimeOfList(QDateTime::currentDateTime()));
    }
    QByteArray ListBytes() const { return m_world.Read("Priority.xml"); }
    QString UserData() const { return m_world.UserData(); }
    QString ListPath() const { return UserData() + "Priority.xml"; }
    static QString Stored() { return PluginWorld::Stored(); }
    static void AddTop(const QString &entry) { PluginWorld::AddTop(entry); }
    /** All states, newest last, with the one in force in brackets and those passed by in round ones. */
    QString History() const { return History(*m_keeper); }
    static QString History(const ListKeeper &keeper);
    /** Writes the list, cut off in the last entry; the bytes of that. */
    QByteArray WriteDamaged(const QString &entries) const
    {
        const QByteArray whole = OrderFile::Document(Listed(entries));
        const QByteArray damaged = whole.left(whole.lastIndexOf("<item") + 8);
        m_world.Write("Priority.xml", damaged);
        return damaged;
    }
    QStringList Copies() const { return QDir(UserData()).entryList(QStringList("Priority-*"), QDir::Files); }
    void StartAnew() { m_keeper.reset(new ListKeeper(UserData(), &m_source, nullptr)); }

    PluginWorld m_world;
    PluginList m_source;
    QScopedPointer<ListKeeper> m_keeper;
    QList<bool> m_isListFree;
};

QString ListKeeperTest::History(const ListKeeper &keeper)
{
    QStringList texts;
    const QList<ListState> states = keeper.History().States();
    for (int i = 0; i < states.size(); ++i) {
        const QString text = AsText(states.at(i).entries);
        texts.append(i == keeper.History().Position() ? '[' + text + ']'
                     : states.at(i).isPassedBy        ? '(' + text + ')'
                                                      : text);
    }
    return texts.join(" | ");
}

void ListKeeperTest::initTestCase()
{
    QVERIFY(m_world.Load());
}

void ListKeeperTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void ListKeeperTest::init()
{
    QVERIFY(m_world.Begin());
    StartAnew();
}

void ListKeeperTest::cleanup()
{
    ShiftedClock::Shift(0);
    m_keeper.reset();
}

void ListKeeperTest::FirstLookIsTheOldestState()
{
    QCOMPARE(History(), QString("[]"));
    QCOMPARE(m_keeper->UndoObstacle(), ListKeeper::NothingToUndo);
    QCOMPARE(m_keeper->RedoObstacle(), ListKeeper::NothingToRedo);
    QVERIFY(m_keeper->ChangeObstacle() == ListKeeper::NoObstacle);
    QVERIFY(!QFile::exists(ListPath()));
}

void ListKeeperTest::ChangesByWhomeverAreKept_data()
{
    QTest::addColumn<bool>("byPlugin");
    Row("through the plug-in", true);
    Row("in the file", false);
}

void ListKeeperTest::ChangesByWhomeverAreKept()
{
    QFETCH(bool, byPlugin);
    if (byPlugin) {
        AddTop("Home");
    } else {
        WriteList("Home");
    }
    QSignalSpy spy(m_keeper.data(), SIGNAL(Changed()));
    m_keeper->Follow();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(History(), QString(" | [Home]"));
    QCOMPARE(Plain(ListKeeperText::Undo(*m_keeper)), QString("Added Home"));
    QVERIFY2(Plain(ListKeeperText::LastChange(*m_keeper)).startsWith("Last change: Added Home ("),
             qPrintable(ListKeeperText::LastChange(*m_keeper)));
    // Looking again finds nothing new.
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | [Home]"));
    QCOMPARE(spy.count(), 1);
}

void ListKeeperTest::UndoAndRedoWalkThroughTheStates()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
    QCOMPARE(History(), QString(" | [A] | B, A"));
    QCOMPARE(Plain(ListKeeperText::Redo(*m_keeper)), QString("Added B"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString());
    QVERIFY(m_keeper->Undo() != ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->Redo(), ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->Redo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("B, A"));
    QCOMPARE(History(), QString(" | A | [B, A]"));
    QVERIFY(m_keeper->Redo() != ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("B, A"));
}

void ListKeeperTest::UndoRestoresTheVeryBytesThePluginWrote()
{
    QList<PriorityList> entries = Listed("<a & \"b\">, Mobile/2, x, x");
    PluginObjects::Priority()->AddPriorityList(entries);
    m_keeper->Follow();
    const QByteArray before = ListBytes();
    AddTop("Mobile/2");
    m_keeper->Follow();
    QVERIFY(ListBytes() != before);
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(ListBytes(), before);
}

void ListKeeperTest::UndoOfAForeignChangeRestoresTheEntries()
{
    const QByteArray foreign("<!-- mine --><zeltdoc><item type=\"1\" name=\"A\" note=\"x\"/>"
                             "<item type=\"2\" name=\"B\"/></zeltdoc>");
    m_world.Write("Priority.xml", foreign);
    m_keeper->Follow();
    m_world.Write("Priority.xml", "<zeltdoc/>");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(ListBytes(), OrderFile::Document(Listed("A, B/2")));
}

void ListKeeperTest::ChangeAfterUndoCutsNothingOff()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    WriteList("C");
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | (A) | (B, A) | A | [C]"));
    QVERIFY(m_keeper->RedoObstacle() != ListKeeper::NoObstacle);
    StartAnew();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Plain(ListKeeperText::Undo(*m_keeper)), QString("Added A"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(History(), QString("[] | (A) | (B, A) | A | C"));
    // What was undone first can still be had.
    QCOMPARE(m_keeper->Restore(2, m_keeper->History().States().at(2)), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("B, A"));
}

void ListKeeperTest::ChangeNotYetSeenIsTheOneUndone()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
    QCOMPARE(History(), QString(" | [A] | B, A"));
}

void ListKeeperTest::ChangeMadeWhileNotRunningIsFoundWithItsTime()
{
    WriteList("A");
    const QDateTime longAgo = QDateTime::fromString("2020-01-02T03:04:05Z", Qt::ISODate);
    const QDateTime later = longAgo.addDays(1);
    QVERIFY(SetTimeOfList(longAgo));
    QVERIFY(QDir(UserData() + "history").removeRecursively());
    StartAnew();
    m_keeper.reset();
    WriteList("A, B");
    QVERIFY(SetTimeOfList(later));
    StartAnew();
    QCOMPARE(History(), QString("A | [A, B]"));
    QCOMPARE(m_keeper->History().States().at(0).time, longAgo);
    QCOMPARE(m_keeper->History().States().at(1).time, later);
    // Older than the state before it: the file was brought back from somewhere, and that was now.
    m_keeper.reset();
    WriteList("A, B, C");
    QVERIFY(SetTimeOfList(longAgo));
    StartAnew();
    QVERIFY(m_keeper->History().States().at(2).time > later);
}

void ListKeeperTest::TimeInTheFutureIsNotBelieved()
{
    WriteList("A");
    QVERIFY(SetTimeOfList(QDateTime::currentDateTime().addSecs(100000)));
    m_keeper->Follow();
    QVERIFY(m_keeper->History().States().last().time <= QDateTime::currentDateTime());
}

void ListKeeperTest::HistoryOutlivesTheProgram()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    StartAnew();
    QCOMPARE(History(), QString(" | [A] | B, A"));
    QCOMPARE(m_keeper->Redo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("B, A"));
}

void ListKeeperTest::RestoreIsAChangeThatCanBeUndone()
{
    const QStringList tops = QStringList() << "A"
                                           << "B"
                                           << "C";
    for (int i = 0; i < tops.size(); ++i) {
        AddTop(tops.at(i));
        m_keeper->Follow();
    }
    const ListState earlier = m_keeper->History().States().at(1);
    ShiftedClock::Shift(3600);
    QCOMPARE(m_keeper->Restore(1, earlier), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
    QCOMPARE(History(), QString(" | A | B, A | C, B, A | [A]"));
    const ListState restored = m_keeper->History().States().last();
    QCOMPARE(restored.backTo, earlier.time);
    QVERIFY(restored.time >= earlier.time.addSecs(3600));
    QVERIFY2(ListKeeperText::Undo(*m_keeper).startsWith("Restored the list from "),
             qPrintable(ListKeeperText::Undo(*m_keeper)));
    QVERIFY2(ListKeeperText::LastChange(*m_keeper).startsWith("Last change: Restored the list from "),
             qPrintable(ListKeeperText::LastChange(*m_keeper)));
    QVERIFY(m_keeper->RedoObstacle() != ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->Restore(3, m_keeper->History().States().at(3)), ListKeeper::NoObstacle);
    QCOMPARE(History(), QString(" | A | B, A | C, B, A | A | [C, B, A]"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
    QVERIFY2(ListKeeperText::Redo(*m_keeper).startsWith("Restored the list from "),
             qPrintable(ListKeeperText::Redo(*m_keeper)));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("C, B, A"));
}

void ListKeeperTest::RestoreOfTheListAsItIsAddsNothing()
{
    const QStringList lists = QStringList() << "A"
                                            << "B"
                                            << "A";
    for (int i = 0; i < lists.size(); ++i) {
        WriteList(lists.at(i));
        m_keeper->Follow();
    }
    QCOMPARE(m_keeper->Restore(1, m_keeper->History().States().at(1)), ListKeeper::NoObstacle);
    QCOMPARE(History(), QString(" | A | B | [A]"));
    QCOMPARE(ListKeeperText::Undo(*m_keeper), QString("Replaced B by A"));
}

void ListKeeperTest::MovesInARowAreOneChange()
{
    WriteList("A, B, C, D");
    m_keeper->Follow();
    ListKeeper other(UserData(), &m_source, nullptr);
    PriorityList moved = Listed("C").first();
    // By whomever, seen by whomever.
    WriteList("A, C, B, D");
    other.Follow();
    PluginObjects::Priority()->AddTopPriority(moved);
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | A, B, C, D | [C, A, B, D]"));
    QCOMPARE(Plain(ListKeeperText::Undo(*m_keeper)), QString("Moved C to the top"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C, D"));
    QCOMPARE(m_keeper->Redo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("C, A, B, D"));
}

void ListKeeperTest::MovesOfOneOpeningAreOneChange_data()
{
    QTest::addColumn<QString>("opening");
    QTest::addColumn<QString>("history");
    const QString apart = " | A, B, C, D | A, B, D, C | [A, D, B, C]";
    Row("one", "one", " | A, B, C, D | [A, D, B, C]");
    Row("closed after the second", "closed after", " | A, B, C, D | [A, D, B, C]");
    Row("closed before the second", "closed", apart);
    Row("opened before the second", "opened", apart);
    Row("none", "none", apart);
}

void ListKeeperTest::MovesOfOneOpeningAreOneChange()
{
    QFETCH(QString, opening);
    WriteList("A, B, C, D");
    m_keeper->Follow();
    ShiftedClock::ShiftToNoon(20);
    if (opening == "one" || opening.startsWith("closed")) {
        m_keeper->BeginOpening();
    }
    WriteListAfterNoon("A, B, D, C", 30);
    if (opening == "closed") {
        m_keeper->EndOpening();
    }
    m_keeper->Follow();
    ShiftedClock::ShiftToNoon(40);
    if (opening == "opened") {
        m_keeper->BeginOpening();
    }
    WriteListAfterNoon("A, D, B, C", 50);
    if (opening == "closed after") {
        m_keeper->EndOpening();
    }
    m_keeper->Follow();
    QTEST(History(), "history");
}

void ListKeeperTest::ImportIsNotJoinedWithMoves()
{
    WriteList("A, B, C");
    m_keeper->Follow();
    WriteList("A, C, B");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Replace(Listed("C, A, B")), ListKeeper::NoObstacle);
    QCOMPARE(History(), QString(" | A, B, C | A, C, B | [C, A, B]"));
}

void ListKeeperTest::ClockThatWasWrongLosesNothing_data()
{
    QTest::addColumn<int>("days");
    Row("ahead", 4000);
    Row("behind", -4000);
}

void ListKeeperTest::ClockThatWasWrongLosesNothing()
{
    QFETCH(int, days);
    AddTop("A");
    m_keeper->Follow();
    const long secondsOfADay = 24 * 60 * 60;
    ShiftedClock::Shift(days * secondsOfADay);
    AddTop("B");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    AddTop("C");
    m_keeper->Follow();
    ShiftedClock::Shift(0);
    StartAnew();
    AddTop("D");
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | (A) | (B, A) | A | C, A | [D, C, A]"));
    QVERIFY(m_keeper->History().States().last().time <= QDateTime::currentDateTime());
}

void ListKeeperTest::RestoreOfAStateNoLongerKeptIsTold()
{
    AddTop("A");
    m_keeper->Follow();
    ListState gone = m_keeper->History().States().last();
    gone.entries = Listed("Z");
    QCOMPARE(m_keeper->Restore(1, gone), ListKeeper::StateGone);
    QCOMPARE(Stored(), QString("A"));
}

void ListKeeperTest::ReplaceIsAChangeThatCanBeUndone()
{
    AddTop("A");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Replace(Listed("X, A, Mobile/2")), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("X, A, Mobile/2"));
    QCOMPARE(History(), QString(" | A | [X, A, Mobile/2]"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
}

void ListKeeperTest::EditIsMadeOfTheListAsItIsThen()
{
    WriteList("A, B");
    m_keeper->Follow();
    WriteList("A, B, C");
    const auto moveLast = [](const QList<PriorityList> &list) {
        return ListEdit::Moved(list, {static_cast<int>(list.size()) - 1}, 0);
    };
    QCOMPARE(m_keeper->Edit(moveLast), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("C, A, B"));
    QCOMPARE(History(), QString(" | A, B | A, B, C | [C, A, B]"));
}

void ListKeeperTest::EditsThatMoveOneEntryAreOneChange()
{
    WriteList("A, B, C, D");
    m_keeper->Follow();
    for (int place = 3; place > 0; --place) {
        const auto moveUp = [place](const QList<PriorityList> &list) {
            return ListEdit::Moved(list, {place}, place - 1);
        };
        QCOMPARE(m_keeper->Edit(moveUp), ListKeeper::NoObstacle);
    }
    QCOMPARE(History(), QString(" | A, B, C, D | [D, A, B, C]"));
}

void ListKeeperTest::EditThatTellsWhatItMovesIsKeptSo()
{
    WriteList("A, B, C");
    const auto moveFirstDown = [](const QList<PriorityList> &list) {
        return ListEdit::Moved(list, {0}, 2);
    };
    const PriorityList moved = Listed("A").first();
    QCOMPARE(m_keeper->Edit(moveFirstDown, &moved), ListKeeper::NoObstacle);
    StartAnew();
    QCOMPARE(m_keeper->History().States().last().moved, 1);
}

void ListKeeperTest::EntryInHandIsToldOfWhenItIsWhatMoved()
{
    WriteList("A, B, C, D");
    m_keeper->Follow();
    m_keeper->SetPlaceInHand([] { return 1; });
    WriteList("A, B, D, C");
    m_keeper->Follow();
    QCOMPARE(m_keeper->History().States().last().moved, -1);
    WriteList("B, A, D, C");
    m_keeper->Follow();
    QCOMPARE(m_keeper->History().States().last().moved, 1);
}

void ListKeeperTest::EditNeedsNoHistory()
{
    WriteList("A, B");
    m_world.Write("history/states.xml", "damaged");
    StartAnew();
    const auto removeFirst = [](const QList<PriorityList> &list) {
        return ListEdit::Removed(list, {0});
    };
    QCOMPARE(m_keeper->Edit(removeFirst), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("B"));
    QCOMPARE(m_world.Read("history/states.xml"), QByteArray("damaged"));
}

void ListKeeperTest::NothingEditsAListThatCannotBeReadToItsEnd()
{
    const QByteArray damaged = WriteDamaged("A, B, C");
    const auto empty = [](const QList<PriorityList> &) {
        return QList<PriorityList>();
    };
    QCOMPARE(m_keeper->Edit(empty), ListKeeper::ListDamaged);
    QCOMPARE(ListBytes(), damaged);
}

void ListKeeperTest::EverybodyIsToldOfAnUndo()
{
    AddTop("A");
    m_keeper->Follow();
    QSignalSpy spy(PluginObjects::PriorityService(), SIGNAL(OnUpdataPriorityView()));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(spy.count(), 1);
}

void ListKeeperTest::RemovedFileIsAnEmptyListAndComesBack()
{
    AddTop("A");
    m_keeper->Follow();
    QVERIFY(QFile::remove(ListPath()));
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | A | []"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
}

void ListKeeperTest::DamagedListIsNoStateAndUndoRepairsIt()
{
    WriteList("A, B, C");
    m_keeper->Follow();
    const QByteArray damaged = ListBytes().left(ListBytes().indexOf("<item name=\"C\"") + 5);
    m_world.Write("Priority.xml", damaged);
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | [A, B, C]"));
    QCOMPARE(ListKeeperText::Undo(*m_keeper), QString("The file was damaged"));
    QCOMPARE(m_keeper->RedoObstacle(), ListKeeper::NoRedoOfDamage);
    QCOMPARE(ListKeeperText::LastChange(*m_keeper), QString());
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C"));
    QCOMPARE(History(), QString(" | [A, B, C]"));
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    // What the plug-in makes of a damaged file is a change like any other.
    m_world.Write("Priority.xml", damaged);
    AddTop("D");
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | A, B, C | [D, A, B]"));
}

void ListKeeperTest::DamagedListIsCopiedAsSoonAsItIsSeen()
{
    const QByteArray damaged = WriteDamaged("A, B, C");
    StartAnew();
    QVERIFY(m_keeper->IsDamaged());
    QCOMPARE(m_keeper->CopyPath(), UserData() + "Priority-damaged-1.xml");
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    QVERIFY(m_keeper->WriteObstacle() == ListKeeper::NoObstacle);
    QCOMPARE(ListBytes(), damaged);
    // So another plug-in can do what it likes.
    AddTop("D");
    m_keeper->Follow();
    QVERIFY(!m_keeper->IsDamaged());
    QVERIFY(m_keeper->CopyPath().isNull());
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
}

void ListKeeperTest::EachDifferentDamageIsKept()
{
    const QByteArray first = WriteDamaged("A, B, C");
    m_keeper->Follow();
    m_keeper->Follow();
    const QByteArray second = WriteDamaged("A, B, C, D");
    m_keeper->Follow();
    WriteDamaged("A, B, C");
    m_keeper->Follow();
    QCOMPARE(Copies(), QStringList() << "Priority-damaged-1.xml"
                                     << "Priority-damaged-2.xml");
    QCOMPARE(m_keeper->CopyPath(), UserData() + "Priority-damaged-1.xml");
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), first);
    QCOMPARE(m_world.Read("Priority-damaged-2.xml"), second);
}

void ListKeeperTest::NothingWritesADamagedListThatCannotBeCopied()
{
    WriteList("A, B, C");
    m_keeper->Follow();
    const QByteArray damaged = WriteDamaged("A, B, C");
    // A directory where the new file is made: nothing can be written there.
    const QString blocked = PrivateFile::TemporaryPath(UserData() + "Priority-damaged-1.xml");
    QVERIFY(QDir().mkdir(blocked));
    m_keeper->Follow();
    const ListKeeper::Obstacle reason = ListKeeper::ListNotKept;
    QCOMPARE(m_keeper->WriteObstacle(), reason);
    QCOMPARE(m_keeper->Undo(), reason);
    QCOMPARE(m_keeper->BringBack(), reason);
    QCOMPARE(m_keeper->GoOnWith(Listed("A, B")), reason);
    QCOMPARE(m_keeper->Replace(Listed("Z")), reason);
    QCOMPARE(ListBytes(), damaged);
    QCOMPARE(History(), QString(" | [A, B, C]"));
    QVERIFY(QDir().rmdir(blocked));
    m_keeper->Follow();
    QVERIFY(m_keeper->WriteObstacle() == ListKeeper::NoObstacle);
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C"));
}

void ListKeeperTest::DamageMadeByAnotherInTheMiddleOfItsWorkIsNotCopied()
{
    {
        const DirectoryLock command(UserData(), DirectoryLock::Changing, 0);
        WriteDamaged("A, B, C");
        m_keeper->Follow();
        QVERIFY(Copies().isEmpty());
        QCOMPARE(m_keeper->WriteObstacle(), ListKeeper::ListBusy);
        QCOMPARE(m_keeper->BringBack(), ListKeeper::ListBusy);
        QCOMPARE(m_keeper->GoOnWith(Listed("A, B")), ListKeeper::ListBusy);
        WriteList("A, B, C");
    }
    m_keeper->Follow();
    QVERIFY(Copies().isEmpty());
    QVERIFY(m_keeper->WriteObstacle() == ListKeeper::NoObstacle);
}

void ListKeeperTest::LastWholeListIsBroughtBack()
{
    WriteList("A, B, C");
    m_keeper->Follow();
    WriteList("A, B, C, D");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    WriteDamaged("A, B");
    m_keeper->Follow();
    QVERIFY(m_keeper->CanBringBack());
    QCOMPARE(m_keeper->BringBack(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C"));
    QCOMPARE(History(), QString(" | [A, B, C] | A, B, C, D"));
    QVERIFY(!m_keeper->CanBringBack());
}

void ListKeeperTest::WhatCouldBeReadBecomesTheList()
{
    WriteList("A, B, C");
    m_keeper->Follow();
    WriteDamaged("A, B, C");
    m_keeper->Follow();
    QSignalSpy spy(PluginObjects::PriorityService(), SIGNAL(OnUpdataPriorityView()));
    QCOMPARE(m_keeper->GoOnWith(Listed("A, B")), ListKeeper::NoObstacle);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(ListBytes(), OrderFile::Document(Listed("A, B")));
    QCOMPARE(History(), QString(" | A, B, C | [A, B]"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C"));
}

void ListKeeperTest::OtherEntriesThanWereSeenDoNotBecomeTheList()
{
    WriteDamaged("A, B, C");
    m_keeper->Follow();
    const QByteArray damaged = WriteDamaged("A, B");
    QVERIFY(m_keeper->GoOnWith(Listed("A, B")) != ListKeeper::NoObstacle);
    QCOMPARE(ListBytes(), damaged);
    QCOMPARE(m_keeper->GoOnWith(Listed("A")), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
}

void ListKeeperTest::WholeListIsNotMended()
{
    WriteList("A, B");
    m_keeper->Follow();
    WriteDamaged("A, B, C");
    m_keeper->Follow();
    // Somebody else was faster.
    WriteList("A, B, C");
    QSignalSpy spy(PluginObjects::PriorityService(), SIGNAL(OnUpdataPriorityView()));
    QCOMPARE(m_keeper->BringBack(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C"));
    QCOMPARE(m_keeper->GoOnWith(Listed("A, B")), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B, C"));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(History(), QString(" | A, B | [A, B, C]"));
}

void ListKeeperTest::WhatCouldBeReadBecomesTheListWithoutAHistory_data()
{
    QTest::addColumn<QByteArray>("history");
    Row("none", QByteArray());
    Row("damaged", QByteArray("nonsense"));
}

void ListKeeperTest::WhatCouldBeReadBecomesTheListWithoutAHistory()
{
    QFETCH(QByteArray, history);
    QVERIFY(QFile::remove(UserData() + "history/states.xml"));
    if (!history.isEmpty()) {
        m_world.Write("history/states.xml", history);
    }
    WriteDamaged("A, B, C");
    StartAnew();
    QVERIFY(!m_keeper->CanBringBack());
    QVERIFY(m_keeper->BringBack() != ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->GoOnWith(Listed("A, B")), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A, B"));
    QVERIFY(!m_keeper->IsDamaged());
    if (history.isEmpty()) {
        QCOMPARE(History(), QString("[A, B]"));
    } else {
        QCOMPARE(m_world.Read("history/states.xml"), history);
    }
}

void ListKeeperTest::ListThatCannotBeOpenedIsLeftAlone()
{
    AddTop("A");
    m_keeper->Follow();
    QVERIFY(QFile::remove(ListPath()));
    QVERIFY(QDir().mkdir(ListPath()));
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | [A]"));
    QCOMPARE(m_keeper->UndoObstacle(), ListKeeper::ListNotOpened);
    QCOMPARE(m_keeper->WriteObstacle(), ListKeeper::ListNotOpened);
    QVERIFY(m_keeper->Undo() != ListKeeper::NoObstacle);
    QVERIFY(QDir(ListPath()).exists());
}

void ListKeeperTest::AwkwardNamesAreNoEndlessChange()
{
    m_world.Write("Priority.xml", "<zeltdoc><item name=\"a\x01"
                                  "b&#10;c\" type=\"1\"/></zeltdoc>");
    m_keeper->Follow();
    const int states = m_keeper->History().States().size();
    StartAnew();
    m_keeper->Follow();
    QCOMPARE(m_keeper->History().States().size(), states);
    AddTop("A");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->Redo(), ListKeeper::NoObstacle);
}

void ListKeeperTest::WithoutThePluginNothingCanBeDone()
{
    AddTop("A");
    m_keeper->Follow();
    const QByteArray before = ListBytes();
    HostControl::SetPluginContainer(nullptr);
    QSignalSpy spy(m_keeper.data(), SIGNAL(Changed()));
    m_keeper->Follow();
    QCOMPARE(spy.count(), 1);
    const ListKeeper::Obstacle reason = ListKeeper::ListNotOffered;
    QCOMPARE(m_keeper->UndoObstacle(), reason);
    QCOMPARE(m_keeper->RedoObstacle(), reason);
    QCOMPARE(m_keeper->ChangeObstacle(), reason);
    QCOMPARE(m_keeper->Undo(), reason);
    QCOMPARE(m_keeper->Replace(Listed("Z")), reason);
    QCOMPARE(m_keeper->EditObstacle(), reason);
    QCOMPARE(ListBytes(), before);
    QVERIFY(ListKeeperText::LastChange(*m_keeper).isEmpty());
}

void ListKeeperTest::DamagedHistoryIsToldAndLeftAloneUntilSetAside()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    m_keeper->Follow();
    const QByteArray damaged = m_world.Read("history/states.xml").replace("1 0", "1 7");
    m_world.Write("history/states.xml", damaged);
    AddTop("C");
    StartAnew();
    QVERIFY(m_keeper->IsHistoryUnusable());
    QCOMPARE(m_keeper->HistoryProblem(), ListKeeper::HistoryDamaged);
    QCOMPARE(m_keeper->UndoObstacle(), ListKeeper::HistoryDamaged);
    QCOMPARE(m_keeper->Undo(), ListKeeper::HistoryDamaged);
    AddTop("D");
    m_keeper->Follow();
    QCOMPARE(m_world.Read("history/states.xml"), damaged);
    QCOMPARE(Stored(), QString("D, C, B, A"));

    QCOMPARE(m_keeper->SetHistoryAside(), ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->HistoryProblem(), ListKeeper::NoObstacle);
    QCOMPARE(m_world.Read("history/states-damaged-1.xml"), damaged);
    QCOMPARE(History(), QString("[D, C, B, A]"));
}

void ListKeeperTest::HistoryThatCannotBeWrittenLastsForTheProgram()
{
    QVERIFY(QDir(UserData() + "history").removeRecursively());
    m_world.Write("history", "");
    StartAnew();
    QCOMPARE(m_keeper->HistoryProblem(), ListKeeper::HistoryNotWritable);
    AddTop("A");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString());
    QCOMPARE(m_keeper->Redo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString("A"));
}

void ListKeeperTest::ListThatCannotBeWrittenIsTold()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    m_keeper->Follow();
    const QByteArray before = ListBytes();
    // A directory where the new file is made: nothing can be written there.
    QVERIFY(QDir().mkdir(PrivateFile::TemporaryPath(ListPath())));
    QCOMPARE(m_keeper->Undo(), ListKeeper::ListNotWritten);
    QCOMPARE(ListBytes(), before);
    QCOMPARE(History(), QString(" | A | [B, A]"));
}

void ListKeeperTest::ImportThatCannotBeWrittenLeavesTheHistoryAsItWas()
{
    AddTop("A");
    m_keeper->Follow();
    AddTop("B");
    m_keeper->Follow();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QVERIFY(QDir().mkdir(PrivateFile::TemporaryPath(ListPath())));
    QVERIFY(m_keeper->Replace(Listed("Z")) != ListKeeper::NoObstacle);
    QCOMPARE(History(), QString(" | [A] | B, A"));
    StartAnew();
    QCOMPARE(History(), QString(" | [A] | B, A"));
}

void ListKeeperTest::TwoDashboardsKeepOneHistory()
{
    ListKeeper other(UserData(), &m_source, nullptr);
    AddTop("A");
    m_keeper->Follow();
    other.Follow();
    AddTop("B");
    other.Follow();
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | A | [B, A]"));
    QCOMPARE(History(other), History());
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(other.Undo(), ListKeeper::NoObstacle);
    QCOMPARE(Stored(), QString());
    m_keeper->Follow();
    QCOMPARE(History(), QString("[] | A | B, A"));
    QCOMPARE(History(other), History());
    StartAnew();
    QCOMPARE(History(), QString("[] | A | B, A"));
}

void ListKeeperTest::UndoElsewhereIsFollowed()
{
    AddTop("A");
    m_keeper->Follow();
    ListKeeper other(UserData(), &m_source, nullptr);
    QCOMPARE(other.Undo(), ListKeeper::NoObstacle);
    QSignalSpy spy(m_keeper.data(), SIGNAL(Changed()));
    m_keeper->Follow();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(History(), QString("[] | A"));
    QVERIFY(m_keeper->RedoObstacle() == ListKeeper::NoObstacle);
}

void ListKeeperTest::HistoryHeldByAnotherIsNotTouched()
{
    AddTop("A");
    m_keeper->Follow();
    const QByteArray before = m_world.Read("history/states.xml");
    {
        const DirectoryLock another(UserData() + "history", DirectoryLock::Changing);
        QVERIFY(!another.IsRefused());
        QCOMPARE(m_keeper->Undo(), ListKeeper::ListBusy);
        QCOMPARE(Stored(), QString("A"));
        AddTop("B");
        m_keeper->Follow();
        QCOMPARE(m_world.Read("history/states.xml"), before);
    }
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | A | [B, A]"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
}

void ListKeeperTest::ListHeldByACommandIsNotTouched()
{
    AddTop("A");
    m_keeper->Follow();
    const QByteArray before = ListBytes();
    {
        const DirectoryLock command(UserData(), DirectoryLock::Changing, 0);
        QVERIFY(!command.IsRefused());
        QCOMPARE(m_keeper->Undo(), ListKeeper::ListBusy);
        QCOMPARE(ListBytes(), before);
        // The plug-in deletes the file before it writes it anew: that is no empty list.
        QVERIFY(QFile::remove(ListPath()));
        m_keeper->Follow();
        QCOMPARE(History(), QString(" | [A]"));
        m_world.Write("Priority.xml", before);
    }
    m_keeper->Follow();
    QCOMPARE(History(), QString(" | [A]"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
}

void ListKeeperTest::ListInTheMiddleOfACommandIsReadAgain()
{
    WriteList("A");
    m_keeper->Follow();
    int ready[2];
    QCOMPARE(pipe(ready), 0);
    const pid_t command = fork();
    if (command == 0) {
        const DirectoryLock lock(UserData(), DirectoryLock::Changing, 0);
        QFile::remove(ListPath());
        const bool isTold = write(ready[1], "", 1) == 1;
        usleep(200000);
        WriteList("B, A");
        _exit(isTold ? 0 : 1);
    }
    char begun = 0;
    QCOMPARE(int(read(ready[0], &begun, 1)), 1);
    m_keeper->Follow();
    int status = 0;
    QCOMPARE(waitpid(command, &status, 0), command);
    close(ready[0]);
    close(ready[1]);
    QCOMPARE(status, 0);
    QCOMPARE(History(), QString(" | A | [B, A]"));
}

void ListKeeperTest::CommandsAreKeptOutDuringAnUndo()
{
    AddTop("A");
    m_keeper->Follow();
    connect(PluginObjects::PriorityService(), SIGNAL(OnUpdataPriorityView()), this, SLOT(TryTheList()));
    connect(m_keeper.data(), SIGNAL(Changed()), this, SLOT(TryTheList()));
    m_isListFree.clear();
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    disconnect(PluginObjects::PriorityService(), nullptr, this, nullptr);
    // While it is written, and when it is done.
    QCOMPARE(m_isListFree, QList<bool>() << false << true);
}

void ListKeeperTest::TryTheList()
{
    m_isListFree.append(!DirectoryLock(UserData(), DirectoryLock::Reading, 0).IsRefused());
}

void ListKeeperTest::InterruptedUndoIsFinished_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QString>("history");
    const QByteArray undone = OrderFile::Document(Listed("A, B"));
    Row("before it began", OrderFile::Document(Listed("A, B, C")), " | A | A, B | [A, B, C] | A, B, C, D");
    Row("before it was noted", undone, " | A | [A, B] | A, B, C | A, B, C, D");
    Row("file gone", QByteArray(), " | A | [A, B] | A, B, C | A, B, C, D");
    Row("file cut short", undone.left(undone.size() / 2), " | A | [A, B] | A, B, C | A, B, C, D");
    Row("changed since", OrderFile::Document(Listed("X")),
        " | A | A, B | (A, B, C) | (A, B, C, D) | A, B, C | [X]");
}

void ListKeeperTest::InterruptedUndoIsFinished()
{
    QFETCH(QByteArray, left);
    const QStringList lists = QStringList() << "A"
                                            << "A, B"
                                            << "A, B, C"
                                            << "A, B, C, D";
    for (int i = 0; i < lists.size(); ++i) {
        WriteList(lists.at(i));
        m_keeper->Follow();
    }
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    m_keeper.reset();
    ListHistory history;
    HistoryFile file(UserData());
    QVERIFY(file.Load(&history));
    history.SetTarget(2);
    QVERIFY(file.Save(&history));
    m_world.Write("Priority.xml", left);
    if (left.isEmpty()) {
        QVERIFY(QFile::remove(ListPath()));
    }
    StartAnew();
    QTEST(History(), "history");
    QVERIFY(file.Load(&history));
    QCOMPARE(history.Target(), -1);
}

void ListKeeperTest::SuddenEndInTheMiddleOfUndoLosesNothing()
{
    const QString all = "A, B, C";
    WriteList(all);
    m_keeper->Follow();
    WriteList("C, B, A");
    m_keeper->Follow();
    int undone = 0;
    for (int round = 0; round < 60; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            ListKeeper keeper(UserData(), &m_source, nullptr);
            for (;;) {
                if (keeper.Undo() != ListKeeper::NoObstacle || keeper.Redo() != ListKeeper::NoObstacle) {
                    _exit(1);
                }
            }
        }
        usleep(static_cast<useconds_t>(3000 + 211 * round));
        QCOMPARE(kill(child, SIGKILL), 0);
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        StartAnew();
        QCOMPARE(m_keeper->HistoryProblem(), ListKeeper::NoObstacle);
        QStringList kept;
        const QList<ListState> states = m_keeper->History().States();
        for (int i = 0; i < states.size(); ++i) {
            kept.append(AsText(states.at(i).entries));
        }
        QVERIFY2(kept.contains(all), qPrintable(kept.join(" | ")));
        QVERIFY2(kept.contains("C, B, A"), qPrintable(kept.join(" | ")));
        // Whatever was found in the file, the list can be had again.
        const int place = kept.lastIndexOf("C, B, A");
        QCOMPARE(m_keeper->Restore(place, states.at(place)), ListKeeper::NoObstacle);
        QCOMPARE(Stored(), QString("C, B, A"));
        undone += m_keeper->History().UndoPlace() >= 0 ? 1 : 0;
    }
    QVERIFY(undone > 0);
}

void ListKeeperTest::FiftyStatesAreKept()
{
    for (int i = 0; i < 60; ++i) {
        AddTop(QString("Network %1").arg(i));
        m_keeper->Follow();
    }
    QCOMPARE(m_keeper->History().States().size(), 50);
    StartAnew();
    QCOMPARE(m_keeper->History().States().size(), 50);
    int undone = 0;
    while (m_keeper->UndoObstacle() == ListKeeper::NoObstacle) {
        QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
        ++undone;
    }
    QCOMPARE(undone, 49);
    QCOMPARE(Listed(Stored()).size(), 11);
}

QTEST_MAIN(ListKeeperTest)
#include "tst_listkeeper.moc"
