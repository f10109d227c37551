// The report of searches: counters of the messages that they have sent and received. It explains an empty
// list of devices. NetGetSearchReport states when the counters are reset.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The reason why a received message, or a device in it, was not reported to the handler of a search. Indices
/// of SearchInterfaceReport::discarded.
enum class SearchDiscard : std::uint32_t
{
    Unreadable = 0, ///< not a message of the search's protocol
    OtherKind,      ///< a message of a device that is not a video device
    NoService,      ///< the message contains no service address of the device
    ForeignAddress, ///< every address in the message belongs to another host than its sender
    Leaving,        ///< the device reports that it leaves the network
    TooMany,        ///< beyond the number of devices that the library keeps for a search
};
inline constexpr std::size_t searchDiscards = 6; ///< number of enumerators of SearchDiscard

/// The reason why a search through an interface is impossible or found no devices. Bit numbers of
/// SearchInterfaceReport::obstacles.
enum class SearchObstacle : std::uint32_t
{
    InterfaceDown = 0, ///< the interface is disabled
    NoLink,            ///< no cable, or no peer
    NoAddress,         ///< neither an IPv4 address nor a link-local IPv6 address
    NoMulticast,       ///< the interface cannot send multicast
    SendFailed,        ///< the system returned an error on sending; see `sendError`
    NoResponse,        ///< requests were sent and no response was received: filtered, or no devices
};

/// One address of a network interface of the host. An interface with several addresses has several entries;
/// an interface without an address has one entry with an empty address. Strings end with a zero.
struct SearchInterfaceReport
{
    std::array<char, 32> name;
    std::array<char, 64> address;   ///< local; empty if there is none
    std::int32_t prefixLength;      ///< of `address`; 0 without one
    std::uint32_t obstacles;        ///< SearchObstacle: bit N is set if the obstacle N exists
    std::int32_t sendError;         ///< last error number (errno) of the system on sending, 0 for none
    std::uint32_t requestsSent;     ///< multicast requests of local searches
    std::uint32_t messagesReceived; ///< by local searches at this address, discarded ones included
    std::uint32_t devicesFound;     ///< reported to the handlers of local searches, each once
    std::array<std::uint32_t, searchDiscards> discarded; ///< numbers of messages, or of devices in them;
                                                         ///< indexed by SearchDiscard
    std::array<std::uint8_t, 48> reserved;
};
static_assert(sizeof(SearchInterfaceReport) == 192);
static_assert(offsetof(SearchInterfaceReport, discarded) == 120);

inline constexpr std::size_t maximumReportedInterfaces = 64;

/// Filled by NetGetSearchReport.
struct SearchReport
{
    std::uint32_t size;                ///< sizeof(SearchReport), set by the caller
    std::uint32_t count;               ///< entries of `interfaces` that are filled
    std::uint32_t addressesAsked;      ///< addresses searched by NetSearchDevicesByIPs and similar operations
    std::uint32_t addressesResponding; ///< searched addresses with a response
    std::uint32_t addressesNoRoute;    ///< searched addresses to which the host has no route
    std::uint32_t foreignDevices;      ///< found devices whose IPv4 address is in no network of the host
    std::array<std::uint8_t, 40> reserved;
    std::array<SearchInterfaceReport, maximumReportedInterfaces> interfaces;
};
static_assert(sizeof(SearchReport) == 64 + maximumReportedInterfaces * sizeof(SearchInterfaceReport));

} // namespace sdk
