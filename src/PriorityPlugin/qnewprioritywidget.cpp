#include "qnewprioritywidget.h"

#include "FunctonTrick.h"
#include "KeyMaterial.h"
#include "KeyRules.h"
#include "PriorityXMLParser.h"
#include "WLANPlugin.h"
#include "qprioritywidget.h"

#include <Change.h>
#include <CommonUtils.h>
#include <ExtendLineEdit.h>
#include <IWLANUIPlugin.h>
#include <ToolkitCompat.h>

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

namespace
{

const int rowSpacing = 10;
const int buttonWidth = 90;
const int nameLength = 16;

const int maxAuthentications = 6;
const int maxEncryptions = 4;
const int maxKeyIndexes = 4;
const int maxEapMethods = 3;

QString SourcePath()
{
    return QLatin1String("../../src/PriorityPlugin/qnewprioritywidget.cpp");
}

QString WifiType()
{
    return QString::number(1);
}

enum KeyIndexState { KeyIndexHidden, KeyIndexDisabled, KeyIndexEnabled };

/** What an authentication method asks for. */
struct Method {
    const char *name;
    const char *encryptions[2];
    KeyIndexState keyIndex;
    bool hasKey;
};

const Method methods[] = {
    {"open", {"none", "WEP"}, KeyIndexEnabled, true},
    {"shared", {"none", "WEP"}, KeyIndexEnabled, true},
    {"WPAPSK", {"CCMP", "TKIP"}, KeyIndexDisabled, true},
    {"WPA2PSK", {"CCMP", "TKIP"}, KeyIndexDisabled, true},
    {"WPA(EAP)", {"CCMP", "TKIP"}, KeyIndexHidden, false},
    {"WPA2(EAP)", {"CCMP", "TKIP"}, KeyIndexHidden, false},
    {"IEEE 802.1X", {"none", nullptr}, KeyIndexHidden, false},
};

const Method *FindMethod(const QString &name)
{
    for (const Method &method : methods) {
        if (name == QLatin1String(method.name)) {
            return &method;
        }
    }
    return nullptr;
}

QStringList Encryptions(const Method &method)
{
    QStringList encryptions;
    for (const char *encryption : method.encryptions) {
        if (encryption) {
            encryptions << QLatin1String(encryption);
        }
    }
    return encryptions;
}

/** In one call: the box's first item runs slots that append again, and must find the whole list in place. */
void AppendItems(QComboBox *box, const QStringList &items)
{
    if (box) {
        box->addItems(items);
    }
}

void ChooseItem(QComboBox *box, const QString &text)
{
    if (box) {
        box->setCurrentIndex(box->findData(text, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
    }
}

void ShowPair(QLabel *label, QComboBox *box, bool shown)
{
    if (label && box) {
        label->setVisible(shown);
        box->setVisible(shown);
    }
}

/** The field's text is its own: wiping it must not reach the WLAN plug-in's profile. */
void ReplaceKey(ExtendLineEdit *field, const QString &key)
{
    KeyMaterial::Wipe(field);
    field->setText(KeyMaterial::Unshared(key));
}

void EnableKeyField(ExtendLineEdit *field, bool enabled)
{
    if (!field) {
        return;
    }
    field->setEnabled(enabled);
    field->setFocusPolicy(enabled ? Qt::StrongFocus : Qt::NoFocus);
    if (!enabled) {
        KeyMaterial::Wipe(field);
    }
}

} // namespace

QNewPriorityWidget::QNewPriorityWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_nameRow(nullptr), m_nameLabel(nullptr), m_nameBox(nullptr),
      m_keyValidator(nullptr), m_keyLabel(nullptr), m_keyField(nullptr), m_keyColumn(nullptr),
      m_confirmLabel(nullptr), m_confirmField(nullptr), m_confirmColumn(nullptr), m_buttonBar(nullptr),
      m_okButton(nullptr), m_cancelButton(nullptr), m_buttonRow(nullptr), m_authenticationColumn(nullptr),
      m_authenticationLabel(nullptr), m_authenticationBox(nullptr), m_encryptionColumn(nullptr),
      m_encryptionLabel(nullptr), m_encryptionBox(nullptr), m_keyIndexColumn(nullptr),
      m_keyIndexLabel(nullptr), m_keyIndexBox(nullptr), m_eapLabel(nullptr), m_eapBox(nullptr),
      m_securityRow(nullptr), m_mainLayout(nullptr), m_page(nullptr), m_frame(nullptr)
{
    setObjectName(QLatin1String("newDialogBody"));
}

QNewPriorityWidget::~QNewPriorityWidget()
{
    if (m_keyField) {
        KeyMaterial::Wipe(m_keyField);
    }
    if (m_confirmField) {
        KeyMaterial::Wipe(m_confirmField);
    }
    release();
}

void QNewPriorityWidget::SetMsgParnet(QPriorityWidget *page)
{
    if (page) {
        m_page = page;
    }
}

void QNewPriorityWidget::Init()
{
    m_mainLayout = new QVBoxLayout;
    m_keyValidator =
        ToolkitCompat::NewPatternValidator(QLatin1String("^[\\w\\-~!@#$%^&*()+{}[\\]:]{1,128}"), this);
    // Looked up under this spelling.
    m_keyValidator->setObjectName(QLatin1String("NewPriroity_RegExpValidator"));

    CreateNetworkName();
    CreateNetPassword();
    CreateConfNetworkKey();
    CreateExtenWidget();
    CreateAllButton();
    setLayout(m_mainLayout);
    // Before the box is filled: what the filling chooses must run the slot too.
    connect(m_nameBox, SIGNAL(currentIndexChanged(int)), this, SLOT(OnNetworkNameComboxSelChenged(int)));

    ReadConfigData();
    GetAvilableNetwork();
    FitterAvilableNetwork();
    SetNetworkNameCombox();
    SetComboxStr();
    m_nameBox->setFocus();
}

QString QNewPriorityWidget::tr(QString id)
{
    return Change::tr(id, QLatin1String("PriorityPlugin"));
}

QLabel *QNewPriorityWidget::CreateLabel(const char *objectName)
{
    QLabel *label = new QLabel(this);
    label->setObjectName(QLatin1String(objectName));
    return label;
}

ExtendLineEdit *QNewPriorityWidget::CreateKeyField(const char *objectName, const QString &name)
{
    ExtendLineEdit *field = new ExtendLineEdit(this);
    field->setObjectName(QLatin1String(objectName));
    field->setAccessibleName(name);
    field->setContextMenuPolicy(Qt::NoContextMenu);
    field->setEchoMode(QLineEdit::Password);
    field->setValidator(m_keyValidator);
    // A dialog that is closed stays until the next one is opened; the key in it doesn't.
    KeyMaterial::WipeWhenHidden(field);
    return field;
}

void QNewPriorityWidget::CreateChoice(QVBoxLayout *column, const QString &name, const char *id, int maxCount,
                                      QPointer<QLabel> &label, QPointer<QComboBox> &box)
{
    const QString text = tr(QLatin1String(id));
    label = new QLabel(this);
    label->setObjectName(name + QLatin1String("Label"));
    CommonUtils::ElidedText(label, text, Qt::ElideRight);
    if (label->text() != text) {
        label->setToolTip(text);
    }
    column->addWidget(label);

    box = new QComboBox(this);
    box->setObjectName(name + QLatin1String("Box"));
    box->setAccessibleName(text);
    box->setMaxCount(maxCount);
    label->setBuddy(box);
    column->addWidget(box);
}

void QNewPriorityWidget::AddRow(QBoxLayout *row)
{
    if (!m_mainLayout) {
        // Nobody else would own it.
        row->setParent(this);
        return;
    }
    m_mainLayout->addSpacing(rowSpacing);
    m_mainLayout->addLayout(row);
}

void QNewPriorityWidget::CreateNetworkName()
{
    const QString text = tr(QLatin1String("IDS_LIST_NETWORK_NAME"));
    m_nameRow = new QHBoxLayout;
    m_nameLabel = CreateLabel("networkNameLabel");
    m_nameLabel->setText(text);
    m_nameBox = new QComboBox(this);
    m_nameBox->setObjectName(QLatin1String("networkNameBox"));
    m_nameBox->setAccessibleName(text);
    m_nameBox->setContextMenuPolicy(Qt::NoContextMenu);
    m_nameBox->setEditable(true);
    // A long name in range must not push the other fields out of the dialog.
    m_nameBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_nameBox->setMinimumContentsLength(nameLength);
    // Names that differ in case only are different networks; the typed one counts.
    m_nameBox->completer()->setCaseSensitivity(Qt::CaseSensitive);
    m_nameLabel->setBuddy(m_nameBox);
    m_nameRow->addWidget(m_nameLabel);
    m_nameRow->addWidget(m_nameBox);
    m_nameRow->setAlignment(Qt::AlignLeft);
    AddRow(m_nameRow);
}

void QNewPriorityWidget::CreateNetPassword()
{
    const QString text = tr(QLatin1String("IDS_KEY"));
    m_keyColumn = new QVBoxLayout;
    m_keyLabel = CreateLabel("keyLabel");
    m_keyLabel->setText(text);
    m_keyField = CreateKeyField("keyEdit", text);
    m_keyLabel->setBuddy(m_keyField);
    m_keyColumn->addWidget(m_keyLabel);
    m_keyColumn->addWidget(m_keyField);
    m_keyColumn->setAlignment(Qt::AlignLeft);
    AddRow(m_keyColumn);
}

void QNewPriorityWidget::CreateConfNetworkKey()
{
    const QString text = tr(QLatin1String("IDS_KEY_CONFIRM"));
    m_confirmColumn = new QVBoxLayout;
    m_confirmLabel = CreateLabel("confirmKeyLabel");
    m_confirmLabel->setText(text);
    m_confirmField = CreateKeyField("confirmKeyEdit", text);
    m_confirmLabel->setBuddy(m_confirmField);
    m_confirmColumn->addWidget(m_confirmLabel);
    m_confirmColumn->addWidget(m_confirmField);
    m_confirmColumn->setAlignment(Qt::AlignLeft);
    AddRow(m_confirmColumn);
}

void QNewPriorityWidget::CreateExtenWidget()
{
    m_securityRow = new QHBoxLayout;
    m_authenticationColumn = new QVBoxLayout;
    m_encryptionColumn = new QVBoxLayout;
    m_keyIndexColumn = new QVBoxLayout;
    CreateChoice(m_authenticationColumn, QLatin1String("authentication"), "IDS_AUTHENTICATION",
                 maxAuthentications, m_authenticationLabel, m_authenticationBox);
    CreateChoice(m_encryptionColumn, QLatin1String("encryption"), "IDS_ENCRYPTION", maxEncryptions,
                 m_encryptionLabel, m_encryptionBox);
    CreateChoice(m_keyIndexColumn, QLatin1String("keyIndex"), "IDS_KEYINDEX", maxKeyIndexes, m_keyIndexLabel,
                 m_keyIndexBox);
    CreateChoice(m_keyIndexColumn, QLatin1String("eap"), "IDS_EAP_METHOD", maxEapMethods, m_eapLabel,
                 m_eapBox);
    m_securityRow->addLayout(m_authenticationColumn);
    m_securityRow->addLayout(m_encryptionColumn);
    m_securityRow->addLayout(m_keyIndexColumn);
    ToolkitCompat::ConnectItemTexts(m_authenticationBox, this, SLOT(onHighLighted(QString)));
    AddRow(m_securityRow);
}

QPushButton *QNewPriorityWidget::CreateButton(const char *objectName, const char *id, const char *slot)
{
    QPushButton *button = new QPushButton(m_buttonBar);
    button->setObjectName(QLatin1String(objectName));
    button->setText(tr(QLatin1String(id)));
    button->setFixedWidth(buttonWidth);
    connect(button, SIGNAL(clicked()), this, slot);
    m_buttonRow->addWidget(button);
    return button;
}

void QNewPriorityWidget::CreateAllButton()
{
    m_buttonBar = new QWidget(this);
    m_buttonBar->setObjectName(QLatin1String("newButtonBar"));
    m_buttonRow = new QHBoxLayout;
    m_okButton = CreateButton("newOkButton", "IDS_OK", SLOT(OnOK()));
    m_okButton->setDefault(true);
    m_cancelButton = CreateButton("newCancelButton", "IDS_CANCEL", SLOT(OnCancel()));
    m_buttonBar->setLayout(m_buttonRow);
    if (m_mainLayout) {
        m_mainLayout->addSpacing(rowSpacing);
        m_mainLayout->addWidget(m_buttonBar);
    }
}

int QNewPriorityWidget::ReadConfigData()
{
    IWLANUIPlugin *wlan = FindWLANPlugin();
    return wlan ? wlan->GetConfigData(&m_config) : 0;
}

void QNewPriorityWidget::GetAvilableNetwork()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("GetAvilableNetwork"), "");
    IWLANUIPlugin *wlan = FindWLANPlugin();
    if (wlan) {
        wlan->GetAvailableNetworks(&m_networks);
    }
}

