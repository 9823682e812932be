#ifndef DASHBOARDTEXT_H
#define DASHBOARDTEXT_H

#include <Change.h>

#include <QLatin1String>
#include <QLocale>
#include <QString>
#include <QStringList>

/** A text of the dashboard's own in the current language. */
inline QString DashboardText(const char *id)
{
    return Change::tr(QLatin1String(id), QLatin1String("Dashboard"));
}

/** A number in the digits of the current language, which are also those of its dates. */
inline QString DashboardNumber(qint64 number)
{
    QLocale locale(Change::GetLangName());
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

/** Texts one behind the other, as the text with patternId puts two; empty ones are left out. */
inline QString DashboardJoined(const char *patternId, const QStringList &texts)
{
    QString joined;
    for (const QString &text : texts) {
        joined =
            joined.isEmpty() || text.isEmpty() ? joined + text : DashboardText(patternId).arg(joined, text);
    }
    return joined;
}

#endif
