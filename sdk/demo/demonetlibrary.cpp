#include "sdk/demo/demonetlibrary.h"

#include "sdk/clock.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/scene/addresstext.h"
#include "sdk/demo/site/logging.h"
#include "sdk/demo/site/sitestate.h"

#include <QJsonArray>

#include <algorithm>
#include <map>
#include <optional>

namespace sdk::demo {

namespace {

bool isCountInRange(const SearchByAddressesRequest &request)
{
    return request.count >= 0 && request.count <= maximumSearchAddresses;
}

/// The addresses of a request; empty if its count is out of range.
QStringList addressesOf(const SearchByAddressesRequest &request)
{
    QStringList addresses;
    for (int index = 0; isCountInRange(request) && index < request.count; ++index)
        addresses.append(textOf(request.addresses[static_cast<std::size_t>(index)]));
    return addresses;
}

QJsonObject decoded(const SearchByAddressesRequest &request, const char *localAddress,
                    std::chrono::milliseconds wait)
{
    return {{QStringLiteral("size"), static_cast<qint64>(request.size)},
            {QStringLiteral("count"), request.count},
            {QStringLiteral("addresses"), QJsonArray::fromStringList(addressesOf(request))},
            {QStringLiteral("localAddress"), QString::fromLocal8Bit(localAddress)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}};
}

/// The service port that most devices of the site have.
std::int32_t usualPort(const SiteState &site)
{
    constexpr std::int32_t portWithoutDevices = 37777;
    std::map<std::int32_t, int> counts;
    site.forEachDevice([&counts](const SceneDevice &device) { ++counts[device.port]; });
    const auto usual = std::ranges::max_element(counts, {}, &std::pair<const std::int32_t, int>::second);
    return usual == counts.end() ? portWithoutDevices : usual->first;
}

} // namespace

DemoNetLibrary::DemoNetLibrary(SiteState &site)
    : m_site(site), m_streams(site, m_sessions), m_upgrades(site, m_sessions)
{
}

DemoNetLibrary::~DemoNetLibrary()
{
    endEverything();
}

bool DemoNetLibrary::NetInit()
{
    record("NetInit");
    m_searchTally.clear();
    m_gate.open();
    return true;
}

void DemoNetLibrary::NetCleanup()
{
    record("NetCleanup");
    if (ResponseDelivery::isInsideHandler() || LiveStream::isInsideHandler() ||
        DeviceUpgrade::isInsideHandler()) {
        qCWarning(demoLog, "NetCleanup was called from a handler and would be a deadlock: ignored");
        m_error.fail(DemoError::InsideHandler);
        return;
    }
    endEverything();
}

void DemoNetLibrary::endEverything()
{
    m_gate.close();
    m_sessions.closeAll();
    m_streams.closeAll();
    m_upgrades.closeAll();
    std::map<std::int64_t, std::unique_ptr<ResponseDelivery>> searches; // destroyed without the lock
    const std::lock_guard lock(m_mutex);
    searches.swap(m_searches);
}

void DemoNetLibrary::NetGetProviderInformation(ProviderInformation &information) const
{
    information = {
        .size = sizeof(information), .defaultPort = usualPort(m_site), .missingFunctions = 0, .reserved = 0};
}

void DemoNetLibrary::NetSetCertificateHandler(CertificateHandler, void *)
{
    // Simulated devices use TLS only for HTTP, which is not part of this library.
}

bool DemoNetLibrary::NetGetSearchReport(SearchReport &report)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed())
        return m_error.fail(DemoError::NotPrepared);
    if (report.size != sizeof(report))
        return m_error.fail(DemoError::WrongSize);
    m_searchTally.fill(report, m_site.localAddress());
    return true;
}

std::uint32_t DemoNetLibrary::NetGetLastError() const
{
    return m_error.last();
}

std::int64_t DemoNetLibrary::NetStartSearchDevices(const SearchParameter &parameter,
                                                   std::chrono::milliseconds wait)
{
    record("NetStartSearchDevices", {{QStringLiteral("size"), static_cast<qint64>(parameter.size)},
                                     {QStringLiteral("wait"), static_cast<qint64>(wait.count())}});
    if (parameter.size != sizeof(SearchParameter)) {
        m_error.fail(DemoError::WrongSize);
        return 0;
    }
    return startLocalSearch(SearchKind::First, {parameter.handler, parameter.user, 0, QString()});
}

std::int64_t DemoNetLibrary::NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                     std::chrono::milliseconds wait)
{
    const QString localAddress = textOf(parameter.localAddress);
    record("NetStartSearchDevicesEx", {{QStringLiteral("size"), static_cast<qint64>(parameter.size)},
                                       {QStringLiteral("localAddress"), localAddress},
                                       {QStringLiteral("wait"), static_cast<qint64>(wait.count())}});
    if (parameter.size != sizeof(SearchParameterEx)) {
        m_error.fail(DemoError::WrongSize);
        return 0;
    }
    return startLocalSearch(SearchKind::Second, {parameter.handler, parameter.user, 0, localAddress});
}

