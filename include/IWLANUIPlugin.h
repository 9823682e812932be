#ifndef IWLANUIPLUGIN_H
#define IWLANUIPLUGIN_H

#include "WLANRecords.h"

#include <QList>
#include <QObject>
#include <QString>

/**
 * What the WLAN plug-in offers the priority plug-in: the remembered profiles, the networks in range, and the
 * storing of new profiles.
 *
 * Obtained from the host's container (Startup::GetPluginContainer) with wlanClassId and WLANInterface, then
 * qobject_cast. Callers look it up for every operation, keep nothing, and quietly skip what needed it when
 * any step yields null.
 *
 * All calls come on the GUI thread and are synchronous: when an operation returns, its output is filled.
 * Outputs belong to the caller and are never null. Nothing is thrown across this interface.
 *
 * The table is binary contract. Counted from one over all its entries, of which the destructor takes the
 * first two, the six operations in use stand at 7, 8, 10, 11, 22 and 23. The entries between them are
 * reserved: they keep the positions, do nothing and are never called by the priority plug-in. A WLAN plug-in
 * leaves them as they are.
 */
class IWLANUIPlugin
{
public:
    virtual ~IWLANUIPlugin() {}

    virtual void Reserved3() {}
    virtual void Reserved4() {}
    virtual void Reserved5() {}
    virtual void Reserved6() {}

    /**
     * 7: stores a new profile and remembers it. The profile is complete as WLANRecords.h tells; keyMaterial
     * holds the key in plain text and must not get into any trace or log.
     *
     * Destroys nothing that is remembered: a profile that can't be stored without that is refused. The WLAN
     * plug-in tells the user itself why, when this has returned: what is shown in the middle of it could
     * outlive the dialog that calls.
     *
     * @return a code of the WLAN plug-in's own; 0 for success, and as long as it is not known what becomes of
     * the profile. The priority plug-in goes on whatever it is.
     */
    virtual int CreateWLANProfile(WLANProfile profile) = 0;

    /** 8: appends every remembered profile, in a stable order, to *list, which comes empty. The result is
     * ignored. */
    virtual int GetRememberedList(QList<RememberedList> *list) = 0;

    virtual void Reserved9() {}

    /**
     * 10: fills *profile, which comes with every text empty, with the profile of that name. An unknown name
     * leaves it as it is. The result is ignored; callers read *profile whatever happened.
     */
    virtual int GetProfileByName(QString name, WLANProfile *profile) = 0;

    /** 11: fills *config. The result is handed on but decides nothing. */
    virtual int GetConfigData(WLANConfigData *config) = 0;

    virtual void Reserved12() {}
    virtual void Reserved13() {}
    virtual void Reserved14() {}
    virtual void Reserved15() {}
    virtual void Reserved16() {}
    virtual void Reserved17() {}
    virtual void Reserved18() {}
    virtual void Reserved19() {}
    virtual void Reserved20() {}
    virtual void Reserved21() {}

    /**
     * 22: appends the networks now in range, best first, to *list. The result is ignored. For a dialog that
     * lists networks, when it opens: devices may be told to look for networks. Who wants to follow them asks
     * IConnectionPlugin, which tells of every change and tells devices nothing.
     */
    virtual int GetAvailableNetworks(QList<WlanAvilableNetworkInfo> *list) = 0;

    /**
     * 23: fills *profile, which comes with every text empty, with what is known of a network in range: its
     * authentication and encryption, and key index and key when it is remembered.
     *
     * @return non-zero when *profile was filled.
     */
    virtual int GetNetworkProfile(const WlanAvilableNetworkInfo &network, WLANProfile *profile) = 0;
};

Q_DECLARE_INTERFACE(IWLANUIPlugin, "com.torvik.netquillforge.plugin.IWLANUIPlugin")

#endif
