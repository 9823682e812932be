#ifndef INSTALLATION_H
#define INSTALLATION_H

#include <QString>

/**
 * Where the program finds what belongs to it. Seen from the program's own directory, so that an installation
 * can be moved as a whole and the build tree works without being installed.
 */
class Installation
{
public:
    /** The directory with the folder "plugins" in it. */
    static QString LibraryPath(const QString &programDirectory);

    /** The directory with the compiled language files in it. */
    static QString LanguageDirectory(const QString &programDirectory);
};

#endif
