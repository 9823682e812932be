#include <DashboardLanguage.h>

#include <cstdio>

/** Prints the locales that the dashboard takes to be the user's. */
int main()
{
    std::printf("%s\n", DashboardLanguage::OfSystem().join(QLatin1String(" ")).toLatin1().constData());
    return 0;
}
