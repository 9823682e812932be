#ifndef TEMPORARYDIRECTORY_H
#define TEMPORARYDIRECTORY_H

#include <QByteArray>
#include <QString>

/** A fresh directory, removed with all that is in it at the end of its scope. */
class TemporaryDirectory
{
public:
    TemporaryDirectory();
    ~TemporaryDirectory();

    /** Without a trailing separator. */
    QString Path() const { return m_path; }
    QString FilePath(const QString &name) const { return m_path + QChar::fromLatin1('/') + name; }

    /** Writes and reads whole files in the directory, byte for byte. A missing file reads as a null array. */
    void Write(const QString &name, const QByteArray &bytes) const;
    QByteArray Read(const QString &name) const;

private:
    Q_DISABLE_COPY(TemporaryDirectory)

    QString m_path;
};

#endif
