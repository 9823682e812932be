#ifndef NETWORKSECURITY_H
#define NETWORKSECURITY_H

#include <NetworkManagerQt/GenericTypes>

#include <QList>
#include <QString>

struct AccessPoint;
struct WLANProfile;
struct NetworkDevice;

/** The words of WLANProfile for authentication and encryption, and what NetworkManager has in their place. */
namespace NetworkSecurity
{

/**
 * What fills authentication, encryption, keyType and keyIndex. For a network that encrypts without a key
 * there are no words, and both are empty: NetworkManager does not join it with an open profile.
 */
void Describe(const AccessPoint &point, WLANProfile *profile);
void Describe(const NMVariantMapMap &settings, WLANProfile *profile);

/**
 * Whether a profile with these settings could join the network by a device that can do this. What the device
 * can do is not looked at where it is not told.
 */
bool Fits(const NMVariantMapMap &settings, const AccessPoint &point, unsigned int capabilities);

/** What protects the network, a VisibleNetwork::Protection. */
int ProtectionOf(const AccessPoint &point);

/** Whether the key of the profile's method is kept by NetworkManager, so that nobody has to be asked for it.
 */
bool KeepsKey(const NMVariantMapMap &settings);

/** Whether the network is of the old kind that tells of itself only that it is encrypted. */
bool IsWep(const AccessPoint &point);

/**
 * Whether a WLANProfile tells all of a profile's security: there is no account, and its key is kept by
 * NetworkManager itself.
 */
bool IsDescribed(const NMVariantMapMap &settings);

/** Whether the profile has keys for WEP, of which there are up to four. */
bool HasStaticWep(const NMVariantMapMap &settings);

/**
 * Whether the profile can't be used as it is: its network asks for an account, and there is none. A SIM card
 * is no account for NetworkManager, which has no way to one.
 */
bool LacksAccount(const NMVariantMapMap &settings);

/** Whether the method asks for an account, which a WLANProfile doesn't have. */
bool NeedsAccount(const WLANProfile &profile);

/**
 * Gives settings the method and the key of a profile, and leaves the rest of their security as it is. Of the
 * same method only the key is put in: settings may allow more than the words tell, such as every version of
 * WPA.
 *
 * WPA2PSK serves for WPA3 as well, as NetworkManager takes "wpa-psk" to mean both.
 *
 * @return false when the words don't go together; settings are as they were then.
 */
bool Apply(const WLANProfile &profile, NMVariantMapMap *settings);

/**
 * Gives the settings of a new profile what the network in range asks for, and the key.
 *
 * @return false when that is no key for it, or an account is needed.
 */
bool ApplyKey(const AccessPoint &point, const QString &key, NMVariantMapMap *settings);

/** Those without an account that at least one device can do; all of them when there is no device yet. */
QList<QString> Methods(const QList<NetworkDevice> &devices);

} // namespace NetworkSecurity

#endif
