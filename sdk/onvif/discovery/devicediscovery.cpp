#include "sdk/onvif/discovery/devicediscovery.h"

#include "sdk/blocktext.h"
#include "sdk/onvif/discovery/addresssearch.h"
#include "sdk/onvif/discovery/deviceinspector.h"
#include "sdk/onvif/soap/httpclient.h"
#include "sdk/onvif/soap/logging.h"

#include <algorithm>
#include <utility>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

constexpr auto inspectionWait = 1500ms;
// A search of the local network runs for about four seconds: a device that has waited this long for its
// inspection is reported without one.
constexpr auto longestQueueTime = 2s;
constexpr int parallelInspections = 16;
// Bounds against a host that responds with forged devices.
constexpr std::size_t maximumDevices = 20'000;
// Factory-new devices have the same address, and a device may have several services.
constexpr int maximumServicesAtAddress = 32;
// A probe is repeated once, since the probe or the response may be lost (SOAP-over-UDP 1.1, appendix A).
constexpr auto repetitionDelay = 150ms;

std::string keyOf(const std::string &address, int port)
{
    return address + ' ' + std::to_string(port);
}

std::string keyOf(const FoundDevice &device)
{
    return keyOf(device.address, device.service.port) + ' ' + device.announcement.uuid;
}

/// The reason why the announcement alone is not sufficient to report a device; nothing if it is sufficient.
std::optional<SearchDiscard> doubtAbout(const FoundDevice &device)
{
    if (device.announcement.services.empty())
        return SearchDiscard::NoService;
    if (!namesOwnService(device.announcement, device.address))
        return SearchDiscard::ForeignAddress;
    return std::nullopt;
}

} // namespace

DeviceDiscovery::DeviceDiscovery(std::shared_ptr<const CertificateDecision> decision)
    : m_http(std::make_shared<HttpClient>(std::move(decision)))
{
    m_inspections.setMaxThreadCount(parallelInspections);
}

DeviceDiscovery::~DeviceDiscovery()
{
    cancel();
    m_inspections.waitForDone();
}

void DeviceDiscovery::cancel()
{
    m_isCancelled = true;
    m_http->cancel();
    {
        const std::scoped_lock lock(m_handlerMutex);
        m_searches.clear();
    }
    const std::scoped_lock lock(m_startMutex);
    if (m_receiver.joinable()) {
        m_receiver.request_stop();
        m_sockets->wake();
        m_receiver.join();
    }
    m_inspections.waitForDone();
}

std::int64_t DeviceDiscovery::start(SearchResponseHandler handler, void *user)
{
    const std::scoped_lock lock(m_startMutex);
    if (m_isCancelled || !handler)
        return 0;
    if (!m_receiver.joinable()) {
        clearSearchState();
        auto sockets = std::make_unique<DiscoverySockets>();
        const auto noteFailure = [this](const std::string &localAddress, int error) {
            m_counters.noteRequest(localAddress, error);
        };
        if (sockets->open(noteFailure) == 0)
            return 0;
        m_sockets = std::move(sockets);
        m_receiver = std::jthread([this](const std::stop_token &stop) { run(stop); });
    }
    // Under the lock of the handlers, so that no response is lost between the known devices and the new
    // handler.
    const std::scoped_lock handlerLock(m_handlerMutex);
    std::vector<SearchResponse> known;
    std::int64_t handle = 0;
    {
        const std::scoped_lock seenLock(m_mutex);
        handle = ++m_lastHandle;
        known = m_responses;
    }
    m_searches[handle] = {.handler = handler, .user = user};
    for (const SearchResponse &response : known)
        handler(handle, &response, user);
    m_probesDue += 2;
    m_sockets->wake();
    return handle;
}

void DeviceDiscovery::clearSearchState()
{
    m_counters.clear();
    std::vector<InterfaceState> interfaces = interfaceStates();
    const std::scoped_lock lock(m_mutex);
    m_interfaces = std::move(interfaces);
    m_seen.clear();
    m_seenAt.clear();
    m_doubted.clear();
    m_macHolders.clear();
    m_responses.clear();
}

