#include <LoadedPlugin.h>
#include <PriorityListItem.h>
#include <PriorityXMLParser.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <qprioritywidget.h>

#include <QSet>
#include <QTableWidget>
#include <QtTest>

static const int rowCount = 200;

static void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

/** Which widgets in a table receive an event. */
class Receivers : public QObject
{
public:
    Receivers(QTableWidget *table, QEvent::Type type) : m_table(table), m_type(type)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == m_type && watched->isWidgetType() && m_table->viewport() != watched &&
            m_table->viewport()->isAncestorOf(static_cast<QWidget *>(watched))) {
            m_receivers.insert(watched);
        }
        return false;
    }

    int Count() const { return m_receivers.size(); }
    bool Has(QObject *object) const { return m_receivers.contains(object); }

private:
    QTableWidget *m_table;
    QEvent::Type m_type;
    QSet<QObject *> m_receivers;
};

/** Some generations of Qt paint when a timer runs out, not with the next events. */
static void WaitForPainting(const Receivers &painted, QWidget *widget)
{
    for (int i = 0; i < 300 && !painted.Has(widget); ++i) {
        QTest::qWait(10);
    }
}

class tst_Rebuild : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void rowsStandInTheirPlacesAtOnce();
    void noRowAsksForItsOwnPainting_data();
    void noRowAsksForItsOwnPainting();
    void rowsInViewArePaintedAnewAndNoOthers();
    void rowsAskForTheirPaintingAgainLater();
    void movedRowStaysInView_data();
    void movedRowStaysInView();

private:
    PriorityListItem *Row(int row) const
    {
        return static_cast<PriorityListItem *>(m_table->cellWidget(row, 0));
    }
    bool IsPartlyInView(QWidget *widget) const
    {
        const QRect place(widget->mapTo(m_table->viewport(), QPoint()), widget->size());
        return m_table->viewport()->rect().intersects(place);
    }
    bool IsInView(int row) const
    {
        return m_table->viewport()->rect().contains(Row(row)->geometry().center());
    }

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QWidget> m_window;
    QPriorityWidget *m_page;
    QTableWidget *m_table;
};

void tst_Rebuild::initTestCase()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    QList<PriorityList> list;
    for (int i = 0; i < rowCount; ++i) {
        list << Entry(QString("network %1").arg(i));
    }
    qInstallMessageHandler(Discard);
    PriorityXMLParser::GetInstance()->SavePriorityList(list);
    m_page = QPriorityWidget::GetInstance();
    m_table = m_page->findChild<QTableWidget *>("priorityTable");
    m_window.reset(new QWidget);
    m_window->resize(500, 400);
    m_window->show();
}

void tst_Rebuild::init()
{
    QRect rect(0, 0, 420, 374);
    m_page->ShowSettingDialog(m_window.data(), rect);
    QCoreApplication::processEvents();
    QCOMPARE(m_table->rowCount(), rowCount);
}

void tst_Rebuild::cleanupTestCase()
{
    m_page->setParent(nullptr);
    QPriorityWidget::Destroy();
    qInstallMessageHandler(nullptr);
}

void tst_Rebuild::rowsStandInTheirPlacesAtOnce()
{
    m_page->UpdataTabItem();
    for (int row = 0; row < rowCount; ++row) {
        QCOMPARE(Row(row)->pos(), QPoint(0, m_table->rowViewportPosition(row)));
    }
}

void tst_Rebuild::noRowAsksForItsOwnPainting_data()
{
    QTest::addColumn<bool>("shown");
    ::Row("rebuilt", false);
    ::Row("shown anew", true);
}

void tst_Rebuild::noRowAsksForItsOwnPainting()
{
    QFETCH(bool, shown);
    Receivers asked(m_table, QEvent::UpdateLater);
    if (shown) {
        QRect rect(0, 0, 420, 374);
        m_page->setParent(nullptr);
        m_page->ShowSettingDialog(m_window.data(), rect);
    } else {
        m_page->UpdataTabItem();
    }
    QCoreApplication::processEvents();
    QCOMPARE(asked.Count(), 0);
}

void tst_Rebuild::rowsInViewArePaintedAnewAndNoOthers()
{
    m_page->UpdataTabItem();
    Receivers painted(m_table, QEvent::Paint);
    WaitForPainting(painted, Row(m_table->rowAt(0))->GetLabelName());
    for (int row = 0; row < rowCount; ++row) {
        QCOMPARE(painted.Has(Row(row)->GetLabelName()), IsPartlyInView(Row(row)->GetLabelName()));
        QCOMPARE(painted.Has(Row(row)->GetLabelIcon()), IsPartlyInView(Row(row)->GetLabelIcon()));
    }
}

void tst_Rebuild::rowsAskForTheirPaintingAgainLater()
{
    m_page->UpdataTabItem();
    QCoreApplication::processEvents();
    QLabel *name = Row(0)->GetLabelName();
    QVERIFY(name->isVisible());
    Receivers painted(m_table, QEvent::Paint);
    name->hide();
    name->show();
    WaitForPainting(painted, name);
    QVERIFY(painted.Has(name));
    QVERIFY(!name->testAttribute(Qt::WA_DontShowOnScreen));
    QVERIFY(!Row(0)->testAttribute(Qt::WA_DontShowOnScreen));
}

void tst_Rebuild::movedRowStaysInView_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("moved");
    ::Row("down", int(Qt::Key_Down), 151);
    ::Row("up", int(Qt::Key_Up), 149);
}

void tst_Rebuild::movedRowStaysInView()
{
    QFETCH(int, key);
    QFETCH(int, moved);
    m_table->setFocus();
    m_table->setCurrentCell(150, 0);
    m_page->OnCellClicked(150, 0);
    const QString name = Row(150)->GetLabelName()->text();
    QTest::keyClick(m_table, Qt::Key(key));
    QCoreApplication::processEvents();
    QCOMPARE(Row(moved)->GetLabelName()->text(), name);
    QCOMPARE(m_table->currentRow(), moved);
    QVERIFY(IsInView(moved));
    QCOMPARE(m_window->focusWidget(), static_cast<QWidget *>(m_table));
}

QTEST_MAIN(tst_Rebuild)
#include "tst_rebuild.moc"
