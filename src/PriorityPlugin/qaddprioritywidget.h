#ifndef QADDPRIORITYWIDGET_H
#define QADDPRIORITYWIDGET_H

#include <ExtendDialog.h>
#include <PriorityList.h>
#include <WLANRecords.h>

#include <QList>
#include <QPointer>
#include <QSet>
#include <QWidget>

class QAddPriorityWidgetEx;
class QHBoxLayout;
class QPriorityWidget;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

/**
 * Body of the add dialog: offers the networks that the WLAN plug-in remembers and that aren't in the priority
 * list, and hands the ticked ones to the page.
 */
class QAddPriorityWidget : public QWidget
{
    Q_OBJECT

public:
    QAddPriorityWidget(QWidget *parent, Qt::WindowFlags flags);
    ~QAddPriorityWidget() override;

    /** The list whose networks aren't offered; stays the caller's. Null is ignored. */
    void SetRememberList(QList<PriorityList> *list);

    /** Who receives the ticked networks. Null is ignored. */
    void SetMsgParnet(QPriorityWidget *page);

    void SetFrame(QAddPriorityWidgetEx *frame) { m_frame = frame; }

    /** Builds the widgets and fills the table; to be called once. */
    void Init();

    /** What screen readers call the table. */
    void NameTable(const QString &name);

    QString tr(QString id);

    void CreateLayoput();
    void CreateAllWidget();
    void CreateAllButton();
    void SetTabWidget();
    void SetRememberedList();
    void SetTabItem();

    /** Takes over what may be offered at all: each name once, mobile broadband only when it is enabled. */
    void CheckRememberList(const QList<RememberedList> *list);

    /** Whether CheckRememberList has taken that name already. */
    bool IsRepeatNetworkName(const QString &name);

    /** Whether that name is *not* in the priority list yet. */
    bool IsRemeberPriority(const QString &name);

    void SendPriorityList();

    /** Forgets the page, its list and most widgets, deleting nothing. */
    void release();

public slots:
    void OnOK();
    void OnCanel();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Q_DISABLE_COPY(QAddPriorityWidget)

    QPushButton *CreateButton(const char *objectName, const char *id, const char *slot);
    void MakeRowsReachable();
    const QSet<QString> &ListedNames();

    QPointer<QPushButton> m_okButton;
    QPointer<QPushButton> m_cancelButton;
    QPointer<QHBoxLayout> m_buttonLayout;
    QPointer<QWidget> m_buttonBar;
    QPointer<QTableWidget> m_table;
    QPointer<QVBoxLayout> m_mainLayout;
    QList<RememberedList> m_candidates;
    QList<PriorityList> *m_priorityList;
    QPointer<QPriorityWidget> m_page;

    /** Entry i belongs to row i of the table. */
    QList<RememberedList> m_rows;

    QString m_wifiIconPath;
    QString m_mobileIconPath;
    QAddPriorityWidgetEx *m_frame;

    /** The names of m_candidates. */
    QSet<QString> m_takenNames;

    /** The names of m_namedList, which shares its memory with the priority list until that is changed. */
    QSet<QString> m_listedNames;
    QList<PriorityList> m_namedList;
};

/** Frame of the add dialog. Its operations are those of the body. */
class QAddPriorityWidgetEx : public ExtendDialog
{
public:
    QAddPriorityWidgetEx(QWidget *parent, Qt::WindowFlags flags);
    ~QAddPriorityWidgetEx() override;

    void release();
    void SetRememberList(QList<PriorityList> *list);
    void SetMsgParnet(QPriorityWidget *page);
    void Init();
    void NameTable(const QString &name);

private:
    Q_DISABLE_COPY(QAddPriorityWidgetEx)

    QPointer<QAddPriorityWidget> m_body;
};

#endif
