#include "qaddprioritywidget.h"

#include "DragTableWidget.h"
#include "PriorityListItem.h"
#include "PriorityXMLParser.h"
#include "WLANPlugin.h"
#include "qprioritywidget.h"

#include <Change.h>
#include <CommonUtils.h>
#include <IWLANUIPlugin.h>

#include <QCheckBox>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

const int mobileEnabled = 1;
const int switchUnknown = -1;

bool IsWifi(const RememberedList &network)
{
    return network.type == QString::number(1);
}

RememberListItem *RowItem(const QTableWidget *table, int row)
{
    // The dialog puts nothing else into its cells.
    return static_cast<RememberListItem *>(table->cellWidget(row, 0));
}

/** Brings the row into view whose check box the focus reaches by key; a table does that for its items only.
 */
class FocusFollower : public QObject
{
public:
    FocusFollower(QTableWidget *table, QCheckBox *checkBox) : QObject(checkBox), m_table(table)
    {
        checkBox->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // A row that moves under the mouse would miss the rest of the click.
        if (event->type() == QEvent::FocusIn &&
            static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason) {
            const QWidget *row = static_cast<QWidget *>(watched)->parentWidget();
            m_table->scrollTo(m_table->indexAt(row->geometry().center()));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QTableWidget *m_table;
};

bool IsTicked(const RememberListItem *item)
{
    return item && item->GetChechItem() && item->GetChechItem()->checkState() == Qt::Checked;
}

} // namespace

QAddPriorityWidget::QAddPriorityWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_okButton(nullptr), m_cancelButton(nullptr), m_buttonLayout(nullptr),
      m_buttonBar(nullptr), m_table(nullptr), m_mainLayout(nullptr), m_priorityList(nullptr), m_page(nullptr),
      m_frame(nullptr)
{
    setObjectName(QLatin1String("addDialogBody"));
}

QAddPriorityWidget::~QAddPriorityWidget()
{
    release();
}

void QAddPriorityWidget::SetRememberList(QList<PriorityList> *list)
{
    if (list) {
        m_priorityList = list;
    }
}

void QAddPriorityWidget::SetMsgParnet(QPriorityWidget *page)
{
    if (page) {
        m_page = page;
    }
}

void QAddPriorityWidget::Init()
{
    const QString resourceDirectory =
        CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/PriorityPlugin/");
    m_wifiIconPath = resourceDirectory + QLatin1String("wifi.png");
    m_mobileIconPath = resourceDirectory + QLatin1String("3G .png");

    CreateLayoput();
    CreateAllWidget();
    CreateAllButton();

    IWLANUIPlugin *wlan = FindWLANPlugin();
    if (!wlan) {
        return;
    }
    QList<RememberedList> remembered;
    wlan->GetRememberedList(&remembered);
    CheckRememberList(&remembered);
    SetRememberedList();
}

void QAddPriorityWidget::NameTable(const QString &name)
{
    if (m_table) {
        m_table->setAccessibleName(name);
    }
}

QString QAddPriorityWidget::tr(QString id)
{
    return Change::tr(id, QLatin1String("PriorityPlugin"));
}

void QAddPriorityWidget::CreateLayoput()
{
    m_mainLayout = new QVBoxLayout;
    m_buttonLayout = new QHBoxLayout;
}

void QAddPriorityWidget::CreateAllWidget()
{
    if (!m_mainLayout) {
        return;
    }
    m_table = new QTableWidget(this);
    m_table->setObjectName(QLatin1String("rememberTable"));
    m_mainLayout->addWidget(m_table);
    m_buttonBar = new QWidget(this);
    m_buttonBar->setObjectName(QLatin1String("addButtonBar"));
    m_mainLayout->addWidget(m_buttonBar);
    setLayout(m_mainLayout);
}

QPushButton *QAddPriorityWidget::CreateButton(const char *objectName, const char *id, const char *slot)
{
    QPushButton *button = new QPushButton(tr(QLatin1String(id)), m_buttonBar);
    button->setObjectName(QLatin1String(objectName));
    connect(button, SIGNAL(clicked()), this, slot);
    m_buttonLayout->addWidget(button);
    return button;
}

void QAddPriorityWidget::CreateAllButton()
{
    if (!m_buttonLayout) {
        return;
    }
    m_okButton = CreateButton("addOkButton", "IDS_OK", SLOT(OnOK()));
    m_okButton->setDefault(true);
    m_cancelButton = CreateButton("addCancelButton", "IDS_CANCEL", SLOT(OnCanel()));
    if (m_buttonBar) {
        m_buttonBar->setLayout(m_buttonLayout);
    }
}

void QAddPriorityWidget::SetTabWidget()
{
    if (!m_table) {
        return;
    }
    m_table->clear();
    SetUpListTable(m_table);
    // Else the key only goes round the cells, and the check boxes in them are out of a keyboard's reach.
    m_table->setTabKeyNavigation(false);
}

void QAddPriorityWidget::SetRememberedList()
{
    SetTabWidget();
    if (!m_candidates.isEmpty()) {
        SetTabItem();
    }
}

void QAddPriorityWidget::SetTabItem()
{
    QList<RememberedList> shown;
    for (int i = 0; i < m_candidates.size(); ++i) {
        if (IsRemeberPriority(m_candidates.at(i).name)) {
            shown.append(m_candidates.at(i));
        }
    }
    m_rows += shown;
    if (!m_table || shown.isEmpty()) {
        return;
    }
    // Every row inserted re-places all cell widgets there are, so all rows come before the first of these.
    m_table->model()->insertRows(0, shown.size());
    for (int row = 0; row < shown.size(); ++row) {
        const RememberedList &network = shown.at(row);
        RememberListItem *item = new RememberListItem;
        item->UpdateLabelContents(IsWifi(network) ? m_wifiIconPath : m_mobileIconPath, network.name);
        SetRowWidget(m_table, row, item);
    }
    MakeRowsReachable();
}

void QAddPriorityWidget::MakeRowsReachable()
{
    if (!m_okButton || !m_cancelButton) {
        return;
    }
    for (int row = 0; row < m_table->rowCount(); ++row) {
        new FocusFollower(m_table, RowItem(m_table, row)->GetChechItem());
    }
    // The rows are younger than the buttons and would come after them.
    setTabOrder(RowItem(m_table, m_table->rowCount() - 1)->GetChechItem(), m_okButton);
    setTabOrder(m_okButton, m_cancelButton);
    RowItem(m_table, 0)->GetChechItem()->setFocus();
}

void QAddPriorityWidget::CheckRememberList(const QList<RememberedList> *list)
{
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    const int mobile = store ? store->GetEnable3GValue() : switchUnknown;
    for (int i = 0; i < list->size(); ++i) {
        const RememberedList &network = list->at(i);
        if (!IsRepeatNetworkName(network.name) && (IsWifi(network) || mobile == mobileEnabled)) {
            m_candidates.append(network);
            m_takenNames.insert(network.name);
        }
    }
}

bool QAddPriorityWidget::IsRepeatNetworkName(const QString &name)
{
    return m_takenNames.contains(name);
}

const QSet<QString> &QAddPriorityWidget::ListedNames()
{
    if (!m_namedList.isSharedWith(*m_priorityList)) {
        m_namedList = *m_priorityList;
        m_listedNames.clear();
        m_listedNames.reserve(m_namedList.size());
        for (int i = 0; i < m_namedList.size(); ++i) {
            m_listedNames.insert(m_namedList.at(i).name);
        }
    }
    return m_listedNames;
}

bool QAddPriorityWidget::IsRemeberPriority(const QString &name)
{
    return !m_priorityList || !ListedNames().contains(name);
}

void QAddPriorityWidget::SendPriorityList()
{
    if (!m_table) {
        return;
    }
    QList<PriorityList> ticked;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (IsTicked(RowItem(m_table, row))) {
            const RememberedList network = m_rows.value(row);
            PriorityList entry;
            entry.name = network.name;
            entry.type = network.type;
            ticked.append(entry);
        }
    }
    if (m_page) {
        m_page->AddPriorityNode(ticked);
    }
}

