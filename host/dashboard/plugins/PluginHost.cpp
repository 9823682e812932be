#include "PluginHost.h"

#include "LibraryFile.h"

#include <ContractNumbers.h>
#include <DashboardText.h>
#include <HostControl.h>
#include <IBasePlugin.h>
#include <INotify.h>
#include <IUIPlugin.h>
#include <Startup.h>

#include <QFileInfo>
#include <QLibrary>

namespace
{

typedef const char *(*VerificationFunction)();
typedef QObject *(*InstanceFunction)();

IBasePlugin *BaseOf(QObject *root)
{
    if (IUIPlugin *plugin = qobject_cast<IUIPlugin *>(root)) {
        return plugin;
    }
    return qobject_cast<IBasePlugin *>(root);
}

/** What keeps the file from being loaded at all; PluginNotLoaded when nothing does. */
PluginState ObstacleIn(const QString &file, QString *detail)
{
    if (LibraryFile::IsCut(file)) {
        return PluginCut;
    }
    *detail = LibraryFile::OtherQt(file);
    return detail->isNull() ? PluginNotLoaded : PluginOtherToolkit;
}

/**
 * Takes library's root object out of it. The library stays in the process from the moment its instance
 * function has run: Qt may then hold its meta-objects, registered types and posted events, and would
 * call into nothing when it were unloaded. Before that, none of its code is known to anybody, and it is
 * unloaded.
 */
PluginState Open(QLibrary *library, QObject **root, QString *detail)
{
    const VerificationFunction verification =
        reinterpret_cast<VerificationFunction>(library->resolve("qt_plugin_query_verification_data"));
    if (!verification) {
        return PluginNoVerification;
    }
    *detail = QString::fromLatin1(verification());
    if (*detail != PluginHost::VerificationText()) {
        return PluginRefused;
    }
    const InstanceFunction instance =
        reinterpret_cast<InstanceFunction>(library->resolve("qt_plugin_instance"));
    if (!instance) {
        return PluginNoEntryPoint;
    }
    *root = instance();
    return *root ? PluginReady : PluginNullInstance;
}

void LoadPlugin(PluginHost::Plugin *plugin)
{
    const QFileInfo info(plugin->file);
    if (!info.exists()) {
        plugin->state = PluginMissing;
        return;
    }
    const PluginState obstacle = info.isFile() ? ObstacleIn(plugin->file, &plugin->detail) : PluginNotLoaded;
    if (obstacle != PluginNotLoaded) {
        plugin->state = obstacle;
        return;
    }
    QLibrary library(plugin->file);
    if (!info.isFile() || !library.load()) {
        plugin->state = PluginNotALibrary;
        plugin->detail = library.errorString();
        return;
    }
    QObject *root = nullptr;
    plugin->state = Open(&library, &root, &plugin->detail);
    if (!root) {
        if (plugin->state != PluginNullInstance) {
            library.unload();
        }
        return;
    }
    IBasePlugin *base = BaseOf(root);
    if (!base || !base->Init()) {
        plugin->state = base ? PluginInitFailed : PluginNotAPlugin;
        delete root;
        return;
    }
    plugin->root = root;
    plugin->base = base;
}

/** A verification text has line feeds in it; shown in one line. */
QString InOneLine(QString text)
{
    text.replace(QLatin1Char('\n'), QLatin1String(", "));
    return text;
}

} // namespace

PluginHost::PluginHost(const QString &libraryPath, const QList<KnownPlugin> &known)
    : m_libraryPath(libraryPath)
{
    for (int i = 0; i < known.size(); ++i) {
        Plugin plugin;
        plugin.known = known.at(i);
        plugin.file = QString::fromLatin1("%1/plugins/%2/lib%2.so").arg(m_libraryPath, plugin.known.folder);
        m_plugins.append(plugin);
    }
}

PluginHost::~PluginHost()
{
    Shutdown();
}

KnownPlugin PluginHost::PriorityPlugin()
{
    KnownPlugin priority;
    priority.folder = QLatin1String("PriorityPlugin");
    priority.classId = QLatin1String(priorityClassId);
    priority.titleId = QLatin1String("IDS_PLUGIN_PRIORITY");
    priority.hasSettingsPage = true;
    return priority;
}

