#include "DialogScene.h"

#include <Row.h>
#include <TraceCapture.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/** The add dialog in use, from the page's Add button to the file. */
class tst_AddDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void frame();
    void bodyFromTopToBottom();
    void texts();
    void tableSettings();
    void rows_data();
    void rows();
    void blanksMakeAnotherType();
    void switchIsReadOnEveryOpening();
    void shownListCountsNotTheFile();
    void wlanIsAskedOnce();
    void okAddsTheTickedInTableOrder();
    void okKeepsTypesAsReported();
    void partlyTickedDoesNotCount();
    void okWithNothingTickedSendsAnEmptyList_data();
    void okWithNothingTickedSendsAnEmptyList();
    void okSelectsTheFirstAdded();
    void closingOtherwiseSendsNothing_data();
    void closingOtherwiseSendsNothing();
    void enterIsOk();
    void keysReachEveryRow();
    void rowsAreMirrored();
    void openingAgainStartsAfresh();
    void dialogDeletedByOthers();
    void noMessageIsShown();
    void trace();

private:
    QTableWidget *Table() { return m_scene.Find<QTableWidget>("rememberTable"); }
    QStringList Rows();
    QCheckBox *CheckBox(int row) { return Table()->cellWidget(row, 0)->findChild<QCheckBox *>(); }
    void Tick(int row) { QTest::mouseClick(CheckBox(row), Qt::LeftButton, Qt::NoModifier, QPoint(6, 6)); }
    void Remember(const QStringList &entries);

    DialogScene m_scene;
};

void tst_AddDialog::init()
{
    m_scene.Begin();
}

void tst_AddDialog::cleanup()
{
    m_scene.End();
}

/** Entries as "name" for Wi-Fi or "name/type". */
void tst_AddDialog::Remember(const QStringList &entries)
{
    for (int i = 0; i < entries.size(); ++i) {
        const QStringList parts = entries.at(i).split("/");
        m_scene.wlan.Remember(parts.at(0), parts.value(1, "1"));
    }
}

/** Each row as "name" with the Wi-Fi icon or "name/mobile" with the other. */
QStringList tst_AddDialog::Rows()
{
    const QString directory = StandInHost::libraryPath + "/plugins/PriorityPlugin/";
    const QImage wifi = QPixmap(directory + "wifi.png").toImage();
    const QImage mobile = QPixmap(directory + "3G .png").toImage();
    QStringList rows;
    for (int row = 0; row < Table()->rowCount(); ++row) {
        QWidget *cell = Table()->cellWidget(row, 0);
        const QImage icon = Picture(cell->findChild<QLabel *>("rowIcon"));
        const QString name = cell->findChild<QLabel *>("rowName")->text();
        rows << name + (icon == wifi ? "" : icon == mobile ? "/mobile" : "/no icon");
    }
    return rows;
}

void tst_AddDialog::frame()
{
    m_scene.Open("addButton");
    QDialog *frame = m_scene.Find<QDialog>("addDialog");
    QVERIFY(frame->isVisible());
    QVERIFY(frame->isModal());
    QCOMPARE(frame->minimumSize(), QSize(306, 341));
    QCOMPARE(frame->maximumSize(), QSize(306, 341));
    QCOMPARE(frame->size(), QSize(306, 341));
    QCOMPARE(frame->windowTitle(), QString("en:IDS_PROFILE_ADD_TITLE"));
    QCOMPARE(frame->parentWidget(), m_scene.Page());
    QVERIFY(frame->windowFlags() & Qt::WindowCloseButtonHint);
    QWidget *body = m_scene.Find<QWidget>("addDialogBody");
    QVERIFY(body->isVisible());
    QVERIFY(!body->isWindow());
    QCOMPARE(body->window(), static_cast<QWidget *>(frame));
}

