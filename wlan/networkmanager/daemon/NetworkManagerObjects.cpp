#include "NetworkManagerObjects.h"

#include "NetworkManagerClient.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QStringList>
#include <QVariantMap>

namespace
{

typedef QMap<QDBusObjectPath, NMVariantMapMap> ObjectsReply;

/** What changes all the time and says nothing that anybody asks for. */
const char *const passingProperties[] = {"LastSeen", "Bitrate", "StateFlags"};

QStringList PathsIn(const QVariant &value)
{
    QStringList paths;
    const QList<QDBusObjectPath> list = qdbus_cast<QList<QDBusObjectPath>>(value);
    for (const QDBusObjectPath &path : list) {
        paths.append(path.path());
    }
    return paths;
}

/** Invalid when there is none. */
QVariant PlainValue(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<QDBusObjectPath>()) {
        return value.value<QDBusObjectPath>().path();
    }
    if (value.userType() != qMetaTypeId<QDBusArgument>()) {
        return value;
    }
    const QString signature = value.value<QDBusArgument>().currentSignature();
    if (signature == QLatin1String("ao")) {
        return PathsIn(value);
    }
    if (signature == QLatin1String("(uu)")) {
        const QDBusArgument pair = value.value<QDBusArgument>();
        unsigned int state = 0;
        unsigned int reason = 0;
        pair.beginStructure();
        pair >> state >> reason;
        pair.endStructure();
        return reason;
    }
    return QVariant();
}

bool IsPassing(const QString &property)
{
    for (const char *name : passingProperties) {
        if (property == QLatin1String(name)) {
            return true;
        }
    }
    return false;
}

/** Whether any of them is another now. */
bool Merge(const QVariantMap &properties, QVariantMap *known)
{
    bool isAnother = false;
    for (QVariantMap::const_iterator i = properties.constBegin(); i != properties.constEnd(); ++i) {
        const QVariant value = PlainValue(i.value());
        if (value.isValid() && !IsPassing(i.key()) && known->value(i.key()) != value) {
            known->insert(i.key(), value);
            isAnother = true;
        }
    }
    return isAnother;
}

bool Merge(const NMVariantMapMap &interfaces, NMVariantMapMap *known)
{
    bool isAnother = false;
    for (NMVariantMapMap::const_iterator i = interfaces.constBegin(); i != interfaces.constEnd(); ++i) {
        isAnother = !known->contains(i.key()) || isAnother;
        isAnother = Merge(i.value(), &(*known)[i.key()]) || isAnother;
    }
    return isAnother;
}

QString Remove(const QString &path, const QStringList &interfaces, NetworkManagerObjects *objects)
{
    const NetworkManagerObjects::iterator object = objects->find(path);
    if (object == objects->end()) {
        return QString();
    }
    for (const QString &interface : interfaces) {
        object->remove(interface);
    }
    if (object->isEmpty()) {
        objects->erase(object);
    }
    return path;
}

} // namespace

QDBusMessage ManagedObjects::Call()
{
    return CNetworkManagerClient::Call(CNetworkManagerClient::RootPath(),
                                       CNetworkManagerClient::ObjectsInterface(),
                                       QLatin1String("GetManagedObjects"));
}

NetworkManagerObjects ManagedObjects::FromReply(const QDBusMessage &reply)
{
    const ObjectsReply told = qdbus_cast<ObjectsReply>(reply.arguments().at(0).value<QDBusArgument>());
    NetworkManagerObjects objects;
    for (ObjectsReply::const_iterator i = told.constBegin(); i != told.constEnd(); ++i) {
        Merge(i.value(), &objects[i.key().path()]);
    }
    return objects;
}

QString ManagedObjects::Apply(const QDBusMessage &signal, NetworkManagerObjects *objects)
{
    const QList<QVariant> arguments = signal.arguments();
    if (signal.member() == QLatin1String("PropertiesChanged") &&
        signal.signature() == QLatin1String("sa{sv}as")) {
        const NetworkManagerObjects::iterator object = objects->find(signal.path());
        const QString interface = arguments.at(0).toString();
        if (object == objects->end() || !object->contains(interface) ||
            !Merge(qdbus_cast<QVariantMap>(arguments.at(1)), &(*object)[interface])) {
            return QString();
        }
        return signal.path();
    }
    if (signal.member() == QLatin1String("InterfacesAdded") &&
        signal.signature() == QLatin1String("oa{sa{sv}}")) {
        const QString path = arguments.at(0).value<QDBusObjectPath>().path();
        return Merge(qdbus_cast<NMVariantMapMap>(arguments.at(1)), &(*objects)[path]) ? path : QString();
    }
    if (signal.member() == QLatin1String("InterfacesRemoved") && signal.signature() == QLatin1String("oas")) {
        return Remove(arguments.at(0).value<QDBusObjectPath>().path(), arguments.at(1).toStringList(),
                      objects);
    }
    return QString();
}