QList<KnownPlugin> PluginHost::KnownPlugins(WlanChoice wlan)
{
    KnownPlugin networkManager;
    networkManager.folder = QLatin1String("WLANNetworkManager");
    networkManager.classId = QLatin1String(wlanClassId);
    networkManager.titleId = QLatin1String("IDS_PLUGIN_WLAN_NETWORKMANAGER");
    networkManager.noteId = QLatin1String("IDS_NOTE_NETWORKMANAGER");

    KnownPlugin stored;
    stored.folder = QLatin1String("WLANStored");
    stored.classId = networkManager.classId;
    stored.titleId = QLatin1String("IDS_PLUGIN_WLAN_STORED");
    stored.noteId = QLatin1String("IDS_NOTE_STORED");

    QList<KnownPlugin> known;
    known << PriorityPlugin();
    known << (wlan == WlanStored ? stored : networkManager);
    return known;
}

QString PluginHost::VerificationText()
{
    return QLatin1String("pattern=QT_PLUGIN_VERIFICATION_DATA\n"
                         "version=4.6.2\n"
                         "debug=false\n"
                         "buildkey=macosx macx g++-4 full-config");
}

void PluginHost::Load()
{
    HostControl::SetPluginContainer(this);
    for (int i = 0; i < m_plugins.size(); ++i) {
        LoadPlugin(&m_plugins[i]);
    }
}

void PluginHost::Shutdown()
{
    for (int i = m_plugins.size() - 1; i >= 0; --i) {
        Plugin &plugin = m_plugins[i];
        if (plugin.state == PluginReady) {
            // Closed first, so that nobody gets an object of a plug-in that is being taken down.
            plugin.state = PluginClosed;
            plugin.base->OnDestroy();
        }
    }
    for (int i = m_plugins.size() - 1; i >= 0; --i) {
        Plugin &plugin = m_plugins[i];
        delete plugin.root.data();
        plugin.base = nullptr;
    }
    if (Startup::GetPluginContainer() == this) {
        HostControl::SetPluginContainer(nullptr);
    }
}

const PluginHost::Plugin *PluginHost::FindReady(const QString &classId) const
{
    for (int i = 0; i < m_plugins.size(); ++i) {
        const Plugin &plugin = m_plugins.at(i);
        if (plugin.state == PluginReady && plugin.known.classId.compare(classId, Qt::CaseInsensitive) == 0) {
            return &plugin;
        }
    }
    return nullptr;
}

QString PluginHost::ProblemText(const Plugin &plugin)
{
    switch (plugin.state) {
    case PluginNotLoaded:
    case PluginClosed:
        return DashboardText("IDS_LOAD_NOT_LOADED").arg(plugin.file);
    case PluginMissing:
        return DashboardText("IDS_LOAD_MISSING").arg(plugin.file);
    case PluginCut:
        return DashboardText("IDS_LOAD_CUT").arg(plugin.file);
    case PluginOtherToolkit:
        return DashboardText("IDS_LOAD_OTHER_TOOLKIT")
            .arg(plugin.file, plugin.detail, QLatin1String(qVersion()));
    case PluginNotALibrary:
        return DashboardText("IDS_LOAD_NOT_A_LIBRARY").arg(plugin.file, plugin.detail);
    case PluginNoVerification:
        return DashboardText("IDS_LOAD_NO_VERIFICATION").arg(plugin.file);
    case PluginRefused:
        return DashboardText("IDS_LOAD_REFUSED")
            .arg(plugin.file, InOneLine(plugin.detail), InOneLine(VerificationText()));
    case PluginNoEntryPoint:
        return DashboardText("IDS_LOAD_NO_ENTRY_POINT").arg(plugin.file);
    case PluginNullInstance:
        return DashboardText("IDS_LOAD_NULL_INSTANCE").arg(plugin.file);
    case PluginNotAPlugin:
        return DashboardText("IDS_LOAD_NOT_A_PLUGIN").arg(plugin.file);
    case PluginInitFailed:
        return DashboardText("IDS_LOAD_INIT_FAILED").arg(plugin.file);
    case PluginReady:
        break;
    }
    return QString();
}

void PluginHost::Notify(unsigned int event)
{
    for (int i = 0; i < m_plugins.size(); ++i) {
        const Plugin &plugin = m_plugins.at(i);
        INotify *receiver =
            plugin.state == PluginReady ? qobject_cast<INotify *>(plugin.root.data()) : nullptr;
        if (receiver) {
            receiver->Notify(event, 0, 0);
        }
    }
}

QObject *PluginHost::GetPluginObject(const QString &classId, int interfaceNumber)
{
    const Plugin *plugin = FindReady(classId);
    QObject *object = nullptr;
    return plugin && plugin->base->QueryInterface(interfaceNumber, &object) ? object : nullptr;
}
