#include "ListWatcher.h"

#include <QFileInfo>

namespace
{

// A file that is deleted and written anew changes several times in a few milliseconds.
const int pauseMilliseconds = 100;

} // namespace

ListWatcher::ListWatcher(const QString &file, QObject *parent) : QObject(parent), m_file(file)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SIGNAL(Changed()));
    if (m_file.isEmpty()) {
        return;
    }
    m_watcher.addPath(QFileInfo(m_file).absolutePath());
    if (QFileInfo(m_file).exists()) {
        m_watcher.addPath(m_file);
    }
    connect(&m_watcher, SIGNAL(fileChanged(QString)), this, SLOT(Follow()));
    connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(Follow()));
}

void ListWatcher::Follow()
{
    // A file that was removed is not watched any more, and one of the same name that comes later is another
    // file.
    if (QFileInfo(m_file).exists() && !m_watcher.files().contains(m_file)) {
        m_watcher.addPath(m_file);
    }
    m_pause.start();
}
