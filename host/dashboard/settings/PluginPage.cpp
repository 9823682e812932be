#include "PluginPage.h"

#include <ContractNumbers.h>
#include <DashboardText.h>
#include <ISettingUIPlugin.h>
#include <PluginObjects.h>

#include <QWidget>

PluginPage::PluginPage(const PluginHost::Plugin &plugin, ISettingUIPlugin *page)
    : m_plugin(plugin), m_page(page)
{
}

PluginPage *PluginPage::Make(const PluginHost::Plugin &plugin, PluginHost *host)
{
    QObject *object = host->GetPluginObject(plugin.known.classId, SettingInterface);
    ISettingUIPlugin *page = qobject_cast<ISettingUIPlugin *>(object);
    const bool isOffered =
        page ? page->IsActiveSetting() : plugin.known.hasSettingsPage || plugin.state != PluginReady;
    return isOffered ? new PluginPage(plugin, page) : nullptr;
}

QString PluginPage::Title() const
{
    const QString name = m_page ? m_page->GetModuleName() : QString();
    return name.isEmpty() ? DashboardText(m_plugin.known.titleId.toLatin1().constData()) : name;
}

bool PluginPage::Show(QWidget *place)
{
    QRect area(QPoint(0, 0), place->minimumSize());
    return m_page && m_page->ShowSettingDialog(place, area);
}

QString PluginPage::ProblemText() const
{
    const QString problem = PluginHost::ProblemText(m_plugin);
    return problem.isEmpty() ? DashboardText("IDS_PAGE_NOT_SHOWN").arg(m_plugin.file) : problem;
}

void PluginPage::Close(Answer answer)
{
    // OK would write what the page shows over what it could not read.
    const bool mayWrite = !m_plugin.known.hasSettingsPage || PluginObjects::IsListWhole();
    switch (answer == Ok && !mayWrite ? Cancel : answer) {
    case Ok:
        m_page->OnClickSettingOkButton();
        break;
    case Cancel:
        m_page->OnClickSettingCancelButton();
        break;
    case NoAnswer:
        m_page->HideSetting();
        break;
    }
}

void PluginPage::Retranslate()
{
    // The plug-in does that itself when it is told of the language change.
}
