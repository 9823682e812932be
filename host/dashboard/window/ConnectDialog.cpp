#include "ConnectDialog.h"

#include <Change.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <IConnectionPlugin.h>
#include <IPriorityPlugin.h>
#include <ListEntries.h>
#include <NameDelegate.h>
#include <OverviewText.h>
#include <PluginObjects.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace
{

const int dialogWidth = 480;
const int dialogHeight = 440;
const int nameWidth = 150;
const int detailsWidth = 200;

enum Column { NameColumn, DetailsColumn, SignalColumn, ColumnCount };

/** What a name's item holds besides its text: the network's id. */
const int idRole = Qt::UserRole;

const char *ProtectionText(int protection)
{
    switch (protection) {
    case VisibleNetwork::ProtectionOpen:
        return "IDS_PROTECTION_OPEN";
    case VisibleNetwork::ProtectionKey:
        return "IDS_PROTECTION_KEY";
    case VisibleNetwork::ProtectionWeakKey:
        return "IDS_PROTECTION_WEAK";
    case VisibleNetwork::ProtectionAccount:
        return "IDS_PROTECTION_ACCOUNT";
    default:
        return nullptr;
    }
}

/** What a key may look like, as the dialog for new networks tells it. */
QString KeyRule(bool isWep)
{
    return Change::tr(
               QLatin1String(isWep ? "IDS_ERROR_KEY_WRONG_LENGTH_40" : "IDS_ERROR_KEY_WRONG_LENGTH_128"),
               QLatin1String("PriorityPlugin"))
        .section(QLatin1String("\n\n"), 0, 0);
}

} // namespace

ConnectDialog::ConnectDialog(QWidget *parent)
    : ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog)
{
    setObjectName(QLatin1String("connectDialog"));
    QWidget *content = new QWidget(this);
    content->setObjectName(QLatin1String("connectContent"));
    QVBoxLayout *layout = new QVBoxLayout(content);
    layout->setSpacing(10);
    m_hint = DialogParts::Label("connectHintLabel");
    layout->addWidget(m_hint);

    CreateTable();
    m_empty = DialogParts::EmptyLabel("connectEmptyLabel");
    m_body = new QStackedWidget;
    m_body->setObjectName(QLatin1String("connectBody"));
    m_body->addWidget(m_table);
    m_body->addWidget(m_empty);
    layout->addWidget(m_body, 1);
    layout->addWidget(CreateKeyRow());
    m_outcome = DialogParts::Label("connectOutcomeLabel");
    layout->addWidget(m_outcome);
    layout->addWidget(CreateButtons());
    AddMainWidget(content);
    m_okButton->setDefault(true);
    setFixedSize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight));

    connect(m_table, &QTableWidget::itemSelectionChanged, this, &ConnectDialog::FollowChoice);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &ConnectDialog::accept);
    if (IConnectionPlugin *plugin = PluginObjects::Connecting()) {
        connect(PluginObjects::ConnectionService(), SIGNAL(OnConnectionsChanged()), this, SLOT(Follow()));
        plugin->LookForNetworks();
    }
    m_told = Connections::Read();
    for (const VisibleNetwork &network : std::as_const(m_told.networks)) {
        // The one in use is not what somebody wants to go to.
        if (m_chosen.isEmpty() && !network.isInUse) {
            m_chosen = network.id;
        }
    }
    Retranslate();
    m_table->setFocus();
}

void ConnectDialog::CreateTable()
{
    m_table = DialogParts::Table("connectList", ColumnCount);
    m_table->setItemDelegateForColumn(NameColumn, new NameDelegate(m_table));
    m_table->horizontalHeader()->setObjectName(QLatin1String("connectHeader"));
    m_table->setColumnWidth(NameColumn, DialogParts::ForFont(nameWidth));
    m_table->setColumnWidth(DetailsColumn, DialogParts::ForFont(detailsWidth));
}

QWidget *ConnectDialog::CreateKeyRow()
{
    m_keyLabel = DialogParts::Label("connectKeyLabel");
    m_key = new QLineEdit;
    m_key->setObjectName(QLatin1String("connectKeyEdit"));
    m_showKey = new QCheckBox;
    m_showKey->setObjectName(QLatin1String("connectShowKeyBox"));
    connect(m_key, &QLineEdit::textChanged, this, &ConnectDialog::Show);
    connect(m_showKey, &QCheckBox::toggled, this, &ConnectDialog::ShowKey);
    ShowKey(false);
    m_keyRow = new QWidget;
    m_keyRow->setObjectName(QLatin1String("connectKeyRow"));
    QVBoxLayout *layout = new QVBoxLayout(m_keyRow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_keyLabel);
    QHBoxLayout *row = new QHBoxLayout;
    row->addWidget(m_key, 1);
    row->addWidget(m_showKey);
    layout->addLayout(row);
    return m_keyRow;
}