void QNewPriorityWidget::FitterAvilableNetwork()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("FitterAvilableNetwork"), "");
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store) {
        return;
    }
    // What is stored counts here, not what the page shows.
    QList<PriorityList> stored;
    if (store->GetPriorityList(&stored) != PriorityXMLParser::Success) {
        return;
    }
    for (int i = 0; i < stored.size(); ++i) {
        DeleteAvilableNetwork(stored.at(i));
    }
}

void QNewPriorityWidget::DeleteAvilableNetwork(PriorityList entry)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("DeleteAvilableNetwork"), "");
    if (entry.type != WifiType()) {
        return;
    }
    for (int i = 0; i < m_networks.size(); ++i) {
        if (m_networks.at(i).networkName == entry.name) {
            m_networks.removeAt(i);
            return;
        }
    }
}

void QNewPriorityWidget::SetNetworkNameCombox()
{
    if (!m_nameBox) {
        return;
    }
    for (int i = 0; i < m_networks.size(); ++i) {
        m_nameBox->insertItem(i, m_networks.at(i).networkName);
    }
    m_nameBox->setCurrentIndex(-1);
}

void QNewPriorityWidget::SetComboxStr()
{
    AppendItems(m_authenticationBox, m_config.authenticationList);
}

void QNewPriorityWidget::OnNetworkNameComboxSelChenged(int index)
{
    if (index < 0 || index >= m_networks.size()) {
        SetAuthenticationInfo(QString());
        SetEncryptionInfo(QString());
        SetKeyIndexInfo(QString());
        SetKeyMaterialInfo(QString());
        return;
    }
    WLANProfile profile;
    if (GetProfile(m_networks.at(index), &profile)) {
        // Choosing the authentication refills the encryption box, so it comes first.
        SetAuthenticationInfo(profile.authentication);
        SetEncryptionInfo(profile.encryption);
        SetKeyIndexInfo(profile.keyIndex);
        SetKeyMaterialInfo(profile.keyMaterial);
        KeyMaterial::Wipe(&profile.keyMaterial);
    }
}

