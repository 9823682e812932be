#include <DragTableWidget.h>
#include <LoadedPlugin.h>
#include <PriorityListItem.h>
#include <Row.h>
#include <StandInHost.h>
#include <TraceCapture.h>

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QtTest>

class tst_CellWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void unfilledRowHasNoChildren();
    void filledRow();
    void rowWithoutIconFileShowsTheName();
    void longNameIsElidedWithToolTip();
    void hostGetsTheWholeOfALongName();
    void toolTipIsNoLongerThanCanBeRead();
    void shortNameHasNoToolTip();
    void nameIsNoMarkup();
    void toolTipIsNoMarkup();
    void positions_data();
    void positions();
    void positionsFollowTheLanguageWhenFilled();
    void alignmentAndDirectionStay();
    void rowTraceLines();
    void rememberRowWritesNoTraceLines();
    void rememberRow();
    void rememberPositions_data();
    void rememberPositions();
    void deletingARowDeletesItsChildren();
    void tableNeitherDragsNorAcceptsDrops();

private:
    QString m_wifi;
};

void tst_CellWidgets::init()
{
    StandInHost::Reset("/nowhere");
    m_wifi = StandInHost::libraryPath + "/plugins/PriorityPlugin/wifi.png";
}

void tst_CellWidgets::unfilledRowHasNoChildren()
{
    PriorityListItem item;
    QVERIFY(!item.GetLabelIcon());
    QVERIFY(!item.GetLabelName());
    QVERIFY(!item.parent());
    QString language("ar");
    item.SetLanguage(language);
    RememberListItem remember;
    QVERIFY(!remember.GetChechItem());
    remember.SetLanguage(language);
    QVERIFY(item.children().isEmpty());
    QVERIFY(remember.children().isEmpty());
}

void tst_CellWidgets::filledRow()
{
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    QCOMPARE(item.GetLabelIcon()->parentWidget(), static_cast<QWidget *>(&item));
    QCOMPARE(Picture(item.GetLabelIcon()).size(), QSize(20, 24));
    QCOMPARE(item.GetLabelName()->text(), QString("Home"));
    QCOMPARE(item.GetLabelName()->minimumWidth(), 200);
    QCOMPARE(item.GetLabelName()->maximumWidth(), 200);
    QCOMPARE(int(item.GetLabelName()->alignment()), int(Qt::AlignLeft));
    QCOMPARE(item.accessibleName(), QString("Home"));
    QCOMPARE(StandInHost::elidedTexts, QList<QString>() << "Home");
    QCOMPARE(StandInHost::elideModes, QList<int>() << 1);
    QVERIFY(!item.layout());
}

void tst_CellWidgets::rowWithoutIconFileShowsTheName()
{
    PriorityListItem item;
    item.UpdateLabelContents("/no/such/icon.png", "Home");
    QVERIFY(Picture(item.GetLabelIcon()).isNull());
    QCOMPARE(item.GetLabelIcon()->pos(), QPoint(3, 3));
    QCOMPARE(item.GetLabelName()->text(), QString("Home"));
    QCOMPARE(item.GetLabelName()->pos(), QPoint(35, 9));
}

void tst_CellWidgets::longNameIsElidedWithToolTip()
{
    const QString name = "The network of the upper floor of the main building";
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, name);
    const QString shown = item.GetLabelName()->text();
    QVERIFY(shown.endsWith(QChar(0x2026)));
    QVERIFY(shown.size() > 3);
    QVERIFY(name.startsWith(shown.left(shown.size() - 1)));
    QCOMPARE(item.toolTip(), name);
    QCOMPARE(item.accessibleName(), name);

    RememberListItem remember;
    remember.UpdateLabelContents(m_wifi, name);
    QCOMPARE(remember.toolTip(), name);
    QCOMPARE(remember.accessibleName(), name);
}

void tst_CellWidgets::hostGetsTheWholeOfALongName()
{
    const QString name(5000, QChar('n'));
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, name);
    RememberListItem remember;
    remember.UpdateLabelContents(m_wifi, name);
    QCOMPARE(StandInHost::elidedTexts, QList<QString>() << name << name);
    QCOMPARE(item.accessibleName(), name);
}

void tst_CellWidgets::toolTipIsNoLongerThanCanBeRead()
{
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, QString(5000, QChar('n')));
    QCOMPARE(item.toolTip(), QString(4096, QChar('n')));
}

void tst_CellWidgets::shortNameHasNoToolTip()
{
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    QVERIFY(item.toolTip().isEmpty());
    RememberListItem remember;
    remember.UpdateLabelContents(m_wifi, "Home");
    QVERIFY(remember.toolTip().isEmpty());
}

void tst_CellWidgets::nameIsNoMarkup()
{
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, "<b>x</b>");
    QCOMPARE(item.GetLabelName()->text(), QString("<b>x</b>"));
    QCOMPARE(int(item.GetLabelName()->textFormat()), int(Qt::PlainText));
}

void tst_CellWidgets::toolTipIsNoMarkup()
{
    const QString name = "<b>" + QString(100, QChar('x')) + "</b>";
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, name);
    QCOMPARE(item.toolTip(), "<p>&lt;b&gt;" + QString(100, QChar('x')) + "&lt;/b&gt;</p>");
}

