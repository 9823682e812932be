#include "Installation.h"

#include <TemporaryDirectory.h>

#include <QDir>
#include <QtTest>

/** Where the program looks for what belongs to it; the paths are those that this build was configured for. */
class InstallationTest : public QObject
{
    Q_OBJECT

private slots:
    void pluginsAreWhereTheyWereInstalled();
    void pluginsAreBesideTheProgramInTheBuild();
    void missingPluginsAreNamedWhereTheyBelong();
    void languagesAreFound();
};

void InstallationTest::pluginsAreWhereTheyWereInstalled()
{
    const TemporaryDirectory prefix;
    const QString installed = prefix.FilePath(INSTALLED_LIBRARIES "/priority-dashboard");
    QVERIFY(QDir().mkpath(installed + "/plugins"));
    QVERIFY(QDir().mkpath(prefix.FilePath("plugins")));
    QCOMPARE(Installation::LibraryPath(prefix.FilePath("bin")), installed);
}

void InstallationTest::pluginsAreBesideTheProgramInTheBuild()
{
    const TemporaryDirectory build;
    QVERIFY(QDir().mkpath(build.FilePath("plugins")));
    QCOMPARE(Installation::LibraryPath(build.FilePath("bin")), build.Path());
}

void InstallationTest::missingPluginsAreNamedWhereTheyBelong()
{
    const TemporaryDirectory prefix;
    QCOMPARE(Installation::LibraryPath(prefix.FilePath("bin")),
             prefix.FilePath(INSTALLED_LIBRARIES "/priority-dashboard"));
}

void InstallationTest::languagesAreFound()
{
    const TemporaryDirectory prefix;
    const QString languages = prefix.FilePath("share/priority-dashboard/languages");
    QVERIFY(QDir().mkpath(languages));
    QCOMPARE(Installation::LanguageDirectory(prefix.FilePath("bin")), languages);
}

QTEST_GUILESS_MAIN(InstallationTest)
#include "tst_installation.moc"
