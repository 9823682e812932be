#ifndef SCREENS_H
#define SCREENS_H

#include <DashboardLanguage.h>
#include <PluginHost.h>
#include <TemporaryDirectory.h>
#include <TraceLog.h>

#include <QObject>
#include <QScopedPointer>
#include <QStringList>

#include <functional>

class MainWindow;
class QWidget;

/**
 * Everything that the program shows, screen by screen, over the real plug-ins. These live once in a process,
 * and so does this.
 */
class Screens : public QObject
{
    Q_OBJECT

public:
    /** Gets the topmost window of a screen while it is open. */
    typedef std::function<void(QWidget *)> Visitor;

    Screens();
    ~Screens() override;

    static QStringList Names();

    /** Languages with a file of their own. */
    static QStringList Languages();

    void Show(const QString &name, const QString &language, const Visitor &visitor);

    /** Names and technical terms on the screens, which no language translates. */
    static QStringList Values();

private slots:
    void VisitMessage();

private:
    struct Screen {
        const char *name;
        void (Screens::*show)(const char *detail);
        const char *detail;
    };

    static const Screen screens[];
    static const Screen *Find(const QString &name);

    void ShowList(const char *networksInRange);
    void ShowListFile(const char *content);
    void ShowEmptiedList(const char *unused);
    void ShowTakeOver(const char *unused);
    void ShowNetworkSearch(const char *typed);
    void ShowUnopenedList(const char *);
    void ShowRangeUnknown(const char *listFile);
    void ShowConnections(const char *what);
    void ShowDetails(const char *what);
    void ShowForgetting(const char *what);
    void ShowListNotHandedOut(const char *folder);
    void ShowTrace(const char *);
    void ShowTraceSearch(const char *text);
    void ShowMenu(const char *menu);
    void ShowEditMenu(const char *listFile);
    void ShowMoved(const char *);
    void ShowEntryMenu(const char *);
    void ShowStatusMenu(const char *);
    void ShowPlace(const char *selected);
    void ShowFind(const char *typed);
    void ShowGoneNetwork(const char *);
    void ShowTwoMessages(const char *listFile);
    void ShowBroken(const char *folder);
    void ShowBrokenSettings(const char *folder);
    void ShowBrokenGeneralPage(const char *folder);
    void ShowNetworkManager(const char *folder);
    void ShowNetworkManagerSettings(const char *folder);
    void ShowRule(const char *where);
    void ShowSwitchNotice(const char *);
    void ShowGeneralPage(const char *);
    void ShowRulesPage(const char *);
    void ShowModule(const char *list);
    void ShowPriorityPage(const char *);
    void ShowAddDialog(const char *);
    void ShowNewDialog(const char *method);
    void ShowDeleteQuestion(const char *);
    void ShowKeyNotice(const char *methodAndKeys);
    void ShowNameNotice(const char *name);
    void ShowStoringNotice(const char *id);
    void ShowConnect(const char *networksInRange);
    void ShowConnecting(const char *what);
    void ShowDamagedLanguage(const char *kind);
    void ShowHistory(const char *listFile);
    void ShowHistoryFile(const char *content);
    void ShowHistoryTooLong(const char *);
    void ShowHistoryNotReadable(const char *);
    void ShowHistoryNotWritable(const char *);
    void ShowUndoOfHeldHistory(const char *);
    void ShowUndoNotWritten(const char *);
    void ShowListNotCopied(const char *);
    void ShowDamageQuestion(const char *history);
    void ShowDamageNotMended(const char *);
    void ShowRestore(const char *place);
    void ShowRestoreNotWritten(const char *);
    void ShowRestoreOfLostState(const char *);
    void ShowRestoreWithoutHistory(const char *);
    void ShowHistoryNotSetAside(const char *);
    void ShowImport(const char *names);
    void ShowImportNotWritten(const char *names);
    void ShowImportNotice(const char *content);
    void ShowExportNotice(const char *);

    void OpenWindow(PluginHost *plugins);
    void OpenListAt(int row);
    void OpenPage();
    void OpenNewDialog(const char *method);
    void OpenDamageQuestion(const char *history);
    void OpenRestore(int place);
    void OpenImport(const char *names);
    void CallAndVisitMessage(const char *listAction, const QString &path);
    void Fill();
    void KeepHistory(const QStringList &lists, int position);
    QString UserPath(const QString &name) const;
    void WriteUserFile(const QString &name, const QByteArray &content);
    void TakeNames(const char *pattern);
    void UseNetworksInRange(const char *content);
    void Visit();
    void ClickAndVisitMessage(const char *button);
    template <class Widget> Widget *Child(const char *name) const;
    void Trigger(const char *action);
    void Click(const char *button);

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<PluginHost> m_plugins;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
    const Visitor *m_visitor;
    int m_visits;
};

#endif
