#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QBoxLayout>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

/** The page as an object: its widgets, its texts, its place in the host's dialog, its keys. */
class tst_Page : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void metaObject();
    void container();
    void leftPanel();
    void buttonColumn();
    void texts();
    void table();
    void placeInTheDialog();
    void showingReloadsTheFile();
    void showingClearsTheSelection();
    void showingAnOpenPageClearsTheSelection();
    void addIsAlwaysEnabledAnew();
    void showingAgainBuildsNothingAgain();
    void initAgainBuildsAndLoadsNothing();
    void sizeIsTheSameAtEveryShowing();
    void showingIsTraced();
    void languageSwitchTranslatesAndMirrorsRows();
    void mirroredHostLeavesButtonsOnTheRight();
    void keysAreConsumed_data();
    void keysAreConsumed();
    void otherEventsPass();

private:
    void Store(const QByteArray &names);
    QWidget *Child(const char *name) { return m_window->findChild<QWidget *>(name); }
    QString Row(int row);
    QStringList Rows();
    void ClickRow(int row);

    QScopedPointer<TemporaryDirectory> m_directory;
    LoadedPlugin m_plugin;
    QScopedPointer<QWidget> m_window;
    QTableWidget *m_table;
};

void tst_Page::initTestCase()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    m_plugin.Plugin()->Init();
}

void tst_Page::init()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_window.reset(new QWidget);
    m_window->resize(600, 500);
    m_window->show();
    Store("ABC");
    QRect rect(30, 40, 1, 1);
    QVERIFY(m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect));
    m_table = m_window->findChild<QTableWidget *>("priorityTable");
    QVERIFY(m_table);
}

void tst_Page::cleanup()
{
    m_plugin.Setting()->HideSetting();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    m_window.reset();
    m_directory.reset();
}

void tst_Page::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

void tst_Page::Store(const QByteArray &names)
{
    QByteArray xml = "<r>";
    for (int i = 0; i < names.size(); ++i) {
        xml += "<item name='" + names.mid(i, 1) + "' type='1'/>";
    }
    m_directory->Write("Priority.xml", xml + "</r>");
}

QString tst_Page::Row(int row)
{
    return m_table->cellWidget(row, 0)->accessibleName();
}

QStringList tst_Page::Rows()
{
    QStringList rows;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        rows << Row(row);
    }
    return rows;
}

void tst_Page::ClickRow(int row)
{
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_table->visualRect(m_table->model()->index(row, 0)).center());
}

void tst_Page::metaObject()
{
    const QMetaObject *meta = Child("priorityPage")->metaObject();
    QCOMPARE(QString(meta->className()), QString("QPriorityWidget"));
    QCOMPARE(meta->superClass(), &QWidget::staticMetaObject);
    const char *const slotSignatures[] = {"AddPriority()",       "UpPriority()",  "DownPriority()",
                                          "RemovePriority()",    "NewPriority()", "OnCellClicked(int,int)",
                                          "UpdataPriorityList()"};
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 7);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(meta->indexOfSlot(slotSignatures[i]), meta->methodOffset() + i);
    }
    QVERIFY(Child("priorityPage")->qt_metacast("QPriorityWidget"));
    QVERIFY(Child("priorityPage")->qt_metacast("QWidget"));
    QVERIFY(!Child("priorityPage")->qt_metacast("IUIPlugin"));
}

void tst_Page::container()
{
    QWidget *container = Child("mainContainer");
    QCOMPARE(container->parentWidget(), Child("priorityPage"));
    QVERIFY(!Child("priorityPage")->layout());
    QCOMPARE(container->pos(), QPoint(0, 0));
    QCOMPARE(container->size(), QSize(420, 374));
    QCOMPARE(container->minimumSize(), QSize(420, 374));
    QCOMPARE(container->maximumSize(), QSize(420, 374));
    QHBoxLayout *layout = qobject_cast<QHBoxLayout *>(container->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), Child("leftPanel"));
    QVERIFY(layout->itemAt(1)->spacerItem());
    QCOMPARE(layout->itemAt(2)->widget(), Child("buttonColumn"));
    QCOMPARE(Child("priorityPage")->size(), QSize(420, 374));
}

