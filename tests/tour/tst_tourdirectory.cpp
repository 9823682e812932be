#include <Row.h>
#include <TemporaryDirectory.h>
#include <TourDirectory.h>

#include <QDir>
#include <QFile>
#include <QtTest>

class TourDirectoryTest : public QObject
{
    Q_OBJECT

private slots:
    void MissingDirectoryIsMade();
    void OtherFilesStay();
    void EarlierTourIsRemoved();
    void ForeignContentIsRefused_data();
    void ForeignContentIsRefused();
    void LinkInDataIsNotFollowed();
    void NamesThatLeadElsewhereAreIgnored();
    void ForeignFileIsNotClaimed();
    void FileInPlaceOfTheDirectoryIsRefused();
};

void TourDirectoryTest::MissingDirectoryIsMade()
{
    const TemporaryDirectory temporary;
    TourDirectory directory(temporary.FilePath("a/b"));
    QCOMPARE(directory.Prepare(), QString());
    QVERIFY(QDir(temporary.FilePath("a/b/data")).exists());
    QCOMPARE(directory.DataPath(), temporary.FilePath("a/b/data"));
}

void TourDirectoryTest::OtherFilesStay()
{
    const TemporaryDirectory temporary;
    temporary.Write("notes.txt", "mine");
    for (int i = 0; i < 2; ++i) {
        TourDirectory directory(temporary.Path());
        QCOMPARE(directory.Prepare(), QString());
    }
    QCOMPARE(temporary.Read("notes.txt"), QByteArray("mine"));
}

void TourDirectoryTest::EarlierTourIsRemoved()
{
    const TemporaryDirectory temporary;
    TourDirectory earlier(temporary.Path());
    QCOMPARE(earlier.Prepare(), QString());
    QCOMPARE(earlier.Claim("01-start.png"), temporary.FilePath("01-start.png"));
    temporary.Write("01-start.png", "picture");
    temporary.Write("data/Priority.xml", "list");

    TourDirectory later(temporary.Path());
    QCOMPARE(later.Prepare(), QString());
    QVERIFY(!QFile::exists(temporary.FilePath("01-start.png")));
    QVERIFY(QDir(later.DataPath()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

void TourDirectoryTest::ForeignContentIsRefused_data()
{
    QTest::addColumn<QString>("name");
    Row("picture", "07-holiday.png");
    Row("file called data", "data");
}

void TourDirectoryTest::ForeignContentIsRefused()
{
    QFETCH(QString, name);
    const TemporaryDirectory temporary;
    temporary.Write(name, "mine");
    TourDirectory directory(temporary.Path());
    QVERIFY(directory.Prepare().contains(temporary.FilePath(name)));
    QCOMPARE(temporary.Read(name), QByteArray("mine"));
}

void TourDirectoryTest::LinkInDataIsNotFollowed()
{
    const TemporaryDirectory temporary;
    const TemporaryDirectory other;
    other.Write("precious", "mine");
    TourDirectory earlier(temporary.Path());
    QCOMPARE(earlier.Prepare(), QString());
    QVERIFY(QFile::link(other.Path(), temporary.FilePath("data/link")));
    TourDirectory later(temporary.Path());
    QCOMPARE(later.Prepare(), QString());
    QCOMPARE(other.Read("precious"), QByteArray("mine"));
}

void TourDirectoryTest::NamesThatLeadElsewhereAreIgnored()
{
    const TemporaryDirectory temporary;
    QVERIFY(QDir().mkpath(temporary.FilePath("tour")));
    temporary.Write("precious", "mine");
    temporary.Write("tour/.dashboard-tour", "../precious\n..\n.\n");
    TourDirectory directory(temporary.FilePath("tour"));
    QCOMPARE(directory.Prepare(), QString());
    QCOMPARE(temporary.Read("precious"), QByteArray("mine"));
}

void TourDirectoryTest::ForeignFileIsNotClaimed()
{
    const TemporaryDirectory temporary;
    TourDirectory directory(temporary.Path());
    QCOMPARE(directory.Prepare(), QString());
    temporary.Write("01-start.png", "mine");
    QVERIFY(directory.Claim("01-start.png").isEmpty());
}

void TourDirectoryTest::FileInPlaceOfTheDirectoryIsRefused()
{
    const TemporaryDirectory temporary;
    temporary.Write("tour", "mine");
    TourDirectory directory(temporary.FilePath("tour"));
    QVERIFY(directory.Prepare().contains(temporary.FilePath("tour")));
    QCOMPARE(temporary.Read("tour"), QByteArray("mine"));
}

QTEST_APPLESS_MAIN(TourDirectoryTest)
#include "tst_tourdirectory.moc"
