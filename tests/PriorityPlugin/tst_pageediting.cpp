#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QFile>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

/** The page in use: clicks and keys on the widgets, and what then stands in the file. */
class tst_PageEditing : public QObject, public MessageVisitor
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void rowsShowKindAndName();
    void buttonStates_data();
    void buttonStates();
    void readOnlyEntryCanBeMovedButNotDeleted();
    void readOnlyWordsMustBeExact();
    void mobileEntryIsNeverAskedFor_data();
    void mobileEntryIsNeverAskedFor();
    void wlanIsAskedAfreshOnEveryClick();
    void moveUp();
    void moveDown();
    void arrowKeysMoveTheEntry();
    void selectionStaysWithTheEntryOverManyMoves();
    void vanishedEntryLeavesNothingSelected();
    void vanishedEntryFromAnEmptyFile();
    void moveWithoutAFileEmptiesThePage();
    void question();
    void deleteConfirmed();
    void deleteConfirmedWritesTwice();
    void deleteCancelled_data();
    void deleteCancelled();
    void deleteLastEntry();
    void deleteWithNothingSelectedRewritesTheFile();
    void listShrunkDuringTheQuestion();
    void refreshKeepsSelectedRowAndButtons();
    void refreshOfAHiddenPageSelectsNothing_data();
    void refreshOfAHiddenPageSelectsNothing();
    void refreshToAShorterList();
    void refreshAfterAReadErrorShowsWhatWasRead();
    void okAfterMovesKeepsTheOrder();
    void cancelUndoesNothing();
    void clickBesideTheRowsChangesNothing();
    void openingADialogLeavesTheListAlone_data();
    void openingADialogLeavesTheListAlone();
    void onlyAddRefreshesTheButtons();
    void duplicateEntriesAreShownAndActOnTheFirst();

private:
    enum Visit { DoNothing, ShrinkList };

    void MessageIsOpen() override;
    void Store(const QStringList &entries);
    QString Stored();
    QString Rows();
    void ClickRow(int row);
    void Click(const char *button);
    bool IsEnabled(const char *button) { return m_window->findChild<QPushButton *>(button)->isEnabled(); }
    QString Buttons();
    void Show();

    QScopedPointer<TemporaryDirectory> m_directory;
    LoadedPlugin m_plugin;
    QScopedPointer<QWidget> m_window;
    QTableWidget *m_table;
    FakeWLAN m_wlan;
    FakeContainer m_container;
    Visit m_visit;
};

void tst_PageEditing::initTestCase()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    m_plugin.Plugin()->Init();
    m_container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &m_wlan);
}

void tst_PageEditing::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    StandInHost::container = &m_container;
    StandInHost::messageVisitor = this;
    m_visit = DoNothing;
    m_wlan.profiles.clear();
    m_wlan.calls.clear();
    m_window.reset(new QWidget);
    m_window->resize(500, 400);
    m_window->show();
}

void tst_PageEditing::cleanup()
{
    m_plugin.Setting()->HideSetting();
    StandInHost::container = nullptr;
    m_window.reset();
    m_directory.reset();
}

void tst_PageEditing::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

/** Entries as "name" for Wi-Fi or "name/type". */
void tst_PageEditing::Store(const QStringList &entries)
{
    QByteArray xml = "<r>";
    for (int i = 0; i < entries.size(); ++i) {
        const QStringList parts = entries.at(i).split("/");
        xml += "<item name='" + parts.at(0).toUtf8() + "' type='" +
               (parts.size() > 1 ? parts.at(1).toUtf8() : "1") + "'/>";
    }
    m_directory->Write("Priority.xml", xml + "</r>");
}

QString tst_PageEditing::Stored()
{
    QList<PriorityList> list;
    const int result = m_plugin.Priority()->GetPriorityList(&list);
    QStringList names;
    for (int i = 0; i < list.size(); ++i) {
        names << list.at(i).name;
    }
    return result == 0 ? names.join(" ") : QString("code %1").arg(result);
}

QString tst_PageEditing::Rows()
{
    QStringList names;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        names << m_table->cellWidget(row, 0)->accessibleName();
    }
    return names.join(" ");
}

void tst_PageEditing::Show()
{
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    m_table = m_window->findChild<QTableWidget *>("priorityTable");
}

