#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QFile>
#include <QScopedPointer>
#include <QtTest>

class tst_ListOperations : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void findIndex();
    void deleteOneOccurrence();
    void deleteListOfEntries();
    void deleteListTakesTheFirstOccurrences();
    void deletionIsTraced();
    void entriesDifferingInCaseOrTypeAreDifferent();
    void moves_data();
    void moves();
    void movesActOnTheFirstOccurrence();
    void movesDoNotCreateTheFile();
    void movesDoNotWriteAfterAReadError();
    void movesWriteEvenWhenNothingMoves_data();
    void movesWriteEvenWhenNothingMoves();
    void addTop();
    void addTopCreatesTheFile();
    void addTopAfterAReadErrorKeepsWhatWasRead();
    void addTail();
    void addTailAfterAReadErrorKeepsWhatWasRead();
    void addList();
    void addListCreatesTheFile();
    void addListAfterAReadErrorKeepsWhatWasRead();
    void addListOfNothing();
    void callersListIsReplacedByWhatWasWritten();
    void callersListMayHoldTheEntriesGiven();
    void operationLines();

private:
    void Store(const QString &names);
    QString Stored();

    QScopedPointer<TemporaryDirectory> m_directory;
    PriorityXMLParser *m_store;
};

void tst_ListOperations::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_store = PriorityXMLParser::GetInstance();
}

void tst_ListOperations::cleanup()
{
    m_directory.reset();
}

/** Stores Wi-Fi entries with the names given, one character each. */
void tst_ListOperations::Store(const QString &names)
{
    QList<PriorityList> list;
    for (int i = 0; i < names.size(); ++i) {
        list << Entry(names.mid(i, 1));
    }
    m_store->SavePriorityList(list);
}

static QString Names(const QList<PriorityList> &list)
{
    QString names;
    for (int i = 0; i < list.size(); ++i) {
        names += list.at(i).name;
    }
    return names;
}

QString tst_ListOperations::Stored()
{
    QList<PriorityList> list;
    return m_store->GetPriorityList(&list) == 0 ? Names(list) : QString("unreadable");
}

void tst_ListOperations::findIndex()
{
    QList<PriorityList> list;
    PriorityList a = Entry("A");
    QCOMPARE(m_store->FindIndex(list, a), -1);
    list << Entry("B") << Entry("A") << Entry("A");
    QCOMPARE(m_store->FindIndex(list, a), 1);
    PriorityList other = Entry("A", "0");
    QCOMPARE(m_store->FindIndex(list, other), -1);
    PriorityList blank = Entry("A ");
    QCOMPARE(m_store->FindIndex(list, blank), -1);
}

void tst_ListOperations::deleteOneOccurrence()
{
    QList<PriorityList> list;
    list << Entry("A") << Entry("B") << Entry("A");
    PriorityList a = Entry("A");
    m_store->DeleteIfExist(list, a);
    QCOMPARE(Names(list), QString("BA"));
    PriorityList x = Entry("X");
    m_store->DeleteIfExist(list, x);
    QCOMPARE(Names(list), QString("BA"));
}

void tst_ListOperations::deleteListOfEntries()
{
    QList<PriorityList> list;
    list << Entry("A") << Entry("B") << Entry("A") << Entry("C");
    QList<PriorityList> remove;
    remove << Entry("A") << Entry("A") << Entry("X") << Entry("C");
    m_store->DeleteIfExist(list, remove);
    QCOMPARE(Names(list), QString("B"));
}

void tst_ListOperations::deleteListTakesTheFirstOccurrences()
{
    QList<PriorityList> list;
    list << Entry("A") << Entry("B") << Entry("A") << Entry("C") << Entry("B") << Entry("A");
    QList<PriorityList> remove;
    remove << Entry("B") << Entry("A") << Entry("A");
    m_store->DeleteIfExist(list, remove);
    QCOMPARE(Names(list), QString("CBA"));
}

void tst_ListOperations::deletionIsTraced()
{
    QList<PriorityList> list;
    QList<PriorityList> remove;
    remove << Entry("A");
    TraceCapture trace;
    m_store->DeleteIfExist(list, remove);
    const QString source = "TIME: ../../src/PriorityPlugin/PriorityXMLParser.cpp: DeleteIfExist: ";
    QCOMPARE(trace.Normalised(), QStringList() << source + "Entered DELETE-LIST" << source + "Entered "
                                               << source + "Exit" << source + "Exit");
}

void tst_ListOperations::entriesDifferingInCaseOrTypeAreDifferent()
{
    QList<PriorityList> list;
    list << Entry("home", "1") << Entry("Home", "0");
    m_store->SavePriorityList(list);
    PriorityList home = Entry("Home", "1");
    m_store->AddTop(home, &list);
    QCOMPARE(AsTexts(list), QStringList() << "Home/1"
                                          << "home/1"
                                          << "Home/0");
}

