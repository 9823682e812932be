#include "PriorityPlugin.h"

#include "FunctonTrick.h"
#include "PriorityService.h"

#include <QtPlugin>

#if QT_VERSION < 0x050000
#include <QPointer>
#endif

namespace
{

const char sourcePath[] = "../../src/PriorityPlugin/PriorityPlugin.cpp";

const int settingInterfaceNumber = 0x1002;
const int priorityInterfaceNumber = 0x1007;
const unsigned int languageChangeEvent = 0x140;

} // namespace

extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data()
{
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
           "version=4.6.2\n"
           "debug=false\n"
           "buildkey=macosx macx g++-4 full-config";
}

#if QT_VERSION < 0x050000
extern "C" Q_DECL_EXPORT QObject *qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance) {
        instance = new CPriorityPlugin;
    }
    return instance;
}
#endif

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
    // The class id names the service; a root object that answered it too would be registered twice.
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
    if (interfaceNumber != settingInterfaceNumber && interfaceNumber != priorityInterfaceNumber) {
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
    if (event == languageChangeEvent && m_service) {
        m_service->SetLanguage();
    }
    return 0;
}
