#include "LivePicture.h"

#include "FailureWords.h"

#include <CallBatch.h>
#include <NetworkManagerClient.h>
#include <NetworkSecurity.h>
#include <ProfileReader.h>
#include <TimeLimit.h>

#include <NetworkManagerQt/Setting>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDateTime>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace
{

// Stations come and go by the dozen when a device has looked for them.
const int pauseMilliseconds = 50;
const int retryMilliseconds = 10000;
const int checkMilliseconds = 6000;
const int pauseBetweenLooks = 10000;
// Nobody waits for these.
const int readMilliseconds = 60000;

} // namespace

CLivePicture::CLivePicture(CNetworkManagerClient *client, QObject *parent)
    : QObject(parent), m_client(client), m_isStateDue(false), m_areRecordsDue(true),
      m_result(NetworkManagerResultNotKnownYet), m_reader(nullptr), m_batch(nullptr), m_rightsBatch(nullptr)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SIGNAL(Changed()));
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryMilliseconds);
    connect(&m_retry, SIGNAL(timeout()), this, SLOT(Read()));
    m_check.setInterval(checkMilliseconds);
    connect(&m_check, SIGNAL(timeout()), this, SLOT(Check()));

    connect(m_client, SIGNAL(Appeared()), this, SLOT(Read()));
    connect(m_client, SIGNAL(Vanished()), this, SLOT(TakeLoss()));
    connect(m_client, SIGNAL(FellSilent()), this, SLOT(TakeSilence()));

    const char *const takeSignal = SLOT(TakeSignal(QDBusMessage));
    m_client->Listen(CNetworkManagerClient::RootPath(), CNetworkManagerClient::ObjectsInterface(),
                     QLatin1String("InterfacesAdded"), QString(), this, takeSignal);
    m_client->Listen(CNetworkManagerClient::RootPath(), CNetworkManagerClient::ObjectsInterface(),
                     QLatin1String("InterfacesRemoved"), QString(), this, takeSignal);
    m_client->Listen(QString(), CNetworkManagerClient::PropertiesInterface(),
                     QLatin1String("PropertiesChanged"), QString(), this, takeSignal);
    m_client->Listen(QString(), CNetworkManagerClient::DeviceInterface(), QLatin1String("StateChanged"),
                     QString(), this, SLOT(TakeDeviceState(QDBusMessage)));
    m_client->Listen(QString(), CNetworkManagerClient::ActiveConnectionInterface(),
                     QLatin1String("StateChanged"), QString(), this, SLOT(TakeConnectionState(QDBusMessage)));
    m_client->Listen(QString(), CNetworkManagerClient::ProfileInterface(), QLatin1String("Updated"),
                     QString(), this, SLOT(TakeProfileChange(QDBusMessage)));
    m_client->Listen(CNetworkManagerClient::ManagerPath(), CNetworkManagerClient::ManagerInterface(),
                     QLatin1String("CheckPermissions"), QString(), this, SLOT(AskForRights()));
    if (m_client->HasBus()) {
        Read();
    }
}

const ConnectionPicture &CLivePicture::Now()
{
    // What has arrived and not yet been looked at.
    m_client->TakeArrived();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    if (m_isStateDue) {
        m_picture.state = NetworkManagerState::FromObjects(m_objects);
        m_isStateDue = false;
    }
    return m_picture;
}

bool CLivePicture::IsOnItsWay()
{
    Now();
    return m_client->IsSeekingBus() || m_reader || m_batch || !m_due.isEmpty();
}

const ConnectionRecords &CLivePicture::Records()
{
    const ConnectionPicture &picture = Now();
    if (m_areRecordsDue) {
        m_records = ConnectionRecords::Of(picture);
        m_areRecordsDue = false;
    }
    return m_records;
}

