#include "Screens.h"

#include <Appearance.h>
#include <CommonUtils.h>
#include <ConnectDialog.h>
#include <DirectoryLock.h>
#include <FakeConnections.h>
#include <HistoryFile.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <ListActions.h>
#include <ListKeeper.h>
#include <ListRules.h>
#include <Lists.h>
#include <MainWindow.h>
#include <ModulePage.h>
#include <OrderFile.h>
#include <PluginList.h>
#include <PluginObjects.h>
#include <PrivateFile.h>
#include <Settings.h>
#include <StatusIcon.h>
#include <SwitchNotice.h>
#include <UserNotice.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

namespace
{

const char *const noNetworks = "<wlannetworks/>";
const char *const longName = "Guests of the seminar hotel at the old harbour, second floor";

const char *const damagedList = "<z><item name='Home' type='1'/><item";

const char *const userDirectory = "priority-dashboard";

/** Names of the sample networks, and what stands in the new-network dialog's boxes. */
const char *const values[] = {longName, "Home", "Office", "Café", "شبكة المنزل", "Company", "Old printer",
                              "Mobile broadband", "Neighbour", "Library", "Workshop", "Campus", "WPA2PSK",
                              "WPAPSK", "WPA2(EAP)", "WPA(EAP)", "IEEE 802.1X", "open", "Shop", "shared",
                              "none", "WEP", "CCMP", "TKIP", "AUTO", "SIM", "AKA", "NetworkManager", "wlan0",
                              "anna", "Guest house at the upper end of the long road",
                              // The month of the states that are kept, in the words of Qt.
                              "Mar"};

/** The states of the list that are kept, oldest first: every kind of change is among them. */
const char *const states[] = {"",
                              "Library",
                              "Home",
                              "Home, Office, Café, Company",
                              "Office, Home, Café, Company",
                              "Home, Café, Office, Company",
                              "Company, Home, Café, Office",
                              "Home, Café, Office, Company",
                              "Office, Café, Home, Company",
                              "Café, Home, Company",
                              "Company",
                              "Company, /1",
                              "",
                              "Company, Home, Office",
                              "Company, Home, Office, Guest house at the upper end of the long road",
                              "Company, Home, Office",
                              "Company, Home, Office"};
const int stateInForce = 13;
/** The state that came about by going back to that one. */
const int stateOfReturn = 15;

QStringList States()
{
    QStringList lists;
    for (const char *state : states) {
        lists.append(QString::fromUtf8(state));
    }
    return lists;
}

const char *const importedOver = "Home, Café, Office, Old printer, Library, Workshop, Company";
const char *const imported =
    "Office, Café, Home, Library, Workshop, Old printer, Guest house at the upper end of the long road";

QString LanguageDirectory()
{
    return QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages");
}

QString PseudoLanguageDirectory()
{
    return QLatin1String(BUILD_DIRECTORY "/share/pseudo-language");
}

QList<KnownPlugin> KnownAs(const QString &priorityFolder, const QString &wlanFolder)
{
    QList<KnownPlugin> known = PluginHost::KnownPlugins(WlanStored);
    known[0].folder = priorityFolder;
    known[1].folder = wlanFolder;
    return known;
}

/** The size of desktops, which Qt exceeds where there is none; the family is the widest of the usual
 * ones. */
void UseDesktopFont()
{
    QFont font(QLatin1String("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
}

/** @param folder  of the plug-in over NetworkManager */
QList<KnownPlugin> KnownNetworkManager(const char *folder)
{
    QList<KnownPlugin> known = PluginHost::KnownPlugins(WlanNetworkManager);
    known[1].folder = QLatin1String(folder);
    return known;
}

QByteArray StartOfALibrary()
{
    QFile whole(QLatin1String(BUILD_DIRECTORY "/tests/fixtures/plugins/Working/libWorking.so"));
    if (!whole.open(QIODevice::ReadOnly)) {
        qFatal("a plug-in can't be read");
    }
    return whole.read(4096);
}

/** A list that has met all that can be met, the one in use nearly at its end. */
void FillWithEveryReason(QList<PriorityList> *list, Connections *told)
{
    const char *const names[] = {"Home",    "Office", "Café",     "Company",   "Old printer",
                                 "Library", "Campus", "Workshop", "Neighbour", "Mobile broadband"};
    const int nameCount = 10;
    const int inUse = 12;
    const int uses[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0, 6, 3, 1, -1, 3, 3, 3, 3, 3, 1};
    const int stages[] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 0, 0, 1, 2, 3, 4, 5, 0};
    const int count = sizeof uses / sizeof uses[0];
    for (int i = 0; i < count; ++i) {
        PriorityList entry;
        entry.name = i < 2 * nameCount ? QString::fromUtf8(names[i % nameCount]) : QLatin1String("Campus 2");
        entry.type = QLatin1String(i < nameCount ? "1" : "2");
        list->append(entry);
        if (uses[i] >= 0) {
            told->profiles.append(SavedProfile(entry.name, uses[i], entry.type));
            told->profiles.last().failure = i < 2 * nameCount ? uses[i] : int(FailureWrongKey);
        }
        if (stages[i] != StageNotKnown) {
            told->active.append(ConnectionOf(entry.name, stages[i], i == inUse, entry.type));
        }
    }
    list->append(list->first());
}

/** A list of which no place has an effect, each for another reason. */
void FillWithoutEffect(QList<PriorityList> *list, FakeConnections *connections)
{
    *list = Listed(QString::fromUtf8(
        "Home, Café, Office, Company, Library, Campus, Neighbour, Old printer, Workshop, Home"));
    QList<ConnectionProfile> &profiles = connections->told.profiles;
    profiles.clear();
    for (const char *name :
         {"Home", "Café", "Office", "Company", "Library", "Campus", "Neighbour", "Old printer"}) {
        profiles.append(SavedProfile(QString::fromUtf8(name)));
    }
    profiles[0].connectsByItself = false;
    profiles[1].failure = FailureNoAnswer;
    const int obstacles[] = {ObstacleNotAllowed, ObstaclePassing,   ObstacleRefused,
                             ObstacleOtherUsers, ObstacleOwnMetric, ObstacleOtherList};
    for (int i = 0; i < 6; ++i) {
        OrderKept kept;
        kept.profileId = profiles.at(i + 2).id;
        kept.obstacle = obstacles[i];
        connections->standing.kept.append(kept);
    }
}

/** Profiles of one name, of which all is known. */
void FillWithProfiles(int count, FakeConnections *connections)
{
    const int metered[] = {ProfileDetails::MeteredYes, ProfileDetails::MeteredNo,
                           ProfileDetails::MeteredGuessedYes, ProfileDetails::MeteredGuessedNo};
    for (int i = 0; i < count; ++i) {
        ConnectionProfile profile = SavedProfile(QLatin1String("Home"));
        profile.id += i == 0 ? QString() : QString::number(i);
        profile.security = QLatin1String(i == 1 ? "open" : "WPA2PSK");
        profile.device = QLatin1String(i == 2 ? "" : "wlan0");
        // In the same month as the states that are kept.
        profile.lastConnected = 1773565200;
        profile.signal = 64;
        ProfileDetails &details = connections->details[profile.id];
        details.id = profile.id;
        details.boundDevice = QLatin1String(i == 1 ? "wlan0" : "");
        details.metered = metered[i];
        details.isPriorityKnown = true;
        details.priority = 500;
        details.areUsersKnown = true;
        details.users = i == 1 ? QStringList(QLatin1String("anna")) : QStringList();
        connections->told.profiles.append(profile);
    }
}

/** Hands out everything but the Wi-Fi plug-in. */
class WithoutWlan : public IPluginContainer
{
public:
    explicit WithoutWlan(IPluginContainer *container) : m_container(container) {}

    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override
    {
        const int wlanInterface = 4102;
        const int connectionInterface = 4104;
        const bool isWlan = interfaceNumber == wlanInterface || interfaceNumber == connectionInterface;
        return isWlan ? nullptr : m_container->GetPluginObject(classId, interfaceNumber);
    }

private:
    IPluginContainer *const m_container;
};

} // namespace

const Screens::Screen Screens::screens[] = {
    {"list", &Screens::ShowList, nullptr},
    {"list, nothing in range", &Screens::ShowList, noNetworks},
    {"list, first start", &Screens::ShowListFile, nullptr},
    {"list, first start, nothing saved", &Screens::ShowConnections, "nothing saved"},
    {"list, emptied", &Screens::ShowEmptiedList, nullptr},
    {"list, of mobile broadband", &Screens::ShowListFile, "<z><item name='Mobile broadband' type='2'/></z>"},
    {"list, mobile broadband second", &Screens::ShowListFile,
     "<z><item name='Home' type='1'/><item name='Mobile broadband' type='2'/></z>"},
    {"list, not to be opened", &Screens::ShowUnopenedList, nullptr},
    {"list, range unknown", &Screens::ShowRangeUnknown, nullptr},
    {"list, range unknown, mobile broadband second", &Screens::ShowRangeUnknown,
     "<z><item name='Home' type='1'/><item name='Mobile broadband' type='2'/></z>"},
    {"list, first out of range", &Screens::ShowListFile,
     "<z><item name='Office' type='1'/><item name='Home' type='1'/></z>"},
    {"list, others in range", &Screens::ShowListFile, "<z><item name='Office' type='1'/></z>"},
    {"list, every reason", &Screens::ShowConnections, "every reason"},
    {"list, another one in use", &Screens::ShowConnections, "another one"},
    {"list, first one by hand", &Screens::ShowConnections, "by hand"},
    {"list, cable and VPN in use", &Screens::ShowConnections, "cable"},
    {"list, sign-in needed", &Screens::ShowConnections, "portal"},
    {"list, no internet", &Screens::ShowConnections, "limited"},
    {"list, connected without the traffic", &Screens::ShowConnections, "no traffic"},
    {"list, connecting", &Screens::ShowConnections, "connecting"},
    {"list, NetworkManager gone", &Screens::ShowConnections, "gone"},
    {"list, NetworkManager being asked", &Screens::ShowConnections, "asked"},
    {"list, connections not told", &Screens::ShowConnections, "not told"},
    {"list, switch refused", &Screens::ShowConnections, "refused"},
    {"list, disconnect refused", &Screens::ShowConnections, "disconnect refused"},
    {"list, places without effect", &Screens::ShowConnections, "without effect"},
    {"list, places with their effect", &Screens::ShowConnections, "with effect"},
    {"what the list rules", &Screens::ShowConnections, "ruled"},
    {"what the list rules, places without effect", &Screens::ShowConnections, "ruled, without effect"},
    {"what the list rules, not turned on", &Screens::ShowConnections, "ruled, not turned on"},
    {"details", &Screens::ShowDetails, ""},
    {"details, several profiles", &Screens::ShowDetails, "several"},
    {"details, of what is not listed", &Screens::ShowDetails, "not listed"},
    {"details, not turned off", &Screens::ShowDetails, "not turned off"},
    {"question, forget", &Screens::ShowForgetting, ""},
    {"question, forget several in use", &Screens::ShowForgetting, "several"},
    {"forgetting", &Screens::ShowForgetting, "under way"},
    {"list, forgotten", &Screens::ShowForgetting, "done"},
    {"not forgotten, not allowed", &Screens::ShowForgetting, "failed"},
    {"not forgotten, several", &Screens::ShowForgetting, "some"},
    {"not forgotten, no answer", &Screens::ShowForgetting, "no answer"},
    {"forgotten, list not written", &Screens::ShowForgetting, "stays"},
    {"question, forget, not listed", &Screens::ShowForgetting, "unlisted, "},
    {"question, forget several, not listed", &Screens::ShowForgetting, "unlisted, several"},
    {"list, one forgotten that was not listed", &Screens::ShowForgetting, "unlisted, done"},
    {"not forgotten, not listed", &Screens::ShowForgetting, "unlisted, failed"},
    {"not forgotten, no answer, not listed", &Screens::ShowForgetting, "unlisted, no answer"},
    {"Edit menu, network saved", &Screens::ShowForgetting, "menu"},
    {"Edit menu, network not saved", &Screens::ShowForgetting, "menu, not saved"},
    {"Edit menu, networks not known", &Screens::ShowForgetting, "menu, not known"},
    {"list, plug-in missing while connected", &Screens::ShowConnections, "no list"},
    {"list, not handed out", &Screens::ShowListNotHandedOut, "QueryNull"},
    {"list, damaged", &Screens::ShowListFile, damagedList},
    {"list, damaged from the start", &Screens::ShowListFile, "no list"},
    {"list, to be undone and redone", &Screens::ShowHistory, nullptr},
    {"list, damaged, to be undone", &Screens::ShowHistory, damagedList},
    {"list, damaged, not copied", &Screens::ShowListNotCopied, nullptr},
    {"question, damaged list", &Screens::ShowDamageQuestion, "with history"},
    {"question, damaged list without an earlier one", &Screens::ShowDamageQuestion, nullptr},
    {"question, damaged list, not written", &Screens::ShowDamageNotMended, nullptr},
    {"list and history, damaged", &Screens::ShowTwoMessages, damagedList},
    {"history, not well-formed", &Screens::ShowHistoryFile, "no history"},
    {"history, declaration", &Screens::ShowHistoryFile, "<!DOCTYPE a><listhistory/>"},
    {"history, another element", &Screens::ShowHistoryFile, "<z/>"},
    {"history, text", &Screens::ShowHistoryFile, "<listhistory version='1' current='0'>z</listhistory>"},
    {"history, attribute missing", &Screens::ShowHistoryFile, "<listhistory/>"},
    {"history, value not possible", &Screens::ShowHistoryFile, "<listhistory version='7' current='0'/>"},
    {"history, too many states", &Screens::ShowHistoryTooLong, nullptr},
    {"history, not readable", &Screens::ShowHistoryNotReadable, nullptr},
    {"history, not writable", &Screens::ShowHistoryNotWritable, nullptr},
    {"undo, history held by another", &Screens::ShowUndoOfHeldHistory, nullptr},
    {"undo, list not written", &Screens::ShowUndoNotWritten, nullptr},
    {"restore dialog", &Screens::ShowRestore, "5"},
    {"restore dialog, list as it is", &Screens::ShowRestore, "13"},
    {"restore dialog, list like now", &Screens::ShowRestore, "15"},
    {"restore dialog, list not written", &Screens::ShowRestoreNotWritten, nullptr},
    {"restore dialog, state lost", &Screens::ShowRestoreOfLostState, nullptr},
    {"restore dialog, history damaged", &Screens::ShowRestoreWithoutHistory, nullptr},
    {"restore dialog, history not set aside", &Screens::ShowHistoryNotSetAside, nullptr},
    {"import dialog", &Screens::ShowImport, imported},
    {"take-over dialog", &Screens::ShowTakeOver, nullptr},
    {"import dialog, one moves up", &Screens::ShowImport,
     "Home, Office, Café, Old printer, Library, Workshop, Company"},
    {"import dialog, one moves down", &Screens::ShowImport,
     "Café, Office, Home, Old printer, Library, Workshop, Company"},
    {"import dialog, one moves to the top", &Screens::ShowImport,
     "Office, Home, Café, Old printer, Library, Workshop, Company"},
    {"import dialog, one in the place of another", &Screens::ShowImport,
     "Home, Café, Office, Shop, Library, Workshop, Company"},
    {"import dialog, many added and removed", &Screens::ShowImport, "Home, Office, Home/2, Office/2"},
    {"import dialog, nothing to import", &Screens::ShowImport, importedOver},
    {"import dialog, list not written", &Screens::ShowImportNotWritten, imported},
    {"notice, import not readable", &Screens::ShowImportNotice, nullptr},
    {"notice, import damaged", &Screens::ShowImportNotice, "no order"},
    {"notice, export not written", &Screens::ShowExportNotice, nullptr},
    {"trace", &Screens::ShowTrace, nullptr},
    {"trace, something found", &Screens::ShowTraceSearch, "e"},
    {"trace, nothing found", &Screens::ShowTraceSearch, "no line has this"},
    {"list, one moved", &Screens::ShowMoved, nullptr},
    {"list, something found", &Screens::ShowFind, "o"},
    {"list, nothing found", &Screens::ShowFind, "no network has this"},
    {"menu of a network", &Screens::ShowEntryMenu, nullptr},
    {"question, place", &Screens::ShowPlace, ""},
    {"question, place of several", &Screens::ShowPlace, "several"},
    {"notice, network no longer in the list", &Screens::ShowGoneNetwork, nullptr},
    {"Network menu", &Screens::ShowMenu, "networkMenu"},
    {"Edit menu", &Screens::ShowMenu, "editMenu"},
    {"Edit menu, to be undone and redone", &Screens::ShowEditMenu, nullptr},
    {"Edit menu, damaged list", &Screens::ShowEditMenu, damagedList},
    {"View menu", &Screens::ShowMenu, "viewMenu"},
    {"Appearance menu", &Screens::ShowMenu, "appearanceMenu"},
    {"Language menu", &Screens::ShowMenu, "languageMenu"},
    {"plug-ins missing", &Screens::ShowBroken, "Absent"},
    {"plug-in without verification", &Screens::ShowBroken, "NoVerification"},
    {"plug-in refused", &Screens::ShowBroken, "WrongVerification"},
    {"plug-in without entry point", &Screens::ShowBroken, "NoEntryPoint"},
    {"plug-in with null instance", &Screens::ShowBroken, "NullInstance"},
    {"plug-in that is none", &Screens::ShowBroken, "NotAPlugin"},
    {"plug-in whose start fails", &Screens::ShowBroken, "InitFails"},
    {"plug-in that hands out nothing", &Screens::ShowBroken, "QueryNull"},
    {"plug-in that is no library", &Screens::ShowBroken, "NoLibrary"},
    {"plug-in that is cut", &Screens::ShowBroken, "Cut"},
    {"plug-in of another toolkit", &Screens::ShowBroken, "NeedsGeneration7"},
    {"settings, plug-ins missing", &Screens::ShowBrokenSettings, "Absent"},
    {"settings, page not handed out", &Screens::ShowBrokenSettings, "QueryNull"},
    {"settings, general page of missing plug-ins", &Screens::ShowBrokenGeneralPage, "Absent"},
    {"settings, general page", &Screens::ShowGeneralPage, nullptr},
    {"menu of the icon", &Screens::ShowStatusMenu, nullptr},
    {"settings, rules page", &Screens::ShowRulesPage, nullptr},
    {"module, list open already", &Screens::ShowModule, nullptr},
    {"module, damaged list", &Screens::ShowModule, damagedList},
    {"list, NetworkManager", &Screens::ShowNetworkManager, "Working"},
    {"list, plug-in over NetworkManager broken", &Screens::ShowNetworkManager, "InitFails"},
    {"settings, general page with NetworkManager", &Screens::ShowNetworkManagerSettings, "Working"},
    {"list, not ruling", &Screens::ShowRule, nullptr},
    {"settings, rules page with NetworkManager", &Screens::ShowRule, "settings"},
    {"notice of a switch", &Screens::ShowSwitchNotice, nullptr},
    {"settings, priority page", &Screens::ShowPriorityPage, nullptr},
    {"add dialog", &Screens::ShowAddDialog, nullptr},
    {"new dialog, open", &Screens::ShowNewDialog, "open"},
    {"new dialog, shared", &Screens::ShowNewDialog, "shared"},
    {"new dialog, WPAPSK", &Screens::ShowNewDialog, "WPAPSK"},
    {"new dialog, WPA2PSK", &Screens::ShowNewDialog, "WPA2PSK"},
    {"new dialog, WPA(EAP)", &Screens::ShowNewDialog, "WPA(EAP)"},
    {"new dialog, WPA2(EAP)", &Screens::ShowNewDialog, "WPA2(EAP)"},
    {"delete question", &Screens::ShowDeleteQuestion, nullptr},
    {"notice, WEP key", &Screens::ShowKeyNotice, "shared WEP abc abc"},
    {"notice, WPA key", &Screens::ShowKeyNotice, "WPA2PSK CCMP abc abc"},
    {"notice, different keys", &Screens::ShowKeyNotice, "WPA2PSK CCMP correct-horse correct-house"},
    {"notice, no authentication", &Screens::ShowKeyNotice, "none CCMP correct-horse correct-horse"},
    {"notice, no name", &Screens::ShowNameNotice, ""},
    {"notice, repeated name", &Screens::ShowNameNotice, longName},
    {"notice, left as it is, read-only", &Screens::ShowStoringNotice, "IDS_WLAN_KEPT_READ_ONLY"},
    {"notice, left as it is, several", &Screens::ShowStoringNotice, "IDS_WLAN_KEPT_SEVERAL"},
    {"notice, left as it is, more than can be entered", &Screens::ShowStoringNotice,
     "IDS_WLAN_KEPT_UNDESCRIBED"},
    {"notice, left as it is, stronger", &Screens::ShowStoringNotice, "IDS_WLAN_KEPT_STRONGER"},
    {"notice, left as it is, key needed", &Screens::ShowStoringNotice, "IDS_WLAN_KEPT_KEY"},
    {"notice, not stored, better one", &Screens::ShowStoringNotice, "IDS_WLAN_BETTER_PROFILE"},
    {"notice, not stored, name", &Screens::ShowStoringNotice, "IDS_WLAN_BAD_NAME"},
    {"notice, not stored, security", &Screens::ShowStoringNotice, "IDS_WLAN_BAD_SECURITY"},
    {"notice, not stored, account needed", &Screens::ShowStoringNotice, "IDS_WLAN_NO_ACCOUNT"},
    {"notice, not stored, NetworkManager not running", &Screens::ShowStoringNotice, "IDS_WLAN_NOT_RUNNING"},
    {"notice, not stored, no answer", &Screens::ShowStoringNotice, "IDS_WLAN_NO_ANSWER"},
    {"notice, not stored, no permission", &Screens::ShowStoringNotice, "IDS_WLAN_DENIED"},
    {"notice, not stored, refused", &Screens::ShowStoringNotice, "IDS_WLAN_REFUSED"},
    {"notice, not stored, error", &Screens::ShowStoringNotice, "IDS_WLAN_FAILED"},
    {"notice, not stored, file not usable", &Screens::ShowStoringNotice, "IDS_WLAN_FILE_UNUSABLE"},
    {"notice, not stored, file damaged", &Screens::ShowStoringNotice, "IDS_WLAN_FILE_DAMAGED"},
    {"notice, not stored, changed by another", &Screens::ShowStoringNotice, "IDS_WLAN_BUSY"},
    {"notice, order, one can't be changed", &Screens::ShowStoringNotice, "IDS_WLAN_ORDER_FIXED"},
    {"notice, order, several can't be changed", &Screens::ShowStoringNotice, "IDS_WLAN_ORDER_SEVERAL"},
    {"notice, order, one outside comes first", &Screens::ShowStoringNotice, "IDS_WLAN_ORDER_OVERTAKEN"},
    {"notice, order, another list rules", &Screens::ShowStoringNotice, "IDS_WLAN_ORDER_OTHER"},
    {"connect dialog", &Screens::ShowConnect, nullptr},
    {"connect dialog, nothing in range", &Screens::ShowConnect, noNetworks},
    {"connect dialog, something found", &Screens::ShowNetworkSearch, "o"},
    {"connect dialog, nothing found", &Screens::ShowNetworkSearch, "Home 2"},
    {"connect dialog, key asked for", &Screens::ShowConnecting, "key"},
    {"connect dialog, new ones at the top", &Screens::ShowConnecting, "top"},
    {"connect dialog, new ones not listed", &Screens::ShowConnecting, "not listed"},
    {"connect dialog, no key of WPA", &Screens::ShowConnecting, "no key"},
    {"connect dialog, no key of WEP", &Screens::ShowConnecting, "no WEP key"},
    {"connect dialog, account needed", &Screens::ShowConnecting, "account"},
    {"connect dialog, connecting", &Screens::ShowConnecting, "connecting"},
    {"connect dialog, taking long", &Screens::ShowConnecting, "long"},
    {"connect dialog, key refused", &Screens::ShowConnecting, "2"},
    {"connect dialog, saved key refused", &Screens::ShowConnecting, "saved key"},
    {"connect dialog, no key saved", &Screens::ShowConnecting, "3"},
    {"connect dialog, no answer", &Screens::ShowConnecting, "4"},
    {"connect dialog, no address", &Screens::ShowConnecting, "5"},
    {"connect dialog, not let in", &Screens::ShowConnecting, "6"},
    {"connect dialog, SIM card", &Screens::ShowConnecting, "7"},
    {"connect dialog, stopped", &Screens::ShowConnecting, "8"},
    {"connect dialog, no adapter", &Screens::ShowConnecting, "9"},
    {"connect dialog, not saved", &Screens::ShowConnecting, "not saved"},
    {"connect dialog, network gone", &Screens::ShowConnecting, "away"},
    {"connect dialog, NetworkManager gone", &Screens::ShowConnecting, "gone"},
    {"language file without texts", &Screens::ShowDamagedLanguage, "empty"},
    {"language file not readable", &Screens::ShowDamagedLanguage, "unreadable"},
};

Screens::Screens() : m_visitor(nullptr), m_visits(0)
{
    UseDesktopFont();
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    m_log.reset(new TraceLog(m_directory->FilePath(QLatin1String("dashboard.log"))));
    HostControl::SetPluginLibraryPath(QLatin1String(BUILD_DIRECTORY));
    HostControl::SetLanguageDirectory(LanguageDirectory());
    Appearance::Apply(Appearance::System);
    m_plugins.reset(new PluginHost(QLatin1String(BUILD_DIRECTORY), PluginHost::KnownPlugins(WlanStored)));
    m_plugins->Load();
    if (m_plugins->Plugins().at(0).state != PluginReady || m_plugins->Plugins().at(1).state != PluginReady) {
        qFatal("the plug-ins can't be loaded");
    }
}

Screens::~Screens()
{
    m_window.reset();
    m_plugins->Shutdown();
}

QStringList Screens::Names()
{
    QStringList names;
    for (const Screen &screen : screens) {
        names.append(QLatin1String(screen.name));
    }
    return names;
}

QStringList Screens::Languages()
{
    QStringList languages = QDir(LanguageDirectory()).entryList(QStringList(QLatin1String("*.qm")));
    for (int i = 0; i < languages.size(); ++i) {
        languages[i].chop(3);
    }
    return languages;
}

const Screens::Screen *Screens::Find(const QString &name)
{
    for (const Screen &screen : screens) {
        if (name == QLatin1String(screen.name)) {
            return &screen;
        }
    }
    qFatal("there is no such screen");
    return nullptr;
}

void Screens::Show(const QString &name, const QString &language, const Visitor &visitor)
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    HostControl::SetPluginContainer(m_plugins.data());
    HostControl::SetLanguageDirectory(language == QLatin1String("pseudo") ? PseudoLanguageDirectory()
                                                                          : LanguageDirectory());
    if (!DashboardLanguage::Apply(language)) {
        qFatal("a language is missing");
    }
    m_language.reset(new DashboardLanguage(nullptr));
    m_visitor = &visitor;
    const Screen *screen = Find(name);
    m_visits = 0;
    (this->*(screen->show))(screen->detail);
    m_window.reset();
    m_visitor = nullptr;
    if (m_visits != 1) {
        qFatal("the screen %s was not shown", screen->name);
    }
}

