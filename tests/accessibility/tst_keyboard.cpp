#include "TabStops.h"

#include <Row.h>
#include <Screens.h>
#include <WindowActivation.h>

#include <CommonUtils.h>
#include <IPriorityPlugin.h>
#include <PluginObjects.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

namespace
{

const char *const dialogs[] = {
    "settings, priority page", "settings, general page", "add dialog",
    "new dialog, open",        "new dialog, WPA(EAP)",   "delete question",
    "notice, no name",         "restore dialog",         "restore dialog, history damaged",
    "import dialog",           "connect dialog",         "connect dialog, nothing in range"};

QStringList Stored()
{
    QList<PriorityList> entries;
    PluginObjects::Priority()->GetPriorityList(&entries);
    QStringList names;
    for (int i = 0; i < entries.size(); ++i) {
        names.append(entries.at(i).name);
    }
    return names;
}

QTableWidget *ListOf(QWidget *window)
{
    return window->findChild<QTableWidget *>("priorityTable");
}

/** Gives the list of the page the focus, with no row chosen. */
QTableWidget *EnterList(QWidget *window)
{
    QTableWidget *list = ListOf(window);
    ActivateWindow(window);
    list->setCurrentCell(-1, 0);
    list->setFocus();
    return list;
}

void AddDialogs()
{
    QTest::addColumn<QString>("screen");
    for (const char *dialog : dialogs) {
        Row(dialog, QString(QLatin1String(dialog)));
    }
}

/** The button that Return presses where the focus is. */
QPushButton *ButtonOfReturn(QWidget *window, QWidget *stop)
{
    if (QPushButton *focused = qobject_cast<QPushButton *>(stop)) {
        return focused;
    }
    foreach (QPushButton *button, window->findChildren<QPushButton *>()) {
        if (button->isDefault() && button->window() == window) {
            return button;
        }
    }
    return nullptr;
}

/** The page lives as long as the program; its buttons are the plug-in's. */
bool IsOnThePage(const QWidget *button)
{
    return button->parentWidget()->objectName() == QLatin1String("buttonColumn");
}

} // namespace

/** The program without a mouse. */
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void arrowsWithControlChooseAnEntry();
    void chosenEntryIsMovedDeletedAndUndone();
    void firstChoiceIsAtTheEndTheArrowComesFrom();
    void listOfThePageLetsTheFocusOn_data();
    void listOfThePageLetsTheFocusOn();
    void otherKeysInTheListAreThePlugins();
    void hintOnKeysIsShownWithAListOnly();
    void buttonsComeAfterThePage_data();
    void buttonsComeAfterThePage();
    void escapeClosesFromEverywhere_data() { AddDialogs(); }
    void escapeClosesFromEverywhere();
    void returnPressesTheButtonWithTheFocusOrTheDefault_data() { AddDialogs(); }
    void returnPressesTheButtonWithTheFocusOrTheDefault();
    void shortcutsAreThereOnce();

private:
    Screens m_screens;
};

void TestKeyboard::arrowsWithControlChooseAnEntry()
{
    QList<int> rows;
    m_screens.Show("settings, priority page", "en", [&rows](QWidget *window) {
        QTableWidget *list = EnterList(window);
        const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up};
        for (Qt::Key key : keys) {
            QTest::keyClick(list, key, Qt::ControlModifier);
            rows.append(list->currentRow());
        }
        // Beyond the last there is none to choose.
        for (int i = 0; i < list->rowCount() + 3; ++i) {
            QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        }
        rows.append(list->currentRow() - list->rowCount());
    });
    QCOMPARE(rows, QList<int>() << 0 << 1 << 2 << 1 << -1);
}

void TestKeyboard::chosenEntryIsMovedDeletedAndUndone()
{
    QStringList before;
    QStringList moved;
    QStringList undone;
    m_screens.Show("settings, priority page", "en", [&before, &moved, &undone](QWidget *window) {
        before = Stored();
        QTableWidget *list = EnterList(window);
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Down);
        moved = Stored();
        QPushButton *undo = window->findChild<QPushButton *>("settingsUndoButton");
        // The change is noticed by watching the file.
        for (int i = 0; i < 500 && !undo->isEnabled(); ++i) {
            QTest::qWait(10);
        }
        for (int i = 0; i < 20 && QApplication::focusWidget() != undo; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        undone = Stored();
    });
    QStringList expected = before;
    expected.move(1, 2);
    QCOMPARE(moved, expected);
    QCOMPARE(undone, before);
}

void TestKeyboard::firstChoiceIsAtTheEndTheArrowComesFrom()
{
    int fromAbove = -1;
    int fromBelow = -1;
    m_screens.Show("settings, priority page", "en", [&fromAbove, &fromBelow](QWidget *window) {
        QTest::keyClick(EnterList(window), Qt::Key_Down, Qt::ControlModifier);
        fromAbove = ListOf(window)->currentRow();
        QTest::keyClick(EnterList(window), Qt::Key_Up, Qt::ControlModifier);
        fromBelow = ListOf(window)->rowCount() - ListOf(window)->currentRow();
    });
    QCOMPARE(fromAbove, 0);
    QCOMPARE(fromBelow, 1);
}

void TestKeyboard::listOfThePageLetsTheFocusOn_data()
{
    QTest::addColumn<int>("key");
    Row("Tab", int(Qt::Key_Tab));
    Row("Shift and Tab", int(Qt::Key_Backtab));
}

