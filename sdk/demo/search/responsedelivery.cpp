#include "sdk/demo/search/responsedelivery.h"

#include "sdk/clock.h"
#include "sdk/demo/device/searchresponses.h"
#include "sdk/demo/site/logging.h"
#include "sdk/demo/site/sitestate.h"
#include "sdk/threadpriority.h"

#include <algorithm>
#include <system_error>

namespace sdk::demo {

namespace {

constexpr std::size_t mostThreads = 4;
thread_local bool insideHandler = false;

} // namespace

ResponseDelivery::ResponseDelivery(SiteState &site, ResponseReceiver receiver,
                                   std::vector<PlannedResponse> plan)
    : m_site(site), m_receiver(std::move(receiver)), m_plan(std::move(plan))
{
}

ResponseDelivery::~ResponseDelivery()
{
    finishImmediately();
}

bool ResponseDelivery::start()
{
    const std::size_t threads = std::min(mostThreads, m_plan.size());
    try {
        for (std::size_t index = 0; index < threads; ++index) {
            m_threads.emplace_back(
                [this, index, threads](const std::stop_token &stop) { deliverShare(index, threads, stop); });
        }
    } catch (const std::system_error &error) {
        qCWarning(demoLog, "No thread for the responses of a search: %s", error.what());
        finishImmediately();
        return false;
    }
    return true;
}

void ResponseDelivery::finishPlan()
{
    finishBy(std::numeric_limits<std::int64_t>::max());
}

void ResponseDelivery::finishDue()
{
    finishBy(m_site.clock().now());
}

void ResponseDelivery::finishImmediately()
{
    finishBy(std::numeric_limits<std::int64_t>::min());
}

void ResponseDelivery::finishBy(std::int64_t lastTime)
{
    m_lastTime = lastTime;
    const bool waitsForPlan = lastTime == std::numeric_limits<std::int64_t>::max();
    for (std::jthread &thread : m_threads) {
        if (!waitsForPlan)
            thread.request_stop();
    }
    for (std::jthread &thread : m_threads)
        thread.join();
    m_threads.clear();
}

bool ResponseDelivery::isInsideHandler()
{
    return insideHandler;
}

void ResponseDelivery::deliverShare(std::size_t firstIndex, std::size_t step, const std::stop_token &stop)
{
    giveWayToWindow();
    for (std::size_t index = firstIndex; index < m_plan.size(); index += step) {
        const PlannedResponse &planned = m_plan[index];
        m_site.clock().waitUntil(planned.time, stop);
        if (planned.time > m_lastTime)
            return;
        deliver(planned);
    }
}

void ResponseDelivery::deliver(const PlannedResponse &planned)
{
    // The device may have changed or been removed since the start of the search. Its current state counts.
    const std::optional<SceneDevice> device = m_site.device(planned.mac);
    if (!device || device->hasFault(Fault::NoAnswer))
        return;
    QString localAddress = m_receiver.localAddress;
    if (localAddress.isEmpty() || localAddress == QLatin1String("0.0.0.0"))
        localAddress = m_site.localAddressFor(*device, planned.ipVersion);
    const SearchResponse response = searchResponse(*device, planned.ipVersion, localAddress);
    if (m_receiver.tally) {
        const QString address = planned.ipVersion == 6 ? device->ipv6 : device->address;
        if (m_receiver.searchHandle != 0)
            m_receiver.tally->noteLocalResponse(planned.mac, address);
        else
            m_receiver.tally->noteAddressResponse(address);
    }
    insideHandler = true;
    m_receiver.handler(m_receiver.searchHandle, &response, m_receiver.user);
    insideHandler = false;
}

} // namespace sdk::demo
