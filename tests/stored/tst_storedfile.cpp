#include "StoredFixture.h"

#include <IWLANUIPlugin.h>
#include <Row.h>
#include <TraceCapture.h>
#include <WLANResult.h>

#include <QDir>
#include <QtTest>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

/*
 * The plug-in's calls of fchmod and fsync arrive here first, as this executable exports its symbols: what
 * stands on the disk in the middle of a write can be seen, and a disk that fails can be played.
 */
namespace
{

bool diskFails = false;
QList<mode_t> modesBeforeFirstByte;
QList<mode_t> modesBeforeRename;

bool IsDirectory(mode_t mode)
{
    return (mode & S_IFMT) == S_IFDIR;
}

} // namespace

extern "C" Q_DECL_EXPORT int fchmod(int descriptor, mode_t mode) noexcept
{
    struct stat status;
    if (fstat(descriptor, &status) == 0 && status.st_size == 0) {
        modesBeforeFirstByte.append(status.st_mode & 07777);
    }
    return static_cast<int>(syscall(SYS_fchmod, descriptor, mode));
}

extern "C" Q_DECL_EXPORT int fsync(int descriptor)
{
    struct stat status;
    if (fstat(descriptor, &status) == 0 && !IsDirectory(status.st_mode)) {
        modesBeforeRename.append(status.st_mode & 07777);
        if (diskFails) {
            errno = EIO;
            return -1;
        }
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

namespace
{

const mode_t ownerOnly = 0600;
const char damaged[] = "<wlanprofiles>\n"
                       "<profile profileName='before'/>\n"
                       "<profile profileName='broken\n"
                       "</wlanprofiles>\n";

IWLANUIPlugin *Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(StoredFixture::Service());
}

QStringList RememberedNames()
{
    QList<RememberedList> list;
    Wlan()->GetRememberedList(&list);
    QStringList names;
    for (int i = 0; i < list.size(); ++i) {
        names.append(list.at(i).name);
    }
    return names;
}

WLANProfile ProfileNamed(const QString &name, const QString &key = QString())
{
    WLANProfile profile;
    profile.profileName = name;
    profile.keyMaterial = key;
    return profile;
}

mode_t Mode(const QString &path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void SetMode(const QString &path, mode_t mode)
{
    QCOMPARE(chmod(QFile::encodeName(path).constData(), mode), 0);
}

void Link(const QString &target, const QString &path)
{
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()), 0);
}

bool IsLink(const QString &path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

/** Sets the process's file mode mask for its scope. */
class FileMask
{
public:
    explicit FileMask(mode_t mask) : m_before(umask(mask)) {}
    ~FileMask() { umask(m_before); }

private:
    mode_t m_before;
};

} // namespace

class tst_storedfile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void FileIsTheOwnersAlone_data();
    void FileIsTheOwnersAlone();
    void FileIsTheOwnersAloneFromItsFirstByte();
    void WidePermissionsAreToldAtReadingAndNarrowedAtWriting();
    void NothingIsLeftBesideTheFile();
    void LinkInPlaceOfTheFileIsRefused_data();
    void LinkInPlaceOfTheFileIsRefused();
    void LinkInPlaceOfTheTemporaryFileIsRefused();
    void LeftOverTemporaryFileIsReplaced();
    void DirectoryInPlaceOfTheTemporaryFileIsRefused();
    void UnreadableFileIsRefusedAndKept_data();
    void UnreadableFileIsRefusedAndKept();
    void FailingDiskLeavesTheEarlierFile();
    void SampleThatCantBeWrittenIsNotRemembered();
    void DamagedFileIsReadUpToTheDamage_data();
    void DamagedFileIsReadUpToTheDamage();
    void DamagedFileIsNeverOverwritten();
    void RepairedFileIsUsedAgain();
    void SameFaultIsToldOnceWhileReading();
    void RefusedChangeIsToldEveryTime();
    void OtherWritersAreWaitedForAndNotOverrun();
    void UnknownDataDirectoryGivesACode();
    void KeysNeverReachTheLog();
};

void tst_storedfile::init()
{
    diskFails = false;
    modesBeforeFirstByte.clear();
    modesBeforeRename.clear();
}

void tst_storedfile::FileIsTheOwnersAlone_data()
{
    QTest::addColumn<int>("mask");

    Row("open mask", 0);
    Row("ordinary mask", 022);
    Row("mask that takes the owner's rights", 0577);
}

void tst_storedfile::FileIsTheOwnersAlone()
{
    QFETCH(int, mask);
    StoredFixture fixture;
    const FileMask scope(static_cast<mode_t>(mask));
    QVERIFY(!RememberedNames().isEmpty());
    QCOMPARE(Mode(fixture.ProfilesPath()), ownerOnly);
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(Mode(fixture.ProfilesPath()), ownerOnly);
}

