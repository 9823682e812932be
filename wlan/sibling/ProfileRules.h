#ifndef PROFILERULES_H
#define PROFILERULES_H

#include <WLANRecords.h>

#include <QList>

/**
 * What a new profile may do to those that are remembered: nothing of the user's is ever destroyed. The same
 * for every WLAN plug-in, whatever it keeps its profiles in.
 */
namespace ProfileRules
{

struct RememberedProfile {
    /** Of its key only what is known. Missing words for the method mean "open" and "none". */
    WLANProfile profile;
    /** It has something that a WLANProfile can't tell, such as an account. */
    bool isOfAnotherKind;
    /** The caller's own, handed back. */
    int place;
};

enum Verdict {
    /** To be stored beside the others, also when one of another name is for the same network. */
    NewProfile,
    /** To change the profile of that name: its network name, method and key, and nothing else. */
    ChangedProfile,
    /** Several profiles have that name, and it can't be known which one is meant. */
    SeveralProfiles,
    ReadOnlyProfile,
    /** The profile of that name is of a kind that the New dialog can't describe. */
    UndescribedProfile,
    /** The profile of that name has a stronger method. */
    WeakerMethod,
    /** The profile of that name can only be changed with a key that is complete. */
    IncompleteKey,
    /** A profile of another name is for the same network, and could not be changed in that way. */
    BetterProfile
};

struct Decision {
    Verdict verdict;
    /** Of the profile that is to be changed, or is the reason; -1 when there is none. */
    int place;
};

/** Whether the key is one of the profile's encryption, by the lengths and signs that the New dialog asks for.
 */
bool IsKeyComplete(const WLANProfile &profile);

/**
 * A method is the same or stronger when neither its authentication nor its encryption is weaker: WPA with
 * CCMP and WPA2 with TKIP are each weaker than the other.
 *
 * @param remembered  Wi-Fi profiles alone.
 */
Decision Decide(const QList<RememberedProfile> &remembered, const WLANProfile &wanted);

} // namespace ProfileRules

#endif
