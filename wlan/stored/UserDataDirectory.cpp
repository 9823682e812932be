#include "UserDataDirectory.h"

#include <ZeltSdk.h>

QString UserDataDirectory()
{
    unsigned short *path = nullptr;
    const long status = ZELT_GetUserDataDirectory(&path);
    QString directory;
    if (status == 0 && path) {
        directory = QString::fromUtf16(path);
    }
    delete[] path;
    return directory;
}
