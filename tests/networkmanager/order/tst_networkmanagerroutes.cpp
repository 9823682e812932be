#include "Namespace.h"
#include "NetworkManagerDaemon.h"
#include "PrivateBus.h"

#include <LivePicture.h>
#include <MetricKeeper.h>
#include <NetworkManagerClient.h>

#include <QCoreApplication>
#include <QtTest>

namespace
{

QString whyNoNamespace;

PriorityList Entry(const QString &name)
{
    PriorityList entry;
    entry.name = name;
    entry.type = "1";
    return entry;
}

} // namespace

/** The metrics that are set, over NetworkManager itself, with two virtual devices and their routes. */
class tst_networkmanagerroutes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void FirstInTheListCarriesTheTraffic();
    void ProfileIsNotChanged();
    void WhatAnotherProgramHasSetStays();
    void WhatWasSetIsGivenBack();

private:
    static QString Nmcli(const QString &words)
    {
        return NetworkManagerDaemon::Nmcli(words.split(' ', Qt::SkipEmptyParts));
    }
    /** As it is now, the virtual devices taken for Wi-Fi. */
    ConnectionPicture Picture();
    /** The name of the connection through which the traffic goes. */
    QString Traffic();
    /** Has the list take effect; waits for it. */
    void Apply(const QList<PriorityList> &list);

    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<NetworkManagerDaemon> m_daemon;
    QScopedPointer<CNetworkManagerClient> m_client;
    QScopedPointer<CLivePicture> m_picture;
    QScopedPointer<CMetricKeeper> m_keeper;
    QMap<QString, PriorityRecord> m_records;
};

void tst_networkmanagerroutes::initTestCase()
{
    if (!whyNoNamespace.isEmpty()) {
        QSKIP(qPrintable(whyNoNamespace));
    }
    m_bus.reset(new PrivateBus);
    QVERIFY2(m_bus->Start(), qPrintable(m_bus->WhyNot()));
    m_daemon.reset(new NetworkManagerDaemon(m_bus.data()));
    if (!m_daemon->Start("false", "interface-name:lo")) {
        QSKIP(qPrintable(m_daemon->WhyNot()));
    }
    for (const char *number : {"1", "2"}) {
        const QString name = QString("tap") + number;
        Nmcli(QString(
                  "connection add type tun mode tap con-name %1 ifname %1 autoconnect no ipv4.method manual "
                  "ipv4.addresses 10.0.%2.2/24 ipv4.gateway 10.0.%2.1 ipv6.method disabled")
                  .arg(name, number));
        const QString told = Nmcli("connection up " + name);
        if (!told.contains("successfully activated")) {
            QSKIP(qPrintable("no virtual device can be had here: " + told));
        }
    }
    m_client.reset(new CNetworkManagerClient(nullptr));
    m_picture.reset(new CLivePicture(m_client.data(), nullptr));
    m_keeper.reset(new CMetricKeeper(m_client.data(), nullptr));
    QTRY_COMPARE(Traffic(), QString("tap1"));
}

void tst_networkmanagerroutes::cleanup()
{
    if (m_keeper) {
        Apply({});
        Nmcli("device reapply tap1");
        Nmcli("device reapply tap2");
        QTRY_COMPARE(Traffic(), QString("tap1"));
    }
}

void tst_networkmanagerroutes::cleanupTestCase()
{
    m_keeper.reset();
    m_picture.reset();
    m_client.reset();
}

ConnectionPicture tst_networkmanagerroutes::Picture()
{
    ConnectionPicture picture = m_picture->Now();
    for (NetworkProfile &profile : picture.profiles) {
        profile.kind = NetworkProfile::Wifi;
    }
    return picture;
}

QString tst_networkmanagerroutes::Traffic()
{
    const ConnectionPicture picture = Picture();
    for (const ActiveObject &connection : picture.state.connections) {
        if (connection.path == picture.state.primaryConnection) {
            return connection.name;
        }
    }
    return QString();
}

void tst_networkmanagerroutes::Apply(const QList<PriorityList> &list)
{
    m_keeper->Plan(list, Picture(), &m_records);
    m_keeper->Start(&m_records);
    QTRY_VERIFY(!m_keeper->IsWorking());
    QVERIFY(m_keeper->Failures().isEmpty());
}

void tst_networkmanagerroutes::FirstInTheListCarriesTheTraffic()
{
    Apply({Entry("tap2"), Entry("tap1")});
    QTRY_COMPARE(Traffic(), QString("tap2"));
}

void tst_networkmanagerroutes::ProfileIsNotChanged()
{
    const QByteArray before = m_daemon->Keyfile("tap2");
    QVERIFY(before.contains("[ipv4]"));
    Apply({Entry("tap2"), Entry("tap1")});
    QTRY_COMPARE(Traffic(), QString("tap2"));
    QCOMPARE(m_daemon->Keyfile("tap2"), before);
    QCOMPARE(Nmcli("--get-values ipv4.route-metric connection show tap2"), QString("-1"));
}

void tst_networkmanagerroutes::WhatAnotherProgramHasSetStays()
{
    Nmcli("device modify tap2 +ipv4.routes 10.9.0.0/16 ipv4.dns-search example.org");
    Apply({Entry("tap2"), Entry("tap1")});
    QTRY_COMPARE(Traffic(), QString("tap2"));
    // The routes are taken away and set anew, one after the other.
    QTRY_VERIFY(Nmcli("--get-values IP4.ROUTE device show tap2").contains("10.9.0.0/16"));
    QTRY_VERIFY(Nmcli("--get-values IP4.SEARCHES device show tap2").contains("example.org"));
}

void tst_networkmanagerroutes::WhatWasSetIsGivenBack()
{
    Apply({Entry("tap2"), Entry("tap1")});
    QTRY_COMPARE(Traffic(), QString("tap2"));
    Apply({});
    QTRY_COMPARE(Traffic(), QString("tap1"));
    QVERIFY(m_records.isEmpty());
}

int main(int argc, char **argv)
{
    // Before there is a second thread.
    whyNoNamespace = Namespace::Enter();
    QCoreApplication application(argc, argv);
    tst_networkmanagerroutes test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_networkmanagerroutes.moc"
