#ifndef STARTRECORD_H
#define STARTRECORD_H

#include <QString>
#include <QStringList>

/** A few texts in a file of the user data directory that mean something until the computer is started again.
 */
class StartRecord
{
public:
    /** @param file  its name. @param key  what the texts are, in one word. */
    StartRecord(const char *file, const char *key);

    /** None when they are of an earlier start of the computer. */
    QStringList Read() const;

    /** No texts: no file. */
    void Write(const QStringList &texts) const;

private:
    const QString m_path;
    const QString m_key;
};

#endif
