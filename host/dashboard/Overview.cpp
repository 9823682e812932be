#include "Overview.h"

#include "PluginObjects.h"

#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>

#include <QSet>

bool Overview::Entry::IsWifi() const
{
    return entry.type == QLatin1String("1");
}

Overview Overview::Read()
{
    int status = -1;
    QList<PriorityList> list;
    if (IPriorityPlugin *priority = PluginObjects::Priority()) {
        status = priority->GetPriorityList(&list);
    }
    IWLANUIPlugin *wlan = PluginObjects::Wlan();
    QList<QString> names;
    if (wlan) {
        QList<WlanAvilableNetworkInfo> networks;
        wlan->GetAvailableNetworks(&networks);
        for (int i = 0; i < networks.size(); ++i) {
            names.append(networks.at(i).networkName);
        }
    }
    return Make(status, list, wlan != nullptr, names);
}

Overview Overview::Make(int status, const QList<PriorityList> &list, bool isRangeKnown,
                        const QList<QString> &networksInRange)
{
    Overview overview;
    overview.status = status;
    overview.isRangeKnown = isRangeKnown;
    QSet<QString> inRange;
    for (int i = 0; i < networksInRange.size(); ++i) {
        inRange.insert(networksInRange.at(i));
    }
    bool isDecided = false;
    for (int i = 0; i < list.size(); ++i) {
        Entry entry;
        entry.entry = list.at(i);
        if (!entry.IsWifi()) {
            // Mobile broadband is what remains where no Wi-Fi above it is to be had.
            entry.range = InRange;
        } else if (isRangeKnown) {
            entry.range = inRange.contains(entry.entry.name) ? InRange : OutOfRange;
        }
        entry.isInUse = !isDecided && entry.range == InRange;
        isDecided = isDecided || entry.range != OutOfRange;
        overview.entries.append(entry);
    }
    return overview;
}

const Overview::Entry *Overview::InUse() const
{
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).isInUse) {
            return &entries.at(i);
        }
    }
    return nullptr;
}
