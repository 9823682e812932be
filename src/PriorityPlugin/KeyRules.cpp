#include "KeyRules.h"

namespace
{

bool IsHexadecimalDigit(QChar character)
{
    const ushort unit = character.unicode();
    return (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'f') || (unit >= 'A' && unit <= 'F');
}

bool FitsWep(const QString &key)
{
    switch (key.length()) {
    case 5:
    case 13:
        return true;
    case 10:
    case 26:
    case 32:
        return KeyRules::IsHexadecimal(key);
    default:
        return false;
    }
}

bool FitsWpa(const QString &key)
{
    const int length = key.length();
    return (length >= 8 && length <= 63) || (length == 64 && KeyRules::IsHexadecimal(key));
}

} // namespace

namespace KeyRules
{

bool IsHexadecimal(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (!IsHexadecimalDigit(text.at(i))) {
            return false;
        }
    }
    return true;
}

Verdict Check(const QString &encryption, const QString &key)
{
    if (encryption == QLatin1String("WEP")) {
        return FitsWep(key) ? Acceptable : UnfitForWep;
    }
    if (encryption == QLatin1String("CCMP") || encryption == QLatin1String("TKIP")) {
        return FitsWpa(key) ? Acceptable : UnfitForWpa;
    }
    return Acceptable;
}

} // namespace KeyRules
