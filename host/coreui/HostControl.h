#ifndef HOSTCONTROL_H
#define HOSTCONTROL_H

#include <HostExport.h>

#include <QList>
#include <QString>
#include <QStringList>

class IPluginContainer;

/** Why a language file that is there is not used. */
struct LanguageProblem {
    enum Kind {
        /** reason has what the system says. */
        Unreadable,
        /** It is no compiled language file, or has no text in it. */
        NoTexts
    };

    LanguageProblem() : kind(NoTexts) {}

    QString path;
    Kind kind;
    QString reason;
};

/**
 * The host application's side of the core UI library: what it sets here is what plug-ins get from Startup,
 * Change and CommonUtils. GUI thread.
 */
class HOST_EXPORT HostControl
{
public:
    /** @param container  not owned; null while the host has none, which is also how it starts. */
    static void SetPluginContainer(IPluginContainer *container);

    /** @param directory  the one that has the folder "plugins" in it; a trailing separator is dropped. Empty:
     * the default, the parent of the directory that the application's executable lies in. */
    static void SetPluginLibraryPath(const QString &directory);

    /** @param directory  where the compiled language files (<language>.qm) lie. */
    static void SetLanguageDirectory(const QString &directory);

    /** Names of the languages found there that can be used, such as "ar", "en", "pt_BR", sorted. */
    static QStringList LanguageNames();

    /** The files found there that can't be used, and why. */
    static QList<LanguageProblem> LanguageProblems();

    /** What Change::tr would answer in another language than the one in use; empty when that has no such
     * text. */
    static QString TextIn(const QString &language, const QString &id, const QString &context);

    /**
     * Switches the language that Change answers for. Does not send the language-change event; that is the
     * application's.
     *
     * @return false when there is no readable file for it: then the language stays what it was.
     */
    static bool SetLanguage(const QString &name);

    /** Whether the language reads right to left: "ar" and "he" do. */
    static bool IsRightToLeft(const QString &language);

    /**
     * Gives lists and tables a soft highlight on which the ordinary text colour is readable, made from the
     * application's palette, light or dark: rows made of plain widgets don't change their text colour when
     * they are selected. Call it once the QApplication stands, and again whenever its palette has been
     * replaced.
     */
    static void ApplyLook();
};

#endif
