#include "StoredPlugin.h"

#include "StoredConnections.h"
#include "StoredWLANService.h"

#include <ContractNumbers.h>

TOOLKIT_EXPORT_PLUGIN(CStoredPlugin)

CStoredPlugin::~CStoredPlugin()
{
    CStoredPlugin::OnDestroy();
}

void CStoredPlugin::OnDestroy()
{
    delete m_connections;
    delete m_service;
}

QString CStoredPlugin::GetPluginName()
{
    return QLatin1String("WLANStored");
}

QObject *CStoredPlugin::Service(int interfaceNumber)
{
    switch (interfaceNumber) {
    case WLANInterface:
        if (!m_service) {
            m_service = new CStoredWLANService(nullptr);
        }
        return m_service;
    case ConnectionInterface:
        if (!m_connections) {
            m_connections = new CStoredConnections(nullptr);
        }
        return m_connections;
    default:
        return nullptr;
    }
}
