#include "FuzzSupport.h"

#include <ProfileStore.h>

#include <QFile>

#include <sys/stat.h>

namespace
{

QString WLANProfile::*const fields[] = {
    &WLANProfile::profileName, &WLANProfile::text1,          &WLANProfile::text2,
    &WLANProfile::text3,       &WLANProfile::text4,          &WLANProfile::ssid,
    &WLANProfile::bssType,     &WLANProfile::connectionMode, &WLANProfile::authentication,
    &WLANProfile::encryption,  &WLANProfile::keyType,        &WLANProfile::keyFlag,
    &WLANProfile::keyMaterial, &WLANProfile::keyIndex,       &WLANProfile::text14,
    &WLANProfile::readOnly,    &WLANProfile::text16,         &WLANProfile::text17,
};

QString WLANProfile::*const changing[] = {
    &WLANProfile::ssid,    &WLANProfile::authentication, &WLANProfile::encryption,
    &WLANProfile::keyType, &WLANProfile::keyMaterial,    &WLANProfile::keyIndex,
};

bool IsSame(const QList<StoredProfile> &left, const QList<StoredProfile> &right)
{
    bool isSame = left.size() == right.size();
    for (int i = 0; isSame && i < left.size(); ++i) {
        isSame = left.at(i).type == right.at(i).type;
        for (QString WLANProfile::*const field : fields) {
            isSame = isSame && left.at(i).profile.*field == right.at(i).profile.*field;
        }
    }
    return isSame;
}

/** The one Wi-Fi profile of that name, or -1 when there is none or there are several. */
int FindOnly(const QList<StoredProfile> &profiles, const QString &name)
{
    int found = -1;
    for (int i = 0; i < profiles.size(); ++i) {
        if (profiles.at(i).type == "1" && profiles.at(i).profile.profileName == name) {
            if (found >= 0) {
                return -1;
            }
            found = i;
        }
    }
    return found;
}

/** Whether a Wi-Fi profile has the name, or the network, of wanted. */
bool HasRival(const QList<StoredProfile> &profiles, const WLANProfile &wanted)
{
    for (const StoredProfile &stored : profiles) {
        if (stored.type == "1" && (stored.profile.profileName == wanted.profileName ||
                                   (!wanted.ssid.isEmpty() && stored.profile.ssid == wanted.ssid))) {
            return true;
        }
    }
    return false;
}

void RequireOwnersAlone(const QString &path)
{
    struct stat status;
    FuzzSupport::Require(stat(QFile::encodeName(path).constData(), &status) == 0 &&
                             (status.st_mode & 0777) == 0600,
                         "a file with keys is its owner's alone");
}

} // namespace

// The first byte says how much of the input is the file; the rest is a profile to store into it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    if (size == 0) {
        return 0;
    }
    const std::size_t fileSize = (size - 1) * data[0] / 255;
    const QByteArray file(reinterpret_cast<const char *>(data + 1), int(fileSize));
    Write("WLANProfiles.xml", file);
    CProfileStore store;
    QList<StoredProfile> before;
    const WLANResult result = store.List(&before);
    Require(result == WLANResultSuccess || result == WLANResultFileDamaged,
            "reading succeeds or tells of damage");
    Require(Read("WLANProfiles.xml") == file, "reading changes nothing");

    InputReader input(data + 1 + fileSize, size - 1 - fileSize);
    StoredProfile added;
    added.type = "1";
    for (QString WLANProfile::*const field : fields) {
        added.profile.*field = input.Text();
    }
    QString better;
    const WLANResult stored = store.Store(added.profile, &better);
    if (stored != WLANResultSuccess) {
        Require(Read("WLANProfiles.xml") == file, "a refused profile leaves the file as it was");
        Require(result == WLANResultFileDamaged || added.profile.profileName.isEmpty() ||
                    HasRival(before, added.profile),
                "a profile is refused for a reason");
        return 0;
    }
    Require(result == WLANResultSuccess, "a damaged file is not written");
    RequireOwnersAlone(Path("WLANProfiles.xml"));
    QList<StoredProfile> after;
    Require(store.List(&after) == WLANResultSuccess, "what was stored can be read");
    QList<StoredProfile> expected = before;
    const int changed = FindOnly(before, added.profile.profileName);
    if (changed < 0) {
        expected.append(added);
    } else {
        WLANProfile &profile = expected[changed].profile;
        for (QString WLANProfile::*const field : changing) {
            profile.*field = added.profile.*field;
        }
        if (added.profile.ssid.isEmpty()) {
            profile.ssid = before.at(changed).profile.ssid;
        }
    }
    Require(IsSame(after, expected), "nothing is changed but the network and the key of the named profile");
    return 0;
}
