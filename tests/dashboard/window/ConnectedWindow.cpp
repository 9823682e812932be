#include "ConnectedWindow.h"

#include <HostControl.h>
#include <NetworkDelegate.h>

#include <QCoreApplication>
#include <QDir>

ConnectedWindow::ConnectedWindow()
    : priority(new FakePriority), connections(new FakeConnections),
      m_log(m_directory.FilePath("dashboard.log")), m_plugins(BUILD_DIRECTORY, QList<KnownPlugin>()),
      m_language(nullptr)
{
    qputenv("XDG_DATA_HOME", m_directory.Path().toLocal8Bit());
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    DashboardLanguage::Apply("en");
    priority->setParent(&m_objects);
    connections->setParent(&m_objects);
    m_others.priority = priority;
    m_container.reset(new WithConnections(&m_others, connections));
    HostControl::SetPluginContainer(m_container.data());
}

ConnectedWindow::~ConnectedWindow()
{
    window.reset();
    HostControl::SetPluginContainer(nullptr);
}

void ConnectedWindow::Open()
{
    window.reset(new MainWindow(&m_plugins, &m_language, &m_log));
    AwaitReading([this] { window->show(); });
}

void ConnectedWindow::Follow()
{
    AwaitReading([this] { connections->Tell(); });
}

void ConnectedWindow::AwaitReading(const std::function<void()> &cause)
{
    const int reads = connections->reads;
    cause();
    while (connections->reads == reads) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

QString ConnectedWindow::Text(const char *label) const
{
    return window->findChild<QLabel *>(QLatin1String(label))->text();
}

QString ConnectedWindow::State(int row) const
{
    return List()->item(row)->data(NetworkDelegate::StateTextRole).toString();
}

QObject *ConnectedWindow::Container::GetPluginObject(const QString &, int interfaceNumber)
{
    const int priorityInterface = 4103;
    return interfaceNumber == priorityInterface ? priority : nullptr;
}
