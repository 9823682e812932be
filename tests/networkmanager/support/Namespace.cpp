#include "Namespace.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace
{

bool WriteMap(const char *file, unsigned int outside)
{
    QFile map(file);
    return map.open(QIODevice::WriteOnly) && map.write("0 " + QByteArray::number(outside) + " 1\n") > 0;
}

/** For whoever is not root: root in a world of its own. */
bool BecomeRoot()
{
    const unsigned int user = geteuid();
    const unsigned int group = getegid();
    QFile groups("/proc/self/setgroups");
    return unshare(CLONE_NEWUSER) == 0 && groups.open(QIODevice::WriteOnly) && groups.write("deny") > 0 &&
           (groups.close(), true) && WriteMap("/proc/self/uid_map", user) &&
           WriteMap("/proc/self/gid_map", group);
}

bool HideDirectory(const char *directory)
{
    return mount("tmpfs", directory, "tmpfs", 0, "mode=0755") == 0;
}

QString WhyNot(const char *what)
{
    return QString("%1: %2").arg(what, std::strerror(errno));
}

} // namespace

QString Namespace::Enter()
{
    if ((geteuid() != 0 && !BecomeRoot()) || unshare(CLONE_NEWNET | CLONE_NEWNS) != 0) {
        return WhyNot("no network namespace can be had here");
    }
    // The root of a chroot is no mount point: what is mounted below it might be seen outside.
    if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        return WhyNot("mounts can't be kept to the test here, as in a chroot");
    }
    if (!HideDirectory("/run") || !HideDirectory("/var/lib")) {
        return WhyNot("the machine's own directories can't be hidden here");
    }
    return QString();
}
