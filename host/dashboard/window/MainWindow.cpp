#include "MainWindow.h"

#include "ConnectDialog.h"
#include "EntryActions.h"
#include "HeadArea.h"
#include "ListActions.h"
#include "ListGuard.h"
#include "MessagePage.h"
#include "NetworkActions.h"
#include "NetworkList.h"
#include "NetworkSearch.h"
#include "RuledDialog.h"
#include "WindowProblems.h"

#include <AccessibleRows.h>
#include <AgentStart.h>
#include <Appearance.h>
#include <Banner.h>
#include <Change.h>
#include <CommonUtils.h>
#include <ContractNumbers.h>
#include <DashboardLanguage.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <GeneralPage.h>
#include <IConnectionPlugin.h>
#include <IOrderPlugin.h>
#include <Installation.h>
#include <ListKeeper.h>
#include <ListRules.h>
#include <OverviewText.h>
#include <PluginHost.h>
#include <PluginObjects.h>
#include <PluginPage.h>
#include <ProfileNames.h>
#include <RulesPage.h>
#include <Settings.h>
#include <SettingsDialog.h>
#include <TextButton.h>
#include <TracePanel.h>
#include <UserData.h>
#include <WrappedLabel.h>

#include <QActionGroup>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

const int widestContent = 960;
const int lowHeight = 460;
const qreal shareOfScreen = 0.9;

QString GeometryKey()
{
    return QLatin1String("window/geometry");
}

QString TraceShownKey()
{
    return QLatin1String("trace/shown");
}

QLabel *MakeLabel(const char *name, qreal sizeFactor, bool isBold)
{
    QLabel *label = new WrappedLabel(name);
    QFont font = DialogParts::Scaled(label->font(), sizeFactor);
    font.setBold(isBold);
    label->setFont(font);
    return label;
}

/** Finds what this program finds. */
AgentStart Agent()
{
    const QString path = CommonUtils::GetPluginLibraryPath();
    const bool isUsual = path == Installation::LibraryPath(QCoreApplication::applicationDirPath());
    return AgentStart(QCoreApplication::applicationFilePath(), isUsual ? QString() : path);
}

} // namespace

MainWindow::MainWindow(PluginHost *plugins, DashboardLanguage *language, TraceLog *log)
    : m_plugins(plugins), m_language(language), m_languageProblems(HostControl::LanguageProblems()),
      m_watcher(UserData::FilePath(QLatin1String("Priority.xml")), nullptr),
      m_keeper(new ListKeeper(UserData::Directory(), &m_source, this)),
      m_listActions(new ListActions(m_keeper, this)), m_networkActions(new NetworkActions(m_keeper, this)),
      m_guard(new ListGuard(m_keeper, this)), m_list(new NetworkList),
      m_entryActions(new EntryActions(m_keeper, m_list, this)), m_find(new NetworkSearch(m_list)),
      m_refreshTimer(new QTimer(this))
{
    setObjectName(QLatin1String("mainWindow"));
    new AccessibleRows(this);
    m_trace = new TracePanel(log, this);
    addDockWidget(Qt::BottomDockWidgetArea, m_trace);
    m_trace->setVisible(Settings::Read(TraceShownKey()).toBool());

    CreateMenus();
    QWidget *central = new QWidget;
    central->setObjectName(QLatin1String("central"));
    QVBoxLayout *layout = new QVBoxLayout(central);
    m_head = new HeadArea;
    connect(m_head, &HeadArea::SwitchWanted, this, &MainWindow::Switch);
    connect(m_head, &HeadArea::StopWanted, this, &MainWindow::Disconnect);
    connect(m_head, &HeadArea::ConnectWanted, this, &MainWindow::OpenConnect);
    layout->addWidget(m_head);
    m_banner = new Banner;
    layout->addWidget(m_banner);
    m_listHeader = CreateListHeader();
    layout->addWidget(m_listHeader);

    m_listTools = CreateListTools();
    layout->addWidget(m_listTools);
    m_body = new QStackedWidget;
    m_body->setObjectName(QLatin1String("body"));
    m_body->addWidget(m_list);
    m_message = new MessagePage;
    m_body->addWidget(m_message);
    layout->addWidget(m_body, 1);
    m_listBar = m_listActions->CreateBar();
    layout->addWidget(m_listBar);
    setCentralWidget(central);

    if (QObject *service = PluginObjects::PriorityService()) {
        connect(service, SIGNAL(OnUpdataPriorityView()), this, SLOT(Refresh()));
    }
    connect(&m_watcher, &FileWatcher::Changed, this, &MainWindow::FollowFile);
    // Several changes that come close together are read once.
    m_refreshTimer->setSingleShot(true);
    connect(m_refreshTimer, SIGNAL(timeout()), this, SLOT(Show()));
    new ProfileNames(UserData::FilePath(ProfileNames::FileName()), m_keeper, this);
    connect(m_keeper, SIGNAL(Changed()), this, SLOT(FollowHistory()));
    m_keeper->SetPlaceInHand([this] { return m_settings ? m_settings->CurrentRow() : -1; });
    connect(m_keeper, &ListKeeper::Coming, this, &MainWindow::ShowComing);
    connect(m_listActions, &ListActions::Stepped, this, [this](const PriorityList &entry) {
        m_list->Select({ListedEntry{entry, 0}});
    });
    connect(m_entryActions, &EntryActions::ConnectWanted, this, &MainWindow::Connect);
    connect(m_language, SIGNAL(Switched()), this, SLOT(FollowLanguage()));

    setMinimumSize(DialogParts::ForFont(360), DialogParts::ForFont(280));
    resize(DialogParts::ForFont(820), DialogParts::ForFont(640));
    m_isSizeKept = restoreGeometry(Settings::Read(GeometryKey()).toByteArray());
    m_list->setFocus();
    Retranslate();
}

