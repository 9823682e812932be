#ifndef CALLERRIGHTS_H
#define CALLERRIGHTS_H

#include <QString>

class QDBusMessage;

/** What NetworkManager lets this user do. */
struct CallerRights {
    enum Right {
        Allowed,
        /** Only once somebody has entered a password. */
        AllowedOnceAsked,
        Denied
    };

    /** For profiles that only this user may use, and for all others. */
    Right changeOwn = Allowed;
    Right changeShared = Allowed;
    Right scan = Allowed;
    /** To connect and to disconnect. */
    Right control = Allowed;

    static QDBusMessage Call();
    static const char *Signature() { return "a{ss}"; }

    /**
     * What is not told counts as allowed: NetworkManager has the last word in any case.
     *
     * @param reply  of that signature.
     */
    static CallerRights FromReply(const QDBusMessage &reply);

    /** The user's name as it stands in the permissions of profiles. */
    static QString UserName();
};

#endif
