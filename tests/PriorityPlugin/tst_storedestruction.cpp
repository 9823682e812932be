#include <PriorityXMLParser.h>
#include <StandInHost.h>

#include <QtTest>

/** One lifetime of the store; the order of the functions is the order of events. */
class tst_StoreDestruction : public QObject
{
    Q_OBJECT

private slots:
    void destructionBeforeFirstUseLeavesTheStoreUsable();
    void thereIsOneStore();
    void afterDestructionThereIsNoStore();
};

void tst_StoreDestruction::destructionBeforeFirstUseLeavesTheStoreUsable()
{
    PriorityXMLParser::Destory();
    PriorityXMLParser::Destory();
    QVERIFY(PriorityXMLParser::GetInstance());
}

void tst_StoreDestruction::thereIsOneStore()
{
    QCOMPARE(PriorityXMLParser::GetInstance(), PriorityXMLParser::GetInstance());
}

void tst_StoreDestruction::afterDestructionThereIsNoStore()
{
    PriorityXMLParser::Destory();
    QVERIFY(!PriorityXMLParser::GetInstance());
    PriorityXMLParser::Destory();
    QVERIFY(!PriorityXMLParser::GetInstance());
}

QTEST_MAIN(tst_StoreDestruction)
#include "tst_storedestruction.moc"
