#include "Lists.h"

#include <ListEdit.h>
#include <Row.h>

#include <QtTest>

class ListEditTest : public QObject
{
    Q_OBJECT

private slots:
    void EntriesAreMoved_data();
    void EntriesAreMoved();
    void EqualNeighboursAreInPlace();
    void EntriesGetToAPlace_data();
    void EntriesGetToAPlace();
    void EntriesAreRemoved();
    void EntriesAreAdded_data();
    void EntriesAreAdded();
    void PlaceTellsNameAndType();
    void EqualEntriesAreToldApart();
};

void ListEditTest::EntriesAreMoved_data()
{
    QTest::addColumn<QList<int>>("places");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("moved");
    const auto add = [](const char *name, const QList<int> &places, int before, const char *moved) {
        Row(name, places, before, QString(moved));
    };
    add("to the top", {3}, 0, "D, A, B, C");
    add("to the end", {0}, 4, "B, C, D, A");
    add("up", {2}, 1, "A, C, B, D");
    add("down", {1}, 3, "A, C, B, D");
    add("before itself", {1}, 1, "A, B, C, D");
    add("behind itself", {1}, 2, "A, B, C, D");
    add("several come together", {0, 3}, 2, "B, A, D, C");
    add("beyond the end", {1}, 9, "A, C, D, B");
    add("before the top", {1}, -1, "B, A, C, D");
    add("all", {0, 1, 2, 3}, 2, "A, B, C, D");
}

void ListEditTest::EntriesAreMoved()
{
    QFETCH(QList<int>, places);
    QFETCH(int, before);
    QFETCH(QString, moved);
    const QList<PriorityList> list = ListEdit::Moved(Listed("A, B, C, D"), places, before);
    QCOMPARE(AsText(list), moved);
    QCOMPARE(ListEdit::IsInPlace(Listed("A, B, C, D"), places, before), moved == "A, B, C, D");
    const QString first = QString("ABCD").at(places.first());
    QCOMPARE(list.at(ListEdit::PlaceOfMoved(places, before, 4)).name, first);
}

void ListEditTest::EqualNeighboursAreInPlace()
{
    QVERIFY(ListEdit::IsInPlace(Listed("A, A, B"), {0}, 2));
    QVERIFY(!ListEdit::IsInPlace(Listed("A, A, B"), {0}, 3));
}

void ListEditTest::EntriesGetToAPlace_data()
{
    QTest::addColumn<QList<int>>("places");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("moved");
    Row("up", QList<int>{3}, 1, "A, D, B, C");
    Row("down", QList<int>{0}, 2, "B, C, A, D");
    Row("to the top", QList<int>{1}, 0, "B, A, C, D");
    Row("to the end", QList<int>{0}, 3, "B, C, D, A");
    Row("where it stands", QList<int>{2}, 2, "A, B, C, D");
    Row("several", QList<int>{0, 3}, 1, "B, A, D, C");
    Row("beyond the end", QList<int>{0, 1}, 9, "C, D, A, B");
}

void ListEditTest::EntriesGetToAPlace()
{
    QFETCH(QList<int>, places);
    QFETCH(int, place);
    const int before = ListEdit::BeforeForPlace(places, place, 4);
    QTEST(AsText(ListEdit::Moved(Listed("A, B, C, D"), places, before)), "moved");
}

void ListEditTest::EntriesAreRemoved()
{
    QCOMPARE(AsText(ListEdit::Removed(Listed("A, B, A, C"), {0, 3})), QString("B, A"));
}

void ListEditTest::EntriesAreAdded_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("added");
    const auto add = [](const char *name, const char *entries, int before, const char *added) {
        Row(name, QString(entries), before, QString(added));
    };
    add("in between", "C, D", 1, "A, C, D, B");
    add("beyond the end", "C", 9, "A, B, C");
    add("listed already", "B, C", 0, "C, A, B");
    add("twice", "C, C", 2, "A, B, C");
    add("of another type", "B/2", 2, "A, B, B/2");
}

void ListEditTest::EntriesAreAdded()
{
    QFETCH(QString, entries);
    QFETCH(int, before);
    QFETCH(QString, added);
    QCOMPARE(AsText(ListEdit::Added(Listed("A, B"), Listed(entries), before)), added);
}

void ListEditTest::PlaceTellsNameAndType()
{
    const QList<PriorityList> list = Listed("A, B/2, B, B");
    QCOMPARE(ListEdit::PlaceOf(list.at(2), list), 2);
    QCOMPARE(ListEdit::PlaceOf(Listed("A/2").first(), list), -1);
}

void ListEditTest::EqualEntriesAreToldApart()
{
    const QList<PriorityList> list = Listed("A, B, A");
    const QList<ListedEntry> entries = ListEdit::Numbered(list);
    QCOMPARE(ListEdit::PlaceOf(entries.at(0), list), 0);
    QCOMPARE(ListEdit::PlaceOf(entries.at(2), list), 2);
    QCOMPARE(ListEdit::PlacesOf({entries.at(2), entries.at(0)}, list), (QList<int>{0, 2}));
    QCOMPARE(ListEdit::PlacesOf({entries.at(2)}, Listed("A, B")), QList<int>());
}

QTEST_GUILESS_MAIN(ListEditTest)
#include "tst_listedit.moc"
