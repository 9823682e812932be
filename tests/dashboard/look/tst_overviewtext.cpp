#include "FakeConnections.h"
#include "Lists.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <OverviewText.h>
#include <Row.h>

#include <QtTest>

/** What is told of connections, in words. */
class OverviewTextTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void HeadTellsWhatIsInUse_data();
    void HeadTellsWhatIsInUse();
    void HeadTellsWhatKeepsTheTrafficFromTheInternet_data();
    void HeadTellsWhatKeepsTheTrafficFromTheInternet();
    void HeadTellsWhyNothingIsKnown_data();
    void HeadTellsWhyNothingIsKnown();
    void PracticeNetworksAreCalledSo();
    void StateAndReasonFollowTheProfile_data();
    void StateAndReasonFollowTheProfile();
    void StateFollowsTheConnection_data();
    void StateFollowsTheConnection();
    void StateFollowsTheLastTry_data();
    void StateFollowsTheLastTry();
    void DetailTellsWhatTheStateDoesNot_data();
    void DetailTellsWhatTheStateDoesNot();
    void FailureIsTold_data();
    void FailureIsTold();
    void OutcomeOfAnAttemptIsTold_data();
    void OutcomeOfAnAttemptIsTold();
    void ProfileThatDoesNotConnectByItselfIsToldSo();
    void VpnIsTold();
    void EntryThatIsListedTwiceIsToldSo();
    void LowerEntryNamesTheHigherOne();
};

void OverviewTextTest::init()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

void OverviewTextTest::HeadTellsWhatIsInUse_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("stage");
    QTest::addColumn<bool>("carriesTraffic");
    QTest::addColumn<QString>("headline");
    QTest::addColumn<QString>("explanation");
    Row("what the list would choose", "Home, Café", "1", "Home", int(StageConnected), true,
        "In use now: Home", "It is the first network in your list that is known to be usable.");
    Row("lower", "Home, Café", "1", "Café", int(StageConnected), true, "In use now: Café",
        "Your list would choose Home. NetworkManager keeps a connection that works until "
        "you switch.");
    Row("above it out of range", "Office, Café, Home", "1", "Home", int(StageConnected), true,
        "In use now: Home",
        "Your list would choose Café. NetworkManager keeps a connection that works until you switch.");
    Row("above it hidden", "Attic, Home", "1", "Home", int(StageConnected), true, "In use now: Home",
        "It is the first network in your list that is known to be usable.");
    Row("not in the list", "Home", "1", "Library", int(StageConnected), true, "In use now: Library",
        "It is not in your list. Your list would choose Home. NetworkManager "
        "keeps a connection that works until you switch.");
    Row("cable", "Home", "0", "Wired connection 1", int(StageConnected), true,
        "In use now: Wired connection 1",
        "The list is for Wi-Fi and mobile broadband; this connection is of another kind. "
        "Without it, your list would choose Home.");
    Row("coming up", "Home", "1", "Home", int(StageAuthenticating), false, "Connecting: Home",
        "The key is being checked.");
    Row("without the traffic", "Home", "1", "Home", int(StageConnected), false, "No network in use",
        "Your list would choose Home. Home is connected, but the traffic "
        "does not go through it.");
    Row("nothing", "Home", "", "", int(StageNotKnown), false, "No network in use",
        "Your list would choose Home.");
    Row("nothing to be had", "Office", "", "", int(StageNotKnown), false, "No network in use",
        "None of the networks in your list is known to be usable.");
    Row("empty list", "", "1", "Home", int(StageConnected), true, "In use now: Home",
        "It is not in your list. Your list is empty, so there is nothing to choose "
        "from.");
}

