#include <KeyRules.h>
#include <Row.h>

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
    Row("empty", "", true);
    Row("every digit", "0123456789abcdefABCDEF", true);
    // The neighbours of the ranges.
    Row("slash", "/", false);
    Row("colon", ":", false);
    Row("at", "@", false);
    Row("G", "G", false);
    Row("grave", "`", false);
    Row("g", "g", false);
    Row("prefix", "0x12", false);
    Row("bad first", "g123", false);
    Row("bad last", "123g", false);
    Row("blank", "12 34", false);
    Row("sign", "-1", false);
    Row("Arabic digits", QString::fromUtf8("\xd9\xa1\xd9\xa2"), false);
    Row("full-width digits", QString::fromUtf8("\xef\xbc\x91\xef\xbc\xa1"), false);
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
    Row("WEP", "WEP", 1, wepText, wepHexadecimal);
    Row("CCMP", "CCMP", 2, wpaText, (QVariantList() << 64));
    Row("TKIP", "TKIP", 2, wpaText, (QVariantList() << 64));
    const char *const anyKey[] = {"none", "", "wep", "ccmp", "AES", "WEP "};
    for (const char *encryption : anyKey) {
        Row(qPrintable(QString("'%1'").arg(encryption)), encryption, 0, QVariantList(), QVariantList());
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