MainWindow::~MainWindow()
{
    // The pages are the plug-ins'; they are out of the dialog before it is deleted as a child of this window.
    delete m_settings.data();
}

void MainWindow::FitToScreen()
{
    // Qt itself brings a size that was kept into the screen.
    if (!m_isSizeKept) {
        resize(size().boundedTo(screen()->availableSize() * shareOfScreen));
    }
}

void MainWindow::CreateMenus()
{
    m_networkMenu = menuBar()->addMenu(QString());
    m_editMenu = menuBar()->addMenu(QString());
    m_viewMenu = menuBar()->addMenu(QString());
    m_languageMenu = menuBar()->addMenu(QString());
    menuBar()->setObjectName(QLatin1String("menuBar"));
    m_networkMenu->setObjectName(QLatin1String("networkMenu"));
    m_editMenu->setObjectName(QLatin1String("editMenu"));
    m_viewMenu->setObjectName(QLatin1String("viewMenu"));
    m_languageMenu->setObjectName(QLatin1String("languageMenu"));

    m_connectAction = m_networkMenu->addAction(QString(), this, SLOT(OpenConnect()));
    m_connectAction->setObjectName(QLatin1String("connectAction"));
    m_connectAction->setShortcut(QKeySequence(QLatin1String("Ctrl+K")));
    m_disconnectAction = m_networkMenu->addAction(QString(), this, SLOT(Disconnect()));
    m_disconnectAction->setObjectName(QLatin1String("disconnectAction"));
    m_networkMenu->addSeparator();
    m_quitAction = m_networkMenu->addAction(QString(), this, SLOT(close()));
    m_quitAction->setShortcut(QKeySequence(QLatin1String("Ctrl+Q")));
    m_listActions->FillMenu(m_editMenu);
    m_editMenu->addSeparator();
    m_entryActions->FillMenu(m_editMenu);
    m_editMenu->addSeparator();
    for (QMenu *menu : {m_editMenu, m_entryActions->Menu()}) {
        m_networkActions->FillMenu(menu);
    }
    m_list->addAction(m_networkActions->ForgetAction());
    m_editMenu->addSeparator();
    m_editMenu->addAction(m_find->StartAction());
    m_settingsAction = m_editMenu->addAction(QString(), this, SLOT(OpenSettings()));
    m_settingsAction->setObjectName(QLatin1String("settingsAction"));
    m_settingsAction->setShortcut(QKeySequence(QLatin1String("Ctrl+,")));
    m_repairAction = new QAction(this);
    m_repairAction->setObjectName(QLatin1String("repairAction"));
    connect(m_repairAction, &QAction::triggered, m_guard, &ListGuard::Ask);
    m_trace->toggleViewAction()->setShortcut(QKeySequence(QLatin1String("F12")));
    m_viewMenu->addAction(m_trace->toggleViewAction());
    m_searchAction = m_viewMenu->addAction(QString(), m_trace, SLOT(StartSearch()));
    m_searchAction->setObjectName(QLatin1String("traceSearchAction"));
    m_searchAction->setShortcut(QKeySequence(QLatin1String("Ctrl+Shift+F")));
    CreateAppearanceActions();
    m_refreshAction = m_viewMenu->addAction(QString(), this, SLOT(LookAgain()));
    m_refreshAction->setObjectName(QLatin1String("refreshAction"));
    m_refreshAction->setShortcut(QKeySequence(QLatin1String("F5")));
    m_ruledAction = m_viewMenu->addAction(QString(), this, &MainWindow::OpenRuled);
    m_ruledAction->setObjectName(QLatin1String("ruledAction"));
    CreateLanguageActions();
}

