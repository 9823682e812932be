#include "Eventually.h"
#include "Lists.h"
#include "MessageReader.h"
#include "PluginWorld.h"
#include "ShiftedClock.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <MainWindow.h>
#include <NetworkList.h>
#include <OrderFile.h>
#include <PluginObjects.h>
#include <Row.h>
#include <TraceCapture.h>
#include <TraceLog.h>
#include <WindowActivation.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/** Undo, redo, restore, import and export as the user has them in the window, over the real plug-ins. */
class ListActionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void NothingCanBeUndoneAtFirst();
    void UndoAndRedoFollowEachOther();
    void KeysUndoAndRedo();
    void MenuHasEverything();
    void ToolTipsTellWhatWouldBeUndone();
    void LastChangeIsTold();
    void ChangeOfTheFileCanBeUndone();
    void ChangeIsReadOnce();
    void UndoWritesOnce();
    void NeighbourThatWasMovedOnThePageIsTold_data();
    void NeighbourThatWasMovedOnThePageIsTold();
    void ChangeOnTheOpenPageIsUndoneThere_data();
    void ChangeOnTheOpenPageIsUndoneThere();
    void FiftyNinePressesAreOneChange();
    void PressesOfOneOpeningAreOneChange();
    void OkAfterAnUndoKeepsTheRestoredList();
    void RestoreOpensTheDialog();
    void ReasonIsToldWithoutThePlugin();
    void DamagedHistoryIsToldInTheWindow();
    void DamagedListIsRepairedByUndo();
    void UndoIsNoHelpForAListNeverRead();
    void FailureIsTold();
    void OrderIsExported();
    void ExportHasNoSecrets();
    void DamagedListIsNotExported();
    void ExportChangesNoOtherFile();
    void ExportThatCannotBeWrittenIsTold();
    void OrderIsImportedAndTheImportUndone();
    void FileThatIsNoOrderIsToldWithItsLine_data();
    void FileThatIsNoOrderIsToldWithItsLine();
    void PipeIsNotImported();
    void TextsFollowTheLanguage();

private:
    QAction *Action(const char *name) const { return m_window->findChild<QAction *>(QLatin1String(name)); }
    QPushButton *Button(const char *name) const
    {
        return m_window->findChild<QPushButton *>(QLatin1String(name));
    }
    QString Label(const char *name) const
    {
        return m_window->findChild<QLabel *>(QLatin1String(name))->text();
    }
    QString Shown() const;
    void Click(const char *name) const { QTest::mouseClick(Button(name), Qt::LeftButton); }
    /** Types a path into the file dialog of that name and confirms it. */
    void ChooseFile(const char *dialog, const QString &path) const;

    PluginWorld m_world;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
};

QString ListActionsTest::Shown() const
{
    const NetworkList *list = m_window->findChild<NetworkList *>();
    QStringList names;
    for (int i = 0; list->isVisible() && i < list->Listed().size(); ++i) {
        names.append(list->item(i)->text());
    }
    return names.join(", ");
}

void ListActionsTest::ChooseFile(const char *dialog, const QString &path) const
{
    QFileDialog *files = m_window->findChild<QFileDialog *>(QLatin1String(dialog));
    QVERIFY(files && files->isVisible());
    QLineEdit *name = files->findChild<QLineEdit *>("fileNameEdit");
    QVERIFY(name);
    // Typed, Qt's completion might come in between.
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
}

void ListActionsTest::initTestCase()
{
    QVERIFY(m_world.Load());
    m_log.reset(new TraceLog(m_world.Directory().FilePath("dashboard.log")));
}

void ListActionsTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void ListActionsTest::init()
{
    QVERIFY(m_world.Begin());
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    m_window->show();
    ActivateWindow(m_window.data());
}

void ListActionsTest::cleanup()
{
    ShiftedClock::Shift(0);
    m_window.reset();
}

void ListActionsTest::NothingCanBeUndoneAtFirst()
{
    QVERIFY(!Button("undoButton")->isEnabled());
    QVERIFY(!Action("redoAction")->isEnabled());
    QVERIFY(Action("restoreAction")->isEnabled());
    QVERIFY(Button("undoButton")->toolTip().contains("There is no earlier list to go back to."));
    QVERIFY(Action("redoAction")->toolTip().contains("there is nothing to redo"));
}

