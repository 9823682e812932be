#include "LibraryFile.h"

#include <QFile>
#include <QJsonObject>
#include <QPluginLoader>
#include <QRegularExpression>

#include <link.h>

#include <cstring>

namespace
{

/** More than any library has before the names of those that it needs. */
const qint64 mostBytes = 256 << 20;

} // namespace

bool LibraryFile::IsCut(const QString &path)
{
    QFile file(path);
    ElfW(Ehdr) header;
    if (!file.open(QIODevice::ReadOnly) ||
        file.read(reinterpret_cast<char *>(&header), sizeof(header)) != qint64(sizeof(header)) ||
        std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_phentsize != sizeof(ElfW(Phdr))) {
        return false;
    }
    for (int i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        const quint64 place = header.e_phoff + quint64(i) * sizeof(segment);
        if (!file.seek(qint64(place)) ||
            file.read(reinterpret_cast<char *>(&segment), sizeof(segment)) != qint64(sizeof(segment))) {
            return true;
        }
        const quint64 size = quint64(file.size());
        if (segment.p_type == PT_LOAD &&
            (segment.p_offset > size || segment.p_filesz > size - segment.p_offset)) {
            return true;
        }
    }
    return false;
}

QString LibraryFile::OtherQt(const QString &path)
{
    const int version = QPluginLoader(path).metaData().value(QLatin1String("version")).toInt();
    if (version >> 16 == QT_VERSION_MAJOR) {
        return QString();
    }
    if (version >> 16 != 0) {
        return QString::fromLatin1("%1.%2").arg(version >> 16).arg((version >> 8) & 0xff);
    }
    // Metadata of some other Qt can't be read, and a library may have none: so the libraries that it needs.
    QFile file(path);
    const qint64 size = file.open(QIODevice::ReadOnly) ? qMin(file.size(), mostBytes) : 0;
    const uchar *bytes = size > 0 ? file.map(0, size) : nullptr;
    const QString content =
        bytes ? QString::fromLatin1(reinterpret_cast<const char *>(bytes), int(size)) : QString();
    static const QRegularExpression needed(QLatin1String("libQt[0-9]*(?:Core|Gui|Widgets)\\.so\\.([0-9]+)"));
    for (QRegularExpressionMatchIterator found = needed.globalMatch(content); found.hasNext();) {
        QString generation = found.next().captured(1);
        if (generation.toInt() != QT_VERSION_MAJOR) {
            return generation;
        }
    }
    return QString();
}
