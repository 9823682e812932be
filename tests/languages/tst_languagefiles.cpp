#include "LanguageSource.h"

#include <Change.h>
#include <HostControl.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <TextPattern.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QSet>
#include <QtTest>

namespace
{

typedef LanguageSource::Message Message;

QLatin1String English()
{
    return QLatin1String("en");
}

/** A place in the sources that names a text. */
struct Use {
    QString id;
    QString place;
    /** The texts that may be meant: those of the file's own context, and of the plug-in's where the file
     * names that or shows a message, the captions of which are among them. */
    QStringList keys;
};

QList<Use> UsesIn(const QString &directory, const QString &context)
{
    QList<Use> uses;
    QStringList patterns;
    patterns << QLatin1String("*.cpp") << QLatin1String("*.h");
    QDirIterator files(QLatin1String(SOURCE_DIRECTORY "/") + directory, patterns, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("a source file can't be read");
        }
        const QString source = QString::fromUtf8(file.readAll());
        QStringList contexts(context);
        const bool namesPlugin = source.contains(QLatin1String("\"PriorityPlugin\"")) ||
                                 source.contains(QLatin1String("ShowMessage("));
        if (namesPlugin && context != QLatin1String("PriorityPlugin")) {
            contexts.append(QLatin1String("PriorityPlugin"));
        }
        const QString start = QLatin1String("\"IDS_");
        for (int at = source.indexOf(start); at >= 0; at = source.indexOf(start, at + 1)) {
            Use use;
            use.id = source.mid(at + 1, source.indexOf(QLatin1Char('"'), at + 1) - at - 1);
            use.place = QString::fromLatin1("%1:%2")
                            .arg(QFileInfo(file).fileName())
                            .arg(source.left(at).count(QLatin1Char('\n')) + 1);
            foreach (const QString &name, contexts) {
                use.keys.append(name + QLatin1Char('/') + use.id);
            }
            uses.append(use);
        }
    }
    return uses;
}

QList<Use> AllUses()
{
    return UsesIn(QLatin1String("src/PriorityPlugin"), QLatin1String("PriorityPlugin")) +
           UsesIn(QLatin1String("host/coreui"), QLatin1String("PriorityPlugin")) +
           UsesIn(QLatin1String("host/dashboard"), QLatin1String("Dashboard")) +
           UsesIn(QLatin1String("host/kcm"), QLatin1String("Dashboard")) +
           UsesIn(QLatin1String("wlan"), QLatin1String("WLAN"));
}

/** "%1", "%2", "%n" and the like, each once, sorted. */
QStringList Placeholders(const QString &text)
{
    QSet<QString> found;
    for (int at = text.indexOf(QLatin1Char('%')); at >= 0; at = text.indexOf(QLatin1Char('%'), at + 1)) {
        const QChar next = at + 1 < text.size() ? text.at(at + 1) : QChar();
        if (next.isDigit() || next == QLatin1Char('n') || next == QLatin1Char('L')) {
            found.insert(text.mid(at, 2));
        }
    }
    QStringList placeholders = found.values();
    placeholders.sort();
    return placeholders;
}

/** How many letters of text are meant to be pressed with Alt. A sign "&" stands between blanks. */
int Mnemonics(const QString &text)
{
    int mnemonics = 0;
    for (int i = 0; i + 1 < text.size(); ++i) {
        mnemonics += text.at(i) == QLatin1Char('&') && text.at(i + 1).isLetterOrNumber() ? 1 : 0;
    }
    return mnemonics;
}

/** A caption as it is spoken of: without its mnemonic, and without the letter that was put behind it for
 * that. */
QString WithoutMnemonic(QString text)
{
    const int letterInBrackets = text.indexOf(QLatin1String("(&"));
    return letterInBrackets < 0 ? text.remove(QLatin1Char('&')) : text.left(letterInBrackets);
}

