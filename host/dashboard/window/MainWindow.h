#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "ConnectionOrder.h"

#include <FileWatcher.h>
#include <HostControl.h>
#include <Overview.h>
#include <PluginList.h>

#include <QMainWindow>
#include <QPointer>

class ConnectDialog;
class DashboardLanguage;
class ListActions;
class ListGuard;
class ListKeeper;
class PluginHost;
class QAction;
class QActionGroup;
class QLabel;
class QListWidget;
class QMenu;
class QPushButton;
class QStackedWidget;
class QTimer;
class SettingsDialog;
class TraceLog;
class TracePanel;

/** Shows what is in use, the list, and what the connection manager tells of its networks. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(PluginHost *plugins, DashboardLanguage *language, TraceLog *log);
    ~MainWindow() override;

public slots:
    void Refresh();
    /** Has the Wi-Fi plug-in look for networks, too. */
    void LookAgain();
    void OpenSettings();
    void OpenConnect();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void FollowLanguage();
    void Retranslate();
    void FollowHistory();
    void Show();
    void Switch();
    void ConnectEntry();
    void Disconnect();
    void OpenLanguageMenu();
    void ChooseLanguage(QAction *action);
    void ChooseAppearance(QAction *action);
    void SettingsClosed();
    void ConnectClosed();

private:
    void CreateMenus();
    void CreateAppearanceActions();
    void CreateLanguageActions();
    void Watch();
    QWidget *CreateHead();
    QWidget *CreateMessagePage();
    QWidget *CreateFoot();
    const ActiveConnection *Disconnectable() const;
    void ShowConnect();
    void ShowHead();
    void ShowProblems();
    QString DamageText() const;
    void ShowList();
    void ShowNote();

    PluginHost *const m_plugins;
    DashboardLanguage *const m_language;
    const QList<LanguageProblem> m_languageProblems;
    FileWatcher m_watcher;
    PluginList m_source;
    ListKeeper *m_keeper;
    ListActions *m_listActions;
    ListGuard *m_guard;
    QTimer *m_refreshTimer;
    bool m_isRefreshing = false;
    bool m_isWatching = false;
    TracePanel *m_trace;
    Overview m_overview;
    ConnectionOrder m_order;
    QPointer<SettingsDialog> m_settings;
    QPointer<ConnectDialog> m_connect;

    QMenu *m_fileMenu;
    QMenu *m_editMenu;
    QMenu *m_viewMenu;
    QMenu *m_languageMenu;
    QAction *m_connectAction;
    QAction *m_disconnectAction;
    QAction *m_settingsAction;
    QAction *m_refreshAction;
    QAction *m_quitAction;
    QAction *m_searchAction;
    QMenu *m_appearanceMenu;
    QActionGroup *m_appearanceActions;
    QActionGroup *m_languageActions;

    QLabel *m_headline;
    QLabel *m_explanation;
    QLabel *m_problems;
    QPushButton *m_repairButton;
    QStackedWidget *m_body;
    QListWidget *m_list;
    QWidget *m_messagePage;
    QLabel *m_messageTitle;
    QLabel *m_messageText;
    QPushButton *m_switchButton;
    QPushButton *m_connectButton;
    QPushButton *m_settingsButton;
    QPushButton *m_refreshButton;
    QLabel *m_note;
    QPushButton *m_languageButton;
    QPushButton *m_traceButton;
};

#endif
