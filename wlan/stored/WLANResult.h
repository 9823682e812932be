#ifndef WLANRESULT_H
#define WLANRESULT_H

/** What the operations of this WLAN plug-in answer, but for GetNetworkProfile, which answers 1 (filled) or 0.
 */
enum WLANResult {
    WLANResultSuccess = 0,
    /** An output pointer is null; nothing was done. */
    WLANResultNullPointer = 1,
    /** A profile without a name is not stored. */
    WLANResultEmptyName = 2,
    /** No profile of that name is remembered; the output is as it was. */
    WLANResultUnknownName = 3,
    /** The profile of that name is read-only and was not changed. */
    WLANResultReadOnlyProfile = 4,
    /** The host gives no directory for the user's data. */
    WLANResultNoDirectory = 5,
    /** The file is there but can't be read; it was left as it is. */
    WLANResultFileNotReadable = 6,
    /** The file is damaged: what stands before the damage was read, nothing was written. */
    WLANResultFileDamaged = 7,
    /** The profiles can't be written; the earlier file is intact. */
    WLANResultFileNotWritable = 8,
    /** The profiles file, or the temporary one beside it, is a symbolic link; nothing was read or written. */
    WLANResultSymbolicLink = 9,
    /** Another process is writing the profiles; nothing was written. */
    WLANResultBusy = 10,

    // Of CreateWLANProfile alone, which left the profiles as they are; ProfileRules.h tells why.

    /** Several profiles have that name. */
    WLANResultSeveralProfiles = 11,
    /** The profile of that name is of a kind that the New dialog can't describe. */
    WLANResultUndescribedProfile = 12,
    /** The profile of that name has a stronger method. */
    WLANResultWeakerMethod = 13,
    /** The profile of that name can only be changed with a key that is complete. */
    WLANResultIncompleteKey = 14,
    /** A profile of another name is for the same network, and could not be changed in that way. */
    WLANResultBetterProfile = 15
};

#endif