void CLivePicture::Read()
{
    Drop(ConnectionState::SourceNotKnown, NetworkManagerResultNotKnownYet);
    m_reader = new CProfileReader(m_client, CTimeLimit(readMilliseconds), this);
    connect(m_reader, SIGNAL(Finished()), this, SLOT(TakeReading()));
    m_reader->Start();
}

void CLivePicture::Drop(int source, NetworkManagerResult result)
{
    if (m_reader) {
        m_reader->disconnect(this);
        m_reader->deleteLater();
        m_reader = nullptr;
    }
    delete m_batch;
    m_batch = nullptr;
    delete m_rightsBatch;
    m_rightsBatch = nullptr;
    m_retry.stop();
    m_early.clear();
    m_due.clear();
    m_objects.clear();
    m_picture = ConnectionPicture();
    m_picture.source = source;
    m_isStateDue = false;
    m_result = result;
    m_missed.clear();
    NoteChange();
}

void CLivePicture::TakeReading()
{
    CProfileReader *const reader = m_reader;
    m_reader = nullptr;
    reader->deleteLater();
    m_result = reader->Result();
    if (m_result != NetworkManagerResultSuccess) {
        m_early.clear();
        const bool isGone =
            m_result == NetworkManagerResultNotRunning || m_result == NetworkManagerResultNoBus;
        m_picture.source = isGone ? ConnectionState::SourceGone : ConnectionState::SourceNotKnown;
        if (!isGone && !m_client->IsSilent()) {
            m_retry.start();
        }
        NoteChange();
        return;
    }
    m_objects = reader->Objects();
    m_picture.state = reader->State();
    m_picture.profiles = reader->Profiles();
    m_picture.rights = reader->Rights();
    m_picture.source = ConnectionState::SourceKnown;
    m_missed = reader->Missed();
    const QList<QDBusMessage> early = m_early;
    m_early.clear();
    for (const QDBusMessage &signal : early) {
        Apply(signal);
    }
    NoteChange();
    AskForProfiles();
}

void CLivePicture::TakeSignal(const QDBusMessage &signal)
{
    if (m_check.isActive()) {
        // Who speaks need not be asked for a sign.
        m_check.start();
    }
    if (m_reader) {
        m_early.append(signal);
    } else if (m_picture.source == ConnectionState::SourceKnown) {
        Apply(signal);
        AskForProfiles();
    }
}

void CLivePicture::Apply(const QDBusMessage &signal)
{
    const QString path = ManagedObjects::Apply(signal, &m_objects);
    if (path.isEmpty()) {
        return;
    }
    m_isStateDue = true;
    NoteChange();
    const NMVariantMapMap interfaces = m_objects.value(path);
    if (interfaces.contains(CNetworkManagerClient::ProfileInterface())) {
        m_due.insert(path);
    } else {
        ForgetProfile(path);
        // Its settings may have been asked for, and told, before it went.
        const int place = m_asked.indexOf(path);
        if (place != -1) {
            m_asked[place].clear();
        }
    }
    if (path.contains(QLatin1String("/ActiveConnection/"))) {
        NoteSuccess(path);
        emit ConnectionMoved(path);
    }
}

void CLivePicture::ForgetProfile(const QString &path)
{
    m_due.remove(path);
    m_missed.remove(path);
    m_picture.failures.remove(path);
    for (int i = 0; i < m_picture.profiles.size(); ++i) {
        if (m_picture.profiles.at(i).path == path) {
            m_picture.profiles.removeAt(i);
            return;
        }
    }
}

void CLivePicture::TakeProfileChange(const QDBusMessage &signal)
{
    if (m_reader || m_picture.source == ConnectionState::SourceKnown) {
        m_due.insert(signal.path());
        AskForProfiles();
    }
}

void CLivePicture::AskForProfiles()
{
    if (!m_reader && !m_batch && !m_due.isEmpty()) {
        BeginBatch();
    }
}

