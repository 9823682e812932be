#include "Lists.h"
#include "MessageReader.h"
#include "PluginWorld.h"

#include <DashboardLanguage.h>
#include <ListEntries.h>
#include <MainWindow.h>
#include <NetworkDelegate.h>
#include <NetworkList.h>
#include <OrderFile.h>
#include <Row.h>
#include <TraceLog.h>
#include <WindowActivation.h>

#include <QAccessible>
#include <QAction>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolButton>
#include <QtTest>

#include <functional>

Q_DECLARE_METATYPE(std::function<void(NetworkList *)>)

/** The list of the main window, edited where it stands, over the real plug-ins. */
class NetworkListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void SelectionStaysWithTheNetworks();
    void OneOfEqualNetworksStaysSelected();
    void SightStaysWithTheNetworks();
    void NewTopIsSeenAtTheTop();
    void KeysMove_data();
    void KeysMove();
    void PlaceIsAskedFor_data();
    void PlaceIsAskedFor();
    void PlaceIsWithinTheListOfNow();
    void PlaceIsNotAskedForWhereThereIsNoOther();
    void MovedOneOfEqualNetworksStaysSelected();
    void DeleteRemovesAndTheNextOneIsCurrent();
    void OneKeyBringsTheLastOfThirtyToTheTop();
    void OneDragBringsTheLastOfThirtyToTheTop();
    void MoveIsSeenBeforeItIsWritten();
    void ChangeIsSeenBeforeItIsRecorded();
    void KeptRowsLookLikeNewOnes_data();
    void KeptRowsLookLikeNewOnes();
    void UndoSelectsWhatItMoved();
    void UndoSelectsWhatItBroughtBack();
    void NeighbourThatWasMovedIsTold();
    void MoveIsAnnouncedWithItsPlace();
    void ActionsNeedASelection();
    void ActionsOfADamagedListTellWhy();
    void NetworkThatIsGoneIsTold();
    void EmptyNameIsShown();
    void LettersFindNames();
    void SearchIsThereFromTwelveNetworksOn();
    void SearchFindsPartsOfNames_data();
    void SearchFindsPartsOfNames();
    void SearchThatFindsNothingCanBeCleared();
    void EscapeClearsTheSearch();
    void HiddenNetworksAreNotSelected();
    void SearchedListMovesToItsEndsOnly();
    void LowWindowHasTheSearchOnDemand();
    void ButtonsMove();
    void ButtonsFitTheSmallestWidth();
    void SavedNetworksStandBelowTheList();
    void FoldedNetworksStayFolded_data();
    void FoldedNetworksStayFolded();
    void SavedNetworkIsAddedAtTheEnd();
    void SavedNetworkIsDraggedToItsPlace();
    void SavedNetworkIsNotDraggedAmongTheOthers();
    void DamagedListTellsOfNoOthers();
    void SearchFindsFoldedNetworks();
    void MenuConnectsFirst();
    void MenuOpensWithoutTheMouse_data();
    void MenuOpensWithoutTheMouse();
    void DragMoves_data();
    void DragMoves();
    void DragThatMovesNothingWritesNothing();
    void EscapeGivesTheDragUp();
    void ChangeDuringADragIsNotUndone();
    void DragScrollsNearTheEdge();

private:
    void Fill(const QString &list);
    NetworkList *List() const { return m_window->findChild<NetworkList *>(); }
    QLineEdit *Search() const { return m_window->findChild<QLineEdit *>("findEdit"); }
    QAction *Action(const char *name) const { return m_window->findChild<QAction *>(QLatin1String(name)); }
    QString Selected() const;
    void Click(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) const;
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(List(), static_cast<Qt::Key>(key), modifiers);
    }
    /** The pointer, with the button down, goes from that row to a place of the viewport. */
    void DragTo(int row, int y) const;
    void Drop(int y) const;
    int UpperEdge(int row) const { return List()->visualItemRect(List()->item(row)).top(); }

    PluginWorld m_world;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
};

/** Keeps what a file has when the list is painted with a certain name at its top. */
class FileWhenPainted : public QObject
{
public:
    FileWhenPainted(NetworkList *list, const QString &first, const QString &file)
        : m_list(list), m_first(first), m_file(file)
    {
        list->viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        QFile file(m_file);
        if (event->type() == QEvent::Paint && content.isNull() && m_list->item(0)->text() == m_first &&
            file.open(QIODevice::ReadOnly)) {
            content = file.readAll();
        }
        return false;
    }
    QByteArray content;

private:
    const NetworkList *const m_list;
    const QString m_first;
    const QString m_file;
};

