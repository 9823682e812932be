#include "Lists.h"

#include <ListHistory.h>

#include <QtTest>

namespace
{

ListState State(const QString &entries)
{
    ListState state;
    state.time = QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC);
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

QStringList StatesOf(const ListHistory &history)
{
    QStringList texts;
    for (int i = 0; i < history.States().size(); ++i) {
        texts.append(AsText(history.States().at(i).entries));
    }
    return texts;
}

} // namespace

class ListHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void EmptyHistoryOffersNothing();
    void NewestStateIsInForce();
    void FirstStateCannotBeUndone();
    void GoingBackKeepsWhatWasUndone();
    void NewStateClearsWhatWasUndone();
    void OldestOfTooManyGoes();
    void PlacesThatAreNoneAreIgnored_data();
    void PlacesThatAreNoneAreIgnored();
    void StateIsFoundAgain();
    void TargetLastsUntilItIsReached();
    void ShorteningTakesTheOlderHalf();
    void ShorteningSparesTheStateInForceAndThoseUndone();
};

void ListHistoryTest::EmptyHistoryOffersNothing()
{
    const ListHistory history;
    QVERIFY(history.IsEmpty());
    QVERIFY(!history.CanUndo());
    QVERIFY(!history.CanRedo());
    QCOMPARE(history.Position(), -1);
    QVERIFY(history.Entries().isEmpty());
}

void ListHistoryTest::NewestStateIsInForce()
{
    const ListHistory history = HistoryOf(QStringList() << "A"
                                                        << "A, B");
    QCOMPARE(history.Position(), 1);
    QCOMPARE(AsText(history.Entries()), QString("A, B"));
    QVERIFY(history.CanUndo());
    QVERIFY(!history.CanRedo());
}

void ListHistoryTest::FirstStateCannotBeUndone()
{
    QVERIFY(!HistoryOf(QStringList("A")).CanUndo());
}

void ListHistoryTest::GoingBackKeepsWhatWasUndone()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C");
    history.GoTo(0);
    QCOMPARE(AsText(history.Entries()), QString("A"));
    QVERIFY(!history.CanUndo());
    QVERIFY(history.CanRedo());
    QCOMPARE(StatesOf(history), QStringList() << "A"
                                              << "B"
                                              << "C");
    history.GoTo(2);
    QVERIFY(!history.CanRedo());
}

void ListHistoryTest::NewStateClearsWhatWasUndone()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C");
    history.GoTo(1);
    history.Record(State("D"));
    QCOMPARE(StatesOf(history), QStringList() << "A"
                                              << "B"
                                              << "D");
    QCOMPARE(history.Position(), 2);
    QVERIFY(!history.CanRedo());
}

void ListHistoryTest::OldestOfTooManyGoes()
{
    ListHistory history;
    for (int i = 1; i <= 53; ++i) {
        history.Record(State(QString::number(i)));
    }
    QCOMPARE(history.States().size(), 50);
    QCOMPARE(StatesOf(history).first(), QString("4"));
    QCOMPARE(StatesOf(history).last(), QString("53"));
    QCOMPARE(history.Position(), 49);
}

void ListHistoryTest::PlacesThatAreNoneAreIgnored_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 2;
}

void ListHistoryTest::PlacesThatAreNoneAreIgnored()
{
    QFETCH(int, place);
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B");
    history.GoTo(place);
    QCOMPARE(history.Position(), 1);
}

void ListHistoryTest::StateIsFoundAgain()
{
    const ListHistory history = HistoryOf(QStringList() << "A"
                                                        << "B"
                                                        << "A");
    QCOMPARE(history.Find(2, State("A")), 2);
    QCOMPARE(history.Find(0, State("A")), 0);
    QCOMPARE(history.Find(2, State("B")), 1);
    QCOMPARE(history.Find(7, State("B")), 1);
    QCOMPARE(history.Find(1, State("C")), -1);
    ListState later = State("B");
    later.time = later.time.addSecs(1);
    QCOMPARE(history.Find(1, later), -1);
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
    history.GoTo(1);
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
    QCOMPARE(StatesOf(history), QStringList() << "C"
                                              << "D");
    QCOMPARE(AsText(history.Entries()), QString("D"));
}

void ListHistoryTest::ShorteningSparesTheStateInForceAndThoseUndone()
{
    ListHistory history = HistoryOf(QStringList() << "A"
                                                  << "B"
                                                  << "C");
    history.GoTo(1);
    QVERIFY(history.Shorten());
    QCOMPARE(StatesOf(history), QStringList() << "B"
                                              << "C");
    QCOMPARE(AsText(history.Entries()), QString("B"));
    QVERIFY(!history.Shorten());
}

QTEST_GUILESS_MAIN(ListHistoryTest)
#include "tst_listhistory.moc"
