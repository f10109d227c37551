// The network interface of one device.
#pragma once

#include "site/network/filedescriptor.h"
#include "site/network/networkspace.h"

#include <QString>

#include <memory>

namespace site {

/// The addresses that a device has; a text is empty where it has none.
struct DeviceNetwork
{
    QString address; ///< IPv4
    int prefixLength = 24;
    QString ipv6;
    int ipv6PrefixLength = 64;

    bool operator==(const DeviceNetwork &) const = default;
};

/// A network namespace with one interface in it, which has the MAC of the device and lies beside the others
/// on the interface that the site is given. It is gone with this object. Belongs to one thread.
class DeviceInterface
{
public:
    /// `lower` is the number of the site's interface in the namespace of the calling thread. Returns null,
    /// and says why in `error`, on failure.
    [[nodiscard]] static std::unique_ptr<DeviceInterface> create(unsigned lower, const QString &mac,
                                                                 QString *error);

    [[nodiscard]] const NetworkSpace &space() const { return m_space; }

    /// Puts these addresses in the place of those before, and takes the interface up. Everything in the
    /// segment is reached directly, whatever its address. Returns false, and says why, on failure.
    bool bringUp(const DeviceNetwork &network, QString *error);

    /// Nothing reaches the device, and it loses its addresses.
    void bringDown();

    // Sockets in the namespace; not open on failure, with errno set.

    /// Takes connections at that port of all addresses of the device.
    [[nodiscard]] FileDescriptor openListener(int port) const;

    /// Gets what is sent to that port of the device and to the group of its family.
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
