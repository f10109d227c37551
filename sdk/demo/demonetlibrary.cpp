#include "sdk/demo/demonetlibrary.h"

#include "sdk/blocktext.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/internal/addresstext.h"
#include "sdk/demo/internal/logging.h"

#include <QJsonArray>

#include <algorithm>
#include <optional>

namespace sdk::demo {

namespace {

// Longer waits are cut to this, so that adding one to the time of day cannot overflow.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(24);

template<std::size_t size>
QString textOf(const std::array<char, size> &field)
{
    const std::string_view text = blockText(field);
    return QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(text.size()));
}

bool isCountInRange(const SearchByAddressesRequest &request)
{
    return request.count >= 0 && request.count <= maximumSearchAddresses;
}

/// The addresses of a request; none when its count is out of range.
QStringList addressesOf(const SearchByAddressesRequest &request)
{
    QStringList addresses;
    for (int place = 0; isCountInRange(request) && place < request.count; ++place)
        addresses.append(textOf(request.addresses[static_cast<std::size_t>(place)]));
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

} // namespace

/// One call between its begin and its end, which NetCleanup waits for.
class DemoNetLibrary::RunningCall
{
public:
    explicit RunningCall(DemoNetLibrary &library) : m_library(library)
    {
        const std::lock_guard lock(library.m_mutex);
        m_isAllowed = library.m_isPrepared;
        m_stop = library.m_cleanup.get_token();
        ++library.m_runningCalls;
    }

    ~RunningCall()
    {
        const std::lock_guard lock(m_library.m_mutex);
        --m_library.m_runningCalls;
        m_library.m_callEnded.notify_all();
    }

    RunningCall(const RunningCall &) = delete;
    RunningCall &operator=(const RunningCall &) = delete;

    [[nodiscard]] bool isAllowed() const { return m_isAllowed; }
    [[nodiscard]] const std::stop_token &stop() const { return m_stop; }

private:
    DemoNetLibrary &m_library;
    bool m_isAllowed;
    std::stop_token m_stop;
};

DemoNetLibrary::~DemoNetLibrary()
{
    endEverything();
}

bool DemoNetLibrary::NetInit()
{
    record("NetInit");
    const std::lock_guard lock(m_mutex);
    if (!m_isPrepared)
        m_cleanup = std::stop_source();
    m_isPrepared = true;
    return true;
}

void DemoNetLibrary::NetCleanup()
{
    record("NetCleanup");
    if (AnswerDelivery::isInsideHandler()) {
        qCWarning(demoLog, "NetCleanup was called from a handler and would wait for itself: ignored");
        m_error.fail(DemoError::InsideHandler);
        return;
    }
    endEverything();
}

void DemoNetLibrary::endEverything()
{
    std::map<std::int64_t, std::unique_ptr<AnswerDelivery>> searches;
    {
        const std::lock_guard lock(m_mutex);
        m_isPrepared = false;
        searches.swap(m_searches);
        m_cleanup.request_stop();
    }
    searches.clear();
    std::unique_lock lock(m_mutex);
    m_callEnded.wait(lock, [this] { return m_runningCalls == 0; });
}

std::uint32_t DemoNetLibrary::NetGetLastError() const
{
    return static_cast<std::uint32_t>(m_error.last());
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

std::int64_t DemoNetLibrary::startLocalSearch(SearchKind kind, AnswerReceiver receiver)
{
    if (!receiver.handler) {
        m_error.fail(DemoError::NoHandler);
        return 0;
    }
    const std::int64_t start = m_site.clock().now();
    std::vector<PlannedAnswer> plan = planLocalSearch(m_site, kind, start);

    const std::lock_guard lock(m_mutex);
    if (!m_isPrepared) {
        m_error.fail(DemoError::NotPrepared);
        return 0;
    }
    receiver.searchHandle = ++m_lastHandle;
    auto delivery = std::make_unique<AnswerDelivery>(m_site, receiver, std::move(plan));
    if (!delivery->start()) {
        m_error.fail(DemoError::NoThread);
        return 0;
    }
    m_searches.emplace(receiver.searchHandle, std::move(delivery));
    return receiver.searchHandle;
}

bool DemoNetLibrary::NetSearchDevicesByIPs(const SearchByAddressesRequest &request,
                                           SearchAnswerHandler handler, void *user, const char *localAddress,
                                           std::chrono::milliseconds wait)
{
    record("NetSearchDevicesByIPs", decoded(request, localAddress, wait));
    return searchAddresses(SearchKind::First, request,
                           {handler, user, 0, QString::fromLocal8Bit(localAddress)}, wait);
}

bool DemoNetLibrary::NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request,
                                             SearchAnswerHandler handler, void *user,
                                             const char *localAddress, std::chrono::milliseconds wait)
{
    record("NetSearchDevicesByIPsEx", decoded(request, localAddress, wait));
    return searchAddresses(SearchKind::Second, request,
                           {handler, user, 0, QString::fromLocal8Bit(localAddress)}, wait);
}

bool DemoNetLibrary::searchAddresses(SearchKind kind, const SearchByAddressesRequest &request,
                                     AnswerReceiver receiver, std::chrono::milliseconds wait)
{
    if (request.size != sizeof(SearchByAddressesRequest))
        return m_error.fail(DemoError::WrongSize);
    if (!isCountInRange(request))
        return m_error.fail(DemoError::WrongCount);
    if (!receiver.handler)
        return m_error.fail(DemoError::NoHandler);
    const RunningCall call(*this);
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
    const std::int64_t start = m_site.clock().now();
    const std::int64_t end = start + std::clamp(wait, std::chrono::milliseconds(0), longestWait).count();
    AnswerDelivery delivery(m_site, std::move(receiver),
                            planAddressSearch(m_site, kind, addresses, start, end));
    if (!delivery.start())
        return m_error.fail(DemoError::NoThread);
    if (m_site.clock().waitUntil(end, call.stop()))
        delivery.finishPlan();
    else
        delivery.finishAtOnce();
    return true;
}

bool DemoNetLibrary::NetStopSearchDevices(std::int64_t searchHandle)
{
    record("NetStopSearchDevices", {{QStringLiteral("searchHandle"), static_cast<qint64>(searchHandle)}});
    if (AnswerDelivery::isInsideHandler())
        return m_error.fail(DemoError::InsideHandler);
    const RunningCall call(*this);
    std::unique_ptr<AnswerDelivery> delivery;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_searches.find(searchHandle);
        if (found != m_searches.end()) {
            delivery = std::move(found->second);
            m_searches.erase(found);
        }
    }
    if (!delivery)
        return m_error.fail(DemoError::UnknownHandle);
    delivery->finishDue();
    return true;
}

void DemoNetLibrary::record(const char *operation, const QJsonObject &request) const
{
    m_site.requests().add({QString::fromLatin1(operation), QString(), request, m_site.clock().now()});
}

} // namespace sdk::demo
