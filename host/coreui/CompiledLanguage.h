#ifndef COMPILEDLANGUAGE_H
#define COMPILEDLANGUAGE_H

#include <QByteArray>

/**
 * Where bytes stop being a whole compiled language file (.qm, not compressed) in which every length and
 * offset stays inside: the number of the first byte that is wrong or missing, counted from 1; 0 when there is
 * none. Qt takes files that are cut off between blocks and trusts the lengths in the others, so that
 * a damaged file could show foreign memory as text.
 */
int DamagedByte(const QByteArray &bytes);

#endif
