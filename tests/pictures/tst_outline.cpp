#include <Outline.h>
#include <OutlineComparison.h>
#include <Row.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QtTest>

namespace
{

/** A window with a label above a row of a field and two buttons, a table, and a panel placed by hand. */
class Window : public QWidget
{
public:
    Window()
        : label(new QLabel(QLatin1String("Name"))), field(new QLineEdit), first(new QPushButton("First")),
          second(new QPushButton("Second")), table(new QTableWidget(2, 1)), panel(new QWidget),
          placed(new QCheckBox("Placed", panel))
    {
        setObjectName("window");
        label->setObjectName("label");
        field->setObjectName("field");
        first->setObjectName("first");
        second->setObjectName("second");
        table->setObjectName("table");
        table->setItem(0, 0, new QTableWidgetItem("Home"));
        table->setItem(1, 0, new QTableWidgetItem("Office"));
        panel->setObjectName("priorityPage");
        panel->setFixedSize(200, 60);
        placed->setObjectName("placed");
        placed->setGeometry(10, 20, 100, 24);
        row = new QHBoxLayout;
        row->addWidget(field);
        row->addWidget(first);
        row->addWidget(second);
        column = new QVBoxLayout(this);
        column->addWidget(label);
        column->addLayout(row);
        column->addWidget(table);
        column->addWidget(panel);
        resize(500, 400);
        show();
    }

    QLabel *const label;
    QLineEdit *const field;
    QPushButton *const first;
    QPushButton *const second;
    QTableWidget *const table;
    QWidget *const panel;
    QCheckBox *const placed;
    QHBoxLayout *row;
    QVBoxLayout *column;
};

QString Shown(QWidget *window)
{
    QCoreApplication::processEvents();
    return Outline(window);
}

} // namespace

class OutlineTest : public QObject
{
    Q_OBJECT

private slots:
    void SameWindowIsNoDifference();
    void OtherFontIsNoDifference();
    void ChangeIsSeen_data();
    void ChangeIsSeen();
    void MirroredRowReadsFromTheOtherSide();
    void HiddenTextIsNotTold();
    void WhatCanBeScrolledIsTold();
    void QuestionHasNoSizes();
    void DifferenceShowsBothAndWhatIsAroundThem();
    void NumbersMayDifferWithinTheTolerance_data();
    void NumbersMayDifferWithinTheTolerance();
};

void OutlineTest::SameWindowIsNoDifference()
{
    Window window;
    Window same;
    QCOMPARE(OutlineComparison::Difference(Shown(&window), Shown(&same)), QString());
}

void OutlineTest::OtherFontIsNoDifference()
{
    Window window;
    const QString before = Shown(&window);
    QFont font = window.font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    window.setFont(font);
    const QString after = Shown(&window);
    QVERIFY(after != before);
    QCOMPARE(OutlineComparison::Difference(before, after), QString());
}

void OutlineTest::ChangeIsSeen_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("told");
    Row("button moved in its row", "moved", "first");
    Row("button moved to another row", "moved down", "second");
    Row("button shifted", "shifted", "first");
    Row("place fixed by hand, by a pixel", "pixel", "placed");
    Row("fixed size, by a pixel", "size", "priorityPage");
    Row("row missing", "row", "Office");
    Row("label missing", "label", "label");
    Row("text missing", "text", "label");
    Row("text at the other side", "side", "at the right");
    Row("disabled", "disabled", "second \"Second\" disabled");
    Row("selected", "selected", "\"Office\" at the left selected");
    Row("covering", "covering", "first and second cover each other");
    Row("sticking out", "sticking out", "placed sticks out");
    Row("mirrored", "mirrored", "from right to left");
}

void OutlineTest::ChangeIsSeen()
{
    QFETCH(QString, change);
    QFETCH(QString, told);
    Window window;
    const QString before = Shown(&window);
    const int shift =
        qMax(OutlineComparison::tolerance, window.first->x() / OutlineComparison::tolerancePart) + 5;
    if (change == "moved") {
        window.row->removeWidget(window.first);
        window.row->addWidget(window.first);
    } else if (change == "moved down") {
        window.column->addWidget(window.second);
    } else if (change == "shifted") {
        window.row->insertSpacing(1, shift);
        window.row->addSpacing(shift);
    } else if (change == "pixel") {
        window.placed->move(window.placed->pos() + QPoint(1, 0));
    } else if (change == "size") {
        window.panel->setFixedWidth(201);
    } else if (change == "row") {
        window.table->removeRow(1);
    } else if (change == "label") {
        window.label->hide();
    } else if (change == "text") {
        window.label->clear();
    } else if (change == "side") {
        window.label->setAlignment(Qt::AlignRight);
    } else if (change == "disabled") {
        window.second->setEnabled(false);
    } else if (change == "selected") {
        window.table->setCurrentCell(1, 0);
    } else if (change == "covering") {
        QCoreApplication::processEvents();
        window.first->move(window.second->pos());
    } else if (change == "sticking out") {
        window.placed->move(150, 20);
    } else {
        window.setLayoutDirection(Qt::RightToLeft);
    }
    const QString difference = OutlineComparison::Difference(before, Shown(&window));
    QVERIFY2(difference.contains(told), qPrintable(difference));
}

