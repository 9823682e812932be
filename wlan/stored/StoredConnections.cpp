#include "StoredConnections.h"

#include <ProfileRules.h>
#include <UserData.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace
{

const int stepMilliseconds = 300;
const int pauseMilliseconds = 50;

QString MobileType()
{
    return QLatin1String("2");
}

QString WifiType()
{
    return QLatin1String("1");
}

QString IdOf(const StoredProfile &stored)
{
    return stored.type + QLatin1Char(' ') + stored.profile.profileName;
}

QString NetworkOf(const WLANProfile &profile)
{
    return profile.ssid.isEmpty() ? profile.profileName : profile.ssid;
}

QString DeviceOf(const QString &type)
{
    return QLatin1String(type == WifiType() ? "wifi" : "modem");
}

bool IsWep(const QString &encryption)
{
    return encryption == QLatin1String("WEP");
}

int ProtectionOf(const NetworkInRange &network)
{
    if (network.authentication.contains(QLatin1String("EAP")) ||
        network.authentication == QLatin1String("IEEE 802.1X")) {
        return VisibleNetwork::ProtectionAccount;
    }
    if (IsWep(network.encryption)) {
        return VisibleNetwork::ProtectionWeakKey;
    }
    const bool isOpen = network.encryption == QLatin1String("none") || network.encryption.isEmpty();
    return isOpen ? VisibleNetwork::ProtectionOpen : VisibleNetwork::ProtectionKey;
}

/** Whether the profile's security is that of the network. */
bool Fits(const WLANProfile &profile, const NetworkInRange &network)
{
    const QString authentication =
        profile.authentication.isEmpty() ? QString::fromLatin1("open") : profile.authentication;
    if (IsWep(profile.encryption) || IsWep(network.encryption)) {
        return IsWep(profile.encryption) && IsWep(network.encryption);
    }
    return authentication == network.authentication;
}

const NetworkInRange *FindNetwork(const QList<NetworkInRange> &networks, const QString &name)
{
    for (int i = 0; i < networks.size(); ++i) {
        if (networks.at(i).name == name) {
            return &networks.at(i);
        }
    }
    return nullptr;
}

/** The stage in which a failure of that kind happens. */
int StageOf(int failure)
{
    switch (failure) {
    case FailureNoAnswer:
        return StagePreparing;
    case FailureNoAddress:
        return StageGettingAddress;
    default:
        return StageAuthenticating;
    }
}

bool IsComingUp(int stage)
{
    return stage >= StagePreparing && stage < StageConnected;
}

int ChangeOf(const StoredProfile &stored)
{
    return stored.profile.readOnly == QLatin1String("true") ? ProfileDetails::ChangeNotAllowed
                                                            : ProfileDetails::ChangeAllowed;
}

bool IsUpBefore(const ActiveConnection &left, const ActiveConnection &right)
{
    return left.stage == StageConnected && right.stage != StageConnected;
}

} // namespace

CStoredConnections::CStoredConnections(QObject *parent) : QObject(parent)
{
    m_step.setInterval(stepMilliseconds);
    connect(&m_step, SIGNAL(timeout()), this, SLOT(Advance()));
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SIGNAL(OnConnectionsChanged()));
    connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(Watch()));
    connect(&m_watcher, SIGNAL(fileChanged(QString)), this, SLOT(Watch()));
    if (!UserData::Directory().isEmpty()) {
        m_watcher.addPath(QDir(UserData::Directory()).absolutePath());
        Watch();
    }
}

void CStoredConnections::Watch()
{
    // A file that is replaced is another one, which is not watched yet.
    const char *const names[] = {"WLANProfiles.xml", "WLANNetworks.xml"};
    for (const char *name : names) {
        const QString path = UserData::Directory() + QLatin1String(name);
        if (QFileInfo(path).exists() && !m_watcher.files().contains(path)) {
            m_watcher.addPath(path);
        }
    }
    Change();
}