static QString Numbers(int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i) {
        names.append(QString("N%1").arg(i));
    }
    return names.join(", ");
}

void NetworkListTest::Fill(const QString &list)
{
    m_world.Write("Priority.xml", OrderFile::Document(Listed(list)));
    m_window->Refresh();
}

QString NetworkListTest::Selected() const
{
    QList<PriorityList> entries;
    const QList<ListedEntry> selected = List()->Selected();
    for (const ListedEntry &entry : selected) {
        entries.append(entry.entry);
    }
    return AsText(entries);
}

void NetworkListTest::Click(int row, Qt::KeyboardModifiers keys) const
{
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, keys,
                      List()->visualItemRect(List()->item(row)).center());
}

void NetworkListTest::DragTo(int row, int y) const
{
    const QPoint taken = List()->visualItemRect(List()->item(row)).center();
    QTest::mousePress(List()->viewport(), Qt::LeftButton, Qt::NoModifier, taken);
    // As QTest has no move with a button down in Qt 5.
    for (const QPoint &place : {QPoint(taken.x(), (taken.y() + y) / 2), QPoint(taken.x(), y)}) {
        QMouseEvent move(QEvent::MouseMove, place, List()->viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(List()->viewport(), &move);
    }
}

void NetworkListTest::Drop(int y) const
{
    QTest::mouseRelease(List()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, y));
}

void NetworkListTest::initTestCase()
{
    QVERIFY(m_world.Load());
    m_log.reset(new TraceLog(m_world.Directory().FilePath("dashboard.log")));
}

void NetworkListTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void NetworkListTest::init()
{
    QVERIFY(m_world.Begin());
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    m_window->show();
    ActivateWindow(m_window.data());
    Fill("A, B, C, D");
    List()->setFocus();
}

void NetworkListTest::cleanup()
{
    m_window.reset();
}

void NetworkListTest::SelectionStaysWithTheNetworks()
{
    Click(1);
    Click(2, Qt::ControlModifier);
    Fill("C, X, Y, A, B, D");
    QCOMPARE(Selected(), QString("C, B"));
    QCOMPARE(List()->currentItem()->text(), QString("C"));
}

void NetworkListTest::OneOfEqualNetworksStaysSelected()
{
    Fill("A, B, A");
    Click(2);
    Fill("X, A, B, A");
    QCOMPARE(List()->currentRow(), 3);
    QVERIFY(!List()->item(1)->isSelected());
}

void NetworkListTest::SightStaysWithTheNetworks()
{
    Fill(Numbers(1, 40));
    List()->verticalScrollBar()->setValue(List()->item(10) ? UpperEdge(10) : 0);
    const QListWidgetItem *first = List()->itemAt(5, 5);
    QCOMPARE(first->text(), QString("N11"));
    Fill("X, Y, " + Numbers(1, 40));
    QCOMPARE(List()->itemAt(5, 5)->text(), QString("N11"));
}

void NetworkListTest::NewTopIsSeenAtTheTop()
{
    Fill(Numbers(1, 40));
    Fill("X, " + Numbers(1, 40));
    QCOMPARE(List()->itemAt(5, 5)->text(), QString("X"));
}

void NetworkListTest::KeysMove_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("after");
    Row("up", int(Qt::Key_Up), QList<int>{2}, "A, C, B, D");
    Row("down", int(Qt::Key_Down), QList<int>{1}, "A, C, B, D");
    Row("to the top", int(Qt::Key_Home), QList<int>{2}, "C, A, B, D");
    Row("to the end", int(Qt::Key_End), QList<int>{1}, "A, C, D, B");
    Row("at the top already", int(Qt::Key_Up), QList<int>{0}, "A, B, C, D");
    Row("at the end already", int(Qt::Key_Down), QList<int>{3}, "A, B, C, D");
    Row("several up", int(Qt::Key_Up), QList<int>{2, 3}, "A, C, D, B");
    Row("several to the top", int(Qt::Key_Home), QList<int>{1, 3}, "B, D, A, C");
}

