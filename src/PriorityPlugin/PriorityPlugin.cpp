#include "PriorityPlugin.h"

#include "FunctonTrick.h"
#include "PriorityService.h"

#include <ContractNumbers.h>

namespace
{

const char sourcePath[] = "../../src/PriorityPlugin/PriorityPlugin.cpp";

} // namespace

TOOLKIT_EXPORT_PLUGIN(CPriorityPlugin)

CPriorityPlugin::CPriorityPlugin() : QObject(nullptr), m_service(nullptr) {}

CPriorityPlugin::~CPriorityPlugin()
{
    m_service = nullptr;
}

void CPriorityPlugin::Release() {}

int CPriorityPlugin::GetLastError()
{
    return 0;
}

void CPriorityPlugin::OnDestroy()
{
    CPriorityService::Destroy();
    m_service = nullptr;
}

void CPriorityPlugin::UnSDKRegisterEvent()
{
    TraceLine::Called(sourcePath, "UnSDKRegisterEvent");
    TraceLine::Exited(sourcePath, "UnSDKRegisterEvent");
}

bool CPriorityPlugin::Init()
{
    TraceLine::InitCalled(sourcePath, "Init");
    return CPriorityService::instance()->Init();
}

int CPriorityPlugin::GetPluginType()
{
    return 0;
}

QString CPriorityPlugin::GetCLSID()
{
    // The class id is the service's, whose GetCLSID answers it.
    return QString();
}

int CPriorityPlugin::GetVersion()
{
    return 0;
}

QString CPriorityPlugin::GetPluginName()
{
    return QLatin1String("PriorityPlugin");
}

bool CPriorityPlugin::IsAllowRelease()
{
    return false;
}

bool CPriorityPlugin::QueryInterface(int interfaceNumber, QObject **object)
{
    TraceLine::Called(sourcePath, "QueryInterface");
    if (interfaceNumber != SettingInterface && interfaceNumber != PriorityInterface) {
        return false;
    }
    m_service = CPriorityService::instance();
    *object = m_service;
    return true;
}

bool CPriorityPlugin::ShowWindow(QWidget *parent, QRect &rect)
{
    return CPriorityService::instance()->ShowWindow(parent, rect);
}

int CPriorityPlugin::DoModal()
{
    return 0;
}

void CPriorityPlugin::Hide()
{
    CPriorityService::instance()->Hide();
}

void CPriorityPlugin::FitSize(QRect &) {}

bool CPriorityPlugin::IsReady()
{
    return false;
}

bool CPriorityPlugin::ChangeLang(const QString &language)
{
    return !language.isEmpty();
}

int CPriorityPlugin::Notify(unsigned int event, unsigned int, unsigned int)
{
    if (event == LanguageChangeEvent && m_service) {
        m_service->SetLanguage();
    }
    return 0;
}
