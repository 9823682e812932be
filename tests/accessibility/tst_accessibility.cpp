#include "TabStops.h"

#include <Row.h>
#include <Screens.h>
#include <WindowActivation.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QtTest>

namespace
{

const int deepest = 30;

typedef QAccessibleInterface Interface;

Interface *InterfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString Described(Interface *part)
{
    const QObject *object = part->object();
    return QString::fromLatin1("role %1, \"%2\", %3")
        .arg(int(part->role()))
        .arg(part->text(QAccessible::Name), object ? object->objectName() + QLatin1Char('/') +
                                                         QLatin1String(object->metaObject()->className())
                                                   : QString(QLatin1String("no widget")));
}

bool IsWorkedWith(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Table:
    case QAccessible::ColumnHeader:
    case QAccessible::MenuItem:
        return true;
    default:
        return false;
    }
}

/** Whether a screen reader has a name for it, of its own or that of a label. */
bool IsNamed(Interface *part)
{
    if (part->role() != QAccessible::ComboBox) {
        return !part->text(QAccessible::Name).trimmed().isEmpty();
    }
    // The name of a box is taken for what is chosen in it.
    const QWidget *box = qobject_cast<QWidget *>(part->object());
    return !part->relations(QAccessible::Label).isEmpty() || !box->accessibleName().isEmpty();
}

void CheckName(Interface *part, QStringList *problems)
{
    const bool isPart = part->object() && TabStops::IsPartOfABox(part->object());
    if (IsWorkedWith(part->role()) && !isPart && !IsNamed(part)) {
        problems->append(Described(part) + QLatin1String(" has no name"));
    }
}

void CheckRows(Interface *table, QStringList *problems)
{
    QTableWidget *widget = qobject_cast<QTableWidget *>(table->object());
    for (int row = 0; row < widget->rowCount(); ++row) {
        bool isNamed = false;
        for (int column = 0; column < widget->columnCount(); ++column) {
            // As Qt counts: each line begins with a header, and the first line is all headers.
            Interface *cell = table->child((row + 1) * (widget->columnCount() + 1) + column + 1);
            if (!cell || cell->role() != QAccessible::Cell) {
                problems->append(
                    QString::fromLatin1("%1 has no cell in row %2").arg(Described(table)).arg(row));
                return;
            }
            isNamed = isNamed || !cell->text(QAccessible::Name).isEmpty();
        }
        if (!isNamed) {
            problems->append(QString::fromLatin1("%1 has no name for row %2").arg(Described(table)).arg(row));
        }
    }
}

void CheckFamily(Interface *parent, Interface *child, int index, QStringList *problems)
{
    if (parent->indexOfChild(child) != index) {
        problems->append(
            QString::fromLatin1("%1 doesn't know its child %2").arg(Described(parent)).arg(index));
    }
}

void CheckBranch(Interface *part, int depth, QStringList *problems)
{
    CheckName(part, problems);
    if (part->role() == QAccessible::Table && qobject_cast<QTableWidget *>(part->object())) {
        CheckRows(part, problems);
    }
    for (int i = 0; i < part->childCount() && depth < deepest; ++i) {
        Interface *child = part->child(i);
        if (child && !child->state().invisible) {
            CheckFamily(part, child, i, problems);
            CheckBranch(child, depth + 1, problems);
        }
    }
}

QAccessible::Role RoleOf(const QWidget *control)
{
    if (const QPushButton *button = qobject_cast<const QPushButton *>(control)) {
        return button->menu()          ? QAccessible::ButtonMenu
               : button->isCheckable() ? QAccessible::CheckBox
                                       : QAccessible::PushButton;
    }
    if (qobject_cast<const QCheckBox *>(control)) {
        return QAccessible::CheckBox;
    }
    if (qobject_cast<const QComboBox *>(control)) {
        return QAccessible::ComboBox;
    }
    if (qobject_cast<const QAbstractSpinBox *>(control)) {
        return QAccessible::SpinBox;
    }
    if (qobject_cast<const QLineEdit *>(control) || qobject_cast<const QPlainTextEdit *>(control)) {
        return QAccessible::EditableText;
    }
    if (qobject_cast<const QListWidget *>(control)) {
        return QAccessible::List;
    }
    return qobject_cast<const QTableWidget *>(control) ? QAccessible::Table : QAccessible::PushButton;
}

