#ifndef NETWORKPROFILE_H
#define NETWORKPROFILE_H

#include <CallerRights.h>
#include <NetworkManagerState.h>

#include <NetworkManagerQt/GenericTypes>

#include <QByteArray>
#include <QPair>
#include <QString>

struct PriorityList;
struct WLANProfile;

/** A profile that NetworkManager remembers, without its secrets. */
struct NetworkProfile {
    enum Kind { Wifi, MobileBroadband, OtherKind };

    QString path;
    QString uuid;
    QString name;
    Kind kind = OtherKind;
    /** Empty but for Wi-Fi. */
    QByteArray ssid;
    /** A network that this computer makes itself, for others to join. */
    bool isHotspot = false;
    /** A network that doesn't tell its name. */
    bool isHidden = false;
    /** It needs an account and has none, so it can't be connected. */
    bool lacksAccount = false;
    /** When it was last connected, in seconds since 1970; 0 for never. */
    quint64 lastConnected = 0;
    int priority = 0;
    /** NetworkManager may choose it. */
    bool connectsByItself = true;
    /** It is gone sooner or later without anybody deleting it. */
    bool isPassing = false;
    /** Only others may use it. */
    bool isOthers = false;
    /** This user can't change it, or nobody should. */
    bool isReadOnly = false;
    /** It can be changed without anybody being asked for a password. */
    bool isFreelyChangeable = false;
    /** Exactly as NetworkManager gave it. */
    NMVariantMapMap settings;
    /** As in ProfilePlace. */
    quint64 version = 0;

    static const char *Signature() { return "a{sa{sv}}"; }

    static NetworkProfile Make(const ProfilePlace &place, const NMVariantMapMap &settings,
                               const CallerRights &rights, const QString &userName);

    /** A Wi-Fi profile with nothing but its name; for everybody where this user may do that. */
    static NMVariantMapMap NewSettings(const QString &name, const CallerRights &rights);

    /** Fills what a WLANProfile has a field for. */
    void Describe(WLANProfile *profile) const;

    /** WLANProfile's word for a network with access points, and NetworkManager's for a word of WLANProfile.
     */
    static QString InfrastructureWord();
    static QString ModeOf(const QString &bssType);

    /** @param connectionType  NetworkManager's own word. */
    static Kind KindOf(const QString &connectionType);

    /** The kind as entries of the priority list have it; "0" for those that it has no entries for. */
    static QString TypeTextOf(Kind kind);
    QString TypeText() const { return TypeTextOf(kind); }

    /** What a profile and the entry of the priority list that means it have in common, and no others do. */
    QPair<bool, QString> ListKey() const;
    static QPair<bool, QString> ListKeyOf(const PriorityList &entry);

    /** By name, those of one name by their latest use, the latest first; never the same for two profiles. */
    static bool ComesBefore(const NetworkProfile &left, const NetworkProfile &right);
};

#endif
