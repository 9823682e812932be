#include "NetworkManagerWLANService.h"

#include <LivePicture.h>
#include <NetworkSecurity.h>
#include <SsidText.h>

#include <NetworkManagerQt/Utils>

#include <QSet>

#include <algorithm>

namespace
{

const int longestNetworkName = 32;

/** The first profile of that name, Wi-Fi first; null when there is none. */
const NetworkProfile *FindByName(const QList<NetworkProfile> &profiles, const QString &name)
{
    const NetworkProfile *found = nullptr;
    for (int i = 0; i < profiles.size(); ++i) {
        const NetworkProfile &profile = profiles.at(i);
        if (profile.name != name || profile.kind == NetworkProfile::OtherKind) {
            continue;
        }
        if (profile.kind == NetworkProfile::Wifi) {
            return &profile;
        }
        found = found ? found : &profile;
    }
    return found;
}

/** The profile for that network that was used last; null when there is none. */
const NetworkProfile *FindBySsid(const QList<NetworkProfile> &profiles, const QByteArray &ssid)
{
    const NetworkProfile *found = nullptr;
    for (int i = 0; i < profiles.size(); ++i) {
        const NetworkProfile &profile = profiles.at(i);
        if (profile.kind == NetworkProfile::Wifi && !profile.isHotspot && profile.ssid == ssid &&
            (!found || profile.lastConnected > found->lastConnected)) {
            found = &profile;
        }
    }
    return found;
}

bool IsStronger(const AccessPoint &left, const AccessPoint &right)
{
    return left.strength > right.strength;
}

/** The strongest station of each network that tells its name, the strongest first. */
QList<AccessPoint> Networks(const NetworkManagerState &state)
{
    QList<AccessPoint> points = state.accessPoints;
    std::stable_sort(points.begin(), points.end(), IsStronger);
    QList<AccessPoint> networks;
    QSet<QByteArray> listed;
    for (int i = 0; i < points.size(); ++i) {
        const QByteArray &ssid = points.at(i).ssid;
        if (!points.at(i).IsHidden() && !listed.contains(ssid)) {
            listed.insert(ssid);
            networks.append(points.at(i));
        }
    }
    return networks;
}

const AccessPoint *FindNetwork(const QList<AccessPoint> &networks, const QByteArray &ssid)
{
    for (int i = 0; i < networks.size(); ++i) {
        if (networks.at(i).ssid == ssid) {
            return &networks.at(i);
        }
    }
    return nullptr;
}

/** The texts that D-Bus carries are UTF-8 and end with the first zero. */
bool CanBeSent(const QString &text)
{
    return !text.isEmpty() && !text.contains(QChar(ushort(0))) && QString::fromUtf8(text.toUtf8()) == text;
}

} // namespace

CNetworkManagerWLANService::CNetworkManagerWLANService(CNetworkManagerClient *client, CLivePicture *picture,
                                                       QObject *parent)
    : QObject(parent), m_picture(picture), m_writer(client, picture, nullptr),
      m_result(NetworkManagerResultSuccess)
{
    connect(&m_writer, &CProfileWriter::Ended, this, &CNetworkManagerWLANService::TakeEnd);
}

CNetworkManagerWLANService::~CNetworkManagerWLANService()
{
    m_writer.Finish();
}

int CNetworkManagerWLANService::CreateWLANProfile(WLANProfile profile)
{
    m_result = NetworkManagerResultSuccess;
    const NetworkManagerResult refusal = Check(profile);
    if (refusal == NetworkManagerResultSuccess) {
        // One network can be written in several ways.
        profile.ssid = SsidText::FromBytes(SsidText::ToBytes(profile.ssid));
        m_writer.Store(profile);
    } else {
        TakeEnd(refusal, profile.profileName, QString());
    }
    return m_result;
}

void CNetworkManagerWLANService::TakeEnd(NetworkManagerResult result, const QString &name,
                                         const QString &better)
{
    m_result = Tell("CreateWLANProfile", result);
    if (const char *id = NoticeOf(result)) {
        m_notice.Tell(id, name, better);
    }
    emit ProfileEnded(result);
}