void CLivePicture::BeginBatch()
{
    m_asked = m_due.values();
    m_due.clear();
    QList<QDBusMessage> calls;
    for (const QString &path : std::as_const(m_asked)) {
        calls.append(CNetworkManagerClient::Call(path, CNetworkManagerClient::ProfileInterface(),
                                                 QLatin1String("GetSettings")));
    }
    m_batch = new CCallBatch(m_client, calls, CTimeLimit(readMilliseconds), this);
    connect(m_batch, SIGNAL(Finished()), this, SLOT(TakeProfiles()));
    m_batch->Start();
}

void CLivePicture::TakeProfiles()
{
    const QList<QDBusMessage> replies = m_batch->Replies();
    m_batch->deleteLater();
    m_batch = nullptr;
    for (int i = 0; i < replies.size(); ++i) {
        if (!m_asked.at(i).isEmpty()) {
            StoreProfile(m_asked.at(i), replies.at(i));
        }
    }
    NoteChange();
    AskForProfiles();
}

void CLivePicture::StoreProfile(const QString &path, const QDBusMessage &reply)
{
    const NetworkManagerResult result = ResultOf(reply, NetworkProfile::Signature());
    m_client->Note(result);
    if (m_picture.source != ConnectionState::SourceKnown) {
        return;
    }
    const ProfileFailure failure = m_picture.failures.value(path);
    const bool isDue = m_due.contains(path);
    ForgetProfile(path);
    if (isDue) {
        m_due.insert(path);
    }
    if (CProfileReader::IsMissed(reply)) {
        m_missed.insert(path, result);
    } else if (result == NetworkManagerResultSuccess) {
        const NetworkProfile profile =
            NetworkProfile::Make(NetworkManagerState::PlaceOf(path, m_objects),
                                 qdbus_cast<NMVariantMapMap>(reply.arguments().at(0).value<QDBusArgument>()),
                                 m_picture.rights, CallerRights::UserName());
        m_picture.profiles.insert(std::upper_bound(m_picture.profiles.begin(), m_picture.profiles.end(),
                                                   profile, NetworkProfile::ComesBefore),
                                  profile);
        if (failure.failure != FailureNone) {
            m_picture.failures.insert(path, failure);
        }
    }
}

void CLivePicture::Expect(const QString &profile)
{
    if (m_picture.source == ConnectionState::SourceKnown) {
        m_due.insert(profile);
        AskForProfiles();
    }
}

void CLivePicture::AskForRights()
{
    if (m_picture.source != ConnectionState::SourceKnown) {
        return;
    }
    delete m_rightsBatch;
    m_rightsBatch = new CCallBatch(m_client, QList<QDBusMessage>() << CallerRights::Call(),
                                   CTimeLimit(readMilliseconds), this);
    connect(m_rightsBatch, SIGNAL(Finished()), this, SLOT(TakeRights()));
    m_rightsBatch->Start();
}

void CLivePicture::TakeRights()
{
    const QDBusMessage reply = m_rightsBatch->Replies().at(0);
    m_rightsBatch->deleteLater();
    m_rightsBatch = nullptr;
    if (ResultOf(reply, CallerRights::Signature()) != NetworkManagerResultSuccess) {
        return;
    }
    m_picture.rights = CallerRights::FromReply(reply);
    const QString userName = CallerRights::UserName();
    for (NetworkProfile &profile : m_picture.profiles) {
        profile = NetworkProfile::Make(NetworkManagerState::PlaceOf(profile.path, m_objects),
                                       profile.settings, m_picture.rights, userName);
    }
    NoteChange();
}