int QNewPriorityWidget::GetProfile(const WlanAvilableNetworkInfo &info, WLANProfile *profile)
{
    IWLANUIPlugin *wlan = FindWLANPlugin();
    return wlan ? wlan->GetNetworkProfile(info, profile) : 0;
}

void QNewPriorityWidget::ShowKeyIndex(bool shown)
{
    ShowPair(m_keyIndexLabel, m_keyIndexBox, shown);
}

void QNewPriorityWidget::EnableKeyIndex(bool enabled)
{
    if (m_keyIndexLabel && m_keyIndexBox) {
        m_keyIndexBox->setEnabled(enabled);
    }
}

void QNewPriorityWidget::onHighLighted(const QString &authentication)
{
    AppendItems(m_authenticationBox, m_config.authenticationList);
    AppendItems(m_eapBox, QStringList()
                              << QLatin1String("AUTO") << QLatin1String("SIM") << QLatin1String("AKA"));
    AppendItems(m_keyIndexBox, QStringList() << QLatin1String("1") << QLatin1String("2") << QLatin1String("3")
                                             << QLatin1String("4"));
    if (m_encryptionBox) {
        m_encryptionBox->clear();
    }
    const Method *method = FindMethod(authentication);
    if (!method) {
        return;
    }
    if (m_encryptionBox) {
        AppendItems(m_encryptionBox, Encryptions(*method));
        m_encryptionBox->setEnabled(true);
    }
    ShowKeyIndex(method->keyIndex != KeyIndexHidden);
    // A hidden box keeps its state: whether its index gets into the profile depends on the method before.
    if (method->keyIndex != KeyIndexHidden) {
        EnableKeyIndex(method->keyIndex == KeyIndexEnabled);
    }
    ShowPair(m_eapLabel, m_eapBox, !method->hasKey);
    EnableKeyField(m_keyField, method->hasKey);
    EnableKeyField(m_confirmField, method->hasKey);
}

