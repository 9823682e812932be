#include "FakeNetworkManager.h"
#include "LoadedWLAN.h"
#include "MockNetworkManager.h"
#include "PrivateBus.h"

#include <RandomSource.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QDBusObjectPath>
#include <QtTest>

namespace
{

const char deviceInterface[] = "org.freedesktop.NetworkManager.Device";
const char activeInterface[] = "org.freedesktop.NetworkManager.Connection.Active";

const unsigned int psk = 0x100;
const unsigned int ccmp = 0x8;

const char *const networks[] = {"a", "b", "c"};
// No name is the name of its network, and one is there twice.
const char *const names[] = {"b", "x", "x", "y"};

struct Point {
    QString path;
    QString device;
    QString network;
    bool hasKey;
    int strength;
};

struct Profile {
    QString path;
    QString name;
    QString network;
    bool hasKey;
    bool isHidden;
};

struct Connection {
    QString path;
    QString device;
    QString profile;
    unsigned int state;
};

/** What has been done to the mock, and what follows from it, found out without code of the product. */
struct Truth {
    QStringList devices;
    QMap<QString, unsigned int> deviceStates;
    QList<Point> points;
    QList<Profile> profiles;
    QList<Connection> connections;
    QString primary;
    bool isWifiOn = true;

    static QString Line(const QStringList &parts) { return parts.join(" "); }

    bool IsInUse(const Profile &profile) const
    {
        for (const Connection &connection : connections) {
            if (connection.profile == profile.path && (connection.state == 1 || connection.state == 2)) {
                return true;
            }
        }
        return false;
    }

    QString UseOf(const Profile &profile) const
    {
        if (IsInUse(profile)) {
            return "possible";
        }
        if (devices.isEmpty()) {
            return "no device";
        }
        if (!isWifiOn) {
            return "off";
        }
        bool isNamed = false;
        for (const Point &point : points) {
            isNamed = isNamed || point.network == profile.network;
            if (point.network == profile.network && point.hasKey == profile.hasKey) {
                return "possible";
            }
        }
        if (isNamed) {
            return "other security";
        }
        return profile.isHidden ? "hidden" : "out of range";
    }

    static QString StageOf(unsigned int state, unsigned int deviceState)
    {
        if (state == 2) {
            return "up";
        }
        if (state == 3) {
            return "going down";
        }
        if (deviceState == 50 || deviceState == 60) {
            return "authenticating";
        }
        return deviceState == 70 || deviceState == 80 || deviceState == 90 ? "address" : "preparing";
    }

    QStringList Lines() const
    {
        QStringList lines;
        for (const Profile &profile : profiles) {
            lines << Line({"profile", profile.path, profile.name, profile.network, UseOf(profile)});
        }
        for (const Connection &connection : connections) {
            lines << Line({"connection", connection.path, connection.profile,
                           StageOf(connection.state, deviceStates.value(connection.device)),
                           connection.path == primary ? "traffic" : "-"});
        }
        QMap<QString, int> seen;
        for (const Point &point : points) {
            const QString key = point.network + (point.hasKey ? " key" : " open");
            seen[key] = qMax(seen.value(key), point.strength);
        }
        for (QMap<QString, int>::const_iterator i = seen.constBegin(); i != seen.constEnd(); ++i) {
            lines << Line({"network", i.key(), QString::number(i.value())});
        }
        lines.sort();
        return lines;
    }
};

QStringList Told()
{
    const QMap<int, QString> uses = {{ConnectionProfile::UsePossible, "possible"},
                                     {ConnectionProfile::UseNoDevice, "no device"},
                                     {ConnectionProfile::UseDeviceOff, "off"},
                                     {ConnectionProfile::UseOtherSecurity, "other security"},
                                     {ConnectionProfile::UseHiddenIsTried, "hidden"},
                                     {ConnectionProfile::UseOutOfRange, "out of range"}};
    const QMap<int, QString> stages = {{StagePreparing, "preparing"},
                                       {StageAuthenticating, "authenticating"},
                                       {StageGettingAddress, "address"},
                                       {StageConnected, "up"},
                                       {StageDisconnecting, "going down"}};
    QStringList lines;
    const QList<ConnectionProfile> profiles = LoadedWLAN::Profiles();
    for (const ConnectionProfile &profile : profiles) {
        lines << Truth::Line({"profile", profile.id, profile.name, profile.network,
                              uses.value(profile.use, QString::number(profile.use))});
    }
    const QList<ActiveConnection> connections = LoadedWLAN::Active();
    for (const ActiveConnection &connection : connections) {
        lines << Truth::Line({"connection", connection.id, connection.profileId,
                              stages.value(connection.stage, QString::number(connection.stage)),
                              connection.carriesTraffic ? "traffic" : "-"});
    }
    const QList<VisibleNetwork> visible = LoadedWLAN::Networks();
    for (const VisibleNetwork &network : visible) {
        lines << Truth::Line({"network", network.name,
                              network.protection == VisibleNetwork::ProtectionKey ? "key" : "open",
                              QString::number(network.signal)});
    }
    lines.sort();
    return lines;
}

} // namespace

