#ifndef AGENTSTART_H
#define AGENTSTART_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/**
 * The agent of this user: whether sessions start it, and the one that runs now. A session starts what has an
 * entry in the directory "autostart" of the user's configuration.
 */
class AgentStart
{
public:
    struct State {
        /** What is in the entry's file; null when there is none. */
        QByteArray entry;
        bool isRunning = false;

        /** Whether sessions start an agent by that entry. */
        bool IsOn() const;
    };

    /**
     * @param program      path of the dashboard, which is the agent, too.
     * @param libraryPath  where the agent looks for plug-ins; empty: where the program looks by itself.
     */
    AgentStart(const QString &program, const QString &libraryPath);

    State Now() const;

    /**
     * Writes the entry and starts an agent where none is running. False when the file can't be written, or is
     * somebody else's; then all is as it was.
     */
    bool TurnOn();

    /** Removes the entry and ends the agent. False when the file can't be removed; then all is as it was. */
    bool TurnOff();

    /** Brings back what Now told; so an agent that was running before goes on. */
    bool Restore(const State &state);

    /** Whether agents show an icon while they run; at first they don't. */
    static bool IsIconWanted();
    static void SetIconWanted(bool isWanted);

    /** Has an agent that is running begin anew, as it would be started now. */
    void Restart();

    /** Of the entry. */
    static QString FilePath();

private:
    QByteArray NewEntry() const;
    QStringList ProgramArguments() const;
    /** The process of the agent, which need not be one that was started here; 0 when there is none. */
    qint64 Running() const;
    void Start();
    void End();

    const QString m_program;
    const QString m_libraryPath;
    /** The process that Start made last, which may not have come as far as its lock. */
    qint64 m_started = 0;
};

#endif
