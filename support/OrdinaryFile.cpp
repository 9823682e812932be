#include "OrdinaryFile.h"

#include <QFile>
#include <QFileInfo>

bool OrdinaryFile::Read(const QString &path, int largestSize, QByteArray *bytes)
{
    // A pipe in its place would never end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largestSize || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    *bytes = file.readAll();
    return file.error() == QFile::NoError;
}