void OverviewTextTest::HeadTellsWhatIsInUse()
{
    QFETCH(QString, list);
    QFETCH(QString, type);
    QFETCH(QString, name);
    QFETCH(int, stage);
    QFETCH(bool, carriesTraffic);
    Connections told = KnownConnections();
    told.profiles << SavedProfile("Home") << SavedProfile(QString::fromUtf8("Café"))
                  << SavedProfile("Office", ConnectionProfile::UseOutOfRange)
                  << SavedProfile("Attic", ConnectionProfile::UseHiddenIsTried);
    if (!name.isEmpty()) {
        told.active << ConnectionOf(name, stage, carriesTraffic, type);
    }
    const Overview overview = Overview::Make(0, Listed(list), told);
    QTEST(OverviewText::Headline(overview), "headline");
    QTEST(OverviewText::Explanation(overview), "explanation");
}

void OverviewTextTest::HeadTellsWhatKeepsTheTrafficFromTheInternet_data()
{
    QTest::addColumn<int>("connectivity");
    QTest::addColumn<QString>("headline");
    QTest::addColumn<QString>("explanation");
    const QString first = "It is the first network in your list that is known to be usable.";
    Row("nothing", int(ConnectionState::ConnectivityFull), "In use now: Home", first);
    Row("not checked", int(ConnectionState::ConnectivityNotKnown), "In use now: Home", first);
    Row("portal", int(ConnectionState::ConnectivityPortal), "In use now: Home, sign-in needed",
        "This network wants you to sign in on a web page.");
    Row("limited", int(ConnectionState::ConnectivityLimited), "In use now: Home, no internet",
        "The network answers, the internet behind it does not.");
}

void OverviewTextTest::HeadTellsWhatKeepsTheTrafficFromTheInternet()
{
    QFETCH(int, connectivity);
    Connections told = KnownConnections();
    told.state.connectivity = connectivity;
    told.profiles << SavedProfile("Home");
    told.active << ConnectionOf("Home", StageConnected, true);
    const Overview overview = Overview::Make(0, Listed("Home"), told);
    QTEST(OverviewText::Headline(overview), "headline");
    QTEST(OverviewText::Explanation(overview), "explanation");
}

void OverviewTextTest::HeadTellsWhyNothingIsKnown_data()
{
    QTest::addColumn<int>("teller");
    QTest::addColumn<QString>("sourceName");
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("headline");
    QTest::addColumn<QString>("explanation");
    Row("no plug-in", int(Connections::NoPlugin), "", 0, "Connection not known",
        "The Wi-Fi plug-in is not available, so it is not known which networks are "
        "in range.");
    Row("plug-in without answers", int(Connections::NoAnswers), "", 0, "Connection not known",
        "The Wi-Fi plug-in does not tell which network is in use.");
    Row("asked", int(Connections::Plugin), "networkmanager", int(ConnectionState::SourceNotKnown),
        "Connection not known",
        "NetworkManager has not answered yet, so it is not known which network is in "
        "use.");
    Row("gone", int(Connections::Plugin), "networkmanager", int(ConnectionState::SourceGone),
        "NetworkManager is not running",
        "It is not known which network is in use. Your list can be changed; it takes "
        "effect once NetworkManager runs.");
    Row("another one gone", int(Connections::Plugin), "stored", int(ConnectionState::SourceGone),
        "Connection not known", "The Wi-Fi plug-in does not tell which network is in use.");
}

void OverviewTextTest::HeadTellsWhyNothingIsKnown()
{
    QFETCH(int, teller);
    QFETCH(QString, sourceName);
    QFETCH(int, source);
    QFETCH(QString, explanation);
    Connections told;
    told.teller = static_cast<Connections::Teller>(teller);
    told.state.sourceName = sourceName;
    told.state.source = source;
    const Overview overview = Overview::Make(0, Listed("Home"), told);
    QTEST(OverviewText::Headline(overview), "headline");
    QCOMPARE(OverviewText::Explanation(overview), explanation);
    QCOMPARE(OverviewText::State(overview, overview.entries.at(0)), QString("Not known if in range"));
    QCOMPARE(OverviewText::Reason(overview, 0), explanation);
}

void OverviewTextTest::PracticeNetworksAreCalledSo()
{
    Connections told = KnownConnections();
    told.state.sourceName = "stored";
    QCOMPARE(OverviewText::Headline(Overview::Make(0, Listed("Home"), told)),
             QString("No network in use (practice)"));
    told.active << ConnectionOf("Home", StageConnected, true);
    QCOMPARE(OverviewText::Headline(Overview::Make(0, Listed("Home"), told)),
             QString("In use now: Home (practice)"));
}

