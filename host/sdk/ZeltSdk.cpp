#include <ZeltSdk.h>

#include "ZeltSdkStatus.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstring>

#include <sys/stat.h>
#include <sys/types.h>

namespace
{

bool IsAbsolute(const QByteArray &path)
{
    return path.startsWith('/');
}

/** Where the user's data lies, in the file system's own encoding; empty when the user has no home. */
QByteArray DataHome()
{
    QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    if (IsAbsolute(dataHome)) {
        return dataHome;
    }
    const QByteArray home = qgetenv("HOME");
    return IsAbsolute(home) ? home + "/.local/share" : QByteArray();
}

bool IsDirectory(const QByteArray &path)
{
    struct stat status;
    return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool MakeDirectory(const QByteArray &path)
{
    if (IsDirectory(path)) {
        return true;
    }
    // Another process of the same user may be making the same directories.
    for (int end = path.indexOf('/', 1); end != -1; end = path.indexOf('/', end + 1)) {
        const QByteArray step = path.left(end);
        if (mkdir(step.constData(), S_IRWXU) != 0 && !IsDirectory(step)) {
            return false;
        }
    }
    return IsDirectory(path);
}

QByteArray WithoutRepeatedSeparators(const QByteArray &path)
{
    if (!path.contains("//")) {
        return path;
    }
    QByteArray result;
    result.reserve(path.size());
    for (int i = 0; i < path.size(); ++i) {
        if (path.at(i) != '/' || !result.endsWith('/')) {
            result.append(path.at(i));
        }
    }
    return result;
}

} // namespace

long ZELT_GetUserDataDirectory(unsigned short **path)
{
    if (!path) {
        return ZeltSdkNullArgument;
    }
    *path = nullptr;

    const QByteArray home = DataHome();
    if (home.isEmpty()) {
        return ZeltSdkNoHome;
    }
    const QByteArray directory = WithoutRepeatedSeparators(home + "/priority-dashboard/");
    const QString text = QFile::decodeName(directory);
    if (QFile::encodeName(text) != directory) {
        return ZeltSdkPathNotText;
    }
    if (!MakeDirectory(directory)) {
        return ZeltSdkNoDirectory;
    }

    const std::size_t length = static_cast<std::size_t>(text.size()) + 1;
    unsigned short *result = new unsigned short[length];
    std::memcpy(result, text.utf16(), length * sizeof(unsigned short));
    *path = result;
    return ZeltSdkSuccess;
}
