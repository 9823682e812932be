#include "ForgetDialog.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <IConnectionPlugin.h>
#include <ListEdit.h>
#include <ListEntries.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <OverviewText.h>
#include <PluginObjects.h>
#include <TextButton.h>
#include <WrappedLabel.h>

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace
{

const int dialogWidth = 440;

bool IsInUse(const QList<ConnectionProfile> &profiles, const QList<ActiveConnection> &active)
{
    for (const ConnectionProfile &profile : profiles) {
        for (const ActiveConnection &connection : active) {
            if (connection.profileId == profile.id && connection.stage != StageDisconnecting) {
                return true;
            }
        }
    }
    return false;
}

ConnectAttempt AttemptOf(int order)
{
    ConnectAttempt attempt;
    IConnectionPlugin *plugin = order > 0 ? PluginObjects::Connecting() : nullptr;
    if (plugin) {
        plugin->GetAttempt(order, &attempt);
    }
    return attempt;
}

QList<PriorityList> Without(const PriorityList &entry, const QList<PriorityList> &list)
{
    QList<int> places;
    for (int i = 0; i < list.size(); ++i) {
        if (ListEntries::IsSame(list.at(i), entry)) {
            places.append(i);
        }
    }
    return ListEdit::Removed(list, places);
}

} // namespace