void tst_PageEditing::ClickRow(int row)
{
    m_table->scrollTo(m_table->model()->index(row, 0));
    // On the name, as a user would: the label hands the click on to the table.
    QLabel *name = m_table->cellWidget(row, 0)->findChild<QLabel *>("rowName");
    QTest::mouseClick(name, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
}

void tst_PageEditing::Click(const char *button)
{
    QTest::mouseClick(m_window->findChild<QPushButton *>(button), Qt::LeftButton);
}

/** The enabled ones of Up, Down, Delete as "UDX"; Add and New must be enabled in every state. */
QString tst_PageEditing::Buttons()
{
    if (!IsEnabled("addButton") || !IsEnabled("newButton")) {
        return "Add or New is disabled";
    }
    return QString(IsEnabled("upButton") ? "U" : "-") + (IsEnabled("downButton") ? "D" : "-") +
           (IsEnabled("deleteButton") ? "X" : "-");
}

void tst_PageEditing::MessageIsOpen()
{
    if (m_visit == ShrinkList) {
        Store(QStringList() << "A");
        QMetaObject::invokeMethod(m_window->findChild<QWidget *>("priorityPage"), "UpdataPriorityList");
    }
}

void tst_PageEditing::rowsShowKindAndName()
{
    Store(QStringList() << "Office/1"
                        << "Mobile/2"
                        << "Other/0"
                        << "Odd/01"
                        << "Ten/10"
                        << "Blank/1 "
                        << "None/");
    Show();
    QCOMPARE(Rows(), QString("Office Mobile Other Odd Ten Blank None"));
    const QString directory = StandInHost::libraryPath + "/plugins/PriorityPlugin/";
    const QImage wifi = QPixmap(directory + "wifi.png").toImage();
    const QImage mobile = QPixmap(directory + "3G .png").toImage();
    QVERIFY(!wifi.isNull() && !mobile.isNull() && wifi != mobile);
    for (int row = 0; row < 7; ++row) {
        const QLabel *icon = m_table->cellWidget(row, 0)->findChild<QLabel *>("rowIcon");
        QCOMPARE(Picture(icon), row == 0 ? wifi : mobile);
    }
}

void tst_PageEditing::buttonStates_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("buttons");
    Row("empty, none", 0, -1, "---");
    Row("empty, 0", 0, 0, "---");
    Row("empty, 1", 0, 1, "---");
    Row("empty, -2", 0, -2, "---");
    Row("one, none", 1, -1, "---");
    Row("one, 0", 1, 0, "--X");
    Row("one, 1", 1, 1, "UDX");
    Row("one, -2", 1, -2, "UDX");
    Row("two, none", 2, -1, "---");
    Row("two, first", 2, 0, "-DX");
    Row("two, last", 2, 1, "U-X");
    Row("two, beyond", 2, 2, "UDX");
    Row("three, none", 3, -1, "---");
    Row("three, first", 3, 0, "-DX");
    Row("three, middle", 3, 1, "UDX");
    Row("three, last", 3, 2, "U-X");
    Row("three, beyond", 3, 9, "UDX");
    Row("three, -2", 3, -2, "UDX");
}

void tst_PageEditing::buttonStates()
{
    QFETCH(int, count);
    QFETCH(int, row);
    QFETCH(QString, buttons);
    QStringList entries;
    for (int i = 0; i < count; ++i) {
        entries << QString("N%1").arg(i);
    }
    Store(entries);
    Show();
    QCOMPARE(Buttons(), QString("---"));
    if (row >= 0 && row < count) {
        ClickRow(row);
    } else {
        QMetaObject::invokeMethod(m_window->findChild<QWidget *>("priorityPage"), "OnCellClicked",
                                  Q_ARG(int, row), Q_ARG(int, 0));
    }
    QCOMPARE(Buttons(), buttons);
}

void tst_PageEditing::readOnlyEntryCanBeMovedButNotDeleted()
{
    m_wlan.AddReadOnly("B", "true");
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    QCOMPARE(Buttons(), QString("UD-"));
    Click("downButton");
    QCOMPARE(Stored(), QString("A C B"));
    QCOMPARE(Buttons(), QString("U--"));
    ClickRow(0);
    QCOMPARE(Buttons(), QString("-DX"));
}

void tst_PageEditing::readOnlyWordsMustBeExact()
{
    m_wlan.AddReadOnly("B", "TRUE");
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    QCOMPARE(Buttons(), QString("UDX"));
}

void tst_PageEditing::mobileEntryIsNeverAskedFor_data()
{
    QTest::addColumn<QString>("type");
    Row("2", "2");
    Row("10", "10");
    Row("blank behind", "1 ");
    Row("blank before", " 1");
    Row("none", "");
}

void tst_PageEditing::mobileEntryIsNeverAskedFor()
{
    QFETCH(QString, type);
    m_wlan.AddReadOnly("M", "true");
    Store(QStringList() << "A"
                        << "M/" + type << "C");
    Show();
    m_wlan.calls.clear();
    ClickRow(1);
    QCOMPARE(Buttons(), QString("UDX"));
    QCOMPARE(m_wlan.calls, QStringList());
}

