#include <PowerSupply.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QtTest>

class tst_powersupply : public QObject
{
    Q_OBJECT

private slots:
    void BatteryIsToldFromMains_data();
    void BatteryIsToldFromMains();
};

void tst_powersupply::BatteryIsToldFromMains_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("isOnBattery");
    const QStringList battery = {"BAT0/type=Battery"};
    const QStringList mouse = {"mouse/type=Battery", "mouse/scope=Device"};
    Row("nothing is told", QStringList(), false);
    Row("battery alone", battery, true);
    Row("charger without current", battery + QStringList{"AC/type=Mains", "AC/online=0"}, true);
    Row("charger", battery + QStringList{"AC/type=Mains", "AC/online=1"}, false);
    Row("USB charger", battery + QStringList{"ucsi/type=USB", "ucsi/online=1"}, false);
    Row("battery of a mouse", mouse, false);
    Row("battery and that of a mouse", battery + mouse, true);
}

void tst_powersupply::BatteryIsToldFromMains()
{
    QFETCH(QStringList, files);
    const TemporaryDirectory directory;
    for (const QString &text : std::as_const(files)) {
        const QString path = directory.Path() + '/' + text.section('=', 0, 0);
        QVERIFY(QDir().mkpath(path.section('/', 0, -2)));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text.section('=', 1).toLatin1() + '\n');
    }
    QTEST(PowerSupply::IsOnBattery(directory.Path()), "isOnBattery");
}

QTEST_APPLESS_MAIN(tst_powersupply)
#include "tst_powersupply.moc"
