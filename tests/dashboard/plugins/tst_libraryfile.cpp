#include <LibraryFile.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QStringList>
#include <QtTest>

#include <link.h>

#include <cstring>

namespace
{

const char fixtureDirectory[] = BUILD_DIRECTORY "/tests/fixtures/plugins/";

QByteArray ContentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray SmallLibrary()
{
    return ContentOf(fixtureDirectory + QString("NeedsGeneration7/libNeedsGeneration7.so"));
}

/** "5.15, 6.4" and the like. */
QString Toolkits(const LibraryFile &library)
{
    QStringList texts;
    for (int i = 0; i < library.toolkits.size(); ++i) {
        texts.append(library.toolkits.at(i).Text());
    }
    return texts.join(", ");
}

template <typename Record> void Append(QByteArray *content, const Record &record)
{
    content->append(reinterpret_cast<const char *>(&record), int(sizeof(record)));
}

} // namespace

class LibraryFileTest : public QObject
{
    Q_OBJECT

private slots:
    void ToolkitIsTheOneBuiltWith_data();
    void ToolkitIsTheOneBuiltWith();
    void OtherToolkitIsTold_data();
    void OtherToolkitIsTold();
    void FileThatIsNoLibraryTellsNothing_data();
    void FileThatIsNoLibraryTellsNothing();
    void LibraryForOtherMachineTellsNothing_data();
    void LibraryForOtherMachineTellsNothing();
    void CutIsSeenWhereverItIs();
    void ChangedByteDoesNoHarm_data();
    void ChangedByteDoesNoHarm();
    void EndlessNamesDoNotHoldUp();
};

void LibraryFileTest::ToolkitIsTheOneBuiltWith_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("plug-in") << BUILD_DIRECTORY "/plugins/PriorityPlugin/libPriorityPlugin.so";
    QTest::newRow("sibling") << BUILD_DIRECTORY "/plugins/WLANStored/libWLANStored.so";
    QTest::newRow("host library") << BUILD_DIRECTORY "/lib/libcoreui.so";
}

void LibraryFileTest::ToolkitIsTheOneBuiltWith()
{
    QFETCH(QString, file);
    const LibraryFile library = LibraryFile::Read(file);
    QVERIFY(!library.isCut);
    const QStringList running = QString(qVersion()).split('.');
    const QString generation = running.at(0);
    // The libraries of generation 4 have no symbol versions.
    QCOMPARE(Toolkits(library), generation == "4" ? generation : generation + '.' + running.at(1));
}

void LibraryFileTest::OtherToolkitIsTold_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("toolkits");
    QTest::newRow("without symbol versions") << "NeedsGeneration4"
                                             << "4";
    QTest::newRow("with symbol versions") << "NeedsGeneration7"
                                          << "7.2";
    QTest::newRow("metadata in a section") << "MetadataInSection"
                                           << "8.1";
    QTest::newRow("metadata in a note") << "MetadataInNote"
                                        << "8.1";
}

void LibraryFileTest::OtherToolkitIsTold()
{
    QFETCH(QString, folder);
    const LibraryFile library = LibraryFile::Read(fixtureDirectory + QString("%1/lib%1.so").arg(folder));
    QVERIFY(!library.isCut);
    QTEST(Toolkits(library), "toolkits");
}

void LibraryFileTest::FileThatIsNoLibraryTellsNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("not a library\n");
    QTest::newRow("beginning of a header") << SmallLibrary().left(20);
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("a text that names metadata") << QByteArray("QTMETADATA !\0\10\1 libQt7Core.so.7", 32);
}

void LibraryFileTest::FileThatIsNoLibraryTellsNothing()
{
    QFETCH(QByteArray, content);
    const TemporaryDirectory directory;
    directory.Write("library", content);
    const QString paths[] = {directory.FilePath("library"), directory.FilePath("absent"), directory.Path()};
    for (const QString &path : paths) {
        const LibraryFile library = LibraryFile::Read(path);
        QVERIFY(!library.isCut);
        QCOMPARE(Toolkits(library), QString());
    }
}

void LibraryFileTest::LibraryForOtherMachineTellsNothing_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("word size") << int(EI_CLASS);
    QTest::newRow("byte order") << int(EI_DATA);
}

