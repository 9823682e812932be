#include <DamagedFile.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/** Copies of files that can't be read to their end. */
class DamagedFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_directory.reset(new TemporaryDirectory); }

    void CopyHasTheVeryBytesAndIsItsOwners();
    void SameBytesAreCopiedOnce();
    void DifferentBytesAreAllKept();
    void NumbersThatAreTakenAreSpared();
    void LinkIsNoCopy();
    void FileBehindALinkIsCopied();
    void WhatCannotBeCopiedIsTold_data();
    void WhatCannotBeCopiedIsTold();
    void FullDiskLeavesNothing();

private:
    QString Path() const { return m_directory->FilePath("list.xml"); }
    QString Copy(int number) const
    {
        return m_directory->FilePath(QString("list-damaged-%1.xml").arg(number));
    }
    QStringList Files() const
    {
        return QDir(m_directory->Path()).entryList(QDir::Files | QDir::System | QDir::Hidden);
    }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void DamagedFileTest::CopyHasTheVeryBytesAndIsItsOwners()
{
    const QByteArray bytes("<a>\0\xff\r\n", 8);
    m_directory->Write("list.xml", bytes);
    QCOMPARE(DamagedFile::Keep(Path()), Copy(1));
    QCOMPARE(m_directory->Read("list-damaged-1.xml"), bytes);
    QCOMPARE(m_directory->Read("list.xml"), bytes);
    struct stat status;
    QCOMPARE(stat(QFile::encodeName(Copy(1)).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0600);
}

void DamagedFileTest::SameBytesAreCopiedOnce()
{
    m_directory->Write("list.xml", "<a>");
    QCOMPARE(DamagedFile::Keep(Path()), Copy(1));
    QCOMPARE(DamagedFile::Keep(Path()), Copy(1));
    QCOMPARE(Files(), QStringList() << "list-damaged-1.xml"
                                    << "list.xml");
}

void DamagedFileTest::DifferentBytesAreAllKept()
{
    const char *const found[] = {"<a>", "<b>", "<a>", "<b"};
    const int numbers[] = {1, 2, 1, 3};
    for (int i = 0; i < 4; ++i) {
        m_directory->Write("list.xml", found[i]);
        QCOMPARE(DamagedFile::Keep(Path()), Copy(numbers[i]));
        QCOMPARE(m_directory->Read(QString("list-damaged-%1.xml").arg(numbers[i])), QByteArray(found[i]));
    }
}

void DamagedFileTest::NumbersThatAreTakenAreSpared()
{
    QVERIFY(QDir().mkdir(Copy(1)));
    QVERIFY(QFile::link(m_directory->FilePath("nothing"), Copy(2)));
    m_directory->Write("list.xml", "<a>");
    QCOMPARE(DamagedFile::Keep(Path()), Copy(3));
    QVERIFY(!QFile::exists(m_directory->FilePath("nothing")));
}

void DamagedFileTest::LinkIsNoCopy()
{
    m_directory->Write("list.xml", "<a>");
    QVERIFY(QFile::link(Path(), Copy(1)));
    QCOMPARE(DamagedFile::Keep(Path()), Copy(2));
}

void DamagedFileTest::FileBehindALinkIsCopied()
{
    m_directory->Write("elsewhere", "<a>");
    QVERIFY(QFile::link(m_directory->FilePath("elsewhere"), Path()));
    QCOMPARE(DamagedFile::Keep(Path()), Copy(1));
    QCOMPARE(m_directory->Read("list-damaged-1.xml"), QByteArray("<a>"));
}

void DamagedFileTest::WhatCannotBeCopiedIsTold_data()
{
    QTest::addColumn<QString>("what");
    Row("nothing there", "nothing");
    Row("a directory", "directory");
    Row("a pipe", "pipe");
    Row("far too large", "large");
    Row("no number free", "numbers");
    Row("nothing can be written", "blocked");
}

void DamagedFileTest::WhatCannotBeCopiedIsTold()
{
    QFETCH(QString, what);
    if (what == "directory") {
        QVERIFY(QDir().mkdir(Path()));
    } else if (what == "pipe") {
        QCOMPARE(mkfifo(QFile::encodeName(Path()).constData(), 0600), 0);
    } else if (what == "large") {
        m_directory->Write("list.xml", "");
        QVERIFY(QFile::resize(Path(), qint64(DamagedFile::largestFile) + 1));
    } else if (what != "nothing") {
        m_directory->Write("list.xml", "<a>");
    }
    for (int i = 1; what == "numbers" && i <= 1000; ++i) {
        m_directory->Write(QString("list-damaged-%1.xml").arg(i), QByteArray::number(i));
    }
    if (what == "blocked") {
        // A directory where the new file is made.
        QVERIFY(QDir().mkdir(Copy(1) + ".new"));
    }
    const QStringList before = Files();
    QCOMPARE(DamagedFile::Keep(Path()), QString());
    QCOMPARE(Files(), before);
}

void DamagedFileTest::FullDiskLeavesNothing()
{
    m_directory->Write("list.xml", QByteArray(1000, 'x'));
    const pid_t child = fork();
    if (child == 0) {
        // As with a full disk, no file grows beyond that many bytes.
        std::signal(SIGXFSZ, SIG_IGN);
        const struct rlimit limit = {200, 200};
        setrlimit(RLIMIT_FSIZE, &limit);
        _exit(DamagedFile::Keep(Path()).isNull() ? 0 : 1);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    QCOMPARE(Files(), QStringList("list.xml"));
}

QTEST_GUILESS_MAIN(DamagedFileTest)
#include "tst_damagedfile.moc"
