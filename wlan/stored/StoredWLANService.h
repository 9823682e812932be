#ifndef STOREDWLANSERVICE_H
#define STOREDWLANSERVICE_H

#include "ProfileStore.h"
#include "RangeSource.h"

#include <IWLANUIPlugin.h>
#include <UserNotice.h>

/**
 * The WLAN interface over the two files. Results are those of WLANResult.h, GetNetworkProfile's are 1 and 0.
 *
 * Of a network in range, value1 is the signal in percent, value2 the channel or 0 when it is not known, and
 * value3 to value5 are 0.
 */
class CStoredWLANService : public QObject, public IWLANUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IWLANUIPlugin)

public:
    explicit CStoredWLANService(QObject *parent);

    /**
     * Destroys nothing: ProfileRules.h tells what becomes of a profile of the same name. A profile of the
     * mobile-broadband kind stays as it is: it and the new one differ in their type. What goes wrong is told
     * to the user.
     */
    int CreateWLANProfile(WLANProfile profile) override;

    int GetRememberedList(QList<RememberedList> *list) override;

    /** Of two profiles of the same name and different kinds, the Wi-Fi profile is given. */
    int GetProfileByName(QString name, WLANProfile *profile) override;

    /** Fills the authentication methods and leaves the other members as they are. */
    int GetConfigData(WLANConfigData *config) override;

    int GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list) override;

    /**
     * A network that is out of range and remembered is filled from its profile. Fields other than
     * profileName, ssid, authentication, encryption, keyType, keyMaterial and keyIndex are left as they are.
     */
    int GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile) override;

private:
    Q_DISABLE_COPY(CStoredWLANService)

    CProfileStore m_profiles;
    CRangeSource m_range;
    CUserNotice m_notice;
};

#endif
