#ifndef PRIVATEFILE_H
#define PRIVATEFILE_H

#include <QByteArray>
#include <QString>

/** A file that only its owner may read, at no moment of its life; symbolic links in its place are refused. */
namespace PrivateFile
{

enum Outcome { OutcomeDone, OutcomeMissing, OutcomeNotReadable, OutcomeNotWritable, OutcomeSymbolicLink };

/** Reads the whole file if it is no larger than largestSize. *permissions receives the permission bits, as in
 * 0600. */
Outcome Read(const QString &path, QByteArray *bytes, int largestSize, unsigned int *permissions);

/**
 * Puts bytes in the place of the file, or makes the file, with permissions 0600. The bytes are written to
 * TemporaryPath first and take the file's place when they are safely there: after any failure the earlier
 * file is intact. One process at a time; hold a DirectoryLock.
 */
Outcome Replace(const QString &path, const QByteArray &bytes);

QString TemporaryPath(const QString &path);

/** Overwrites the memory of an array that held keys. Copies elsewhere are out of reach. */
void Wipe(QByteArray *bytes);

} // namespace PrivateFile

#endif
