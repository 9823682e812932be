#ifndef PRIORITYPLAN_H
#define PRIORITYPLAN_H

#include "PriorityRecords.h"

#include <NetworkProfile.h>

#include <PriorityList.h>

#include <QList>
#include <QMap>
#include <QString>

/** A priority to be written. */
struct PriorityChange {
    NetworkProfile profile;
    int priority = 0;
    /** Its place is in the list. */
    bool isListed = false;
};

/** What has to be done, and what can't be. */
struct PlannedPriorities {
    QList<PriorityChange> changes;
    /** Profiles in the list that can't be changed and contradict it. */
    QList<NetworkProfile> contradicting;
    /** Profiles outside the list that come before one in it which can be changed. */
    QList<NetworkProfile> overtaking;
    /** Profiles that are to have their former priority back and can't be changed. */
    QList<NetworkProfile> owing;
};

namespace PriorityPlan
{

/** The places, counted from 0, of the profiles that the list has one for, by their uuids. */
QMap<QString, int> Places(const QList<PriorityList> &list, const QList<NetworkProfile> &profiles);

/**
 * What has to be written for the list to take effect: to profiles in the list whose priorities do not follow
 * it, and to profiles that left the list with the priority that was written to them, which get the one that
 * they had before.
 *
 * As few profiles as possible are written; what follows the list already stays, whoever has set it. Profiles
 * that can't freely be changed are left alone, and the others are fitted around them. Those that lack an
 * account are treated as if they were not in the list: NetworkManager would try them in vain before others.
 *
 * What is not in the list keeps its own priority, which is 0 unless somebody has set another, and comes after
 * the entries: as far as NetworkManager's range has room for them above it. Of profiles with the same
 * priority NetworkManager takes the one that was used last.
 *
 * An entry that stands in the list twice has its first place. Profiles of one name all have the place of that
 * name.
 *
 * @param records  receives what is about to be written, and loses what somebody else has overwritten since.
 */
PlannedPriorities Make(const QList<PriorityList> &list, const QList<NetworkProfile> &profiles,
                       QMap<QString, PriorityRecord> *records);

} // namespace PriorityPlan

#endif
