#include "StatusIcon.h"

#include <DashboardText.h>
#include <Glyphs.h>
#include <ListChangeText.h>
#include <ListKeeper.h>
#include <Overview.h>
#include <OverviewText.h>
#include <PluginObjects.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QSystemTrayIcon>
#include <QTimer>

namespace
{

const int iconSize = 48;

QString WatcherService()
{
    return QLatin1String("org.kde.StatusNotifierWatcher");
}

/** For a program that is not installed. */
QIcon DrawnIcon()
{
    QPixmap pixmap(iconSize, iconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    Glyphs::Signal signal;
    signal.kind = Glyphs::Wifi;
    signal.reach = Glyphs::InReach;
    signal.percent = 100;
    signal.isInUse = true;
    Glyphs::Draw(&painter, QRectF(0, 0, iconSize, iconSize), signal, Tones::OfApplication());
    return QIcon(pixmap);
}

/** A text with names of the user's in a menu that is shown by D-Bus. There "_" underlines what follows, and
 * Qt makes one of the first "&", whatever follows. */
QString InMenu(QString text)
{
    text.replace(QLatin1Char('_'), QLatin1String("__"));
    return text.contains(QLatin1Char('&')) ? QLatin1Char('&') + text : text;
}

bool CanBeChosen(const Overview &overview, const Overview::Entry &entry)
{
    return overview.connections.AreKnown() && overview.connections.state.mayConnect && !entry.isRepeated &&
           entry.CanBeUsed() && (entry.stage == StageNotKnown || entry.stage == StageDisconnecting);
}

} // namespace

bool operator==(const StatusIcon::Line &left, const StatusIcon::Line &right)
{
    return left.text == right.text && left.name == right.name && left.profileId == right.profileId;
}

StatusIcon::StatusIcon(ListKeeper *keeper, const QStringList &program)
    : m_keeper(keeper), m_program(program), m_menu(new QMenu), m_refreshTimer(new QTimer(this))
{
    // What a menu opens and closes is no window that the program is there for.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    m_menu->setObjectName(QLatin1String("statusMenu"));
    // Several changes that come close together are read once.
    m_refreshTimer->setSingleShot(true);
    connect(m_refreshTimer, &QTimer::timeout, this, &StatusIcon::Show);
    connect(m_keeper, &ListKeeper::Changed, m_refreshTimer, QOverload<>::of(&QTimer::start));
    if (const QObject *connections = PluginObjects::ConnectionService()) {
        // The service is of a plug-in, and known by the names of its signals alone.
        connect(connections, SIGNAL(OnConnectionsChanged()), m_refreshTimer, SLOT(start()));
    }
    Show();
    FollowDesktop();
}

StatusIcon::~StatusIcon() = default;

/** Panels come and go, and at the start of a session often come later than this. */
void StatusIcon::FollowDesktop()
{
    // Without an address D-Bus might start a bus for the question.
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusServiceWatcher *watcher =
        new QDBusServiceWatcher(WatcherService(), bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusIcon::Look);
    bus.connect(WatcherService(), QLatin1String("/StatusNotifierWatcher"), WatcherService(),
                QLatin1String("StatusNotifierHostRegistered"), this, SLOT(Look()));
    Look();
}

void StatusIcon::Look()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        WatcherService(), QLatin1String("/StatusNotifierWatcher"),
        QLatin1String("org.freedesktop.DBus.Properties"), QLatin1String("Get"));
    call << WatcherService() << QLatin1String("IsStatusNotifierHostRegistered");
    QDBusPendingCallWatcher *answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (reply.isValid() && reply.value().variant().toBool()) {
            Appear();
        }
    });
}

void StatusIcon::Appear()
{
    if (!m_icon) {
        // Qt asks once in a process whether icons are shown, and keeps the answer: not before they are.
        m_icon.reset(new QSystemTrayIcon(
            QIcon::fromTheme(QLatin1String("com.torvik.netquillforge.PriorityDashboard"), DrawnIcon())));
        m_icon->setContextMenu(m_menu.data());
        m_icon->setToolTip(m_headline);
        m_icon->show();
    }
}

void StatusIcon::Show()
{
    const Overview overview = Overview::Of(m_keeper->LastReading());
    const QString headline = OverviewText::Headline(overview);
    QList<Line> lines;
    const QList<Overview::Entry> first = overview.entries.mid(0, entriesTold);
    for (const Overview::Entry &entry : first) {
        Line line;
        line.text = DashboardText("IDS_LABEL")
                        .arg(ListChangeText::Name(entry.entry), OverviewText::State(overview, entry));
        line.name = entry.entry.name;
        line.profileId = CanBeChosen(overview, entry) ? entry.profile.id : QString();
        lines.append(line);
    }
    // Who has the menu open would lose it.
    if (headline != m_headline || !(lines == m_lines) || m_menu->isEmpty()) {
        m_lines = lines;
        Fill(headline);
    }
}

void StatusIcon::Fill(const QString &headline)
{
    m_headline = headline;
    m_menu->clear();
    m_menu->addAction(InMenu(headline))->setEnabled(false);
    m_menu->addSeparator();
    for (const Line &line : std::as_const(m_lines)) {
        QAction *action = m_menu->addAction(InMenu(line.text), this,
                                            [this, line] { m_order.Connect(line.name, line.profileId); });
        action->setEnabled(!line.profileId.isEmpty());
    }
    m_menu->addSeparator();
    Add("connectAction", "IDS_ACTION_CONNECT", {QLatin1String("--show=connect")});
    Add("openAction", "IDS_ICON_OPEN", QStringList());
    m_menu->addSeparator();
    m_menu->addAction(DashboardText("IDS_ACTION_QUIT"), QCoreApplication::instance(),
                      &QCoreApplication::quit);
    if (m_icon) {
        m_icon->setToolTip(headline);
    }
}

void StatusIcon::Add(const char *name, const char *id, const QStringList &arguments)
{
    QAction *action = m_menu->addAction(DashboardText(id), this, [this, arguments] {
        QProcess::startDetached(m_program.constFirst(), m_program.mid(1) + arguments);
    });
    action->setObjectName(QLatin1String(name));
}
