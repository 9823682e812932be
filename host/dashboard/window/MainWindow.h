#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "ConnectionOrder.h"

#include <FileWatcher.h>
#include <HostControl.h>
#include <Overview.h>
#include <PluginList.h>
#include <RuledPlaces.h>

#include <QMainWindow>
#include <QPointer>

class Banner;
class ConnectDialog;
class DashboardLanguage;
class EntryActions;
class HeadArea;
class ListActions;
class ListGuard;
class ListKeeper;
class MessagePage;
class NetworkActions;
class NetworkList;
class NetworkSearch;
class PluginHost;
struct KnownPlugin;
class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QStackedWidget;
class QTimer;
class RuledDialog;
class SettingsDialog;
class TextButton;
class TraceLog;
class TracePanel;

/** Shows what is in use, the list, and what the connection manager tells of its networks. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(PluginHost *plugins, DashboardLanguage *language, TraceLog *log);
    ~MainWindow() override;

    /** Makes the window no larger than most of its screen, unless the user has chosen the size. */
    void FitToScreen();

public slots:
    void Refresh();
    /** Has the Wi-Fi plug-in look for networks, too. */
    void LookAgain();
    void OpenSettings();
    void OpenConnect();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void FollowLanguage();
    void Retranslate();
    void FollowFile();
    void FollowHistory();
    void Show();
    void Switch();
    void Connect(const QString &name, const QString &profileId);
    void Disconnect();
    void OpenLanguageMenu();
    void ChooseLanguage(QAction *action);
    void ChooseAppearance(QAction *action);
    void SettingsClosed();
    void ConnectClosed();
    void OpenRuled();

private:
    void CreateMenus();
    void CreateAppearanceActions();
    void CreateLanguageActions();
    void Watch();
    QWidget *CreateListHeader();
    QWidget *CreateListTools();
    const ActiveConnection *Disconnectable() const;
    void ShowComing(const QList<PriorityList> &entries);
    void ShowHead();
    void ShowProblems();
    void ShowList();
    void ShowNothingFound();
    void ShowTools();
    void ShowNoList();
    void ShowEmptyList();
    void ShowNote();
    QString NoteOf(const KnownPlugin &known) const;
    void ShowRuled();

    PluginHost *const m_plugins;
    DashboardLanguage *const m_language;
    const QList<LanguageProblem> m_languageProblems;
    FileWatcher m_watcher;
    PluginList m_source;
    ListKeeper *m_keeper;
    ListActions *m_listActions;
    NetworkActions *m_networkActions;
    ListGuard *m_guard;
    NetworkList *m_list;
    EntryActions *m_entryActions;
    NetworkSearch *m_find;
    QTimer *m_refreshTimer;
    bool m_isRefreshing = false;
    bool m_isWatching = false;
    bool m_isSizeKept = false;
    TracePanel *m_trace;
    Overview m_overview;
    ConnectionOrder m_order;
    QPointer<SettingsDialog> m_settings;
    QPointer<ConnectDialog> m_connect;
    QPointer<RuledDialog> m_ruled;
    QList<PlaceWithoutEffect> m_withoutEffect;

    QMenu *m_networkMenu;
    QMenu *m_editMenu;
    QMenu *m_viewMenu;
    QMenu *m_languageMenu;
    QAction *m_connectAction;
    QAction *m_disconnectAction;
    QAction *m_settingsAction;
    QAction *m_refreshAction;
    QAction *m_quitAction;
    QAction *m_repairAction;
    QAction *m_ruledAction;
    QAction *m_searchAction;
    QMenu *m_appearanceMenu;
    QActionGroup *m_appearanceActions;
    QActionGroup *m_languageActions;

    HeadArea *m_head;
    Banner *m_banner;
    QWidget *m_listHeader;
    QWidget *m_listTools;
    QWidget *m_listBar;
    QLabel *m_listTitle;
    QLabel *m_note;
    TextButton *m_ruledButton;
    TextButton *m_settingsButton;
    QStackedWidget *m_body;
    MessagePage *m_message;
};

#endif
