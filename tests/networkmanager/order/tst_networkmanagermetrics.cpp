#include "HandedOutPlugin.h"
#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <Row.h>
#include <TraceCapture.h>

#include <QDBusObjectPath>
#include <QtTest>

namespace
{

const unsigned int activated = 2;
const unsigned int deactivated = 4;
const QList<int> none{-1, -1};
/** What the first of two gets. */
const QList<int> first{374, 374};

} // namespace

/** Which connection carries the traffic, over a fake NetworkManager and with the real priority plug-in. */
class tst_networkmanagermetrics : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void MobileBroadbandAboveWifiCarriesTheTraffic();
    void OfTwoWifiDevicesTheFirstInTheListCarriesTheTraffic();
    void NothingIsAskedWhereTheOrderIsRight_data();
    void NothingIsAskedWhereTheOrderIsRight();
    void NothingIsAskedAgainOnceItIsSet();
    void ProfileIsNotChanged();
    void OtherSettingsOfTheDeviceStay();
    void WhatWasSetIsGivenBack_data();
    void WhatWasSetIsGivenBack();
    void WhatWasSetIsGivenBackWhenTheOtherConnectionEnds();
    void WhatWasSetIsGivenBackAfterARestartOfTheProgram();
    void WhatWasSetIsSetAgainInTheNextNetworkManager();
    void ChangeInTheMiddleSurvives();
    void MetricThatSomebodyHasSetStays();
    void MetricThatSomebodySetsLaterIsNotGivenBack();
    void OrderWaitsForTheMetrics();
    void RefusalIsTold_data();
    void RefusalIsTold();
    void ChosenMetricThatContradictsIsTold();
    void DeviceThatHasGoneIsNotTold();

private:
    /** "M", mobile broadband, and "A", Wi-Fi, are up, and the list has this order. */
    void Begin(const char *list);
    void SetList(const QString &names);
    OrderOutcome Order();
    /** Gives time to whatever might still come. */
    static void Settle() { QTest::qWait(600); }

    HandedOutPlugin m_plugin;
    QString m_wifi;
    QString m_modem;
    QString m_wifiConnection;
    QString m_wifiProfile;
    QString m_mobileProfile;
};

void tst_networkmanagermetrics::SetList(const QString &names)
{
    QByteArray items;
    const QStringList all = names.split(' ', Qt::SkipEmptyParts);
    for (const QString &name : all) {
        items += QString("<item name=\"%1\" type=\"%2\"/>").arg(name, name == "M" ? "2" : "1").toUtf8();
    }
    Directory().Write("Priority.xml", "<zeltdoc type=\"profile\">" + items + "</zeltdoc>");
}

void tst_networkmanagermetrics::Begin(const char *list)
{
    LoadedWLAN::Root()->OnDestroy();
    m_plugin.HandOut();
    // What is connected at the start is not new.
    Directory().Write("NetworkManager.ini", "");
    SetList(list);
    m_wifi = Fake().AddDevice();
    m_modem = Fake().AddModem();
    m_wifiProfile = Fake().AddProfile("A");
    m_wifiConnection = Fake().Connect(m_wifiProfile, activated, m_wifi);
    m_mobileProfile = Fake().AddProfile("M", "gsm");
    Fake().Connect(m_mobileProfile, activated, m_modem);
    Fake().ForgetCalls();
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_VERIFY(Fake().CallCount("Update2") == QByteArray(list).split(' ').size());
    Settle();
}

OrderOutcome tst_networkmanagermetrics::Order()
{
    OrderOutcome outcome;
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    const int number = LoadedWLAN::Order()->Apply();
    if (spy.wait(10000)) {
        LoadedWLAN::Order()->GetOutcome(number, &outcome);
    }
    return outcome;
}

void tst_networkmanagermetrics::MobileBroadbandAboveWifiCarriesTheTraffic()
{
    Begin("M A");
    QCOMPARE(Fake().MetricsOf(m_modem), first);
    QCOMPARE(Fake().MetricsOf(m_wifi), none);
}

