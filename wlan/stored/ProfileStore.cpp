#include "ProfileStore.h"

#include "ProfileRules.h"
#include "XmlRecords.h"

#include <DirectoryLock.h>
#include <PrivateFile.h>
#include <UserData.h>

namespace
{

struct ProfileField {
    const char *name;
    QString WLANProfile::*member;
};

const ProfileField profileFields[] = {
    {"profileName", &WLANProfile::profileName},
    {"text1", &WLANProfile::text1},
    {"text2", &WLANProfile::text2},
    {"text3", &WLANProfile::text3},
    {"text4", &WLANProfile::text4},
    {"ssid", &WLANProfile::ssid},
    {"bssType", &WLANProfile::bssType},
    {"connectionMode", &WLANProfile::connectionMode},
    {"authentication", &WLANProfile::authentication},
    {"encryption", &WLANProfile::encryption},
    {"keyType", &WLANProfile::keyType},
    {"keyFlag", &WLANProfile::keyFlag},
    {"keyMaterial", &WLANProfile::keyMaterial},
    {"keyIndex", &WLANProfile::keyIndex},
    {"text14", &WLANProfile::text14},
    {"readOnly", &WLANProfile::readOnly},
    {"text16", &WLANProfile::text16},
    {"text17", &WLANProfile::text17},
};
const int profileFieldCount = sizeof(profileFields) / sizeof(profileFields[0]);

const unsigned int ownerOnly = 0600;

QString TypeAttribute()
{
    return QLatin1String("type");
}

QString WifiType()
{
    return QLatin1String("1");
}

XmlRecordFormat ProfileFormat()
{
    XmlRecordFormat format;
    format.rootElement = QLatin1String("wlanprofiles");
    format.recordElement = QLatin1String("profile");
    format.requiredAttribute = QLatin1String("profileName");
    format.attributes.append(TypeAttribute());
    for (int i = 0; i < profileFieldCount; ++i) {
        format.attributes.append(QLatin1String(profileFields[i].name));
    }
    return format;
}

StoredProfile FromRecord(const XmlRecord &record)
{
    StoredProfile stored;
    stored.type = record.values.value(TypeAttribute(), WifiType());
    for (int i = 0; i < profileFieldCount; ++i) {
        stored.profile.*profileFields[i].member = record.values.value(QLatin1String(profileFields[i].name));
    }
    return stored;
}

XmlRecord ToRecord(const StoredProfile &stored)
{
    XmlRecord record;
    record.values.insert(TypeAttribute(), stored.type);
    for (int i = 0; i < profileFieldCount; ++i) {
        record.values.insert(QLatin1String(profileFields[i].name), stored.profile.*profileFields[i].member);
    }
    return record;
}

QList<ProfileRules::RememberedProfile> WifiProfiles(const QList<StoredProfile> &profiles)
{
    QList<ProfileRules::RememberedProfile> remembered;
    for (int i = 0; i < profiles.size(); ++i) {
        if (profiles.at(i).IsWifi()) {
            const ProfileRules::RememberedProfile profile = {profiles.at(i).profile, false, i};
            remembered.append(profile);
        }
    }
    return remembered;
}

void ChangeNetworkAndSecurity(const WLANProfile &wanted, WLANProfile *profile)
{
    profile->ssid = wanted.ssid.isEmpty() ? profile->ssid : wanted.ssid;
    profile->authentication = wanted.authentication;
    profile->encryption = wanted.encryption;
    profile->keyType = wanted.keyType;
    profile->keyMaterial = wanted.keyMaterial;
    profile->keyIndex = wanted.keyIndex;
}

struct Refusal {
    WLANResult result;
    const char *text;
};

/** Success and no text for what is no refusal. */
Refusal RefusalOf(ProfileRules::Verdict verdict)
{
    Refusal refusal = {WLANResultSuccess, nullptr};
    switch (verdict) {
    case ProfileRules::NewProfile:
    case ProfileRules::ChangedProfile:
        break;
    case ProfileRules::SeveralProfiles:
        refusal = {WLANResultSeveralProfiles, "several profiles have that name, none of them is changed"};
        break;
    case ProfileRules::ReadOnlyProfile:
        refusal = {WLANResultReadOnlyProfile, "a read-only profile is not changed"};
        break;
    case ProfileRules::UndescribedProfile:
        refusal = {WLANResultUndescribedProfile,
                   "a profile of a kind that the dialog can't describe is not changed"};
        break;
    case ProfileRules::WeakerMethod:
        refusal = {WLANResultWeakerMethod, "a profile is not given a weaker method"};
        break;
    case ProfileRules::IncompleteKey:
        refusal = {WLANResultIncompleteKey, "a profile is not changed without a key that is complete"};
        break;
    case ProfileRules::BetterProfile:
        refusal = {WLANResultBetterProfile,
                   "a profile is not stored beside a better one for the same network"};
        break;
    }
    return refusal;
}

/** The file for the time of one operation, with what is to be said about it. */
class ProfileFile
{
public:
    ProfileFile()
        : m_directory(UserData::Directory()), m_path(m_directory + QLatin1String("WLANProfiles.xml"))
    {
    }

