#ifndef CONNECTIONPICTURE_H
#define CONNECTIONPICTURE_H

#include <CallerRights.h>
#include <NetworkManagerState.h>
#include <NetworkProfile.h>

#include <ConnectionRecords.h>

#include <QHash>
#include <QList>
#include <QString>

/** What became of a profile when it was last tried in vain. */
struct ProfileFailure {
    int failure = FailureNone;
    qint64 when = 0;
};

/** All that is to be known of NetworkManager, as values. */
struct ConnectionPicture {
    /** A ConnectionState::Source; all else says something for SourceKnown alone. */
    int source = ConnectionState::SourceNotKnown;
    NetworkManagerState state;
    /** In the order of NetworkProfile::ComesBefore. */
    QList<NetworkProfile> profiles;
    CallerRights rights;
    /** By the paths of the profiles. */
    QHash<QString, ProfileFailure> failures;
};

/** What IConnectionPlugin tells of a picture. Ids are NetworkManager's paths. */
struct ConnectionRecords {
    ConnectionState state;
    QList<ActiveConnection> connections;
    QList<ConnectionProfile> profiles;
    QList<VisibleNetwork> networks;

    static ConnectionRecords Of(const ConnectionPicture &picture);
};

#endif