void tst_Page::leftPanel()
{
    QWidget *panel = Child("leftPanel");
    QCOMPARE(panel->width(), 315);
    QCOMPARE(panel->contentsMargins(), QMargins(-9, -7, 0, 0));
    QVBoxLayout *layout = qobject_cast<QVBoxLayout *>(panel->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 1);
    QFrame *frame = qobject_cast<QFrame *>(layout->itemAt(0)->widget());
    QVERIFY(frame);
    QCOMPARE(frame->frameStyle(), 6);
    QVBoxLayout *frameLayout = qobject_cast<QVBoxLayout *>(frame->layout());
    QVERIFY(frameLayout);
    QCOMPARE(frameLayout->count(), 3);
    QCOMPARE(frameLayout->itemAt(0)->widget(), Child("nameLabel"));
    QCOMPARE(frameLayout->itemAt(1)->widget(), Child("infoLabel"));
    QCOMPARE(frameLayout->itemAt(2)->widget(), static_cast<QWidget *>(m_table));
    QVERIFY(qobject_cast<QLabel *>(Child("infoLabel"))->wordWrap());
    QVERIFY(!qobject_cast<QLabel *>(Child("nameLabel"))->wordWrap());
    // The negative margins pull the frame up and left of where the layouts alone would put it.
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    layout->getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(frame->pos(), QPoint(left - 9, top - 7));
}

void tst_Page::buttonColumn()
{
    QWidget *column = Child("buttonColumn");
    QCOMPARE(column->width(), 100);
    QVBoxLayout *layout = qobject_cast<QVBoxLayout *>(column->layout());
    QVERIFY(layout);
    const char *const names[] = {"upButton", "downButton", "addButton", "deleteButton", "newButton"};
    QCOMPARE(layout->count(), 6);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), Child(names[i]));
        QCOMPARE(Child(names[i])->parentWidget(), column);
    }
    QVERIFY(layout->itemAt(5)->spacerItem());
    QVERIFY(column->x() > Child("leftPanel")->x());
}

void tst_Page::texts()
{
    QCOMPARE(qobject_cast<QPushButton *>(Child("upButton"))->text(), QString("en:IDS_PROFILE_UP"));
    QCOMPARE(qobject_cast<QPushButton *>(Child("downButton"))->text(), QString("en:IDS_PROFILE_DOWN"));
    QCOMPARE(qobject_cast<QPushButton *>(Child("addButton"))->text(), QString("en:IDS_PROFILE_ADD"));
    QCOMPARE(qobject_cast<QPushButton *>(Child("deleteButton"))->text(), QString("en:IDS_PROFILE_DELETE"));
    QCOMPARE(qobject_cast<QPushButton *>(Child("newButton"))->text(), QString("en:IDS_PROFILE_NEW"));
    QCOMPARE(qobject_cast<QLabel *>(Child("nameLabel"))->text(), QString("en:IDS_SETTING_NAME:"));
    QCOMPARE(qobject_cast<QLabel *>(Child("infoLabel"))->text(), QString("en:IDS_PROFILE_INFO"));
}

void tst_Page::table()
{
    QCOMPARE(m_table->columnCount(), 1);
    QCOMPARE(m_table->columnWidth(0), 300);
    QVERIFY(m_table->horizontalHeader()->isHidden());
    QVERIFY(m_table->verticalHeader()->isHidden());
    QVERIFY(!m_table->showGrid());
    QCOMPARE(int(m_table->verticalScrollBarPolicy()), int(Qt::ScrollBarAsNeeded));
    QCOMPARE(int(m_table->horizontalScrollBarPolicy()), int(Qt::ScrollBarAlwaysOff));
    QCOMPARE(int(m_table->editTriggers()), int(QAbstractItemView::NoEditTriggers));
    QCOMPARE(int(m_table->selectionMode()), int(QAbstractItemView::SingleSelection));
    QCOMPARE(int(m_table->selectionBehavior()), int(QAbstractItemView::SelectItems));
    QCOMPARE(m_table->rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        QVERIFY(m_table->cellWidget(row, 0));
        QVERIFY(!m_table->item(row, 0));
    }
}

