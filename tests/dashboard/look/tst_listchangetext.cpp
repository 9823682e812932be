#include "Lists.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <ListChangeText.h>

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
    void NamesReadInTheirOwnDirection();
    void TextsFollowTheLanguage();
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
    QTest::addColumn<QString>("words");
    const QString cafe = QString::fromUtf8("Café");
    QTest::newRow("up") << "Home, Office, " + cafe << "Home, " + cafe + ", Office"
                        << "Moved " + cafe + " up";
    QTest::newRow("neighbours change places") << "A, B"
                                              << "B, A"
                                              << "Moved B up";
    QTest::newRow("down") << "A, B, C, D"
                          << "B, C, A, D"
                          << "Moved A down";
    QTest::newRow("to the top") << "A, B, C"
                                << "C, A, B"
                                << "Moved C to the top";
    QTest::newRow("to the end") << "A, B, C"
                                << "B, C, A"
                                << "Moved A to the end";
    QTest::newRow("many moved") << "A, B, C"
                                << "C, B, A"
                                << "Moved 2 entries";
    QTest::newRow("deleted") << "Home, Office"
                             << "Home"
                             << "Deleted Office";
    QTest::newRow("two deleted") << "A, B, C"
                                 << "B"
                                 << "Deleted 2 entries";
    QTest::newRow("the only one deleted") << "Home"
                                          << ""
                                          << "Deleted Home";
    QTest::newRow("all deleted") << "A, B"
                                 << ""
                                 << "Deleted all entries";
    QTest::newRow("added") << "A"
                           << "A, Home"
                           << "Added Home";
    QTest::newRow("three added") << ""
                                 << "A, B, C"
                                 << "Added 3 entries";
    QTest::newRow("everything at once")
        << "A, B, C, X"
        << "C, A, B, Y, Z" << QString::fromUtf8("Added 2 entries · Deleted X · Moved C to the top");
    QTest::newRow("none") << "A"
                          << "A"
                          << "Nothing changed";
    QTest::newRow("a name like a place holder") << ""
                                                << "%1 %2"
                                                << "Added %1 %2";
}

void ListChangeTextTest::ChangesAreToldInWords()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, words);
    QCOMPARE(Plain(ListChangeText::Describe(Listed(before), Listed(after))), words);
}

void ListChangeTextTest::NamesAreOneShortLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const QString ellipsis(QChar(0x2026));
    QTest::newRow("line breaks") << "two\nlines\tand tab"
                                 << "two lines and tab";
    QTest::newRow("empty") << ""
                           << "(no name)";
    QTest::newRow("blanks") << "  "
                            << "(no name)";
    QTest::newRow("as long as it may be") << QString(40, 'x') << QString(40, 'x');
    QTest::newRow("too long") << QString(41, 'x') << QString(40, 'x') + ellipsis;
    const QString smile = QString::fromUtf8("😀");
    QTest::newRow("a pair at the end is not cut")
        << QString(39, 'x') + smile + "y" << QString(39, 'x') + ellipsis;
}

void ListChangeTextTest::NamesAreOneShortLine()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    PriorityList entry;
    entry.name = name;
    QCOMPARE(Plain(ListChangeText::Name(entry)), shown);
}

void ListChangeTextTest::NamesReadInTheirOwnDirection()
{
    PriorityList hebrew;
    hebrew.name = QString::fromUtf8("בית");
    PriorityList english;
    english.name = "Home";
    QCOMPARE(ListChangeText::Name(hebrew), QChar(0x202b) + hebrew.name + QChar(0x202c));
    QCOMPARE(ListChangeText::Name(english), english.name);
    QVERIFY(DashboardLanguage::Apply("he"));
    QCOMPARE(ListChangeText::Name(hebrew), hebrew.name);
    QCOMPARE(ListChangeText::Name(english), QChar(0x202a) + english.name + QChar(0x202c));
}

void ListChangeTextTest::TextsFollowTheLanguage()
{
    QVERIFY(DashboardLanguage::Apply("he"));
    QCOMPARE(Plain(ListChangeText::Describe(Listed("A, B"), Listed("A"))), QString::fromUtf8("B נמחקה"));
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
