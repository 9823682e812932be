#include "Eventually.h"
#include "Lists.h"
#include "MessageReader.h"
#include "PluginWorld.h"

#include <DashboardLanguage.h>
#include <IPriorityPlugin.h>
#include <ListHistory.h>
#include <MainWindow.h>
#include <OrderFile.h>
#include <PluginObjects.h>
#include <Row.h>
#include <TraceLog.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

/** What the window does about a list that can't be read in full, over the real plug-ins. */
class DamagedListTest : public QObject
{
    Q_OBJECT

public slots:
    void DamageAndLeave();

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void WindowTellsAndOffersTheQuestion();
    void QuestionComesBeforeWhatCanWrite_data();
    void QuestionComesBeforeWhatCanWrite();
    void QuestionTellsWhatThereIs();
    void WithoutAnEarlierListNothingCanBeBroughtBack();
    void BroughtBackListIsOpened();
    void ReadableListIsOpened();
    void QuestionIsAnsweredByKeys_data();
    void QuestionIsAnsweredByKeys();
    void QuestionThatIsLeftChangesNothing_data();
    void QuestionThatIsLeftChangesNothing();
    void QuestionGoesWhenTheListIsMendedElsewhere();
    void FailureIsToldAndTheQuestionStays();
    void NothingIsOpenedWithoutACopy_data();
    void NothingIsOpenedWithoutACopy();
    void NothingIsOpenedOverAListThatCannotBeOpened();
    void OkWritesNothingOverAListDamagedMeanwhile_data();
    void OkWritesNothingOverAListDamagedMeanwhile();
    void DamageIsAskedAboutOverTheOpenPage();
    void PageClosesWhenTheListIsToStayDamaged_data();
    void PageClosesWhenTheListIsToStayDamaged();
    void QuestionOfThePageIsClosedWithIt();
    void PageClosesWhenTheDamagedListCannotBeCopied();
    void ConnectingLeavesADamagedListAlone();
    void TextsFollowTheLanguage();

private:
    template <class Widget> Widget *Find(const char *name) const
    {
        return m_window->findChild<Widget *>(QLatin1String(name));
    }
    QDialog *Dialog(const char *name) const
    {
        QDialog *dialog = Find<QDialog>(name);
        return dialog && dialog->isVisible() ? dialog : nullptr;
    }
    QDialog *Question() const { return Dialog("damagedListDialog"); }
    QString Text(const char *name) const { return Plain(Find<QLabel>(name)->text()); }
    void Click(const char *name) const
    {
        QTest::mouseClick(Find<QPushButton>(name), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QByteArray ListBytes() const { return m_world.Read("Priority.xml"); }
    void WriteWhole() const { m_world.Write("Priority.xml", OrderFile::Document(Listed("A, B, C"))); }
    /** The list "A, B, C" with the last of them cut off; the bytes of that. */
    QByteArray WriteDamaged() const;
    /** A history with "A, B, C", and the list damaged, as the window has seen. */
    QByteArray Damage() const;
    void OpenSettings() const;

    PluginWorld m_world;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
};

QByteArray DamagedListTest::WriteDamaged() const
{
    const QByteArray whole = OrderFile::Document(Listed("A, B, C"));
    const QByteArray damaged = whole.left(whole.lastIndexOf("<item") + 8);
    m_world.Write("Priority.xml", damaged);
    return damaged;
}

QByteArray DamagedListTest::Damage() const
{
    WriteWhole();
    m_window->Refresh();
    const QByteArray damaged = WriteDamaged();
    m_window->Refresh();
    return damaged;
}

void DamagedListTest::OpenSettings() const
{
    WriteWhole();
    m_window->Refresh();
    Click("settingsButton");
    QVERIFY(Dialog("settingsDialog"));
}

void DamagedListTest::initTestCase()
{
    QVERIFY(m_world.Load());
    m_log.reset(new TraceLog(m_world.Directory().FilePath("dashboard.log")));
}

void DamagedListTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void DamagedListTest::init()
{
    QVERIFY(m_world.Begin());
    m_world.Write("WLANNetworks.xml", "<wlannetworks><network name=\"Home\" signal=\"90\"/></wlannetworks>");
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    m_window->show();
    ActivateWindow(m_window.data());
}

void DamagedListTest::cleanup()
{
    m_window.reset();
}

void DamagedListTest::WindowTellsAndOffersTheQuestion()
{
    WriteWhole();
    m_window->Refresh();
    QVERIFY(!Find<QPushButton>("bannerRemedyButton")->isVisible());
    const QByteArray damaged = Damage();
    QCOMPARE(
        Text("bannerText"),
        QString::fromUtf8("The file with your list is damaged. Only the networks before the damaged part are "
                          "shown. A copy of the file is kept as %1Priority-damaged-1.xml. This program does "
                          "not change your list until you decide what to do. “Undo” restores the last "
                          "complete list.")
            .arg(m_world.UserData()));
    QVERIFY(!Question());
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    Click("bannerRemedyButton");
    QVERIFY(Question() && Question()->isModal());
    Click("damageBringBackButton");
    QVERIFY(!Question());
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C"));
    QVERIFY(!Find<QPushButton>("bannerRemedyButton")->isVisible());
    QVERIFY(!Find<QWidget>("banner")->isVisible());
}

void DamagedListTest::QuestionComesBeforeWhatCanWrite_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<bool>("isSeen");
    Row("settings", "settingsButton", "settingsDialog", true);
    Row("settings, damage not yet seen", "settingsButton", "settingsDialog", false);
    Row("connect", "connectButton", "connectDialog", true);
    Row("connect, damage not yet seen", "connectButton", "connectDialog", false);
}

void DamagedListTest::QuestionComesBeforeWhatCanWrite()
{
    QFETCH(QString, button);
    QFETCH(QString, dialog);
    QFETCH(bool, isSeen);
    WriteWhole();
    m_window->Refresh();
    const QByteArray damaged = isSeen ? Damage() : WriteDamaged();
    QTest::mouseClick(m_window->findChild<QPushButton *>(button), Qt::LeftButton);
    QVERIFY(Question());
    QVERIFY(!m_window->findChild<QDialog *>(dialog));
    QCOMPARE(ListBytes(), damaged);
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    Click("damageGoOnButton");
    QVERIFY(!Question());
    QVERIFY(m_window->findChild<QDialog *>(dialog)->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("A, B"));
}

void DamagedListTest::QuestionTellsWhatThereIs()
{
    Damage();
    Click("settingsButton");
    QCOMPARE(Question()->windowTitle(), QString("Your list is damaged"));
    QCOMPARE(Text("damageTextLabel"),
             QString("The file with your list cannot be read to the end. Networks that could be read: 2."));
    const QString last = Text("damageLastLabel");
    QVERIFY2(last.startsWith("The last complete list is from ") && last.endsWith(". Networks in it: 3."),
             qPrintable(last));
    QCOMPARE(Text("damageCopyLabel"),
             QString("Whatever you choose, the damaged file is kept as Priority-damaged-1.xml."));
    QVERIFY(Find<QLabel>("damageCopyLabel")->toolTip().contains(m_world.UserData()));
    QVERIFY(!Find<QLabel>("damageProblemLabel")->isVisible());
    // A screen reader says it with the button.
    QCOMPARE(Plain(Find<QPushButton>("damageBringBackButton")->accessibleDescription()), last);
    QCOMPARE(Find<QPushButton>("damageGoOnButton")->accessibleDescription(), Text("damageTextLabel"));
}

void DamagedListTest::WithoutAnEarlierListNothingCanBeBroughtBack()
{
    m_window.reset();
    QVERIFY(QDir(m_world.UserData() + "history").removeRecursively());
    const QByteArray damaged = WriteDamaged();
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    m_window->show();
    Click("settingsButton");
    QVERIFY(Question());
    QVERIFY(!Find<QPushButton>("damageBringBackButton")->isVisible());
    QCOMPARE(Text("damageLastLabel"), QString("There is no earlier list that can be restored."));
    // Return takes nothing away.
    QVERIFY(Find<QPushButton>("damageLeaveButton")->isDefault());
    QCOMPARE(ListBytes(), damaged);
    Click("damageGoOnButton");
    QCOMPARE(PluginWorld::Stored(), QString("A, B"));
    QVERIFY(Dialog("settingsDialog"));
}

void DamagedListTest::BroughtBackListIsOpened()
{
    Damage();
    Click("settingsButton");
    Click("damageBringBackButton");
    QVERIFY(Dialog("settingsDialog"));
    QCOMPARE(Find<QTableWidget>("priorityTable")->rowCount(), 3);
    Click("settingsOkButton");
    QCOMPARE(ListBytes(), OrderFile::Document(Listed("A, B, C")));
}

void DamagedListTest::ReadableListIsOpened()
{
    Damage();
    Click("settingsButton");
    Click("damageGoOnButton");
    QCOMPARE(Find<QTableWidget>("priorityTable")->rowCount(), 2);
    Click("settingsUndoButton");
    QCOMPARE(Find<QTableWidget>("priorityTable")->rowCount(), 3);
}

void DamagedListTest::QuestionIsAnsweredByKeys_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<QString>("list");
    Row("Return", 0, "A, B, C");
    Row("Tab, Return", 1, "A, B");
}

