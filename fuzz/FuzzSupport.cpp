#include "FuzzSupport.h"

#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QDir>

#include <cstdio>
#include <cstdlib>

namespace
{

void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

class Scene
{
public:
    Scene()
    {
        qInstallMessageHandler(Discard);
        StandInHost::Reset(m_directory.Path());
        StandInHost::libraryPath = m_directory.Path();
        QDir(m_directory.Path()).mkpath("plugins/PriorityPlugin");
    }

    const TemporaryDirectory &Directory() const { return m_directory; }

private:
    TemporaryDirectory m_directory;
};

const TemporaryDirectory &Directory()
{
    static const Scene scene;
    return scene.Directory();
}

Model::Text Units(const QString &text)
{
    Model::Text units;
    for (const QChar unit : text) {
        units += char16_t(unit.unicode());
    }
    return units;
}

} // namespace

void FuzzSupport::Write(const QString &name, const QByteArray &bytes)
{
    Directory().Write(name, bytes);
}

QByteArray FuzzSupport::Read(const QString &name)
{
    return Directory().Read(name);
}

QString FuzzSupport::Path(const QString &name)
{
    return Directory().FilePath(name);
}

void FuzzSupport::Require(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "violated: %s\n", what);
        std::abort();
    }
}

Model::Entry FuzzSupport::ModelEntry(const PriorityList &entry)
{
    return Model::Entry{Units(entry.name), Units(entry.type)};
}

Model::Entries FuzzSupport::ModelEntries(const QList<PriorityList> &list)
{
    Model::Entries entries;
    for (const PriorityList &entry : list) {
        entries.push_back(ModelEntry(entry));
    }
    return entries;
}

QByteArray FuzzSupport::Bytes(const Model::Document &document)
{
    return QByteArray(document.bytes.data(), int(document.bytes.size()));
}

qint64 FuzzSupport::LineCount(const QByteArray &bytes)
{
    return bytes.count('\n') + bytes.count('\r') + 1;
}

std::uint8_t InputReader::Byte()
{
    if (m_left == 0) {
        return 0;
    }
    --m_left;
    return *m_data++;
}

QString InputReader::Text()
{
    const std::uint8_t kind = Byte();
    QString text;
    for (int i = kind & 0x3f; i > 0 && !AtEnd(); --i) {
        ushort unit = Byte();
        if (kind & 0x40) {
            unit = ushort(unit << 8 | Byte());
        }
        text += QChar(unit);
    }
    return text;
}

PriorityList InputReader::Entry()
{
    PriorityList entry;
    entry.name = Text();
    const std::uint8_t kind = Byte();
    entry.type = kind & 1 ? Text() : QString::fromLatin1("1");
    return entry;
}
