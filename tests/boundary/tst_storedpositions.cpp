#include "HostServices.h"
#include "LoadedLibrary.h"
#include "Records.h"
#include "RootTable.h"

#include <TemporaryDirectory.h>

#include <QPointer>
#include <QScopedPointer>
#include <QtTest>

namespace
{

typedef int (*CreateOperation)(void *, Profile);
typedef int (*RememberedOperation)(void *, QList<Entry> *);
typedef int (*ByNameOperation)(void *, QString, Profile *);
typedef int (*ConfigurationOperation)(void *, Configuration *);
typedef int (*NetworksOperation)(void *, QList<Network> *);
typedef void (*ActiveOperation)(void *, QList<Active> *);
typedef void (*VisibleOperation)(void *, QList<Visible> *);
typedef int (*ConnectOperation)(void *, const QString &);
typedef void (*CancelOperation)(void *, int);
typedef void (*AttemptOperation)(void *, int, Attempt *);
typedef int (*NetworkProfileOperation)(void *, const Network &, Profile *);

const char *const wlanIdentifier = "com.torvik.netquillforge.plugin.IWLANUIPlugin";
const int wlanNumber = 4102;
const char *const connectionsIdentifier = "com.torvik.netquillforge.plugin.IConnectionPlugin";
const int connectionsNumber = 4104;

const int createPosition = 7;
const int rememberedPosition = 8;
const int byNamePosition = 10;
const int configurationPosition = 11;
const int networksPosition = 22;
const int networkProfilePosition = 23;

} // namespace

/** The WLAN sibling that keeps its profiles in a file, every operation called by its position. */
class StoredPositionsTest : public QObject
{
    Q_OBJECT

public:
    StoredPositionsTest() : m_library("WLANStored") {}

private slots:
    void init();
    void cleanup();

    void RootPartsLieOneAfterTheOther();
    void RootOperationsHaveTheirNames_data();
    void RootOperationsHaveTheirNames();
    void RootAnswers();
    void RootHandsOutTheServiceForItsNumber();
    void RootIsDestroyedByItsTable_data();
    void RootIsDestroyedByItsTable();

    void OperationsHaveTheirNames_data();
    void OperationsHaveTheirNames();
    void SeventhStoresAProfileThatTheTenthGives();
    void TextsAreStoredUnderTheirNames();
    void EighthListsTheRememberedProfiles();
    void EleventhGivesTheConfiguration();
    void TwentySecondListsTheNetworksInRange();
    void TwentyThirdGivesTheProfileOfANetwork();
    void ReservedPositionsDoNothing();

    void OperationsOfConnectionsHaveTheirNames_data();
    void OperationsOfConnectionsHaveTheirNames();
    void ConnectionsGoThroughTheirPositions();

private:
    void *Root() { return m_library.Root()->qt_metacast(rootIdentifier); }
    void *DestroyPart() { return NextPart(Root()); }
    QObject *Service();
    void *Connections();
    void *Wlan() { return Service()->qt_metacast(wlanIdentifier); }
    void Restart() { At<PlainOperation>(DestroyPart(), DestroyTable::onDestroy)(DestroyPart()); }
    void CompareName(const QString &expected, void *part, int position);

    LoadedLibrary m_library;
    QScopedPointer<TemporaryDirectory> m_directory;
};

void StoredPositionsTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    HostServices::Reset(m_directory->Path());
}

void StoredPositionsTest::cleanup()
{
    Restart();
    m_directory.reset();
}

QObject *StoredPositionsTest::Service()
{
    QObject *service = nullptr;
    At<QueryOperation>(Root(), RootTable::queryInterface)(Root(), wlanNumber, &service);
    return service;
}

void *StoredPositionsTest::Connections()
{
    QObject *service = nullptr;
    At<QueryOperation>(Root(), RootTable::queryInterface)(Root(), connectionsNumber, &service);
    return service ? service->qt_metacast(connectionsIdentifier) : nullptr;
}

void StoredPositionsTest::CompareName(const QString &expected, void *part, int position)
{
    const QStringList names = m_library.NamesAt(part, position);
    if (!m_library.HasNames()) {
        QSKIP("the library was stripped: the names of its operations can't be compared");
    }
    QVERIFY2(names.contains(expected), qPrintable(names.join(" ")));
}

void StoredPositionsTest::RootPartsLieOneAfterTheOther()
{
    QObject *root = m_library.Root();
    QCOMPARE(static_cast<int>(static_cast<char *>(Root()) - reinterpret_cast<char *>(root)),
             static_cast<int>(sizeof(QObject)));
    QCOMPARE(root->qt_metacast("com.torvik.netquillforge.plugin.IBasePlugin"), Root());
    QVERIFY(!root->qt_metacast("com.torvik.netquillforge.plugin.INotify"));
    QVERIFY(!root->qt_metacast(wlanIdentifier));
}

