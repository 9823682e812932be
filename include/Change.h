#ifndef CHANGE_H
#define CHANGE_H

#include "HostExport.h"

#include <QString>

/** The dashboard's language. Core UI library, GUI thread. */
class HOST_EXPORT Change
{
public:
    /**
     * The text behind a resource id in the user's current language.
     *
     * @param id       such as "IDS_PROFILE_UP".
     * @param context  whose text it is; a plug-in passes its name, such as "PriorityPlugin".
     * @return the text; the id itself when no language has one, so that a missing text shows and breaks
     * nothing.
     */
    static QString tr(const QString &id, const QString &context);

    /** Name of the current language, such as "en" or "ar". "ar" and "he" read right to left. */
    static QString GetLangName();
};

#endif
