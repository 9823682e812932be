#include "TemporaryDirectory.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <cstdlib>

namespace
{

void RemoveTree(const QString &directory)
{
    // Tests take write permission away; a tree is removed whatever they left.
    QFile::setPermissions(directory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QFileInfoList entries =
        QDir(directory).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (int i = 0; i < entries.size(); ++i) {
        const QFileInfo &entry = entries.at(i);
        if (entry.isDir() && !entry.isSymLink()) {
            RemoveTree(entry.absoluteFilePath());
        } else {
            QFile::remove(entry.absoluteFilePath());
        }
    }
    QDir().rmdir(directory);
}

} // namespace

TemporaryDirectory::TemporaryDirectory()
{
    QByteArray pattern = QFile::encodeName(QDir::tempPath() + QLatin1String("/priority-test-XXXXXX"));
    if (!mkdtemp(pattern.data())) {
        qFatal("no temporary directory can be made");
    }
    m_path = QFile::decodeName(pattern);
}

TemporaryDirectory::~TemporaryDirectory()
{
    RemoveTree(m_path);
}

void TemporaryDirectory::Write(const QString &name, const QByteArray &bytes) const
{
    QFile file(FilePath(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size()) {
        qFatal("a test file can't be written");
    }
}

QByteArray TemporaryDirectory::Read(const QString &name) const
{
    QFile file(FilePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
}
