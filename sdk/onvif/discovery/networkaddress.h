// Network addresses and the interfaces of this host, as strings.
#pragma once

#include <netinet/in.h>
#include <sys/socket.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::onvif {

/// An address with its port for the socket functions.
struct SocketAddress
{
    sockaddr_storage storage{};
    socklen_t length = 0;
};

/// Reads an IPv4 address, or an IPv6 address without brackets. A link-local IPv6 address has the name or
/// number of its interface behind "%". `port` is 0 to 65535. Nothing for host names: a search accepts
/// addresses only.
[[nodiscard]] std::optional<SocketAddress> socketAddress(const std::string &address, int port);

/// The string of the address, with the interface of a link-local address; without brackets and port. Empty on
/// failure.
[[nodiscard]] std::string addressText(const SocketAddress &address);

/// A network interface of this host that is up, with one of its addresses.
struct NetworkInterface
{
    std::string name = {};
    unsigned int index = 0;
    bool isIPv4 = true;
    std::string address = {}; ///< as addressText() writes it: link-local ones with their interface
    bool isLoopback = false;
};

/// The interfaces that are up and can send to groups, and the loopback interfaces: one entry for each IPv4
/// address and each link-local IPv6 address. Empty if the operating system reports an error.
[[nodiscard]] std::vector<NetworkInterface> networkInterfaces();

} // namespace sdk::onvif
