#include <PseudoText.h>

#include <QtTest>

/** English texts as a language that nobody speaks. */
class TestPseudoText : public QObject
{
    Q_OBJECT

private slots:
    void textIsInBracketsWithOtherLetters();
    void textIsLongerByTwoFifths();
    void placeholdersMnemonicsAndLineBreaksStay();
};

void TestPseudoText::textIsInBracketsWithOtherLetters()
{
    const QString text = PseudoText("English only");
    QVERIFY2(text.startsWith(QString::fromUtf8("[Éñğłíšĥ öñłý")), text.toUtf8().constData());
    QVERIFY(text.endsWith(']'));
    QCOMPARE(text.count('['), 1);
    QCOMPARE(text.count(']'), 1);
    for (const QChar character : text) {
        QVERIFY2(!character.isLetter() || character.unicode() > 0x7f,
                 QString(character).toUtf8().constData());
    }
}

void TestPseudoText::textIsLongerByTwoFifths()
{
    // 11 letters.
    const QString english("English only");
    QCOMPARE(PseudoText(english).size(), english.size() + 2 + 5);
}

void TestPseudoText::placeholdersMnemonicsAndLineBreaksStay()
{
    const QString text = PseudoText("&Move %1 of %2\nto the top");
    QVERIFY2(text.startsWith(QString::fromUtf8("[&Möṽé %1 öƒ %2\nţö ţĥé ţöþ")), text.toUtf8().constData());
}

QTEST_GUILESS_MAIN(TestPseudoText)
#include "tst_pseudotext.moc"
