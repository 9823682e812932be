#ifndef HOSTSERVICES_H
#define HOSTSERVICES_H

#include "Apart.h"

#include <QList>
#include <QString>
#include <QStringList>

/** What the plug-in asked of the host services that this program defines under their mangled names. */
class HostServices
{
public:
    /** Forgets what was asked and takes this directory for the user's data. */
    static void Reset(const QString &userDataDirectory);

    static QString userDataDirectory;
    static int userDataQuestions;

    /** What Startup::GetPluginContainer answers. */
    static void *container;
    static int containerQuestions;

    /** "<context>/<id>" of each text asked for. Texts are answered as "<language>:<id>". */
    static QStringList texts;
    static QString language;
    static int languageQuestions;

    static int libraryPathQuestions;

    /** "<text>, mode <number>" each. */
    static QStringList elidedTexts;

    /** All arguments of each message but its widgets, joined by "|". */
    static QStringList messages;
    static int messageAnswer;

    /** "type <number>" of each frame made; the frames' titles; how many frames were given a body, and how
     * many are gone. */
    static QStringList frames;
    static QStringList titles;
    static int bodies;
    static int framesGone;

    static int lineEdits;
};

#endif