void tst_CellWidgets::positions_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("mirrored");
    Row("en", "en", false);
    Row("ar", "ar", true);
    Row("he", "he", true);
    Row("upper case", "AR", false);
    Row("region", "ar_EG", false);
    Row("he with region", "he-IL", false);
    Row("blank", " he", false);
    Row("none", "", false);
}

void tst_CellWidgets::positions()
{
    QFETCH(QString, language);
    QFETCH(bool, mirrored);
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    QString other = mirrored ? "en" : "he";
    item.SetLanguage(other);
    item.SetLanguage(language);
    QCOMPARE(item.GetLabelIcon()->pos(), mirrored ? QPoint(270, 3) : QPoint(3, 3));
    QCOMPARE(item.GetLabelName()->pos(), mirrored ? QPoint(63, 9) : QPoint(35, 9));
}

void tst_CellWidgets::positionsFollowTheLanguageWhenFilled()
{
    StandInHost::language = "he";
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    QCOMPARE(item.GetLabelIcon()->pos(), QPoint(270, 3));
    RememberListItem remember;
    remember.UpdateLabelContents(m_wifi, "Home");
    QCOMPARE(remember.GetChechItem()->pos(), QPoint(270, 8));
}

void tst_CellWidgets::alignmentAndDirectionStay()
{
    StandInHost::language = "ar";
    PriorityListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    QCOMPARE(int(item.GetLabelName()->alignment()), int(Qt::AlignLeft));
    QVERIFY(!item.testAttribute(Qt::WA_SetLayoutDirection));
    QVERIFY(!item.GetLabelName()->testAttribute(Qt::WA_SetLayoutDirection));
}

void tst_CellWidgets::rowTraceLines()
{
    const QString source = "TIME: ../../src/PriorityPlugin/PriorityListItem.cpp: ";
    TraceCapture trace;
    {
        PriorityListItem item;
        item.UpdateLabelContents("/icon.png", QString::fromUtf8("Café"));
    }
    QCOMPARE(trace.Normalised(),
             QStringList() << source + "PriorityListItem: Entered " << source + "PriorityListItem: Exit"
                           << source + QString::fromUtf8(
                                           "UpdateLabelContents: Entered ,strIcon:/icon.png,strName:Café")
                           << source + "UpdateLabelContents: Exit" << source + "~PriorityListItem: Entered "
                           << source + "~PriorityListItem: Exit");
}

void tst_CellWidgets::rememberRowWritesNoTraceLines()
{
    TraceCapture trace;
    {
        RememberListItem item;
        item.UpdateLabelContents(m_wifi, "Home");
        item.SetLanguage("ar");
    }
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_CellWidgets::rememberRow()
{
    RememberListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    const QList<QLabel *> labels = item.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 2);
    QVERIFY(item.GetChechItem()->text().isEmpty());
    QVERIFY(!item.GetChechItem()->isChecked());
    QCOMPARE(Picture(labels.at(0)).size(), QSize(20, 24));
    QCOMPARE(labels.at(1)->text(), QString("Home"));
    QCOMPARE(labels.at(1)->minimumWidth(), 200);
    QCOMPARE(int(labels.at(1)->alignment()), int(Qt::AlignLeft));
    QCOMPARE(StandInHost::elideModes, QList<int>() << 1);
    QCOMPARE(item.accessibleName(), QString("Home"));
    QCOMPARE(item.GetChechItem()->accessibleName(), QString("Home"));
}

void tst_CellWidgets::rememberPositions_data()
{
    positions_data();
}

void tst_CellWidgets::rememberPositions()
{
    QFETCH(QString, language);
    QFETCH(bool, mirrored);
    RememberListItem item;
    item.UpdateLabelContents(m_wifi, "Home");
    item.SetLanguage(mirrored ? "en" : "he");
    item.SetLanguage(language);
    const QList<QLabel *> labels = item.findChildren<QLabel *>();
    QCOMPARE(item.GetChechItem()->pos(), mirrored ? QPoint(270, 8) : QPoint(8, 8));
    QCOMPARE(labels.at(0)->pos(), mirrored ? QPoint(250, 3) : QPoint(25, 3));
    QCOMPARE(labels.at(1)->pos(), mirrored ? QPoint(45, 8) : QPoint(55, 8));
}

void tst_CellWidgets::deletingARowDeletesItsChildren()
{
    PriorityListItem *item = new PriorityListItem;
    item->UpdateLabelContents(m_wifi, "Home");
    const QPointer<QLabel> icon(item->GetLabelIcon());
    const QPointer<QLabel> name(item->GetLabelName());
    delete item;
    QVERIFY(!icon);
    QVERIFY(!name);
}

void tst_CellWidgets::tableNeitherDragsNorAcceptsDrops()
{
    QWidget parent;
    DragTableWidget table(&parent);
    QCOMPARE(table.parentWidget(), &parent);
    QVERIFY(!table.acceptDrops());
    QVERIFY(!table.dragEnabled());
    QCOMPARE(int(table.dragDropMode()), int(QAbstractItemView::NoDragDrop));
    QCOMPARE(QString(table.metaObject()->className()), QString("QTableWidget"));
}

QTEST_MAIN(tst_CellWidgets)
#include "tst_cellwidgets.moc"