void tst_ListOperations::moves_data()
{
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("stored");

    Row("up from the middle", true, "B", 0, "BAD");
    Row("up from the end", true, "D", 1, "ADB");
    Row("up from the top", true, "A", -1, "ABD");
    Row("up, not stored", true, "X", -2, "ABD");
    Row("down from the middle", false, "B", 2, "ADB");
    Row("down from the top", false, "A", 1, "BAD");
    Row("down from the end", false, "D", 3, "ABD");
    Row("down, not stored", false, "X", 0, "ABD");
}

void tst_ListOperations::moves()
{
    QFETCH(bool, up);
    QFETCH(QString, name);
    QFETCH(int, result);
    QFETCH(QString, stored);
    Store("ABD");
    PriorityList entry = Entry(name);
    QList<PriorityList> list;
    QCOMPARE(up ? m_store->MoveUp(entry, &list) : m_store->MoveDown(entry, &list), result);
    QCOMPARE(Names(list), stored);
    QCOMPARE(Stored(), stored);
}

void tst_ListOperations::movesActOnTheFirstOccurrence()
{
    Store("XAYA");
    PriorityList a = Entry("A");
    QCOMPARE(m_store->MoveUp(a, nullptr), 0);
    QCOMPARE(Stored(), QString("AXYA"));
    QCOMPARE(m_store->MoveDown(a, nullptr), 1);
    QCOMPARE(Stored(), QString("XAYA"));
}

void tst_ListOperations::movesDoNotCreateTheFile()
{
    PriorityList x = Entry("X");
    QList<PriorityList> list;
    list << Entry("stale");
    QCOMPARE(m_store->MoveUp(x, &list), -2);
    QVERIFY(list.isEmpty());
    QCOMPARE(m_store->MoveDown(x, nullptr), 0);
    QVERIFY(!QFile::exists(m_directory->FilePath("Priority.xml")));
}

void tst_ListOperations::movesDoNotWriteAfterAReadError()
{
    const QByteArray damaged = "<r><item name='A' type='1'/><item name='B' type='1'/>";
    m_directory->Write("Priority.xml", damaged);
    PriorityList b = Entry("B");
    QList<PriorityList> list;
    QCOMPARE(m_store->MoveUp(b, &list), -2);
    QCOMPARE(Names(list), QString("AB"));
    PriorityList a = Entry("A");
    QCOMPARE(m_store->MoveDown(a, &list), 0);
    QCOMPARE(m_directory->Read("Priority.xml"), damaged);
}

void tst_ListOperations::movesWriteEvenWhenNothingMoves_data()
{
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("name");
    Row("the first up", true, "A");
    Row("an absent one up", true, "X");
    Row("the last down", false, "A");
    Row("an absent one down", false, "X");
}

void tst_ListOperations::movesWriteEvenWhenNothingMoves()
{
    QFETCH(bool, up);
    QFETCH(QString, name);
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/></r>");
    PriorityList entry = Entry(name);
    if (up) {
        m_store->MoveUp(entry, nullptr);
    } else {
        m_store->MoveDown(entry, nullptr);
    }
    QVERIFY(m_directory->Read("Priority.xml").startsWith("<?xml"));
    QCOMPARE(Stored(), QString("A"));
}

void tst_ListOperations::addTop()
{
    Store("ABD");
    PriorityList d = Entry("D");
    QCOMPARE(m_store->AddTop(d, nullptr), 0);
    QCOMPARE(Stored(), QString("DAB"));
    PriorityList x = Entry("X");
    QCOMPARE(m_store->AddTop(x, nullptr), 0);
    QCOMPARE(Stored(), QString("XDAB"));
}

void tst_ListOperations::addTopCreatesTheFile()
{
    PriorityList x = Entry("X");
    QCOMPARE(m_store->AddTop(x, nullptr), 0);
    QCOMPARE(Stored(), QString("X"));
}

void tst_ListOperations::addTopAfterAReadErrorKeepsWhatWasRead()
{
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/><item name='B' type='1'/>");
    PriorityList b = Entry("B");
    QCOMPARE(m_store->AddTop(b, nullptr), 0);
    QCOMPARE(Stored(), QString("BAB"));
}

void tst_ListOperations::addTail()
{
    Store("ABD");
    PriorityList a = Entry("A");
    QCOMPARE(m_store->AddTail(a, nullptr), 2);
    QCOMPARE(Stored(), QString("BDA"));
    PriorityList x = Entry("X");
    QCOMPARE(m_store->AddTail(x, nullptr), 3);
    QCOMPARE(Stored(), QString("BDAX"));
}

