#include "FakeConnections.h"
#include "FakePriority.h"
#include "Lists.h"

#include <DashboardLanguage.h>
#include <FakeWLAN.h>
#include <HostControl.h>
#include <IPluginContainer.h>
#include <MainWindow.h>
#include <PluginHost.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>
#include <TraceLog.h>

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

namespace
{

QList<KnownPlugin> KnownAs(const QString &priorityFolder, const QString &wlanFolder)
{
    QList<KnownPlugin> known = PluginHost::KnownPlugins(WlanStored);
    known[0].folder = priorityFolder;
    known[1].folder = wlanFolder;
    return known;
}

/** Hands out the same two objects, which may be null. */
class FixedContainer : public IPluginContainer
{
public:
    FixedContainer(QObject *wlan, QObject *priority) : m_wlan(wlan), m_priority(priority) {}

    QObject *GetPluginObject(const QString &, int interfaceNumber) override
    {
        return interfaceNumber == 4102 ? m_wlan : interfaceNumber == 4103 ? m_priority : nullptr;
    }

private:
    QObject *const m_wlan;
    QObject *const m_priority;
};

} // namespace

/** The window when plug-ins are missing or broken. */
class MainWindowProblemsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void MissingListIsExplainedInItsPlace_data();
    void MissingListIsExplainedInItsPlace();
    void SettingsExplainItToo();
    void OtherMissingPluginIsToldAboveTheList();
    void LanguageSwitchIsToldToThePlugins();
    void SourceOfTheNetworksIsTold_data();
    void SourceOfTheNetworksIsTold();
    void SourceThatIsGoneIsNotSaidToDoAnything();
    void NoteCountsTheNetworksThatFollowTheList();
    void DamagedLanguageFileIsNamedAndTheOthersWork();
    void ConnectTellsWhyItCannotBeUsed_data();
    void ConnectTellsWhyItCannotBeUsed();

private:
    TemporaryDirectory m_directory;
};

void MainWindowProblemsTest::init()
{
    qputenv("XDG_DATA_HOME", m_directory.Path().toLocal8Bit());
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

void MainWindowProblemsTest::MissingListIsExplainedInItsPlace_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("told");
    Row("missing", "Absent", "Absent/libAbsent.so was not found");
    Row("refused", "WrongVerification", "another program");
    Row("init fails", "InitFails", "could not start");
    Row("hands out nothing", "QueryNull", "does not provide the list");
    Row("hands out something else", "Working", "does not provide the list");
}

void MainWindowProblemsTest::MissingListIsExplainedInItsPlace()
{
    QFETCH(QString, folder);
    QFETCH(QString, told);
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", KnownAs(folder, "QueryFails"));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const QLabel *message = window.findChild<QLabel *>("messageText");
    QVERIFY(message->isVisible());
    QVERIFY2(message->text().contains(told), qPrintable(message->text()));
    QVERIFY(!window.findChild<QWidget *>("overviewList")->isVisible());
}

void MainWindowProblemsTest::SettingsExplainItToo()
{
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", KnownAs("Absent", "InitFails"));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    window.OpenSettings();
    QDialog *dialog = window.findChild<QDialog *>("settingsDialog");
    QListWidget *pages = dialog->findChild<QListWidget *>("pageList");
    QCOMPARE(pages->count(), 4);
    QCOMPARE(pages->currentRow(), 2);
    const QLabel *problem = dialog->findChild<QLabel *>("pageProblem");
    QVERIFY(problem && problem->text().contains("was not found"));
    dialog->accept();
    QVERIFY(!dialog->isVisible());
}

void MainWindowProblemsTest::LanguageSwitchIsToldToThePlugins()
{
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", KnownAs("Working", "QueryFails"));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    TraceCapture capture;
    QVERIFY(language.Switch("ar"));
    QCOMPARE(capture.Lines().value(0), QString("Working Notify 320 0 0"));
    QCOMPARE(window.layoutDirection(), Qt::RightToLeft);
}

void MainWindowProblemsTest::OtherMissingPluginIsToldAboveTheList()
{
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", KnownAs("Absent", "InitFails"));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const QLabel *problems = window.findChild<QLabel *>("bannerText");
    QVERIFY(problems->isVisible());
    QVERIFY(problems->text().contains("libInitFails.so"));
    QVERIFY(!problems->text().contains("libAbsent.so"));
}

void MainWindowProblemsTest::SourceOfTheNetworksIsTold_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("told");
    Row("networkmanager", int(WlanNetworkManager), QStringList("Working"),
        QString::fromUtf8("These are this computer’s networks. NetworkManager"));
    Row("stored", int(WlanStored), QStringList("Working"), "These are practice networks.");
    Row("none", int(WlanStored), QStringList("Absent"), "");
}

void MainWindowProblemsTest::SourceOfTheNetworksIsTold()
{
    QFETCH(int, choice);
    QFETCH(QStringList, folders);
    QFETCH(QString, told);
    QList<KnownPlugin> known = PluginHost::KnownPlugins(static_cast<WlanChoice>(choice));
    known.removeFirst();
    for (int i = 0; i < known.size(); ++i) {
        known[i].folder = folders.at(i);
    }
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", known);
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const QLabel *note = window.findChild<QLabel *>("noteLabel");
    QVERIFY2(note->text().left(told.size()) == told && note->text().isEmpty() == told.isEmpty(),
             qPrintable(note->text()));
}

