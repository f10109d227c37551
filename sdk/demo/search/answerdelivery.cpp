#include "sdk/demo/search/answerdelivery.h"

#include "sdk/clock.h"
#include "sdk/demo/device/searchanswers.h"
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

AnswerDelivery::AnswerDelivery(SiteState &site, AnswerReceiver receiver, std::vector<PlannedAnswer> plan)
    : m_site(site), m_receiver(std::move(receiver)), m_plan(std::move(plan))
{
}

AnswerDelivery::~AnswerDelivery()
{
    finishImmediately();
}

bool AnswerDelivery::start()
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

void AnswerDelivery::finishPlan()
{
    finishBy(std::numeric_limits<std::int64_t>::max());
}

void AnswerDelivery::finishDue()
{
    finishBy(m_site.clock().now());
}

void AnswerDelivery::finishImmediately()
{
    finishBy(std::numeric_limits<std::int64_t>::min());
}

void AnswerDelivery::finishBy(std::int64_t lastTime)
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

bool AnswerDelivery::isInsideHandler()
{
    return insideHandler;
}

void AnswerDelivery::deliverShare(std::size_t firstIndex, std::size_t step, const std::stop_token &stop)
{
    giveWayToWindow();
    for (std::size_t index = firstIndex; index < m_plan.size(); index += step) {
        const PlannedAnswer &planned = m_plan[index];
        m_site.clock().waitUntil(planned.time, stop);
        if (planned.time > m_lastTime)
            return;
        deliver(planned);
    }
}

void AnswerDelivery::deliver(const PlannedAnswer &planned)
{
    // The device may have changed or been removed since the start of the search. Its current state counts.
    const std::optional<SceneDevice> device = m_site.device(planned.mac);
    if (!device || device->hasFault(Fault::NoAnswer))
        return;
    QString localAddress = m_receiver.localAddress;
    if (localAddress.isEmpty() || localAddress == QLatin1String("0.0.0.0"))
        localAddress = m_site.localAddressFor(*device, planned.ipVersion);
    const SearchAnswer answer = searchAnswer(*device, planned.ipVersion, localAddress);
    if (m_receiver.tally) {
        const QString address = planned.ipVersion == 6 ? device->ipv6 : device->address;
        if (m_receiver.searchHandle != 0)
            m_receiver.tally->noteLocalAnswer(planned.mac, address);
        else
            m_receiver.tally->noteAddressAnswer(address);
    }
    insideHandler = true;
    m_receiver.handler(m_receiver.searchHandle, &answer, m_receiver.user);
    insideHandler = false;
}

} // namespace sdk::demo
