#ifndef LOADEDLIBRARY_H
#define LOADEDLIBRARY_H

#include "Apart.h"

#include <QHash>
#include <QLibrary>
#include <QObject>
#include <QString>
#include <QStringList>

/** A plug-in's library of the build tree, loaded as a host loads it. */
class LoadedLibrary
{
public:
    /** @param name  such as "PriorityPlugin". Ends the program when the library can't be loaded. */
    explicit LoadedLibrary(const QString &name);

    static QString FileName(const QString &name);

    QObject *Root();
    QByteArray VerificationText();

    /**
     * The names that the library's own symbol table has for the operation at a position: "Class::Operation"
     * each. Several when the compiler found operations to be alike and kept one.
     */
    QStringList NamesAt(void *part, int position);

    /** Whether the library has such a symbol table; a stripped one hasn't. */
    bool HasNames() const { return !m_names.isEmpty(); }

private:
    Q_DISABLE_COPY(LoadedLibrary)

    void ReadSymbols();

    QLibrary m_library;
    quintptr m_base;
    QHash<quintptr, QStringList> m_names;
};

#endif
