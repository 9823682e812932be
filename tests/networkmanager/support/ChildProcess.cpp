#include "ChildProcess.h"

#include <QFileInfo>

#include <csignal>

ChildProcess::ChildProcess() : m_isFrozen(false) {}

ChildProcess::~ChildProcess()
{
    End();
}

bool ChildProcess::Begin(const QString &program, const QStringList &arguments, const QString &logFile)
{
    setStandardOutputFile(logFile, QIODevice::Append);
    setStandardErrorFile(logFile, QIODevice::Append);
    start("setpriv", QStringList() << "--pdeathsig"
                                   << "KILL" << program << arguments);
    return waitForStarted();
}

void ChildProcess::End()
{
    if (state() == QProcess::NotRunning) {
        return;
    }
    Thaw();
    terminate();
    if (!waitForFinished(10000)) {
        Kill();
    }
}

void ChildProcess::Kill()
{
    kill();
    waitForFinished();
    m_isFrozen = false;
}

void ChildProcess::Freeze()
{
    ::kill(static_cast<pid_t>(processId()), SIGSTOP);
    m_isFrozen = true;
}

void ChildProcess::Thaw()
{
    if (m_isFrozen) {
        ::kill(static_cast<pid_t>(processId()), SIGCONT);
        m_isFrozen = false;
    }
}

QString ChildProcess::Find(const QString &program)
{
    const char *const directories[] = {"/usr/sbin/", "/usr/bin/", TEST_TOOLS_DIRECTORY "/usr/sbin/",
                                       TEST_TOOLS_DIRECTORY "/usr/bin/"};
    for (const char *directory : directories) {
        const QString path = QLatin1String(directory) + program;
        if (QFileInfo(path).isExecutable()) {
            return path;
        }
    }
    return QString();
}