/** Qt's own interface to lists tells the state of their items only. */
bool TellsItems(Interface *part)
{
    return !part->state().focusable &&
           (part->role() == QAccessible::List || part->role() == QAccessible::Table);
}

void CheckItems(QAbstractItemView *list, QStringList *problems)
{
    const QModelIndex current = list->currentIndex();
    QStringList told;
    Interface *part = InterfaceOf(list);
    for (int i = 0; i < part->childCount(); ++i) {
        if (part->child(i)->state().focused) {
            told.append(part->child(i)->text(QAccessible::Name));
        }
    }
    const bool isRight = current.isValid()
                             ? told.size() == 1 && told.first().startsWith(current.data().toString())
                             : told.isEmpty();
    if (!isRight) {
        problems->append(Described(part) + QLatin1String(" tells another item than that with the focus"));
    }
}

void CheckState(QWidget *widget, QStringList *problems)
{
    if (TellsItems(InterfaceOf(widget))) {
        CheckItems(qobject_cast<QAbstractItemView *>(widget), problems);
        return;
    }
    Interface *part = InterfaceOf(widget);
    const QAccessible::State state = part->state();
    const QAbstractButton *button = qobject_cast<QAbstractButton *>(widget);
    const QPushButton *push = qobject_cast<QPushButton *>(widget);
    const QLineEdit *field = qobject_cast<QLineEdit *>(widget);
    const bool isRight = bool(state.disabled) == !widget->isEnabled() &&
                         bool(state.invisible) == !widget->isVisible() &&
                         bool(state.focusable) == (widget->focusPolicy() != Qt::NoFocus) &&
                         bool(state.focused) == widget->hasFocus() &&
                         (!button || bool(state.checked) == button->isChecked()) &&
                         (!push || bool(state.defaultButton) == push->isDefault()) &&
                         (!field || bool(state.passwordEdit) == (field->echoMode() == QLineEdit::Password));
    if (!isRight) {
        problems->append(Described(part) + QLatin1String(" tells another state than it has"));
    }
}

void CheckBuddy(const QLabel *label, QStringList *problems)
{
    if (!label->buddy()) {
        return;
    }
    bool isRelated = false;
    foreach (const auto &relation, InterfaceOf(label->buddy())->relations(QAccessible::Label)) {
        isRelated = isRelated || relation.first->object() == label;
    }
    // Qt's own interface to lists has no labels: there, the label's text has to be the name.
    isRelated = isRelated || label->text() == label->buddy()->accessibleName();
    if (!isRelated || label->buddy()->isHidden() != label->isHidden()) {
        problems->append(TabStops::Named(label) + QLatin1String(" is no label of its buddy"));
    }
}

/** Buttons of windows, for which there are keys: Escape, and F12 for the trace. */
bool HasAKeyOfItsOwn(const QWidget *control)
{
    return control->objectName() == QLatin1String("dialogClose") ||
           control->objectName().startsWith(QLatin1String("qt_dockwidget_"));
}

void CheckReached(QWidget *window, bool isForward, QStringList *problems)
{
    const QList<QWidget *> stops = TabStops::Walk(window, isForward);
    foreach (QWidget *control, TabStops::Controls(window)) {
        if (!stops.contains(control) && !HasAKeyOfItsOwn(control)) {
            problems->append(TabStops::Named(control) + QLatin1String(" is not reached by Tab"));
        }
    }
    foreach (QWidget *stop, stops) {
        if (stop->accessibleName().isEmpty() && InterfaceOf(stop)->text(QAccessible::Name).isEmpty() &&
            !IsNamed(InterfaceOf(stop))) {
            problems->append(TabStops::Named(stop) + QLatin1String(" has the focus and no name"));
        }
    }
}

QStringList Problems(QWidget *window)
{
    QStringList problems;
    ActivateWindow(window);
    CheckBranch(InterfaceOf(window), 0, &problems);
    foreach (QWidget *widget, window->findChildren<QWidget *>()) {
        if (widget->window() != window || !widget->isVisible()) {
            continue;
        }
        if (const QLabel *label = qobject_cast<const QLabel *>(widget)) {
            CheckBuddy(label, &problems);
        }
    }
    foreach (QWidget *control, TabStops::Controls(window)) {
        CheckState(control, &problems);
        if (InterfaceOf(control)->role() != RoleOf(control)) {
            problems.append(Described(InterfaceOf(control)) + QLatin1String(" has another role"));
        }
    }
    if (!qobject_cast<QMenu *>(window)) {
        CheckReached(window, true, &problems);
        CheckReached(window, false, &problems);
    }
    return problems;
}

} // namespace

