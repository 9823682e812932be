#ifndef SSIDTEXT_H
#define SSIDTEXT_H

#include <QByteArray>
#include <QString>

/**
 * Network names as texts. A network name is up to 32 bytes of any value, mostly UTF-8.
 *
 * Bytes that are no UTF-8, control characters and non-characters are written as \xNN with two hexadecimal
 * digits in upper case, and so is the backslash of what would else read like that. No two names have the same
 * text, and every text stands in the priority list as it is here.
 */
namespace SsidText
{

QString FromBytes(const QByteArray &ssid);

/** The name of which text is the text; UTF-8 for a text that is none of FromBytes. */
QByteArray ToBytes(const QString &text);

} // namespace SsidText

#endif
