#include <FollowRules.h>
#include <Row.h>

#include <QRandomGenerator>
#include <QtTest>

#include <functional>

namespace
{

const int tick = 20;
const int minute = 60;
const int hour = 3600;
const int day = 24 * hour;
const int weeks = 2 * 7 * day;

ConnectionProfile Profile(const QString &name, const QString &type = "1")
{
    ConnectionProfile profile;
    profile.id = name;
    profile.name = name;
    profile.type = type;
    profile.device = type == "1" ? "wlan0" : "modem";
    profile.use = ConnectionProfile::UsePossible;
    profile.signal = type == "1" ? 40 : -1;
    profile.connectsByItself = true;
    return profile;
}

ActiveConnection Connection(const QString &id, const QString &name, const QString &type = "1")
{
    ActiveConnection connection;
    connection.id = id;
    connection.profileId = name;
    connection.name = name;
    connection.type = type;
    connection.device = type == "1" ? "wlan0" : type == "2" ? "modem" : "eth0";
    connection.stage = StageConnected;
    return connection;
}

QList<PriorityList> ListOf(const QStringList &entries)
{
    QList<PriorityList> list;
    for (const QString &entry : entries) {
        list.append(PriorityList{entry.section('/', 0, 0),
                                 entry.contains('/') ? entry.section('/', 1) : QString("1")});
    }
    return list;
}

/** "top" is above "low", which is in use. */
struct Scene {
    Scene()
    {
        view.records.state.source = ConnectionState::SourceKnown;
        view.records.state.connectivity = ConnectionState::ConnectivityFull;
        view.records.profiles = {Profile("top"), Profile("low")};
        view.records.connections = {Connection("1", "low")};
        view.records.connections[0].carriesTraffic = true;
        view.mayConnect = true;
    }

    FollowStep Look(int seconds = tick)
    {
        now += seconds;
        const FollowStep step = FollowRules::Next(list, view, now, history);
        history = step.history;
        return step;
    }
    /** What comes after two scans. */
    QString Chosen()
    {
        QString chosen = Look().profile;
        for (int i = 0; i < FollowRules::leastScansInARow && chosen.isEmpty(); ++i) {
            ++view.scans["wlan0"];
            chosen = Look(FollowRules::secondsBetweenScans).profile;
        }
        return chosen;
    }
    void SwitchTo(const QString &name)
    {
        view.records.connections = {Connection(QString::number(now), name)};
        view.records.connections[0].carriesTraffic = true;
        view.tryStage = StageConnected;
    }

    QList<PriorityList> list = ListOf({"top", "low"});
    FollowView view;
    FollowHistory history;
    qint64 now = 1000;
};

typedef std::function<void(Scene *)> Change;

} // namespace

Q_DECLARE_METATYPE(Change)

/** When an entry above the one in use is switched to. */
class tst_followrules : public QObject
{
    Q_OBJECT

private slots:
    void EntryAboveIsSwitchedTo_data();
    void EntryAboveIsSwitchedTo();
    void OneScanIsNotEnough();
    void ScanInWhichItIsMissingBeginsAnew();
    void SwitchesAreFiveMinutesApart();
    void FailedTryBlocksTheEntryLongerEachTime_data();
    void FailedTryBlocksTheEntryLongerEachTime();
    void GoodTryEndsTheBlocks();
    void ConnectionThatTakesAPlaceIsByHandUntilItEnds();
    void ConnectionThatFollowsAnEndIsNotByHand();
    void OwnSwitchIsNotByHand();
    void ScansComeWhenTheyCanHelp_data();
    void ScansComeWhenTheyCanHelp();
    void WeeksOfAUserAreFollowed_data();
    void WeeksOfAUserAreFollowed();

private:
    static void AddRowsOfDevices();
};