void DamagedListTest::QuestionIsAnsweredByKeys()
{
    QFETCH(int, tabs);
    Damage();
    QTest::keyClick(m_window.data(), Qt::Key_Comma, Qt::ControlModifier);
    QVERIFY(Question());
    ActivateWindow(Question());
    for (int i = 0; i < tabs; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTEST(PluginWorld::Stored(), "list");
    QVERIFY(Dialog("settingsDialog"));
}

void DamagedListTest::QuestionThatIsLeftChangesNothing_data()
{
    QTest::addColumn<QString>("way");
    Row("button", "button");
    Row("Escape", "Escape");
    Row("closed", "closed");
}

void DamagedListTest::QuestionThatIsLeftChangesNothing()
{
    QFETCH(QString, way);
    const QByteArray damaged = Damage();
    Click("settingsButton");
    if (way == "button") {
        Click("damageLeaveButton");
    } else if (way == "Escape") {
        QTest::keyClick(Question(), Qt::Key_Escape);
    } else {
        Question()->close();
    }
    QVERIFY(!Question());
    QVERIFY(!Dialog("settingsDialog"));
    QCOMPARE(ListBytes(), damaged);
    QVERIFY(Find<QPushButton>("bannerRemedyButton")->isVisible());
    // It is asked again.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Click("settingsButton");
    QVERIFY(Question());
}

void DamagedListTest::QuestionGoesWhenTheListIsMendedElsewhere()
{
    Damage();
    Click("settingsButton");
    QVERIFY(Question());
    m_world.Write("Priority.xml", OrderFile::Document(Listed("X")));
    QVERIFY(Eventually([this]() { return !Question(); }));
    QVERIFY(Dialog("settingsDialog"));
    QCOMPARE(PluginWorld::Stored(), QString("X"));
}

void DamagedListTest::FailureIsToldAndTheQuestionStays()
{
    const QByteArray damaged = Damage();
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority.xml.new"));
    Click("bannerRemedyButton");
    const int height = Question()->height();
    Click("damageBringBackButton");
    QVERIFY(Question());
    QVERIFY(Find<QLabel>("damageProblemLabel")->isVisible());
    QVERIFY2(Text("damageProblemLabel").contains("cannot be written to"),
             qPrintable(Text("damageProblemLabel")));
    QVERIFY(Question()->height() > height);
    QCOMPARE(ListBytes(), damaged);
    QVERIFY(QDir().rmdir(m_world.UserData() + "Priority.xml.new"));
    Click("damageBringBackButton");
    QVERIFY(!Question());
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C"));
}

void DamagedListTest::NothingIsOpenedWithoutACopy_data()
{
    QTest::addColumn<QString>("button");
    Row("settings", "settingsButton");
    Row("connect", "connectButton");
}

void DamagedListTest::NothingIsOpenedWithoutACopy()
{
    QFETCH(QString, button);
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority-damaged-1.xml.new"));
    const QByteArray damaged = Damage();
    QVERIFY2(Text("bannerText").contains("cannot be backed up"), qPrintable(Text("bannerText")));
    QVERIFY(!Text("bannerText").contains("Undo"));
    QVERIFY(!Find<QPushButton>("bannerRemedyButton")->isVisible());
    MessageReader message;
    QTest::mouseClick(m_window->findChild<QPushButton *>(button), Qt::LeftButton);
    QVERIFY2(Plain(message.text).contains("Priority.xml cannot be backed up"), qPrintable(message.text));
    QVERIFY(!Question());
    QVERIFY(!Dialog("settingsDialog"));
    QVERIFY(!Dialog("connectDialog"));
    QCOMPARE(ListBytes(), damaged);
}

void DamagedListTest::NothingIsOpenedOverAListThatCannotBeOpened()
{
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority.xml"));
    MessageReader message;
    Click("settingsButton");
    QVERIFY2(message.text.contains("exists but cannot be opened"), qPrintable(message.text));
    QVERIFY(!Dialog("settingsDialog"));
}

void DamagedListTest::OkWritesNothingOverAListDamagedMeanwhile_data()
{
    QTest::addColumn<bool>("byKey");
    Row("button", false);
    Row("Return", true);
}

void DamagedListTest::OkWritesNothingOverAListDamagedMeanwhile()
{
    QFETCH(bool, byKey);
    OpenSettings();
    const QByteArray damaged = WriteDamaged();
    if (byKey) {
        QTest::keyClick(Dialog("settingsDialog"), Qt::Key_Return);
    } else {
        Click("settingsOkButton");
    }
    QVERIFY(!Dialog("settingsDialog"));
    QCOMPARE(ListBytes(), damaged);
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    QVERIFY(Find<QPushButton>("bannerRemedyButton")->isVisible());
}

void DamagedListTest::DamageIsAskedAboutOverTheOpenPage()
{
    OpenSettings();
    const QByteArray damaged = WriteDamaged();
    QVERIFY(Eventually([this]() { return Question() != nullptr; }));
    QCOMPARE(Question()->parentWidget(), Dialog("settingsDialog"));
    QCOMPARE(m_world.Read("Priority-damaged-1.xml"), damaged);
    QCOMPARE(ListBytes(), damaged);
    Click("damageGoOnButton");
    QVERIFY(Dialog("settingsDialog"));
    QCOMPARE(Find<QTableWidget>("priorityTable")->rowCount(), 2);
    Click("settingsOkButton");
    QCOMPARE(PluginWorld::Stored(), QString("A, B"));
}

void DamagedListTest::PageClosesWhenTheListIsToStayDamaged_data()
{
    QTest::addColumn<QString>("over");
    Row("page", "");
    Row("dialog of the page", "newButton");
}

void DamagedListTest::PageClosesWhenTheListIsToStayDamaged()
{
    QFETCH(QString, over);
    OpenSettings();
    if (!over.isEmpty()) {
        QTest::mouseClick(m_window->findChild<QPushButton *>(over), Qt::LeftButton);
        QVERIFY(Dialog("newDialog"));
    }
    const QByteArray damaged = WriteDamaged();
    QVERIFY(Eventually([this]() { return Question() != nullptr; }));
    Click("damageLeaveButton");
    QVERIFY(!Question());
    QVERIFY(!Dialog("settingsDialog"));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(ListBytes(), damaged);
}

void DamagedListTest::DamageAndLeave()
{
    WriteDamaged();
    QVERIFY(Eventually([this]() { return Question() != nullptr; }));
    Click("damageLeaveButton");
}

void DamagedListTest::QuestionOfThePageIsClosedWithIt()
{
    OpenSettings();
    const QTableWidget *table = Find<QTableWidget>("priorityTable");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(0, 0)).center());
    // The page waits for the answer in a loop of its own.
    QTimer::singleShot(0, this, SLOT(DamageAndLeave()));
    QTest::mouseClick(Find<QPushButton>("deleteButton"), Qt::LeftButton);
    QVERIFY(!Dialog("settingsDialog"));
    QVERIFY(!QApplication::activeModalWidget());
    // After a question that was not answered the page writes the list as it shows it, which is whole.
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C"));
    QVERIFY(QFile::exists(m_world.UserData() + "Priority-damaged-1.xml"));
}

