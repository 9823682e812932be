#ifndef DASHBOARDLANGUAGE_H
#define DASHBOARDLANGUAGE_H

#include <QObject>
#include <QString>
#include <QStringList>

struct LanguageProblem;

/** Which language the dashboard speaks, and the switching of it. */
class DashboardLanguage : public QObject
{
    Q_OBJECT

public:
    explicit DashboardLanguage(QObject *parent);

    /**
     * The language to start with: the wanted one, then the one chosen last time, then the system's in their
     * order, then English; the first of them that available has. For a locale of the system's, another
     * country's form of its language will do, in the same script: Portuguese as in Brazil for Portugal, but
     * no simplified Chinese for Taiwan.
     */
    static QString Choose(const QString &wanted, const QString &stored, const QStringList &system,
                          const QStringList &available);

    /** The locales whose texts the system's user reads, such as "pt_BR", best first. */
    static QStringList OfSystem();

    /** The language that the user chose last time, or empty. */
    static QString Stored();

    /** What the speakers of a language call it, such as "العربية" for "ar". */
    static QString NativeName(const QString &language);

    /** What is the matter with a language file, in the current language. */
    static QString ProblemText(const LanguageProblem &problem);

    /** Makes language the one of the texts and of the reading direction, without telling anybody. */
    static bool Apply(const QString &language);

    /** Switches the language, keeps the choice, and tells. False: there is no such language. */
    bool Switch(const QString &language);

signals:
    void Switched();
};

#endif
