#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <qaddprioritywidget.h>
#include <qnewprioritywidget.h>
#include <qprioritywidget.h>

#include <QCheckBox>
#include <QComboBox>
#include <QTableWidget>
#include <QtTest>

/** The dialogs after the store's destruction. */
class tst_DialogsWithoutStore : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void onlyWifiIsOffered();
    void noNetworkIsFilteredOut();
    void nothingIsAdded();

private:
    TemporaryDirectory m_directory;
    FakeWLAN m_wlan;
    FakeContainer m_container;
};

void tst_DialogsWithoutStore::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
    m_container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &m_wlan);
    StandInHost::container = &m_container;
    QCOMPARE(PriorityXMLParser::GetInstance()->GetEnable3GValue(), 1);
    QList<PriorityList> stored;
    stored << Entry("N");
    PriorityXMLParser::GetInstance()->SavePriorityList(stored);
    PriorityXMLParser::Destory();
    m_wlan.Remember("M", "2");
    m_wlan.Remember("A", "1");
    WlanAvilableNetworkInfo network;
    network.networkName = "N";
    m_wlan.networks << network;
}

void tst_DialogsWithoutStore::cleanupTestCase()
{
    StandInHost::container = nullptr;
}

void tst_DialogsWithoutStore::onlyWifiIsOffered()
{
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.Init();
    const QTableWidget *table = frame.findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->cellWidget(0, 0)->accessibleName(), QString("A"));
}

void tst_DialogsWithoutStore::noNetworkIsFilteredOut()
{
    QNewPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.Init();
    const QComboBox *names = frame.findChild<QComboBox *>("networkNameBox");
    QCOMPARE(names->count(), 1);
    QCOMPARE(names->itemText(0), QString("N"));
}

void tst_DialogsWithoutStore::nothingIsAdded()
{
    const QByteArray before = m_directory.Read("Priority.xml");
    QPriorityWidget page;
    QAddPriorityWidgetEx frame(nullptr, Qt::WindowCloseButtonHint);
    frame.SetMsgParnet(&page);
    frame.Init();
    frame.show();
    frame.findChild<QCheckBox *>()->setChecked(true);
    QMetaObject::invokeMethod(frame.findChild<QAddPriorityWidget *>(), "OnOK");
    QVERIFY(!frame.isVisible());
    QCOMPARE(m_directory.Read("Priority.xml"), before);
    QCOMPARE(page.findChild<QTableWidget *>()->rowCount(), 0);
}

QTEST_MAIN(tst_DialogsWithoutStore)
#include "tst_dialogswithoutstore.moc"
