#include "Namespace.h"
#include "NetworkManagerDaemon.h"
#include "PrivateBus.h"

#include <NetworkManagerResult.h>
#include <TemporaryDirectory.h>

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <MainWindow.h>
#include <PluginHost.h>
#include <PluginObjects.h>
#include <TraceLog.h>
#include <UserActions.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace
{

QString whyNoNamespace;

QByteArray ListOf(const QStringList &names)
{
    QByteArray items;
    for (int i = 0; i < names.size(); ++i) {
        items += "<item name=\"" + names.at(i).toUtf8() + "\" type=\"1\"/>";
    }
    return "<zeltdoc><profile>" + items + "</profile></zeltdoc>";
}

/** What nmcli tells of one profile, its keys included. */
QString Told(const QString &name, const QString &fields)
{
    return NetworkManagerDaemon::Nmcli(QStringList() << "--show-secrets"
                                                     << "--get-values" << fields << "connection"
                                                     << "show" << name);
}

WLANProfile NewProfile(const QString &name, const QString &authentication, const QString &encryption,
                       const QString &key)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.ssid = name;
    profile.bssType = "ESS";
    profile.authentication = authentication;
    profile.encryption = encryption;
    profile.keyType = encryption == "WEP" ? "networkKey" : "passPhrase";
    profile.keyMaterial = key;
    profile.keyIndex = "0";
    return profile;
}

/** The lines of a keyfile without that of the priority. */
QList<QByteArray> OtherLines(const QByteArray &keyfile)
{
    QList<QByteArray> lines = keyfile.split('\n');
    for (int i = lines.size() - 1; i >= 0; --i) {
        if (lines.at(i).startsWith("autoconnect-priority=")) {
            lines.removeAt(i);
        }
    }
    return lines;
}

} // namespace

/** The dashboard over NetworkManager itself, which has a network, a bus and profiles of its own here. */
class tst_networkmanagerdaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void ProfilesHaveTheirSecurity_data();
    void ProfilesHaveTheirSecurity();
    void KeyOfTheWrongLengthIsRefused();
    void MovingAnEntryOnThePageChangesWhatNmcliPrints();
    void ProfileMadeInTheDialogAppearsInNmcli();
    void NothingButThePriorityIsWritten();
    void KilledNetworkManagerIsToldAndTheNextOneUsed();
    void FrozenNetworkManagerIsNotWaitedForLong();
    void FiveHundredProfilesAreAllTold();

private:
    void SetList(const QStringList &names)
    {
        m_user->Write("priority-dashboard/Priority.xml", ListOf(names));
    }
    static IWLANUIPlugin *Wlan() { return PluginObjects::Wlan(); }
    /** -1 when they can't be told. */
    static int RememberedCount();
    template <typename Widget> Widget *Find(const char *name) { return m_window->findChild<Widget *>(name); }
    void OpenSettings();
    void Fill(const char *name, const QString &text);

    QScopedPointer<TemporaryDirectory> m_user;
    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<NetworkManagerDaemon> m_daemon;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<PluginHost> m_plugins;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
};

void tst_networkmanagerdaemon::initTestCase()
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
    m_user.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_user->Path().toLocal8Bit());
    QVERIFY(QDir().mkpath(m_user->FilePath("priority-dashboard")));
    HostControl::SetPluginLibraryPath(BUILD_DIRECTORY);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    m_log.reset(new TraceLog(m_user->FilePath("dashboard.log")));
    m_plugins.reset(new PluginHost(BUILD_DIRECTORY, PluginHost::KnownPlugins(WlanAutomatic)));
    m_plugins->Load();
    QCOMPARE(m_plugins->Plugins().at(0).state, PluginReady);
    QCOMPARE(m_plugins->Plugins().at(1).known.folder, QString("WLANNetworkManager"));
    QCOMPARE(m_plugins->Plugins().at(1).state, PluginReady);
    QCOMPARE(m_plugins->Plugins().at(2).state, PluginNotNeeded);
}

void tst_networkmanagerdaemon::cleanupTestCase()
{
    if (m_plugins) {
        m_plugins->Shutdown();
    }
}

void tst_networkmanagerdaemon::init()
{
    m_language.reset(new DashboardLanguage(m_plugins.data(), nullptr));
    m_window.reset(new MainWindow(m_plugins.data(), m_language.data(), m_log.data()));
    m_window->show();
}

void tst_networkmanagerdaemon::cleanup()
{
    m_window.reset();
    SetList(QStringList());
    m_daemon->RemoveProfiles();
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList());
}

int tst_networkmanagerdaemon::RememberedCount()
{
    QList<RememberedList> list;
    return Wlan()->GetRememberedList(&list) == 0 ? list.size() : -1;
}