void tst_storedfile::FileIsTheOwnersAloneFromItsFirstByte()
{
    StoredFixture fixture;
    const FileMask scope(0);
    QVERIFY(!RememberedNames().isEmpty());
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(modesBeforeFirstByte, QList<mode_t>() << ownerOnly << ownerOnly);
    QCOMPARE(modesBeforeRename, QList<mode_t>() << ownerOnly << ownerOnly);
}

void tst_storedfile::WidePermissionsAreToldAtReadingAndNarrowedAtWriting()
{
    StoredFixture fixture;
    QVERIFY(!RememberedNames().isEmpty());
    SetMode(fixture.ProfilesPath(), 0644);

    const TraceCapture capture;
    RememberedNames();
    QCOMPARE(capture.Lines().size(), 1);
    QVERIFY(capture.Lines().first().contains(fixture.ProfilesPath()));
    QVERIFY(capture.Lines().first().contains("0644"));
    QCOMPARE(Mode(fixture.ProfilesPath()), mode_t(0644));

    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(Mode(fixture.ProfilesPath()), ownerOnly);
}

void tst_storedfile::NothingIsLeftBesideTheFile()
{
    StoredFixture fixture;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(QDir(fixture.Path(QString())).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList() << "WLANProfiles.xml");
}

void tst_storedfile::LinkInPlaceOfTheFileIsRefused_data()
{
    QTest::addColumn<bool>("targetExists");

    Row("to a file", true);
    Row("to nothing", false);
}

void tst_storedfile::LinkInPlaceOfTheFileIsRefused()
{
    QFETCH(bool, targetExists);
    StoredFixture fixture;
    const QByteArray content = "<wlanprofiles><profile profileName='theirs'/></wlanprofiles>";
    const QString target = fixture.Path("target");
    if (targetExists) {
        StoredFixture::Write(target, content);
    }
    Link(target, fixture.ProfilesPath());

    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(WLANResultSymbolicLink));
    QVERIFY(list.isEmpty());
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSymbolicLink));
    QVERIFY(IsLink(fixture.ProfilesPath()));
    QCOMPARE(QFile::exists(target), targetExists);
    QCOMPARE(StoredFixture::Read(target), targetExists ? content : QByteArray());
}

void tst_storedfile::LinkInPlaceOfTheTemporaryFileIsRefused()
{
    StoredFixture fixture;
    QVERIFY(!RememberedNames().isEmpty());
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    const QString target = fixture.Path("target");
    StoredFixture::Write(target, "theirs");
    Link(target, fixture.ProfilesPath() + ".new");

    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSymbolicLink));
    QCOMPARE(StoredFixture::Read(target), QByteArray("theirs"));
    QVERIFY(IsLink(fixture.ProfilesPath() + ".new"));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), before);
}

void tst_storedfile::LeftOverTemporaryFileIsReplaced()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath() + ".new", "cut off");
    SetMode(fixture.ProfilesPath() + ".new", 0666);
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(RememberedNames().last(), QString("new"));
    QCOMPARE(Mode(fixture.ProfilesPath()), ownerOnly);
    QVERIFY(!QFile::exists(fixture.ProfilesPath() + ".new"));
}

void tst_storedfile::DirectoryInPlaceOfTheTemporaryFileIsRefused()
{
    StoredFixture fixture;
    const QStringList before = RememberedNames();
    QVERIFY(QDir().mkdir(fixture.ProfilesPath() + ".new"));
    const TraceCapture capture;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultFileNotWritable));
    QCOMPARE(capture.Lines().size(), 1);
    QVERIFY(capture.Lines().first().contains(fixture.ProfilesPath()));
    QCOMPARE(RememberedNames(), before);
}

void tst_storedfile::UnreadableFileIsRefusedAndKept_data()
{
    QTest::addColumn<QString>("kind");

    Row("directory", "directory");
    Row("pipe", "pipe");
    Row("too large", "large");
}

void tst_storedfile::UnreadableFileIsRefusedAndKept()
{
    QFETCH(QString, kind);
    StoredFixture fixture;
    const QByteArray path = QFile::encodeName(fixture.ProfilesPath());
    if (kind == "directory") {
        QCOMPARE(mkdir(path.constData(), 0700), 0);
    } else if (kind == "pipe") {
        QCOMPARE(mkfifo(path.constData(), ownerOnly), 0);
    } else {
        StoredFixture::Write(fixture.ProfilesPath(), QByteArray());
        QCOMPARE(truncate(path.constData(), 3000000000L), 0);
    }
    struct stat before;
    QCOMPARE(lstat(path.constData(), &before), 0);

    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(WLANResultFileNotReadable));
    QVERIFY(list.isEmpty());
    const TraceCapture capture;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultFileNotReadable));
    QCOMPARE(capture.Lines().size(), 1);
    struct stat after;
    QCOMPARE(lstat(path.constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_size, before.st_size);
}