void LibraryFileTest::LibraryForOtherMachineTellsNothing()
{
    QFETCH(int, offset);
    QByteArray content = SmallLibrary();
    QVERIFY(content.size() > offset);
    content[offset] = char(3 - content.at(offset));
    const TemporaryDirectory directory;
    directory.Write("library", content);
    const LibraryFile library = LibraryFile::Read(directory.FilePath("library"));
    QVERIFY(!library.isCut);
    QCOMPARE(Toolkits(library), QString());
}

void LibraryFileTest::CutIsSeenWhereverItIs()
{
    const QByteArray content = SmallLibrary();
    const TemporaryDirectory directory;
    bool isWhole = false;
    for (int size = int(sizeof(ElfW(Ehdr))); size <= content.size(); size += 16) {
        directory.Write("library", content.left(size));
        const LibraryFile library = LibraryFile::Read(directory.FilePath("library"));
        // Behind what is loaded lie the names of sections and the symbols for debuggers.
        QVERIFY2(!isWhole || !library.isCut, qPrintable(QString::number(size)));
        isWhole = !library.isCut;
        QCOMPARE(Toolkits(library), isWhole ? QString("7.2") : QString());
    }
    QVERIFY(isWhole);
}

void LibraryFileTest::ChangedByteDoesNoHarm_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("needed libraries") << "NeedsGeneration7";
    QTest::newRow("metadata in a section") << "MetadataInSection";
    QTest::newRow("metadata in a note") << "MetadataInNote";
}

void LibraryFileTest::ChangedByteDoesNoHarm()
{
    QFETCH(QString, folder);
    const QByteArray content = ContentOf(fixtureDirectory + QString("%1/lib%1.so").arg(folder));
    QVERIFY(!content.isEmpty());
    const TemporaryDirectory directory;
    const QString path = directory.FilePath("library");
    directory.Write("library", content);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const char values[] = {'\0', '\xff'};
    int unlike = 0;
    for (int at = 0; at < content.size(); ++at) {
        for (char value : values) {
            QVERIFY(file.seek(at) && file.putChar(value) && file.flush());
            const LibraryFile library = LibraryFile::Read(path);
            QVERIFY(library.toolkits.size() <= 1);
            unlike += Toolkits(library) != (folder == "NeedsGeneration7" ? "7.2" : "8.1") ? 1 : 0;
        }
        QVERIFY(file.seek(at) && file.putChar(content.at(at)) && file.flush());
    }
    QVERIFY(unlike > 0);
}

void LibraryFileTest::EndlessNamesDoNotHoldUp()
{
    const int count = 500000;
    ElfW(Ehdr) header;
    std::memset(&header, 0, sizeof(header));
    std::memcpy(header.e_ident, ContentOf(BUILD_DIRECTORY "/lib/libcoreui.so").constData(), EI_NIDENT);
    header.e_type = ET_DYN;
    header.e_phoff = sizeof(header);
    header.e_phentsize = sizeof(ElfW(Phdr));
    header.e_phnum = 2;
    ElfW(Phdr) loaded;
    std::memset(&loaded, 0, sizeof(loaded));
    loaded.p_type = PT_LOAD;
    loaded.p_filesz = sizeof(header) + 2 * sizeof(loaded) + (count + 2) * sizeof(ElfW(Dyn)) + count;
    ElfW(Phdr) dynamic = loaded;
    dynamic.p_type = PT_DYNAMIC;
    dynamic.p_offset = sizeof(header) + 2 * sizeof(loaded);
    dynamic.p_filesz = (count + 2) * sizeof(ElfW(Dyn));

    QByteArray content;
    Append(&content, header);
    Append(&content, loaded);
    Append(&content, dynamic);
    ElfW(Dyn) entry;
    entry.d_tag = DT_STRTAB;
    entry.d_un.d_ptr = dynamic.p_offset + dynamic.p_filesz;
    Append(&content, entry);
    entry.d_tag = DT_STRSZ;
    entry.d_un.d_val = count;
    Append(&content, entry);
    entry.d_tag = DT_NEEDED;
    entry.d_un.d_val = 0;
    for (int i = 0; i < count; ++i) {
        Append(&content, entry);
    }
    content.append(QByteArray(count, 'Q'));

    const TemporaryDirectory directory;
    directory.Write("library", content);
    const LibraryFile library = LibraryFile::Read(directory.FilePath("library"));
    QVERIFY(!library.isCut);
    QCOMPARE(Toolkits(library), QString());
}

QTEST_MAIN(LibraryFileTest)
#include "tst_libraryfile.moc"
