#ifndef QNEWPRIORITYWIDGET_H
#define QNEWPRIORITYWIDGET_H

#include <ExtendDialog.h>
#include <PriorityList.h>
#include <WLANRecords.h>

#include <QList>
#include <QPointer>
#include <QWidget>

class ExtendLineEdit;
class QBoxLayout;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QNewPriorityWidgetEx;
class QPriorityWidget;
class QPushButton;
class QVBoxLayout;
class QValidator;

/**
 * Body of the new-network dialog: lets the user describe a Wi-Fi network, has the WLAN plug-in create its
 * profile and hands its name to the page. The key goes to the WLAN plug-in and nowhere else.
 */
class QNewPriorityWidget : public QWidget
{
    Q_OBJECT

public:
    QNewPriorityWidget(QWidget *parent, Qt::WindowFlags flags);
    ~QNewPriorityWidget() override;

    /** Who receives the new entry. Null is ignored. */
    void SetMsgParnet(QPriorityWidget *page);

    void SetFrame(QNewPriorityWidgetEx *frame) { m_frame = frame; }

    /** Builds and fills the dialog; to be called once. */
    void Init();

    QString tr(QString id);

    void CreateNetworkName();
    void CreateNetPassword();
    void CreateConfNetworkKey();
    void CreateExtenWidget();
    void CreateAllButton();

    /** The WLAN plug-in's result; 0 when it can't be reached, as of the other operations that ask it. */
    int ReadConfigData();
    void GetAvilableNetwork();

    /** Takes the networks out that stand in the priority file, unless that can't be read. */
    void FitterAvilableNetwork();

    /** Takes the first network of a Wi-Fi entry's name out; another one of that name stays. */
    void DeleteAvilableNetwork(PriorityList entry);

    void SetNetworkNameCombox();
    void SetComboxStr();

    /** Non-zero when *profile was filled. */
    int GetProfile(const WlanAvilableNetworkInfo &info, WLANProfile *profile);

    // Show one field of a profile. A text that isn't among a box's items leaves it without a choice.
    void SetAuthenticationInfo(QString text);
    void SetEncryptionInfo(QString text);

    /** Takes the zero-based index; what is no number counts as 0. */
    void SetKeyIndexInfo(QString text);
    void SetKeyMaterialInfo(QString text);

    bool isHexString(QString text);

    /** 0 when the key is acceptable or none is needed, 1 when it doesn't fit WEP, 2 when it doesn't fit WPA.
     */
    int CheckKeyLength();

    /** Tells the user about the first fault found in the key and the authentication; false when there is one.
     */
    bool CheckPasswordAndAuth();

    void GetProfileData(WLANProfile &profile);
    int CreateProfile(WLANProfile &profile);

    /** Whether the page's list holds an entry of that name, of whatever kind. */
    bool isProfileList(QString &name);

    void SendPriorityList(QString &name);

    /** Forgets the page and most widgets, and deletes the button bar. */
    void release();

public slots:
    void OnOK();
    void OnCancel();

    /** Adapts the fields to an authentication method, also while it is only pointed at in the open list. */
    void onHighLighted(const QString &authentication);
    void OnNetworkNameComboxSelChenged(int index);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Q_DISABLE_COPY(QNewPriorityWidget)

    QLabel *CreateLabel(const char *objectName);
    ExtendLineEdit *CreateKeyField(const char *objectName, const QString &name);
    void CreateChoice(QVBoxLayout *column, const QString &name, const char *id, int maxCount,
                      QPointer<QLabel> &label, QPointer<QComboBox> &box);
    QPushButton *CreateButton(const char *objectName, const char *id, const char *slot);
    void AddRow(QBoxLayout *row);

    void ShowKeyIndex(bool shown);
    void EnableKeyIndex(bool enabled);
    void ShowNotice(const char *id);

    /** Item i of the name box is entry i. */
    QList<WlanAvilableNetworkInfo> m_networks;

    QPointer<QHBoxLayout> m_nameRow;
    QPointer<QLabel> m_nameLabel;
    QPointer<QComboBox> m_nameBox;
    QPointer<QValidator> m_keyValidator;
    QPointer<QLabel> m_keyLabel;
    QPointer<ExtendLineEdit> m_keyField;
    QPointer<QVBoxLayout> m_keyColumn;
    QPointer<QLabel> m_confirmLabel;
    QPointer<ExtendLineEdit> m_confirmField;
    QPointer<QVBoxLayout> m_confirmColumn;
    QPointer<QWidget> m_buttonBar;
    QPointer<QPushButton> m_okButton;
    QPointer<QPushButton> m_cancelButton;
    QPointer<QHBoxLayout> m_buttonRow;
    QPointer<QVBoxLayout> m_authenticationColumn;
    QPointer<QLabel> m_authenticationLabel;
    QPointer<QComboBox> m_authenticationBox;
    QPointer<QVBoxLayout> m_encryptionColumn;
    QPointer<QLabel> m_encryptionLabel;
    QPointer<QComboBox> m_encryptionBox;
    QPointer<QVBoxLayout> m_keyIndexColumn;
    QPointer<QLabel> m_keyIndexLabel;
    QPointer<QComboBox> m_keyIndexBox;
    QPointer<QLabel> m_eapLabel;
    QPointer<QComboBox> m_eapBox;
    QPointer<QHBoxLayout> m_securityRow;
    QPointer<QVBoxLayout> m_mainLayout;
    QPointer<QPriorityWidget> m_page;
    WLANConfigData m_config;
    QNewPriorityWidgetEx *m_frame;
};

/** Frame of the new-network dialog. Its operations are those of the body. */
class QNewPriorityWidgetEx : public ExtendDialog
{
public:
    QNewPriorityWidgetEx(QWidget *parent, Qt::WindowFlags flags);
    ~QNewPriorityWidgetEx() override;

    void SetMsgParnet(QPriorityWidget *page);
    void Init();

private:
    Q_DISABLE_COPY(QNewPriorityWidgetEx)

    QPointer<QNewPriorityWidget> m_body;
};

#endif