void QNewPriorityWidget::SetAuthenticationInfo(QString text)
{
    ChooseItem(m_authenticationBox, text);
}

void QNewPriorityWidget::SetEncryptionInfo(QString text)
{
    ChooseItem(m_encryptionBox, text);
}

void QNewPriorityWidget::SetKeyIndexInfo(QString text)
{
    if (m_keyIndexBox) {
        m_keyIndexBox->setCurrentIndex(text.toInt());
    }
}

void QNewPriorityWidget::SetKeyMaterialInfo(QString text)
{
    if (m_keyField && m_confirmField) {
        ReplaceKey(m_keyField, text);
        ReplaceKey(m_confirmField, text);
    }
}

bool QNewPriorityWidget::isHexString(QString text)
{
    return KeyRules::IsHexadecimal(text);
}

int QNewPriorityWidget::CheckKeyLength()
{
    if (!m_keyField || !m_encryptionBox || !m_keyField->isEnabled()) {
        return KeyRules::Acceptable;
    }
    return KeyRules::Check(m_encryptionBox->currentText(), m_keyField->text());
}

bool QNewPriorityWidget::CheckPasswordAndAuth()
{
    const char *fault = nullptr;
    const int keyFault = CheckKeyLength();
    if (keyFault == KeyRules::UnfitForWep) {
        fault = "IDS_ERROR_KEY_WRONG_LENGTH_40";
    } else if (keyFault == KeyRules::UnfitForWpa) {
        fault = "IDS_ERROR_KEY_WRONG_LENGTH_128";
    } else if (m_keyField && m_confirmField && m_keyField->text() != m_confirmField->text()) {
        fault = "IDS_ERROR_KEY_DIFFERENT";
    } else if (m_authenticationBox && m_authenticationBox->currentText().isEmpty()) {
        fault = "IDS_ERROR_WRONG_AUTHENTICATION";
    }
    if (fault) {
        ShowNotice(fault);
    }
    return !fault;
}

