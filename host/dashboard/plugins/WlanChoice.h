#ifndef WLANCHOICE_H
#define WLANCHOICE_H

/** Which plug-in does the Wi-Fi. */
enum WlanChoice {
    WlanAutomatic,      /**< NetworkManager where it answers, the profiles in a file elsewhere. */
    WlanNetworkManager, /**< NetworkManager or nothing. */
    WlanStored          /**< The profiles in a file; the computer's own networks are left alone. */
};

#endif
