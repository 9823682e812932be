#include <CommonUtils.h>
#include <Row.h>

#include <QLabel>
#include <QtTest>

#include <algorithm>
#include <ctime>

namespace
{

const QChar ellipsis(0x2026);

QString LongName()
{
    return QString(QLatin1String("a network with a very long name ")).repeated(10);
}

int WidthOf(const QLabel &label)
{
    return label.fontMetrics().boundingRect(label.text()).width();
}

/** The best of five, in the processor's time, of showing a text of that length. */
std::clock_t TimeOf(int length)
{
    QLabel label;
    label.setFixedWidth(200);
    const QString text(length, QLatin1Char('n'));
    std::clock_t best = 0;
    for (int round = 0; round < 5; ++round) {
        const std::clock_t begin = std::clock();
        CommonUtils::ElidedText(&label, text, Qt::ElideRight);
        const std::clock_t elapsed = std::clock() - begin;
        best = round == 0 ? elapsed : std::min(best, elapsed);
    }
    return best;
}

} // namespace

class TestElidedText : public QObject
{
    Q_OBJECT

private slots:
    void textThatFitsIsShownWhole();
    void textThatDoesNotFitEndsInAnEllipsis();
    void modeTellsWhereTheEllipsisStands_data();
    void modeTellsWhereTheEllipsisStands();
    void marginsAreNotRoomForText_data();
    void marginsAreNotRoomForText();
    void rightToLeftTextKeepsItsBeginning();
    void textIsShownLiterally_data();
    void textIsShownLiterally();
    void lineBreaksAndTabsAreBlanks_data();
    void lineBreaksAndTabsAreBlanks();
    void longTextKeepsTheEndsThatItsModeShows_data();
    void longTextKeepsTheEndsThatItsModeShows();
    void lengthThatCannotBeSeenCostsNothing();
    void nullLabelIsHarmless();
};

void TestElidedText::textThatFitsIsShownWhole()
{
    QLabel label;
    label.setFixedWidth(200);
    CommonUtils::ElidedText(&label, QLatin1String("Home"), Qt::ElideRight);
    QCOMPARE(label.text(), QString(QLatin1String("Home")));
}

void TestElidedText::textThatDoesNotFitEndsInAnEllipsis()
{
    QLabel label;
    label.setFixedWidth(200);
    CommonUtils::ElidedText(&label, LongName(), Qt::ElideRight);
    const QString shown = label.text();
    QVERIFY(shown.endsWith(ellipsis));
    QVERIFY(LongName().startsWith(shown.left(shown.size() - 1)));
    QVERIFY(WidthOf(label) <= 200);
    QVERIFY(WidthOf(label) > 150);
}

void TestElidedText::modeTellsWhereTheEllipsisStands_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("atStart");
    QTest::addColumn<bool>("atEnd");
    Row("left", static_cast<int>(Qt::ElideLeft), true, false);
    Row("right", static_cast<int>(Qt::ElideRight), false, true);
    Row("middle", static_cast<int>(Qt::ElideMiddle), false, false);
}

void TestElidedText::modeTellsWhereTheEllipsisStands()
{
    QFETCH(int, mode);
    QFETCH(bool, atStart);
    QFETCH(bool, atEnd);
    QLabel label;
    label.setFixedWidth(200);
    CommonUtils::ElidedText(&label, LongName(), static_cast<Qt::TextElideMode>(mode));
    QVERIFY(label.text().contains(ellipsis));
    QCOMPARE(label.text().startsWith(ellipsis), atStart);
    QCOMPARE(label.text().endsWith(ellipsis), atEnd);
}

void TestElidedText::marginsAreNotRoomForText_data()
{
    QTest::addColumn<int>("contents");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("indent");
    Row("contents margins", 30, 0, 0);
    Row("label margin", 0, 30, 0);
    Row("indent", 0, 0, 60);
}

