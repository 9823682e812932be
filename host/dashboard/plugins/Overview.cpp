#include "Overview.h"

#include "PluginObjects.h"

#include <IWLANUIPlugin.h>

namespace
{

QList<WlanAvilableNetworkInfo> NetworksInRange(bool *isKnown)
{
    QList<WlanAvilableNetworkInfo> networks;
    IWLANUIPlugin *wlan = PluginObjects::Wlan();
    *isKnown = wlan != nullptr;
    if (wlan) {
        wlan->GetAvailableNetworks(&networks);
    }
    return networks;
}

QHash<QString, int> SignalsOf(const QList<WlanAvilableNetworkInfo> &networks)
{
    QHash<QString, int> signalOf;
    for (int i = 0; i < networks.size(); ++i) {
        // Of several stations of one network the first is the best.
        if (!signalOf.contains(networks.at(i).networkName)) {
            signalOf.insert(networks.at(i).networkName, SignalStrength::Percent(networks.at(i).value1));
        }
    }
    return signalOf;
}

} // namespace

bool Overview::Entry::IsWifi() const
{
    return entry.type == QLatin1String("1");
}

Overview Overview::Of(const ListReading &list)
{
    bool isRangeKnown = false;
    const QList<WlanAvilableNetworkInfo> networks = NetworksInRange(&isRangeKnown);
    return Make(list.status, list.entries, isRangeKnown, networks);
}

Overview Overview::Make(int status, const QList<PriorityList> &list, bool isRangeKnown,
                        const QList<WlanAvilableNetworkInfo> &networksInRange)
{
    Overview overview;
    overview.status = status;
    overview.isRangeKnown = isRangeKnown;
    overview.signalOf = SignalsOf(networksInRange);
    bool isDecided = false;
    for (int i = 0; i < list.size(); ++i) {
        Entry entry;
        entry.entry = list.at(i);
        if (!entry.IsWifi()) {
            // Mobile broadband is what remains where no Wi-Fi above it is to be had.
            entry.range = InRange;
        } else if (isRangeKnown) {
            entry.range = overview.signalOf.contains(entry.entry.name) ? InRange : OutOfRange;
            entry.signal = overview.signalOf.value(entry.entry.name, SignalStrength::unknown);
        }
        entry.isInUse = !isDecided && entry.range == InRange;
        isDecided = isDecided || entry.range != OutOfRange;
        overview.entries.append(entry);
    }
    return overview;
}

bool Overview::IsListWhole() const
{
    return status == PriorityRead || status == PriorityMissing;
}

bool Overview::HasRangeChanged() const
{
    bool isKnown = false;
    const QHash<QString, int> signalsNow = SignalsOf(NetworksInRange(&isKnown));
    return isKnown != isRangeKnown || signalsNow != signalOf;
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
