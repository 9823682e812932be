#include "DirectoryLock.h"

#include <QElapsedTimer>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace
{

const useconds_t pauseMicroseconds = 10000;

bool IsHeldByOthers(int directory, int operation)
{
    int result = 0;
    do {
        result = flock(directory, operation | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result != 0 && errno == EWOULDBLOCK;
}

} // namespace

DirectoryLock::DirectoryLock(const QString &directory, Use use, int waitMilliseconds)
    : m_directory(open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      m_isRefused(false)
{
    if (m_directory < 0) {
        return;
    }
    const int operation = use == Reading ? LOCK_SH : LOCK_EX;
    QElapsedTimer waiting;
    waiting.start();
    while (IsHeldByOthers(m_directory, operation)) {
        if (waiting.hasExpired(waitMilliseconds)) {
            m_isRefused = true;
            return;
        }
        usleep(pauseMicroseconds);
    }
}

DirectoryLock::~DirectoryLock()
{
    if (m_directory >= 0) {
        close(m_directory);
    }
}
