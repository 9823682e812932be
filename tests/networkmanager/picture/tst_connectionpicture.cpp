#include <ConnectionPicture.h>
#include <FailureWords.h>
#include <Row.h>

#include <QtTest>

namespace
{

// As NetworkManager's interface has them.
const unsigned int unmanaged = 10;
const unsigned int unavailable = 20;
const unsigned int disconnected = 30;
const unsigned int privacy = 0x1;
const unsigned int tkip = 0x4;
const unsigned int ccmp = 0x8;
const unsigned int psk = 0x100;
const unsigned int eap = 0x200;
const unsigned int sae = 0x400;
const unsigned int owe = 0x800;
const unsigned int oweTransition = 0x1000;
const unsigned int suiteB = 0x2000;
const unsigned int adHocMode = 1;

const char wifiType[] = "802-11-wireless";

/** NetworkManager as a test makes it up. */
struct Scene {
    ConnectionPicture picture;

    Scene() { picture.source = ConnectionState::SourceKnown; }

    NetworkDevice *AddWifi(const QString &name = "wlan0")
    {
        NetworkDevice device;
        device.path = "/device/" + name;
        device.name = name;
        device.kind = NetworkDevice::Wifi;
        device.state = disconnected;
        device.addresses << QByteArray::fromHex("020000000001");
        picture.state.devices.append(device);
        return &picture.state.devices.last();
    }

    NetworkDevice *AddModem(const QString &name = "cdc-wdm0")
    {
        NetworkDevice device;
        device.path = "/device/" + name;
        device.name = name;
        device.kind = NetworkDevice::Modem;
        device.state = disconnected;
        picture.state.devices.append(device);
        return &picture.state.devices.last();
    }

    /** Received by the device that was added last. */
    AccessPoint *AddPoint(const QByteArray &ssid, int strength = 50, unsigned int flags = 0,
                          unsigned int wpa = 0, unsigned int rsn = 0)
    {
        AccessPoint point;
        point.path = QString("/point/%1").arg(picture.state.accessPoints.size());
        point.ssid = ssid;
        point.bssid = QByteArray::fromHex("02000000aa0") + char('0' + picture.state.accessPoints.size());
        point.strength = strength;
        point.frequency = 2437;
        point.mode = 2;
        point.flags = flags;
        point.wpaFlags = wpa;
        point.rsnFlags = rsn;
        picture.state.accessPoints.append(point);
        picture.state.devices.last().accessPoints.append(point.path);
        return &picture.state.accessPoints.last();
    }

    AccessPoint *AddKeyPoint(const QByteArray &ssid, int strength = 50)
    {
        return AddPoint(ssid, strength, privacy, 0, psk | ccmp);
    }

    static NMVariantMapMap Settings(const QString &name, const QByteArray &ssid)
    {
        NMVariantMapMap settings;
        settings["connection"]["id"] = name;
        settings["connection"]["uuid"] = name;
        settings["connection"]["type"] = wifiType;
        settings[wifiType]["ssid"] = ssid;
        settings[wifiType]["mode"] = "infrastructure";
        return settings;
    }

    static NMVariantMapMap KeySettings(const QString &name, const QByteArray &ssid)
    {
        NMVariantMapMap settings = Settings(name, ssid);
        settings["802-11-wireless-security"]["key-mgmt"] = "wpa-psk";
        return settings;
    }

    static NMVariantMapMap MobileSettings(const QString &name)
    {
        NMVariantMapMap settings;
        settings["connection"]["id"] = name;
        settings["connection"]["type"] = "gsm";
        settings["gsm"]["apn"] = "internet";
        return settings;
    }

    QString Add(const NMVariantMapMap &settings)
    {
        ProfilePlace place;
        place.path = QString("/profile/%1").arg(picture.profiles.size());
        picture.profiles.append(NetworkProfile::Make(place, settings, CallerRights(), "me"));
        return place.path;
    }

    QString Connect(const QString &profile, unsigned int state, const QString &type = wifiType)
    {
        ActiveObject object;
        object.path = QString("/active/%1").arg(picture.state.connections.size());
        object.profile = profile;
        object.name = "its own name";
        object.type = type;
        object.state = state;
        if (!picture.state.devices.isEmpty()) {
            object.devices << picture.state.devices.last().path;
            picture.state.devices.last().activeConnection = object.path;
        }
        picture.state.connections.append(object);
        return object.path;
    }

