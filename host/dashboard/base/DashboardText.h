#ifndef DASHBOARDTEXT_H
#define DASHBOARDTEXT_H

#include <Change.h>

#include <QLatin1String>
#include <QString>

/** A text of the dashboard's own in the current language. */
inline QString DashboardText(const char *id)
{
    return Change::tr(QLatin1String(id), QLatin1String("Dashboard"));
}

#endif
