// The search of a list of addresses.
#pragma once

#include "sdk/onvif/discovery/discoverysockets.h"
#include "sdk/onvif/discovery/founddevice.h"

#include <QThreadPool>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace sdk::onvif {

class HttpClient;
class SearchCounters;

/// One search: a probe of WS-Discovery (a UDP message) to each address, then a request over HTTP (ports 80
/// and 8080) to each address without a response. Each device is inspected, by requests without a login,
/// before it is reported. A device that responds to the probe is reported even if its inspection fails. An
/// address that accepts HTTP is reported only if it responds as an ONVIF device.
class AddressSearch
{
public:
    /// Called on threads of the search during run(), one call at a time.
    using Reporter = std::function<void(const FoundDevice &device)>;

    /// `http` sends the requests. `counters` counts the queried and the responding addresses. `isCancelled`
    /// is set by another thread to end the search, together with HttpClient::cancel(). `counters` and
    /// `isCancelled` must outlive the search.
    AddressSearch(std::shared_ptr<HttpClient> http, Reporter reporter, SearchCounters &counters,
                  const std::atomic_bool &isCancelled);

    /// To be called once. Blocks until every address has responded or was queried in both ways, `wait` has
    /// passed or the search is cancelled. No report follows the return. Each address is reported at most
    /// once. `addresses` are numeric, IPv6 in the form of addressText(); any other string is ignored.
    void run(const std::vector<std::string> &addresses, std::chrono::milliseconds wait);

private:
    using Time = std::chrono::steady_clock::time_point;

    void probe(const std::vector<std::string> &addresses, Time end);
    void searchByHttp(const std::vector<std::string> &addresses, Time end);
    void inspect(FoundDevice device, bool mustRespond, Time end);

    const std::shared_ptr<HttpClient> m_http;
    const Reporter m_reporter;
    SearchCounters &m_counters;
    const std::atomic_bool &m_isCancelled;
    QThreadPool m_inspections;
    std::set<std::string> m_responded; ///< addresses with a response to a probe; used by the searching thread
    std::mutex m_mutex;                ///< guards the reporter and the members below
    std::set<std::string> m_reported;
};

} // namespace sdk::onvif
