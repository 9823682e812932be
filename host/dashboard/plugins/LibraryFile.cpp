#include "LibraryFile.h"

#include <QByteArray>
#include <QFile>

#include <link.h>

#include <cstring>
#include <limits>

namespace
{

typedef ElfW(Ehdr) FileHeader;
typedef ElfW(Phdr) Segment;
typedef ElfW(Shdr) Section;
typedef ElfW(Dyn) DynamicEntry;

bool HasPart(const QByteArray &content, quint64 offset, quint64 size)
{
    const quint64 end = quint64(content.size());
    return offset <= end && size <= end - offset;
}

/** Size bytes of content from offset on, not copied; empty when content has not so many. */
QByteArray Part(const QByteArray &content, quint64 offset, quint64 size)
{
    return HasPart(content, offset, size) ? QByteArray::fromRawData(content.constData() + offset, int(size))
                                          : QByteArray();
}

template <typename Record> bool ReadRecord(const QByteArray &content, quint64 offset, Record *record)
{
    if (!HasPart(content, offset, sizeof(Record))) {
        return false;
    }
    std::memcpy(record, content.constData() + offset, sizeof(Record));
    return true;
}

/**
 * The zero-terminated text at offset; empty when there is none. Texts that are longer than any of interest
 * are cut, so that a file made to hold the reader up doesn't.
 */
QByteArray TextAt(const QByteArray &texts, quint64 offset)
{
    const QByteArray text = offset < quint64(texts.size()) ? texts.mid(int(offset), 256) : QByteArray();
    return text.left(text.indexOf('\0'));
}

bool IsLibraryForThisMachine(const FileHeader &header)
{
    const int wordSize = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;
    const int byteOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2LSB : ELFDATA2MSB;
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == wordSize &&
           header.e_ident[EI_DATA] == byteOrder && header.e_type == ET_DYN &&
           header.e_phentsize == sizeof(Segment);
}

/** False when the file ends before the table of segments does. */
bool ReadSegments(const QByteArray &content, const FileHeader &header, QList<Segment> *segments)
{
    for (int i = 0; i < header.e_phnum; ++i) {
        Segment segment;
        if (!ReadRecord(content, header.e_phoff + quint64(i) * sizeof(Segment), &segment)) {
            return false;
        }
        segments->append(segment);
    }
    return true;
}

bool AreSegmentsInFile(const QByteArray &content, const QList<Segment> &segments)
{
    for (int i = 0; i < segments.size(); ++i) {
        const Segment &segment = segments.at(i);
        if (segment.p_type == PT_LOAD && !HasPart(content, segment.p_offset, segment.p_filesz)) {
            return false;
        }
    }
    return true;
}

/** What the loader would find at an address. */
QByteArray PartAtAddress(const QByteArray &content, const QList<Segment> &segments, quint64 address,
                         quint64 size)
{
    for (int i = 0; i < segments.size(); ++i) {
        const Segment &segment = segments.at(i);
        if (segment.p_type == PT_LOAD && address >= segment.p_vaddr &&
            address - segment.p_vaddr < segment.p_filesz) {
            return Part(content, segment.p_offset + (address - segment.p_vaddr), size);
        }
    }
    return QByteArray();
}

/** The generation whose library this is, such as "libQtCore.so.4" or "libQt6Gui.so.6"; 0 for all others. */
int GenerationOf(const QByteArray &library)
{
    const QByteArray prefix("libQt");
    const int ending = library.indexOf(".so.");
    if (!library.startsWith(prefix) || ending < 0) {
        return 0;
    }
    int begin = prefix.size();
    while (library.at(begin) >= '0' && library.at(begin) <= '9') {
        ++begin;
    }
    const QByteArray module = library.mid(begin, ending - begin);
    const int generation = library.mid(ending + 4).split('.').first().toInt();
    const bool isToolkit = module == "Core" || module == "Gui" || module == "Widgets";
    return isToolkit && generation < 100 ? generation : 0;
}

/** The newest release of generation among the names of symbol versions, such as "Qt_5.15"; else -1. */
int NewestRelease(const QByteArray &names, int generation)
{
    const QByteArray prefix = "Qt_" + QByteArray::number(generation) + '.';
    int newest = -1;
    for (int at = names.indexOf(prefix); at >= 0; at = names.indexOf(prefix, at + 1)) {
        bool isNumber = false;
        const int release = TextAt(names, quint64(at) + quint64(prefix.size())).toInt(&isNumber);
        if (isNumber) {
            newest = qMax(newest, release);
        }
    }
    return newest;
}

bool HasGeneration(const QList<ToolkitVersion> &toolkits, int generation)
{
    for (int i = 0; i < toolkits.size(); ++i) {
        if (toolkits.at(i).generation == generation) {
            return true;
        }
    }
    return false;
}

ToolkitVersion Version(int generation, int release)
{
    const ToolkitVersion version = {generation, release};
    return version;
}

QList<ToolkitVersion> NeededToolkits(const QByteArray &content, const QList<Segment> &segments)
{
    QList<quint64> needed;
    quint64 namesAddress = 0;
    quint64 namesSize = 0;
    for (int i = 0; i < segments.size(); ++i) {
        if (segments.at(i).p_type != PT_DYNAMIC) {
            continue;
        }
        DynamicEntry entry;
        for (quint64 offset = 0; offset + sizeof(entry) <= segments.at(i).p_filesz; offset += sizeof(entry)) {
            if (!ReadRecord(content, segments.at(i).p_offset + offset, &entry) || entry.d_tag == DT_NULL) {
                break;
            }
            if (entry.d_tag == DT_NEEDED) {
                needed.append(entry.d_un.d_val);
            } else if (entry.d_tag == DT_STRTAB) {
                namesAddress = entry.d_un.d_ptr;
            } else if (entry.d_tag == DT_STRSZ) {
                namesSize = entry.d_un.d_val;
            }
        }
        break;
    }
    const QByteArray names = PartAtAddress(content, segments, namesAddress, namesSize);
    QList<ToolkitVersion> toolkits;
    for (int i = 0; i < needed.size(); ++i) {
        const int generation = GenerationOf(TextAt(names, needed.at(i)));
        if (generation > 0 && !HasGeneration(toolkits, generation)) {
            toolkits.append(Version(generation, NewestRelease(names, generation)));
        }
    }
    return toolkits;
}

QList<ToolkitVersion> ToolkitsInMetadata(const QByteArray &content, const FileHeader &header)
{
    QList<ToolkitVersion> toolkits;
    Section names;
    if (header.e_shentsize != sizeof(Section) ||
        !ReadRecord(content, header.e_shoff + quint64(header.e_shstrndx) * sizeof(Section), &names)) {
        return toolkits;
    }
    const QByteArray sectionNames = Part(content, names.sh_offset, names.sh_size);
    for (int i = 0; i < header.e_shnum; ++i) {
        Section section;
        if (!ReadRecord(content, header.e_shoff + quint64(i) * sizeof(Section), &section)) {
            break;
        }
        const QByteArray name = TextAt(sectionNames, section.sh_name);
        QByteArray mark;
        if (name == ".qtmetadata") {
            mark = "QTMETADATA !";
        } else if (name == ".note.qt.metadata") {
            mark = QByteArray("qt-project!\0", 12);
        } else {
            continue;
        }
        // Behind the mark: the metadata's own version, and the toolkit's in two numbers.
        const QByteArray metadata = Part(content, section.sh_offset, section.sh_size).left(64);
        const int at = metadata.indexOf(mark);
        const QByteArray numbers = at < 0 ? QByteArray() : metadata.mid(at + mark.size(), 3);
        if (numbers.size() == 3) {
            toolkits.append(Version(uchar(numbers.at(1)), uchar(numbers.at(2))));
            break;
        }
    }
    return toolkits;
}

} // namespace

QString ToolkitVersion::Text() const
{
    const QString text = QString::number(generation);
    return release < 0 ? text : text + QLatin1Char('.') + QString::number(release);
}

LibraryFile LibraryFile::Read(const QString &path)
{
    LibraryFile library;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > std::numeric_limits<int>::max()) {
        return library;
    }
    const uchar *bytes = file.map(0, file.size());
    if (!bytes) {
        return library;
    }
    const QByteArray content =
        QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), int(file.size()));
    FileHeader header;
    if (!ReadRecord(content, 0, &header) || !IsLibraryForThisMachine(header)) {
        return library;
    }
    QList<Segment> segments;
    if (!ReadSegments(content, header, &segments) || !AreSegmentsInFile(content, segments)) {
        library.isCut = true;
        return library;
    }
    library.toolkits = NeededToolkits(content, segments);
    if (library.toolkits.isEmpty()) {
        library.toolkits = ToolkitsInMetadata(content, header);
    }
    return library;
}
