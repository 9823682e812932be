#include "DashboardSession.h"
#include "MockNetworkManager.h"
#include "PrivateBus.h"

#include <QComboBox>
#include <QMap>
#include <QSet>
#include <QtTest>

/** The dashboard over the devices and access points that python3-dbusmock has for NetworkManager. */
class tst_networkmanagerdialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    // In this order: there is no device before the second.
    void NewDialogOpensWithoutADevice();
    void NewDialogOffersThreeHundredNetworksOnceTheStrongestFirst();

private:
    QStringList Offered();

    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<MockNetworkManager> m_mock;
    QScopedPointer<DashboardSession> m_dashboard;
};

void tst_networkmanagerdialogs::initTestCase()
{
    m_bus.reset(new PrivateBus);
    QVERIFY2(m_bus->Start(), qPrintable(m_bus->WhyNot()));
    m_mock.reset(new MockNetworkManager(m_bus.data()));
    if (!m_mock->Start()) {
        QSKIP(qPrintable(m_mock->WhyNot()));
    }
    m_dashboard.reset(new DashboardSession);
    m_dashboard->VerifyPlugins();
}

void tst_networkmanagerdialogs::cleanup()
{
    m_dashboard->CloseWindow();
}

void tst_networkmanagerdialogs::cleanupTestCase()
{
    m_dashboard.reset();
}

QStringList tst_networkmanagerdialogs::Offered()
{
    const QComboBox *names = m_dashboard->Find<QComboBox>("networkNameBox");
    QStringList texts;
    for (int i = 0; i < names->count(); ++i) {
        texts.append(names->itemText(i));
    }
    return texts;
}

void tst_networkmanagerdialogs::NewDialogOpensWithoutADevice()
{
    m_dashboard->OpenWindow();
    m_dashboard->WaitForSource();
    m_dashboard->OpenSettings();
    m_dashboard->OpenDialog("newButton", "networkNameBox");
    QCOMPARE(Offered(), QStringList());
    QCOMPARE(m_dashboard->Find<QComboBox>("authenticationBox")->count(), 6);
}

void tst_networkmanagerdialogs::NewDialogOffersThreeHundredNetworksOnceTheStrongestFirst()
{
    const int count = 300;
    const int several = 20;
    const unsigned int wpa2WithKey = 0x108;
    const QString device = m_mock->AddWifiDevice("wlan0");
    QMap<QString, int> strengthOf;
    for (int i = 0; i < count; ++i) {
        const QString name = QString("network %1").arg(i);
        strengthOf[name] = 10 + (i * 7) % 90;
        m_mock->AddAccessPoint(device, name, strengthOf[name], i == count - 1 ? wpa2WithKey : 0);
    }
    for (int i = 0; i < several; ++i) {
        m_mock->AddAccessPoint(device, QString("network %1").arg(i), 1);
    }
    m_dashboard->OpenWindow();
    m_dashboard->WaitForSource();
    m_dashboard->OpenSettings();
    m_dashboard->OpenDialog("newButton", "networkNameBox");
    const QStringList names = Offered();
    QCOMPARE(names.size(), count);
    for (int i = 0; i < names.size(); ++i) {
        QVERIFY2(strengthOf.contains(names.at(i)), qPrintable(names.at(i)));
        QVERIFY2(i == 0 || strengthOf.value(names.at(i)) <= strengthOf.value(names.at(i - 1)),
                 qPrintable(names.at(i)));
    }
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), count);

    QComboBox *box = m_dashboard->Find<QComboBox>("networkNameBox");
    box->setCurrentIndex(names.indexOf(QString("network %1").arg(count - 1)));
    QCOMPARE(m_dashboard->Find<QComboBox>("authenticationBox")->currentText(), QString("WPA2PSK"));
    QCOMPARE(m_dashboard->Find<QComboBox>("encryptionBox")->currentText(), QString("CCMP"));
}

QTEST_MAIN(tst_networkmanagerdialogs)
#include "tst_networkmanagerdialogs.moc"
