#include "device/search/devicesearch.h"

#include "device/store/devicestore.h"
#include "device/store/logging.h"
#include "sdk/clock.h"
#include "sdk/netlibrary.h"
#include "sdk/threadpriority.h"

#include <QScopeGuard>
#include <QThreadPool>
#include <QtConcurrent>

#include <utility>

using namespace std::chrono_literals;

namespace {

// Timeout for sending a request.
constexpr auto startWait = 4ms;

// Three requests to the local segment, since a device may miss a datagram, then time to receive responses.
constexpr auto pauseBetweenRequests = 1000ms;
constexpr auto listeningTime = 3000ms;

constexpr auto localTime = 2 * pauseBetweenRequests + listeningTime;

constexpr auto addressesWait = 3000ms;
constexpr const char *anyLocalAddress = "0.0.0.0";

} // namespace

/// Progress of a search: the elapsed share of its waiting times.
class DeviceSearch::Progress
{
public:
    Progress(DeviceSearch &search, std::chrono::milliseconds whole) : m_search(search), m_whole(whole) {}

    void add(std::chrono::milliseconds passed)
    {
        m_passed += passed;
        if (!m_search.m_isEnding)
            Q_EMIT m_search.progressed(static_cast<int>(100 * m_passed / m_whole));
    }

private:
    DeviceSearch &m_search;
    const std::chrono::milliseconds m_whole;
    std::chrono::milliseconds m_passed{0};
};

DeviceSearch::DeviceSearch(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries)
    : m_store(std::move(store)), m_libraries(std::move(libraries))
{
}

DeviceSearch::~DeviceSearch()
{
    requestStop();
    for (QFuture<void> &search : m_searches)
        search.waitForFinished();
}

void DeviceSearch::stop()
{
    m_stop.request_stop();
}

void DeviceSearch::requestStop()
{
    m_isEnding = true;
    stop();
}

void DeviceSearch::setRange(SearchRange range)
{
    m_range = range;
}

void DeviceSearch::start(bool localSegment)
{
    if (m_stop.stop_requested() && !m_isEnding)
        m_stop = std::stop_source();
    m_searches.removeIf([](const QFuture<void> &search) { return search.isFinished(); });
    // The range is moved into the task: a range that is set during a search belongs to the next search only.
    m_searches.append(QtConcurrent::run([this, localSegment, range = std::exchange(m_range, {}),
                                         stop = m_stop.get_token()] { run(localSegment, range, stop); }));
}

void DeviceSearch::run(bool localSegment, const SearchRange &range, const std::stop_token &stop)
{
    // A search mostly sleeps: its thread does not count against the limit of the pool.
    QThreadPool::globalInstance()->releaseThread();
    const auto takeThreadBack = qScopeGuard([] { QThreadPool::globalInstance()->reserveThread(); });
    sdk::giveWayToWindow();

    m_store->clear();
    Q_EMIT rowsAdded();

    if (m_libraries.net) {
        const auto addresses = 2 * addressesWait * static_cast<int>(searchRequests(range).size());
        Progress progress(*this, (localSegment ? localTime : 0ms) + addresses);
        if (localSegment)
            searchLocalSegment(stop, progress);
        searchRange(range, stop, progress);
    }

    if (m_isEnding)
        return;
    if (const int leftOut = m_store->leftOut(); leftOut > 0)
        Q_EMIT limited(DeviceStore::maximumFound, leftOut);
    Q_EMIT rowsAdded();
    Q_EMIT counted(m_store->ipv4Count());
    Q_EMIT done();
}

void DeviceSearch::searchLocalSegment(const std::stop_token &stop, Progress &progress)
{
    sdk::SearchParameter parameter{};
    parameter.size = sizeof(parameter);
    parameter.handler = &DeviceSearch::responseHandler;
    parameter.user = this;

    sdk::SearchParameterEx parameterEx{};
    parameterEx.size = sizeof(parameterEx);
    parameterEx.handler = &DeviceSearch::responseHandler;
    parameterEx.user = this;

    sdk::NetLibrary &net = *m_libraries.net;
    sdk::Clock &clock = *m_libraries.clock;
    keepHandle(net.NetStartSearchDevices(parameter, startWait));
    if (clock.wait(pauseBetweenRequests, stop)) {
        progress.add(pauseBetweenRequests);
        keepHandle(net.NetStartSearchDevices(parameter, startWait));
        if (clock.wait(pauseBetweenRequests, stop)) {
            progress.add(pauseBetweenRequests);
            keepHandle(net.NetStartSearchDevicesEx(parameterEx, startWait));
            clock.wait(listeningTime, stop);
            progress.add(listeningTime);
        }
    }
    stopHandles();
}

void DeviceSearch::searchRange(const SearchRange &addresses, const std::stop_token &stop, Progress &progress)
{
    sdk::NetLibrary &net = *m_libraries.net;
    for (const sdk::SearchByAddressesRequest &request : searchRequests(addresses)) {
        if (stop.stop_requested())
            return;
        net.NetSearchDevicesByIPs(request, &DeviceSearch::responseHandler, this, anyLocalAddress,
                                  addressesWait);
        progress.add(addressesWait);
        if (stop.stop_requested())
            return;
        net.NetSearchDevicesByIPsEx(request, &DeviceSearch::responseHandler, this, anyLocalAddress,
                                    addressesWait);
        progress.add(addressesWait);
    }
}

void DeviceSearch::keepHandle(std::int64_t handle)
{
    if (handle == 0) {
        qCWarning(logDevice) << "DeviceSearch: a local search could not be started, error" << Qt::hex
                             << m_libraries.net->NetGetLastError();
        return;
    }
    const std::scoped_lock lock(m_mutex);
    m_handles.append(handle);
}

void DeviceSearch::stopHandles()
{
    // Handles are stopped without the lock: NetStopSearchDevices() waits for handlers, which may take the
    // lock.
    QList<std::int64_t> handles;
    {
        const std::scoped_lock lock(m_mutex);
        handles.swap(m_handles);
    }
    for (const std::int64_t handle : handles)
        m_libraries.net->NetStopSearchDevices(handle);
}

void DeviceSearch::responseHandler(std::int64_t, const sdk::SearchResponse *response, void *user)
{
    if (response && response->size == sizeof(*response))
        static_cast<DeviceSearch *>(user)->handleResponse(*response);
}

void DeviceSearch::handleResponse(const sdk::SearchResponse &response)
{
    const DeviceStore::Addition addition = m_store->addResponse(response);
    if (!addition.notify)
        return;
    Q_EMIT rowsAdded();
    Q_EMIT counted(addition.ipv4Count);
}
