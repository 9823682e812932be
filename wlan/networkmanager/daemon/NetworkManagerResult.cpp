#include "NetworkManagerResult.h"

#include <QDBusMessage>
#include <QString>
#include <QStringList>

namespace
{

struct NamedError {
    const char *name;
    NetworkManagerResult result;
};

const NamedError namedErrors[] = {
    {"org.freedesktop.DBus.Error.Disconnected", NetworkManagerResultNoBus},
    {"org.freedesktop.DBus.Error.NoServer", NetworkManagerResultNoBus},
    {"org.freedesktop.DBus.Error.ServiceUnknown", NetworkManagerResultNotRunning},
    {"org.freedesktop.DBus.Error.NameHasNoOwner", NetworkManagerResultNotRunning},
    {"org.freedesktop.DBus.Error.NoReply", NetworkManagerResultNotAnswering},
    {"org.freedesktop.DBus.Error.Timeout", NetworkManagerResultNotAnswering},
    {"org.freedesktop.DBus.Error.TimedOut", NetworkManagerResultNotAnswering},
    {"org.freedesktop.DBus.Error.InvalidSignature", NetworkManagerResultUnusableAnswer},
    {"org.freedesktop.DBus.Error.AccessDenied", NetworkManagerResultPermissionDenied},
    {"org.freedesktop.NetworkManager.Settings.VersionIdMismatch", NetworkManagerResultChangedMeanwhile},
    {"org.freedesktop.NetworkManager.Device.VersionIdMismatch", NetworkManagerResultChangedMeanwhile},
};

/** Those of a profile's content. */
const char profileErrors[] = "org.freedesktop.NetworkManager.Settings.Connection.";
const char profileError[] = "org.freedesktop.NetworkManager.Settings.InvalidConnection";
const char permissionError[] = ".PermissionDenied";

NetworkManagerResult ResultOfError(const QString &name)
{
    for (const NamedError &error : namedErrors) {
        if (name == QLatin1String(error.name)) {
            return error.result;
        }
    }
    if (name.endsWith(QLatin1String(permissionError))) {
        return NetworkManagerResultPermissionDenied;
    }
    if (name.startsWith(QLatin1String(profileErrors)) || name == QLatin1String(profileError)) {
        return NetworkManagerResultProfileRefused;
    }
    return NetworkManagerResultFailed;
}

} // namespace

NetworkManagerResult ResultOf(const QDBusMessage &reply, const char *signature)
{
    switch (reply.type()) {
    case QDBusMessage::ReplyMessage:
        return reply.signature() == QLatin1String(signature) ? NetworkManagerResultSuccess
                                                             : NetworkManagerResultUnusableAnswer;
    case QDBusMessage::ErrorMessage:
        return ResultOfError(reply.errorName());
    default:
        return NetworkManagerResultNoBus;
    }
}

QString DescriptionOf(NetworkManagerResult result)
{
    switch (result) {
    case NetworkManagerResultSuccess:
        break;
    case NetworkManagerResultNullPointer:
        return QLatin1String("there is no place for the answer");
    case NetworkManagerResultUnusableName:
        return QLatin1String("the profile's name is empty or can't be sent");
    case NetworkManagerResultUnknownName:
        return QLatin1String("there is no profile of that name");
    case NetworkManagerResultReadOnlyProfile:
        return QLatin1String("the profile of that name is read-only");
    case NetworkManagerResultUnusableNetworkName:
        return QLatin1String("a network name has 1 to 32 bytes");
    case NetworkManagerResultUnusableSecurity:
        return QLatin1String("authentication, encryption and key index don't go together");
    case NetworkManagerResultNoBus:
        return QLatin1String("there is no system bus");
    case NetworkManagerResultNotRunning:
        return QLatin1String("NetworkManager is not running");
    case NetworkManagerResultNotAnswering:
        return QLatin1String("NetworkManager does not answer");
    case NetworkManagerResultUnusableAnswer:
        return QLatin1String("NetworkManager's answer can't be understood");
    case NetworkManagerResultPermissionDenied:
        return QLatin1String("this user may not do that");
    case NetworkManagerResultProfileRefused:
        return QLatin1String("NetworkManager does not take the profile");
    case NetworkManagerResultFailed:
        return QLatin1String("NetworkManager answered with an error");
    case NetworkManagerResultNoAccount:
        return QLatin1String("a profile with EAP needs an account, which can't be stored from here");
    case NetworkManagerResultSeveralProfiles:
        return QLatin1String("several profiles have that name, none of them is changed");
    case NetworkManagerResultUndescribedProfile:
        return QLatin1String("a profile of a kind that the dialog can't describe is not changed");
    case NetworkManagerResultWeakerMethod:
        return QLatin1String("a profile is not given a weaker method");
    case NetworkManagerResultIncompleteKey:
        return QLatin1String("a profile is not changed without a key that is complete");
    case NetworkManagerResultBetterProfile:
        return QLatin1String("a profile is not stored beside a better one for the same network");
    case NetworkManagerResultChangedMeanwhile:
        return QLatin1String("somebody else has just changed the profile");
    case NetworkManagerResultNotKnownYet:
        return QLatin1String("NetworkManager has not answered yet");
    }
    return QString();
}

const char *NoticeOf(NetworkManagerResult result)
{
    switch (result) {
    case NetworkManagerResultSuccess:
    case NetworkManagerResultNullPointer:
    case NetworkManagerResultUnknownName:
        break;
    case NetworkManagerResultUnusableName:
    case NetworkManagerResultUnusableNetworkName:
        return "IDS_WLAN_BAD_NAME";
    case NetworkManagerResultReadOnlyProfile:
        return "IDS_WLAN_KEPT_READ_ONLY";
    case NetworkManagerResultUnusableSecurity:
        return "IDS_WLAN_BAD_SECURITY";
    case NetworkManagerResultNoBus:
    case NetworkManagerResultNotRunning:
        return "IDS_WLAN_NOT_RUNNING";
    case NetworkManagerResultNotAnswering:
    case NetworkManagerResultUnusableAnswer:
    case NetworkManagerResultNotKnownYet:
        return "IDS_WLAN_NO_ANSWER";
    case NetworkManagerResultPermissionDenied:
        return "IDS_WLAN_DENIED";
    case NetworkManagerResultProfileRefused:
        return "IDS_WLAN_REFUSED";
    case NetworkManagerResultFailed:
        return "IDS_WLAN_FAILED";
    case NetworkManagerResultNoAccount:
        return "IDS_WLAN_NO_ACCOUNT";
    case NetworkManagerResultSeveralProfiles:
        return "IDS_WLAN_KEPT_SEVERAL";
    case NetworkManagerResultUndescribedProfile:
        return "IDS_WLAN_KEPT_UNDESCRIBED";
    case NetworkManagerResultWeakerMethod:
        return "IDS_WLAN_KEPT_STRONGER";
    case NetworkManagerResultIncompleteKey:
        return "IDS_WLAN_KEPT_KEY";
    case NetworkManagerResultBetterProfile:
        return "IDS_WLAN_BETTER_PROFILE";
    case NetworkManagerResultChangedMeanwhile:
        return "IDS_WLAN_BUSY";
    }
    return nullptr;
}
