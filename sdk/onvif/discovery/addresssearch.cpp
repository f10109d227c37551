#include "sdk/onvif/discovery/addresssearch.h"

#include "sdk/onvif/discovery/deviceinspector.h"
#include "sdk/onvif/discovery/searchcounters.h"
#include "sdk/onvif/soap/httpclient.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr auto probeTime = 700ms; ///< a device delays its response by up to half a second
constexpr auto connectTime = 1000ms;
constexpr int parallelRequests = 16;
constexpr std::array usualPorts = {80, 8080};

int millisecondsUntil(steady_clock::time_point end)
{
    const auto left = std::chrono::duration_cast<milliseconds>(end - steady_clock::now()).count();
    return static_cast<int>(std::max<std::int64_t>(left, 0));
}

/// A connection attempt to one port of one address.
struct Attempt
{
    std::string address;
    int port = 0;
    int descriptor = -1;
};

/// The addresses that accept a connection to `port` before `end`.
std::vector<std::string> acceptingAddresses(const std::vector<std::string> &addresses, int port,
                                            steady_clock::time_point end, const std::atomic_bool &isCancelled)
{
    std::vector<Attempt> attempts;
    for (const std::string &address : addresses) {
        const std::optional<SocketAddress> target = socketAddress(address, port);
        if (!target)
            continue;
        const int descriptor =
            ::socket(target->storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (descriptor < 0)
            continue;
        if (::connect(descriptor, reinterpret_cast<const sockaddr *>(&target->storage), target->length) !=
                0 &&
            errno != EINPROGRESS) {
            ::close(descriptor);
            continue;
        }
        attempts.push_back({.address = address, .port = port, .descriptor = descriptor});
    }
    std::vector<std::string> accepting;
    while (!attempts.empty() && !isCancelled && steady_clock::now() < end) {
        std::vector<pollfd> waiting;
        waiting.reserve(attempts.size());
        for (const Attempt &attempt : attempts)
            waiting.push_back({.fd = attempt.descriptor, .events = POLLOUT, .revents = 0});
        ::poll(waiting.data(), waiting.size(), std::min(millisecondsUntil(end), 50));
        std::vector<Attempt> open;
        for (std::size_t index = 0; index < attempts.size(); ++index) {
            if (waiting[index].revents == 0) {
                open.push_back(attempts[index]);
                continue;
            }
            int error = 0;
            socklen_t length = sizeof(error);
            ::getsockopt(attempts[index].descriptor, SOL_SOCKET, SO_ERROR, &error, &length);
            if (error == 0)
                accepting.push_back(attempts[index].address);
            ::close(attempts[index].descriptor);
        }
        attempts = std::move(open);
    }
    for (const Attempt &attempt : attempts)
        ::close(attempt.descriptor);
    return accepting;
}

} // namespace

AddressSearch::AddressSearch(std::shared_ptr<HttpClient> http, Reporter reporter, SearchCounters &counters,
                             const std::atomic_bool &isCancelled)
    : m_http(std::move(http)), m_reporter(std::move(reporter)), m_counters(counters),
      m_isCancelled(isCancelled)
{
    m_inspections.setMaxThreadCount(parallelRequests);
}

void AddressSearch::run(const std::vector<std::string> &addresses, milliseconds wait)
{
    const Time end = steady_clock::now() + wait;
    probe(addresses, end);
    std::vector<std::string> silent;
    std::copy_if(addresses.begin(), addresses.end(), std::back_inserter(silent),
                 [this](const std::string &address) { return !m_responded.contains(address); });
    searchByHttp(silent, end);
    m_inspections.waitForDone();
}

void AddressSearch::probe(const std::vector<std::string> &addresses, Time end)
{
    DiscoverySockets sockets;
    sockets.open();
    std::set<std::string> targets;
    const std::string message = probeMessage(ProbeKind::Transmitters);
    for (const std::string &address : addresses) {
        const std::optional<SocketAddress> target = socketAddress(address, discoveryPort);
        if (!target)
            continue;
        const int error = sockets.sendTo(message, *target);
        m_counters.noteAskedAddress(error);
        if (error == 0)
            targets.insert(addressText(*target));
    }
    const Time probeEnd = std::min(end, steady_clock::now() + probeTime);
    while (m_responded.size() < targets.size() && !m_isCancelled && steady_clock::now() < probeEnd) {
        const int wait = std::min(millisecondsUntil(probeEnd), 50);
        sockets.receive(wait, [&](std::string_view datagram, const SocketAddress &sender,
                                  const std::string &localAddress) {
            const std::string address = addressText(sender);
            // Messages of other devices arrive here as well.
            if (!targets.contains(address) || m_responded.contains(address))
                return;
            DiscoveryMessage content = readDiscoveryMessage(datagram);
            for (DeviceAnnouncement &announcement : content.announcements) {
                if (announcement.isLeaving)
                    continue;
                m_responded.insert(address);
                FoundDevice device;
                device.address = address;
                device.localAddress = localAddress;
                device.service = serviceOf(announcement, address);
                device.announcement = std::move(announcement);
                m_inspections.start([this, device, end] { inspect(device, false, end); });
                break;
            }
        });
    }
}

void AddressSearch::searchByHttp(const std::vector<std::string> &addresses, Time end)
{
    std::vector<std::string> left = addresses;
    for (const int port : usualPorts) {
        const Time connectEnd = std::min(end, steady_clock::now() + connectTime);
        for (const std::string &address : acceptingAddresses(left, port, connectEnd, m_isCancelled)) {
            FoundDevice device;
            device.address = address;
            device.service.host = address;
            device.service.port = port;
            m_inspections.start([this, device, end] { inspect(device, true, end); });
        }
        // Another server may listen at the first port, so only a device ends the search of its address.
        const std::scoped_lock lock(m_mutex);
        std::erase_if(left, [this](const std::string &address) { return m_reported.contains(address); });
    }
}

void AddressSearch::inspect(FoundDevice device, bool mustRespond, Time end)
{
    const bool hasResponded = inspectDevice(device, m_http, milliseconds(millisecondsUntil(end)));
    if (m_isCancelled || (mustRespond && !hasResponded))
        return;
    const std::scoped_lock lock(m_mutex);
    if (!m_reported.insert(device.address).second)
        return;
    m_counters.noteRespondingAddress();
    m_reporter(device);
}

} // namespace sdk::onvif
