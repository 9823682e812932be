#include "SiblingPlugin.h"

#include <ContractNumbers.h>

CSiblingPlugin::CSiblingPlugin() : QObject(nullptr) {}

void CSiblingPlugin::Release() {}

int CSiblingPlugin::GetLastError()
{
    return 0;
}

void CSiblingPlugin::UnSDKRegisterEvent() {}

bool CSiblingPlugin::Init()
{
    return true;
}

int CSiblingPlugin::GetPluginType()
{
    return 0;
}

QString CSiblingPlugin::GetCLSID()
{
    return QLatin1String(wlanClassId);
}

int CSiblingPlugin::GetVersion()
{
    return 0;
}

bool CSiblingPlugin::IsAllowRelease()
{
    return false;
}

bool CSiblingPlugin::QueryInterface(int interfaceNumber, QObject **object)
{
    QObject *service = object ? Service(interfaceNumber) : nullptr;
    if (!service) {
        return false;
    }
    *object = service;
    return true;
}

bool CSiblingPlugin::ShowWindow(QWidget *, QRect &)
{
    return false;
}

int CSiblingPlugin::DoModal()
{
    return 0;
}

void CSiblingPlugin::Hide() {}

void CSiblingPlugin::FitSize(QRect &) {}

bool CSiblingPlugin::IsReady()
{
    return false;
}

bool CSiblingPlugin::ChangeLang(const QString &language)
{
    return !language.isEmpty();
}
