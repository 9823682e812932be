#include <HostControl.h>
#include <PluginHost.h>
#include <Row.h>
#include <Startup.h>
#include <TemporaryDirectory.h>
#include <TextPattern.h>
#include <TraceCapture.h>

#include <QDir>
#include <QFile>
#include <QtTest>

Q_DECLARE_METATYPE(PluginState)

namespace
{

const char fixtureDirectory[] = BUILD_DIRECTORY "/tests/fixtures";

KnownPlugin Known(const QString &folder)
{
    KnownPlugin known;
    known.folder = folder;
    known.classId = QLatin1String("ID-OF-") + folder.toUpper();
    known.titleId = QLatin1String("IDS_PLUGIN_WLAN_STORED");
    return known;
}

QList<KnownPlugin> Known(const QStringList &folders)
{
    QList<KnownPlugin> known;
    for (int i = 0; i < folders.size(); ++i) {
        known.append(Known(folders.at(i)));
    }
    return known;
}

bool IsMapped(const QString &library)
{
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library.toLocal8Bit());
}

} // namespace

class PluginHostTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void StateTellsHowFarItCame_data();
    void StateTellsHowFarItCame();
    void FileThatIsNoLibraryIsToldApart_data();
    void FileThatIsNoLibraryIsToldApart();
    void LibraryThatIsCutIsNotLoaded_data();
    void LibraryThatIsCutIsNotLoaded();
    void LibraryOfOtherToolkitIsNotLoaded_data();
    void LibraryOfOtherToolkitIsNotLoaded();
    void RefusalTellsFoundAndExpected();
    void ProblemIsToldInEveryLanguage();
    void PluginThatIsNotReadyIsAskedNothing_data();
    void PluginThatIsNotReadyIsAskedNothing();
    void LibraryOfRefusedPluginIsUnloaded_data();
    void LibraryOfRefusedPluginIsUnloaded();
    void BrokenPluginsDoNotHinderOthers();

    void ClassIdIsComparedWithoutCase_data();
    void ClassIdIsComparedWithoutCase();
    void LookUpYieldsNull_data();
    void LookUpYieldsNull();
    void NumberIsHandedOn();
    void HostIsTheContainerWhilePluginsLive();

    void EventReachesReadyPluginsWithZeros();
    void ShutdownGoesBackwards();
    void ShutdownHappensOnce();
    void NothingIsHandedOutAfterShutdown();

    void KnownPluginsHaveTheirFixedIds();
    void WlanPluginsFollowTheChoice_data();
    void WlanPluginsFollowTheChoice();
};

void PluginHostTest::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(HostControl::SetLanguage("en"));
}

void PluginHostTest::StateTellsHowFarItCame_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<PluginState>("state");
    QTest::addColumn<QString>("text");
    Row("missing", "Absent", PluginMissing, "was not found");
    Row("no verification", "NoVerification", PluginNoVerification, "does not say");
    Row("wrong verification", "WrongVerification", PluginRefused, "another program");
    Row("no entry point", "NoEntryPoint", PluginNoEntryPoint, "is not a plug-in, so");
    Row("null instance", "NullInstance", PluginNullInstance, "did not provide an object");
    Row("not a plug-in", "NotAPlugin", PluginNotAPlugin, "not a plug-in for");
    Row("init fails", "InitFails", PluginInitFailed, "could not start");
    Row("ready", "Working", PluginReady, "");
    Row("ready without window", "BaseOnly", PluginReady, "");
}

void PluginHostTest::StateTellsHowFarItCame()
{
    QFETCH(QString, folder);
    QFETCH(QString, text);
    const TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList(folder)));
    host.Load();
    const PluginHost::Plugin plugin = host.Plugins().first();
    QTEST(plugin.state, "state");
    const QString problem = PluginHost::ProblemText(plugin);
    if (text.isEmpty()) {
        QCOMPARE(problem, QString());
        return;
    }
    QVERIFY2(problem.contains(text), qPrintable(problem));
    QVERIFY2(problem.contains(plugin.file), qPrintable(problem));
    QCOMPARE(plugin.file, fixtureDirectory + QString("/plugins/%1/lib%1.so").arg(folder));
}

