#include "GuestNetwork.h"

#include <IPluginContainer.h>
#include <IPriorityPlugin.h>
#include <Startup.h>

#include <QPointer>

extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data()
{
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\nbuildkey=macosx macx g++-4 full-config";
}

extern "C" Q_DECL_EXPORT QObject *qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance) {
        instance = new GuestNetwork;
    }
    return instance;
}

namespace
{

QObject *PriorityService()
{
    IPluginContainer *container = Startup::GetPluginContainer();
    return container ? container->GetPluginObject(QLatin1String(priorityClassId), PriorityInterface) : nullptr;
}

PriorityList WifiEntry(const char *name)
{
    PriorityList entry;
    entry.name = QLatin1String(name);
    entry.type = QLatin1String("1");
    return entry;
}

bool Contains(const QList<PriorityList> &list, const PriorityList &wanted)
{
    for (const PriorityList &entry : list) {
        if (entry.name == wanted.name && entry.type == wanted.type) {
            return true;
        }
    }
    return false;
}

} // namespace

bool GuestNetwork::Init()
{
    // The host may load the priority plug-in after this one: wait until it is back in its event loop.
    return QMetaObject::invokeMethod(this, "ExtendList", Qt::QueuedConnection);
}

void GuestNetwork::ExtendList()
{
    QObject *service = PriorityService();
    IPriorityPlugin *priority = qobject_cast<IPriorityPlugin *>(service);
    if (!priority) {
        qWarning("GuestNetwork: the priority plug-in is not there");
        return;
    }
    connect(service, SIGNAL(OnUpdataPriorityView()), this, SLOT(OnListChanged()));

    QList<PriorityList> list;
    const int result = priority->GetPriorityList(&list);
    if (result != PriorityRead && result != PriorityMissing) {
        // Damaged or not readable: adding to it now would replace what could not be read.
        qWarning("GuestNetwork: the list can't be read (%d), so it is left alone", result);
        return;
    }
    const PriorityList guest = WifiEntry("Guest");
    if (!Contains(list, guest)) {
        QList<PriorityList> added;
        added.append(guest);
        priority->AddPriorityList(added);
    }
    priority->AddTopPriority(WifiEntry("Office"));
}

void GuestNetwork::OnListChanged()
{
    QList<PriorityList> list;
    if (qobject_cast<IPriorityPlugin *>(sender())->GetPriorityList(&list) == 0) {
        qWarning("GuestNetwork: the list has %d entries now", static_cast<int>(list.size()));
    }
}
