// Records of the configurations "Network", "DVRIP" and "Https".
#pragma once

#include <array>
#include <cstdint>

namespace sdk {

/// "Network": addresses of the device.
struct NetworkRecord
{
    std::uint32_t size;
    std::int32_t dhcpEnabled; ///< 0 or 1
    std::array<char, 64> hostName;
    std::array<char, 40> mac; ///< "02:1a:c5:00:40:17"
    std::array<char, 64> address;
    std::array<char, 64> subnetMask; ///< dotted mask, or the prefix length of an IPv6 address
    std::array<char, 64> gateway;
    std::array<std::uint8_t, 16> reserved;
};
static_assert(sizeof(NetworkRecord) == 320);

/// "DVRIP": the device's vendor-specific service.
struct ServiceRecord
{
    std::uint32_t size;
    std::int32_t tcpPort;
    std::int32_t maximumConnections;
    std::array<std::uint8_t, 20> reserved;
};
static_assert(sizeof(ServiceRecord) == 32);

/// "Https": the web page over TLS.
struct HttpsRecord
{
    std::uint32_t size;
    std::int32_t enabled; ///< 0 or 1
    std::int32_t port;    ///< 0 if not reported
    std::int32_t reserved;
};
static_assert(sizeof(HttpsRecord) == 16);

} // namespace sdk
