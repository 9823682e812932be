#ifndef LOADEDPLUGIN_H
#define LOADEDPLUGIN_H

#include <INotify.h>
#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>
#include <IUIPlugin.h>

#include <QImage>
#include <QLibrary>
#include <QStringList>

class QLabel;

/** The plug-in library, loaded the way a host loads it. */
class LoadedPlugin
{
public:
    /** Loads the library; the root object is made on the first call of Root. */
    LoadedPlugin();

    QObject *Root();
    IUIPlugin *Plugin();
    INotify *Notification();

    /** The service as a host obtains it; null when the root object hands out none. */
    QObject *Service();
    ISettingUIPlugin *Setting();
    IPriorityPlugin *Priority();

    static QString FileName();

private:
    Q_DISABLE_COPY(LoadedPlugin)

    QLibrary m_library;
};

/** Lists for comparisons: "name/type" each. */
PriorityList Entry(const QString &name, const QString &type = QLatin1String("1"));
QStringList AsTexts(const QList<PriorityList> &list);

/** A label's picture as an image; null when it has none. */
QImage Picture(const QLabel *label);

#endif
