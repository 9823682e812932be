#include <OneLine.h>

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
    QTest::newRow("plain") << "Home net"
                           << "Home net";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("tab") << "a\tb"
                         << "a\\tb";
    QTest::newRow("line feed") << "a\nb"
                               << "a\\nb";
    QTest::newRow("carriage return") << "a\rb"
                                     << "a\\rb";
    QTest::newRow("backslash") << "a\\tb"
                               << "a\\\\tb";
    QTest::newRow("escape") << "a\x1b[1m1"
                            << "a\\0033[1m1";
    QTest::newRow("delete") << QString(QChar(0x7f)) << "\\0177";
    QTest::newRow("control of the second set") << QString(QChar(0x9b)) << "\\0302\\0233";
    QTest::newRow("next line") << QString(QChar(0x85)) << "\\0302\\0205";
    QTest::newRow("line separator") << QString(QChar(0x2028)) << "\\0342\\0200\\0250";
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << "\\0342\\0200\\0251";
    QTest::newRow("letters of many scripts")
        << QString::fromUtf8("Café شبكة 網 😀 \"%1\"") << QString::fromUtf8("Café شبكة 網 😀 \"%1\"");
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
