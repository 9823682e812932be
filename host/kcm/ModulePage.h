#ifndef MODULEPAGE_H
#define MODULEPAGE_H

#include <SettingsPage.h>

#include <QScopedPointer>
#include <QString>
#include <QWidget>

class ListKeeper;
class PluginHost;
class QLabel;
class QPushButton;
class QVBoxLayout;

/**
 * The list and its rules as a page of a foreign settings program. Every change takes effect at once, so there
 * is nothing to apply. The plug-in has one page in a process: while one of these shows it, others tell that.
 */
class ModulePage : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param plugins  loaded; not owned, outlives this or Close is called before it ends.
     * @param keeper   as plugins.
     * @param program  path of the dashboard.
     */
    ModulePage(PluginHost *plugins, ListKeeper *keeper, const QString &program, QWidget *parent);
    ~ModulePage() override;

    /** Shows list and rules as they are now. */
    void Load();

public slots:
    /** Takes the plug-in's page out. What was changed on it stays. */
    void Close();

signals:
    /** The plug-in's page can be shown elsewhere. */
    void Released();

private:
    void Follow();
    void ShowList();
    void ShowRules();
    void ShowMessage(const QString &text);
    void OpenDashboard();
    /** Why the list may not be edited, in words; null when it may. */
    QString Obstacle() const;

    PluginHost *const m_plugins;
    ListKeeper *const m_keeper;
    const QString m_program;
    QVBoxLayout *m_layout;
    QWidget *m_listPlace = nullptr;
    QWidget *m_rulesPlace = nullptr;
    QScopedPointer<SettingsPage> m_list;
    QScopedPointer<SettingsPage> m_rules;
    QLabel *m_message;
    QPushButton *m_openButton;
};

#endif
