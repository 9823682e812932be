#include "DamagedFile.h"

#include <OrdinaryFile.h>

#include <PrivateFile.h>

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace
{

const int names = 1000;

/** number is a number, or "*" for all. */
QString NameOf(const QString &path, const QString &number)
{
    const QFileInfo file(path);
    return QString::fromLatin1("%1-damaged-%2.%3").arg(file.completeBaseName(), number, file.suffix());
}

} // namespace

QString DamagedFile::FreePath(const QString &path)
{
    const QDir directory = QFileInfo(path).dir();
    for (int i = 1; i <= names; ++i) {
        const QFileInfo taken(directory.filePath(NameOf(path, QString::number(i))));
        if (!taken.exists() && !taken.isSymLink()) {
            return taken.filePath();
        }
    }
    return QString();
}

QString DamagedFile::Keep(const QString &path)
{
    QByteArray bytes;
    if (!OrdinaryFile::Read(path, largestFile, &bytes)) {
        return QString();
    }
    const QDir directory = QFileInfo(path).dir();
    // A link may lead to the file itself.
    const QStringList copies =
        directory.entryList(QStringList(NameOf(path, QLatin1String("*"))), QDir::Files | QDir::NoSymLinks);
    for (const QString &name : copies) {
        QString copy = directory.filePath(name);
        QByteArray copied;
        if (QFileInfo(copy).size() == bytes.size() && OrdinaryFile::Read(copy, largestFile, &copied) &&
            copied == bytes) {
            return copy;
        }
    }
    QString copy = FreePath(path);
    return !copy.isNull() && PrivateFile::Replace(copy, bytes) == PrivateFile::OutcomeDone ? copy : QString();
}
