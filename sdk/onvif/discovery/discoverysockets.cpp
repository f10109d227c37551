#include "sdk/onvif/discovery/discoverysockets.h"

#include "sdk/onvif/discovery/probemessage.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace sdk::onvif {

namespace {

constexpr std::size_t largestDatagram = 65536;
constexpr int receiveBuffer = 4 * 1024 * 1024; // hundreds of devices answer within half a second

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

} // namespace

DiscoverySockets::DiscoverySockets() : m_wakeDescriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

DiscoverySockets::~DiscoverySockets()
{
    for (const Socket &socket : m_sockets)
        ::close(socket.descriptor);
    if (m_wakeDescriptor >= 0)
        ::close(m_wakeDescriptor);
}

std::size_t DiscoverySockets::open()
{
    const std::vector<NetworkInterface> interfaces = networkInterfaces();
    for (const NetworkInterface &networkInterface : interfaces)
        addInterface(networkInterface);
    const auto searched = static_cast<std::size_t>(std::count_if(
        m_sockets.begin(), m_sockets.end(), [](const Socket &socket) { return socket.sendsToGroup; }));
    addListener(true, interfaces);
    addListener(false, interfaces);
    return searched;
}

void DiscoverySockets::addInterface(const NetworkInterface &networkInterface)
{
    const bool isIPv4 = networkInterface.isIPv4;
    const std::optional<SocketAddress> own = socketAddress(networkInterface.address, 0);
    const int descriptor = own ? openSocket(isIPv4) : -1;
    if (descriptor < 0)
        return;
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
        ::close(descriptor);
        return;
    }
    m_sockets.push_back({.descriptor = descriptor,
                         .isIPv4 = isIPv4,
                         .interfaceIndex = networkInterface.index,
                         .localAddress = networkInterface.address,
                         .sendsToGroup = !networkInterface.isLoopback});
}

void DiscoverySockets::addListener(bool isIPv4, const std::vector<NetworkInterface> &interfaces)
{
    const std::optional<SocketAddress> any = socketAddress(isIPv4 ? "0.0.0.0" : "::", discoveryPort);
    const int descriptor = any ? openSocket(isIPv4) : -1;
    if (descriptor < 0)
        return;
    // Other programs of this computer may listen at the port as well.
    setOption(descriptor, SOL_SOCKET, SO_REUSEADDR, 1);
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

std::size_t DiscoverySockets::sendToGroups(const std::string &message)
{
    std::size_t sent = 0;
    for (const Socket &socket : m_sockets) {
        if (!socket.sendsToGroup)
            continue;
        const std::string group =
            socket.isIPv4 ? std::string(discoveryGroupIPv4)
                          : discoveryGroupIPv6 + std::string("%") + std::to_string(socket.interfaceIndex);
        const std::optional<SocketAddress> address = socketAddress(group, discoveryPort);
        if (address && ::sendto(socket.descriptor, message.data(), message.size(), 0,
                                reinterpret_cast<const sockaddr *>(&address->storage), address->length) > 0)
            ++sent;
    }
    return sent;
}

bool DiscoverySockets::sendTo(const std::string &message, const SocketAddress &address)
{
    const bool isIPv4 = address.storage.ss_family == AF_INET;
    return std::any_of(m_sockets.begin(), m_sockets.end(), [&](const Socket &socket) {
        return socket.isIPv4 == isIPv4 && !socket.localAddress.empty() &&
               ::sendto(socket.descriptor, message.data(), message.size(), 0,
                        reinterpret_cast<const sockaddr *>(&address.storage), address.length) > 0;
    });
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
    for (std::size_t place = 0; place < m_sockets.size(); ++place) {
        while ((waiting[place].revents & POLLIN) != 0 && left-- > 0) {
            SocketAddress sender;
            sender.length = sizeof(sender.storage);
            const ssize_t size = ::recvfrom(m_sockets[place].descriptor, buffer.data(), buffer.size(), 0,
                                            reinterpret_cast<sockaddr *>(&sender.storage), &sender.length);
            if (size <= 0)
                break;
            receiver({buffer.data(), static_cast<std::size_t>(size)}, sender, m_sockets[place].localAddress);
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