    ConnectionRecords Records() const { return ConnectionRecords::Of(picture); }
    ConnectionProfile Profile() const { return Records().profiles.value(0); }
};

typedef void (*Setup)(Scene *scene);

} // namespace

Q_DECLARE_METATYPE(Setup)

/** What is told of connections, for every state that NetworkManager can be in. */
class tst_connectionpicture : public QObject
{
    Q_OBJECT

private slots:
    void NothingIsToldOfWhatIsNotKnown_data();
    void NothingIsToldOfWhatIsNotKnown();
    void RadiosAreTold_data();
    void RadiosAreTold();
    void UserMayConnect_data();
    void UserMayConnect();
    void ProfileCanBeUsedOrNot_data();
    void ProfileCanBeUsedOrNot();
    void SecurityFitsOrNot_data();
    void SecurityFitsOrNot();
    void StrongestStationIsTheSignal();
    void StationsOfAnotherDeviceCount();
    void ProfileInUseIsUsable();
    void ProfilesOfOneNetworkAreEachTold();
    void ProfilesOfOneNameAreEachTold();
    void HotspotIsNoProfileToJoin();
    void ProfilesComeInTheOrderInWhichNetworkManagerChooses();
    void FailureIsTold();

    void StageIsThatOfTheDevice_data();
    void StageIsThatOfTheDevice();
    void ConnectionThatIsDownIsNotTold_data();
    void ConnectionThatIsDownIsNotTold();
    void TrafficIsThatOfThePrimaryConnection();
    void NobodyCarriesTrafficWithoutAPrimaryConnection();
    void ConnectionIsDescribed();
    void OtherKindsOfConnectionAreTold();
    void LoopbackIsNoConnection();

    void StationsOfOneNetworkAreOne();
    void NetworksOfOneNameAndTwoSecuritiesAreTwo();
    void HiddenNetworksAreNotListed();
    void NetworkHasTheProfilesThatFitTheLatestFirst();
    void NetworkInUseIsMarked();
    void ProtectionIsTold_data();
    void ProtectionIsTold();

    void FailureOfADevice_data();
    void FailureOfADevice();
};

void tst_connectionpicture::NothingIsToldOfWhatIsNotKnown_data()
{
    QTest::addColumn<int>("source");
    Row("still asked", int(ConnectionState::SourceNotKnown));
    Row("gone", int(ConnectionState::SourceGone));
}

void tst_connectionpicture::NothingIsToldOfWhatIsNotKnown()
{
    QFETCH(int, source);
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("A");
    scene.Connect(scene.Add(Scene::Settings("A", "A")), 2);
    scene.picture.source = source;
    const ConnectionRecords records = scene.Records();
    QCOMPARE(records.state.source, source);
    QCOMPARE(records.state.sourceName, QString("networkmanager"));
    QCOMPARE(records.state.wifi, int(ConnectionState::RadioNotKnown));
    QVERIFY(!records.state.mayConnect);
    QVERIFY(records.connections.isEmpty());
    QVERIFY(records.profiles.isEmpty());
    QVERIFY(records.networks.isEmpty());
}

void tst_connectionpicture::RadiosAreTold_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<int>("wifi");
    QTest::addColumn<int>("mobile");
    const int on = ConnectionState::RadioOn;
    const int off = ConnectionState::RadioOff;
    const int blocked = ConnectionState::RadioBlocked;
    const int missing = ConnectionState::RadioMissing;
    Row("no device", Setup([](Scene *) {}), missing, missing);
    Row("both", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddModem();
        }),
        on, on);
    Row("Wi-Fi off", Setup([](Scene *scene) {
            scene->AddWifi()->state = unavailable;
            scene->picture.state.wifi.isEnabled = false;
        }),
        off, missing);
    Row("Wi-Fi blocked", Setup([](Scene *scene) {
            scene->AddWifi()->state = unavailable;
            scene->picture.state.wifi.isEnabled = false;
            scene->picture.state.wifi.isUnblocked = false;
        }),
        blocked, missing);
    Row("mobile broadband off", Setup([](Scene *scene) {
            scene->AddModem()->state = unavailable;
            scene->picture.state.mobile.isEnabled = false;
        }),
        missing, off);
    Row("not managed", Setup([](Scene *scene) { scene->AddWifi()->state = unmanaged; }), missing, missing);
}

void tst_connectionpicture::RadiosAreTold()
{
    QFETCH(Setup, setup);
    Scene scene;
    setup(&scene);
    QTEST(scene.Records().state.wifi, "wifi");
    QTEST(scene.Records().state.mobile, "mobile");
}