void ListActionsTest::UndoAndRedoFollowEachOther()
{
    PluginWorld::AddTop("Home");
    PluginWorld::AddTop("Office");
    QCOMPARE(Shown(), QString("Office, Home"));
    Click("undoButton");
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
    QCOMPARE(Shown(), QString("Home"));
    QVERIFY(Action("redoAction")->isEnabled());
    Action("redoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home"));
    QCOMPARE(Shown(), QString("Office, Home"));
    QVERIFY(!Action("redoAction")->isEnabled());
}

void ListActionsTest::KeysUndoAndRedo()
{
    PluginWorld::AddTop("Home");
    PluginWorld::AddTop("Office");
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(PluginWorld::Stored(), QString());
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(PluginWorld::Stored(), QString());
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home"));
}

void ListActionsTest::MenuHasEverything()
{
    const QList<QAction *> actions = m_window->findChild<QMenu *>("editMenu")->actions();
    QStringList texts;
    for (int i = 0; i < actions.size(); ++i) {
        texts.append(actions.at(i)->text());
    }
    QCOMPARE(texts, QStringList() << "&Undo"
                                  << "&Redo" << QString::fromUtf8("Earlier &lists…") << QString()
                                  << QString::fromUtf8("&Import list…") << QString::fromUtf8("&Export list…")
                                  << QString() << "Move u&p"
                                  << "Move &down"
                                  << "Move to &top"
                                  << "Move to e&nd" << QString::fromUtf8("&Move to place…") << QString()
                                  << "Remove &from list"
                                  << "Add t&o list" << QString() << QString::fromUtf8("Det&ails…")
                                  << QString::fromUtf8("For&get network…") << QString() << "Find a net&work"
                                  << QString::fromUtf8("&Settings…"));
    PluginWorld::AddTop("Home");
    Action("undoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString());
    Action("redoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
}

void ListActionsTest::ToolTipsTellWhatWouldBeUndone()
{
    PluginWorld::AddTop("<i>Home");
    QCOMPARE(Plain(Button("undoButton")->toolTip()), QString("Undo: Added &lt;i&gt;Home"));
    QCOMPARE(Plain(Button("undoButton")->accessibleDescription()), QString("Undo: Added <i>Home"));
    Click("undoButton");
    QCOMPARE(Plain(Action("redoAction")->toolTip()), QString("Redo: Added &lt;i&gt;Home"));
}

void ListActionsTest::LastChangeIsTold()
{
    QCOMPARE(Label("lastChangeLabel"), QString());
    PluginWorld::AddTop("Home");
    QVERIFY2(Plain(Label("lastChangeLabel")).startsWith("Last change: Added Home ("),
             qPrintable(Label("lastChangeLabel")));
    Click("undoButton");
    QCOMPARE(Label("lastChangeLabel"), QString());
}

/** How often the plug-in's function was called while capture listened. */
static int Calls(const TraceCapture &capture, const QString &function)
{
    return static_cast<int>(capture.Lines().filter(": " + function + ": Entered").size());
}

void ListActionsTest::ChangeIsReadOnce()
{
    m_world.Write("Priority.xml", OrderFile::Document(Listed("A, B, C")));
    m_window->Refresh();
    Click("settingsButton");
    QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(2, 0)).center());
    const TraceCapture capture;
    Click("upButton");
    const int readsOfThePlugin = Calls(capture, "GetPriorityList");
    const QListWidget *overview = m_window->findChild<QListWidget *>("overviewList");
    QTRY_COMPARE(overview->item(1)->text(), QString("C"));
    // Whoever else looks does so soon.
    QTest::qWait(500);
    QCOMPARE(Calls(capture, "GetPriorityList") - readsOfThePlugin, 1);
    QCOMPARE(Plain(Button("settingsUndoButton")->accessibleDescription()), QString("Undo: Moved C up"));
}

