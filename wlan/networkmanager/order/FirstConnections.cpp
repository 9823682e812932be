#include "FirstConnections.h"

#include <QPair>
#include <QSet>

#include <algorithm>

namespace
{

bool WasConnectedEarlier(const NetworkProfile &left, const NetworkProfile &right)
{
    return left.lastConnected < right.lastConnected;
}

bool IsForTheList(const NetworkProfile &profile)
{
    return profile.kind != NetworkProfile::OtherKind && !profile.isHotspot && !profile.isPassing &&
           !profile.uuid.isEmpty() && !profile.name.isEmpty();
}

} // namespace

QList<NetworkProfile> FirstConnections::Find(const QList<NetworkProfile> &profiles,
                                             const QList<QString> &connectedProfiles,
                                             const QList<PriorityList> &list, CPriorityRecords *records)
{
    QSet<QPair<bool, QString>> listed;
    for (int i = 0; i < list.size(); ++i) {
        listed.insert(NetworkProfile::ListKeyOf(list.at(i)));
    }
    QList<NetworkProfile> before;
    QList<NetworkProfile> now;
    for (int i = 0; i < profiles.size(); ++i) {
        const NetworkProfile &profile = profiles.at(i);
        const bool isConnected = connectedProfiles.contains(profile.path);
        if (!IsForTheList(profile) || records->connected.contains(profile.uuid) ||
            (!isConnected && profile.lastConnected == 0)) {
            continue;
        }
        if (!records->isConnectedKnown || listed.contains(profile.ListKey())) {
            records->connected.insert(profile.uuid);
        } else if (isConnected) {
            now.append(profile);
        } else {
            before.append(profile);
        }
    }
    records->isConnectedKnown = true;
    std::stable_sort(before.begin(), before.end(), WasConnectedEarlier);
    std::stable_sort(now.begin(), now.end(), WasConnectedEarlier);
    return before + now;
}
