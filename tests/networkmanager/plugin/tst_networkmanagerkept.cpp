#include "LoadedWLAN.h"
#include "Namespace.h"
#include "NetworkManagerDaemon.h"
#include "PrivateBus.h"

#include <NetworkManagerResult.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QApplication>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QScopedPointer>
#include <QWidget>
#include <QtTest>

namespace
{

QString whyNoNamespace;

// Two of everything, and no profile is called like its network.
const char name[] = "Under the roof";
const char network[] = "attic";
const char otherName[] = "Downstairs";
const char otherNetwork[] = "cellar";

const char wpa2[] = "wifi-sec.key-mgmt|wpa-psk|wifi-sec.psk|open sesame";
const char peap[] =
    "wifi-sec.key-mgmt|wpa-eap|802-1x.eap|peap|802-1x.identity|me@example.org|802-1x.password|sesame|"
    "802-1x.phase2-auth|mschapv2|802-1x.domain-suffix-match|radius.example.org";

/** "authentication|encryption|key" as the dialog makes it of them. */
WLANProfile NewProfile(const QString &profileName, const QString &method)
{
    return LoadedWLAN::NewProfile(profileName, method.section('|', 0, 0), method.section('|', 1, 1),
                                  method.section('|', 2));
}

QStringList Lines(const QByteArray &keyfile)
{
    QStringList lines = QString::fromUtf8(keyfile).split('\n');
    lines.removeAll(QString());
    return lines;
}

QDBusMessage Ask(const QString &path, const QString &question,
                 const QList<QVariant> &arguments = QList<QVariant>())
{
    const QString service = "org.freedesktop.NetworkManager";
    QString interface = service + ".Settings";
    interface += path.startsWith("/org/freedesktop/NetworkManager/Settings/") ? ".Connection" : "";
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, question);
    call.setArguments(arguments);
    return PrivateBus::Connection().call(call);
}

/** All that NetworkManager tells of a profile. Its own program for the command line won't do: under load
 * it leaves out the keys now and then. */
QString Told(const QString &path)
{
    QString told;
    QDebug(&told) << path << Ask(path, "GetSettings") << Ask(path, "GetSecrets", {"802-11-wireless-security"})
                  << Ask(path, "GetSecrets", {"802-1x"});
    return told;
}

/** The lines of left that right lacks. */
QStringList Difference(QStringList left, const QStringList &right)
{
    for (int i = 0; i < right.size(); ++i) {
        left.removeOne(right.at(i));
    }
    return left;
}

} // namespace

/** The plug-in over NetworkManager itself: nothing that the user has is destroyed by a new profile. */
class tst_networkmanagerkept : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void ProfileOfThatNameIsKept_data();
    void ProfileOfThatNameIsKept();
    void SeveralProfilesOfOneNameAreKept();
    void OnlyNetworkNameMethodAndKeyChange_data();
    void OnlyNetworkNameMethodAndKeyChange();
    void ProfileOfAnotherNameIsNeverChanged_data();
    void ProfileOfAnotherNameIsNeverChanged();
    void CaseCounts_data();
    void CaseCounts();
    void NetworkOfAHotspotIsAnotherNetwork();
    void ProfileOfAnotherKindIsNoObstacle();
    void KeyIsInNoNotice();

private:
    static bool Add(const QString &profileName, const QString &ssid, const QString &settings);
    /** All that NetworkManager knows and all that is on the disk, keys included. */
    QStringList Everything() const;
    /** The ids of the texts that were shown. */
    static QStringList Notices();

    QScopedPointer<TemporaryDirectory> m_user;
    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<NetworkManagerDaemon> m_daemon;
    QScopedPointer<QWidget> m_window;
};

void tst_networkmanagerkept::initTestCase()
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
    m_window.reset(new QWidget);
    m_window->show();
}

void tst_networkmanagerkept::cleanupTestCase()
{
    m_window.reset();
    StandInHost::Reset(QString());
}

void tst_networkmanagerkept::init()
{
    StandInHost::Reset(m_user->Path());
    QVERIFY(LoadedWLAN::Root()->Init());
    QVERIFY(Add(otherName, otherNetwork, wpa2));
}