void StoredPositionsTest::RootOperationsHaveTheirNames_data()
{
    QTest::addColumn<bool>("isFirstPart");
    QTest::addColumn<int>("position");
    QTest::newRow("Release") << true << RootTable::release;
    QTest::newRow("GetLastError") << true << RootTable::getLastError;
    QTest::newRow("Init") << true << RootTable::init;
    QTest::newRow("GetPluginType") << true << RootTable::getPluginType;
    QTest::newRow("GetCLSID") << true << RootTable::getClassId;
    QTest::newRow("GetVersion") << true << RootTable::getVersion;
    QTest::newRow("GetPluginName") << true << RootTable::getPluginName;
    QTest::newRow("IsAllowRelease") << true << RootTable::isAllowRelease;
    QTest::newRow("QueryInterface") << true << RootTable::queryInterface;
    QTest::newRow("ShowWindow") << true << RootTable::showWindow;
    QTest::newRow("DoModal") << true << RootTable::doModal;
    QTest::newRow("Hide") << true << RootTable::hide;
    QTest::newRow("FitSize") << true << RootTable::fitSize;
    QTest::newRow("IsReady") << true << RootTable::isReady;
    QTest::newRow("ChangeLang") << true << RootTable::changeLanguage;
    QTest::newRow("OnDestroy") << false << DestroyTable::onDestroy;
    QTest::newRow("UnSDKRegisterEvent") << false << DestroyTable::unregisterEvent;
}

void StoredPositionsTest::RootOperationsHaveTheirNames()
{
    QFETCH(bool, isFirstPart);
    QFETCH(int, position);
    CompareName(QString("CWLANPlugin::") + QTest::currentDataTag(), isFirstPart ? Root() : DestroyPart(),
                position);
}

void StoredPositionsTest::RootAnswers()
{
    QRect rect(1, 2, 3, 4);
    QVERIFY(At<AnswerOperation>(Root(), RootTable::init)(Root()));
    QCOMPARE(At<NumberOperation>(Root(), RootTable::getLastError)(Root()), 0);
    QCOMPARE(At<NumberOperation>(Root(), RootTable::getPluginType)(Root()), 0);
    QCOMPARE(At<TextOperation>(Root(), RootTable::getClassId)(Root()),
             QString("7545FB07-0E7A-4F27-A449-872DB09C106D"));
    QCOMPARE(At<NumberOperation>(Root(), RootTable::getVersion)(Root()), 0);
    QCOMPARE(At<TextOperation>(Root(), RootTable::getPluginName)(Root()), QString("WLANStored"));
    QVERIFY(!At<AnswerOperation>(Root(), RootTable::isAllowRelease)(Root()));
    QVERIFY(!At<ShowOperation>(Root(), RootTable::showWindow)(Root(), nullptr, rect));
    QCOMPARE(At<NumberOperation>(Root(), RootTable::doModal)(Root()), 0);
    At<PlainOperation>(Root(), RootTable::hide)(Root());
    At<FitOperation>(Root(), RootTable::fitSize)(Root(), rect);
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QVERIFY(!At<AnswerOperation>(Root(), RootTable::isReady)(Root()));
    QVERIFY(At<LanguageOperation>(Root(), RootTable::changeLanguage)(Root(), "ar"));
    QVERIFY(!At<LanguageOperation>(Root(), RootTable::changeLanguage)(Root(), QString()));
    At<PlainOperation>(Root(), RootTable::release)(Root());
    At<PlainOperation>(DestroyPart(), DestroyTable::unregisterEvent)(DestroyPart());
}

void StoredPositionsTest::RootHandsOutTheServiceForItsNumber()
{
    const QPointer<QObject> service = Service();
    QVERIFY(service);
    QVERIFY(Wlan());
    QObject *object = nullptr;
    QVERIFY(!At<QueryOperation>(Root(), RootTable::queryInterface)(Root(), 4098, &object));
    QVERIFY(!At<QueryOperation>(Root(), RootTable::queryInterface)(Root(), 4103, &object));
    QVERIFY(!object);
    Restart();
    QVERIFY(!service);
}

void StoredPositionsTest::RootIsDestroyedByItsTable_data()
{
    QTest::addColumn<bool>("isFirstPart");
    QTest::addColumn<int>("position");
    QTest::newRow("deleting, root") << true << deletingDestructor;
    QTest::newRow("deleting, farewell") << false << deletingDestructor;
    QTest::newRow("complete, root") << true << completeDestructor;
    QTest::newRow("complete, farewell") << false << completeDestructor;
}