void OverviewTextTest::StateAndReasonFollowTheProfile_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("use");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("reason");
    const QString wifi = "1";
    const QString mobile = "2";
    Row("hidden", wifi, int(ConnectionProfile::UseHiddenIsTried), "Hidden: is tried",
        "The network hides its name, so it is not known if it is in range. It is tried.");
    Row("out of range", wifi, int(ConnectionProfile::UseOutOfRange), "Out of range",
        "Not in use, because it is out of range.");
    Row("other security", wifi, int(ConnectionProfile::UseOtherSecurity), "Cannot be used",
        "A network of that name is in range, but has another security.");
    Row("other device", wifi, int(ConnectionProfile::UseOtherDevice), "Cannot be used",
        "It is saved for another adapter, band or station than what is here.");
    Row("no adapter", wifi, int(ConnectionProfile::UseNoDevice), "No adapter",
        "There is no adapter or modem for it that works.");
    Row("no modem", mobile, int(ConnectionProfile::UseNoDevice), "No modem",
        "There is no adapter or modem for it that works.");
    Row("off", wifi, int(ConnectionProfile::UseDeviceOff), "Turned off",
        "Its adapter or modem is turned off.");
    Row("blocked", wifi, int(ConnectionProfile::UseDeviceBlocked), "Turned off",
        "Its adapter or modem is held off by a button of this computer.");
    Row("SIM", mobile, int(ConnectionProfile::UseSimLocked), "SIM locked", "The SIM card wants its PIN.");
    Row("other users", wifi, int(ConnectionProfile::UseOtherUsers), "Cannot be used",
        "It belongs to other users of this computer.");
    Row("no account", wifi, int(ConnectionProfile::UseNoAccount), "Cannot be used",
        "It needs an account, and none is saved.");
    Row("not known", wifi, int(ConnectionProfile::UseNotKnown), "Not known if in range",
        "It is not known if it can be used.");
    Row("number of a later version", wifi, 99, "Not known if in range", "It is not known if it can be used.");
    Row("in range", wifi, int(ConnectionProfile::UsePossible), "In range", "Your list would choose X.");
    Row("modem ready", mobile, int(ConnectionProfile::UsePossible), "Ready", "Your list would choose X.");
    Row("no profile", wifi, -1, "Not saved here", "This computer has no saved network of that name.");
}

void OverviewTextTest::StateAndReasonFollowTheProfile()
{
    QFETCH(QString, type);
    QFETCH(int, use);
    Connections told = KnownConnections();
    if (use >= 0) {
        told.profiles << SavedProfile("X", use, type);
    }
    const Overview overview = Overview::Make(0, Listed("X/" + type), told);
    QTEST(OverviewText::State(overview, overview.entries.at(0)), "state");
    QTEST(OverviewText::Reason(overview, 0), "reason");
}

void OverviewTextTest::StateFollowsTheConnection_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<bool>("carriesTraffic");
    QTest::addColumn<QString>("state");
    Row("in use", int(StageConnected), true, "In use now · 64%");
    Row("connected", int(StageConnected), false, "Connected · 64%");
    Row("preparing", int(StagePreparing), false, "Connecting · 64%");
    Row("authenticating", int(StageAuthenticating), false, "Connecting · 64%");
    Row("address", int(StageGettingAddress), false, "Connecting · 64%");
    Row("going down", int(StageDisconnecting), false, "Disconnecting · 64%");
}

void OverviewTextTest::StateFollowsTheConnection()
{
    QFETCH(int, stage);
    QFETCH(bool, carriesTraffic);
    Connections told = KnownConnections();
    told.profiles << SavedProfile("X");
    told.active << ConnectionOf("X", stage, carriesTraffic);
    told.active[0].signal = 64;
    const Overview overview = Overview::Make(0, Listed("X"), told);
    QTEST(OverviewText::State(overview, overview.entries.first()), "state");
}