void tst_AddDialog::bodyFromTopToBottom()
{
    m_scene.Open("addButton");
    const QWidget *body = m_scene.Find<QWidget>("addDialogBody");
    QWidget *bar = m_scene.Find<QWidget>("addButtonBar");
    QBoxLayout *layout = qobject_cast<QBoxLayout *>(body->layout());
    QCOMPARE(layout->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget *>(Table()));
    QCOMPARE(layout->itemAt(1)->widget(), bar);
    QBoxLayout *row = qobject_cast<QBoxLayout *>(bar->layout());
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(0)->widget(), m_scene.Find<QWidget>("addOkButton"));
    QCOMPARE(row->itemAt(1)->widget(), m_scene.Find<QWidget>("addCancelButton"));
}

void tst_AddDialog::texts()
{
    StandInHost::language = "ar";
    m_scene.Open("addButton");
    QCOMPARE(m_scene.Find<QPushButton>("addOkButton")->text(), QString("ar:IDS_OK"));
    QCOMPARE(m_scene.Find<QPushButton>("addCancelButton")->text(), QString("ar:IDS_CANCEL"));
    QVERIFY(m_scene.Find<QPushButton>("addOkButton")->isDefault());
}

void tst_AddDialog::tableSettings()
{
    m_scene.Open("addButton");
    QTableWidget *table = Table();
    QCOMPARE(table->metaObject()->className(), "QTableWidget");
    QCOMPARE(table->columnCount(), 1);
    QCOMPARE(table->columnWidth(0), 300);
    QVERIFY(!table->horizontalHeader()->isVisible());
    QVERIFY(!table->verticalHeader()->isVisible());
    QVERIFY(!table->showGrid());
    QCOMPARE(table->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(int(table->editTriggers()), int(QAbstractItemView::NoEditTriggers));
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
}

void tst_AddDialog::rows_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("listed");
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<QString>("expected");
    const QByteArray on = "<c><item name='enable3G' value='1'/></c>";
    const QByteArray off = "<c><item name='enable3G' value='0'/></c>";
    const QByteArray two = "<c><item name='enable3G' value='2'/></c>";
    Row("both kinds, off", off, "", "A A/2 B/2 C", "A C");
    Row("both kinds, on", on, "", "A A/2 B/2 C", "A B/mobile C");
    Row("turned away doesn't block, off", off, "", "A/2 A", "A");
    Row("first of a name counts, on", on, "", "A/2 A", "A/mobile");
    Row("repeated name", on, "", "A B A B A", "A B");
    Row("switch is 2", two, "", "A B/2", "A");
    Row("no file", QByteArray(), "", "A B/2", "A");
    Row("other types are mobile", on, "", "A/0 B/01 C/ D/x E/10",
        "A/mobile B/mobile C/mobile D/mobile E/mobile");
    Row("listed", on, "B", "A B C", "A C");
    Row("listed as another type", on, "B/2 C", "A B C/2", "A");
    Row("all listed", on, "B A", "A B", "");
    Row("none remembered", on, "A", "", "");
    Row("case counts", on, "a", "A a B b", "A B b");
    Row("order is the WLAN plug-in's", on, "", "Z B/2 A M", "Z B/mobile A M");
}

void tst_AddDialog::rows()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QString, listed);
    QFETCH(QString, remembered);
    QFETCH(QString, expected);
    m_scene.UseConfiguration(configuration);
    m_scene.Store(Words(listed));
    Remember(Words(remembered));
    m_scene.Open("addButton");
    QCOMPARE(Rows().join(" "), expected);
    QCOMPARE(Table()->columnCount(), 1);
}

void tst_AddDialog::blanksMakeAnotherType()
{
    m_scene.UseConfiguration("<c><item name='enable3G' value='1'/></c>");
    Remember(QStringList() << "A/1 "
                           << "B/ 1");
    m_scene.Open("addButton");
    QCOMPARE(Rows(), QStringList() << "A/mobile"
                                   << "B/mobile");
}

void tst_AddDialog::switchIsReadOnEveryOpening()
{
    m_scene.UseConfiguration("<c><item name='enable3G' value='0'/></c>");
    Remember(QStringList() << "A"
                           << "M/2");
    m_scene.Open("addButton");
    QCOMPARE(Rows(), QStringList("A"));
    m_scene.CloseDialog("addDialog", "Cancel");
    m_scene.UseConfiguration("<c><item name='enable3G' value='1'/></c>");
    m_scene.Click("addButton");
    QCOMPARE(Rows(), QStringList() << "A"
                                   << "M/mobile");
}