QStringList Screens::Values()
{
    QStringList list;
    for (const char *value : values) {
        list.append(QString::fromUtf8(value));
    }
    return list;
}

void Screens::ShowList(const char *networksInRange)
{
    UseNetworksInRange(networksInRange);
    Fill();
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowListFile(const char *content)
{
    if (content) {
        WriteUserFile(QLatin1String("Priority.xml"), content);
    }
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowEmptiedList(const char *)
{
    Fill();
    OpenWindow(m_plugins.data());
    WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(QList<PriorityList>()));
    m_window->Refresh();
    Visit();
}

void Screens::ShowTakeOver(const char *)
{
    OpenWindow(m_plugins.data());
    Click("message_takeOverAction");
    Visit();
}

void Screens::ShowNetworkSearch(const char *typed)
{
    const char *const names[] = {"Home",     "Office",  "Café",    "Company",   "Old printer", "Library",
                                 "Workshop", "Library", "Company", "Neighbour", "Campus",      "Library"};
    FakeConnections connections;
    for (const char *name : names) {
        VisibleNetwork network;
        network.name = QString::fromUtf8(name);
        network.id = network.name + QString::number(connections.told.networks.size());
        network.protection = VisibleNetwork::ProtectionOpen;
        network.signal = 90;
        connections.told.networks.append(network);
    }
    WithConnections container(m_plugins.data(), &connections);
    HostControl::SetPluginContainer(&container);
    OpenWindow(m_plugins.data());
    Click("connectButton");
    Child<QLineEdit>("connectSearchEdit")->setText(QLatin1String(typed));
    Visit();
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

void Screens::ShowUnopenedList(const char *)
{
    // A directory can't be opened as a file, not even by root.
    QDir().mkpath(m_directory->FilePath(QLatin1String("priority-dashboard/Priority.xml")));
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowRangeUnknown(const char *listFile)
{
    if (listFile) {
        WriteUserFile(QLatin1String("Priority.xml"), listFile);
    } else {
        Fill();
    }
    WithoutWlan container(m_plugins.data());
    HostControl::SetPluginContainer(&container);
    OpenWindow(m_plugins.data());
    Visit();
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

static void Connect(const QByteArray &shown, Connections *told)
{
    if (shown == "another one" || shown == "by hand" || shown == "refused") {
        told->active << ConnectionOf(QLatin1String("Library"), StageConnected, true);
        told->profiles[0].connectsByItself = shown != "by hand";
    } else if (shown == "cable") {
        told->active << ConnectionOf(QLatin1String("Workshop"), StageConnected, true, QLatin1String("0"))
                     << ConnectionOf(QLatin1String("Company"), StageConnected, false, QLatin1String("0"));
        told->active[1].isVpn = true;
    } else if (shown == "disconnect refused") {
        told->active << ConnectionOf(QLatin1String("Home"), StageConnected, true);
    } else if (shown == "portal" || shown == "limited") {
        told->active << ConnectionOf(QLatin1String("Home"), StageConnected, true);
        told->state.connectivity =
            shown == "portal" ? ConnectionState::ConnectivityPortal : ConnectionState::ConnectivityLimited;
    } else if (shown == "no traffic") {
        told->active << ConnectionOf(QLatin1String("Home"), StageConnected, false);
    } else if (shown == "connecting") {
        told->active << ConnectionOf(QLatin1String("Home"), StageAuthenticating, false);
    } else if (shown == "gone") {
        told->state.source = ConnectionState::SourceGone;
    } else if (shown == "asked") {
        told->state.source = ConnectionState::SourceNotKnown;
    }
}

void Screens::ShowConnections(const char *what)
{
    const QByteArray shown(what);
    FakeConnections connections;
    Connections &told = connections.told;
    QList<PriorityList> list = Listed(QString::fromUtf8("Home, Café"));
    if (shown == "every reason") {
        list.clear();
        FillWithEveryReason(&list, &told);
    } else {
        told.profiles << SavedProfile(QLatin1String("Home")) << SavedProfile(QString::fromUtf8("Café"));
    }
    Connect(shown, &told);
    if (shown == "nothing saved") {
        list.clear();
        told.profiles.clear();
    }
    if (shown.startsWith("ruled") || shown.endsWith("effect")) {
        connections.standing.stage = OrderOutcome::StageOrderDone;
    }
    if (shown.contains("without effect")) {
        FillWithoutEffect(&list, &connections);
    }
    connections.answer = IConnectionPlugin::RefusedNotAllowed;
    WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(list));
    WithConnections container(shown == "no list" ? nullptr : m_plugins.data(),
                              shown == "not told" ? nullptr : &connections);
    HostControl::SetPluginContainer(&container);
    OpenWindow(m_plugins.data());
    if (shown == "refused") {
        Click("switchButton");
    } else if (shown == "disconnect refused") {
        Trigger("disconnectAction");
    } else if (shown.startsWith("ruled")) {
        Trigger("ruledAction");
    }
    if (shown == "ruled, not turned on") {
        connections.told.profiles[0].connectsByItself = false;
        m_window->Refresh();
        connections.outcome.stage = OrderOutcome::StageOrderFailed;
        Click("ruledRowButton");
        QCoreApplication::processEvents();
        m_window->Refresh();
    }
    Visit();
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

void Screens::ShowDetails(const char *what)
{
    const QByteArray shown(what);
    FakeConnections connections;
    FillWithProfiles(shown == "several" ? 4 : 1, &connections);
    WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(Listed(QLatin1String("Home, Office"))));
    WithConnections container(m_plugins.data(), &connections);
    HostControl::SetPluginContainer(&container);
    OpenWindow(m_plugins.data());
    Child<QListWidget>("overviewList")->setCurrentRow(0);
    Trigger("detailsAction");
    if (shown == "not listed") {
        WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(Listed(QLatin1String("Office"))));
        m_window->Refresh();
    } else if (shown == "not turned off") {
        Child<QCheckBox>("byItselfBox")->click();
        connections.outcome.stage = OrderOutcome::StageOrderFailed;
        m_window->Refresh();
    }
    Visit();
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

void Screens::ShowForgetting(const char *what)
{
    const QByteArray unlisted("unlisted, ");
    const bool isListed = !QByteArray(what).startsWith(unlisted);
    const QByteArray shown = QByteArray(what).mid(isListed ? 0 : unlisted.size());
    FakeConnections connections;
    FillWithProfiles(shown == "several" || shown == "some" ? 2 : 1, &connections);
    if (shown == "several") {
        connections.told.active << ConnectionOf(QLatin1String("Home"), StageConnected, true);
    } else if (shown == "menu, not saved") {
        connections.told.profiles.clear();
    } else if (shown == "menu, not known") {
        connections.told.state.source = ConnectionState::SourceNotKnown;
    }
    const QLatin1String listed(isListed ? "Home, Office" : "Office");
    WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(Listed(listed)));
    WithConnections container(m_plugins.data(), &connections);
    HostControl::SetPluginContainer(&container);
    OpenWindow(m_plugins.data());
    QListWidget *list = Child<QListWidget>("overviewList");
    list->setCurrentRow(isListed ? 0 : list->count() - 1);
    if (shown.startsWith("menu")) {
        Child<QMenu>("editMenu")->popup(m_window->pos());
    } else {
        Trigger("forgetAction");
    }
    if (shown == "stays") {
        QDir().mkdir(PrivateFile::TemporaryPath(UserPath(QLatin1String("Priority.xml"))));
    }
    connections.attempt.stage = shown == "under way"                  ? StageForgetting
                                : shown == "done" || shown == "stays" ? StageForgotten
                                                                      : StageFailed;
    connections.attempt.failure = shown == "no answer" ? FailureSource : FailureNotAllowed;
    connections.attempts[2].stage = StageForgotten;
    if (!shown.isEmpty() && shown != "several" && !shown.startsWith("menu")) {
        Click("forgetButton");
    }
    Visit();
    if (shown.startsWith("menu")) {
        Child<QMenu>("editMenu")->close();
    }
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

void Screens::ShowListNotHandedOut(const char *folder)
{
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY "/tests/fixtures"),
                       KnownAs(QLatin1String(folder), QLatin1String("Absent")));
    plugins.Load();
    OpenWindow(&plugins);
    Visit();
    m_window.reset();
}

void Screens::ShowTrace(const char *)
{
    Fill();
    OpenWindow(m_plugins.data());
    Child<QDockWidget>("tracePanel")->toggleViewAction()->trigger();
    Visit();
}

void Screens::ShowTraceSearch(const char *text)
{
    Fill();
    OpenWindow(m_plugins.data());
    Child<QDockWidget>("tracePanel")->toggleViewAction()->trigger();
    Child<QLineEdit>("traceSearch")->setText(QLatin1String(text));
    Visit();
}

void Screens::ShowEditMenu(const char *listFile)
{
    KeepHistory(States(), stateInForce);
    if (listFile) {
        WriteUserFile(QLatin1String("Priority.xml"), listFile);
    }
    ShowMenu("editMenu");
}

void Screens::ShowMenu(const char *menu)
{
    OpenWindow(m_plugins.data());
    Child<QMenu>(menu)->popup(m_window->pos());
    Visit();
    Child<QMenu>(menu)->close();
}

void Screens::OpenListAt(int row)
{
    Fill();
    OpenWindow(m_plugins.data());
    Child<QListWidget>("overviewList")->setCurrentRow(row);
}

void Screens::ShowMoved(const char *)
{
    OpenListAt(0);
    Trigger("moveDownAction");
    Visit();
}

void Screens::ShowFind(const char *typed)
{
    OpenListAt(0);
    Trigger("findAction");
    QTest::keyClicks(Child<QLineEdit>("findEdit"), QLatin1String(typed));
    Visit();
}

void Screens::ShowEntryMenu(const char *)
{
    OpenListAt(0);
    QTest::keyClick(Child<QListWidget>("overviewList"), Qt::Key_F10, Qt::ShiftModifier);
    Visit();
    Child<QMenu>("entryMenu")->close();
}

void Screens::ShowStatusMenu(const char *)
{
    Fill();
    OpenWindow(m_plugins.data());
    PluginList source;
    ListKeeper keeper(UserPath(QString()), &source, nullptr);
    const StatusIcon icon(&keeper, QStringList(QLatin1String("none")));
    icon.Menu()->popup(m_window->pos());
    Visit();
    icon.Menu()->close();
}

void Screens::ShowPlace(const char *selected)
{
    OpenListAt(0);
    QListWidget *list = Child<QListWidget>("overviewList");
    list->item(1)->setSelected(*selected != '\0');
    Trigger("movePlaceAction");
    Visit();
}

void Screens::ShowGoneNetwork(const char *)
{
    OpenListAt(0);
    WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(Listed("Home/2, Office")));
    QTimer::singleShot(0, this, SLOT(VisitMessage()));
    Trigger("removeAction");
}