void tst_connectionpicture::UserMayConnect_data()
{
    QTest::addColumn<int>("right");
    QTest::addColumn<bool>("may");
    Row("yes", int(CallerRights::Allowed), true);
    Row("with a password", int(CallerRights::AllowedOnceAsked), true);
    Row("no", int(CallerRights::Denied), false);
}

void tst_connectionpicture::UserMayConnect()
{
    QFETCH(int, right);
    Scene scene;
    scene.picture.rights.control = CallerRights::Right(right);
    QTEST(scene.Records().state.mayConnect, "may");
}

typedef ConnectionProfile Profile;

static void AddRowsOfReach()
{
    Row("in range, under another name", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("OfficeNet");
            scene->Add(Scene::Settings("Office", "OfficeNet"));
        }),
        int(Profile::UsePossible));
    Row("another network has its name", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("Office");
            scene->Add(Scene::Settings("Office", "OfficeNet"));
        }),
        int(Profile::UseOutOfRange));
    Row("bytes that are no text", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("Caf\xe9");
            scene->Add(Scene::Settings("A", "Caf\xe9"));
        }),
        int(Profile::UsePossible));
    Row("no adapter", Setup([](Scene *scene) { scene->Add(Scene::Settings("A", "A")); }),
        int(Profile::UseNoDevice));
    Row("adapter not managed", Setup([](Scene *scene) {
            scene->AddWifi()->state = unmanaged;
            scene->AddPoint("A");
            scene->Add(Scene::Settings("A", "A"));
        }),
        int(Profile::UseNoDevice));
    Row("adapter that does not work", Setup([](Scene *scene) {
            scene->AddWifi()->state = unavailable;
            scene->Add(Scene::Settings("A", "A"));
        }),
        int(Profile::UseNoDevice));
    Row("switched off", Setup([](Scene *scene) {
            scene->AddWifi()->state = unavailable;
            scene->picture.state.wifi.isEnabled = false;
            scene->Add(Scene::Settings("A", "A"));
        }),
        int(Profile::UseDeviceOff));
    Row("blocked", Setup([](Scene *scene) {
            scene->AddWifi()->state = unavailable;
            scene->picture.state.wifi.isUnblocked = false;
            scene->Add(Scene::Settings("A", "A"));
        }),
        int(Profile::UseDeviceBlocked));
}

static void AddRowsOfHiddenNetworksAndAdapters()
{
    Row("hidden, out of range", Setup([](Scene *scene) {
            scene->AddWifi();
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["hidden"] = true;
            scene->Add(settings);
        }),
        int(Profile::UseHiddenIsTried));
    Row("hidden, its station was used before", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("");
            scene->picture.state.accessPoints.last().bssid = QByteArray::fromHex("02000000ab01");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["hidden"] = true;
            settings[wifiType]["seen-bssids"] = QStringList("02:00:00:00:AB:01");
            scene->Add(settings);
        }),
        int(Profile::UsePossible));
    Row("hidden, another hidden station", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["hidden"] = true;
            settings[wifiType]["seen-bssids"] = QStringList("02:00:00:00:AB:01");
            scene->Add(settings);
        }),
        int(Profile::UseHiddenIsTried));
    Row("another interface", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings["connection"]["interface-name"] = "wlan1";
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("its interface", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings["connection"]["interface-name"] = "wlan0";
            scene->Add(settings);
        }),
        int(Profile::UsePossible));
    Row("the other interface sees it", Setup([](Scene *scene) {
            scene->AddWifi("wlan1");
            scene->AddWifi("wlan0");
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings["connection"]["interface-name"] = "wlan1";
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("another adapter", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["mac-address"] = QByteArray::fromHex("020000000002");
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
}

static void AddRowsOfStations()
{
    Row("refused adapter", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["mac-address-blacklist"] = QStringList("02:00:00:00:00:01");
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("another band", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["band"] = "a";
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("its band", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A")->frequency = 5180;
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["band"] = "a";
            scene->Add(settings);
        }),
        int(Profile::UsePossible));
    Row("another channel", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["band"] = "bg";
            settings[wifiType]["channel"] = 11U;
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("another station", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["bssid"] = QByteArray::fromHex("02000000ab01");
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("another security", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            scene->Add(Scene::KeySettings("A", "A"));
        }),
        int(Profile::UseOtherSecurity));
}

static void AddRowsOfUsers()
{
    Row("a network between computers has its name", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A")->mode = adHocMode;
            scene->Add(Scene::Settings("A", "A"));
        }),
        int(Profile::UseOutOfRange));
    Row("a network between computers that nobody has begun", Setup([](Scene *scene) {
            scene->AddWifi();
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings[wifiType]["mode"] = "adhoc";
            scene->Add(settings);
        }),
        int(Profile::UsePossible));
    Row("of other users", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings["connection"]["permissions"] = QStringList("user:somebody:");
            scene->Add(settings);
        }),
        int(Profile::UseOtherUsers));
    Row("of this user among others", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A");
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings["connection"]["permissions"] = QStringList() << "user:somebody:"
                                                                  << "user:me:";
            scene->Add(settings);
        }),
        int(Profile::UsePossible));
    Row("without its account", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->AddPoint("A", 50, privacy, 0, eap | ccmp);
            NMVariantMapMap settings = Scene::Settings("A", "A");
            settings["802-11-wireless-security"]["key-mgmt"] = "wpa-eap";
            scene->Add(settings);
        }),
        int(Profile::UseNoAccount));
}

