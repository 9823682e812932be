#include <ZeltSdk.h>

#include <QDir>

/** $HOME/.minimal-host/, made when it isn't there. The caller deletes the text. */
long ZELT_GetUserDataDirectory(unsigned short **path)
{
    const QString directory = QDir::homePath() + QLatin1String("/.minimal-host/");
    *path = new unsigned short[directory.size() + 1];
    std::copy_n(directory.utf16(), directory.size() + 1, *path);
    return QDir().mkpath(directory) ? 0 : 1;
}
