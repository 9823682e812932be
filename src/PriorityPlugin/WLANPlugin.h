#ifndef WLANPLUGIN_H
#define WLANPLUGIN_H

class IWLANUIPlugin;

/**
 * The sibling WLAN plug-in, or null when the host has none that can be used. Look it up for every operation:
 * it may come and go between any two of them.
 */
IWLANUIPlugin *FindWLANPlugin();

#endif
