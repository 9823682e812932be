#include "ModuleHost.h"

#include <Change.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Installation.h>
#include <PluginObjects.h>
#include <UserData.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace
{

ModuleHost *host = nullptr;

/** Where the dashboard lies, seen from the file of this module. */
QString Programs()
{
    Dl_info info;
    if (dladdr(&host, &info) == 0) {
        return QString();
    }
    const QDir module = QFileInfo(QFile::decodeName(info.dli_fname)).absoluteDir();
    const QString built = QDir::cleanPath(module.filePath(QLatin1String(MODULE_BUILT_PROGRAMS)));
    const QString installed = QDir::cleanPath(module.filePath(QLatin1String(MODULE_PROGRAMS)));
    const QString program = QLatin1String("/priority-dashboard");
    return !QFile::exists(installed + program) && QFile::exists(built + program) ? built : installed;
}

/** The texts are in the language of System Settings, whatever the dashboard's own window speaks. */
QString Prepare(const QString &programs)
{
    HostControl::SetPluginLibraryPath(Installation::LibraryPath(programs));
    HostControl::SetLanguageDirectory(Installation::LanguageDirectory(programs));
    HostControl::SetLanguage(DashboardLanguage::Choose(QString(), QString(), DashboardLanguage::OfSystem(),
                                                       HostControl::LanguageNames()));
    return Installation::LibraryPath(programs);
}

} // namespace

ModuleHost *ModuleHost::Get()
{
    if (!host) {
        host = new ModuleHost;
        // Before the widgets end, some of which are the plug-ins'.
        qAddPostRoutine(&ModuleHost::End);
    }
    return host;
}

ModuleHost::ModuleHost()
    : m_programs(Programs()), m_plugins(Prepare(m_programs), PluginHost::KnownPlugins(WlanNetworkManager)),
      m_keeper((m_plugins.Load(), UserData::Directory()), &m_source, nullptr),
      m_names(UserData::FilePath(ProfileNames::FileName()), &m_keeper, nullptr),
      m_watcher(m_keeper.ListPath(), nullptr)
{
    connect(&m_watcher, &FileWatcher::Changed, this, &ModuleHost::FollowList);
}

void ModuleHost::End()
{
    emit host->Ending();
    host->m_keeper.Follow();
    host->m_plugins.Shutdown();
    delete host;
    host = nullptr;
}

bool ModuleHost::IsRightToLeft() const
{
    return HostControl::IsRightToLeft(Change::GetLangName());
}

void ModuleHost::FollowList()
{
    m_watcher.Note();
    if (!m_keeper.IsBusy()) {
        m_keeper.Follow();
    }
}
