#include <Change.h>
#include <HostControl.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QtTest>

namespace
{

QString Tr(const char *id, const char *context = "Sample")
{
    return Change::tr(QLatin1String(id), QLatin1String(context));
}

QByteArray CompiledLanguage(const char *name)
{
    QFile file(QLatin1String(BUILD_DIRECTORY "/tests/languages/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("a compiled language is missing");
    }
    return file.readAll();
}

} // namespace

class TestChange : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void languagesAreTheFilesThere();
    void textIsTheLanguages();
    void textIsTheContexts();
    void missingTextIsEnglish();
    void textThatNoLanguageHasIsItsId();
    void unknownContextGivesTheId();
    void textsCanBeMissingInEnglish();
    void damagedEnglishLeavesTheOthersUsable();
    void unusableLanguageChangesNothing_data();
    void unusableLanguageChangesNothing();
    void everyCutOffFileGivesWholeTexts();
    void replacedFileDoesNotReachTheLanguageInUse();
    void textInAnotherLanguage_data();
    void textInAnotherLanguage();
    void fileThatCannotBeReadIsNamedWithTheReason();
    void fileWithoutTextsIsNamed_data();
    void fileWithoutTextsIsNamed();
    void wholeFilesAreNoProblem();

private:
    QScopedPointer<TemporaryDirectory> m_directory;
};

void TestChange::init()
{
    m_directory.reset(new TemporaryDirectory);
    m_directory->Write(QLatin1String("en.qm"), CompiledLanguage("en.qm"));
    m_directory->Write(QLatin1String("eo.qm"), CompiledLanguage("eo.qm"));
    HostControl::SetLanguageDirectory(m_directory->Path());
    QVERIFY(HostControl::SetLanguage(QLatin1String("en")));
}

void TestChange::languagesAreTheFilesThere()
{
    m_directory->Write(QLatin1String("de.txt"), "no language");
    m_directory->Write(QLatin1String(".qm"), "no name");
    m_directory->Write(QLatin1String("ar.qm"), CompiledLanguage("eo.qm"));
    QVERIFY(QDir(m_directory->Path()).mkdir(QLatin1String("folder.qm")));
    QCOMPARE(HostControl::LanguageNames(), QString(QLatin1String("ar en eo")).split(QLatin1Char(' ')));
}

void TestChange::textIsTheLanguages()
{
    QCOMPARE(Tr("IDS_BOTH"), QString(QLatin1String("both")));
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    QCOMPARE(Change::GetLangName(), QString(QLatin1String("eo")));
    QCOMPARE(Tr("IDS_BOTH"), QString::fromUtf8("ambaŭ"));
}

void TestChange::textIsTheContexts()
{
    QCOMPARE(Tr("IDS_TWO_CONTEXTS", "Sample"), QString(QLatin1String("of the sample")));
    QCOMPARE(Tr("IDS_TWO_CONTEXTS", "Other"), QString(QLatin1String("of the other")));
}

void TestChange::missingTextIsEnglish()
{
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    QCOMPARE(Tr("IDS_ENGLISH_ONLY"), QString(QLatin1String("English only")));
}

void TestChange::textThatNoLanguageHasIsItsId()
{
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    QCOMPARE(Tr("IDS_NOWHERE"), QString(QLatin1String("IDS_NOWHERE")));
    QCOMPARE(Tr(""), QString(QLatin1String("")));
}

void TestChange::unknownContextGivesTheId()
{
    QCOMPARE(Tr("IDS_BOTH", "Nobody"), QString(QLatin1String("IDS_BOTH")));
}

void TestChange::textsCanBeMissingInEnglish()
{
    QCOMPARE(Tr("IDS_OWN_ONLY"), QString(QLatin1String("IDS_OWN_ONLY")));
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    QCOMPARE(Tr("IDS_OWN_ONLY"), QString(QLatin1String("nur Esperante")));
}

void TestChange::damagedEnglishLeavesTheOthersUsable()
{
    m_directory->Write(QLatin1String("en.qm"), "damaged");
    HostControl::SetLanguageDirectory(m_directory->Path());
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    QCOMPARE(Tr("IDS_BOTH"), QString::fromUtf8("ambaŭ"));
    QCOMPARE(Tr("IDS_ENGLISH_ONLY"), QString(QLatin1String("IDS_ENGLISH_ONLY")));
}

void TestChange::unusableLanguageChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = CompiledLanguage("eo.qm");
    Row("missing", "xx", QByteArray());
    Row("missing, with a region", "en_GB", QByteArray());
    Row("no name", "", QByteArray());
    Row("path out of the directory", "../en", QByteArray());
    Row("name with suffix", "en.qm", QByteArray());
    Row("empty", "xx", QByteArray(""));
    Row("other format", "xx", QByteArray("<?xml version=\"1.0\"?><TS/>"));
    Row("cut off in the middle", "xx", whole.left(whole.size() / 2));
    Row("signature only", "xx", whole.left(16));
    Row("no texts", "xx", CompiledLanguage("nothing.qm"));
}

