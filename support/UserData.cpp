#include "UserData.h"

#include <ZeltSdk.h>

QString UserData::Directory()
{
    unsigned short *path = nullptr;
    const long status = ZELT_GetUserDataDirectory(&path);
    QString directory =
        status == 0 && path ? QString::fromUtf16(reinterpret_cast<const char16_t *>(path)) : QString();
    delete[] path;
    return directory;
}

QString UserData::FilePath(const QString &name)
{
    const QString directory = Directory();
    return directory.isEmpty() ? QString() : directory + name;
}