void MainWindow::CreateAppearanceActions()
{
    m_appearanceMenu = m_viewMenu->addMenu(QString());
    m_appearanceMenu->setObjectName(QLatin1String("appearanceMenu"));
    m_appearanceActions = new QActionGroup(this);
    const char *names[] = {"appearanceSystemAction", "appearanceLightAction", "appearanceDarkAction"};
    const Appearance::Choice choices[] = {Appearance::System, Appearance::Light, Appearance::Dark};
    for (Appearance::Choice choice : choices) {
        QAction *action = m_appearanceMenu->addAction(QString());
        action->setObjectName(QLatin1String(names[choice]));
        action->setCheckable(true);
        action->setChecked(choice == Appearance::Stored());
        action->setData(static_cast<int>(choice));
        m_appearanceActions->addAction(action);
    }
    connect(m_appearanceActions, SIGNAL(triggered(QAction *)), this, SLOT(ChooseAppearance(QAction *)));
}

void MainWindow::CreateLanguageActions()
{
    m_languageActions = new QActionGroup(this);
    const QStringList names = HostControl::LanguageNames();
    for (int i = 0; i < names.size(); ++i) {
        QAction *action = m_languageMenu->addAction(DashboardLanguage::NativeName(names.at(i)));
        action->setObjectName(QLatin1String("languageAction_") + names.at(i));
        action->setCheckable(true);
        action->setData(names.at(i));
        m_languageActions->addAction(action);
    }
    connect(m_languageActions, SIGNAL(triggered(QAction *)), this, SLOT(ChooseLanguage(QAction *)));
    // The menu's mnemonic is a letter of the language, which another keyboard may not have.
    QAction *open = new QAction(this);
    open->setShortcut(QKeySequence(QLatin1String("Ctrl+L")));
    connect(open, SIGNAL(triggered()), this, SLOT(OpenLanguageMenu()));
    addAction(open);
}

QWidget *MainWindow::CreateListHeader()
{
    m_listTitle = MakeLabel("listTitle", 1, true);
    m_listTitle->setWordWrap(false);
    m_note = MakeLabel("noteLabel", 0.92, false);
    m_ruledButton = new TextButton("ruledButton");
    connect(m_ruledButton, &QPushButton::clicked, this, &MainWindow::OpenRuled);
    m_settingsButton = new TextButton("settingsButton");
    connect(m_settingsButton, &QPushButton::clicked, this, &MainWindow::OpenSettings);

    QWidget *header = new QWidget;
    header->setObjectName(QLatin1String("listHeader"));
    QHBoxLayout *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_listTitle);
    layout->addWidget(m_note, 1);
    layout->addWidget(m_ruledButton);
    layout->addWidget(m_settingsButton);
    return header;
}

QWidget *MainWindow::CreateListTools()
{
    connect(m_find, &NetworkSearch::Changed, this, &MainWindow::Show);
    connect(m_list, &NetworkList::Folded, this, &MainWindow::Show);
    connect(m_list, &NetworkList::Left, m_find->ClearAction(), &QAction::trigger);
    connect(m_list, &NetworkList::DetailsWanted, m_networkActions, &NetworkActions::OpenDetails);
    connect(m_list, &NetworkList::currentRowChanged, this,
            [this] { m_networkActions->Choose(m_overview, m_list->Current(m_overview)); });
    connect(m_networkActions, &NetworkActions::Told, m_listActions, &ListActions::Tell);
    QWidget *tools = new QWidget;
    tools->setObjectName(QLatin1String("listTools"));
    QHBoxLayout *layout = new QHBoxLayout(tools);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_entryActions->CreateButtons(), 1);
    layout->addWidget(m_find, 1);
    return tools;
}

