#include "BenchmarkHost.h"

#include <QtDebug>

namespace
{

QString PriorityClassId()
{
    return QLatin1String("D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05");
}

QList<KnownPlugin> PriorityOnly()
{
    KnownPlugin priority;
    priority.folder = QLatin1String("PriorityPlugin");
    priority.classId = PriorityClassId();
    return QList<KnownPlugin>() << priority;
}

} // namespace

BenchmarkHost::BenchmarkHost(const QString &libraryPath) : PluginHost(libraryPath, PriorityOnly())
{
    Load();
    if (Plugins().first().state != PluginReady) {
        qFatal("%s", ProblemText(Plugins().first()).toLocal8Bit().constData());
    }
    m_window.resize(440, 400);
    m_window.show();
}

BenchmarkHost::~BenchmarkHost()
{
    HidePage();
}

QObject *BenchmarkHost::GetPluginObject(const QString &classId, int interfaceNumber)
{
    if (classId == QLatin1String("7545FB07-0E7A-4F27-A449-872DB09C106D")) {
        return &wlan;
    }
    return PluginHost::GetPluginObject(classId, interfaceNumber);
}

QObject *BenchmarkHost::Service()
{
    return GetPluginObject(PriorityClassId(), 4098);
}

IPriorityPlugin *BenchmarkHost::Priority()
{
    return qobject_cast<IPriorityPlugin *>(Service());
}

ISettingUIPlugin *BenchmarkHost::Setting()
{
    return qobject_cast<ISettingUIPlugin *>(Service());
}

void BenchmarkHost::ShowPage()
{
    QRect place(0, 0, 420, 374);
    Setting()->ShowSettingDialog(&m_window, place);
}

void BenchmarkHost::HidePage()
{
    Setting()->HideSetting();
}
