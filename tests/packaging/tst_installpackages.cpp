#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

namespace
{

// A system that knows every package but those in the file "unknown", once its lists are there.
const char aptGet[] = "#!/bin/sh\n"
                      "echo \"apt-get $*\" >>log\n"
                      "case $1 in\n"
                      "update) touch lists ;;\n"
                      "install) printf '%s\\n' \"$@\" >>installed ;;\n"
                      "esac\n";
const char aptCache[] = "#!/bin/sh\n"
                        "[ -e lists ] || exit 0\n"
                        "if [ $# -eq 1 ]; then\n"
                        "    echo ' 500 http://packages.example stable/main amd64 Packages'\n"
                        "elif ! grep -qx \"$2\" unknown; then\n"
                        "    echo '  Candidate: 1.0-1'\n"
                        "fi\n";
const char dpkgQuery[] = "#!/bin/sh\n"
                         "for package; do :; done\n"
                         "! grep -qx \"$package\" installed || echo 'install ok installed'\n";
const char id[] = "#!/bin/sh\n"
                  "cat user\n";

const char debian12[] = "libkf6networkmanagerqt-dev libkf6kcmutils-dev libcurl3t64-gnutls libpsl5t64";
const char debian13[] = "libcurl3-gnutls libpsl5";
const char noNetworkManagerQt[] = "libkf6networkmanagerqt-dev libkf5networkmanagerqt-dev";

} // namespace

/** packaging/install-packages on systems that have their packages under different names, or not at all. */
class InstallPackagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void systemGetsItsOwnPackages_data();
    void systemGetsItsOwnPackages();
    void missingPackageIsNamed_data();
    void missingPackageIsNamed();
    void nothingIsDoneTwice();
    void listsAreFetchedBeforeAnythingIsCalledMissing();
    void otherSystemsGoOnWithWhatTheyHave();
    void whoMayNotInstallIsTold();

private:
    void WriteCommand(const QString &name, const char *text) const;

    /** The exit status; what was told and ordered is in m_told and the file "log". */
    int Install(const QStringList &groups);

    QScopedPointer<TemporaryDirectory> m_system;
    QString m_told;
};

void InstallPackagesTest::init()
{
    m_system.reset(new TemporaryDirectory);
    QDir(m_system->Path()).mkdir("bin");
    WriteCommand("apt-get", aptGet);
    WriteCommand("apt-cache", aptCache);
    WriteCommand("dpkg-query", dpkgQuery);
    WriteCommand("id", id);
    const char *const needed[] = {"bash",   "cat", "dirname", "env",  "grep",
                                  "mktemp", "rm",  "sed",     "tail", "touch"};
    for (const char *name : needed) {
        QFile::link(QString("/usr/bin/") + name, m_system->FilePath(QString("bin/") + name));
    }
    m_system->Write("user", "0\n");
    m_system->Write("lists", "");
    m_system->Write("installed", "");
    m_system->Write("unknown", "");
    m_system->Write("log", "");
}