void MainWindow::FollowLanguage()
{
    // The plug-ins first: what this window shows has texts of theirs.
    m_plugins->Notify(LanguageChangeEvent);
    Retranslate();
}

void MainWindow::Retranslate()
{
    m_networkMenu->setTitle(DashboardText("IDS_MENU_NETWORK"));
    m_editMenu->setTitle(DashboardText("IDS_MENU_EDIT"));
    m_viewMenu->setTitle(DashboardText("IDS_MENU_VIEW"));
    m_languageMenu->setTitle(DashboardText("IDS_MENU_LANGUAGE"));
    m_connectAction->setText(DashboardText("IDS_ACTION_CONNECT"));
    m_connectAction->setIconText(DashboardText("IDS_BUTTON_CONNECT"));
    m_disconnectAction->setText(DashboardText("IDS_ACTION_DISCONNECT"));
    m_settingsAction->setText(DashboardText("IDS_ACTION_SETTINGS"));
    m_settingsAction->setIconText(DashboardText("IDS_BUTTON_SETTINGS"));
    m_refreshAction->setText(DashboardText("IDS_ACTION_REFRESH"));
    m_quitAction->setText(DashboardText("IDS_ACTION_QUIT"));
    m_settingsButton->setText(DashboardText("IDS_BUTTON_SETTINGS"));
    m_ruledAction->setText(DashboardText("IDS_ACTION_RULED"));
    m_listTitle->setText(DashboardText("IDS_LIST_TITLE"));
    m_list->setAccessibleName(DashboardText("IDS_PLUGIN_PRIORITY"));
    m_repairAction->setText(DashboardText("IDS_BUTTON_REPAIR"));
    m_listActions->Retranslate();
    m_entryActions->Retranslate();
    m_find->Retranslate();
    m_guard->Retranslate();
    m_trace->Retranslate();
    m_trace->toggleViewAction()->setText(DashboardText("IDS_ACTION_TRACE"));
    m_searchAction->setText(DashboardText("IDS_ACTION_TRACE_SEARCH"));
    m_appearanceMenu->setTitle(DashboardText("IDS_MENU_APPEARANCE"));
    const char *appearances[] = {"IDS_APPEARANCE_SYSTEM", "IDS_APPEARANCE_LIGHT", "IDS_APPEARANCE_DARK"};
    const QList<QAction *> choices = m_appearanceActions->actions();
    for (int i = 0; i < choices.size(); ++i) {
        choices.at(i)->setText(DashboardText(appearances[choices.at(i)->data().toInt()]));
    }
    const QList<QAction *> actions = m_languageActions->actions();
    for (int i = 0; i < actions.size(); ++i) {
        actions.at(i)->setChecked(actions.at(i)->data().toString() == Change::GetLangName());
    }
    if (m_settings) {
        m_settings->Retranslate();
    }
    if (m_connect) {
        m_connect->Retranslate();
    }
    if (m_ruled) {
        m_ruled->Retranslate();
    }
    Refresh();
}

void MainWindow::Refresh()
{
    // What the keeper itself changes it tells when it is done.
    if (m_keeper->IsBusy()) {
        return;
    }
    m_watcher.Note();
    FollowFile();
}

void MainWindow::FollowFile()
{
    m_isRefreshing = true;
    m_keeper->Follow();
    m_isRefreshing = false;
    Show();
}

void MainWindow::Show()
{
    m_overview = Overview::Of(m_keeper->LastReading());
    ShowHead();
    ShowProblems();
    ShowList();
    ShowRuled();
    ShowNote();
    m_networkActions->Choose(m_overview, m_list->Current(m_overview));
    m_networkActions->Show(m_overview);
}

