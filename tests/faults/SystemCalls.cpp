#include "SystemCalls.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <set>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

bool watching = false;
bool recording = false;
QByteArray watchedDirectory;
SystemCalls::Listener *currentListener = nullptr;
std::set<int> watchedDescriptors;
QStringList openedPaths;

int callToFail = SystemCalls::CallCount;
int callsLeft = 0;
int errorToGive = 0;
bool hasFailed = false;

int callsToLive = -1;
int bytesBeforeDeath = 0;

bool IsWatched(const char *path)
{
    return watching && QByteArray(path).startsWith(watchedDirectory);
}

bool IsTheLast()
{
    return watching && callsToLive > 0 && --callsToLive == 0;
}

void DieAtTheLast()
{
    if (IsTheLast()) {
        raise(SIGKILL);
    }
}

/** Whether this call is the one that is to fail; errno is set then. */
bool Fails(SystemCalls::Call call)
{
    if (call != callToFail || --callsLeft != 0) {
        return false;
    }
    hasFailed = true;
    errno = errorToGive;
    return true;
}

int OpenWatched(const char *path, int flags, mode_t mode)
{
    if (!watching || recording) {
        return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    }
    recording = true;
    openedPaths.append(QFile::decodeName(path));
    const bool watched = IsWatched(path);
    if (watched && currentListener) {
        currentListener->BeforeOpen(QFile::decodeName(path), (flags & O_ACCMODE) != O_RDONLY);
    }
    recording = false;
    if (watched) {
        DieAtTheLast();
    }
    if (watched && Fails(SystemCalls::Open)) {
        return -1;
    }
    const int descriptor = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    if (watched && descriptor >= 0) {
        watchedDescriptors.insert(descriptor);
    }
    return descriptor;
}

mode_t ModeArgument(int flags, va_list arguments)
{
    return (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

} // namespace

extern "C" Q_DECL_EXPORT int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeArgument(flags, arguments);
    va_end(arguments);
    return OpenWatched(path, flags, mode);
}

extern "C" Q_DECL_EXPORT int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeArgument(flags, arguments);
    va_end(arguments);
    return OpenWatched(path, flags, mode);
}

extern "C" Q_DECL_EXPORT int close(int descriptor)
{
    if (watching && watchedDescriptors.erase(descriptor) > 0) {
        DieAtTheLast();
    }
    return static_cast<int>(syscall(SYS_close, descriptor));
}

extern "C" Q_DECL_EXPORT ssize_t read(int descriptor, void *bytes, size_t size)
{
    if (watching && watchedDescriptors.count(descriptor) > 0 && Fails(SystemCalls::Read)) {
        return -1;
    }
    return syscall(SYS_read, descriptor, bytes, size);
}

extern "C" Q_DECL_EXPORT ssize_t write(int descriptor, const void *bytes, size_t size)
{
    if (watching && watchedDescriptors.count(descriptor) > 0) {
        if (IsTheLast()) {
            syscall(SYS_write, descriptor, bytes, qMin<size_t>(size, size_t(bytesBeforeDeath)));
            raise(SIGKILL);
        }
        if (Fails(SystemCalls::Write)) {
            return -1;
        }
    }
    return syscall(SYS_write, descriptor, bytes, size);
}

extern "C" Q_DECL_EXPORT int unlink(const char *path) noexcept
{
    if (IsWatched(path)) {
        DieAtTheLast();
        if (Fails(SystemCalls::Unlink)) {
            return -1;
        }
    }
    return static_cast<int>(syscall(SYS_unlink, path));
}

extern "C" Q_DECL_EXPORT int rename(const char *path, const char *newPath) noexcept
{
    if (IsWatched(newPath)) {
        DieAtTheLast();
        if (Fails(SystemCalls::Rename)) {
            return -1;
        }
    }
    return static_cast<int>(syscall(SYS_renameat, AT_FDCWD, path, AT_FDCWD, newPath));
}

extern "C" Q_DECL_EXPORT int fsync(int descriptor)
{
    if (watching && watchedDescriptors.count(descriptor) > 0) {
        DieAtTheLast();
        if (Fails(SystemCalls::Sync)) {
            return -1;
        }
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" Q_DECL_EXPORT int socket(int domain, int type, int protocol) noexcept
{
    if (watching) {
        openedPaths.append("socket");
    }
    return static_cast<int>(syscall(SYS_socket, domain, type, protocol));
}

void SystemCalls::Watch(const QString &directory, Listener *listener)
{
    Forget();
    watchedDirectory = QFile::encodeName(directory);
    currentListener = listener;
    openedPaths.clear();
    watching = true;
}

void SystemCalls::Forget()
{
    watching = false;
    currentListener = nullptr;
    watchedDescriptors.clear();
    callToFail = CallCount;
    hasFailed = false;
    callsToLive = -1;
}

void SystemCalls::MakeDie(int number, int bytes)
{
    callsToLive = number;
    bytesBeforeDeath = bytes;
}

void SystemCalls::MakeFail(Call call, int number, int error)
{
    callToFail = call;
    callsLeft = number;
    errorToGive = error;
    hasFailed = false;
}

bool SystemCalls::HasFailed()
{
    return hasFailed;
}

QStringList SystemCalls::Opened()
{
    return openedPaths;
}