void OverviewTextTest::StateFollowsTheLastTry_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<bool>("connectsByItself");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("mark");
    Row("none", int(FailureNone), true, "In range", int(Glyphs::NoMark));
    Row("stopped by hand", int(FailureStopped), true, "In range", int(Glyphs::NoMark));
    Row("wrong key", int(FailureWrongKey), true, "Key refused", int(Glyphs::MarkError));
    Row("no answer", int(FailureNoAnswer), true, "Last try failed", int(Glyphs::MarkError));
    Row("by hand", int(FailureNone), false, "By hand only", int(Glyphs::NoMark));
    Row("by hand, wrong key", int(FailureWrongKey), false, "Key refused", int(Glyphs::MarkError));
}

void OverviewTextTest::StateFollowsTheLastTry()
{
    QFETCH(int, failure);
    QFETCH(bool, connectsByItself);
    Connections told = KnownConnections();
    told.profiles << SavedProfile("X");
    told.profiles[0].failure = failure;
    told.profiles[0].connectsByItself = connectsByItself;
    const Overview overview = Overview::Make(0, Listed("X"), told);
    QTEST(OverviewText::State(overview, overview.entries.at(0)), "state");
    QTEST(int(OverviewText::Mark(overview, overview.entries.at(0))), "mark");
}

void OverviewTextTest::DetailTellsWhatTheStateDoesNot_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("detail");
    QTest::addColumn<int>("reach");
    Row("out of range", 0, "Out of range", "Wi-Fi", int(Glyphs::OutOfReach));
    Row("hidden", 1, "Hidden: is tried",
        "Wi-Fi · The network hides its name, so it is not known if it is in range. It "
        "is tried.",
        int(Glyphs::ReachNotKnown));
    Row("higher than what is in use", 2, "In range",
        "Wi-Fi · NetworkManager keeps a connection that works until you switch.", int(Glyphs::InReach));
    Row("in use", 3, "In use now", "Wi-Fi", int(Glyphs::InReach));
    Row("lower", 4, "In range", "Wi-Fi · Home is higher in the list.", int(Glyphs::InReach));
    Row("no profile", 5, "Not saved here", "Wi-Fi · This computer has no saved network of that name.",
        int(Glyphs::OutOfReach));
    Row("listed twice", 6, "Listed twice",
        "Wi-Fi · It stands higher in the list already, so this place has no "
        "effect.",
        int(Glyphs::InReach));
}

void OverviewTextTest::DetailTellsWhatTheStateDoesNot()
{
    QFETCH(int, place);
    Connections told = KnownConnections();
    told.profiles << SavedProfile("Office", ConnectionProfile::UseOutOfRange)
                  << SavedProfile("Attic", ConnectionProfile::UseHiddenIsTried) << SavedProfile("Home")
                  << SavedProfile("Cafe") << SavedProfile("Library");
    told.active << ConnectionOf("Cafe", StageConnected, true);
    const Overview overview =
        Overview::Make(0, Listed("Office, Attic, Home, Cafe, Library, Away, Home"), told);
    QTEST(OverviewText::State(overview, overview.entries.at(place)), "state");
    QTEST(Plain(OverviewText::Detail(overview, place)), "detail");
    QTEST(int(OverviewText::Reach(overview, overview.entries.at(place))), "reach");
}

void OverviewTextTest::FailureIsTold_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("text");
    Row("other", int(FailureOther), "When last tried, it could not be connected.");
    Row("wrong key", int(FailureWrongKey), "When last tried, the key was refused.");
    Row("key missing", int(FailureKeyMissing), "When last tried, a key was missing.");
    Row("no answer", int(FailureNoAnswer), "When last tried, it did not answer.");
    Row("no address", int(FailureNoAddress), "When last tried, it gave no address.");
    Row("refused", int(FailureRefused), "When last tried, it did not let this computer in.");
    Row("SIM", int(FailureSim), "When last tried, the SIM card did not work.");
    Row("stopped", int(FailureStopped), "When last tried, it was ended by hand.");
    Row("device", int(FailureDevice), "When last tried, the adapter or modem was not available.");
    Row("not allowed", int(FailureNotAllowed), "You are not allowed to do that.");
    Row("source", int(FailureSource), "When last tried, it could not be connected.");
}

