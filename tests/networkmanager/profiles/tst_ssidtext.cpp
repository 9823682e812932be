#include <SsidText.h>

#include <QSet>
#include <QtTest>

class tst_ssidtext : public QObject
{
    Q_OBJECT

private slots:
    void TextOfBytes_data();
    void TextOfBytes();
    void EveryByteComesBack();
    void EveryPairOfBytesComesBackAndIsUnique();
    void WhatLooksEscapedComesBack_data();
    void WhatLooksEscapedComesBack();
    void TypedTextIsUtf8_data();
    void TypedTextIsUtf8();
};

void tst_ssidtext::TextOfBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("ASCII") << QByteArray("Home 5G") << "Home 5G";
    QTest::newRow("UTF-8") << QByteArray("Caf\xc3\xa9") << QString::fromUtf8("Café");
    QTest::newRow("Arabic") << QByteArray("شبكة") << QString::fromUtf8("شبكة");
    QTest::newRow("beyond 16 bits") << QByteArray("\xf0\x9f\x98\x80") << QString::fromUtf8("😀");
    QTest::newRow("Latin-1") << QByteArray("Caf\xe9") << "Caf\\xE9";
    QTest::newRow("cut off") << QByteArray("Caf\xc3") << "Caf\\xC3";
    QTest::newRow("wrong continuation") << QByteArray("\xe2\x82x") << "\\xE2\\x82x";
    QTest::newRow("overlong") << QByteArray("\xc0\xaf") << "\\xC0\\xAF";
    QTest::newRow("overlong in three") << QByteArray("\xe0\x80\xaf") << "\\xE0\\x80\\xAF";
    QTest::newRow("surrogate") << QByteArray("\xed\xa0\x80") << "\\xED\\xA0\\x80";
    QTest::newRow("beyond the last character") << QByteArray("\xf4\x90\x80\x80") << "\\xF4\\x90\\x80\\x80";
    QTest::newRow("no character") << QByteArray("\xef\xbf\xbe") << "\\xEF\\xBF\\xBE";
    QTest::newRow("zero inside") << QByteArray("a\0b", 3) << "a\\x00b";
    QTest::newRow("control character") << QByteArray("a\tb\x7f") << "a\\x09b\\x7F";
    QTest::newRow("upper control character") << QByteArray("\xc2\x80") << "\\xC2\\x80";
    QTest::newRow("backslash") << QByteArray("a\\b") << "a\\b";
    QTest::newRow("looks escaped") << QByteArray("a\\xE9") << "a\\x5CxE9";
    QTest::newRow("looks escaped in lower case") << QByteArray("a\\xe9") << "a\\xe9";
    QTest::newRow("empty") << QByteArray("") << "";
}

void tst_ssidtext::TextOfBytes()
{
    QFETCH(QByteArray, bytes);
    QTEST(SsidText::FromBytes(bytes), "text");
    QCOMPARE(SsidText::ToBytes(SsidText::FromBytes(bytes)), bytes);
}

void tst_ssidtext::EveryByteComesBack()
{
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray bytes = "a" + QByteArray(1, static_cast<char>(byte)) + "b";
        QCOMPARE(SsidText::ToBytes(SsidText::FromBytes(bytes)), bytes);
    }
}

void tst_ssidtext::EveryPairOfBytesComesBackAndIsUnique()
{
    QSet<QString> texts;
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const char pair[] = {static_cast<char>(first), static_cast<char>(second)};
            const QByteArray bytes(pair, 2);
            const QString text = SsidText::FromBytes(bytes);
            texts.insert(text);
            if (SsidText::ToBytes(text) != bytes) {
                QFAIL(bytes.toHex().constData());
            }
        }
    }
    QCOMPARE(texts.size(), 256 * 256);
}

void tst_ssidtext::WhatLooksEscapedComesBack_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("backslash before a foreign byte") << QByteArray("\\\xe9");
    QTest::newRow("two backslashes") << QByteArray("\\\\xE9");
    QTest::newRow("escaped backslash") << QByteArray("\\x5C");
    QTest::newRow("escaped backslash and more") << QByteArray("\\x5CxE9");
    QTest::newRow("begins like one before a foreign byte") << QByteArray("\\x\xe9");
    QTest::newRow("one digit before a foreign byte") << QByteArray("\\x5\xe9");
    QTest::newRow("at the end") << QByteArray("a\\x5");
    QTest::newRow("foreign byte and what looks escaped") << QByteArray("\xe9\\xE9");
}

void tst_ssidtext::WhatLooksEscapedComesBack()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(SsidText::ToBytes(SsidText::FromBytes(bytes)), bytes);
}

void tst_ssidtext::TypedTextIsUtf8_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << "Home";
    QTest::newRow("accent") << QString::fromUtf8("Café");
    QTest::newRow("escape of a character that needs none") << "\\x41";
    QTest::newRow("tab") << "a\tb";
    QTest::newRow("escape beside a character that needs one") << "\\xE9\t";
}

void tst_ssidtext::TypedTextIsUtf8()
{
    QFETCH(QString, text);
    QCOMPARE(SsidText::ToBytes(text), text.toUtf8());
}

QTEST_APPLESS_MAIN(tst_ssidtext)
#include "tst_ssidtext.moc"
