#ifndef ORDINARYFILE_H
#define ORDINARYFILE_H

#include <QByteArray>
#include <QString>

namespace OrdinaryFile
{

/** Reads the whole of a file, behind a link or not. False, and *bytes is nothing to go by, when it isn't
 * there, is no ordinary file, is larger than that, or can't be read to its end. */
bool Read(const QString &path, int largestSize, QByteArray *bytes);

} // namespace OrdinaryFile

#endif