ForgetDialog::ForgetDialog(const PriorityList &entry, ListKeeper *keeper, QWidget *parent)
    : QDialog(parent), m_entry(entry), m_keeper(keeper), m_title(new WrappedLabel("forgetTitleLabel")),
      m_text(new WrappedLabel("forgetTextLabel")), m_problem(new WrappedLabel("forgetProblemLabel")),
      m_forgetButton(new TextButton("forgetButton")), m_cancelButton(new TextButton("forgetCancelButton"))
{
    setObjectName(QLatin1String("forgetDialog"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_problem->hide();
    m_forgetButton->setAutoDefault(false);
    connect(m_forgetButton, &QPushButton::clicked, this, &ForgetDialog::Forget);
    connect(m_cancelButton, &QPushButton::clicked, this, &ForgetDialog::reject);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    layout->addWidget(m_problem);
    layout->addWidget(DialogParts::ButtonBar("forgetButtons", m_forgetButton, m_cancelButton));
    // What takes nothing away is what Return presses.
    m_cancelButton->setDefault(true);
    m_cancelButton->setFocus();
    if (QObject *service = PluginObjects::ConnectionService()) {
        connect(service, SIGNAL(OnConnectionsChanged()), this, SLOT(Follow()));
    }
}

void ForgetDialog::Show()
{
    setWindowTitle(DashboardText("IDS_FORGET_WINDOW"));
    m_title->setText(DashboardText("IDS_FORGET_TITLE").arg(OverviewText::Name(m_entry.name)));
    m_forgetButton->setText(DashboardText("IDS_FORGET_BUTTON"));
    m_cancelButton->setText(DashboardText(m_isUnderWay || m_isOver ? "IDS_CLOSE" : "IDS_CANCEL"));
    Follow();
    Fit();
}

void ForgetDialog::Follow()
{
    if (m_isUnderWay) {
        LookAtOrders();
    } else if (!m_isOver) {
        Ask(Connections::Read());
    }
}

void ForgetDialog::Ask(const Connections &connections)
{
    m_profiles = connections.AreKnown() ? connections.ProfilesOf(m_entry) : QList<ConnectionProfile>();
    if (m_profiles.isEmpty()) {
        // There is nothing to be forgotten any more.
        reject();
        return;
    }
    // What a list that can't be read in full lacks may be in it all the same.
    if (m_keeper->EditObstacle() == ListKeeper::NoObstacle) {
        m_isListed = ListEdit::PlaceOf(m_entry, m_keeper->Entries()) >= 0;
    }
    const QString count = DashboardNumber(m_profiles.size());
    const char *const one = m_isListed ? "IDS_FORGET_TEXT" : "IDS_FORGET_UNLISTED";
    const char *const several = m_isListed ? "IDS_FORGET_SEVERAL" : "IDS_FORGET_UNLISTED_SEVERAL";
    QStringList texts;
    texts.append(IsInUse(m_profiles, connections.active) ? DashboardText("IDS_FORGET_IN_USE") : QString());
    texts.append(m_profiles.size() == 1 ? DashboardText(one) : DashboardText(several).arg(count));
    texts.append(DashboardText(m_isListed ? "IDS_FORGET_FOR_GOOD" : "IDS_FORGET_UNLISTED_FOR_GOOD"));
    m_text->setText(DashboardJoined("IDS_SENTENCES", texts));
    Fit();
}

void ForgetDialog::Forget()
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    m_isUnderWay = true;
    QList<int> orders;
    for (const ConnectionProfile &profile : std::as_const(m_profiles)) {
        orders.append(plugin ? plugin->Forget(profile.id, profile.lastingId)
                             : int(IConnectionPlugin::RefusedSource));
    }
    m_orders = orders;
    m_forgetButton->hide();
    m_text->setText(DashboardText("IDS_FORGET_UNDER_WAY"));
    Show();
}

void ForgetDialog::LookAtOrders()
{
    int forgotten = 0;
    for (const int order : std::as_const(m_orders)) {
        const int stage = AttemptOf(order).stage;
        if (stage == StageForgetting) {
            return;
        }
        forgotten += stage == StageForgotten ? 1 : 0;
    }
    if (m_orders.isEmpty()) {
        return;
    }
    m_isUnderWay = false;
    m_isOver = true;
    if (forgotten == m_orders.size()) {
        if (!m_isListed || LeaveList()) {
            End();
        }
        return;
    }
    const QString some =
        DashboardText("IDS_FORGET_SOME").arg(DashboardNumber(forgotten), DashboardNumber(m_orders.size()));
    Fail(forgotten == 0 ? Problem() : DashboardJoined("IDS_SENTENCES", {Problem(), some}));
}

/** What was not done, and why as far as that is known. */
QString ForgetDialog::Problem() const
{
    QString reason;
    for (const int order : m_orders) {
        const ConnectAttempt attempt = AttemptOf(order);
        if (attempt.failure == FailureSource) {
            return DashboardText(m_isListed ? "IDS_FORGET_NO_ANSWER" : "IDS_FORGET_UNLISTED_NO_ANSWER")
                .arg(OverviewText::Name(m_entry.name));
        }
        if (order == IConnectionPlugin::RefusedNotAllowed || attempt.failure == FailureNotAllowed) {
            reason = OverviewText::Failure(FailureNotAllowed);
        }
    }
    return OverviewText::NotDone(m_isListed ? "IDS_FORGET_FAILED" : "IDS_FORGET_UNLISTED_FAILED",
                                 m_entry.name, reason);
}

/** False where that has failed, which is told. */
bool ForgetDialog::LeaveList()
{
    const ListKeeper::Obstacle obstacle =
        m_keeper->Edit([this](const QList<PriorityList> &list) { return Without(m_entry, list); });
    if (obstacle != ListKeeper::NoObstacle) {
        Fail(OverviewText::NotDone("IDS_FORGET_STAYS", m_entry.name,
                                   ListKeeperText::Reason(*m_keeper, obstacle)));
        return false;
    }
    return true;
}

void ForgetDialog::End()
{
    emit Forgotten(DashboardText(m_isListed ? "IDS_FORGET_DONE" : "IDS_FORGET_UNLISTED_DONE")
                       .arg(OverviewText::Name(m_entry.name)));
    accept();
    deleteLater();
}

void ForgetDialog::Fail(const QString &problem)
{
    m_text->hide();
    m_forgetButton->hide();
    m_problem->setText(problem);
    m_problem->show();
    m_cancelButton->setText(DashboardText("IDS_CLOSE"));
    Fit();
    show();
}

void ForgetDialog::reject()
{
    QDialog::reject();
    if (!m_isUnderWay) {
        deleteLater();
    }
}

void ForgetDialog::Fit()
{
    const int width = DialogParts::ForFont(dialogWidth);
    setFixedSize(width, layout()->totalHeightForWidth(width));
}
