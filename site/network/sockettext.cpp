#include "site/network/sockettext.h"

#include <QHostAddress>

#include <netinet/in.h>
#include <sys/socket.h>

namespace site {

SocketAddress ownAddress(int socket)
{
    sockaddr_storage own = {};
    socklen_t size = sizeof(own);
    if (getsockname(socket, reinterpret_cast<sockaddr *>(&own), &size) != 0)
        return {};
    QHostAddress address(reinterpret_cast<const sockaddr *>(&own));
    address.setScopeId({});
    bool isIpv4 = false;
    const quint32 ipv4 = address.toIPv4Address(&isIpv4);
    if (isIpv4)
        address = QHostAddress(ipv4);
    const in_port_t port = own.ss_family == AF_INET ? reinterpret_cast<const sockaddr_in &>(own).sin_port
                                                    : reinterpret_cast<const sockaddr_in6 &>(own).sin6_port;
    return {address.toString(), ntohs(port)};
}

} // namespace site
