#include "PrivateFile.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const mode_t ownerOnly = S_IRUSR | S_IWUSR;
const mode_t permissionBits = S_IRWXU | S_IRWXG | S_IRWXO;

/** Closes a descriptor at the end of its scope. */
class Descriptor
{
public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }

    int Value() const { return m_descriptor; }
    bool IsOpen() const { return m_descriptor >= 0; }

private:
    Q_DISABLE_COPY(Descriptor)

    int m_descriptor;
};

bool ReadAll(int descriptor, int size, QByteArray *bytes)
{
    // One block for the whole file: an array that grows leaves copies of the keys behind.
    bytes->resize(size);
    int filled = 0;
    while (filled < size) {
        const ssize_t count = read(descriptor, bytes->data() + filled, static_cast<size_t>(size - filled));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            PrivateFile::Wipe(bytes);
            return false;
        }
        if (count == 0) {
            break;
        }
        filled += static_cast<int>(count);
    }
    bytes->resize(filled);
    return true;
}

bool WriteAll(int descriptor, const QByteArray &bytes)
{
    int written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            write(descriptor, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        written += static_cast<int>(count);
    }
    return true;
}

/** OutcomeMissing when nothing is there, OutcomeDone for an ordinary file. */
PrivateFile::Outcome WhatIsAt(const QByteArray &path)
{
    struct stat status;
    if (lstat(path.constData(), &status) != 0) {
        return errno == ENOENT ? PrivateFile::OutcomeMissing : PrivateFile::OutcomeNotReadable;
    }
    if (S_ISLNK(status.st_mode)) {
        return PrivateFile::OutcomeSymbolicLink;
    }
    return S_ISREG(status.st_mode) ? PrivateFile::OutcomeDone : PrivateFile::OutcomeNotReadable;
}

int CreateFile(const QByteArray &path)
{
    return open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownerOnly);
}

/** A crash in the middle of an earlier write can have left the temporary file; links in its place are
 * refused. */
PrivateFile::Outcome ClearTemporaryPath(const QByteArray &path)
{
    const PrivateFile::Outcome found = WhatIsAt(path);
    if (found == PrivateFile::OutcomeMissing) {
        return PrivateFile::OutcomeDone;
    }
    if (found == PrivateFile::OutcomeSymbolicLink) {
        return found;
    }
    return found == PrivateFile::OutcomeDone && unlink(path.constData()) == 0
               ? PrivateFile::OutcomeDone
               : PrivateFile::OutcomeNotWritable;
}

void SyncDirectoryOf(const QString &path)
{
    const QString directory = path.left(path.lastIndexOf(QLatin1Char('/')) + 1);
    const Descriptor opened(
        open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) {
        fsync(opened.Value());
    }
}

} // namespace

QString PrivateFile::TemporaryPath(const QString &path)
{
    return path + QLatin1String(".new");
}

PrivateFile::Outcome PrivateFile::Read(const QString &path, QByteArray *bytes, int largestSize,
                                       unsigned int *permissions)
{
    // O_NONBLOCK: a pipe in the file's place must not hold up the caller.
    const Descriptor file(
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen()) {
        switch (errno) {
        case ENOENT:
            return OutcomeMissing;
        case ELOOP:
            return OutcomeSymbolicLink;
        default:
            return OutcomeNotReadable;
        }
    }
    struct stat status;
    if (fstat(file.Value(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > largestSize) {
        return OutcomeNotReadable;
    }
    *permissions = status.st_mode & permissionBits;
    return ReadAll(file.Value(), static_cast<int>(status.st_size), bytes) ? OutcomeDone : OutcomeNotReadable;
}

PrivateFile::Outcome PrivateFile::Replace(const QString &path, const QByteArray &bytes)
{
    const QByteArray finalName = QFile::encodeName(path);
    const Outcome found = WhatIsAt(finalName);
    if (found == OutcomeSymbolicLink) {
        return found;
    }
    if (found == OutcomeNotReadable) {
        return OutcomeNotWritable;
    }
    const QByteArray temporaryName = QFile::encodeName(TemporaryPath(path));
    const Outcome cleared = ClearTemporaryPath(temporaryName);
    if (cleared != OutcomeDone) {
        return cleared;
    }
    {
        const Descriptor file(CreateFile(temporaryName));
        if (!file.IsOpen()) {
            return WhatIsAt(temporaryName) == OutcomeSymbolicLink ? OutcomeSymbolicLink : OutcomeNotWritable;
        }
        // The process's mask can have taken away more than the others' rights.
        if (fchmod(file.Value(), ownerOnly) != 0 || !WriteAll(file.Value(), bytes) ||
            fsync(file.Value()) != 0) {
            unlink(temporaryName.constData());
            return OutcomeNotWritable;
        }
    }
    if (rename(temporaryName.constData(), finalName.constData()) != 0) {
        unlink(temporaryName.constData());
        return OutcomeNotWritable;
    }
    SyncDirectoryOf(path);
    return OutcomeDone;
}

void PrivateFile::Wipe(QByteArray *bytes)
{
    volatile char *memory = bytes->data();
    for (int i = 0; i < bytes->size(); ++i) {
        memory[i] = 0;
    }
    bytes->clear();
}
