#include <ExtendDialog.h>
#include <ExtendLineEdit.h>
#include <IConnectionPlugin.h>
#include <INotify.h>
#include <IOrderPlugin.h>
#include <IPluginContainer.h>
#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>
#include <IUIPlugin.h>
#include <IWLANUIPlugin.h>

#include <QByteArray>

#include <cstddef>
#include <cstring>

/*
 * What a compiler makes of the contracts: the other side of the boundary tests, and the only file of theirs
 * that includes the contracts. It tells one fact a line, "<what> = <value>".
 */

namespace
{

QByteArray facts;

void Tell(const QByteArray &what, const QByteArray &value)
{
    facts += what + " = " + value + '\n';
}

/**
 * A pointer to a virtual operation holds the place of the operation in the table. Compilers mark it as such
 * in the lowest bit of either of its two words.
 */
struct OperationPointer {
    std::ptrdiff_t place;
    std::ptrdiff_t adjustment;
};

/** "<position in the table>", and " of part <number>" when it isn't the table of the first part. */
template <typename Pointer> QByteArray PlaceOf(Pointer operation)
{
    static_assert(sizeof(Pointer) == sizeof(OperationPointer), "pointers to operations have another shape");
    OperationPointer pointer;
    std::memcpy(&pointer, &operation, sizeof(pointer));
    const bool isMarkedInPlace = pointer.place & 1;
    const std::ptrdiff_t place = isMarkedInPlace ? pointer.place - 1 : pointer.place;
    const std::ptrdiff_t adjustment = isMarkedInPlace ? pointer.adjustment : pointer.adjustment >> 1;
    const std::ptrdiff_t word = static_cast<std::ptrdiff_t>(sizeof(void *));
    QByteArray text = QByteArray::number(static_cast<int>(place / word + 1));
    if (adjustment) {
        text += " of part " + QByteArray::number(static_cast<int>(adjustment / word + 1));
    }
    return text;
}

void TellWord(const char *name, int number)
{
    Tell("number of " + QByteArray(name), QByteArray::number(number));
}

template <typename Interface> class Slots
{
public:
    explicit Slots(const char *name) : m_name(name) {}

    template <typename Operation> void Add(const char *name, Operation Interface::*operation) const
    {
        Tell(QByteArray(m_name) + "::" + name, PlaceOf(operation));
    }

    /** Where the operations of a class derived from the interface begin. */
    void AddEnd() const
    {
        struct Longer : Interface {
            virtual void OneMore() = 0;
        };
        Tell(QByteArray(m_name) + "::(end)", PlaceOf(&Longer::OneMore));
    }

private:
    const char *m_name;
};

template <typename Record> class Fields
{
public:
    explicit Fields(const char *name) : m_name(name)
    {
        Tell("size of " + QByteArray(m_name), QByteArray::number(static_cast<int>(sizeof(Record))));
    }

    template <typename Field> void Add(const char *name, Field Record::*field) const
    {
        const Record record = Record();
        const char *const begin = reinterpret_cast<const char *>(&record);
        const char *const place = reinterpret_cast<const char *>(&(record.*field));
        Tell(QByteArray(m_name) + '.' + name, QByteArray::number(static_cast<int>(place - begin)));
    }

private:
    const char *m_name;
};

// The types are written out, so that this doesn't compile when a result or an argument changes.

void TellRootInterfaces()
{
    const Slots<IBaseInterface> base("IBaseInterface");
    base.Add<void()>("Release", &IBaseInterface::Release);
    base.Add<int()>("GetLastError", &IBaseInterface::GetLastError);
    base.AddEnd();

    const Slots<IDestroyEvent> destroyEvent("IDestroyEvent");
    destroyEvent.Add<void()>("OnDestroy", &IDestroyEvent::OnDestroy);
    destroyEvent.Add<void()>("UnSDKRegisterEvent", &IDestroyEvent::UnSDKRegisterEvent);
    destroyEvent.AddEnd();

    const Slots<IBasePlugin> basePlugin("IBasePlugin");
    basePlugin.Add<void()>("Release", &IBasePlugin::Release);
    basePlugin.Add<int()>("GetLastError", &IBasePlugin::GetLastError);
    basePlugin.Add<void()>("OnDestroy", &IBasePlugin::OnDestroy);
    basePlugin.Add<void()>("UnSDKRegisterEvent", &IBasePlugin::UnSDKRegisterEvent);
    basePlugin.Add<bool()>("Init", &IBasePlugin::Init);
    basePlugin.Add<int()>("GetPluginType", &IBasePlugin::GetPluginType);
    basePlugin.Add<QString()>("GetCLSID", &IBasePlugin::GetCLSID);
    basePlugin.Add<int()>("GetVersion", &IBasePlugin::GetVersion);
    basePlugin.Add<QString()>("GetPluginName", &IBasePlugin::GetPluginName);
    basePlugin.Add<bool()>("IsAllowRelease", &IBasePlugin::IsAllowRelease);
    basePlugin.Add<bool(int, QObject **)>("QueryInterface", &IBasePlugin::QueryInterface);
    basePlugin.AddEnd();

    const Slots<IUIPlugin> uiPlugin("IUIPlugin");
    uiPlugin.Add<void()>("Release", &IUIPlugin::Release);
    uiPlugin.Add<int()>("GetLastError", &IUIPlugin::GetLastError);
    uiPlugin.Add<void()>("OnDestroy", &IUIPlugin::OnDestroy);
    uiPlugin.Add<void()>("UnSDKRegisterEvent", &IUIPlugin::UnSDKRegisterEvent);
    uiPlugin.Add<bool()>("Init", &IUIPlugin::Init);
    uiPlugin.Add<int()>("GetPluginType", &IUIPlugin::GetPluginType);
    uiPlugin.Add<QString()>("GetCLSID", &IUIPlugin::GetCLSID);
    uiPlugin.Add<int()>("GetVersion", &IUIPlugin::GetVersion);
    uiPlugin.Add<QString()>("GetPluginName", &IUIPlugin::GetPluginName);
    uiPlugin.Add<bool()>("IsAllowRelease", &IUIPlugin::IsAllowRelease);
    uiPlugin.Add<bool(int, QObject **)>("QueryInterface", &IUIPlugin::QueryInterface);
    uiPlugin.Add<bool(QWidget *, QRect &)>("ShowWindow", &IUIPlugin::ShowWindow);
    uiPlugin.Add<int()>("DoModal", &IUIPlugin::DoModal);
    uiPlugin.Add<void()>("Hide", &IUIPlugin::Hide);
    uiPlugin.Add<void(QRect &)>("FitSize", &IUIPlugin::FitSize);
    uiPlugin.Add<bool()>("IsReady", &IUIPlugin::IsReady);
    uiPlugin.Add<bool(const QString &)>("ChangeLang", &IUIPlugin::ChangeLang);
    uiPlugin.AddEnd();

    const Slots<INotify> notify("INotify");
    notify.Add<int(unsigned int, unsigned int, unsigned int)>("Notify", &INotify::Notify);
    notify.AddEnd();
}

void TellServiceInterfaces()
{
    const Slots<ISettingUIPlugin> setting("ISettingUIPlugin");
    setting.Add<bool()>("OnClickSettingOkButton", &ISettingUIPlugin::OnClickSettingOkButton);
    setting.Add<bool()>("OnClickSettingCancelButton", &ISettingUIPlugin::OnClickSettingCancelButton);
    setting.Add<bool(QWidget *, QRect &)>("ShowSettingDialog", &ISettingUIPlugin::ShowSettingDialog);
    setting.Add<QString()>("GetModuleName", &ISettingUIPlugin::GetModuleName);
    setting.Add<bool()>("HideSetting", &ISettingUIPlugin::HideSetting);
    setting.Add<bool()>("IsActiveSetting", &ISettingUIPlugin::IsActiveSetting);
    setting.AddEnd();

    const Slots<IPriorityPlugin> priority("IPriorityPlugin");
    priority.Add<int(QList<PriorityList> *)>("GetPriorityList", &IPriorityPlugin::GetPriorityList);
    priority.Add<void(QList<PriorityList> &)>("AddPriorityList", &IPriorityPlugin::AddPriorityList);
    priority.Add<void(PriorityList)>("AddTopPriority", &IPriorityPlugin::AddTopPriority);
    priority.AddEnd();
}

void TellWlanInterface()
{
    const Slots<IWLANUIPlugin> wlan("IWLANUIPlugin");
    wlan.Add<void()>("Reserved3", &IWLANUIPlugin::Reserved3);
    wlan.Add<void()>("Reserved4", &IWLANUIPlugin::Reserved4);
    wlan.Add<void()>("Reserved5", &IWLANUIPlugin::Reserved5);
    wlan.Add<void()>("Reserved6", &IWLANUIPlugin::Reserved6);
    wlan.Add<int(WLANProfile)>("CreateWLANProfile", &IWLANUIPlugin::CreateWLANProfile);
    wlan.Add<int(QList<RememberedList> *)>("GetRememberedList", &IWLANUIPlugin::GetRememberedList);
    wlan.Add<void()>("Reserved9", &IWLANUIPlugin::Reserved9);
    wlan.Add<int(QString, WLANProfile *)>("GetProfileByName", &IWLANUIPlugin::GetProfileByName);
    wlan.Add<int(WLANConfigData *)>("GetConfigData", &IWLANUIPlugin::GetConfigData);
    wlan.Add<void()>("Reserved12", &IWLANUIPlugin::Reserved12);
    wlan.Add<void()>("Reserved13", &IWLANUIPlugin::Reserved13);
    wlan.Add<void()>("Reserved14", &IWLANUIPlugin::Reserved14);
    wlan.Add<void()>("Reserved15", &IWLANUIPlugin::Reserved15);
    wlan.Add<void()>("Reserved16", &IWLANUIPlugin::Reserved16);
    wlan.Add<void()>("Reserved17", &IWLANUIPlugin::Reserved17);
    wlan.Add<void()>("Reserved18", &IWLANUIPlugin::Reserved18);
    wlan.Add<void()>("Reserved19", &IWLANUIPlugin::Reserved19);
    wlan.Add<void()>("Reserved20", &IWLANUIPlugin::Reserved20);
    wlan.Add<void()>("Reserved21", &IWLANUIPlugin::Reserved21);
    wlan.Add<int(QList<WlanAvilableNetworkInfo> *)>("GetAvailableNetworks",
                                                    &IWLANUIPlugin::GetAvailableNetworks);
    wlan.Add<int(const WlanAvilableNetworkInfo &, WLANProfile *)>("GetNetworkProfile",
                                                                  &IWLANUIPlugin::GetNetworkProfile);
    wlan.AddEnd();
}

void TellConnectionInterface()
{
    const Slots<IConnectionPlugin> connections("IConnectionPlugin");
    connections.Add<void(ConnectionState *)>("GetConnectionState", &IConnectionPlugin::GetConnectionState);
    connections.Add<void(QList<ActiveConnection> *)>("GetActiveConnections",
                                                     &IConnectionPlugin::GetActiveConnections);
    connections.Add<void(QList<ConnectionProfile> *)>("GetProfiles", &IConnectionPlugin::GetProfiles);
    connections.Add<void(QList<VisibleNetwork> *)>("GetVisibleNetworks",
                                                   &IConnectionPlugin::GetVisibleNetworks);
    connections.Add<void()>("LookForNetworks", &IConnectionPlugin::LookForNetworks);
    connections.Add<int(const QString &)>("ConnectProfile", &IConnectionPlugin::ConnectProfile);
    connections.Add<int(const QString &, const QString &)>("ConnectNetwork",
                                                           &IConnectionPlugin::ConnectNetwork);
    connections.Add<int(const QString &)>("Disconnect", &IConnectionPlugin::Disconnect);
    connections.Add<void(int, ConnectAttempt *)>("GetAttempt", &IConnectionPlugin::GetAttempt);
    connections.Add<void(int)>("CancelAttempt", &IConnectionPlugin::CancelAttempt);
    connections.Add<void(const QString &, ProfileDetails *)>("GetProfileDetails",
                                                             &IConnectionPlugin::GetProfileDetails);
    connections.Add<int(const QString &, const QString &)>("Forget", &IConnectionPlugin::Forget);
    connections.AddEnd();
}

void TellOrderInterface()
{
    const Slots<IOrderPlugin> order("IOrderPlugin");
    order.Add<int()>("Apply", &IOrderPlugin::Apply);
    order.Add<void(int, OrderOutcome *)>("GetOutcome", &IOrderPlugin::GetOutcome);
    order.Add<void(OrderOutcome *)>("GetStanding", &IOrderPlugin::GetStanding);
    order.Add<int(const QString &, bool)>("SetConnectsByItself", &IOrderPlugin::SetConnectsByItself);
    order.AddEnd();
}

void TellHostClasses()
{
    const Slots<IPluginContainer> container("IPluginContainer");
    container.Add<QObject *(const QString &, int)>("GetPluginObject", &IPluginContainer::GetPluginObject);
    container.AddEnd();

    // Plug-ins derive from these and so build on their size and on the length of their table.
    Slots<QDialog>("QDialog").AddEnd();
    Slots<ExtendDialog>("ExtendDialog").AddEnd();
    Slots<QLineEdit>("QLineEdit").AddEnd();
    Slots<ExtendLineEdit>("ExtendLineEdit").AddEnd();
    Tell("words that ExtendDialog adds",
         QByteArray::number(static_cast<int>((sizeof(ExtendDialog) - sizeof(QDialog)) / sizeof(void *))));
    Tell("words that ExtendLineEdit adds",
         QByteArray::number(static_cast<int>((sizeof(ExtendLineEdit) - sizeof(QLineEdit)) / sizeof(void *))));
    Tell("enWidgetTypeDialog", QByteArray::number(static_cast<int>(enWidgetTypeDialog)));
}

void TellRecords()
{
    const Fields<PriorityList> entry("PriorityList");
    entry.Add<QString>("name", &PriorityList::name);
    entry.Add<QString>("type", &PriorityList::type);

    const Fields<WLANProfile> profile("WLANProfile");
    profile.Add<QString>("profileName", &WLANProfile::profileName);
    profile.Add<QString>("text1", &WLANProfile::text1);
    profile.Add<QString>("text2", &WLANProfile::text2);
    profile.Add<QString>("text3", &WLANProfile::text3);
    profile.Add<QString>("text4", &WLANProfile::text4);
    profile.Add<QString>("ssid", &WLANProfile::ssid);
    profile.Add<QString>("bssType", &WLANProfile::bssType);
    profile.Add<QString>("connectionMode", &WLANProfile::connectionMode);
    profile.Add<QString>("authentication", &WLANProfile::authentication);
    profile.Add<QString>("encryption", &WLANProfile::encryption);
    profile.Add<QString>("keyType", &WLANProfile::keyType);
    profile.Add<QString>("keyFlag", &WLANProfile::keyFlag);
    profile.Add<QString>("keyMaterial", &WLANProfile::keyMaterial);
    profile.Add<QString>("keyIndex", &WLANProfile::keyIndex);
    profile.Add<QString>("text14", &WLANProfile::text14);
    profile.Add<QString>("readOnly", &WLANProfile::readOnly);
    profile.Add<QString>("text16", &WLANProfile::text16);
    profile.Add<QString>("text17", &WLANProfile::text17);

    const Fields<WlanAvilableNetworkInfo> network("WlanAvilableNetworkInfo");
    network.Add<QString>("networkName", &WlanAvilableNetworkInfo::networkName);
    network.Add<int>("value1", &WlanAvilableNetworkInfo::value1);
    network.Add<int>("value2", &WlanAvilableNetworkInfo::value2);
    network.Add<int>("value3", &WlanAvilableNetworkInfo::value3);
    network.Add<int>("value4", &WlanAvilableNetworkInfo::value4);
    network.Add<int>("value5", &WlanAvilableNetworkInfo::value5);

    const Fields<RememberedList> remembered("RememberedList");
    remembered.Add<QString>("name", &RememberedList::name);
    remembered.Add<QString>("type", &RememberedList::type);

    const Fields<WisprInfo> wispr("WisprInfo");
    wispr.Add<QString>("wisprText1", &WisprInfo::wisprText1);
    wispr.Add<QString>("wisprText2", &WisprInfo::wisprText2);
    wispr.Add<QString>("wisprText3", &WisprInfo::wisprText3);

    const Fields<WLANConfigData> configuration("WLANConfigData");
    configuration.Add<QHash<QString, QString>>("settings", &WLANConfigData::settings);
    configuration.Add<QList<QString>>("authenticationList", &WLANConfigData::authenticationList);
    configuration.Add<QList<QString>>("textList2", &WLANConfigData::textList2);
    configuration.Add<QList<QString>>("textList3", &WLANConfigData::textList3);
    configuration.Add<QList<WisprInfo>>("wisprList", &WLANConfigData::wisprList);
}

void TellConnectionRecords()
{
    const Fields<ConnectionState> state("ConnectionState");
    state.Add<QString>("sourceName", &ConnectionState::sourceName);
    state.Add<int>("source", &ConnectionState::source);
    state.Add<int>("wifi", &ConnectionState::wifi);
    state.Add<int>("mobile", &ConnectionState::mobile);
    state.Add<int>("connectivity", &ConnectionState::connectivity);
    state.Add<bool>("mayConnect", &ConnectionState::mayConnect);

    const Fields<ActiveConnection> active("ActiveConnection");
    active.Add<QString>("id", &ActiveConnection::id);
    active.Add<QString>("profileId", &ActiveConnection::profileId);
    active.Add<QString>("name", &ActiveConnection::name);
    active.Add<QString>("type", &ActiveConnection::type);
    active.Add<QString>("network", &ActiveConnection::network);
    active.Add<QString>("device", &ActiveConnection::device);
    active.Add<int>("stage", &ActiveConnection::stage);
    active.Add<int>("signal", &ActiveConnection::signal);
    active.Add<bool>("carriesTraffic", &ActiveConnection::carriesTraffic);
    active.Add<bool>("isVpn", &ActiveConnection::isVpn);

    const Fields<ConnectionProfile> profile("ConnectionProfile");
    profile.Add<QString>("id", &ConnectionProfile::id);
    profile.Add<QString>("name", &ConnectionProfile::name);
    profile.Add<QString>("type", &ConnectionProfile::type);
    profile.Add<QString>("network", &ConnectionProfile::network);
    profile.Add<QString>("security", &ConnectionProfile::security);
    profile.Add<QString>("device", &ConnectionProfile::device);
    profile.Add<int>("use", &ConnectionProfile::use);
    profile.Add<int>("signal", &ConnectionProfile::signal);
    profile.Add<int>("failure", &ConnectionProfile::failure);
    profile.Add<qint64>("failedAt", &ConnectionProfile::failedAt);
    profile.Add<qint64>("lastConnected", &ConnectionProfile::lastConnected);
    profile.Add<bool>("connectsByItself", &ConnectionProfile::connectsByItself);
    profile.Add<bool>("isHidden", &ConnectionProfile::isHidden);
    profile.Add<QString>("lastingId", &ConnectionProfile::lastingId);
}

void TellNetworkRecords()
{
    const Fields<VisibleNetwork> network("VisibleNetwork");
    network.Add<QString>("id", &VisibleNetwork::id);
    network.Add<QString>("name", &VisibleNetwork::name);
    network.Add<QString>("security", &VisibleNetwork::security);
    network.Add<int>("protection", &VisibleNetwork::protection);
    network.Add<int>("signal", &VisibleNetwork::signal);
    network.Add<QStringList>("profileIds", &VisibleNetwork::profileIds);
    network.Add<bool>("isInUse", &VisibleNetwork::isInUse);

    const Fields<ConnectAttempt> attempt("ConnectAttempt");
    attempt.Add<QString>("name", &ConnectAttempt::name);
    attempt.Add<QString>("profileId", &ConnectAttempt::profileId);
    attempt.Add<int>("stage", &ConnectAttempt::stage);
    attempt.Add<int>("failedStage", &ConnectAttempt::failedStage);
    attempt.Add<int>("failure", &ConnectAttempt::failure);

    const Fields<ProfileDetails> details("ProfileDetails");
    details.Add<QString>("id", &ProfileDetails::id);
    details.Add<QString>("boundDevice", &ProfileDetails::boundDevice);
    details.Add<int>("metered", &ProfileDetails::metered);
    details.Add<int>("change", &ProfileDetails::change);
    details.Add<QStringList>("users", &ProfileDetails::users);
    details.Add<int>("priority", &ProfileDetails::priority);
    details.Add<bool>("areUsersKnown", &ProfileDetails::areUsersKnown);
    details.Add<bool>("isPriorityKnown", &ProfileDetails::isPriorityKnown);
}

void TellOrderRecords()
{
    const Fields<OrderChange> change("OrderChange");
    change.Add<QString>("name", &OrderChange::name);
    change.Add<int>("before", &OrderChange::before);
    change.Add<int>("after", &OrderChange::after);

    const Fields<OrderKept> kept("OrderKept");
    kept.Add<QString>("name", &OrderKept::name);
    kept.Add<int>("obstacle", &OrderKept::obstacle);
    kept.Add<QString>("profileId", &OrderKept::profileId);

    const Fields<OrderOutcome> outcome("OrderOutcome");
    outcome.Add<int>("stage", &OrderOutcome::stage);
    outcome.Add<int>("failure", &OrderOutcome::failure);
    outcome.Add<QList<OrderChange>>("changes", &OrderOutcome::changes);
    outcome.Add<QList<OrderKept>>("kept", &OrderOutcome::kept);
}

void TellOrderWords()
{
    TellWord("ObstacleNotKnown", ObstacleNotKnown);
    TellWord("ObstacleOtherUsers", ObstacleOtherUsers);
    TellWord("ObstaclePassing", ObstaclePassing);
    TellWord("ObstacleNotAllowed", ObstacleNotAllowed);
    TellWord("ObstaclePassword", ObstaclePassword);
    TellWord("ObstacleRefused", ObstacleRefused);
    TellWord("ObstacleNoAnswer", ObstacleNoAnswer);
    TellWord("ObstacleOwnMetric", ObstacleOwnMetric);
    TellWord("StageOrderNotKnown", OrderOutcome::StageOrderNotKnown);
    TellWord("StageOrderUnderWay", OrderOutcome::StageOrderUnderWay);
    TellWord("StageOrderDone", OrderOutcome::StageOrderDone);
    TellWord("StageOrderFailed", OrderOutcome::StageOrderFailed);
    TellWord("FailureOrderNone", OrderOutcome::FailureOrderNone);
    TellWord("FailureOrderSource", OrderOutcome::FailureOrderSource);
    TellWord("FailureOrderList", OrderOutcome::FailureOrderList);
}

void TellProfileWords()
{
    TellWord("MeteredNotKnown", ProfileDetails::MeteredNotKnown);
    TellWord("MeteredYes", ProfileDetails::MeteredYes);
    TellWord("MeteredNo", ProfileDetails::MeteredNo);
    TellWord("MeteredGuessedYes", ProfileDetails::MeteredGuessedYes);
    TellWord("MeteredGuessedNo", ProfileDetails::MeteredGuessedNo);
    TellWord("ChangeNotKnown", ProfileDetails::ChangeNotKnown);
    TellWord("ChangeAllowed", ProfileDetails::ChangeAllowed);
    TellWord("ChangeAfterPassword", ProfileDetails::ChangeAfterPassword);
    TellWord("ChangeNotAllowed", ProfileDetails::ChangeNotAllowed);
}

void TellConnectionWords()
{
    TellWord("StageNotKnown", StageNotKnown);
    TellWord("StagePreparing", StagePreparing);
    TellWord("StageAuthenticating", StageAuthenticating);
    TellWord("StageGettingAddress", StageGettingAddress);
    TellWord("StageConnected", StageConnected);
    TellWord("StageDisconnecting", StageDisconnecting);
    TellWord("StageDisconnected", StageDisconnected);
    TellWord("StageFailed", StageFailed);
    TellWord("StageCancelled", StageCancelled);
    TellWord("StageForgetting", StageForgetting);
    TellWord("StageForgotten", StageForgotten);
    TellWord("FailureNone", FailureNone);
    TellWord("FailureOther", FailureOther);
    TellWord("FailureWrongKey", FailureWrongKey);
    TellWord("FailureKeyMissing", FailureKeyMissing);
    TellWord("FailureNoAnswer", FailureNoAnswer);
    TellWord("FailureNoAddress", FailureNoAddress);
    TellWord("FailureRefused", FailureRefused);
    TellWord("FailureSim", FailureSim);
    TellWord("FailureStopped", FailureStopped);
    TellWord("FailureDevice", FailureDevice);
    TellWord("FailureNotAllowed", FailureNotAllowed);
    TellWord("FailureSource", FailureSource);
    TellWord("FailureNotStored", FailureNotStored);
    TellWord("SourceNotKnown", ConnectionState::SourceNotKnown);
    TellWord("SourceGone", ConnectionState::SourceGone);
    TellWord("SourceKnown", ConnectionState::SourceKnown);
    TellWord("RadioNotKnown", ConnectionState::RadioNotKnown);
    TellWord("RadioOn", ConnectionState::RadioOn);
    TellWord("RadioOff", ConnectionState::RadioOff);
    TellWord("RadioBlocked", ConnectionState::RadioBlocked);
    TellWord("RadioMissing", ConnectionState::RadioMissing);
    TellWord("ConnectivityNotKnown", ConnectionState::ConnectivityNotKnown);
    TellWord("ConnectivityNone", ConnectionState::ConnectivityNone);
    TellWord("ConnectivityPortal", ConnectionState::ConnectivityPortal);
    TellWord("ConnectivityLimited", ConnectionState::ConnectivityLimited);
    TellWord("ConnectivityFull", ConnectionState::ConnectivityFull);
    TellWord("UseNotKnown", ConnectionProfile::UseNotKnown);
    TellWord("UsePossible", ConnectionProfile::UsePossible);
    TellWord("UseHiddenIsTried", ConnectionProfile::UseHiddenIsTried);
    TellWord("UseOutOfRange", ConnectionProfile::UseOutOfRange);
    TellWord("UseOtherSecurity", ConnectionProfile::UseOtherSecurity);
    TellWord("UseOtherDevice", ConnectionProfile::UseOtherDevice);
    TellWord("UseNoDevice", ConnectionProfile::UseNoDevice);
    TellWord("UseDeviceOff", ConnectionProfile::UseDeviceOff);
    TellWord("UseDeviceBlocked", ConnectionProfile::UseDeviceBlocked);
    TellWord("UseSimLocked", ConnectionProfile::UseSimLocked);
    TellWord("UseOtherUsers", ConnectionProfile::UseOtherUsers);
    TellWord("UseNoAccount", ConnectionProfile::UseNoAccount);
    TellWord("ProtectionNotKnown", VisibleNetwork::ProtectionNotKnown);
    TellWord("ProtectionOpen", VisibleNetwork::ProtectionOpen);
    TellWord("ProtectionKey", VisibleNetwork::ProtectionKey);
    TellWord("ProtectionWeakKey", VisibleNetwork::ProtectionWeakKey);
    TellWord("ProtectionAccount", VisibleNetwork::ProtectionAccount);
    TellWord("RefusedUnknown", IConnectionPlugin::RefusedUnknown);
    TellWord("RefusedSource", IConnectionPlugin::RefusedSource);
    TellWord("RefusedNotAllowed", IConnectionPlugin::RefusedNotAllowed);
    TellWord("RefusedKey", IConnectionPlugin::RefusedKey);
    TellWord("RefusedAccount", IConnectionPlugin::RefusedAccount);
}

void TellIdentifiers()
{
    Tell("identifier of IBasePlugin", qobject_interface_iid<IBasePlugin *>());
    Tell("identifier of IUIPlugin", qobject_interface_iid<IUIPlugin *>());
    Tell("identifier of INotify", qobject_interface_iid<INotify *>());
    Tell("identifier of ISettingUIPlugin", qobject_interface_iid<ISettingUIPlugin *>());
    Tell("identifier of IPriorityPlugin", qobject_interface_iid<IPriorityPlugin *>());
    Tell("identifier of IConnectionPlugin", qobject_interface_iid<IConnectionPlugin *>());
    Tell("identifier of IOrderPlugin", qobject_interface_iid<IOrderPlugin *>());
    Tell("identifier of IWLANUIPlugin", qobject_interface_iid<IWLANUIPlugin *>());
}

} // namespace

extern "C" Q_DECL_EXPORT const char *boundary_contracts()
{
    facts.clear();
    TellRootInterfaces();
    TellServiceInterfaces();
    TellWlanInterface();
    TellConnectionInterface();
    TellOrderInterface();
    TellHostClasses();
    TellRecords();
    TellConnectionRecords();
    TellNetworkRecords();
    TellOrderRecords();
    TellOrderWords();
    TellConnectionWords();
    TellProfileWords();
    TellIdentifiers();
    return facts.constData();
}
