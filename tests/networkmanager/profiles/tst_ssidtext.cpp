#include <Row.h>
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

    Row("ASCII", QByteArray("Home 5G"), "Home 5G");
    Row("UTF-8", QByteArray("Caf\xc3\xa9"), QString::fromUtf8("Café"));
    Row("Arabic", QByteArray("شبكة"), QString::fromUtf8("شبكة"));
    Row("beyond 16 bits", QByteArray("\xf0\x9f\x98\x80"), QString::fromUtf8("😀"));
    Row("Latin-1", QByteArray("Caf\xe9"), "Caf\\xE9");
    Row("cut off", QByteArray("Caf\xc3"), "Caf\\xC3");
    Row("wrong continuation", QByteArray("\xe2\x82x"), "\\xE2\\x82x");
    Row("overlong", QByteArray("\xc0\xaf"), "\\xC0\\xAF");
    Row("overlong in three", QByteArray("\xe0\x80\xaf"), "\\xE0\\x80\\xAF");
    Row("surrogate", QByteArray("\xed\xa0\x80"), "\\xED\\xA0\\x80");
    Row("beyond the last character", QByteArray("\xf4\x90\x80\x80"), "\\xF4\\x90\\x80\\x80");
    Row("no character", QByteArray("\xef\xbf\xbe"), "\\xEF\\xBF\\xBE");
    Row("zero inside", QByteArray("a\0b", 3), "a\\x00b");
    Row("control character", QByteArray("a\tb\x7f"), "a\\x09b\\x7F");
    Row("upper control character", QByteArray("\xc2\x80"), "\\xC2\\x80");
    Row("backslash", QByteArray("a\\b"), "a\\b");
    Row("looks escaped", QByteArray("a\\xE9"), "a\\x5CxE9");
    Row("looks escaped in lower case", QByteArray("a\\xe9"), "a\\xe9");
    Row("empty", QByteArray(""), "");
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

    Row("backslash before a foreign byte", QByteArray("\\\xe9"));
    Row("two backslashes", QByteArray("\\\\xE9"));
    Row("escaped backslash", QByteArray("\\x5C"));
    Row("escaped backslash and more", QByteArray("\\x5CxE9"));
    Row("begins like one before a foreign byte", QByteArray("\\x\xe9"));
    Row("one digit before a foreign byte", QByteArray("\\x5\xe9"));
    Row("at the end", QByteArray("a\\x5"));
    Row("foreign byte and what looks escaped", QByteArray("\xe9\\xE9"));
}

void tst_ssidtext::WhatLooksEscapedComesBack()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(SsidText::ToBytes(SsidText::FromBytes(bytes)), bytes);
}

void tst_ssidtext::TypedTextIsUtf8_data()
{
    QTest::addColumn<QString>("text");

    Row("plain", "Home");
    Row("accent", QString::fromUtf8("Café"));
    Row("escape of a character that needs none", "\\x41");
    Row("tab", "a\tb");
    Row("escape beside a character that needs one", "\\xE9\t");
}

void tst_ssidtext::TypedTextIsUtf8()
{
    QFETCH(QString, text);
    QCOMPARE(SsidText::ToBytes(text), text.toUtf8());
}

QTEST_APPLESS_MAIN(tst_ssidtext)
#include "tst_ssidtext.moc"
