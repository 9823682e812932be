#include "HandedOutPlugin.h"
#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <Row.h>

#include <QDBusObjectPath>
#include <QLockFile>
#include <QtTest>

namespace
{

const unsigned int activated = 2;
const unsigned int supplicantTimeout = 11;
const char follow[] = "[General]\nfollowing=yes\n";
const char deviceWireless[] = "org.freedesktop.NetworkManager.Device.Wireless";
const char activeConnection[] = "org.freedesktop.NetworkManager.Connection.Active";

} // namespace

/** The list that is followed, over a fake NetworkManager and with the real priority plug-in. */
class tst_networkmanagerfollowing : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void EntryAboveIsConnected();
    void NothingIsAskedUnlessItIsWanted_data();
    void NothingIsAskedUnlessItIsWanted();
    void FollowingBeginsAndEndsWhenItIsChosen();
    void SwitchThatCameUpIsToldOnce();
    void FailedTryIsNotRepeated();
    void NothingIsSwitchedDuringAVpn();
    void WhatAWindowOrderedStays();
    void ListThatChangesIsFollowed();
    void OneProgramOfAUserFollows();

private:
    /** "Low" is in use, and "Top", above it, in range. */
    void Begin(const char *rules, const char *first = "Top", const char *second = "Low");
    void SetList(const char *first, const char *second);
    /** The device looks for networks twice, which has to have been taken in. */
    void Scan();
    void Use(const QString &connection);
    int Switches() { return Fake().CallCount("ActivateConnection"); }
    /** Gives time to whatever might still come. */
    static void Settle() { QTest::qWait(300); }

    HandedOutPlugin m_plugin;
    QString m_device;
    QString m_low;
    qlonglong m_scan = 0;
};

void tst_networkmanagerfollowing::SetList(const char *first, const char *second)
{
    Directory().Write("Priority.xml", QString("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                              "<zeltdoc type=\"profile\">\n"
                                              "    <item name=\"%1\" type=\"1\"/>\n"
                                              "    <item name=\"%2\" type=\"1\"/>\n</zeltdoc>\n")
                                          .arg(first, second)
                                          .toUtf8());
}

void tst_networkmanagerfollowing::Begin(const char *rules, const char *first, const char *second)
{
    LoadedWLAN::Root()->OnDestroy();
    m_plugin.HandOut();
    Directory().Write("rules.ini", rules);
    SetList(first, second);
    m_device = Fake().AddDevice();
    Fake().AddAccessPoint("Top", 80);
    Fake().AddAccessPoint("Low", 80);
    Fake().AddProfile("Top");
    m_low = Fake().AddProfile("Low");
    Use(Fake().Connect(m_low, activated, m_device));
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_VERIFY(Fake().PriorityOf(m_low) > 0 || rules != QByteArray(follow));
    Settle();
    Fake().ForgetCalls();
}

void tst_networkmanagerfollowing::Use(const QString &connection)
{
    Fake().SetManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath(connection)));
}

void tst_networkmanagerfollowing::Scan()
{
    for (int i = 0; i < 2; ++i) {
        Fake().SetProperty(m_device, deviceWireless, "LastScan", ++m_scan);
        Settle();
    }
}

void tst_networkmanagerfollowing::EntryAboveIsConnected()
{
    Begin(follow);
    Scan();
    QTRY_COMPARE(Switches(), 1);
    QCOMPARE(LoadedWLAN::Active().value(1).name, QString("Top"));
    QCOMPARE(LoadedWLAN::Active().value(1).device, LoadedWLAN::Active().value(0).device);
    QCOMPARE(Fake().CallCount("AddAndActivateConnection2") + Fake().CallCount("DeactivateConnection"), 0);
}

void tst_networkmanagerfollowing::NothingIsAskedUnlessItIsWanted_data()
{
    QTest::addColumn<QByteArray>("rules");
    Row("nothing is chosen", QByteArray(""));
    Row("not wanted", QByteArray("[General]\nfollowing=no\n"));
    Row("the list does not rule", QByteArray("[General]\nfollowing=yes\nruling=no\n"));
}

