#ifndef WLANRECORDS_H
#define WLANRECORDS_H

#include <QHash>
#include <QList>
#include <QString>

/*
 * The values that cross between the priority plug-in and the WLAN plug-in. They are exchanged by address
 * between libraries that are built separately, so their fields and the order of these are binary contract.
 * All are plain values: default construction leaves every text empty and every number 0.
 *
 * Fields without a meaning here (text1, value1, ...) belong to the WLAN plug-in; others carry them unchanged.
 */

/** One Wi-Fi profile: exactly eighteen texts. Words are compared exactly: case counts. */
struct WLANProfile {
    QString profileName;
    QString text1;
    QString text2;
    QString text3;
    QString text4; /**< "0" in a new profile. */
    QString ssid;
    QString bssType;        /**< "ESS" in a new profile. */
    QString connectionMode; /**< "manual" in a new profile. */

    /** "open", "shared", "WPAPSK", "WPA2PSK", "WPA(EAP)", "WPA2(EAP)" or "IEEE 802.1X". */
    QString authentication;

    /** "none", "WEP", "TKIP" or "CCMP". */
    QString encryption;

    /** "networkKey" when encryption is "WEP", "passPhrase" otherwise. */
    QString keyType;

    QString keyFlag; /**< "false" in a new profile. */

    /** The key or pass phrase in plain text. Never to be written to a trace, a log or a message. */
    QString keyMaterial;

    /** Zero-based WEP key index, "0" to "3". */
    QString keyIndex;

    QString text14;

    /** "true" protects the profile's entry from being deleted; any other text, the empty one included, does
     * not. */
    QString readOnly;

    QString text16; /**< Empty in a new profile. */
    QString text17;
};

/** One network in range. */
struct WlanAvilableNetworkInfo {
    /** The SSID as shown to the user. */
    QString networkName;

    /** Numbers of the WLAN plug-in's own; hand the whole record back unchanged. */
    int value1 = 0;
    int value2 = 0;
    int value3 = 0;
    int value4 = 0;
    int value5 = 0;
};

/** One profile that the WLAN plug-in remembers; both fields mean what they mean in PriorityList. */
struct RememberedList {
    QString name;
    QString type;
};

/** Hot-spot sign-on data; carried, never read by the priority plug-in. */
struct WisprInfo {
    QString wisprText1;
    QString wisprText2;
    QString wisprText3;
};

/** The WLAN plug-in's configuration as the new-network dialog gets it. */
struct WLANConfigData {
    QHash<QString, QString> settings;

    /** Authentication methods to offer, in display order, as in WLANProfile::authentication. */
    QList<QString> authenticationList;

    QList<QString> textList2;
    QList<QString> textList3;
    QList<WisprInfo> wisprList;
};

#endif