void tst_followrules::AddRowsOfDevices()
{
    Row("other adapter", Change([](Scene *s) {
            s->view.records.profiles[0].device = "wlan1";
            s->view.records.connections[0].device = "wlan0";
        }),
        "");
    Row("mobile broadband above Wi-Fi", Change([](Scene *s) {
            s->list = ListOf({"phone/2", "low"});
            s->view.records.profiles[0] = Profile("phone", "2");
        }),
        "");
    Row("Wi-Fi above mobile broadband", Change([](Scene *s) {
            s->list = ListOf({"top", "phone/2"});
            s->view.records.connections[0] = Connection("1", "phone", "2");
            s->view.records.connections[0].carriesTraffic = true;
        }),
        "top");
    Row("its adapter is busy", Change([](Scene *s) {
            s->list = ListOf({"top", "phone/2"});
            s->view.records.connections[0] = Connection("1", "phone", "2");
            s->view.records.connections[0].carriesTraffic = true;
            s->view.records.connections.append(Connection("2", "guest"));
        }),
        "");
    Row("other profile of the modem", Change([](Scene *s) {
            s->list = ListOf({"home/2", "phone/2"});
            s->view.records.profiles = {Profile("home", "2"), Profile("phone", "2")};
            s->view.records.connections[0] = Connection("1", "phone", "2");
            s->view.records.connections[0].carriesTraffic = true;
        }),
        "home");
    Row("NetworkManager is silent",
        Change([](Scene *s) { s->view.records.state.source = ConnectionState::SourceNotKnown; }), "");
}

void tst_followrules::EntryAboveIsSwitchedTo_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("chosen");
    Row("in range", Change([](Scene *) {}), "top");
    Row("weak", Change([](Scene *s) { s->view.records.profiles[0].signal = 39; }), "");
    Row("out of range",
        Change([](Scene *s) { s->view.records.profiles[0].use = ConnectionProfile::UseOutOfRange; }), "");
    Row("by hand alone", Change([](Scene *s) { s->view.records.profiles[0].connectsByItself = false; }), "");
    Row("below", Change([](Scene *s) { s->list = ListOf({"low", "top"}); }), "");
    Row("the topmost of two", Change([](Scene *s) {
            s->list = ListOf({"first", "top", "low"});
            s->view.records.profiles.append(Profile("first"));
        }),
        "first");
    Row("VPN", Change([](Scene *s) { s->view.hasVpn = true; }), "");
    Row("password", Change([](Scene *s) { s->view.mayConnect = false; }), "");
    Row("ordered in a window", Change([](Scene *s) { s->view.byHand = {"1"}; }), "");
    Row("in use by hand alone",
        Change([](Scene *s) { s->view.records.profiles[1].connectsByItself = false; }), "");
    Row("in use is not listed", Change([](Scene *s) { s->list = ListOf({"top"}); }), "");
    Row("cable carries the traffic", Change([](Scene *s) {
            s->view.records.connections[0].carriesTraffic = false;
            s->view.records.connections.prepend(Connection("2", "low", "0"));
            s->view.records.connections[0].carriesTraffic = true;
        }),
        "");
    Row("nothing carries the traffic",
        Change([](Scene *s) { s->view.records.connections[0].carriesTraffic = false; }), "top");
    Row("nothing is in use", Change([](Scene *s) { s->view.records.connections.clear(); }), "");
    Row("another is coming up", Change([](Scene *s) {
            s->view.records.connections.append(Connection("2", "other", "2"));
            s->view.records.connections[1].stage = StagePreparing;
        }),
        "");
    AddRowsOfDevices();
}

void tst_followrules::EntryAboveIsSwitchedTo()
{
    QFETCH(Change, change);
    Scene scene;
    change(&scene);
    QTEST(scene.Chosen(), "chosen");
}

void tst_followrules::OneScanIsNotEnough()
{
    Scene scene;
    scene.Look();
    ++scene.view.scans["wlan0"];
    QCOMPARE(scene.Look(hour).profile, QString());
    ++scene.view.scans["wlan0"];
    QCOMPARE(scene.Look().profile, QString("top"));
}

void tst_followrules::ScanInWhichItIsMissingBeginsAnew()
{
    Scene scene;
    scene.Look();
    for (int i = 0; i < 10; ++i) {
        ++scene.view.scans["wlan0"];
        scene.view.records.profiles[0].signal = i % 2 == 0 ? 90 : 30;
        QCOMPARE(scene.Look(FollowRules::secondsBetweenScans).profile, QString());
    }
}

