#include "DetailsOfProfile.h"

#include "ConnectionPicture.h"

#include <NetworkManagerQt/Setting>

#include <QStringList>
#include <QVariantMap>

namespace
{

/** What NetworkManager takes from the device by which the profile is connected now. */
int GuessOf(const ConnectionPicture &picture, const NetworkProfile &profile)
{
    for (const ActiveObject &connection : picture.state.connections) {
        for (const NetworkDevice &device : picture.state.devices) {
            if (connection.profile != profile.path || !connection.devices.contains(device.path)) {
                continue;
            }
            if (device.metered == NM_METERED_GUESS_YES) {
                return ProfileDetails::MeteredGuessedYes;
            }
            if (device.metered == NM_METERED_GUESS_NO) {
                return ProfileDetails::MeteredGuessedNo;
            }
        }
    }
    return ProfileDetails::MeteredNotKnown;
}

int MeteredOf(const ConnectionPicture &picture, const NetworkProfile &profile, const QVariantMap &connection)
{
    switch (connection.value(QLatin1String("metered")).toInt()) {
    case NM_METERED_YES:
        return ProfileDetails::MeteredYes;
    case NM_METERED_NO:
        return ProfileDetails::MeteredNo;
    default:
        return GuessOf(picture, profile);
    }
}

int ChangeOf(const NetworkProfile &profile)
{
    if (profile.isReadOnly) {
        return ProfileDetails::ChangeNotAllowed;
    }
    return profile.isFreelyChangeable ? ProfileDetails::ChangeAllowed : ProfileDetails::ChangeAfterPassword;
}

/** Of entries such as "user:anna:". */
QStringList UsersIn(const QStringList &permissions)
{
    QStringList users;
    for (const QString &permission : permissions) {
        if (permission.section(QLatin1Char(':'), 0, 0) == QLatin1String("user")) {
            users.append(permission.section(QLatin1Char(':'), 1, 1));
        }
    }
    return users;
}

ProfileDetails Of(const ConnectionPicture &picture, const NetworkProfile &profile)
{
    const QVariantMap connection = profile.settings.value(QLatin1String("connection"));
    const QStringList permissions = connection.value(QLatin1String("permissions")).toStringList();
    ProfileDetails details;
    details.id = profile.path;
    details.boundDevice = connection.value(QLatin1String("interface-name")).toString();
    details.metered = MeteredOf(picture, profile, connection);
    details.change = ChangeOf(profile);
    details.users = UsersIn(permissions);
    // Of a permission of another kind nobody can say whom it is for.
    details.areUsersKnown = details.users.size() == permissions.size();
    details.priority = profile.priority;
    details.isPriorityKnown = true;
    return details;
}

} // namespace

ProfileDetails DetailsOfProfile::Find(const ConnectionPicture &picture, const QString &path)
{
    if (picture.source == ConnectionState::SourceKnown) {
        for (const NetworkProfile &profile : picture.profiles) {
            if (profile.path == path) {
                return Of(picture, profile);
            }
        }
    }
    return ProfileDetails();
}
