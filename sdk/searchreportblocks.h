// What a search has sent and received, to explain a list that is empty.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// Why an answer to a search was not reported as a device. Indices of SearchInterfaceReport::discarded.
enum class SearchDiscard : std::uint32_t
{
    Unreadable = 0, ///< not a message of the search's protocol
    OtherKind,      ///< a message of something that is no video device
    NoService,      ///< the message names no address at which the device can be asked
    ForeignAddress, ///< every address that the message names is on another host than its sender
    Leaving,        ///< the device says that it leaves the network
    TooMany,        ///< beyond the bounds of a search
};
inline constexpr std::size_t searchDiscards = 6;

/// What stands in the way of a search through an interface. Bits of SearchInterfaceReport::obstacles.
enum class SearchObstacle : std::uint32_t
{
    InterfaceDown = 0, ///< switched off
    NoLink,            ///< no cable, or no other end
    NoAddress,         ///< neither an IPv4 address nor a link-local IPv6 address
    NoMulticast,       ///< the interface cannot send to groups
    SendFailed,        ///< the system refused to send; see `sendError`
    NoAnswer,          ///< requests were sent and nothing was received: filtered, or no devices
};

/// One address of an interface; an interface without one has one entry with an empty address.
struct SearchInterfaceReport
{
    std::array<char, 32> name;
    std::array<char, 64> address; ///< local; empty if there is none
    std::int32_t prefixLength;    ///< of `address`
    std::uint32_t obstacles;      ///< bits of SearchObstacle
    std::int32_t sendError;       ///< number of the system's last error, 0 for none
    std::uint32_t requestsSent;   ///< to groups
    std::uint32_t messagesReceived;
    std::uint32_t devicesFound;                          ///< reported to the search's handler
    std::array<std::uint32_t, searchDiscards> discarded; ///< by SearchDiscard
    std::array<std::uint8_t, 48> reserved;
};
static_assert(sizeof(SearchInterfaceReport) == 192);
static_assert(offsetof(SearchInterfaceReport, discarded) == 120);

inline constexpr std::size_t maximumReportedInterfaces = 64;

/// Filled by NetGetSearchReport.
struct SearchReport
{
    std::uint32_t size;              ///< sizeof(SearchReport), set by the caller
    std::uint32_t count;             ///< entries of `interfaces` that are filled
    std::uint32_t addressesAsked;    ///< one by one, by the searches of address lists
    std::uint32_t addressesAnswered; ///< of them
    std::uint32_t addressesNoRoute;  ///< of them: this computer has no route to them
    std::uint32_t foreignDevices;    ///< devices found whose address is outside every interface's network
    std::array<std::uint8_t, 40> reserved;
    std::array<SearchInterfaceReport, maximumReportedInterfaces> interfaces;
};
static_assert(sizeof(SearchReport) == 64 + maximumReportedInterfaces * sizeof(SearchInterfaceReport));

} // namespace sdk