void tst_networkmanagerkept::cleanup()
{
    LoadedWLAN::Root()->OnDestroy();
    m_daemon->RemoveProfiles();
}

bool tst_networkmanagerkept::Add(const QString &profileName, const QString &ssid, const QString &settings)
{
    return NetworkManagerDaemon::Add(profileName, QStringList() << "wifi.ssid" << ssid
                                                                << settings.split('|', Qt::SkipEmptyParts));
}

QStringList tst_networkmanagerkept::Everything() const
{
    QStringList all;
    const QStringList files = m_daemon->Keyfiles();
    for (int i = 0; i < files.size(); ++i) {
        all += files.at(i);
        all += Lines(m_daemon->Keyfile(files.at(i).section(".nmconnection", 0, 0)));
    }
    const QList<QDBusObjectPath> profiles =
        QDBusReply<QList<QDBusObjectPath>>(Ask("/org/freedesktop/NetworkManager/Settings", "ListConnections"))
            .value();
    for (const QDBusObjectPath &profile : profiles) {
        all += Told(profile.path());
    }
    return all;
}

QStringList tst_networkmanagerkept::Notices()
{
    QCoreApplication::processEvents();
    QStringList ids;
    for (int i = 0; i < StandInHost::messages.size(); ++i) {
        // The first sign tells the direction.
        ids.append(StandInHost::messages.at(i).text.mid(1));
    }
    return ids;
}

void tst_networkmanagerkept::ProfileOfThatNameIsKept_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("notice");

    const QString newKey = "WPA2PSK|CCMP|sesame street";
    const QString account = "wifi-sec.key-mgmt|wpa-eap|802-1x.eap|";
    const int undescribed = NetworkManagerResultUndescribedProfile;
    const int weaker = NetworkManagerResultWeakerMethod;
    const int incomplete = NetworkManagerResultIncompleteKey;
    const int refused = NetworkManagerResultProfileRefused;
    const char ofAnotherKind[] = "WLAN?IDS_WLAN_KEPT_UNDESCRIBED";
    const char stronger[] = "WLAN?IDS_WLAN_KEPT_STRONGER";
    const char keyNeeded[] = "WLAN?IDS_WLAN_KEPT_KEY";
    const char notAccepted[] = "WLAN?IDS_WLAN_REFUSED";

    Row("account, open", peap, "open|none", undescribed, ofAnotherKind);
    Row("account, key", peap, newKey, undescribed, ofAnotherKind);
    Row("account, account", peap, "WPA2(EAP)|CCMP", int(NetworkManagerResultNoAccount),
        "WLAN?IDS_WLAN_NO_ACCOUNT");
    Row("account with a password", account + "pwd|802-1x.identity|me|802-1x.password|sesame", newKey,
        undescribed, ofAnotherKind);
    Row("account without anything", account + "sim", newKey, undescribed, ofAnotherKind);
    Row("LEAP",
        "wifi-sec.key-mgmt|ieee8021x|wifi-sec.auth-alg|leap|wifi-sec.leap-username|me|"
        "wifi-sec.leap-password|sesame",
        newKey, undescribed, ofAnotherKind);
    Row("hotspot", QString("wifi.mode|ap|%1").arg(wpa2), newKey, undescribed, ofAnotherKind);
    Row("open hotspot", "wifi.mode|ap", "open|none", undescribed, ofAnotherKind);
    Row("without a station", "wifi.mode|adhoc", newKey, undescribed, ofAnotherKind);
    Row("WPA3 alone", "wifi-sec.key-mgmt|sae|wifi-sec.psk|open sesame", newKey, undescribed, ofAnotherKind);
    Row("encrypted without a key", "wifi-sec.key-mgmt|owe", "open|none", undescribed, ofAnotherKind);
    Row("key in the desktop's safe", "wifi-sec.key-mgmt|wpa-psk|wifi-sec.psk-flags|1", newKey, undescribed,
        ofAnotherKind);
    Row("key asked for each time", "wifi-sec.key-mgmt|wpa-psk|wifi-sec.psk-flags|2", newKey, undescribed,
        ofAnotherKind);
    Row("WEP key in the desktop's safe", "wifi-sec.key-mgmt|none|wifi-sec.wep-key-flags|1", "open|WEP|12345",
        undescribed, ofAnotherKind);
    Row("WEP by pass phrase",
        "wifi-sec.key-mgmt|none|wifi-sec.wep-key-type|2|wifi-sec.wep-key0|"
        "a pass phrase",
        "open|WEP|12345", undescribed, ofAnotherKind);

    Row("WPA2 to open", wpa2, "open|none", weaker, stronger);
    Row("WPA2 to WEP", wpa2, "open|WEP|12345", weaker, stronger);
    Row("WPA2 to WPA", wpa2, "WPAPSK|CCMP|sesame street", weaker, stronger);
    Row("WPA2 to TKIP", wpa2, "WPA2PSK|TKIP|sesame street", weaker, stronger);
    Row("WPA2 without a key", wpa2, "WPA2PSK|CCMP|", incomplete, keyNeeded);
    Row("WPA2 with half a key", wpa2, "WPA2PSK|CCMP|sesame", incomplete, keyNeeded);
    Row("WEP to open", "wifi-sec.key-mgmt|none|wifi-sec.wep-key1|12345", "open|none", weaker, stronger);
    Row("WEP without a key", "wifi-sec.key-mgmt|none|wifi-sec.wep-key1|12345", "open|WEP|", incomplete,
        keyNeeded);
    Row("open to WPA2 without a key", "", "WPA2PSK|CCMP|", incomplete, keyNeeded);

    Row("WEP, 32 digits", "wifi-sec.key-mgmt|none|wifi-sec.wep-key1|12345",
        "open|WEP|0123456789abcdef0123456789abcdef", refused, notAccepted);
    Row("WEP, 5 letters beyond ASCII", "wifi-sec.key-mgmt|none|wifi-sec.wep-key1|12345",
        QString::fromUtf8("open|WEP|äöüßé"), refused, notAccepted);
    Row("WPA2, more bytes than fit", wpa2, "WPA2PSK|CCMP|" + QString(40, QChar(ushort(0xe4))), refused,
        notAccepted);
}