void tst_networkmanagermetrics::OfTwoWifiDevicesTheFirstInTheListCarriesTheTraffic()
{
    Begin("A");
    const QString device = Fake().AddDevice();
    SetList("B A");
    const QString b = Fake().Connect(Fake().AddProfile("B"), activated, device);
    QTRY_COMPARE(Fake().MetricsOf(device), first);
    QCOMPARE(Fake().MetricsOf(m_wifi), none);
    SetList("A B");
    QTRY_COMPARE(Fake().MetricsOf(device), none);
    QCOMPARE(Fake().MetricsOf(m_wifi), first);
}

void tst_networkmanagermetrics::NothingIsAskedWhereTheOrderIsRight_data()
{
    QTest::addColumn<QByteArray>("list");
    Row("Wi-Fi first", QByteArray("A M"));
    Row("one of them", QByteArray("M"));
}

void tst_networkmanagermetrics::NothingIsAskedWhereTheOrderIsRight()
{
    QFETCH(QByteArray, list);
    Begin(list.constData());
    QCOMPARE(Fake().CallCount("GetAppliedConnection") + Fake().CallCount("Reapply"), 0);
}

void tst_networkmanagermetrics::NothingIsAskedAgainOnceItIsSet()
{
    Begin("M A");
    QCOMPARE(Fake().CallCount("Reapply"), 1);
    Fake().ForgetCalls();
    QCOMPARE(Order().stage, int(OrderOutcome::StageOrderDone));
    QCOMPARE(Fake().CallCount(), 0);
}

void tst_networkmanagermetrics::ProfileIsNotChanged()
{
    Begin("M A");
    QCOMPARE(Fake().MetricsOf(m_modem), first);
    QVERIFY(!Fake().SettingsOf(m_mobileProfile).value("ipv4").contains("route-metric"));
}

void tst_networkmanagermetrics::OtherSettingsOfTheDeviceStay()
{
    Begin("A M");
    Fake().SetApplied(m_modem, "ipv4", "dns-search", QStringList("example.org"));
    Fake().SetApplied(m_modem, "ipv4", "routes", QString("without options"));
    Fake().SetApplied(m_modem, "ipv4", "route-data", QString("with options"));
    SetList("M A");
    QTRY_COMPARE(Fake().MetricsOf(m_modem), first);
    const QVariantMap addresses = Fake().AppliedTo(m_modem).value("ipv4");
    QCOMPARE(addresses.keys(), QStringList({"dns-search", "route-data", "route-metric"}));
}

void tst_networkmanagermetrics::WhatWasSetIsGivenBack_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QByteArray>("rules");
    Row("another order", "A M", QByteArray());
    Row("an entry is removed", "A", QByteArray());
    Row("an empty list", "", QByteArray());
    Row("the list is not to rule", "M A", QByteArray("[General]\nruling=no\n"));
}

void tst_networkmanagermetrics::WhatWasSetIsGivenBack()
{
    QFETCH(QString, list);
    QFETCH(QByteArray, rules);
    Begin("M A");
    QCOMPARE(Fake().MetricsOf(m_modem), first);
    Directory().Write("rules.ini", rules);
    SetList(list);
    QTRY_COMPARE(Fake().MetricsOf(m_modem), none);
    QVERIFY(!Fake().AppliedTo(m_modem).value("ipv4").contains("route-metric"));
}

void tst_networkmanagermetrics::WhatWasSetIsGivenBackWhenTheOtherConnectionEnds()
{
    Begin("M A");
    Fake().SetConnectionState(m_wifiConnection, deactivated);
    QTRY_COMPARE(Fake().MetricsOf(m_modem), none);
}

void tst_networkmanagermetrics::WhatWasSetIsGivenBackAfterARestartOfTheProgram()
{
    Begin("M A");
    LoadedWLAN::Root()->OnDestroy();
    QCOMPARE(Fake().MetricsOf(m_modem), first);
    SetList("A M");
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(Fake().MetricsOf(m_modem), none);
}

void tst_networkmanagermetrics::WhatWasSetIsSetAgainInTheNextNetworkManager()
{
    Begin("M A");
    Fake().Vanish();
    Fake().SetApplied(m_modem, "ipv4", "route-metric", qlonglong(-1));
    Fake().SetApplied(m_modem, "ipv6", "route-metric", qlonglong(-1));
    QVERIFY(Fake().Appear());
    QTRY_COMPARE(Fake().MetricsOf(m_modem), first);
}