void tst_PageEditing::wlanIsAskedAfreshOnEveryClick()
{
    Store(QStringList() << "A"
                        << "B");
    Show();
    m_wlan.calls.clear();
    ClickRow(0);
    ClickRow(0);
    Click("downButton");
    QCOMPARE(m_wlan.calls, QStringList() << "GetProfileByName A"
                                         << "GetProfileByName A"
                                         << "GetProfileByName A");
    StandInHost::container = nullptr;
    m_wlan.AddReadOnly("A", "true");
    ClickRow(0);
    QCOMPARE(IsEnabled("deleteButton"), true);
}

void tst_PageEditing::moveUp()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(2);
    Click("upButton");
    QCOMPARE(Stored(), QString("A C B"));
    QCOMPARE(Rows(), QString("A C B"));
    QCOMPARE(m_table->currentRow(), 1);
    QVERIFY(m_table->selectionModel()->isSelected(m_table->model()->index(1, 0)));
    QCOMPARE(Buttons(), QString("UDX"));
    Click("upButton");
    QCOMPARE(Stored(), QString("C A B"));
    QCOMPARE(m_table->currentRow(), 0);
    QCOMPARE(Buttons(), QString("-DX"));
}

void tst_PageEditing::moveDown()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(0);
    Click("downButton");
    Click("downButton");
    QCOMPARE(Stored(), QString("B C A"));
    QCOMPARE(Rows(), QString("B C A"));
    QCOMPARE(m_table->currentRow(), 2);
    QCOMPARE(Buttons(), QString("U-X"));
}

void tst_PageEditing::arrowKeysMoveTheEntry()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    QTest::keyClick(m_table, Qt::Key_Up);
    QCOMPARE(Stored(), QString("B A C"));
    QTest::keyClick(m_table, Qt::Key_Up);
    QCOMPARE(Stored(), QString("B A C"));
    QTest::keyClick(m_table, Qt::Key_Down);
    QTest::keyClick(m_table, Qt::Key_Down);
    QTest::keyClick(m_table, Qt::Key_Down);
    QCOMPARE(Stored(), QString("A C B"));
    QCOMPARE(m_table->currentRow(), 2);
}

void tst_PageEditing::selectionStaysWithTheEntryOverManyMoves()
{
    QStringList entries;
    for (int i = 0; i < 60; ++i) {
        entries << QString("N%1").arg(i);
    }
    Store(entries);
    Show();
    ClickRow(0);
    for (int i = 0; i < 59; ++i) {
        QTest::keyClick(m_table, Qt::Key_Down);
        QCOMPARE(m_table->currentRow(), i + 1);
        QCOMPARE(m_table->cellWidget(i + 1, 0)->accessibleName(), QString("N0"));
    }
    QVERIFY(m_table->viewport()->rect().intersects(m_table->visualRect(m_table->model()->index(59, 0))));
    entries.removeFirst();
    entries << "N0";
    QCOMPARE(Stored(), entries.join(" "));
}

void tst_PageEditing::vanishedEntryLeavesNothingSelected()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    Store(QStringList() << "A"
                        << "C");
    Click("upButton");
    QCOMPARE(Rows(), QString("A C"));
    QCOMPARE(m_table->currentRow(), -1);
    QCOMPARE(Buttons(), QString("UDX"));
    m_directory->Write("Priority.xml", m_directory->Read("Priority.xml") + "<!-- untouched -->");
    const QByteArray before = m_directory->Read("Priority.xml");
    Click("upButton");
    Click("downButton");
    QCOMPARE(m_directory->Read("Priority.xml"), before);
    Click("deleteButton");
    QVERIFY(m_directory->Read("Priority.xml") != before);
    QCOMPARE(Stored(), QString("A C"));
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_PageEditing::vanishedEntryFromAnEmptyFile()
{
    Store(QStringList() << "A"
                        << "B");
    Show();
    ClickRow(1);
    Store(QStringList());
    Click("upButton");
    QCOMPARE(m_table->rowCount(), 0);
    QCOMPARE(Buttons(), QString("---"));
}

void tst_PageEditing::moveWithoutAFileEmptiesThePage()
{
    Store(QStringList() << "A"
                        << "B");
    Show();
    ClickRow(0);
    QVERIFY(QFile::remove(m_directory->FilePath("Priority.xml")));
    Click("downButton");
    QCOMPARE(m_table->rowCount(), 0);
    QVERIFY(!QFile::exists(m_directory->FilePath("Priority.xml")));
}

