#include "FuzzSupport.h"

#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <ToolkitCompat.h>

#include <QDir>

#include <cstdio>
#include <cstdlib>

namespace
{

void Discard(QtMsgType, const QString &) {}

class Scene
{
public:
    Scene()
    {
        ToolkitCompat::InstallTextMessageHandler(Discard);
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
