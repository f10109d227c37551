// The network interface of one device.
#pragma once

#include "site/network/filedescriptor.h"
#include "site/network/networkspace.h"

#include <QString>

#include <memory>

namespace site {

/// The addresses of a device. A string is empty if the device has no such address; its prefix length has no
/// meaning then.
struct DeviceNetwork
{
    QString address; ///< IPv4
    int prefixLength = 24;
    QString ipv6;
    int ipv6PrefixLength = 64;

    bool operator==(const DeviceNetwork &) const = default;
};

/// A network namespace with one interface. The interface has the MAC of the device. It is connected to the
/// site's interface, and so to the interfaces of the other devices. Both are removed with this object, when
/// its sockets are closed. Used by one thread.
class DeviceInterface
{
public:
    /// Creates the namespace and the interface, which is down. `lower` is the index of the site's interface
    /// in the namespace of the calling thread. On failure, such as a missing right, it returns null and sets
    /// `error` to an English sentence. `error` must not be null.
    [[nodiscard]] static std::unique_ptr<DeviceInterface> create(unsigned lower, const QString &mac,
                                                                 QString *error);

    /// The namespace of the device. Valid as long as this object.
    [[nodiscard]] const NetworkSpace &space() const { return m_space; }

    /// Replaces the addresses and brings the interface up. With an IPv6 address, the interface also gets a
    /// link-local one. All addresses are reached without a router, also those of other subnets. On failure it
    /// returns false and sets `error`, as create(); the interface may have a part of the addresses then.
    bool bringUp(const DeviceNetwork &network, QString *error);

    /// Brings the interface down and removes its addresses.
    void bringDown();

    // Non-blocking sockets in the namespace, for any thread. On failure they are not open, and errno is set.

    /// Accepts connections at that TCP port of all addresses of the device, of both address families.
    [[nodiscard]] FileDescriptor openListener(int port) const;

    /// Receives datagrams to that UDP port of the device, at all its addresses and at the multicast address
    /// `group`, and sends from the interface. The address family is that of `group`. The control data of a
    /// datagram have its destination (IP_PKTINFO, IPV6_PKTINFO).
    [[nodiscard]] FileDescriptor openDatagrams(int port, const QString &group) const;

private:
    explicit DeviceInterface(NetworkSpace space) : m_space(std::move(space)) {}

    // These return 0, or the error number.
    [[nodiscard]] int addAddress(const QString &address, int prefixLength) const;
    [[nodiscard]] int addLinkLocalAddress() const;
    [[nodiscard]] int addDefaultRoute(int family) const;
    [[nodiscard]] int setUp(bool isUp) const;

    NetworkSpace m_space;
    unsigned m_index = 0;
    QString m_mac;
};

} // namespace site
