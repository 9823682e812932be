#include "qprioritywidget.h"

#include "DragTableWidget.h"
#include "FunctonTrick.h"
#include "PriorityListItem.h"
#include "PriorityXMLParser.h"
#include "WLANPlugin.h"
#include "qaddprioritywidget.h"
#include "qnewprioritywidget.h"

#include <Change.h>
#include <CommonUtils.h>
#include <IWLANUIPlugin.h>
#include <ToolkitCompat.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

const char sourcePath[] = "../../src/PriorityPlugin/qprioritywidget.cpp";

// Log readers know the missing button by this number; it stays what it is when the code moves.
const int missingButtonLine = 862;

QString SourcePath()
{
    return QLatin1String(sourcePath);
}

bool IsWifi(const PriorityList &entry)
{
    return entry.type == QString::number(1);
}

void SetDirection(QWidget *widget, Qt::LayoutDirection direction)
{
    if (widget) {
        widget->setLayoutDirection(direction);
    }
}

void SetEnabled(QWidget *widget, bool enabled)
{
    if (widget) {
        widget->setEnabled(enabled);
    }
}

} // namespace

QPriorityWidget *QPriorityWidget::_pPriorityWidget_ = nullptr;
bool QPriorityWidget::_bDestoryed_ = false;

QPriorityWidget *QPriorityWidget::GetInstance()
{
    if (_bDestoryed_) {
        return nullptr;
    }
    if (!_pPriorityWidget_) {
        _pPriorityWidget_ = new QPriorityWidget;
    }
    return _pPriorityWidget_;
}

void QPriorityWidget::Destroy()
{
    delete _pPriorityWidget_;
    // Whoever asked for the page while it went away has had another one made.
    QPriorityWidget *madeMeanwhile = _pPriorityWidget_;
    _pPriorityWidget_ = nullptr;
    _bDestoryed_ = true;
    delete madeMeanwhile;
}

QPriorityWidget::QPriorityWidget()
    : QWidget(nullptr), m_upButton(nullptr), m_downButton(nullptr), m_addButton(nullptr),
      m_deleteButton(nullptr), m_nameLabel(nullptr), m_infoLabel(nullptr), m_table(nullptr),
      m_mainLayout(nullptr), m_buttonLayout(nullptr), m_frameLayout(nullptr), m_leftPanelLayout(nullptr),
      m_mainContainer(nullptr), m_leftPanel(nullptr), m_frame(nullptr), m_buttonColumn(nullptr),
      m_selectedRow(-1), m_selectedColumn(-1), m_newButton(nullptr)
{
    setObjectName(QLatin1String("priorityPage"));
    Init();
}

QPriorityWidget::~QPriorityWidget()
{
    // First: nobody is to be given a page that goes away.
    if (_pPriorityWidget_ == this) {
        _pPriorityWidget_ = nullptr;
    }
    release();
}

void QPriorityWidget::Init()
{
    if (m_mainContainer || !CreateLayout()) {
        return;
    }
    const QString resourceDirectory =
        CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/PriorityPlugin/");
    m_wifiIconPath = resourceDirectory + QLatin1String("wifi.png");
    m_mobileIconPath = resourceDirectory + QLatin1String("3G .png");

    CreateAllWidget();
    CreateAllButton();
    CreateList();
    InitTabWidget();

    if (PriorityXMLParser::GetInstance() && m_workingList.isEmpty()) {
        UpdataPriorityList();
    }
}

QString QPriorityWidget::tr(QString id)
{
    return Change::tr(id, QLatin1String("PriorityPlugin"));
}

/** A widget that is missing asks for no text. */
template <typename Widget> void QPriorityWidget::Translate(Widget *widget, const char *id)
{
    if (widget) {
        widget->setText(tr(QLatin1String(id)));
    }
}

bool QPriorityWidget::CreateLayout()
{
    m_mainLayout = new QHBoxLayout;
    m_buttonLayout = new QVBoxLayout;
    m_frameLayout = new QVBoxLayout;
    m_leftPanelLayout = new QVBoxLayout;
    return true;
}