QWidget *ConnectDialog::CreateButtons()
{
    m_okButton = new QPushButton;
    m_okButton->setObjectName(QLatin1String("connectOkButton"));
    connect(m_okButton, &QPushButton::clicked, this, &ConnectDialog::accept);
    m_cancelButton = new QPushButton;
    m_cancelButton->setObjectName(QLatin1String("connectCancelButton"));
    connect(m_cancelButton, &QPushButton::clicked, this, &ConnectDialog::reject);
    return DialogParts::ButtonBar("connectButtonBar", m_okButton, m_cancelButton);
}

void ConnectDialog::ListNetworks()
{
    const QSignalBlocker blocker(m_table);
    m_table->clearSelection();
    m_table->setRowCount(static_cast<int>(m_told.networks.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const VisibleNetwork &network = m_told.networks.at(row);
        DialogParts::SetCell(m_table, row, NameColumn, network.name);
        m_table->item(row, NameColumn)->setData(idRole, network.id);
        DialogParts::SetCell(m_table, row, DetailsColumn, DetailsOf(network));
        DialogParts::SetCell(m_table, row, SignalColumn, OverviewText::Signal(network.signal));
        m_table->item(row, SignalColumn)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (network.id == m_chosen) {
            m_table->setCurrentCell(row, NameColumn);
        }
    }
    const bool isEmpty = m_told.networks.isEmpty();
    m_empty->setText(m_told.AreKnown()
                         ? DashboardText("IDS_CONNECT_NONE")
                         : OverviewText::Explanation(Overview::Make(0, QList<PriorityList>(), m_told)));
    m_body->setCurrentWidget(isEmpty ? static_cast<QWidget *>(m_empty) : m_table);
}

QString ConnectDialog::DetailsOf(const VisibleNetwork &network) const
{
    if (network.isInUse) {
        return DashboardText("IDS_STATE_CONNECTED");
    }
    QStringList details;
    if (const char *protection = ProtectionText(network.protection)) {
        details.append(DashboardText(protection));
    }
    if (!network.profileIds.isEmpty()) {
        details.append(DashboardText("IDS_CONNECT_SAVED"));
    }
    return details.join(QString::fromUtf8(" · "));
}

const VisibleNetwork *ConnectDialog::Chosen() const
{
    for (const VisibleNetwork &network : m_told.networks) {
        if (!m_chosen.isEmpty() && network.id == m_chosen) {
            return &network;
        }
    }
    return nullptr;
}

bool ConnectDialog::IsUnderWay() const
{
    return m_order > 0 && Connections::IsComingUp(m_attempt.stage);
}

bool ConnectDialog::NeedsKey(const VisibleNetwork &network)
{
    return network.profileIds.isEmpty() && (network.protection == VisibleNetwork::ProtectionKey ||
                                            network.protection == VisibleNetwork::ProtectionWeakKey);
}

void ConnectDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_CONNECT_TITLE"));
    m_hint->setText(DashboardText("IDS_CONNECT_HINT"));
    m_table->setAccessibleName(DashboardText("IDS_CONNECT_TITLE"));
    DialogParts::SetHeader(m_table, NameColumn, DashboardText("IDS_CONNECT_NETWORK"), Qt::AlignLeft);
    DialogParts::SetHeader(m_table, DetailsColumn, DashboardText("IDS_CONNECT_SECURITY"), Qt::AlignLeft);
    DialogParts::SetHeader(m_table, SignalColumn, DashboardText("IDS_CONNECT_SIGNAL"), Qt::AlignRight);
    m_showKey->setText(DashboardText("IDS_CONNECT_SHOW_KEY"));
    m_okButton->setText(DashboardText("IDS_CONNECT_OK"));
    ListNetworks();
    Show();
}

void ConnectDialog::Follow()
{
    const bool wasUnderWay = IsUnderWay();
    m_told = Connections::Read();
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    if (plugin && m_order > 0) {
        plugin->GetAttempt(m_order, &m_attempt);
    }
    if (m_order > 0 && m_attempt.stage == StageConnected && m_attempt.failure == FailureNone) {
        AddToList();
        ExtendDialog::accept();
        return;
    }
    ListNetworks();
    Show();
    if (wasUnderWay && !IsUnderWay() && m_keyRow->isVisible()) {
        m_key->setFocus();
        m_key->selectAll();
    }
}

