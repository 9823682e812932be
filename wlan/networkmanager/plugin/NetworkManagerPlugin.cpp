#include "NetworkManagerPlugin.h"

#include "NetworkManagerConnections.h"
#include "NetworkManagerOrder.h"
#include "NetworkManagerWLANService.h"

#include <ListFollower.h>
#include <LivePicture.h>
#include <NetworkManagerClient.h>
#include <PriorityKeeper.h>

#include <ContractNumbers.h>
#include <UserData.h>

TOOLKIT_EXPORT_PLUGIN(CNetworkManagerPlugin)

CNetworkManagerPlugin::~CNetworkManagerPlugin()
{
    CNetworkManagerPlugin::OnDestroy();
}

int CNetworkManagerPlugin::GetLastError()
{
    return m_lastError;
}

void CNetworkManagerPlugin::OnDestroy()
{
    delete m_follower;
    delete m_order;
    delete m_keeper;
    delete m_connections;
    delete m_service;
    delete m_picture;
    delete m_client;
    m_follower = nullptr;
    m_order = nullptr;
    m_keeper = nullptr;
    m_connections = nullptr;
    m_service = nullptr;
    m_picture = nullptr;
    m_client = nullptr;
}

bool CNetworkManagerPlugin::Init()
{
    if (m_client) {
        return true;
    }
    m_lastError = NetworkManagerResultSuccess;
    m_client = new CNetworkManagerClient(nullptr);
    m_picture = new CLivePicture(m_client, nullptr);
    connect(m_picture, &CLivePicture::Changed, this, &CNetworkManagerPlugin::TakePicture);
    m_service = new CNetworkManagerWLANService(m_client, m_picture, nullptr);
    connect(m_service, &CNetworkManagerWLANService::ProfileEnded, this, &CNetworkManagerPlugin::NoteFailure);
    m_connections = new CNetworkManagerConnections(m_client, m_picture, nullptr);
    m_keeper = new CPriorityKeeper(m_client, m_picture, UserData::Directory(), nullptr);
    connect(m_connections, &CNetworkManagerConnections::ProfileForgotten, m_keeper, &CPriorityKeeper::Forget);
    m_order = new CNetworkManagerOrder(m_client, m_picture, m_keeper, nullptr);
    m_follower = new CListFollower(m_client, m_picture, nullptr);
    connect(m_follower, &CListFollower::Switched, m_order, &CNetworkManagerOrder::OnSwitched);
    return true;
}

void CNetworkManagerPlugin::TakePicture()
{
    if (!m_picture->IsOnItsWay()) {
        const NetworkManagerResult result = m_picture->Result();
        m_complaints.Tell(result == NetworkManagerResultSuccess ? QStringList()
                                                                : QStringList(DescriptionOf(result)));
        NoteFailure(result);
    }
}

void CNetworkManagerPlugin::NoteFailure(int result)
{
    if (result != NetworkManagerResultSuccess) {
        m_lastError = result;
    }
}

QString CNetworkManagerPlugin::GetPluginName()
{
    return QLatin1String("WLANNetworkManager");
}

QObject *CNetworkManagerPlugin::Service(int interfaceNumber)
{
    switch (interfaceNumber) {
    case WLANInterface:
        return m_service;
    case ConnectionInterface:
        return m_connections;
    case OrderInterface:
        return m_order;
    default:
        return nullptr;
    }
}
