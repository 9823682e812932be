#ifndef RANGESOURCE_H
#define RANGESOURCE_H

#include "ComplaintLog.h"
#include "WLANResult.h"

#include <ConnectionRecords.h>

#include <QList>
#include <QString>

struct NetworkInRange {
    QString name;
    /** Percent, 0 to 100. */
    int signal = 0;
    /** 0 when it is not known. */
    int channel = 0;
    /** As in WLANProfile. */
    QString authentication;
    QString encryption;
    /** How connecting to it fails, a ConnectionFailure. */
    int failure = FailureNone;
};

/**
 * The networks in range: the file "WLANNetworks.xml" in the user data directory, which is only ever read, or
 * a sample when there is none.
 *
 *     <wlannetworks>
 *         <network name="Home" signal="92" channel="6" authentication="WPA2PSK" encryption="CCMP"/>
 *     </wlannetworks>
 *
 * signal is a whole number from 0 to 100; a network without a usable one is left out. channel may be missing.
 * authentication and encryption are the words of WLANProfile, "open" and "none" when they are missing.
 * failure has connecting to the network fail, in one of the words "key", "answer", "address" and "refused".
 * Texts are escaped as XmlRecords tells. What is wrong in the file is told in the log, with its line.
 */
class CRangeSource
{
public:
    /** The networks, strongest first, one for each name, hidden ones (without a name) left out. */
    WLANResult List(QList<NetworkInRange> *networks);

private:
    CComplaintLog m_complaints{"WLANStored"};
};

#endif