void InstallPackagesTest::WriteCommand(const QString &name, const char *text) const
{
    m_system->Write("bin/" + name, text);
    QFile::setPermissions(m_system->FilePath("bin/" + name),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

int InstallPackagesTest::Install(const QStringList &groups)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("PATH", m_system->FilePath("bin"));
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(m_system->Path());
    process.start("/bin/bash", QStringList() << SOURCE_DIRECTORY "/packaging/install-packages" << groups);
    process.waitForFinished();
    m_told = QString::fromLocal8Bit(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void InstallPackagesTest::systemGetsItsOwnPackages_data()
{
    QTest::addColumn<QString>("unknown");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("installed");
    QTest::addColumn<QString>("generation");
    Row("Debian 12", debian12, "build", "qtbase5-dev libkf5networkmanagerqt-dev libkf5kcmutils-dev", "5");
    Row("Debian 13", debian13, "build", "qt6-base-dev libkf6networkmanagerqt-dev libkf6kcmutils-dev", "6");
    Row("Qt 6 on Debian 12", debian12, "build-qt6", "qt6-base-dev", "5");
    Row("Qt 5 on Debian 13", debian13, "build-qt5",
        "qtbase5-dev libkf5networkmanagerqt-dev libkf5kcmutils-dev", "6");
    Row("tests on Debian 12", debian12, "test", "libcurl3-gnutls libpsl5", "5");
    Row("tests on Debian 13", debian13, "test", "libcurl3t64-gnutls libpsl5t64", "6");
    Row("no NetworkManagerQt", noNetworkManagerQt, "build", "qt6-base-dev libkf6kcmutils-dev", "6");
    Row("no NetworkManagerQt and no Qt 6", QString(noNetworkManagerQt) + " qt6-base-dev", "build",
        "qtbase5-dev libkf5kcmutils-dev", "5");
}

void InstallPackagesTest::systemGetsItsOwnPackages()
{
    QFETCH(QString, unknown);
    QFETCH(QString, group);
    QFETCH(QString, installed);
    QFETCH(QString, generation);
    m_system->Write("unknown", unknown.replace(" ", "\n").toLatin1());
    QCOMPARE(Install(QStringList("--qt")), 0);
    QCOMPARE(m_told, generation + "\n");

    QVERIFY2(Install(QStringList(group)) == 0, qPrintable(m_told));
    const QStringList ordered = QString(m_system->Read("installed")).split("\n");
    const QStringList others =
        QString("qtbase5-dev libkf5networkmanagerqt-dev libkf5kcmutils-dev qt6-base-dev "
                "libkf6networkmanagerqt-dev libkf6kcmutils-dev libcurl3-gnutls libcurl3t64-gnutls libpsl5 "
                "libpsl5t64")
            .split(" ");
    QStringList found;
    for (int i = 0; i < others.size(); ++i) {
        if (ordered.contains(others.at(i))) {
            found << others.at(i);
        }
    }
    QCOMPARE(found.join(" "), installed);
}

void InstallPackagesTest::missingPackageIsNamed_data()
{
    QTest::addColumn<QString>("unknown");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("told");
    Row("NetworkManagerQt", "libkf6networkmanagerqt-dev", "build-qt6",
        "This system has no package libkf6networkmanagerqt-dev: the plug-in over "
        "NetworkManager will be left out.\n");
    Row("KDBusAddons", "libkf6dbusaddons-dev", "build-qt6",
        "This system has no package libkf6dbusaddons-dev: each start of the "
        "dashboard will have a window of its own.\n");
    Row("KCMUtils", debian12, "build-qt6",
        "This system has no package libkf6kcmutils-dev: the module for System "
        "Settings will be left out.\n");
    Row("any other", "libpsl5t64\nlibpsl5", "test",
        "This system has no package libpsl5t64 or libpsl5: what needs it will fail or "
        "be left out.\n");
}

void InstallPackagesTest::missingPackageIsNamed()
{
    QFETCH(QString, unknown);
    QFETCH(QString, group);
    QFETCH(QString, told);
    m_system->Write("unknown", unknown.replace(" ", "\n").toLatin1());
    QCOMPARE(Install(QStringList(group)), 0);
    QVERIFY2(m_told.endsWith(told), qPrintable(m_told));
    QVERIFY2(m_told.startsWith("Installing: "), qPrintable(m_told));
}

void InstallPackagesTest::nothingIsDoneTwice()
{
    m_system->Write("unknown", "libkf6networkmanagerqt-dev\n");
    QCOMPARE(Install(QStringList("build-qt6")), 0);
    m_system->Write("log", "");
    QCOMPARE(Install(QStringList("build-qt6")), 0);
    QCOMPARE(m_system->Read("log"), QByteArray(""));
}

void InstallPackagesTest::listsAreFetchedBeforeAnythingIsCalledMissing()
{
    QFile::remove(m_system->FilePath("lists"));
    QCOMPARE(Install(QStringList("build")), 0);
    const QByteArray log = m_system->Read("log");
    QVERIFY2(log.startsWith("apt-get update\napt-get install "), log.constData());
    QVERIFY2(log.contains(" libkf6networkmanagerqt-dev"), log.constData());
    QVERIFY2(!m_told.contains("no package"), qPrintable(m_told));
}

void InstallPackagesTest::otherSystemsGoOnWithWhatTheyHave()
{
    QFile::remove(m_system->FilePath("bin/apt-get"));
    QCOMPARE(Install(QStringList("build")), 0);
    QVERIFY2(m_told.startsWith("Only Debian's and Ubuntu's packages are installed here"), qPrintable(m_told));
}

void InstallPackagesTest::whoMayNotInstallIsTold()
{
    m_system->Write("user", "1000\n");
    QCOMPARE(Install(QStringList("abi")), 1);
    QCOMPARE(m_told, QString("These packages are missing, and installing them needs root: abigail-tools\n"));
    QCOMPARE(m_system->Read("log"), QByteArray(""));
}

QTEST_GUILESS_MAIN(InstallPackagesTest)

#include "tst_installpackages.moc"
