#include "site/network/deviceinterface.h"

#include "site/network/netlink.h"

#include <QHostAddress>

#include <cerrno>
#include <cstring>

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr const char *deviceInterface = "eth0";

QString textOfError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

QByteArray bytesOfMac(const QString &mac)
{
    return QByteArray::fromHex(mac.toLatin1().replace(':', ""));
}

std::span<const std::byte> viewOf(const QByteArray &bytes)
{
    return {reinterpret_cast<const std::byte *>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

QByteArray bytesOfAddress(const QString &text)
{
    const QHostAddress address(text);
    if (address.protocol() == QAbstractSocket::IPv4Protocol) {
        const std::uint32_t number = htonl(address.toIPv4Address());
        return {reinterpret_cast<const char *>(&number), sizeof(number)};
    }
    const Q_IPV6ADDR number = address.toIPv6Address();
    return {reinterpret_cast<const char *>(&number), sizeof(number)};
}

/// The link-local address (fe80::/64) of an interface, derived from its MAC.
QString linkLocalAddress(const QString &mac)
{
    QByteArray bytes = bytesOfMac(mac);
    constexpr char universal = 0x02;
    bytes[0] = static_cast<char>(bytes.at(0) ^ universal);
    bytes.insert(3, QByteArray::fromHex("fffe"));
    Q_IPV6ADDR address = {};
    address[0] = 0xFE;
    address[1] = 0x80;
    std::memcpy(&address.c[8], bytes.constData(), 8);
    return QHostAddress(address).toString();
}

} // namespace

std::unique_ptr<DeviceInterface> DeviceInterface::create(unsigned lower, const QString &mac, QString *error)
{
    std::optional<NetworkSpace> space = NetworkSpace::create();
    if (!space) {
        *error =
            u"A network namespace cannot be created (%1); this needs root, or unshare --user --map-root-user"_s
                .arg(textOfError(errno));
        return nullptr;
    }
    NetlinkRequest request(RTM_NEWLINK, NLM_F_CREATE | NLM_F_EXCL, ifinfomsg{});
    request.add(IFLA_IFNAME, std::string_view(deviceInterface));
    request.add(IFLA_ADDRESS, viewOf(bytesOfMac(mac)));
    request.addNumber<std::uint32_t>(IFLA_LINK, lower);
    request.addNumber<std::int32_t>(IFLA_NET_NS_FD, space->number());
    const std::size_t information = request.beginNested(IFLA_LINKINFO);
    request.add(IFLA_INFO_KIND, std::string_view("macvlan"));
    const std::size_t data = request.beginNested(IFLA_INFO_DATA);
    request.addNumber<std::uint32_t>(IFLA_MACVLAN_MODE, MACVLAN_MODE_BRIDGE);
    request.endNested(data);
    request.endNested(information);
    if (const int code = request.send(); code != 0) {
        *error = u"The interface of a device (%1) cannot be created: %2"_s.arg(mac, textOfError(code));
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    std::unique_ptr<DeviceInterface> made(new DeviceInterface(std::move(*space)));
    const InsideNetworkSpace inside(made->m_space);
    made->m_index = if_nametoindex(deviceInterface);
    made->m_mac = mac;
    return made;
}

bool DeviceInterface::bringUp(const DeviceNetwork &network, QString *error)
{
    bringDown();
    const InsideNetworkSpace inside(m_space);
    int code = inside.isInside() ? setUp(true) : errno;
    if (code == 0 && !network.address.isEmpty())
        code = addAddress(network.address, network.prefixLength);
    if (code == 0 && !network.ipv6.isEmpty())
        code = addLinkLocalAddress();
    if (code == 0 && !network.ipv6.isEmpty() && network.ipv6 != linkLocalAddress(m_mac))
        code = addAddress(network.ipv6, network.ipv6PrefixLength);
    if (code == 0 && !network.address.isEmpty())
        code = addDefaultRoute(AF_INET);
    if (code == 0 && !network.ipv6.isEmpty())
        code = addDefaultRoute(AF_INET6);
    if (code != 0)
        *error = u"The addresses of a device (%1) cannot be set: %2"_s.arg(m_mac, textOfError(code));
    return code == 0;
}

void DeviceInterface::bringDown()
{
    const InsideNetworkSpace inside(m_space);
    if (!inside.isInside())
        return;
    // An interface that goes down loses its IPv6 addresses and routes by itself, but not its IPv4 ones.
    (void)setUp(false);
    for (;;) {
        ifaddrmsg body = {};
        body.ifa_family = AF_INET;
        body.ifa_index = m_index;
        NetlinkRequest request(RTM_DELADDR, 0, body);
        if (request.send() != 0)
            return;
    }
}

int DeviceInterface::addAddress(const QString &address, int prefixLength) const
{
    const QByteArray bytes = bytesOfAddress(address);
    ifaddrmsg body = {};
    body.ifa_family = bytes.size() == 4 ? AF_INET : AF_INET6;
    body.ifa_prefixlen = static_cast<std::uint8_t>(prefixLength);
    body.ifa_index = m_index;
    NetlinkRequest request(RTM_NEWADDR, NLM_F_CREATE | NLM_F_EXCL, body);
    request.add(IFA_LOCAL, viewOf(bytes));
    request.add(IFA_ADDRESS, viewOf(bytes));
    // The scene may contain address conflicts: no duplicate address detection, and no delay by it.
    request.addNumber<std::uint32_t>(IFA_FLAGS, IFA_F_NODAD);
    const int code = request.send();
    return code == EEXIST ? 0 : code;
}

int DeviceInterface::addLinkLocalAddress() const
{
    constexpr int prefixLength = 64;
    return addAddress(linkLocalAddress(m_mac), prefixLength);
}

int DeviceInterface::addDefaultRoute(int family) const
{
    rtmsg body = {};
    body.rtm_family = static_cast<std::uint8_t>(family);
    body.rtm_table = RT_TABLE_MAIN;
    body.rtm_protocol = RTPROT_STATIC;
    body.rtm_scope = family == AF_INET ? RT_SCOPE_LINK : RT_SCOPE_UNIVERSE;
    body.rtm_type = RTN_UNICAST;
    NetlinkRequest request(RTM_NEWROUTE, NLM_F_CREATE, body);
    request.addNumber<std::uint32_t>(RTA_OIF, m_index);
    return request.send();
}

int DeviceInterface::setUp(bool isUp) const
{
    ifinfomsg body = {};
    body.ifi_index = static_cast<int>(m_index);
    body.ifi_flags = isUp ? IFF_UP : 0;
    body.ifi_change = IFF_UP;
    NetlinkRequest request(RTM_NEWLINK, 0, body);
    // The kernel generates no address: the interface has only those of the device.
    const std::size_t familySettings = request.beginNested(IFLA_AF_SPEC);
    const std::size_t family = request.beginNested(AF_INET6);
    request.addNumber<std::uint8_t>(IFLA_INET6_ADDR_GEN_MODE, IN6_ADDR_GEN_MODE_NONE);
    request.endNested(family);
    request.endNested(familySettings);
    const int code = request.send();
    if (code != EAFNOSUPPORT && code != EOPNOTSUPP)
        return code;
    NetlinkRequest plain(RTM_NEWLINK, 0, body); // a kernel without IPv6
    return plain.send();
}

FileDescriptor DeviceInterface::openListener(int port) const
{
    constexpr int backlog = 64;
    const int on = 1;
    const int off = 0;
    const InsideNetworkSpace inside(m_space);
    FileDescriptor socket(::socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    sockaddr_in6 address = {};
    address.sin6_family = AF_INET6;
    address.sin6_port = htons(static_cast<std::uint16_t>(port));
    setsockopt(socket.number(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
    setsockopt(socket.number(), IPPROTO_IPV6, IPV6_V6ONLY, &off, sizeof(off));
    if (!inside.isInside() || !socket.isOpen() ||
        bind(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0 ||
        listen(socket.number(), backlog) != 0)
        return FileDescriptor();
    return socket;
}

FileDescriptor DeviceInterface::openDatagrams(int port, const QString &group) const
{
    const InsideNetworkSpace inside(m_space);
    const QByteArray groupBytes = bytesOfAddress(group);
    const bool isIpv4 = groupBytes.size() == sizeof(in_addr);
    FileDescriptor socket(
        ::socket(isIpv4 ? AF_INET : AF_INET6, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!inside.isInside() || !socket.isOpen())
        return FileDescriptor();
    const int on = 1;
    bool isReady = false;
    if (isIpv4) {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        ip_mreqn membership = {};
        std::memcpy(&membership.imr_multiaddr, groupBytes.constData(), sizeof(in_addr));
        membership.imr_ifindex = static_cast<int>(m_index);
        setsockopt(socket.number(), IPPROTO_IP, IP_PKTINFO, &on, sizeof(on));
        isReady =
            bind(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0 &&
            setsockopt(socket.number(), IPPROTO_IP, IP_ADD_MEMBERSHIP, &membership, sizeof(membership)) ==
                0 &&
            setsockopt(socket.number(), IPPROTO_IP, IP_MULTICAST_IF, &membership, sizeof(membership)) == 0;
    } else {
        sockaddr_in6 address = {};
        address.sin6_family = AF_INET6;
        address.sin6_port = htons(static_cast<std::uint16_t>(port));
        ipv6_mreq membership = {};
        std::memcpy(&membership.ipv6mr_multiaddr, groupBytes.constData(), sizeof(in6_addr));
        membership.ipv6mr_interface = m_index;
        const int index = static_cast<int>(m_index);
        setsockopt(socket.number(), IPPROTO_IPV6, IPV6_V6ONLY, &on, sizeof(on));
        setsockopt(socket.number(), IPPROTO_IPV6, IPV6_RECVPKTINFO, &on, sizeof(on));
        isReady = bind(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0 &&
                  setsockopt(socket.number(), IPPROTO_IPV6, IPV6_JOIN_GROUP, &membership,
                             sizeof(membership)) == 0 &&
                  setsockopt(socket.number(), IPPROTO_IPV6, IPV6_MULTICAST_IF, &index, sizeof(index)) == 0;
    }
    return isReady ? std::move(socket) : FileDescriptor();
}

} // namespace site