/** What screen readers are told of every screen, and whether the keyboard gets everywhere on it. */
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everythingIsNamedAndReached_data();
    void everythingIsNamedAndReached();
    void rowsAreCalledByTheirNetworks_data();
    void rowsAreCalledByTheirNetworks();
    void listOfThePageIsNamedInTheLanguage();
    void chosenRowIsTold();
    void rowIsChosenByAScreenReader();
    void rowUnderAPointIsFound();
    void labelsNameTheFieldsOfTheNewDialog_data();
    void labelsNameTheFieldsOfTheNewDialog();
    void hiddenFieldsAreTold();
    void menuItemsTellTheirState();

private:
    Screens m_screens;
};

void TestAccessibility::initTestCase()
{
    // As where a screen reader runs: interfaces are made as soon as there is something to tell.
    QAccessible::setActive(true);
}

void TestAccessibility::everythingIsNamedAndReached_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("screen");
    foreach (const QString &language, QStringList() << QLatin1String("en") << QLatin1String("ar")) {
        foreach (const QString &screen, Screens::Names()) {
            Row((language + QLatin1String(", ") + screen).toLatin1().constData(), language, screen);
        }
    }
}

void TestAccessibility::everythingIsNamedAndReached()
{
    QFETCH(QString, language);
    QFETCH(QString, screen);
    QStringList problems;
    m_screens.Show(screen, language, [&problems](QWidget *window) { problems = Problems(window); });
    QVERIFY2(problems.isEmpty(), problems.join(QLatin1String("\n    ")).toUtf8().constData());
}

void TestAccessibility::rowsAreCalledByTheirNetworks_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("first");
    Row("priority page", "settings, priority page", "priorityTable", 0, "Home");
    Row("add dialog", "add dialog", "rememberTable", 0, "Mobile broadband");
    Row("import dialog", "import dialog", "importList", 1, "Office");
}

void TestAccessibility::rowsAreCalledByTheirNetworks()
{
    QFETCH(QString, screen);
    QFETCH(QString, table);
    QFETCH(int, column);
    QFETCH(QString, first);
    QString name;
    m_screens.Show(screen, QLatin1String("en"), [&name, table, column](QWidget *window) {
        QTableWidget *widget = window->findChild<QTableWidget *>(table);
        Interface *cell = InterfaceOf(widget)->child(widget->columnCount() + 1 + column + 1);
        name = cell->text(QAccessible::Name);
    });
    QCOMPARE(name, first);
}

void TestAccessibility::listOfThePageIsNamedInTheLanguage()
{
    QStringList names;
    foreach (const QString &language, QStringList() << "en"
                                                    << "ar") {
        m_screens.Show("settings, priority page", language, [&names](QWidget *window) {
            names.append(InterfaceOf(window->findChild<QWidget *>("priorityTable"))->text(QAccessible::Name));
        });
    }
    QCOMPARE(names, QStringList() << "Network priority" << QString::fromUtf8("أولوية الشبكات"));
}

void TestAccessibility::chosenRowIsTold()
{
    QStringList chosen;
    QString focused;
    m_screens.Show(QLatin1String("settings, priority page"), QLatin1String("en"),
                   [&chosen, &focused](QWidget *window) {
                       ActivateWindow(window);
                       QTableWidget *table = window->findChild<QTableWidget *>("priorityTable");
                       table->setFocus();
                       Interface *part = InterfaceOf(table);
                       for (int row = 0; row < table->rowCount(); ++row) {
                           Interface *cell = part->child(2 * (row + 1) + 1);
                           const QAccessible::State state = cell->state();
                           if (state.selectable && (state.selected || state.focused)) {
                               chosen.append(cell->text(QAccessible::Name) +
                                             QLatin1String(state.selected ? " selected" : "") +
                                             QLatin1String(state.focused ? " focused" : ""));
                           }
                       }
                       focused = part->focusChild()->text(QAccessible::Name);
                   });
    QCOMPARE(chosen, QStringList("Office selected focused"));
    QCOMPARE(focused, QString("Office"));
}