void QPriorityWidget::CreateAllWidget()
{
    m_mainContainer = new QWidget(this);
    m_mainContainer->setObjectName(QLatin1String("mainContainer"));
    // The buttons stay on the right in every language; SetLanguage gives what is inside its own direction.
    m_mainContainer->setLayoutDirection(Qt::LeftToRight);

    m_leftPanel = new QWidget(m_mainContainer);
    m_leftPanel->setObjectName(QLatin1String("leftPanel"));
    m_frame = new QFrame(m_leftPanel);
    m_frame->setObjectName(QLatin1String("listFrame"));
    m_frame->setFrameStyle(QFrame::StyledPanel);
    if (m_leftPanelLayout) {
        m_leftPanelLayout->addWidget(m_frame);
        m_leftPanel->setLayout(m_leftPanelLayout);
    }
    m_leftPanel->setFixedWidth(315);
    ToolkitCompat::AllowNegativeMargins(m_leftPanel);
    m_leftPanel->setContentsMargins(-9, -7, 0, 0);

    if (m_mainLayout) {
        m_buttonColumn = new QWidget(m_mainContainer);
        m_buttonColumn->setObjectName(QLatin1String("buttonColumn"));
        m_mainLayout->addWidget(m_leftPanel);
        m_mainLayout->addStretch(0);
        m_mainLayout->addWidget(m_buttonColumn);
        m_mainContainer->setLayout(m_mainLayout);
        m_buttonColumn->setFixedWidth(100);
    }
    m_mainContainer->setFixedSize(420, 374);
}

QPushButton *QPriorityWidget::CreateButton(const char *objectName, const char *id, const char *slot)
{
    QPushButton *button = new QPushButton(m_buttonColumn);
    button->setObjectName(QLatin1String(objectName));
    button->setText(tr(QLatin1String(id)));
    connect(button, SIGNAL(clicked()), this, slot);
    m_buttonLayout->addWidget(button);
    return button;
}

void QPriorityWidget::CreateAllButton()
{
    if (!m_buttonColumn || !m_buttonLayout) {
        return;
    }
    m_upButton = CreateButton("upButton", "IDS_PROFILE_UP", SLOT(UpPriority()));
    m_downButton = CreateButton("downButton", "IDS_PROFILE_DOWN", SLOT(DownPriority()));
    m_addButton = CreateButton("addButton", "IDS_PROFILE_ADD", SLOT(AddPriority()));
    m_deleteButton = CreateButton("deleteButton", "IDS_PROFILE_DELETE", SLOT(RemovePriority()));
    m_newButton = CreateButton("newButton", "IDS_PROFILE_NEW", SLOT(NewPriority()));
    m_buttonLayout->addStretch(0);
    m_buttonColumn->setLayout(m_buttonLayout);
}

void QPriorityWidget::CreateList()
{
    if (!m_frame || !m_frameLayout) {
        return;
    }
    const QString name = tr(QLatin1String("IDS_SETTING_NAME"));
    m_nameLabel = new QLabel(m_frame);
    m_nameLabel->setObjectName(QLatin1String("nameLabel"));
    m_nameLabel->setText(name + QLatin1Char(':'));
    m_frameLayout->addWidget(m_nameLabel);

    m_infoLabel = new QLabel(m_frame);
    m_infoLabel->setObjectName(QLatin1String("infoLabel"));
    m_infoLabel->setText(tr(QLatin1String("IDS_PROFILE_INFO")));
    m_infoLabel->setWordWrap(true);
    m_frameLayout->addWidget(m_infoLabel);

    m_table = new DragTableWidget(m_frame);
    m_table->setObjectName(QLatin1String("priorityTable"));
    connect(m_table, SIGNAL(cellClicked(int, int)), this, SLOT(OnCellClicked(int, int)));
    m_frameLayout->addWidget(m_table);
    m_table->installEventFilter(this);
    IgnoreMouseBesideRows(m_table);
    m_table->setAccessibleName(name);
    m_nameLabel->setBuddy(m_table);

    m_frame->setLayout(m_frameLayout);
}

void QPriorityWidget::InitTabWidget()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("InitTabWidget"), "");
    if (m_table) {
        SetUpListTable(m_table);
    }
}

void QPriorityWidget::SetLanguage()
{
    Translate(m_upButton.data(), "IDS_PROFILE_UP");
    Translate(m_downButton.data(), "IDS_PROFILE_DOWN");
    Translate(m_deleteButton.data(), "IDS_PROFILE_DELETE");
    Translate(m_addButton.data(), "IDS_PROFILE_ADD");
    if (m_nameLabel) {
        const QString name = tr(QLatin1String("IDS_SETTING_NAME"));
        m_nameLabel->setText(name + QLatin1Char(':'));
        if (m_table) {
            m_table->setAccessibleName(name);
        }
    }
    Translate(m_infoLabel.data(), "IDS_PROFILE_INFO");
    Translate(m_newButton.data(), "IDS_PROFILE_NEW");

    SetDirection(m_leftPanel, layoutDirection());
    SetDirection(m_buttonColumn, layoutDirection());

    if (!m_table) {
        return;
    }
    QString language = Change::GetLangName();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        // The page puts nothing else into its cells.
        PriorityListItem *item = static_cast<PriorityListItem *>(m_table->cellWidget(row, 0));
        if (item) {
            item->SetLanguage(language);
        }
    }
}

