#include <PriorityFit.h>
#include <Row.h>

#include <QVector>
#include <QtTest>

#include <algorithm>
#include <numeric>
#include <random>

namespace
{

/** "900", "900!" for one that can't be changed, "?" for one without one priority. */
QList<PriorityFit::Place> Places(const QString &text)
{
    QList<PriorityFit::Place> places;
    const QStringList all = text.isEmpty() ? QStringList() : text.split(' ');
    for (const QString &one : all) {
        PriorityFit::Place place;
        place.isFixed = one.endsWith('!');
        place.isMixed = one == "?";
        place.priority = QString(one).remove('!').toInt();
        places.append(place);
    }
    return places;
}

QString Text(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return texts.join(' ');
}

int Writes(const QList<PriorityFit::Place> &places, const PriorityFit::Result &result)
{
    int writes = 0;
    for (int i = 0; i < places.size(); ++i) {
        writes += places.at(i).isMixed || places.at(i).priority != result.priorities.at(i) ? 1 : 0;
    }
    return writes;
}

/** Whether those whose bits are set can stay: each of the others takes the greatest priority that is left. */
bool CanStay(unsigned int staying, const QList<PriorityFit::Place> &places, int floor)
{
    int above = PriorityFit::highest + 1;
    for (int i = 0; i < places.size(); ++i) {
        const bool stays = (staying >> i & 1U) != 0;
        if (stays && (places.at(i).isMixed || places.at(i).priority >= above)) {
            return false;
        }
        above = stays ? places.at(i).priority : above - 1;
    }
    return above > floor;
}

int FewestWrites(const QList<PriorityFit::Place> &places, int floor)
{
    int most = 0;
    for (unsigned int staying = 0; staying < 1U << places.size(); ++staying) {
        if (CanStay(staying, places, floor)) {
            most = std::max(most, static_cast<int>(qPopulationCount(staying)));
        }
    }
    return static_cast<int>(places.size()) - most;
}

bool Falls(const QList<int> &priorities)
{
    return std::adjacent_find(priorities.begin(), priorities.end(),
                              [](int left, int right) { return left <= right; }) == priorities.end();
}

} // namespace

/** Which priorities give an order with the fewest changes. */
class tst_priorityfit : public QObject
{
    Q_OBJECT

private slots:
    void OrderIsFitted_data();
    void OrderIsFitted();
    void ContradictingFixedPlacesAreTold_data();
    void ContradictingFixedPlacesAreTold();
    void ChangesAreAsFewAsPossible();
    void MovesCostFewChanges();
    void MovesToTheTopCostFewChanges();
    void MoreThanTheRangeHasRoomForShareTheLowest();
    void WhatHasNoRoomAboveTheFloorGoesBelow();
};

void tst_priorityfit::OrderIsFitted_data()
{
    QTest::addColumn<QString>("there");
    QTest::addColumn<int>("floor");
    QTest::addColumn<QString>("fitted");

    Row("no place", "", 0, "");
    Row("first use spreads", "0 0 0", 0, "750 500 250");
    Row("the whole range", "0! 0", PriorityFit::lowest - 1, "0 -111");
    Row("what falls stays", "900 20 3", 0, "900 20 3");
    Row("equal ones do not stay both", "20 20", 0, "20 18");
    Row("a gap takes one", "900 0 700", 0, "900 800 700");
    Row("no gap moves a neighbour", "900 0 899 10", 0, "900 604 307 10");
    Row("new gaps where it is close", "999 0 998 996 500", 0, "999 875 750 625 500");
    Row("the top has no room", "0 999 500", 0, "600 550 500");
    Row("below the floor does not stay", "900 -5", 0, "900 800");
    Row("several priorities do not stay", "900 ? 700", 0, "900 800 700");
    Row("room is kept at the top", "0 600 500", 0, "644 600 500");
    Row("room is kept at the bottom", "600 500 0", 0, "600 500 445");
    Row("around a fixed one", "0 500! 0", 0, "555 500 445");
    Row("before a fixed one", "10 9 8 500!", 0, "636 590 545 500");
    Row("fixed ones at the end need not be above the floor", "900 0! -5!", 0, "900 0 -5");
}

void tst_priorityfit::OrderIsFitted()
{
    QFETCH(QString, there);
    QFETCH(int, floor);
    const PriorityFit::Result result = PriorityFit::Fit(Places(there), floor);
    QTEST(Text(result.priorities), "fitted");
    QCOMPARE(result.contradicting, QList<int>());
}

