#include "StoredFixture.h"

#include <Row.h>
#include <SystemCalls.h>

#include <IWLANUIPlugin.h>
#include <WLANResult.h>

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/** The file with the keys while it is being written: a process that is killed, and links that appear in the
 * middle. */
class tst_StoredWrites : public QObject, public SystemCalls::Listener
{
    Q_OBJECT

private slots:
    void cleanup();

    void killedAtAnyMomentLeavesTheFileWholeAndPrivate();
    void linkThatAppearsIsNotFollowed_data();
    void linkThatAppearsIsNotFollowed();

private:
    void BeforeOpen(const QString &path, bool forWriting) override;

    QString m_target;
    QString m_pathToLink;
    bool m_onWriting;
};

namespace
{

const mode_t ownerOnly = 0600;

IWLANUIPlugin *Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(StoredFixture::Service());
}

int StoreProfile(const QString &name)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.keyMaterial = "key of " + name;
    return Wlan()->CreateWLANProfile(profile);
}

int RememberedCount()
{
    QList<RememberedList> list;
    return Wlan()->GetRememberedList(&list) == WLANResultSuccess ? list.size() : -1;
}

bool IsOwnersAlone(const QString &path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && (status.st_mode & 07777) == ownerOnly;
}

void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

/** Whether a process that stores a profile dies at that call, after writing so many bytes in it. */
bool DiesWhileStoring(const QString &directory, int call, int bytes)
{
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler(Discard);
        umask(0);
        SystemCalls::Watch(directory);
        SystemCalls::MakeDie(call, bytes);
        StoreProfile("new");
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

} // namespace

void tst_StoredWrites::cleanup()
{
    SystemCalls::Forget();
}

void tst_StoredWrites::killedAtAnyMomentLeavesTheFileWholeAndPrivate()
{
    const StoredFixture fixture;
    const int count = RememberedCount();
    QVERIFY(count > 0);
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    QCOMPARE(StoreProfile("new"), int(WLANResultSuccess));
    const QByteArray after = StoredFixture::Read(fixture.ProfilesPath());
    QVERIFY(after != before);

    const QString temporaryPath = fixture.ProfilesPath() + ".new";
    const int lengths[] = {0, 1, int(before.size()), int(after.size())};
    int foundBefore = 0;
    int foundAfter = 0;
    int foundTemporary = 0;
    bool died = true;
    for (int call = 1; died; ++call) {
        for (const int bytes : lengths) {
            StoredFixture::Write(fixture.ProfilesPath(), before);
            died = DiesWhileStoring(fixture.Path(QString()), call, bytes);
            if (!died) {
                break;
            }
            const QByteArray found = StoredFixture::Read(fixture.ProfilesPath());
            QVERIFY2(found == before || found == after, found.constData());
            QVERIFY(IsOwnersAlone(fixture.ProfilesPath()));
            QVERIFY(!QFile::exists(temporaryPath) || IsOwnersAlone(temporaryPath));
            ++(found == before ? foundBefore : foundAfter);
            foundTemporary += QFile::exists(temporaryPath) ? 1 : 0;

            QCOMPARE(StoreProfile("next"), int(WLANResultSuccess));
            QCOMPARE(RememberedCount(), found == before ? count + 1 : count + 2);
            QVERIFY(!QFile::exists(temporaryPath));
        }
    }
    QVERIFY(foundBefore > 0);
    QVERIFY(foundAfter > 0);
    QVERIFY(foundTemporary > 0);
}

void tst_StoredWrites::BeforeOpen(const QString &path, bool forWriting)
{
    if (forWriting == m_onWriting && path == m_pathToLink) {
        QFile::rename(path, path + "-away");
        QCOMPARE(symlink(QFile::encodeName(m_target).constData(), QFile::encodeName(path).constData()), 0);
    }
}

void tst_StoredWrites::linkThatAppearsIsNotFollowed_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("onWriting");
    QTest::addColumn<bool>("targetExists");
    Row("when the file is opened to be read", "", false, true);
    Row("when the file is made, to a file", ".new", true, true);
    Row("when the file is made, to nothing", ".new", true, false);
}

void tst_StoredWrites::linkThatAppearsIsNotFollowed()
{
    QFETCH(QString, suffix);
    QFETCH(bool, onWriting);
    QFETCH(bool, targetExists);
    const StoredFixture fixture;
    QVERIFY(RememberedCount() > 0);
    const QByteArray before = StoredFixture::Read(fixture.ProfilesPath());
    m_target = fixture.Path("target");
    m_pathToLink = fixture.ProfilesPath() + suffix;
    m_onWriting = onWriting;
    if (targetExists) {
        StoredFixture::Write(m_target, before);
    }
    SystemCalls::Watch(fixture.Path(QString()), this);
    QCOMPARE(StoreProfile("new"), int(WLANResultSymbolicLink));
    SystemCalls::Forget();
    QCOMPARE(QFile::exists(m_target), targetExists);
    QCOMPARE(StoredFixture::Read(m_target), targetExists ? before : QByteArray());
    QVERIFY(QFileInfo(m_pathToLink).isSymLink());
}

QTEST_MAIN(tst_StoredWrites)
#include "tst_storedwrites.moc"