void tst_PageEditing::question()
{
    Store(QStringList() << "A"
                        << "B");
    Show();
    ClickRow(0);
    Click("deleteButton");
    QCOMPARE(StandInHost::messages.size(), 1);
    const MessageCall call = StandInHost::messages.first();
    QCOMPARE(int(call.icon), 4);
    QCOMPARE(call.parent, m_window->findChild<QWidget *>("priorityPage"));
    QCOMPARE(call.title, QString("en:IDS_PROFILE_BOX_TITLE"));
    QCOMPARE(call.text, QString("en:IDS_WARNING_DELETE"));
    QCOMPARE(call.button1, QString("IDS_OK"));
    QCOMPARE(call.button2, QString("IDS_CANCEL"));
    QVERIFY(call.button3.isEmpty() && !call.button3.isNull());
    QVERIFY(call.modal);
    QCOMPARE(int(call.flags), 0x08000000);
    QVERIFY(!call.dialog);
    QVERIFY(call.detail.isNull());
    QVERIFY(call.onTop);
}

void tst_PageEditing::deleteConfirmed()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    Click("deleteButton");
    QCOMPARE(Rows(), QString("A C"));
    QCOMPARE(Stored(), QString("A C"));
    QCOMPARE(m_table->currentRow(), -1);
    QCOMPARE(Buttons(), QString("---"));
}

void tst_PageEditing::deleteConfirmedWritesTwice()
{
    Store(QStringList() << "A"
                        << "B");
    Show();
    ClickRow(1);
    TraceCapture trace;
    Click("deleteButton");
    QCOMPARE(trace.Lines().filter("SavePriorityList: Entered").size(), 2);
}

void tst_PageEditing::deleteCancelled_data()
{
    QTest::addColumn<int>("answer");
    Row("Cancel", int(QMessageBox::Cancel));
    Row("closed", 0);
    Row("Yes is not OK", int(QMessageBox::Yes));
}

void tst_PageEditing::deleteCancelled()
{
    QFETCH(int, answer);
    StandInHost::messageAnswer = answer;
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    Click("deleteButton");
    QCOMPARE(Rows(), QString("A B C"));
    QCOMPARE(m_table->currentRow(), -1);
    QCOMPARE(Buttons(), QString("---"));
    QVERIFY(m_directory->Read("Priority.xml").startsWith("<?xml"));
    QCOMPARE(Stored(), QString("A B C"));
}

void tst_PageEditing::deleteLastEntry()
{
    Store(QStringList() << "A");
    Show();
    ClickRow(0);
    Click("deleteButton");
    QCOMPARE(m_table->rowCount(), 0);
    QCOMPARE(Stored(), QString(""));
    QCOMPARE(Buttons(), QString("---"));
}

void tst_PageEditing::deleteWithNothingSelectedRewritesTheFile()
{
    Store(QStringList() << "A"
                        << "B");
    Show();
    Store(QStringList() << "X");
    QMetaObject::invokeMethod(m_window->findChild<QWidget *>("priorityPage"), "RemovePriority");
    QCOMPARE(Stored(), QString("A B"));
    QVERIFY(StandInHost::messages.isEmpty());
}

void tst_PageEditing::listShrunkDuringTheQuestion()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(2);
    m_visit = ShrinkList;
    Click("deleteButton");
    QCOMPARE(Rows(), QString("A"));
    QCOMPARE(Stored(), QString("A"));
}

void tst_PageEditing::refreshKeepsSelectedRowAndButtons()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(2);
    QCOMPARE(Buttons(), QString("U-X"));
    m_plugin.Priority()->AddTopPriority(Entry("X"));
    QCOMPARE(Rows(), QString("X A B C"));
    QCOMPARE(m_table->currentRow(), 2);
    QCOMPARE(Buttons(), QString("U-X"));
}

void tst_PageEditing::refreshOfAHiddenPageSelectsNothing_data()
{
    QTest::addColumn<QString>("way");
    Row("OK", "OK");
    Row("Cancel", "Cancel");
    Row("hidden", "hidden");
}

void tst_PageEditing::refreshOfAHiddenPageSelectsNothing()
{
    QFETCH(QString, way);
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    QCOMPARE(m_table->selectionModel()->selectedIndexes().size(), 1);
    if (way == "OK") {
        m_plugin.Setting()->OnClickSettingOkButton();
    } else if (way == "Cancel") {
        m_plugin.Setting()->OnClickSettingCancelButton();
    } else {
        m_plugin.Setting()->HideSetting();
    }
    m_plugin.Priority()->AddTopPriority(Entry("New"));
    QCOMPARE(m_table->rowCount(), 4);
    QVERIFY(m_table->selectionModel()->selectedIndexes().isEmpty());
}

