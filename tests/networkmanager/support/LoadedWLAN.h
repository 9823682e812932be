#ifndef LOADEDWLAN_H
#define LOADEDWLAN_H

#include <IConnectionPlugin.h>
#include <IOrderPlugin.h>
#include <IUIPlugin.h>
#include <IWLANUIPlugin.h>

#include <QString>
#include <QStringList>

/** The WLAN plug-in of the build tree, as a host has it. */
namespace LoadedWLAN
{

QString FileName();

/** Root object, the same until it is deleted. */
QObject *RootObject();
IUIPlugin *Root();

/** Null where the plug-in hands out no service. */
QObject *Service();
IWLANUIPlugin *Wlan();

/** The object with the interface of connections, which has their signal. */
QObject *ConnectionService();
IConnectionPlugin *Connections();
ConnectionState State();
QList<ActiveConnection> Active();
QList<ConnectionProfile> Profiles();
/** Of the first profile of that name; empty fields when there is none. */
ConnectionProfile ConnectionProfileNamed(const QString &name);
QList<VisibleNetwork> Networks();
VisibleNetwork NetworkNamed(const QString &name);
ConnectAttempt Attempt(int number);

/** The object with the interface of orders, which has their signal. */
QObject *OrderService();
IOrderPlugin *Order();

/** "name/type" of every remembered profile. */
QStringList Remembered();

/** The names of the networks in range. */
QStringList InRange();

WLANProfile ProfileNamed(const QString &name);

/** What became of a profile that is to be stored; waits for it. */
int Store(const WLANProfile &profile);

/** A profile as the dialog makes it. */
WLANProfile NewProfile(const QString &name, const QString &authentication, const QString &encryption,
                       const QString &key);

} // namespace LoadedWLAN

#endif