void tst_networkmanagerdaemon::OpenSettings()
{
    m_window->OpenSettings();
    QTRY_VERIFY(Find<QTableWidget>("priorityTable") && Find<QTableWidget>("priorityTable")->isVisible());
}

void tst_networkmanagerdaemon::Fill(const char *name, const QString &text)
{
    QWidget *field = Find<QWidget>(name);
    QVERIFY2(field, name);
    QCOMPARE(UserActions::Click(field), QString());
    QCOMPARE(UserActions::PressKey(Qt::Key_A, field, Qt::ControlModifier), QString());
    QCOMPARE(UserActions::TypeText(text, field), QString());
}

void tst_networkmanagerdaemon::ProfilesHaveTheirSecurity_data()
{
    QTest::addColumn<QString>("authentication");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("told");

    const QString security = "802-11-wireless-security.";
    const QString wep = security + "key-mgmt," + security + "auth-alg," + security + "wep-key0";
    const QString wpa =
        security + "key-mgmt," + security + "proto," + security + "pairwise," + security + "psk";
    const QString eap = security + "key-mgmt,802-1x.eap";
    QTest::newRow("open") << "open"
                          << "none"
                          << ""
                          << "802-11-wireless.ssid"
                          << "open none";
    QTest::newRow("WEP") << "open"
                         << "WEP"
                         << "12345" << wep << "none\nopen\n12345";
    QTest::newRow("WEP in digits") << "open"
                                   << "WEP"
                                   << "0123456789" << wep << "none\nopen\n0123456789";
    QTest::newRow("shared WEP") << "shared"
                                << "WEP"
                                << "12345" << wep << "none\nshared\n12345";
    QTest::newRow("WPA") << "WPAPSK"
                         << "TKIP"
                         << "open sesame" << wpa << "wpa-psk\nwpa\ntkip\nopen sesame";
    QTest::newRow("WPA2") << "WPA2PSK"
                          << "CCMP"
                          << "open sesame" << wpa << "wpa-psk\nrsn\nccmp\nopen sesame";
    QTest::newRow("WPA with EAP") << "WPA(EAP)"
                                  << "TKIP"
                                  << "" << eap << "wpa-eap\nsim";
    QTest::newRow("WPA2 with EAP") << "WPA2(EAP)"
                                   << "CCMP"
                                   << "" << eap << "wpa-eap\nsim";
    QTest::newRow("802.1X") << "IEEE 802.1X"
                            << "none"
                            << "" << eap << "ieee8021x\nsim";
}

void tst_networkmanagerdaemon::ProfilesHaveTheirSecurity()
{
    QFETCH(QString, authentication);
    QFETCH(QString, encryption);
    QFETCH(QString, key);
    QFETCH(QString, fields);
    QFETCH(QString, told);
    const QString name = authentication + " " + encryption;
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile(name, authentication, encryption, key)), 0);
    // Now and then, under load, nmcli prints a profile without its keys.
    QTRY_COMPARE(Told(name, fields), told);
    WLANProfile profile;
    QCOMPARE(Wlan()->GetProfileByName(name, &profile), 0);
    QCOMPARE(profile.authentication, authentication);
    QCOMPARE(profile.encryption, encryption);
    QCOMPARE(profile.readOnly, QString("false"));
    QVERIFY(profile.keyMaterial.isNull());
    QCOMPARE(m_daemon->Keyfiles().size(), 1);
}

void tst_networkmanagerdaemon::KeyOfTheWrongLengthIsRefused()
{
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("A", "WPA2PSK", "CCMP", "short")),
             int(NetworkManagerResultProfileRefused));
    QCOMPARE(NetworkManagerDaemon::Priorities(), QStringList());
}

void tst_networkmanagerdaemon::MovingAnEntryOnThePageChangesWhatNmcliPrints()
{
    const char *const names[] = {"A", "B", "C"};
    for (const char *name : names) {
        QVERIFY(NetworkManagerDaemon::Add(name));
    }
    SetList(QStringList() << "A"
                          << "B");
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList() << "A:999"
                                                                   << "B:998"
                                                                   << "C:0");
    OpenSettings();
    QCOMPARE(UserActions::ClickRow(Find<QTableWidget>("priorityTable"), 1), QString());
    QCOMPARE(UserActions::Click(Find<QPushButton>("upButton")), QString());
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList() << "A:998"
                                                                   << "B:999"
                                                                   << "C:0");
    QCOMPARE(UserActions::Click(Find<QPushButton>("downButton")), QString());
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList() << "A:999"
                                                                   << "B:998"
                                                                   << "C:0");
}

