#include "ConnectDialog.h"

#include <Change.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <Glyphs.h>
#include <IConnectionPlugin.h>
#include <IPriorityPlugin.h>
#include <ListEntries.h>
#include <ListRules.h>
#include <NetworkDelegate.h>
#include <OverviewText.h>
#include <PluginObjects.h>
#include <Searchable.h>
#include <Settings.h>
#include <TextButton.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace
{

const int dialogWidth = 480;
const int dialogHeight = 520;
const int smallestSide = 360;

/** So many networks can be looked through without searching. */
const int searchableCount = 12;

/** Of a row, besides what is drawn: the network's id. */
const int idRole = Qt::UserRole + 100;

/** In milliseconds. By then, most networks have answered. */
const int usualTime = 15000;

const int stageCount = StageGettingAddress;

QString SizeKey()
{
    return QLatin1String("connect/size");
}

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

ConnectDialog::ConnectDialog(QWidget *parent) : QDialog(parent), m_usualTime(new QTimer(this))
{
    setObjectName(QLatin1String("connectDialog"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    m_hint = DialogParts::Label("connectHintLabel");
    layout->addWidget(m_hint);
    m_search = new QLineEdit;
    m_search->setObjectName(QLatin1String("connectSearchEdit"));
    m_search->hide();
    connect(m_search, &QLineEdit::textChanged, this, &ConnectDialog::FollowSearch);
    layout->addWidget(m_search);

    CreateList();
    m_empty = DialogParts::EmptyLabel("connectEmptyLabel");
    m_body = new QStackedWidget;
    m_body->setObjectName(QLatin1String("connectBody"));
    m_body->addWidget(m_list);
    m_body->addWidget(m_empty);
    layout->addWidget(m_body, 1);
    layout->addWidget(CreateKeyRow());
    m_progress = new QProgressBar;
    m_progress->setObjectName(QLatin1String("connectProgress"));
    m_progress->setRange(0, stageCount);
    m_progress->setTextVisible(false);
    layout->addWidget(m_progress);
    m_outcome = DialogParts::Label("connectOutcomeLabel");
    layout->addWidget(m_outcome);
    layout->addWidget(CreateButtons());
    m_okButton->setDefault(true);
    setMinimumSize(DialogParts::ForFont(smallestSide), DialogParts::ForFont(smallestSide));
    const QSize kept = Settings::Read(SizeKey()).toSize();
    resize(kept.isValid() ? kept
                          : QSize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight)));

    connect(m_list, &QListWidget::itemSelectionChanged, this, &ConnectDialog::FollowChoice);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ConnectDialog::accept);
    m_usualTime->setObjectName(QLatin1String("usualTime"));
    m_usualTime->setSingleShot(true);
    m_usualTime->setInterval(usualTime);
    connect(m_usualTime, &QTimer::timeout, this, &ConnectDialog::Show);
    if (IConnectionPlugin *plugin = PluginObjects::Connecting()) {
        connect(PluginObjects::ConnectionService(), SIGNAL(OnConnectionsChanged()), this, SLOT(Follow()));
        plugin->LookForNetworks();
    }
    if (IPriorityPlugin *priority = PluginObjects::Priority()) {
        priority->GetPriorityList(&m_listed);
    }
    Read();
    for (const VisibleNetwork &network : std::as_const(m_told.networks)) {
        // The one in use is not what somebody wants to go to.
        if (m_chosen.isEmpty() && !network.isInUse) {
            m_chosen = network.id;
        }
    }
    Retranslate();
    m_list->setFocus();
}

void ConnectDialog::CreateList()
{
    m_list = new QListWidget;
    m_list->setObjectName(QLatin1String("connectList"));
    m_list->setItemDelegate(new NetworkDelegate(m_list, NetworkDelegate::WithoutPlaces));
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
    m_okButton = new TextButton("connectOkButton");
    connect(m_okButton, &QPushButton::clicked, this, &ConnectDialog::accept);
    m_cancelButton = new TextButton("connectCancelButton");
    connect(m_cancelButton, &QPushButton::clicked, this, &ConnectDialog::reject);
    return DialogParts::ButtonBar("connectButtonBar", m_okButton, m_cancelButton);
}

void ConnectDialog::Read()
{
    m_told = Connections::Read();
    QHash<QString, int> placeOfName;
    for (int i = 0; i < m_listed.size(); ++i) {
        const PriorityList &entry = m_listed.at(i);
        if (ListEntries::IsWifi(entry) && !placeOfName.contains(entry.name)) {
            placeOfName.insert(entry.name, i + 1);
        }
    }
    m_places.clear();
    for (const ConnectionProfile &profile : std::as_const(m_told.profiles)) {
        if (placeOfName.contains(profile.name)) {
            m_places.insert(profile.id, placeOfName.value(profile.name));
        }
    }
}