static void AddRowsOfModems()
{
    Row("modem ready", Setup([](Scene *scene) {
            scene->AddModem();
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UsePossible));
    Row("no modem", Setup([](Scene *scene) {
            scene->AddWifi();
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UseNoDevice));
    Row("modem off", Setup([](Scene *scene) {
            scene->AddModem()->state = unavailable;
            scene->picture.state.mobile.isEnabled = false;
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UseDeviceOff));
    Row("modem blocked", Setup([](Scene *scene) {
            scene->AddModem()->state = unavailable;
            scene->picture.state.mobile.isUnblocked = false;
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UseDeviceBlocked));
    Row("modem that does not work", Setup([](Scene *scene) {
            scene->AddModem()->state = unavailable;
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UseNoDevice));
    Row("SIM locked", Setup([](Scene *scene) {
            NetworkDevice *modem = scene->AddModem();
            modem->state = unavailable;
            modem->reason = 46;
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UseSimLocked));
    Row("another modem", Setup([](Scene *scene) {
            scene->AddModem()->modemId = "1";
            NMVariantMapMap settings = Scene::MobileSettings("Phone");
            settings["gsm"]["device-id"] = "2";
            scene->Add(settings);
        }),
        int(Profile::UseOtherDevice));
    Row("modem of another kind", Setup([](Scene *scene) {
            scene->AddModem()->capabilities = 0x2;
            scene->Add(Scene::MobileSettings("Phone"));
        }),
        int(Profile::UseOtherDevice));
}

void tst_connectionpicture::ProfileCanBeUsedOrNot_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<int>("use");
    AddRowsOfReach();
    AddRowsOfHiddenNetworksAndAdapters();
    AddRowsOfStations();
    AddRowsOfUsers();
    AddRowsOfModems();
}

void tst_connectionpicture::ProfileCanBeUsedOrNot()
{
    QFETCH(Setup, setup);
    Scene scene;
    setup(&scene);
    QTEST(scene.Profile().use, "use");
}

void tst_connectionpicture::SecurityFitsOrNot_data()
{
    QTest::addColumn<QString>("keyManagement");
    QTest::addColumn<QStringList>("versions");
    QTest::addColumn<QStringList>("ciphers");
    QTest::addColumn<unsigned int>("flags");
    QTest::addColumn<unsigned int>("wpa");
    QTest::addColumn<unsigned int>("rsn");
    QTest::addColumn<unsigned int>("capabilities");
    QTest::addColumn<bool>("fits");
    const QStringList any;
    const unsigned int all = 0xffff;
    Row("open, open", "", any, any, 0U, 0U, 0U, all, true);
    Row("open, WEP", "", any, any, privacy, 0U, 0U, all, false);
    Row("open, WPA2", "", any, any, privacy, 0U, (psk | ccmp), all, false);
    Row("open, OWE beside it", "", any, any, 0U, 0U, oweTransition, all, true);
    Row("open, OWE alone", "", any, any, 0U, 0U, (owe | ccmp), all, false);
    Row("OWE, OWE", "owe", any, any, 0U, 0U, (owe | ccmp), all, true);
    Row("OWE, open", "owe", any, any, 0U, 0U, 0U, all, false);
    Row("WEP, WEP", "none", any, any, privacy, 0U, 0U, all, true);
    Row("WEP, open", "none", any, any, 0U, 0U, 0U, all, false);
    Row("WEP, WPA2", "none", any, any, privacy, 0U, (psk | ccmp), all, false);
    Row("WEP, adapter without", "none", any, any, privacy, 0U, 0U, 0x38U, false);
    Row("PSK, WPA2", "wpa-psk", any, any, privacy, 0U, (psk | ccmp), all, true);
    Row("PSK, WPA", "wpa-psk", any, any, privacy, (psk | tkip), 0U, all, true);
    Row("PSK, WPA3", "wpa-psk", any, any, privacy, 0U, (sae | ccmp), all, true);
    Row("PSK, EAP", "wpa-psk", any, any, privacy, 0U, (eap | ccmp), all, false);
    Row("PSK, WEP", "wpa-psk", any, any, privacy, 0U, 0U, all, false);
    Row("PSK with WPA2 only, WPA", "wpa-psk", QStringList("rsn"), any, privacy, (psk | tkip), 0U, all, false);
    Row("PSK with WPA only, both", "wpa-psk", QStringList("wpa"), any, privacy, (psk | tkip), (psk | ccmp),
        all, true);
    Row("PSK with TKIP only, CCMP", "wpa-psk", any, QStringList("tkip"), privacy, 0U, (psk | ccmp), all,
        false);
    Row("PSK with CCMP only, both ciphers", "wpa-psk", any, QStringList("ccmp"), privacy, 0U,
        (psk | ccmp | tkip), all, true);
    Row("PSK, adapter without WPA2", "wpa-psk", any, any, privacy, 0U, (psk | ccmp), 0x1fU, false);
    Row("PSK, adapter that tells nothing", "wpa-psk", any, any, privacy, 0U, (psk | ccmp), 0U, true);
    Row("SAE, WPA3", "sae", any, any, privacy, 0U, (sae | ccmp), all, true);
    Row("SAE, WPA2", "sae", any, any, privacy, 0U, (psk | ccmp), all, false);
    Row("EAP, EAP", "wpa-eap", any, any, privacy, 0U, (eap | ccmp), all, true);
    Row("EAP, PSK", "wpa-eap", any, any, privacy, 0U, (psk | ccmp), all, false);
    Row("suite B, suite B", "wpa-eap-suite-b-192", any, any, privacy, 0U, suiteB, all, true);
    Row("suite B, EAP", "wpa-eap-suite-b-192", any, any, privacy, 0U, (eap | ccmp), all, false);
    Row("dynamic WEP, WEP", "ieee8021x", any, any, privacy, 0U, 0U, all, true);
    Row("dynamic WEP, open", "ieee8021x", any, any, 0U, 0U, 0U, all, false);
}

void tst_connectionpicture::SecurityFitsOrNot()
{
    QFETCH(QString, keyManagement);
    QFETCH(QStringList, versions);
    QFETCH(QStringList, ciphers);
    QFETCH(unsigned int, flags);
    QFETCH(unsigned int, wpa);
    QFETCH(unsigned int, rsn);
    QFETCH(unsigned int, capabilities);
    QFETCH(bool, fits);
    Scene scene;
    scene.AddWifi()->capabilities = capabilities;
    scene.AddPoint("A", 50, flags, wpa, rsn);
    NMVariantMapMap settings = Scene::Settings("A", "A");
    if (!keyManagement.isEmpty()) {
        QVariantMap &security = settings["802-11-wireless-security"];
        security["key-mgmt"] = keyManagement;
        security["proto"] = versions;
        security["pairwise"] = ciphers;
        settings["802-1x"]["identity"] = "somebody";
    }
    scene.Add(settings);
    QCOMPARE(scene.Profile().use,
             int(fits ? ConnectionProfile::UsePossible : ConnectionProfile::UseOtherSecurity));
}

void tst_connectionpicture::StrongestStationIsTheSignal()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("A", 20);
    scene.AddPoint("A", 70);
    scene.AddKeyPoint("A", 90);
    scene.Add(Scene::Settings("A", "A"));
    QCOMPARE(scene.Profile().signal, 70);
}

void tst_connectionpicture::StationsOfAnotherDeviceCount()
{
    Scene scene;
    scene.AddWifi("wlan0");
    scene.AddPoint("A", 20);
    scene.AddWifi("wlan1");
    scene.AddPoint("A", 70);
    scene.Add(Scene::Settings("A", "A"));
    QCOMPARE(scene.Profile().device, QString("wlan1"));
    QCOMPARE(scene.Profile().signal, 70);
}

void tst_connectionpicture::ProfileInUseIsUsable()
{
    Scene scene;
    scene.AddWifi();
    scene.Connect(scene.Add(Scene::Settings("A", "A")), 2);
    QCOMPARE(scene.Profile().use, int(ConnectionProfile::UsePossible));
    QCOMPARE(scene.Profile().device, QString("wlan0"));
}

void tst_connectionpicture::ProfilesOfOneNetworkAreEachTold()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("A");
    scene.Add(Scene::Settings("one", "A"));
    scene.Add(Scene::KeySettings("two", "A"));
    const QList<ConnectionProfile> profiles = scene.Records().profiles;
    QCOMPARE(profiles.size(), 2);
    QCOMPARE(profiles.at(0).use, int(ConnectionProfile::UsePossible));
    QCOMPARE(profiles.at(1).use, int(ConnectionProfile::UseOtherSecurity));
}

void tst_connectionpicture::ProfilesOfOneNameAreEachTold()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("A");
    const QString first = scene.Add(Scene::Settings("Home", "A"));
    const QString second = scene.Add(Scene::Settings("Home", "B"));
    const QList<ConnectionProfile> profiles = scene.Records().profiles;
    QCOMPARE(profiles.size(), 2);
    QCOMPARE(profiles.at(0).id, first);
    QCOMPARE(profiles.at(0).use, int(ConnectionProfile::UsePossible));
    QCOMPARE(profiles.at(1).id, second);
    QCOMPARE(profiles.at(1).use, int(ConnectionProfile::UseOutOfRange));
}

void tst_connectionpicture::HotspotIsNoProfileToJoin()
{
    Scene scene;
    scene.AddWifi();
    NMVariantMapMap settings = Scene::Settings("A", "A");
    settings[wifiType]["mode"] = "ap";
    scene.Add(settings);
    QVERIFY(scene.Records().profiles.isEmpty());
}

void tst_connectionpicture::ProfilesComeInTheOrderInWhichNetworkManagerChooses()
{
    Scene scene;
    const struct {
        const char *name;
        int priority;
        qulonglong timestamp;
        bool connectsByItself;
    } profiles[] = {{"a, by hand", 9, 9, false}, {"b", 0, 0, true},  {"c", 5, 1, true},
                    {"d", 0, 7, true},           {"e", -1, 9, true}, {"f", 5, 2, true}};
    for (const auto &profile : profiles) {
        NMVariantMapMap settings = Scene::Settings(profile.name, "x");
        settings["connection"]["autoconnect-priority"] = profile.priority;
        settings["connection"]["timestamp"] = profile.timestamp;
        settings["connection"]["autoconnect"] = profile.connectsByItself;
        scene.Add(settings);
    }
    QStringList names;
    for (const ConnectionProfile &profile : scene.Records().profiles) {
        names.append(profile.name);
    }
    QCOMPARE(names.join(' '), QString("f c d b e a, by hand"));
}

void tst_connectionpicture::FailureIsTold()
{
    Scene scene;
    ProfileFailure failure;
    failure.failure = FailureWrongKey;
    failure.when = 1234;
    scene.picture.failures.insert(scene.Add(Scene::Settings("A", "A")), failure);
    QCOMPARE(scene.Profile().failure, int(FailureWrongKey));
    QCOMPARE(scene.Profile().failedAt, qint64(1234));
}

void tst_connectionpicture::StageIsThatOfTheDevice_data()
{
    QTest::addColumn<unsigned int>("state");
    QTest::addColumn<unsigned int>("deviceState");
    QTest::addColumn<int>("stage");
    Row("before the device begins", 1U, 30U, int(StagePreparing));
    Row("preparing", 1U, 40U, int(StagePreparing));
    Row("configuring", 1U, 50U, int(StageAuthenticating));
    Row("waiting for a key", 1U, 60U, int(StageAuthenticating));
    Row("asking for an address", 1U, 70U, int(StageGettingAddress));
    Row("checking the address", 1U, 80U, int(StageGettingAddress));
    Row("waiting for what depends on it", 1U, 90U, int(StageGettingAddress));
    Row("up", 2U, 100U, int(StageConnected));
    Row("going down", 3U, 110U, int(StageDisconnecting));
}

void tst_connectionpicture::StageIsThatOfTheDevice()
{
    QFETCH(unsigned int, state);
    QFETCH(unsigned int, deviceState);
    Scene scene;
    scene.AddWifi()->state = deviceState;
    scene.Connect(scene.Add(Scene::Settings("A", "A")), state);
    QTEST(scene.Records().connections.value(0).stage, "stage");
}

void tst_connectionpicture::ConnectionThatIsDownIsNotTold_data()
{
    QTest::addColumn<unsigned int>("state");
    Row("down", 4U);
    Row("not known", 0U);
}

void tst_connectionpicture::ConnectionThatIsDownIsNotTold()
{
    QFETCH(unsigned int, state);
    Scene scene;
    scene.AddWifi();
    scene.Connect(scene.Add(Scene::Settings("A", "A")), state);
    QVERIFY(scene.Records().connections.isEmpty());
}

void tst_connectionpicture::TrafficIsThatOfThePrimaryConnection()
{
    Scene scene;
    scene.AddWifi();
    scene.Connect(scene.Add(Scene::Settings("coming up", "A")), 1);
    scene.Connect(scene.Add(Scene::Settings("up", "B")), 2);
    scene.picture.state.primaryConnection = scene.Connect(scene.Add(Scene::Settings("first", "C")), 2);
    QStringList told;
    const QList<ActiveConnection> connections = scene.Records().connections;
    for (const ActiveConnection &connection : connections) {
        told << connection.name + (connection.carriesTraffic ? " carries" : "");
    }
    QCOMPARE(told, QStringList() << "first carries"
                                 << "up"
                                 << "coming up");
}

void tst_connectionpicture::NobodyCarriesTrafficWithoutAPrimaryConnection()
{
    Scene scene;
    scene.AddWifi();
    scene.Connect(scene.Add(Scene::Settings("A", "A")), 2);
    QVERIFY(!scene.Records().connections.value(0).carriesTraffic);
}

void tst_connectionpicture::ConnectionIsDescribed()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("OfficeNet", 71);
    scene.picture.state.devices.last().activeAccessPoint = scene.picture.state.accessPoints.last().path;
    const QString profile = scene.Add(Scene::Settings("Office", "OfficeNet"));
    const QString path = scene.Connect(profile, 2);
    const ActiveConnection connection = scene.Records().connections.value(0);
    QCOMPARE(connection.id, path);
    QCOMPARE(connection.profileId, profile);
    QCOMPARE(connection.name, QString("Office"));
    QCOMPARE(connection.network, QString("OfficeNet"));
    QCOMPARE(connection.type, QString("1"));
    QCOMPARE(connection.device, QString("wlan0"));
    QCOMPARE(connection.signal, 71);
    QVERIFY(!connection.isVpn);
}

void tst_connectionpicture::OtherKindsOfConnectionAreTold()
{
    Scene scene;
    scene.AddModem();
    scene.Connect(scene.Add(Scene::MobileSettings("Phone")), 2, "gsm");
    scene.Connect("/wired", 2, "802-3-ethernet");
    scene.Connect("/vpn", 2, "vpn");
    scene.picture.state.connections.last().isVpn = true;
    const QList<ActiveConnection> connections = scene.Records().connections;
    QCOMPARE(connections.size(), 3);
    QCOMPARE(connections.at(0).type, QString("2"));
    QCOMPARE(connections.at(0).signal, -1);
    QCOMPARE(connections.at(1).type, QString("0"));
    QCOMPARE(connections.at(1).name, QString("its own name"));
    QVERIFY(connections.at(1).network.isEmpty());
    QVERIFY(connections.at(2).isVpn);
}

void tst_connectionpicture::LoopbackIsNoConnection()
{
    Scene scene;
    scene.Connect("/lo", 2, "loopback");
    QVERIFY(scene.Records().connections.isEmpty());
}

void tst_connectionpicture::StationsOfOneNetworkAreOne()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("B", 50);
    scene.AddPoint("A", 40);
    scene.AddPoint("A", 60);
    const QList<VisibleNetwork> networks = scene.Records().networks;
    QCOMPARE(networks.size(), 2);
    QCOMPARE(networks.at(0).name, QString("A"));
    QCOMPARE(networks.at(0).signal, 60);
}