bool QPriorityWidget::ShowSettingDialog(QWidget *parent, QRect &rect)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("ShowSettingDialog"), "");
    if (!parent) {
        return false;
    }
    UpdataPriorityList();
    setParent(parent);
    move(rect.topLeft());
    if (m_mainContainer) {
        // Whatever size a host gave it before.
        resize(m_mainContainer->size());
    }
    {
        const ShownAsOne shown(this);
        setVisible(true);
    }
    m_selectedRow = -1;
    if (m_table) {
        m_table->setCurrentCell(-1, 0);
    }
    SetAllButtonState();
    SetLanguage();
    return true;
}

void QPriorityWidget::Hide()
{
    m_selectedRow = -1;
    m_selectedColumn = -1;
}

bool QPriorityWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        UpPriority();
        break;
    case Qt::Key_Down:
        DownPriority();
        break;
    default:
        break;
    }
    return true;
}

void QPriorityWidget::release()
{
    QWidget *container = m_mainContainer;
    m_upButton = nullptr;
    m_downButton = nullptr;
    m_addButton = nullptr;
    m_deleteButton = nullptr;
    m_newButton = nullptr;
    m_nameLabel = nullptr;
    m_infoLabel = nullptr;
    m_table = nullptr;
    m_mainLayout = nullptr;
    m_buttonLayout = nullptr;
    m_frameLayout = nullptr;
    m_leftPanelLayout = nullptr;
    m_addDialog = nullptr;
    m_newDialog = nullptr;
    m_mainContainer = nullptr;
    m_leftPanel = nullptr;
    m_frame = nullptr;
    m_buttonColumn = nullptr;
    delete container;
}

void QPriorityWidget::UpdataPriorityList()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("UpdataPriorityList"), "");
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store) {
        return;
    }
    m_workingList.clear();
    store->GetPriorityList(&m_workingList);
    UpdataTabItem();
}

void QPriorityWidget::UpdataTabItem()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("UpdataTabItem"), "");
    ClaerTabWidget();
    if (!m_table) {
        return;
    }
    // Every row inserted re-places all cell widgets there are, so all rows come before the first of these.
    m_table->setRowCount(m_workingList.size());
    for (int row = 0; row < m_workingList.size(); ++row) {
        const PriorityList &entry = m_workingList.at(row);
        PriorityListItem *item = new PriorityListItem;
        item->UpdateLabelContents(IsWifi(entry) ? m_wifiIconPath : m_mobileIconPath, entry.name);
        SetRowWidget(m_table, row, item);
    }
    if (m_table->isVisible()) {
        // Until then all rows lie one upon the other in the first one's place, and would be painted there.
        m_table->doItemsLayout();
    }
    if (m_selectedRow > -1) {
        m_table->setCurrentCell(m_selectedRow, 0);
    }
}

void QPriorityWidget::ClaerTabWidget()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("ClaerTabWidget"), "");
    if (!m_table) {
        return;
    }
    for (int row = m_table->rowCount() - 1; row >= 0; --row) {
        delete m_table->cellWidget(row, 0);
    }
    m_table->setRowCount(0);
    m_table->clear();
}

void QPriorityWidget::GetPriority(QList<PriorityList> *out)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("GetPriority"), "");
    if (out) {
        *out += m_workingList;
    }
}

void QPriorityWidget::AddPriorityNode(QList<PriorityList> &entries)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("AddPriorityNode"), "");
    if (entries.isEmpty()) {
        return;
    }
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store) {
        return;
    }
    m_selectedRow = store->AddList(entries, 0, &m_workingList);
    UpdataTabItem();
    SetAllButtonState();
}

void QPriorityWidget::SavePriorityList()
{
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (store) {
        store->SavePriorityList(m_workingList);
    }
}

void QPriorityWidget::SetAllButtonState()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("SetAllButtonState"), "");
    const int count = m_workingList.size();
    const int row = m_selectedRow;
    bool up = true;
    bool down = true;
    bool remove = true;
    if (row == 0) {
        up = false;
        down = count >= 2;
        remove = count >= 1;
    } else if (count >= 1 && row == count - 1) {
        down = false;
    } else if (count == 0 || row == -1) {
        up = false;
        down = false;
        remove = false;
    }
    SetEnabled(m_upButton, up);
    SetEnabled(m_downButton, down);
    SetEnabled(m_deleteButton, remove);
    SetEnabled(m_addButton, true);

    if (AssertSelectIndex(row)) {
        const PriorityList entry = m_workingList.value(row);
        if (IsWifi(entry) && IsReadOnly(entry.name)) {
            DisEnableRemoveCapticy();
        }
    }
}