void tst_ListOperations::addTailAfterAReadErrorKeepsWhatWasRead()
{
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/>");
    PriorityList a = Entry("A");
    QCOMPARE(m_store->AddTail(a, nullptr), 1);
    QCOMPARE(Stored(), QString("AA"));
}

void tst_ListOperations::addList()
{
    Store("ABD");
    QList<PriorityList> entries;
    entries << Entry("A");
    QList<PriorityList> list;
    QCOMPARE(m_store->AddList(entries, 0, &list), 2);
    QCOMPARE(Names(list), QString("BDA"));
    entries.clear();
    entries << Entry("X") << Entry("B");
    QCOMPARE(m_store->AddList(entries, 1, &list), 2);
    QCOMPARE(Stored(), QString("DAXB"));
}

void tst_ListOperations::addListCreatesTheFile()
{
    QList<PriorityList> entries;
    entries << Entry("X") << Entry("Y");
    QList<PriorityList> list;
    QCOMPARE(m_store->AddList(entries, 5, &list), 0);
    QCOMPARE(Stored(), QString("XY"));
}

void tst_ListOperations::addListAfterAReadErrorKeepsWhatWasRead()
{
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/>");
    QList<PriorityList> entries;
    entries << Entry("A") << Entry("B");
    QCOMPARE(m_store->AddList(entries, 0, nullptr), 0);
    QCOMPARE(Stored(), QString("AAB"));
}

void tst_ListOperations::addListOfNothing()
{
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/></r>");
    QList<PriorityList> entries;
    QCOMPARE(m_store->AddList(entries, 0, nullptr), -1);
    QVERIFY(m_directory->Read("Priority.xml").startsWith("<?xml"));
    QCOMPARE(Stored(), QString("A"));
}

void tst_ListOperations::callersListIsReplacedByWhatWasWritten()
{
    Store("AB");
    QList<PriorityList> list;
    list << Entry("stale");
    PriorityList x = Entry("X");
    m_store->AddTop(x, &list);
    QCOMPARE(Names(list), QString("XAB"));
    list << Entry("stale");
    m_store->AddTail(x, &list);
    QCOMPARE(Names(list), QString("ABX"));
    list << Entry("stale");
    m_store->MoveUp(x, &list);
    QCOMPARE(Names(list), QString("AXB"));
}

void tst_ListOperations::callersListMayHoldTheEntriesGiven()
{
    Store("ABC");
    QList<PriorityList> list;
    m_store->GetPriorityList(&list);
    QCOMPARE(m_store->MoveDown(list[0], &list), 1);
    QCOMPARE(Names(list), QString("BAC"));
    QCOMPARE(m_store->AddList(list, 0, &list), 0);
    QCOMPARE(Names(list), QString("BAC"));
}

void tst_ListOperations::operationLines()
{
    const QString source = "TIME : ../../src/PriorityPlugin/PriorityXMLParser.cpp: ";
    PriorityList entry = Entry("N", "2");
    TraceCapture trace;
    m_store->AddTop(entry, nullptr);
    QCOMPARE(trace.Normalised().at(0),
             QString("TIME: ../../src/PriorityPlugin/PriorityXMLParser.cpp: AddTop: Entered "));
    QCOMPARE(trace.Normalised().at(1), source + "AddTop, name:N,type:2");
    QCOMPARE(trace.Normalised().last(),
             QString("TIME: ../../src/PriorityPlugin/PriorityXMLParser.cpp: AddTop: Exit"));
    trace.Clear();
    m_store->AddTail(entry, nullptr);
    QCOMPARE(trace.Normalised().at(1), source + "AddTail: AddTail N,2");
    trace.Clear();
    m_store->MoveUp(entry, nullptr);
    QCOMPARE(trace.Normalised().at(1), source + "MoveUp: MoveUp N,2");
    trace.Clear();
    m_store->MoveDown(entry, nullptr);
    QCOMPARE(trace.Normalised().at(1), source + "MoveDown: MoveDown N,2");
    trace.Clear();
    QList<PriorityList> entries;
    entries << entry;
    m_store->AddList(entries, 0, nullptr);
    QCOMPARE(trace.Normalised().at(0),
             QString("TIME: ../../src/PriorityPlugin/PriorityXMLParser.cpp: AddList: Entered "));
    QCOMPARE(trace.Normalised().at(1),
             QString("TIME: ../../src/PriorityPlugin/PriorityXMLParser.cpp: GetPriorityList: Entered "));
}

QTEST_MAIN(tst_ListOperations)
#include "tst_listoperations.moc"