void TestKeyboard::listOfThePageLetsTheFocusOn()
{
    QFETCH(int, key);
    QString next;
    m_screens.Show("settings, priority page", "en", [&next, key](QWidget *window) {
        QTest::keyClick(EnterList(window), Qt::Key(key));
        next = QApplication::focusWidget()->objectName();
    });
    QCOMPARE(next, QString(key == Qt::Key_Tab ? "settingsOkButton" : "newButton"));
}

void TestKeyboard::otherKeysInTheListAreThePlugins()
{
    QStringList before;
    QStringList after;
    int row = 0;
    m_screens.Show("settings, priority page", "en", [&before, &after, &row](QWidget *window) {
        before = Stored();
        QTableWidget *list = EnterList(window);
        QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
        const Qt::Key keys[] = {Qt::Key_Home, Qt::Key_End,   Qt::Key_PageDown,
                                Qt::Key_O,    Qt::Key_Space, Qt::Key_Up};
        for (Qt::Key key : keys) {
            QTest::keyClick(list, key);
        }
        row = list->currentRow();
        after = Stored();
    });
    QCOMPARE(row, 0);
    QCOMPARE(after, before);
}

void TestKeyboard::hintOnKeysIsShownWithAListOnly()
{
    QList<bool> shown;
    const char *const screens[] = {"settings, priority page", "settings, general page"};
    for (const char *screen : screens) {
        m_screens.Show(QLatin1String(screen), "en", [&shown](QWidget *window) {
            shown.append(window->findChild<QLabel *>("keysHintLabel")->isVisible());
        });
    }
    QCOMPARE(shown, QList<bool>() << true << false);
}

void TestKeyboard::buttonsComeAfterThePage_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("stops");
    Row("priority page", "settings, priority page",
        "pageList, upButton, downButton, addButton, deleteButton, newButton, priorityTable, "
        "settingsOkButton, settingsCancelButton");
    Row("general page", "settings, general page",
        "pageList, languageBox, settingsOkButton, settingsCancelButton");
    Row("rules page", "settings, rules page",
        "pageList, newNetworksBox, settingsOkButton, settingsCancelButton");
}

void TestKeyboard::buttonsComeAfterThePage()
{
    QFETCH(QString, screen);
    QFETCH(QString, stops);
    QStringList found;
    m_screens.Show(screen, "en", [&found](QWidget *window) {
        window->findChild<QWidget *>("pageList")->setFocus();
        foreach (const QWidget *stop, TabStops::Walk(window, true)) {
            found.append(stop->objectName());
        }
    });
    QCOMPARE(found.join(", "), stops);
}

void TestKeyboard::escapeClosesFromEverywhere()
{
    QFETCH(QString, screen);
    int stopCount = 1;
    for (int i = 0; i < stopCount; ++i) {
        QStringList before;
        QString stayed;
        m_screens.Show(screen, "en", [&before, &stayed, &stopCount, i](QWidget *window) {
            before = Stored();
            const QList<QWidget *> stops = TabStops::Walk(window, true);
            stopCount = stops.size();
            stops.at(i)->setFocus();
            QTest::keyClick(stops.at(i), Qt::Key_Escape);
            stayed = window->isVisible() ? TabStops::Named(stops.at(i)) : QString();
            if (Stored() != before) {
                stayed = QLatin1String("the list was changed");
            }
        });
        QCOMPARE(stayed, QString());
    }
    QVERIFY(stopCount >= 1);
}

void TestKeyboard::returnPressesTheButtonWithTheFocusOrTheDefault()
{
    QFETCH(QString, screen);
    int stopCount = 1;
    for (int i = 0; i < stopCount; ++i) {
        QString problem;
        m_screens.Show(screen, "en", [&problem, &stopCount, i](QWidget *window) {
            const QList<QWidget *> stops = TabStops::Walk(window, true);
            stopCount = stops.size();
            stops.at(i)->setFocus();
            QPushButton *button = ButtonOfReturn(window, stops.at(i));
            if (IsOnThePage(button)) {
                return;
            }
            // What it leads to is for other tests; a message would wait for its answer.
            foreach (QPushButton *other, window->findChildren<QPushButton *>()) {
                if (!IsOnThePage(other)) {
                    other->disconnect(SIGNAL(clicked()));
                }
            }
            QSignalSpy pressed(button, SIGNAL(clicked()));
            QTest::keyClick(stops.at(i), Qt::Key_Return);
            if (pressed.count() != (button->isEnabled() ? 1 : 0) || !window->isVisible()) {
                problem = QString::fromLatin1("Return on %1 doesn't press %2")
                              .arg(TabStops::Named(stops.at(i)), TabStops::Named(button));
            }
        });
        QCOMPARE(problem, QString());
    }
}

void TestKeyboard::shortcutsAreThereOnce()
{
    QStringList twice;
    int count = 0;
    m_screens.Show("list", "en", [&twice, &count](QWidget *window) {
        QSet<QString> keys;
        foreach (const QAction *action, window->findChildren<QAction *>()) {
            const QString key = action->shortcut().toString();
            if (!key.isEmpty()) {
                ++count;
                if (keys.contains(key)) {
                    twice.append(key);
                }
                keys.insert(key);
            }
        }
    });
    QVERIFY(count >= 8);
    QCOMPARE(twice, QStringList());
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
