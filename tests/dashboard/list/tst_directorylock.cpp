#include <DirectoryLock.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QScopedPointer>
#include <QtTest>

/** Who keeps whom from a directory. Locks of one process count against each other as those of two. */
class DirectoryLockTest : public QObject
{
    Q_OBJECT

private slots:
    void OthersAreKeptOut_data();
    void OthersAreKeptOut();
    void EndOfTheLockLetsOthersIn();
    void OtherDirectoriesAreFree();
    void DirectoryThatCannotBeLockedIsFree_data();
    void DirectoryThatCannotBeLockedIsFree();
    void NothingIsLeftBehind();
};

void DirectoryLockTest::OthersAreKeptOut_data()
{
    QTest::addColumn<bool>("firstChanges");
    QTest::addColumn<bool>("secondChanges");
    QTest::addColumn<bool>("isRefused");
    Row("two that change", true, true, true);
    Row("one that changes, one that reads", true, false, true);
    Row("one that reads, one that changes", false, true, true);
    Row("two that read", false, false, false);
}

void DirectoryLockTest::OthersAreKeptOut()
{
    QFETCH(bool, firstChanges);
    QFETCH(bool, secondChanges);
    const TemporaryDirectory directory;
    const DirectoryLock first(directory.Path(),
                              firstChanges ? DirectoryLock::Changing : DirectoryLock::Reading, 0);
    QVERIFY(!first.IsRefused());
    const DirectoryLock second(directory.Path(),
                               secondChanges ? DirectoryLock::Changing : DirectoryLock::Reading, 0);
    QTEST(second.IsRefused(), "isRefused");
}

void DirectoryLockTest::EndOfTheLockLetsOthersIn()
{
    const TemporaryDirectory directory;
    {
        const DirectoryLock first(directory.Path(), DirectoryLock::Changing, 0);
        QVERIFY(!first.IsRefused());
    }
    QVERIFY(!DirectoryLock(directory.Path(), DirectoryLock::Changing, 0).IsRefused());
}

void DirectoryLockTest::OtherDirectoriesAreFree()
{
    const TemporaryDirectory one;
    const TemporaryDirectory other;
    const DirectoryLock first(one.Path(), DirectoryLock::Changing, 0);
    QVERIFY(!DirectoryLock(other.Path(), DirectoryLock::Changing, 0).IsRefused());
}

void DirectoryLockTest::DirectoryThatCannotBeLockedIsFree_data()
{
    QTest::addColumn<QString>("path");
    Row("missing", "/absent/of course");
    Row("no directory", "/dev/null");
    Row("empty", "");
}

void DirectoryLockTest::DirectoryThatCannotBeLockedIsFree()
{
    QFETCH(QString, path);
    QVERIFY(!DirectoryLock(path, DirectoryLock::Changing, 0).IsRefused());
}

void DirectoryLockTest::NothingIsLeftBehind()
{
    const TemporaryDirectory directory;
    {
        const DirectoryLock lock(directory.Path(), DirectoryLock::Changing, 0);
        QVERIFY(!lock.IsRefused());
    }
    QVERIFY(
        QDir(directory.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

QTEST_GUILESS_MAIN(DirectoryLockTest)
#include "tst_directorylock.moc"
