#include <LibraryFile.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QtTest>

#include <link.h>

namespace
{

QByteArray SmallLibrary()
{
    QFile file(BUILD_DIRECTORY "/tests/fixtures/plugins/NeedsGeneration7/libNeedsGeneration7.so");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class LibraryFileTest : public QObject
{
    Q_OBJECT

private slots:
    void LibraryOfThisQtIsWhole_data();
    void LibraryOfThisQtIsWhole();
    void FileThatIsNoLibraryTellsNothing_data();
    void FileThatIsNoLibraryTellsNothing();
    void CutIsSeenWhereverItIs();
    void ChangedByteDoesNoHarm();
};

void LibraryFileTest::LibraryOfThisQtIsWhole_data()
{
    QTest::addColumn<QString>("file");
    Row("plug-in", BUILD_DIRECTORY "/plugins/PriorityPlugin/libPriorityPlugin.so");
    Row("sibling", BUILD_DIRECTORY "/plugins/WLANStored/libWLANStored.so");
    Row("host library", BUILD_DIRECTORY "/lib/libcoreui.so");
}

void LibraryFileTest::LibraryOfThisQtIsWhole()
{
    QFETCH(QString, file);
    QVERIFY(!LibraryFile::IsCut(file));
    QCOMPARE(LibraryFile::OtherQt(file), QString());
}

void LibraryFileTest::FileThatIsNoLibraryTellsNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    Row("empty", QByteArray(""));
    Row("text", QByteArray("not a library\n"));
    Row("beginning of a header", SmallLibrary().left(20));
    Row("zeros", QByteArray(4096, '\0'));
}

void LibraryFileTest::FileThatIsNoLibraryTellsNothing()
{
    QFETCH(QByteArray, content);
    const TemporaryDirectory directory;
    directory.Write("library", content);
    const QString paths[] = {directory.FilePath("library"), directory.FilePath("absent"), directory.Path()};
    for (const QString &path : paths) {
        QVERIFY(!LibraryFile::IsCut(path));
        QCOMPARE(LibraryFile::OtherQt(path), QString());
    }
}

void LibraryFileTest::CutIsSeenWhereverItIs()
{
    const QByteArray content = SmallLibrary();
    const TemporaryDirectory directory;
    bool isWhole = false;
    for (int size = int(sizeof(ElfW(Ehdr))); size <= content.size(); size += 16) {
        directory.Write("library", content.left(size));
        const bool isCut = LibraryFile::IsCut(directory.FilePath("library"));
        // Behind what is loaded lie the names of sections and the symbols for debuggers.
        QVERIFY2(!isWhole || !isCut, qPrintable(QString::number(size)));
        isWhole = !isCut;
    }
    QVERIFY(isWhole);
}

void LibraryFileTest::ChangedByteDoesNoHarm()
{
    const QByteArray content = SmallLibrary();
    QVERIFY(!content.isEmpty());
    const TemporaryDirectory directory;
    const QString path = directory.FilePath("library");
    directory.Write("library", content);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    int unlike = 0;
    const int header = int(sizeof(ElfW(Ehdr)) + 16 * sizeof(ElfW(Phdr)));
    for (int at = 0; at < header; ++at) {
        for (const char value : {'\0', '\xff'}) {
            QVERIFY(file.seek(at) && file.putChar(value) && file.flush());
            unlike += LibraryFile::IsCut(path) || LibraryFile::OtherQt(path) != "7" ? 1 : 0;
        }
        QVERIFY(file.seek(at) && file.putChar(content.at(at)) && file.flush());
    }
    QVERIFY(unlike > 0);
}

QTEST_GUILESS_MAIN(LibraryFileTest)
#include "tst_libraryfile.moc"
