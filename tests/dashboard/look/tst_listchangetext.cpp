#include "Lists.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <ListChangeText.h>
#include <Row.h>

#include <QtTest>

class ListChangeTextTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void ChangesAreToldInWords_data();
    void ChangesAreToldInWords();
    void NamesAreOneShortLine_data();
    void NamesAreOneShortLine();
    void NeighbourThatWasMovedIsTold();
    void TextsFollowTheLanguage();
    void NumbersAreInTheDigitsOfTheDates();
    void SignsBetweenNamesAndSentencesAreTheLanguages_data();
    void SignsBetweenNamesAndSentencesAreTheLanguages();
    void MomentFollowsTheLanguage();
};

void ListChangeTextTest::init()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

void ListChangeTextTest::ChangesAreToldInWords_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("done");
    QTest::addColumn<QString>("planned");
    const struct {
        const char *name;
        const char *before;
        const char *after;
        const char *done;
        const char *planned;
    } rows[] = {{"up", "Home, Office, Café", "Home, Café, Office", "Moved Café up", "Café will move up."},
                {"neighbours change places", "A, B", "B, A", "Moved B up", "B will move up."},
                {"down", "A, B, C, D", "B, C, A, D", "Moved A down", "A will move down."},
                {"to the top", "A, B, C", "C, A, B", "Moved C to the top", "C will move to the top."},
                {"to the end", "A, B, C", "B, C, A", "Moved A to the end", "A will move to the end."},
                {"many moved", "A, B, C", "C, B, A", "Moved 2 networks", "2 networks will move."},
                {"removed", "Home, Office", "Home", "Removed Office", "Office will be removed."},
                {"two removed", "A, B, C", "B", "Removed 2 networks", "2 networks will be removed."},
                {"the only one removed", "Home", "", "Removed Home", "Home will be removed."},
                {"all removed", "A, B", "", "Removed all networks", "All networks will be removed."},
                {"another in its place", "A, Home, C", "A, Flat, C", "Replaced Home by Flat",
                 "Home will be replaced by Flat."},
                {"another in another place", "A, Home", "Flat, A", "Added Flat · Removed Home",
                 "Flat will be added. Home will be removed."},
                {"another of another kind", "Home", "Home/2", "Added Home · Removed Home",
                 "Home will be added. Home will be removed."},
                {"added", "A", "A, Home", "Added Home", "Home will be added."},
                {"three added", "", "A, B, C", "Added 3 networks", "3 networks will be added."},
                {"everything at once", "A, B, C, X", "C, A, B, Y, Z",
                 "Added 2 networks · Removed X · Moved C to the top",
                 "2 networks will be added. X will be removed. C will move to the top."},
                {"none", "A", "A", "Nothing changed", "Your list stays as it is."},
                {"a name like a place holder", "", "%1 %2", "Added %1 %2", "%1 %2 will be added."}};
    for (const auto &row : rows) {
        Row(row.name, QString::fromUtf8(row.before), QString::fromUtf8(row.after),
            QString::fromUtf8(row.done), QString::fromUtf8(row.planned));
    }
}

void ListChangeTextTest::ChangesAreToldInWords()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QTEST(ListChangeText::Describe(Listed(before), Listed(after)), "done");
    QTEST(ListChangeText::Announce(Listed(before), Listed(after)), "planned");
}

void ListChangeTextTest::NamesAreOneShortLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const QString ellipsis(QChar(0x2026));
    Row("line breaks", "two\nlines\tand tab", "two lines and tab");
    Row("empty", "", "(no name)");
    Row("blanks", "  ", "(no name)");
    Row("as long as it may be", QString(40, 'x'), QString(40, 'x'));
    Row("too long", QString(41, 'x'), QString(40, 'x') + ellipsis);
    const QString smile = QString::fromUtf8("😀");
    Row("a pair at the end is not cut", QString(39, 'x') + smile + "y", QString(39, 'x') + ellipsis);
}

void ListChangeTextTest::NamesAreOneShortLine()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    PriorityList entry;
    entry.name = name;
    QCOMPARE(Plain(ListChangeText::Name(entry)), shown);
}

void ListChangeTextTest::NeighbourThatWasMovedIsTold()
{
    ListState before;
    before.entries = Listed("A, B");
    ListState after;
    after.entries = Listed("B, A");
    after.moved = 1;
    QCOMPARE(ListChangeText::DescribeStep(before, after), QString("Moved A down"));
    // What was moved on the way to another list tells nothing of this step.
    before.entries = Listed("A");
    QCOMPARE(ListChangeText::DescribeStep(before, after), QString("Added B"));
}

void ListChangeTextTest::TextsFollowTheLanguage()
{
    QVERIFY(DashboardLanguage::Apply("he"));
    QCOMPARE(Plain(ListChangeText::Describe(Listed("A, B"), Listed("A"))), QString::fromUtf8("הסרת B"));
}

void ListChangeTextTest::NumbersAreInTheDigitsOfTheDates()
{
    QVERIFY(DashboardLanguage::Apply("ar"));
    QCOMPARE(ListChangeText::Describe(Listed("A, B, C, D"), Listed("A")),
             QString::fromUtf8("إزالة ٣ من الشبكات"));
    QVERIFY(ListChangeText::Moment(QDateTime(QDate(2026, 3, 1), QTime(13, 3))).contains(QChar(0x0663)));
}

void ListChangeTextTest::SignsBetweenNamesAndSentencesAreTheLanguages_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("sentences");
    Row("German", "de", "A, B", "A wird entfernt. B wird nach oben verschoben.");
    Row("Chinese", "zh_CN", QString::fromUtf8("A、B"), QString::fromUtf8("将移除 A。B 将上移。"));
    Row("Arabic", "ar", QString::fromUtf8("A، B"), QString::fromUtf8("ستُزال A. ستُنقل B إلى أعلى."));
}

void ListChangeTextTest::SignsBetweenNamesAndSentencesAreTheLanguages()
{
    QFETCH(QString, language);
    QVERIFY(DashboardLanguage::Apply(language));
    QTEST(Plain(ListChangeText::Names(Listed("A, B"))), "names");
    QTEST(Plain(ListChangeText::Announce(Listed("A, C, B"), Listed("B, C"))), "sentences");
}

void ListChangeTextTest::MomentFollowsTheLanguage()
{
    const QDateTime time(QDate(2026, 3, 1), QTime(17, 5));
    const QString english = ListChangeText::Moment(time.toUTC());
    QVERIFY2(english.contains("5:05"), qPrintable(english));
    QVERIFY(DashboardLanguage::Apply("he"));
    const QString hebrew = ListChangeText::Moment(time.toUTC());
    QVERIFY2(hebrew.contains("17:05"), qPrintable(hebrew));
}

QTEST_MAIN(ListChangeTextTest)
#include "tst_listchangetext.moc"