void NetworkListTest::KeysMove()
{
    QFETCH(int, key);
    QFETCH(QList<int>, rows);
    QFETCH(QString, after);
    for (const int row : std::as_const(rows)) {
        Click(row, row == rows.first() ? Qt::NoModifier : Qt::ControlModifier);
    }
    const QString moved = Selected();
    Press(key, Qt::AltModifier);
    QCOMPARE(PluginWorld::Stored(), after);
    QCOMPARE(Selected(), moved);
}

void NetworkListTest::PlaceIsAskedFor_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("announced");
    Row("down", QList<int>{0}, "3", 4, "B, C, A, D", "Moved A down: place 3 of 4");
    Row("up", QList<int>{3}, "2", 4, "A, D, B, C", "Moved D up: place 2 of 4");
    Row("several", QList<int>{1, 3}, "1", 3, "B, D, A, C", "");
}

void NetworkListTest::PlaceIsAskedFor()
{
    QFETCH(QList<int>, rows);
    QFETCH(QString, typed);
    for (const int row : std::as_const(rows)) {
        Click(row, row == rows.first() ? Qt::NoModifier : Qt::ControlModifier);
    }
    const QString moved = Selected();
    Action("movePlaceAction")->trigger();
    QSpinBox *place = m_window->findChild<QSpinBox *>("placeBox");
    QCOMPARE(place->value(), rows.first() + 1);
    QTEST(place->maximum(), "last");
    QTest::keyClicks(place, typed);
    QTest::keyClick(place, Qt::Key_Return);
    QTEST(PluginWorld::Stored(), "after");
    QCOMPARE(Selected(), moved);
    if (rows.size() == 1) {
        QTEST(Plain(List()->accessibleDescription()), "announced");
    }
    Action("undoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C, D"));
}

void NetworkListTest::PlaceIsWithinTheListOfNow()
{
    Click(1);
    Action("movePlaceAction")->trigger();
    Fill("A, B, C, D, E, F");
    QSpinBox *place = m_window->findChild<QSpinBox *>("placeBox");
    QTRY_COMPARE(place->maximum(), 6);
    place->setValue(6);
    m_window->findChild<QPushButton *>("placeMoveButton")->click();
    QCOMPARE(PluginWorld::Stored(), QString("A, C, D, E, F, B"));
}

void NetworkListTest::PlaceIsNotAskedForWhereThereIsNoOther()
{
    Click(0);
    QVERIFY(Action("movePlaceAction")->isEnabled());
    List()->selectAll();
    QVERIFY(!Action("movePlaceAction")->isEnabled());
}

void NetworkListTest::MovedOneOfEqualNetworksStaysSelected()
{
    Fill("A, B, A");
    Click(2);
    Press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(List()->currentRow(), 0);
    QVERIFY(!List()->item(1)->isSelected());
}

void NetworkListTest::DeleteRemovesAndTheNextOneIsCurrent()
{
    Click(1);
    Press(Qt::Key_Delete);
    QCOMPARE(PluginWorld::Stored(), QString("A, C, D"));
    QCOMPARE(Selected(), QString("C"));
}

void NetworkListTest::OneKeyBringsTheLastOfThirtyToTheTop()
{
    Fill(Numbers(1, 30));
    List()->setCurrentRow(29);
    Press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(PluginWorld::Stored(), "N30, " + Numbers(1, 29));
    QVERIFY(List()->viewport()->rect().contains(List()->visualItemRect(List()->item(0))));
}

