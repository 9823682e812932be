#include <KeyRules.h>

#include <QVariant>
#include <QtTest>

/** Which keys fit which encryption, over every length. */
class tst_KeyRules : public QObject
{
    Q_OBJECT

private slots:
    void hexadecimal_data();
    void hexadecimal();
    void everyLength_data();
    void everyLength();
};

void tst_KeyRules::hexadecimal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("every digit") << "0123456789abcdefABCDEF" << true;
    // The neighbours of the ranges.
    QTest::newRow("slash") << "/" << false;
    QTest::newRow("colon") << ":" << false;
    QTest::newRow("at") << "@" << false;
    QTest::newRow("G") << "G" << false;
    QTest::newRow("grave") << "`" << false;
    QTest::newRow("g") << "g" << false;
    QTest::newRow("prefix") << "0x12" << false;
    QTest::newRow("bad first") << "g123" << false;
    QTest::newRow("bad last") << "123g" << false;
    QTest::newRow("blank") << "12 34" << false;
    QTest::newRow("sign") << "-1" << false;
    QTest::newRow("Arabic digits") << QString::fromUtf8("\xd9\xa1\xd9\xa2") << false;
    QTest::newRow("full-width digits") << QString::fromUtf8("\xef\xbc\x91\xef\xbc\xa1") << false;
}

void tst_KeyRules::hexadecimal()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);
    QCOMPARE(KeyRules::IsHexadecimal(text), expected);
}

void tst_KeyRules::everyLength_data()
{
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<int>("fault");
    QTest::addColumn<QVariantList>("textLengths");
    QTest::addColumn<QVariantList>("hexadecimalLengths");
    QVariantList wpaText;
    for (int length = 8; length <= 63; ++length) {
        wpaText << length;
    }
    const QVariantList wepText = QVariantList() << 5 << 13;
    const QVariantList wepHexadecimal = QVariantList() << 10 << 26 << 32;
    QTest::newRow("WEP") << "WEP" << 1 << wepText << wepHexadecimal;
    QTest::newRow("CCMP") << "CCMP" << 2 << wpaText << (QVariantList() << 64);
    QTest::newRow("TKIP") << "TKIP" << 2 << wpaText << (QVariantList() << 64);
    const char *const anyKey[] = {"none", "", "wep", "ccmp", "AES", "WEP "};
    for (const char *encryption : anyKey) {
        QTest::newRow(qPrintable(QString("'%1'").arg(encryption)))
            << encryption << 0 << QVariantList() << QVariantList();
    }
}

void tst_KeyRules::everyLength()
{
    QFETCH(QString, encryption);
    QFETCH(int, fault);
    QFETCH(QVariantList, textLengths);
    QFETCH(QVariantList, hexadecimalLengths);
    for (int length = 0; length <= 70; ++length) {
        const bool asText = fault == 0 || textLengths.contains(length);
        const bool asHexadecimal = asText || hexadecimalLengths.contains(length);
        const QString hexadecimal = QString("0aF").repeated(24).left(length);
        QString oneBad = hexadecimal;
        if (length > 0) {
            oneBad[length - 1] = 'g';
        }
        const QString text = QString("x(:").repeated(24).left(length);
        QCOMPARE(int(KeyRules::Check(encryption, hexadecimal)), asHexadecimal ? 0 : fault);
        QCOMPARE(int(KeyRules::Check(encryption, text)), asText ? 0 : fault);
        QCOMPARE(int(KeyRules::Check(encryption, oneBad)), asText ? 0 : fault);
    }
}

QTEST_MAIN(tst_KeyRules)
#include "tst_keyrules.moc"
