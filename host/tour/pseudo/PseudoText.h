#ifndef PSEUDOTEXT_H
#define PSEUDOTEXT_H

#include <QString>

/**
 * What text could look like in a language that nobody speaks: still readable, with a letter of its own for
 * each, longer by 40 per cent, as translations are, and in brackets. In a dashboard that speaks it, a text
 * without brackets is one that no translator will ever see, and one without its second bracket is cut off.
 * Placeholders such as %1 and %n, mnemonics and line breaks stay.
 */
QString PseudoText(const QString &text);

#endif
