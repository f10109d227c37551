// The network interface of one device.
#pragma once

#include "site/network/filedescriptor.h"
#include "site/network/networkspace.h"

#include <QString>

#include <memory>

namespace site {

/// The addresses of a device; a string is empty if the device has no such address.
struct DeviceNetwork
{
    QString address; ///< IPv4
    int prefixLength = 24;
    QString ipv6;
    int ipv6PrefixLength = 64;

    bool operator==(const DeviceNetwork &) const = default;
};

/// A network namespace with one interface, which has the MAC of the device and is a sibling of the others on
/// the interface of the site. It is removed with this object. Used by one thread.
class DeviceInterface
{
public:
    /// `lower` is the index of the site's interface in the namespace of the calling thread. On failure it
    /// returns null and sets `error`.
    [[nodiscard]] static std::unique_ptr<DeviceInterface> create(unsigned lower, const QString &mac,
                                                                 QString *error);

    [[nodiscard]] const NetworkSpace &space() const { return m_space; }

    /// Replaces the addresses and brings the interface up. Every address of the segment is reached without a
    /// router. On failure it returns false and sets `error`.
    bool bringUp(const DeviceNetwork &network, QString *error);

    /// Brings the interface down and removes its addresses.
    void bringDown();

    // Sockets in the namespace; not open on failure, with errno set.

    /// Accepts connections at that port of all addresses of the device.
    [[nodiscard]] FileDescriptor openListener(int port) const;

    /// Receives datagrams to that port of the device and to the group of its address family.
    [[nodiscard]] FileDescriptor openDatagrams(int port, const QString &group) const;

private:
    explicit DeviceInterface(NetworkSpace space) : m_space(std::move(space)) {}
    [[nodiscard]] int addAddress(const QString &address, int prefixLength) const;
    [[nodiscard]] int addLinkLocalAddress() const;
    [[nodiscard]] int addDefaultRoute(int family) const;
    [[nodiscard]] int setUp(bool isUp) const;

    NetworkSpace m_space;
    unsigned m_index = 0;
    QString m_mac;
};

} // namespace site
