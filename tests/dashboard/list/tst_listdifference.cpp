#include "Lists.h"

#include <ListDifference.h>
#include <Row.h>

#include <QtTest>

#include <algorithm>

namespace
{

/** "+2" is added at place 2, "-0" removed from there, "3>1 up 2" moved; "first" and "last" as they are set.
 */
QString AsText(const ListDifference &difference)
{
    QStringList parts;
    for (int i = 0; i < difference.added.size(); ++i) {
        parts.append(QString("+%1").arg(difference.added.at(i)));
    }
    for (int i = 0; i < difference.removed.size(); ++i) {
        parts.append(QString("-%1").arg(difference.removed.at(i)));
    }
    const char *const directions[] = {"up", "down", "across"};
    for (int i = 0; i < difference.moved.size(); ++i) {
        const ListDifference::Move &move = difference.moved.at(i);
        parts.append(QString("%1>%2 %3 %4%5%6")
                         .arg(move.from)
                         .arg(move.to)
                         .arg(directions[move.direction])
                         .arg(move.distance)
                         .arg(move.isFirst ? " first" : "", move.isLast ? " last" : ""));
    }
    return parts.join(", ");
}

/** The most numbers that can stay where they are, found by trying all choices. */
int MostThatStay(const QList<int> &order)
{
    int most = 0;
    for (unsigned int choice = 0; choice < (1U << order.size()); ++choice) {
        int count = 0;
        int last = -1;
        bool rises = true;
        for (int i = 0; i < order.size(); ++i) {
            if (choice & (1U << i)) {
                rises = rises && order.at(i) > last;
                last = order.at(i);
                ++count;
            }
        }
        most = rises ? std::max(most, count) : most;
    }
    return most;
}

} // namespace

class ListDifferenceTest : public QObject
{
    Q_OBJECT

private slots:
    void ChangesAreFound_data();
    void ChangesAreFound();
    void FewestEntriesMove();
    void EveryEntryIsAccountedFor();
    void OnlyMovedNamesWhatCanHaveBeenMovedAlone_data();
    void OnlyMovedNamesWhatCanHaveBeenMovedAlone();
};

void ListDifferenceTest::ChangesAreFound_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("difference");
    Row("none", "A, B", "A, B", "");
    Row("both empty", "", "", "");
    Row("first entries", "", "A, B", "+0, +1");
    Row("all gone", "A, B", "", "-0, -1");
    Row("one up", "A, B, C", "A, C, B", "2>1 up 1");
    Row("to the top", "A, B, C", "C, A, B", "2>0 up 2 first");
    Row("to the end", "A, B, C", "B, C, A", "0>2 down 2 last");
    Row("down by two", "A, B, C, D, E", "A, C, D, B, E", "1>3 down 2");
    Row("added in the middle moves nothing", "A, B", "A, X, B", "+1");
    Row("removed from the middle moves nothing", "A, X, B", "A, B", "-1");
    Row("replaced", "A, B", "A, X", "+1, -1");
    Row("places count all entries, distances those of both lists", "A, X, B, C", "C, Y, A, B",
        "+1, -1, 3>0 up 2 first");
    Row("turned round: the one in the middle is only passed", "A, B, C", "C, B, A",
        "2>0 up 2 first, 1>1 across 0");
    Row("case makes another entry", "home", "Home", "+0, -0");
    Row("type makes another entry", "A", "A/2", "+0, -0");
    Row("one of two same entries gone", "A, B, A", "A, B", "-2");
    Row("the same entry once more", "A, B", "A, B, A", "+2");
}

void ListDifferenceTest::ChangesAreFound()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, difference);
    QCOMPARE(AsText(ListDifference::Between(Listed(before), Listed(after))), difference);
}

void ListDifferenceTest::FewestEntriesMove()
{
    QList<int> order;
    QList<PriorityList> before;
    for (int i = 0; i < 6; ++i) {
        order.append(i);
        before += Listed(QString::number(i));
    }
    int orders = 0;
    do {
        QList<PriorityList> after;
        for (int i = 0; i < order.size(); ++i) {
            after.append(before.at(order.at(i)));
        }
        const ListDifference difference = ListDifference::Between(before, after);
        QCOMPARE(difference.moved.size(), order.size() - MostThatStay(order));
        QVERIFY(difference.added.isEmpty() && difference.removed.isEmpty());
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()));
    QCOMPARE(orders, 720);
}

void ListDifferenceTest::EveryEntryIsAccountedFor()
{
    unsigned int seed = 1;
    const auto random = [&seed](int below) {
        seed = seed * 1103515245U + 12345U;
        return static_cast<int>((seed >> 16) % static_cast<unsigned int>(below));
    };
    for (int round = 0; round < 500; ++round) {
        QList<PriorityList> before;
        QList<PriorityList> after;
        for (int i = random(12); i > 0; --i) {
            before += Listed(QString::number(random(8)));
        }
        for (int i = random(12); i > 0; --i) {
            after += Listed(QString::number(random(8)));
        }
        const ListDifference difference = ListDifference::Between(before, after);
        QCOMPARE(before.size() - difference.removed.size(), after.size() - difference.added.size());

        // Doing what it says gives the list after.
        QList<PriorityList> rest = before;
        QList<int> gone = difference.removed;
        for (int i = 0; i < difference.moved.size(); ++i) {
            gone.append(difference.moved.at(i).from);
        }
        std::sort(gone.begin(), gone.end());
        for (int i = gone.size() - 1; i >= 0; --i) {
            rest.removeAt(gone.at(i));
        }
        QList<int> come = difference.added;
        for (int i = 0; i < difference.moved.size(); ++i) {
            const ListDifference::Move &move = difference.moved.at(i);
            QCOMPARE(before.at(move.from).name, after.at(move.to).name);
            come.append(move.to);
        }
        std::sort(come.begin(), come.end());
        for (int i = 0; i < come.size(); ++i) {
            rest.insert(come.at(i), after.at(come.at(i)));
        }
        QCOMPARE(AsText(rest), AsText(after));
    }
}

void ListDifferenceTest::OnlyMovedNamesWhatCanHaveBeenMovedAlone_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("moved");
    Row("up", "A, B, C, D", "C, A, B, D", "C");
    Row("down", "A, B, C, D", "A, C, D, B", "B");
    Row("neighbours", "A, B, C", "A, C, B", "C, B");
    Row("two", "A, B, C, D", "B, A, D, C", "");
    Row("turned round", "A, B, C", "C, B, A", "");
    Row("nothing", "A, B", "A, B", "");
    Row("one more", "A, B", "B, A, C", "");
    Row("another in place", "A, B, C", "B, A, D", "");
    Row("of a pair of the same name", "x, a, x, b", "x, a, b, x", "b, x");
    Row("none at all", "", "", "");
}

void ListDifferenceTest::OnlyMovedNamesWhatCanHaveBeenMovedAlone()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, moved);
    QCOMPARE(AsText(ListDifference::OnlyMoved(Listed(before), Listed(after))), moved);
}

QTEST_GUILESS_MAIN(ListDifferenceTest)
#include "tst_listdifference.moc"
