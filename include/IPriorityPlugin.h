#ifndef IPRIORITYPLUGIN_H
#define IPRIORITYPLUGIN_H

#include "ContractNumbers.h"
#include "PriorityList.h"

#include <QList>
#include <QObject>

/**
 * The priority list as other plug-ins reach it.
 *
 * Obtained from the host's container (Startup::GetPluginContainer) with priorityClassId and SettingInterface
 * or PriorityInterface, then qobject_cast. Look it up each time it is needed: it is invalid after the host's
 * OnDestroy. All calls come on the GUI thread.
 *
 * Every operation works on the file Priority.xml at once, not on what an open settings page shows. An open
 * page follows the change before the operation returns. The same object has the signal
 * OnUpdataPriorityView(), without arguments, emitted after every change made through this interface; connect
 * to it by name.
 *
 * Table: destructor, then the operations below in their order.
 */
class IPriorityPlugin
{
public:
    virtual ~IPriorityPlugin() {}

    /**
     * Appends the stored entries, highest priority first, to *list, which is not cleared.
     *
     * @return a PriorityResult. After OnDestroy: PriorityRead, with nothing appended.
     */
    virtual int GetPriorityList(QList<PriorityList> *list) = 0;

    /**
     * Appends every entry, in the order given, at the end of the stored list. Entries already stored are not
     * looked for: adding one of them again stores it twice. An empty list rewrites the file as it is. A file
     * that could not be read is replaced by what could be read of it and the new entries. The argument is not
     * changed.
     */
    virtual void AddPriorityList(QList<PriorityList> &entries) = 0;

    /**
     * Makes entry the first of the stored list: an equal entry already there moves to the top, the others
     * keep their order. An entry with an empty name is ignored, and then no signal is emitted.
     */
    virtual void AddTopPriority(PriorityList entry) = 0;
};

Q_DECLARE_INTERFACE(IPriorityPlugin, "com.torvik.netquillforge.plugin.IPriorityPlugin")

#endif
