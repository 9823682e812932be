#include "ChildProcess.h"
#include "DashboardProcess.h"
#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <TemporaryDirectory.h>

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QtTest>

namespace
{

const char display[] = "wayland-test";
const char application[] = "com.torvik.netquillforge.PriorityDashboard";

const char program[] = BUILD_DIRECTORY "/bin/priority-dashboard";

/** How the compositor tells of a window with this title. */
QString Shown(const QString &title)
{
    return QString("'%1' of %2").arg(title, application);
}

/** The compositor starts and tells only while its processes get to run. */
const int patience = 20000;

/** A desktop's panel, of which the icons and their menus are asked. */
class Panel : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ IsThere)

public:
    ~Panel() override { Go(); }

    void Come()
    {
        QDBusConnection bus = PrivateBus::Connection();
        QVERIFY(bus.registerObject(path, this, QDBusConnection::ExportAllContents));
        QVERIFY(bus.registerService(name));
    }
    void Go()
    {
        PrivateBus::Connection().unregisterService(name);
        PrivateBus::Connection().unregisterObject(path);
        m_owner.clear();
    }
    bool HasIcon() const { return !m_owner.isEmpty(); }

    /** What the menu has, line by line; what can't be chosen is in brackets. */
    QStringList Menu()
    {
        m_ids.clear();
        QDBusMessage call = CallToMenu("GetLayout");
        call << 0 << -1 << QStringList();
        const QDBusMessage reply = PrivateBus::Connection().call(call);
        return reply.arguments().size() == 2 ? Lines(reply.arguments().at(1).value<QDBusArgument>())
                                             : QStringList(reply.errorMessage());
    }
    void Choose(const QString &line)
    {
        QVERIFY2(Menu().contains(line), qPrintable(Menu().join('\n')));
        QDBusMessage call = CallToMenu("Event");
        call << m_ids.value(line) << "clicked" << QVariant::fromValue(QDBusVariant(0)) << 0U;
        PrivateBus::Connection().call(call);
    }

    bool IsThere() const { return true; }

public slots:
    void RegisterStatusNotifierItem(const QString &) { m_owner = message().service(); }

private:
    static constexpr const char *name = "org.kde.StatusNotifierWatcher";
    static constexpr const char *path = "/StatusNotifierWatcher";

    QDBusMessage CallToMenu(const QString &method) const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(m_owner, "/StatusNotifierItem",
                                                           "org.freedesktop.DBus.Properties", "Get");
        call << "org.kde.StatusNotifierItem"
             << "Menu";
        const QDBusReply<QDBusVariant> menu = PrivateBus::Connection().call(call);
        return QDBusMessage::createMethodCall(m_owner, menu.value().variant().value<QDBusObjectPath>().path(),
                                              "com.canonical.dbusmenu", method);
    }
    QStringList Lines(const QDBusArgument &item)
    {
        int id = 0;
        QVariantMap properties;
        item.beginStructure();
        item >> id >> properties;
        const QString label = properties.value("label").toString();
        const QString line = properties.value("enabled", true).toBool() ? label : '[' + label + ']';
        QStringList lines(label.isEmpty() ? QStringList() : QStringList(line));
        m_ids.insert(line, id);
        item.beginArray();
        while (!item.atEnd()) {
            QDBusVariant child;
            item >> child;
            lines += Lines(child.variant().value<QDBusArgument>());
        }
        item.endArray();
        item.endStructure();
        return lines;
    }

    QString m_owner;
    QHash<QString, int> m_ids;
};

} // namespace

/** The program itself under a Wayland compositor, Weston, which shows nothing to anybody here. */
class WaylandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void WindowIsShownAndEnds();
    void IconOfTheAgentTellsAndConnects();

private:
    QStringList Environment() const;
    /** What the compositor has on its screen. */
    QString Scene() const;

    TemporaryDirectory m_directory;
    PrivateBus m_bus;
    ChildProcess m_compositor;
};

void WaylandTest::initTestCase()
{
    const QString weston = ChildProcess::Find("weston");
    if (weston.isEmpty()) {
        QSKIP("weston is not installed");
    }
    const QDir platforms(QCoreApplication::libraryPaths().value(0) + "/platforms");
    if (platforms.entryList({"libqwayland*"}).isEmpty()) {
        QSKIP("Qt's platform for Wayland is not installed");
    }
    if (!m_bus.Start()) {
        QSKIP(qPrintable(m_bus.WhyNot()));
    }
    // It wants a directory that only its user can read.
    QFile::setPermissions(m_directory.Path(), QFile::Permissions(0x7700));
    ChangeEnvironment(&m_compositor, Environment());
    const QStringList arguments = {"--backend=headless-backend.so", "--no-config", "--debug", "--idle-time=0",
                                   QString("--socket=%1").arg(display)};
    QVERIFY(m_compositor.Begin(weston, arguments, m_directory.FilePath("weston.log")));
    QTRY_VERIFY2_WITH_TIMEOUT(QFile::exists(m_directory.FilePath(display)),
                              m_directory.Read("weston.log").constData(), patience);
}

