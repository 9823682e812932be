#ifndef CONNECTIONRECORDS_H
#define CONNECTIONRECORDS_H

#include <QList>
#include <QString>
#include <QStringList>

/*
 * The values that a WLAN plug-in tells about connections, and that IConnectionPlugin carries. They are
 * exchanged by address between libraries that are built separately, so their fields and the order of these
 * are binary contract, and so are the numbers of the words below.
 *
 * All are plain values: default construction leaves every text and list empty, every number 0 unless it is
 * told here, and every flag false. In every enumeration 0 is "not known", so that a plug-in that fills less
 * says nothing that is not so. A number that a caller does not know counts as 0: there may be more of them
 * later.
 *
 * Texts called id are the WLAN plug-in's own. They name one object for as long as it exists, are compared
 * exactly and handed back, and never shown. Times are seconds since 1970 in UTC; 0 is "never" or "not known".
 * Signals are percent, from 0 to 100; -1 is "none". A type means what it means in PriorityList: "1" is Wi-Fi,
 * "2" mobile broadband; "0" is any other kind, which the list has no entries for.
 */

/** How far a connection is, or an order to connect, to disconnect or to forget. */
enum ConnectionStage {
    StageNotKnown = 0,
    StagePreparing = 1,
    StageAuthenticating = 2,
    StageGettingAddress = 3,
    StageConnected = 4,
    StageDisconnecting = 5,

    // Of an order alone: what it came to. A connection that is not there any more is not told of.

    StageDisconnected = 6,
    StageFailed = 7,
    StageCancelled = 8,

    // Of an order to forget a profile: it is under way, and the profile is gone.

    StageForgetting = 9,
    StageForgotten = 10
};

/** Why a connection did not come up. */
enum ConnectionFailure {
    /** Nothing has failed, or nobody knows of it. */
    FailureNone = 0,
    /** For a reason that has no word here. */
    FailureOther = 1,
    FailureWrongKey = 2,
    /** A key or password is needed that nobody has given. */
    FailureKeyMissing = 3,
    /** The network did not answer, or went out of range. */
    FailureNoAnswer = 4,
    FailureNoAddress = 5,
    /** The network answered and does not let this computer in. */
    FailureRefused = 6,
    FailureSim = 7,
    /** The user has ended it, in whatever program. */
    FailureStopped = 8,
    /** The adapter or modem is gone, switched off or busy. */
    FailureDevice = 9,
    /** The connection manager does not let this user do it. */
    FailureNotAllowed = 10,
    /** The connection manager is gone, or does not answer. */
    FailureSource = 11,
    /** It is connected, but its profile could not be stored: it is forgotten with the connection. */
    FailureNotStored = 12
};

/** How the connection manager and its devices stand. */
struct ConnectionState {
    enum Source {
        /** It is still being asked, or does not answer. Nothing else here says anything. */
        SourceNotKnown = 0,
        /** It is not there. Nothing else here says anything. */
        SourceGone = 1,
        /** What is told is so now. */
        SourceKnown = 2
    };
    enum Radio {
        RadioNotKnown = 0,
        RadioOn = 1,
        /** A program has switched it off. */
        RadioOff = 2,
        /** A switch or key of the computer holds it off. */
        RadioBlocked = 3,
        /** There is no adapter or modem, or none that the connection manager may use. */
        RadioMissing = 4
    };
    enum Connectivity {
        ConnectivityNotKnown = 0,
        ConnectivityNone = 1,
        /** A web page wants a sign-in first. */
        ConnectivityPortal = 2,
        /** The network answers, the internet behind it does not. */
        ConnectivityLimited = 3,
        ConnectivityFull = 4
    };

    /** One word, whether it is known or not: "networkmanager", or "stored" where nothing real is touched. */
    QString sourceName;
    int source = SourceNotKnown;
    int wifi = RadioNotKnown;
    int mobile = RadioNotKnown;
    int connectivity = ConnectivityNotKnown;
    /** The user may connect and disconnect, where need be after a password that the connection manager asks
     * for. */
    bool mayConnect = false;
};

/** A connection that is up, coming up or going down. */
struct ActiveConnection {
    /** Another one when the same profile is connected again. */
    QString id;
    /** Of its profile, which GetProfiles need not tell of: it tells of Wi-Fi and mobile broadband alone. */
    QString profileId;
    /** Of its profile. */
    QString name;
    QString type;
    /** The SSID as text, as in WlanAvilableNetworkInfo; empty unless it is Wi-Fi. */
    QString network;
    /** As the user knows it, such as "wlan0"; empty when it has none yet. */
    QString device;
    /** A ConnectionStage, StagePreparing to StageDisconnecting. */
    int stage = StageNotKnown;
    int signal = -1;
    /**
     * What leaves the computer goes through it: it has the default route, or a VPN with the default route
     * goes through it. At most one has this.
     */
    bool carriesTraffic = false;
    bool isVpn = false;
};

