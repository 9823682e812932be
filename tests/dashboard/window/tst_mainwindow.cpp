#include "Eventually.h"
#include "Lists.h"

#include <DashboardLanguage.h>
#include <DialogParts.h>
#include <HostControl.h>
#include <MainWindow.h>
#include <NetworkDelegate.h>
#include <NetworkList.h>
#include <PluginHost.h>
#include <PluginObjects.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <TraceLog.h>

#include <CommonUtils.h>
#include <Connections.h>
#include <IConnectionPlugin.h>
#include <IPriorityPlugin.h>

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QtTest>

namespace
{

PriorityList Entry(const QString &name, const QString &type = QLatin1String("1"))
{
    PriorityList entry;
    entry.name = name;
    entry.type = type;
    return entry;
}

QByteArray ListFile(const QStringList &names)
{
    QByteArray items;
    for (int i = 0; i < names.size(); ++i) {
        items += "<item name=\"" + names.at(i).toUtf8() + "\" type=\"1\"/>";
    }
    return "<zeltdoc><profile>" + items + "</profile></zeltdoc>";
}

} // namespace

/** The window over the real plug-ins. They live once in a process, so they are loaded for all tests together.
 */
class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void FirstStartTakesOverWhatIsSaved();
    void FirstStartWithNothingSavedOffersToConnect();
    void EmptiedListCanBeHadBack();
    void EntriesAreShownInOrder();
    void ChosenRowStaysChosen();
    void AppearanceMenuSwitchesAndIsKept();
    void ChangeThroughThePluginIsShownAtOnce();
    void ChangeOfTheFileIsFollowed();
    void DamagedFileIsTold();
    void ListThatCannotBeReadIsNotCalledEmpty_data();
    void ListThatCannotBeReadIsNotCalledEmpty();
    void SettingsOpenAtTheListsPage();
    void SettingsOpenOnce();
    void WindowIsRefreshedWhenSettingsClose();
    void WindowClosedWithOpenSettingsSparesThePage();
    void ConnectPutsANewNetworkAtTheEnd_data();
    void ConnectPutsANewNetworkAtTheEnd();
    void ConnectLeavesAListedNetworkInItsPlace();
    void ConnectOpensOnceAndAgain();
    void OpenPageFollowsAConnection();
    void OpenConnectFollowsTheLanguage();
    void LanguageMenuSwitches();
    void OpenSettingsFollowTheLanguage();
    void TraceIsShownOnDemand();
    void TraceShowsLines();
    void LongListIsShown();
    void SmallestWindowShowsWhatIsInUseAndThreeEntries();
    void WindowIsNoLargerThanMostOfTheScreen();
    void SizeThatTheUserHasChosenStays();
    void ContentStaysTogetherInAWideWindow();

private:
    QString Text(const char *name) const
    {
        return m_window->findChild<QLabel *>(QLatin1String(name))->text();
    }
    NetworkList *List() const { return m_window->findChild<NetworkList *>(); }
    QStringList Names() const;
    QStringList States() const;
    QString ListPath() const { return m_directory->FilePath("priority-dashboard/Priority.xml"); }
    void WriteList(const QByteArray &bytes) const;

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<PluginHost> m_plugins;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
};

QStringList MainWindowTest::Names() const
{
    QStringList names;
    for (int i = 0; i < List()->Listed().size(); ++i) {
        names.append(List()->item(i)->text());
    }
    return names;
}

QStringList MainWindowTest::States() const
{
    QStringList states;
    for (int i = 0; i < List()->Listed().size(); ++i) {
        states.append(List()->item(i)->data(NetworkDelegate::StateTextRole).toString());
    }
    return states;
}

void MainWindowTest::WriteList(const QByteArray &bytes) const
{
    m_directory->Write("priority-dashboard/Priority.xml", bytes);
}

void MainWindowTest::initTestCase()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    m_log.reset(new TraceLog(m_directory->FilePath("dashboard.log")));
    HostControl::SetPluginLibraryPath(BUILD_DIRECTORY);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    m_plugins.reset(new PluginHost(BUILD_DIRECTORY, PluginHost::KnownPlugins(WlanStored)));
    m_plugins->Load();
    QCOMPARE(m_plugins->Plugins().at(0).state, PluginReady);
    QCOMPARE(m_plugins->Plugins().at(1).state, PluginReady);
}