void tst_followrules::SwitchesAreFiveMinutesApart()
{
    Scene scene;
    QCOMPARE(scene.Chosen(), QString("top"));
    const qint64 end = scene.now + FollowRules::secondsBetweenSwitches;
    scene.SwitchTo("top");
    scene.Look();
    scene.Look(FollowRules::secondsToSettle);
    scene.SwitchTo("low");
    while (scene.now < end - tick) {
        ++scene.view.scans["wlan0"];
        QCOMPARE(scene.Look().profile, QString());
    }
    QCOMPARE(scene.Look().profile, QString("top"));
}

void tst_followrules::FailedTryBlocksTheEntryLongerEachTime_data()
{
    QTest::addColumn<Change>("failure");
    Row("it does not come up", Change([](Scene *s) { s->view.tryStage = StageFailed; }));
    Row("it ends at once", Change([](Scene *s) {
            s->SwitchTo("top");
            s->Look();
            s->SwitchTo("low");
            s->view.records.connections[0].id = "back" + QString::number(s->now);
        }));
    const int bad[] = {ConnectionState::ConnectivityPortal, ConnectionState::ConnectivityLimited,
                       ConnectionState::ConnectivityNone};
    for (int connectivity : bad) {
        Row(qPrintable(QString("connectivity %1").arg(connectivity)), Change([connectivity](Scene *s) {
                s->SwitchTo("top");
                s->view.records.state.connectivity = connectivity;
                s->Look();
                s->Look(FollowRules::secondsToSettle);
                s->view.records.state.connectivity = ConnectionState::ConnectivityFull;
                s->SwitchTo("low");
                s->view.records.connections[0].id = "back" + QString::number(s->now);
            }));
    }
}

void tst_followrules::FailedTryBlocksTheEntryLongerEachTime()
{
    QFETCH(Change, failure);
    Scene scene;
    QCOMPARE(scene.Chosen(), QString("top"));
    const int blocked[] = {600, 1200, 2400, 2400};
    for (int seconds : blocked) {
        failure(&scene);
        const qint64 begin = scene.now;
        QCOMPARE(scene.Chosen(), QString());
        scene.view.tryStage = StageNotKnown;
        qint64 end = begin;
        while (end == begin && scene.now < begin + hour) {
            ++scene.view.scans["wlan0"];
            end = scene.Look().profile.isEmpty() ? begin : scene.now;
        }
        // What ends at once is found out at the next look.
        QVERIFY2(end - begin >= seconds - tick && end - begin <= seconds + 2 * tick,
                 qPrintable(QString::number(end - begin)));
    }
}

void tst_followrules::GoodTryEndsTheBlocks()
{
    Scene scene;
    QCOMPARE(scene.Chosen(), QString("top"));
    scene.view.tryStage = StageFailed;
    scene.Look();
    scene.view.tryStage = StageNotKnown;
    scene.Look(hour);
    scene.SwitchTo("top");
    scene.Look();
    scene.Look(FollowRules::secondsToSettle);
    QVERIFY(scene.history.blocks.isEmpty());
}

void tst_followrules::ConnectionThatTakesAPlaceIsByHandUntilItEnds()
{
    Scene scene;
    scene.Look();
    ActiveConnection other = Connection("2", "low");
    other.stage = StagePreparing;
    scene.view.records.connections.append(other);
    scene.Look();
    scene.view.records.connections = {Connection("2", "low")};
    QCOMPARE(scene.Chosen(), QString());
    QCOMPARE(scene.Look(day).profile, QString());
    scene.view.records.connections = {Connection("3", "low")};
    QCOMPARE(scene.Chosen(), QString("top"));
}

void tst_followrules::ConnectionThatFollowsAnEndIsNotByHand()
{
    Scene scene;
    scene.Look();
    scene.view.records.connections = {Connection("2", "low")};
    QCOMPARE(scene.Chosen(), QString("top"));
}

