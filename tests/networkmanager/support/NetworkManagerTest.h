#ifndef NETWORKMANAGERTEST_H
#define NETWORKMANAGERTEST_H

#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <TemporaryDirectory.h>

#include <QObject>
#include <QScopedPointer>

/** The plug-in, initialised, over a fake NetworkManager that is new for each test function. */
class NetworkManagerTest : public QObject
{
    Q_OBJECT

protected:
    PrivateBus &Bus() { return m_bus; }
    FakeNetworkManager &Fake() { return *m_networkManager; }
    const TemporaryDirectory &Directory() const { return *m_directory; }

    /** The plug-in begins anew, with what NetworkManager answers now. */
    void StartPluginAgain();

    /** For a test that has taken the bus away: there is another, and a new fake that has not appeared on it.
     */
    void StartBusAgain();

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    PrivateBus m_bus;
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<FakeNetworkManager> m_networkManager;
};

#endif
