#include <Change.h>
#include <HostControl.h>

#include <QtTest>

namespace
{

QString Pseudo(const char *id)
{
    return Change::tr(QLatin1String(id), QLatin1String("Sample"));
}

} // namespace

/** The language that is made from the English texts. It is offered for good, so the order of these counts. */
class TestPseudoText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itIsThereOnceItIsOffered();
    void textIsInBracketsWithOtherLetters();
    void textIsLongerByTwoFifths();
    void placeholdersMnemonicsAndLineBreaksStay();
    void idWithoutEnglishTextStaysAsItIs();
    void otherLanguagesStayAsTheyAre();
    void textInItIsToldFromAnotherLanguage();
};

void TestPseudoText::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/tests/languages"));
}

void TestPseudoText::itIsThereOnceItIsOffered()
{
    QVERIFY(!HostControl::LanguageNames().contains(QLatin1String("pseudo")));
    QVERIFY(!HostControl::SetLanguage(QLatin1String("pseudo")));
    HostControl::OfferPseudoLanguage();
    QCOMPARE(HostControl::LanguageNames().count(QLatin1String("pseudo")), 1);
    QVERIFY(HostControl::SetLanguage(QLatin1String("pseudo")));
    QCOMPARE(Change::GetLangName(), QString(QLatin1String("pseudo")));
}

void TestPseudoText::textIsInBracketsWithOtherLetters()
{
    const QString text = Pseudo("IDS_ENGLISH_ONLY");
    QVERIFY2(text.startsWith(QString::fromUtf8("[Éñğłíšĥ öñłý")), text.toUtf8().constData());
    QVERIFY(text.endsWith(QLatin1Char(']')));
    QCOMPARE(text.count(QLatin1Char('[')), 1);
    QCOMPARE(text.count(QLatin1Char(']')), 1);
    foreach (const QChar character, text) {
        QVERIFY2(!character.isLetter() || character.unicode() > 0x7f,
                 QString(character).toUtf8().constData());
    }
}

void TestPseudoText::textIsLongerByTwoFifths()
{
    // 11 letters.
    const QString english = QLatin1String("English only");
    QCOMPARE(Pseudo("IDS_ENGLISH_ONLY").size(), english.size() + 2 + 5);
}

void TestPseudoText::placeholdersMnemonicsAndLineBreaksStay()
{
    const QString text = Pseudo("IDS_WITH_PLACES");
    QVERIFY2(text.startsWith(QString::fromUtf8("[&Möṽé %1 öƒ %2\nţö ţĥé ţöþ")), text.toUtf8().constData());
}

void TestPseudoText::idWithoutEnglishTextStaysAsItIs()
{
    QCOMPARE(Pseudo("IDS_NOWHERE"), QString(QLatin1String("IDS_NOWHERE")));
}

void TestPseudoText::otherLanguagesStayAsTheyAre()
{
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    QCOMPARE(Pseudo("IDS_BOTH"), QString::fromUtf8("ambaŭ"));
    QCOMPARE(Pseudo("IDS_ENGLISH_ONLY"), QString(QLatin1String("English only")));
}

void TestPseudoText::textInItIsToldFromAnotherLanguage()
{
    QVERIFY(HostControl::SetLanguage(QLatin1String("en")));
    const QString text =
        HostControl::TextIn(QLatin1String("pseudo"), QLatin1String("IDS_BOTH"), QLatin1String("Sample"));
    QVERIFY2(text.startsWith(QString::fromUtf8("[ƀöţĥ")), text.toUtf8().constData());
}

QTEST_MAIN(TestPseudoText)
#include "tst_pseudotext.moc"
