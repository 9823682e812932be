#ifndef ZELTSDK_H
#define ZELTSDK_H

#include "HostExport.h"

/**
 * The directory for the current user's data. SDK library (libzeltsdk.so), C++ linkage, any thread.
 *
 * @param path  address of a pointer that is null on entry. On success it receives a zero-terminated UTF-16
 * text: an existing directory, ending with a path separator, so that a file name can be appended to it. The
 * text is allocated with new unsigned short[]; the caller releases it with delete[], also when the status is
 * not 0 and the pointer was set all the same.
 * @return 0 on success. Any other status: the directory is not known or can't be made.
 */
HOST_EXPORT long ZELT_GetUserDataDirectory(unsigned short **path);

#endif