void OverviewTextTest::FailureIsTold()
{
    QFETCH(int, failure);
    QFETCH(QString, text);
    Connections told = KnownConnections();
    told.profiles << SavedProfile("X") << SavedProfile("Far", ConnectionProfile::UseOutOfRange);
    told.profiles[0].failure = failure;
    told.profiles[1].failure = failure;
    const Overview overview = Overview::Make(0, Listed("X, Far"), told);
    QCOMPARE(OverviewText::Reason(overview, 0), "Your list would choose X. " + text);
    QCOMPARE(OverviewText::Reason(overview, 1), "Not in use, because it is out of range. " + text);
}

void OverviewTextTest::OutcomeOfAnAttemptIsTold_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("text");
    Row("other", int(FailureOther), "X was not connected.");
    Row("wrong key", int(FailureWrongKey),
        "X was not connected. The key was refused. Upper and lower case count.");
    Row("key missing", int(FailureKeyMissing), "X was not connected. A key is needed, and none is saved.");
    Row("no answer", int(FailureNoAnswer), "X was not connected. It did not answer; it may be too far away.");
    Row("no address", int(FailureNoAddress),
        "X was not connected. It let this computer in, but gave it no address.");
    Row("refused", int(FailureRefused), "X was not connected. It did not let this computer in.");
    Row("SIM", int(FailureSim), "X was not connected. The SIM card did not work.");
    Row("stopped", int(FailureStopped), "X was not connected. It was stopped.");
    Row("device", int(FailureDevice), "X was not connected. The adapter or modem was not available.");
    Row("not allowed", int(FailureNotAllowed), "X was not connected. You are not allowed to do that.");
}

void OverviewTextTest::OutcomeOfAnAttemptIsTold()
{
    QFETCH(int, failure);
    const QString told =
        OverviewText::NotDone("IDS_SWITCH_FAILED", QLatin1String("X"), OverviewText::Outcome(failure));
    QTEST(Plain(told), "text");
}

void OverviewTextTest::ProfileThatDoesNotConnectByItselfIsToldSo()
{
    Connections told = KnownConnections();
    told.profiles << SavedProfile("X");
    told.profiles[0].connectsByItself = false;
    QCOMPARE(OverviewText::Reason(Overview::Make(0, Listed("X"), told), 0),
             QString("Your list would choose X. It does not connect by itself."));
}

void OverviewTextTest::VpnIsTold()
{
    Connections told = KnownConnections();
    told.active << ConnectionOf("Home", StageConnected, true)
                << ConnectionOf("Work", StageConnected, false, "0");
    told.active[1].isVpn = true;
    const Overview overview = Overview::Make(0, Listed("Home"), told);
    QCOMPARE(OverviewText::Headline(overview), QString("In use now: Home"));
    QVERIFY(OverviewText::Explanation(overview).contains("The VPN Work is connected."));
}

void OverviewTextTest::EntryThatIsListedTwiceIsToldSo()
{
    Connections told = KnownConnections();
    told.profiles << SavedProfile("X");
    const Overview overview = Overview::Make(0, Listed("X, X"), told);
    QCOMPARE(OverviewText::Reason(overview, 1),
             QString("It stands higher in the list already, so this place has no effect."));
    QCOMPARE(int(OverviewText::Mark(overview, overview.entries.at(1))), int(Glyphs::MarkWarning));
}

void OverviewTextTest::LowerEntryNamesTheHigherOne()
{
    Connections told = KnownConnections();
    told.profiles << SavedProfile("A") << SavedProfile("B");
    QCOMPARE(OverviewText::Reason(Overview::Make(0, Listed("A, B"), told), 1),
             QString("A is higher in the list."));
}

QTEST_MAIN(OverviewTextTest)
#include "tst_overviewtext.moc"
