#include "WLANPlugin.h"

#include "LivePicture.h"
#include "NetworkManagerClient.h"
#include "NetworkManagerConnections.h"
#include "NetworkManagerResult.h"
#include "NetworkManagerWLANService.h"
#include "PriorityKeeper.h"

#include <UserDataDirectory.h>

namespace
{

const int wlanInterfaceNumber = 0x1006;
const int connectionInterfaceNumber = 0x1008;

} // namespace

TOOLKIT_EXPORT_PLUGIN(CWLANPlugin)

CWLANPlugin::CWLANPlugin()
    : QObject(nullptr), m_lastError(NetworkManagerResultSuccess), m_client(nullptr), m_picture(nullptr),
      m_service(nullptr), m_connections(nullptr), m_keeper(nullptr)
{
}

CWLANPlugin::~CWLANPlugin()
{
    CWLANPlugin::OnDestroy();
}

void CWLANPlugin::Release() {}

int CWLANPlugin::GetLastError()
{
    return m_lastError;
}

void CWLANPlugin::OnDestroy()
{
    delete m_keeper;
    delete m_connections;
    delete m_service;
    delete m_picture;
    delete m_client;
    m_keeper = nullptr;
    m_connections = nullptr;
    m_service = nullptr;
    m_picture = nullptr;
    m_client = nullptr;
}

void CWLANPlugin::UnSDKRegisterEvent() {}

bool CWLANPlugin::Init()
{
    if (m_client) {
        return true;
    }
    m_client = new CNetworkManagerClient(nullptr);
    const NetworkManagerResult result = m_client->Probe(CNetworkManagerClient::patienceMilliseconds);
    m_lastError = result;
    if (result != NetworkManagerResultSuccess) {
        qWarning("WLANNetworkManager: %s", DescriptionOf(result).toLocal8Bit().constData());
        OnDestroy();
        return false;
    }
    m_picture = new CLivePicture(m_client, nullptr);
    m_service = new CNetworkManagerWLANService(m_client, m_picture, nullptr);
    m_connections = new CNetworkManagerConnections(m_client, m_picture, nullptr);
    m_keeper = new CPriorityKeeper(m_client, UserDataDirectory(), nullptr);
    connect(m_service, SIGNAL(AboutToChange()), m_keeper, SLOT(StartAgain()));
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
    return QLatin1String("WLANNetworkManager");
}

bool CWLANPlugin::IsAllowRelease()
{
    return false;
}

bool CWLANPlugin::QueryInterface(int interfaceNumber, QObject **object)
{
    QObject *service = nullptr;
    if (interfaceNumber == wlanInterfaceNumber) {
        service = m_service;
    } else if (interfaceNumber == connectionInterfaceNumber) {
        service = m_connections;
    }
    if (!service || !object) {
        return false;
    }
    *object = service;
    return true;
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
