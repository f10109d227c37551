#include "sdk/onvif/discovery/networkaddress.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>

#include <array>
#include <cstring>
#include <memory>

namespace sdk::onvif {

namespace {

struct ListDeleter
{
    void operator()(ifaddrs *list) const { freeifaddrs(list); }
    void operator()(addrinfo *list) const { freeaddrinfo(list); }
};

} // namespace

std::optional<SocketAddress> socketAddress(const std::string &address, int port)
{
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo *list = nullptr;
    if (getaddrinfo(address.c_str(), std::to_string(port).c_str(), &hints, &list) != 0 || !list)
        return std::nullopt;
    const std::unique_ptr<addrinfo, ListDeleter> owner(list);
    SocketAddress result;
    result.length = list->ai_addrlen;
    std::memcpy(&result.storage, list->ai_addr, list->ai_addrlen);
    return result;
}

std::string addressText(const SocketAddress &address)
{
    std::array<char, NI_MAXHOST> text{};
    if (getnameinfo(reinterpret_cast<const sockaddr *>(&address.storage), address.length, text.data(),
                    text.size(), nullptr, 0, NI_NUMERICHOST) != 0)
        return {};
    return text.data();
}

std::vector<NetworkInterface> networkInterfaces()
{
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, ListDeleter> owner(first);
    std::vector<NetworkInterface> found;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || (entry->ifa_flags & IFF_UP) == 0)
            continue;
        const int family = entry->ifa_addr->sa_family;
        if (family != AF_INET && family != AF_INET6)
            continue;
        const bool isLoopback = (entry->ifa_flags & IFF_LOOPBACK) != 0;
        if ((entry->ifa_flags & IFF_MULTICAST) == 0 && !isLoopback)
            continue;
        SocketAddress address;
        address.length = family == AF_INET ? sizeof(sockaddr_in) : sizeof(sockaddr_in6);
        std::memcpy(&address.storage, entry->ifa_addr, address.length);
        if (family == AF_INET6) {
            const auto *ipv6 = reinterpret_cast<const sockaddr_in6 *>(entry->ifa_addr);
            if (!IN6_IS_ADDR_LINKLOCAL(&ipv6->sin6_addr))
                continue;
        }
        found.push_back({.name = entry->ifa_name,
                         .index = if_nametoindex(entry->ifa_name),
                         .isIPv4 = family == AF_INET,
                         .address = addressText(address),
                         .isLoopback = isLoopback});
    }
    return found;
}

} // namespace sdk::onvif