void ListActionsTest::UndoWritesOnce()
{
    m_world.Write("Priority.xml", OrderFile::Document(Listed("A, B, C")));
    m_window->Refresh();
    PluginWorld::AddTop("C");
    m_window->Refresh();
    const TraceCapture capture;
    Click("undoButton");
    QTest::qWait(500);
    QCOMPARE(m_world.Read("Priority.xml"), OrderFile::Document(Listed("A, B, C")));
    // The dashboard has put the file there, and the plug-in needn't.
    QCOMPARE(Calls(capture, "SavePriorityList"), 0);
    // What is there before it is replaced, and what is there then; the page reads for itself.
    QCOMPARE(Calls(capture, "GetPriorityList") - Calls(capture, "UpdataPriorityList"), 2);
}

void ListActionsTest::ChangeOfTheFileCanBeUndone()
{
    PluginWorld::AddTop("Home");
    m_world.Write("Priority.xml", OrderFile::Document(Listed("Other")));
    QVERIFY(Eventually([this]() { return Shown() == "Other"; }));
    QCOMPARE(Plain(Button("undoButton")->accessibleDescription()), QString("Undo: Replaced Home by Other"));
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
    QCOMPARE(m_world.Read("Priority.xml"), OrderFile::Document(Listed("Home")));
}

void ListActionsTest::NeighbourThatWasMovedOnThePageIsTold_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("told");
    Row("down", 0, QByteArray("downButton"), "Undo: Moved A down");
    Row("up", 1, QByteArray("upButton"), "Undo: Moved B up");
}

void ListActionsTest::NeighbourThatWasMovedOnThePageIsTold()
{
    QFETCH(int, row);
    QFETCH(QByteArray, button);
    m_world.Write("Priority.xml", OrderFile::Document(Listed("A, B, C")));
    m_window->Refresh();
    Click("settingsButton");
    QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(row, 0)).center());
    Click(button.constData());
    QTRY_COMPARE(Shown(), QString("B, A, C"));
    QTEST(Plain(Button("settingsUndoButton")->accessibleDescription()), "told");
}

void ListActionsTest::ChangeOnTheOpenPageIsUndoneThere_data()
{
    QTest::addColumn<bool>("byKey");
    Row("buttons", false);
    Row("keys", true);
}

void ListActionsTest::ChangeOnTheOpenPageIsUndoneThere()
{
    QFETCH(bool, byKey);
    QList<PriorityList> entries = Listed("A, B, C");
    PluginObjects::Priority()->AddPriorityList(entries);
    Click("settingsButton");
    QDialog *settings = m_window->findChild<QDialog *>("settingsDialog");
    ActivateWindow(settings);
    QTableWidget *table = settings->findChild<QTableWidget *>("priorityTable");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(2, 0)).center());
    QTest::mouseClick(settings->findChild<QPushButton *>("upButton"), Qt::LeftButton);
    QCOMPARE(PluginWorld::Stored(), QString("A, C, B"));
    QVERIFY(Eventually([this]() { return Shown() == "A, C, B"; }));
    if (byKey) {
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    } else {
        Click("settingsUndoButton");
    }
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C"));
    QCOMPARE(table->cellWidget(1, 0)->accessibleName(), QString("B"));
    QCOMPARE(Shown(), QString("A, B, C"));
    if (byKey) {
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
        Click("settingsRedoButton");
    }
    QCOMPARE(PluginWorld::Stored(), QString("A, C, B"));
    QCOMPARE(table->cellWidget(1, 0)->accessibleName(), QString("C"));
}

void ListActionsTest::FiftyNinePressesAreOneChange()
{
    QStringList names;
    for (int i = 1; i <= 60; ++i) {
        names.append(QString("Network %1").arg(i));
    }
    m_world.Write("Priority.xml", OrderFile::Document(Listed(names.join(", "))));
    m_window->Refresh();
    Click("settingsButton");
    QDialog *settings = m_window->findChild<QDialog *>("settingsDialog");
    QTableWidget *table = settings->findChild<QTableWidget *>("priorityTable");
    table->scrollToBottom();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(59, 0)).center());
    for (int i = 0; i < 59; ++i) {
        QTest::mouseClick(settings->findChild<QPushButton *>("upButton"), Qt::LeftButton);
        // Each step is seen.
        m_window->Refresh();
    }
    QCOMPARE(PluginWorld::Stored().section(", ", 0, 1), QString("Network 60, Network 1"));
    QCOMPARE(Plain(Button("settingsUndoButton")->accessibleDescription()),
             QString("Undo: Moved Network 60 to the top"));
    Click("settingsUndoButton");
    QCOMPARE(PluginWorld::Stored(), names.join(", "));
    Click("settingsUndoButton");
    QCOMPARE(PluginWorld::Stored(), QString());
    QVERIFY(!Button("settingsUndoButton")->isEnabled());
}

