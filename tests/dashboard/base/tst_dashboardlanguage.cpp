#include <Change.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

class DashboardLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void FirstLanguageThatThereIsCounts_data();
    void FirstLanguageThatThereIsCounts();
    void SystemsLanguagesAreThoseOfTheEnvironment_data();
    void SystemsLanguagesAreThoseOfTheEnvironment();
    void SwitchIsTold();
    void SwitchSetsTheReadingDirection_data();
    void SwitchSetsTheReadingDirection();
    void SwitchKeepsTheChoice();
    void SwitchToTheSameTellsNobody();
    void UnknownLanguageChangesNothing();
    void LanguagesAreCalledByTheirOwnNames_data();
    void LanguagesAreCalledByTheirOwnNames();
    void ToolkitsOwnTextsFollowTheLanguage();
    void ProblemNamesTheFile_data();
    void ProblemNamesTheFile();

private:
    QScopedPointer<TemporaryDirectory> m_directory;
};

void DashboardLanguageTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

void DashboardLanguageTest::cleanup()
{
    m_directory.reset();
}

void DashboardLanguageTest::FirstLanguageThatThereIsCounts_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("chosen");
    Row("wanted", "ar", "he", "en_GB", "ar");
    Row("stored", "", "he", "ar_EG", "he");
    Row("stored one is gone", "", "tlh", "ar_EG", "ar");
    Row("system, exactly", "", "", "pt_BR", "pt_BR");
    Row("system, without region", "", "", "he_IL", "he");
    Row("system, region that there is not", "", "", "pt_PT", "pt_BR");
    Row("system, no region at all", "", "", "pt", "pt_BR");
    Row("system, same script", "", "", "zh_SG", "zh_CN");
    Row("system, Taiwan", "", "", "zh_TW", "en");
    Row("system, Hong Kong", "", "", "zh_HK", "en");
    Row("system, first of several", "", "", "fi_FI zh_TW he_IL ar_EG", "he");
    Row("system, similar name", "", "", "arn_CL", "en");
    Row("none of them", "", "", "fi_FI", "en");
    Row("plain C", "", "", "C", "en");
    Row("nothing known", "", "", "", "en");
}

void DashboardLanguageTest::FirstLanguageThatThereIsCounts()
{
    QFETCH(QString, wanted);
    QFETCH(QString, stored);
    QFETCH(QString, system);
    const QStringList available = QStringList() << "ar"
                                                << "en"
                                                << "he"
                                                << "pt_BR"
                                                << "zh_CN";
    QTEST(DashboardLanguage::Choose(wanted, stored, system.split(' '), available), "chosen");
}

void DashboardLanguageTest::SystemsLanguagesAreThoseOfTheEnvironment_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<QString>("locales");
    Row("LANG", QStringList("LANG=de_AT.UTF-8"), "de_AT");
    Row("messages before LANG",
        (QStringList() << "LANG=de_AT.UTF-8"
                       << "LC_MESSAGES=fr_CA.UTF-8"),
        "fr_CA");
    Row("numbers are no texts",
        (QStringList() << "LANG=fr_CA.UTF-8"
                       << "LC_NUMERIC=de_AT.UTF-8"),
        "fr_CA");
    Row("several, in order",
        (QStringList() << "LANG=en_GB.UTF-8"
                       << "LANGUAGE=zh_TW:pt"),
        "zh_TW pt_BR");
    Row("old name", QStringList("LANG=iw_IL.UTF-8"), "he_IL");
    Row("C", QStringList("LANG=C.UTF-8"), "");
    Row("none", QStringList(), "");
}

void DashboardLanguageTest::SystemsLanguagesAreThoseOfTheEnvironment()
{
    // Qt looks at the environment once in a process.
    QFETCH(QStringList, environment);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const char *const names[] = {"LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LANG", "LANGUAGE"};
    for (const char *name : names) {
        variables.remove(QLatin1String(name));
    }
    foreach (const QString &assignment, environment) {
        variables.insert(assignment.section('=', 0, 0), assignment.section('=', 1));
    }
    QProcess process;
    process.setProcessEnvironment(variables);
    process.start(BUILD_DIRECTORY "/tests/systemlanguages", QStringList());
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QTEST(QString::fromLatin1(process.readAllStandardOutput()).trimmed(), "locales");
}