// The dialog itself may be gone when this returns.
void QNewPriorityWidget::ShowNotice(const char *id)
{
    const QString title = tr(QLatin1String("IDS_PROFILE_BOX_TITLE"));
    const QString text = tr(QLatin1String(id));
    CommonUtils::ShowMessage(QMessageBox::Information, this, title, text, QLatin1String("IDS_OK"),
                             QString::fromLatin1(""), QString::fromLatin1(""), true,
                             Qt::WindowCloseButtonHint, nullptr, QString(), true);
}

void QNewPriorityWidget::OnOK()
{
    if (m_nameBox && m_nameBox->currentText().isEmpty()) {
        ShowNotice("IDS_ERROR_EMPTY_SSID");
        return;
    }
    if (!CheckPasswordAndAuth()) {
        return;
    }
    WLANProfile profile;
    GetProfileData(profile);
    // Created even when the name then turns out to be in the list; only the list refuses it.
    CreateProfile(profile);
    KeyMaterial::Wipe(&profile.keyMaterial);
    if (isProfileList(profile.profileName)) {
        ShowNotice("IDS_PROFILE_NAME_REPEAT");
        return;
    }
    SendPriorityList(profile.profileName);
    close();
}

void QNewPriorityWidget::GetProfileData(WLANProfile &profile)
{
    if (m_nameBox) {
        profile.profileName = m_nameBox->currentText();
        profile.ssid = m_nameBox->currentText();
    }
    profile.encryption = QLatin1String("none");
    profile.connectionMode = QLatin1String("manual");
    profile.bssType = QLatin1String("ESS");
    profile.text4 = QLatin1String("0");
    profile.keyFlag = QLatin1String("false");
    profile.authentication = QLatin1String("open");
    profile.keyIndex = QLatin1String("0");
    profile.text16 = QString::fromLatin1("");
    if (m_keyField) {
        profile.keyMaterial = KeyMaterial::Unshared(m_keyField->text());
    }
    if (m_authenticationBox && m_authenticationBox->isEnabled()) {
        profile.authentication = m_authenticationBox->currentText();
    }
    if (m_encryptionBox && m_encryptionBox->isEnabled()) {
        profile.encryption = m_encryptionBox->currentText();
    }
    // Read while it is only hidden, too.
    if (m_keyIndexBox && m_keyIndexBox->isEnabled()) {
        profile.keyIndex = QString::number(m_keyIndexBox->currentText().toInt() - 1);
    }
    profile.keyType = QLatin1String(profile.encryption == QLatin1String("WEP") ? "networkKey" : "passPhrase");
}