void tst_storedfile::FailingDiskLeavesTheEarlierFile()
{
    StoredFixture fixture;
    QVERIFY(!RememberedNames().isEmpty());
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    diskFails = true;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultFileNotWritable));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), before);
    QVERIFY(!QFile::exists(fixture.ProfilesPath() + ".new"));
    diskFails = false;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(RememberedNames().last(), QString("new"));
}

void tst_storedfile::SampleThatCantBeWrittenIsNotRemembered()
{
    StoredFixture fixture;
    diskFails = true;
    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(WLANResultFileNotWritable));
    QVERIFY(list.isEmpty());
    QVERIFY(!QFile::exists(fixture.ProfilesPath()));
}

void tst_storedfile::DamagedFileIsReadUpToTheDamage_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("line");

    const QStringList none;
    const QStringList one = QStringList() << "a";
    Row("empty", QByteArray(""), none, 1);
    Row("no XML", QByteArray("\x01\x02"), none, 1);
    Row("other root", QByteArray("<zeltdoc/>"), none, 1);
    Row("cut off", QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<pro"), one, 3);
    Row("no end", QByteArray("<wlanprofiles>\n<profile profileName='a'/>"), one, 2);
    Row("profile without a name",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<profile ssid='b'/>\n</wlanprofiles>"), one,
        3);
    Row("unknown element",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<secret/>\n</wlanprofiles>"), one, 3);
    Row("unknown attribute",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<profile profileName='b' band='5'/>\n"
                   "</wlanprofiles>"),
        one, 3);
    Row("attribute twice",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<profile profileName='b' ssid='' ssid=''/>\n"
                   "</wlanprofiles>"),
        one, 3);
    Row("attribute of the root", QByteArray("<wlanprofiles version='2'>\n</wlanprofiles>"), none, 1);
    Row("element in a profile",
        QByteArray("<wlanprofiles>\n<profile profileName='a'>\n<profile profileName='b'/>\n</profile>\n"
                   "</wlanprofiles>"),
        one, 3);
    Row("text", QByteArray("<wlanprofiles>\n<profile profileName='a'/>\ntext</wlanprofiles>"), one, 3);
    Row("document type",
        QByteArray("<!DOCTYPE wlanprofiles [\n<!ENTITY e 'e'>]>\n<wlanprofiles>\n"
                   "<profile profileName='&e;'/>\n</wlanprofiles>"),
        none, 2);
    Row("wrong bytes",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<profile profileName='\xff'/>\n"
                   "</wlanprofiles>"),
        one, 3);
    Row("character cut off",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n"
                   "</wlanprofiles>\n<!-- \xc3"),
        one, 4);
    Row("wrong bytes behind a fault",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n<profile/>\n"
                   "</wlanprofiles>\n\xff"),
        one, 3);
    Row("second root",
        QByteArray("<wlanprofiles>\n<profile profileName='a'/>\n</wlanprofiles>\n"
                   "<wlanprofiles/>"),
        one, 4);
}

void tst_storedfile::DamagedFileIsReadUpToTheDamage()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, names);
    QFETCH(int, line);
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(), content);
    SetMode(fixture.ProfilesPath(), ownerOnly);

    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(WLANResultFileDamaged));
    QCOMPARE(RememberedNames(), names);
    const TraceCapture capture;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultFileDamaged));
    QCOMPARE(capture.Lines().size(), 1);
    QVERIFY2(capture.Lines().first().contains(
                 QString("%1 is damaged at line %2;").arg(fixture.ProfilesPath()).arg(line)),
             qPrintable(capture.Lines().first()));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), content);
}

void tst_storedfile::DamagedFileIsNeverOverwritten()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(), damaged);
    WLANProfile profile;
    QCOMPARE(Wlan()->GetProfileByName("before", &profile), int(WLANResultSuccess));
    QCOMPARE(Wlan()->GetProfileByName("behind", &profile), int(WLANResultFileDamaged));
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultFileDamaged));
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("before")), int(WLANResultFileDamaged));
    StoredFixture::Restart();
    RememberedNames();
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), QByteArray(damaged));
}

void tst_storedfile::RepairedFileIsUsedAgain()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(), damaged);
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultFileDamaged));
    StoredFixture::Write(fixture.ProfilesPath(),
                         "<wlanprofiles><profile profileName='whole'/></wlanprofiles>");
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
    QCOMPARE(RememberedNames(), QStringList() << "whole"
                                              << "new");
}