void PluginHostTest::FileThatIsNoLibraryIsToldApart_data()
{
    QTest::addColumn<QByteArray>("content");
    Row("empty", QByteArray(""));
    Row("text", QByteArray("not a library\n"));
    Row("cut off", QByteArray("\177ELF\2\1\1\0", 8));
}

void PluginHostTest::FileThatIsNoLibraryIsToldApart()
{
    QFETCH(QByteArray, content);
    const TemporaryDirectory directory;
    QVERIFY(QDir().mkpath(directory.FilePath("plugins/Broken")));
    directory.Write("plugins/Broken/libBroken.so", content);
    PluginHost host(directory.Path(), Known(QStringList("Broken")));
    host.Load();
    const PluginHost::Plugin plugin = host.Plugins().first();
    QCOMPARE(plugin.state, PluginNotALibrary);
    QVERIFY(!plugin.detail.isEmpty());
    QVERIFY(PluginHost::ProblemText(plugin).contains(plugin.detail));
}

void PluginHostTest::LibraryThatIsCutIsNotLoaded_data()
{
    QTest::addColumn<int>("size");
    Row("in the table of segments", 100);
    Row("in the symbols", 1000);
}

void PluginHostTest::LibraryThatIsCutIsNotLoaded()
{
    QFETCH(int, size);
    QFile whole(fixtureDirectory + QString("/plugins/NeedsGeneration7/libNeedsGeneration7.so"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const TemporaryDirectory directory;
    QVERIFY(QDir().mkpath(directory.FilePath("plugins/Cut")));
    directory.Write("plugins/Cut/libCut.so", whole.read(size));
    PluginHost host(directory.Path(), Known(QStringList("Cut")));
    host.Load();
    const PluginHost::Plugin plugin = host.Plugins().first();
    const QString problem = PluginHost::ProblemText(plugin);
    QCOMPARE(plugin.state, PluginCut);
    QVERIFY2(problem.contains("incomplete") && problem.contains(plugin.file), qPrintable(problem));
}

void PluginHostTest::LibraryOfOtherToolkitIsNotLoaded_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("version");
    Row("needs a newer one", "NeedsGeneration7", "7");
    Row("needs a newer one beside ours", "MixesGenerations", "7");
    Row("needs 4", "NeedsGeneration4", "4");
    const QString running(qVersion());
    if (!running.startsWith("5.")) {
        Row("built for 5", "Installed5", "5(\\.[0-9]+)?");
    }
    if (!running.startsWith("6.")) {
        Row("built for 6", "Installed6", "6(\\.[0-9]+)?");
    }
}

void PluginHostTest::LibraryOfOtherToolkitIsNotLoaded()
{
    QFETCH(QString, folder);
    QFETCH(QString, version);
    if (folder.startsWith("Installed") && !QFile::exists(fixtureDirectory + ("/plugins/" + folder))) {
        QSKIP("The development files of that generation were not there when this was built.");
    }
    PluginHost host(fixtureDirectory, Known(QStringList(folder)));
    host.Load();
    const PluginHost::Plugin plugin = host.Plugins().first();
    QCOMPARE(plugin.state, PluginOtherToolkit);
    QVERIFY2(TextPattern::Fits(plugin.detail, version), qPrintable(plugin.detail));
    QCOMPARE(PluginHost::ProblemText(plugin),
             QString("The plug-in %1 was built for another major version of Qt, so it is not used.\n"
                     "Found: Qt %2\n"
                     "Expected: Qt %3")
                 .arg(plugin.file, plugin.detail, QString(qVersion())));
    QVERIFY(!IsMapped("lib" + folder + ".so"));
    QVERIFY(qgetenv("FOREIGN_PLUGIN_LOADED").isEmpty());
    QVERIFY(!host.GetPluginObject(plugin.known.classId, 4098));
}

void PluginHostTest::RefusalTellsFoundAndExpected()
{
    PluginHost host(fixtureDirectory, Known(QStringList("WrongVerification")));
    host.Load();
    const QString problem = PluginHost::ProblemText(host.Plugins().first());
    QVERIFY2(problem.contains("version=4.8.7, debug=true, buildkey=something else"), qPrintable(problem));
    QVERIFY2(problem.contains("version=4.6.2, debug=false, buildkey=macosx macx g++-4 full-config"),
             qPrintable(problem));
}

void PluginHostTest::ProblemIsToldInEveryLanguage()
{
    PluginHost host(fixtureDirectory, Known(QStringList("Absent")));
    host.Load();
    QSet<QString> texts;
    const QStringList languages = HostControl::LanguageNames();
    for (int i = 0; i < languages.size(); ++i) {
        QVERIFY(HostControl::SetLanguage(languages.at(i)));
        texts.insert(PluginHost::ProblemText(host.Plugins().first()));
    }
    QVERIFY(HostControl::SetLanguage("en"));
    QVERIFY(languages.size() > 1);
    QCOMPARE(texts.size(), languages.size());
}

void PluginHostTest::PluginThatIsNotReadyIsAskedNothing_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("calls");
    Row("no verification", "NoVerification", QStringList());
    Row("wrong verification", "WrongVerification", QStringList());
    Row("init fails", "InitFails",
        (QStringList() << "InitFails made"
                       << "InitFails Init"
                       << "InitFails deleted"));
}