void CStoredConnections::Change()
{
    if (!m_pause.isActive()) {
        m_pause.start();
    }
}

CStoredConnections::Files CStoredConnections::Read()
{
    Files files;
    const WLANResult profiles = m_profiles.List(&files.profiles);
    const WLANResult networks = m_range.List(&files.networks);
    files.areRead = profiles == WLANResultSuccess && networks == WLANResultSuccess;
    if (!files.areRead) {
        files.profiles.clear();
        files.networks.clear();
    }
    return files;
}

void CStoredConnections::GetConnectionState(ConnectionState *state)
{
    if (!state) {
        return;
    }
    *state = ConnectionState();
    state->sourceName = QLatin1String("stored");
    if (Read().areRead) {
        state->source = ConnectionState::SourceKnown;
        state->wifi = ConnectionState::RadioOn;
        state->mobile = ConnectionState::RadioOn;
        state->mayConnect = true;
    }
}

void CStoredConnections::GetActiveConnections(QList<ActiveConnection> *connections)
{
    if (!connections) {
        return;
    }
    connections->clear();
    const Files files = Read();
    if (!files.areRead) {
        return;
    }
    // Wi-Fi comes first, and goes before the modem.
    bool isCarried = false;
    for (QMap<QString, int>::const_iterator i = m_active.constBegin(); i != m_active.constEnd(); ++i) {
        const Order order = m_orders.value(i.value());
        const NetworkInRange *network = FindNetwork(files.networks, order.network);
        ActiveConnection connection;
        connection.id = QString::number(i.value());
        connection.profileId = order.told.profileId;
        connection.name = order.told.name;
        connection.type = order.type;
        connection.network = order.network;
        connection.device = DeviceOf(order.type);
        connection.stage = order.told.stage;
        connection.signal = network ? network->signal : -1;
        connection.carriesTraffic = connection.stage == StageConnected && !isCarried;
        isCarried = isCarried || connection.carriesTraffic;
        connections->append(connection);
    }
    std::stable_sort(connections->begin(), connections->end(), IsUpBefore);
}

void CStoredConnections::GetProfiles(QList<ConnectionProfile> *profiles)
{
    if (!profiles) {
        return;
    }
    profiles->clear();
    const Files files = Read();
    for (int i = 0; i < files.profiles.size(); ++i) {
        const StoredProfile &stored = files.profiles.at(i);
        ConnectionProfile profile;
        profile.id = IdOf(stored);
        profile.name = stored.profile.profileName;
        profile.type = stored.IsWifi() ? WifiType() : MobileType();
        profile.failure = m_failures.value(profile.id);
        // Whatever its connectionMode is: it is the list that decides when.
        profile.connectsByItself = true;
        profile.use = ConnectionProfile::UsePossible;
        profile.device = DeviceOf(profile.type);
        if (stored.IsWifi()) {
            const NetworkInRange *network = FindNetwork(files.networks, NetworkOf(stored.profile));
            profile.network = NetworkOf(stored.profile);
            profile.security = stored.profile.authentication;
            if (!network) {
                profile.use = ConnectionProfile::UseOutOfRange;
            } else if (!Fits(stored.profile, *network)) {
                profile.use = ConnectionProfile::UseOtherSecurity;
            } else {
                profile.signal = network->signal;
            }
            profile.device = profile.use == ConnectionProfile::UsePossible ? profile.device : QString();
        }
        profiles->append(profile);
    }
}

