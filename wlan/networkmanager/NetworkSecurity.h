#ifndef NETWORKSECURITY_H
#define NETWORKSECURITY_H

#include <NetworkManagerQt/GenericTypes>

#include <QList>
#include <QString>

struct AccessPoint;
struct WLANProfile;
struct WirelessDevice;

/** The words of WLANProfile for authentication and encryption, and what NetworkManager has in their place. */
namespace NetworkSecurity
{

/** What fills authentication, encryption, keyType and keyIndex. */
void Describe(const AccessPoint &point, WLANProfile *profile);
void Describe(const NMVariantMapMap &settings, WLANProfile *profile);

/** Whether the network is of the old kind that tells of itself only that it is encrypted. */
bool IsWep(const AccessPoint &point);

/**
 * Puts the profile's security into settings in the place of what they had. The key goes along.
 *
 * The methods with EAP are stored for a SIM card, as only these need no credentials that a WLANProfile
 * doesn't have. WPA2PSK serves for WPA3 as well, as NetworkManager takes "wpa-psk" to mean both.
 *
 * @return false when the words don't go together; settings are as they were then.
 */
bool Apply(const WLANProfile &profile, NMVariantMapMap *settings);

/** What at least one device can do; everything when there is no device yet. */
QList<QString> Methods(const QList<WirelessDevice> &devices, bool isEapKnown);

} // namespace NetworkSecurity

#endif
