// A host program that uses the reference implementation of the services.

#include <Change.h>
#include <CommonUtils.h>
#include <HostControl.h>
#include <ZeltSdk.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    HostControl::SetPluginLibraryPath(QLatin1String("/somewhere/"));
    unsigned short *path = nullptr;
    const long status = ZELT_GetUserDataDirectory(&path);
    std::printf("%ld %s %s\n", status, qPrintable(CommonUtils::GetPluginLibraryPath()),
                qPrintable(Change::tr(QLatin1String("IDS_OK"), QString())));
    delete[] path;
    return 0;
}
