#ifndef PRIORITYPLAN_H
#define PRIORITYPLAN_H

#include "NetworkProfile.h"
#include "PriorityRecords.h"

#include <PriorityList.h>

#include <QList>
#include <QMap>
#include <QString>

/** A priority to be written. */
struct PriorityChange {
    NetworkProfile profile;
    int priority = 0;
};

namespace PriorityPlan
{

/**
 * The priority that entries have for NetworkManager, by their place in the list: 999 for the first, one less
 * for each that follows, and -999 for all that are beyond NetworkManager's range.
 *
 * What is not in the list keeps its own priority, which is 0 unless somebody has set another. It comes after
 * the entries with a greater one, mostly the first 999, and before those with a smaller one. Of profiles with
 * the same priority NetworkManager takes the one that was used last.
 *
 * An entry that stands in the list twice has its first place. Profiles of one name all have the place of that
 * name.
 */
int PriorityAt(int place);

/**
 * What has to be written for the list to take effect: to profiles in the list that have another priority than
 * their place gives, and to profiles that left the list with the priority that was written to them, which get
 * the one that they had before. Profiles that can't freely be changed are left alone, and those that lack an
 * account are treated as if they were not in the list: NetworkManager would try them in vain before others.
 *
 * @param records  receives what is about to be written, and loses what somebody else has overwritten since.
 */
QList<PriorityChange> Make(const QList<PriorityList> &list, const QList<NetworkProfile> &profiles,
                           QMap<QString, PriorityRecord> *records);

} // namespace PriorityPlan

#endif
