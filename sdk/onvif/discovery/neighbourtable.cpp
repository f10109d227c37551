#include "sdk/onvif/discovery/neighbourtable.h"

#include "sdk/onvif/discovery/networkaddress.h"
#include "sdk/onvif/services/macaddress.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <span>
#include <vector>

namespace sdk::onvif {

namespace {

constexpr std::size_t macLength = 6;
constexpr std::size_t bufferSize = std::size_t(64) * 1024;

/// A socket to the kernel's routing tables.
class KernelSocket
{
public:
    KernelSocket() : m_descriptor(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE)) {}
    ~KernelSocket()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    KernelSocket(const KernelSocket &) = delete;
    KernelSocket &operator=(const KernelSocket &) = delete;

    [[nodiscard]] bool requestNeighbours() const
    {
        struct
        {
            nlmsghdr header;
            ndmsg body;
        } request{};
        request.header.nlmsg_len = sizeof(request);
        request.header.nlmsg_type = RTM_GETNEIGH;
        request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
        return m_descriptor >= 0 && ::send(m_descriptor, &request, sizeof(request), 0) == sizeof(request);
    }

    [[nodiscard]] std::span<const char> receive(std::vector<char> &buffer) const
    {
        const ssize_t size = ::recv(m_descriptor, buffer.data(), buffer.size(), 0);
        return {buffer.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
    }

private:
    const int m_descriptor;
};

std::string macText(const unsigned char *bytes)
{
    std::array<char, 18> text{};
    std::snprintf(text.data(), text.size(), "%02x:%02x:%02x:%02x:%02x:%02x", bytes[0], bytes[1], bytes[2],
                  bytes[3], bytes[4], bytes[5]);
    return canonicalMac(text.data()); // empty for a MAC of zeros
}

/// The string of a network address of the table, in the form of addressText().
std::string neighbourAddress(const ndmsg &neighbour, const void *bytes, std::size_t size)
{
    SocketAddress address;
    if (neighbour.ndm_family == AF_INET && size == sizeof(in_addr)) {
        auto *ipv4 = reinterpret_cast<sockaddr_in *>(&address.storage);
        ipv4->sin_family = AF_INET;
        std::memcpy(&ipv4->sin_addr, bytes, size);
        address.length = sizeof(*ipv4);
    } else if (neighbour.ndm_family == AF_INET6 && size == sizeof(in6_addr)) {
        auto *ipv6 = reinterpret_cast<sockaddr_in6 *>(&address.storage);
        ipv6->sin6_family = AF_INET6;
        std::memcpy(&ipv6->sin6_addr, bytes, size);
        if (IN6_IS_ADDR_LINKLOCAL(&ipv6->sin6_addr))
            ipv6->sin6_scope_id = static_cast<std::uint32_t>(neighbour.ndm_ifindex);
        address.length = sizeof(*ipv6);
    } else {
        return {};
    }
    return addressText(address);
}

void addNeighbour(const nlmsghdr &header, std::unordered_map<std::string, std::string> &table)
{
    const auto &neighbour = *reinterpret_cast<const ndmsg *>(NLMSG_DATA(&header));
    constexpr int complete = NUD_REACHABLE | NUD_STALE | NUD_DELAY | NUD_PROBE | NUD_PERMANENT;
    if ((neighbour.ndm_state & complete) == 0)
        return;
    std::string address;
    std::string mac;
    auto length = static_cast<int>(header.nlmsg_len - NLMSG_LENGTH(sizeof(ndmsg)));
    const auto *attribute = reinterpret_cast<const rtattr *>(reinterpret_cast<const char *>(&neighbour) +
                                                             NLMSG_ALIGN(sizeof(ndmsg)));
    for (; RTA_OK(attribute, length); attribute = RTA_NEXT(attribute, length)) {
        if (attribute->rta_type == NDA_DST)
            address = neighbourAddress(neighbour, RTA_DATA(attribute), RTA_PAYLOAD(attribute));
        else if (attribute->rta_type == NDA_LLADDR && RTA_PAYLOAD(attribute) == macLength)
            mac = macText(static_cast<const unsigned char *>(RTA_DATA(attribute)));
    }
    if (!address.empty() && !mac.empty())
        table[address] = mac;
}

} // namespace

std::unordered_map<std::string, std::string> neighbourTable()
{
    std::unordered_map<std::string, std::string> table;
    const KernelSocket kernel;
    if (!kernel.requestNeighbours())
        return table;
    std::vector<char> buffer(bufferSize);
    while (true) {
        const std::span<const char> received = kernel.receive(buffer);
        if (received.empty())
            return table;
        auto length = static_cast<unsigned int>(received.size());
        for (const auto *header = reinterpret_cast<const nlmsghdr *>(received.data());
             NLMSG_OK(header, length); header = NLMSG_NEXT(header, length)) {
            if (header->nlmsg_type == NLMSG_DONE || header->nlmsg_type == NLMSG_ERROR)
                return table;
            addNeighbour(*header, table);
        }
    }
}

} // namespace sdk::onvif
