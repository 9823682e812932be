#ifndef ICONNECTIONPLUGIN_H
#define ICONNECTIONPLUGIN_H

#include "ConnectionRecords.h"

#include <QList>
#include <QObject>
#include <QString>

/**
 * What a WLAN plug-in tells about connections, and does with them. It stands beside IWLANUIPlugin, whose
 * table stays as it is.
 *
 * Obtained from the host's container (Startup::GetPluginContainer) with wlanClassId and ConnectionInterface,
 * then qobject_cast. It may be another object than the one for WLANInterface. Look it up each time it is
 * needed: it is invalid after the host's OnDestroy.
 *
 * A WLAN plug-in need not have it. Then nothing is known of connections, which is what callers say: they
 * don't guess it from the networks in range.
 *
 * The object has the signal OnConnectionsChanged(), without arguments, emitted after every change of anything
 * that is told here, orders included; connect to it by name. Changes that come close together are told once,
 * from the event loop and never from inside an operation. Who reads at a signal misses nothing. Be connected
 * only while somebody looks, not while the window is minimised, and read once when somebody looks again:
 * while there is a connection, a plug-in may ask its connection manager for a sign now and then.
 *
 * It may have a second signal, OnProfilesChanged(), without arguments, emitted in the same way when a profile
 * has come, has gone or has been given another name. Nothing is asked for the sake of who is connected to it,
 * so a program may be for as long as it runs.
 *
 * All calls come on the GUI thread. None waits: what is told comes from memory, what is ordered is begun, and
 * the signal tells how it goes on. What is told at one time is of one time. Outputs belong to the caller;
 * they are replaced, and a null one makes the operation do nothing. Nothing is thrown across this interface.
 *
 * While ConnectionState::source is not SourceKnown the lists are empty: that is "not known", never "none".
 *
 * The table is binary contract. Counted from one over all its entries, of which the destructor takes the
 * first two, the operations stand at 3 to 14.
 */
class IConnectionPlugin
{
public:
    /** Why an order is not taken: what the ordering operations answer in the place of a number above 0. */
    enum Refusal {
        /** There is no profile, network or connection of that id now. */
        RefusedUnknown = -1,
        /** The connection manager is not known now. */
        RefusedSource = -2,
        /** This user may not do it, not even with a password. */
        RefusedNotAllowed = -3,
        /** A key is needed, or what was given can't be a key of that network. */
        RefusedKey = -4,
        /** An account is needed, which there is no place for. */
        RefusedAccount = -5
    };

    virtual ~IConnectionPlugin() {}

    /** 3 */
    virtual void GetConnectionState(ConnectionState *state) = 0;

    /** 4: the one that carries the traffic first, then those that are up, then the others. */
    virtual void GetActiveConnections(QList<ActiveConnection> *connections) = 0;

    /**
     * 5: every Wi-Fi and mobile-broadband profile, the one first that the connection manager would rather
     * connect by itself, as far as that is known, whether it can be used now or not. Profiles of one name, or
     * of one network, are each told of. Profiles that make a network of this computer's own are left out.
     */
    virtual void GetProfiles(QList<ConnectionProfile> *profiles) = 0;

    /** 6: best first. Nobody is asked to look for networks. */
    virtual void GetVisibleNetworks(QList<VisibleNetwork> *networks) = 0;

    /**
     * 7: has the devices look for networks, where this user may order that. For a user who wants to see
     * networks: it takes power and disturbs connections for a moment. What comes of it is told by the signal.
     */
    virtual void LookForNetworks() = 0;

    /**
     * 8: begins to connect a remembered profile, also one of which it can't be said whether it is in range.
     * What is connected by the same device is ended for it.
     *
     * @return the number of the order, above 0 and never used again; or a Refusal.
     */
    virtual int ConnectProfile(const QString &profileId) = 0;

    /**
     * 9: begins to connect a network in range. Where a remembered profile would join it, that one is
     * connected and key is not looked at. Otherwise a profile is made, which is remembered once it has been
     * connected: a wrong key leaves none behind.
     *
     * @param key  in plain text, empty for an open network; goes to the connection manager and must not get
     *             into any trace or log.
     * @return as ConnectProfile.
     */
    virtual int ConnectNetwork(const QString &networkId, const QString &key) = 0;

    /** 10: begins to end a connection. @return as ConnectProfile. */
    virtual int Disconnect(const QString &connectionId) = 0;

    /**
     * 11: how far an order is. It can be asked for as long as the program runs.
     *
     * @param attempt  what the order answered.
     */
    virtual void GetAttempt(int attempt, ConnectAttempt *result) = 0;

    /**
     * 12: ends an order to connect that is under way; it comes to StageCancelled, unless it was connected
     * first. Any other number does nothing.
     */
    virtual void CancelAttempt(int attempt) = 0;

    /**
     * 13: what GetProfiles does not tell of a profile.
     *
     * @param details  belongs to the caller and is replaced, with an empty id when there is no such profile
     * or the connection manager is not known now; null does nothing.
     */
    virtual void GetProfileDetails(const QString &profileId, ProfileDetails *details) = 0;

    /**
     * 14: begins to delete a profile, with the key that it keeps. Its connection ends with it, no other
     * profile is changed, and nothing brings it back. The user has been asked before. Where the connection
     * manager wants a password, it asks for that. It can't be cancelled.
     *
     * GetAttempt tells how far it is: StageForgetting, then StageForgotten, or StageFailed with the profile
     * still there, FailureNotAllowed when the password was not given. With FailureSource nobody knows what
     * has become of it; GetProfiles tells it in time. Who waits for its end is connected to
     * OnConnectionsChanged meanwhile.
     *
     * @param profileId  a ConnectionProfile::id.
     * @param lastingId  the lastingId of the same record, empty or not. The profile is deleted only if it is
     *                   still the one that has it, otherwise the answer is RefusedUnknown.
     * @return as ConnectProfile; RefusedNotAllowed where ProfileDetails::change is ChangeNotAllowed.
     */
    virtual int Forget(const QString &profileId, const QString &lastingId) = 0;
};

Q_DECLARE_INTERFACE(IConnectionPlugin, "com.torvik.netquillforge.plugin.IConnectionPlugin")

#endif