void StoredPositionsTest::RootIsDestroyedByItsTable()
{
    QFETCH(bool, isFirstPart);
    QFETCH(int, position);
    void *const storage = m_library.Root();
    const QPointer<QObject> root = m_library.Root();
    void *const part = isFirstPart ? Root() : DestroyPart();
    At<Destructor>(part, position)(part);
    QVERIFY(!root);
    if (position == completeDestructor) {
        operator delete(storage);
    }
}

void StoredPositionsTest::OperationsHaveTheirNames_data()
{
    QTest::addColumn<int>("position");
    QTest::newRow("CStoredWLANService::CreateWLANProfile") << createPosition;
    QTest::newRow("CStoredWLANService::GetRememberedList") << rememberedPosition;
    QTest::newRow("CStoredWLANService::GetProfileByName") << byNamePosition;
    QTest::newRow("CStoredWLANService::GetConfigData") << configurationPosition;
    QTest::newRow("CStoredWLANService::GetAvailableNetworks") << networksPosition;
    QTest::newRow("CStoredWLANService::GetNetworkProfile") << networkProfilePosition;
}

void StoredPositionsTest::OperationsHaveTheirNames()
{
    QFETCH(int, position);
    CompareName(QTest::currentDataTag(), Wlan(), position);
}

void StoredPositionsTest::SeventhStoresAProfileThatTheTenthGives()
{
    Profile stored;
    for (int i = 0; i < ProfileTextCount; ++i) {
        stored.texts[i] = QString("text %1").arg(i);
    }
    QCOMPARE(At<CreateOperation>(Wlan(), createPosition)(Wlan(), stored), 0);

    Restart();
    Profile given;
    QCOMPARE(At<ByNameOperation>(Wlan(), byNamePosition)(Wlan(), stored.texts[ProfileName], &given), 0);
    for (int i = 0; i < ProfileTextCount; ++i) {
        QCOMPARE(given.texts[i], stored.texts[i]);
    }
}

void StoredPositionsTest::TextsAreStoredUnderTheirNames()
{
    const char *const names[] = {"profileName", "text1",   "text2",          "text3",          "text4",
                                 "ssid",        "bssType", "connectionMode", "authentication", "encryption",
                                 "keyType",     "keyFlag", "keyMaterial",    "keyIndex",       "text14",
                                 "readOnly",    "text16",  "text17"};
    Profile stored;
    for (int i = 0; i < ProfileTextCount; ++i) {
        stored.texts[i] = QString("text %1").arg(i);
    }
    QCOMPARE(At<CreateOperation>(Wlan(), createPosition)(Wlan(), stored), 0);
    const QString file = QString::fromUtf8(m_directory->Read("WLANProfiles.xml"));
    for (int i = 0; i < ProfileTextCount; ++i) {
        const QString attribute = QString(" %1=\"text %2\"").arg(names[i]).arg(i);
        QVERIFY2(file.contains(attribute), qPrintable(attribute));
    }
}

void StoredPositionsTest::EighthListsTheRememberedProfiles()
{
    QList<Entry> list;
    QCOMPARE(At<RememberedOperation>(Wlan(), rememberedPosition)(Wlan(), &list), 0);
    QCOMPARE(static_cast<int>(list.size()), 7);
    QCOMPARE(list.first().name, QString("Home"));
    QCOMPARE(list.first().type, QString("1"));
    QCOMPARE(list.last().name, QString("Mobile broadband"));
    QCOMPARE(list.last().type, QString("2"));
}

void StoredPositionsTest::EleventhGivesTheConfiguration()
{
    Configuration configuration;
    QCOMPARE(At<ConfigurationOperation>(Wlan(), configurationPosition)(Wlan(), &configuration), 0);
    QCOMPARE(static_cast<int>(configuration.methods.size()), 6);
    QCOMPARE(configuration.methods.last(), QString("WPA2(EAP)"));
    QVERIFY(configuration.settings.isEmpty());
    QVERIFY(configuration.texts2.isEmpty());
    QVERIFY(configuration.texts3.isEmpty());
    QVERIFY(configuration.signOns.isEmpty());
}

void StoredPositionsTest::TwentySecondListsTheNetworksInRange()
{
    m_directory->Write("WLANNetworks.xml", "<wlannetworks>"
                                           "<network name='Near' signal='90' channel='6'/>"
                                           "<network name='Far' signal='9'/></wlannetworks>");
    QList<Network> list;
    QCOMPARE(At<NetworksOperation>(Wlan(), networksPosition)(Wlan(), &list), 0);
    QCOMPARE(static_cast<int>(list.size()), 2);
    QCOMPARE(list.first().name, QString("Near"));
    QCOMPARE(list.first().values[0], 90);
    QCOMPARE(list.first().values[1], 6);
    QCOMPARE(list.first().values[2], 0);
    QCOMPARE(list.first().values[3], 0);
    QCOMPARE(list.first().values[4], 0);
    QCOMPARE(list.last().values[1], 0);
}

