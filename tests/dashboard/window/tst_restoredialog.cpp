#include "Lists.h"
#include "PluginWorld.h"

#include <DashboardLanguage.h>
#include <ListKeeper.h>
#include <PluginList.h>
#include <RestoreDialog.h>
#include <Row.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace
{

enum Column { TimeColumn, ChangeColumn, StatusColumn };

} // namespace

/** The dialog over the real plug-ins. */
class RestoreDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void StatesAreListedNewestFirst();
    void ListAsItIsNowIsChosenAndCannotBeRestored();
    void ChosenListAndItsEffectAreShown();
    void KeysChooseAndRestore();
    void ClicksChooseAndRestore();
    void DoubleClickRestores();
    void OtherWaysOutChangeNothing_data();
    void OtherWaysOutChangeNothing();
    void UndoneStatesAreMarkedAndCanBeRestored();
    void ChangeMeanwhileIsListedAndTheChoiceKept();
    void UnusableHistoryIsSetAsideOnlyWhenAsked();
    void FailureIsToldAndTheDialogStaysOpen();
    void ChosenRowStaysInSightWhenAFailureIsTold_data();
    void ChosenRowStaysInSightWhenAFailureIsTold();
    void LongNamesAndMarkUpAreShownAsTheyAre();
    void TextsFollowTheLanguage();

private:
    void Open();
    QTableWidget *Table() const { return m_dialog->findChild<QTableWidget *>("restoreList"); }
    QPushButton *Button(const char *name) const { return m_dialog->findChild<QPushButton *>(name); }
    QString Text(const char *name) const
    {
        return Plain(m_dialog->findChild<QLabel *>(QLatin1String(name))->text());
    }
    QStringList Cells(int column) const;
    QString Preview() const;
    void ClickRow(int row) const;

    PluginWorld m_world;
    PluginList m_source;
    QScopedPointer<ListKeeper> m_keeper;
    QScopedPointer<RestoreDialog> m_dialog;
};

void RestoreDialogTest::initTestCase()
{
    QVERIFY(m_world.Load());
}

void RestoreDialogTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void RestoreDialogTest::init()
{
    QVERIFY(m_world.Begin());
    m_keeper.reset(new ListKeeper(m_world.UserData(), &m_source, nullptr));
    const QStringList tops = QStringList() << "Home"
                                           << "Office"
                                           << "Cafe";
    for (int i = 0; i < tops.size(); ++i) {
        PluginWorld::AddTop(tops.at(i));
        m_keeper->Follow();
    }
}

void RestoreDialogTest::cleanup()
{
    m_dialog.reset();
    m_keeper.reset();
}

void RestoreDialogTest::Open()
{
    m_dialog.reset(new RestoreDialog(m_keeper.data(), nullptr));
    m_dialog->show();
    ActivateWindow(m_dialog.data());
}

QStringList RestoreDialogTest::Cells(int column) const
{
    QStringList texts;
    for (int row = 0; row < Table()->rowCount(); ++row) {
        texts.append(Plain(Table()->item(row, column)->text()));
    }
    return texts;
}

QString RestoreDialogTest::Preview() const
{
    const QListWidget *list = m_dialog->findChild<QListWidget *>("restorePreview");
    QStringList names;
    for (int i = 0; i < list->count(); ++i) {
        names.append(list->item(i)->text());
    }
    return names.join(", ");
}

void RestoreDialogTest::ClickRow(int row) const
{
    const QModelIndex index = Table()->model()->index(row, ChangeColumn);
    QTest::mouseClick(Table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Table()->visualRect(index).center());
}

void RestoreDialogTest::StatesAreListedNewestFirst()
{
    Open();
    QCOMPARE(Cells(ChangeColumn), QStringList() << "Added Cafe"
                                                << "Added Office"
                                                << "Added Home"
                                                << "Oldest list that was kept");
    QCOMPARE(Cells(StatusColumn), QStringList() << "Now"
                                                << ""
                                                << ""
                                                << "");
    QVERIFY(!Cells(TimeColumn).contains(QString()));
    // A whole time of day is shown, not its beginning.
    const QTableWidgetItem *time = Table()->item(0, TimeColumn);
    QVERIFY(QFontMetrics(time->font()).boundingRect(time->text()).width() < Table()->columnWidth(TimeColumn));
}

