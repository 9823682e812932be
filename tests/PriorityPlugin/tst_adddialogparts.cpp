#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>
#include <qaddprioritywidget.h>
#include <qprioritywidget.h>

#include <QCheckBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

#include <algorithm>
#include <ctime>

/** The add dialog's operations that have no way in from outside, called directly. */
class tst_AddDialogParts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void metaObject();
    void nameIsNotListedYet();
    void choosingFromManyIsLinear();
    void nameIsTakenAlready();
    void candidatesAddUp();
    void nullListIsIgnored();
    void nullPageIsIgnored();
    void okWithoutPageOnlyCloses();
    void allRowsComeBeforeTheFirstCell();
    void tableWithoutItsWidgets();
    void releaseDeletesNothing();
    void releasedDialogSendsNothing();
    void releasedTableIsNotRead();
    void releasedPageGetsNothing();
    void releasedListHidesNothing();
    void frameWithoutBody();
    void bodyWithoutFrame();
    void closingTheBodyClosesTheFrame();
    void closingTheFrameSendsNothing();

private:
    QList<RememberedList> Remembered(const QStringList &names);
    QAddPriorityWidget *Body(QAddPriorityWidgetEx &frame) { return frame.findChild<QAddPriorityWidget *>(); }

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QPriorityWidget> m_page;
    FakeWLAN m_wlan;
    FakeContainer m_container;
};

void tst_AddDialogParts::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &m_wlan);
    StandInHost::container = &m_container;
    m_wlan.remembered = Remembered(QStringList() << "A"
                                                 << "B");
    m_page.reset(new QPriorityWidget);
}

void tst_AddDialogParts::cleanup()
{
    m_page.reset();
    StandInHost::container = nullptr;
    m_directory.reset();
}

QList<RememberedList> tst_AddDialogParts::Remembered(const QStringList &names)
{
    QList<RememberedList> list;
    for (int i = 0; i < names.size(); ++i) {
        RememberedList entry;
        entry.name = names.at(i);
        entry.type = "1";
        list << entry;
    }
    return list;
}

void tst_AddDialogParts::metaObject()
{
    const QMetaObject &meta = QAddPriorityWidget::staticMetaObject;
    QCOMPARE(meta.className(), "QAddPriorityWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.indexOfSlot("OnOK()"), meta.methodOffset());
    QCOMPARE(meta.indexOfSlot("OnCanel()"), meta.methodOffset() + 1);
    const QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    QCOMPARE(frame.metaObject()->className(), "QDialog");
}

void tst_AddDialogParts::nameIsNotListedYet()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    QVERIFY(body.IsRemeberPriority("A"));
    QList<PriorityList> list;
    body.SetRememberList(&list);
    QVERIFY(body.IsRemeberPriority("A"));
    list << Entry("A", "2") << Entry("");
    QVERIFY(!body.IsRemeberPriority("A"));
    QVERIFY(!body.IsRemeberPriority(""));
    QVERIFY(body.IsRemeberPriority("a"));
    QVERIFY(body.IsRemeberPriority("A "));
    list << Entry("B");
    QVERIFY(!body.IsRemeberPriority("B"));
    list.removeFirst();
    QVERIFY(body.IsRemeberPriority("A"));
}

/** The best of three, in the processor's time, of choosing what to offer of count networks, every other
 * listed. */
static std::clock_t ChoosingTime(int count)
{
    QList<RememberedList> remembered;
    QList<PriorityList> listed;
    for (int i = 0; i < count; ++i) {
        RememberedList network;
        network.name = QString("network %1").arg(i);
        network.type = "1";
        remembered << network;
        if (i % 2 == 0) {
            listed << Entry(network.name);
        }
    }
    std::clock_t best = 0;
    for (int round = 0; round < 3; ++round) {
        QAddPriorityWidget body(nullptr, Qt::WindowFlags());
        body.SetRememberList(&listed);
        const std::clock_t begin = std::clock();
        body.CheckRememberList(&remembered);
        body.SetTabItem();
        const std::clock_t elapsed = std::clock() - begin;
        best = round == 0 ? elapsed : std::min(best, elapsed);
    }
    return best;
}

void tst_AddDialogParts::choosingFromManyIsLinear()
{
    const double growth = double(ChoosingTime(16000)) / double(ChoosingTime(2000));
    qDebug("eight times the networks take %.1f times the time", growth);
    // Linear is 8, and some more where memory is slow; quadratic 64.
    QVERIFY2(growth < 24, qPrintable(QString::number(growth)));
}

void tst_AddDialogParts::nameIsTakenAlready()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    QVERIFY(!body.IsRepeatNetworkName("A"));
    const QList<RememberedList> list = Remembered(QStringList("A"));
    body.CheckRememberList(&list);
    QVERIFY(body.IsRepeatNetworkName("A"));
    QVERIFY(!body.IsRepeatNetworkName("a"));
    QVERIFY(!body.IsRepeatNetworkName(""));
}