void QAddPriorityWidget::OnOK()
{
    if (m_page) {
        SendPriorityList();
    }
    close();
}

void QAddPriorityWidget::OnCanel()
{
    close();
}

void QAddPriorityWidget::closeEvent(QCloseEvent *)
{
    if (m_frame) {
        m_frame->close();
    }
}

void QAddPriorityWidget::release()
{
    m_cancelButton = nullptr;
    m_buttonLayout = nullptr;
    m_buttonBar = nullptr;
    m_table = nullptr;
    m_mainLayout = nullptr;
    m_priorityList = nullptr;
    m_page = nullptr;
}

QAddPriorityWidgetEx::QAddPriorityWidgetEx(QWidget *parent, Qt::WindowFlags flags)
    : ExtendDialog(parent, flags, enWidgetTypeDialog)
{
    setObjectName(QLatin1String("addDialog"));
    m_body = new QAddPriorityWidget(this, flags);
    AddMainWidget(m_body);
    m_body->SetFrame(this);
    m_body->setVisible(true);
}

QAddPriorityWidgetEx::~QAddPriorityWidgetEx()
{
    delete m_body;
}

void QAddPriorityWidgetEx::release()
{
    if (m_body) {
        m_body->release();
    }
}

void QAddPriorityWidgetEx::SetRememberList(QList<PriorityList> *list)
{
    if (m_body) {
        m_body->SetRememberList(list);
    }
}

void QAddPriorityWidgetEx::SetMsgParnet(QPriorityWidget *page)
{
    if (m_body) {
        m_body->SetMsgParnet(page);
    }
}

void QAddPriorityWidgetEx::Init()
{
    if (m_body) {
        m_body->Init();
    }
}

void QAddPriorityWidgetEx::NameTable(const QString &name)
{
    if (m_body) {
        m_body->NameTable(name);
    }
}
