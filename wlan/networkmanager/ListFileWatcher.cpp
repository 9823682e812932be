#include "ListFileWatcher.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace
{

// The file is deleted and written anew for every change, which is several changes for whoever watches.
const int pauseMilliseconds = 100;

} // namespace

CListFileWatcher::CListFileWatcher(const QString &file, QObject *parent) : QObject(parent), m_file(file)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(Compare()));
    connect(&m_watcher, SIGNAL(fileChanged(QString)), this, SLOT(Look()));
    connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(Look()));
    m_watcher.addPath(QFileInfo(m_file).absolutePath());
    if (QFileInfo(m_file).exists()) {
        m_watcher.addPath(m_file);
    }
    m_content = Content();
}

bool CListFileWatcher::HasEntries() const
{
    return Content().contains("<item");
}

void CListFileWatcher::Look()
{
    // A file that was removed is not watched any more, and one of the same name that comes later is another
    // file.
    if (QFileInfo(m_file).exists() && !m_watcher.files().contains(m_file)) {
        m_watcher.addPath(m_file);
    }
    m_pause.start();
}

void CListFileWatcher::Compare()
{
    const QByteArray content = Content();
    if (content != m_content) {
        m_content = content;
        emit Changed();
    }
}

QByteArray CListFileWatcher::Content() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