void tst_Page::placeInTheDialog()
{
    QWidget *page = Child("priorityPage");
    QCOMPARE(page->parentWidget(), m_window.data());
    QCOMPARE(page->pos(), QPoint(30, 40));
    QVERIFY(page->isVisible());
    QCOMPARE(page->size(), QSize(420, 374));
}

void tst_Page::showingReloadsTheFile()
{
    m_plugin.Setting()->HideSetting();
    Store("XY");
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    QCOMPARE(Rows(), QStringList() << "X"
                                   << "Y");
}

void tst_Page::showingClearsTheSelection()
{
    ClickRow(1);
    QVERIFY(Child("upButton")->isEnabled());
    m_plugin.Setting()->HideSetting();
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    QCOMPARE(m_table->currentRow(), -1);
    QVERIFY(m_table->selectedItems().isEmpty());
    QVERIFY(!m_table->selectionModel()->hasSelection());
    QVERIFY(!Child("upButton")->isEnabled());
    QVERIFY(!Child("downButton")->isEnabled());
    QVERIFY(!Child("deleteButton")->isEnabled());
    QVERIFY(Child("addButton")->isEnabled());
    QVERIFY(Child("newButton")->isEnabled());
}

void tst_Page::showingAnOpenPageClearsTheSelection()
{
    ClickRow(1);
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    QCOMPARE(m_table->currentRow(), -1);
    QVERIFY(!Child("upButton")->isEnabled());
    QVERIFY(!Child("deleteButton")->isEnabled());
}

void tst_Page::addIsAlwaysEnabledAnew()
{
    Child("addButton")->setEnabled(false);
    Child("newButton")->setEnabled(false);
    ClickRow(1);
    QVERIFY(Child("addButton")->isEnabled());
    QVERIFY(!Child("newButton")->isEnabled());
    Child("newButton")->setEnabled(true);
}

void tst_Page::showingAgainBuildsNothingAgain()
{
    const int before = m_window->findChildren<QWidget *>().size();
    QPointer<QTableWidget> table = m_table;
    for (int i = 0; i < 3; ++i) {
        m_plugin.Setting()->HideSetting();
        QRect rect;
        m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    }
    QVERIFY(table);
    QCOMPARE(m_window->findChildren<QWidget *>().size(), before);
}

void tst_Page::initAgainBuildsAndLoadsNothing()
{
    const int before = m_window->findChildren<QWidget *>().size();
    Store("XY");
    TraceCapture trace;
    QVERIFY(m_plugin.Plugin()->Init());
    QCOMPARE(trace.Lines().size(), 1);
    QCOMPARE(m_window->findChildren<QWidget *>().size(), before);
    QCOMPARE(Rows(), QStringList() << "A"
                                   << "B"
                                   << "C");
}

void tst_Page::sizeIsTheSameAtEveryShowing()
{
    QWidget *page = Child("priorityPage");
    page->resize(300, 200);
    m_plugin.Setting()->HideSetting();
    QRect rect(30, 40, 600, 500);
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    QCOMPARE(page->geometry(), QRect(30, 40, 420, 374));
}

void tst_Page::showingIsTraced()
{
    ISettingUIPlugin *setting = m_plugin.Setting();
    TraceCapture trace;
    QRect rect;
    setting->ShowSettingDialog(m_window.data(), rect);
    const QString source = "TIME: ../../src/PriorityPlugin/qprioritywidget.cpp: ";
    QCOMPARE(trace.Normalised().first(), source + "ShowSettingDialog: Entered ");
    QCOMPARE(trace.Normalised().at(1), source + "UpdataPriorityList: Entered ");
    QCOMPARE(trace.Normalised().last(), source + "ShowSettingDialog: Exit");
    QVERIFY(trace.Normalised().contains(source + "SetAllButtonState: Exit"));
}