/** A random walk over the states of python3-dbusmock's NetworkManager: what is told is what was done to it.
 */
class tst_networkmanagerwalk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void WhatIsToldIsTrueAtEveryStep_data();
    void WhatIsToldIsTrueAtEveryStep();

private:
    QString Step(MockNetworkManager *mock, RandomSource *random, Truth *truth);

    PrivateBus m_bus;
};

void tst_networkmanagerwalk::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
    MockNetworkManager mock(&m_bus);
    if (!mock.Start()) {
        QSKIP(qPrintable(mock.WhyNot()));
    }
}

// Each of these tells what it has done; nothing when there is nothing to be done.

static QString ChangeRange(int kind, MockNetworkManager *mock, RandomSource *random, Truth *truth)
{
    if (kind == 0 && truth->devices.size() < 2) {
        const QString device = mock->AddWifiDevice(QString("wlan%1").arg(truth->devices.size()));
        truth->devices << device;
        truth->deviceStates[device] = 30;
        return "device added";
    }
    if (kind <= 2 && !truth->devices.isEmpty() && truth->points.size() < 12) {
        Point point;
        point.device = truth->devices.at(random->Below(int(truth->devices.size())));
        point.network = networks[random->Below(3)];
        point.hasKey = random->OneIn(2);
        point.strength = 1 + random->Below(100);
        point.path =
            mock->AddAccessPoint(point.device, point.network, point.strength, point.hasKey ? psk | ccmp : 0U);
        truth->points << point;
        return "station added";
    }
    if (kind == 3 && !truth->points.isEmpty()) {
        const Point point = truth->points.takeAt(random->Below(int(truth->points.size())));
        mock->RemoveAccessPoint(point.device, point.path);
        return "station removed";
    }
    return QString();
}

static QString ChangeProfiles(int kind, MockNetworkManager *mock, RandomSource *random, Truth *truth)
{
    if (kind == 4 && truth->profiles.size() < 8) {
        Profile profile;
        profile.name = names[random->Below(4)];
        profile.network = networks[random->Below(3)];
        profile.hasKey = random->OneIn(2);
        profile.isHidden = random->OneIn(3);
        NMVariantMapMap settings = FakeNetworkManager::Settings(profile.name);
        settings["802-11-wireless"]["ssid"] = profile.network.toUtf8();
        settings["802-11-wireless"]["hidden"] = profile.isHidden;
        if (profile.hasKey) {
            settings["802-11-wireless-security"]["key-mgmt"] = "wpa-psk";
        }
        profile.path = mock->AddProfile(settings);
        truth->profiles << profile;
        return "profile added";
    }
    if (kind == 5 && !truth->profiles.isEmpty()) {
        const int place = random->Below(int(truth->profiles.size()));
        if (!truth->IsInUse(truth->profiles.at(place))) {
            mock->DeleteProfile(truth->profiles.takeAt(place).path);
            return "profile deleted";
        }
    }
    return QString();
}