void NetworkListTest::OneDragBringsTheLastOfThirtyToTheTop()
{
    Fill(Numbers(1, 30));
    List()->setCurrentRow(29);
    DragTo(29, 0);
    QTRY_COMPARE(List()->verticalScrollBar()->value(), 0);
    Drop(0);
    QCOMPARE(PluginWorld::Stored(), "N30, " + Numbers(1, 29));
    Action("undoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), Numbers(1, 30));
}

void NetworkListTest::MoveIsSeenBeforeItIsWritten()
{
    const FileWhenPainted seen(List(), "D", m_world.UserData() + "Priority.xml");
    Click(3);
    Press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(seen.content, OrderFile::Document(Listed("A, B, C, D")));
    QCOMPARE(PluginWorld::Stored(), QString("D, A, B, C"));
}

void NetworkListTest::ChangeIsSeenBeforeItIsRecorded()
{
    const QByteArray recorded = m_world.Read("history/states.xml");
    const FileWhenPainted seen(List(), "X", m_world.UserData() + "history/states.xml");
    Fill("X, A");
    QCOMPARE(seen.content, recorded);
    QVERIFY(m_world.Read("history/states.xml") != recorded);
}

void NetworkListTest::KeptRowsLookLikeNewOnes_data()
{
    QTest::addColumn<std::function<void(NetworkList *)>>("change");
    const auto add = [](const char *name, const std::function<void(NetworkList *)> &change) {
        Row(name, change);
    };
    add("palette", [](NetworkList *list) {
        QPalette palette = list->palette();
        palette.setColor(QPalette::Base, Qt::darkBlue);
        list->setPalette(palette);
    });
    add("font", [](NetworkList *list) {
        QFont font = list->font();
        font.setItalic(true);
        list->setFont(font);
    });
    add("direction", [](NetworkList *list) { list->setLayoutDirection(Qt::RightToLeft); });
    add("selection", [](NetworkList *list) { list->selectAll(); });
    add("width", [](NetworkList *list) { list->setFixedWidth(500); });
}

void NetworkListTest::KeptRowsLookLikeNewOnes()
{
    QFETCH(std::function<void(NetworkList *)>, change);
    const auto picture = [](NetworkList *list) {
        QCoreApplication::processEvents();
        return list->viewport()->grab().toImage();
    };
    const QImage before = picture(List());
    change(List());
    const QImage kept = picture(List());
    QVERIFY(kept != before);
    // A delegate that has painted nothing yet.
    List()->setItemDelegate(new NetworkDelegate(List()));
    QCOMPARE(picture(List()), kept);
}

void NetworkListTest::UndoSelectsWhatItMoved()
{
    Click(1);
    Press(Qt::Key_Down, Qt::AltModifier);
    Click(3);
    Action("undoAction")->trigger();
    QCOMPARE(Selected(), QString("B"));
    Click(3);
    Action("redoAction")->trigger();
    QCOMPARE(Selected(), QString("B"));
}

void NetworkListTest::UndoSelectsWhatItBroughtBack()
{
    Click(1);
    Press(Qt::Key_Delete);
    Action("undoAction")->trigger();
    QCOMPARE(Selected(), QString("B"));
}

void NetworkListTest::NeighbourThatWasMovedIsTold()
{
    Click(1);
    Press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(Plain(m_window->findChild<QLabel *>("lastChangeLabel")->text()).contains("Moved B down"));
    Click(3);
    Press(Qt::Key_Up, Qt::AltModifier);
    QVERIFY(Plain(m_window->findChild<QLabel *>("lastChangeLabel")->text()).contains("Moved D up"));
}

void NetworkListTest::MoveIsAnnouncedWithItsPlace()
{
    Click(1);
    Press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(Plain(List()->accessibleDescription()), QString("Moved B down: place 3 of 4"));
    Press(Qt::Key_Delete);
    QCOMPARE(Plain(List()->accessibleDescription()), QString("Removed B"));
}

void NetworkListTest::ActionsNeedASelection()
{
    List()->clearSelection();
    QVERIFY(!Action("moveEndAction")->isEnabled());
    QVERIFY(!Action("removeAction")->isEnabled());
    QCOMPARE(Action("removeAction")->whatsThis(), QString("Choose a network in the list first."));
    Click(3);
    QVERIFY(!Action("moveEndAction")->isEnabled());
    QCOMPARE(Action("moveEndAction")->whatsThis(), QString("It stands there already."));
    QVERIFY(Action("moveUpAction")->isEnabled());
    QVERIFY(Action("removeAction")->isEnabled());
}

void NetworkListTest::ActionsOfADamagedListTellWhy()
{
    m_world.Write("Priority.xml", "<z><item name='A' type='1'/><item name='B' type='1'/><item");
    m_window->Refresh();
    Click(1);
    QVERIFY(!Action("moveUpAction")->isEnabled());
    QVERIFY(Action("moveUpAction")->whatsThis().contains("damaged"));
    DragTo(1, 0);
    QVERIFY(!m_window->findChild<QWidget *>("dropMark"));
    QTest::mouseRelease(List()->viewport(), Qt::LeftButton);
}

void NetworkListTest::NetworkThatIsGoneIsTold()
{
    Click(1);
    Click(2, Qt::ControlModifier);
    m_world.Write("Priority.xml", OrderFile::Document(Listed("A, C, D")));
    MessageReader reader;
    Press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(Plain(reader.text), QString("Another program has changed your list. B is no longer in it."));
    QCOMPARE(PluginWorld::Stored(), QString("C, A, D"));
}

void NetworkListTest::EmptyNameIsShown()
{
    m_world.Write("Priority.xml", "<z><item name='  ' type='1'/></z>");
    m_window->Refresh();
    QCOMPARE(List()->item(0)->text(), QString("(no name)"));
}

void NetworkListTest::LettersFindNames()
{
    Fill("Home, Office, Café, offshore");
    Click(0);
    QTest::keyClicks(List(), "OFFS");
    QCOMPARE(List()->currentItem()->text(), QString("offshore"));
}

void NetworkListTest::SearchIsThereFromTwelveNetworksOn()
{
    Fill(Numbers(1, 11));
    QVERIFY(!Search()->isVisible());
    Fill(Numbers(1, 12));
    QVERIFY(Search()->isVisible());
}

void NetworkListTest::SearchFindsPartsOfNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    Row("a part", "ffic", "Office");
    Row("another case", "OFF", "Office, offshore");
    Row("without the accent", "cafe", QString::fromUtf8("Café"));
    Row("nothing typed", "", QString::fromUtf8("Home, Office, Café, offshore"));
}

