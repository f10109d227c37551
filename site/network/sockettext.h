#pragma once

#include <QString>

namespace site {

struct SocketAddress
{
    QString address; ///< an IPv4 one as such, without a zone
    int port = 0;
};

/// What a connected socket is bound to here. Empty on failure.
[[nodiscard]] SocketAddress ownAddress(int socket);

} // namespace site
