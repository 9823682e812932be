#ifndef MODULEHOST_H
#define MODULEHOST_H

#include <FileWatcher.h>
#include <ListKeeper.h>
#include <PluginHost.h>
#include <PluginList.h>
#include <ProfileNames.h>

#include <QObject>

/**
 * The host of the plug-ins in the process of System Settings. These live once in a process and can't be
 * loaded again, so it stays from the first module to the end of the program.
 */
class ModuleHost : public QObject
{
    Q_OBJECT

public:
    static ModuleHost *Get();

    PluginHost *Plugins() { return &m_plugins; }
    ListKeeper *Keeper() { return &m_keeper; }
    QString Program() const { return m_programs + QLatin1String("/priority-dashboard"); }

    /** Whether the language of the texts reads right to left. */
    bool IsRightToLeft() const;

    /** Reads the list, and tells when it becomes another one than that. */
    void FollowList();

signals:
    /** The plug-ins are about to be taken down: pages have to be taken out. */
    void Ending();

private:
    ModuleHost();
    static void End();

    const QString m_programs;
    PluginHost m_plugins;
    PluginList m_source;
    ListKeeper m_keeper;
    ProfileNames m_names;
    FileWatcher m_watcher;
};

#endif
