#ifndef CONNECTEDWINDOW_H
#define CONNECTEDWINDOW_H

#include "FakeConnections.h"
#include "FakePriority.h"

#include <DashboardLanguage.h>
#include <MainWindow.h>
#include <NetworkList.h>
#include <PluginHost.h>
#include <TemporaryDirectory.h>
#include <TraceLog.h>

#include <QLabel>
#include <QScopedPointer>

#include <functional>

/** The window over a list and connections that are plain objects. */
class ConnectedWindow
{
public:
    ConnectedWindow();
    ~ConnectedWindow();

    void Open();

    /** Tells the connections as they are now, and waits until the window has read them. */
    void Follow();

    /** Does something that has the window read, and waits until it has. */
    void AwaitReading(const std::function<void()> &cause);

    QString Text(const char *label) const;
    NetworkList *List() const { return window->findChild<NetworkList *>(); }
    QString State(int row) const;

    FakePriority *priority;
    FakeConnections *connections;
    QScopedPointer<MainWindow> window;

private:
    Q_DISABLE_COPY(ConnectedWindow)

    class Container : public IPluginContainer
    {
    public:
        QObject *GetPluginObject(const QString &classId, int interfaceNumber) override;

        QObject *priority = nullptr;
    };

    TemporaryDirectory m_directory;
    TraceLog m_log;
    QObject m_objects;
    Container m_others;
    QScopedPointer<WithConnections> m_container;
    PluginHost m_plugins;
    DashboardLanguage m_language;
};

#endif