void MainWindow::ShowRuled()
{
    OrderOutcome standing;
    IOrderPlugin *ordering = PluginObjects::Ordering();
    const bool isRuling = ordering && ListRules::IsRuling();
    if (isRuling) {
        ordering->GetStanding(&standing);
    }
    m_withoutEffect = RuledPlaces::WithoutEffect(m_overview, standing);
    // While nothing is known, nobody can say what the list rules.
    const bool isKnown = standing.stage == OrderOutcome::StageOrderDone && m_overview.connections.AreKnown();
    m_ruledAction->setEnabled(isKnown);
    m_ruledButton->setVisible(isKnown && !m_overview.entries.isEmpty());
    m_ruledButton->setText(DashboardText(m_withoutEffect.isEmpty() ? "IDS_RULED_MEANS" : "IDS_RULED_WHY"));
    if (m_ruled && isKnown) {
        m_ruled->Show(m_withoutEffect, !Agent().Now().IsOn());
    } else if (m_ruled) {
        m_ruled->close();
    }
}

void MainWindow::OpenRuled()
{
    if (!m_ruled) {
        m_ruled = new RuledDialog(this);
        m_ruled->setModal(true);
        connect(m_ruled, &RuledDialog::ConnectWanted, this, &MainWindow::Connect);
        connect(m_ruled, &RuledDialog::SettingsWanted, this, [this] {
            m_ruled->close();
            OpenSettings();
        });
        m_ruled->show();
    }
    Show();
}

QString MainWindow::NoteOf(const KnownPlugin &known) const
{
    if (PluginObjects::Ordering() && !ListRules::IsRuling()) {
        return DashboardText("IDS_NOTE_NOT_RULING");
    }
    const int places = static_cast<int>(m_overview.entries.size());
    return m_withoutEffect.isEmpty()
               ? DashboardText(known.noteId.toLatin1().constData())
               : DashboardText("IDS_RULED_SOME")
                     .arg(DashboardNumber(places - m_withoutEffect.size()), DashboardNumber(places));
}

void MainWindow::ShowNote()
{
    QStringList notes;
    const QList<PluginHost::Plugin> plugins = m_plugins->Plugins();
    for (int i = 0; i < plugins.size(); ++i) {
        const PluginHost::Plugin &plugin = plugins.at(i);
        // What a source that has gone would do nobody knows.
        const bool isToldOf =
            m_overview.connections.teller != Connections::Plugin || m_overview.connections.AreKnown();
        if (plugin.state == PluginReady && !plugin.known.noteId.isEmpty() && isToldOf) {
            notes.append(NoteOf(plugin.known));
        }
    }
    m_note->setText(DashboardJoined("IDS_SENTENCES", notes));
}

void MainWindow::LookAgain()
{
    if (IConnectionPlugin *connections = PluginObjects::Connecting()) {
        connections->LookForNetworks();
    }
    Refresh();
}

/** Nobody looks at a window that is hidden or minimised: it is told nothing, and reads once when it is seen
 * again. */
void MainWindow::Watch()
{
    const bool isWatched = isVisible() && !isMinimized();
    QObject *connections = PluginObjects::ConnectionService();
    QObject *order = PluginObjects::OrderService();
    if (isWatched == m_isWatching || !connections) {
        return;
    }
    m_isWatching = isWatched;
    if (isWatched) {
        connect(connections, SIGNAL(OnConnectionsChanged()), m_refreshTimer, SLOT(start()));
        if (order) {
            connect(order, SIGNAL(OnOrderChanged()), m_refreshTimer, SLOT(start()));
        }
        m_refreshTimer->start();
    } else {
        disconnect(connections, nullptr, m_refreshTimer, nullptr);
        if (order) {
            disconnect(order, nullptr, m_refreshTimer, nullptr);
        }
    }
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    // What is in use and the list itself are seen last of all.
    const bool isLow = height() < DialogParts::ForFont(lowHeight);
    const int margin = isLow ? 8 : 16;
    // What belongs together stays together, however wide the window is.
    const int side = qMax(margin, (width() - DialogParts::ForFont(widestContent)) / 2);
    centralWidget()->layout()->setContentsMargins(side, margin, side, margin);
    centralWidget()->layout()->setSpacing(isLow ? 6 : 12);
    m_head->SetBrief(isLow);
    m_listHeader->setVisible(!isLow);
    m_listBar->setVisible(!isLow);
    ShowTools();
    m_banner->SetBrief(height() < DialogParts::ForFont(360));
}

