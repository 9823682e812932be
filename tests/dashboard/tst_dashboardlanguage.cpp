#include <Change.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <PluginHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

namespace
{

QList<KnownPlugin> WorkingPlugin()
{
    KnownPlugin known;
    known.folder = QLatin1String("Working");
    known.classId = QLatin1String("ID");
    return QList<KnownPlugin>() << known;
}

} // namespace

class DashboardLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void FirstLanguageThatThereIsCounts_data();
    void FirstLanguageThatThereIsCounts();
    void SwitchTellsThePlugins();
    void SwitchSetsTheReadingDirection_data();
    void SwitchSetsTheReadingDirection();
    void SwitchKeepsTheChoice();
    void SwitchToTheSameTellsNobody();
    void UnknownLanguageChangesNothing();
    void LanguagesAreCalledByTheirOwnNames_data();
    void LanguagesAreCalledByTheirOwnNames();

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
    QTest::newRow("wanted") << "ar"
                            << "he"
                            << "en_GB"
                            << "ar";
    QTest::newRow("stored") << ""
                            << "he"
                            << "ar_EG"
                            << "he";
    QTest::newRow("stored one is gone") << ""
                                        << "tlh"
                                        << "ar_EG"
                                        << "ar";
    QTest::newRow("system, exactly") << ""
                                     << ""
                                     << "pt_BR"
                                     << "pt_BR";
    QTest::newRow("system, without region") << ""
                                            << ""
                                            << "he_IL"
                                            << "he";
    QTest::newRow("none of them") << ""
                                  << ""
                                  << "fi_FI"
                                  << "en";
    QTest::newRow("plain C") << ""
                             << ""
                             << "C"
                             << "en";
}

void DashboardLanguageTest::FirstLanguageThatThereIsCounts()
{
    QFETCH(QString, wanted);
    QFETCH(QString, stored);
    QFETCH(QString, system);
    const QStringList available = QStringList() << "ar"
                                                << "en"
                                                << "he"
                                                << "pt_BR";
    QTEST(DashboardLanguage::Choose(wanted, stored, system, available), "chosen");
}

void DashboardLanguageTest::SwitchTellsThePlugins()
{
    TraceCapture capture;
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", WorkingPlugin());
    plugins.Load();
    DashboardLanguage language(&plugins, nullptr);
    QSignalSpy spy(&language, SIGNAL(Switched()));
    capture.Clear();
    QVERIFY(language.Switch("ar"));
    QCOMPARE(capture.Lines(), QStringList("Working Notify 320 0 0"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(Change::GetLangName(), QString("ar"));
}

void DashboardLanguageTest::SwitchSetsTheReadingDirection_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("direction");
    QTest::newRow("ar") << "ar" << static_cast<int>(Qt::RightToLeft);
    QTest::newRow("he") << "he" << static_cast<int>(Qt::RightToLeft);
    QTest::newRow("en") << "en" << static_cast<int>(Qt::LeftToRight);
}

void DashboardLanguageTest::SwitchSetsTheReadingDirection()
{
    QFETCH(QString, name);
    PluginHost plugins(BUILD_DIRECTORY, QList<KnownPlugin>());
    DashboardLanguage language(&plugins, nullptr);
    QVERIFY(language.Switch(name == "en" ? "ar" : "en"));
    QVERIFY(language.Switch(name));
    QTEST(static_cast<int>(QApplication::layoutDirection()), "direction");
}

void DashboardLanguageTest::SwitchKeepsTheChoice()
{
    PluginHost plugins(BUILD_DIRECTORY, QList<KnownPlugin>());
    DashboardLanguage language(&plugins, nullptr);
    QCOMPARE(DashboardLanguage::Stored(), QString());
    QVERIFY(language.Switch("he"));
    QCOMPARE(DashboardLanguage::Stored(), QString("he"));
    QVERIFY(m_directory->Read("priority-dashboard/dashboard.ini").contains("language=he"));
}

void DashboardLanguageTest::SwitchToTheSameTellsNobody()
{
    PluginHost plugins(BUILD_DIRECTORY, QList<KnownPlugin>());
    DashboardLanguage language(&plugins, nullptr);
    QSignalSpy spy(&language, SIGNAL(Switched()));
    QVERIFY(language.Switch("en"));
    QCOMPARE(spy.count(), 0);
}

void DashboardLanguageTest::UnknownLanguageChangesNothing()
{
    PluginHost plugins(BUILD_DIRECTORY, QList<KnownPlugin>());
    DashboardLanguage language(&plugins, nullptr);
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
    QTest::newRow("en") << "en"
                        << "English";
    QTest::newRow("ar") << "ar" << QString::fromUtf8("العربية");
    QTest::newRow("he") << "he" << QString::fromUtf8("עברית");
    QTest::newRow("one without a name of its own here") << "de"
                                                        << "Deutsch";
}

void DashboardLanguageTest::LanguagesAreCalledByTheirOwnNames()
{
    QFETCH(QString, name);
    QTEST(DashboardLanguage::NativeName(name), "native");
}

QTEST_MAIN(DashboardLanguageTest)
#include "tst_dashboardlanguage.moc"
