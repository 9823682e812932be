#ifndef PRIORITYLIST_H
#define PRIORITYLIST_H

#include <QString>

/**
 * One entry of the priority list; the list itself is a QList<PriorityList> with the highest priority at index
 * 0.
 *
 * A plain value that crosses library boundaries: exactly these two fields in this order, and nothing else.
 *
 * Two entries are the same entry when both fields are exactly equal: case counts, nothing is trimmed.
 */
struct PriorityList {
    /**
     * Name of the Wi-Fi profile, which is the SSID for profiles made in the dashboard, or name of the
     * mobile-broadband entry. Any text. Characters that XML can't carry come back from the priority file as
     * U+FFFD: U+0000 to U+001F but for tab, line feed and carriage return, surrogates that stand alone,
     * U+FFFE and U+FFFF.
     */
    QString name;

    /** Kind of entry, a decimal number as text: "1" is Wi-Fi, anything else the mobile-broadband entry. */
    QString type;
};

#endif
