#include "Lists.h"

#include <ListHistory.h>
#include <Row.h>

#include <QtTest>

#include <cstdlib>
#include <ctime>

namespace
{

QDateTime Time(int day, int hour = 9, int minute = 0, int second = 0)
{
    const QDateTime dayBefore = QDateTime::fromString("2026-02-28T00:00:00Z", Qt::ISODate);
    return dayBefore.addDays(day).addSecs((hour * 60 + minute) * 60 + second);
}

ListState State(const QString &entries, const QDateTime &time = Time(1))
{
    ListState state;
    state.time = time;
    state.entries = Listed(entries);
    return state;
}

ListHistory HistoryOf(const QStringList &states)
{
    ListHistory history;
    for (int i = 0; i < states.size(); ++i) {
        history.Record(State(states.at(i)));
    }
    return history;
}

/** The states, oldest first: the one in force in brackets, those passed by in round ones. */
QString Told(const ListHistory &history)
{
    QStringList texts;
    for (int i = 0; i < history.States().size(); ++i) {
        const ListState &state = history.States().at(i);
        const QString text = AsText(state.entries);
        texts.append(i == history.Position() ? '[' + text + ']' : state.isPassedBy ? '(' + text + ')' : text);
    }
    return texts.join(" | ");
}

void Undo(ListHistory *history, const QDateTime &time = Time(2))
{
    history->GoTo(history->UndoPlace(), time);
}

/** Lists with names from 1 on, in which the entry of that place is moved up by so many places. */
QString Moved(int entries, int place, int by)
{
    QStringList names;
    for (int i = 1; i <= entries; ++i) {
        names.append(QString::number(i));
    }
    names.move(place - 1, place - 1 - by);
    return names.join(", ");
}

} // namespace

class ListHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void EmptyHistoryOffersNothing();
    void NewestStateIsInForce();
    void FirstStateCannotBeUndone();
    void GoingBackKeepsWhatWasUndone();
    void ChangeAfterUndoCutsNothingOff();
    void UndoGoesFurtherBackPastWhatWasUndone();
    void RedoEndsWithTheNextChange();
    void ReturnHasTheTimeOfTheUndo();
    void ReturnNamesTheStateThatWasGoneBackTo();
    void StateInForceTellsSinceWhen();
    void MovesOfOneEntryAreOneState_data();
    void MovesOfOneEntryAreOneState();
    void OtherChangesAreNotJoined_data();
    void OtherChangesAreNotJoined();
    void MovesAreJoinedForTenSecondsOrAnOpening_data();
    void MovesAreJoinedForTenSecondsOrAnOpening();
    void MovesThatTakeTheEntryBackLeaveNoState();
    void MoveAfterAnUndoIsNotJoined();
    void MovesThatAreToldAreJoinedByTheirEntry_data();
    void MovesThatAreToldAreJoinedByTheirEntry();
    void JoinedMovesHaveTheTimeOfTheLast();
    void OldestOfTooManyGoes();
    void LastListOfEachOfFourteenDaysIsKept();
    void ClockThatWasWrongLosesNoDay_data();
    void ClockThatWasWrongLosesNoDay();
    void DaysAreThoseOfTheLocalTime();
    void PlacesThatAreNoneAreIgnored_data();
    void PlacesThatAreNoneAreIgnored();
    void StateIsFoundAgain();
    void TargetLastsUntilItIsReached();
    void ShorteningTakesTheOlderHalf();
    void ShorteningSparesTheStateInForceAndThoseUndone();
};

void ListHistoryTest::initTestCase()
{
    qputenv("TZ", "UTC");
    tzset();
}

void ListHistoryTest::EmptyHistoryOffersNothing()
{
    const ListHistory history;
    QVERIFY(history.IsEmpty());
    QCOMPARE(history.UndoPlace(), -1);
    QCOMPARE(history.RedoPlace(), -1);
    QCOMPARE(history.Position(), -1);
    QVERIFY(history.Since().isNull());
    QVERIFY(history.Entries().isEmpty());
}

void ListHistoryTest::NewestStateIsInForce()
{
    const ListHistory history = HistoryOf(QStringList() << "A"
                                                        << "A, B");
    QCOMPARE(history.Position(), 1);
    QCOMPARE(AsText(history.Entries()), QString("A, B"));
    QCOMPARE(history.UndoPlace(), 0);
    QCOMPARE(history.RedoPlace(), -1);
}

