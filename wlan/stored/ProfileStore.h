#ifndef PROFILESTORE_H
#define PROFILESTORE_H

#include "ComplaintLog.h"
#include "StoredProfile.h"
#include "WLANResult.h"

#include <QList>
#include <QString>

/**
 * The remembered profiles: the file "WLANProfiles.xml" in the user data directory, the only code that touches
 * it.
 *
 *     <wlanprofiles>
 *         <profile type="1" profileName="Home" text1="" ... text17=""/>
 *     </wlanprofiles>
 *
 * A profile has its eighteen texts under the names of their members, escaped as XmlRecords tells, and type,
 * which is "1" when it is missing. Names are unique among the profiles of one kind; of a name that stands
 * twice, the first is given and none is changed. Missing texts are empty; a profile must have a name.
 *
 * The file holds keys in plain text and so has permissions 0600. It is made with a sample when it is missing,
 * read anew for every operation, and never overwritten while it is damaged.
 */
class CProfileStore
{
public:
    /** Appends the profiles in the order of the file, those before the damage when it is damaged. */
    WLANResult List(QList<StoredProfile> *profiles);

    /**
     * Appends a Wi-Fi profile, or gives the Wi-Fi profile of that name its network name, method and key, as
     * far as ProfileRules allow that.
     *
     * @param better  receives the name of the profile that is the reason for WLANResultBetterProfile.
     */
    WLANResult Store(const WLANProfile &profile, QString *better);

    /** Removes the profile of that kind and name; its key is not in the file any more. */
    WLANResult Remove(const QString &type, const QString &name);

private:
    CComplaintLog m_complaints{"WLANStored"};
};

#endif
