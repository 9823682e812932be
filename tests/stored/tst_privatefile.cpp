#include <PrivateFile.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QScopedPointer>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

/** Replacing a private file, whatever stands in its place: nobody has read the file before, who would have
 * refused. */
class tst_PrivateFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void missingFileIsMade();
    void linkIsNotReplaced_data();
    void linkIsNotReplaced();
    void directoryIsNotReplaced();

private:
    QString Path() const { return m_directory->FilePath("private"); }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void tst_PrivateFile::init()
{
    m_directory.reset(new TemporaryDirectory);
}

void tst_PrivateFile::missingFileIsMade()
{
    QCOMPARE(int(PrivateFile::Replace(Path(), "key")), int(PrivateFile::OutcomeDone));
    QCOMPARE(m_directory->Read("private"), QByteArray("key"));
    struct stat status;
    QCOMPARE(lstat(QFile::encodeName(Path()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
}

void tst_PrivateFile::linkIsNotReplaced_data()
{
    QTest::addColumn<bool>("targetExists");
    Row("to a file", true);
    Row("to nothing", false);
}

void tst_PrivateFile::linkIsNotReplaced()
{
    QFETCH(bool, targetExists);
    if (targetExists) {
        m_directory->Write("target", "theirs");
    }
    QVERIFY(QFile::link(m_directory->FilePath("target"), Path()));
    QCOMPARE(int(PrivateFile::Replace(Path(), "key")), int(PrivateFile::OutcomeSymbolicLink));
    QVERIFY(QFileInfo(Path()).isSymLink());
    QCOMPARE(m_directory->Read("target"), targetExists ? QByteArray("theirs") : QByteArray());
    QVERIFY(!QFile::exists(PrivateFile::TemporaryPath(Path())));
}

void tst_PrivateFile::directoryIsNotReplaced()
{
    QVERIFY(QDir().mkdir(Path()));
    QCOMPARE(int(PrivateFile::Replace(Path(), "key")), int(PrivateFile::OutcomeNotWritable));
    QVERIFY(QFileInfo(Path()).isDir());
    QVERIFY(!QFile::exists(PrivateFile::TemporaryPath(Path())));
}

QTEST_MAIN(tst_PrivateFile)
#include "tst_privatefile.moc"
