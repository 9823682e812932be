#include "WLANPlugin.h"

#include "StoredConnections.h"
#include "StoredWLANService.h"

namespace
{

const int wlanInterfaceNumber = 0x1006;
const int connectionInterfaceNumber = 0x1008;

} // namespace

TOOLKIT_EXPORT_PLUGIN(CWLANPlugin)

CWLANPlugin::CWLANPlugin() : QObject(nullptr) {}

CWLANPlugin::~CWLANPlugin()
{
    CWLANPlugin::OnDestroy();
}

void CWLANPlugin::Release() {}

int CWLANPlugin::GetLastError()
{
    return 0;
}

void CWLANPlugin::OnDestroy()
{
    delete m_connections;
    delete m_service;
}

void CWLANPlugin::UnSDKRegisterEvent() {}

bool CWLANPlugin::Init()
{
    return true;
}

int CWLANPlugin::GetPluginType()
{
    return 0;
}

QString CWLANPlugin::GetCLSID()
{
    return QLatin1String("7545FB07-0E7A-4F27-A449-872DB09C106D");
}

int CWLANPlugin::GetVersion()
{
    return 0;
}

QString CWLANPlugin::GetPluginName()
{
    return QLatin1String("WLANStored");
}

bool CWLANPlugin::IsAllowRelease()
{
    return false;
}

bool CWLANPlugin::QueryInterface(int interfaceNumber, QObject **object)
{
    if (!object) {
        return false;
    }
    if (interfaceNumber == wlanInterfaceNumber) {
        if (!m_service) {
            m_service = new CStoredWLANService(nullptr);
        }
        *object = m_service;
        return true;
    }
    if (interfaceNumber == connectionInterfaceNumber) {
        if (!m_connections) {
            m_connections = new CStoredConnections(nullptr);
        }
        *object = m_connections;
        return true;
    }
    return false;
}

bool CWLANPlugin::ShowWindow(QWidget *, QRect &)
{
    return false;
}

int CWLANPlugin::DoModal()
{
    return 0;
}

void CWLANPlugin::Hide() {}

void CWLANPlugin::FitSize(QRect &) {}

bool CWLANPlugin::IsReady()
{
    return false;
}

bool CWLANPlugin::ChangeLang(const QString &language)
{
    return !language.isEmpty();
}