void ListHistoryTest::FirstStateCannotBeUndone()
{
    QCOMPARE(HistoryOf(QStringList("A")).UndoPlace(), -1);
}

void ListHistoryTest::GoingBackKeepsWhatWasUndone()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C");
    history.GoTo(0, Time(2));
    QCOMPARE(Told(history), QString("[A] | B | C"));
    QCOMPARE(history.UndoPlace(), -1);
    QCOMPARE(history.RedoPlace(), 1);
    history.GoTo(2, Time(2));
    QCOMPARE(history.RedoPlace(), -1);
}

void ListHistoryTest::ChangeAfterUndoCutsNothingOff()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C"
                                                  << "D");
    Undo(&history);
    Undo(&history);
    history.Record(State("E"));
    QCOMPARE(Told(history), QString("A | (B) | (C) | (D) | B | [E]"));
}

void ListHistoryTest::UndoGoesFurtherBackPastWhatWasUndone()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C");
    Undo(&history);
    history.Record(State("D"));
    Undo(&history);
    QCOMPARE(Told(history), QString("A | (B) | (C) | [B] | D"));
    history.Record(State("E"));
    QCOMPARE(Told(history), QString("A | (B) | (C) | (B) | (D) | B | [E]"));
    Undo(&history);
    QCOMPARE(AsText(history.Entries()), QString("B"));
    Undo(&history);
    QCOMPARE(AsText(history.Entries()), QString("A"));
    QCOMPARE(history.UndoPlace(), -1);
    history.GoTo(history.RedoPlace(), Time(2));
    history.GoTo(history.RedoPlace(), Time(2));
    QCOMPARE(Told(history), QString("A | (B) | (C) | (B) | (D) | B | [E]"));
}

void ListHistoryTest::RedoEndsWithTheNextChange()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B");
    Undo(&history);
    QCOMPARE(history.RedoPlace(), 1);
    history.Record(State("C"));
    QCOMPARE(history.RedoPlace(), -1);
}

void ListHistoryTest::ReturnHasTheTimeOfTheUndo()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B");
    Undo(&history, Time(3));
    history.Record(State("C", Time(5)));
    QCOMPARE(history.States().at(2).time, Time(3));
    QCOMPARE(history.States().at(3).time, Time(5));
    // Where nobody noted it, the change tells the latest time that it can have been.
    ListHistory noted(HistoryOf(QStringList() << "A"
                                              << "B")
                          .States(),
                      0, QDateTime());
    noted.Record(State("C", Time(5)));
    QCOMPARE(noted.States().at(2).time, Time(5));
}

void ListHistoryTest::ReturnNamesTheStateThatWasGoneBackTo()
{
    ListHistory history;
    history.Record(State("A", Time(1)));
    history.Record(State("B", Time(2)));
    Undo(&history, Time(3));
    history.Record(State("C", Time(4)));
    QCOMPARE(history.States().at(2).backTo, Time(1));
    QVERIFY(history.States().at(3).backTo.isNull());
    Undo(&history, Time(5));
    history.Record(State("D", Time(6)));
    QCOMPARE(history.States().at(4).backTo, Time(3));
}

void ListHistoryTest::StateInForceTellsSinceWhen()
{
    ListHistory history;
    history.Record(State("A", Time(1)));
    history.Record(State("B", Time(2)));
    QCOMPARE(history.Since(), Time(2));
    QVERIFY(history.CameBack().isNull());
    Undo(&history, Time(3));
    QCOMPARE(history.Since(), Time(3));
    // To go to where it is changes nothing.
    history.GoTo(0, Time(4));
    QCOMPARE(history.CameBack(), Time(3));
    history.Record(State("C", Time(5)));
    QCOMPARE(history.Since(), Time(5));
}

void ListHistoryTest::MovesOfOneEntryAreOneState_data()
{
    QTest::addColumn<QStringList>("lists");
    QStringList toTheTop;
    QStringList toTheEnd;
    for (int by = 0; by < 60; ++by) {
        toTheTop.append(Moved(60, 60, by));
        toTheEnd.append(Moved(60, 1, -by));
    }
    Row("59 times up", toTheTop);
    Row("59 times down", toTheEnd);
    Row("several places at once",
        (QStringList() << Moved(9, 9, 0) << Moved(9, 9, 3) << Moved(9, 9, 4) << Moved(9, 9, 8)));
    Row("there and partly back",
        (QStringList() << Moved(9, 5, 0) << Moved(9, 5, 1) << Moved(9, 5, 2) << Moved(9, 5, 1)));
    Row("past another of the same name", (QStringList() << "x, a, x, b"
                                                        << "x, a, b, x"
                                                        << "x, b, a, x"));
}

