#include "DashboardLanguage.h"

#include "DashboardText.h"
#include "Settings.h"

#include <Change.h>
#include <HostControl.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace
{

QString LanguageKey()
{
    return QLatin1String("language");
}

QString LanguageOf(const QString &locale)
{
    return locale.section(QLatin1Char('_'), 0, 0);
}

/** The one of available that a reader of locale reads best, or empty. */
QString BestFor(const QString &locale, const QStringList &available)
{
    if (available.contains(locale)) {
        return locale;
    }
    for (int i = 0; i < available.size(); ++i) {
        if (LanguageOf(available.at(i)) == LanguageOf(locale) &&
            QLocale(available.at(i)).script() == QLocale(locale).script()) {
            return available.at(i);
        }
    }
    return QString();
}

/** Qt's own texts, as in the context menus of text fields, come from its files, where they are installed. */
void UseTextsOfQt(const QString &language)
{
    const QString name = QLatin1String("qtTexts");
    delete QCoreApplication::instance()->findChild<QTranslator *>(name);
    QTranslator *texts = new QTranslator(QCoreApplication::instance());
    texts->setObjectName(name);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString directory = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    if (texts->load(QLatin1String("qtbase_") + language, directory) ||
        texts->load(QLatin1String("qt_") + language, directory)) {
        QCoreApplication::installTranslator(texts);
    }
}

} // namespace

DashboardLanguage::DashboardLanguage(QObject *parent) : QObject(parent) {}

QString DashboardLanguage::Choose(const QString &wanted, const QString &stored, const QStringList &system,
                                  const QStringList &available)
{
    const QString chosen[] = {wanted, stored};
    for (const QString &name : chosen) {
        if (available.contains(name)) {
            return name;
        }
    }
    for (int i = 0; i < system.size(); ++i) {
        QString best = BestFor(system.at(i), available);
        if (!best.isEmpty()) {
            return best;
        }
    }
    return QLatin1String("en");
}

QStringList DashboardLanguage::OfSystem()
{
    QStringList locales;
    const QStringList names = QLocale::system().uiLanguages();
    for (int i = 0; i < names.size(); ++i) {
        QString name = names.at(i);
        // Of several ways to write a locale's name, such as "pt-BR" or "iw_IL", the one that files are named
        // in.
        const QLocale locale(name.replace(QLatin1Char('-'), QLatin1Char('_')));
        if (locale.language() != QLocale::C) {
            locales.append(locale.name());
        }
    }
    locales.removeDuplicates();
    return locales;
}

QString DashboardLanguage::Stored()
{
    return Settings::Read(LanguageKey()).toString();
}

QString DashboardLanguage::NativeName(const QString &language)
{
    const QString ownName =
        HostControl::TextIn(language, QLatin1String("IDS_LANGUAGE_NAME"), QLatin1String("Dashboard"));
    const QString name = ownName.isEmpty() ? QLocale(language).nativeLanguageName() : ownName;
    return name.isEmpty() ? language : name;
}

QString DashboardLanguage::ProblemText(const LanguageProblem &problem)
{
    return problem.kind == LanguageProblem::Unreadable
               ? DashboardText("IDS_LANGUAGE_UNREADABLE").arg(problem.path, problem.reason)
               : DashboardText("IDS_LANGUAGE_NO_TEXTS").arg(problem.path);
}

bool DashboardLanguage::Apply(const QString &language)
{
    if (!HostControl::SetLanguage(language)) {
        return false;
    }
    UseTextsOfQt(language);
    QApplication::setLayoutDirection(HostControl::IsRightToLeft(language) ? Qt::RightToLeft
                                                                          : Qt::LeftToRight);
    return true;
}

bool DashboardLanguage::Switch(const QString &language)
{
    if (language == Change::GetLangName()) {
        return true;
    }
    if (!Apply(language)) {
        return false;
    }
    Settings::Write(LanguageKey(), language);
    emit Switched();
    return true;
}