void MainWindowTest::cleanupTestCase()
{
    m_plugins->Shutdown();
}

void MainWindowTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    QVERIFY(QDir().mkpath(m_directory->FilePath("priority-dashboard")));
    m_directory->Write("priority-dashboard/WLANNetworks.xml",
                       "<wlannetworks><network name=\"Home\" signal=\"90\" authentication=\"WPA2PSK\" "
                       "encryption=\"CCMP\"/><network name=\"Library\" "
                       "signal=\"50\"/></wlannetworks>");
    QVERIFY(DashboardLanguage::Apply("en"));
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_plugins.data(), m_language.data(), m_log.data()));
    m_window->show();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    QList<ActiveConnection> connections;
    PluginObjects::Connecting()->GetActiveConnections(&connections);
    for (const ActiveConnection &connection : std::as_const(connections)) {
        PluginObjects::Connecting()->Disconnect(connection.id);
    }
}

void MainWindowTest::FirstStartTakesOverWhatIsSaved()
{
    QVERIFY(!List()->isVisible());
    QCOMPARE(Text("messageTitle"), QString("Which networks come first?"));
    QVERIFY(!m_window->findChild<QWidget *>("banner")->isVisible());
    QTest::mouseClick(m_window->findChild<QPushButton *>("message_takeOverAction"), Qt::LeftButton);
    QDialog *dialog = m_window->findChild<QDialog *>("importDialog");
    QCOMPARE(dialog->windowTitle(), QString("Take over saved networks"));
    QVERIFY(!QFile::exists(ListPath()));
    QTest::mouseClick(dialog->findChild<QPushButton *>("importOkButton"), Qt::LeftButton);
    QStringList saved;
    for (const ConnectionProfile &profile : Connections::Read().profiles) {
        saved.append(profile.name);
    }
    QVERIFY(saved.size() > 2);
    QCOMPARE(Names(), saved);
    QVERIFY(List()->isVisible());
}

void MainWindowTest::FirstStartWithNothingSavedOffersToConnect()
{
    m_directory->Write("priority-dashboard/WLANProfiles.xml", "<wlanprofiles/>");
    m_window->Refresh();
    QCOMPARE(Text("messageText"), QString("Connect to a network, and it appears here."));
    QTest::mouseClick(m_window->findChild<QPushButton *>("message_connectAction"), Qt::LeftButton);
    QVERIFY(m_window->findChild<QDialog *>("connectDialog"));
}

void MainWindowTest::EmptiedListCanBeHadBack()
{
    PluginObjects::Priority()->AddTopPriority(Entry("Home"));
    QCOMPARE(Names(), QStringList("Home"));
    WriteList("<prioritylist/>");
    m_window->Refresh();
    QCOMPARE(Text("messageTitle"), QString("Your list is empty"));
    QVERIFY(Text("messageText").contains("Open the settings"));
    QPushButton *undo = m_window->findChild<QPushButton *>("message_undoAction");
    undo->setFocus();
    QTest::mouseClick(undo, Qt::LeftButton);
    QCOMPARE(Names(), QStringList("Home"));
    QCOMPARE(m_window->focusWidget(), List());
}

void MainWindowTest::WindowIsNoLargerThanMostOfTheScreen()
{
    const QSize screen = m_window->screen()->availableSize();
    m_window->FitToScreen();
    QVERIFY(m_window->width() <= screen.width() * 0.9 && m_window->height() <= screen.height() * 0.9);
}

void MainWindowTest::SizeThatTheUserHasChosenStays()
{
    const QSize chosen = m_window->screen()->availableSize() * 0.95;
    m_window->resize(chosen);
    m_window->close();
    m_window.reset(new MainWindow(m_plugins.data(), m_language.data(), m_log.data()));
    m_window->FitToScreen();
    QCOMPARE(m_window->size(), chosen);
}

void MainWindowTest::ContentStaysTogetherInAWideWindow()
{
    m_window->resize(1800, 700);
    const QWidget *body = m_window->findChild<QWidget *>("body");
    const int widest = DialogParts::ForFont(960);
    QTRY_VERIFY(body->width() <= widest && body->width() > widest - 60);
    QVERIFY(qAbs(body->geometry().center().x() - m_window->rect().center().x()) <= 1);
}

