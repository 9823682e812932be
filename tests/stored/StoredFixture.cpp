#include "StoredFixture.h"

#include <IUIPlugin.h>
#include <ToolkitCompat.h>
#include <ZeltSdk.h>

#include <QFile>
#include <QLibrary>

StoredFixture::StoredFixture()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory.Path()));
    unsigned short *path = nullptr;
    if (ZELT_GetUserDataDirectory(&path) != 0) {
        qFatal("no directory for the user's data");
    }
    m_userData = ToolkitCompat::FromUtf16(path);
    delete[] path;
}

StoredFixture::~StoredFixture()
{
    Restart();
}

QString StoredFixture::LibraryFile()
{
    return QLatin1String(BUILD_DIRECTORY "/plugins/WLANStored/libWLANStored.so");
}

IUIPlugin *StoredFixture::Root()
{
    typedef QObject *(*Instance)();
    const Instance instance =
        reinterpret_cast<Instance>(QLibrary(LibraryFile()).resolve("qt_plugin_instance"));
    return instance ? qobject_cast<IUIPlugin *>(instance()) : nullptr;
}

QObject *StoredFixture::Service()
{
    QObject *service = nullptr;
    if (!Root() || !Root()->QueryInterface(4102, &service)) {
        qFatal("the plug-in gives no WLAN service");
    }
    return service;
}

void StoredFixture::Restart()
{
    Root()->OnDestroy();
}

QByteArray StoredFixture::Read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void StoredFixture::Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size()) {
        qFatal("a test file can't be written");
    }
}
