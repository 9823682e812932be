#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QProcess>
#include <QtTest>

/** Which generation of Qt a configuration takes, and what it says about that. */
class ChosenQtTest : public QObject
{
    Q_OBJECT

private slots:
    void oneIsChosen_data();
    void oneIsChosen();

private:
    static void WritePackage(const TemporaryDirectory &directory, const QString &name,
                             const QByteArray &version);
};

void ChosenQtTest::WritePackage(const TemporaryDirectory &directory, const QString &name,
                                const QByteArray &version)
{
    const QString file = "lib/cmake/" + name + "/" + name + "Config";
    QDir(directory.Path()).mkpath("lib/cmake/" + name);
    directory.Write(file + "Version.cmake",
                    "set(PACKAGE_VERSION " + version +
                        ")\n"
                        "if(NOT PACKAGE_FIND_VERSION VERSION_GREATER PACKAGE_VERSION)\n"
                        "    set(PACKAGE_VERSION_COMPATIBLE TRUE)\n"
                        "endif()\n");
    directory.Write(file + ".cmake", "");
}

void ChosenQtTest::oneIsChosen_data()
{
    QTest::addColumn<QString>("here");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("told");
    const QString both = "Qt6=6.8.2 Qt5=5.15.15 ";
    Row("NetworkManagerQt for both", both + "KF6NetworkManagerQt=6.13.0 KF5NetworkManagerQt=5.116.0", "",
        "Building for Qt 6.8.2: NetworkManagerQt 6.13.0 is here for it");
    Row("NetworkManagerQt for Qt 5", both + "KF5NetworkManagerQt=5.103.0", "",
        "Building for Qt 5.15.15: NetworkManagerQt 5.103.0 is here for it");
    Row("no NetworkManagerQt", both, "",
        "Building for Qt 6.8.2: it is the newest here, and NetworkManagerQt is here for none");
    Row("Qt 5 alone", "Qt5=5.15.8", "",
        "Building for Qt 5.15.8: it is the newest here, and NetworkManagerQt is here for none");
    Row("Qt 6 is too old", "Qt6=6.2.4 Qt5=5.15.3", "",
        "Building for Qt 5.15.3: it is the newest here, and NetworkManagerQt is here for none");
    Row("asked for the other", both + "KF6NetworkManagerQt=6.13.0", "5",
        "Building for Qt 5.15.15: PRIORITY_QT says so");
    Row("no Qt", "", "", "There is neither Qt 6.4 nor Qt 5.15 here, nor anything newer of the two.");
    Row("asked for none that there is", both, "7",
        "PRIORITY_QT is \"7\". It names the generation of Qt to build for");
}

void ChosenQtTest::oneIsChosen()
{
    QFETCH(QString, here);
    QFETCH(QString, asked);
    QFETCH(QString, told);
    TemporaryDirectory directory;
    const QStringList packages = here.simplified().split(" ");
    for (int i = 0; i < packages.size() && !here.isEmpty(); ++i) {
        WritePackage(directory, packages.at(i).section("=", 0, 0), packages.at(i).section("=", 1).toLatin1());
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(CMAKE_PROGRAM, QStringList() << "-G" << CMAKE_GENERATOR << "-S"
                                               << SOURCE_DIRECTORY "/tests/packaging/chosenqt"
                                               << "-B" << directory.FilePath("build")
                                               << "-DHERE=" + directory.Path() << "-DPRIORITY_QT=" + asked);
    QVERIFY(process.waitForFinished());
    const QString output = QString::fromLocal8Bit(process.readAll()).simplified();
    QVERIFY2(output.contains(told), qPrintable(output));
    QCOMPARE(process.exitCode() == 0, told.startsWith("Building for"));
}

QTEST_GUILESS_MAIN(ChosenQtTest)

#include "tst_chosenqt.moc"