void TestAccessibility::rowIsChosenByAScreenReader()
{
    bool isChosen = false;
    bool canBeMoved = false;
    m_screens.Show(QLatin1String("settings, priority page"), QLatin1String("en"),
                   [&isChosen, &canBeMoved](QWidget *window) {
                       QTableWidget *table = window->findChild<QTableWidget *>("priorityTable");
                       QAccessibleActionInterface *row = InterfaceOf(table)->child(3)->actionInterface();
                       row->doAction(row->actionNames().first());
                       isChosen = table->currentRow() == 0;
                       canBeMoved = !window->findChild<QPushButton *>("upButton")->isEnabled() &&
                                    window->findChild<QPushButton *>("downButton")->isEnabled();
                   });
    QVERIFY(isChosen);
    QVERIFY(canBeMoved);
}

void TestAccessibility::rowUnderAPointIsFound()
{
    QString name;
    m_screens.Show(QLatin1String("settings, priority page"), QLatin1String("en"), [&name](QWidget *window) {
        QTableWidget *table = window->findChild<QTableWidget *>("priorityTable");
        const QPoint place = table->viewport()->mapToGlobal(table->cellWidget(2, 0)->geometry().center());
        name = InterfaceOf(table)->childAt(place.x(), place.y())->text(QAccessible::Name);
    });
    QCOMPARE(name, QString::fromUtf8("Café"));
}

void TestAccessibility::labelsNameTheFieldsOfTheNewDialog_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("field");
    Row("name", "networkNameLabel", "networkNameBox");
    Row("key", "keyLabel", "keyEdit");
    Row("key again", "confirmKeyLabel", "confirmKeyEdit");
    Row("security", "authenticationLabel", "authenticationBox");
    Row("encryption", "encryptionLabel", "encryptionBox");
    Row("key index", "keyIndexLabel", "keyIndexBox");
    Row("EAP type", "eapLabel", "eapBox");
}

void TestAccessibility::labelsNameTheFieldsOfTheNewDialog()
{
    QFETCH(QString, label);
    QFETCH(QString, field);
    QObject *related = nullptr;
    QObject *expected = nullptr;
    m_screens.Show(QLatin1String("new dialog, open"), QLatin1String("en"),
                   [&related, &expected, label, field](QWidget *window) {
                       expected = window->findChild<QLabel *>(label);
                       const auto relations =
                           InterfaceOf(window->findChild<QWidget *>(field))->relations(QAccessible::Label);
                       related = relations.isEmpty() ? nullptr : relations.first().first->object();
                   });
    QVERIFY(expected);
    QCOMPARE(related, expected);
}

void TestAccessibility::hiddenFieldsAreTold()
{
    QList<bool> told;
    m_screens.Show(QLatin1String("new dialog, WPA(EAP)"), QLatin1String("en"), [&told](QWidget *window) {
        told << InterfaceOf(window->findChild<QWidget *>("keyIndexBox"))->state().invisible
             << InterfaceOf(window->findChild<QWidget *>("eapBox"))->state().invisible
             << InterfaceOf(window->findChild<QWidget *>("keyEdit"))->state().disabled
             << InterfaceOf(window->findChild<QWidget *>("keyEdit"))->state().focusable;
    });
    QCOMPARE(told, QList<bool>() << true << false << true << false);
}

void TestAccessibility::menuItemsTellTheirState()
{
    QStringList told;
    m_screens.Show(QLatin1String("Edit menu"), QLatin1String("en"), [&told](QWidget *menu) {
        for (int i = 0; i < InterfaceOf(menu)->childCount(); ++i) {
            Interface *item = InterfaceOf(menu)->child(i);
            if (item->role() == QAccessible::MenuItem) {
                told.append(item->text(QAccessible::Name) +
                            QLatin1String(item->state().disabled ? " off" : " on"));
            }
        }
    });
    QCOMPARE(
        told.join(", "),
        QString::fromUtf8("Undo off, Redo off, Earlier lists… on, Import list… on, "
                          "Export list… on, Move up off, Move down off, Move to top off, Move to end off, "
                          "Move to place… off, "
                          "Remove from list off, Add to list off, Details… off, Forget network… off, "
                          "Find a network off, Settings… on"));
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
