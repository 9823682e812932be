#include <ListLock.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QScopedPointer>
#include <QtTest>

/** Who keeps whom from the list. Locks of one process count against each other as those of two. */
class ListLockTest : public QObject
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

void ListLockTest::OthersAreKeptOut_data()
{
    QTest::addColumn<bool>("firstChanges");
    QTest::addColumn<bool>("secondChanges");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("two that change") << true << true << true;
    QTest::newRow("one that changes, one that reads") << true << false << true;
    QTest::newRow("one that reads, one that changes") << false << true << true;
    QTest::newRow("two that read") << false << false << false;
}

void ListLockTest::OthersAreKeptOut()
{
    QFETCH(bool, firstChanges);
    QFETCH(bool, secondChanges);
    const TemporaryDirectory directory;
    const ListLock first(directory.Path(), firstChanges ? ListLock::Changing : ListLock::Reading, 0);
    QVERIFY(!first.IsRefused());
    const ListLock second(directory.Path(), secondChanges ? ListLock::Changing : ListLock::Reading, 0);
    QTEST(second.IsRefused(), "isRefused");
}

void ListLockTest::EndOfTheLockLetsOthersIn()
{
    const TemporaryDirectory directory;
    {
        const ListLock first(directory.Path(), ListLock::Changing, 0);
        QVERIFY(!first.IsRefused());
    }
    QVERIFY(!ListLock(directory.Path(), ListLock::Changing, 0).IsRefused());
}

void ListLockTest::OtherDirectoriesAreFree()
{
    const TemporaryDirectory one;
    const TemporaryDirectory other;
    const ListLock first(one.Path(), ListLock::Changing, 0);
    QVERIFY(!ListLock(other.Path(), ListLock::Changing, 0).IsRefused());
}

void ListLockTest::DirectoryThatCannotBeLockedIsFree_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << "/absent/of course";
    QTest::newRow("no directory") << "/dev/null";
    QTest::newRow("empty") << "";
}

void ListLockTest::DirectoryThatCannotBeLockedIsFree()
{
    QFETCH(QString, path);
    QVERIFY(!ListLock(path, ListLock::Changing, 0).IsRefused());
}

void ListLockTest::NothingIsLeftBehind()
{
    const TemporaryDirectory directory;
    {
        const ListLock lock(directory.Path(), ListLock::Changing, 0);
        QVERIFY(!lock.IsRefused());
    }
    QVERIFY(
        QDir(directory.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

QTEST_GUILESS_MAIN(ListLockTest)
#include "tst_listlock.moc"
