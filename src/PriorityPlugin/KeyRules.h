#ifndef KEYRULES_H
#define KEYRULES_H

#include <QString>

/** What a key must look like to fit an encryption method. Nothing here keeps or traces the key. */
namespace KeyRules
{

enum Verdict { Acceptable = 0, UnfitForWep = 1, UnfitForWpa = 2 };

/** Whether text consists of the digits 0 to 9, a to f and A to F only; so does the empty text. */
bool IsHexadecimal(const QString &text);

/**
 * "WEP" takes 5 or 13 characters, or 10, 26 or 32 hexadecimal digits; "CCMP" and "TKIP" take 8 to 63
 * characters, or 64 hexadecimal digits. There is no text form of 16 characters beside the 32 digits. Every
 * other encryption takes any key.
 */
Verdict Check(const QString &encryption, const QString &key);

} // namespace KeyRules

#endif