    const QStringList &Complaints() const { return m_complaints; }

    WLANResult Complain(WLANResult result, const QString &text)
    {
        m_complaints.append(text);
        return result;
    }

    /** Reads the profiles; a missing file is made. */
    WLANResult ReadOrMake(QList<StoredProfile> *profiles)
    {
        if (m_directory.isEmpty()) {
            return ComplainOfDirectory();
        }
        bool missing = false;
        const WLANResult result = Read(profiles, &missing);
        if (!missing) {
            return result;
        }
        const DirectoryLock lock(m_directory, DirectoryLock::Changing);
        return lock.IsRefused() ? ComplainOfLock() : ReadOrMakeLocked(profiles);
    }

    WLANResult Store(const WLANProfile &profile, QString *better)
    {
        if (m_directory.isEmpty()) {
            return ComplainOfDirectory();
        }
        const DirectoryLock lock(m_directory, DirectoryLock::Changing);
        if (lock.IsRefused()) {
            return ComplainOfLock();
        }
        QList<StoredProfile> profiles;
        const WLANResult result = ReadOrMakeLocked(&profiles);
        if (result != WLANResultSuccess) {
            return result;
        }
        const ProfileRules::Decision decision = ProfileRules::Decide(WifiProfiles(profiles), profile);
        const Refusal refusal = RefusalOf(decision.verdict);
        if (refusal.result != WLANResultSuccess) {
            if (refusal.result == WLANResultBetterProfile) {
                *better = profiles.at(decision.place).profile.profileName;
            }
            return Complain(refusal.result, QLatin1String(refusal.text));
        }
        if (decision.verdict == ProfileRules::NewProfile) {
            StoredProfile stored;
            stored.type = WifiType();
            stored.profile = profile;
            profiles.append(stored);
        } else {
            ChangeNetworkAndSecurity(profile, &profiles[decision.place].profile);
        }
        return Write(profiles);
    }

    WLANResult Remove(const QString &type, const QString &name)
    {
        if (m_directory.isEmpty()) {
            return ComplainOfDirectory();
        }
        const DirectoryLock lock(m_directory, DirectoryLock::Changing);
        if (lock.IsRefused()) {
            return ComplainOfLock();
        }
        QList<StoredProfile> profiles;
        const WLANResult result = ReadOrMakeLocked(&profiles);
        if (result != WLANResultSuccess) {
            return result;
        }
        QList<int> places;
        for (int i = 0; i < profiles.size(); ++i) {
            if (profiles.at(i).type == type && profiles.at(i).profile.profileName == name) {
                places.append(i);
            }
        }
        if (places.isEmpty()) {
            return WLANResultUnknownName;
        }
        if (places.size() > 1) {
            return Complain(WLANResultSeveralProfiles,
                            QLatin1String("several profiles have that name, none of them is removed"));
        }
        profiles.removeAt(places.constFirst());
        return Write(profiles);
    }

private:
    Q_DISABLE_COPY(ProfileFile)

    WLANResult ComplainOfDirectory()
    {
        return Complain(WLANResultNoDirectory,
                        QLatin1String("the directory for the user's data is not known, "
                                      "no profiles are remembered"));
    }

    WLANResult ComplainOfLock()
    {
        return Complain(
            WLANResultBusy,
            QString::fromLatin1("%1: another program is changing the profiles, nothing was written")
                .arg(m_path));
    }

