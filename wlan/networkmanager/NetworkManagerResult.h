#ifndef NETWORKMANAGERRESULT_H
#define NETWORKMANAGERRESULT_H

class QDBusMessage;
class QString;

/**
 * What the operations of this WLAN plug-in answer, but for GetNetworkProfile, which answers 1 (filled) or 0.
 */
enum NetworkManagerResult {
    NetworkManagerResultSuccess = 0,
    /** An output pointer is null; nothing was done. */
    NetworkManagerResultNullPointer = 1,
    /** A profile without a name, or with a name that can't be sent, is not stored. */
    NetworkManagerResultUnusableName = 2,
    /** No profile of that name is remembered; the output is as it was. */
    NetworkManagerResultUnknownName = 3,
    /** The profile of that name is read-only and was not replaced. */
    NetworkManagerResultReadOnlyProfile = 4,
    /** The network name has no bytes or more than the 32 that a network name can have. */
    NetworkManagerResultUnusableNetworkName = 5,
    /** The authentication and encryption don't go together, or the key index is not one of "0" to "3". */
    NetworkManagerResultUnusableSecurity = 6,
    /** There is no system bus. */
    NetworkManagerResultNoBus = 7,
    /** Nothing on the system bus is NetworkManager. */
    NetworkManagerResultNotRunning = 8,
    /**
     * NetworkManager did not answer in time. What it was asked for may still happen, as when the user is
     * being asked for a password first.
     */
    NetworkManagerResultNotAnswering = 9,
    /** The answer is not of the kind that was asked for. */
    NetworkManagerResultUnusableAnswer = 10,
    /** This user may not do that. */
    NetworkManagerResultPermissionDenied = 11,
    /** NetworkManager does not take the profile, because of its key for one. */
    NetworkManagerResultProfileRefused = 12,
    /** Any other error that NetworkManager answered. */
    NetworkManagerResultFailed = 13,
    /** Somebody else has changed the profile since it was read; it was left as it is. */
    NetworkManagerResultChangedMeanwhile = 14
};

/** What an answer comes to. A reply whose arguments are not of signature is unusable. */
NetworkManagerResult ResultOf(const QDBusMessage &reply, const char *signature);

/** In plain words, for the log; empty for success. */
QString DescriptionOf(NetworkManagerResult result);

#endif
