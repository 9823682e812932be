#ifndef USERDATADIRECTORY_H
#define USERDATADIRECTORY_H

#include <QString>

/** The directory for the current user's data, ending with a separator; empty when the host knows none. */
QString UserDataDirectory();

#endif
