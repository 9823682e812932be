#include "WLANPlugin.h"

#include <IWLANUIPlugin.h>
#include <Startup.h>

namespace
{

const char wlanClassId[] = "7545FB07-0E7A-4F27-A449-872DB09C106D";
const int wlanInterfaceNumber = 0x1006;

} // namespace

IWLANUIPlugin *FindWLANPlugin()
{
    IPluginContainer *container = Startup::GetPluginContainer();
    if (!container) {
        return nullptr;
    }
    return qobject_cast<IWLANUIPlugin *>(
        container->GetPluginObject(QLatin1String(wlanClassId), wlanInterfaceNumber));
}