    WLANResult ComplainOfFile(PrivateFile::Outcome outcome)
    {
        switch (outcome) {
        case PrivateFile::OutcomeSymbolicLink:
            return Complain(
                WLANResultSymbolicLink,
                QString::fromLatin1(
                    "%1, or the file \"%2\" that is written first, is a symbolic link and is not followed")
                    .arg(m_path, PrivateFile::TemporaryPath(m_path)));
        case PrivateFile::OutcomeNotWritable:
            return Complain(
                WLANResultFileNotWritable,
                QString::fromLatin1("%1 can't be written, the profiles are as they were").arg(m_path));
        default:
            return Complain(WLANResultFileNotReadable,
                            QString::fromLatin1("%1 can't be read, it is left as it is").arg(m_path));
        }
    }

    WLANResult Read(QList<StoredProfile> *profiles, bool *missing)
    {
        QByteArray bytes;
        unsigned int permissions = ownerOnly;
        const PrivateFile::Outcome outcome =
            PrivateFile::Read(m_path, &bytes, XmlRecords::largestFile, &permissions);
        *missing = outcome == PrivateFile::OutcomeMissing;
        if (*missing) {
            return WLANResultSuccess;
        }
        if (outcome != PrivateFile::OutcomeDone) {
            return ComplainOfFile(outcome);
        }
        if ((permissions & ~ownerOnly) != 0) {
            m_complaints.append(
                QString::fromLatin1("%1 holds keys and has permissions %2, wider than 0600; "
                                    "they are narrowed when a profile is stored")
                    .arg(m_path, QString::fromLatin1("%1").arg(permissions, 4, 8, QLatin1Char('0'))));
        }
        QList<XmlRecord> records;
        const qint64 damagedLine = XmlRecords::Read(bytes, ProfileFormat(), &records);
        PrivateFile::Wipe(&bytes);
        for (int i = 0; i < records.size(); ++i) {
            profiles->append(FromRecord(records.at(i)));
        }
        if (damagedLine != 0) {
            return Complain(
                WLANResultFileDamaged,
                QString::fromLatin1(
                    "%1 is damaged at line %2; what stands before is used, and the file is kept as "
                    "it is until it is repaired or removed")
                    .arg(m_path)
                    .arg(damagedLine));
        }
        return WLANResultSuccess;
    }

    WLANResult ReadOrMakeLocked(QList<StoredProfile> *profiles)
    {
        bool missing = false;
        const WLANResult result = Read(profiles, &missing);
        if (!missing) {
            return result;
        }
        const QList<StoredProfile> sample = SampleProfiles();
        const WLANResult made = Write(sample);
        if (made == WLANResultSuccess) {
            *profiles += sample;
        }
        return made;
    }

    WLANResult Write(const QList<StoredProfile> &profiles)
    {
        QList<XmlRecord> records;
        for (int i = 0; i < profiles.size(); ++i) {
            records.append(ToRecord(profiles.at(i)));
        }
        QByteArray bytes = XmlRecords::Write(ProfileFormat(), records);
        const PrivateFile::Outcome outcome = bytes.size() > XmlRecords::largestFile
                                                 ? PrivateFile::OutcomeNotWritable
                                                 : PrivateFile::Replace(m_path, bytes);
        PrivateFile::Wipe(&bytes);
        return outcome == PrivateFile::OutcomeDone ? WLANResultSuccess : ComplainOfFile(outcome);
    }

    const QString m_directory;
    const QString m_path;
    QStringList m_complaints;
};

} // namespace

WLANResult CProfileStore::List(QList<StoredProfile> *profiles)
{
    ProfileFile file;
    const WLANResult result = file.ReadOrMake(profiles);
    m_complaints.Tell(file.Complaints());
    return result;
}

WLANResult CProfileStore::Store(const WLANProfile &profile, QString *better)
{
    ProfileFile file;
    const WLANResult result =
        profile.profileName.isEmpty()
            ? file.Complain(WLANResultEmptyName, QLatin1String("a profile without a name is not stored"))
            : file.Store(profile, better);
    // A refused change is told every time: it is an answer to somebody.
    m_complaints.Forget();
    m_complaints.Tell(file.Complaints());
    return result;
}

WLANResult CProfileStore::Remove(const QString &type, const QString &name)
{
    ProfileFile file;
    const WLANResult result = file.Remove(type, name);
    m_complaints.Forget();
    m_complaints.Tell(file.Complaints());
    return result;
}
