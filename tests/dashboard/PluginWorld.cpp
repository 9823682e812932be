#include "PluginWorld.h"

#include "Lists.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <PluginObjects.h>

#include <QDir>
#include <QFile>

#include <sys/time.h>

bool PluginWorld::Load()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    HostControl::SetPluginLibraryPath(BUILD_DIRECTORY);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    m_plugins.reset(new PluginHost(BUILD_DIRECTORY, PluginHost::KnownPlugins(WlanStored)));
    m_plugins->Load();
    return m_plugins->Plugins().at(0).state == PluginReady && m_plugins->Plugins().at(1).state == PluginReady;
}

void PluginWorld::Shutdown()
{
    m_plugins->Shutdown();
}

bool PluginWorld::Begin()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    HostControl::SetPluginContainer(m_plugins.data());
    return QDir().mkpath(UserData()) && DashboardLanguage::Apply("en");
}

void PluginWorld::Write(const QString &name, const QByteArray &bytes) const
{
    m_directory->Write("priority-dashboard/" + name, bytes);
}

QByteArray PluginWorld::Read(const QString &name) const
{
    return m_directory->Read("priority-dashboard/" + name);
}

bool PluginWorld::SetTime(const QString &name, const QDateTime &time) const
{
    const time_t seconds = static_cast<time_t>(time.toMSecsSinceEpoch() / 1000);
    const struct timeval times[2] = {{seconds, 0}, {seconds, 0}};
    return utimes(QFile::encodeName(UserData() + name).constData(), times) == 0;
}

QString PluginWorld::Stored()
{
    QList<PriorityList> entries;
    PluginObjects::Priority()->GetPriorityList(&entries);
    return AsText(entries);
}

void PluginWorld::AddTop(const QString &entry)
{
    PluginObjects::Priority()->AddTopPriority(Listed(entry).first());
}