void Screens::ShowBroken(const char *folder)
{
    WriteUserFile(QLatin1String("plugins/NoLibrary/libNoLibrary.so"), "no library");
    WriteUserFile(QLatin1String("plugins/Cut/libCut.so"), StartOfALibrary());
    const QString userPath = m_directory->FilePath(QLatin1String(userDirectory));
    const bool isUsers = QDir(userPath + QLatin1String("/plugins")).exists(QLatin1String(folder));
    const QString path = isUsers ? userPath : QLatin1String(BUILD_DIRECTORY "/tests/fixtures");
    PluginHost plugins(path, KnownAs(QLatin1String("Absent"), QLatin1String(folder)));
    plugins.Load();
    OpenWindow(&plugins);
    Visit();
    m_window.reset();
}

void Screens::ShowBrokenSettings(const char *folder)
{
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY "/tests/fixtures"),
                       KnownAs(QLatin1String(folder), QLatin1String("Absent")));
    plugins.Load();
    OpenWindow(&plugins);
    Click("settingsButton");
    Visit();
    m_window.reset();
}

void Screens::ShowBrokenGeneralPage(const char *folder)
{
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY "/tests/fixtures"),
                       KnownAs(QLatin1String(folder), QLatin1String("Absent")));
    plugins.Load();
    OpenWindow(&plugins);
    Click("settingsButton");
    Child<QListWidget>("pageList")->setCurrentRow(0);
    Visit();
    m_window.reset();
}

