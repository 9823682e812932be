#ifndef USERDATA_H
#define USERDATA_H

#include <QString>

/** Where the host and its plug-ins keep what belongs to the user. */
class UserData
{
public:
    /** With a trailing separator; empty when there is no such directory and none can be made. */
    static QString Directory();

    /** Path of a file in it; empty when there is no directory. */
    static QString FilePath(const QString &name);
};

#endif
