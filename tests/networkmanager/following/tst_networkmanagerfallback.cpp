#include "HandedOutPlugin.h"
#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"
#include "ShiftedClock.h"

#include <Row.h>

#include <QApplication>
#include <QDBusObjectPath>
#include <QFile>
#include <QtTest>

namespace
{

const unsigned int activated = 2;
const char saving[] = "[General]\nsavingData=yes\n";
const char record[] = "saving.ini";

} // namespace

/** Mobile broadband that saves data, over a fake NetworkManager and with the real priority plug-in. */
class tst_networkmanagerfallback : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void ModemIsConnectedWithoutWifiAndEndedWithIt();
    void NothingIsDoneUnlessItIsWanted_data();
    void NothingIsDoneUnlessItIsWanted();
    void EndedModemIsHandedBack_data();
    void EndedModemIsHandedBack();
    void WhatAWindowOrderedStays();

private:
    void Begin(const char *rules);
    void ConnectWifi();
    /** The modem is up as well, for as long as it takes to be ended. */
    void EndModem();
    /** Gives time to what is under way, and then lets time pass. */
    static void Pass(long seconds);
    int Connected() { return Fake().CallCount("ActivateConnection"); }
    int Ended() { return Fake().CallCount("DeactivateConnection"); }
    QByteArray Record() const { return Directory().Read(record); }

    HandedOutPlugin m_plugin;
    QString m_wifi;
    QString m_modem;
    QString m_home;
    QString m_phone;
};

void tst_networkmanagerfallback::Begin(const char *rules)
{
    LoadedWLAN::Root()->OnDestroy();
    m_plugin.HandOut();
    Directory().Write("rules.ini", rules);
    Directory().Write("Priority.xml", "<zeltdoc><item name=\"Home\" type=\"1\"/>"
                                      "<item name=\"Phone\" type=\"2\"/></zeltdoc>");
    m_wifi = Fake().AddDevice();
    m_modem = Fake().AddModem();
    m_home = Fake().AddProfile("Home");
    m_phone = Fake().AddProfile("Phone", "gsm");
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::ConnectionProfileNamed("Phone").use, int(ConnectionProfile::UsePossible));
    // Once it has the turn, it has looked.
    QTRY_COMPARE(QFile::exists(Directory().FilePath("follow.use")), rules == QByteArray(saving));
    Fake().ForgetCalls();
}

void tst_networkmanagerfallback::ConnectWifi()
{
    const QString connection = Fake().Connect(m_home, activated, m_wifi);
    Fake().SetManagerProperty("PrimaryConnection", QVariant::fromValue(QDBusObjectPath(connection)));
}

void tst_networkmanagerfallback::EndModem()
{
    Fake().Connect(m_phone, activated, m_modem);
    ConnectWifi();
    QTRY_COMPARE(LoadedWLAN::Active().size(), 2);
    Pass(60);
    QTRY_COMPARE(Ended(), 1);
    QTRY_COMPARE(LoadedWLAN::Active().size(), 1);
}

void tst_networkmanagerfallback::Pass(long seconds)
{
    QTest::qWait(300);
    ShiftedClock::Pass(seconds);
}

void tst_networkmanagerfallback::ModemIsConnectedWithoutWifiAndEndedWithIt()
{
    Begin(saving);
    Pass(25);
    QTest::qWait(300);
    QCOMPARE(Connected(), 0);
    Pass(10);
    QTRY_COMPARE(Connected(), 1);
    QTRY_COMPARE(LoadedWLAN::Active().size(), 1);
    QCOMPARE(LoadedWLAN::Active().first().name, QString("Phone"));
    Fake().SetConnectionState(Fake().ConnectionPaths().first(), activated);
    ConnectWifi();
    Pass(60);
    QTRY_COMPARE(Ended(), 1);
    QTRY_COMPARE(LoadedWLAN::Active().size(), 1);
    QCOMPARE(LoadedWLAN::Active().first().name, QString("Home"));
    QCOMPARE(Connected(), 1);
}

void tst_networkmanagerfallback::NothingIsDoneUnlessItIsWanted_data()
{
    QTest::addColumn<QByteArray>("rules");
    Row("nothing is chosen", QByteArray());
    Row("not wanted", QByteArray("[General]\nsavingData=no\n"));
    Row("the list does not rule", QByteArray("[General]\nsavingData=yes\nruling=no\n"));
}

void tst_networkmanagerfallback::NothingIsDoneUnlessItIsWanted()
{
    QFETCH(QByteArray, rules);
    Begin(rules);
    Pass(45);
    Pass(45);
    QCOMPARE(Connected(), 0);
}

void tst_networkmanagerfallback::EndedModemIsHandedBack_data()
{
    QTest::addColumn<QString>("end");
    Row("switched off", "rules");
    Row("end of the program", "end");
    Row("killed, and begun again without it", "kill");
}

void tst_networkmanagerfallback::EndedModemIsHandedBack()
{
    QFETCH(QString, end);
    Begin(saving);
    EndModem();
    const QByteArray ended = Record();
    QVERIFY(ended.contains(Fake().SettingsOf(m_phone)["connection"]["uuid"].toByteArray()));
    QCOMPARE(Connected(), 0);
    if (end == "kill") {
        // The end of this one is not what it was meant to be.
        Fake().AnswerWithError("ActivateConnection", "org.freedesktop.NetworkManager.Failed");
        LoadedWLAN::Root()->OnDestroy();
        Fake().Behave();
        Fake().ForgetCalls();
        Directory().Write(record, ended);
        Directory().Write("rules.ini", "");
        QVERIFY(LoadedWLAN::Root()->Init());
    } else if (end == "end") {
        LoadedWLAN::Root()->OnDestroy();
        QCOMPARE(Connected(), 1);
    } else {
        Directory().Write("rules.ini", "");
    }
    QTRY_COMPARE(Connected(), 1);
    QTRY_VERIFY(!QFile::exists(Directory().FilePath(record)));
}

void tst_networkmanagerfallback::WhatAWindowOrderedStays()
{
    Begin(saving);
    ConnectWifi();
    QVERIFY(LoadedWLAN::Connections()->ConnectProfile(m_phone) > 0);
    QTRY_COMPARE(LoadedWLAN::Active().size(), 2);
    Pass(45);
    Pass(45);
    QCOMPARE(Ended(), 0);
}

int main(int argc, char **argv)
{
    // The time that is left to a test function would pass as well.
    qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
    const QApplication application(argc, argv);
    tst_networkmanagerfallback test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_networkmanagerfallback.moc"
