#include "FileWatcher.h"

#include "OrdinaryFile.h"

#include <QFileInfo>

namespace
{

// A file that is deleted and written anew changes several times in a few milliseconds.
const int pauseMilliseconds = 100;

// No list comes near this. A larger file is told of at each change, and not kept in memory.
const int largestFile = 256 * 1024 * 1024;

} // namespace

FileWatcher::FileWatcher(const QString &file, QObject *parent) : QObject(parent), m_file(file)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &FileWatcher::Compare);
    if (m_file.isEmpty()) {
        return;
    }
    m_watcher.addPath(QFileInfo(m_file).absolutePath());
    if (QFileInfo(m_file).exists()) {
        m_watcher.addPath(m_file);
    }
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatcher::Follow);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatcher::Follow);
    Note();
}

void FileWatcher::Note()
{
    ReadContent();
}

void FileWatcher::Compare()
{
    const bool wasThere = m_isThere;
    const QByteArray before = m_content;
    if (!ReadContent() || m_isThere != wasThere || m_content != before) {
        emit Changed();
    }
}

bool FileWatcher::ReadContent()
{
    m_content.clear();
    m_isThere = QFileInfo::exists(m_file);
    return !m_isThere || OrdinaryFile::Read(m_file, largestFile, &m_content);
}

void FileWatcher::Follow()
{
    // A file that was removed is not watched any more, and one of the same name that comes later is another
    // file.
    if (QFileInfo(m_file).exists() && !m_watcher.files().contains(m_file)) {
        m_watcher.addPath(m_file);
    }
    m_pause.start();
}
