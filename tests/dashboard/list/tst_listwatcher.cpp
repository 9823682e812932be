#include "Eventually.h"

#include <ListWatcher.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

class ListWatcherTest : public QObject
{
    Q_OBJECT

private slots:
    void FileThatAppearsIsTold();
    void ChangeIsTold();
    void RemovalIsTold();
    void FileWrittenAnewIsFollowed();
    void ChangesCloseTogetherAreToldOnce();
};

namespace
{

bool Tells(const QSignalSpy &spy, int times)
{
    return Eventually([&spy, times]() { return spy.count() >= times; });
}

} // namespace

void ListWatcherTest::FileThatAppearsIsTold()
{
    const TemporaryDirectory directory;
    ListWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    directory.Write("list", "one");
    QVERIFY(Tells(spy, 1));
}

void ListWatcherTest::ChangeIsTold()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    ListWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    directory.Write("list", "two");
    QVERIFY(Tells(spy, 1));
}

void ListWatcherTest::RemovalIsTold()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    ListWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    QVERIFY(QFile::remove(directory.FilePath("list")));
    QVERIFY(Tells(spy, 1));
}

void ListWatcherTest::FileWrittenAnewIsFollowed()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    ListWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    for (int i = 1; i <= 3; ++i) {
        QVERIFY(QFile::remove(directory.FilePath("list")));
        directory.Write("list", "written anew");
        QVERIFY(Tells(spy, 1));
        spy.clear();
        QFile file(directory.FilePath("list"));
        QVERIFY(file.open(QIODevice::Append));
        file.write(" and changed");
        file.close();
        QVERIFY(Tells(spy, 1));
        spy.clear();
    }
}

void ListWatcherTest::ChangesCloseTogetherAreToldOnce()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    ListWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    for (int i = 0; i < 20; ++i) {
        directory.Write("list", "changed");
    }
    QVERIFY(Tells(spy, 1));
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(ListWatcherTest)
#include "tst_listwatcher.moc"