/** What text says in quotation marks, without what is put in later. */
QStringList Quotations(const QString &text)
{
    QStringList quotations;
    const QChar begin(0x201c);
    const QChar end(0x201d);
    for (int at = text.indexOf(begin); at >= 0; at = text.indexOf(begin, at + 1)) {
        const QString quotation = text.mid(at + 1, text.indexOf(end, at) - at - 1);
        if (!quotation.startsWith(QLatin1Char('%'))) {
            quotations.append(quotation);
        }
    }
    return quotations;
}

bool HasNumber(const QString &text, const QString &number)
{
    for (int at = text.indexOf(number); at >= 0; at = text.indexOf(number, at + 1)) {
        const QChar before = at > 0 ? text.at(at - 1) : QChar();
        const QChar after = at + number.size() < text.size() ? text.at(at + number.size()) : QChar();
        if (!before.isDigit() && !after.isDigit()) {
            return true;
        }
    }
    return false;
}

QByteArray Content(const QString &fileName)
{
    QFile file(LanguageSource::Directory() + QLatin1Char('/') + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("a language file can't be read");
    }
    return file.readAll();
}

/** A language file of one context, laid out as ours are. */
QByteArray File(const QByteArray &language, const QByteArray &messages)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"" +
           language + "\">\n<context>\n    <name>Sample</name>\n" + messages + "</context>\n</TS>\n";
}

QByteArray Text(const QByteArray &id, const QByteArray &text)
{
    return "    <message>\n        <source>" + id + "</source>\n        <translation>" + text +
           "</translation>\n    </message>\n";
}

struct Completed {
    int status;
    QByteArray said;
};

/** What the script that completes language files does with those in directory. */
Completed Complete(const QString &directory)
{
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(LanguageSource::Directory() + QLatin1String("/complete"), QStringList(directory));
    const bool isFinished = script.waitForFinished();
    Completed completed;
    completed.status = isFinished ? script.exitCode() : -1;
    completed.said = script.readAll();
    return completed;
}

void AddLanguageRows()
{
    QTest::addColumn<QString>("language");
    foreach (const QString &language, LanguageSource::Languages()) {
        Row(language.toLatin1().constData(), language);
    }
}

} // namespace

/** Each test tells all that is wrong at once, so that it can be put right at once. */
#define COMPARE_WITH_NONE(problems)                                                                          \
    QVERIFY2((problems).isEmpty(),                                                                           \
             (QByteArray("\n    ") + (problems).join(QLatin1String("\n    ")).toUtf8()).constData())

class TestLanguageFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void languagesAreThoseOfTheProduct();
    void fileNamesItsLanguage_data() { AddLanguageRows(); }
    void fileNamesItsLanguage();
    void everyTextInUseIsInTheEnglishFile();
    void everyTextInTheEnglishFileIsInUse();
    void everyLanguageHasTheTextsOfTheEnglishFile_data() { AddLanguageRows(); }
    void everyLanguageHasTheTextsOfTheEnglishFile();
    void noTextIsUnfinishedOrEmptyOrThereTwice_data() { AddLanguageRows(); }
    void noTextIsUnfinishedOrEmptyOrThereTwice();
    void placeholdersAreThoseOfTheEnglishText_data() { AddLanguageRows(); }
    void placeholdersAreThoseOfTheEnglishText();
    void mnemonicsAreWhereTheEnglishTextHasThem_data() { AddLanguageRows(); }
    void mnemonicsAreWhereTheEnglishTextHasThem();
    void signsAreThoseOfPrintNotOfTypewriters_data() { AddLanguageRows(); }
    void signsAreThoseOfPrintNotOfTypewriters();
    void embeddingsAreClosed_data() { AddLanguageRows(); }
    void embeddingsAreClosed();
    void textsBeginInTheDirectionOfTheLanguage_data();
    void textsBeginInTheDirectionOfTheLanguage();
    void digitsAreThoseOfTheLanguage_data() { AddLanguageRows(); }
    void digitsAreThoseOfTheLanguage();
    void everyTextIsInTheCompiledFile_data() { AddLanguageRows(); }
    void everyTextIsInTheCompiledFile();
    void keyNoticesTellLengthsAndSigns_data();
    void keyNoticesTellLengthsAndSigns();
    void textsNameButtonsByTheirCaptions_data() { AddLanguageRows(); }
    void textsNameButtonsByTheirCaptions();
    void damagedFileFailsTheBuildWithItsLine_data();
    void damagedFileFailsTheBuildWithItsLine();
    void completingPutsInWhatIsMissing();
    void completingLeavesWholeFilesAsTheyAre();
    void completingLeavesACutFileAlone();
    void completingNeedsAWholeEnglishFile();

