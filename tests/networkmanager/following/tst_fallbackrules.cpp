#include <FallbackRules.h>
#include <Row.h>

#include <QtTest>

#include <functional>

namespace
{

const int tick = 10;
const int minute = 60;
const int hour = 3600;

ActiveConnection Connection(const QString &id, const QString &name, const QString &type)
{
    ActiveConnection connection;
    connection.id = id;
    connection.profileId = name;
    connection.name = name;
    connection.type = type;
    connection.stage = StageConnected;
    return connection;
}

QList<PriorityList> ListOf(const QStringList &entries)
{
    QList<PriorityList> list;
    for (const QString &entry : entries) {
        list.append(PriorityList{entry.section('/', 0, 0), entry.section('/', 1)});
    }
    return list;
}

/** "home" is Wi-Fi, and "phone", below it, mobile broadband. */
struct Scene {
    Scene()
    {
        view.records.state.source = ConnectionState::SourceKnown;
        view.records.state.connectivity = ConnectionState::ConnectivityFull;
        view.mayConnect = true;
        ConnectionProfile phone;
        phone.id = phone.name = "phone";
        phone.type = "2";
        phone.device = "modem";
        phone.use = ConnectionProfile::UsePossible;
        phone.connectsByItself = true;
        view.records.profiles = {phone};
    }

    void Connect(const QString &name, const QString &type)
    {
        ActiveConnection connection = Connection(name + QString::number(++m_connections), name, type);
        view.records.connections.append(connection);
        Carry();
    }
    void Disconnect(const QString &name)
    {
        for (int i = view.records.connections.size() - 1; i >= 0; --i) {
            if (view.records.connections.at(i).name == name) {
                view.records.connections.removeAt(i);
            }
        }
        Carry();
    }
    /** So many seconds; orders are carried out unless it is told otherwise. */
    void Live(int seconds, bool isObeyed = true)
    {
        for (int end = seconds; end > 0; end -= tick) {
            now += tick;
            const FallbackStep step = FallbackRules::Next(list, view, now, history);
            history = step.history;
            for (const ActiveConnection &connection : step.ended) {
                orders.append(QString("-%1 %2").arg(connection.name).arg(seconds - end + tick));
                if (isObeyed) {
                    Disconnect(connection.name);
                }
            }
            if (!step.profile.isEmpty()) {
                orders.append(QString("+%1 %2").arg(step.profile).arg(seconds - end + tick));
                if (isObeyed) {
                    Connect(step.profile, "2");
                }
            }
        }
    }
    QString Orders() const { return orders.join(", "); }

    QList<PriorityList> list = ListOf({"home/1", "phone/2"});
    FollowView view;
    FallbackHistory history;
    qint64 now = 1000;
    QStringList orders;

private:
    /** What NetworkManager's metrics make of it. */
    void Carry()
    {
        ActiveConnection *best = nullptr;
        for (ActiveConnection &connection : view.records.connections) {
            connection.carriesTraffic = false;
            if (!best || (best->type == "2" && connection.type != "2")) {
                best = &connection;
            }
        }
        if (best) {
            best->carriesTraffic = true;
        }
    }

    int m_connections = 0;
};

typedef std::function<void(Scene *)> Change;

} // namespace

Q_DECLARE_METATYPE(Change)

/** When mobile broadband is connected and ended to save data. */
class tst_fallbackrules : public QObject
{
    Q_OBJECT

private slots:
    void FallbackIsConnectedAfterHalfAMinuteWithoutAnother_data();
    void FallbackIsConnectedAfterHalfAMinuteWithoutAnother();
    void FallbackIsEndedAfterAMinuteWithAnother_data();
    void FallbackIsEndedAfterAMinuteWithAnother();
    void ShortInterruptionsCountAnew();
    void FailedTryIsRepeatedAfterFiveMinutes();
    void NextInterruptionIsTriedAtOnce();
    void WhatComesUpAfterItsEndIsByHand();
    void ModemThatWasAwayIsNotByHand();
    void FirstUsableEntryIsConnected();
    void NothingIsSaidWhileNetworkManagerIsNotKnown();
    void TimeIsToldForTheNextLook();
};