void QPriorityWidget::DisEnableRemoveCapticy()
{
    if (!m_deleteButton) {
        TraceLine::ArgumentIsNull(sourcePath, "DisEnableRemoveCapticy", missingButtonLine);
        return;
    }
    m_deleteButton->setEnabled(false);
}

bool QPriorityWidget::IsReadOnly(QString name)
{
    IWLANUIPlugin *wlan = FindWLANPlugin();
    if (!wlan) {
        return false;
    }
    WLANProfile profile;
    wlan->GetProfileByName(name, &profile);
    return profile.readOnly == QLatin1String("true");
}

bool QPriorityWidget::AssertSelectIndex(int index)
{
    return m_table && index >= 0 && index < m_table->rowCount();
}

bool QPriorityWidget::AssertUpSelectIndex(int index)
{
    return m_table && index >= 1 && index < m_table->rowCount();
}

bool QPriorityWidget::AssertDwonSelectIndex(int index)
{
    return m_table && index >= 0 && index < m_table->rowCount() - 1;
}

void QPriorityWidget::OnCellClicked(int row, int column)
{
    m_selectedRow = row;
    m_selectedColumn = column;
    SetAllButtonState();
}

void QPriorityWidget::UpPriority()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("UpPriority"), "");
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store || !AssertUpSelectIndex(m_selectedRow)) {
        return;
    }
    PriorityList entry = m_workingList.value(m_selectedRow);
    m_selectedRow = store->MoveUp(entry, &m_workingList);
    UpdataTabItem();
    SetAllButtonState();
}

void QPriorityWidget::DownPriority()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("DownPriority"), "");
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store || !AssertDwonSelectIndex(m_selectedRow)) {
        return;
    }
    PriorityList entry = m_workingList.value(m_selectedRow);
    m_selectedRow = store->MoveDown(entry, &m_workingList);
    UpdataTabItem();
    SetAllButtonState();
}

void QPriorityWidget::RemovePriority()
{
    if (m_selectedRow >= 0 && m_selectedRow < m_workingList.size()) {
        const QPointer<QPriorityWidget> alive(this);
        const QString title = tr(QLatin1String("IDS_PROFILE_BOX_TITLE"));
        const QString question = tr(QLatin1String("IDS_WARNING_DELETE"));
        const int answer =
            CommonUtils::ShowMessage(QMessageBox::Question, this, title, question, QLatin1String("IDS_OK"),
                                     QLatin1String("IDS_CANCEL"), QString::fromLatin1(""), true,
                                     Qt::WindowCloseButtonHint, nullptr, QString(), true);
        if (!alive) {
            return;
        }
        // The list may have become shorter while the question was open.
        if (answer == QMessageBox::Ok && m_table) {
            m_table->removeRow(m_selectedRow);
            if (m_selectedRow >= 0 && m_selectedRow < m_workingList.size()) {
                m_workingList.removeAt(m_selectedRow);
            }
            SavePriorityList();
        }
        m_selectedRow = -1;
        if (m_table) {
            m_table->setCurrentCell(-1, 0);
        }
    }
    SetAllButtonState();
    SavePriorityList();
}

void QPriorityWidget::AddPriority()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("AddPriority"), "");
    delete m_addDialog;
    m_addDialog = new QAddPriorityWidgetEx(this, Qt::WindowCloseButtonHint);
    m_addDialog->SetRememberList(&m_workingList);
    m_addDialog->SetMsgParnet(this);
    m_addDialog->Init();
    const QString title = tr(QLatin1String("IDS_PROFILE_ADD_TITLE"));
    m_addDialog->setWindowTitle(title);
    m_addDialog->NameTable(title);
    m_addDialog->setModal(true);
    m_addDialog->setFixedSize(306, 341);
    {
        const ShownAsOne shown(m_addDialog);
        m_addDialog->setVisible(true);
    }
    SetAllButtonState();
}

void QPriorityWidget::NewPriority()
{
    delete m_newDialog;
    m_newDialog = new QNewPriorityWidgetEx(this, Qt::WindowCloseButtonHint);
    m_newDialog->SetMsgParnet(this);
    m_newDialog->Init();
    m_newDialog->setWindowTitle(tr(QLatin1String("IDS_NEWPROFILE")));
    m_newDialog->setModal(true);
    m_newDialog->setFixedSize(360, 340);
    m_newDialog->setVisible(true);
}