void RestoreDialogTest::ListAsItIsNowIsChosenAndCannotBeRestored()
{
    Open();
    QCOMPARE(Table()->currentRow(), 0);
    QVERIFY(Table()->hasFocus());
    QCOMPARE(Preview(), QString("Cafe, Office, Home"));
    QCOMPARE(Text("restoreEffectLabel"), QString("This is the list as it is now."));
    QVERIFY(!Button("restoreOkButton")->isEnabled());
    QTest::keyClick(Table(), Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
}

void RestoreDialogTest::ChosenListAndItsEffectAreShown()
{
    Open();
    QTest::keyClick(Table(), Qt::Key_Down);
    QTest::keyClick(Table(), Qt::Key_Down);
    QCOMPARE(Preview(), QString("Home"));
    QCOMPARE(Text("restoreEffectLabel"), QString("Result of restoring: 2 networks will be removed."));
    QVERIFY(Button("restoreOkButton")->isEnabled());
    QCOMPARE(PluginWorld::Stored(), QString("Cafe, Office, Home"));
}

void RestoreDialogTest::KeysChooseAndRestore()
{
    Open();
    QTest::keyClick(Table(), Qt::Key_Down);
    QTest::keyClick(Table(), Qt::Key_Return);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home"));
    // The list that was left is kept, and can be gone back to as well.
    Open();
    QVERIFY2(Cells(ChangeColumn).first().startsWith("Restored the list from "),
             qPrintable(Cells(ChangeColumn).first()));
    QCOMPARE(Cells(ChangeColumn).at(1), QString("Added Cafe"));
    QCOMPARE(Cells(StatusColumn), QStringList() << "Now"
                                                << ""
                                                << ""
                                                << ""
                                                << "");
    QTest::keyClick(Table(), Qt::Key_Down);
    QTest::keyClick(Table(), Qt::Key_Return);
    QCOMPARE(PluginWorld::Stored(), QString("Cafe, Office, Home"));
}

void RestoreDialogTest::ClicksChooseAndRestore()
{
    Open();
    ClickRow(3);
    QCOMPARE(Preview(), QString());
    QTest::mouseClick(Button("restoreOkButton"), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString());
}

void RestoreDialogTest::DoubleClickRestores()
{
    Open();
    ClickRow(2);
    QTest::mouseDClick(Table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       Table()->visualRect(Table()->model()->index(2, ChangeColumn)).center());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("Home"));
}

void RestoreDialogTest::OtherWaysOutChangeNothing_data()
{
    QTest::addColumn<bool>("byKey");
    Row("Close", false);
    Row("Escape", true);
}

