// Blocks of device searches: the requests that start a search, and the response of a found device. All
// strings are 8-bit, in the local encoding; a string that the device does not report is empty. A string that
// fills its field does not end with a zero: use blockText() (blocktext.h) to read it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The identity, network settings and state of one device, from its search response. ModifyDeviceInput
/// contains the same struct with new addresses: a request to change the address of the device.
struct SearchDeviceInformation
{
    std::int32_t ipVersion;                ///< 4 or 6: the family of `address`
    std::int32_t port;                     ///< service port, 1 to 65535
    std::array<char, 64> address;          ///< "0.0.0.0" while an IPv4 address is unset; a link-local IPv6
                                           ///< address may have the interface of this host: "fe80::1%eth0"
    std::array<char, 64> subnetMask;       ///< dotted mask, or the IPv6 prefix length; may be empty
    std::array<char, 64> gateway;          ///< empty if there is none
    std::array<char, 40> mac;              ///< "02:1a:c5:00:40:17"
    std::array<char, 32> deviceType;       ///< "IPC", "NVR", ...
    std::array<char, 32> detailModel;      ///< model text printed on the device
    std::array<char, 64> deviceName;       ///< set by the administrator
    std::array<char, 128> softwareVersion; ///< as the device reports it: "2.900.0"
    std::array<char, 48> serialNumber;
    std::uint16_t httpPort;              ///< port of the device's web page, 0 if it has none
    std::uint8_t dhcpEnabled;            ///< 0 or 1
    std::uint8_t initialisationState;    ///< low two bits: see initialisationBits()
    std::uint8_t passwordResetWay;       ///< bit 0 telephone, bit 1 mail: contacts for a lost password
    std::array<char, 64> currentAddress; ///< in a request: present address of the device; empty in a response
    std::array<char, 64> account;  ///< in a request: one that may change the address; empty in a response
    std::array<char, 64> password; ///< in a request: of that account; empty in a response
    std::array<char, 48> uuid;     ///< chosen by the device, lower case; empty if it has none
    std::array<std::uint8_t, 2443> reserved; ///< 0
};
static_assert(sizeof(SearchDeviceInformation) == 3232);
static_assert(offsetof(SearchDeviceInformation, address) == 8);
static_assert(offsetof(SearchDeviceInformation, httpPort) == 544);
static_assert(offsetof(SearchDeviceInformation, currentAddress) == 549);
static_assert(offsetof(SearchDeviceInformation, uuid) == 741);
static_assert(offsetof(SearchDeviceInformation, reserved) == 789);

/// Meaning of the low two bits of SearchDeviceInformation::initialisationState.
enum class InitialisationBits : std::uint8_t
{
    NotReported = 0, ///< the device has no initialisation, or its state is unknown; counts as initialised
    Uninitialised = 1,
    Initialised = 2,
};

/// The low two bits. Their value 3, which has no enumerator, counts as initialised as well.
[[nodiscard]] constexpr InitialisationBits initialisationBits(std::uint8_t initialisationState)
{
    return static_cast<InitialisationBits>(initialisationState & 0x03);
}

/// One response of one device.
struct SearchResponse
{
    std::uint32_t size;                ///< sizeof(SearchResponse)
    std::uint32_t reserved;            ///< 0
    std::array<char, 64> localAddress; ///< address of the host that received the response
    SearchDeviceInformation device;
};
static_assert(sizeof(SearchResponse) == 3304);
static_assert(offsetof(SearchResponse, device) == 72);

/// Receives responses on threads of the network library; several calls may run at the same time. It may also
/// be called on the calling thread of NetStartSearchDevices and NetStartSearchDevicesEx, before they return.
/// `response` is valid during the call only. `searchHandle` is the handle of the local search; it is 0 for
/// responses to NetSearchDevicesByIPs, NetSearchDevicesByIPsEx and NetSearchDeviceByIp. `user` is that of the
/// search.
using SearchResponseHandler = void (*)(std::int64_t searchHandle, const SearchResponse *response, void *user);

/// Given to NetStartSearchDevices.
struct SearchParameter
{
    std::uint32_t size; ///< sizeof(SearchParameter)
    std::uint32_t reserved;
    SearchResponseHandler handler; ///< not null
    void *user;                    ///< passed to the handler
};
static_assert(sizeof(SearchParameter) == 24);

/// Given to NetStartSearchDevicesEx.
struct SearchParameterEx
{
    std::uint32_t size; ///< sizeof(SearchParameterEx)
    std::uint32_t reserved;
    SearchResponseHandler handler;     ///< not null
    void *user;                        ///< passed to the handler
    std::array<char, 64> localAddress; ///< source address of the search, empty for every address of the host
};
static_assert(sizeof(SearchParameterEx) == 88);

inline constexpr int maximumSearchAddresses = 256; ///< of one request

/// A list of addresses, each of which gets a request of its own. Given to NetSearchDevicesByIPs,
/// NetSearchDevicesByIPsEx and NetSearchDeviceByIp.
struct SearchByAddressesRequest
{
    std::uint32_t size; ///< sizeof(SearchByAddressesRequest)
    std::int32_t count; ///< used entries of `addresses`, 0 to maximumSearchAddresses; exactly 1 for
                        ///< NetSearchDeviceByIp, which fails otherwise
    std::array<std::array<char, 64>, maximumSearchAddresses>
        addresses; ///< dotted IPv4 addresses or IPv6 addresses
};
static_assert(sizeof(SearchByAddressesRequest) == 16392);

} // namespace sdk
