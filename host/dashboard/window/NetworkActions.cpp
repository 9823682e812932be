#include "NetworkActions.h"

#include "DetailsDialog.h"
#include "ForgetDialog.h"

#include <DashboardText.h>
#include <IConnectionPlugin.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <OverviewText.h>
#include <PluginObjects.h>

#include <QAction>
#include <QMenu>

NetworkActions::NetworkActions(ListKeeper *keeper, QWidget *window)
    : QObject(window), m_keeper(keeper), m_window(window),
      m_details(CreateAction("detailsAction", QKeySequence(Qt::Key_F9))),
      m_forget(CreateAction("forgetAction", QKeySequence(QLatin1String("Shift+Del"))))
{
    // The key cuts text elsewhere.
    m_forget->setShortcutContext(Qt::WidgetShortcut);
    connect(m_details, &QAction::triggered, this, &NetworkActions::OpenDetails);
    connect(m_forget, &QAction::triggered, this, &NetworkActions::OpenForget);
}

QAction *NetworkActions::CreateAction(const char *name, const QKeySequence &key)
{
    QAction *action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    return action;
}

void NetworkActions::FillMenu(QMenu *menu)
{
    menu->addAction(m_details);
    menu->addAction(m_forget);
}

QString NetworkActions::ForgetObstacle() const
{
    const ListKeeper::Obstacle obstacle = m_keeper->EditObstacle();
    if (obstacle != ListKeeper::NoObstacle) {
        return ListKeeperText::Reason(*m_keeper, obstacle);
    }
    if (!m_overview.connections.AreKnown()) {
        return DashboardText("IDS_FORGET_NOT_KNOWN");
    }
    const QList<ConnectionProfile> profiles = m_overview.connections.ProfilesOf(m_entry);
    if (profiles.isEmpty()) {
        return DashboardText("IDS_FORGET_NOT_SAVED");
    }
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    for (const ConnectionProfile &profile : profiles) {
        ProfileDetails details;
        if (plugin) {
            plugin->GetProfileDetails(profile.id, &details);
        }
        if (details.change == ProfileDetails::ChangeNotAllowed) {
            return OverviewText::Failure(FailureNotAllowed);
        }
    }
    return QString();
}

void NetworkActions::Choose(const Overview &overview, const Overview::Entry *chosen)
{
    m_overview = overview;
    m_entry = chosen ? chosen->entry : PriorityList();
    const QString obstacle = chosen ? ForgetObstacle() : QString();
    const QString help = obstacle.isNull() ? DashboardText("IDS_FORGET_HINT") : obstacle;
    m_details->setText(DashboardText("IDS_DETAILS_ACTION"));
    m_details->setEnabled(chosen);
    m_forget->setText(DashboardText("IDS_FORGET_ACTION"));
    m_forget->setEnabled(chosen && obstacle.isNull());
    m_forget->setToolTip(help.toHtmlEscaped());
    m_forget->setWhatsThis(help);
}

void NetworkActions::Show(const Overview &overview)
{
    if (m_detailsDialog) {
        m_detailsDialog->Show(overview);
    }
    if (m_forgetDialog) {
        m_forgetDialog->Show();
    }
}

void NetworkActions::OpenDetails()
{
    if (m_details->isEnabled() && !m_detailsDialog) {
        m_detailsDialog = new DetailsDialog(m_entry, m_window);
        m_detailsDialog->setModal(true);
        m_detailsDialog->Show(m_overview);
        m_detailsDialog->show();
    }
}

void NetworkActions::OpenForget()
{
    if (m_forget->isEnabled() && !m_forgetDialog) {
        m_forgetDialog = new ForgetDialog(m_entry, m_keeper, m_window);
        m_forgetDialog->setModal(true);
        connect(m_forgetDialog.data(), &ForgetDialog::Forgotten, this, &NetworkActions::Told);
        m_forgetDialog->Show();
        m_forgetDialog->show();
    }
}