void PluginHostTest::PluginThatIsNotReadyIsAskedNothing()
{
    QFETCH(QString, folder);
    const TraceCapture capture;
    {
        PluginHost host(fixtureDirectory, Known(QStringList(folder)));
        host.Load();
        QVERIFY(!host.GetPluginObject(Known(folder).classId, 4098));
        host.Notify(320);
    }
    QTEST(capture.Lines(), "calls");
}

void PluginHostTest::LibraryOfRefusedPluginIsUnloaded_data()
{
    QTest::addColumn<QString>("folder");
    Row("no verification", "NoVerification");
    Row("wrong verification", "WrongVerification");
    Row("no entry point", "NoEntryPoint");
}

void PluginHostTest::LibraryOfRefusedPluginIsUnloaded()
{
    QFETCH(QString, folder);
    PluginHost host(fixtureDirectory, Known(QStringList(folder)));
    host.Load();
    QVERIFY(!IsMapped("lib" + folder + ".so"));
}

void PluginHostTest::BrokenPluginsDoNotHinderOthers()
{
    const TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList() << "Absent"
                                                          << "WrongVerification"
                                                          << "InitFails"
                                                          << "Working"));
    host.Load();
    QCOMPARE(host.Plugins().last().state, PluginReady);
    QVERIFY(host.GetPluginObject("ID-OF-WORKING", 1));
}

void PluginHostTest::ClassIdIsComparedWithoutCase_data()
{
    QTest::addColumn<QString>("classId");
    Row("as known", "ID-OF-WORKING");
    Row("lower case", "id-of-working");
    Row("mixed", "Id-Of-Working");
}

void PluginHostTest::ClassIdIsComparedWithoutCase()
{
    QFETCH(QString, classId);
    const TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList("Working")));
    host.Load();
    QCOMPARE(host.GetPluginObject(classId, 4098), host.Plugins().first().root.data());
}

void PluginHostTest::LookUpYieldsNull_data()
{
    QTest::addColumn<QString>("classId");
    Row("unknown id", "ID-OF-NOBODY");
    Row("empty id", "");
    Row("not ready", "ID-OF-INITFAILS");
    Row("the plug-in says false", "ID-OF-QUERYFAILS");
    Row("the plug-in says true and hands out nothing", "ID-OF-QUERYNULL");
}