private:
    QMap<QString, Message> m_english;
};

void TestLanguageFiles::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    m_english = LanguageSource(English()).ByKey();
}

void TestLanguageFiles::languagesAreThoseOfTheProduct()
{
    QCOMPARE(LanguageSource::Languages().join(QLatin1String(" ")),
             QString(QLatin1String("ar de en es fr he ja pt_BR ru zh_CN")));
    QCOMPARE(HostControl::LanguageNames(), LanguageSource::Languages());
}

void TestLanguageFiles::fileNamesItsLanguage()
{
    // The plural forms follow it.
    QFETCH(QString, language);
    QCOMPARE(LanguageSource(language).Language(), language);
}

void TestLanguageFiles::everyTextInUseIsInTheEnglishFile()
{
    QStringList missing;
    const QList<Use> uses = AllUses();
    QVERIFY(uses.size() > m_english.size());
    foreach (const Use &use, uses) {
        bool isThere = false;
        foreach (const QString &key, use.keys) {
            isThere = isThere || m_english.contains(key);
        }
        if (!isThere) {
            missing.append(
                QString::fromLatin1("%1 needs %2, which en.ts lacks").arg(use.place, use.keys.first()));
        }
    }
    COMPARE_WITH_NONE(missing);
}

void TestLanguageFiles::everyTextInTheEnglishFileIsInUse()
{
    QSet<QString> used;
    foreach (const Use &use, AllUses()) {
        foreach (const QString &key, use.keys) {
            used.insert(key);
        }
    }
    const LanguageSource english(English());
    QStringList unused;
    foreach (const Message &message, english.Messages()) {
        if (!used.contains(message.key)) {
            unused.append(english.Place(message) + QLatin1String(" is used nowhere"));
        }
    }
    COMPARE_WITH_NONE(unused);
}

