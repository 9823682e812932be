#ifndef NETWORKMANAGERSTATE_H
#define NETWORKMANAGERSTATE_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

class QDBusMessage;

/** A station of a network in range. The flags are those of NetworkManager's D-Bus interface. */
struct AccessPoint {
    QByteArray ssid;
    /** Percent. */
    int strength = 0;
    /** MHz. */
    int frequency = 0;
    unsigned int flags = 0;
    unsigned int wpaFlags = 0;
    unsigned int rsnFlags = 0;
};

struct WirelessDevice {
    QString path;
    unsigned int capabilities = 0;
};

/** Where and how NetworkManager keeps a profile. */
struct ProfilePlace {
    QString path;
    /** Not on disk, made by NetworkManager itself, or kept for a device that others have set up. */
    bool isPassing = false;
    /** Empty when it is not told. */
    QString file;
    /** Grows with every change; 0 when it is not told, as by NetworkManager before 1.44. */
    quint64 version = 0;
};

/** What is to be known of NetworkManager's objects, all of one moment. */
struct NetworkManagerState {
    QList<WirelessDevice> devices;
    QList<AccessPoint> accessPoints;
    QList<ProfilePlace> profiles;
    /** The paths of the profiles by which a device is connected now. */
    QList<QString> connectedProfiles;

    static QDBusMessage Call();
    static const char *Signature() { return "a{oa{sa{sv}}}"; }

    /** @param reply  of that signature. */
    static NetworkManagerState FromReply(const QDBusMessage &reply);
};

#endif