void tst_fallbackrules::FallbackIsConnectedAfterHalfAMinuteWithoutAnother_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("orders");
    const QString connected = "+phone 40";
    const auto add = [](const char *name, const QString &orders, const Change &change) {
        Row(name, change, orders);
    };
    add("nothing is connected", connected, [](Scene *) {});
    add("Wi-Fi in the list", "", [](Scene *s) { s->Connect("home", "1"); });
    add("other Wi-Fi", "", [](Scene *s) { s->Connect("guest", "1"); });
    add("cable", "", [](Scene *s) { s->Connect("cable", "0"); });
    add("Wi-Fi that is not up yet", connected, [](Scene *s) {
        s->Connect("home", "1");
        s->view.records.connections[0].stage = StageGettingAddress;
    });
    add("Wi-Fi without the internet", connected, [](Scene *s) {
        s->Connect("home", "1");
        s->view.records.state.connectivity = ConnectionState::ConnectivityLimited;
    });
    add("Wi-Fi that wants a sign-in", connected, [](Scene *s) {
        s->Connect("home", "1");
        s->view.records.state.connectivity = ConnectionState::ConnectivityPortal;
    });
    add("nobody checks for the internet", "", [](Scene *s) {
        s->Connect("home", "1");
        s->view.records.state.connectivity = ConnectionState::ConnectivityNotKnown;
    });
    add("other mobile broadband", "", [](Scene *s) { s->Connect("travel", "2"); });
    add("above Wi-Fi", "", [](Scene *s) { s->list = ListOf({"home/1", "phone/2", "cafe/1"}); });
    add("no Wi-Fi in the list", "", [](Scene *s) { s->list = ListOf({"phone/2"}); });
    add("not in the list", "", [](Scene *s) { s->list = ListOf({"home/1"}); });
    add("by hand alone", "", [](Scene *s) { s->view.records.profiles[0].connectsByItself = false; });
    add("no modem", "", [](Scene *s) { s->view.records.profiles[0].use = ConnectionProfile::UseNoDevice; });
    add("not without a password", "", [](Scene *s) { s->view.mayConnect = false; });
}

void tst_fallbackrules::FallbackIsConnectedAfterHalfAMinuteWithoutAnother()
{
    QFETCH(Change, change);
    QFETCH(QString, orders);
    Scene scene;
    change(&scene);
    scene.Live(40, false);
    QCOMPARE(scene.Orders(), orders);
}

void tst_fallbackrules::FallbackIsEndedAfterAMinuteWithAnother_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("orders");
    const auto add = [](const char *name, const QString &orders, const Change &change) {
        Row(name, change, orders);
    };
    add("nothing else", "-phone 70", [](Scene *) {});
    add("coming up", "-phone 70",
        [](Scene *s) { s->view.records.connections[0].stage = StageGettingAddress; });
    add("ordered in a window", "",
        [](Scene *s) { s->view.byHand.insert(s->view.records.connections.at(0).id); });
    add("during a VPN", "", [](Scene *s) { s->view.hasVpn = true; });
    add("by hand alone", "", [](Scene *s) { s->view.records.profiles[0].connectsByItself = false; });
    add("above Wi-Fi", "", [](Scene *s) { s->list = ListOf({"phone/2", "home/1"}); });
    add("without the internet behind Wi-Fi", "", [](Scene *s) {
        s->view.records.connections[0].carriesTraffic = true;
        s->view.records.connections[1].carriesTraffic = false;
    });
}

void tst_fallbackrules::FallbackIsEndedAfterAMinuteWithAnother()
{
    QFETCH(Change, change);
    QFETCH(QString, orders);
    Scene scene;
    scene.Connect("phone", "2");
    scene.Connect("home", "1");
    change(&scene);
    scene.Live(hour);
    QCOMPARE(scene.Orders(), orders);
}

