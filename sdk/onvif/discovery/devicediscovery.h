// Searches of the local network and of lists of addresses.
#pragma once

#include "sdk/onvif/discovery/discoverysockets.h"
#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/discovery/interfacestate.h"
#include "sdk/onvif/discovery/macholders.h"
#include "sdk/onvif/discovery/searchcounters.h"
#include "sdk/searchblocks.h"

#include <QThreadPool>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace sdk {
class CertificateDecision;
}

namespace sdk::onvif {

class HttpClient;

/// Finds devices by WS-Discovery: messages that are sent to multicast groups or to single addresses. A
/// message in which a device describes itself is its announcement. Thread-safe. The handlers of local
/// searches run one at a time, on threads of the object, and on the calling thread of start(). Handlers must
/// not call start(), stop() or cancel(), which wait for them.
///
/// A device is inspected before it is reported: a request without a login determines its state, so that its
/// row is complete when it appears. If the device does not respond to that request, or if the inspections
/// before it take too long, its announcement decides. If an announced service has the address that the
/// announcement came from, the device is reported with the state NotReported. Otherwise it is not reported.
/// Devices in the networks of this host are inspected first, since devices of foreign networks often cannot
/// respond. A device is inspected and reported once in the running searches, regardless of their number. A
/// device that was not reported is inspected again when it announces a service at its own address.
class DeviceDiscovery
{
public:
    /// `decision` decides about the certificates of devices that are inspected over HTTPS.
    explicit DeviceDiscovery(std::shared_ptr<const CertificateDecision> decision);

    /// As cancel(). No searchAddresses() may run.
    ~DeviceDiscovery();
    DeviceDiscovery(const DeviceDiscovery &) = delete;
    DeviceDiscovery &operator=(const DeviceDiscovery &) = delete;

    /// Starts a search of the networks of all interfaces and returns: sends probes to the groups, repeats
    /// them once, and receives messages until stop(). Devices that running searches have found are passed to
    /// `handler` before the return. Returns the handle of the search, above 0; 0 for a null `handler`, if no
    /// interface can be searched, and after cancel().
    std::int64_t start(SearchResponseHandler handler, void *user);

    /// Ends a search. Its handler does not run after the call. The end of the last running search drops the
    /// inspections that have not begun. Returns false for an invalid handle.
    bool stop(std::int64_t handle);

    /// Searches each address by AddressSearch, and blocks until all are done, `wait` has passed or cancel()
    /// is called. `handler` is called with the handle 0 on other threads during the call, one call at a time,
    /// never after it. An address that does not respond to a probe is queried over HTTP, since routers do not
    /// always forward probes. Returns immediately after cancel() and for a null `handler`.
    void searchAddresses(const std::vector<std::string> &addresses, SearchResponseHandler handler, void *user,
                         std::chrono::milliseconds wait);

    /// Fills `report` with the present interfaces of this host and the counters of the running searches, or
    /// of the last searches if none runs. The counters are reset by a start() while no local search runs.
    /// They include the address searches since then.
    void fillReport(SearchReport &report) const;

    /// The device service at an address and port for a request. It is the service that a search of this
    /// object has found there. If none has, the service has the path of the standard, HTTPS at the ports 443
    /// and 8443, and the identity (MAC or UUID) of a device that was found at another port of the address.
    /// Sends nothing.
    [[nodiscard]] ServiceAddress serviceAt(const std::string &address, int port) const;

    /// To be called after the address of the device with the service `from` has changed: serviceAt() then
    /// finds this service at the new `address` and the same port.
    void moved(const ServiceAddress &from, const std::string &address);

    /// Ends every search and every request, and refuses later ones. Blocks until the threads of local
    /// searches have ended. Cannot be undone.
    void cancel();

private:
    struct Search
    {
        SearchResponseHandler handler = nullptr;
        void *user = nullptr;
    };

    /// The status of an announced service in the running searches.
    enum class Expectation
    {
        New,
        Known,   ///< it is being inspected, or was reported
        Doubted, ///< it has not responded, and the announcement alone is not sufficient to report it
        TooMany, ///< beyond the bounds
    };

    void clearSearchState();
    void run(const std::stop_token &stop);
    void sendProbes();
    void take(std::string_view datagram, const SocketAddress &sender, const std::string &localAddress);
    void take(DeviceAnnouncement announcement, const std::string &address, const std::string &localAddress);
    void inspect(FoundDevice device, std::chrono::milliseconds wait);
    /// True if this host reaches the device without a router.
    [[nodiscard]] bool isInOwnNetwork(const std::string &address) const;
    void report(FoundDevice device);
    void remember(const FoundDevice &device);
    [[nodiscard]] Expectation expectationOf(const FoundDevice &device);

    // One receiver thread while at least one search runs.
    std::mutex m_startMutex; ///< held while the thread is started or joined
    std::jthread m_receiver;
    std::unique_ptr<DiscoverySockets> m_sockets;
    std::atomic_int m_probesDue = 0;

    SearchCounters m_counters;

    std::shared_ptr<HttpClient> m_http;
    QThreadPool m_inspections;
    std::atomic_bool m_isCancelled = false;

    mutable std::mutex m_mutex; ///< guards the members below, up to m_handlerMutex
    std::int64_t m_lastHandle = 0;
    std::vector<InterfaceState> m_interfaces; ///< at the start of the running searches
    std::set<std::string> m_seen;             ///< devices of the running searches, by address, port and UUID
    std::map<std::string, int> m_seenAt;      ///< number of devices of `m_seen` by address
    std::set<std::string> m_doubted;          ///< of `m_seen`, not reported: see Expectation::Doubted
    MacHolders m_macHolders;                  ///< of the running searches
    std::vector<SearchResponse> m_responses;  ///< of the running searches, or of the last ones
    std::map<std::string, ServiceAddress> m_services; ///< by address and port, of all searches

    std::mutex m_handlerMutex; ///< held while handlers run
    std::map<std::int64_t, Search> m_searches;
};

} // namespace sdk::onvif
