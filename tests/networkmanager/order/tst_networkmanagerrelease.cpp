#include "Namespace.h"
#include "NetworkManagerDaemon.h"
#include "PrivateBus.h"

#include <DashboardProcess.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QtTest>

namespace
{

QString whyNoNamespace;

} // namespace

/** The end of the list's rule over NetworkManager itself, as its files have it. */
class tst_networkmanagerrelease : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_daemon->RemoveProfiles(); }

    void KeyfilesAreAsTheyWereBefore_data();
    void KeyfilesAreAsTheyWereBefore();

private:
    Outcome Run(const char *command) const
    {
        return RunDashboard({command}, {"XDG_DATA_HOME=" + m_directory->Path()});
    }
    QMap<QString, QByteArray> Files() const;

    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<NetworkManagerDaemon> m_daemon;
    QScopedPointer<TemporaryDirectory> m_directory;
};

void tst_networkmanagerrelease::initTestCase()
{
    if (!whyNoNamespace.isEmpty()) {
        QSKIP(qPrintable(whyNoNamespace));
    }
    m_bus.reset(new PrivateBus);
    QVERIFY2(m_bus->Start(), qPrintable(m_bus->WhyNot()));
    m_daemon.reset(new NetworkManagerDaemon(m_bus.data()));
    if (!m_daemon->Start()) {
        QSKIP(qPrintable(m_daemon->WhyNot()));
    }
}

void tst_networkmanagerrelease::init()
{
    m_directory.reset(new TemporaryDirectory);
    QDir().mkpath(m_directory->FilePath("priority-dashboard"));
    m_directory->Write("priority-dashboard/Priority.xml",
                       "<zeltdoc><profile><item name=\"Office\" type=\"1\"/><item name=\"Home\" type=\"1\"/>"
                       "<item name=\"Coffee\" type=\"1\"/></profile></zeltdoc>");
    QVERIFY(NetworkManagerDaemon::Add("Office",
                                      {"connection.autoconnect-priority", "-7", "ipv4.dns", "192.0.2.53"}));
    QVERIFY(
        NetworkManagerDaemon::Add("Home", {"wifi-sec.key-mgmt", "wpa-psk", "wifi-sec.psk", "open sesame"}));
    QVERIFY(NetworkManagerDaemon::Add("Coffee", {"connection.autoconnect-priority", "999"}));
}

QMap<QString, QByteArray> tst_networkmanagerrelease::Files() const
{
    QMap<QString, QByteArray> files;
    const QStringList names = m_daemon->Keyfiles();
    for (const QString &name : names) {
        QFile file(m_bus->Path("profiles/" + name));
        files[name] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    return files;
}

void tst_networkmanagerrelease::KeyfilesAreAsTheyWereBefore_data()
{
    QTest::addColumn<bool>("isKilled");
    Row("the same NetworkManager", false);
    Row("NetworkManager was killed meanwhile", true);
}

void tst_networkmanagerrelease::KeyfilesAreAsTheyWereBefore()
{
    QFETCH(bool, isKilled);
    const QMap<QString, QByteArray> before = Files();
    QCOMPARE(before.size(), 3);
    QCOMPARE(Run("--apply").status, 0);
    const QMap<QString, QByteArray> ruled = Files();
    QCOMPARE(ruled.keys(), before.keys());
    QVERIFY(ruled.first() != before.first());
    QCOMPARE(NetworkManagerDaemon::Nmcli({"connection", "modify", "Home", "ipv4.dns", "192.0.2.54"}),
             QString());
    if (isKilled) {
        m_daemon->Kill();
        QVERIFY2(m_daemon->Start(), qPrintable(m_daemon->WhyNot()));
    }
    QCOMPARE(Run("--release").status, 0);
    QVERIFY(m_daemon->Keyfile("Home").contains("dns=192.0.2.54;"));
    // Without what somebody else has changed.
    QCOMPARE(NetworkManagerDaemon::Nmcli({"connection", "modify", "Home", "ipv4.dns", ""}), QString());
    QCOMPARE(Files(), before);
}

int main(int argc, char **argv)
{
    // Before there is a second thread.
    whyNoNamespace = Namespace::Enter();
    QCoreApplication application(argc, argv);
    tst_networkmanagerrelease test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_networkmanagerrelease.moc"
