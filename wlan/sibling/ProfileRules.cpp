#include "ProfileRules.h"

#include <QLatin1String>
#include <QString>

namespace
{

/** A method without an account. Greater numbers are stronger; encryption 0 has no key. */
struct Method {
    const char *authentication;
    const char *encryption;
    int authenticationRank;
    int encryptionRank;
};

const Method methods[] = {
    {"open", "none", 0, 0},   {"shared", "none", 0, 0}, {"open", "WEP", 0, 1},     {"shared", "WEP", 0, 1},
    {"WPAPSK", "TKIP", 1, 2}, {"WPAPSK", "CCMP", 1, 3}, {"WPA2PSK", "TKIP", 2, 2}, {"WPA2PSK", "CCMP", 2, 3},
};

bool Is(const QString &word, const char *expected, const char *meantByNone)
{
    return word == QLatin1String(expected) || (word.isEmpty() && qstrcmp(expected, meantByNone) == 0);
}

const Method *FindMethod(const WLANProfile &profile)
{
    for (const Method &method : methods) {
        if (Is(profile.authentication, method.authentication, "open") &&
            Is(profile.encryption, method.encryption, "none")) {
            return &method;
        }
    }
    return nullptr;
}

bool IsHexadecimal(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).toLower().unicode();
        if (!((unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'f'))) {
            return false;
        }
    }
    return true;
}

/** Other networks are made by the computers that use them. */
bool IsOfAStation(const WLANProfile &profile)
{
    return Is(profile.bssType, "ESS", "ESS");
}

ProfileRules::Verdict Compare(const ProfileRules::RememberedProfile &remembered, const WLANProfile &wanted)
{
    const WLANProfile &profile = remembered.profile;
    const Method *before = FindMethod(profile);
    const Method *after = FindMethod(wanted);
    if (!before || remembered.isOfAnotherKind || !IsOfAStation(profile) || !IsOfAStation(wanted)) {
        return ProfileRules::UndescribedProfile;
    }
    if (after && (after->authenticationRank < before->authenticationRank ||
                  after->encryptionRank < before->encryptionRank)) {
        return ProfileRules::WeakerMethod;
    }
    const bool isWithoutKeys = after && after->encryptionRank == 0 && profile.keyMaterial.isEmpty();
    if (!isWithoutKeys && (!after || after->encryptionRank == 0 || !ProfileRules::IsKeyComplete(wanted))) {
        return ProfileRules::IncompleteKey;
    }
    return ProfileRules::ChangedProfile;
}

ProfileRules::Decision DecideOnChange(const ProfileRules::RememberedProfile &remembered,
                                      const WLANProfile &wanted)
{
    const bool isReadOnly = remembered.profile.readOnly == QLatin1String("true");
    const ProfileRules::Decision decision = {
        isReadOnly ? ProfileRules::ReadOnlyProfile : Compare(remembered, wanted), remembered.place};
    return decision;
}

} // namespace

bool ProfileRules::IsKeyComplete(const WLANProfile &profile)
{
    const int length = profile.keyMaterial.size();
    if (profile.encryption == QLatin1String("WEP")) {
        return length == 5 || length == 13 ||
               ((length == 10 || length == 26 || length == 32) && IsHexadecimal(profile.keyMaterial));
    }
    return (length >= 8 && length <= 63) || (length == 64 && IsHexadecimal(profile.keyMaterial));
}

ProfileRules::Decision ProfileRules::Decide(const QList<RememberedProfile> &remembered,
                                            const WLANProfile &wanted)
{
    int sameName = -1;
    int betterOne = -1;
    for (int i = 0; i < remembered.size(); ++i) {
        const WLANProfile &profile = remembered.at(i).profile;
        if (profile.profileName == wanted.profileName) {
            if (sameName >= 0) {
                const Decision several = {SeveralProfiles, -1};
                return several;
            }
            sameName = i;
        } else if (!wanted.ssid.isEmpty() && profile.ssid == wanted.ssid && IsOfAStation(profile) &&
                   Compare(remembered.at(i), wanted) != ChangedProfile) {
            betterOne = i;
        }
    }
    if (sameName >= 0) {
        return DecideOnChange(remembered.at(sameName), wanted);
    }
    const Decision decision = {betterOne >= 0 ? BetterProfile : NewProfile,
                               betterOne >= 0 ? remembered.at(betterOne).place : -1};
    return decision;
}