void TestElidedText::marginsAreNotRoomForText()
{
    QFETCH(int, contents);
    QFETCH(int, margin);
    QFETCH(int, indent);
    QLabel label;
    label.setFixedWidth(200);
    label.setContentsMargins(contents, 0, contents, 0);
    label.setMargin(margin);
    label.setIndent(indent);
    CommonUtils::ElidedText(&label, LongName(), Qt::ElideRight);
    QVERIFY(WidthOf(label) <= 140);
    QVERIFY(WidthOf(label) > 90);
}

void TestElidedText::rightToLeftTextKeepsItsBeginning()
{
    const QString name = QString::fromUtf8("شبكة المنزل في الطابق الثاني ").repeated(10);
    QLabel label;
    label.setFixedWidth(200);
    CommonUtils::ElidedText(&label, name, Qt::ElideRight);
    QVERIFY(label.text().startsWith(QString::fromUtf8("شبكة")));
    QVERIFY(label.text().contains(ellipsis));
    QVERIFY(WidthOf(label) <= 200);
}

void TestElidedText::textIsShownLiterally_data()
{
    QTest::addColumn<QString>("name");
    Row("mark-up", "<b>Home</b>");
    Row("entity", "A &amp; B");
    Row("ampersand", "A && B");
    Row("blanks", "  Home  ");
    Row("empty", "");
    Row("beyond the first plane", QString::fromUtf8("🛜 Home"));
}

void TestElidedText::textIsShownLiterally()
{
    QFETCH(QString, name);
    QLabel label;
    label.setFixedWidth(300);
    CommonUtils::ElidedText(&label, name, Qt::ElideRight);
    QCOMPARE(label.text(), name);
    QCOMPARE(label.textFormat(), Qt::PlainText);
}

void TestElidedText::lineBreaksAndTabsAreBlanks_data()
{
    QTest::addColumn<QString>("separator");
    Row("line feed", "\n");
    Row("carriage return", "\r");
    Row("tab", "\t");
    Row("vertical tab", "\v");
    Row("next line", QString(QChar(0x85)));
    Row("text variants", QString(QChar(0x9c)));
    Row("line separator", QString(QChar(0x2028)));
    Row("paragraph separator", QString(QChar(0x2029)));
}

void TestElidedText::lineBreaksAndTabsAreBlanks()
{
    QFETCH(QString, separator);
    QLabel label;
    label.setFixedWidth(300);
    CommonUtils::ElidedText(&label, QLatin1String("two") + separator + QLatin1String("lines"),
                            Qt::ElideRight);
    QCOMPARE(label.text(), QString(QLatin1String("two lines")));
}

void TestElidedText::longTextKeepsTheEndsThatItsModeShows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    Row("left", static_cast<int>(Qt::ElideLeft), QString(ellipsis), "end");
    Row("right", static_cast<int>(Qt::ElideRight), "start", QString(ellipsis));
    Row("middle", static_cast<int>(Qt::ElideMiddle), "start", "end");
}

void TestElidedText::longTextKeepsTheEndsThatItsModeShows()
{
    QFETCH(int, mode);
    QFETCH(QString, start);
    QFETCH(QString, end);
    QLabel label;
    label.setFixedWidth(200);
    const QString text = QLatin1String("start") + QString(10000, QLatin1Char('n')) + QLatin1String("end");
    CommonUtils::ElidedText(&label, text, static_cast<Qt::TextElideMode>(mode));
    QVERIFY2(label.text().startsWith(start), qPrintable(label.text()));
    QVERIFY2(label.text().endsWith(end), qPrintable(label.text()));
    QCOMPARE(label.text().count(ellipsis), 1);
    QVERIFY(WidthOf(label) <= 200);
}

void TestElidedText::lengthThatCannotBeSeenCostsNothing()
{
    const double growth = double(TimeOf(2000000)) / double(TimeOf(10000));
    qDebug("two hundred times the text takes %.1f times the time", growth);
    QVERIFY2(growth < 20, qPrintable(QString::number(growth)));
}

void TestElidedText::nullLabelIsHarmless()
{
    QLabel other(QLatin1String("untouched"));
    CommonUtils::ElidedText(nullptr, LongName(), Qt::ElideRight);
    QCOMPARE(other.text(), QString(QLatin1String("untouched")));
}

QTEST_MAIN(TestElidedText)
#include "tst_elidedtext.moc"
