#include <ConnectionPicture.h>
#include <MetricFit.h>
#include <MetricPlan.h>
#include <Row.h>

#include <QtTest>

namespace
{

const unsigned int activating = 1;
const unsigned int activated = 2;

typedef QMap<QString, PriorityRecord> Records;

/** Of names; those that begin with "M" are mobile broadband. */
QList<PriorityList> List(const QString &names)
{
    QList<PriorityList> list;
    const QStringList all = names.split(' ');
    for (const QString &name : all) {
        PriorityList entry;
        entry.name = name;
        entry.type = name.startsWith('M') ? "2" : "1";
        list.append(entry);
    }
    return list;
}

/** Connections are numbered from 1, and their devices named like their profiles. */
class Picture : public ConnectionPicture
{
public:
    /** Names with blanks between them; "W" is wired, and what ends with "..." is coming up. */
    explicit Picture(const QString &names, const QString &primary = QString())
    {
        const QStringList all = names.split(' ');
        for (const QString &text : all) {
            NetworkProfile profile;
            profile.name = QString(text).remove("...");
            profile.path = "/profile/" + profile.name;
            profile.kind = profile.name.startsWith('M')   ? NetworkProfile::MobileBroadband
                           : profile.name.startsWith('W') ? NetworkProfile::OtherKind
                                                          : NetworkProfile::Wifi;
            profiles.append(profile);
            ActiveObject connection;
            connection.path = QString("/active/%1").arg(profiles.size());
            connection.profile = profile.path;
            connection.state = text == profile.name ? activated : activating;
            connection.devices.append(profile.name);
            state.connections.append(connection);
            if (profile.name == primary) {
                state.primaryConnection = connection.path;
            }
        }
    }

    Picture With(int profile, const QString &section, const QString &key, const QVariant &value) const
    {
        Picture changed = *this;
        changed.profiles[profile].settings[section][key] = value;
        return changed;
    }
};

/** "device=IPv4 metric,IPv6 metric" for every change, "own" for what is given back, "-" for nothing; and what
 * contradicts. */
QStringList Plan(const QString &list, const Picture &picture, Records *records,
                 const QHash<QString, qint64> &chosen = QHash<QString, qint64>())
{
    const PlannedMetrics planned = MetricPlan::Make(List(list), picture, chosen, records);
    QStringList texts;
    for (const NetworkProfile &profile : planned.contradicting) {
        texts.append(profile.name + " contradicts");
    }
    for (const MetricChange &change : planned.changes) {
        QMap<QString, QString> metrics{{"ipv4", "-"}, {"ipv6", "-"}};
        for (const MetricWish &wish : change.wishes) {
            metrics[wish.section] = wish.metric == wish.own ? "own" : QString::number(wish.metric);
        }
        texts.append(change.device + "=" + metrics["ipv4"] + "," + metrics["ipv6"]);
    }
    return texts;
}

QStringList Plan(const QString &list, const Picture &picture)
{
    Records records;
    return Plan(list, picture, &records);
}

} // namespace

/** Which metrics are set and given back, without anything being asked or written. */
class tst_metricplan : public QObject
{
    Q_OBJECT

private slots:
    void MetricsAreFitted_data();
    void MetricsAreFitted();
    void FirstListedConnectionCarriesTheTraffic_data();
    void FirstListedConnectionCarriesTheTraffic();
    void SecondDeviceOfAKindIsKnownByTheTraffic();
    void TrafficTellsNothingOfWhatWasSet();
    void ChosenMetricIsFittedAround_data();
    void ChosenMetricIsFittedAround();
    void MetricChosenForAConnectionThatIsUpIsFittedAround();
    void ConnectionWithoutDefaultRouteHasNoPlace_data();
    void ConnectionWithoutDefaultRouteHasNoPlace();
    void WhatWasSetIsGivenBack_data();
    void WhatWasSetIsGivenBack();
    void RecordEndsWithItsConnection();
    void WhatWasSetIsRecorded();
};

void tst_metricplan::MetricsAreFitted_data()
{
    QTest::addColumn<QString>("there");
    QTest::addColumn<QString>("fitted");
    Row("nothing", "", "");
    Row("right already", "600 700", "600 700");
    Row("the later one stays", "700 600", "374 600");
    Row("the same", "600 600", "374 600");
    Row("one in the middle", "600 700 600", "600 700 750");
    Row("between two", "600 500 700", "324 500 700");
    Row("behind one that is fixed", "800! 700", "800! 850");
    Row("before one that is fixed", "600 300!", "224 300!");
    Row("between two that are fixed", "300! 600 310!", "300! 305 310!");
    Row("no room between two", "300! 600 301!", "300! 600 301!");
    Row("not before wired", "600 120!", "600 120!");
    Row("first of all", "50! 600", "50! 600");
    Row("not before wired, in between", "50! 600 100!", "50! 600 100!");
    Row("not behind what has no internet", "19999! 600", "19999! 600");
    Row("two that contradict", "400! 300! 600", "400! 300! 600");
}