void Screens::ShowNetworkManager(const char *folder)
{
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY "/tests/fixtures"), KnownNetworkManager(folder));
    plugins.Load();
    OpenWindow(&plugins);
    Visit();
    m_window.reset();
}

void Screens::ShowNetworkManagerSettings(const char *folder)
{
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY "/tests/fixtures"), KnownNetworkManager(folder));
    plugins.Load();
    OpenWindow(&plugins);
    Click("settingsButton");
    Child<QListWidget>("pageList")->setCurrentRow(0);
    Visit();
    m_window.reset();
}

void Screens::ShowRule(const char *where)
{
    PluginHost plugins(QLatin1String(BUILD_DIRECTORY "/tests/fixtures"), KnownNetworkManager("Working"));
    plugins.Load();
    FakeConnections connections;
    WithConnections container(&plugins, &connections);
    HostControl::SetPluginContainer(&container);
    ListRules::SetRuling(where);
    OpenWindow(&plugins);
    if (where) {
        Click("settingsButton");
        Child<QListWidget>("pageList")->setCurrentRow(1);
    }
    Visit();
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

/** Drawn by the desktop, for which a dialog stands in. */
void Screens::ShowSwitchNotice(const char *)
{
    OpenWindow(m_plugins.data());
    QDialog notice(m_window.data());
    notice.setModal(true);
    QVBoxLayout *layout = new QVBoxLayout(&notice);
    layout->addWidget(new QLabel(SwitchNotice::Title(QLatin1String("Home"))));
    layout->addWidget(new QLabel(SwitchNotice::Body(QString::fromUtf8("Café"))));
    notice.show();
    Visit();
}

void Screens::ShowGeneralPage(const char *)
{
    OpenWindow(m_plugins.data());
    Click("settingsButton");
    Child<QListWidget>("pageList")->setCurrentRow(0);
    Visit();
}

void Screens::ShowRulesPage(const char *)
{
    OpenWindow(m_plugins.data());
    Click("settingsButton");
    Child<QListWidget>("pageList")->setCurrentRow(1);
    Visit();
}

void Screens::ShowModule(const char *list)
{
    if (list) {
        WriteUserFile(QLatin1String("Priority.xml"), list);
    } else {
        Fill();
    }
    PluginList source;
    ListKeeper keeper(UserPath(QString()), &source, nullptr);
    ModulePage first(m_plugins.data(), &keeper, QString(), nullptr);
    ModulePage second(m_plugins.data(), &keeper, QString(), nullptr);
    first.Load();
    ModulePage &shown = list ? first : second;
    shown.Load();
    shown.setWindowModality(Qt::ApplicationModal);
    shown.show();
    Visit();
}

void Screens::ShowPriorityPage(const char *)
{
    OpenPage();
    Visit();
}

void Screens::ShowAddDialog(const char *)
{
    OpenPage();
    Click("addButton");
    Visit();
    Child<QDialog>("addDialog")->close();
}

void Screens::ShowNewDialog(const char *method)
{
    OpenNewDialog(method);
    Visit();
    Child<QDialog>("newDialog")->close();
}

void Screens::ShowDeleteQuestion(const char *)
{
    OpenPage();
    ClickAndVisitMessage("deleteButton");
}

void Screens::ShowKeyNotice(const char *methodAndKeys)
{
    const QStringList parts = QString::fromLatin1(methodAndKeys).split(QLatin1Char(' '));
    OpenNewDialog(parts.at(0).toLatin1().constData());
    Child<QComboBox>("networkNameBox")->setEditText(QLatin1String("Library"));
    QComboBox *encryption = Child<QComboBox>("encryptionBox");
    encryption->setCurrentIndex(encryption->findText(parts.at(1)));
    Child<QLineEdit>("keyEdit")->setText(parts.at(2));
    Child<QLineEdit>("confirmKeyEdit")->setText(parts.at(3));
    ClickAndVisitMessage("newOkButton");
    Child<QDialog>("newDialog")->close();
}

void Screens::ShowNameNotice(const char *name)
{
    OpenNewDialog("open");
    Child<QComboBox>("networkNameBox")->setEditText(QLatin1String(name));
    ClickAndVisitMessage("newOkButton");
    Child<QDialog>("newDialog")->close();
}

void Screens::ShowStoringNotice(const char *id)
{
    OpenWindow(m_plugins.data());
    const bool isOfTheOrder = QByteArray(id).startsWith("IDS_WLAN_ORDER_");
    CUserNotice notice(isOfTheOrder ? "IDS_WLAN_ORDER_TITLE" : "IDS_WLAN_TITLE");
    const bool hasOther = QByteArray(id) == "IDS_WLAN_BETTER_PROFILE";
    notice.Tell(id, QLatin1String("Home"), hasOther ? QString(QLatin1String("Office")) : QString());
    QTimer::singleShot(0, this, SLOT(VisitMessage()));
    QApplication::processEvents();
}

void Screens::ShowConnect(const char *networksInRange)
{
    UseNetworksInRange(networksInRange);
    OpenWindow(m_plugins.data());
    Click("connectButton");
    Visit();
}

static void FillRange(Connections *told)
{
    const int protections[] = {VisibleNetwork::ProtectionKey, VisibleNetwork::ProtectionWeakKey,
                               VisibleNetwork::ProtectionAccount, VisibleNetwork::ProtectionOpen,
                               VisibleNetwork::ProtectionKey};
    const char *const names[] = {"Neighbour", "Workshop", "Campus", "Library", "Home"};
    int signal = 90;
    for (int protection : protections) {
        VisibleNetwork network;
        network.name = QLatin1String(names[told->networks.size()]);
        network.id = network.name;
        network.protection = protection;
        network.signal = signal;
        signal -= 9;
        told->networks.append(network);
    }
    told->networks[3].isInUse = true;
    told->active << ConnectionOf(QLatin1String("Library"), StageConnected, true);
    told->profiles << SavedProfile(QLatin1String("Home"));
    told->networks[4].profileIds << told->profiles[0].id;
}

void Screens::ShowConnecting(const char *what)
{
    const QByteArray shown(what);
    FakeConnections connections;
    FillRange(&connections.told);
    if (shown == "no key" || shown == "no WEP key") {
        connections.answer = IConnectionPlugin::RefusedKey;
    }
    const bool isUnderWay = shown == "connecting" || shown == "long";
    const int failure = shown == "saved key" ? int(FailureWrongKey) : shown.toInt();
    connections.attempt.stage = isUnderWay ? StageAuthenticating : failure > 0 ? StageFailed : StageConnected;
    connections.attempt.failure = failure > 0 ? failure : int(FailureNotStored);
    Fill();
    if (shown == "top" || shown == "not listed") {
        ListRules::SetPlaceOfNewNetworks(shown == "top" ? ListRules::NewAtTheTop
                                                        : ListRules::NewNotInTheList);
    }
    WithConnections container(m_plugins.data(), &connections);
    HostControl::SetPluginContainer(&container);
    OpenWindow(m_plugins.data());
    Click("connectButton");
    const QString chosen = QLatin1String(shown == "account"      ? "Campus"
                                         : shown == "no WEP key" ? "Workshop"
                                         : shown == "saved key"  ? "Home"
                                                                 : "Neighbour");
    QListWidget *list = Child<QListWidget>("connectList");
    list->setCurrentItem(list->findItems(chosen, Qt::MatchExactly).first());
    Child<QLineEdit>("connectKeyEdit")->setText(QLatin1String("sea-and-sand"));
    const QList<QByteArray> notOrdered{"key", "account", "away", "top", "not listed"};
    if (!notOrdered.contains(shown)) {
        Click("connectOkButton");
    }
    if (shown == "long") {
        Child<QTimer>("usualTime")->stop();
        connections.Tell();
    } else if (shown == "away") {
        connections.told.networks.removeFirst();
        connections.Tell();
    } else if (shown == "gone") {
        connections.told.state.source = ConnectionState::SourceGone;
        connections.told.networks.clear();
        connections.Tell();
    }
    Visit();
    m_window.reset();
    HostControl::SetPluginContainer(m_plugins.data());
}

void Screens::ShowDamagedLanguage(const char *kind)
{
    QDir().mkdir(m_directory->FilePath(QLatin1String("languages")));
    // The pseudo-language is in a directory with all others.
    const QDir all(PseudoLanguageDirectory());
    const QStringList files = all.entryList(QStringList(QLatin1String("*.qm")));
    for (const QString &file : files) {
        QFile::copy(all.filePath(file), m_directory->FilePath(QLatin1String("languages/") + file));
    }
    const QString bad = QLatin1String("languages/xx.qm");
    if (QByteArray(kind) == "empty") {
        m_directory->Write(bad, m_directory->Read(QLatin1String("languages/en.qm")).left(16));
    } else {
        QFile::link(QLatin1String("/proc/self/mem"), m_directory->FilePath(bad));
    }
    HostControl::SetLanguageDirectory(m_directory->FilePath(QLatin1String("languages")));
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowHistory(const char *listFile)
{
    KeepHistory(States(), stateInForce);
    if (listFile) {
        WriteUserFile(QLatin1String("Priority.xml"), listFile);
    }
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowHistoryFile(const char *content)
{
    Fill();
    WriteUserFile(QLatin1String("history/states.xml"), content);
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowTwoMessages(const char *listFile)
{
    WriteUserFile(QLatin1String("Priority.xml"), listFile);
    WriteUserFile(QLatin1String("history/states.xml"), "no history");
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowHistoryTooLong(const char *)
{
    KeepHistory(QStringList(QLatin1String("Home")), 0);
    QByteArray content = m_directory->Read(QLatin1String("priority-dashboard/history/states.xml"));
    const QByteArray state("<state time='2026-03-15T09:00:00Z' order='0'/>");
    content.replace("</states>", state.repeated(ListHistory::Most) + "</states>");
    WriteUserFile(QLatin1String("history/states.xml"), content);
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowHistoryNotReadable(const char *)
{
    Fill();
    QDir().mkpath(UserPath(QLatin1String("history/states.xml")));
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowHistoryNotWritable(const char *)
{
    Fill();
    WriteUserFile(QLatin1String("history"), "no directory");
    OpenWindow(m_plugins.data());
    Visit();
}

void Screens::ShowUndoOfHeldHistory(const char *)
{
    KeepHistory(States(), stateInForce);
    OpenWindow(m_plugins.data());
    const DirectoryLock lock(UserPath(QLatin1String("history")), DirectoryLock::Changing);
    ClickAndVisitMessage("undoButton");
}

void Screens::ShowUndoNotWritten(const char *)
{
    KeepHistory(States(), stateInForce);
    OpenWindow(m_plugins.data());
    QDir().mkdir(PrivateFile::TemporaryPath(UserPath(QLatin1String("Priority.xml"))));
    ClickAndVisitMessage("undoButton");
}

void Screens::ShowListNotCopied(const char *)
{
    TakeNames("Priority-damaged-%1.xml");
    ShowListFile(damagedList);
}

void Screens::OpenDamageQuestion(const char *history)
{
    if (history) {
        KeepHistory(States(), stateInForce);
    }
    WriteUserFile(QLatin1String("Priority.xml"), damagedList);
    OpenWindow(m_plugins.data());
    Click("bannerRemedyButton");
}

void Screens::ShowDamageQuestion(const char *history)
{
    OpenDamageQuestion(history);
    Visit();
}

void Screens::ShowDamageNotMended(const char *)
{
    OpenDamageQuestion("with history");
    QDir().mkdir(PrivateFile::TemporaryPath(UserPath(QLatin1String("Priority.xml"))));
    Click("damageBringBackButton");
    Visit();
}

void Screens::ShowRestore(const char *place)
{
    OpenRestore(QByteArray(place).toInt());
    Visit();
}

void Screens::ShowRestoreNotWritten(const char *)
{
    OpenRestore(0);
    QDir().mkdir(PrivateFile::TemporaryPath(UserPath(QLatin1String("Priority.xml"))));
    Click("restoreOkButton");
    Visit();
}

void Screens::ShowRestoreOfLostState(const char *)
{
    OpenRestore(0);
    KeepHistory(States().mid(1), stateInForce - 1);
    Click("restoreOkButton");
    Visit();
}

void Screens::ShowRestoreWithoutHistory(const char *)
{
    WriteUserFile(QLatin1String("history/states.xml"), "no history");
    OpenWindow(m_plugins.data());
    Trigger("restoreAction");
    Visit();
}

void Screens::ShowHistoryNotSetAside(const char *)
{
    WriteUserFile(QLatin1String("history/states.xml"), "no history");
    OpenWindow(m_plugins.data());
    Trigger("restoreAction");
    TakeNames("history/states-damaged-%1.xml");
    Click("restoreAsideButton");
    Visit();
}

void Screens::ShowImport(const char *names)
{
    OpenImport(names);
    Visit();
}

void Screens::ShowImportNotWritten(const char *names)
{
    OpenImport(names);
    QDir().mkdir(PrivateFile::TemporaryPath(UserPath(QLatin1String("Priority.xml"))));
    Click("importOkButton");
    Visit();
}

void Screens::ShowImportNotice(const char *content)
{
    OpenWindow(m_plugins.data());
    if (content) {
        m_directory->Write(QLatin1String("order.xml"), content);
    }
    CallAndVisitMessage("Import", m_directory->FilePath(QLatin1String("order.xml")));
}

void Screens::ShowExportNotice(const char *)
{
    OpenWindow(m_plugins.data());
    CallAndVisitMessage("Export", m_directory->FilePath(QLatin1String("no such directory/order.xml")));
}

void Screens::OpenWindow(PluginHost *plugins)
{
    m_window.reset(new MainWindow(plugins, m_language.data(), m_log.data()));
    m_window->show();
}

void Screens::OpenPage()
{
    Fill();
    OpenWindow(m_plugins.data());
    Click("settingsButton");
    QTableWidget *table = Child<QTableWidget>("priorityTable");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(1, 0)).center());
}

void Screens::OpenNewDialog(const char *method)
{
    OpenPage();
    Click("newButton");
    QComboBox *box = Child<QComboBox>("authenticationBox");
    box->setCurrentIndex(box->findText(QLatin1String(method)));
}

void Screens::OpenRestore(int place)
{
    KeepHistory(States(), stateInForce);
    OpenWindow(m_plugins.data());
    Trigger("restoreAction");
    QTableWidget *list = Child<QTableWidget>("restoreList");
    list->setCurrentCell(list->rowCount() - 1 - place, 0);
}

void Screens::OpenImport(const char *names)
{
    WriteUserFile(QLatin1String("Priority.xml"),
                  OrderFile::Document(Listed(QString::fromUtf8(importedOver))));
    OpenWindow(m_plugins.data());
    const QString path = m_directory->FilePath(QLatin1String("order.xml"));
    m_directory->Write(QLatin1String("order.xml"), OrderFile::Document(Listed(QString::fromUtf8(names))));
    QMetaObject::invokeMethod(m_window->findChild<ListActions *>(), "Import", Q_ARG(QString, path));
}

void Screens::CallAndVisitMessage(const char *listAction, const QString &path)
{
    QTimer::singleShot(0, this, SLOT(VisitMessage()));
    QMetaObject::invokeMethod(m_window->findChild<ListActions *>(), listAction, Q_ARG(QString, path));
}

void Screens::Fill()
{
    QList<RememberedList> remembered;
    PluginObjects::Wlan()->GetRememberedList(&remembered);
    QList<PriorityList> entries;
    // One is left to be added.
    for (int i = 0; i + 1 < remembered.size(); ++i) {
        PriorityList entry;
        entry.name = remembered.at(i).name;
        entry.type = remembered.at(i).type;
        entries.append(entry);
    }
    PriorityList longOne;
    longOne.name = QLatin1String(longName);
    longOne.type = QLatin1String("1");
    entries.append(longOne);
    PluginObjects::Priority()->AddPriorityList(entries);
}

void Screens::KeepHistory(const QStringList &lists, int position)
{
    ListHistory history;
    for (int i = 0; i < lists.size(); ++i) {
        ListState state;
        state.time = QDateTime::fromString("2026-03-15T09:00:00Z", Qt::ISODate).addSecs(i * 60);
        state.entries = Listed(lists.at(i));
        if (i == stateOfReturn) {
            state.backTo = history.States().at(stateInForce).time;
        }
        history.Record(state);
    }
    history.GoTo(position, QDateTime());
    WriteUserFile(QLatin1String("Priority.xml"), OrderFile::Document(history.Entries()));
    HistoryFile file(UserPath(QString()));
    if (!file.Prepare() || !file.Save(&history)) {
        qFatal("the history can't be written");
    }
}

QString Screens::UserPath(const QString &name) const
{
    return m_directory->FilePath(QLatin1String(userDirectory)) + QLatin1Char('/') + name;
}

/** Leaves no name free for a file that is set aside. */
void Screens::TakeNames(const char *pattern)
{
    const int names = 1000;
    for (int i = 1; i <= names; ++i) {
        WriteUserFile(QString::fromLatin1(pattern).arg(i), QByteArray());
    }
}

void Screens::WriteUserFile(const QString &name, const QByteArray &content)
{
    const QString path = QLatin1String(userDirectory) + QLatin1Char('/') + name;
    QDir().mkpath(QFileInfo(m_directory->FilePath(path)).path());
    m_directory->Write(path, content);
}

void Screens::UseNetworksInRange(const char *content)
{
    if (content) {
        WriteUserFile(QLatin1String("WLANNetworks.xml"), content);
    }
}

void Screens::Visit()
{
    QApplication::processEvents();
    QWidget *top = m_window.data();
    if (QApplication::activeModalWidget()) {
        top = QApplication::activeModalWidget();
    }
    if (QApplication::activePopupWidget()) {
        top = QApplication::activePopupWidget();
    }
    ++m_visits;
    (*m_visitor)(top);
}

void Screens::ClickAndVisitMessage(const char *button)
{
    QTimer::singleShot(0, this, SLOT(VisitMessage()));
    Click(button);
}

void Screens::VisitMessage()
{
    QWidget *message = QApplication::activeModalWidget();
    if (message->objectName() != QLatin1String("messageBox")) {
        qFatal("no message is shown");
    }
    Visit();
    message->close();
}

template <class Widget> Widget *Screens::Child(const char *name) const
{
    Widget *child = m_window->findChild<Widget *>(QLatin1String(name));
    if (!child) {
        qFatal("there is no %s", name);
    }
    return child;
}

void Screens::Trigger(const char *action)
{
    m_window->findChild<QAction *>(QLatin1String(action))->trigger();
}

void Screens::Click(const char *button)
{
    QTest::mouseClick(Child<QPushButton>(button), Qt::LeftButton);
}