void MainWindowTest::EntriesAreShownInOrder()
{
    WriteList(ListFile(QStringList() << "Office"
                                     << "Home"
                                     << "A & B <i>x</i>"));
    m_window->Refresh();
    QVERIFY(List()->isVisible());
    // An ampersand alone ends the reading: what stands before is shown.
    QCOMPARE(Names(), QStringList() << "Office"
                                    << "Home");
    WriteList(ListFile(QStringList() << "Office"
                                     << "Home"
                                     << "A &amp; B &lt;i>x&lt;/i>"));
    m_window->Refresh();
    QCOMPARE(Names(), QStringList() << "Office"
                                    << "Home"
                                    << "A & B <i>x</i>");
}

void MainWindowTest::ChosenRowStaysChosen()
{
    WriteList(ListFile(QStringList() << "Office"
                                     << "Home"
                                     << "Library"));
    m_window->Refresh();
    List()->setFocus();
    QTest::keyClick(List(), Qt::Key_Down);
    QTest::keyClick(List(), Qt::Key_Down);
    QCOMPARE(List()->currentRow(), 1);
    m_window->Refresh();
    QCOMPARE(List()->currentRow(), 1);
    WriteList(ListFile(QStringList("Office")));
    m_window->Refresh();
    QCOMPARE(List()->currentRow(), 0);
}

void MainWindowTest::AppearanceMenuSwitchesAndIsKept()
{
    const QColor systemColour = QApplication::palette().color(QPalette::Base);
    QAction *dark = m_window->findChild<QAction *>("appearanceDarkAction");
    dark->trigger();
    QVERIFY(dark->isChecked());
    QVERIFY(List()->palette().color(QPalette::Base).lightness() < 64);
    m_window.reset(new MainWindow(m_plugins.data(), m_language.data(), m_log.data()));
    QVERIFY(m_window->findChild<QAction *>("appearanceDarkAction")->isChecked());
    m_window->findChild<QAction *>("appearanceSystemAction")->trigger();
    QCOMPARE(List()->palette().color(QPalette::Base), systemColour);
    QVERIFY(!m_window->findChild<QAction *>("appearanceDarkAction")->isChecked());
}

void MainWindowTest::ChangeThroughThePluginIsShownAtOnce()
{
    PluginObjects::Priority()->AddTopPriority(Entry("Home"));
    QCOMPARE(Names(), QStringList("Home"));
    PluginObjects::Priority()->AddTopPriority(Entry("Library"));
    QCOMPARE(Names(), QStringList() << "Library"
                                    << "Home");
}

void MainWindowTest::ChangeOfTheFileIsFollowed()
{
    for (int i = 0; i < 2; ++i) {
        const QString name = QString("Written %1").arg(i);
        QFile::remove(ListPath());
        WriteList(ListFile(QStringList(name)));
        QVERIFY(Eventually([this, name]() { return Names() == QStringList(name); }));
    }
}

void MainWindowTest::DamagedFileIsTold()
{
    WriteList("<zeltdoc><item name=\"Home\" type=\"1\"/><item");
    m_window->Refresh();
    QVERIFY(m_window->findChild<QWidget *>("banner")->isVisible());
    QVERIFY(Text("bannerTitle").contains("damaged"));
    QCOMPARE(Names(), QStringList("Home"));
    WriteList(ListFile(QStringList("Home")));
    m_window->Refresh();
    QVERIFY(!m_window->findChild<QWidget *>("banner")->isVisible());
}

void MainWindowTest::ListThatCannotBeReadIsNotCalledEmpty_data()
{
    QTest::addColumn<bool>("isFile");
    Row("damaged from the start", true);
    Row("cannot be opened", false);
}

void MainWindowTest::ListThatCannotBeReadIsNotCalledEmpty()
{
    QFETCH(bool, isFile);
    if (isFile) {
        WriteList("no list");
    } else {
        QVERIFY(QDir().mkdir(ListPath()));
    }
    m_window->Refresh();
    QVERIFY(Text("explanationLabel").startsWith("Your list cannot be read in full"));
    QCOMPARE(Text("messageTitle"), QString("Your list cannot be shown"));
    QVERIFY(!Text("messageText").contains("empty"));
}

