#ifndef DETAILSOFPROFILE_H
#define DETAILSOFPROFILE_H

#include <ConnectionRecords.h>

#include <QString>

struct ConnectionPicture;

namespace DetailsOfProfile
{

/** What IConnectionPlugin tells of the profile with that path. */
ProfileDetails Find(const ConnectionPicture &picture, const QString &path);

} // namespace DetailsOfProfile

#endif
