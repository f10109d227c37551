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

/// Finds devices by WS-Discovery. Any thread may call it. Handlers run on threads of the object.
///
/// A device is reported after a request without a login has shown what state it is in, so that a row is whole
/// when it appears; if the device does not answer that request, or others that are asked before it take too
/// long, it is reported with an unknown state. Devices in the networks of this computer are asked first:
/// those of foreign networks often cannot answer. The device is asked once however many searches run.
class DeviceDiscovery
{
public:
    /// `decision` is asked for the certificates of devices that are asked over HTTPS.
    explicit DeviceDiscovery(std::shared_ptr<const CertificateDecision> decision);
    ~DeviceDiscovery();
    DeviceDiscovery(const DeviceDiscovery &) = delete;
    DeviceDiscovery &operator=(const DeviceDiscovery &) = delete;

    /// Starts a search of the networks of all interfaces. Returns its handle, 0 if no interface can be
    /// searched.
    std::int64_t start(SearchAnswerHandler handler, void *user);

    /// Ends a search; its handler does not run any more after that. False for a handle that is none.
    bool stop(std::int64_t handle);

    /// Asks each address and blocks until all have answered or `wait` has passed or cancel() is called. An
    /// address that answers no probe is asked over HTTP, since routers do not always pass probes on.
    void searchAddresses(const std::vector<std::string> &addresses, SearchAnswerHandler handler, void *user,
                         std::chrono::milliseconds wait);

    /// What the searches have sent and received since the first of those that run was started, or the last
    /// ones if none runs.
    void fillReport(SearchReport &report) const;

    /// The device service that a search has found at an address and port. At another port it has the
    /// standard's path, and the identity of a device that was found at the address.
    [[nodiscard]] ServiceAddress serviceAt(const std::string &address, int port) const;

    /// A device has got another address: its service is found there from now on.
    void moved(const ServiceAddress &from, const std::string &address);

    /// Ends every search and every request, and refuses new ones.
    void cancel();

private:
    struct Search
    {
        SearchAnswerHandler handler = nullptr;
        void *user = nullptr;
    };

    /// What a service that an announcement names is to the running searches.
    enum class Expectation
    {
        New,
        Known,   ///< it is asked or reported already
        Doubted, ///< it was asked and has not answered, and the announcement does not speak for it
        TooMany, ///< beyond the bounds
    };

    void clearSearchState();
    void run(const std::stop_token &stop);
    void sendProbes();
    void take(std::string_view datagram, const SocketAddress &sender, const std::string &localAddress);
    void take(DeviceAnnouncement announcement, const std::string &address, const std::string &localAddress);
    void inspect(FoundDevice device, std::chrono::milliseconds wait);
    /// Whether this computer reaches the device without a router.
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

    mutable std::mutex m_mutex; ///< of what follows
    std::int64_t m_lastHandle = 0;
    std::vector<InterfaceState> m_interfaces; ///< at the start of the running searches
    std::set<std::string> m_seen;             ///< devices of the running searches, by address, port and UUID
    std::map<std::string, int> m_seenAt;      ///< how many of them have this address
    std::set<std::string> m_doubted;          ///< of `m_seen`, not reported: see Expectation::Doubted
    MacHolders m_macHolders;                  ///< of the running searches
    std::vector<SearchAnswer> m_answers;      ///< of the running searches, or of the last ones
    std::map<std::string, ServiceAddress> m_services; ///< by address and port, of all searches

    std::mutex m_handlerMutex; ///< held while handlers run
    std::map<std::int64_t, Search> m_searches;
};

} // namespace sdk::onvif
