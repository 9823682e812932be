#ifndef ONELINE_H
#define ONELINE_H

#include <QString>

namespace OneLine
{

/**
 * text without what would end a line or a column of it, or do things to a terminal: a backslash, a tab, a
 * line feed and a carriage return as "\\", "\t", "\n" and "\r", every other control character as "\0" and
 * three octal digits for each byte of its UTF-8. This is what the command printf turns back with "%b".
 */
QString Escaped(const QString &text);

/** As Escaped, but a backslash stays what it is: for messages, which nobody turns back. */
QString Shown(const QString &text);

} // namespace OneLine

#endif