void ListHistoryTest::MovesOfOneEntryAreOneState()
{
    QFETCH(QStringList, lists);
    ListHistory history;
    for (int i = 0; i < lists.size(); ++i) {
        history.RecordJoined(State(lists.at(i), Time(1, 9, 0, i)), QDateTime());
    }
    QCOMPARE(Told(history), lists.first() + " | [" + lists.last() + ']');
}

void ListHistoryTest::OtherChangesAreNotJoined_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("third");
    Row("another entry is moved", "A, B, C, D", "B, A, C, D", "B, A, D, C");
    Row("an entry is added", "A, B, C", "B, A, C", "B, A, C, D");
    Row("an entry is deleted", "A, B, C", "B, A, C", "B, C");
    Row("one was added before", "A, B", "A, B, C", "A, C, B");
    Row("several were moved before", "A, B, C, D", "B, A, D, C", "B, D, A, C");
    Row("several were moved before, now one of them back", "A, B, C, D", "D, B, A, C", "D, A, B, C");
    Row("another of the same name", "x, a, b, x", "a, x, b, x", "a, x, x, b");
    Row("another type of the same name", "A, B, C/2, C", "A, C/2, B, C", "A, C/2, C, B/2");
}

void ListHistoryTest::OtherChangesAreNotJoined()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, third);
    ListHistory history;
    history.RecordJoined(State(first), QDateTime());
    history.RecordJoined(State(second), QDateTime());
    history.RecordJoined(State(third), QDateTime());
    QCOMPARE(Told(history), first + " | " + second + " | [" + third + ']');
}

void ListHistoryTest::MovesAreJoinedForTenSecondsOrAnOpening_data()
{
    QTest::addColumn<QDateTime>("first");
    QTest::addColumn<QDateTime>("second");
    QTest::addColumn<QDateTime>("opened");
    QTest::addColumn<bool>("isJoined");
    const QDateTime closed;
    Row("ten seconds", Time(1, 9, 0, 0), Time(1, 9, 0, 10), closed, true);
    Row("eleven seconds", Time(1, 9, 0, 0), Time(1, 9, 0, 11), closed, false);
    Row("the same opening", Time(1, 9, 5), Time(1, 9, 45), Time(1, 9, 5), true);
    Row("the first before the opening", Time(1, 9, 4), Time(1, 9, 45), Time(1, 9, 5), false);
    Row("the clock was put back", Time(1, 9, 5), Time(1, 9, 4, 59), Time(1, 9, 5), false);
    Row("another day", Time(1, 23, 59, 59), Time(2, 0, 0, 0), Time(1, 23), false);
}

void ListHistoryTest::MovesAreJoinedForTenSecondsOrAnOpening()
{
    QFETCH(QDateTime, first);
    QFETCH(QDateTime, second);
    QFETCH(QDateTime, opened);
    QFETCH(bool, isJoined);
    ListHistory history;
    history.Record(State("A, B, C, D", Time(1, 8)));
    history.RecordJoined(State("A, B, D, C", first), opened);
    history.RecordJoined(State("A, D, B, C", second), opened);
    QCOMPARE(Told(history),
             QString(isJoined ? "A, B, C, D | [A, D, B, C]" : "A, B, C, D | A, B, D, C | [A, D, B, C]"));
}

void ListHistoryTest::MovesThatTakeTheEntryBackLeaveNoState()
{
    ListHistory history;
    history.Record(State("A", Time(1, 8)));
    history.Record(State("A, B", Time(1, 9)));
    history.RecordJoined(State("B, A", Time(1, 9, 0, 1)), QDateTime());
    history.RecordJoined(State("A, B", Time(1, 9, 0, 2)), QDateTime());
    QCOMPARE(Told(history), QString("A | [A, B]"));
    QCOMPARE(history.Since(), Time(1, 9, 0, 2));
    QCOMPARE(history.RedoPlace(), -1);
}