void tst_networkmanagerkept::ProfileOfThatNameIsKept()
{
    QFETCH(QString, settings);
    QFETCH(QString, wanted);
    QFETCH(int, result);
    QVERIFY(Add(name, network, settings));
    const QStringList before = Everything();
    QCOMPARE(LoadedWLAN::Store(NewProfile(name, wanted)), result);
    QCOMPARE(Everything(), before);
    QFETCH(QString, notice);
    QCOMPARE(Notices(), QStringList(notice));
}

void tst_networkmanagerkept::SeveralProfilesOfOneNameAreKept()
{
    QVERIFY(Add(name, network, QString()));
    QVERIFY(Add(name, "skylight", wpa2));
    const QStringList before = Everything();
    QCOMPARE(LoadedWLAN::Store(NewProfile(name, "WPA2PSK|CCMP|sesame street")),
             int(NetworkManagerResultSeveralProfiles));
    QCOMPARE(Everything(), before);
    QCOMPARE(Notices(), QStringList("WLAN?IDS_WLAN_KEPT_SEVERAL"));
}

void tst_networkmanagerkept::OnlyNetworkNameMethodAndKeyChange_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("keyIndex");
    QTest::addColumn<QString>("gone");
    QTest::addColumn<QString>("come");

    const QString wep = "wifi-sec.key-mgmt|none|wifi-sec.wep-key0|12345|wifi-sec.wep-key1|abcde|"
                        "wifi-sec.wep-tx-keyidx|1";
    Row("open", "", "open|none", 0, "", "");
    Row("open to WPA2", "", "WPA2PSK|CCMP|sesame street", 0, "",
        "[wifi-security]|key-mgmt=wpa-psk|pairwise=ccmp;|proto=rsn;|"
        "psk=sesame street");
    Row("open to WEP", "", "shared|WEP|12345", 0, "",
        "[wifi-security]|auth-alg=shared|key-mgmt=none|wep-key-type=1|"
        "wep-key0=12345");
    Row("WPA2", wpa2, "WPA2PSK|CCMP|sesame street", 0, "psk=open sesame", "psk=sesame street");
    Row("WPA2 with more than the words tell",
        QString("%1|wifi-sec.pmf|3|wifi-sec.proto|rsn|wifi-sec.group|ccmp,tkip|wifi-sec.wps-method|1")
            .arg(wpa2),
        "WPA2PSK|CCMP|sesame street", 0, "psk=open sesame", "psk=sesame street");
    Row("WPA to WPA2",
        QString("%1|wifi-sec.proto|wpa|wifi-sec.pairwise|tkip|wifi-sec.wps-method|1").arg(wpa2),
        "WPA2PSK|CCMP|sesame street", 0, "pairwise=tkip;|proto=wpa;|psk=open sesame",
        "pairwise=ccmp;|proto=rsn;|psk=sesame street");
    Row("WEP, another key", wep, "open|WEP|zzzzz", 2, "wep-tx-keyidx=1", "wep-key2=zzzzz|wep-tx-keyidx=2");
    Row("WEP, the first key", wep, "open|WEP|zzzzz", 0, "wep-key0=12345|wep-tx-keyidx=1", "wep-key0=zzzzz");
    Row("WEP, the other way", wep, "shared|WEP|zzzzz", 1, "wep-key1=abcde", "auth-alg=shared|wep-key1=zzzzz");
    Row("WEP to WPA2", wep, "WPA2PSK|CCMP|sesame street", 0,
        "key-mgmt=none|wep-key-type=1|wep-key0=12345|wep-key1=abcde|"
        "wep-tx-keyidx=1",
        "key-mgmt=wpa-psk|pairwise=ccmp;|proto=rsn;|psk=sesame street");
}