void tst_storedfile::SameFaultIsToldOnceWhileReading()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.ProfilesPath(), damaged);
    SetMode(fixture.ProfilesPath(), ownerOnly);
    const TraceCapture capture;
    RememberedNames();
    RememberedNames();
    WLANProfile profile;
    Wlan()->GetProfileByName("before", &profile);
    QCOMPARE(capture.Lines().size(), 1);

    StoredFixture::Write(fixture.ProfilesPath(), "<wlanprofiles/>");
    RememberedNames();
    StoredFixture::Write(fixture.ProfilesPath(), damaged);
    RememberedNames();
    QCOMPARE(capture.Lines().size(), 2);
}

void tst_storedfile::RefusedChangeIsToldEveryTime()
{
    StoredFixture fixture;
    QVERIFY(!RememberedNames().isEmpty());
    const TraceCapture capture;
    Wlan()->CreateWLANProfile(ProfileNamed("Company"));
    Wlan()->CreateWLANProfile(ProfileNamed("Company"));
    Wlan()->CreateWLANProfile(ProfileNamed(QString()));
    QCOMPARE(capture.Lines().size(), 3);
}

void tst_storedfile::OtherWritersAreWaitedForAndNotOverrun()
{
    StoredFixture fixture;
    QVERIFY(!RememberedNames().isEmpty());
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    const int directory =
        open(QFile::encodeName(fixture.Path(QString())).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QVERIFY(directory >= 0);
    QCOMPARE(flock(directory, LOCK_EX), 0);
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultBusy));
    QCOMPARE(StoredFixture::Read(fixture.ProfilesPath()), before);
    QVERIFY(!RememberedNames().isEmpty());
    close(directory);
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultSuccess));
}

void tst_storedfile::UnknownDataDirectoryGivesACode()
{
    StoredFixture fixture;
    StoredFixture::Write(fixture.Path("file"), "no directory");
    qputenv("XDG_DATA_HOME", QFile::encodeName(fixture.Path("file")));
    QList<RememberedList> list;
    QCOMPARE(Wlan()->GetRememberedList(&list), int(WLANResultNoDirectory));
    QVERIFY(list.isEmpty());
    const TraceCapture capture;
    QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new")), int(WLANResultNoDirectory));
    QCOMPARE(capture.Lines().size(), 1);
}

void tst_storedfile::KeysNeverReachTheLog()
{
    const QString key = "TopSecret4711";
    StoredFixture fixture;
    const TraceCapture capture;
    QVERIFY(!RememberedNames().isEmpty());

    WLANProfile kept = ProfileNamed("kept", key);
    kept.authentication = "WPA2PSK";
    kept.encryption = "CCMP";
    QCOMPARE(Wlan()->CreateWLANProfile(kept), int(WLANResultSuccess));
    QVERIFY(StoredFixture::Read(fixture.ProfilesPath()).contains(key.toLatin1()));
    QCOMPARE(Wlan()->CreateWLANProfile(kept), int(WLANResultSuccess));
    WLANProfile profile;
    QCOMPARE(Wlan()->GetProfileByName("kept", &profile), int(WLANResultSuccess));
    QCOMPARE(profile.keyMaterial, key);
    WlanAvilableNetworkInfo network;
    network.networkName = "kept";
    QCOMPARE(Wlan()->GetNetworkProfile(network, &profile), 1);

    Wlan()->CreateWLANProfile(ProfileNamed("Company", key));
    Wlan()->CreateWLANProfile(ProfileNamed(QString(), key));
    diskFails = true;
    Wlan()->CreateWLANProfile(ProfileNamed("unwritten", key));
    diskFails = false;

    // Qt's own messages about XML quote what they stumble over.
    const QStringList faults = QStringList() << "'&" + key + ";'"
                                             << "'" + key << "'' " + key + "=''"
                                             << "''></" + key + ">"
                                             << "''/><" + key + "/>";
    for (int i = 0; i < faults.size(); ++i) {
        const QString content =
            "<wlanprofiles><profile profileName='n' keyMaterial=" + faults.at(i) + "/></wlanprofiles>";
        StoredFixture::Write(fixture.ProfilesPath(), content.toUtf8());
        RememberedNames();
        QCOMPARE(Wlan()->CreateWLANProfile(ProfileNamed("new", key)), int(WLANResultFileDamaged));
    }

    QVERIFY(capture.Lines().size() >= 3 + faults.size());
    QCOMPARE(capture.Lines().filter(key), QStringList());
}

QTEST_MAIN(tst_storedfile)
#include "tst_storedfile.moc"