void tst_networkmanagerfollowing::NothingIsAskedUnlessItIsWanted()
{
    QFETCH(QByteArray, rules);
    Begin(follow);
    Directory().Write("rules.ini", rules);
    QTest::qWait(1000);
    Fake().ForgetCalls();
    Scan();
    QCOMPARE(Fake().CallCount(), 0);
    QVERIFY(!QFile::exists(Directory().FilePath("follow.use")));
}

void tst_networkmanagerfollowing::FollowingBeginsAndEndsWhenItIsChosen()
{
    Begin("");
    Directory().Write("rules.ini", follow);
    QTRY_COMPARE(Fake().CallCount("RequestScan"), 1);
    Scan();
    QCOMPARE(Switches(), 1);
}

void tst_networkmanagerfollowing::SwitchThatCameUpIsToldOnce()
{
    Begin(follow);
    const QSignalSpy told(LoadedWLAN::OrderService(), SIGNAL(OnSwitched(QString, QString)));
    Scan();
    QTRY_COMPARE(Switches(), 1);
    QCOMPARE(told.size(), 0);
    Fake().SetConnectionState(Fake().ConnectionPaths().constLast(), activated);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.constFirst(), QVariantList({"Top", "Low"}));
    Scan();
    QCOMPARE(told.size(), 1);
}

void tst_networkmanagerfollowing::FailedTryIsNotRepeated()
{
    Begin(follow);
    Scan();
    QTRY_COMPARE(Switches(), 1);
    const QSignalSpy told(LoadedWLAN::OrderService(), SIGNAL(OnSwitched(QString, QString)));
    Fake().Fail(Fake().ConnectionPaths().constLast(), supplicantTimeout);
    Scan();
    Scan();
    QCOMPARE(Switches(), 1);
    QCOMPARE(told.size(), 0);
}

void tst_networkmanagerfollowing::NothingIsSwitchedDuringAVpn()
{
    Begin(follow);
    const QString vpn = Fake().AddProfile("Work", "vpn");
    Fake().SetProperty(Fake().Connect(vpn, activated), activeConnection, "Vpn", true);
    Fake().ForgetCalls();
    Scan();
    QCOMPARE(Switches(), 0);
}

void tst_networkmanagerfollowing::WhatAWindowOrderedStays()
{
    Begin(follow);
    for (const QString &connection : Fake().ConnectionPaths()) {
        Fake().SetConnectionState(connection, 4);
    }
    QVERIFY(LoadedWLAN::Connections()->ConnectProfile(m_low) > 0);
    QTRY_COMPARE(Fake().ConnectionPaths().size(), 1);
    const QString ordered = Fake().ConnectionPaths().constFirst();
    Fake().SetConnectionState(ordered, activated);
    Use(ordered);
    Scan();
    QCOMPARE(Switches(), 1);
    // Another program of the user knows as well.
    StartPluginAgain();
    QTRY_COMPARE(LoadedWLAN::Active().size(), 1);
    Scan();
    QCOMPARE(Switches(), 1);
}

void tst_networkmanagerfollowing::ListThatChangesIsFollowed()
{
    Begin(follow, "Low", "Top");
    Scan();
    QCOMPARE(Switches(), 0);
    SetList("Top", "Low");
    QTRY_COMPARE(Switches(), 1);
}

void tst_networkmanagerfollowing::OneProgramOfAUserFollows()
{
    Directory().Write("rules.ini", "");
    QLockFile other(Directory().FilePath("follow.use"));
    QVERIFY(other.tryLock(0));
    Begin(follow);
    Scan();
    QCOMPARE(Fake().CallCount("RequestScan") + Switches(), 0);
    other.unlock();
    QTRY_COMPARE(Fake().CallCount("RequestScan"), 1);
    Scan();
    QCOMPARE(Switches(), 1);
}

QTEST_MAIN(tst_networkmanagerfollowing)
#include "tst_networkmanagerfollowing.moc"
