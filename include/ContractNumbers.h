#ifndef CONTRACTNUMBERS_H
#define CONTRACTNUMBERS_H

/*
 * The ids and numbers that the host and its plug-ins agree on. They are the host's: older hosts and plug-ins
 * have them compiled in, so none of them ever changes, and a new one takes a number that has never been used.
 */

/** Class ids for IPluginContainer::GetPluginObject. Compared letter by letter, so their case counts. */
const char priorityClassId[] = "D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05";
const char wlanClassId[] = "7545FB07-0E7A-4F27-A449-872DB09C106D";

/** Interface numbers for IBasePlugin::QueryInterface and IPluginContainer::GetPluginObject. */
enum InterfaceNumber {
    /** ISettingUIPlugin, of the priority plug-in. */
    SettingInterface = 0x1002,
    /** IWLANUIPlugin. */
    WLANInterface = 0x1006,
    /** IPriorityPlugin. The object is the one for SettingInterface. */
    PriorityInterface = 0x1007,
    /** IConnectionPlugin, of the WLAN plug-in. May be another object than the one for WLANInterface. */
    ConnectionInterface = 0x1008,
    /** IOrderPlugin, of the WLAN plug-in. May be another object than those before. */
    OrderInterface = 0x1009
};

/** Events for INotify::Notify. A host has more of them, which are of no concern here. */
enum HostEvent {
    /** The language has changed. */
    LanguageChangeEvent = 0x140
};

/** What IPriorityPlugin::GetPriorityList answers. */
enum PriorityResult {
    /** All entries were read. */
    PriorityRead = 0,
    /** The file is not well-formed. The entries before the error were read. */
    PriorityDamaged = 6,
    /** There is no file yet, or no list to read into. */
    PriorityMissing = 23,
    /** The file is there and can't be opened. */
    PriorityNotOpened = 25
};

#endif
