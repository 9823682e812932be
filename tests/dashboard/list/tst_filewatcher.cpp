#include "Eventually.h"

#include <FileWatcher.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

class FileWatcherTest : public QObject
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

void FileWatcherTest::FileThatAppearsIsTold()
{
    const TemporaryDirectory directory;
    FileWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    directory.Write("list", "one");
    QVERIFY(Tells(spy, 1));
}

void FileWatcherTest::ChangeIsTold()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    FileWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    directory.Write("list", "two");
    QVERIFY(Tells(spy, 1));
}

void FileWatcherTest::RemovalIsTold()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    FileWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    QVERIFY(QFile::remove(directory.FilePath("list")));
    QVERIFY(Tells(spy, 1));
}

void FileWatcherTest::FileWrittenAnewIsFollowed()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    FileWatcher watcher(directory.FilePath("list"), nullptr);
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

void FileWatcherTest::ChangesCloseTogetherAreToldOnce()
{
    const TemporaryDirectory directory;
    directory.Write("list", "one");
    FileWatcher watcher(directory.FilePath("list"), nullptr);
    QSignalSpy spy(&watcher, SIGNAL(Changed()));
    for (int i = 0; i < 20; ++i) {
        directory.Write("list", "changed");
    }
    QVERIFY(Tells(spy, 1));
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(FileWatcherTest)
#include "tst_filewatcher.moc"