bool DeviceDiscovery::stop(std::int64_t handle)
{
    const std::scoped_lock lock(m_startMutex);
    {
        const std::scoped_lock handlerLock(m_handlerMutex);
        if (m_searches.erase(handle) == 0)
            return false;
        if (!m_searches.empty())
            return true;
    }
    if (m_receiver.joinable()) {
        m_receiver.request_stop();
        m_sockets->wake();
        m_receiver.join();
        m_inspections.clear();
    }
    return true;
}

void DeviceDiscovery::run(const std::stop_token &stop)
{
    while (!stop.stop_requested()) {
        int wait = 1000;
        if (m_probesDue > 0) {
            --m_probesDue;
            sendProbes();
            wait = static_cast<int>(std::chrono::milliseconds(repetitionDelay).count());
        }
        m_sockets->receive(wait,
                           [this](std::string_view datagram, const SocketAddress &sender,
                                  const std::string &localAddress) { take(datagram, sender, localAddress); });
    }
}

void DeviceDiscovery::sendProbes()
{
    const auto noteRequest = [this](const std::string &localAddress, int error) {
        m_counters.noteRequest(localAddress, error);
    };
    for (const ProbeKind kind : {ProbeKind::Transmitters, ProbeKind::Anything}) {
        if (m_sockets->sendToGroups(probeMessage(kind), noteRequest) == 0)
            qCWarning(logOnvif) << "No interface has sent the search message";
    }
}

void DeviceDiscovery::take(std::string_view datagram, const SocketAddress &sender,
                           const std::string &localAddress)
{
    DiscoveryMessage message = readDiscoveryMessage(datagram);
    // Requests come from this application and from other searching applications. They contain no device.
    if (message.kind == DiscoveryMessage::Kind::Request)
        return;
    m_counters.noteMessage(localAddress);
    if (message.kind == DiscoveryMessage::Kind::Unreadable)
        m_counters.noteDiscarded(localAddress, SearchDiscard::Unreadable);
    for (std::size_t other = 0; other < message.otherDevices; ++other)
        m_counters.noteDiscarded(localAddress, SearchDiscard::OtherKind);
    const std::string address = addressText(sender);
    if (address.empty())
        return;
    for (DeviceAnnouncement &announcement : message.announcements)
        take(std::move(announcement), address, localAddress);
}

void DeviceDiscovery::take(DeviceAnnouncement announcement, const std::string &address,
                           const std::string &localAddress)
{
    if (announcement.isLeaving) {
        m_counters.noteDiscarded(localAddress, SearchDiscard::Leaving);
        return;
    }
    FoundDevice device;
    device.address = address;
    device.localAddress = localAddress;
    device.service = serviceOf(announcement, address);
    device.announcement = std::move(announcement);
    switch (expectationOf(device)) {
    case Expectation::New:
        m_inspections.start(
            [this, device, queued = std::chrono::steady_clock::now()] {
                const bool isLate = std::chrono::steady_clock::now() - queued > longestQueueTime;
                inspect(device, isLate ? 0ms : inspectionWait);
            },
            isInOwnNetwork(device.address) ? 1 : 0);
        break;
    case Expectation::Known:
        break;
    case Expectation::Doubted:
        m_counters.noteDiscarded(localAddress, *doubtAbout(device));
        break;
    case Expectation::TooMany:
        m_counters.noteDiscarded(localAddress, SearchDiscard::TooMany);
        break;
    }
}

