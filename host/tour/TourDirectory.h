#ifndef TOURDIRECTORY_H
#define TOURDIRECTORY_H

#include <QString>
#include <QStringList>

/**
 * The directory of a tour: pictures, and the tour's own user data in "data". It keeps a list of what a tour
 * made there, and nothing else is ever removed or written over.
 */
class TourDirectory
{
public:
    explicit TourDirectory(const QString &path);

    /** Absolute, without a trailing separator. */
    QString Path() const { return m_path; }
    QString DataPath() const;

    /**
     * Makes the directory, or removes from it what an earlier tour made.
     *
     * @return null, or in plain words why a tour can't be made there; then nothing was removed.
     */
    QString Prepare();

    /** Path for the file name, which is from now on one that a tour made; empty when somebody else's is
     * there. */
    QString Claim(const QString &name);

private:
    QStringList ReadClaims() const;
    bool WriteClaims() const;

    const QString m_path;
    QStringList m_claims;
};

#endif