void CStoredConnections::GetVisibleNetworks(QList<VisibleNetwork> *networks)
{
    if (!networks) {
        return;
    }
    networks->clear();
    const Files files = Read();
    const Order inUse = m_orders.value(m_active.value(WifiType()));
    for (int i = 0; i < files.networks.size(); ++i) {
        VisibleNetwork network;
        network.id = files.networks.at(i).name;
        network.name = network.id;
        network.security = files.networks.at(i).authentication;
        network.protection = ProtectionOf(files.networks.at(i));
        network.signal = files.networks.at(i).signal;
        network.isInUse = m_active.contains(WifiType()) && inUse.network == network.name;
        for (int j = 0; j < files.profiles.size(); ++j) {
            const StoredProfile &stored = files.profiles.at(j);
            if (stored.IsWifi() && NetworkOf(stored.profile) == network.name &&
                Fits(stored.profile, files.networks.at(i))) {
                network.profileIds.append(IdOf(stored));
            }
        }
        networks->append(network);
    }
}

void CStoredConnections::LookForNetworks()
{
    Change();
}

int CStoredConnections::ConnectProfile(const QString &profileId)
{
    const Files files = Read();
    if (!files.areRead) {
        return RefusedSource;
    }
    for (int i = 0; i < files.profiles.size(); ++i) {
        const StoredProfile &stored = files.profiles.at(i);
        if (IdOf(stored) != profileId) {
            continue;
        }
        Order order;
        order.told.name = stored.profile.profileName;
        order.told.profileId = profileId;
        order.type = stored.IsWifi() ? WifiType() : MobileType();
        if (stored.IsWifi()) {
            order.network = NetworkOf(stored.profile);
            const NetworkInRange *network = FindNetwork(files.networks, order.network);
            const bool isThere = network && Fits(stored.profile, *network);
            order.failure = isThere ? network->failure : int(FailureNoAnswer);
        }
        return Begin(order);
    }
    return RefusedUnknown;
}

int CStoredConnections::ConnectNetwork(const QString &networkId, const QString &key)
{
    const Files files = Read();
    if (!files.areRead) {
        return RefusedSource;
    }
    const NetworkInRange *network = FindNetwork(files.networks, networkId);
    if (!network) {
        return RefusedUnknown;
    }
    for (int i = 0; i < files.profiles.size(); ++i) {
        const StoredProfile &stored = files.profiles.at(i);
        if (stored.IsWifi() && NetworkOf(stored.profile) == network->name && Fits(stored.profile, *network)) {
            return ConnectProfile(IdOf(stored));
        }
    }
    const int protection = ProtectionOf(*network);
    if (protection == VisibleNetwork::ProtectionAccount) {
        return RefusedAccount;
    }
    Order order;
    order.profile = NewWifiProfile(network->name, network->authentication, network->encryption, key);
    if (protection != VisibleNetwork::ProtectionOpen && !ProfileRules::IsKeyComplete(order.profile)) {
        return RefusedKey;
    }
    order.told.name = network->name;
    order.type = WifiType();
    order.network = network->name;
    order.failure = network->failure;
    return Begin(order);
}

int CStoredConnections::Begin(const Order &order)
{
    const int number = static_cast<int>(m_orders.size()) + 1;
    if (m_active.contains(order.type) &&
        m_orders.value(m_active.value(order.type)).told.stage < StageConnected) {
        // One adapter connects one network.
        ConnectAttempt &former = m_orders[m_active.value(order.type)].told;
        former.failedStage = former.stage;
        former.stage = StageFailed;
        former.failure = FailureStopped;
    }
    m_orders.insert(number, order);
    m_orders[number].told.stage = StagePreparing;
    m_active.insert(order.type, number);
    m_step.start();
    Change();
    return number;
}

void CStoredConnections::Advance()
{
    bool isMoving = false;
    const QList<QString> types = m_active.keys();
    for (int i = 0; i < types.size(); ++i) {
        Order &order = m_orders[m_active.value(types.at(i))];
        if (IsComingUp(order.told.stage)) {
            Move(&order);
            Change();
        }
        isMoving = isMoving || IsComingUp(order.told.stage);
    }
    if (!isMoving) {
        m_step.stop();
    }
}

