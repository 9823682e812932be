#ifndef DASHBOARDSESSION_H
#define DASHBOARDSESSION_H

#include <TemporaryDirectory.h>

#include <MainWindow.h>

#include <QScopedPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class DashboardLanguage;
class PluginHost;
class TraceLog;

/** The dashboard as its program has it, with a user of its own, over the NetworkManager of the private bus.
 */
class DashboardSession
{
public:
    /** NetworkManager is on the bus. */
    DashboardSession();
    ~DashboardSession();

    /** Fails the test that calls when a plug-in is not as the dashboard should have it. */
    void VerifyPlugins() const;

    void OpenWindow();
    /** What is known of NetworkManager, a ConnectionState::Source. */
    static int Source();
    /** Returns when it is known what NetworkManager tells now. */
    void WaitForSource();
    void CloseWindow();
    template <typename Widget> Widget *Find(const char *name) { return m_window->findChild<Widget *>(name); }

    /** The settings dialog with the list. */
    void OpenSettings();
    /** One of the two dialogs behind the page's buttons; body is the name of what it shows. */
    void OpenDialog(const char *button, const char *body);
    void Fill(const char *name, const QString &text);
    /** Empty, or why a user couldn't click there. */
    QString Click(const char *name);

    /** The messages that have come to this window; each is read and closed as soon as it is there. */
    const QStringList &Notices() const { return m_notices; }
    /** What is done with the next message in the place of closing it. */
    void AtNextNotice(const std::function<void()> &deed) { m_deed = deed; }

    void SetList(const QStringList &names) const;
    const TemporaryDirectory &User() const { return m_user; }
    QByteArray Log() const { return m_user.Read("dashboard.log"); }

private:
    Q_DISABLE_COPY(DashboardSession)

    TemporaryDirectory m_user;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<PluginHost> m_plugins;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
    QTimer m_reader;
    QStringList m_notices;
    std::function<void()> m_deed;
};

#endif