void DamagedListTest::PageClosesWhenTheDamagedListCannotBeCopied()
{
    OpenSettings();
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority-damaged-1.xml.new"));
    const QByteArray damaged = WriteDamaged();
    MessageReader message;
    QVERIFY(Eventually([this]() { return !Dialog("settingsDialog"); }));
    QVERIFY(Eventually([&message]() { return !message.text.isEmpty(); }));
    QVERIFY2(Plain(message.text).contains("cannot be backed up"), qPrintable(message.text));
    QCOMPARE(ListBytes(), damaged);
}

void DamagedListTest::ConnectingLeavesADamagedListAlone()
{
    m_world.Write("WLANNetworks.xml", "<wlannetworks><network name=\"Quay\" signal=\"90\"/></wlannetworks>");
    WriteWhole();
    m_window->Refresh();
    Click("connectButton");
    const QByteArray damaged = WriteDamaged();
    QTest::mouseClick(Find<QPushButton>("connectOkButton"), Qt::LeftButton);
    QVERIFY(Eventually([this]() { return Dialog("connectDialog") == nullptr; }));
    QCOMPARE(ListBytes(), damaged);
}

void DamagedListTest::TextsFollowTheLanguage()
{
    Damage();
    Click("bannerRemedyButton");
    QVERIFY(m_language->Switch("he"));
    QCOMPARE(Question()->windowTitle(), QString::fromUtf8("הקובץ עם הרשימה שלך פגום"));
    QCOMPARE(Find<QPushButton>("bannerRemedyButton")->text(), QString::fromUtf8("החלטה מה לעשות…"));
    QCOMPARE(Find<QPushButton>("damageLeaveButton")->text(), QString::fromUtf8("השארת הקובץ כפי שהוא"));
}

QTEST_MAIN(DamagedListTest)
#include "tst_damagedlist.moc"
