#include <CommonUtils.h>

#include <QLabel>
#include <QtTest>

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
    QTest::newRow("left") << static_cast<int>(Qt::ElideLeft) << true << false;
    QTest::newRow("right") << static_cast<int>(Qt::ElideRight) << false << true;
    QTest::newRow("middle") << static_cast<int>(Qt::ElideMiddle) << false << false;
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
    QTest::newRow("contents margins") << 30 << 0 << 0;
    QTest::newRow("label margin") << 0 << 30 << 0;
    QTest::newRow("indent") << 0 << 0 << 60;
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
    QTest::newRow("mark-up") << "<b>Home</b>";
    QTest::newRow("entity") << "A &amp; B";
    QTest::newRow("ampersand") << "A && B";
    QTest::newRow("blanks") << "  Home  ";
    QTest::newRow("empty") << "";
    QTest::newRow("beyond the first plane") << QString::fromUtf8("🛜 Home");
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
    QTest::newRow("line feed") << "\n";
    QTest::newRow("carriage return") << "\r";
    QTest::newRow("tab") << "\t";
    QTest::newRow("vertical tab") << "\v";
    QTest::newRow("next line") << QString(QChar(0x85));
    QTest::newRow("text variants") << QString(QChar(0x9c));
    QTest::newRow("line separator") << QString(QChar(0x2028));
    QTest::newRow("paragraph separator") << QString(QChar(0x2029));
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

void TestElidedText::nullLabelIsHarmless()
{
    QLabel other(QLatin1String("untouched"));
    CommonUtils::ElidedText(nullptr, LongName(), Qt::ElideRight);
    QCOMPARE(other.text(), QString(QLatin1String("untouched")));
}

QTEST_MAIN(TestElidedText)
#include "tst_elidedtext.moc"