void tst_AddDialogParts::candidatesAddUp()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    const QList<RememberedList> first = Remembered(QStringList("A"));
    const QList<RememberedList> second = Remembered(QStringList("B"));
    body.CheckRememberList(&first);
    body.CheckRememberList(&second);
    QVERIFY(body.IsRepeatNetworkName("A"));
    QVERIFY(body.IsRepeatNetworkName("B"));
}

void tst_AddDialogParts::nullListIsIgnored()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    QList<PriorityList> list;
    list << Entry("A");
    body.SetRememberList(&list);
    body.SetRememberList(nullptr);
    QVERIFY(!body.IsRemeberPriority("A"));
}

void tst_AddDialogParts::nullPageIsIgnored()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.SetMsgParnet(m_page.data());
    frame.SetMsgParnet(nullptr);
    frame.Init();
    frame.findChild<QCheckBox *>()->setChecked(true);
    Body(frame)->OnOK();
    QList<PriorityList> list;
    m_page->GetPriority(&list);
    QCOMPARE(AsTexts(list), QStringList("A/1"));
}

void tst_AddDialogParts::okWithoutPageOnlyCloses()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.Init();
    frame.show();
    frame.findChild<QCheckBox *>()->setChecked(true);
    TraceCapture trace;
    Body(frame)->OnOK();
    QVERIFY(!frame.isVisible());
    QCOMPARE(trace.Lines(), QStringList());
    QVERIFY(m_directory->Read("Priority.xml").isNull());
}

void tst_AddDialogParts::allRowsComeBeforeTheFirstCell()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    body.CreateLayoput();
    body.CreateAllWidget();
    body.CreateAllButton();
    QStringList names;
    for (int i = 0; i < 50; ++i) {
        names << QString("N%1").arg(i);
    }
    const QList<RememberedList> list = Remembered(names);
    body.CheckRememberList(&list);
    QTableWidget *table = body.findChild<QTableWidget *>("rememberTable");
    QSignalSpy inserted(table->model(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    body.SetRememberedList();
    QCOMPARE(table->rowCount(), 50);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(table->cellWidget(49, 0)->accessibleName(), QString("N49"));
}

void tst_AddDialogParts::tableWithoutItsWidgets()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    const QList<RememberedList> list = Remembered(QStringList("A"));
    body.CheckRememberList(&list);
    body.CreateAllWidget();
    body.CreateAllButton();
    body.SetRememberedList();
    body.SendPriorityList();
    QVERIFY(body.children().isEmpty());
}

void tst_AddDialogParts::releaseDeletesNothing()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.Init();
    const int before = frame.findChildren<QObject *>().size();
    frame.release();
    frame.release();
    QCOMPARE(frame.findChildren<QObject *>().size(), before);
    QCOMPARE(frame.findChild<QTableWidget *>()->rowCount(), 2);
}

void tst_AddDialogParts::releasedDialogSendsNothing()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.SetMsgParnet(m_page.data());
    frame.Init();
    frame.show();
    frame.findChild<QCheckBox *>()->setChecked(true);
    frame.release();
    TraceCapture trace;
    frame.findChild<QPushButton *>("addOkButton")->click();
    QVERIFY(!frame.isVisible());
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_AddDialogParts::releasedTableIsNotRead()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.Init();
    frame.findChild<QCheckBox *>()->setChecked(true);
    frame.release();
    frame.SetMsgParnet(m_page.data());
    TraceCapture trace;
    Body(frame)->SendPriorityList();
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_AddDialogParts::releasedPageGetsNothing()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    body.SetMsgParnet(m_page.data());
    body.release();
    body.CreateLayoput();
    body.CreateAllWidget();
    body.CreateAllButton();
    TraceCapture trace;
    body.SendPriorityList();
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_AddDialogParts::releasedListHidesNothing()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    QList<PriorityList> list;
    list << Entry("A");
    body.SetRememberList(&list);
    body.release();
    QVERIFY(body.IsRemeberPriority("A"));
}

void tst_AddDialogParts::frameWithoutBody()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    delete Body(frame);
    QList<PriorityList> list;
    frame.SetRememberList(&list);
    frame.SetMsgParnet(m_page.data());
    frame.Init();
    frame.release();
    QVERIFY(!frame.findChild<QTableWidget *>());
}

void tst_AddDialogParts::bodyWithoutFrame()
{
    QAddPriorityWidget body(nullptr, Qt::WindowFlags());
    body.Init();
    body.show();
    body.OnCanel();
    QVERIFY(!body.isVisible());
}

void tst_AddDialogParts::closingTheBodyClosesTheFrame()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.Init();
    frame.show();
    QVERIFY(Body(frame)->close());
    QVERIFY(!frame.isVisible());
}

void tst_AddDialogParts::closingTheFrameSendsNothing()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.SetMsgParnet(m_page.data());
    frame.Init();
    frame.show();
    frame.findChild<QCheckBox *>()->setChecked(true);
    TraceCapture trace;
    frame.close();
    QVERIFY(!frame.isVisible());
    QCOMPARE(trace.Lines(), QStringList());
}

QTEST_MAIN(tst_AddDialogParts)
#include "tst_adddialogparts.moc"