void tst_networkmanagermetrics::ChangeInTheMiddleSurvives()
{
    Begin("A M");
    Fake().ForgetCalls();
    Fake().Hold("GetAppliedConnection");
    SetList("M A");
    QTRY_COMPARE(Fake().CallCount("GetAppliedConnection"), 1);
    Fake().SetApplied(m_modem, "ipv4", "dns-search", QStringList("example.org"));
    Fake().Hold(QString());
    Fake().Release();
    QTRY_COMPARE(Fake().MetricsOf(m_modem), first);
    QCOMPARE(Fake().AppliedTo(m_modem)["ipv4"].value("dns-search").toStringList(),
             QStringList("example.org"));
    QCOMPARE(Order().kept.size(), 0);
}

void tst_networkmanagermetrics::MetricThatSomebodyHasSetStays()
{
    Begin("A M");
    Fake().SetApplied(m_modem, "ipv4", "route-metric", qlonglong(800));
    SetList("M A");
    // The other one is moved behind it instead.
    QTRY_COMPARE(Fake().MetricsOf(m_wifi), QList<int>({850, -1}));
    QCOMPARE(Fake().MetricsOf(m_modem), QList<int>({800, 374}));
}

void tst_networkmanagermetrics::MetricThatSomebodySetsLaterIsNotGivenBack()
{
    Begin("M A");
    Fake().SetApplied(m_modem, "ipv4", "route-metric", qlonglong(300));
    SetList("A M");
    QTRY_COMPARE(Fake().MetricsOf(m_modem), QList<int>({300, -1}));
    Settle();
    QCOMPARE(Fake().MetricsOf(m_modem), QList<int>({300, -1}));
}

void tst_networkmanagermetrics::OrderWaitsForTheMetrics()
{
    Begin("A M");
    SetList("M A");
    const OrderOutcome outcome = Order();
    QCOMPARE(outcome.stage, int(OrderOutcome::StageOrderDone));
    QCOMPARE(outcome.kept.size(), 0);
    QCOMPARE(Fake().MetricsOf(m_modem), first);
}

void tst_networkmanagermetrics::RefusalIsTold_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("obstacle");
    Row("not allowed", "Reapply", "org.freedesktop.NetworkManager.Device.PermissionDenied",
        int(ObstacleNotAllowed));
    Row("not told", "GetAppliedConnection", "org.freedesktop.NetworkManager.Device.Failed",
        int(ObstacleRefused));
    Row("not taken", "Reapply", "org.freedesktop.NetworkManager.Device.IncompatibleConnection",
        int(ObstacleRefused));
}

void tst_networkmanagermetrics::RefusalIsTold()
{
    QFETCH(QString, method);
    QFETCH(QString, error);
    Begin("A M");
    Fake().AnswerWithError(method, error);
    const TraceCapture trace;
    SetList("M A");
    const OrderOutcome outcome = Order();
    QCOMPARE(outcome.kept.size(), 1);
    QCOMPARE(outcome.kept.first().name, QString("M"));
    QTEST(outcome.kept.first().obstacle, "obstacle");
    QCOMPARE(trace.Lines().filter("the route metric of \"M\" is not changed").size(), 1);
}

void tst_networkmanagermetrics::ChosenMetricThatContradictsIsTold()
{
    Begin("M A");
    // Before wired connections, where nothing else is put.
    Fake().SetSetting(m_wifiProfile, "ipv4", "route-metric", qlonglong(90));
    const OrderOutcome outcome = Order();
    QCOMPARE(outcome.kept.size(), 1);
    QCOMPARE(outcome.kept.first().name, QString("A"));
    QCOMPARE(outcome.kept.first().obstacle, int(ObstacleOwnMetric));
}

void tst_networkmanagermetrics::DeviceThatHasGoneIsNotTold()
{
    Begin("A M");
    Fake().AnswerWithError("Reapply", "org.freedesktop.NetworkManager.Device.NotActive");
    SetList("M A");
    QCOMPARE(Order().kept.size(), 0);
}

QTEST_MAIN(tst_networkmanagermetrics)
#include "tst_networkmanagermetrics.moc"