void ConnectDialog::ListNetworks()
{
    const QSignalBlocker blocker(m_list);
    const int scrolledTo = m_list->verticalScrollBar()->value();
    // Once it is there it stays: what has been typed counts.
    m_search->setVisible(!m_search->isHidden() || m_told.networks.size() >= searchableCount);
    const QList<VisibleNetwork> listed = Section(true);
    const QList<VisibleNetwork> others = Section(false);
    m_list->clear();
    AddSection("IDS_CONNECT_LISTED", listed);
    AddSection("IDS_CONNECT_OTHERS", others);
    m_list->verticalScrollBar()->setValue(scrolledTo);
    m_empty->setText(NoNetworks());
    m_body->setCurrentWidget(m_list->count() == 0 ? static_cast<QWidget *>(m_empty) : m_list);
}

/** Why none is listed. */
QString ConnectDialog::NoNetworks() const
{
    if (!m_told.AreKnown()) {
        return OverviewText::Explanation(Overview::Make(0, QList<PriorityList>(), m_told));
    }
    return m_told.networks.isEmpty() ? DashboardText("IDS_CONNECT_NONE")
                                     : DashboardText("IDS_CONNECT_NOT_FOUND").arg(m_search->text());
}

/** Those that are looked for and have a place in the priority list, or have none. */
QList<VisibleNetwork> ConnectDialog::Section(bool isListed) const
{
    const QString wanted = Searchable(m_search->text());
    QList<VisibleNetwork> networks;
    for (const VisibleNetwork &network : m_told.networks) {
        if ((PlaceOf(network) > 0) == isListed && Searchable(network.name).contains(wanted)) {
            networks.append(network);
        }
    }
    // Those that have no place stay best first.
    std::stable_sort(
        networks.begin(), networks.end(),
        [this](const VisibleNetwork &a, const VisibleNetwork &b) { return PlaceOf(a) < PlaceOf(b); });
    return networks;
}

void ConnectDialog::AddSection(const char *titleId, const QList<VisibleNetwork> &networks)
{
    if (!networks.isEmpty()) {
        QListWidgetItem *title = new QListWidgetItem(DashboardText(titleId));
        title->setData(NetworkDelegate::IsSectionRole, true);
        // Keys pass over it.
        title->setFlags(Qt::NoItemFlags);
        m_list->addItem(title);
    }
    for (const VisibleNetwork &network : networks) {
        AddNetwork(network);
    }
}

void ConnectDialog::AddNetwork(const VisibleNetwork &network)
{
    QListWidgetItem *item = new QListWidgetItem(network.name, m_list);
    const QString details = DetailsOf(network);
    const QString state =
        network.isInUse ? DashboardText("IDS_STATE_CONNECTED") : OverviewText::Signal(network.signal);
    item->setData(idRole, network.id);
    item->setData(NetworkDelegate::DetailTextRole, details);
    item->setData(NetworkDelegate::StateTextRole, state);
    item->setData(NetworkDelegate::MarkRole, network.isInUse ? Glyphs::MarkInUse : Glyphs::NoMark);
    item->setData(NetworkDelegate::KindRole, Glyphs::Wifi);
    item->setData(NetworkDelegate::ReachRole, Glyphs::InReach);
    item->setData(NetworkDelegate::SignalRole, network.signal);
    item->setToolTip(network.name.toHtmlEscaped());
    QStringList spoken{network.name, details, state};
    spoken.removeAll(QString());
    item->setData(Qt::AccessibleTextRole, spoken.join(QLatin1String(", ")));
    if (network.id == m_chosen) {
        m_list->setCurrentItem(item);
    }
}

/** In the priority list, counted from 1; 0: it has none. */
int ConnectDialog::PlaceOf(const VisibleNetwork &network) const
{
    int first = 0;
    for (const QString &profile : network.profileIds) {
        const int place = m_places.value(profile);
        first = first == 0 || (place > 0 && place < first) ? place : first;
    }
    return first;
}