void MainWindowProblemsTest::SourceThatIsGoneIsNotSaidToDoAnything()
{
    QList<KnownPlugin> known = PluginHost::KnownPlugins(WlanNetworkManager);
    known[0].folder = "Absent";
    known[1].folder = "Working";
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", known);
    plugins.Load();
    FakeConnections connections;
    connections.told.state.source = ConnectionState::SourceGone;
    WithConnections container(&plugins, &connections);
    HostControl::SetPluginContainer(&container);
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const QLabel *note = window.findChild<QLabel *>("noteLabel");
    QCOMPARE(note->text(), QString());
    connections.told.state.source = ConnectionState::SourceKnown;
    window.Refresh();
    QVERIFY(!note->text().isEmpty());
    HostControl::SetPluginContainer(nullptr);
}

void MainWindowProblemsTest::NoteCountsTheNetworksThatFollowTheList()
{
    QList<KnownPlugin> known = PluginHost::KnownPlugins(WlanNetworkManager);
    known[0].folder = "Absent";
    known[1].folder = "Working";
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", known);
    plugins.Load();
    FakePriority priority;
    priority.list = Listed("Home, Office, Phone/2");
    FakeConnections connections;
    connections.told.profiles << SavedProfile("Home") << SavedProfile("Office");
    connections.standing.stage = OrderOutcome::StageOrderDone;
    FixedContainer list(nullptr, &priority);
    WithConnections container(&list, &connections);
    HostControl::SetPluginContainer(&container);
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const QLabel *note = window.findChild<QLabel *>("noteLabel");
    QCOMPARE(note->text(), QString("NetworkManager follows your list for 2 of 3 networks."));
    connections.told.profiles << SavedProfile("Phone", ConnectionProfile::UsePossible, "2");
    window.Refresh();
    QVERIFY2(note->text().startsWith("These are this computer"), qPrintable(note->text()));
    HostControl::SetPluginContainer(nullptr);
}

void MainWindowProblemsTest::DamagedLanguageFileIsNamedAndTheOthersWork()
{
    const QString built = QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages/");
    QVERIFY(QDir().mkdir(m_directory.FilePath("languages")));
    QVERIFY(QFile::copy(built + "en.qm", m_directory.FilePath("languages/en.qm")));
    QVERIFY(QFile::copy(built + "de.qm", m_directory.FilePath("languages/de.qm")));
    QFile file(built + "fr.qm");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray cut = file.readAll().left(1000);
    m_directory.Write("languages/fr.qm", cut);
    HostControl::SetLanguageDirectory(m_directory.FilePath("languages"));

    FakePriority priority;
    FixedContainer container(nullptr, &priority);
    HostControl::SetPluginContainer(&container);
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", KnownAs("Working", "Working"));
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const QLabel *problems = window.findChild<QLabel *>("bannerText");
    // The plug-ins that are not loaded come first.
    QPushButton *next = window.findChild<QPushButton *>("bannerNextButton");
    QCOMPARE(next->text(), QString::fromUtf8("1 of 3 ›"));
    QTest::mouseClick(next, Qt::LeftButton);
    QTest::mouseClick(next, Qt::LeftButton);
    QVERIFY2(problems->text().contains("languages/fr.qm has no texts that can be used"),
             qPrintable(problems->text()));
    QVERIFY(!window.findChild<QAction *>("languageAction_fr"));

    window.findChild<QAction *>("languageAction_de")->trigger();
    QCOMPARE(window.findChild<QPushButton *>("settingsButton")->text(),
             QString::fromUtf8("Einstellungen\u00a0…"));
    QVERIFY2(problems->text().contains("languages/fr.qm"), qPrintable(problems->text()));
    HostControl::SetPluginContainer(nullptr);
    QCOMPARE(m_directory.Read("languages/fr.qm"), cut);
}

void MainWindowProblemsTest::ConnectTellsWhyItCannotBeUsed_data()
{
    QTest::addColumn<bool>("hasWlan");
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("told");
    const int none = -1;
    Row("Wi-Fi plug-in missing", false, none, "The Wi-Fi plug-in is not available");
    Row("Wi-Fi plug-in tells nothing", true, none, "The Wi-Fi plug-in does not tell");
    Row("NetworkManager gone", true, int(ConnectionState::SourceGone),
        "It is not known which network is in use");
    Row("NetworkManager there", true, int(ConnectionState::SourceKnown), "");
}

void MainWindowProblemsTest::ConnectTellsWhyItCannotBeUsed()
{
    QFETCH(bool, hasWlan);
    QFETCH(int, source);
    QFETCH(QString, told);
    TraceLog log(m_directory.FilePath("dashboard.log"));
    PluginHost plugins(BUILD_DIRECTORY "/tests/fixtures", QList<KnownPlugin>());
    FakeWLAN wlan;
    FakeConnections connections;
    connections.told.state.source = source;
    FixedContainer container(hasWlan ? &wlan : nullptr, nullptr);
    WithConnections withConnections(&container, source < 0 ? nullptr : &connections);
    HostControl::SetPluginContainer(&withConnections);
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    HostControl::SetPluginContainer(nullptr);
    const QPushButton *button = window.findChild<QPushButton *>("connectButton");
    QCOMPARE(button->isEnabled(), told.isEmpty());
    QCOMPARE(window.findChild<QAction *>("connectAction")->isEnabled(), told.isEmpty());
    QCOMPARE(button->toolTip().left(told.size()), told);
    QCOMPARE(button->toolTip().isEmpty(), told.isEmpty());
}

QTEST_MAIN(MainWindowProblemsTest)
#include "tst_mainwindowproblems.moc"