void tst_Page::languageSwitchTranslatesAndMirrorsRows()
{
    StandInHost::language = "ar";
    m_plugin.Notification()->Notify(320, 0, 0);
    QCOMPARE(qobject_cast<QPushButton *>(Child("newButton"))->text(), QString("ar:IDS_PROFILE_NEW"));
    QCOMPARE(qobject_cast<QLabel *>(Child("infoLabel"))->text(), QString("ar:IDS_PROFILE_INFO"));
    for (int row = 0; row < 3; ++row) {
        const QList<QLabel *> labels = m_table->cellWidget(row, 0)->findChildren<QLabel *>();
        QCOMPARE(labels.at(0)->pos(), QPoint(270, 3));
        QCOMPARE(labels.at(1)->pos(), QPoint(63, 9));
    }
    QVERIFY(Child("buttonColumn")->x() > Child("leftPanel")->x());
    StandInHost::language = "en";
    m_plugin.Notification()->Notify(320, 0, 0);
    QCOMPARE(m_table->cellWidget(0, 0)->findChildren<QLabel *>().at(0)->pos(), QPoint(3, 3));
    QCOMPARE(qobject_cast<QPushButton *>(Child("newButton"))->text(), QString("en:IDS_PROFILE_NEW"));
}

void tst_Page::mirroredHostLeavesButtonsOnTheRight()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    StandInHost::language = "he";
    m_plugin.Notification()->Notify(320, 0, 0);
    QCoreApplication::processEvents();
    QVERIFY(Child("buttonColumn")->x() > Child("leftPanel")->x());
    // What is inside follows the host, so that its text starts on the right.
    QCOMPARE(int(Child("infoLabel")->layoutDirection()), int(Qt::RightToLeft));
    QCOMPARE(int(m_table->layoutDirection()), int(Qt::RightToLeft));
    QCOMPARE(int(Child("upButton")->layoutDirection()), int(Qt::RightToLeft));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    StandInHost::language = "en";
    m_plugin.Notification()->Notify(320, 0, 0);
    QCoreApplication::processEvents();
    QVERIFY(Child("buttonColumn")->x() > Child("leftPanel")->x());
    QCOMPARE(int(m_table->layoutDirection()), int(Qt::LeftToRight));
}

void tst_Page::keysAreConsumed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("row");
    ::Row("letter", int(Qt::Key_B), -1);
    ::Row("Home", int(Qt::Key_Home), -1);
    ::Row("End", int(Qt::Key_End), -1);
    ::Row("Page down", int(Qt::Key_PageDown), -1);
    ::Row("Tab", int(Qt::Key_Tab), -1);
    ::Row("Escape", int(Qt::Key_Escape), -1);
    ::Row("Return", int(Qt::Key_Return), -1);
    ::Row("Up", int(Qt::Key_Up), -1);
    ::Row("Down", int(Qt::Key_Down), -1);
    ::Row("Up on the first row", int(Qt::Key_Up), 0);
    ::Row("Down on the last row", int(Qt::Key_Down), 2);
}

void tst_Page::keysAreConsumed()
{
    QFETCH(int, key);
    QFETCH(int, row);
    if (row >= 0) {
        ClickRow(row);
    }
    const QByteArray before = m_directory->Read("Priority.xml");
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    // The table ignores some keys of its own accord, so that what becomes of the event says nothing.
    QVERIFY(Child("priorityPage")->eventFilter(m_table, &press));
    QCOMPARE(m_table->currentRow(), row);
    QCOMPARE(m_directory->Read("Priority.xml"), before);
    QCOMPARE(Rows(), QStringList() << "A"
                                   << "B"
                                   << "C");
}

void tst_Page::otherEventsPass()
{
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Up, Qt::NoModifier);
    QVERIFY(!Child("priorityPage")->eventFilter(m_table, &release));
    QEvent hide(QEvent::Hide);
    QVERIFY(!Child("priorityPage")->eventFilter(m_table, &hide));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F5, Qt::ControlModifier);
    QVERIFY(Child("priorityPage")->eventFilter(this, &press));
}

QTEST_MAIN(tst_Page)
#include "tst_page.moc"
