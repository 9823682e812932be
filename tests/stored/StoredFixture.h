#ifndef STOREDFIXTURE_H
#define STOREDFIXTURE_H

#include <TemporaryDirectory.h>

#include <QByteArray>
#include <QString>

class QObject;
class IUIPlugin;

/** The WLAN plug-in of the build tree over a user data directory of its own, as a host has it between two
 * starts. */
class StoredFixture
{
public:
    StoredFixture();
    ~StoredFixture();

    static QString LibraryFile();
    static IUIPlugin *Root();

    /** The service object, the same until Restart. */
    static QObject *Service();

    /** What is kept in memory goes, as at the end of the host. */
    static void Restart();

    QString Path(const QString &fileName) const { return m_userData + fileName; }
    QString ProfilesPath() const { return Path(QLatin1String("WLANProfiles.xml")); }
    QString NetworksPath() const { return Path(QLatin1String("WLANNetworks.xml")); }

    static QByteArray Read(const QString &path);
    static void Write(const QString &path, const QByteArray &bytes);

private:
    Q_DISABLE_COPY(StoredFixture)

    TemporaryDirectory m_directory;
    QString m_userData;
};

#endif