void ConnectDialog::FollowChoice()
{
    const QModelIndexList chosen = m_table->selectionModel()->selectedRows(NameColumn);
    const QString id = chosen.isEmpty() ? QString() : chosen.first().data(idRole).toString();
    if (id != m_chosen) {
        // What was typed for one network is not told another one.
        m_chosen = id;
        m_order = 0;
        m_key->clear();
    }
    Show();
}

void ConnectDialog::ShowKey(bool isShown)
{
    m_key->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password);
}

/** What has come of the order, or what stands in its way. */
QString ConnectDialog::Outcome() const
{
    const QString name = OverviewText::Name(m_chosenName);
    const VisibleNetwork *chosen = Chosen();
    switch (m_order) {
    case IConnectionPlugin::RefusedNotAllowed:
        return OverviewText::Outcome(FailureNotAllowed);
    case IConnectionPlugin::RefusedKey:
        return KeyRule(chosen && chosen->protection == VisibleNetwork::ProtectionWeakKey);
    default:
        break;
    }
    if (IsUnderWay()) {
        return OverviewText::Stage(m_attempt.stage);
    }
    if (m_order > 0 && m_attempt.stage == StageConnected) {
        return DashboardText("IDS_CONNECT_NOT_SAVED").arg(name);
    }
    if (m_order > 0 && m_attempt.stage == StageCancelled) {
        return DashboardText("IDS_SWITCH_FAILED").arg(name);
    }
    if (!m_chosen.isEmpty() && !chosen && m_told.AreKnown()) {
        return DashboardText("IDS_CONNECT_AWAY").arg(name);
    }
    if (m_order != 0) {
        const int failure = m_order > 0 ? m_attempt.failure : int(FailureOther);
        return OverviewText::NotDone("IDS_SWITCH_FAILED", m_chosenName, OverviewText::Outcome(failure));
    }
    const bool isForAccounts =
        chosen && chosen->profileIds.isEmpty() && chosen->protection == VisibleNetwork::ProtectionAccount;
    return isForAccounts ? DashboardText("IDS_CONNECT_ACCOUNT").arg(name) : QString();
}

void ConnectDialog::Show()
{
    const VisibleNetwork *chosen = Chosen();
    if (chosen) {
        m_chosenName = chosen->name;
    }
    const bool isUnderWay = IsUnderWay();
    const bool needsKey = chosen && NeedsKey(*chosen);
    m_keyLabel->setText(DashboardText("IDS_CONNECT_KEY").arg(OverviewText::Name(m_chosenName)));
    m_key->setAccessibleName(m_keyLabel->text());
    m_keyRow->setVisible(needsKey);
    m_keyRow->setEnabled(!isUnderWay);
    m_table->setEnabled(!isUnderWay);
    const bool isForAccounts =
        chosen && chosen->profileIds.isEmpty() && chosen->protection == VisibleNetwork::ProtectionAccount;
    m_okButton->setEnabled(chosen && !isUnderWay && !chosen->isInUse && !isForAccounts &&
                           (!needsKey || !m_key->text().isEmpty()));
    m_cancelButton->setText(DashboardText(isUnderWay ? "IDS_CONNECT_STOP" : "IDS_CANCEL"));
    const QString outcome = Outcome();
    m_outcome->setText(outcome);
    m_outcome->setVisible(!outcome.isEmpty());
}

void ConnectDialog::AddToList() const
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    if (!priority || !PluginObjects::IsListWhole()) {
        return;
    }
    QList<PriorityList> list;
    priority->GetPriorityList(&list);
    PriorityList entry;
    entry.name = m_attempt.name;
    entry.type = QLatin1String("1");
    for (const PriorityList &listed : std::as_const(list)) {
        if (ListEntries::IsSame(listed, entry)) {
            return;
        }
    }
    QList<PriorityList> added{entry};
    priority->AddPriorityList(added);
}

void ConnectDialog::accept()
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    const VisibleNetwork *chosen = Chosen();
    if (!plugin || !chosen || !m_okButton->isEnabled()) {
        return;
    }
    m_attempt = ConnectAttempt();
    m_order = plugin->ConnectNetwork(chosen->id, NeedsKey(*chosen) ? m_key->text() : QString());
    if (m_order > 0) {
        plugin->GetAttempt(m_order, &m_attempt);
    }
    Show();
}

void ConnectDialog::reject()
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    if (IsUnderWay() && plugin) {
        plugin->CancelAttempt(m_order);
    } else {
        ExtendDialog::reject();
    }
}