void StoredPositionsTest::TwentyThirdGivesTheProfileOfANetwork()
{
    Profile remembered;
    remembered.texts[ProfileName] = "Near";
    remembered.texts[ProfileKeyMaterial] = "12345";
    remembered.texts[ProfileKeyIndex] = "2";
    QCOMPARE(At<CreateOperation>(Wlan(), createPosition)(Wlan(), remembered), 0);
    m_directory->Write("WLANNetworks.xml", "<wlannetworks><network name='Near' signal='90' "
                                           "authentication='shared' encryption='WEP'/></wlannetworks>");

    Network network = Network();
    network.name = "Near";
    Profile given;
    QVERIFY(At<NetworkProfileOperation>(Wlan(), networkProfilePosition)(Wlan(), network, &given) != 0);
    QCOMPARE(given.texts[ProfileName], QString("Near"));
    QCOMPARE(given.texts[ProfileSsid], QString("Near"));
    QCOMPARE(given.texts[ProfileAuthentication], QString("shared"));
    QCOMPARE(given.texts[ProfileEncryption], QString("WEP"));
    QCOMPARE(given.texts[ProfileKeyType], QString("networkKey"));
    QCOMPARE(given.texts[ProfileKeyMaterial], QString("12345"));
    QCOMPARE(given.texts[ProfileKeyIndex], QString("2"));
    QVERIFY(given.texts[ProfileReadOnly].isEmpty());
}

void StoredPositionsTest::ReservedPositionsDoNothing()
{
    QList<Entry> list;
    At<RememberedOperation>(Wlan(), rememberedPosition)(Wlan(), &list);
    const QByteArray before = m_directory->Read("WLANProfiles.xml");
    QVERIFY(!before.isEmpty());

    const int reserved[] = {3, 4, 5, 6, 9, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21};
    for (int position : reserved) {
        At<PlainOperation>(Wlan(), position)(Wlan());
    }
    QCOMPARE(m_directory->Read("WLANProfiles.xml"), before);
}

void StoredPositionsTest::OperationsOfConnectionsHaveTheirNames_data()
{
    QTest::addColumn<int>("position");
    const char *const names[] = {
        "GetConnectionState", "GetActiveConnections", "GetProfiles", "GetVisibleNetworks", "LookForNetworks",
        "ConnectProfile",     "ConnectNetwork",       "Disconnect",  "GetAttempt",         "CancelAttempt"};
    int position = 3;
    for (const char *name : names) {
        QTest::newRow(QByteArray("CStoredConnections::") + name) << position;
        ++position;
    }
}

void StoredPositionsTest::OperationsOfConnectionsHaveTheirNames()
{
    QFETCH(int, position);
    CompareName(QTest::currentDataTag(), Connections(), position);
}

void StoredPositionsTest::ConnectionsGoThroughTheirPositions()
{
    QVERIFY(Connections());
    QList<Visible> networks;
    At<VisibleOperation>(Connections(), 6)(Connections(), &networks);
    QVERIFY(!networks.isEmpty());
    const Visible home = networks.first();
    QCOMPARE(home.name, QString("Home"));
    QCOMPARE(home.signal, 92);
    QCOMPARE(home.profileIds.size(), 1);
    const int number = At<ConnectOperation>(Connections(), 8)(Connections(), home.profileIds.first());
    QVERIFY(number > 0);
    Attempt attempt = Attempt();
    At<AttemptOperation>(Connections(), 11)(Connections(), number, &attempt);
    QCOMPARE(attempt.name, QString("Home"));
    QCOMPARE(attempt.profileId, home.profileIds.first());
    QCOMPARE(attempt.numbers[0], 1);
    QList<Active> active;
    At<ActiveOperation>(Connections(), 4)(Connections(), &active);
    QCOMPARE(static_cast<int>(active.size()), 1);
    QCOMPARE(active.first().texts[ActiveName], QString("Home"));
    QCOMPARE(active.first().signal, 92);
    At<CancelOperation>(Connections(), 12)(Connections(), number);
    At<AttemptOperation>(Connections(), 11)(Connections(), number, &attempt);
    QCOMPARE(attempt.numbers[0], 8);
}

QTEST_GUILESS_MAIN(StoredPositionsTest)
#include "tst_storedpositions.moc"
