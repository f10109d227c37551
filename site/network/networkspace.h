// Network namespaces: each device of the site has a separate one.
#pragma once

#include "site/network/filedescriptor.h"

#include <optional>

namespace site {

/// A network namespace of the Linux kernel: a separate set of interfaces, addresses and routes. A thread is
/// in one namespace, and its new sockets are in the same one. A namespace exists as long as a NetworkSpace of
/// it, an open socket in it or a thread in it.
class NetworkSpace
{
public:
    /// The namespace of the calling thread. Nothing, with errno set, on failure.
    [[nodiscard]] static std::optional<NetworkSpace> current();

    /// A new namespace with only a loopback interface, which is down. The calling thread stays in its
    /// namespace. Nothing, with errno set, on failure: the process may lack the right.
    [[nodiscard]] static std::optional<NetworkSpace> create();

    /// The file descriptor of the namespace, which this object owns.
    [[nodiscard]] int number() const { return m_file.number(); }

    /// Moves the calling thread into the namespace. Sockets that exist stay in their namespaces. Returns
    /// false, with errno set, on failure: the thread has not moved then.
    bool enter() const;

private:
    explicit NetworkSpace(FileDescriptor file) : m_file(std::move(file)) {}

    FileDescriptor m_file;
};

/// Moves the calling thread into a namespace, and back at the end of the block. The move may fail: the caller
/// checks isInside().
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

    /// False if the thread could not be moved, with errno set: it is still in its own namespace.
    [[nodiscard]] bool isInside() const { return m_isInside; }

private:
    std::optional<NetworkSpace> m_before;
    bool m_isInside;
};

} // namespace site
