#include "TraceLog.h"

#include <DashboardText.h>
#include <QDateTime>
#include <QFile>
#include <QMutexLocker>
#include <Terminal.h>

#include <cstdio>
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

TraceLog *currentLog = nullptr;

QMutex *CurrentLogLock()
{
    static QMutex lock;
    return &lock;
}

const mode_t ownerOnly = S_IRUSR | S_IWUSR;

char KindOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return 'D';
    case QtWarningMsg:
        return 'W';
    case QtCriticalMsg:
        return 'C';
    case QtFatalMsg:
        return 'F';
    default:
        return 'I';
    }
}

/** Asked of the C library, which keeps the time zone in mind: Qt looks at its file with every line. */
QByteArray Moment()
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const std::time_t second = now / 1000;
    std::tm local;
    localtime_r(&second, &local);
    char text[40];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S.", &local);
    std::snprintf(text + length, sizeof text - length, "%03d ", static_cast<int>(now % 1000));
    return text;
}

} // namespace

TraceLog::TraceLog(const QString &path)
    : m_path(path), m_handOutPending(false), m_file(-1), m_fileSize(0), m_fileFailed(false),
      m_failureTold(false)
{
    {
        QMutexLocker locker(CurrentLogLock());
        currentLog = this;
    }
    qInstallMessageHandler(Receive);
}

TraceLog::~TraceLog()
{
    // The handler stays: a message of another thread may be on its way to it.
    {
        QMutexLocker locker(CurrentLogLock());
        currentLog = nullptr;
    }
    CloseFile();
}

QStringList TraceLog::Lines() const
{
    QMutexLocker locker(&m_lock);
    return m_lines;
}

void TraceLog::Warn(const QString &text)
{
    QMutexLocker locker(CurrentLogLock());
    Terminal::Complain(text);
    if (currentLog) {
        currentLog->Add(QtWarningMsg, text);
    }
}

void TraceLog::Receive(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        Terminal::Complain(text);
    }
    QMutexLocker locker(CurrentLogLock());
    if (currentLog) {
        currentLog->Add(type, text);
        currentLog->FollowWarnings(type, text);
    } else if (type != QtDebugMsg && type != QtFatalMsg) {
        Terminal::Complain(text);
    }
}

/** Keeps warnings for the case that the program has to end, and tells them then. */
void TraceLog::FollowWarnings(QtMsgType type, const QString &text)
{
    QMutexLocker locker(&m_lock);
    if (type == QtFatalMsg) {
        for (int i = 0; i < m_warnings.size(); ++i) {
            Terminal::Complain(m_warnings.at(i));
        }
    } else if (type == QtWarningMsg || type == QtCriticalMsg) {
        m_warnings.append(text);
        if (m_warnings.size() > WarningLimit) {
            m_warnings.removeFirst();
        }
    }
}

void TraceLog::Add(QtMsgType type, const QString &text)
{
    QMutexLocker locker(&m_lock);
    // A name with line breaks in it must not look like lines of somebody else.
    QString line = text;
    line.replace(QLatin1Char('\r'), QLatin1Char(' '));
    line.replace(QLatin1Char('\n'), QLatin1String("\n    "));

    const QByteArray entry = Moment() + KindOf(type) + ' ' + line.toUtf8() + '\n';
    if (!m_fileFailed && !WriteToFile(entry)) {
        m_fileFailed = true;
    }
    Keep(line);
}

void TraceLog::Keep(const QString &line)
{
    m_lines.append(line);
    m_fresh.append(line);
    if (m_lines.size() > LineLimit) {
        m_lines.removeFirst();
    }
    if (m_fresh.size() > LineLimit) {
        m_fresh.removeFirst();
    }
    if (!m_handOutPending) {
        m_handOutPending = true;
        QMetaObject::invokeMethod(this, "HandOut", Qt::QueuedConnection);
    }
}

void TraceLog::HandOut()
{
    QStringList lines;
    {
        QMutexLocker locker(&m_lock);
        if (m_fileFailed && !m_failureTold) {
            // Said here and not where it happened: translations are to be had on one thread only.
            m_failureTold = true;
            Keep(DashboardText("IDS_LOG_NOT_WRITABLE")
                     .arg(m_path.isEmpty() ? QString::fromLatin1("dashboard.log") : m_path));
        }
        lines.swap(m_fresh);
        m_handOutPending = false;
    }
    emit LinesAdded(lines);
}

// The file is written with system calls only: what Qt has to say about a file would come back here
// as a message.
bool TraceLog::WriteToFile(const QByteArray &bytes)
{
    if (m_file < 0 && !OpenFile()) {
        return false;
    }
    if (m_fileSize > 0 && m_fileSize + bytes.size() > FileLimit) {
        CloseFile();
        const QByteArray path = QFile::encodeName(m_path);
        if (std::rename(path.constData(), (path + ".1").constData()) != 0 || !OpenFile()) {
            return false;
        }
    }
    ssize_t written = 0;
    for (int done = 0; done < bytes.size(); done += static_cast<int>(written)) {
        written = write(m_file, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written <= 0) {
            return false;
        }
    }
    m_fileSize += bytes.size();
    return true;
}

bool TraceLog::OpenFile()
{
    if (m_path.isEmpty()) {
        return false;
    }
    m_file = open(QFile::encodeName(m_path).constData(),
                  O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, ownerOnly);
    struct stat status;
    if (m_file < 0 || fstat(m_file, &status) != 0 || !S_ISREG(status.st_mode) ||
        fchmod(m_file, ownerOnly) != 0) {
        CloseFile();
        return false;
    }
    m_fileSize = status.st_size;
    return true;
}

void TraceLog::CloseFile()
{
    if (m_file >= 0) {
        close(m_file);
        m_file = -1;
    }
}