/** As far as it can be told without NetworkManager. */
NetworkManagerResult CNetworkManagerWLANService::Check(const WLANProfile &wanted)
{
    const QByteArray ssid = SsidText::ToBytes(wanted.ssid);
    if (!CanBeSent(wanted.profileName)) {
        return NetworkManagerResultUnusableName;
    }
    if (ssid.isEmpty() || ssid.size() > longestNetworkName || !CanBeSent(wanted.ssid)) {
        return NetworkManagerResultUnusableNetworkName;
    }
    if (NetworkSecurity::NeedsAccount(wanted)) {
        return NetworkManagerResultNoAccount;
    }
    NMVariantMapMap security;
    const bool isKeySendable = wanted.keyMaterial.isEmpty() || CanBeSent(wanted.keyMaterial);
    return NetworkSecurity::Apply(wanted, &security) && isKeySendable ? NetworkManagerResultSuccess
                                                                      : NetworkManagerResultUnusableSecurity;
}

NetworkManagerResult CNetworkManagerWLANService::Outcome() const
{
    return m_picture->Result() != NetworkManagerResultSuccess ? m_picture->Result() : m_picture->Shortfall();
}

int CNetworkManagerWLANService::GetRememberedList(QList<RememberedList> *list)
{
    if (!list) {
        return NetworkManagerResultNullPointer;
    }
    const ConnectionPicture &picture = m_picture->Now();
    for (const NetworkProfile &profile : picture.profiles) {
        if (profile.kind != NetworkProfile::OtherKind && !profile.isHotspot) {
            RememberedList remembered;
            remembered.name = profile.name;
            remembered.type = profile.TypeText();
            list->append(remembered);
        }
    }
    return Tell("GetRememberedList", Outcome());
}

int CNetworkManagerWLANService::GetProfileByName(QString name, WLANProfile *profile)
{
    if (!profile) {
        return NetworkManagerResultNullPointer;
    }
    const NetworkProfile *known = FindByName(m_picture->Now().profiles, name);
    if (!known) {
        const NetworkManagerResult result = Tell("GetProfileByName", Outcome());
        return result == NetworkManagerResultSuccess ? NetworkManagerResultUnknownName : result;
    }
    known->Describe(profile);
    return Tell("GetProfileByName", NetworkManagerResultSuccess);
}

int CNetworkManagerWLANService::GetConfigData(WLANConfigData *config)
{
    if (!config) {
        return NetworkManagerResultNullPointer;
    }
    const ConnectionPicture &picture = m_picture->Now();
    if (picture.source == ConnectionState::SourceKnown) {
        config->authenticationList = NetworkSecurity::Methods(picture.state.WifiDevices());
    }
    return Tell("GetConfigData", m_picture->Result());
}

int CNetworkManagerWLANService::GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list)
{
    if (!list) {
        return NetworkManagerResultNullPointer;
    }
    const QList<AccessPoint> networks = Networks(m_picture->Now().state);
    for (const AccessPoint &network : networks) {
        WlanAvilableNetworkInfo info;
        info.networkName = SsidText::FromBytes(network.ssid);
        info.value1 = network.strength;
        info.value2 = NetworkManager::findChannel(network.frequency);
        list->append(info);
    }
    m_picture->LookForNetworks();
    return Tell("GetAvailableNetworks", m_picture->Result());
}

int CNetworkManagerWLANService::GetNetworkProfile(const WlanAvilableNetworkInfo &network,
                                                  WLANProfile *profile)
{
    if (!profile || network.networkName.isEmpty()) {
        return 0;
    }
    const QByteArray ssid = SsidText::ToBytes(network.networkName);
    const ConnectionPicture &picture = m_picture->Now();
    Tell("GetNetworkProfile", Outcome());
    const QList<AccessPoint> networks = Networks(picture.state);
    const AccessPoint *seen = FindNetwork(networks, ssid);
    const NetworkProfile *known = FindBySsid(picture.profiles, ssid);
    if (!seen && !known) {
        return 0;
    }
    profile->profileName = network.networkName;
    profile->ssid = network.networkName;
    profile->bssType = NetworkProfile::InfrastructureWord();
    if (known) {
        NetworkSecurity::Describe(known->settings, profile);
    }
    // What the network sends out now counts more than what it was when it was remembered. With the oldest
    // encryption it doesn't send out which of the two ways it wants, nor which key.
    const bool isRememberedWep = known && profile->encryption == QLatin1String("WEP");
    if (seen && !(NetworkSecurity::IsWep(*seen) && isRememberedWep)) {
        NetworkSecurity::Describe(*seen, profile);
    }
    return 1;
}

NetworkManagerResult CNetworkManagerWLANService::Tell(const char *operation, NetworkManagerResult result)
{
    const QString text = DescriptionOf(result);
    m_complaints.Tell(text.isEmpty()
                          ? QStringList()
                          : QStringList(QString::fromLatin1("%1: %2").arg(QLatin1String(operation), text)));
    return result;
}