void tst_metricplan::MetricsAreFitted()
{
    QFETCH(QString, there);
    QList<MetricFit::Place> places;
    const QStringList all = there.isEmpty() ? QStringList() : there.split(' ');
    for (const QString &text : all) {
        MetricFit::Place place;
        place.isFixed = text.endsWith('!');
        place.metric = QString(text).remove('!').toInt();
        places.append(place);
    }
    const MetricFit::Result result = MetricFit::Fit(places);
    QStringList fitted;
    for (int i = 0; i < places.size(); ++i) {
        fitted.append(QString::number(result.metrics.at(i)) + (places.at(i).isFixed ? "!" : ""));
    }
    QTEST(fitted.join(' '), "fitted");
}

void tst_metricplan::FirstListedConnectionCarriesTheTraffic_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("connections");
    QTest::addColumn<QStringList>("changes");
    Row("one", "M A", "A", QStringList());
    Row("Wi-Fi first", "A M", "M A", QStringList());
    Row("mobile broadband first", "M A", "A M", QStringList("M=374,374"));
    Row("two Wi-Fi devices", "A B", "B A", QStringList("A=374,374"));
    Row("not up yet", "M A", "A M...", QStringList());
    Row("not in the list", "M", "A M", QStringList());
    Row("wired", "W M A", "W M A", QStringList("M=374,374"));
}

void tst_metricplan::FirstListedConnectionCarriesTheTraffic()
{
    QFETCH(QString, list);
    QFETCH(QString, connections);
    QTEST(Plan(list, Picture(connections)), "changes");
}

void tst_metricplan::SecondDeviceOfAKindIsKnownByTheTraffic()
{
    QCOMPARE(Plan("A B", Picture("A B", "A")), QStringList());
    QCOMPARE(Plan("A B", Picture("A B", "B")), QStringList("A=374,374"));
}

void tst_metricplan::TrafficTellsNothingOfWhatWasSet()
{
    Records records;
    Plan("A B", Picture("A B", "B"), &records);
    QCOMPARE(Plan("A B", Picture("A B", "A"), &records), QStringList("A=374,374"));
}

void tst_metricplan::ChosenMetricIsFittedAround_data()
{
    QTest::addColumn<int>("metric");
    QTest::addColumn<QStringList>("changes");
    Row("right already", 750, QStringList("M=-,374"));
    Row("above", 550, QStringList("M=349,374"));
    Row("before wired", 90, QStringList({"A contradicts", "M=-,374"}));
}

void tst_metricplan::ChosenMetricIsFittedAround()
{
    QFETCH(int, metric);
    const Picture picture = Picture("A M").With(0, "ipv4", "route-metric", qlonglong(metric));
    QTEST(Plan("M A", picture), "changes");
}

void tst_metricplan::MetricChosenForAConnectionThatIsUpIsFittedAround()
{
    Records records;
    QCOMPARE(Plan("M A", Picture("A M"), &records, {{"2.ipv4", 300}, {"2.ipv6", 300}}), QStringList());
    QCOMPARE(Plan("M A", Picture("A M"), &records, {{"2.ipv4", 800}, {"2.ipv6", 800}}),
             QStringList("A=850,850"));
}

void tst_metricplan::ConnectionWithoutDefaultRouteHasNoPlace_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    Row("never the default", "never-default", QVariant(true));
    Row("disabled", "method", QVariant("disabled"));
    Row("shared", "method", QVariant("shared"));
}

void tst_metricplan::ConnectionWithoutDefaultRouteHasNoPlace()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QCOMPARE(Plan("M A", Picture("A M").With(0, "ipv6", key, value)), QStringList("M=374,-"));
}

void tst_metricplan::WhatWasSetIsGivenBack_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("connections");
    Row("the order has changed", "A M", "A M");
    Row("it has left the list", "A", "A M");
    Row("the other one has left the list", "M", "A M");
    Row("there is no list", "", "A M");
    Row("the other one is not up any more", "M A", "A... M");
}

void tst_metricplan::WhatWasSetIsGivenBack()
{
    QFETCH(QString, list);
    QFETCH(QString, connections);
    Records records;
    Plan("M A", Picture("A M"), &records);
    QCOMPARE(Plan(list, Picture(connections), &records), QStringList("M=own,own"));
}

void tst_metricplan::RecordEndsWithItsConnection()
{
    Records records;
    Plan("M A", Picture("A M"), &records);
    QCOMPARE(Plan("M A", Picture("A"), &records), QStringList());
    QVERIFY(records.isEmpty());
}

void tst_metricplan::WhatWasSetIsRecorded()
{
    Records records;
    Plan("M A", Picture("A M"), &records);
    QCOMPARE(records.keys(), QStringList({"2.ipv4", "2.ipv6"}));
    QVERIFY(records["2.ipv4"].IsOwn(374));
}

QTEST_APPLESS_MAIN(tst_metricplan)
#include "tst_metricplan.moc"
