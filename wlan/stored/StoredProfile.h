#ifndef STOREDPROFILE_H
#define STOREDPROFILE_H

#include <WLANRecords.h>

#include <QList>

/** A remembered profile with its kind, which the profile itself has no field for. */
struct StoredProfile {
    WLANProfile profile;
    /** As in RememberedList: "1" is Wi-Fi. */
    QString type;

    bool IsWifi() const { return type == QLatin1String("1"); }
};

/** As the New dialog makes them. */
WLANProfile NewWifiProfile(const QString &name, const QString &authentication, const QString &encryption,
                           const QString &key);

/** What a new user finds remembered. */
QList<StoredProfile> SampleProfiles();

#endif
