#ifndef WLANCHOICE_H
#define WLANCHOICE_H

/** Which plug-in does the Wi-Fi. */
enum WlanChoice {
    WlanNetworkManager, /**< NetworkManager, whether it runs or not. */
    WlanStored          /**< The profiles in a file; the computer's own networks are left alone. */
};

#endif
