#include "ProfileWriter.h"

#include <CallBatch.h>
#include <LivePicture.h>
#include <NetworkManagerClient.h>
#include <NetworkSecurity.h>
#include <ProfileUpdate.h>
#include <SsidText.h>

#include <ProfileRules.h>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QEventLoop>
#include <QTimer>

namespace
{

QString WirelessSection()
{
    return QLatin1String("802-11-wireless");
}

QString SecuritySection()
{
    return QLatin1String("802-11-wireless-security");
}

// A password may have to be given first.
const int storeMilliseconds = 300000;
const int finishMilliseconds = 2000;

/** All Wi-Fi profiles as the rules see them, with their places in profiles. */
QList<ProfileRules::RememberedProfile> WifiProfiles(const QList<NetworkProfile> &profiles)
{
    QList<ProfileRules::RememberedProfile> remembered;
    for (int i = 0; i < profiles.size(); ++i) {
        if (profiles.at(i).kind == NetworkProfile::Wifi) {
            ProfileRules::RememberedProfile profile = {
                WLANProfile(), !NetworkSecurity::IsDescribed(profiles.at(i).settings), i};
            profiles.at(i).Describe(&profile.profile);
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

CProfileWriter::CProfileWriter(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent)
    : QObject(parent), m_client(client), m_picture(picture), m_batch(nullptr)
{
    connect(m_picture, &CLivePicture::Changed, this, &CProfileWriter::Continue);
    connect(m_client, &CNetworkManagerClient::FellSilent, this, &CProfileWriter::TakeSilence);
}

void CProfileWriter::Store(const WLANProfile &wanted)
{
    m_waiting.append(wanted);
    Continue();
}

void CProfileWriter::Finish()
{
    if (m_waiting.isEmpty()) {
        return;
    }
    QEventLoop loop;
    connect(this, &CProfileWriter::Ended, &loop, [this, &loop] {
        if (m_waiting.isEmpty()) {
            loop.quit();
        }
    });
    QTimer::singleShot(finishMilliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void CProfileWriter::Continue()
{
    if (m_waiting.isEmpty() || m_batch) {
        return;
    }
    const bool isSilent = m_client->IsSilent();
    if (isSilent || !m_picture->IsOnItsWay()) {
        const NetworkManagerResult result = isSilent ? NetworkManagerResultNotAnswering : Begin();
        if (result != NetworkManagerResultSuccess) {
            End(result);
        }
    }
}

void CProfileWriter::TakeSilence()
{
    if (!m_waiting.isEmpty()) {
        delete m_batch;
        m_batch = nullptr;
        End(NetworkManagerResultNotAnswering);
    }
}

NetworkManagerResult CProfileWriter::Begin()
{
    const QList<NetworkProfile> &profiles = m_picture->Now().profiles;
    if (m_picture->Result() != NetworkManagerResultSuccess) {
        return m_picture->Result();
    }
    const ProfileRules::Decision decision =
        ProfileRules::Decide(WifiProfiles(profiles), m_waiting.constFirst());
    switch (decision.verdict) {
    case ProfileRules::NewProfile:
        Add();
        break;
    case ProfileRules::ChangedProfile:
        // One that could not be read may have the same name.
        if (m_picture->Shortfall() != NetworkManagerResultSuccess) {
            return m_picture->Shortfall();
        }
        m_changed = profiles.at(decision.place);
        Change();
        break;
    case ProfileRules::BetterProfile:
        m_better = profiles.at(decision.place).name;
        break;
    default:
        break;
    }
    return RefusalOf(decision.verdict);
}

void CProfileWriter::Add()
{
    const WLANProfile &wanted = m_waiting.constFirst();
    NMVariantMapMap settings = NetworkProfile::NewSettings(wanted.profileName, m_picture->Now().rights);
    QVariantMap &wireless = settings[WirelessSection()];
    wireless.insert(QLatin1String("ssid"), SsidText::ToBytes(wanted.ssid));
    wireless.insert(QLatin1String("mode"), NetworkProfile::ModeOf(wanted.bssType));
    NetworkSecurity::Apply(wanted, &settings);
    QDBusMessage call = CNetworkManagerClient::Call(CNetworkManagerClient::SettingsPath(),
                                                    CNetworkManagerClient::SettingsInterface(),
                                                    QLatin1String("AddConnection"));
    call << QVariant::fromValue(settings);
    Ask(call, &CProfileWriter::TakeAdded);
}

void CProfileWriter::TakeAdded(const QDBusMessage &reply)
{
    const NetworkManagerResult result = ResultOf(reply, "o");
    if (result == NetworkManagerResultSuccess) {
        m_picture->Expect(reply.arguments().at(0).value<QDBusObjectPath>().path());
    }
    End(result);
}

void CProfileWriter::Change()
{
    m_changed.settings[WirelessSection()].insert(QLatin1String("ssid"),
                                                 SsidText::ToBytes(m_waiting.constFirst().ssid));
    if (NetworkSecurity::HasStaticWep(m_changed.settings) &&
        m_waiting.constFirst().encryption == QLatin1String("WEP")) {
        AskForWepKeys();
    } else {
        SendChange();
    }
}

void CProfileWriter::AskForWepKeys()
{
    QDBusMessage call = CNetworkManagerClient::Call(m_changed.path, CNetworkManagerClient::ProfileInterface(),
                                                    QLatin1String("GetSecrets"));
    call << SecuritySection();
    Ask(call, &CProfileWriter::TakeWepKeys);
}

void CProfileWriter::TakeWepKeys(const QDBusMessage &reply)
{
    // Without keys there are none to be kept.
    if (reply.errorName() != QLatin1String("org.freedesktop.NetworkManager.AgentManager.NoSecrets")) {
        const NetworkManagerResult result = ResultOf(reply, NetworkProfile::Signature());
        if (result != NetworkManagerResultSuccess) {
            End(result);
            return;
        }
        const QVariantMap keys = qdbus_cast<NMVariantMapMap>(reply.arguments().at(0).value<QDBusArgument>())
                                     .value(SecuritySection());
        for (QVariantMap::const_iterator i = keys.constBegin(); i != keys.constEnd(); ++i) {
            m_changed.settings[SecuritySection()].insert(i.key(), i.value());
        }
    }
    if (m_changed.version == 0) {
        SendChange();
    } else {
        Ask(ManagedObjects::Call(), &CProfileWriter::TakeVersionAfterKeys);
    }
}

void CProfileWriter::TakeVersionAfterKeys(const QDBusMessage &reply)
{
    NetworkManagerResult result = ResultOf(reply, ManagedObjects::signature);
    if (result == NetworkManagerResultSuccess) {
        const quint64 version =
            NetworkManagerState::PlaceOf(m_changed.path, ManagedObjects::FromReply(reply)).version;
        // The question for the keys counts as one change itself (seen with 1.52). Of a profile that is gone
        // no version is told.
        if (version == 0 || version > m_changed.version + 1) {
            result = NetworkManagerResultChangedMeanwhile;
        }
        m_changed.version = version;
    }
    if (result == NetworkManagerResultSuccess) {
        SendChange();
    } else {
        End(result);
    }
}

void CProfileWriter::SendChange()
{
    NetworkSecurity::Apply(m_waiting.constFirst(), &m_changed.settings);
    Ask(ProfileUpdate::Call(m_changed, m_changed.settings), &CProfileWriter::TakeChanged);
}

void CProfileWriter::TakeChanged(const QDBusMessage &reply)
{
    const NetworkManagerResult result = ResultOf(reply, ProfileUpdate::signature);
    if (result == NetworkManagerResultSuccess) {
        m_picture->Expect(m_changed.path);
    }
    End(result);
}

void CProfileWriter::Ask(const QDBusMessage &call, Step then)
{
    m_batch = new CCallBatch(m_client, QList<QDBusMessage>() << call, CTimeLimit(storeMilliseconds), this);
    connect(m_batch, &CCallBatch::Finished, this, [this, then] {
        const QDBusMessage reply = m_batch->Replies().constFirst();
        m_batch->deleteLater();
        m_batch = nullptr;
        (this->*then)(reply);
    });
    m_batch->Start();
    // So that one that does not answer is told from one that is waiting for a password.
    m_client->Check();
}

void CProfileWriter::End(NetworkManagerResult result)
{
    const QString name = m_waiting.takeFirst().profileName;
    const QString better = m_better;
    m_better.clear();
    m_changed = NetworkProfile();
    emit Ended(result, name, better);
    Continue();
}
