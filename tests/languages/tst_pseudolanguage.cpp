#include "LanguageSource.h"
#include "Screens.h"
#include "ShownTexts.h"

#include <HostControl.h>
#include <Row.h>

#include <QSet>
#include <QtTest>

#include <algorithm>

namespace
{

/** Texts that stand on no screen, and where they stand instead. */
const char *const textsElsewhere[] = {
    "PriorityPlugin/IDS_PLUGIN_NAME", // what the service calls itself
    "Dashboard/IDS_LOG_NOT_WRITABLE", // a line of the trace
    "Dashboard/IDS_LOAD_NOT_LOADED",  // while the program ends
    // in the file dialog, which is Qt's
    "Dashboard/IDS_EXPORT_TITLE",
    "Dashboard/IDS_EXPORT_FILE_NAME",
    "Dashboard/IDS_ORDER_FILES",
    "Dashboard/IDS_ALL_FILES",
};

QLatin1String Pseudo()
{
    return QLatin1String("pseudo");
}

/** What is left without the texts in brackets. One that is cut off has no second bracket. */
QString OutsideOfBrackets(const QString &text)
{
    QString outside;
    int depth = 0;
    foreach (const QChar character, text) {
        depth += character == QLatin1Char('[') ? 1 : 0;
        if (depth == 0) {
            outside += character;
        }
        depth -= character == QLatin1Char(']') && depth > 0 ? 1 : 0;
    }
    return outside;
}

bool HasLetters(const QString &text)
{
    foreach (const QChar character, text) {
        if (character.isLetter()) {
            return true;
        }
    }
    return false;
}

QStringList ValuesLongestFirst()
{
    QStringList values = Screens::Values();
    foreach (const QString &language, Screens::Languages()) {
        values.append(
            HostControl::TextIn(language, QLatin1String("IDS_LANGUAGE_NAME"), QLatin1String("Dashboard")));
    }
    std::sort(values.begin(), values.end(),
              [](const QString &left, const QString &right) { return left.size() > right.size(); });
    return values;
}

/** Whether shown is text with its placeholders filled. */
bool IsFilled(const QString &shown, const QString &text)
{
    int at = 0;
    QString rest = text;
    while (!rest.isEmpty()) {
        int end = rest.indexOf(QLatin1Char('%'));
        while (end >= 0 && end + 1 < rest.size() && !rest.at(end + 1).isLetterOrNumber()) {
            end = rest.indexOf(QLatin1Char('%'), end + 1);
        }
        const QString piece = end < 0 ? rest : rest.left(end);
        rest = end < 0 ? QString() : rest.mid(end + 2);
        at = shown.indexOf(piece, at);
        if (at < 0) {
            return false;
        }
        at += piece.size();
    }
    return true;
}

} // namespace

/** In the pseudo-language, what is not in brackets has bypassed the language files. */
class TestPseudoLanguage : public QObject
{
    Q_OBJECT

private slots:
    void everyTextComesFromTheLanguageFiles_data();
    void everyTextComesFromTheLanguageFiles();
    void everyTextOfTheLanguageFilesIsOnAScreen();

private:
    Screens m_screens;
};

void TestPseudoLanguage::everyTextComesFromTheLanguageFiles_data()
{
    QTest::addColumn<QString>("screen");
    foreach (const QString &screen, Screens::Names()) {
        Row(screen.toLatin1().constData(), screen);
    }
}

void TestPseudoLanguage::everyTextComesFromTheLanguageFiles()
{
    QFETCH(QString, screen);
    QList<ShownText> texts;
    m_screens.Show(screen, Pseudo(), [&texts](const QWidget *window) { texts = ShownTexts(window); });
    const QStringList values = ValuesLongestFirst();
    int inBrackets = 0;
    QStringList hardCoded;
    foreach (const ShownText &shown, texts) {
        QString rest = OutsideOfBrackets(shown.text);
        inBrackets += rest == shown.text ? 0 : 1;
        foreach (const QString &value, values) {
            rest.remove(value);
        }
        const bool isCutOff = rest.endsWith(QChar(0x2026));
        if (isCutOff && !values.filter(rest.left(rest.size() - 1)).isEmpty()) {
            continue;
        }
        if (HasLetters(rest)) {
            hardCoded.append(shown.where + QLatin1String(": ") + shown.text);
        }
    }
    QVERIFY(inBrackets > 0);
    QVERIFY2(hardCoded.isEmpty(), hardCoded.join(QLatin1String("\n    ")).toUtf8().constData());
}

void TestPseudoLanguage::everyTextOfTheLanguageFilesIsOnAScreen()
{
    QStringList shown;
    foreach (const QString &screen, Screens::Names()) {
        m_screens.Show(screen, Pseudo(), [&shown](const QWidget *window) {
            foreach (const ShownText &text, ShownTexts(window)) {
                shown.append(text.text);
            }
        });
    }
    shown.removeDuplicates();
    QSet<QString> elsewhere;
    for (const char *key : textsElsewhere) {
        elsewhere.insert(QLatin1String(key));
    }
    QStringList problems;
    const LanguageSource english(QLatin1String("en"));
    foreach (const LanguageSource::Message &message, english.Messages()) {
        const QString pseudo = HostControl::TextIn(Pseudo(), message.key.section(QLatin1Char('/'), 1),
                                                   message.key.section(QLatin1Char('/'), 0, 0));
        bool isShown = false;
        foreach (const QString &text, shown) {
            isShown = isShown || IsFilled(text, pseudo);
        }
        if (!isShown && !elsewhere.contains(message.key)) {
            problems.append(english.Place(message) +
                            QLatin1String(" is on no screen: add the screen that has it to Screens.cpp"));
        }
    }
    QVERIFY2(problems.isEmpty(), problems.join(QLatin1String("\n    ")).toUtf8().constData());
}

QTEST_MAIN(TestPseudoLanguage)
#include "tst_pseudolanguage.moc"