std::int64_t DemoNetLibrary::startLocalSearch(SearchKind kind, ResponseReceiver receiver)
{
    if (!receiver.handler) {
        m_error.fail(DemoError::NoHandler);
        return 0;
    }
    const CallGate::Call call(m_gate);
    if (!call.isAllowed()) {
        m_error.fail(DemoError::NotPrepared);
        return 0;
    }
    const std::int64_t start = m_site.clock().now();
    std::vector<PlannedResponse> plan = planLocalSearch(m_site, kind, start);

    const std::lock_guard lock(m_mutex);
    if (m_searches.empty())
        m_searchTally.clear();
    m_searchTally.noteRequest();
    receiver.tally = &m_searchTally;
    receiver.searchHandle = ++m_lastSearchHandle;
    auto delivery = std::make_unique<ResponseDelivery>(m_site, receiver, std::move(plan));
    if (!delivery->start()) {
        m_error.fail(DemoError::NoThread);
        return 0;
    }
    m_searches.emplace(receiver.searchHandle, std::move(delivery));
    return receiver.searchHandle;
}

bool DemoNetLibrary::NetSearchDevicesByIPs(const SearchByAddressesRequest &request,
                                           SearchResponseHandler handler, void *user,
                                           const char *localAddress, std::chrono::milliseconds wait)
{
    record("NetSearchDevicesByIPs", decoded(request, localAddress, wait));
    return searchAddresses(SearchKind::First, request,
                           {handler, user, 0, QString::fromLocal8Bit(localAddress)}, wait, SearchEnd::AtWait);
}

bool DemoNetLibrary::NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request,
                                             SearchResponseHandler handler, void *user,
                                             const char *localAddress, std::chrono::milliseconds wait)
{
    record("NetSearchDevicesByIPsEx", decoded(request, localAddress, wait));
    return searchAddresses(SearchKind::Second, request,
                           {handler, user, 0, QString::fromLocal8Bit(localAddress)}, wait, SearchEnd::AtWait);
}

bool DemoNetLibrary::searchAddresses(SearchKind kind, const SearchByAddressesRequest &request,
                                     ResponseReceiver receiver, std::chrono::milliseconds wait,
                                     SearchEnd searchEnd)
{
    if (request.size != sizeof(SearchByAddressesRequest))
        return m_error.fail(DemoError::WrongSize);
    if (!isCountInRange(request))
        return m_error.fail(DemoError::WrongCount);
    if (!receiver.handler)
        return m_error.fail(DemoError::NoHandler);
    const CallGate::Call call(m_gate);
    if (!call.isAllowed())
        return m_error.fail(DemoError::NotPrepared);

    QSet<QString> addresses;
    for (const QString &address : addressesOf(request)) {
        const QString ipv6 = canonicalIpv6Address(address);
        if (!ipv6.isEmpty())
            addresses.insert(ipv6);
        else if (isIpv4Address(address))
            addresses.insert(address);
    }
    // The second kind of search is sent in addition to the first.
    if (kind == SearchKind::First || searchEnd == SearchEnd::AfterResponse)
        m_searchTally.noteAskedAddresses(addresses);
    receiver.tally = &m_searchTally;
    const std::int64_t start = m_site.clock().now();
    std::int64_t end = start + bounded(wait).count();
    std::vector<PlannedResponse> plan = planAddressSearch(m_site, kind, addresses, start, end);
    if (searchEnd == SearchEnd::AfterResponse && !plan.empty()) {
        end = plan.front().time;
        std::erase_if(plan, [end](const PlannedResponse &response) { return response.time > end; });
    }
    ResponseDelivery delivery(m_site, std::move(receiver), std::move(plan));
    if (!delivery.start())
        return m_error.fail(DemoError::NoThread);
    if (m_site.clock().waitUntil(end, call.stop()))
        delivery.finishPlan();
    else
        delivery.finishImmediately();
    return true;
}

bool DemoNetLibrary::NetStopSearchDevices(std::int64_t searchHandle)
{
    record("NetStopSearchDevices", {{QStringLiteral("searchHandle"), static_cast<qint64>(searchHandle)}});
    if (ResponseDelivery::isInsideHandler())
        return m_error.fail(DemoError::InsideHandler);
    const CallGate::Call call(m_gate);
    std::unique_ptr<ResponseDelivery> delivery;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_searches.find(searchHandle);
        if (found != m_searches.end()) {
            delivery = std::move(found->second);
            m_searches.erase(found);
        }
    }
    if (!delivery)
        return m_error.fail(NetError::InvalidValue);
    delivery->finishDue();
    return true;
}

void DemoNetLibrary::NetSearchDeviceByIp(const SearchByAddressesRequest &request,
                                         SearchResponseHandler handler, void *user,
                                         std::chrono::milliseconds wait)
{
    record("NetSearchDeviceByIp", decoded(request, "", wait));
    if (request.size == sizeof(SearchByAddressesRequest) && request.count != 1)
        m_error.fail(DemoError::WrongCount);
    else
        searchAddresses(SearchKind::Second, request, {handler, user, 0, QString()}, wait,
                        SearchEnd::AfterResponse);
}

void DemoNetLibrary::record(const char *operation, const QJsonObject &request, const QString &mac) const
{
    m_site.requests().add({QString::fromLatin1(operation), mac, request, m_site.clock().now()});
}

std::chrono::milliseconds DemoNetLibrary::bounded(std::chrono::milliseconds wait)
{
    // Longer waits are limited to this, so that the sum with the current time cannot overflow.
    constexpr std::chrono::milliseconds longestWait = std::chrono::hours(24);
    return std::clamp(wait, std::chrono::milliseconds(0), longestWait);
}

} // namespace sdk::demo
