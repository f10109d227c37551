#include "sdk/onvif/discovery/discoverysockets.h"

#include "sdk/onvif/discovery/probemessage.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

namespace sdk::onvif {

namespace {

constexpr std::size_t largestDatagram = 65536;
constexpr int receiveBuffer = 4 * 1024 * 1024; // hundreds of devices respond within half a second

template<typename Value>
bool setOption(int descriptor, int level, int name, const Value &value)
{
    return setsockopt(descriptor, level, name, &value, sizeof(value)) == 0;
}

int openSocket(bool isIPv4)
{
    const int descriptor =
        ::socket(isIPv4 ? AF_INET : AF_INET6, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, IPPROTO_UDP);
    if (descriptor >= 0) {
        setOption(descriptor, SOL_SOCKET, SO_RCVBUF, receiveBuffer);
        if (!isIPv4)
            setOption(descriptor, IPPROTO_IPV6, IPV6_V6ONLY, 1);
    }
    return descriptor;
}

bool bindTo(int descriptor, const SocketAddress &address)
{
    return ::bind(descriptor, reinterpret_cast<const sockaddr *>(&address.storage), address.length) == 0;
}

/// Returns the system's error, 0 for none.
int sendDatagram(int descriptor, const std::string &message, const SocketAddress &address)
{
    const ssize_t size = ::sendto(descriptor, message.data(), message.size(), 0,
                                  reinterpret_cast<const sockaddr *>(&address.storage), address.length);
    return size < 0 ? errno : 0;
}

/// The index of the interface that received a datagram, from the control data of the system; 0 if unknown.
unsigned int interfaceOf(msghdr &message)
{
    for (cmsghdr *header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level == IPPROTO_IP && header->cmsg_type == IP_PKTINFO) {
            in_pktinfo information{};
            std::memcpy(&information, CMSG_DATA(header), sizeof(information));
            return static_cast<unsigned int>(information.ipi_ifindex);
        }
        if (header->cmsg_level == IPPROTO_IPV6 && header->cmsg_type == IPV6_PKTINFO) {
            in6_pktinfo information{};
            std::memcpy(&information, CMSG_DATA(header), sizeof(information));
            return information.ipi6_ifindex;
        }
    }
    return 0;
}

/// A datagram that was received.
struct Datagram
{
    ssize_t size = -1; ///< below 1 if there was none
    SocketAddress sender = {};
    unsigned int interfaceIndex = 0;
};

Datagram receiveInto(int descriptor, std::array<char, largestDatagram> &buffer)
{
    Datagram datagram;
    iovec bytes = {.iov_base = buffer.data(), .iov_len = buffer.size()};
    alignas(cmsghdr) std::array<char, 128> control{};
    msghdr message{};
    message.msg_name = &datagram.sender.storage;
    message.msg_namelen = sizeof(datagram.sender.storage);
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    datagram.size = ::recvmsg(descriptor, &message, 0);
    datagram.sender.length = message.msg_namelen;
    if (datagram.size > 0)
        datagram.interfaceIndex = interfaceOf(message);
    return datagram;
}

} // namespace

DiscoverySockets::DiscoverySockets() : m_wakeDescriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

DiscoverySockets::~DiscoverySockets()
{
    for (const Socket &socket : m_sockets)
        ::close(socket.descriptor);
    if (m_wakeDescriptor >= 0)
        ::close(m_wakeDescriptor);
}

std::size_t DiscoverySockets::open(const SendObserver &observer)
{
    const std::vector<NetworkInterface> interfaces = networkInterfaces();
    for (const NetworkInterface &networkInterface : interfaces) {
        const int error = addInterface(networkInterface);
        if (error != 0 && observer)
            observer(networkInterface.address, error);
    }
    const auto searched = static_cast<std::size_t>(std::count_if(
        m_sockets.begin(), m_sockets.end(), [](const Socket &socket) { return socket.sendsToGroup; }));
    addListener(true, interfaces);
    addListener(false, interfaces);
    return searched;
}

int DiscoverySockets::addInterface(const NetworkInterface &networkInterface)
{
    const bool isIPv4 = networkInterface.isIPv4;
    const std::optional<SocketAddress> own = socketAddress(networkInterface.address, 0);
    if (!own)
        return EADDRNOTAVAIL;
    const int descriptor = openSocket(isIPv4);
    if (descriptor < 0)
        return errno;
    bool isReady = bindTo(descriptor, *own);
    if (isIPv4) {
        in_addr source{};
        isReady = isReady && ::inet_pton(AF_INET, networkInterface.address.c_str(), &source) == 1 &&
                  setOption(descriptor, IPPROTO_IP, IP_MULTICAST_IF, source) &&
                  setOption(descriptor, IPPROTO_IP, IP_MULTICAST_TTL, 1);
    } else {
        isReady = isReady && setOption(descriptor, IPPROTO_IPV6, IPV6_MULTICAST_IF, networkInterface.index) &&
                  setOption(descriptor, IPPROTO_IPV6, IPV6_MULTICAST_HOPS, 1);
    }
    if (!isReady) {
        const int error = errno;
        ::close(descriptor);
        return error;
    }
    m_sockets.push_back({.descriptor = descriptor,
                         .isIPv4 = isIPv4,
                         .interfaceIndex = networkInterface.index,
                         .localAddress = networkInterface.address,
                         .sendsToGroup = !networkInterface.isLoopback});
    return 0;
}

