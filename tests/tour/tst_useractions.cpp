#include <Row.h>
#include <UserActions.h>

#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QtTest>

class UserActionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ClickClicks();
    void ClickMovesTheFocus();
    void WhatNobodyCouldClickIsNotClicked_data();
    void WhatNobodyCouldClickIsNotClicked();
    void RowIsClicked();
    void RowThatIsNotThereIsTold();
    void MenuIsChosenFrom_data();
    void MenuIsChosenFrom();
    void TextGoesWhereTheFocusIs();
    void KeyWithoutFocusIsTold();

private:
    QScopedPointer<QWidget> m_window;
    QPushButton *m_button;
    QLineEdit *m_field;
    QTableWidget *m_table;
};

void UserActionsTest::init()
{
    m_window.reset(new QWidget);
    QVBoxLayout *layout = new QVBoxLayout(m_window.data());
    m_button = new QPushButton("Press");
    m_button->setObjectName("button");
    m_field = new QLineEdit;
    m_field->setObjectName("field");
    m_table = new QTableWidget(50, 1);
    m_table->setObjectName("table");
    layout->addWidget(m_button);
    layout->addWidget(m_field);
    layout->addWidget(m_table);
    m_window->resize(300, 300);
    m_window->show();
}

void UserActionsTest::cleanup()
{
    m_window.reset();
}

void UserActionsTest::ClickClicks()
{
    QSignalSpy spy(m_button, SIGNAL(clicked()));
    QCOMPARE(UserActions::Click(m_button), QString());
    QCOMPARE(spy.count(), 1);
}

void UserActionsTest::ClickMovesTheFocus()
{
    QCOMPARE(UserActions::Click(m_field), QString());
    QVERIFY(m_field->hasFocus());
}

void UserActionsTest::WhatNobodyCouldClickIsNotClicked_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("told");
    Row("hidden", "hidden", "button can't be seen");
    Row("disabled", "disabled", "button is disabled");
    Row("covered", "covered", "button is covered");
    Row("behind a dialog", "dialog", "button is behind the dialog question");
}

void UserActionsTest::WhatNobodyCouldClickIsNotClicked()
{
    QFETCH(QString, obstacle);
    QSignalSpy spy(m_button, SIGNAL(clicked()));
    QDialog dialog(m_window.data());
    dialog.setObjectName("question");
    QWidget cover(m_window.data());
    if (obstacle == "hidden") {
        m_button->hide();
    } else if (obstacle == "disabled") {
        m_button->setEnabled(false);
    } else if (obstacle == "covered") {
        cover.setGeometry(m_window->rect());
        cover.show();
    } else {
        dialog.setModal(true);
        dialog.show();
    }
    QTEST(UserActions::Click(m_button), "told");
    QCOMPARE(spy.count(), 0);
}

void UserActionsTest::RowIsClicked()
{
    QSignalSpy spy(m_table, SIGNAL(cellClicked(int, int)));
    QCOMPARE(UserActions::ClickRow(m_table, 40), QString());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 40);
}

void UserActionsTest::RowThatIsNotThereIsTold()
{
    QCOMPARE(UserActions::ClickRow(m_table, 50), QString("table has no row 51"));
    QCOMPARE(UserActions::ClickRow(m_table, -1), QString("table has no row 0"));
}

void UserActionsTest::MenuIsChosenFrom_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isInBar");
    QTest::addColumn<QString>("told");
    QTest::addColumn<int>("times");
    Row("possible", true, true, QString(), 1);
    Row("disabled", false, true, "second is disabled", 0);
    Row("menu elsewhere", true, false, "menu is in no menu bar", 0);
}

void UserActionsTest::MenuIsChosenFrom()
{
    QFETCH(bool, isEnabled);
    QFETCH(bool, isInBar);
    QFETCH(QString, told);
    QFETCH(int, times);
    QMainWindow window;
    QMenu *menu = isInBar ? window.menuBar()->addMenu("Menu") : new QMenu(&window);
    menu->setObjectName("menu");
    QSignalSpy first(menu->addAction("First"), SIGNAL(triggered()));
    QAction *action = menu->addAction("Second");
    action->setObjectName("second");
    action->setEnabled(isEnabled);
    QSignalSpy second(action, SIGNAL(triggered()));
    window.show();
    QCOMPARE(UserActions::ChooseFromMenu(menu, action), told);
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), times);
    QVERIFY(!menu->isVisible());
}

void UserActionsTest::TextGoesWhereTheFocusIs()
{
    QCOMPARE(UserActions::Click(m_field), QString());
    QCOMPARE(UserActions::TypeText("abc", m_field), QString());
    QCOMPARE(UserActions::PressKey(Qt::Key_Backspace, m_field), QString());
    QCOMPARE(m_field->text(), QString("ab"));
    QCOMPARE(UserActions::PressKey(Qt::Key_A, m_field, Qt::ControlModifier), QString());
    QCOMPARE(UserActions::TypeText("x", m_field), QString());
    QCOMPARE(m_field->text(), QString("x"));
}

void UserActionsTest::KeyWithoutFocusIsTold()
{
    QCOMPARE(UserActions::Click(m_button), QString());
    m_button->setFocus();
    QCOMPARE(UserActions::PressKey(Qt::Key_X, m_field), QString("field doesn't have the keyboard's focus"));
    QCOMPARE(m_field->text(), QString());
}

QTEST_MAIN(UserActionsTest)
#include "tst_useractions.moc"
