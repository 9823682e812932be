#include "DashboardLanguage.h"

#include "HostControl.h"
#include "PluginHost.h"
#include "Settings.h"

#include <Change.h>

#include <QApplication>
#include <QLocale>

namespace
{

const unsigned int languageChangeEvent = 320;

struct NativeLanguageName {
    const char *language;
    const char *name;
};

const NativeLanguageName nativeNames[] = {
    {"ar", "العربية"},
    {"en", "English"},
    {"he", "עברית"},
};

QString LanguageKey()
{
    return QLatin1String("language");
}

} // namespace

DashboardLanguage::DashboardLanguage(PluginHost *plugins, QObject *parent)
    : QObject(parent), m_plugins(plugins)
{
}

QString DashboardLanguage::Choose(const QString &wanted, const QString &stored, const QString &system,
                                  const QStringList &available)
{
    const QStringList candidates = QStringList()
                                   << wanted << stored << system << system.section(QLatin1Char('_'), 0, 0);
    for (int i = 0; i < candidates.size(); ++i) {
        if (!candidates.at(i).isEmpty() && available.contains(candidates.at(i))) {
            return candidates.at(i);
        }
    }
    return QLatin1String("en");
}

QString DashboardLanguage::Stored()
{
    return Settings::Read(LanguageKey()).toString();
}

QString DashboardLanguage::NativeName(const QString &language)
{
    for (const NativeLanguageName &native : nativeNames) {
        if (language == QLatin1String(native.language)) {
            return QString::fromUtf8(native.name);
        }
    }
    const QString name = QLocale(language).nativeLanguageName();
    return name.isEmpty() ? language : name;
}

bool DashboardLanguage::Apply(const QString &language)
{
    if (!HostControl::SetLanguage(language)) {
        return false;
    }
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
    m_plugins->Notify(languageChangeEvent);
    emit Switched();
    return true;
}