void tst_followrules::OwnSwitchIsNotByHand()
{
    Scene scene;
    scene.list = ListOf({"first", "top", "low"});
    QCOMPARE(scene.Chosen(), QString("top"));
    ActiveConnection own = Connection("2", "top");
    own.stage = StagePreparing;
    scene.view.tryStage = StagePreparing;
    scene.view.records.connections.append(own);
    scene.Look();
    scene.SwitchTo("top");
    scene.view.records.connections[0].id = "2";
    scene.Look();
    scene.Look(FollowRules::secondsBetweenSwitches);
    scene.view.records.profiles.append(Profile("first"));
    QCOMPARE(scene.Chosen(), QString("first"));
}

void tst_followrules::ScansComeWhenTheyCanHelp_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("pause");
    const auto use = [](int value) {
        return Change([value](Scene *s) { s->view.records.profiles[0].use = value; });
    };
    Row("mains", use(ConnectionProfile::UseOutOfRange), 120);
    Row("battery", Change([](Scene *s) { s->view.isOnBattery = true; }), 360);
    Row("hidden", use(ConnectionProfile::UseHiddenIsTried), 120);
    Row("no device", use(ConnectionProfile::UseNoDevice), 0);
    Row("switched off", use(ConnectionProfile::UseDeviceOff), 0);
    Row("of others", use(ConnectionProfile::UseOtherUsers), 0);
    Row("without its account", use(ConnectionProfile::UseNoAccount), 0);
    Row("by hand alone", Change([](Scene *s) { s->view.records.profiles[0].connectsByItself = false; }), 0);
    Row("nothing above", Change([](Scene *s) { s->list = ListOf({"low", "top"}); }), 0);
    Row("VPN", Change([](Scene *s) { s->view.hasVpn = true; }), 0);
    Row("by hand", Change([](Scene *s) { s->view.byHand = {"1"}; }), 0);
}

void tst_followrules::ScansComeWhenTheyCanHelp()
{
    QFETCH(Change, change);
    QFETCH(int, pause);
    Scene scene;
    change(&scene);
    int scans = 0;
    for (int seconds = 0; seconds < hour; seconds += tick) {
        const FollowStep step = scene.Look();
        scans += step.isScanDue ? 1 : 0;
        QVERIFY(step.lookAgainIn <= pause && (step.lookAgainIn > 0) == (pause > 0));
    }
    QCOMPARE(scans, pause == 0 ? 0 : hour / pause);
}

namespace
{

/** A user's days, and a NetworkManager that connects what is free by itself. */
class World
{
public:
    explicit World(unsigned int seed) : m_random(seed) {}

    /** What is wrong; empty when nothing is. */
    QString Live(int until)
    {
        for (m_now = 0; m_now < until && m_wrong.isEmpty(); m_now += tick) {
            Manage();
            Walk();
            const FollowView view = View();
            const FollowStep step = FollowRules::Next(m_list, view, m_now, m_history);
            m_history = step.history;
            Check(step, view);
            Obey(step);
        }
        return m_wrong;
    }

    int switches = 0;
    int failures = 0;
    int orders = 0;
    int replacements = 0;

private:
    struct Link {
        QString id;
        QString name;
        bool isUp;
        bool isByHand;
    };

    int HourOfDay() const { return m_now % day / hour; }
    bool IsAtWork() const { return HourOfDay() >= 9 && HourOfDay() < 18 && HourOfDay() != 12; }
    bool IsAtCafe() const { return HourOfDay() == 12; }
    bool IsAtHome() const { return HourOfDay() >= 19 || HourOfDay() < 8; }
    bool HasPortal(const QString &name) const { return name == "cafe"; }
    bool Chance(int oneIn) { return m_random.bounded(oneIn) == 0; }

    int Strength(const QString &name)
    {
        if (name == "phone") {
            return 70;
        }
        if (name == "flapping") {
            return IsAtWork() && Chance(2) ? 80 : 0;
        }
        if (name == "edge") {
            return IsAtHome() ? 30 + int(m_random.bounded(20)) : 0;
        }
        const bool isHere = name == "home" ? IsAtHome() : name == "cafe" ? IsAtCafe() : IsAtWork();
        return isHere ? 75 : 0;
    }

