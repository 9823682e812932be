#include "ProfileUpdate.h"

#include "NetworkProfile.h"

#include <NetworkManagerClient.h>

#include <QDBusMessage>
#include <QVariantMap>

namespace
{

struct Forms {
    const char *old;
    const char *whole;
};

const Forms forms[] = {
    {"addresses", "address-data"},
    {"routes", "route-data"},
    {"dns", "dns-data"},
    {"cloned-mac-address", "assigned-mac-address"},
};

} // namespace

NMVariantMapMap ProfileUpdate::WithoutOldForms(NMVariantMapMap settings)
{
    for (NMVariantMapMap::iterator section = settings.begin(); section != settings.end(); ++section) {
        for (const Forms &form : forms) {
            if (section.value().contains(QLatin1String(form.whole))) {
                section.value().remove(QLatin1String(form.old));
            }
        }
    }
    return settings;
}

QDBusMessage ProfileUpdate::Call(const NetworkProfile &profile, const NMVariantMapMap &settings)
{
    QVariantMap conditions;
    if (profile.version != 0) {
        conditions.insert(QLatin1String("version-id"), profile.version);
    }
    QDBusMessage call = CNetworkManagerClient::Call(profile.path, CNetworkManagerClient::ProfileInterface(),
                                                    QLatin1String("Update2"));
    call << QVariant::fromValue(WithoutOldForms(settings)) << 0U << conditions;
    return call;
}