int QNewPriorityWidget::CreateProfile(WLANProfile &profile)
{
    IWLANUIPlugin *wlan = FindWLANPlugin();
    return wlan ? wlan->CreateWLANProfile(profile) : 0;
}

bool QNewPriorityWidget::isProfileList(QString &name)
{
    if (!m_page) {
        return false;
    }
    QList<PriorityList> listed;
    m_page->GetPriority(&listed);
    for (int i = 0; i < listed.size(); ++i) {
        if (listed.at(i).name == name) {
            return true;
        }
    }
    return false;
}

void QNewPriorityWidget::SendPriorityList(QString &name)
{
    if (!m_page) {
        return;
    }
    PriorityList entry;
    entry.name = name;
    entry.type = WifiType();
    QList<PriorityList> entries;
    entries.append(entry);
    m_page->AddPriorityNode(entries);
}

void QNewPriorityWidget::OnCancel()
{
    close();
}

void QNewPriorityWidget::closeEvent(QCloseEvent *)
{
    if (m_frame) {
        m_frame->close();
    }
}

void QNewPriorityWidget::release()
{
    m_nameRow = nullptr;
    m_nameLabel = nullptr;
    m_nameBox = nullptr;
    m_keyLabel = nullptr;
    m_keyField = nullptr;
    m_keyColumn = nullptr;
    m_confirmLabel = nullptr;
    m_confirmField = nullptr;
    m_confirmColumn = nullptr;
    delete m_buttonBar;
    m_okButton = nullptr;
    m_cancelButton = nullptr;
    m_buttonRow = nullptr;
    m_authenticationColumn = nullptr;
    m_authenticationLabel = nullptr;
    m_authenticationBox = nullptr;
    m_encryptionColumn = nullptr;
    m_encryptionLabel = nullptr;
    m_encryptionBox = nullptr;
    m_keyIndexColumn = nullptr;
    m_keyIndexLabel = nullptr;
    m_keyIndexBox = nullptr;
    m_securityRow = nullptr;
    m_page = nullptr;
}

QNewPriorityWidgetEx::QNewPriorityWidgetEx(QWidget *parent, Qt::WindowFlags flags)
    : ExtendDialog(parent, flags, enWidgetTypeDialog)
{
    setObjectName(QLatin1String("newDialog"));
    m_body = new QNewPriorityWidget(this, flags);
    AddMainWidget(m_body);
    m_body->SetFrame(this);
    m_body->setVisible(true);
}

QNewPriorityWidgetEx::~QNewPriorityWidgetEx()
{
    delete m_body;
}

void QNewPriorityWidgetEx::SetMsgParnet(QPriorityWidget *page)
{
    if (m_body) {
        m_body->SetMsgParnet(page);
    }
}

void QNewPriorityWidgetEx::Init()
{
    if (m_body) {
        m_body->Init();
    }
}
