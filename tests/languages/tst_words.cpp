#include "LanguageSource.h"
#include "WordList.h"

#include <Row.h>
#include <TextPattern.h>

#include <QtTest>

namespace
{

typedef LanguageSource::Message Message;

QLatin1String English()
{
    return QLatin1String("en");
}

/** Texts that are about one thing, by their ids, and its word in the tables. */
struct Family {
    const char *ids;
    const char *word;
};

const Family families[] = {
    {"_DELETE|_REMOVE", "remove"},
    {"ACTION_TRACE|BUTTON_TRACE|TRACE_TITLE|TRACE_SEARCH|LOG_", "log"},
    {"TRACE_(NEXT|PREVIOUS|MATCHES|NO_MATCH)", "match"},
    {"(ACTION|BUTTON)_UNDO|UNDO_WHAT|_UNDONE|LIST_UNDO_DAMAGE|REDO_DAMAGED", "undo"},
    {"(ACTION|BUTTON)_REDO|REDO_WHAT", "redo"},
    {"(ACTION|BUTTON)_RESTORE|RESTORE_TITLE|IDS_HISTORY_(DAMAGED|NOT_READABLE|NOT_WRITABLE)", "earlier list"},
    {"IDS_RESTORE_(EFFECT|OK|HINT)", "restore"},
    {"(ACTION|IDS)_(IM|EX)PORT(_TITLE)?$|ORDER_FILES|(EMPTY|NO_LIST)_TITLE|HEAD_(EMPTY|UNREADABLE)", "list"},
    {"STATE_.*(RANGE|UNKNOWN)|WHY_OUT_OF_RANGE|HEAD_(NOT_CERTAIN|RANGE_UNKNOWN)", "in range"},
    {"STATE_IN_USE|HEAD_IN_USE$|HEAD_NONE|IDS_WHY_", "in use"},
    {"CHANGE_(EMPTIED|.*_MANY)|PLAN_(EMPTY|.*_MANY)", "network"},
    {"_STORED", "practice network"},
    {"IMPORT_(EFFECT_)?UNKNOWN|EMPTY_HINT", "saved"},
    {"(CHANGE|PLAN)_.*_TOP", "top"},
    {"IDS_AUTHENTICATION|WRONG_AUTHENTICATION", "security"},
    {"_NOT_KEPT|(LIST|HISTORY|CHANGE|REDO|LANGUAGE)_DAMAGED", "damaged"},
    {"IDS_LOAD_|GENERAL_PLUGINS|PLUGIN_LIBRARY|NO_PLUGIN|NO_WLAN|NOT_OFFERED", "plug-in"},
};

void AddLanguageRows(const QStringList &languages)
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages) {
        Row(language.toLatin1().constData(), language);
    }
}

/** All that is wrong at once, so that it can be put right at once. */
QByteArray AsLines(const QStringList &problems)
{
    return (QLatin1String("\n    ") + problems.join(QLatin1String("\n    "))).toUtf8();
}

} // namespace

/** One thing has one word: the texts keep to the words that docs/translating.md lists. */
class TestWords : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageHasEveryWord_data() { AddLanguageRows(LanguageSource::Languages()); }
    void everyLanguageHasEveryWord();
    void noTextHasAForbiddenWord_data() { AddLanguageRows(LanguageSource::Languages()); }
    void noTextHasAForbiddenWord();
    void textsOfAFamilyHaveItsWord_data() { AddLanguageRows(LanguageSource::Languages()); }
    void textsOfAFamilyHaveItsWord();
    void translationHasTheWordsOfTheEnglishText_data();
    void translationHasTheWordsOfTheEnglishText();
};

void TestWords::everyLanguageHasEveryWord()
{
    QFETCH(QString, language);
    const QList<WordList::Word> english = WordList(English()).Words();
    const QList<WordList::Word> words = WordList(language).Words();
    QCOMPARE(words.size(), english.size());
    for (int i = 0; i < words.size(); ++i) {
        QCOMPARE(words.at(i).name, english.at(i).name);
        QVERIFY2(!words.at(i).parts.isEmpty(), qPrintable(words.at(i).name));
    }
}

void TestWords::noTextHasAForbiddenWord()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    const WordList list(language);
    QStringList problems;
    for (const Message &message : source.Messages()) {
        for (const WordList::Word &word : list.Words()) {
            const QString forbidden = WordList::ForbiddenIn(message.texts.value(0), word);
            if (!forbidden.isNull()) {
                problems.append(QString::fromLatin1("%1 has \"%2\" in it; the word of \"%3\" is another one")
                                    .arg(source.Place(message), forbidden, word.name));
            }
        }
    }
    QVERIFY2(problems.isEmpty(), AsLines(problems).constData());
}

void TestWords::textsOfAFamilyHaveItsWord()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    const WordList list(language);
    QStringList problems;
    for (const Family &family : families) {
        const WordList::Word word = list.Find(QLatin1String(family.word));
        int members = 0;
        for (const Message &message : source.Messages()) {
            if (!TextPattern::IsIn(message.key, QLatin1String(family.ids))) {
                continue;
            }
            ++members;
            if (!list.Has(message.texts.value(0), word)) {
                problems.append(
                    QString::fromLatin1("%1 lacks the word of \"%2\": %3")
                        .arg(source.Place(message), word.name, word.parts.join(QLatin1String(", "))));
            }
        }
        QVERIFY2(members > 1, family.ids);
    }
    QVERIFY2(problems.isEmpty(), AsLines(problems).constData());
}

void TestWords::translationHasTheWordsOfTheEnglishText_data()
{
    QStringList languages = LanguageSource::Languages();
    languages.removeOne(English());
    AddLanguageRows(languages);
}

void TestWords::translationHasTheWordsOfTheEnglishText()
{
    QFETCH(QString, language);
    const WordList english(English());
    const WordList list(language);
    const LanguageSource source(language);
    const QMap<QString, Message> translations = source.ByKey();
    QStringList problems;
    for (const Message &message : LanguageSource(English()).Messages()) {
        const QString text = message.texts.value(0);
        const Message translation = translations.value(message.key);
        // What is proposed for the name of a file is Latin in every language.
        const bool isFileName = text.endsWith(QLatin1String(".xml"));
        for (const WordList::Word &word : english.Words()) {
            const WordList::Word own = list.Find(word.name);
            if (!isFileName && english.Has(text, word) && !list.Has(translation.texts.value(0), own)) {
                problems.append(
                    QString::fromLatin1("%1 lacks the word of \"%2\": %3")
                        .arg(source.Place(translation), word.name, own.parts.join(QLatin1String(", "))));
            }
        }
    }
    QVERIFY2(problems.isEmpty(), AsLines(problems).constData());
}

QTEST_MAIN(TestWords)
#include "tst_words.moc"