void tst_AddDialog::shownListCountsNotTheFile()
{
    m_scene.Store(QStringList("A"));
    Remember(QStringList() << "A"
                           << "B");
    m_scene.ShowPage();
    m_scene.Store(QStringList("B"));
    m_scene.Click("addButton");
    QCOMPARE(Rows(), QStringList("B"));
}

void tst_AddDialog::wlanIsAskedOnce()
{
    Remember(QStringList("A"));
    m_scene.Open("addButton");
    QCOMPARE(m_scene.wlan.calls, QStringList("GetRememberedList"));
    QCOMPARE(m_scene.container.lookUps.size(), 1);
    QCOMPARE(m_scene.container.lookUps.first(),
             qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102));
}

void tst_AddDialog::okAddsTheTickedInTableOrder()
{
    m_scene.Store(QStringList("X"));
    Remember(QStringList() << "A"
                           << "B"
                           << "C");
    m_scene.Open("addButton");
    Tick(2);
    Tick(0);
    m_scene.Click("addOkButton");
    QCOMPARE(m_scene.Stored(), QStringList() << "X"
                                             << "A"
                                             << "C");
    QVERIFY(!m_scene.IsOpen("addDialog"));
}

void tst_AddDialog::okKeepsTypesAsReported()
{
    m_scene.UseConfiguration("<c><item name='enable3G' value='1'/></c>");
    // The listed one leaves no gap between the rows and what they stand for.
    m_scene.Store(QStringList("L"));
    Remember(QStringList() << "L"
                           << "A/02"
                           << "B"
                           << "C/2");
    m_scene.Open("addButton");
    Tick(0);
    Tick(2);
    m_scene.Click("addOkButton");
    QCOMPARE(m_scene.Stored(), QStringList() << "L"
                                             << "A/02"
                                             << "C/2");
}

void tst_AddDialog::partlyTickedDoesNotCount()
{
    m_scene.Store(QStringList("X"));
    Remember(QStringList() << "A"
                           << "B");
    m_scene.Open("addButton");
    CheckBox(0)->setCheckState(Qt::PartiallyChecked);
    Tick(1);
    m_scene.Click("addOkButton");
    QCOMPARE(m_scene.Stored(), QStringList() << "X"
                                             << "B");
}

void tst_AddDialog::okWithNothingTickedSendsAnEmptyList_data()
{
    QTest::addColumn<QString>("remembered");
    Row("rows", "A B");
    Row("no rows", "X");
}

void tst_AddDialog::okWithNothingTickedSendsAnEmptyList()
{
    QFETCH(QString, remembered);
    m_scene.Store(QStringList("X"));
    Remember(remembered.split(" "));
    m_scene.Open("addButton");
    const QByteArray before = m_scene.File();
    TraceCapture trace;
    m_scene.Click("addOkButton");
    const QString page = "TIME: ../../src/PriorityPlugin/qprioritywidget.cpp: AddPriorityNode: ";
    QCOMPARE(trace.Normalised(), QStringList() << page + "Entered " << page + "Exit");
    QCOMPARE(m_scene.File(), before);
    QVERIFY(!m_scene.IsOpen("addDialog"));
}

void tst_AddDialog::okSelectsTheFirstAdded()
{
    m_scene.Store(QStringList() << "X"
                                << "Y");
    Remember(QStringList() << "A"
                           << "B");
    m_scene.Open("addButton");
    Tick(0);
    Tick(1);
    m_scene.Click("addOkButton");
    const QTableWidget *list = m_scene.Find<QTableWidget>("priorityTable");
    QCOMPARE(list->rowCount(), 4);
    QCOMPARE(list->currentRow(), 2);
}

void tst_AddDialog::closingOtherwiseSendsNothing_data()
{
    QTest::addColumn<QString>("way");
    Row("Cancel", "Cancel");
    Row("title bar", "title bar");
    Row("Escape", "Escape");
}