void PluginHostTest::LookUpYieldsNull()
{
    QFETCH(QString, classId);
    const TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList() << "InitFails"
                                                          << "QueryFails"
                                                          << "QueryNull"));
    host.Load();
    QVERIFY(!host.GetPluginObject(classId, 4098));
}

void PluginHostTest::NumberIsHandedOn()
{
    TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList("Working")));
    host.Load();
    capture.Clear();
    host.GetPluginObject("ID-OF-WORKING", 4102);
    QCOMPARE(capture.Lines(), QStringList("Working QueryInterface 4102"));
}

void PluginHostTest::HostIsTheContainerWhilePluginsLive()
{
    const TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList("Working")));
    QVERIFY(!Startup::GetPluginContainer());
    host.Load();
    QCOMPARE(Startup::GetPluginContainer(), static_cast<IPluginContainer *>(&host));
    host.Shutdown();
    QVERIFY(!Startup::GetPluginContainer());
}

void PluginHostTest::EventReachesReadyPluginsWithZeros()
{
    TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList() << "Working"
                                                          << "InitFails"
                                                          << "BaseOnly"
                                                          << "QueryNull"));
    host.Load();
    capture.Clear();
    host.Notify(320);
    QCOMPARE(capture.Lines(), QStringList() << "Working Notify 320 0 0"
                                            << "QueryNull Notify 320 0 0");
}

void PluginHostTest::ShutdownGoesBackwards()
{
    TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList() << "Working"
                                                          << "InitFails"
                                                          << "QueryNull"));
    host.Load();
    capture.Clear();
    host.Shutdown();
    QCOMPARE(capture.Lines(), QStringList() << "QueryNull OnDestroy"
                                            << "Working OnDestroy"
                                            << "QueryNull deleted"
                                            << "Working deleted");
}

void PluginHostTest::ShutdownHappensOnce()
{
    TraceCapture capture;
    {
        PluginHost host(fixtureDirectory, Known(QStringList("Working")));
        host.Load();
        host.Shutdown();
        capture.Clear();
        host.Shutdown();
    }
    QCOMPARE(capture.Lines(), QStringList());
}

void PluginHostTest::NothingIsHandedOutAfterShutdown()
{
    const TraceCapture capture;
    PluginHost host(fixtureDirectory, Known(QStringList("Working")));
    host.Load();
    host.Shutdown();
    QVERIFY(!host.GetPluginObject("ID-OF-WORKING", 4098));
    QCOMPARE(host.Plugins().first().state, PluginClosed);
}

void PluginHostTest::KnownPluginsHaveTheirFixedIds()
{
    const QList<KnownPlugin> known = PluginHost::KnownPlugins(WlanStored);
    QCOMPARE(known.size(), 2);
    QCOMPARE(known.at(0).folder, QString("PriorityPlugin"));
    QCOMPARE(known.at(0).classId, QString("D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05"));
    QCOMPARE(known.at(1).folder, QString("WLANStored"));
    QCOMPARE(known.at(1).classId, QString("7545FB07-0E7A-4F27-A449-872DB09C106D"));
}

void PluginHostTest::WlanPluginsFollowTheChoice_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("folders");
    Row("networkmanager", int(WlanNetworkManager), "WLANNetworkManager");
    Row("stored", int(WlanStored), "WLANStored");
}

void PluginHostTest::WlanPluginsFollowTheChoice()
{
    QFETCH(int, choice);
    const QList<KnownPlugin> known = PluginHost::KnownPlugins(static_cast<WlanChoice>(choice));
    QCOMPARE(known.at(0).folder, QString("PriorityPlugin"));
    QStringList folders;
    for (int i = 1; i < known.size(); ++i) {
        QCOMPARE(known.at(i).classId, QString("7545FB07-0E7A-4F27-A449-872DB09C106D"));
        folders.append(known.at(i).folder);
    }
    QTEST(folders.join(", "), "folders");
}

QTEST_MAIN(PluginHostTest)
#include "tst_pluginhost.moc"