void tst_PageEditing::refreshToAShorterList()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C"
                        << "D");
    Show();
    ClickRow(3);
    QCOMPARE(Buttons(), QString("U-X"));
    Store(QStringList() << "A"
                        << "B");
    QMetaObject::invokeMethod(m_plugin.Service(), "OnUpdataPriorityView");
    QCOMPARE(Rows(), QString("A B"));
    QCOMPARE(m_table->currentRow(), -1);
    QCOMPARE(Buttons(), QString("U-X"));
    // Row 3 is still the selected one: it is highlighted as soon as it exists again.
    Store(QStringList() << "A"
                        << "B"
                        << "C"
                        << "D");
    QMetaObject::invokeMethod(m_plugin.Service(), "OnUpdataPriorityView");
    QCOMPARE(m_table->currentRow(), 3);
}

void tst_PageEditing::refreshAfterAReadErrorShowsWhatWasRead()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    m_directory->Write("Priority.xml", "<r><item name='P' type='1'/><item");
    QMetaObject::invokeMethod(m_plugin.Service(), "OnUpdataPriorityView");
    QCOMPARE(Rows(), QString("P"));
}

void tst_PageEditing::okAfterMovesKeepsTheOrder()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(0);
    Click("downButton");
    m_plugin.Setting()->OnClickSettingOkButton();
    QCOMPARE(Stored(), QString("B A C"));
    Show();
    QCOMPARE(Rows(), QString("B A C"));
}

void tst_PageEditing::cancelUndoesNothing()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(0);
    Click("downButton");
    ClickRow(2);
    Click("deleteButton");
    const QByteArray edited = m_directory->Read("Priority.xml");
    m_plugin.Setting()->OnClickSettingCancelButton();
    QCOMPARE(m_directory->Read("Priority.xml"), edited);
    QCOMPARE(Stored(), QString("B A"));
    Show();
    QCOMPARE(Rows(), QString("B A"));
}

void tst_PageEditing::clickBesideTheRowsChangesNothing()
{
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    QWidget *viewport = m_table->viewport();
    const QPoint beside = viewport->rect().bottomLeft() + QPoint(5, -5);
    QVERIFY(!m_table->indexAt(beside).isValid());
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, beside);
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, beside);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, beside);
    QTest::mouseMove(viewport, beside - QPoint(0, 10));
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, beside);
    QVERIFY(m_table->selectionModel()->isSelected(m_table->model()->index(1, 0)));
    QCOMPARE(m_table->currentRow(), 1);
    QCOMPARE(Buttons(), QString("UDX"));
}

void tst_PageEditing::openingADialogLeavesTheListAlone_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("dialog");
    Row("Add", "addButton", "addDialog");
    Row("New", "newButton", "newDialog");
}

void tst_PageEditing::openingADialogLeavesTheListAlone()
{
    QFETCH(QString, button);
    QFETCH(QString, dialog);
    Store(QStringList() << "A"
                        << "B");
    Show();
    const QByteArray before = m_directory->Read("Priority.xml");
    Click(button.toLatin1());
    QVERIFY(m_window->findChild<QWidget *>(dialog)->isVisible());
    QCOMPARE(m_directory->Read("Priority.xml"), before);
    QCOMPARE(Rows(), QString("A B"));
    m_window->findChild<QWidget *>(dialog)->close();
}

void tst_PageEditing::onlyAddRefreshesTheButtons()
{
    m_wlan.AddReadOnly("B", "true");
    Store(QStringList() << "A"
                        << "B"
                        << "C");
    Show();
    ClickRow(1);
    QCOMPARE(Buttons(), QString("UD-"));
    m_wlan.profiles.clear();
    Click("newButton");
    m_window->findChild<QWidget *>("newDialog")->close();
    QCOMPARE(Buttons(), QString("UD-"));
    Click("addButton");
    m_window->findChild<QWidget *>("addDialog")->close();
    QCOMPARE(Buttons(), QString("UDX"));
}

void tst_PageEditing::duplicateEntriesAreShownAndActOnTheFirst()
{
    Store(QStringList() << "A"
                        << "B"
                        << "A");
    Show();
    QCOMPARE(Rows(), QString("A B A"));
    ClickRow(2);
    Click("upButton");
    QCOMPARE(Stored(), QString("A B A"));
    QCOMPARE(m_table->currentRow(), -1);
}

QTEST_MAIN(tst_PageEditing)
#include "tst_pageediting.moc"
