#include "NetworkManagerWLANService.h"

#include "CallBatch.h"
#include "LivePicture.h"
#include "NetworkManagerClient.h"
#include "NetworkSecurity.h"
#include "ProfileReader.h"
#include "ProfileUpdate.h"
#include "SsidText.h"

#include <ProfileRules.h>

#include <NetworkManagerQt/Utils>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QSet>

#include <algorithm>

namespace
{

const int longestNetworkName = 32;

QString WirelessSection()
{
    return QLatin1String("802-11-wireless");
}

CTimeLimit Patience()
{
    return CTimeLimit(CNetworkManagerClient::patienceMilliseconds);
}

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

QString InfrastructureWord()
{
    return QLatin1String("ESS");
}

QString AdHocWord()
{
    return QLatin1String("IBSS");
}

/** NetworkManager's own word for what a WLANProfile has none for, such as a hotspot. */
QString BssTypeOf(const NMVariantMapMap &settings)
{
    const QString mode = settings.value(WirelessSection()).value(QLatin1String("mode")).toString();
    if (mode.isEmpty() || mode == QLatin1String("infrastructure")) {
        return InfrastructureWord();
    }
    return mode == QLatin1String("adhoc") ? AdHocWord() : mode;
}

void Fill(const NetworkProfile &remembered, WLANProfile *profile)
{
    profile->profileName = remembered.name;
    profile->connectionMode = QLatin1String(remembered.connectsByItself ? "auto" : "manual");
    profile->readOnly = QLatin1String(remembered.isReadOnly ? "true" : "false");
    if (remembered.kind == NetworkProfile::Wifi) {
        profile->ssid = SsidText::FromBytes(remembered.ssid);
        profile->bssType = BssTypeOf(remembered.settings);
        NetworkSecurity::Describe(remembered.settings, profile);
    }
}

/** The texts that D-Bus carries are UTF-8 and end with the first zero. */
bool CanBeSent(const QString &text)
{
    return !text.isEmpty() && !text.contains(QChar(ushort(0))) && QString::fromUtf8(text.toUtf8()) == text;
}

/** All Wi-Fi profiles as the rules see them, with their places in profiles. */
QList<ProfileRules::RememberedProfile> WifiProfiles(const QList<NetworkProfile> &profiles)
{
    QList<ProfileRules::RememberedProfile> remembered;
    for (int i = 0; i < profiles.size(); ++i) {
        if (profiles.at(i).kind == NetworkProfile::Wifi) {
            ProfileRules::RememberedProfile profile = {
                WLANProfile(), !NetworkSecurity::IsDescribed(profiles.at(i).settings), i};
            Fill(profiles.at(i), &profile.profile);
            remembered.append(profile);
        }
    }
    return remembered;
}

/** Success for what is no refusal. */
NetworkManagerResult RefusalOf(ProfileRules::Verdict verdict)
{
    switch (verdict) {
    case ProfileRules::NewProfile:
    case ProfileRules::ChangedProfile:
        break;
    case ProfileRules::SeveralProfiles:
        return NetworkManagerResultSeveralProfiles;
    case ProfileRules::ReadOnlyProfile:
        return NetworkManagerResultReadOnlyProfile;
    case ProfileRules::UndescribedProfile:
        return NetworkManagerResultUndescribedProfile;
    case ProfileRules::WeakerMethod:
        return NetworkManagerResultWeakerMethod;
    case ProfileRules::IncompleteKey:
        return NetworkManagerResultIncompleteKey;
    case ProfileRules::BetterProfile:
        return NetworkManagerResultBetterProfile;
    }
    return NetworkManagerResultSuccess;
}

} // namespace

CNetworkManagerWLANService::CNetworkManagerWLANService(CNetworkManagerClient *client, CLivePicture *picture,
                                                       QObject *parent)
    : QObject(parent), m_client(client), m_picture(picture)
{
}

int CNetworkManagerWLANService::CreateWLANProfile(WLANProfile profile)
{
    QString better;
    const NetworkManagerResult result = Store(profile, &better);
    if (const char *id = NoticeOf(result)) {
        m_notice.Tell(id, profile.profileName, better);
    }
    return Tell("CreateWLANProfile", result);
}

NetworkManagerResult CNetworkManagerWLANService::Store(WLANProfile wanted, QString *better)
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
    if (!NetworkSecurity::Apply(wanted, &security) || !isKeySendable) {
        return NetworkManagerResultUnusableSecurity;
    }
    const CTimeLimit limit = Patience();
    CProfileReader reader(m_client, limit, nullptr);
    reader.Read();
    if (reader.Result() != NetworkManagerResultSuccess) {
        return reader.Result();
    }
    // One network can be written in several ways.
    wanted.ssid = SsidText::FromBytes(ssid);
    const ProfileRules::Decision decision = ProfileRules::Decide(WifiProfiles(reader.Profiles()), wanted);
    if (decision.verdict == ProfileRules::NewProfile) {
        return Add(wanted, reader.Rights(), limit);
    }
    if (decision.verdict == ProfileRules::ChangedProfile) {
        // One that could not be read may have the same name.
        return reader.Shortfall() == NetworkManagerResultSuccess
                   ? Change(reader.Profiles().at(decision.place), wanted, limit)
                   : reader.Shortfall();
    }
    if (decision.verdict == ProfileRules::BetterProfile) {
        *better = reader.Profiles().at(decision.place).name;
    }
    return RefusalOf(decision.verdict);
}