void tst_networkmanagerkept::OnlyNetworkNameMethodAndKeyChange()
{
    QFETCH(QString, settings);
    QFETCH(QString, wanted);
    QFETCH(int, keyIndex);
    QFETCH(QString, gone);
    QFETCH(QString, come);
    QVERIFY(Add(name, network,
                settings + "|connection.permissions|user:root|connection.metered|yes|connection.zone|home|"
                           "connection.autoconnect|no|connection.autoconnect-priority|7|connection.lldp|1|"
                           "connection.mdns|2|wifi.bssid|02:00:00:00:00:07|wifi.band|a|wifi.hidden|yes|"
                           "wifi.mac-address-randomization|always|wifi.powersave|2|ipv4.method|manual|"
                           "ipv4.addresses|192.0.2.7/24,192.0.2.8/"
                           "24|ipv4.gateway|192.0.2.1|ipv4.dns|192.0.2.53#dns.example.org|"
                           "ipv4.routes|198.51.100.0/24 192.0.2.9 50 table=7|ipv4.routing-rules|"
                           "priority 5 from 192.0.2.0/24 table 7|ipv6.method|manual|ipv6.addresses|"
                           "2001:db8::7/64|ipv6.ip6-privacy|2|proxy.method|auto|proxy.pac-url|"
                           "http://192.0.2.80/proxy.pac|proxy.browser-only|yes"));
    const QByteArray otherBefore = m_daemon->Keyfile(otherName);
    const QStringList before = Lines(m_daemon->Keyfile(name));
    QVERIFY(before.contains("pac-url=http://192.0.2.80/proxy.pac") && before.contains("metered=1"));
    WLANProfile profile = NewProfile(name, wanted);
    profile.ssid = "skylight";
    profile.keyIndex = QString::number(keyIndex);

    QCOMPARE(LoadedWLAN::Store(profile), 0);
    const QStringList after = Lines(m_daemon->Keyfile(name));
    QCOMPARE(Difference(before, after), QString("ssid=attic|" + gone).split('|', Qt::SkipEmptyParts));
    QCOMPARE(Difference(after, before), QString("ssid=skylight|" + come).split('|', Qt::SkipEmptyParts));
    QCOMPARE(m_daemon->Keyfiles().size(), 2);
    QCOMPARE(m_daemon->Keyfile(otherName), otherBefore);
    QCOMPARE(Notices(), QStringList());
}