    void Scan()
    {
        ++m_scan;
        m_before = m_seen;
        for (const PriorityList &entry : std::as_const(m_list)) {
            m_seen[entry.name] = entry.type == "1" ? Strength(entry.name) : 0;
        }
    }

    void Walk()
    {
        m_isOnBattery = !IsAtHome() && !IsAtWork();
        m_hasVpn = IsAtWork() && HourOfDay() == 15;
        if (Chance(6 * hour / tick) && m_links.size() == 1 && m_links.first().isUp &&
            m_links.first().name != "phone") {
            // Every second time in a window of ours, which tells; else in another program.
            Connect("phone", true);
            if (++orders % 2 == 0) {
                m_told.insert(m_links.last().id);
            }
        } else if (m_links.size() == 1 && m_links.first().isByHand && Chance(2 * hour / tick)) {
            m_links.clear();
        }
    }

    void Connect(const QString &name, bool isByHand)
    {
        m_links.append({QString::number(++m_count), name, false, isByHand});
    }

    void EndTry(const QString &name, bool isGood)
    {
        if (m_tried != name) {
            return;
        }
        m_tried.clear();
        m_failures[name] = isGood ? 0 : m_failures.value(name) + 1;
        m_blockedUntil[name] = isGood ? 0 : m_now + qMin(300 << m_failures.value(name), 2400);
        failures += isGood ? 0 : 1;
    }

    void Manage()
    {
        if (m_links.size() == 2) {
            EndTry(m_links.first().name, false);
            m_links.removeFirst();
            ++replacements;
        }
        if (m_links.isEmpty()) {
            if (m_now % minute == 0) {
                Scan();
            }
            for (const PriorityList &entry : std::as_const(m_list)) {
                if (m_seen.value(entry.name) > 0 && m_now >= m_failedUntil.value(entry.name)) {
                    Connect(entry.name, false);
                    return;
                }
            }
            return;
        }
        Link &link = m_links.first();
        const bool isOutOfReach = link.name != "flapping" && link.name != "edge" && Strength(link.name) == 0;
        const bool isLost = isOutOfReach || (link.name == "flapping" && Chance(10));
        if (isLost || (!link.isUp && link.name == "wrong key")) {
            m_failedUntil[link.name] = m_now + 5 * minute;
            m_tryStage = m_tried == link.name ? int(StageFailed) : m_tryStage;
            EndTry(link.name, false);
            m_links.clear();
        } else if (!link.isUp) {
            link.isUp = true;
            m_upSince = m_now;
            m_tryStage = m_tried == link.name ? int(StageConnected) : m_tryStage;
        } else if (m_now - m_upSince >= minute) {
            EndTry(link.name, !HasPortal(link.name));
        }
    }

    FollowView View() const
    {
        FollowView view;
        view.records.state.source = ConnectionState::SourceKnown;
        for (const Link &link : m_links) {
            ActiveConnection connection = Connection(link.id, link.name);
            connection.stage = link.isUp ? StageConnected : StagePreparing;
            connection.carriesTraffic = link.isUp && view.records.connections.isEmpty();
            view.records.connections.append(connection);
        }
        const bool hasPortal = !m_links.isEmpty() && HasPortal(m_links.first().name);
        view.records.state.connectivity =
            hasPortal ? ConnectionState::ConnectivityPortal : ConnectionState::ConnectivityFull;
        for (const PriorityList &entry : m_list) {
            ConnectionProfile profile = Profile(entry.name);
            profile.signal = m_seen.value(entry.name);
            profile.use =
                profile.signal > 0 ? ConnectionProfile::UsePossible : ConnectionProfile::UseOutOfRange;
            view.records.profiles.append(profile);
        }
        view.scans.insert("wlan0", m_scan);
        view.byHand = m_told;
        view.mayConnect = true;
        view.hasVpn = m_hasVpn;
        view.isOnBattery = m_isOnBattery;
        view.tryStage = m_tryStage;
        return view;
    }

