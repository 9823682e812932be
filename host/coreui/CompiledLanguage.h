#ifndef COMPILEDLANGUAGE_H
#define COMPILEDLANGUAGE_H

#include <QByteArray>

/**
 * Whether bytes are a whole compiled language file (.qm, not compressed) in which every length and offset
 * stays inside. The toolkit takes files that are cut off between blocks and trusts the lengths in the others,
 * so that a damaged file could show foreign memory as text.
 */
bool IsIntactCompiledLanguage(const QByteArray &bytes);

#endif
