#include <Row.h>
#include <TemporaryDirectory.h>
#include <ToolkitCompat.h>
#include <ZeltSdk.h>
#include <ZeltSdkStatus.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <cstdlib>

#include <sys/stat.h>

namespace
{

struct Answer {
    long status;
    QString path;
    bool isNull;
};

Answer Ask()
{
    unsigned short *path = nullptr;
    Answer answer;
    answer.status = ZELT_GetUserDataDirectory(&path);
    answer.isNull = !path;
    answer.path = path ? ToolkitCompat::FromUtf16(path) : QString();
    delete[] path;
    return answer;
}

void SetVariable(const char *name, const QString &value)
{
    qputenv(name, QFile::encodeName(value));
}

mode_t ModeOf(const QString &path)
{
    struct stat status;
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

class TestSdk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nullArgumentIsAnswered();
    void directoryLiesInDataHome();
    void withoutDataHomeItLiesInHome();
    void unusableDataHomeIsIgnored_data();
    void unusableDataHomeIsIgnored();
    void createdDirectoriesAreTheUsersAlone();
    void existingDirectoryStaysAsItIs();
    void answerCanHaveFileNameAppended();
    void separatorsAreNotDoubled();
    void namesOutsideAsciiArePreserved();
    void withoutHomeThereIsNoDirectory_data();
    void withoutHomeThereIsNoDirectory();
    void fileInTheWayIsReportedAndKept_data();
    void fileInTheWayIsReportedAndKept();
    void placeWhereNothingCanBeMadeIsReported();
    void pathThatIsNoTextIsReported();

private:
    QScopedPointer<TemporaryDirectory> m_directory;
};

void TestSdk::init()
{
    m_directory.reset(new TemporaryDirectory);
    SetVariable("HOME", m_directory->FilePath(QLatin1String("home")));
    SetVariable("XDG_DATA_HOME", m_directory->FilePath(QLatin1String("data")));
}

void TestSdk::cleanup()
{
    m_directory.reset();
}

void TestSdk::nullArgumentIsAnswered()
{
    QCOMPARE(ZELT_GetUserDataDirectory(nullptr), static_cast<long>(ZeltSdkNullArgument));
}

void TestSdk::directoryLiesInDataHome()
{
    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkSuccess));
    QCOMPARE(answer.path, m_directory->FilePath(QLatin1String("data/priority-dashboard/")));
    QVERIFY(QFileInfo(answer.path).isDir());
    QVERIFY(!QFileInfo(m_directory->FilePath(QLatin1String("home"))).exists());
}

void TestSdk::withoutDataHomeItLiesInHome()
{
    unsetenv("XDG_DATA_HOME");
    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkSuccess));
    QCOMPARE(answer.path, m_directory->FilePath(QLatin1String("home/.local/share/priority-dashboard/")));
    QVERIFY(QFileInfo(answer.path).isDir());
}

void TestSdk::unusableDataHomeIsIgnored_data()
{
    QTest::addColumn<QString>("value");
    Row("empty", QString());
    Row("relative", QString(QLatin1String("data")));
    Row("relative with dot", QString(QLatin1String("./data")));
    Row("tilde", QString(QLatin1String("~/data")));
}

void TestSdk::unusableDataHomeIsIgnored()
{
    QFETCH(QString, value);
    SetVariable("XDG_DATA_HOME", value);
    QCOMPARE(Ask().path, m_directory->FilePath(QLatin1String("home/.local/share/priority-dashboard/")));
}

void TestSdk::createdDirectoriesAreTheUsersAlone()
{
    const mode_t before = umask(0);
    Ask();
    umask(before);
    QCOMPARE(static_cast<int>(ModeOf(m_directory->FilePath(QLatin1String("data")))), 0700);
    QCOMPARE(static_cast<int>(ModeOf(m_directory->FilePath(QLatin1String("data/priority-dashboard")))), 0700);
}

void TestSdk::existingDirectoryStaysAsItIs()
{
    const QString directory = m_directory->FilePath(QLatin1String("data/priority-dashboard"));
    QVERIFY(QDir().mkpath(directory));
    QCOMPARE(chmod(QFile::encodeName(directory).constData(), 0750), 0);
    m_directory->Write(QLatin1String("data/priority-dashboard/Priority.xml"), "kept");

    QCOMPARE(Ask().status, static_cast<long>(ZeltSdkSuccess));
    QCOMPARE(static_cast<int>(ModeOf(directory)), 0750);
    QCOMPARE(m_directory->Read(QLatin1String("data/priority-dashboard/Priority.xml")), QByteArray("kept"));
}

void TestSdk::answerCanHaveFileNameAppended()
{
    QFile file(Ask().path + QLatin1String("Priority.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(QFile::exists(m_directory->FilePath(QLatin1String("data/priority-dashboard/Priority.xml"))));
}

void TestSdk::separatorsAreNotDoubled()
{
    SetVariable("XDG_DATA_HOME", m_directory->FilePath(QLatin1String("data//")));
    QCOMPARE(Ask().path, m_directory->FilePath(QLatin1String("data/priority-dashboard/")));
}

void TestSdk::namesOutsideAsciiArePreserved()
{
    // Accents, Arabic, and a character beyond the first plane.
    const QString name = QString::fromUtf8("data é بيانات 🛜");
    SetVariable("XDG_DATA_HOME", m_directory->FilePath(name));
    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkSuccess));
    QCOMPARE(answer.path, m_directory->FilePath(name) + QLatin1String("/priority-dashboard/"));
    QVERIFY(QFileInfo(answer.path).isDir());
}

void TestSdk::withoutHomeThereIsNoDirectory_data()
{
    QTest::addColumn<QByteArray>("home");
    Row("not set", QByteArray());
    Row("empty", QByteArray(""));
    Row("relative", QByteArray("home"));
}

void TestSdk::withoutHomeThereIsNoDirectory()
{
    QFETCH(QByteArray, home);
    unsetenv("XDG_DATA_HOME");
    if (home.isNull()) {
        unsetenv("HOME");
    } else {
        qputenv("HOME", home);
    }
    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkNoHome));
    QVERIFY(answer.isNull);
}

void TestSdk::fileInTheWayIsReportedAndKept_data()
{
    QTest::addColumn<QString>("file");
    Row("data home", QString(QLatin1String("data")));
    Row("directory itself", QString(QLatin1String("data/priority-dashboard")));
}

void TestSdk::fileInTheWayIsReportedAndKept()
{
    QFETCH(QString, file);
    QVERIFY(QDir().mkpath(QFileInfo(m_directory->FilePath(file)).path()));
    m_directory->Write(file, "in the way");

    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkNoDirectory));
    QVERIFY(answer.isNull);
    QCOMPARE(m_directory->Read(file), QByteArray("in the way"));
}

void TestSdk::placeWhereNothingCanBeMadeIsReported()
{
    SetVariable("XDG_DATA_HOME", QLatin1String("/proc/priority-test"));
    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkNoDirectory));
    QVERIFY(answer.isNull);
}

void TestSdk::pathThatIsNoTextIsReported()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory->FilePath(QLatin1String("data"))) + "\xff");
    const Answer answer = Ask();
    QCOMPARE(answer.status, static_cast<long>(ZeltSdkPathNotText));
    QVERIFY(answer.isNull);
    QVERIFY(QDir(m_directory->Path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
}

QTEST_APPLESS_MAIN(TestSdk)
#include "tst_sdk.moc"
