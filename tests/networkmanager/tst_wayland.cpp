#include "ChildProcess.h"
#include "DashboardProcess.h"
#include "PrivateBus.h"

#include <TemporaryDirectory.h>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
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

} // namespace

/** The program itself under a Wayland compositor, Weston, which shows nothing to anybody here. */
class WaylandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void WindowIsShownAndEnds();

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

QTEST_GUILESS_MAIN(WaylandTest)
#include "tst_wayland.moc"