void tst_connectionpicture::NetworksOfOneNameAndTwoSecuritiesAreTwo()
{
    Scene scene;
    scene.AddWifi();
    scene.AddKeyPoint("A", 40);
    scene.AddPoint("A", 60);
    const QList<VisibleNetwork> networks = scene.Records().networks;
    QCOMPARE(networks.size(), 2);
    QVERIFY(networks.at(0).id != networks.at(1).id);
    QCOMPARE(networks.at(0).security, QString("open"));
    QCOMPARE(networks.at(1).security, QString("WPA2PSK"));
}

void tst_connectionpicture::HiddenNetworksAreNotListed()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("");
    scene.AddPoint(QByteArray(4, '\0'));
    QVERIFY(scene.Records().networks.isEmpty());
}

void tst_connectionpicture::NetworkHasTheProfilesThatFitTheLatestFirst()
{
    Scene scene;
    scene.AddWifi();
    scene.AddKeyPoint("A");
    NMVariantMapMap settings = Scene::KeySettings("earlier", "A");
    settings["connection"]["timestamp"] = quint64(10);
    const QString earlier = scene.Add(settings);
    settings = Scene::KeySettings("later", "A");
    settings["connection"]["timestamp"] = quint64(20);
    const QString later = scene.Add(settings);
    scene.Add(Scene::Settings("another security", "A"));
    scene.Add(Scene::KeySettings("another network", "B"));
    QCOMPARE(scene.Records().networks.value(0).profileIds, QStringList() << later << earlier);
}

