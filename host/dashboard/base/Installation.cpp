#include "Installation.h"

#include <QDir>
#include <QFileInfo>

namespace
{

QString From(const QString &directory, const char *relative)
{
    return QDir::cleanPath(directory + QLatin1Char('/') + QFile::decodeName(relative));
}

/** The one that is there; the installed one, which a user will then be told is missing, when neither is. */
QString Choose(const QString &installed, const QString &built, const QString &content)
{
    const bool isBuilt = !QFileInfo(installed + content).isDir() && QFileInfo(built + content).isDir();
    return isBuilt ? built : installed;
}

} // namespace

QString Installation::LibraryPath(const QString &programDirectory)
{
    return Choose(From(programDirectory, DASHBOARD_LIBRARY_PATH), From(programDirectory, ".."),
                  QLatin1String("/plugins"));
}

QString Installation::LanguageDirectory(const QString &programDirectory)
{
    return Choose(From(programDirectory, DASHBOARD_LANGUAGES),
                  From(programDirectory, "../share/priority-dashboard/languages"), QString());
}