void ListActionsTest::PressesOfOneOpeningAreOneChange()
{
    QList<PriorityList> entries = Listed("A, B, C, D, E, F");
    PluginObjects::Priority()->AddPriorityList(entries);
    for (int opening = 0; opening < 2; ++opening) {
        ShiftedClock::ShiftToNoon(60 * (1 + 3 * opening));
        Click("settingsButton");
        const QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
        const int row = table->rowCount() - 1 - 2 * opening;
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                          table->visualRect(table->model()->index(row, 0)).center());
        for (int press = 0; press < 2; ++press) {
            ShiftedClock::ShiftToNoon(60 * (2 + 3 * opening + press));
            Click("upButton");
            QVERIFY(m_world.SetTime("Priority.xml", QDateTime::currentDateTime()));
            m_window->Refresh();
        }
        Click("settingsCancelButton");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // The same entry, but in another opening, and with the page closed.
    ShiftedClock::ShiftToNoon(3600);
    PluginWorld::AddTop("F");
    QVERIFY(m_world.SetTime("Priority.xml", QDateTime::currentDateTime()));
    m_window->Refresh();
    QCOMPARE(PluginWorld::Stored(), QString("F, A, B, C, D, E"));
    Click("undoButton");
    QCOMPARE(PluginWorld::Stored(), QString("A, F, B, C, D, E"));
    Click("undoButton");
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C, F, D, E"));
    Click("undoButton");
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C, D, E, F"));
}

void ListActionsTest::OkAfterAnUndoKeepsTheRestoredList()
{
    PluginWorld::AddTop("Home");
    PluginWorld::AddTop("Office");
    Click("settingsButton");
    Click("settingsUndoButton");
    Click("settingsOkButton");
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
    QCOMPARE(Shown(), QString("Home"));
    QVERIFY(Action("redoAction")->isEnabled());
}

void ListActionsTest::RestoreOpensTheDialog()
{
    PluginWorld::AddTop("Home");
    Action("restoreAction")->trigger();
    QDialog *dialog = m_window->findChild<QDialog *>("restoreDialog");
    QVERIFY(dialog && dialog->isVisible() && dialog->isModal());
    QTest::keyClick(dialog->findChild<QTableWidget *>("restoreList"), Qt::Key_Down);
    QTest::keyClick(dialog->findChild<QTableWidget *>("restoreList"), Qt::Key_Return);
    QCOMPARE(PluginWorld::Stored(), QString());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!m_window->findChild<QDialog *>("restoreDialog"));
}

void ListActionsTest::ReasonIsToldWithoutThePlugin()
{
    PluginWorld::AddTop("Home");
    HostControl::SetPluginContainer(nullptr);
    m_window->Refresh();
    const char *const names[] = {"undoAction", "redoAction", "restoreAction"};
    for (const char *name : names) {
        QVERIFY(!Action(name)->isEnabled());
        QVERIFY2(Action(name)->toolTip().contains("The plug-in that keeps the list is not available"),
                 qPrintable(Action(name)->toolTip()));
    }
    QVERIFY(!Action("importAction")->isEnabled());
    QVERIFY(!Action("exportAction")->isEnabled());
}

void ListActionsTest::DamagedHistoryIsToldInTheWindow()
{
    PluginWorld::AddTop("Home");
    m_world.Write("history/states.xml", "<listhistory version=\"1\" current=\"0\">\nnonsense");
    m_window->Refresh();
    const QLabel *problems = m_window->findChild<QLabel *>("bannerText");
    QVERIFY(problems->isVisible());
    QVERIFY2(Plain(problems->text()).contains("history/states.xml, is damaged and was not changed. Line 2: "),
             qPrintable(problems->text()));
    QVERIFY(!Button("undoButton")->isEnabled());
    QCOMPARE(m_world.Read("history/states.xml"),
             QByteArray("<listhistory version=\"1\" current=\"0\">\nnonsense"));
    // The program goes on, and Restore helps.
    PluginWorld::AddTop("Office");
    QCOMPARE(Shown(), QString("Office, Home"));
    Action("restoreAction")->trigger();
    Click("restoreAsideButton");
    QVERIFY(!problems->isVisible());
    PluginWorld::AddTop("Cafe");
    QVERIFY(Button("undoButton")->isEnabled());
}

