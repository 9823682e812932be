#include "TourDirectory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

QString DataName()
{
    return QLatin1String("data");
}

QString ClaimsName()
{
    return QLatin1String(".dashboard-tour");
}

bool Exists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/** Removes a file, a link or a directory with all in it; what a link leads to stays. */
bool Remove(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink() || !info.isDir()) {
        return !Exists(path) || QFile::remove(path);
    }
    const QFileInfoList entries =
        QDir(path).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (int i = 0; i < entries.size(); ++i) {
        if (!Remove(entries.at(i).absoluteFilePath())) {
            return false;
        }
    }
    return QDir().rmdir(path);
}

/** Whether name can be one of a file directly in the directory; a list that was tampered with leads nowhere
 * else. */
bool IsPlainName(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/'));
}

} // namespace

TourDirectory::TourDirectory(const QString &path) : m_path(QDir::cleanPath(QDir().absoluteFilePath(path))) {}

QString TourDirectory::DataPath() const
{
    return m_path + QLatin1Char('/') + DataName();
}

QString TourDirectory::Prepare()
{
    if (!QFileInfo(m_path).isDir() && !QDir().mkpath(m_path)) {
        return QString::fromLatin1("the directory %1 can't be made").arg(m_path);
    }
    m_claims = ReadClaims();
    if (!m_claims.contains(DataName()) && Exists(DataPath())) {
        return QString::fromLatin1("%1 is there and wasn't made by a tour; choose another directory")
            .arg(DataPath());
    }
    const QStringList pictures = QDir(m_path).entryList(QStringList() << QLatin1String("[0-9][0-9]-*.png"),
                                                        QDir::AllEntries | QDir::Hidden | QDir::System);
    for (int i = 0; i < pictures.size(); ++i) {
        if (!m_claims.contains(pictures.at(i))) {
            return QString::fromLatin1("%1/%2 is there and wasn't made by a tour; choose another directory")
                .arg(m_path, pictures.at(i));
        }
    }
    for (int i = 0; i < m_claims.size(); ++i) {
        const QString path = m_path + QLatin1Char('/') + m_claims.at(i);
        if (!Remove(path)) {
            return QString::fromLatin1("%1 of an earlier tour can't be removed").arg(path);
        }
    }
    m_claims.clear();
    if (Claim(DataName()).isEmpty() || !QDir().mkpath(DataPath())) {
        return QString::fromLatin1("nothing can be written in %1").arg(m_path);
    }
    return QString();
}

QString TourDirectory::Claim(const QString &name)
{
    QString path = m_path + QLatin1Char('/') + name;
    if (m_claims.contains(name)) {
        return path;
    }
    if (Exists(path)) {
        return QString();
    }
    m_claims.append(name);
    // The name is written down before the file is made. After a crash in between there is a name too many,
    // which does no harm.
    return WriteClaims() ? path : QString();
}

QStringList TourDirectory::ReadClaims() const
{
    QStringList names;
    QFile file(m_path + QLatin1Char('/') + ClaimsName());
    if (file.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        for (int i = 0; i < lines.size(); ++i) {
            if (IsPlainName(lines.at(i))) {
                names.append(lines.at(i));
            }
        }
    }
    return names;
}

bool TourDirectory::WriteClaims() const
{
    QFile file(m_path + QLatin1Char('/') + ClaimsName());
    const QByteArray bytes = (m_claims.join(QLatin1String("\n")) + QLatin1Char('\n')).toUtf8();
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size() &&
           file.flush();
}