void tst_priorityfit::ContradictingFixedPlacesAreTold_data()
{
    QTest::addColumn<QString>("there");
    QTest::addColumn<QString>("fitted");
    QTest::addColumn<QString>("contradicting");

    Row("two in the wrong order", "5! 6! 0", "5 6 2", "1");
    Row("no room between two", "6! 0 5!", "6 1 5", "2");
    Row("below the floor", "900 -5! 100", "900 -5 100", "1");
    Row("as few as possible", "1! 90! 80! 70!", "1 90 80 70", "0");
}

void tst_priorityfit::ContradictingFixedPlacesAreTold()
{
    QFETCH(QString, there);
    const PriorityFit::Result result = PriorityFit::Fit(Places(there), 0);
    QTEST(Text(result.priorities), "fitted");
    QTEST(Text(result.contradicting), "contradicting");
}

void tst_priorityfit::ChangesAreAsFewAsPossible()
{
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        // Close to the end of the range, where there is little room.
        const int floor = PriorityFit::highest - 8 - static_cast<int>(random() % 6);
        QList<PriorityFit::Place> places;
        for (unsigned int i = random() % 8; i > 0; --i) {
            PriorityFit::Place place;
            place.priority = PriorityFit::highest + 2 - static_cast<int>(random() % 16);
            place.isMixed = random() % 8 == 0;
            places.append(place);
        }
        const PriorityFit::Result result = PriorityFit::Fit(places, floor);
        QVERIFY2(Falls(result.priorities), qPrintable(Text(result.priorities)));
        QVERIFY(places.isEmpty() || result.priorities.last() > floor);
        const int fewest = FewestWrites(places, floor);
        const int writes = Writes(places, result);
        // Where more than one has to change, neighbours may make room for the next move.
        QVERIFY2(fewest < 2 ? writes == fewest : fewest > 3 || writes <= 3,
                 qPrintable(Text(result.priorities)));
    }
}

namespace
{

/** Moves entries of a list that has been spread, and counts the changes of each move. */
template <typename Move> QList<int> CostsOfMoves(int size, int moves, Move move)
{
    QList<PriorityFit::Place> places;
    for (int i = 0; i < size; ++i) {
        places.append(PriorityFit::Place());
    }
    QList<int> costs;
    for (int round = 0; round <= moves; ++round) {
        const PriorityFit::Result result = PriorityFit::Fit(places, 0);
        costs.append(Writes(places, result));
        for (int i = 0; i < size; ++i) {
            places[i].priority = result.priorities.at(i);
        }
        move(&places);
    }
    return costs.mid(1);
}

} // namespace

void tst_priorityfit::MovesCostFewChanges()
{
    std::mt19937 random(2);
    const QList<int> costs = CostsOfMoves(20, 1000, [&random](QList<PriorityFit::Place> *places) {
        places->move(static_cast<int>(random() % 20), static_cast<int>(random() % 20));
    });
    const auto single = std::count_if(costs.begin(), costs.end(), [](int cost) { return cost <= 1; });
    const auto few = std::count_if(costs.begin(), costs.end(), [](int cost) { return cost <= 3; });
    QVERIFY2(single >= 900, qPrintable(QString::number(single)));
    QVERIFY2(few >= 995, qPrintable(QString::number(few)));
}

void tst_priorityfit::MovesToTheTopCostFewChanges()
{
    const QList<int> costs =
        CostsOfMoves(20, 1000, [](QList<PriorityFit::Place> *places) { places->move(19, 0); });
    QVERIFY(std::all_of(costs.begin(), costs.begin() + 10, [](int cost) { return cost == 1; }));
    const int all = std::accumulate(costs.begin(), costs.end(), 0);
    QVERIFY2(all <= 2500, qPrintable(QString::number(all)));
}

void tst_priorityfit::MoreThanTheRangeHasRoomForShareTheLowest()
{
    QList<PriorityFit::Place> places;
    for (int i = 0; i < 2010; ++i) {
        places.append(PriorityFit::Place());
    }
    const PriorityFit::Result result = PriorityFit::Fit(places, PriorityFit::lowest - 1);
    QCOMPARE(result.priorities.size(), 2010);
    QVERIFY(Falls(result.priorities.mid(0, 1999)));
    QCOMPARE(result.priorities.at(1998), PriorityFit::lowest);
    QCOMPARE(result.priorities.count(PriorityFit::lowest), 12);
}

void tst_priorityfit::WhatHasNoRoomAboveTheFloorGoesBelow()
{
    const PriorityFit::Result result = PriorityFit::Fit(Places("0 0 0 0"), PriorityFit::highest - 2);
    QCOMPARE(Text(result.priorities), QString("999 998 0 -111"));
}

QTEST_APPLESS_MAIN(tst_priorityfit)
#include "tst_priorityfit.moc"