void WaylandTest::cleanupTestCase()
{
    m_compositor.End();
}

QStringList WaylandTest::Environment() const
{
    return {"XDG_RUNTIME_DIR=" + m_directory.Path(),
            "XDG_DATA_HOME=" + m_directory.Path(),
            QString("WAYLAND_DISPLAY=%1").arg(display),
            "QT_QPA_PLATFORM=wayland",
            "DISPLAY=",
            "DBUS_SESSION_BUS_ADDRESS=unix:path=" + m_bus.Path("bus")};
}

QString WaylandTest::Scene() const
{
    return RunProgram("weston-debug", {"scene-graph"}, Environment()).out;
}

void WaylandTest::WindowIsShownAndEnds()
{
    ChildProcess dashboard;
    ChangeEnvironment(&dashboard, Environment());
    QVERIFY(dashboard.Begin(program, {"--wlan=stored"}, m_directory.FilePath("printed")));
    QTRY_VERIFY2_WITH_TIMEOUT(Scene().contains(Shown("Network dashboard (practice)")),
                              m_directory.Read("printed").constData(), patience);

    QCOMPARE(RunProgram(program, {"--wlan=stored", "--show=connect"}, Environment()).status, 0);
    QTRY_VERIFY2_WITH_TIMEOUT(Scene().contains(Shown("Connect to a network")),
                              m_directory.Read("printed").constData(), patience);

    const QStringList names = PrivateBus::Connection().interface()->registeredServiceNames();
    PrivateBus::Connection().send(QDBusMessage::createMethodCall(
        names.filter(application).value(0), "/MainApplication", "org.qtproject.Qt.QCoreApplication", "quit"));
    QVERIFY(dashboard.waitForFinished());
    QCOMPARE(dashboard.exitStatus(), QProcess::NormalExit);
    QCOMPARE(dashboard.exitCode(), 0);
    QVERIFY(!Scene().contains(application));
}

void WaylandTest::IconOfTheAgentTellsAndConnects()
{
    const unsigned int activated = 2;
    m_directory.Write("priority-dashboard/dashboard.ini", "[agent]\nicon=true\n");
    const auto write = [this](const QByteArray &names) {
        QByteArray items;
        for (const QByteArray &name : names.split(' ')) {
            items += "<item name=\"" + name + "\" type=\"1\"/>";
        }
        m_directory.Write("priority-dashboard/Priority.xml",
                          "<zeltdoc><profile>" + items + "</profile></zeltdoc>");
    };
    write("Gone A&amp;B_&amp;C Used Fourth Fifth Sixth");
    FakeNetworkManager fake;
    const QString device = fake.AddDevice();
    fake.AddAccessPoint("A&B_&C", 80);
    fake.AddAccessPoint("Used", 80);
    fake.AddProfile("A&B_&C");
    const QString inUse = fake.Connect(fake.AddProfile("Used"), activated, device);
    fake.SetManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath(inUse)));
    QVERIFY(fake.Appear());
    ChildProcess agent;
    ChangeEnvironment(&agent, Environment() << "LC_ALL=C.UTF-8");
    QVERIFY(agent.Begin(program, {"--agent"}, m_directory.FilePath("printed")));
    QVERIFY(PrivateBus::WaitForService("org.freedesktop.NetworkManager"));

    Panel panel;
    panel.Come();
    QTRY_VERIFY2_WITH_TIMEOUT(panel.HasIcon(), m_directory.Read("printed").constData(), patience);
    const QString choice = "_A&B__&C: In range · 80%";
    const QStringList actions = {"_Connect…", "_Open", "_Quit"};
    QTRY_COMPARE_WITH_TIMEOUT(
        panel.Menu(),
        QStringList({"[In use now: Used]", "[Gone: Not saved here]", choice, "[Used: In use now]",
                     "[Fourth: Not saved here]", "[Fifth: Not saved here]"}) +
            actions,
        patience);

    panel.Go();
    panel.Come();
    QTRY_VERIFY(panel.HasIcon());
    write("Used");
    QTRY_COMPARE_WITH_TIMEOUT(panel.Menu(),
                              QStringList({"[In use now: Used]", "[Used: In use now]"}) + actions, patience);
    write("A&amp;B_&amp;C");
    QTRY_VERIFY_WITH_TIMEOUT(panel.Menu().contains(choice), patience);
    panel.Choose(choice);
    QTRY_COMPARE(fake.ConnectionPaths().size(), 2);

    panel.Choose("_Quit");
    QVERIFY(agent.waitForFinished());
    QCOMPARE(agent.exitCode(), 0);
}

QTEST_GUILESS_MAIN(WaylandTest)
#include "tst_wayland.moc"
