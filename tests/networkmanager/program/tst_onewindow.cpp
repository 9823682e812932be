#include "ChildProcess.h"
#include "DashboardProcess.h"
#include "PrivateBus.h"

#include <OneWindow.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDBusConnectionInterface>
#include <QDialog>
#include <QtTest>

namespace
{

const char program[] = BUILD_DIRECTORY "/bin/priority-dashboard";
const char settingsAreOpen[] = "ShowSettingDialog: Exit";
const char listIsShown[] = "GetPriorityList: Exit";

/** The names that windows have on the bus. */
QStringList Windows()
{
    const QStringList names = PrivateBus::Connection().interface()->registeredServiceNames();
    return names.filter("com.torvik.netquillforge.PriorityDashboard");
}

} // namespace

/** Starts of the program while it has a window already, on a session bus of the test's own. */
class OneWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void LaterStartEndsInFavourOfTheFirst();
    void LaterStartHasTheFirstOpenItsPart();
    void NothingOpensOverADialog();
    void OtherStartsHaveAWindowOfTheirOwn_data();
    void OtherStartsHaveAWindowOfTheirOwn();
    void DemoHasAWindowOfItsOwn();
    void WithoutABusTheProgramStarts();
    void MinimizedWindowComesBack();
    void OpenDialogStaysInFront();

private:
    QStringList Environment(const QStringList &more = QStringList()) const;
    void Begin(ChildProcess *process, const QStringList &arguments,
               const QStringList &more = QStringList()) const;
    Outcome StartAgain(const QStringList &arguments) const;
    QByteArray Log() const { return m_user->Read("user/priority-dashboard/dashboard.log"); }

    PrivateBus m_bus;
    QScopedPointer<TemporaryDirectory> m_user;
};

void OneWindowTest::initTestCase()
{
    if (!m_bus.Start()) {
        QSKIP(qPrintable(m_bus.WhyNot()));
    }
}

void OneWindowTest::init()
{
    m_user.reset(new TemporaryDirectory);
    QTRY_COMPARE(Windows(), QStringList());
}

QStringList OneWindowTest::Environment(const QStringList &more) const
{
    return QStringList({"XDG_DATA_HOME=" + m_user->FilePath("user"),
                        "DBUS_SESSION_BUS_ADDRESS=unix:path=" + m_bus.Path("bus")}) +
           more;
}

void OneWindowTest::Begin(ChildProcess *process, const QStringList &arguments, const QStringList &more) const
{
    ChangeEnvironment(process, Environment(more));
    QVERIFY(process->Begin(program, arguments, m_user->FilePath("printed")));
}

Outcome OneWindowTest::StartAgain(const QStringList &arguments) const
{
    return RunDashboard(QStringList("--wlan=stored") + arguments, Environment());
}

void OneWindowTest::LaterStartEndsInFavourOfTheFirst()
{
    ChildProcess first;
    Begin(&first, {"--wlan=stored"});
    QTRY_COMPARE(Windows().size(), 1);
    const Outcome later = StartAgain({});
    QCOMPARE(later.status, 0);
    QCOMPARE(later.out + later.err, QString());
    QCOMPARE(first.state(), QProcess::Running);
}

void OneWindowTest::LaterStartHasTheFirstOpenItsPart()
{
    ChildProcess first;
    Begin(&first, {"--wlan=stored"});
    QTRY_COMPARE(Windows().size(), 1);
    QCOMPARE(StartAgain({"--show", "settings"}).status, 0);
    QTRY_VERIFY(Log().contains(settingsAreOpen));
}

void OneWindowTest::NothingOpensOverADialog()
{
    ChildProcess first;
    Begin(&first, {"--wlan=stored", "--show=connect"});
    QTRY_COMPARE(Windows().size(), 1);
    // The answer to the second comes after all that was done for the first.
    QCOMPARE(StartAgain({"--show=settings"}).status, 0);
    QCOMPARE(StartAgain({}).status, 0);
    QVERIFY(!Log().contains(settingsAreOpen));
}

void OneWindowTest::OtherStartsHaveAWindowOfTheirOwn_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("data");
    Row("other data", QStringList("--wlan=stored"), "other");
    Row("other networks", QStringList(), "user");
    Row("language", QStringList({"--wlan=stored", "--language=ar"}), "user");
    Row("other plug-ins", QStringList({"--wlan=stored", "--library-path=/usr"}), "user");
}

void OneWindowTest::OtherStartsHaveAWindowOfTheirOwn()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, data);
    ChildProcess first;
    Begin(&first, {"--wlan=stored"});
    QTRY_COMPARE(Windows().size(), 1);
    ChildProcess other;
    Begin(&other, arguments, {"XDG_DATA_HOME=" + m_user->FilePath(data)});
    QTRY_COMPARE(Windows().size(), 2);
}

void OneWindowTest::DemoHasAWindowOfItsOwn()
{
    ChildProcess demo;
    Begin(&demo, {"--demo"});
    QTRY_VERIFY(
        m_user->Read("user/priority-dashboard-demo/priority-dashboard/dashboard.log").contains(listIsShown));
    QCOMPARE(Windows(), QStringList());
}

void OneWindowTest::WithoutABusTheProgramStarts()
{
    ChildProcess alone;
    Begin(&alone, {"--wlan=stored"}, {"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"});
    QTRY_VERIFY(Log().contains(listIsShown));
    QCOMPARE(alone.state(), QProcess::Running);
}

void OneWindowTest::MinimizedWindowComesBack()
{
    QWidget window;
    window.showMinimized();
    OneWindow::Raise(&window);
    QVERIFY(window.isVisible() && !window.isMinimized());
}

void OneWindowTest::OpenDialogStaysInFront()
{
    QWidget window;
    window.show();
    QDialog dialog(&window);
    dialog.setModal(true);
    dialog.show();
    OneWindow::Raise(&window);
    QTRY_COMPARE(QApplication::activeWindow(), &dialog);
}

QTEST_MAIN(OneWindowTest)
#include "tst_onewindow.moc"