DeviceDiscovery::Expectation DeviceDiscovery::expectationOf(const FoundDevice &device)
{
    const std::scoped_lock lock(m_mutex);
    const std::string key = keyOf(device);
    if (m_seen.contains(key)) {
        if (!m_doubted.contains(key))
            return Expectation::Known;
        if (doubtAbout(device))
            return Expectation::Doubted;
        m_doubted.erase(key);
        return Expectation::New;
    }
    const bool isNewAddress = !m_seenAt.contains(device.address);
    if (m_seen.size() >= maximumDevices || (isNewAddress && m_seenAt.size() >= maximumDevices))
        return Expectation::TooMany;
    int &atAddress = m_seenAt[device.address];
    if (atAddress >= maximumServicesAtAddress)
        return Expectation::TooMany;
    ++atAddress;
    m_seen.insert(key);
    return Expectation::New;
}

bool DeviceDiscovery::isInOwnNetwork(const std::string &address) const
{
    const std::scoped_lock lock(m_mutex);
    return address.find('%') != std::string::npos || // link-local
           std::any_of(m_interfaces.begin(), m_interfaces.end(), [&address](const InterfaceState &interface) {
               return isInNetwork(address, interface);
           });
}

void DeviceDiscovery::inspect(FoundDevice device, std::chrono::milliseconds wait)
{
    const bool responses = inspectDevice(device, m_http, wait);
    if (m_isCancelled)
        return;
    const std::optional<SearchDiscard> doubt = responses ? std::nullopt : doubtAbout(device);
    if (!doubt) {
        report(std::move(device));
        return;
    }
    m_counters.noteDiscarded(device.localAddress, *doubt);
    const std::scoped_lock lock(m_mutex);
    m_doubted.insert(keyOf(device));
}

void DeviceDiscovery::remember(const FoundDevice &device)
{
    const std::scoped_lock lock(m_mutex);
    if (m_services.size() < maximumDevices)
        m_services[keyOf(device.address, device.service.port)] = device.service;
}

void DeviceDiscovery::report(FoundDevice device)
{
    const std::scoped_lock handlerLock(m_handlerMutex);
    SearchResponse response{};
    {
        const std::scoped_lock lock(m_mutex);
        m_macHolders.admit(device);
        response = searchResponseOf(device);
        m_responses.push_back(response);
    }
    remember(device);
    for (const auto &[handle, search] : m_searches)
        search.handler(handle, &response, search.user);
}

void DeviceDiscovery::searchAddresses(const std::vector<std::string> &addresses,
                                      SearchResponseHandler handler, void *user,
                                      std::chrono::milliseconds wait)
{
    if (m_isCancelled || !handler)
        return;
    MacHolders holders; // the reporter runs one call at a time
    const auto reporter = [&](FoundDevice device) {
        holders.admit(device);
        remember(device);
        const SearchResponse response = searchResponseOf(device);
        handler(0, &response, user);
    };
    AddressSearch search(m_http, reporter, m_counters, m_isCancelled);
    search.run(addresses, wait);
}

void DeviceDiscovery::fillReport(SearchReport &report) const
{
    std::vector<ReportedDevice> devices;
    {
        const std::scoped_lock lock(m_mutex);
        devices.reserve(m_responses.size());
        for (const SearchResponse &response : m_responses)
            devices.push_back({.address = std::string(blockText(response.device.address)),
                               .localAddress = std::string(blockText(response.localAddress))});
    }
    m_counters.fill(report, interfaceStates(), devices);
}

void DeviceDiscovery::moved(const ServiceAddress &from, const std::string &address)
{
    const std::scoped_lock lock(m_mutex);
    ServiceAddress service = from;
    service.host = address;
    m_services[keyOf(address, service.port)] = service;
}

ServiceAddress DeviceDiscovery::serviceAt(const std::string &address, int port) const
{
    const std::scoped_lock lock(m_mutex);
    const auto known = m_services.find(keyOf(address, port));
    if (known != m_services.end())
        return known->second;
    ServiceAddress service;
    service.host = address;
    service.port = port;
    service.isSecure = isHttpsPort(port);
    const auto atAddress = m_services.lower_bound(address + ' ');
    if (atAddress != m_services.end() && atAddress->second.host == address)
        service.identity = atAddress->second.identity;
    return service;
}

} // namespace sdk::onvif
