#include "FakeConnections.h"
#include "Lists.h"

#include <Overview.h>
#include <PluginList.h>
#include <Row.h>

#include <QtTest>

namespace
{

/** Records as tests write them down: "Home 1" is a profile with the use of that number. */
QList<ConnectionProfile> ProfilesOf(const QString &text)
{
    QList<ConnectionProfile> profiles;
    for (const PriorityList &written : Listed(text)) {
        const QString name = written.name.section(' ', 0, 0);
        profiles.append(SavedProfile(name, written.name.section(' ', 1).toInt(), written.type));
        // Of one name there may be several.
        profiles.last().id = QString::number(profiles.size());
    }
    return profiles;
}

/** "Home 4" is a connection at the stage of that number, "Home 4 *" carries the traffic. */
QList<ActiveConnection> ActiveOf(const QString &text)
{
    QList<ActiveConnection> active;
    for (const PriorityList &written : Listed(text)) {
        active.append(ConnectionOf(written.name.section(' ', 0, 0), written.name.section(' ', 1, 1).toInt(),
                                   written.name.endsWith('*'), written.type));
        active.last().profileId = QLatin1String("not told");
    }
    return active;
}

QString NameOf(const Overview::Entry *entry)
{
    return entry ? entry->entry.name : QString("");
}

} // namespace

class OverviewTest : public QObject
{
    Q_OBJECT

private slots:
    void RecordsDecide_data();
    void RecordsDecide();
    void NothingIsTakenFromASourceThatIsNotKnown_data();
    void NothingIsTakenFromASourceThatIsNotKnown();
    void OfSeveralProfilesTheBestIsTold_data();
    void OfSeveralProfilesTheBestIsTold();
    void UserWhoMayNotConnectIsOfferedNoSwitch();
    void ListThatIsNotWholeOffersNoSwitch();
    void VpnIsNoConnectionThatComesUp();
    void RememberedNetworksAreToldOnceEachInTheirOrder();
    void WithoutPlugInsNothingIsKnown();
};

void OverviewTest::RecordsDecide_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("profiles");
    QTest::addColumn<QString>("inUse");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("comingUp");
    QTest::addColumn<bool>("canSwitch");
    const struct {
        const char *name;
        const char *list;
        const char *active;
        const char *profiles;
        const char *inUse;
        const char *choice;
        const char *comingUp;
        bool canSwitch;
    } rows[] = {
        {"first of two", "A, B", "A 4 *", "A 1, B 1", "A", "A", "", false},
        {"lower than the list wants", "A, B", "B 4 *", "A 1, B 1", "B", "A", "", true},
        {"nothing connected", "A, B", "", "A 1, B 1", "", "A", "", true},
        {"first is out of range", "A, B", "", "A 3, B 1", "", "B", "", true},
        {"in range is not in use", "A", "", "A 1", "", "A", "", true},
        {"nothing to be had", "A, B", "", "A 3, B 4", "", "", "", false},
        {"mobile broadband without a modem", "M/2", "", "M 6/2", "", "", "", false},
        {"no profile", "A", "", "", "", "", "", false},
        {"profile of another type", "A", "", "A 1/2", "", "", "", false},
        {"connection of another type", "A", "A 4 */2", "A 1", "", "A", "", true},
        {"case counts", "home", "Home 4 *", "Home 1", "", "", "", false},
        {"cable", "A", "Cable 4 */0", "A 1", "", "A", "", false},
        {"cable called like an entry", "A/0", "A 4 */0", "", "", "", "", false},
        {"not in the list", "A", "B 4 *", "A 1, B 1", "", "A", "", true},
        {"connected without the traffic", "A, B", "B 4 *, A 4", "A 1, B 1", "B", "A", "", false},
        {"coming up", "A, B", "A 2", "A 1, B 1", "", "A", "A", false},
        {"coming up beside another", "A, B", "B 4 *, A 1", "A 1, B 1", "B", "A", "", false},
        {"another comes up", "A, B", "B 3", "A 1, B 1", "", "A", "B", true},
        {"going down", "A, B", "A 5", "A 1, B 1", "", "A", "", true},
        {"stage that is not known", "A", "A 99", "A 3", "", "", "", false},
        {"use that is not known", "A, B", "", "A 99, B 1", "", "B", "", true},
        {"hidden", "A, B", "", "A 2, B 1", "", "B", "", true},
        {"hidden and in use", "A, B", "A 4 *", "A 2, B 1", "A", "A", "", false},
        {"in use whatever its profile tells", "A, B", "A 4 *", "A 3, B 1", "A", "A", "", false},
        {"in use and listed twice", "A, B, A", "A 4 *", "A 1, B 1", "A", "A", "", false},
    };
    for (const auto &row : rows) {
        Row(row.name, row.list, row.active, row.profiles, row.inUse, row.choice, row.comingUp, row.canSwitch);
    }
}

