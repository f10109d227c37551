#include "sdk/onvif/discovery/devicediscovery.h"

#include "sdk/onvif/discovery/addresssearch.h"
#include "sdk/onvif/discovery/deviceinspector.h"
#include "sdk/onvif/soap/httpclient.h"
#include "sdk/onvif/soap/logging.h"

#include <utility>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

constexpr auto inspectionWait = 1500ms;
constexpr int inspectionsAtOnce = 16;
// Bounds against a computer that answers with made-up devices.
constexpr std::size_t maximumDevices = 20'000;
constexpr int maximumServicesAtAddress = 4;
// A probe is repeated once: it may be lost, and so may an answer (SOAP-over-UDP 1.1, appendix A).
constexpr auto repetitionDelay = 150ms;

std::string keyOf(const std::string &address, int port)
{
    return address + ' ' + std::to_string(port);
}

} // namespace

DeviceDiscovery::DeviceDiscovery(std::shared_ptr<const CertificateDecision> decision)
    : m_http(std::make_shared<HttpClient>(std::move(decision)))
{
    m_inspections.setMaxThreadCount(inspectionsAtOnce);
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

std::int64_t DeviceDiscovery::start(SearchAnswerHandler handler, void *user)
{
    const std::scoped_lock lock(m_startMutex);
    if (m_isCancelled || !handler)
        return 0;
    if (!m_receiver.joinable()) {
        auto sockets = std::make_unique<DiscoverySockets>();
        if (sockets->open() == 0)
            return 0;
        m_sockets = std::move(sockets);
        {
            const std::scoped_lock seenLock(m_mutex);
            m_seen.clear();
            m_seenAt.clear();
            m_answers.clear();
        }
        m_receiver = std::jthread([this](const std::stop_token &stop) { run(stop); });
    }
    // Under the lock of the handlers: no answer may come between what is known and the new handler.
    const std::scoped_lock handlerLock(m_handlerMutex);
    std::vector<SearchAnswer> known;
    std::int64_t handle = 0;
    {
        const std::scoped_lock seenLock(m_mutex);
        handle = ++m_lastHandle;
        known = m_answers;
    }
    m_searches[handle] = {.handler = handler, .user = user};
    for (const SearchAnswer &answer : known)
        handler(handle, &answer, user);
    m_probesDue += 2;
    m_sockets->wake();
    return handle;
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
    for (const ProbeKind kind : {ProbeKind::Transmitters, ProbeKind::Anything}) {
        if (m_sockets->sendToGroups(probeMessage(kind)) == 0)
            qCWarning(logOnvif) << "No interface has taken the message of a search";
    }
}

void DeviceDiscovery::take(std::string_view datagram, const SocketAddress &sender,
                           const std::string &localAddress)
{
    for (DeviceAnnouncement &announcement : readAnnouncements(datagram)) {
        if (announcement.isLeaving)
            continue;
        FoundDevice device;
        device.address = addressText(sender);
        device.localAddress = localAddress;
        device.service = serviceOf(announcement, device.address);
        device.announcement = std::move(announcement);
        if (!device.address.empty() && isExpected(device))
            m_inspections.start([this, device] { inspect(device); });
    }
}

bool DeviceDiscovery::isExpected(const FoundDevice &device)
{
    const std::scoped_lock lock(m_mutex);
    if (m_seen.size() >= maximumDevices || m_seen.contains(keyOf(device.address, device.service.port)))
        return false;
    int &atAddress = m_seenAt[device.address];
    if (atAddress >= maximumServicesAtAddress)
        return false;
    ++atAddress;
    m_seen.insert(keyOf(device.address, device.service.port));
    return true;
}

void DeviceDiscovery::inspect(FoundDevice device)
{
    inspectDevice(device, m_http, inspectionWait);
    if (!m_isCancelled)
        report(device);
}

void DeviceDiscovery::remember(const FoundDevice &device)
{
    const std::scoped_lock lock(m_mutex);
    if (m_services.size() < maximumDevices)
        m_services[keyOf(device.address, device.service.port)] = device.service;
}

void DeviceDiscovery::report(const FoundDevice &device)
{
    remember(device);
    const SearchAnswer answer = searchAnswerOf(device);
    const std::scoped_lock handlerLock(m_handlerMutex);
    {
        const std::scoped_lock lock(m_mutex);
        m_answers.push_back(answer);
    }
    for (const auto &[handle, search] : m_searches)
        search.handler(handle, &answer, search.user);
}

void DeviceDiscovery::searchAddresses(const std::vector<std::string> &addresses, SearchAnswerHandler handler,
                                      void *user, std::chrono::milliseconds wait)
{
    if (m_isCancelled || !handler)
        return;
    const auto reporter = [&](const FoundDevice &device) {
        remember(device);
        const SearchAnswer answer = searchAnswerOf(device);
        handler(0, &answer, user);
    };
    AddressSearch search(m_http, reporter, m_isCancelled);
    search.run(addresses, wait);
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
