#ifndef ZELTSDKSTATUS_H
#define ZELTSDKSTATUS_H

/**
 * What ZELT_GetUserDataDirectory of this library answers. The directory is "priority-dashboard" in
 * $XDG_DATA_HOME, or in $HOME/.local/share when that variable is not set to an absolute path; what is missing
 * on the way is created for the user alone (mode 0700). With any status but success the pointer is null.
 */
enum ZeltSdkStatus {
    ZeltSdkSuccess = 0,

    /** The address given for the result is null. */
    ZeltSdkNullArgument = 1,

    /** Neither $XDG_DATA_HOME nor $HOME is set to an absolute path. */
    ZeltSdkNoHome = 2,

    /** A directory on the way can't be made: a file stands there, or permission or space is missing. */
    ZeltSdkNoDirectory = 3,

    /** The path has bytes that are no text in the locale's encoding, so nobody could open a file by the
       answer. */
    ZeltSdkPathNotText = 4
};

#endif