void OutlineTest::MirroredRowReadsFromTheOtherSide()
{
    Window window;
    window.setLayoutDirection(Qt::RightToLeft);
    const QString mirrored = Shown(&window);
    QVERIFY2(mirrored.indexOf("QPushButton second") < mirrored.indexOf("QPushButton first"),
             qPrintable(mirrored));
    QVERIFY(mirrored.indexOf("QPushButton first") < mirrored.indexOf("QLineEdit field"));
    QVERIFY(mirrored.contains("\"Name\" at the left"));
    QVERIFY(mirrored.contains("\"Home\" at the right"));
    window.row->setDirection(QBoxLayout::RightToLeft);
    QVERIFY(!OutlineComparison::Difference(mirrored, Shown(&window)).isEmpty());
}

void OutlineTest::HiddenTextIsNotTold()
{
    Window window;
    window.field->setEchoMode(QLineEdit::Password);
    window.field->setText("correct horse");
    const QString outline = Shown(&window);
    QVERIFY(!outline.contains("horse"));
    QVERIFY(outline.contains("13 hidden signs"));
}

void OutlineTest::WhatCanBeScrolledIsTold()
{
    QScrollArea area;
    area.setWidget(new QLabel("A long text"));
    area.resize(40, 40);
    area.show();
    const QString outline = Shown(&area);
    QVERIFY2(outline.contains("QLabel \"A long text\" at the left"), qPrintable(outline));
    QVERIFY(!outline.contains("sticks out"));
}

void OutlineTest::QuestionHasNoSizes()
{
    Window window;
    window.setObjectName("messageBox");
    const QString before = Shown(&window);
    QVERIFY2(!before.contains(" at ~"), qPrintable(before));
    window.resize(700, 600);
    QCOMPARE(Shown(&window), before);
    window.second->hide();
    QVERIFY(Shown(&window) != before);
}

void OutlineTest::DifferenceShowsBothAndWhatIsAroundThem()
{
    QCOMPARE(
        OutlineComparison::Difference("a\nb\nc\nd\ne at ~1\nf\ng\nh\n", "a\nb\nc\nd\nE at ~1\nf\ng\nh\n"),
        QString("  ...\n  c\n  d\n- e at ~1\n+ E at ~1\n  f\n  g"));
    QCOMPARE(OutlineComparison::Difference("a\nb\nc", "a\nc"), QString("  a\n- b\n  c"));
    QCOMPARE(OutlineComparison::Difference("a\nc", "a\nb\nc"), QString("  a\n+ b\n  c"));
}

void OutlineTest::NumbersMayDifferWithinTheTolerance_data()
{
    QTest::addColumn<QString>("approved");
    QTest::addColumn<QString>("found");
    QTest::addColumn<bool>("isSame");
    Row("near", "a at ~100", "a at ~120", true);
    Row("near, smaller", "a at ~0", "a at ~-20", true);
    Row("far", "a at ~100", "a at ~121", false);
    Row("near, large", "a at ~480", "a at ~440", true);
    Row("far, large", "a at ~480", "a at ~439", false);
    Row("fixed", "a at 100", "a at 101", false);
    Row("no longer fixed", "a at 100", "a at ~100", false);
    Row("no number", "a ~b", "a ~c", false);
    Row("one more", "a at ~100", "a at ~100 ~100", false);
}

void OutlineTest::NumbersMayDifferWithinTheTolerance()
{
    QFETCH(QString, approved);
    QFETCH(QString, found);
    QFETCH(bool, isSame);
    QCOMPARE(OutlineComparison::Difference(approved, found).isEmpty(), isSame);
}

QTEST_MAIN(OutlineTest)
#include "tst_outline.moc"
