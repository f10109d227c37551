// Counters of the messages that searches have sent and received, for a report.
#pragma once

#include "sdk/onvif/discovery/interfacestate.h"
#include "sdk/searchreportblocks.h"

#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace sdk::onvif {

/// A device that was reported to a search.
struct ReportedDevice
{
    std::string address = {};
    std::string localAddress = {}; ///< of this host, that received its response
};

/// Counters by the address of this host that a message was sent from or received at. Thread-safe. A counter
/// stops at its largest value. A message whose local address is unknown (empty) does not appear in a report.
class SearchCounters
{
public:
    /// Resets all counters, for the start of a search.
    void clear();

    /// Counts a request to a group. `error` is the system's error number, 0 if the request was sent. A
    /// request with an error is not counted as sent; the report has the last error.
    void noteRequest(const std::string &localAddress, int error);
    /// Counts a received message, whether it is used or discarded.
    void noteMessage(const std::string &localAddress);
    /// Counts a message or an announcement that did not lead to a reported device.
    void noteDiscarded(const std::string &localAddress, SearchDiscard reason);

    /// Counts a request to a single address, also one that was not sent. `error` is the system's error
    /// number, 0 if the request was sent. Errors that mean "no route" are counted in addition.
    void noteAskedAddress(int error);
    /// Counts a device that was reported by a search of single addresses.
    void noteRespondingAddress();

    /// Replaces `report` by the counters, for the present `interfaces` of this host and the found `devices`,
    /// from which it derives the obstacles, the devices of each interface and the foreign devices. Interfaces
    /// after the first `maximumReportedInterfaces` (64) are omitted, and so are loopback interfaces unless
    /// there are no others.
    void fill(SearchReport &report, const std::vector<InterfaceState> &interfaces,
              const std::vector<ReportedDevice> &devices) const;

private:
    struct Counts
    {
        std::uint32_t requests = 0;
        std::uint32_t messages = 0;
        int sendError = 0;
        std::array<std::uint32_t, searchDiscards> discarded = {};
    };

    [[nodiscard]] static std::uint32_t obstaclesOf(const InterfaceState &interface, const Counts &counts);
    [[nodiscard]] SearchInterfaceReport reportOf(const InterfaceState &interface,
                                                 const std::vector<ReportedDevice> &devices) const;

    mutable std::mutex m_mutex;
    std::map<std::string, Counts> m_counts; ///< by local address
    std::uint32_t m_askedAddresses = 0;
    std::uint32_t m_respondingAddresses = 0;
    std::uint32_t m_unroutedAddresses = 0;
};

} // namespace sdk::onvif