/** A profile, and whether it can be used now. */
struct ConnectionProfile {
    enum Use {
        UseNotKnown = 0,
        /** Its network is seen by a device that may use it, or a modem is ready for it. */
        UsePossible = 1,
        /** Its network hides its name. Nobody can say whether it is in range; it is tried. */
        UseHiddenIsTried = 2,
        UseOutOfRange = 3,
        /** A network of that name is in range, and its security is another. */
        UseOtherSecurity = 4,
        /** The profile is bound to a device, band, channel or station, and that is not what is there. */
        UseOtherDevice = 5,
        /** There is no adapter, or no modem, that works. */
        UseNoDevice = 6,
        /** Wi-Fi or mobile broadband is switched off. */
        UseDeviceOff = 7,
        /** ... by a switch or key of the computer. */
        UseDeviceBlocked = 8,
        UseSimLocked = 9,
        /** It belongs to other users of this computer. */
        UseOtherUsers = 10,
        /** It needs an account and has none. */
        UseNoAccount = 11
    };

    QString id;
    QString name;
    QString type;
    /** The SSID as text; empty unless it is Wi-Fi. */
    QString network;
    /** As WLANProfile::authentication; empty unless it is Wi-Fi. */
    QString security;
    /** The device that it uses or would use now; empty when there is none. */
    QString device;
    int use = UseNotKnown;
    /** Of its network as that device receives it. */
    int signal = -1;
    /** A ConnectionFailure: what became of it when it was last tried; FailureNone once it was connected. */
    int failure = FailureNone;
    qint64 failedAt = 0;
    qint64 lastConnected = 0;
    bool connectsByItself = false;
    bool isHidden = false;
    /**
     * Names the profile for as long as there is one, whatever name it is given and whichever program is
     * started anew; never shown. Empty where the connection manager has nothing of the kind.
     */
    QString lastingId;
};

/** One network in range: all stations of one name that are protected in one way. */
struct VisibleNetwork {
    enum Protection {
        ProtectionNotKnown = 0,
        ProtectionOpen = 1,
        /** A key or pass phrase. */
        ProtectionKey = 2,
        /** A key that anybody nearby can find out: WEP. */
        ProtectionWeakKey = 3,
        /** An account or certificate, which ConnectNetwork has no place for. */
        ProtectionAccount = 4
    };

    QString id;
    /** The SSID as text; never empty: networks that hide their name are not told of. */
    QString name;
    /** As WLANProfile::authentication. */
    QString security;
    int protection = ProtectionNotKnown;
    int signal = -1;
    /** The remembered profiles that would join it, the one that was connected last first. */
    QStringList profileIds;
    /** A connection goes through it, or is about to. */
    bool isInUse = false;
};

/** What became of an order to connect, to disconnect or to forget. */
struct ConnectAttempt {
    /** Of the profile, or of the network while there is no profile. */
    QString name;
    /** Empty until there is one. */
    QString profileId;
    /** A ConnectionStage; StageNotKnown: there is no such order. It has come to its end with StageConnected,
     * StageDisconnected, StageFailed, StageCancelled and StageForgotten. */
    int stage = StageNotKnown;
    /** With StageFailed: how far it had come. */
    int failedStage = StageNotKnown;
    /** A ConnectionFailure. With StageFailed: why; with StageConnected: FailureNone or FailureNotStored. */
    int failure = FailureNone;
};

/** What is told of a profile to somebody who looks at it alone. */
struct ProfileDetails {
    enum Metered {
        MeteredNotKnown = 0,
        MeteredYes = 1,
        MeteredNo = 2,
        /** Nobody has said so; the connection manager takes it from the connection that there is now. */
        MeteredGuessedYes = 3,
        MeteredGuessedNo = 4
    };
    enum Change {
        ChangeNotKnown = 0,
        ChangeAllowed = 1,
        /** After a password, which the connection manager asks for. */
        ChangeAfterPassword = 2,
        /** Not even with a password, or it is not for anybody to change. */
        ChangeNotAllowed = 3
    };

    /** The ConnectionProfile::id; empty: there is no such profile now. */
    QString id;
    /** The only device that it may use, such as "wlan0"; empty: any one of its kind. */
    QString boundDevice;
    /** A Metered: whether what goes through it is counted or paid for. */
    int metered = MeteredNotKnown;
    /** A Change: whether this user may change it, or have it forgotten. */
    int change = ChangeNotKnown;
    /** The names of those who may use it; empty with areUsersKnown: all users of this computer. */
    QStringList users;
    /** The connection manager's own number, as in OrderChange; it says something with isPriorityKnown alone.
     */
    int priority = 0;
    bool areUsersKnown = false;
    bool isPriorityKnown = false;
};

#endif