void DiscoverySockets::addListener(bool isIPv4, const std::vector<NetworkInterface> &interfaces)
{
    const std::optional<SocketAddress> any = socketAddress(isIPv4 ? "0.0.0.0" : "::", discoveryPort);
    const int descriptor = any ? openSocket(isIPv4) : -1;
    if (descriptor < 0)
        return;
    // Other applications of this host may listen at the port as well.
    setOption(descriptor, SOL_SOCKET, SO_REUSEADDR, 1);
    // One socket listens on all interfaces: the control data of each datagram contain its interface.
    if (isIPv4)
        setOption(descriptor, IPPROTO_IP, IP_PKTINFO, 1);
    else
        setOption(descriptor, IPPROTO_IPV6, IPV6_RECVPKTINFO, 1);
    bool hasJoined = false;
    for (const NetworkInterface &networkInterface : interfaces) {
        if (networkInterface.isIPv4 != isIPv4 || networkInterface.isLoopback)
            continue;
        if (isIPv4) {
            ip_mreqn group{};
            ::inet_pton(AF_INET, discoveryGroupIPv4, &group.imr_multiaddr);
            group.imr_ifindex = static_cast<int>(networkInterface.index);
            hasJoined |= setOption(descriptor, IPPROTO_IP, IP_ADD_MEMBERSHIP, group);
        } else {
            ipv6_mreq group{};
            ::inet_pton(AF_INET6, discoveryGroupIPv6, &group.ipv6mr_multiaddr);
            group.ipv6mr_interface = networkInterface.index;
            hasJoined |= setOption(descriptor, IPPROTO_IPV6, IPV6_JOIN_GROUP, group);
        }
    }
    if (!hasJoined || !bindTo(descriptor, *any)) {
        ::close(descriptor); // the search works without the messages that devices send on their own
        return;
    }
    m_sockets.push_back({.descriptor = descriptor, .isIPv4 = isIPv4, .localAddress = {}});
}

std::size_t DiscoverySockets::sendToGroups(const std::string &message, const SendObserver &observer)
{
    std::size_t sent = 0;
    for (const Socket &socket : m_sockets) {
        if (!socket.sendsToGroup)
            continue;
        const std::string group =
            socket.isIPv4 ? std::string(discoveryGroupIPv4)
                          : discoveryGroupIPv6 + std::string("%") + std::to_string(socket.interfaceIndex);
        const std::optional<SocketAddress> address = socketAddress(group, discoveryPort);
        const int error = address ? sendDatagram(socket.descriptor, message, *address) : EADDRNOTAVAIL;
        if (observer)
            observer(socket.localAddress, error);
        sent += error == 0 ? 1 : 0;
    }
    return sent;
}

int DiscoverySockets::sendTo(const std::string &message, const SocketAddress &address)
{
    const bool isIPv4 = address.storage.ss_family == AF_INET;
    int error = ENETUNREACH;
    for (const Socket &socket : m_sockets) {
        if (socket.isIPv4 != isIPv4 || socket.localAddress.empty())
            continue;
        const int outcome = sendDatagram(socket.descriptor, message, address);
        if (outcome == 0)
            return 0;
        // The loopback interface returns EINVAL for every address of a network: another error is more
        // informative.
        if (outcome != EINVAL)
            error = outcome;
    }
    return error;
}

std::string DiscoverySockets::localAddressOf(const Socket &socket, unsigned int interfaceIndex) const
{
    if (!socket.localAddress.empty())
        return socket.localAddress;
    const auto own = std::find_if(m_sockets.begin(), m_sockets.end(), [&](const Socket &other) {
        return other.isIPv4 == socket.isIPv4 && other.interfaceIndex == interfaceIndex &&
               !other.localAddress.empty();
    });
    return own == m_sockets.end() ? std::string() : own->localAddress;
}

void DiscoverySockets::receive(int milliseconds, const Receiver &receiver)
{
    std::vector<pollfd> waiting;
    for (const Socket &socket : m_sockets)
        waiting.push_back({.fd = socket.descriptor, .events = POLLIN, .revents = 0});
    waiting.push_back({.fd = m_wakeDescriptor, .events = POLLIN, .revents = 0});
    if (::poll(waiting.data(), waiting.size(), milliseconds) <= 0)
        return;
    static thread_local std::array<char, largestDatagram> buffer;
    int left = maximumDatagrams;
    for (std::size_t index = 0; index < m_sockets.size(); ++index) {
        while ((waiting[index].revents & POLLIN) != 0 && left-- > 0) {
            const Datagram datagram = receiveInto(m_sockets[index].descriptor, buffer);
            if (datagram.size <= 0)
                break;
            receiver({buffer.data(), static_cast<std::size_t>(datagram.size)}, datagram.sender,
                     localAddressOf(m_sockets[index], datagram.interfaceIndex));
        }
    }
    std::uint64_t count = 0;
    if (waiting.back().revents != 0)
        (void)!::read(m_wakeDescriptor, &count, sizeof(count));
}

void DiscoverySockets::wake() const
{
    const std::uint64_t one = 1;
    (void)!::write(m_wakeDescriptor, &one, sizeof(one));
}

} // namespace sdk::onvif
