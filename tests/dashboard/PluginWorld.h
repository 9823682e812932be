#ifndef PLUGINWORLD_H
#define PLUGINWORLD_H

#include <PluginHost.h>
#include <TemporaryDirectory.h>

#include <QDateTime>
#include <QScopedPointer>
#include <QString>

/** The real plug-ins over a fresh user data directory for each test. They live once in a process, so Load and
 * Shutdown are for all tests together. */
class PluginWorld
{
public:
    bool Load();
    void Shutdown();

    /** A new, empty user data directory, and English. */
    bool Begin();

    PluginHost *Plugins() const { return m_plugins.data(); }
    const TemporaryDirectory &Directory() const { return *m_directory; }

    /** With a trailing separator. */
    QString UserData() const { return m_directory->FilePath("priority-dashboard/"); }

    /** A file of the user data directory; its bytes. */
    void Write(const QString &name, const QByteArray &bytes) const;
    QByteArray Read(const QString &name) const;

    /** Whether the file could be made to look as if it was written then. */
    bool SetTime(const QString &name, const QDateTime &time) const;

    /** The list as the plug-in has it, and new entries on top of it, as tests write lists down. */
    static QString Stored();
    static void AddTop(const QString &entry);

private:
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<PluginHost> m_plugins;
};

#endif
