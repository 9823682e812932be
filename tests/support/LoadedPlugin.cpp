#include "LoadedPlugin.h"

#include <QLabel>
#include <QPixmap>
#include <QVariant>

typedef QObject *(*InstanceFunction)();

LoadedPlugin::LoadedPlugin() : m_library(FileName())
{
    if (!m_library.load()) {
        qFatal("%s", m_library.errorString().toLocal8Bit().constData());
    }
}

QString LoadedPlugin::FileName()
{
    return QLatin1String(BUILD_DIRECTORY "/plugins/PriorityPlugin/libPriorityPlugin.so");
}

QObject *LoadedPlugin::Root()
{
    const InstanceFunction instance =
        reinterpret_cast<InstanceFunction>(m_library.resolve("qt_plugin_instance"));
    return instance();
}

IUIPlugin *LoadedPlugin::Plugin()
{
    return qobject_cast<IUIPlugin *>(Root());
}

INotify *LoadedPlugin::Notification()
{
    return qobject_cast<INotify *>(Root());
}

QObject *LoadedPlugin::Service()
{
    QObject *service = nullptr;
    Plugin()->QueryInterface(4098, &service);
    return service;
}

ISettingUIPlugin *LoadedPlugin::Setting()
{
    return qobject_cast<ISettingUIPlugin *>(Service());
}

IPriorityPlugin *LoadedPlugin::Priority()
{
    return qobject_cast<IPriorityPlugin *>(Service());
}

PriorityList Entry(const QString &name, const QString &type)
{
    PriorityList entry;
    entry.name = name;
    entry.type = type;
    return entry;
}

QStringList AsTexts(const QList<PriorityList> &list)
{
    QStringList texts;
    for (int i = 0; i < list.size(); ++i) {
        texts.append(list.at(i).name + QLatin1Char('/') + list.at(i).type);
    }
    return texts;
}

QImage Picture(const QLabel *label)
{
    return label->property("pixmap").value<QPixmap>().toImage();
}