void tst_networkmanagerkept::ProfileOfAnotherNameIsNeverChanged_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("result");
    const int better = NetworkManagerResultBetterProfile;
    Row("account", peap, "WPA2PSK|CCMP|sesame street", better);
    Row("WPA3 alone", "wifi-sec.key-mgmt|sae|wifi-sec.psk|open sesame", "WPA2PSK|CCMP|sesame street", better);
    Row("weaker", wpa2, "open|none", better);
    Row("without a key", wpa2, "WPA2PSK|CCMP|", better);
    Row("the same", wpa2, "WPA2PSK|CCMP|sesame street", 0);
    Row("stronger", "", "WPA2PSK|CCMP|sesame street", 0);
}

void tst_networkmanagerkept::ProfileOfAnotherNameIsNeverChanged()
{
    QFETCH(QString, settings);
    QFETCH(QString, wanted);
    QFETCH(int, result);
    QVERIFY(Add(name, network, settings));
    const QByteArray before = m_daemon->Keyfile(name);
    QCOMPARE(LoadedWLAN::Store(NewProfile(network, wanted)), result);
    QCOMPARE(m_daemon->Keyfile(name), before);
    QCOMPARE(m_daemon->Keyfiles().size(), result == 0 ? 3 : 2);
    QCOMPARE(Notices(), result == 0 ? QStringList() : QStringList("WLAN?IDS_WLAN_BETTER_PROFILE"));
}

void tst_networkmanagerkept::CaseCounts_data()
{
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("newNetwork");
    Row("of the name", "under the roof", "skylight");
    Row("of the network name", "Upstairs", "Attic");
}

void tst_networkmanagerkept::CaseCounts()
{
    QFETCH(QString, newName);
    QFETCH(QString, newNetwork);
    QVERIFY(Add(name, network, wpa2));
    const QByteArray before = m_daemon->Keyfile(name);
    WLANProfile profile = NewProfile(newName, "open|none");
    profile.ssid = newNetwork;
    QCOMPARE(LoadedWLAN::Store(profile), 0);
    QCOMPARE(m_daemon->Keyfile(name), before);
    QVERIFY(m_daemon->Keyfile(newName).contains("ssid=" + newNetwork.toUtf8()));
}

void tst_networkmanagerkept::NetworkOfAHotspotIsAnotherNetwork()
{
    QVERIFY(Add(name, network, QString("wifi.mode|ap|%1").arg(wpa2)));
    const QByteArray before = m_daemon->Keyfile(name);
    QCOMPARE(LoadedWLAN::Store(NewProfile(network, "open|none")), 0);
    QCOMPARE(m_daemon->Keyfile(name), before);
    QCOMPARE(m_daemon->Keyfiles().size(), 3);
}

void tst_networkmanagerkept::ProfileOfAnotherKindIsNoObstacle()
{
    QVERIFY(NetworkManagerDaemon::Nmcli(
                {"connection", "add", "type", "ethernet", "con-name", name, "ifname", "*"})
                .contains("successfully added"));
    const QStringList before = m_daemon->Keyfiles();
    QCOMPARE(LoadedWLAN::Store(NewProfile(name, "open|none")), 0);
    QCOMPARE(m_daemon->Keyfiles().size(), before.size() + 1);
    QCOMPARE(Notices(), QStringList());
}

void tst_networkmanagerkept::KeyIsInNoNotice()
{
    QVERIFY(Add(name, network, wpa2));
    QCOMPARE(LoadedWLAN::Store(NewProfile(name, "WPAPSK|CCMP|sesame street")),
             int(NetworkManagerResultWeakerMethod));
    QCOMPARE(Notices().size(), 1);
    const MessageCall message = StandInHost::messages.first();
    QVERIFY(!(message.title + message.text + message.detail).contains("sesame"));
    QCOMPARE(message.parent, m_window.data());
    QCOMPARE(message.icon, QMessageBox::Information);
}

int main(int argc, char **argv)
{
    // Before there is a second thread.
    whyNoNamespace = Namespace::Enter();
    QApplication application(argc, argv);
    tst_networkmanagerkept test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_networkmanagerkept.moc"