void OverviewTest::RecordsDecide()
{
    QFETCH(QString, list);
    QFETCH(QString, active);
    QFETCH(QString, profiles);
    Connections told = KnownConnections();
    told.active = ActiveOf(active);
    told.profiles = ProfilesOf(profiles);
    const Overview overview = Overview::Make(0, Listed(list), told);
    QCOMPARE(overview.entries.size(), Listed(list).size());
    QTEST(NameOf(overview.InUse()), "inUse");
    QTEST(NameOf(overview.Choice()), "choice");
    QTEST(overview.ComingUp() ? overview.ComingUp()->name : QString(""), "comingUp");
    QTEST(overview.CanSwitch(), "canSwitch");
    int entriesInUse = 0;
    for (const Overview::Entry &entry : overview.entries) {
        entriesInUse += entry.isInUse ? 1 : 0;
    }
    QCOMPARE(entriesInUse, overview.InUse() ? 1 : 0);
}

void OverviewTest::NothingIsTakenFromASourceThatIsNotKnown_data()
{
    QTest::addColumn<int>("teller");
    QTest::addColumn<int>("source");
    Row("asked", int(Connections::Plugin), int(ConnectionState::SourceNotKnown));
    Row("gone", int(Connections::Plugin), int(ConnectionState::SourceGone));
    Row("number that is not known", int(Connections::Plugin), 99);
    Row("no answers", int(Connections::NoAnswers), int(ConnectionState::SourceKnown));
    Row("no plug-in", int(Connections::NoPlugin), int(ConnectionState::SourceKnown));
}

void OverviewTest::NothingIsTakenFromASourceThatIsNotKnown()
{
    QFETCH(int, teller);
    QFETCH(int, source);
    Connections told = KnownConnections();
    told.teller = static_cast<Connections::Teller>(teller);
    told.state.source = source;
    told.active = ActiveOf("A 4 *, B 2");
    told.profiles = ProfilesOf("A 1");
    const Overview overview = Overview::Make(0, Listed("A"), told);
    QVERIFY(!overview.InUse() && !overview.Choice() && !overview.ComingUp() && !overview.CanSwitch());
    QVERIFY(!overview.connections.InUse());
    QCOMPARE(overview.entries.at(0).stage, int(StageNotKnown));
    QVERIFY(overview.entries.at(0).profile.id.isEmpty());
}

void OverviewTest::OfSeveralProfilesTheBestIsTold_data()
{
    QTest::addColumn<QString>("profiles");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("connected");
    QTest::addColumn<QString>("best");
    Row("possible", "A 3, A 1", "", "", "2");
    Row("possible before hidden", "A 2, A 1", "", "", "2");
    Row("hidden before out of range", "A 3, A 2", "", "", "2");
    Row("equal ones", "A 1, A 1", "", "", "1");
    Row("one that has not failed", "A 1, A 1", "1", "", "2");
    Row("the connected one", "A 1, A 3", "", "2", "2");
}

void OverviewTest::OfSeveralProfilesTheBestIsTold()
{
    QFETCH(QString, profiles);
    QFETCH(QString, failing);
    QFETCH(QString, connected);
    Connections told = KnownConnections();
    told.profiles = ProfilesOf(profiles);
    for (ConnectionProfile &profile : told.profiles) {
        profile.failure = profile.id == failing ? FailureWrongKey : FailureNone;
    }
    if (!connected.isEmpty()) {
        told.active = ActiveOf("A 4 *");
        told.active[0].profileId = connected;
    }
    QTEST(Overview::Make(0, Listed("A"), told).entries.at(0).profile.id, "best");
}

void OverviewTest::UserWhoMayNotConnectIsOfferedNoSwitch()
{
    Connections told = KnownConnections();
    told.profiles = ProfilesOf("A 1");
    told.state.mayConnect = false;
    QVERIFY(!Overview::Make(0, Listed("A"), told).CanSwitch());
}

void OverviewTest::ListThatIsNotWholeOffersNoSwitch()
{
    Connections told = KnownConnections();
    told.profiles = ProfilesOf("A 1");
    QVERIFY(!Overview::Make(PriorityDamaged, Listed("A"), told).CanSwitch());
}

void OverviewTest::VpnIsNoConnectionThatComesUp()
{
    Connections told = KnownConnections();
    told.active = ActiveOf("V 1/0");
    told.active[0].isVpn = true;
    QVERIFY(!Overview::Make(0, Listed("A"), told).ComingUp());
}

void OverviewTest::RememberedNetworksAreToldOnceEachInTheirOrder()
{
    Connections told = KnownConnections();
    told.profiles << SavedProfile("Office") << SavedProfile("Home")
                  << SavedProfile("Home", ConnectionProfile::UsePossible, "2") << SavedProfile("Office")
                  << SavedProfile(QString::fromUtf8("Café"));
    QCOMPARE(AsText(told.Remembered()), QString::fromUtf8("Office, Home, Home/2, Café"));
}

void OverviewTest::WithoutPlugInsNothingIsKnown()
{
    const Overview overview = Overview::Of(PluginList().Read());
    QCOMPARE(overview.status, -1);
    QVERIFY(overview.entries.isEmpty());
    QCOMPARE(int(overview.connections.teller), int(Connections::NoPlugin));
}

QTEST_APPLESS_MAIN(OverviewTest)
#include "tst_overview.moc"
