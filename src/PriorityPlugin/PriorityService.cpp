#include "PriorityService.h"

#include "FunctonTrick.h"
#include "PriorityXMLParser.h"
#include "qprioritywidget.h"

#include <Change.h>
#include <ContractNumbers.h>

namespace
{

const char sourcePath[] = "../../src/PriorityPlugin/PriorityService.cpp";

// Log readers know the missing page by this number; it stays what it is when the code moves.
const int missingPageLine = 142;

QString Translated(const char *id)
{
    return Change::tr(QLatin1String(id), QLatin1String("PriorityPlugin"));
}

} // namespace

CPriorityService *CPriorityService::m_pInstance = nullptr;

CPriorityService *CPriorityService::instance()
{
    if (!m_pInstance) {
        m_pInstance = new CPriorityService;
    }
    return m_pInstance;
}

void CPriorityService::Destroy()
{
    if (m_pInstance) {
        m_pInstance->OnDestroy();
        delete m_pInstance;
        m_pInstance = nullptr;
    }
    PriorityXMLParser::Destory();
}

CPriorityService::CPriorityService() : QObject(nullptr), m_page(QPriorityWidget::GetInstance())
{
    if (m_page) {
        m_page->Init();
        connect(this, SIGNAL(OnUpdataPriorityView()), m_page, SLOT(UpdataPriorityList()));
    }
}

CPriorityService::~CPriorityService()
{
    m_page = nullptr;
}

void CPriorityService::OnDestroy()
{
    QPriorityWidget::Destroy();
    m_page = nullptr;
}

bool CPriorityService::OnClickSettingOkButton()
{
    if (m_page) {
        m_page->SavePriorityList();
    }
    HideSetting();
    return true;
}

bool CPriorityService::OnClickSettingCancelButton()
{
    HideSetting();
    return true;
}

bool CPriorityService::ShowSettingDialog(QWidget *parent, QRect &rect)
{
    if (!m_page) {
        m_page = QPriorityWidget::GetInstance();
        if (m_page) {
            m_page->Init();
        }
    }
    if (!m_page) {
        TraceLine::ArgumentIsNull(sourcePath, "ShowSettingDialog", missingPageLine);
        return false;
    }
    m_page->ShowSettingDialog(parent, rect);
    return true;
}

QString CPriorityService::GetModuleName()
{
    return Translated("IDS_SETTING_NAME");
}

bool CPriorityService::HideSetting()
{
    if (m_page) {
        m_page->setParent(nullptr);
        m_page->Hide();
    }
    return true;
}

bool CPriorityService::IsActiveSetting()
{
    return true;
}

int CPriorityService::GetPriorityList(QList<PriorityList> *list)
{
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    return store ? store->GetPriorityList(list) : 0;
}

void CPriorityService::AddPriorityList(QList<PriorityList> &entries)
{
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store) {
        return;
    }
    QList<PriorityList> stored;
    store->GetPriorityList(&stored);
    stored += entries;
    store->SavePriorityList(stored);
    emit OnUpdataPriorityView();
}

void CPriorityService::AddTopPriority(PriorityList entry)
{
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    if (!store || entry.name.isEmpty()) {
        return;
    }
    store->AddTop(entry, nullptr);
    emit OnUpdataPriorityView();
}

void CPriorityService::SetLanguage()
{
    if (m_page) {
        m_page->SetLanguage();
    }
}

QString CPriorityService::GetPluginName()
{
    return Translated("IDS_PLUGIN_NAME");
}

QString CPriorityService::GetCLSID()
{
    return QLatin1String(priorityClassId);
}

bool CPriorityService::Init()
{
    return true;
}

bool CPriorityService::ShowWindow(QWidget *, QRect &)
{
    return true;
}

int CPriorityService::DoModal()
{
    return 0;
}

void CPriorityService::Hide() {}

void CPriorityService::FitSize(QRect &) {}

bool CPriorityService::IsReady()
{
    return false;
}

int CPriorityService::GetVersion()
{
    return 0;
}

bool CPriorityService::IsAllowRelease()
{
    return false;
}

void CPriorityService::Release() {}

int CPriorityService::GetLastError()
{
    return 0;
}

bool CPriorityService::ChangeLang(const QString &language)
{
    return !language.isEmpty();
}
