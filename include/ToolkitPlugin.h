#ifndef TOOLKITPLUGIN_H
#define TOOLKITPLUGIN_H

/*
 * The entry points of a plug-in's library, in the way of the Qt that it is built for. A plug-in's root
 * class says TOOLKIT_PLUGIN_METADATA behind Q_OBJECT, and one source file says TOOLKIT_EXPORT_PLUGIN:
 *
 *     class CPriorityPlugin : public QObject, public IUIPlugin
 *     {
 *         Q_OBJECT
 *         Q_INTERFACES(IBasePlugin IUIPlugin)
 *         TOOLKIT_PLUGIN_METADATA("com.torvik.netquillforge.plugin.IUIPlugin")
 *         ...
 *
 *     TOOLKIT_EXPORT_PLUGIN(CPriorityPlugin)
 *
 * This gives the library qt_plugin_instance, which makes the root object when it is first asked for and hands
 * out the same one until it is deleted, and qt_plugin_query_verification_data with the text that hosts
 * compare. From Qt 5 on, the first comes with Qt's own metadata, by which QPluginLoader loads the
 * library too.
 */

#include <QtPlugin>

#if QT_VERSION < 0x050000
#include <QPointer>
#endif

/** What a library has to answer to be taken by a host, whatever toolkit it is built for. */
#define TOOLKIT_VERIFICATION_TEXT                                                                            \
    "pattern=QT_PLUGIN_VERIFICATION_DATA\n"                                                                  \
    "version=4.6.2\n"                                                                                        \
    "debug=false\n"                                                                                          \
    "buildkey=macosx macx g++-4 full-config"

#define TOOLKIT_EXPORT_VERIFICATION                                                                          \
    extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data()                                 \
    {                                                                                                        \
        return TOOLKIT_VERIFICATION_TEXT;                                                                    \
    }

#if QT_VERSION >= 0x050000
#define TOOLKIT_PLUGIN_METADATA(identifier) Q_PLUGIN_METADATA(IID identifier)
#define TOOLKIT_EXPORT_PLUGIN(PluginClass) TOOLKIT_EXPORT_VERIFICATION
#else
#define TOOLKIT_PLUGIN_METADATA(identifier)
#define TOOLKIT_EXPORT_PLUGIN(PluginClass)                                                                   \
    TOOLKIT_EXPORT_VERIFICATION                                                                              \
    extern "C" Q_DECL_EXPORT QObject *qt_plugin_instance()                                                   \
    {                                                                                                        \
        static QPointer<QObject> instance;                                                                   \
        if (!instance) {                                                                                     \
            instance = new PluginClass;                                                                      \
        }                                                                                                    \
        return instance;                                                                                     \
    }
#endif

#endif