void TestChange::unusableLanguageChangesNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    if (!bytes.isNull()) {
        m_directory->Write(name + QLatin1String(".qm"), bytes);
    }
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));

    QVERIFY(!HostControl::SetLanguage(name));
    QCOMPARE(Change::GetLangName(), QString(QLatin1String("eo")));
    QCOMPARE(Tr("IDS_BOTH"), QString::fromUtf8("ambaŭ"));
}

void TestChange::everyCutOffFileGivesWholeTexts()
{
    const QByteArray whole = CompiledLanguage("eo.qm");
    for (int length = 0; length < whole.size(); ++length) {
        m_directory->Write(QLatin1String("xx.qm"), whole.left(length));
        QVERIFY(HostControl::SetLanguage(QLatin1String("en")));
        const bool used = HostControl::SetLanguage(QLatin1String("xx"));
        const QString text = Tr("IDS_BOTH");
        QCOMPARE(Change::GetLangName(), QString(QLatin1String(used ? "xx" : "en")));
        const bool isEnglish = text == QLatin1String("both");
        QVERIFY2(isEnglish || (used && text == QString::fromUtf8("ambaŭ")), qPrintable(text));
    }
}

void TestChange::replacedFileDoesNotReachTheLanguageInUse()
{
    QVERIFY(HostControl::SetLanguage(QLatin1String("eo")));
    m_directory->Write(QLatin1String("eo.qm"), "");
    QCOMPARE(Tr("IDS_BOTH"), QString::fromUtf8("ambaŭ"));
}

void TestChange::textInAnotherLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("text");
    Row("there", "eo", "IDS_BOTH", QString::fromUtf8("ambaŭ"));
    Row("in use", "en", "IDS_BOTH", "both");
    Row("in English only", "eo", "IDS_ENGLISH_ONLY", "");
    Row("no such language", "xx", "IDS_BOTH", "");
    Row("path out of the directory", "../en", "IDS_BOTH", "");
}

void TestChange::textInAnotherLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, id);
    QTEST(HostControl::TextIn(language, id, QLatin1String("Sample")), "text");
    QCOMPARE(Change::GetLangName(), QString(QLatin1String("en")));
}

void TestChange::fileThatCannotBeReadIsNamedWithTheReason()
{
    // Root may read every file, but nobody can read this one from its start.
    QVERIFY(QFile::link(QLatin1String("/proc/self/mem"), m_directory->FilePath(QLatin1String("xx.qm"))));
    const QList<LanguageProblem> problems = HostControl::LanguageProblems();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().path, m_directory->FilePath(QLatin1String("xx.qm")));
    QCOMPARE(problems.first().kind, LanguageProblem::Unreadable);
    QVERIFY(!problems.first().reason.isEmpty());
    QVERIFY(!HostControl::LanguageNames().contains(QLatin1String("xx")));
    QVERIFY(!HostControl::SetLanguage(QLatin1String("xx")));
}

void TestChange::fileWithoutTextsIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    Row("no texts", CompiledLanguage("nothing.qm"));
    Row("signature only", CompiledLanguage("eo.qm").left(16));
    Row("empty", QByteArray(""));
    Row("other format", QByteArray("<?xml version=\"1.0\"?><TS/>"));
    Row("cut off", CompiledLanguage("eo.qm").left(CompiledLanguage("eo.qm").size() / 2));
}

void TestChange::fileWithoutTextsIsNamed()
{
    QFETCH(QByteArray, bytes);
    m_directory->Write(QLatin1String("xx.qm"), bytes);
    const QList<LanguageProblem> problems = HostControl::LanguageProblems();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().path, m_directory->FilePath(QLatin1String("xx.qm")));
    QCOMPARE(problems.first().kind, LanguageProblem::NoTexts);
    QCOMPARE(m_directory->Read(QLatin1String("xx.qm")), bytes);
    QVERIFY(!HostControl::LanguageNames().contains(QLatin1String("xx")));
}

void TestChange::wholeFilesAreNoProblem()
{
    QVERIFY(HostControl::LanguageProblems().isEmpty());
    HostControl::SetLanguageDirectory(QString());
    QVERIFY(HostControl::LanguageProblems().isEmpty());
    HostControl::SetLanguageDirectory(m_directory->FilePath(QLatin1String("absent")));
    QVERIFY(HostControl::LanguageProblems().isEmpty());
}

QTEST_MAIN(TestChange)
#include "tst_change.moc"