void MainWindowTest::SettingsOpenAtTheListsPage()
{
    PluginObjects::Priority()->AddTopPriority(Entry("Home"));
    QTest::mouseClick(m_window->findChild<QPushButton *>("settingsButton"), Qt::LeftButton);
    const QDialog *dialog = m_window->findChild<QDialog *>("settingsDialog");
    QVERIFY(dialog && dialog->isVisible() && dialog->isModal());
    const QListWidget *pages = dialog->findChild<QListWidget *>("pageList");
    QCOMPARE(pages->count(), 3);
    QCOMPARE(pages->item(0)->text(), QString("General"));
    QCOMPARE(pages->item(1)->text(), QString("Rules"));
    QCOMPARE(pages->currentItem()->text(), QString("Network priority"));
    const QTableWidget *table = dialog->findChild<QTableWidget *>("priorityTable");
    QVERIFY(table && table->isVisible());
    QCOMPARE(table->rowCount(), 1);
}

void MainWindowTest::SettingsOpenOnce()
{
    m_window->OpenSettings();
    m_window->OpenSettings();
    QCOMPARE(m_window->findChildren<QDialog *>("settingsDialog").size(), 1);
}

void MainWindowTest::WindowIsRefreshedWhenSettingsClose()
{
    m_window->OpenSettings();
    QCOMPARE(Names(), QStringList());
    m_directory->Write("priority-dashboard/WLANNetworks.xml", "<wlannetworks/>");
    WriteList(ListFile(QStringList("Home")));
    m_window->findChild<QDialog *>("settingsDialog")->reject();
    QCOMPARE(Names(), QStringList("Home"));
    QCOMPARE(States(), QStringList("Out of range"));
}

void MainWindowTest::WindowClosedWithOpenSettingsSparesThePage()
{
    m_window->OpenSettings();
    QVERIFY(m_window->findChild<QWidget *>("priorityPage"));
    m_window.reset(new MainWindow(m_plugins.data(), m_language.data(), m_log.data()));
    m_window->show();
    m_window->OpenSettings();
    const QWidget *page = m_window->findChild<QWidget *>("priorityPage");
    QVERIFY(page && page->isVisible());
}

void MainWindowTest::ConnectPutsANewNetworkAtTheEnd_data()
{
    QTest::addColumn<bool>("byMenu");
    Row("button", false);
    Row("Network menu", true);
}

void MainWindowTest::ConnectPutsANewNetworkAtTheEnd()
{
    QFETCH(bool, byMenu);
    PluginObjects::Priority()->AddTopPriority(Entry("Office"));
    if (byMenu) {
        QAction *action = m_window->findChild<QAction *>("connectAction");
        QVERIFY(m_window->findChild<QMenu *>("networkMenu")->actions().contains(action));
        action->trigger();
    } else {
        QTest::mouseClick(m_window->findChild<QPushButton *>("connectButton"), Qt::LeftButton);
    }
    QListWidget *list = m_window->findChild<QListWidget *>("connectList");
    QVERIFY(list && list->isVisible() && list->window()->isModal());
    QCOMPARE(list->count(), 3);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::mouseClick(m_window->findChild<QPushButton *>("connectOkButton"), Qt::LeftButton);
    QTRY_COMPARE(Names(), QStringList() << "Office"
                                        << "Library");
    QTRY_COMPARE(Text("headlineLabel"), QString("In use now: Library (practice)"));
}

void MainWindowTest::ConnectLeavesAListedNetworkInItsPlace()
{
    QList<PriorityList> entries;
    entries << Entry("Office") << Entry("Mobile", "2") << Entry("Home");
    PluginObjects::Priority()->AddPriorityList(entries);
    m_window->OpenConnect();
    QTest::keyClick(m_window->findChild<QListWidget *>("connectList"), Qt::Key_Return);
    QTRY_COMPARE(Text("headlineLabel"), QString("In use now: Home (practice)"));
    QCOMPARE(Names(), QStringList() << "Office"
                                    << "Mobile"
                                    << "Home");
}

void MainWindowTest::ConnectOpensOnceAndAgain()
{
    m_window->OpenConnect();
    m_window->OpenConnect();
    QCOMPARE(m_window->findChildren<QDialog *>("connectDialog").size(), 1);
    m_window->findChild<QDialog *>("connectDialog")->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_window->findChildren<QDialog *>("connectDialog").size(), 0);
    m_window->OpenConnect();
    QVERIFY(m_window->findChild<QDialog *>("connectDialog")->isVisible());
}

