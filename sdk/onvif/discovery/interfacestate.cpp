#include "sdk/onvif/discovery/interfacestate.h"

#include "sdk/onvif/discovery/networkaddress.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <net/if_arp.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>
#include <numeric>
#include <optional>
#include <span>

namespace sdk::onvif {

namespace {

struct InterfaceListDeleter
{
    void operator()(ifaddrs *list) const { freeifaddrs(list); }
};

bool isSearchedFrom(const sockaddr &address)
{
    if (address.sa_family == AF_INET)
        return true;
    return address.sa_family == AF_INET6 &&
           IN6_IS_ADDR_LINKLOCAL(&reinterpret_cast<const sockaddr_in6 &>(address).sin6_addr);
}

/// The other types are tunnels and similar interfaces, which a system has even if they are unused.
bool isEthernet(const sockaddr &address)
{
    return address.sa_family == AF_PACKET &&
           reinterpret_cast<const sockaddr_ll &>(address).sll_hatype == ARPHRD_ETHER;
}

std::string textOf(const sockaddr &address)
{
    SocketAddress copy;
    copy.length = address.sa_family == AF_INET ? sizeof(sockaddr_in) : sizeof(sockaddr_in6);
    std::memcpy(&copy.storage, &address, copy.length);
    return addressText(copy);
}

int prefixLengthOf(const sockaddr *mask)
{
    if (!mask)
        return 0;
    const auto bitsOf = [](const void *bytes, std::size_t size) {
        const std::span octets(static_cast<const unsigned char *>(bytes), size);
        return std::accumulate(octets.begin(), octets.end(), 0,
                               [](int bits, unsigned char octet) { return bits + std::popcount(octet); });
    };
    if (mask->sa_family == AF_INET)
        return bitsOf(&reinterpret_cast<const sockaddr_in *>(mask)->sin_addr, sizeof(in_addr));
    if (mask->sa_family == AF_INET6)
        return bitsOf(&reinterpret_cast<const sockaddr_in6 *>(mask)->sin6_addr, sizeof(in6_addr));
    return 0;
}

InterfaceState stateOf(const ifaddrs &entry)
{
    return {.name = entry.ifa_name,
            .isUp = (entry.ifa_flags & IFF_UP) != 0,
            .hasLink = (entry.ifa_flags & IFF_RUNNING) != 0,
            .sendsToGroups = (entry.ifa_flags & IFF_MULTICAST) != 0,
            .isLoopback = (entry.ifa_flags & IFF_LOOPBACK) != 0};
}

std::optional<std::uint32_t> ipv4Number(const std::string &address)
{
    in_addr number{};
    if (::inet_pton(AF_INET, address.c_str(), &number) != 1)
        return std::nullopt;
    return ntohl(number.s_addr);
}

} // namespace

std::vector<InterfaceState> interfaceStates()
{
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, InterfaceListDeleter> owner(first);
    std::vector<InterfaceState> states;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || !isSearchedFrom(*entry->ifa_addr))
            continue;
        InterfaceState state = stateOf(*entry);
        state.address = textOf(*entry->ifa_addr);
        state.prefixLength = prefixLengthOf(entry->ifa_netmask);
        states.push_back(std::move(state));
    }
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        const bool hasAddress =
            std::any_of(states.begin(), states.end(),
                        [entry](const InterfaceState &state) { return state.name == entry->ifa_name; });
        if (entry->ifa_addr && isEthernet(*entry->ifa_addr) && !hasAddress)
            states.push_back(stateOf(*entry));
    }
    return states;
}

bool isInNetwork(const std::string &address, const InterfaceState &interface)
{
    const auto number = ipv4Number(address);
    const auto own = ipv4Number(interface.address);
    if (!number || !own || interface.prefixLength > 32)
        return false;
    // A shift by 32 is undefined, and the network of prefix length 0 contains every address.
    const std::uint32_t mask = interface.prefixLength <= 0 ? 0 : 0xFFFFFFFFU << (32 - interface.prefixLength);
    return (*number & mask) == (*own & mask);
}

} // namespace sdk::onvif
