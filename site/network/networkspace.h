// Network namespaces: each device of the site has a separate one.
#pragma once

#include "site/network/filedescriptor.h"

#include <optional>

namespace site {

/// A network namespace. It exists as long as this object, an open socket in it or a thread in it.
class NetworkSpace
{
public:
    /// The one of the calling thread.
    [[nodiscard]] static std::optional<NetworkSpace> current();

    /// A new namespace with only a loopback interface, which is down. Nothing, with errno set, when the
    /// process lacks the right.
    [[nodiscard]] static std::optional<NetworkSpace> create();

    [[nodiscard]] int number() const { return m_file.number(); }

    /// Moves the calling thread into the namespace. Returns false, with errno set, on failure.
    bool enter() const;

private:
    explicit NetworkSpace(FileDescriptor file) : m_file(std::move(file)) {}

    FileDescriptor m_file;
};

/// Keeps the calling thread in a namespace until the end of a block.
class InsideNetworkSpace
{
public:
    explicit InsideNetworkSpace(const NetworkSpace &space)
        : m_before(NetworkSpace::current()), m_isInside(m_before && space.enter())
    {
    }
    ~InsideNetworkSpace()
    {
        if (m_isInside)
            m_before->enter();
    }
    InsideNetworkSpace(const InsideNetworkSpace &) = delete;
    InsideNetworkSpace &operator=(const InsideNetworkSpace &) = delete;

    [[nodiscard]] bool isInside() const { return m_isInside; }

private:
    std::optional<NetworkSpace> m_before;
    bool m_isInside;
};

} // namespace site