    void Require(bool isSo, const char *what)
    {
        if (!isSo && m_wrong.isEmpty()) {
            m_wrong =
                QString("%1 at %2 s, day %3, hour %4").arg(what).arg(m_now).arg(m_now / day).arg(HourOfDay());
        }
    }

    int PlaceOf(const QString &name) const
    {
        int place = 0;
        while (place < m_list.size() && m_list.at(place).name != name) {
            ++place;
        }
        return place;
    }

    bool IsAtRest() const
    {
        return m_links.size() == 1 && m_links.first().isUp && !m_links.first().isByHand && !m_hasVpn;
    }

    void Check(const FollowStep &step, const FollowView &view)
    {
        if (step.isScanDue) {
            Require(IsAtRest(), "a scan that helps nobody");
            Require(m_now - m_ordered >= (view.isOnBattery ? 360 : 120), "scans too close together");
            Require(PlaceOf(m_links.value(0).name) > 0, "a scan with nothing above");
        }
        if (!step.profile.isEmpty()) {
            Require(IsAtRest(), "a switch away from what is to stay");
            Require(PlaceOf(step.profile) < PlaceOf(m_links.value(0).name), "a switch downwards");
            Require(m_seen.value(step.profile) >= 40 && m_before.value(step.profile) >= 40, "a weak signal");
            Require(m_times.isEmpty() || m_now - m_times.last() >= 5 * minute, "switches too close together");
            Require(m_times.size() < 12 || m_now - m_times.at(m_times.size() - 12) >= hour,
                    "too many an hour");
            Require(m_now >= m_blockedUntil.value(step.profile), "a failed try too early");
        }
        // What is near for good has to be in use soon.
        const bool isWaiting = IsAtRest() && IsAtHome() && PlaceOf(m_links.first().name) > PlaceOf("home");
        m_waiting = isWaiting && m_now >= m_blockedUntil.value("home") ? m_waiting + tick : 0;
        Require(m_waiting <= 12 * minute, "home is not switched to");
    }

    void Obey(const FollowStep &step)
    {
        if (step.isScanDue) {
            m_ordered = m_now;
            Scan();
        }
        if (!step.profile.isEmpty()) {
            ++switches;
            m_times.append(m_now);
            m_tried = step.profile;
            m_tryStage = StagePreparing;
            Connect(step.profile, false);
        }
    }

    QRandomGenerator m_random;
    const QList<PriorityList> m_list =
        ListOf({"wrong key", "home", "flapping", "office", "cafe", "edge", "phone"});
    QList<Link> m_links;
    QHash<QString, int> m_seen;
    QHash<QString, int> m_before;
    QHash<QString, int> m_failures;
    QHash<QString, int> m_blockedUntil;
    QHash<QString, int> m_failedUntil;
    QSet<QString> m_told;
    QList<int> m_times;
    FollowHistory m_history;
    QString m_tried;
    QString m_wrong;
    int m_tryStage = StageNotKnown;
    int m_now = 0;
    int m_scan = 0;
    int m_count = 0;
    int m_upSince = 0;
    int m_ordered = -day;
    int m_waiting = 0;
    bool m_hasVpn = false;
    bool m_isOnBattery = false;
};

} // namespace

void tst_followrules::WeeksOfAUserAreFollowed_data()
{
    QTest::addColumn<unsigned int>("seed");
    for (unsigned int seed = 1; seed <= 3; ++seed) {
        Row(qPrintable(QString("seed %1").arg(seed)), seed);
    }
}

void tst_followrules::WeeksOfAUserAreFollowed()
{
    QFETCH(unsigned int, seed);
    World world(seed);
    QCOMPARE(world.Live(weeks), QString());
    // Each of them was put to the test.
    const QString times = QString("%1 switches, %2 failures, %3 orders, %4 replacements")
                              .arg(world.switches)
                              .arg(world.failures)
                              .arg(world.orders)
                              .arg(world.replacements);
    QVERIFY2(world.switches > 100 && world.failures > 50 && world.orders > 10, qPrintable(times));
}

QTEST_APPLESS_MAIN(tst_followrules)
#include "tst_followrules.moc"
