#ifndef PRIORITYSERVICE_H
#define PRIORITYSERVICE_H

#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>

#include <QPointer>

class QPriorityWidget;

/**
 * The object behind the plug-in's two interfaces: the settings page for the host, the priority list for other
 * plug-ins. One at a time in the process. It ends after the page and before the store.
 */
class CPriorityService : public QObject, public ISettingUIPlugin, public IPriorityPlugin
{
    Q_OBJECT
    Q_INTERFACES(ISettingUIPlugin IPriorityPlugin)

public:
    /** Creates the service on first use, and with it the page. */
    static CPriorityService *instance();

    /** Takes down page, service and store, in this order. Page and store can't be made again in this process;
     * the service can. */
    static void Destroy();

    ~CPriorityService() override;

    bool OnClickSettingOkButton() override;
    bool OnClickSettingCancelButton() override;
    bool ShowSettingDialog(QWidget *parent, QRect &rect) override;
    QString GetModuleName() override;
    bool HideSetting() override;
    bool IsActiveSetting() override;

    int GetPriorityList(QList<PriorityList> *list) override;
    void AddPriorityList(QList<PriorityList> &entries) override;
    void AddTopPriority(PriorityList entry) override;

    void OnDestroy();
    void SetLanguage();
    QString GetPluginName();
    QString GetCLSID();

    bool Init();
    bool ShowWindow(QWidget *parent, QRect &rect);
    int DoModal();
    void Hide();
    void FitSize(QRect &rect);
    bool IsReady();
    int GetVersion();
    bool IsAllowRelease();
    void Release();
    int GetLastError();
    bool ChangeLang(const QString &language);

signals:
    void OnUpdataPriorityView();

private:
    Q_DISABLE_COPY(CPriorityService)

    CPriorityService();

    static CPriorityService *m_pInstance;

    /** Guarded, because a host may delete its dialog with the page inside. */
    QPointer<QPriorityWidget> m_page;
};

#endif