void tst_networkmanagerdaemon::ProfileMadeInTheDialogAppearsInNmcli()
{
    OpenSettings();
    QCOMPARE(UserActions::Click(Find<QPushButton>("newButton")), QString());
    QTRY_VERIFY(Find<QWidget>("networkNameBox") && Find<QWidget>("networkNameBox")->isVisible());
    QComboBox *authentication = Find<QComboBox>("authenticationBox");
    QCOMPARE(authentication->count(), 6);
    Fill("networkNameBox", "Summer house");
    authentication->setCurrentIndex(authentication->findText("WPA2PSK"));
    Fill("keyEdit", "sea-and-sand");
    Fill("confirmKeyEdit", "sea-and-sand");
    QCOMPARE(UserActions::Click(Find<QPushButton>("newOkButton")), QString());
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList("Summer house:999"));
    const QString security = "802-11-wireless-security.";
    QCOMPARE(Told("Summer house", security + "key-mgmt," + security + "pairwise," + security + "psk"),
             QString("wpa-psk\nccmp\nsea-and-sand"));
    QVERIFY(m_daemon->Keyfile("Summer house").contains("psk=sea-and-sand"));
    const QStringList files =
        QDir(m_user->FilePath("priority-dashboard")).entryList(QDir::Files | QDir::Hidden);
    QVERIFY(files.contains("Priority.xml"));
    for (int i = 0; i < files.size(); ++i) {
        QVERIFY(!m_user->Read("priority-dashboard/" + files.at(i)).contains("sea-and-sand"));
    }
    QVERIFY(!m_user->Read("dashboard.log").contains("sea-and-sand"));
}

void tst_networkmanagerdaemon::NothingButThePriorityIsWritten()
{
    QVERIFY(NetworkManagerDaemon::Add(
        "A", QString("ipv4.method|manual|ipv4.addresses|192.0.2.7/24,192.0.2.8/24|"
                     "ipv4.gateway|192.0.2.1|ipv4.dns|192.0.2.53|ipv4.routes|"
                     "198.51.100.0/24 192.0.2.9 50|ipv6.method|manual|ipv6.addresses|"
                     "2001:db8::7/64|wifi-sec.key-mgmt|wpa-psk|wifi-sec.psk|"
                     "open sesame|connection.metered|yes|wifi.hidden|yes|"
                     "wifi.mac-address-randomization|always")
                 .split('|')));
    const QByteArray before = m_daemon->Keyfile("A");
    QVERIFY(before.contains("open sesame") && before.contains("192.0.2.8"));
    SetList(QStringList("A"));
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList("A:999"));
    QCOMPARE(OtherLines(m_daemon->Keyfile("A")), OtherLines(before));
    SetList(QStringList());
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList("A:0"));
    QCOMPARE(m_daemon->Keyfile("A"), before);
}

void tst_networkmanagerdaemon::KilledNetworkManagerIsToldAndTheNextOneUsed()
{
    QVERIFY(NetworkManagerDaemon::Add("A"));
    OpenSettings();
    m_daemon->Kill();
    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(NetworkManagerResultNotRunning));
    QVERIFY(list.isEmpty());
    // The page goes on working while there is nobody to ask.
    PriorityList entry;
    entry.name = "A";
    entry.type = "1";
    PluginObjects::Priority()->AddTopPriority(entry);
    QTRY_COMPARE(Find<QTableWidget>("priorityTable")->rowCount(), 1);
    QVERIFY2(m_daemon->Start(), qPrintable(m_daemon->WhyNot()));
    QTRY_COMPARE(NetworkManagerDaemon::Priorities(), QStringList("A:999"));
    QCOMPARE(Wlan()->GetRememberedList(&list), 0);
    QCOMPARE(list.size(), 1);
}

void tst_networkmanagerdaemon::FrozenNetworkManagerIsNotWaitedForLong()
{
    QVERIFY(NetworkManagerDaemon::Add("A"));
    m_daemon->Freeze();
    QElapsedTimer timer;
    timer.start();
    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(NetworkManagerResultNotAnswering));
    QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
    m_daemon->Thaw();
    QTRY_COMPARE(RememberedCount(), 1);
}

void tst_networkmanagerdaemon::FiveHundredProfilesAreAllTold()
{
    const int count = 500;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(3, '0');
        m_daemon->WriteKeyfile("many-" + number, "[connection]\nid=many-" + number +
                                                     "\nuuid=00000000-0000-4000-8000-000000000" + number +
                                                     "\ntype=wifi\n[wifi]\nssid=many\n");
    }
    NetworkManagerDaemon::Nmcli(QStringList() << "connection"
                                              << "reload");
    QList<RememberedList> list;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Wlan()->GetRememberedList(&list), 0);
    QCOMPARE(list.size(), count);
    qInfo("%d profiles are listed in %d ms", count, static_cast<int>(timer.elapsed()));
}

int main(int argc, char **argv)
{
    // Before there is a second thread.
    whyNoNamespace = Namespace::Enter();
    QApplication application(argc, argv);
    tst_networkmanagerdaemon test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_networkmanagerdaemon.moc"