void CLivePicture::TakeDeviceState(const QDBusMessage &signal)
{
    const QList<QVariant> arguments = signal.arguments();
    if (m_picture.source != ConnectionState::SourceKnown || signal.signature() != QLatin1String("uuu") ||
        arguments.at(0).toUInt() != NM_DEVICE_STATE_FAILED) {
        return;
    }
    const QString connection = m_objects.value(signal.path())
                                   .value(CNetworkManagerClient::DeviceInterface())
                                   .value(QLatin1String("ActiveConnection"))
                                   .toString();
    const QString profile = ProfileOf(connection);
    ProfileFailure failure;
    failure.failure = FailureWords::FailureOfDevice(arguments.at(2).toUInt(), HasKey(profile));
    failure.when = QDateTime::currentMSecsSinceEpoch() / 1000;
    if (!profile.isEmpty()) {
        m_picture.failures.insert(profile, failure);
        NoteChange();
    }
    emit ConnectionFailed(connection, FailureWords::StageOf(arguments.at(1).toUInt()), failure.failure);
}

void CLivePicture::TakeConnectionState(const QDBusMessage &signal)
{
    const QList<QVariant> arguments = signal.arguments();
    if (m_picture.source == ConnectionState::SourceKnown && signal.signature() == QLatin1String("uu") &&
        arguments.at(0).toUInt() == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED) {
        emit ConnectionFailed(
            signal.path(), StageNotKnown,
            FailureWords::FailureOfConnection(arguments.at(1).toUInt(), HasKey(ProfileOf(signal.path()))));
    }
}

void CLivePicture::NoteSuccess(const QString &connection)
{
    const QVariantMap properties =
        m_objects.value(connection).value(CNetworkManagerClient::ActiveConnectionInterface());
    if (properties.value(QLatin1String("State")).toUInt() == NM_ACTIVE_CONNECTION_STATE_ACTIVATED) {
        const QString profile = properties.value(QLatin1String("Connection")).toString();
        m_picture.failures.remove(profile);
        // When it was last connected is another time now, which NetworkManager doesn't tell of itself.
        m_due.insert(profile);
    }
}

QString CLivePicture::ProfileOf(const QString &connection)
{
    const QString profile = m_objects.value(connection)
                                .value(CNetworkManagerClient::ActiveConnectionInterface())
                                .value(QLatin1String("Connection"))
                                .toString();
    return profile == QLatin1String("/") ? QString() : profile;
}

bool CLivePicture::HasKey(const QString &profile) const
{
    for (const NetworkProfile &known : m_picture.profiles) {
        if (known.path == profile) {
            return NetworkSecurity::KeepsKey(known.settings);
        }
    }
    return false;
}

void CLivePicture::TakeLoss()
{
    Drop(ConnectionState::SourceGone,
         m_client->HasBus() ? NetworkManagerResultNotRunning : NetworkManagerResultNoBus);
}

void CLivePicture::TakeSilence()
{
    if (!m_reader) {
        Drop(ConnectionState::SourceNotKnown, NetworkManagerResultNotAnswering);
    }
}

void CLivePicture::Check()
{
    emit AboutToAskForSign();
    if (m_check.isActive() && m_picture.source == ConnectionState::SourceKnown) {
        m_client->Check();
    }
}

void CLivePicture::LookForNetworks()
{
    const bool isTooSoon = m_sinceLook.isValid() && !m_sinceLook.hasExpired(pauseBetweenLooks);
    const QList<NetworkDevice> devices = Now().state.WifiDevices();
    if (devices.isEmpty() || m_picture.rights.scan != CallerRights::Allowed || isTooSoon) {
        return;
    }
    for (const NetworkDevice &device : devices) {
        QDBusMessage call = CNetworkManagerClient::Call(
            device.path, CNetworkManagerClient::WirelessDeviceInterface(), QLatin1String("RequestScan"));
        call << QVariantMap();
        m_client->Tell(call);
    }
    m_sinceLook.start();
}

void CLivePicture::SetWatched(bool isWatched)
{
    if (isWatched && !m_check.isActive()) {
        m_check.start();
    } else if (!isWatched) {
        m_check.stop();
    }
}

void CLivePicture::NoteChange()
{
    m_areRecordsDue = true;
    if (!m_pause.isActive()) {
        m_pause.start();
    }
}
