#ifndef IORDERPLUGIN_H
#define IORDERPLUGIN_H

#include "OrderRecords.h"

#include <QObject>

/**
 * What a WLAN plug-in does for the list to take effect on the connection manager.
 *
 * Obtained from the host's container (Startup::GetPluginContainer) with wlanClassId and OrderInterface, then
 * qobject_cast. It may be another object than those for the other interfaces. Look it up each time it is
 * needed: it is invalid after the host's OnDestroy.
 *
 * A WLAN plug-in need not have it: one that touches nothing real has not. One that has it works whether
 * anybody asks or not: from its Init on, every change of the list is followed. So a program that stays needs
 * no operation of this interface. They are for one that wants to know what was done before it goes on, or
 * ends.
 *
 * The plug-in reads the list through IPriorityPlugin, which has to be in the same container while an order is
 * under way.
 *
 * The object has the signal OnOrderChanged(), without arguments, emitted when an order has come to its end,
 * and when what GetStanding tells has changed; from the event loop, never from inside an operation. Connect
 * to it by name.
 *
 * It may have the signal OnSwitched(QString, QString) as well, emitted from the event loop when a switch that
 * the list made by itself has come up: the names of the network that is in use since, and of the one before.
 * Of several programs of one user it is emitted in the one that made the switch. A plug-in that switches by
 * itself has it; the dashboard tells the user of it.
 *
 * All calls come on the GUI thread, and none waits. Nothing is thrown across this interface.
 *
 * The table is binary contract. Counted from one over all its entries, of which the destructor takes the
 * first two, the operations stand at 3 to 6.
 */
class IOrderPlugin
{
public:
    virtual ~IOrderPlugin() {}

    /**
     * 3: begins to bring the connection manager to what the list asks for now. Where the user has chosen that
     * the list is not to rule, each profile is given back what it had before. Nothing but priorities is
     * written, into settings that are read directly before; a priority that somebody else has set since the
     * list's is theirs and stays when the list no longer asks for another.
     *
     * Programs of one user have this one at a time. While another one has it, the order is under way.
     *
     * @return the number of the order, above 0 and never used again.
     */
    virtual int Apply() = 0;

    /**
     * 4: how far an order is. It can be asked for as long as the program runs.
     *
     * @param outcome  belongs to the caller and is replaced; null does nothing.
     */
    virtual void GetOutcome(int order, OrderOutcome *outcome) = 0;

    /**
     * 5: what the list's rule came to when the list was last followed, whether that was ordered or not.
     *
     * @param outcome  as for GetOutcome. StageOrderNotKnown until the list was followed for the first time;
     *                 changes is empty.
     */
    virtual void GetStanding(OrderOutcome *outcome) = 0;

    /**
     * 6: begins to have a profile connected by the connection manager itself, or not any more. Nothing else
     * of the profile is changed. It is the user's own wish for this one profile, so where the connection
     * manager wants a password for it, it asks for that.
     *
     * @param profileId  a ConnectionProfile::id.
     * @return as Apply. The outcome has no changes; what could not be done is in kept, also for a profile
     *         that is not there (with ObstacleNotKnown and no name).
     */
    virtual int SetConnectsByItself(const QString &profileId, bool isOn) = 0;
};

Q_DECLARE_INTERFACE(IOrderPlugin, "com.torvik.netquillforge.plugin.IOrderPlugin")

#endif
