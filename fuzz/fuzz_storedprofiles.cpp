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

bool IsSame(const StoredProfile &left, const StoredProfile &right)
{
    for (QString WLANProfile::*const field : fields) {
        if (left.profile.*field != right.profile.*field) {
            return false;
        }
    }
    return left.type == right.type;
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
    const WLANResult stored = store.Store(added.profile);
    if (stored != WLANResultSuccess) {
        Require(Read("WLANProfiles.xml") == file, "a refused profile leaves the file as it was");
        Require(stored == WLANResultEmptyName || stored == WLANResultReadOnlyProfile ||
                    result == WLANResultFileDamaged,
                "a profile is refused for a reason");
        return 0;
    }
    Require(result == WLANResultSuccess, "a damaged file is not written");
    RequireOwnersAlone(Path("WLANProfiles.xml"));
    QList<StoredProfile> after;
    Require(store.List(&after) == WLANResultSuccess, "what was stored can be read");
    int next = 0;
    bool found = false;
    for (const StoredProfile &profile : after) {
        if (!found && IsSame(profile, added)) {
            found = true;
            // In the place of the earlier one of its name, or at the end.
            if (next < before.size() && before.at(next).type == "1" &&
                before.at(next).profile.profileName == added.profile.profileName) {
                ++next;
            }
            continue;
        }
        Require(next < before.size() && IsSame(profile, before.at(next)),
                "the other profiles are as they were");
        ++next;
    }
    Require(found, "the profile is remembered");
    Require(next == before.size(), "no profile is lost");
    return 0;
}