void MainWindowTest::OpenPageFollowsAConnection()
{
    PluginObjects::Priority()->AddTopPriority(Entry("Office"));
    m_window->OpenSettings();
    const QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
    QCOMPARE(table->rowCount(), 1);
    m_window->OpenConnect();
    QListWidget *networks = m_window->findChild<QListWidget *>("connectList");
    QTest::keyClick(networks, Qt::Key_Down);
    QTest::mouseClick(m_window->findChild<QPushButton *>("connectOkButton"), Qt::LeftButton);
    QTRY_COMPARE(table->rowCount(), 2);
    QCOMPARE(table->cellWidget(1, 0)->accessibleName(), QString("Library"));
    QVERIFY(table->isVisible());
    QCOMPARE(Names(), QStringList() << "Office"
                                    << "Library");
}

void MainWindowTest::OpenConnectFollowsTheLanguage()
{
    m_window->OpenConnect();
    QVERIFY(m_language->Switch("he"));
    QCOMPARE(m_window->findChild<QDialog *>("connectDialog")->windowTitle(),
             QString::fromUtf8("התחברות לרשת"));
}

void MainWindowTest::LanguageMenuSwitches()
{
    PluginObjects::Priority()->AddTopPriority(Entry("Home"));
    QAction *arabic = m_window->findChild<QAction *>("languageAction_ar");
    QVERIFY(arabic && !arabic->isChecked());
    arabic->trigger();
    QVERIFY(arabic->isChecked());
    QCOMPARE(m_window->layoutDirection(), Qt::RightToLeft);
    QVERIFY(Text("headlineLabel").contains(QString::fromUtf8("قيد الاستخدام")));
    QVERIFY(States().first().contains(QString::fromUtf8("ضمن النطاق")));
}

void MainWindowTest::OpenSettingsFollowTheLanguage()
{
    m_window->OpenSettings();
    QVERIFY(m_language->Switch("he"));
    const QListWidget *pages = m_window->findChild<QListWidget *>("pageList");
    QCOMPARE(pages->item(0)->text(), QString::fromUtf8("כללי"));
    QVERIFY(pages->item(2)->text() != QString("Network priority"));
}

void MainWindowTest::TraceIsShownOnDemand()
{
    QDockWidget *trace = m_window->findChild<QDockWidget *>("tracePanel");
    QVERIFY(!trace->isVisible());
    trace->toggleViewAction()->trigger();
    QVERIFY(trace->isVisible());
}

void MainWindowTest::TraceShowsLines()
{
    QPlainTextEdit *text = m_window->findChild<QPlainTextEdit *>("traceText");
    const auto isShown = [text](const char *line) {
        return Eventually([text, line]() { return text->toPlainText().contains(line); });
    };
    qDebug("before anybody looks");
    m_window->findChild<QDockWidget *>("tracePanel")->toggleViewAction()->trigger();
    QVERIFY(isShown("before anybody looks"));
    qDebug("while somebody looks");
    QVERIFY(isShown("while somebody looks"));
    QVERIFY(text->isReadOnly());
    QVERIFY(text->maximumBlockCount() > 0);
}

void MainWindowTest::LongListIsShown()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i) {
        names.append(QString("Network %1").arg(i));
    }
    WriteList(ListFile(names));
    m_window->Refresh();
    QCOMPARE(Names(), names);
}

void MainWindowTest::SmallestWindowShowsWhatIsInUseAndThreeEntries()
{
    QList<PriorityList> entries;
    entries << Entry("Home") << Entry("Office") << Entry("Mobile", "2") << Entry("Library");
    PluginObjects::Priority()->AddPriorityList(entries);
    QTRY_COMPARE(Names().size(), 4);
    const QSize before = m_window->size();
    m_window->resize(1, 1);
    QCOMPARE(m_window->size(), m_window->minimumSize());
    QTRY_VERIFY(List()->viewport()->rect().contains(List()->visualItemRect(List()->item(2))));
    const QLabel *headline = m_window->findChild<QLabel *>("headlineLabel");
    QVERIFY(!headline->visibleRegion().isEmpty() && headline->height() >= headline->sizeHint().height());
    QWidget *explanation = m_window->findChild<QWidget *>("explanationLabel");
    QVERIFY(!explanation->isVisible());
    m_window->resize(before);
    QTRY_VERIFY(explanation->isVisible());
}

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