void ListHistoryTest::MovesThatAreToldAreJoinedByTheirEntry_data()
{
    QTest::addColumn<int>("movedFirst");
    QTest::addColumn<QString>("last");
    QTest::addColumn<int>("movedLast");
    QTest::addColumn<QString>("told");
    QTest::addColumn<int>("moved");
    Row("both", 1, "B, C, A", 2, "A, B, C | [B, C, A]", 2);
    Row("the first", 1, "B, C, A", -1, "A, B, C | [B, C, A]", 2);
    Row("the last", -1, "B, C, A", 2, "A, B, C | [B, C, A]", 2);
    Row("none", -1, "B, C, A", -1, "A, B, C | [B, C, A]", -1);
    Row("two", 0, "B, C, A", 2, "A, B, C | B, A, C | [B, C, A]", 2);
    Row("back", 1, "A, B, C", 0, "[A, B, C]", -1);
    Row("back by the other", 1, "A, B, C", 1, "A, B, C | B, A, C | [A, B, C]", 1);
}

void ListHistoryTest::MovesThatAreToldAreJoinedByTheirEntry()
{
    QFETCH(int, movedFirst);
    QFETCH(QString, last);
    QFETCH(int, movedLast);
    QFETCH(int, moved);
    ListHistory history;
    history.RecordJoined(State("A, B, C"), QDateTime());
    ListState state = State("B, A, C");
    state.moved = movedFirst;
    history.RecordJoined(state, QDateTime());
    state = State(last);
    state.moved = movedLast;
    history.RecordJoined(state, QDateTime());
    QTEST(Told(history), "told");
    QCOMPARE(history.States().last().moved, moved);
}

void ListHistoryTest::MoveAfterAnUndoIsNotJoined()
{
    ListHistory history;
    const QStringList lists = QStringList() << "A, B, C"
                                            << "A, C, B";
    for (int i = 0; i < lists.size(); ++i) {
        history.RecordJoined(State(lists.at(i)), QDateTime());
    }
    Undo(&history, Time(1));
    history.RecordJoined(State("C, A, B"), QDateTime());
    QCOMPARE(Told(history), QString("(A, B, C) | (A, C, B) | A, B, C | [C, A, B]"));
    // Nor is one after a list that was gone back to.
    ListState back = State("A, C, B");
    back.backTo = Time(1);
    history.Record(back);
    history.RecordJoined(State("A, B, C"), QDateTime());
    QCOMPARE(history.States().size(), 6);
}

void ListHistoryTest::JoinedMovesHaveTheTimeOfTheLast()
{
    ListHistory history;
    for (int i = 0; i < 3; ++i) {
        history.RecordJoined(State(Moved(5, 5, i), Time(1, 9, 0, i)), QDateTime());
    }
    QCOMPARE(history.States().last().time, Time(1, 9, 0, 2));
}

void ListHistoryTest::OldestOfTooManyGoes()
{
    ListHistory history;
    for (int i = 1; i <= 53; ++i) {
        history.Record(State(QString::number(i)));
    }
    QCOMPARE(history.States().size(), 50);
    QCOMPARE(AsText(history.States().first().entries), QString("4"));
    QCOMPARE(AsText(history.States().last().entries), QString("53"));
    QCOMPARE(history.Position(), 49);
}

void ListHistoryTest::LastListOfEachOfFourteenDaysIsKept()
{
    ListHistory history;
    for (int day = 1; day <= 16; ++day) {
        history.Record(State(QString("Morning %1").arg(day), Time(day, 8)));
        history.Record(State(QString("Evening %1").arg(day), Time(day, 20)));
    }
    for (int i = 1; i <= 60; ++i) {
        history.Record(State(QString::number(i), Time(16, 21)));
    }
    // The latest of the days is among the last fifty.
    QStringList kept;
    for (int i = 0; i < 13; ++i) {
        kept.append(AsText(history.States().at(i).entries));
    }
    QStringList evenings;
    for (int day = 3; day <= 15; ++day) {
        evenings.append(QString("Evening %1").arg(day));
    }
    QCOMPARE(kept, evenings);
    QCOMPARE(history.States().size(), 63);
    QCOMPARE(history.Position(), 62);
    // Undo reaches them too.
    history.GoTo(13, Time(17));
    QCOMPARE(history.UndoPlace(), 12);
}

