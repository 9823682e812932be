#ifndef LIBRARYFILE_H
#define LIBRARYFILE_H

#include <QList>
#include <QString>

/** A version of the toolkit, as far as it is known. */
struct ToolkitVersion {
    int generation;
    /** Negative when only the generation is known. */
    int release;

    /** "5.15", or "4" when only the generation is known. */
    QString Text() const;
};

/**
 * A library as its file describes it. Nothing of it is loaded or run for that: a library that is cut short
 * kills the process that loads it, and one of another toolkit brings that toolkit's globals along.
 *
 * A file that is no library for this machine, or that contradicts itself, tells nothing and is not cut: the
 * system's loader knows what to say of it.
 */
struct LibraryFile {
    /** Whether the file ends before the last of what the loader would map into memory. */
    bool isCut = false;

    /**
     * What the library was built for: the versions of the toolkit's libraries that it needs, or, when it
     * needs none itself, the one in its plug-in metadata. More than one for a library that mixes generations.
     */
    QList<ToolkitVersion> toolkits;

    static LibraryFile Read(const QString &path);
};

#endif
