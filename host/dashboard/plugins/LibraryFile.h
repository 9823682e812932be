#ifndef LIBRARYFILE_H
#define LIBRARYFILE_H

#include <QString>

/** What can be told of a library without loading it: a cut one kills the process that loads it. */
namespace LibraryFile
{

/** Whether the file ends before the last of what the loader would map. Of what is no library it never does.
 */
bool IsCut(const QString &path);

/** The Qt that the library was built for, such as "6" or "6.4", when that is none that this program can use;
 * null when it is, and when the file doesn't tell. */
QString OtherQt(const QString &path);

} // namespace LibraryFile

#endif
