#include "UserDataDirectory.h"

#include <ToolkitCompat.h>
#include <ZeltSdk.h>

QString UserDataDirectory()
{
    unsigned short *path = nullptr;
    const long status = ZELT_GetUserDataDirectory(&path);
    QString directory;
    if (status == 0 && path) {
        directory = ToolkitCompat::FromUtf16(path);
    }
    delete[] path;
    return directory;
}
