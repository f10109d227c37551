// Socket addresses as strings.
#pragma once

#include <QString>

namespace site {

/// An address and a port.
struct SocketAddress
{
    QString address; ///< without a zone; a mapped IPv4 address in its IPv4 form
    int port = 0;
};

/// The local address of a connected socket (its number). On failure the address is empty and the port 0.
[[nodiscard]] SocketAddress ownAddress(int socket);

} // namespace site
