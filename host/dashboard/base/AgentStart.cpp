#include "AgentStart.h"

#include "Settings.h"

#include <UserData.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QSysInfo>

#include <csignal>

namespace
{

const int longestEndMilliseconds = 2000;

QString IconKey()
{
    return QLatin1String("agent/icon");
}

QString AgentOption()
{
    return QLatin1String("--agent");
}

/** As an argument of "Exec" is quoted, in a value whose backslashes are doubled. */
QString Quoted(const QString &argument)
{
    QString quoted;
    for (const QChar character : argument) {
        if (QString::fromLatin1("\"`$\\").contains(character)) {
            quoted += QLatin1Char('\\');
        }
        quoted += character;
        if (character == QLatin1Char('%')) {
            quoted += character;
        }
    }
    quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

/** The value of a key in the group that counts; null when it has none. */
QByteArray ValueOf(const QByteArray &entry, const QByteArray &key)
{
    bool isInGroup = false;
    const QList<QByteArray> lines = entry.split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray text = line.trimmed();
        const int equals = static_cast<int>(text.indexOf('='));
        if (text.startsWith('[')) {
            isInGroup = text == "[Desktop Entry]";
        } else if (isInGroup && equals > 0 && text.left(equals).trimmed() == key) {
            return text.mid(equals + 1).trimmed();
        }
    }
    return QByteArray();
}

bool IsOfAgent(const QByteArray &entry)
{
    return ValueOf(entry, "Exec").split(' ').contains(AgentOption().toLatin1());
}

bool SetEntry(const QByteArray &entry)
{
    if (entry.isNull()) {
        return !QFileInfo::exists(AgentStart::FilePath()) || QFile::remove(AgentStart::FilePath());
    }
    QSaveFile file(AgentStart::FilePath());
    return QDir().mkpath(QFileInfo(file.fileName()).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(entry) == entry.size() && file.commit();
}

/** Whether the process is there and an agent of this program, and not a later one with the same number. */
bool IsAgent(qint64 process, const QString &program)
{
    const QString directory = QString::fromLatin1("/proc/%1/").arg(process);
    QString path = QFile::symLinkTarget(directory + QLatin1String("exe"));
    // An update has put another file in its place.
    const QString mark = QLatin1String(" (deleted)");
    if (path.endsWith(mark)) {
        path.chop(mark.size());
    }
    QFile arguments(directory + QLatin1String("cmdline"));
    return process > 1 && path == QFileInfo(program).canonicalFilePath() &&
           arguments.open(QIODevice::ReadOnly) &&
           arguments.readAll().split('\0').contains(AgentOption().toLatin1());
}

QString LockPath()
{
    return UserData::FilePath(QLatin1String("agent.use"));
}

} // namespace

bool AgentStart::State::IsOn() const
{
    return IsOfAgent(entry) && ValueOf(entry, "Hidden") != "true" &&
           ValueOf(entry, "X-GNOME-Autostart-enabled") != "false";
}

AgentStart::AgentStart(const QString &program, const QString &libraryPath)
    : m_program(program), m_libraryPath(libraryPath)
{
}

AgentStart::State AgentStart::Now() const
{
    State state;
    QFile file(FilePath());
    if (file.open(QIODevice::ReadOnly)) {
        state.entry = file.readAll();
    }
    state.isRunning = Running() != 0;
    return state;
}

bool AgentStart::TurnOn()
{
    const QByteArray entry = Now().entry;
    const bool isOthers = !entry.isEmpty() && !IsOfAgent(entry);
    if (isOthers || !SetEntry(NewEntry())) {
        return false;
    }
    Start();
    return true;
}

bool AgentStart::TurnOff()
{
    return Restore(State());
}

bool AgentStart::Restore(const State &state)
{
    if (!SetEntry(state.entry)) {
        return false;
    }
    if (state.isRunning) {
        Start();
    } else {
        End();
    }
    return true;
}

bool AgentStart::IsIconWanted()
{
    return Settings::Read(IconKey()).toBool();
}

void AgentStart::SetIconWanted(bool isWanted)
{
    Settings::Write(IconKey(), isWanted);
}

void AgentStart::Restart()
{
    if (Running() != 0) {
        End();
        Start();
    }
}

QString AgentStart::FilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/autostart/priority-dashboard-agent.desktop");
}

QByteArray AgentStart::NewEntry() const
{
    QString command = Quoted(m_program) + QLatin1Char(' ') + AgentOption();
    if (!m_libraryPath.isEmpty()) {
        command += QLatin1String(" --library-path ") + Quoted(m_libraryPath);
    }
    return "[Desktop Entry]\nType=Application\nName=Network priority\nExec=" + command.toUtf8() + "\n";
}

QStringList AgentStart::ProgramArguments() const
{
    QStringList arguments(AgentOption());
    if (!m_libraryPath.isEmpty()) {
        arguments << QLatin1String("--library-path") << m_libraryPath;
    }
    return arguments;
}

qint64 AgentStart::Running() const
{
    qint64 process = 0;
    QString computer;
    QString name;
    const bool isHere = QLockFile(LockPath()).getLockInfo(&process, &computer, &name) &&
                        computer == QSysInfo::machineHostName() && IsAgent(process, m_program);
    return isHere ? process : 0;
}

void AgentStart::Start()
{
    if (Running() != 0) {
        return;
    }
    QProcess process;
    process.setProgram(m_program);
    process.setArguments(ProgramArguments());
    process.setWorkingDirectory(QDir::homePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (!process.startDetached(&m_started)) {
        qWarning("%s can't be started as an agent", m_program.toLocal8Bit().constData());
    }
}

void AgentStart::End()
{
    for (const qint64 process : {m_started, Running()}) {
        if (IsAgent(process, m_program)) {
            kill(static_cast<pid_t>(process), SIGTERM);
        }
    }
    m_started = 0;
    // Whoever is started next is not to meet this one.
    QLockFile lock(LockPath());
    lock.setStaleLockTime(0);
    if (!lock.tryLock(longestEndMilliseconds) && lock.error() == QLockFile::LockFailedError) {
        qWarning("the agent has been asked to end and has not ended yet");
    }
}
