#include "FakeConnections.h"
#include "Lists.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Row.h>
#include <RuledPlaces.h>

#include <QtTest>

/** Which places of a list have no effect, and why. */
class RuledPlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void PlaceWithoutEffectTellsWhy_data();
    void PlaceWithoutEffectTellsWhy();
    void ObstacleHasItsWords_data();
    void ObstacleHasItsWords();
    void NothingIsSaidWhileNothingIsKnown_data();
    void NothingIsSaidWhileNothingIsKnown();

private:
    /** "name: reason remedy" of each, for a list that was followed. */
    static QStringList Told(const QString &list, const Connections &connections,
                            const OrderOutcome &standing);
};

void RuledPlacesTest::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

QStringList RuledPlacesTest::Told(const QString &list, const Connections &connections,
                                  const OrderOutcome &standing)
{
    const char *const remedies[] = {"", " (turn on)", " (connect)"};
    const Overview overview = Overview::Make(PriorityRead, Listed(list), connections);
    QStringList told;
    for (const PlaceWithoutEffect &place : RuledPlaces::WithoutEffect(overview, standing)) {
        told.append(place.entry.name + ": " + place.reason + remedies[place.remedy]);
    }
    return told;
}

void RuledPlacesTest::PlaceWithoutEffectTellsWhy_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("told");
    Row("nothing", "", "");
    Row("not there now", "out of range", "");
    Row("by hand", "by hand", "Home: It does not connect by itself, so its place has no effect. (turn on)");
    Row("kept", "kept", "Home: It belongs to other users of this computer.");
    Row("kept by hand", "kept, by hand",
        "Home: It does not connect by itself, so its place has no effect. (turn on)");
    Row("another one of that name is kept", "another kept", "");
    Row("not saved", "not saved", "Home: This computer has no saved network of that name.");
    Row("failed", "failed",
        "Home: When last tried, the key was refused. After several failures NetworkManager waits for five "
        "minutes before it tries again. (connect)");
    Row("failed and out of range", "failed, out of range", "");
    Row("failed and connecting", "failed, connecting", "");
    Row("ended by the user", "stopped", "");
    Row("listed twice", "twice", "Home: It stands higher in the list already, so this place has no effect.");
}

void RuledPlacesTest::PlaceWithoutEffectTellsWhy()
{
    QFETCH(QString, what);
    Connections connections = KnownConnections();
    connections.profiles << SavedProfile("Office") << SavedProfile("Home");
    ConnectionProfile &home = connections.profiles.last();
    home.connectsByItself = !what.contains("by hand");
    home.use =
        what.contains("out of range") ? ConnectionProfile::UseOutOfRange : ConnectionProfile::UsePossible;
    home.failure = what.contains("failed") ? FailureWrongKey
                   : what == "stopped"     ? FailureStopped
                                           : FailureNone;
    OrderOutcome standing;
    standing.stage = OrderOutcome::StageOrderDone;
    if (what.contains("kept")) {
        OrderKept kept;
        kept.name = "Home";
        kept.obstacle = ObstacleOtherUsers;
        kept.profileId = what.contains("another") ? "another" : home.id;
        standing.kept.append(kept);
    }
    if (what.contains("connecting")) {
        connections.active << ConnectionOf("Home", StageAuthenticating, false);
    }
    if (what == "not saved") {
        connections.profiles.removeLast();
    }
    const QString list = what == "twice" ? "Office, Home, Home" : "Office, Home";
    QTEST(Told(list, connections, standing).join('\n'), "told");
}

void RuledPlacesTest::ObstacleHasItsWords_data()
{
    QTest::addColumn<int>("obstacle");
    QTest::addColumn<QString>("begin");
    Row("other users", int(ObstacleOtherUsers), "It belongs to other users");
    Row("passing", int(ObstaclePassing), "Another program makes it anew");
    Row("not allowed", int(ObstacleNotAllowed), "Only an administrator");
    Row("password", int(ObstaclePassword), "Only an administrator");
    Row("refused", int(ObstacleRefused), "NetworkManager did not take");
    Row("no answer", int(ObstacleNoAnswer), "NetworkManager did not take");
    Row("other list", int(ObstacleOtherList), "Somebody else");
    Row("route metric", int(ObstacleOwnMetric), "Somebody has chosen a route metric");
    Row("one of later", 99, "NetworkManager did not take");
}

void RuledPlacesTest::ObstacleHasItsWords()
{
    QFETCH(int, obstacle);
    QFETCH(QString, begin);
    QCOMPARE(RuledPlaces::Reason(obstacle).left(begin.size()), begin);
}

void RuledPlacesTest::NothingIsSaidWhileNothingIsKnown_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("stage");
    Row("NetworkManager gone", int(ConnectionState::SourceGone), int(OrderOutcome::StageOrderDone));
    Row("not followed yet", int(ConnectionState::SourceKnown), int(OrderOutcome::StageOrderNotKnown));
    Row("list not read", int(ConnectionState::SourceKnown), int(OrderOutcome::StageOrderFailed));
}

void RuledPlacesTest::NothingIsSaidWhileNothingIsKnown()
{
    QFETCH(int, source);
    QFETCH(int, stage);
    Connections connections = KnownConnections();
    connections.state.source = source;
    OrderOutcome standing;
    standing.stage = stage;
    QCOMPARE(Told("Home", connections, standing), QStringList());
}

QTEST_MAIN(RuledPlacesTest)

#include "tst_ruledplaces.moc"