void DashboardLanguageTest::SwitchIsTold()
{
    DashboardLanguage language(nullptr);
    QSignalSpy spy(&language, SIGNAL(Switched()));
    QVERIFY(language.Switch("ar"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(Change::GetLangName(), QString("ar"));
}

void DashboardLanguageTest::SwitchSetsTheReadingDirection_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("direction");
    Row("ar", "ar", static_cast<int>(Qt::RightToLeft));
    Row("he", "he", static_cast<int>(Qt::RightToLeft));
    Row("en", "en", static_cast<int>(Qt::LeftToRight));
}

void DashboardLanguageTest::SwitchSetsTheReadingDirection()
{
    QFETCH(QString, name);
    DashboardLanguage language(nullptr);
    QVERIFY(language.Switch(name == "en" ? "ar" : "en"));
    QVERIFY(language.Switch(name));
    QTEST(static_cast<int>(QApplication::layoutDirection()), "direction");
}

void DashboardLanguageTest::SwitchKeepsTheChoice()
{
    DashboardLanguage language(nullptr);
    QCOMPARE(DashboardLanguage::Stored(), QString());
    QVERIFY(language.Switch("he"));
    QCOMPARE(DashboardLanguage::Stored(), QString("he"));
    QVERIFY(m_directory->Read("priority-dashboard/dashboard.ini").contains("language=he"));
}

void DashboardLanguageTest::SwitchToTheSameTellsNobody()
{
    DashboardLanguage language(nullptr);
    QSignalSpy spy(&language, SIGNAL(Switched()));
    QVERIFY(language.Switch("en"));
    QCOMPARE(spy.count(), 0);
}

void DashboardLanguageTest::UnknownLanguageChangesNothing()
{
    DashboardLanguage language(nullptr);
    QSignalSpy spy(&language, SIGNAL(Switched()));
    QVERIFY(!language.Switch("tlh"));
    QCOMPARE(Change::GetLangName(), QString("en"));
    QCOMPARE(DashboardLanguage::Stored(), QString());
    QCOMPARE(spy.count(), 0);
}

void DashboardLanguageTest::LanguagesAreCalledByTheirOwnNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("native");
    Row("ar", "ar", QString::fromUtf8("العربية"));
    Row("de", "de", "Deutsch");
    Row("en", "en", "English");
    Row("es", "es", QString::fromUtf8("Español"));
    Row("fr", "fr", QString::fromUtf8("Français"));
    Row("he", "he", QString::fromUtf8("עברית"));
    Row("ja", "ja", QString::fromUtf8("日本語"));
    Row("pt_BR", "pt_BR", QString::fromUtf8("Português (Brasil)"));
    Row("ru", "ru", QString::fromUtf8("Русский"));
    Row("zh_CN", "zh_CN", QString::fromUtf8("简体中文"));
    Row("one without a file", "fi", "suomi");
    Row("one that nobody knows", "xx", "xx");
}

void DashboardLanguageTest::LanguagesAreCalledByTheirOwnNames()
{
    QFETCH(QString, name);
    QTEST(DashboardLanguage::NativeName(name), "native");
}

void DashboardLanguageTest::ToolkitsOwnTextsFollowTheLanguage()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString installed = QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm";
#else
    const QString installed = QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm";
#endif
    if (!QFile::exists(installed)) {
        QSKIP("Qt's own translations are not installed (package qttranslations5-l10n).");
    }
    QVERIFY(DashboardLanguage::Apply("de"));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Abbrechen"));
    QVERIFY(DashboardLanguage::Apply("pt_BR"));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancelar"));
    QVERIFY(DashboardLanguage::Apply("en"));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
}

void DashboardLanguageTest::ProblemNamesTheFile_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    Row("not readable", static_cast<int>(LanguageProblem::Unreadable),
        "The language file /l/de.qm cannot be read: no %2 memory");
    Row("no texts", static_cast<int>(LanguageProblem::NoTexts),
        "The language file /l/de.qm has no texts that can be used, so it is not used.");
}

void DashboardLanguageTest::ProblemNamesTheFile()
{
    QFETCH(int, kind);
    LanguageProblem problem;
    problem.path = "/l/de.qm";
    problem.kind = static_cast<LanguageProblem::Kind>(kind);
    problem.reason = "no %2 memory";
    QTEST(DashboardLanguage::ProblemText(problem), "text");
}

QTEST_MAIN(DashboardLanguageTest)
#include "tst_dashboardlanguage.moc"