void CStoredConnections::Move(Order *order)
{
    ConnectAttempt &told = order->told;
    if (order->failure != FailureNone && told.stage == StageOf(order->failure)) {
        told.failedStage = told.stage;
        told.stage = StageFailed;
        told.failure = order->failure;
        m_active.remove(order->type);
    } else {
        ++told.stage;
    }
    if (told.stage == StageConnected && !order->profile.profileName.isEmpty()) {
        QString better;
        const bool isStored = m_profiles.Store(order->profile, &better) == WLANResultSuccess;
        told.failure = isStored ? FailureNone : FailureNotStored;
        told.profileId = isStored ? WifiType() + QLatin1Char(' ') + order->profile.profileName : QString();
        order->profile = WLANProfile();
    }
    if (!told.profileId.isEmpty()) {
        m_failures.insert(told.profileId, told.stage == StageFailed ? told.failure : int(FailureNone));
    }
}

int CStoredConnections::Disconnect(const QString &connectionId)
{
    if (!Read().areRead) {
        return RefusedSource;
    }
    const QList<QString> types = m_active.keys();
    for (int i = 0; i < types.size(); ++i) {
        const int ended = m_active.value(types.at(i));
        if (QString::number(ended) != connectionId) {
            continue;
        }
        CancelAttempt(ended);
        m_active.remove(types.at(i));
        Order order;
        order.told.name = m_orders.value(ended).told.name;
        order.told.profileId = m_orders.value(ended).told.profileId;
        order.told.stage = StageDisconnected;
        const int number = static_cast<int>(m_orders.size()) + 1;
        m_orders.insert(number, order);
        Change();
        return number;
    }
    return RefusedUnknown;
}

void CStoredConnections::GetAttempt(int attempt, ConnectAttempt *result)
{
    if (result) {
        *result = m_orders.contains(attempt) ? m_orders.value(attempt).told : ConnectAttempt();
    }
}

void CStoredConnections::CancelAttempt(int attempt)
{
    if (m_orders.contains(attempt) && IsComingUp(m_orders.value(attempt).told.stage)) {
        m_orders[attempt].told.stage = StageCancelled;
        m_active.remove(m_orders.value(attempt).type);
        Change();
    }
}

const StoredProfile *CStoredConnections::Find(const Files &files, const QString &profileId) const
{
    for (const StoredProfile &stored : files.profiles) {
        if (IdOf(stored) == profileId) {
            return &stored;
        }
    }
    return nullptr;
}

void CStoredConnections::GetProfileDetails(const QString &profileId, ProfileDetails *details)
{
    if (!details) {
        return;
    }
    *details = ProfileDetails();
    const Files files = Read();
    if (const StoredProfile *stored = Find(files, profileId)) {
        details->id = profileId;
        details->change = ChangeOf(*stored);
    }
}

int CStoredConnections::Forget(const QString &profileId, const QString &lastingId)
{
    const Files files = Read();
    if (!files.areRead) {
        return RefusedSource;
    }
    const StoredProfile *stored = Find(files, profileId);
    if (!stored || !lastingId.isEmpty()) {
        return RefusedUnknown;
    }
    if (ChangeOf(*stored) == ProfileDetails::ChangeNotAllowed) {
        return RefusedNotAllowed;
    }
    Order order;
    order.told.name = stored->profile.profileName;
    order.told.profileId = profileId;
    order.told.stage = StageForgotten;
    if (m_profiles.Remove(stored->type, stored->profile.profileName) != WLANResultSuccess) {
        order.told.stage = StageFailed;
        order.told.failedStage = StageForgetting;
        order.told.failure = FailureOther;
    } else {
        const QList<QString> types = m_active.keys();
        for (const QString &type : types) {
            const int active = m_active.value(type);
            if (m_orders.value(active).told.profileId == profileId) {
                CancelAttempt(active);
                m_active.remove(type);
            }
        }
        m_failures.remove(profileId);
    }
    const int number = static_cast<int>(m_orders.size()) + 1;
    m_orders.insert(number, order);
    Change();
    return number;
}