void TestLanguageFiles::everyLanguageHasTheTextsOfTheEnglishFile()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    const QMap<QString, Message> messages = source.ByKey();
    const LanguageSource english(English());
    QStringList problems;
    foreach (const Message &message, english.Messages()) {
        if (!messages.contains(message.key)) {
            problems.append(
                QString::fromLatin1("%1.ts lacks the text of %2").arg(language, english.Place(message)));
        } else if (messages.value(message.key).isCounted != message.isCounted) {
            problems.append(source.Place(messages.value(message.key)) +
                            QLatin1String(" differs in being counted"));
        }
    }
    foreach (const Message &message, source.Messages()) {
        if (!m_english.contains(message.key)) {
            problems.append(source.Place(message) + QLatin1String(" is not in en.ts"));
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::noTextIsUnfinishedOrEmptyOrThereTwice()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    QVERIFY(!source.Messages().isEmpty());
    QSet<QString> seen;
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        bool isEmpty = message.texts.isEmpty();
        foreach (const QString &text, message.texts) {
            isEmpty = isEmpty || text.trimmed().isEmpty();
        }
        if (isEmpty) {
            problems.append(source.Place(message) + QLatin1String(" is empty"));
        }
        if (!message.isFinished) {
            problems.append(source.Place(message) + QLatin1String(" is unfinished"));
        }
        if (seen.contains(message.key)) {
            problems.append(source.Place(message) + QLatin1String(" is there twice"));
        }
        seen.insert(message.key);
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::placeholdersAreThoseOfTheEnglishText()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        const QStringList expected = Placeholders(m_english.value(message.key).texts.value(0));
        foreach (const QString &text, message.texts) {
            if (Placeholders(text) != expected) {
                problems.append(source.Place(message) + QLatin1String(" should have ") +
                                (expected.isEmpty() ? QString(QLatin1String("no placeholders"))
                                                    : expected.join(QLatin1String(" "))));
            }
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::mnemonicsAreWhereTheEnglishTextHasThem()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        const int expected = Mnemonics(m_english.value(message.key).texts.value(0));
        if (Mnemonics(message.texts.value(0)) != expected) {
            problems.append(QString::fromLatin1("%1 should have %2 letters after \"&\"")
                                .arg(source.Place(message))
                                .arg(expected));
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::signsAreThoseOfPrintNotOfTypewriters()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    const char *const signsOfTypewriters[] = {"\"", "'", "...", "  ", " :", " ?", " !", " ;", "<", ">"};
    const QString allowedSigns = QLatin1String("- _ ~ ! @ # $ % ^ & * ( ) + { } [ ] :");
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        foreach (QString text, message.texts) {
            text.remove(allowedSigns);
            for (const char *sign : signsOfTypewriters) {
                if (text.contains(QLatin1String(sign))) {
                    problems.append(source.Place(message) +
                                    QString::fromLatin1(" has \"%1\" in it").arg(QLatin1String(sign)));
                }
            }
            if (text != text.trimmed() && !text.endsWith(QLatin1Char('\n'))) {
                problems.append(source.Place(message) + QLatin1String(" begins or ends with a blank"));
            }
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::embeddingsAreClosed()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        foreach (const QString &text, message.texts) {
            int open = 0;
            bool isOrdered = true;
            foreach (const QChar character, text) {
                open += character == QChar(0x202a) || character == QChar(0x202b) ? 1 : 0;
                open -= character == QChar(0x202c) ? 1 : 0;
                isOrdered = isOrdered && open >= 0 && (open == 0 || character != QLatin1Char('\n'));
            }
            if (open != 0 || !isOrdered) {
                problems.append(source.Place(message) + QLatin1String(" leaves an embedded direction open"));
            }
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::textsBeginInTheDirectionOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    Row("ar", "ar");
    Row("he", "he");
}

void TestLanguageFiles::textsBeginInTheDirectionOfTheLanguage()
{
    // What a text begins with decides how all of it is laid out, even if that is put in later.
    QFETCH(QString, language);
    const LanguageSource source(language);
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        if (message.key == QLatin1String("Dashboard/IDS_IMPORT_EFFECT_UNKNOWN")) {
            continue; // begins with another text of the language
        }
        QString text = message.texts.value(0);
        bool hasLetters = false;
        foreach (const QChar character, text) {
            hasLetters =
                hasLetters || character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
        }
        text.replace(QLatin1String("%1"), QLatin1String("A"));
        if (hasLetters && !text.isRightToLeft()) {
            problems.append(source.Place(message) + QLatin1String(" would be laid out from left to right"));
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::digitsAreThoseOfTheLanguage()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    const ushort zero = QLocale(language).toString(0).at(0).unicode();
    // Latin texts such as paths have their own, and placeholders are none.
    const QString others = QString::fromUtf8("\u202a.*?\u202c|%[0-9]");
    QStringList problems;
    foreach (const Message &message, source.Messages()) {
        const QString text = TextPattern::Replaced(message.texts.value(0), others, QString());
        foreach (const QChar character, text) {
            if (character.isDigit() && character.unicode() - character.digitValue() != zero) {
                problems.append(source.Place(message) + QLatin1String(" has other digits: ") + text);
                break;
            }
        }
    }
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::everyTextIsInTheCompiledFile()
{
    QFETCH(QString, language);
    QVERIFY(HostControl::SetLanguage(language));
    foreach (const Message &message, LanguageSource(language).Messages()) {
        if (message.isCounted) {
            continue;
        }
        const QString context = message.key.section(QLatin1Char('/'), 0, 0);
        const QString id = message.key.section(QLatin1Char('/'), 1);
        QCOMPARE(Change::tr(id, context), message.texts.first());
    }
}

void TestLanguageFiles::keyNoticesTellLengthsAndSigns_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("lengths");
    foreach (const QString &language, LanguageSource::Languages()) {
        Row((language.toLatin1() + " WEP").constData(), language, "IDS_ERROR_KEY_WRONG_LENGTH_40",
            "5 13 10 26 32");
        Row((language.toLatin1() + " WPA").constData(), language, "IDS_ERROR_KEY_WRONG_LENGTH_128",
            "8 63 64");
    }
}

void TestLanguageFiles::keyNoticesTellLengthsAndSigns()
{
    QFETCH(QString, language);
    QFETCH(QString, id);
    QFETCH(QString, lengths);
    const QString text =
        LanguageSource(language).ByKey().value(QLatin1String("PriorityPlugin/") + id).texts.value(0);
    foreach (const QString &length, lengths.split(QLatin1Char(' '))) {
        QVERIFY2(HasNumber(text, QLocale(language).toString(length.toInt())), qPrintable(length));
    }
    QVERIFY(text.contains(QLatin1String("- _ ~ ! @ # $ % ^ & * ( ) + { } [ ] :")));
    QString digits = text;
    digits.remove(QChar(0x2060));
    QVERIFY(digits.contains(QString::fromUtf8("0–9")));
    QVERIFY(digits.contains(QString::fromUtf8("a–f")));
    QVERIFY(digits.contains(QString::fromUtf8("A–F")));
}

void TestLanguageFiles::textsNameButtonsByTheirCaptions()
{
    QFETCH(QString, language);
    const LanguageSource source(language);
    const QMap<QString, Message> messages = source.ByKey();
    QStringList problems;
    int quotations = 0;
    foreach (const Message &message, LanguageSource(English()).Messages()) {
        foreach (const QString &quotation, Quotations(message.texts.value(0))) {
            // What a button or a menu says in English has this in the language.
            bool isCaption = false;
            bool isNamed = false;
            const QString text = messages.value(message.key).texts.value(0);
            foreach (const Message &other, m_english) {
                if (WithoutMnemonic(other.texts.value(0)) == quotation) {
                    isCaption = true;
                    const QString caption = WithoutMnemonic(messages.value(other.key).texts.value(0));
                    isNamed = isNamed || (!caption.isEmpty() && text.contains(caption));
                }
            }
            ++quotations;
            if (!isCaption || !isNamed) {
                problems.append(source.Place(messages.value(message.key)) +
                                QString::fromUtf8(" should name what “%1” is called").arg(quotation));
            }
        }
    }
    QVERIFY(quotations > 5);
    COMPARE_WITH_NONE(problems);
}

void TestLanguageFiles::damagedFileFailsTheBuildWithItsLine_data()
{
    QTest::addColumn<QByteArray>("whole");
    QTest::addColumn<QByteArray>("damaged");
    QTest::addColumn<int>("line");
    Row("tag not closed", QByteArray("&amp;Up</translation>"), QByteArray("&amp;Up</translatio>"), 24);
    Row("entity", QByteArray("&amp;Down<"), QByteArray("Up & down<"), 29);
    Row("cut off", QByteArray(">&amp;Add<"), QByteArray(), 34);
}

void TestLanguageFiles::damagedFileFailsTheBuildWithItsLine()
{
    QFETCH(QByteArray, whole);
    QFETCH(QByteArray, damaged);
    QFETCH(int, line);
    QByteArray content = Content(QLatin1String("en.ts"));
    QVERIFY(content.contains(whole));
    if (damaged.isNull()) {
        content.truncate(content.indexOf(whole));
    } else {
        content.replace(whole, damaged);
    }
    const TemporaryDirectory directory;
    directory.Write(QLatin1String("xx.ts"), content);
    QProcess compiler;
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    compiler.start(QLatin1String(LANGUAGE_COMPILER),
                   QStringList() << directory.FilePath(QLatin1String("xx.ts")) << QLatin1String("-qm")
                                 << directory.FilePath(QLatin1String("xx.qm")));
    QVERIFY(compiler.waitForFinished());
    const QByteArray output = compiler.readAll();
    QVERIFY(compiler.exitCode() != 0);
    QVERIFY2(output.contains("xx.ts:" + QByteArray::number(line) + ":"), output.constData());
    QVERIFY(!QFile::exists(directory.FilePath(QLatin1String("xx.qm"))));
}

void TestLanguageFiles::completingPutsInWhatIsMissing()
{
    const TemporaryDirectory directory;
    directory.Write(QLatin1String("en.ts"), File("en", Text("IDS_A", "First") + Text("IDS_B", "Second")));
    directory.Write(QLatin1String("de.ts"), File("de", Text("IDS_OLD", "Alt") + Text("IDS_B", "Zweiter")));
    const Completed completed = Complete(directory.Path());
    QCOMPARE(completed.status, 0);
    QCOMPARE(directory.Read(QLatin1String("de.ts")),
             File("de", Text("IDS_A", "First").replace("<translation>", "<translation type=\"unfinished\">") +
                            Text("IDS_B", "Zweiter")));
    QCOMPARE(completed.said, QByteArray("de.ts: Sample/IDS_A is to be translated\n"
                                        "de.ts: Sample/IDS_OLD is no longer used\n"));
}

void TestLanguageFiles::completingLeavesWholeFilesAsTheyAre()
{
    const TemporaryDirectory directory;
    foreach (const QString &language, LanguageSource::Languages()) {
        const QString name = language + QLatin1String(".ts");
        directory.Write(name, Content(name));
    }
    const Completed completed = Complete(directory.Path());
    QCOMPARE(completed.said, QByteArray());
    QCOMPARE(completed.status, 0);
    foreach (const QString &language, LanguageSource::Languages()) {
        const QString name = language + QLatin1String(".ts");
        QVERIFY2(directory.Read(name) == Content(name), name.toLatin1().constData());
    }
}

void TestLanguageFiles::completingLeavesACutFileAlone()
{
    const TemporaryDirectory directory;
    const QByteArray cut = File("de", Text("IDS_A", "Erster")).replace("</TS>\n", "");
    directory.Write(QLatin1String("en.ts"), File("en", Text("IDS_A", "First") + Text("IDS_B", "Second")));
    directory.Write(QLatin1String("de.ts"), cut);
    directory.Write(QLatin1String("fr.ts"), File("fr", Text("IDS_A", "Premier")));
    const Completed completed = Complete(directory.Path());
    QCOMPARE(completed.status, 1);
    QVERIFY2(completed.said.startsWith("de.ts:10: the file is cut off\n"), completed.said.constData());
    QCOMPARE(directory.Read(QLatin1String("de.ts")), cut);
    QVERIFY(directory.Read(QLatin1String("fr.ts")).contains("IDS_B"));
}

void TestLanguageFiles::completingNeedsAWholeEnglishFile()
{
    const TemporaryDirectory directory;
    const QByteArray german = File("de", Text("IDS_A", "Erster") + Text("IDS_B", "Zweiter"));
    directory.Write(QLatin1String("en.ts"), File("en", Text("IDS_A", "First")).replace("</TS>\n", ""));
    directory.Write(QLatin1String("de.ts"), german);
    const Completed completed = Complete(directory.Path());
    QCOMPARE(completed.status, 1);
    QCOMPARE(completed.said, QByteArray("en.ts:10: the file is cut off\n"));
    QCOMPARE(directory.Read(QLatin1String("de.ts")), german);
}

QTEST_MAIN(TestLanguageFiles)
#include "tst_languagefiles.moc"
