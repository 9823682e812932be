#include <Overview.h>
#include <PluginList.h>

#include <QtTest>

namespace
{

/** "Home" is a Wi-Fi entry, "Home/2" one of that kind. */
QList<PriorityList> ListOf(const QStringList &texts)
{
    QList<PriorityList> list;
    for (int i = 0; i < texts.size(); ++i) {
        PriorityList entry;
        entry.name = texts.at(i).section('/', 0, 0);
        entry.type = texts.at(i).contains('/') ? texts.at(i).section('/', 1) : QString("1");
        list.append(entry);
    }
    return list;
}

/** "Home" is a network in range, "Home/64" one that is received with 64 percent. */
QList<WlanAvilableNetworkInfo> NetworksOf(const QStringList &texts)
{
    QList<WlanAvilableNetworkInfo> networks;
    for (int i = 0; i < texts.size(); ++i) {
        WlanAvilableNetworkInfo network;
        network.networkName = texts.at(i).section('/', 0, 0);
        network.value1 = texts.at(i).section('/', 1).toInt();
        networks.append(network);
    }
    return networks;
}

} // namespace

class OverviewTest : public QObject
{
    Q_OBJECT

private slots:
    void FirstEntryInRangeIsInUse_data();
    void FirstEntryInRangeIsInUse();
    void RangeIsTold();
    void SignalIsTold_data();
    void SignalIsTold();
    void WithoutPriorityPluginThereIsNoList();
};

void OverviewTest::FirstEntryInRangeIsInUse_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<bool>("isRangeKnown");
    QTest::addColumn<QStringList>("inRange");
    QTest::addColumn<QString>("inUse");
    QTest::newRow("the first") << (QStringList() << "A"
                                                 << "B")
                               << true
                               << (QStringList() << "B"
                                                 << "A")
                               << "A";
    QTest::newRow("the first is away") << (QStringList() << "A"
                                                         << "B")
                                       << true << QStringList("B") << "B";
    QTest::newRow("none") << (QStringList() << "A"
                                            << "B")
                          << true << QStringList("C") << "";
    QTest::newRow("empty list") << QStringList() << true << QStringList("A") << "";
    QTest::newRow("case counts") << QStringList("home") << true << QStringList("Home") << "";
    QTest::newRow("mobile as fallback") << (QStringList() << "A"
                                                          << "M/2"
                                                          << "B")
                                        << true << QStringList("B") << "M";
    QTest::newRow("Wi-Fi before mobile") << (QStringList() << "A"
                                                           << "M/2")
                                         << true << QStringList("A") << "A";
    QTest::newRow("any other kind is mobile") << QStringList("M/") << true << QStringList() << "M";
    QTest::newRow("range not known") << (QStringList() << "A"
                                                       << "M/2")
                                     << false << QStringList() << "";
    QTest::newRow("mobile first, range not known") << (QStringList() << "M/2"
                                                                     << "A")
                                                   << false << QStringList() << "M";
    QTest::newRow("twice in the list") << (QStringList() << "A"
                                                         << "B"
                                                         << "A")
                                       << true << QStringList("A") << "A";
}

void OverviewTest::FirstEntryInRangeIsInUse()
{
    QFETCH(QStringList, list);
    QFETCH(bool, isRangeKnown);
    QFETCH(QStringList, inRange);
    const Overview overview = Overview::Make(0, ListOf(list), isRangeKnown, NetworksOf(inRange));
    QCOMPARE(overview.entries.size(), list.size());
    const Overview::Entry *inUse = overview.InUse();
    QTEST(inUse ? inUse->entry.name : QString(""), "inUse");
    int entriesInUse = 0;
    for (int i = 0; i < overview.entries.size(); ++i) {
        entriesInUse += overview.entries.at(i).isInUse ? 1 : 0;
    }
    QCOMPARE(entriesInUse, inUse ? 1 : 0);
}

void OverviewTest::RangeIsTold()
{
    const QList<PriorityList> list = ListOf(QStringList() << "A"
                                                          << "B"
                                                          << "M/2");
    const Overview known = Overview::Make(0, list, true, NetworksOf(QStringList("B")));
    QCOMPARE(known.entries.at(0).range, Overview::OutOfRange);
    QCOMPARE(known.entries.at(1).range, Overview::InRange);
    QCOMPARE(known.entries.at(2).range, Overview::InRange);
    const Overview unknown = Overview::Make(0, list, false, NetworksOf(QStringList()));
    QCOMPARE(unknown.entries.at(0).range, Overview::RangeUnknown);
    QCOMPARE(unknown.entries.at(2).range, Overview::InRange);
}

void OverviewTest::SignalIsTold_data()
{
    QTest::addColumn<QStringList>("inRange");
    QTest::addColumn<int>("signal");
    QTest::newRow("percentage") << QStringList("A/64") << 64;
    QTest::newRow("none at all") << QStringList("A/0") << 0;
    QTest::newRow("full") << QStringList("A/100") << 100;
    QTest::newRow("no percentage") << QStringList("A/101") << int(SignalStrength::unknown);
    QTest::newRow("decibels") << QStringList("A/-70") << int(SignalStrength::unknown);
    QTest::newRow("out of range") << QStringList("B/64") << int(SignalStrength::unknown);
    QTest::newRow("several stations") << (QStringList() << "A/80"
                                                        << "A/20")
                                      << 80;
}

void OverviewTest::SignalIsTold()
{
    QFETCH(QStringList, inRange);
    const QList<PriorityList> list = ListOf(QStringList("A"));
    const Overview overview = Overview::Make(0, list, true, NetworksOf(inRange));
    QTEST(overview.entries.at(0).signal, "signal");
    const Overview blind = Overview::Make(0, list, false, NetworksOf(inRange));
    QCOMPARE(blind.entries.at(0).signal, int(SignalStrength::unknown));
}

void OverviewTest::WithoutPriorityPluginThereIsNoList()
{
    const Overview overview = Overview::Of(PluginList().Read());
    QCOMPARE(overview.status, -1);
    QVERIFY(overview.entries.isEmpty() && !overview.isRangeKnown);
}

QTEST_APPLESS_MAIN(OverviewTest)
#include "tst_overview.moc"
