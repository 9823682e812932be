#include "DashboardSession.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <IConnectionPlugin.h>
#include <PluginHost.h>
#include <PluginObjects.h>
#include <TraceLog.h>
#include <UserActions.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTableWidget>
#include <QtTest>

DashboardSession::DashboardSession()
{
    qputenv("XDG_DATA_HOME", m_user.Path().toLocal8Bit());
    QDir().mkpath(m_user.FilePath("priority-dashboard"));
    HostControl::SetPluginLibraryPath(BUILD_DIRECTORY);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    if (!DashboardLanguage::Apply("en")) {
        qFatal("the dashboard has no texts");
    }
    m_log.reset(new TraceLog(m_user.FilePath("dashboard.log")));
    m_plugins.reset(new PluginHost(BUILD_DIRECTORY, PluginHost::KnownPlugins(WlanNetworkManager)));
    m_plugins->Load();

    const int pause = 50;
    QObject::connect(&m_reader, &QTimer::timeout, [this] {
        QWidget *message = QApplication::activeModalWidget();
        if (message && message->objectName() == QLatin1String("messageBox")) {
            QString text = message->findChild<QLabel *>("messageText")->text();
            // What tells the directions is for the eye alone.
            m_notices.append(text.remove(QChar(0x200e)).remove(QChar(0x202a)).remove(QChar(0x202c)));
            const std::function<void()> deed = m_deed ? m_deed : [message] {
                message->close();
            };
            m_deed = nullptr;
            deed();
        }
    });
    m_reader.start(pause);
}

DashboardSession::~DashboardSession()
{
    m_window.reset();
    m_plugins->Shutdown();
}

void DashboardSession::VerifyPlugins() const
{
    QCOMPARE(m_plugins->Plugins().at(0).state, PluginReady);
    QCOMPARE(m_plugins->Plugins().at(1).known.folder, QString("WLANNetworkManager"));
    QCOMPARE(m_plugins->Plugins().at(1).state, PluginReady);
}

void DashboardSession::OpenWindow()
{
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_plugins.data(), m_language.data(), m_log.data()));
    m_window->show();
    m_notices.clear();
}

int DashboardSession::Source()
{
    ConnectionState state;
    PluginObjects::Connecting()->GetConnectionState(&state);
    return state.source;
}

void DashboardSession::WaitForSource()
{
    QTRY_COMPARE(Source(), int(ConnectionState::SourceKnown));
}

void DashboardSession::CloseWindow()
{
    m_window.reset();
}

void DashboardSession::OpenSettings()
{
    m_window->OpenSettings();
    QTRY_VERIFY(Find<QTableWidget>("priorityTable") && Find<QTableWidget>("priorityTable")->isVisible());
}

void DashboardSession::OpenDialog(const char *button, const char *body)
{
    QCOMPARE(Click(button), QString());
    QTRY_VERIFY(Find<QWidget>(body) && Find<QWidget>(body)->isVisible());
}

void DashboardSession::Fill(const char *name, const QString &text)
{
    QWidget *field = Find<QWidget>(name);
    QVERIFY2(field, name);
    QCOMPARE(UserActions::Click(field), QString());
    QCOMPARE(UserActions::PressKey(Qt::Key_A, field, Qt::ControlModifier), QString());
    QCOMPARE(UserActions::TypeText(text, field), QString());
}

QString DashboardSession::Click(const char *name)
{
    QWidget *widget = Find<QWidget>(name);
    return widget ? UserActions::Click(widget) : QString("there is no %1").arg(name);
}

void DashboardSession::SetList(const QStringList &names) const
{
    QByteArray items;
    for (int i = 0; i < names.size(); ++i) {
        items += "<item name=\"" + names.at(i).toUtf8() + "\" type=\"1\"/>";
    }
    m_user.Write("priority-dashboard/Priority.xml", "<zeltdoc><profile>" + items + "</profile></zeltdoc>");
}
