#include "WLANPlugin.h"

#include <ContractNumbers.h>
#include <IWLANUIPlugin.h>
#include <Startup.h>

IWLANUIPlugin *FindWLANPlugin()
{
    IPluginContainer *container = Startup::GetPluginContainer();
    if (!container) {
        return nullptr;
    }
    return qobject_cast<IWLANUIPlugin *>(
        container->GetPluginObject(QLatin1String(wlanClassId), WLANInterface));
}
