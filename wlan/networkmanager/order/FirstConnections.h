#ifndef FIRSTCONNECTIONS_H
#define FIRSTCONNECTIONS_H

#include "PriorityRecords.h"

#include <NetworkProfile.h>

#include <PriorityList.h>

#include <QList>
#include <QString>

namespace FirstConnections
{

/**
 * The profiles that have been connected for the first time since the records were last asked and that the
 * list doesn't have, in the order in which they were. What has been connected before there were any records
 * is old, and so is what stands in the list.
 *
 * @param connectedProfiles  the paths of those that are connected now.
 * @param records            receives what is old; whoever deals with a profile that was found adds its uuid.
 */
QList<NetworkProfile> Find(const QList<NetworkProfile> &profiles, const QList<QString> &connectedProfiles,
                           const QList<PriorityList> &list, CPriorityRecords *records);

} // namespace FirstConnections

#endif