void ListActionsTest::DamagedListIsRepairedByUndo()
{
    m_world.Write("Priority.xml", OrderFile::Document(Listed("A, B, C")));
    m_window->Refresh();
    const QByteArray whole = m_world.Read("Priority.xml");
    m_world.Write("Priority.xml", whole.left(whole.indexOf("\"B\"")));
    m_window->Refresh();
    QCOMPARE(Shown(), QString("A"));
    QVERIFY(m_window->findChild<QLabel *>("bannerText")->text().contains("restores the last complete list"));
    Click("undoButton");
    QCOMPARE(Shown(), QString("A, B, C"));
    QCOMPARE(m_world.Read("Priority.xml"), whole);
}

void ListActionsTest::UndoIsNoHelpForAListNeverRead()
{
    m_window.reset();
    QVERIFY(m_world.Begin());
    m_world.Write("Priority.xml", "<zeltdoc>");
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    const QString told = Label("bannerText");
    QVERIFY2(told.contains("is damaged") && !told.contains("brings back"), qPrintable(told));
    QVERIFY(!Button("undoButton")->isEnabled());
    QVERIFY2(!Action("redoAction")->toolTip().contains("brings back"),
             qPrintable(Action("redoAction")->toolTip()));
}

void ListActionsTest::FailureIsTold()
{
    PluginWorld::AddTop("Home");
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority.xml.new"));
    MessageReader message;
    Click("undoButton");
    QVERIFY2(message.text.contains("cannot be written to"), qPrintable(message.text));
    QCOMPARE(Shown(), QString("Home"));
    QVERIFY(Button("undoButton")->isEnabled());
}

void ListActionsTest::OrderIsExported()
{
    m_world.Write("Priority.xml", OrderFile::Document(Listed("Home, Mobile/2")));
    m_window->Refresh();
    Action("exportAction")->trigger();
    // The suffix is added.
    const QString path = m_world.Directory().FilePath("mine");
    ChooseFile("exportFileDialog", path);
    QCOMPARE(m_world.Directory().Read("mine.xml"), OrderFile::Document(Listed("Home, Mobile/2")));
    QCOMPARE(PluginWorld::Stored(), QString("Home, Mobile/2"));
}

void ListActionsTest::ExportHasNoSecrets()
{
    m_world.Write("Priority.xml",
                  "<zeltdoc><item name=\"Home\" type=\"1\" keyMaterial=\"sesame\"/></zeltdoc>");
    m_window->Refresh();
    Action("exportAction")->trigger();
    ChooseFile("exportFileDialog", m_world.Directory().FilePath("mine.xml"));
    const QByteArray exported = m_world.Directory().Read("mine.xml");
    QVERIFY(exported.contains("Home"));
    QVERIFY(!exported.contains("sesame"));
    QVERIFY(!m_world.Read("history/states.xml").contains("sesame"));
}

void ListActionsTest::DamagedListIsNotExported()
{
    PluginWorld::AddTop("Home");
    m_world.Write("Priority.xml", m_world.Read("Priority.xml").replace("</zeltdoc>", ""));
    m_window->Refresh();
    QVERIFY(!Action("exportAction")->isEnabled());
    QVERIFY2(Action("exportAction")->whatsThis().contains("is damaged"),
             qPrintable(Action("exportAction")->whatsThis()));
    Click("undoButton");
    QVERIFY(Action("exportAction")->isEnabled());
}

void ListActionsTest::ExportChangesNoOtherFile()
{
    PluginWorld::AddTop("Home");
    const QStringList others = {"mine.xml.new", "mine.xml~", "mine"};
    for (const QString &other : others) {
        QFile file(m_world.Directory().FilePath(other));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    }
    Action("exportAction")->trigger();
    ChooseFile("exportFileDialog", m_world.Directory().FilePath("mine.xml"));
    QVERIFY(m_world.Directory().Read("mine.xml").contains("Home"));
    for (const QString &other : others) {
        QCOMPARE(m_world.Directory().Read(other), QByteArray("mine"));
    }
}