QString ConnectDialog::DetailsOf(const VisibleNetwork &network) const
{
    QStringList details;
    if (const char *protection = ProtectionText(network.protection)) {
        details.append(DashboardText(protection));
    }
    const int place = PlaceOf(network);
    if (place > 0) {
        details.append(DashboardText("IDS_CONNECT_PLACE").arg(DashboardNumber(place)));
    } else if (!network.profileIds.isEmpty()) {
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
    const char *const hints[] = {"IDS_CONNECT_HINT", "IDS_CONNECT_HINT_TOP", "IDS_CONNECT_HINT_NONE"};
    m_hint->setText(DashboardText(hints[ListRules::PlaceOfNewNetworks()]));
    m_search->setPlaceholderText(DashboardText("IDS_CONNECT_SEARCH"));
    m_search->setAccessibleName(DashboardText("IDS_CONNECT_SEARCH"));
    m_list->setAccessibleName(DashboardText("IDS_CONNECT_TITLE"));
    m_progress->setAccessibleName(DashboardText("IDS_CONNECT_TITLE"));
    m_showKey->setText(DashboardText("IDS_CONNECT_SHOW_KEY"));
    m_okButton->setText(DashboardText("IDS_CONNECT_OK"));
    ListNetworks();
    Show();
}

void ConnectDialog::Follow()
{
    const bool wasUnderWay = IsUnderWay();
    Read();
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    if (plugin && m_order > 0) {
        plugin->GetAttempt(m_order, &m_attempt);
    }
    if (m_order > 0 && m_attempt.stage == StageConnected && m_attempt.failure == FailureNone) {
        AddToList();
        QDialog::accept();
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
    const QList<QListWidgetItem *> chosen = m_list->selectedItems();
    const QString id = chosen.isEmpty() ? QString() : chosen.first()->data(idRole).toString();
    if (id != m_chosen) {
        // What was typed for one network is not told another one.
        m_chosen = id;
        m_order = 0;
        m_key->clear();
    }
    Show();
}

/** Chooses the first that is found, unless the chosen one is among them. */
void ConnectDialog::FollowSearch()
{
    ListNetworks();
    if (m_list->selectedItems().isEmpty()) {
        // What has no place to go to, the sections' titles, can't be chosen.
        for (int row = 0; row < m_list->count() && m_list->selectedItems().isEmpty(); ++row) {
            m_list->setCurrentRow(row);
        }
        FollowChoice();
    }
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
        const QString stage = OverviewText::Stage(m_attempt.stage);
        return m_usualTime->isActive()
                   ? stage
                   : DashboardJoined("IDS_SENTENCES", QStringList()
                                                          << stage << DashboardText("IDS_CONNECT_LONG"));
    }
    if (m_order > 0 && m_attempt.stage == StageConnected) {
        return DashboardText("IDS_CONNECT_NOT_SAVED").arg(name);
    }
    if (!m_chosen.isEmpty() && !chosen && m_told.AreKnown()) {
        return DashboardText("IDS_CONNECT_AWAY").arg(name);
    }
    if (m_order != 0) {
        return NotConnected();
    }
    const bool isForAccounts =
        chosen && chosen->profileIds.isEmpty() && chosen->protection == VisibleNetwork::ProtectionAccount;
    return isForAccounts ? DashboardText("IDS_CONNECT_ACCOUNT").arg(name) : QString();
}

/** Why the order came to nothing, and what is in use after it. */
QString ConnectDialog::NotConnected() const
{
    const int failure = m_order > 0 ? m_attempt.failure : int(FailureOther);
    const QString reason =
        m_isKeyTyped ? OverviewText::Outcome(failure) : OverviewText::OutcomeOfSaved(failure);
    QString told = OverviewText::NotDone("IDS_SWITCH_FAILED", m_chosenName, reason);
    // An order that was not taken has ended nothing.
    if (m_order < 0 || !m_told.AreKnown()) {
        return told;
    }
    return told + QLatin1Char('\n') +
           OverviewText::Headline(Overview::Make(0, QList<PriorityList>(), m_told));
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
    m_list->setEnabled(!isUnderWay);
    m_search->setEnabled(!isUnderWay);
    m_progress->setVisible(isUnderWay);
    m_progress->setValue(m_attempt.stage);
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
    switch (ListRules::PlaceOfNewNetworks()) {
    case ListRules::NewAtTheEnd: {
        QList<PriorityList> added{entry};
        priority->AddPriorityList(added);
        break;
    }
    case ListRules::NewAtTheTop:
        priority->AddTopPriority(entry);
        break;
    case ListRules::NewNotInTheList:
        break;
    }
}

void ConnectDialog::accept()
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    const VisibleNetwork *chosen = Chosen();
    if (!plugin || !chosen || !m_okButton->isEnabled()) {
        return;
    }
    m_attempt = ConnectAttempt();
    m_isKeyTyped = NeedsKey(*chosen);
    m_order = plugin->ConnectNetwork(chosen->id, m_isKeyTyped ? m_key->text() : QString());
    if (m_order > 0) {
        plugin->GetAttempt(m_order, &m_attempt);
    }
    m_usualTime->start();
    Show();
}

void ConnectDialog::reject()
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    if (IsUnderWay() && plugin) {
        plugin->CancelAttempt(m_order);
    } else {
        QDialog::reject();
    }
}

void ConnectDialog::done(int result)
{
    Settings::Write(SizeKey(), size());
    QDialog::done(result);
}
