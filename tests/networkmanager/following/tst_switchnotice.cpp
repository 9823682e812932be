#include "DashboardProcess.h"
#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <IPluginContainer.h>
#include <ListRules.h>
#include <Row.h>
#include <SwitchNotice.h>
#include <TemporaryDirectory.h>

#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QtTest>

/** What a plug-in hands out that switches by itself. */
class FakeOrder : public QObject, public IPluginContainer
{
    Q_OBJECT

public:
    QObject *GetPluginObject(const QString &, int) override { return this; }

signals:
    void OnSwitched(const QString &name, const QString &former);
};

/** The desktop's notifications. */
class FakeDesktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList notices;

public slots:
    uint Notify(const QString &, uint, const QString &, const QString &title, const QString &body,
                const QStringList &, const QVariantMap &, int)
    {
        notices.append(title + '\n' + body);
        return 1;
    }
};

/** The user is told of switches, over a session bus of the test's own. */
class SwitchNoticeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void SwitchIsToldInWords();
    void NothingIsToldUnlessItIsWanted_data();
    void NothingIsToldUnlessItIsWanted();
    void WithoutNotificationsNothingIsKept();
    void WindowAndAgentTell_data();
    void WindowAndAgentTell();

private:
    static void Offer(FakeDesktop *desktop);
    void Write(const QByteArray &rules) const { m_user.Write("priority-dashboard/rules.ini", rules); }

    TemporaryDirectory m_user;
    PrivateBus m_bus;
    FakeOrder m_order;
};

void SwitchNoticeTest::initTestCase()
{
    if (!m_bus.Start()) {
        QSKIP(qPrintable(m_bus.WhyNot()));
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", QFile::encodeName("unix:path=" + m_bus.Path("bus")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_user.Path()));
    HostControl::SetLanguageDirectory(BUILD_DIRECTORY "/share/priority-dashboard/languages");
    QVERIFY(DashboardLanguage::Apply("en"));
    HostControl::SetPluginContainer(&m_order);
}

void SwitchNoticeTest::Offer(FakeDesktop *desktop)
{
    QDBusConnection bus = PrivateBus::Connection();
    QVERIFY(bus.registerObject("/org/freedesktop/Notifications", desktop, QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService("org.freedesktop.Notifications"));
}

void SwitchNoticeTest::SwitchIsToldInWords()
{
    FakeDesktop desktop;
    Offer(&desktop);
    QVERIFY(ListRules::SetNotifying(true));
    const SwitchNotice notice;
    emit m_order.OnSwitched("A & B", "<Café>");
    QTRY_COMPARE(desktop.notices,
                 QStringList("Switched to A & B\nIt is higher in your list than &lt;Café&gt;."));
}

void SwitchNoticeTest::NothingIsToldUnlessItIsWanted_data()
{
    QTest::addColumn<QByteArray>("rules");
    Row("nothing is chosen", QByteArray(""));
    Row("not wanted", QByteArray("[General]\nnotify=no\n"));
}

void SwitchNoticeTest::NothingIsToldUnlessItIsWanted()
{
    QFETCH(QByteArray, rules);
    FakeDesktop desktop;
    Offer(&desktop);
    const SwitchNotice notice;
    Write(rules);
    emit m_order.OnSwitched("Before", "");
    QVERIFY(ListRules::SetNotifying(true));
    emit m_order.OnSwitched("After", "");
    QTRY_COMPARE(desktop.notices.size(), 1);
    QVERIFY(desktop.notices.constFirst().contains("After"));
}

void SwitchNoticeTest::WithoutNotificationsNothingIsKept()
{
    PrivateBus::Connection().unregisterService("org.freedesktop.Notifications");
    QVERIFY(ListRules::SetNotifying(true));
    const SwitchNotice notice;
    emit m_order.OnSwitched("Before", "");
    PrivateBus::WaitForArrivals(QDBusConnection::sessionBus());
    FakeDesktop desktop;
    Offer(&desktop);
    emit m_order.OnSwitched("After", "");
    QTRY_COMPARE(desktop.notices.size(), 1);
    QVERIFY(desktop.notices.constFirst().contains("After"));
}

void SwitchNoticeTest::WindowAndAgentTell_data()
{
    QTest::addColumn<QStringList>("arguments");
    Row("window", QStringList());
    Row("agent", QStringList("--agent"));
}

void SwitchNoticeTest::WindowAndAgentTell()
{
    QFETCH(QStringList, arguments);
    const unsigned int activated = 2;
    FakeDesktop desktop;
    Offer(&desktop);
    Write("[General]\nfollowing=yes\nnotify=yes\n");
    m_user.Write("priority-dashboard/Priority.xml",
                 "<zeltdoc><profile><item name=\"Top\" type=\"1\"/><item name=\"Low\" type=\"1\"/>"
                 "</profile></zeltdoc>");
    FakeNetworkManager fake;
    const QString device = fake.AddDevice();
    fake.AddAccessPoint("Top", 80);
    fake.AddAccessPoint("Low", 80);
    fake.AddProfile("Top");
    const QString inUse = fake.Connect(fake.AddProfile("Low"), activated, device);
    fake.SetManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath(inUse)));
    QVERIFY(fake.Appear());

    ChildProcess program;
    ChangeEnvironment(&program, {"LC_ALL=C.UTF-8"});
    QVERIFY(program.Begin(BUILD_DIRECTORY "/bin/priority-dashboard", arguments, m_user.FilePath("printed")));
    qlonglong scan = 0;
    const auto isSwitched = [&fake, &device, &scan] {
        fake.SetProperty(device, "org.freedesktop.NetworkManager.Device.Wireless", "LastScan", ++scan);
        return fake.ConnectionPaths().size() == 2;
    };
    const int patience = 20000;
    QTRY_VERIFY_WITH_TIMEOUT(isSwitched(), patience);
    fake.SetConnectionState(fake.ConnectionPaths().constLast(), activated);
    QTRY_COMPARE(desktop.notices, QStringList("Switched to Top\nIt is higher in your list than Low."));
}

QTEST_MAIN(SwitchNoticeTest)
#include "tst_switchnotice.moc"