void tst_connectionpicture::NetworkInUseIsMarked()
{
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("A", 90);
    scene.AddPoint("B", 10);
    scene.picture.state.devices.last().activeAccessPoint = scene.picture.state.accessPoints.last().path;
    QVERIFY(!scene.Records().networks.at(1).isInUse);
    scene.Connect(scene.Add(Scene::Settings("B", "B")), 1);
    QVERIFY(scene.Records().networks.at(1).isInUse);
    QVERIFY(!scene.Records().networks.at(0).isInUse);
}

void tst_connectionpicture::ProtectionIsTold_data()
{
    QTest::addColumn<unsigned int>("flags");
    QTest::addColumn<unsigned int>("rsn");
    QTest::addColumn<int>("protection");
    Row("open", 0U, 0U, int(VisibleNetwork::ProtectionOpen));
    Row("OWE", 0U, (owe | ccmp), int(VisibleNetwork::ProtectionOpen));
    Row("WEP", privacy, 0U, int(VisibleNetwork::ProtectionWeakKey));
    Row("WPA2", privacy, (psk | ccmp), int(VisibleNetwork::ProtectionKey));
    Row("WPA3", privacy, (sae | ccmp), int(VisibleNetwork::ProtectionKey));
    Row("EAP", privacy, (eap | ccmp), int(VisibleNetwork::ProtectionAccount));
    Row("key or EAP", privacy, (psk | eap | ccmp), int(VisibleNetwork::ProtectionKey));
}

