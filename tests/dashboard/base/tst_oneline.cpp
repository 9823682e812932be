#include <OneLine.h>
#include <Row.h>

#include <QProcess>
#include <QtTest>

class OneLineTest : public QObject
{
    Q_OBJECT

private slots:
    void EscapesWhatEndsALineOrAColumn_data();
    void EscapesWhatEndsALineOrAColumn();
    void PrintfTurnsItBack_data();
    void PrintfTurnsItBack();
    void ShownTextsKeepTheirBackslashes();
};

void OneLineTest::EscapesWhatEndsALineOrAColumn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    Row("plain", "Home net", "Home net");
    Row("empty", "", "");
    Row("tab", "a\tb", "a\\tb");
    Row("line feed", "a\nb", "a\\nb");
    Row("carriage return", "a\rb", "a\\rb");
    Row("backslash", "a\\tb", "a\\\\tb");
    Row("escape", "a\x1b[1m1", "a\\0033[1m1");
    Row("delete", QString(QChar(0x7f)), "\\0177");
    Row("control of the second set", QString(QChar(0x9b)), "\\0302\\0233");
    Row("next line", QString(QChar(0x85)), "\\0302\\0205");
    Row("line separator", QString(QChar(0x2028)), "\\0342\\0200\\0250");
    Row("paragraph separator", QString(QChar(0x2029)), "\\0342\\0200\\0251");
    Row("letters of many scripts", QString::fromUtf8("Café شبكة 網 😀 \"%1\""),
        QString::fromUtf8("Café شبكة 網 😀 \"%1\""));
}

void OneLineTest::EscapesWhatEndsALineOrAColumn()
{
    QFETCH(QString, text);
    QTEST(OneLine::Escaped(text), "escaped");
}

void OneLineTest::PrintfTurnsItBack_data()
{
    EscapesWhatEndsALineOrAColumn_data();
}

void OneLineTest::PrintfTurnsItBack()
{
    QFETCH(QString, text);
    QProcess shell;
    shell.start("sh", QStringList() << "-c"
                                    << "printf '%b' \"$0\"" << OneLine::Escaped(text));
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()), text);
}

void OneLineTest::ShownTextsKeepTheirBackslashes()
{
    QCOMPARE(OneLine::Shown("a\\b\tc\nd"), QString("a\\b\\tc\\nd"));
}

QTEST_GUILESS_MAIN(OneLineTest)
#include "tst_oneline.moc"
