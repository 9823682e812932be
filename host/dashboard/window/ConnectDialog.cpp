#include "ConnectDialog.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <NameDelegate.h>
#include <OverviewText.h>
#include <PluginObjects.h>
#include <SignalStrength.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

const int dialogWidth = 400;
const int dialogHeight = 380;
// Leaves the signal enough beside a scroll bar.
const int nameWidth = 250;

enum Column { NameColumn, SignalColumn, ColumnCount };

/** What an item holds besides its text: the full name, or the signal as the Wi-Fi plug-in gave it. */
const int valueRole = Qt::UserRole;

} // namespace

ConnectDialog::ConnectDialog(QWidget *parent)
    : ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog), m_isWlanMissing(false),
      m_outcome(Done), m_hint(nullptr), m_body(nullptr), m_table(nullptr), m_empty(nullptr),
      m_problem(nullptr), m_okButton(nullptr), m_cancelButton(nullptr)
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

    m_problem = DialogParts::Label("connectProblemLabel");
    layout->addWidget(m_problem);
    layout->addWidget(CreateButtons());
    AddMainWidget(content);
    m_okButton->setDefault(true);
    setFixedSize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight));

    ListNetworks();
    FollowChoice();
    connect(m_table, SIGNAL(itemSelectionChanged()), this, SLOT(FollowChoice()));
    connect(m_table, SIGNAL(cellDoubleClicked(int, int)), this, SLOT(accept()));
    Retranslate();
}

void ConnectDialog::CreateTable()
{
    m_table = DialogParts::Table("connectList", ColumnCount);
    m_table->setItemDelegateForColumn(NameColumn, new NameDelegate(m_table));
    m_table->horizontalHeader()->setObjectName(QLatin1String("connectHeader"));
    m_table->setColumnWidth(NameColumn, DialogParts::ForFont(nameWidth));
}

QWidget *ConnectDialog::CreateButtons()
{
    m_okButton = new QPushButton;
    m_okButton->setObjectName(QLatin1String("connectOkButton"));
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(accept()));
    m_cancelButton = new QPushButton;
    m_cancelButton->setObjectName(QLatin1String("connectCancelButton"));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
    return DialogParts::ButtonBar("connectButtonBar", m_okButton, m_cancelButton);
}

void ConnectDialog::ListNetworks()
{
    QList<WlanAvilableNetworkInfo> networks;
    IWLANUIPlugin *wlan = PluginObjects::Wlan();
    m_isWlanMissing = !wlan;
    if (wlan) {
        wlan->GetAvailableNetworks(&networks);
    }
    QSet<QString> listed;
    for (int i = 0; i < networks.size(); ++i) {
        const WlanAvilableNetworkInfo &network = networks.at(i);
        // The list knows networks by their name alone: one without can't be put on top, and of several
        // stations of one network the first is the best.
        if (network.networkName.isEmpty() || listed.contains(network.networkName)) {
            continue;
        }
        listed.insert(network.networkName);
        const int row = m_table->rowCount();
        m_table->setRowCount(row + 1);
        DialogParts::SetCell(m_table, row, NameColumn, network.networkName);
        m_table->item(row, NameColumn)->setData(valueRole, network.networkName);
        QTableWidgetItem *signal = new QTableWidgetItem;
        signal->setData(valueRole, network.value1);
        signal->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_table->setItem(row, SignalColumn, signal);
    }
    if (m_table->rowCount() > 0) {
        m_body->setCurrentWidget(m_table);
        m_table->setCurrentCell(0, NameColumn);
        m_table->setFocus();
    } else {
        m_body->setCurrentWidget(m_empty);
    }
}

void ConnectDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_CONNECT_TITLE"));
    m_hint->setText(DashboardText("IDS_CONNECT_HINT"));
    m_table->setAccessibleName(DashboardText("IDS_CONNECT_TITLE"));
    DialogParts::SetHeader(m_table, NameColumn, DashboardText("IDS_CONNECT_NETWORK"), Qt::AlignLeft);
    DialogParts::SetHeader(m_table, SignalColumn, DashboardText("IDS_CONNECT_SIGNAL"), Qt::AlignRight);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem *signal = m_table->item(row, SignalColumn);
        signal->setText(OverviewText::Signal(SignalStrength::Percent(signal->data(valueRole).toInt())));
    }
    m_empty->setText(DashboardText(m_isWlanMissing ? "IDS_CONNECT_NO_WLAN" : "IDS_CONNECT_NONE"));
    ShowOutcome();
    m_okButton->setText(DashboardText("IDS_CONNECT_OK"));
    m_cancelButton->setText(DashboardText("IDS_CANCEL"));
}

void ConnectDialog::FollowChoice()
{
    m_okButton->setEnabled(!ChosenNetwork().isEmpty());
}

QString ConnectDialog::ChosenNetwork() const
{
    const QModelIndexList chosen = m_table->selectionModel()->selectedRows(NameColumn);
    return chosen.isEmpty() ? QString() : chosen.first().data(valueRole).toString();
}

void ConnectDialog::ShowOutcome()
{
    m_problem->setText(
        DashboardText(m_outcome == NoPlugin ? "IDS_CONNECT_NO_PRIORITY" : "IDS_CONNECT_DAMAGED"));
    m_problem->setVisible(m_outcome != Done);
}

ConnectDialog::Outcome ConnectDialog::Connect(const QString &network)
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    if (!priority) {
        return NoPlugin;
    }
    if (!PluginObjects::IsListWhole()) {
        return ListDamaged;
    }
    PriorityList entry;
    entry.name = network;
    entry.type = QLatin1String("1");
    priority->AddTopPriority(entry);
    return Done;
}

void ConnectDialog::accept()
{
    const QString network = ChosenNetwork();
    if (network.isEmpty()) {
        return;
    }
    m_outcome = Connect(network);
    ShowOutcome();
    if (m_outcome == Done) {
        ExtendDialog::accept();
    }
}
