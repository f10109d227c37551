// Records of the configurations "Network", "DVRIP" and "Https" of a device. A record is the struct that the
// configuration library fills from a configuration text. Strings end with a zero. The word "size" is the size
// of the struct.
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
    std::array<char, 40> mac;        ///< "02:1a:c5:00:40:17"; empty if not reported
    std::array<char, 64> address;    ///< IPv4; for a device without IPv4, IPv6 or empty
    std::array<char, 64> subnetMask; ///< dotted mask, or the prefix length of an IPv6 address; may be empty
    std::array<char, 64> gateway;    ///< empty if there is none
    std::array<std::uint8_t, 16> reserved;
};
static_assert(sizeof(NetworkRecord) == 320);

/// "DVRIP": the device's vendor-specific service, to which NetLogin connects.
struct ServiceRecord
{
    std::uint32_t size;
    std::int32_t tcpPort;            ///< of the service, as for NetLogin
    std::int32_t maximumConnections; ///< at the same time; 0 if not reported
    std::array<std::uint8_t, 20> reserved;
};
static_assert(sizeof(ServiceRecord) == 32);

/// "Https": the device's web page over TLS.
struct HttpsRecord
{
    std::uint32_t size;
    std::int32_t enabled; ///< 0 or 1
    std::int32_t port;    ///< 0 if not reported
    std::int32_t reserved;
};
static_assert(sizeof(HttpsRecord) == 16);

} // namespace sdk
