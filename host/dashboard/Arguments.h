#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include <QString>
#include <QStringList>

/** What the command line asks for. */
struct Arguments {
    enum Action { Run, Help, Version, Refuse };

    Action action = Run;
    QString problem; /**< In plain words, when the action is Refuse. */

    /** Each is null when it wasn't given. */
    QString language;
    QString pluginLibraryPath;
    QString tourDirectory;

    /** @param arguments  without the program's name. */
    static Arguments Parse(const QStringList &arguments);

    static QString HelpText();
    static QString VersionText();
};

#endif
