#ifndef DAMAGEDFILE_H
#define DAMAGEDFILE_H

#include <QString>

/** What becomes of files that can't be read to their end: "Priority.xml" is kept beside itself as
 * "Priority-damaged-1.xml", and what is found another time under the next number. */
namespace DamagedFile
{

/** No list comes near this; whatever is larger is not read into memory, and so not copied. */
const int largestFile = 256 * 1024 * 1024;

/** The first of these names that is free; null when none is. */
QString FreePath(const QString &path);

/**
 * Keeps a copy of the file beside it, for its owner only; what has been copied once is not copied again. One
 * process at a time.
 *
 * @return the path of a copy with the very bytes of the file, safely on the disk; null when there is none and
 * none can be made.
 */
QString Keep(const QString &path);

} // namespace DamagedFile

#endif