NetworkManagerResult CNetworkManagerWLANService::Add(const WLANProfile &wanted, const CallerRights &rights,
                                                     const CTimeLimit &limit)
{
    NMVariantMapMap settings = NetworkProfile::NewSettings(wanted.profileName, rights);
    QVariantMap &wireless = settings[WirelessSection()];
    wireless.insert(QLatin1String("ssid"), SsidText::ToBytes(wanted.ssid));
    wireless.insert(QLatin1String("mode"),
                    QLatin1String(wanted.bssType == AdHocWord() ? "adhoc" : "infrastructure"));
    NetworkSecurity::Apply(wanted, &settings);
    QDBusMessage call = CNetworkManagerClient::Call(CNetworkManagerClient::SettingsPath(),
                                                    CNetworkManagerClient::SettingsInterface(),
                                                    QLatin1String("AddConnection"));
    call << QVariant::fromValue(settings);
    const QDBusMessage reply = Ask(call, limit);
    const NetworkManagerResult result = ResultOf(reply, "o");
    if (result == NetworkManagerResultSuccess) {
        m_picture->Expect(reply.arguments().at(0).value<QDBusObjectPath>().path());
    }
    return result;
}

NetworkManagerResult CNetworkManagerWLANService::Change(const NetworkProfile &profile,
                                                        const WLANProfile &wanted, const CTimeLimit &limit)
{
    NetworkProfile changed = profile;
    changed.settings[WirelessSection()].insert(QLatin1String("ssid"), SsidText::ToBytes(wanted.ssid));
    NetworkManagerResult result = NetworkManagerResultSuccess;
    if (NetworkSecurity::HasStaticWep(changed.settings) && wanted.encryption == QLatin1String("WEP")) {
        result = ReadWepKeys(&changed, limit);
        if (result == NetworkManagerResultSuccess && changed.version != 0) {
            result = ReadVersionAfterKeys(&changed, limit);
        }
        if (result != NetworkManagerResultSuccess) {
            return result;
        }
    }
    NetworkSecurity::Apply(wanted, &changed.settings);
    result = ResultOf(Ask(ProfileUpdate::Call(changed, changed.settings), limit), ProfileUpdate::signature);
    if (result == NetworkManagerResultSuccess) {
        m_picture->Expect(profile.path);
    }
    return result;
}

NetworkManagerResult CNetworkManagerWLANService::ReadWepKeys(NetworkProfile *profile, const CTimeLimit &limit)
{
    const QString section = QLatin1String("802-11-wireless-security");
    QDBusMessage call = CNetworkManagerClient::Call(profile->path, CNetworkManagerClient::ProfileInterface(),
                                                    QLatin1String("GetSecrets"));
    call << section;
    const QDBusMessage reply = Ask(call, limit);
    if (reply.errorName() == QLatin1String("org.freedesktop.NetworkManager.AgentManager.NoSecrets")) {
        return NetworkManagerResultSuccess;
    }
    const NetworkManagerResult result = ResultOf(reply, NetworkProfile::Signature());
    if (result == NetworkManagerResultSuccess) {
        const QVariantMap keys =
            qdbus_cast<NMVariantMapMap>(reply.arguments().at(0).value<QDBusArgument>()).value(section);
        for (QVariantMap::const_iterator i = keys.constBegin(); i != keys.constEnd(); ++i) {
            profile->settings[section].insert(i.key(), i.value());
        }
    }
    return result;
}

NetworkManagerResult CNetworkManagerWLANService::ReadVersionAfterKeys(NetworkProfile *profile,
                                                                      const CTimeLimit &limit)
{
    const QDBusMessage reply = Ask(ManagedObjects::Call(), limit);
    const NetworkManagerResult result = ResultOf(reply, ManagedObjects::signature);
    if (result != NetworkManagerResultSuccess) {
        return result;
    }
    const quint64 version =
        NetworkManagerState::PlaceOf(profile->path, ManagedObjects::FromReply(reply)).version;
    // The question for the keys counts as one change itself (seen with 1.52). Of a profile that is gone no
    // version is told.
    if (version == 0 || version > profile->version + 1) {
        return NetworkManagerResultChangedMeanwhile;
    }
    profile->version = version;
    return NetworkManagerResultSuccess;
}

QDBusMessage CNetworkManagerWLANService::Ask(const QDBusMessage &call, const CTimeLimit &limit)
{
    CCallBatch batch(m_client, QList<QDBusMessage>() << call, limit, nullptr);
    batch.Start();
    batch.Wait();
    return batch.Replies().at(0);
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
    const ConnectionPicture &picture = m_picture->Complete();
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
    const NetworkProfile *known = FindByName(m_picture->Complete().profiles, name);
    if (!known) {
        const NetworkManagerResult result = Tell("GetProfileByName", Outcome());
        return result == NetworkManagerResultSuccess ? NetworkManagerResultUnknownName : result;
    }
    Fill(*known, profile);
    return Tell("GetProfileByName", NetworkManagerResultSuccess);
}

int CNetworkManagerWLANService::GetConfigData(WLANConfigData *config)
{
    if (!config) {
        return NetworkManagerResultNullPointer;
    }
    const ConnectionPicture &picture = m_picture->Complete();
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
    const QList<AccessPoint> networks = Networks(m_picture->Complete().state);
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
    const ConnectionPicture &picture = m_picture->Complete();
    Tell("GetNetworkProfile", Outcome());
    const QList<AccessPoint> networks = Networks(picture.state);
    const AccessPoint *seen = FindNetwork(networks, ssid);
    const NetworkProfile *known = FindBySsid(picture.profiles, ssid);
    if (!seen && !known) {
        return 0;
    }
    profile->profileName = network.networkName;
    profile->ssid = network.networkName;
    profile->bssType = InfrastructureWord();
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
