#include "LoadedLibrary.h"

#include "Table.h"

#include <QProcess>

#include <dlfcn.h>

namespace
{

typedef QObject *(*InstanceFunction)();
typedef const char *(*VerificationFunction)();

} // namespace

LoadedLibrary::LoadedLibrary(const QString &name) : m_library(FileName(name)), m_base(0)
{
    if (!m_library.load()) {
        qFatal("%s", m_library.errorString().toLocal8Bit().constData());
    }
    ReadSymbols();
}

QString LoadedLibrary::FileName(const QString &name)
{
    return QString(BUILD_DIRECTORY "/plugins/%1/lib%1.so").arg(name);
}

QObject *LoadedLibrary::Root()
{
    return reinterpret_cast<InstanceFunction>(m_library.resolve("qt_plugin_instance"))();
}

QByteArray LoadedLibrary::VerificationText()
{
    return reinterpret_cast<VerificationFunction>(m_library.resolve("qt_plugin_query_verification_data"))();
}

void LoadedLibrary::ReadSymbols()
{
    Dl_info info;
    if (!dladdr(reinterpret_cast<void *>(m_library.resolve("qt_plugin_instance")), &info)) {
        qFatal("the place of the library in memory is not known");
    }
    m_base = reinterpret_cast<quintptr>(info.dli_fbase);

    QProcess lister;
    lister.start("nm", QStringList() << "--demangle"
                                     << "--defined-only" << m_library.fileName());
    if (!lister.waitForFinished() || lister.exitCode() != 0) {
        qFatal("nm of binutils is needed");
    }
    const QStringList lines = QString(lister.readAllStandardOutput()).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const quintptr address =
            static_cast<quintptr>(lines.at(i).section(' ', 0, 0).toULongLong(nullptr, 16));
        QString name = lines.at(i).section(' ', 2).section('(', 0, 0);
        name.remove("non-virtual thunk to ");
        if (name.contains("::")) {
            m_names[address].append(name);
        }
    }
}

QStringList LoadedLibrary::NamesAt(void *part, int position)
{
    const quintptr operation = reinterpret_cast<quintptr>(At<void *>(part, position));
    return m_names.value(operation - m_base);
}
