#ifndef TEXTPATTERN_H
#define TEXTPATTERN_H

#include <QString>
#include <QStringList>

/** Regular expressions, which no class of Qt's offers in all its generations: ECMAScript's, over
 * UTF-8. */
namespace TextPattern
{

/** Whether the whole text matches. */
bool Fits(const QString &text, const QString &pattern);

/** Whether text has a match in it. */
bool IsIn(const QString &text, const QString &pattern);

/** The first group of each match in text, or the match itself when pattern has no groups. */
QStringList FindAll(const QString &text, const QString &pattern);

QString Replaced(const QString &text, const QString &pattern, const QString &replacement);

} // namespace TextPattern

#endif