void RestoreDialogTest::OtherWaysOutChangeNothing()
{
    QFETCH(bool, byKey);
    Open();
    QTest::keyClick(Table(), Qt::Key_Down);
    if (byKey) {
        QTest::keyClick(Table(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(Button("restoreCloseButton"), Qt::LeftButton);
    }
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("Cafe, Office, Home"));
    QCOMPARE(m_keeper->History().Position(), 3);
}

void RestoreDialogTest::UndoneStatesAreMarkedAndCanBeRestored()
{
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    Open();
    QCOMPARE(Cells(StatusColumn), QStringList() << "Undone"
                                                << "Undone"
                                                << "Now"
                                                << "");
    QCOMPARE(Table()->currentRow(), 2);
    QTest::keyClick(Table(), Qt::Key_Up);
    QTest::keyClick(Table(), Qt::Key_Up);
    QTest::keyClick(Table(), Qt::Key_Return);
    QCOMPARE(PluginWorld::Stored(), QString("Cafe, Office, Home"));
    // That it was gone back before is told as well.
    Open();
    QCOMPARE(Table()->rowCount(), 6);
    QVERIFY2(Cells(ChangeColumn).at(1).startsWith("Restored the list from "),
             qPrintable(Cells(ChangeColumn).at(1)));
    QVERIFY(!Cells(StatusColumn).contains("Undone"));
}

void RestoreDialogTest::ChangeMeanwhileIsListedAndTheChoiceKept()
{
    Open();
    QTest::keyClick(Table(), Qt::Key_Down);
    QCOMPARE(Preview(), QString("Office, Home"));
    PluginWorld::AddTop("Home");
    m_keeper->Follow();
    QCOMPARE(Cells(ChangeColumn).first(), QString("Moved Home to the top"));
    QCOMPARE(Table()->currentRow(), 2);
    QCOMPARE(Preview(), QString("Office, Home"));
    QCOMPARE(Text("restoreEffectLabel"),
             QString::fromUtf8("Result of restoring: Cafe will be removed. Office will move up."));
    QTest::keyClick(Table(), Qt::Key_Return);
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home"));
}

void RestoreDialogTest::UnusableHistoryIsSetAsideOnlyWhenAsked()
{
    m_world.Write("history/states.xml", "nonsense");
    m_keeper->Follow();
    Open();
    QVERIFY(!Table()->isVisible());
    QVERIFY(m_dialog->findChild<QLabel *>("restoreUnusableLabel")->isVisible());
    QVERIFY(Text("restoreUnusableLabel").contains("Line 1: "));
    QVERIFY(!Button("restoreOkButton")->isEnabled());
    QCOMPARE(m_world.Read("history/states.xml"), QByteArray("nonsense"));
    QTest::mouseClick(Button("restoreAsideButton"), Qt::LeftButton);
    QVERIFY(Table()->isVisible());
    QCOMPARE(Cells(ChangeColumn), QStringList("Oldest list that was kept"));
    QCOMPARE(m_world.Read("history/states-damaged-1.xml"), QByteArray("nonsense"));
    QCOMPARE(PluginWorld::Stored(), QString("Cafe, Office, Home"));
}

void RestoreDialogTest::FailureIsToldAndTheDialogStaysOpen()
{
    Open();
    QTest::keyClick(Table(), Qt::Key_Down);
    // A directory where the new file is made: nothing can be written there.
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority.xml.new"));
    QTest::mouseClick(Button("restoreOkButton"), Qt::LeftButton);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_dialog->findChild<QLabel *>("restoreProblemLabel")->isVisible());
    QVERIFY(Text("restoreProblemLabel").contains("cannot be written"));
    QCOMPARE(PluginWorld::Stored(), QString("Cafe, Office, Home"));
}

void RestoreDialogTest::ChosenRowStaysInSightWhenAFailureIsTold_data()
{
    QTest::addColumn<int>("row");
    Row("oldest of all", 23);
    Row("last in sight", -1);
}

void RestoreDialogTest::ChosenRowStaysInSightWhenAFailureIsTold()
{
    QFETCH(int, row);
    for (int i = 0; i < 20; ++i) {
        PluginWorld::AddTop(QString("Network %1").arg(i));
        m_keeper->Follow();
    }
    Open();
    QApplication::processEvents();
    const int lastInSight = Table()->rowAt(Table()->viewport()->height() - 1) - 1;
    Table()->setCurrentCell(row < 0 ? lastInSight : row, ChangeColumn);
    const int height = Table()->height();
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority.xml.new"));
    QTest::mouseClick(Button("restoreOkButton"), Qt::LeftButton);
    QApplication::processEvents();
    QVERIFY(Table()->height() < height);
    const QRect chosen = Table()->visualItemRect(Table()->currentItem());
    QVERIFY(Table()->viewport()->rect().contains(chosen));
}

void RestoreDialogTest::LongNamesAndMarkUpAreShownAsTheyAre()
{
    PluginWorld::AddTop("<b>bold");
    m_keeper->Follow();
    Open();
    QCOMPARE(Cells(ChangeColumn).first(), QString("Added <b>bold"));
    QVERIFY(Table()->item(0, ChangeColumn)->toolTip().contains("&lt;b&gt;"));
    QVERIFY(Preview().startsWith("<b>bold"));
}

void RestoreDialogTest::TextsFollowTheLanguage()
{
    Open();
    QVERIFY(DashboardLanguage::Apply("he"));
    m_dialog->Retranslate();
    QCOMPARE(m_dialog->windowTitle(), QString::fromUtf8("רשימות קודמות"));
    QCOMPARE(Cells(StatusColumn).first(), QString::fromUtf8("עכשיו"));
    QCOMPARE(Cells(ChangeColumn).first(), QString::fromUtf8("הוספת Cafe"));
    QCOMPARE(Button("restoreOkButton")->text(), QString::fromUtf8("שחזור"));
}

QTEST_MAIN(RestoreDialogTest)
#include "tst_restoredialog.moc"
