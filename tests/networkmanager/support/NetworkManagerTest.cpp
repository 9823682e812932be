#include "NetworkManagerTest.h"

#include "LoadedWLAN.h"

#include <StandInHost.h>

#include <QtTest>

void NetworkManagerTest::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
}

void NetworkManagerTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_networkManager.reset(new FakeNetworkManager);
    QVERIFY(m_networkManager->Appear());
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
}

void NetworkManagerTest::StartPluginAgain()
{
    LoadedWLAN::Root()->OnDestroy();
    QVERIFY(LoadedWLAN::Root()->Init());
    Fake().Settle();
}

void NetworkManagerTest::StartBusAgain()
{
    m_networkManager.reset();
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
    m_networkManager.reset(new FakeNetworkManager);
}

void NetworkManagerTest::cleanup()
{
    LoadedWLAN::Root()->OnDestroy();
    m_networkManager.reset();
    StandInHost::Reset(QString());
}
