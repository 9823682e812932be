#include "HandMadeWlan.h"

#include <QString>

/* Only their names count: code that checks the types of objects reads them in the tables. */

class IPluginContainer
{
public:
    virtual ~IPluginContainer();
};

class IWLANUIPlugin
{
public:
    virtual ~IWLANUIPlugin();
};

IPluginContainer::~IPluginContainer() {}

IWLANUIPlugin::~IWLANUIPlugin() {}

namespace
{

const char *const wlanIdentifier = "com.torvik.netquillforge.plugin.IWLANUIPlugin";
const char *const wlanClassId = "7545FB07-0E7A-4F27-A449-872DB09C106D";
const int wlanNumber = 4102;

const int getPluginObject = 3;

const int createProfile = 7;
const int getRemembered = 8;
const int getByName = 10;
const int getConfiguration = 11;
const int getNetworks = 22;
const int getOfNetwork = 23;

HandMadeWlan *current = nullptr;

struct ContainerTable : HandMadeTable<ContainerTable> {
    ContainerTable() : HandMadeTable<ContainerTable>(typeid(IPluginContainer))
    {
        Set(getPluginObject, GetPluginObject);
    }

    static QObject *GetPluginObject(void *, const QString &classId, int number)
    {
        Count(getPluginObject);
        current->lookUps.append(QString("%1 %2").arg(classId).arg(number));
        return classId == wlanClassId && number == wlanNumber ? current : nullptr;
    }
};

struct WlanTable : HandMadeTable<WlanTable> {
    WlanTable() : HandMadeTable<WlanTable>(typeid(IWLANUIPlugin))
    {
        Set(createProfile, CreateProfile);
        Set(getRemembered, GetRemembered);
        Set(getByName, GetByName);
        Set(getConfiguration, GetConfiguration);
        Set(getNetworks, GetNetworks);
        Set(getOfNetwork, GetOfNetwork);
    }

    static int CreateProfile(void *, Profile profile)
    {
        Count(createProfile);
        current->created = profile;
        return 0;
    }

    static int GetRemembered(void *, QList<Entry> *list)
    {
        Count(getRemembered);
        *list += current->remembered;
        return 0;
    }

    static int GetByName(void *, QString name, Profile *profile)
    {
        Count(getByName);
        current->namesAskedFor.append(name);
        current->byNameBefore = *profile;
        *profile = current->byName;
        return 0;
    }

    static int GetConfiguration(void *, Configuration *configuration)
    {
        Count(getConfiguration);
        *configuration = current->configuration;
        return 0;
    }

    static int GetNetworks(void *, QList<Network> *list)
    {
        Count(getNetworks);
        *list += current->networks;
        return 0;
    }

    static int GetOfNetwork(void *, const Network &network, Profile *profile)
    {
        Count(getOfNetwork);
        current->networkAskedFor = network;
        current->ofNetworkBefore = *profile;
        *profile = current->ofNetwork;
        return 1;
    }
};

template <typename Table> QStringList CallsOf()
{
    QStringList calls;
    for (int position = 1; position <= Table::EntryCount; ++position) {
        if (Table::Calls(position) > 0) {
            calls.append(QString("%1 x %2").arg(position).arg(Table::Calls(position)));
        }
    }
    return calls;
}

} // namespace

HandMadeWlan::HandMadeWlan()
{
    static ContainerTable containerTable;
    static WlanTable wlanTable;
    m_container.table = containerTable.Entries();
    m_interface.table = wlanTable.Entries();
    current = this;
    Reset();
}

void HandMadeWlan::Reset()
{
    ContainerTable::ClearCounts();
    WlanTable::ClearCounts();
    lookUps.clear();
    identifiers.clear();
    remembered.clear();
    byName = Profile();
    configuration = Configuration();
    networks.clear();
    ofNetwork = Profile();
    created = Profile();
    namesAskedFor.clear();
    byNameBefore = Profile();
    networkAskedFor = Network();
    ofNetworkBefore = Profile();
}

void *HandMadeWlan::qt_metacast(const char *identifier)
{
    identifiers.append(identifier);
    return QString(identifier) == wlanIdentifier ? &m_interface : nullptr;
}

QStringList HandMadeWlan::Calls() const
{
    return CallsOf<WlanTable>();
}

QStringList HandMadeWlan::ContainerCalls() const
{
    return CallsOf<ContainerTable>();
}
