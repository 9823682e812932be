#ifndef NETWORKMANAGERSTATE_H
#define NETWORKMANAGERSTATE_H

#include "NetworkManagerObjects.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/** A station of a network in range. The flags are those of NetworkManager's D-Bus interface. */
struct AccessPoint {
    QString path;
    QByteArray ssid;
    /** Its address, six bytes; empty when it is not told. */
    QByteArray bssid;
    /** Percent. */
    int strength = 0;
    /** MHz. */
    int frequency = 0;
    unsigned int mode = 0;
    unsigned int flags = 0;
    unsigned int wpaFlags = 0;
    unsigned int rsnFlags = 0;

    /** A name of zeros is how some stations hide theirs. */
    bool IsHidden() const { return ssid.count('\0') == ssid.size(); }
};

/** The numbers are those of NetworkManager's D-Bus interface. */
struct NetworkDevice {
    enum Kind { Wifi, Modem, OtherKind };

    QString path;
    Kind kind = OtherKind;
    /** As the user knows it. */
    QString name;
    unsigned int state = 0;
    /** Why it is in that state. */
    unsigned int reason = 0;
    /** Of Wi-Fi, or of the modem. */
    unsigned int capabilities = 0;
    /** Its address at the factory and the one that it has now. */
    QList<QByteArray> addresses;
    QStringList accessPoints;
    /** When Wi-Fi last finished looking for networks, by a clock that only NetworkManager has; 0 where that
     * is not told. */
    qint64 lastScan = 0;
    /** The station by which it is connected. */
    QString activeAccessPoint;
    QString activeConnection;
    /** Of a modem. */
    QString modemId;
    /** Whether what goes through it is paid for, as NetworkManager takes it; 0: not known. */
    unsigned int metered = 0;

    bool IsManaged() const;
    /** NetworkManager could connect it. */
    bool IsReady() const;
};

/** A connection that is up, coming up or going down. */
struct ActiveObject {
    QString path;
    QString profile;
    QString name;
    /** NetworkManager's own word. */
    QString type;
    unsigned int state = 0;
    QStringList devices;
    bool isVpn = false;
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

/** What a device of a kind may do. */
struct RadioState {
    bool isEnabled = true;
    /** No switch or key of the computer holds it off. */
    bool isUnblocked = true;
};

/** What is to be known of NetworkManager's objects, all of one moment. */
struct NetworkManagerState {
    QList<NetworkDevice> devices;
    QList<AccessPoint> accessPoints;
    QList<ProfilePlace> profiles;
    QList<ActiveObject> connections;
    /** The connection through which the computer's traffic goes. */
    QString primaryConnection;
    unsigned int connectivity = 0;
    RadioState wifi;
    RadioState mobile;

    static NetworkManagerState FromObjects(const NetworkManagerObjects &objects);
    static ProfilePlace PlaceOf(const QString &path, const NetworkManagerObjects &objects);

    QList<NetworkDevice> WifiDevices() const;
    /** Of the device that the user knows by that name; empty when there is none. */
    QString DevicePath(const QString &name) const;
    /** The paths of the profiles by which a device is connected now. */
    QList<QString> ConnectedProfiles() const;
};

#endif
