#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include "Command.h"

#include <WlanChoice.h>

#include <QList>
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
    QString wlan;
    QString show; /**< What the window opens: "connect" or "settings". */

    /** Practice networks, in a directory of their own. */
    bool isDemo = false;

    WlanChoice ChosenWlan() const;

    /** What to do, in this order, instead of opening a window. */
    QList<Command> commands;

    /** Whether commands answer in JSON. */
    bool isJson = false;

    /** How long a command waits for a connection: what was given, which is null when it wasn't. */
    QString wait;
    int WaitSeconds() const;

    /** What main was given. Arguments are UTF-8, or text in the locale's encoding when they aren't. */
    static Arguments Read(int count, const char *const *arguments);

    /** @param arguments  without the program's name. */
    static Arguments Parse(const QStringList &arguments);

    static QString HelpText();
    static QString VersionText();
};

#endif
