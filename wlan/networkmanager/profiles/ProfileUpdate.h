#ifndef PROFILEUPDATE_H
#define PROFILEUPDATE_H

#include <NetworkManagerQt/GenericTypes>

class QDBusMessage;
struct NetworkProfile;

namespace ProfileUpdate
{

/** Of the answer. */
const char signature[] = "a{sv}";

/**
 * NetworkManager tells some settings twice, in their old form and in the one that has everything, and takes
 * the old one when both come back: the options of a route would be gone. So the old one is left out of what
 * is sent.
 */
NMVariantMapMap WithoutOldForms(NMVariantMapMap settings);

/**
 * The call that writes a profile's settings in the place of those that it has.
 *
 * Where NetworkManager counts the versions of its profiles, it refuses the call when somebody else has
 * changed the profile since it was read. Keys that settings don't have stay as they are only where settings
 * have no key at all.
 */
QDBusMessage Call(const NetworkProfile &profile, const NMVariantMapMap &settings);

} // namespace ProfileUpdate

#endif