void tst_fallbackrules::ShortInterruptionsCountAnew()
{
    Scene scene;
    for (int i = 0; i < 10; ++i) {
        scene.Connect("home", "1");
        scene.Live(minute);
        scene.Disconnect("home");
        scene.Live(20);
    }
    QCOMPARE(scene.Orders(), QString());
    scene.Connect("phone", "2");
    for (int i = 0; i < 10; ++i) {
        scene.Connect("home", "1");
        scene.Live(50);
        scene.Disconnect("home");
        scene.Live(20);
    }
    QCOMPARE(scene.Orders(), QString());
}

void tst_fallbackrules::FailedTryIsRepeatedAfterFiveMinutes()
{
    Scene scene;
    scene.Live(12 * minute, false);
    QCOMPARE(scene.Orders(), QString("+phone 40, +phone 340, +phone 640"));
}

void tst_fallbackrules::NextInterruptionIsTriedAtOnce()
{
    Scene scene;
    scene.Live(40, false);
    scene.Connect("home", "1");
    scene.Live(tick);
    scene.Disconnect("home");
    scene.Live(40);
    QCOMPARE(scene.Orders(), QString("+phone 40, +phone 40"));
}

void tst_fallbackrules::WhatComesUpAfterItsEndIsByHand()
{
    Scene scene;
    scene.Connect("phone", "2");
    scene.Connect("home", "1");
    scene.Live(2 * minute);
    scene.Connect("phone", "2");
    scene.Live(hour);
    QCOMPARE(scene.Orders(), QString("-phone 70"));
    // Until it ends; then it is the fallback again.
    scene.Disconnect("phone");
    scene.Disconnect("home");
    scene.Live(minute);
    scene.Connect("home", "1");
    scene.Live(2 * minute);
    QCOMPARE(scene.Orders(), QString("-phone 70, +phone 40, -phone 70"));
}

void tst_fallbackrules::ModemThatWasAwayIsNotByHand()
{
    Scene scene;
    scene.Connect("phone", "2");
    scene.Connect("home", "1");
    scene.Live(2 * minute);
    scene.view.records.profiles[0].use = ConnectionProfile::UseNoDevice;
    scene.Live(tick);
    scene.view.records.profiles[0].use = ConnectionProfile::UsePossible;
    scene.Connect("phone", "2");
    scene.Live(2 * minute);
    QCOMPARE(scene.Orders(), QString("-phone 70, -phone 10"));
}

void tst_fallbackrules::FirstUsableEntryIsConnected()
{
    Scene scene;
    scene.list = ListOf({"home/1", "locked/2", "phone/2"});
    ConnectionProfile locked = scene.view.records.profiles.at(0);
    locked.id = locked.name = "locked";
    locked.use = ConnectionProfile::UseSimLocked;
    scene.view.records.profiles.append(locked);
    scene.Live(hour);
    QCOMPARE(scene.Orders(), QString("+phone 40"));
}

void tst_fallbackrules::NothingIsSaidWhileNetworkManagerIsNotKnown()
{
    Scene scene;
    scene.Live(30);
    scene.view.records.state.source = ConnectionState::SourceNotKnown;
    scene.Live(hour);
    scene.view.records.state.source = ConnectionState::SourceKnown;
    scene.Live(40);
    QCOMPARE(scene.Orders(), QString("+phone 40"));
}

void tst_fallbackrules::TimeIsToldForTheNextLook()
{
    Scene scene;
    const auto look = [&scene] {
        const FallbackStep step = FallbackRules::Next(scene.list, scene.view, scene.now, scene.history);
        scene.history = step.history;
        return step.lookAgainIn;
    };
    QCOMPARE(look(), FallbackRules::secondsUntilConnected);
    scene.Connect("phone", "2");
    QCOMPARE(look(), qint64(0));
    scene.Connect("home", "1");
    QCOMPARE(look(), FallbackRules::secondsUntilEnded);
    scene.Disconnect("phone");
    QCOMPARE(look(), qint64(0));
}

QTEST_GUILESS_MAIN(tst_fallbackrules)
#include "tst_fallbackrules.moc"