void ListHistoryTest::ClockThatWasWrongLosesNoDay_data()
{
    QTest::addColumn<QDateTime>("wrong");
    Row("years ahead", QDateTime::fromString("2044-01-01T09:00:00Z", Qt::ISODate));
    Row("years behind", QDateTime::fromString("1970-01-01T00:00:00Z", Qt::ISODate));
}

void ListHistoryTest::ClockThatWasWrongLosesNoDay()
{
    QFETCH(QDateTime, wrong);
    ListHistory history;
    history.Record(State("Yesterday", Time(1)));
    for (int i = 1; i <= 60; ++i) {
        history.Record(State(QString::number(i), wrong));
    }
    QCOMPARE(AsText(history.States().first().entries), QString("Yesterday"));
    for (int i = 1; i <= 60; ++i) {
        history.Record(State(QString("Today %1").arg(i), Time(2)));
    }
    QCOMPARE(AsText(history.States().at(0).entries), QString("Yesterday"));
    QCOMPARE(AsText(history.States().at(1).entries), QString("60"));
}

void ListHistoryTest::DaysAreThoseOfTheLocalTime()
{
    // Nine hours ahead of UTC.
    qputenv("TZ", "JST-9");
    tzset();
    ListHistory history;
    history.Record(State("Before midnight", Time(1, 14, 59)));
    history.Record(State("After midnight", Time(1, 15, 1)));
    for (int i = 1; i <= 60; ++i) {
        history.Record(State(QString::number(i), Time(1, 16)));
    }
    qputenv("TZ", "UTC");
    tzset();
    QCOMPARE(AsText(history.States().at(0).entries), QString("Before midnight"));
    QCOMPARE(AsText(history.States().at(1).entries), QString("11"));
}

void ListHistoryTest::PlacesThatAreNoneAreIgnored_data()
{
    QTest::addColumn<int>("place");
    Row("before the first", -1);
    Row("behind the last", 4);
    Row("passed by", 1);
}

void ListHistoryTest::PlacesThatAreNoneAreIgnored()
{
    QFETCH(int, place);
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B");
    Undo(&history);
    history.Record(State("C"));
    history.GoTo(place, Time(2));
    QCOMPARE(Told(history), QString("(A) | (B) | A | [C]"));
    history.SetTarget(place);
    QCOMPARE(history.Target(), -1);
}

void ListHistoryTest::StateIsFoundAgain()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "A");
    QCOMPARE(history.Find(2, State("A")), 2);
    QCOMPARE(history.Find(0, State("A")), 0);
    QCOMPARE(history.Find(2, State("B")), 1);
    QCOMPARE(history.Find(7, State("B")), 1);
    QCOMPARE(history.Find(1, State("C")), -1);
    QCOMPARE(history.Find(1, State("B", Time(1, 9, 0, 1))), -1);
    // Also when it has come to be passed by meanwhile.
    history.GoTo(0, Time(2));
    history.Record(State("C"));
    QCOMPARE(history.Find(1, State("B")), 1);
}

void ListHistoryTest::TargetLastsUntilItIsReached()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C"
                                                  << "D");
    QCOMPARE(history.Target(), -1);
    history.SetTarget(4);
    QCOMPARE(history.Target(), -1);
    history.SetTarget(3);
    QVERIFY(history.Shorten());
    QCOMPARE(history.Target(), 1);
    history.GoTo(1, Time(2));
    QCOMPARE(history.Target(), -1);
    history.SetTarget(0);
    QVERIFY(history.Shorten());
    QCOMPARE(history.Target(), -1);
    history.SetTarget(0);
    history.Record(State("E"));
    QCOMPARE(history.Target(), -1);
}

void ListHistoryTest::ShorteningTakesTheOlderHalf()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C"
                                                  << "D");
    QVERIFY(history.Shorten());
    QCOMPARE(Told(history), QString("C | [D]"));
}

void ListHistoryTest::ShorteningSparesTheStateInForceAndThoseUndone()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C");
    history.GoTo(1, Time(2));
    QVERIFY(history.Shorten());
    QCOMPARE(Told(history), QString("[B] | C"));
    QVERIFY(!history.Shorten());
}

QTEST_GUILESS_MAIN(ListHistoryTest)
#include "tst_listhistory.moc"