static QString ChangeConnections(int kind, MockNetworkManager *mock, RandomSource *random, Truth *truth)
{
    if (kind == 6 && !truth->profiles.isEmpty() && truth->connections.size() < truth->devices.size()) {
        Connection connection;
        connection.device = truth->devices.at(int(truth->connections.size()));
        connection.profile = truth->profiles.at(random->Below(int(truth->profiles.size()))).path;
        connection.state = 1 + static_cast<unsigned int>(random->Below(2));
        connection.path = mock->AddActiveConnection(connection.device, connection.profile, connection.state);
        truth->deviceStates[connection.device] = 100;
        truth->connections << connection;
        return "connection added";
    }
    if (kind == 7 && !truth->connections.isEmpty()) {
        // The last one, so that those before it keep their devices.
        const Connection connection = truth->connections.takeLast();
        mock->RemoveActiveConnection(connection.device, connection.path);
        truth->deviceStates[connection.device] = 30;
        return "connection removed";
    }
    if (kind == 8 && !truth->connections.isEmpty()) {
        Connection &connection = truth->connections[random->Below(int(truth->connections.size()))];
        const unsigned int states[] = {40, 50, 60, 70, 80, 90};
        if (random->OneIn(2)) {
            connection.state = 1 + static_cast<unsigned int>(random->Below(3));
            mock->SetProperty(connection.path, activeInterface, "State", connection.state);
        } else {
            truth->deviceStates[connection.device] = states[random->Below(6)];
            mock->SetProperty(connection.device, deviceInterface, "State",
                              truth->deviceStates.value(connection.device));
        }
        return "connection moved";
    }
    return QString();
}

QString tst_networkmanagerwalk::Step(MockNetworkManager *mock, RandomSource *random, Truth *truth)
{
    const int kind = random->Below(10);
    for (const auto change : {ChangeRange, ChangeProfiles, ChangeConnections}) {
        const QString done = change(kind, mock, random, truth);
        if (!done.isNull()) {
            return done;
        }
    }
    if (random->OneIn(2)) {
        truth->isWifiOn = !truth->isWifiOn;
        mock->SetManagerProperty("WirelessEnabled", truth->isWifiOn);
        return "Wi-Fi switched";
    }
    truth->primary = truth->connections.isEmpty() ? QString("/") : truth->connections.last().path;
    mock->SetManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath(truth->primary)));
    return "traffic moved";
}

void tst_networkmanagerwalk::WhatIsToldIsTrueAtEveryStep_data()
{
    QTest::addColumn<quint64>("seed");
    for (quint64 seed = 1; seed <= 4; ++seed) {
        Row("seed " + QByteArray::number(seed), seed);
    }
}

void tst_networkmanagerwalk::WhatIsToldIsTrueAtEveryStep()
{
    QFETCH(quint64, seed);
    const TemporaryDirectory directory;
    StandInHost::Reset(directory.Path());
    Truth truth;
    {
        MockNetworkManager mock(&m_bus);
        QVERIFY2(mock.Start(), qPrintable(mock.WhyNot()));
        mock.AddManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath("/")));
        QVERIFY(LoadedWLAN::Root()->Init());
        QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
        RandomSource random(seed);
        const int steps = 120;
        for (int i = 0; i < steps; ++i) {
            const QString step = Step(&mock, &random, &truth);
            const QStringList expected = truth.Lines();
            QTRY_VERIFY2(Told() == expected, qPrintable(QString("step %1, %2\ntold:\n%3\ntrue:\n%4")
                                                            .arg(QString::number(i), step, Told().join("\n"),
                                                                 expected.join("\n"))));
        }
    }
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    QCOMPARE(Told(), QStringList());
    LoadedWLAN::Root()->OnDestroy();
    StandInHost::Reset(QString());
}

QTEST_GUILESS_MAIN(tst_networkmanagerwalk)
#include "tst_networkmanagerwalk.moc"
