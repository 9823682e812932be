#include "RootRights.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

const unsigned int overPermissions = (1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH);

struct Capabilities {
    __user_cap_header_struct header;
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3];
};

/** Gives the effective rights of this thread the value, and returns those it had. */
unsigned int SetEffective(unsigned int cleared, unsigned int set)
{
    Capabilities capabilities = {};
    capabilities.header.version = _LINUX_CAPABILITY_VERSION_3;
    if (syscall(SYS_capget, &capabilities.header, capabilities.data) != 0) {
        qFatal("the rights of the process can't be read");
    }
    const unsigned int before = capabilities.data[0].effective;
    capabilities.data[0].effective = (before & ~cleared) | set;
    if (capabilities.data[0].effective != before &&
        syscall(SYS_capset, &capabilities.header, capabilities.data) != 0) {
        qFatal("the rights of the process can't be changed");
    }
    return before;
}

} // namespace

WithoutRootRights::WithoutRootRights() : m_before(SetEffective(overPermissions, 0)) {}

WithoutRootRights::~WithoutRootRights()
{
    SetEffective(0, m_before & overPermissions);
}
