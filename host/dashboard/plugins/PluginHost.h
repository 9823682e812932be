#ifndef PLUGINHOST_H
#define PLUGINHOST_H

#include "WlanChoice.h"

#include <IPluginContainer.h>

#include <QList>
#include <QPointer>
#include <QString>

class IBasePlugin;

/** A plug-in that the dashboard knows: what it is called, and where its library lies. */
struct KnownPlugin {
    /** Folder <library path>/plugins/<folder> with the library lib<folder>.so in it. */
    QString folder;
    /** Upper-case UUID text without braces. */
    QString classId;
    /** Resource id of what the user calls it. */
    QString titleId;
    /** Whether it has a page in the settings dialog; that is the list's. */
    bool hasSettingsPage = false;
    /** Resource id of what the main window says while it is ready; empty for nothing. */
    QString noteId;
};

/** How far the loading of a plug-in came. */
enum PluginState {
    PluginNotLoaded,
    PluginMissing,        /**< There is no such file. */
    PluginCut,            /**< The file is a library, but only the first part of it. */
    PluginOtherToolkit,   /**< It was built for another generation of Qt. */
    PluginNotALibrary,    /**< The file can't be loaded as a library. */
    PluginNoVerification, /**< The library doesn't say what it was built for. */
    PluginRefused,        /**< It was built for something else. */
    PluginNoEntryPoint,   /**< It has no function that hands out the root object. */
    PluginNullInstance,   /**< That function handed out nothing. */
    PluginNotAPlugin,     /**< The root object is not an IBasePlugin. */
    PluginInitFailed,     /**< The plug-in says that it can't work. */
    PluginReady,
    PluginClosed /**< It was ready and was taken down at shutdown. */
};

/**
 * Loads the plug-ins, hands out their objects, and takes them down in the end.
 *
 * A plug-in that doesn't get ready is not asked for anything and is no reason for others not to be loaded.
 */
class PluginHost : public IPluginContainer
{
public:
    struct Plugin {
        KnownPlugin known;
        QString file;
        PluginState state = PluginNotLoaded;
        /** What Qt said of the file, or the version of Qt or the verification text that was found. */
        QString detail;
        QPointer<QObject> root;
        IBasePlugin *base = nullptr;
    };

    /** @param libraryPath  the directory with the folder "plugins" in it, without a trailing separator. */
    PluginHost(const QString &libraryPath, const QList<KnownPlugin> &known);

    /** Shuts down, unless that was done. */
    ~PluginHost() override;

    static QList<KnownPlugin> KnownPlugins(WlanChoice wlan);

    /** The one of them that keeps the list. */
    static KnownPlugin PriorityPlugin();

    /** The text that a plug-in has to answer with. */
    static QString VerificationText();

    /** Loads every plug-in, in order; from then on this is the container that plug-ins see. Call it once. */
    void Load();

    /** Takes the plug-ins down, the last loaded first. The container is gone afterwards. */
    void Shutdown();

    QList<Plugin> Plugins() const { return m_plugins; }

    /** Why a plug-in is not ready, in plain words of the current language; empty for one that is ready. */
    static QString ProblemText(const Plugin &plugin);

    /** Sends an event to every ready plug-in that wants events. */
    void Notify(unsigned int event);

    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override;

private:
    Q_DISABLE_COPY(PluginHost)

    /** The ready plug-in of that class id, or null. */
    const Plugin *FindReady(const QString &classId) const;

    const QString m_libraryPath;
    QList<Plugin> m_plugins;
};

#endif
