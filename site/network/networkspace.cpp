#include "site/network/networkspace.h"

#include <cerrno>

#include <fcntl.h>
#include <sched.h>

namespace site {

std::optional<NetworkSpace> NetworkSpace::current()
{
    FileDescriptor file(open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC));
    return file.isOpen() ? std::optional(NetworkSpace(std::move(file))) : std::nullopt;
}

std::optional<NetworkSpace> NetworkSpace::create()
{
    const std::optional<NetworkSpace> before = current();
    if (!before || unshare(CLONE_NEWNET) != 0)
        return std::nullopt;
    std::optional<NetworkSpace> made = current();
    before->enter();
    return made;
}

bool NetworkSpace::enter() const
{
    return setns(m_file.number(), CLONE_NEWNET) == 0;
}

} // namespace site