void tst_connectionpicture::ProtectionIsTold()
{
    QFETCH(unsigned int, flags);
    QFETCH(unsigned int, rsn);
    Scene scene;
    scene.AddWifi();
    scene.AddPoint("A", 50, flags, 0, rsn);
    QTEST(scene.Records().networks.value(0).protection, "protection");
}

void tst_connectionpicture::FailureOfADevice_data()
{
    QTest::addColumn<unsigned int>("reason");
    QTest::addColumn<bool>("hasKey");
    QTest::addColumn<int>("failure");
    Row("no key given", 7U, false, int(FailureKeyMissing));
    Row("a key that did not help", 7U, true, int(FailureWrongKey));
    Row("the station disconnects", 8U, true, int(FailureRefused));
    Row("authentication fails", 10U, true, int(FailureRefused));
    Row("no answer", 11U, true, int(FailureNoAnswer));
    Row("network not found", 53U, true, int(FailureNoAnswer));
    Row("no address", 5U, true, int(FailureNoAddress));
    Row("address not answered", 17U, true, int(FailureNoAddress));
    Row("registration denied", 31U, true, int(FailureRefused));
    Row("SIM missing", 45U, true, int(FailureSim));
    Row("PIN needed", 46U, true, int(FailureSim));
    Row("user", 39U, true, int(FailureStopped));
    Row("device removed", 36U, true, int(FailureDevice));
    Row("modem busy", 23U, true, int(FailureDevice));
    Row("a reason of a later time", 9999U, true, int(FailureOther));
}

void tst_connectionpicture::FailureOfADevice()
{
    QFETCH(unsigned int, reason);
    QFETCH(bool, hasKey);
    QTEST(FailureWords::FailureOfDevice(reason, hasKey), "failure");
}

QTEST_APPLESS_MAIN(tst_connectionpicture)
#include "tst_connectionpicture.moc"
