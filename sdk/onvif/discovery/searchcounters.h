// What searches have sent and received, counted for a report.
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
    std::string localAddress = {}; ///< of this computer, where its answer arrived
};

/// Counts by the address of this computer that a message went out or came in through. Thread-safe. The counts
/// stop at their largest value, and there is one entry for each address of an interface.
class SearchCounters
{
public:
    /// Begins again, as a search does.
    void clear();

    /// A request to a group; `error` is the system's number, 0 if the request was sent.
    void noteRequest(const std::string &localAddress, int error);
    void noteMessage(const std::string &localAddress);
    void noteDiscarded(const std::string &localAddress, SearchDiscard reason);

    /// One of the addresses that are asked one by one; `error` as above.
    void noteAskedAddress(int error);
    void noteAnsweredAddress();

    /// Fills a report of `interfaces` and of `devices`, the devices found. Loopback interfaces are left out
    /// unless there are no others.
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
    std::uint32_t m_answeredAddresses = 0;
    std::uint32_t m_unroutedAddresses = 0;
};

} // namespace sdk::onvif
