#ifndef NETWORKMANAGERWLANSERVICE_H
#define NETWORKMANAGERWLANSERVICE_H

#include "ProfileWriter.h"

#include <NetworkManagerResult.h>

#include <ComplaintLog.h>
#include <IWLANUIPlugin.h>
#include <UserNotice.h>

class CLivePicture;
class CNetworkManagerClient;

/**
 * The WLAN interface over NetworkManager. Results are those of NetworkManagerResult.h, GetNetworkProfile's
 * are 1 and 0. What is asked for is answered from the live picture, and nobody is kept waiting. Keys go to
 * NetworkManager and don't come back, but for the other keys of a WEP profile that gets a new one:
 * NetworkManager would drop them.
 *
 * Of a network in range, value1 is the signal in percent, value2 the channel or 0 when it is not known, and
 * value3 to value5 are 0.
 */
class CNetworkManagerWLANService : public QObject, public IWLANUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IWLANUIPlugin)

public:
    /** @param client  outlives the service, as picture does. */
    CNetworkManagerWLANService(CNetworkManagerClient *client, CLivePicture *picture, QObject *parent);
    /** Gives a profile that is being stored a last moment. */
    ~CNetworkManagerWLANService() override;

    /**
     * Stores the profile for everybody where this user may do that, and for this user alone otherwise.
     *
     * Destroys nothing. A Wi-Fi profile of the same name gets the new network name, method and key and keeps
     * everything else, where ProfileRules.h allows that; otherwise all profiles stay as they are. A profile
     * of another name that is for the same network is never changed: the new one is stored beside it, or
     * refused where it would be the weaker one. What goes wrong is told to the user.
     *
     * The profile connects by itself whatever its connectionMode is: it is the list that decides when.
     *
     * @return why it can't be stored where that is known at once; ProfileEnded comes in any case.
     */
    int CreateWLANProfile(WLANProfile profile) override;

    /**
     * In alphabetical order, without hotspots, which are not there to be joined. When NetworkManager gives no
     * usable answer for single ones, those for which it did.
     */
    int GetRememberedList(QList<RememberedList> *list) override;

    /** Of several profiles of one name a Wi-Fi profile is given, and of these the one that was used last. */
    int GetProfileByName(QString name, WLANProfile *profile) override;

    /** Fills the authentication methods and leaves the other members as they are. */
    int GetConfigData(WLANConfigData *config) override;

    /** Has NetworkManager look for networks, too, so that there is news when it is asked the next time. */
    int GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list) override;

    /**
     * A network that is out of range and remembered is filled from its profile. Fields other than
     * profileName, ssid, bssType, authentication, encryption, keyType and keyIndex are left as they are.
     */
    int GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile) override;

signals:
    /** What became of a profile that was to be stored, refused or not. */
    void ProfileEnded(int result);

private slots:
    void TakeEnd(NetworkManagerResult result, const QString &name, const QString &better);

private:
    Q_DISABLE_COPY(CNetworkManagerWLANService)

    NetworkManagerResult Outcome() const;
    static NetworkManagerResult Check(const WLANProfile &wanted);
    NetworkManagerResult Tell(const char *operation, NetworkManagerResult result);

    CLivePicture *const m_picture;
    CProfileWriter m_writer;
    /** Of the profile that is being stored, as far as it is known. */
    NetworkManagerResult m_result;
    CComplaintLog m_complaints{"WLANNetworkManager"};
    CUserNotice m_notice;
};

#endif