void NetworkListTest::SearchFindsPartsOfNames()
{
    QFETCH(QString, typed);
    Fill(QString::fromUtf8("Home, Office, Café, offshore"));
    QTest::keyClick(m_window.data(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(m_window->focusWidget(), Search());
    QTest::keyClicks(Search(), typed);
    QStringList found;
    for (int i = 0; i < List()->Listed().size(); ++i) {
        if (!List()->item(i)->isHidden()) {
            found.append(List()->item(i)->text());
        }
    }
    QTEST(found.join(", "), "found");
}

void NetworkListTest::SearchThatFindsNothingCanBeCleared()
{
    Action("findAction")->trigger();
    QTest::keyClicks(Search(), "zz");
    QVERIFY(!List()->isVisible());
    QCOMPARE(Plain(m_window->findChild<QLabel *>("messageTitle")->text()),
             QString::fromUtf8("No network has “zz” in its name."));
    QTest::mouseClick(m_window->findChild<QPushButton *>("message_clearFindAction"), Qt::LeftButton);
    QVERIFY(List()->isVisible());
    QVERIFY(Search()->text().isEmpty());
}

void NetworkListTest::EscapeClearsTheSearch()
{
    Action("findAction")->trigger();
    QTest::keyClicks(Search(), "B");
    QTest::keyClick(Search(), Qt::Key_Down);
    QCOMPARE(m_window->focusWidget(), List());
    Press(Qt::Key_Escape);
    QVERIFY(!List()->item(0)->isHidden());
    QVERIFY(!Search()->isVisible());
}

void NetworkListTest::HiddenNetworksAreNotSelected()
{
    Click(0);
    Click(1, Qt::ControlModifier);
    Action("findAction")->trigger();
    QTest::keyClicks(Search(), "B");
    QCOMPARE(Selected(), QString("B"));
    Action("removeAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("A, C, D"));
}

void NetworkListTest::SearchedListMovesToItsEndsOnly()
{
    Action("findAction")->trigger();
    QTest::keyClicks(Search(), "C");
    Click(2);
    QVERIFY(!Action("moveUpAction")->isEnabled() && !Action("moveDownAction")->isEnabled());
    QCOMPARE(Action("moveUpAction")->whatsThis(), QString("Clear the search to move networks up or down."));
    DragTo(2, 0);
    QVERIFY(!m_window->findChild<QWidget *>("dropMark"));
    QTest::mouseRelease(List()->viewport(), Qt::LeftButton);
    Action("moveTopAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("C, A, B, D"));
    QCOMPARE(Selected(), QString("C"));
}

void NetworkListTest::LowWindowHasTheSearchOnDemand()
{
    m_window->resize(1, 1);
    QTRY_VERIFY(!m_window->findChild<QWidget *>("listTools")->isVisible());
    QTest::keyClick(m_window.data(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(Search()->isVisible());
    QCOMPARE(m_window->size(), m_window->minimumSize());
    QTest::keyClick(Search(), Qt::Key_Escape);
    QVERIFY(!m_window->findChild<QWidget *>("listTools")->isVisible());
}

void NetworkListTest::ButtonsMove()
{
    Click(2);
    const char *const names[] = {"moveTopButton", "moveDownButton", "moveEndButton", "moveUpButton",
                                 "removeButton"};
    const char *const lists[] = {"C, A, B, D", "A, C, B, D", "A, B, D, C", "A, B, C, D", "A, B, D"};
    for (int i = 0; i < 5; ++i) {
        QToolButton *button = m_window->findChild<QToolButton *>(names[i]);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(PluginWorld::Stored(), QString(lists[i]));
        QVERIFY(!QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name).contains('&'));
    }
}

void NetworkListTest::ButtonsFitTheSmallestWidth()
{
    m_window->resize(1, 640);
    QCOMPARE(m_window->width(), m_window->minimumWidth());
    const QWidget *last = m_window->findChild<QWidget *>("addToListButton");
    QTRY_VERIFY(last->visibleRegion().boundingRect() == last->rect());
}

void NetworkListTest::SavedNetworksStandBelowTheList()
{
    Fill("Office, Home");
    QCOMPARE(List()->item(2)->text(), QString("Not in your list (5)"));
    QCOMPARE(List()->count(), 8);
    QCOMPARE(List()->Listed().size(), 2);
    QVERIFY(List()->item(3)->data(NetworkDelegate::DetailTextRole).toString().contains("Saved"));
    for (int i = 3; i < List()->count(); ++i) {
        QVERIFY(List()->item(i)->text() != "Office" && List()->item(i)->text() != "Home");
    }
}

void NetworkListTest::FoldedNetworksStayFolded_data()
{
    QTest::addColumn<bool>("byKey");
    Row("click", false);
    Row("Enter", true);
}

void NetworkListTest::FoldedNetworksStayFolded()
{
    QFETCH(bool, byKey);
    const int all = List()->count();
    const auto fold = [this, byKey] {
        if (byKey) {
            List()->setCurrentRow(4);
            Press(Qt::Key_Return);
        } else {
            Click(4);
        }
    };
    fold();
    QCOMPARE(List()->count(), 5);
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    m_window->show();
    QCOMPARE(List()->count(), 5);
    fold();
    QCOMPARE(List()->count(), all);
}

void NetworkListTest::SavedNetworkIsAddedAtTheEnd()
{
    Fill("Office, A");
    QVERIFY(!Action("addAction")->isEnabled());
    QCOMPARE(List()->item(3)->text(), QString("Home"));
    Click(3);
    QVERIFY(!Action("removeAction")->isEnabled());
    QTest::mouseClick(m_window->findChild<QToolButton *>("addToListButton"), Qt::LeftButton);
    QCOMPARE(PluginWorld::Stored(), QString("Office, A, Home"));
    QCOMPARE(Selected(), QString("Home"));
    Action("undoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("Office, A"));
}

void NetworkListTest::SavedNetworkIsDraggedToItsPlace()
{
    Fill("Office, A");
    Click(3);
    DragTo(3, UpperEdge(1) + 3);
    Drop(UpperEdge(1) + 3);
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home, A"));
    QCOMPARE(Selected(), QString("Home"));
}

void NetworkListTest::SavedNetworkIsNotDraggedAmongTheOthers()
{
    Fill("Office, A");
    Click(3);
    DragTo(3, UpperEdge(4) + 30);
    Drop(UpperEdge(4) + 30);
    QCOMPARE(PluginWorld::Stored(), QString("Office, A"));
}

void NetworkListTest::DamagedListTellsOfNoOthers()
{
    m_world.Write("Priority.xml", "<z><item name='A' type='1'/><item");
    m_window->Refresh();
    QCOMPARE(List()->count(), 1);
}

void NetworkListTest::SearchFindsFoldedNetworks()
{
    Fill("Office, A");
    Click(2);
    Action("findAction")->trigger();
    QTest::keyClicks(Search(), "hom");
    QVERIFY(List()->item(0)->isHidden() && !List()->item(2)->isHidden());
    QCOMPARE(List()->item(3)->text(), QString("Home"));
    QVERIFY(!List()->item(3)->isHidden() && List()->item(4)->isHidden());
    QTest::keyClick(Search(), Qt::Key_Escape);
    QCOMPARE(List()->count(), 3);
    Click(2);
}

void NetworkListTest::MenuConnectsFirst()
{
    const QMenu *menu = m_window->findChild<QMenu *>("entryMenu");
    QCOMPARE(menu->defaultAction(), Action("entryConnectAction"));
    QCOMPARE(menu->actions().first(), Action("entryConnectAction"));
    QVERIFY(menu->actions().contains(Action("removeAction")));
    Fill("Home, A");
    Click(0);
    Action("entryConnectAction")->trigger();
    QTRY_VERIFY(m_window->findChild<QLabel *>("headlineLabel")->text().contains("Home"));
    QVERIFY(!Action("entryConnectAction")->isEnabled());
}

void NetworkListTest::MenuOpensWithoutTheMouse_data()
{
    QTest::addColumn<bool>("isMenuKey");
    Row("Menu", true);
    Row("Shift+F10", false);
}

void NetworkListTest::MenuOpensWithoutTheMouse()
{
    QFETCH(bool, isMenuKey);
    Click(2);
    if (isMenuKey) {
        // What the window system makes of the key.
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(List()->viewport(), &event);
    } else {
        Press(Qt::Key_F10, Qt::ShiftModifier);
    }
    QMenu *menu = m_window->findChild<QMenu *>("entryMenu");
    QVERIFY(menu->isVisible());
    const QRect row = List()->visualItemRect(List()->item(2));
    const int wanted = List()->viewport()->mapToGlobal(row.center()).y();
    const int lowest = menu->screen()->availableGeometry().bottom() + 1 - menu->height();
    QCOMPARE(menu->pos().y(), qMin(wanted, lowest));
    menu->close();
}

void NetworkListTest::DragMoves_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("after");
    Row("up", "en", QList<int>{3}, 1, "A, D, B, C");
    Row("down", "en", QList<int>{0}, 3, "B, C, A, D");
    Row("to the end", "en", QList<int>{1}, 4, "A, C, D, B");
    Row("several", "en", QList<int>{0, 2}, 4, "B, D, A, C");
    Row("from right to left", "ar", QList<int>{3}, 0, "D, A, B, C");
}

void NetworkListTest::DragMoves()
{
    QFETCH(QString, language);
    QFETCH(QList<int>, rows);
    QFETCH(int, before);
    QFETCH(QString, after);
    QVERIFY(m_language->Switch(language));
    for (const int row : std::as_const(rows)) {
        Click(row, row == rows.first() ? Qt::NoModifier : Qt::ControlModifier);
    }
    const QString moved = Selected();
    const int y =
        before < 4 ? UpperEdge(before) + 3 : UpperEdge(3) + List()->visualItemRect(List()->item(3)).height();
    DragTo(rows.last(), y);
    const QWidget *mark = m_window->findChild<QWidget *>("dropMark");
    QVERIFY(mark && mark->isVisible());
    Drop(y);
    QVERIFY(!m_window->findChild<QWidget *>("dropMark"));
    QCOMPARE(PluginWorld::Stored(), after);
    QCOMPARE(Selected(), moved);
    Action("undoAction")->trigger();
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C, D"));
    QVERIFY(m_language->Switch("en"));
}

void NetworkListTest::DragThatMovesNothingWritesNothing()
{
    const QByteArray history = m_world.Read("history/states.xml");
    DragTo(1, UpperEdge(2) + 3);
    Drop(UpperEdge(2) + 3);
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C, D"));
    QCOMPARE(m_world.Read("history/states.xml"), history);
}

void NetworkListTest::EscapeGivesTheDragUp()
{
    DragTo(3, 0);
    Press(Qt::Key_Escape);
    QVERIFY(!m_window->findChild<QWidget *>("dropMark"));
    DragTo(3, 0);
    Press(Qt::Key_Escape);
    Drop(0);
    QCOMPARE(PluginWorld::Stored(), QString("A, B, C, D"));
}

void NetworkListTest::ChangeDuringADragIsNotUndone()
{
    DragTo(3, UpperEdge(1) + 3);
    m_world.Write("Priority.xml", OrderFile::Document(Listed("X, C, B, A, D")));
    Drop(UpperEdge(1) + 3);
    QCOMPARE(PluginWorld::Stored(), QString("X, C, D, B, A"));
}

void NetworkListTest::DragScrollsNearTheEdge()
{
    Fill(Numbers(1, 30));
    DragTo(0, List()->viewport()->height() - 4);
    QTRY_COMPARE(List()->verticalScrollBar()->value(), List()->verticalScrollBar()->maximum());
    Press(Qt::Key_Escape);
}

QTEST_MAIN(NetworkListTest)
#include "tst_networklist.moc"
