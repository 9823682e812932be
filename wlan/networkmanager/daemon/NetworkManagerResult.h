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
    /** The profile of that name is read-only and was not changed. */
    NetworkManagerResultReadOnlyProfile = 4,
    /** The network name has no bytes or more than the 32 that a network name can have. */
    NetworkManagerResultUnusableNetworkName = 5,
    /** Authentication, encryption and key don't go together, or the key index is not one of "0" to "3". */
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
    NetworkManagerResultChangedMeanwhile = 14,
    /** The authentication is EAP, and a WLANProfile has no account to be authenticated by. */
    NetworkManagerResultNoAccount = 15,

    // Of CreateWLANProfile alone, which left all profiles as they are; ProfileRules.h tells why.

    /** Several profiles have that name. */
    NetworkManagerResultSeveralProfiles = 16,
    /** The profile of that name is of a kind that the New dialog can't describe. */
    NetworkManagerResultUndescribedProfile = 17,
    /** The profile of that name has a stronger method. */
    NetworkManagerResultWeakerMethod = 18,
    /** The profile of that name can only be changed with a key that is complete. */
    NetworkManagerResultIncompleteKey = 19,
    /** A profile of another name is for the same network, and could not be changed in that way. */
    NetworkManagerResultBetterProfile = 20,

    /** NetworkManager has been asked and has not answered yet; what it is asked for is not known. */
    NetworkManagerResultNotKnownYet = 21
};

/** What an answer comes to. A reply whose arguments are not of signature is unusable. */
NetworkManagerResult ResultOf(const QDBusMessage &reply, const char *signature);

/** In plain words, for the log; empty for success. */
QString DescriptionOf(NetworkManagerResult result);

/** The id of the text that tells the user why a profile was not stored; null when there is nothing to be
 * told. */
const char *NoticeOf(NetworkManagerResult result);

#endif