void ListActionsTest::ExportThatCannotBeWrittenIsTold()
{
    PluginWorld::AddTop("Home");
    Action("exportAction")->trigger();
    MessageReader message;
    // Nobody can make a file there.
    ChooseFile("exportFileDialog", "/proc/mine.xml");
    QVERIFY2(Plain(message.text).contains("mine.xml cannot be written"), qPrintable(message.text));
}

void ListActionsTest::OrderIsImportedAndTheImportUndone()
{
    PluginWorld::AddTop("Home");
    m_world.Directory().Write("mine.xml", OrderFile::Document(Listed("Office, Hotel, Home")));
    Action("importAction")->trigger();
    ChooseFile("importFileDialog", m_world.Directory().FilePath("mine.xml"));
    const QDialog *preview = m_window->findChild<QDialog *>("importDialog");
    QVERIFY(preview && preview->isVisible() && preview->isModal());
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
    Click("importOkButton");
    QCOMPARE(PluginWorld::Stored(), QString("Office, Hotel, Home"));
    QCOMPARE(Shown(), QString("Office, Hotel, Home"));
    ActivateWindow(m_window.data());
    QTest::keyClick(m_window.data(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
}

void ListActionsTest::FileThatIsNoOrderIsToldWithItsLine_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told");
    Row("damaged", QByteArray("<zeltdoc>\n<item name=\"A\""), "Line 2: ");
    Row("profiles", QByteArray("<wlanprofiles/>"),
        QString::fromUtf8("Line 1: the element “wlanprofiles” is not allowed here"));
    Row("far too large", QByteArray(OrderFile::largestFile + 1, ' '), "far too large");
}

void ListActionsTest::FileThatIsNoOrderIsToldWithItsLine()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    PluginWorld::AddTop("Home");
    m_world.Directory().Write("mine.xml", bytes);
    Action("importAction")->trigger();
    MessageReader message;
    ChooseFile("importFileDialog", m_world.Directory().FilePath("mine.xml"));
    QVERIFY2(message.text.contains(told), qPrintable(message.text));
    QVERIFY2(message.text.contains("mine.xml"), qPrintable(message.text));
    QVERIFY(!m_window->findChild<QDialog *>("importDialog"));
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
    QCOMPARE(m_world.Directory().Read("mine.xml"), bytes);
}

void ListActionsTest::PipeIsNotImported()
{
    PluginWorld::AddTop("Home");
    const QString path = m_world.Directory().FilePath("mine.xml");
    const QByteArray encodedPath = QFile::encodeName(path);
    QCOMPARE(mkfifo(encodedPath.constData(), 0600), 0);
    // Waits until somebody reads.
    const pid_t writer = fork();
    if (writer == 0) {
        const int pipe = open(encodedPath.constData(), O_WRONLY);
        const QByteArray order = OrderFile::Document(Listed("Office"));
        _exit(write(pipe, order.constData(), size_t(order.size())) == order.size() ? 0 : 1);
    }
    Action("importAction")->trigger();
    MessageReader message;
    ChooseFile("importFileDialog", path);
    QCOMPARE(kill(writer, SIGKILL), 0);
    int status = 0;
    QCOMPARE(waitpid(writer, &status, 0), writer);
    QVERIFY2(WIFSIGNALED(status), "nothing was read from the pipe");
    QVERIFY2(message.text.contains("mine.xml"), qPrintable(message.text));
    QVERIFY(!m_window->findChild<QDialog *>("importDialog"));
}

void ListActionsTest::TextsFollowTheLanguage()
{
    PluginWorld::AddTop("Home");
    QVERIFY(m_language->Switch("he"));
    QCOMPARE(Button("undoButton")->text(), QString::fromUtf8("ביטול פעולה"));
    QCOMPARE(Plain(Button("undoButton")->accessibleDescription()),
             QString::fromUtf8("ביטול פעולה: הוספת Home"));
    QVERIFY(Plain(Label("lastChangeLabel")).contains(QString::fromUtf8("השינוי האחרון")));
}

QTEST_MAIN(ListActionsTest)
#include "tst_listactions.moc"
