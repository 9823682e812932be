#include "StoredFixture.h"

#include <QHash>
#include <QList>
#include <QtTest>

#include <cstddef>
#include <cstring>

/*
 * The six operations as a priority plug-in reaches that was built elsewhere: by their positions in the table
 * and with records of its own. The interface's declaration has no part in this file.
 */

namespace
{

struct Profile {
    QString texts[18];
};

struct Network {
    QString name;
    int values[5];
};

struct Remembered {
    QString name;
    QString type;
};

struct SignOn {
    QString texts[3];
};

struct Configuration {
    QHash<QString, QString> settings;
    QList<QString> methods;
    QList<QString> texts2;
    QList<QString> texts3;
    QList<SignOn> signOns;
};

const int profileName = 0;
const int ssid = 5;
const int authentication = 8;
const int encryption = 9;
const int keyType = 10;
const int keyMaterial = 12;
const int keyIndex = 13;
const int readOnly = 15;

typedef int (*CreateOperation)(void *, Profile);
typedef int (*RememberedOperation)(void *, QList<Remembered> *);
typedef int (*ByNameOperation)(void *, QString, Profile *);
typedef int (*ConfigurationOperation)(void *, Configuration *);
typedef int (*NetworksOperation)(void *, QList<Network> *);
typedef int (*NetworkProfileOperation)(void *, const Network &, Profile *);
typedef void (*ReservedOperation)(void *);

void *Interface()
{
    return StoredFixture::Service()->qt_metacast("com.torvik.netquillforge.plugin.IWLANUIPlugin");
}

/** The entry at a position counted from one. */
template <typename Operation> Operation At(int position)
{
    void *const *table = *static_cast<void *const *const *>(Interface());
    Operation operation = nullptr;
    std::memcpy(&operation, table + position - 1, sizeof(operation));
    return operation;
}

const int createPosition = 7;
const int rememberedPosition = 8;
const int byNamePosition = 10;
const int configurationPosition = 11;
const int networksPosition = 22;
const int networkProfilePosition = 23;

} // namespace

class tst_storedpositions : public QObject
{
    Q_OBJECT

private slots:
    void SeventhStoresAProfileThatTheTenthGives();
    void EighthListsTheRememberedProfiles();
    void EleventhGivesTheConfiguration();
    void TwentySecondListsTheNetworksInRange();
    void TwentyThirdGivesTheProfileOfANetwork();
    void ReservedPositionsDoNothing();
};

void tst_storedpositions::SeventhStoresAProfileThatTheTenthGives()
{
    StoredFixture fixture;
    Profile stored;
    for (int i = 0; i < 18; ++i) {
        stored.texts[i] = QString("text %1").arg(i);
    }
    QCOMPARE(At<CreateOperation>(createPosition)(Interface(), stored), 0);

    StoredFixture::Restart();
    Profile given;
    QCOMPARE(At<ByNameOperation>(byNamePosition)(Interface(), stored.texts[profileName], &given), 0);
    for (int i = 0; i < 18; ++i) {
        QCOMPARE(given.texts[i], stored.texts[i]);
    }
}

void tst_storedpositions::EighthListsTheRememberedProfiles()
{
    StoredFixture fixture;
    QList<Remembered> list;
    QCOMPARE(At<RememberedOperation>(rememberedPosition)(Interface(), &list), 0);
    QCOMPARE(list.size(), 7);
    QCOMPARE(list.first().name, QString("Home"));
    QCOMPARE(list.first().type, QString("1"));
    QCOMPARE(list.last().name, QString("Mobile broadband"));
    QCOMPARE(list.last().type, QString("2"));
}

void tst_storedpositions::EleventhGivesTheConfiguration()
{
    StoredFixture fixture;
    Configuration configuration;
    QCOMPARE(At<ConfigurationOperation>(configurationPosition)(Interface(), &configuration), 0);
    QCOMPARE(configuration.methods.size(), 7);
    QCOMPARE(configuration.methods.last(), QString("IEEE 802.1X"));
    QVERIFY(configuration.settings.isEmpty());
    QVERIFY(configuration.texts2.isEmpty());
    QVERIFY(configuration.texts3.isEmpty());
    QVERIFY(configuration.signOns.isEmpty());
}

void tst_storedpositions::TwentySecondListsTheNetworksInRange()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.NetworksPath(), "<wlannetworks>"
                                                 "<network name='Near' signal='90' channel='6'/>"
                                                 "<network name='Far' signal='9'/></wlannetworks>");
    QList<Network> list;
    QCOMPARE(At<NetworksOperation>(networksPosition)(Interface(), &list), 0);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.first().name, QString("Near"));
    QCOMPARE(list.first().values[0], 90);
    QCOMPARE(list.first().values[1], 6);
    QCOMPARE(list.first().values[2], 0);
    QCOMPARE(list.first().values[3], 0);
    QCOMPARE(list.first().values[4], 0);
    QCOMPARE(list.last().values[1], 0);
}

void tst_storedpositions::TwentyThirdGivesTheProfileOfANetwork()
{
    StoredFixture fixture;
    Profile remembered;
    remembered.texts[profileName] = "Near";
    remembered.texts[keyMaterial] = "12345";
    remembered.texts[keyIndex] = "2";
    QCOMPARE(At<CreateOperation>(createPosition)(Interface(), remembered), 0);
    StoredFixture::Write(
        fixture.NetworksPath(),
        "<wlannetworks><network name='Near' signal='90' authentication='shared' encryption='WEP'/>"
        "</wlannetworks>");

    Network network = Network();
    network.name = "Near";
    Profile given;
    QVERIFY(At<NetworkProfileOperation>(networkProfilePosition)(Interface(), network, &given) != 0);
    QCOMPARE(given.texts[profileName], QString("Near"));
    QCOMPARE(given.texts[ssid], QString("Near"));
    QCOMPARE(given.texts[authentication], QString("shared"));
    QCOMPARE(given.texts[encryption], QString("WEP"));
    QCOMPARE(given.texts[keyType], QString("networkKey"));
    QCOMPARE(given.texts[keyMaterial], QString("12345"));
    QCOMPARE(given.texts[keyIndex], QString("2"));
    QVERIFY(given.texts[readOnly].isEmpty());
}

void tst_storedpositions::ReservedPositionsDoNothing()
{
    StoredFixture fixture;
    QList<Remembered> list;
    At<RememberedOperation>(rememberedPosition)(Interface(), &list);
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    QVERIFY(!before.isEmpty());

    const int reserved[] = {3, 4, 5, 6, 9, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21};
    for (std::size_t i = 0; i < sizeof(reserved) / sizeof(reserved[0]); ++i) {
        At<ReservedOperation>(reserved[i])(Interface());
    }
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), before);
}

QTEST_MAIN(tst_storedpositions)
#include "tst_storedpositions.moc"
