#include <Change.h>
#include <CommonUtils.h>
#include <HostControl.h>
#include <Startup.h>

#include <QDir>
#include <QtTest>

/** What plug-ins get before the host application has set anything. */
class TestHostDefaults : public QObject
{
    Q_OBJECT

private slots:
    void thereIsNoContainer() { QVERIFY(!Startup::GetPluginContainer()); }

    void libraryPathIsTheParentOfTheExecutablesDirectory()
    {
        QCOMPARE(CommonUtils::GetPluginLibraryPath(), QString(QLatin1String(BUILD_DIRECTORY)));
    }

    void languageIsEnglish() { QCOMPARE(Change::GetLangName(), QString(QLatin1String("en"))); }

    void textsAreTheirIds()
    {
        QCOMPARE(Change::tr(QLatin1String("IDS_OK"), QLatin1String("PriorityPlugin")),
                 QString(QLatin1String("IDS_OK")));
    }

    void thereAreNoLanguages()
    {
        QVERIFY(HostControl::LanguageNames().isEmpty());
        QVERIFY(!HostControl::SetLanguage(QLatin1String("en")));
        QCOMPARE(Change::GetLangName(), QString(QLatin1String("en")));
    }
};

QTEST_MAIN(TestHostDefaults)
#include "tst_hostdefaults.moc"
