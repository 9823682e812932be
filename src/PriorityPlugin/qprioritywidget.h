#ifndef QPRIORITYWIDGET_H
#define QPRIORITYWIDGET_H

#include <PriorityList.h>

#include <QList>
#include <QPointer>
#include <QWidget>

class DragTableWidget;
class QAddPriorityWidgetEx;
class QFrame;
class QHBoxLayout;
class QLabel;
class QNewPriorityWidgetEx;
class QPushButton;
class QVBoxLayout;

/**
 * The settings page: the priority list as a table, and the buttons that change it. One in the process.
 *
 * The page belongs to itself and leaves the host's dialog again before that is deleted. When a host deletes
 * it along with the dialog all the same, the next GetInstance makes a new one.
 */
class QPriorityWidget : public QWidget
{
    Q_OBJECT

public:
    /** Null once Destroy has run. */
    static QPriorityWidget *GetInstance();
    static void Destroy();

    QPriorityWidget();
    ~QPriorityWidget() override;

    /** Builds the page once; harmless when it is built. */
    void Init();

    QString tr(QString id);
    void SetLanguage();

    /** False when parent is null. Of rect only the top left corner counts. */
    bool ShowSettingDialog(QWidget *parent, QRect &rect);

    /** Forgets the selection; it is taking the page out of its parent that makes it disappear. */
    void Hide();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void release();

    bool CreateLayout();
    void CreateAllWidget();
    void CreateAllButton();
    void CreateList();
    void InitTabWidget();

    void UpdataTabItem();
    void ClaerTabWidget();

    /** Appends the entries shown to *out; null does nothing. */
    void GetPriority(QList<PriorityList> *out);

    /** Adds entries handed back by a dialog at the end, in the file too, and selects the first of them. */
    void AddPriorityNode(QList<PriorityList> &entries);

    void SavePriorityList();
    void SetAllButtonState();
    void DisEnableRemoveCapticy();

    /** Whether the WLAN plug-in protects the Wi-Fi profile of that name. */
    bool IsReadOnly(QString name);

    bool AssertSelectIndex(int index);
    bool AssertUpSelectIndex(int index);
    bool AssertDwonSelectIndex(int index);

public slots:
    void AddPriority();
    void UpPriority();
    void DownPriority();
    void RemovePriority();
    void NewPriority();
    void OnCellClicked(int row, int column);
    void UpdataPriorityList();

private:
    Q_DISABLE_COPY(QPriorityWidget)

    template <typename Widget> void Translate(Widget *widget, const char *id);
    QPushButton *CreateButton(const char *objectName, const char *id, const char *slot);

    static QPriorityWidget *_pPriorityWidget_;
    static bool _bDestoryed_;

    // Guarded: the widgets stand in the host's dialog, where the host can delete them.
    QPointer<QPushButton> m_upButton;
    QPointer<QPushButton> m_downButton;
    QPointer<QPushButton> m_addButton;
    QPointer<QPushButton> m_deleteButton;
    QPointer<QLabel> m_nameLabel;
    QPointer<QLabel> m_infoLabel;
    QPointer<DragTableWidget> m_table;
    QPointer<QHBoxLayout> m_mainLayout;
    QPointer<QVBoxLayout> m_buttonLayout;
    QPointer<QVBoxLayout> m_frameLayout;
    QPointer<QVBoxLayout> m_leftPanelLayout;
    QPointer<QAddPriorityWidgetEx> m_addDialog;
    QPointer<QWidget> m_mainContainer;
    QPointer<QWidget> m_leftPanel;
    QPointer<QFrame> m_frame;
    QPointer<QWidget> m_buttonColumn;
    QList<PriorityList> m_workingList;

    /** -1 for none. The store's result of a move is kept as it comes, so -2 is possible too. */
    int m_selectedRow;
    int m_selectedColumn;

    QString m_wifiIconPath;
    QString m_mobileIconPath;
    QPointer<QPushButton> m_newButton;
    QPointer<QNewPriorityWidgetEx> m_newDialog;
};

#endif