void tst_AddDialog::closingOtherwiseSendsNothing()
{
    QFETCH(QString, way);
    m_scene.Store(QStringList("X"));
    Remember(QStringList("A"));
    m_scene.Open("addButton");
    Tick(0);
    const QByteArray before = m_scene.File();
    TraceCapture trace;
    m_scene.CloseDialog("addDialog", way);
    QVERIFY(!m_scene.IsOpen("addDialog"));
    QCOMPARE(trace.Lines(), QStringList());
    QCOMPARE(m_scene.File(), before);
}

void tst_AddDialog::enterIsOk()
{
    Remember(QStringList("A"));
    m_scene.Open("addButton");
    Tick(0);
    QTest::keyClick(CheckBox(0), Qt::Key_Return);
    QCOMPARE(m_scene.Stored(), QStringList("A"));
    QVERIFY(!m_scene.IsOpen("addDialog"));
}

void tst_AddDialog::keysReachEveryRow()
{
    QStringList names;
    for (int i = 0; i < 20; ++i) {
        names << QString("N%1").arg(i);
    }
    Remember(names);
    m_scene.Open("addButton");
    QWidget *dialog = m_scene.Find<QWidget>("addDialog");
    ActivateWindow(dialog);
    for (int row = 0; row < 20; ++row) {
        QCOMPARE(dialog->focusWidget(), static_cast<QWidget *>(CheckBox(row)));
        QVERIFY(Table()->viewport()->rect().contains(
            Table()->visualRect(Table()->model()->index(row, 0)).center()));
        if (row == 0 || row == 19) {
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Space);
        }
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(dialog->focusWidget(), m_scene.Find<QWidget>("addOkButton"));
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Space);
    QCOMPARE(m_scene.Stored(), QStringList() << "N0"
                                             << "N19");
}

void tst_AddDialog::rowsAreMirrored()
{
    StandInHost::language = "he";
    Remember(QStringList("A"));
    m_scene.Open("addButton");
    QCOMPARE(CheckBox(0)->pos(), QPoint(270, 8));
}

void tst_AddDialog::openingAgainStartsAfresh()
{
    Remember(QStringList() << "A"
                           << "B");
    m_scene.Open("addButton");
    Tick(0);
    const QPointer<QWidget> first = m_scene.Find<QWidget>("addDialog");
    m_scene.Click("addButton");
    QVERIFY(!first);
    QCOMPARE(m_scene.Page()->findChildren<QWidget *>("addDialog").size(), 1);
    QVERIFY(m_scene.IsOpen("addDialog"));
    QVERIFY(!CheckBox(0)->isChecked());
    Tick(1);
    m_scene.Click("addOkButton");
    m_scene.Click("addButton");
    QCOMPARE(Rows(), QStringList("A"));
}

void tst_AddDialog::dialogDeletedByOthers()
{
    m_scene.Open("addButton");
    delete m_scene.Find<QWidget>("addDialog");
    m_scene.Click("addButton");
    QVERIFY(m_scene.IsOpen("addDialog"));
}

void tst_AddDialog::noMessageIsShown()
{
    Remember(QStringList("A"));
    m_scene.Open("addButton");
    Tick(0);
    m_scene.Click("addOkButton");
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_AddDialog::trace()
{
    Remember(QStringList("A"));
    m_scene.ShowPage();
    const QString page = "TIME: ../../src/PriorityPlugin/qprioritywidget.cpp: ";
    const QString store = "../../src/PriorityPlugin/PriorityXMLParser.cpp: ";
    TraceCapture trace;
    m_scene.Click("addButton");
    // The platform may have something to say about the new window.
    QCOMPARE(trace.Normalised().filter("src/PriorityPlugin/"),
             QStringList() << page + "AddPriority: Entered "
                           << "BUILD: " + store + "GetInstance: Entered"
                           << "TIME : " + store + "GetEnable3GValue: Entered"
                           << "TIME : " + store + "GetEnable3GValue: Exit"
                           << page + "SetAllButtonState: Entered " << page + "SetAllButtonState: Exit"
                           << page + "AddPriority: Exit");
}

QTEST_MAIN(tst_AddDialog)
#include "tst_adddialog.moc"
