#ifndef PROFILEREACH_H
#define PROFILEREACH_H

#include "ConnectionPicture.h"

#include <QByteArray>
#include <QList>
#include <QMultiHash>

/** Whether profiles can be used now, and by what. */
class CProfileReach
{
public:
    /** A station that a device receives. */
    struct Sighting {
        const NetworkDevice *device;
        const AccessPoint *point;
    };

    /** What there is for a profile. */
    struct Reach {
        /** A ConnectionProfile::Use. */
        int use;
        /** The stations by which it could be used, the strongest first. */
        QList<Sighting> sightings;
        /** That it would use; null when there is none. */
        const NetworkDevice *device;
    };

    /** @param state  outlives this. */
    explicit CProfileReach(const NetworkManagerState &state);

    /** Of all stations that devices receive and NetworkManager manages. */
    const QList<Sighting> &Sightings() const { return m_sightings; }

    Reach Of(const NetworkProfile &profile) const;

private:
    Q_DISABLE_COPY(CProfileReach)

    Reach OfWifi(const NetworkProfile &profile) const;
    Reach OfMobile(const NetworkProfile &profile) const;
    QList<Sighting> Named(const NetworkProfile &profile) const;

    const NetworkManagerState &m_state;
    QList<Sighting> m_sightings;
    /** Places in the sightings, by the name of the network; those without one by the station's address. */
    QMultiHash<QByteArray, int> m_byName;
    QMultiHash<QByteArray, int> m_hidden;
};

#endif