void MainWindow::ShowTools()
{
    const bool hasRoom = height() >= DialogParts::ForFont(lowHeight) || m_find->IsWanted();
    m_find->Follow();
    m_find->StartAction()->setEnabled(!m_overview.entries.isEmpty());
    m_listTools->setVisible(hasRoom && !m_overview.entries.isEmpty());
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        Watch();
    }
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    Watch();
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    Watch();
}

void MainWindow::Switch()
{
    if (const Overview::Entry *choice = m_overview.Choice()) {
        Connect(choice->entry.name, choice->profile.id);
    }
}

void MainWindow::Connect(const QString &name, const QString &profileId)
{
    m_order.Connect(name, profileId);
    Refresh();
}

/** What is in use, or coming up to be: Wi-Fi or mobile broadband; else null. */
const ActiveConnection *MainWindow::Disconnectable() const
{
    const ActiveConnection *inUse = m_overview.connections.InUse();
    const ActiveConnection *connection = inUse ? inUse : m_overview.ComingUp();
    const bool isOther =
        connection && connection->type != QLatin1String("1") && connection->type != QLatin1String("2");
    return isOther || !m_overview.connections.state.mayConnect ? nullptr : connection;
}

void MainWindow::Disconnect()
{
    if (const ActiveConnection *connection = Disconnectable()) {
        m_order.Disconnect(*connection);
        Refresh();
    }
}

void MainWindow::FollowHistory()
{
    if (!m_isRefreshing) {
        m_watcher.Note();
        Show();
    }
}

/** Who moves a row of a long list sees it there before it is written, and sees where it is when it isn't. */
void MainWindow::ShowComing(const QList<PriorityList> &entries)
{
    m_overview = Overview::Make(PriorityRead, entries, m_overview.connections);
    m_list->Show(m_overview);
    m_list->viewport()->repaint();
}

void MainWindow::ShowHead()
{
    setWindowTitle(OverviewText::Marked(m_overview, DashboardText("IDS_WINDOW_TITLE")));
    m_head->Show(m_overview, m_order.IsUnderWay(), Disconnectable());
    m_connectAction->setEnabled(m_overview.connections.AreKnown());
    m_disconnectAction->setEnabled(Disconnectable());
}

void MainWindow::ShowProblems()
{
    QList<Banner::Problem> problems;
    // What the user has just asked for comes first.
    if (m_order.HasFailed(m_overview.connections.active)) {
        problems.append(WindowProblems::OfOrder(m_order));
    }
    problems += WindowProblems::OfList(m_overview, *m_keeper, m_repairAction);
    problems += WindowProblems::OfInstallation(m_overview, *m_plugins, m_languageProblems);
    m_banner->Show(problems);
}

void MainWindow::ShowList()
{
    m_list->Show(m_overview);
    m_entryActions->Show(m_overview);
    ShowTools();
    if (m_overview.status < 0) {
        ShowNoList();
    } else if (m_overview.entries.isEmpty() && m_overview.IsListWhole()) {
        ShowEmptyList();
    } else if (m_list->HasFoundNothing()) {
        ShowNothingFound();
    } else if (m_overview.entries.isEmpty()) {
        m_message->Show(DashboardText("IDS_NO_LIST_TITLE"), DashboardText("IDS_EMPTY_UNREADABLE"),
                        QList<QAction *>());
    }
    const bool isListShown = !m_overview.entries.isEmpty() && !m_list->HasFoundNothing();
    m_body->setCurrentWidget(isListShown ? static_cast<QWidget *>(m_list) : m_message);
    if (focusWidget() == m_message) {
        // There is nothing on it to work with; the settings may help.
        m_settingsButton->setFocus();
    }
}

void MainWindow::ShowNothingFound()
{
    m_message->Show(DashboardText("IDS_FIND_NONE").arg(OverviewText::Name(m_find->text())), QString(),
                    {m_find->ClearAction()});
}

