#include "HandedOutPlugin.h"
#include "LoadedWLAN.h"
#include "Namespace.h"
#include "NetworkManagerDaemon.h"
#include "PrivateBus.h"

#include <NetworkManagerResult.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QApplication>
#include <QFile>
#include <QScopedPointer>
#include <QWidget>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

namespace
{

const uid_t nobody = 65534;

QString whyNoNamespace;

bool IsThereForNobody(const QString &path)
{
    const bool isNobody = seteuid(nobody) == 0;
    // Qt asks for the user that the process was started by.
    const bool isThere =
        isNobody && faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
    return seteuid(0) == 0 && isThere;
}

} // namespace

/** The plug-in over NetworkManager itself, for a user who may look and may not change anything. */
class tst_networkmanagerpermissions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void ProfileIsReadOnly();
    void ProfileIsNotChanged();
    void NewProfileIsDenied();
    void PrioritiesStayAndNobodyComplains();

private:
    QScopedPointer<TemporaryDirectory> m_user;
    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<NetworkManagerDaemon> m_daemon;
    HandedOutPlugin m_priority;
};

void tst_networkmanagerpermissions::initTestCase()
{
    if (!whyNoNamespace.isEmpty()) {
        QSKIP(qPrintable(whyNoNamespace));
    }
    if (seteuid(nobody) != 0) {
        QSKIP("only root can be another user");
    }
    QCOMPARE(seteuid(0), 0);
    m_bus.reset(new PrivateBus);
    QVERIFY2(m_bus->Start(), qPrintable(m_bus->WhyNot()));
    if (!IsThereForNobody(m_bus->Path("bus"))) {
        QSKIP("the directory for temporary files is not for everybody");
    }
    m_daemon.reset(new NetworkManagerDaemon(m_bus.data()));
    if (!m_daemon->Start("root-only")) {
        QSKIP(qPrintable(m_daemon->WhyNot()));
    }
    QVERIFY(NetworkManagerDaemon::Add("A"));
    m_user.reset(new TemporaryDirectory);
    m_user->Write("Priority.xml", "<zeltdoc><profile><item name=\"A\" type=\"1\"/></profile></zeltdoc>");
    QVERIFY(QFile::setPermissions(m_user->Path(), QFile::Permissions(0x7777)));
    StandInHost::Reset(m_user->Path());
    QVERIFY(LoadedWLAN::RootObject());
    m_priority.HandOut();
}

void tst_networkmanagerpermissions::cleanupTestCase()
{
    StandInHost::Reset(QString());
}

void tst_networkmanagerpermissions::init()
{
    QCOMPARE(seteuid(nobody), 0);
    QVERIFY2(LoadedWLAN::Root()->Init(), "NetworkManager can't be had as another user");
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
}

void tst_networkmanagerpermissions::cleanup()
{
    LoadedWLAN::Root()->OnDestroy();
    QCOMPARE(seteuid(0), 0);
}

void tst_networkmanagerpermissions::ProfileIsReadOnly()
{
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
    QCOMPARE(LoadedWLAN::ProfileNamed("A").readOnly, QString("true"));
}

void tst_networkmanagerpermissions::ProfileIsNotChanged()
{
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "open sesame")),
             int(NetworkManagerResultReadOnlyProfile));
    QCOMPARE(LoadedWLAN::ProfileNamed("A").authentication, QString("open"));
}

void tst_networkmanagerpermissions::NewProfileIsDenied()
{
    QWidget window;
    window.show();
    TraceCapture trace;
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("B", "WPA2PSK", "CCMP", "open sesame")),
             int(NetworkManagerResultPermissionDenied));
    QVERIFY(trace.Lines().contains("WLANNetworkManager: CreateWLANProfile: this user may not do that"));
    QVERIFY(trace.Lines().filter("open sesame").isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(StandInHost::messages.size(), 1);
    QVERIFY(StandInHost::messages.first().text.endsWith("WLAN?IDS_WLAN_DENIED"));
    QCOMPARE(LoadedWLAN::Remembered(), QStringList("A/1"));
}

void tst_networkmanagerpermissions::PrioritiesStayAndNobodyComplains()
{
    TraceCapture trace;
    QTest::qWait(1000);
    QVERIFY(!trace.Lines().filter("GetPriorityList").isEmpty());
    QCOMPARE(trace.Lines().filter("WLANNetworkManager"), QStringList());
    QCOMPARE(seteuid(0), 0);
    QCOMPARE(NetworkManagerDaemon::Priorities(), QStringList("A:0"));
}

int main(int argc, char **argv)
{
    // Before there is a second thread.
    whyNoNamespace = Namespace::Enter();
    QApplication application(argc, argv);
    tst_networkmanagerpermissions test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_networkmanagerpermissions.moc"