void MainWindow::ShowNoList()
{
    QStringList problems;
    const QList<PluginHost::Plugin> plugins = m_plugins->Plugins();
    for (const PluginHost::Plugin &plugin : plugins) {
        if (plugin.known.hasSettingsPage) {
            const QString problem = PluginHost::ProblemText(plugin);
            problems.append(problem.isEmpty() ? DashboardText("IDS_LIST_NOT_OFFERED").arg(plugin.file)
                                              : problem);
        }
    }
    m_message->Show(DashboardText("IDS_NO_LIST_TITLE"), problems.join(QLatin1String("\n\n")),
                    QList<QAction *>());
}

void MainWindow::ShowEmptyList()
{
    if (m_keeper->UndoObstacle() == ListKeeper::NoObstacle) {
        m_message->Show(DashboardText("IDS_EMPTY_TITLE"), DashboardText("IDS_EMPTY_HINT"),
                        {m_listActions->UndoAction(), m_settingsAction});
    } else if (!m_overview.connections.profiles.isEmpty()) {
        m_message->Show(DashboardText("IDS_FIRST_TITLE"), DashboardText("IDS_FIRST_TAKE_OVER"),
                        {m_listActions->TakeOverAction(), m_listActions->ImportAction()});
    } else {
        m_message->Show(DashboardText("IDS_FIRST_TITLE"), DashboardText("IDS_FIRST_CONNECT"),
                        {m_connectAction, m_listActions->ImportAction()});
    }
}

void MainWindow::OpenLanguageMenu()
{
    menuBar()->setActiveAction(m_languageMenu->menuAction());
    m_languageMenu->setActiveAction(m_languageActions->checkedAction());
}

void MainWindow::ChooseLanguage(QAction *action)
{
    m_language->Switch(action->data().toString());
}

void MainWindow::ChooseAppearance(QAction *action)
{
    const Appearance::Choice choice = static_cast<Appearance::Choice>(action->data().toInt());
    Appearance::Apply(choice);
    Appearance::Store(choice);
}

void MainWindow::OpenSettings()
{
    if (m_settings) {
        m_settings->raise();
        m_settings->activateWindow();
        return;
    }
    if (!m_guard->MayOpen(SLOT(OpenSettings()))) {
        return;
    }
    m_keeper->BeginOpening();
    m_settings = new SettingsDialog(this);
    m_settings->AddPage(new GeneralPage(m_language, m_plugins));
    m_settings->AddPage(new RulesPage(Agent()));
    int firstPluginPage = 0;
    const QList<PluginHost::Plugin> plugins = m_plugins->Plugins();
    int pages = 2;
    for (int i = 0; i < plugins.size(); ++i) {
        if (PluginPage *page = PluginPage::Make(plugins.at(i), m_plugins)) {
            m_settings->AddPage(page);
            // The settings are opened for the sake of the list, so its page comes first.
            firstPluginPage =
                plugins.at(i).known.hasSettingsPage && firstPluginPage == 0 ? pages : firstPluginPage;
            ++pages;
        }
    }
    m_settings->AddButtons(m_listActions->CreateButtons("settingsUndoButton", "settingsRedoButton"));
    m_settings->SelectPage(firstPluginPage);
    connect(m_settings.data(), SIGNAL(finished(int)), this, SLOT(SettingsClosed()));
    m_settings->setModal(true);
    m_settings->show();
    m_guard->Watch(m_settings.data());
}

void MainWindow::SettingsClosed()
{
    if (m_settings) {
        m_settings->deleteLater();
        m_settings = nullptr;
    }
    m_keeper->EndOpening();
    Refresh();
}

void MainWindow::OpenConnect()
{
    if (m_connect) {
        m_connect->raise();
        m_connect->activateWindow();
        return;
    }
    if (!m_guard->MayOpen(SLOT(OpenConnect()))) {
        return;
    }
    m_connect = new ConnectDialog(this);
    connect(m_connect.data(), SIGNAL(finished(int)), this, SLOT(ConnectClosed()));
    m_connect->setModal(true);
    m_connect->show();
    m_guard->Watch(m_connect.data());
}

void MainWindow::ConnectClosed()
{
    if (m_connect) {
        m_connect->deleteLater();
        m_connect = nullptr;
    }
    Refresh();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_keeper->Follow();
    Settings::Write(GeometryKey(), saveGeometry());
    Settings::Write(TraceShownKey(), m_trace->toggleViewAction()->isChecked());
    QMainWindow::closeEvent(event);
}
