// Delivers the planned responses of one search to its handler, on separate threads.
#pragma once

#include "sdk/demo/search/responseplan.h"
#include "sdk/demo/search/searchtally.h"
#include "sdk/searchblocks.h"

#include <atomic>
#include <limits>
#include <thread>
#include <vector>

namespace sdk::demo {

/// The receiver of a search's responses.
struct ResponseReceiver
{
    SearchResponseHandler handler = nullptr;
    void *user = nullptr;
    std::int64_t searchHandle = 0;
    QString localAddress; ///< source address of the search; empty or "0.0.0.0" for every address of this host
    SearchTally *tally = nullptr; ///< counts the responses; outlives the delivery
};

/// Up to four threads deliver the responses, each a share of them, at the times of the site's clock. One of
/// the finish... functions ends all threads; the destructor calls finishImmediately. None may be called from
/// a handler.
class ResponseDelivery
{
public:
    /// `site` must outlive the delivery.
    ResponseDelivery(SiteState &site, ResponseReceiver receiver, std::vector<PlannedResponse> plan);
    ~ResponseDelivery();
    ResponseDelivery(const ResponseDelivery &) = delete;
    ResponseDelivery &operator=(const ResponseDelivery &) = delete;

    /// Starts the threads. A delivery starts once. Returns false if the host provides no thread.
    [[nodiscard]] bool start();

    /// Waits until the complete plan is delivered.
    void finishPlan();

    /// Delivers the responses that are due, and none after them: the result of a stopped search depends only
    /// on the clock, not on the speed of the threads.
    void finishDue();

    /// Waits for running handlers only.
    void finishImmediately();

    /// Whether the calling thread is inside a handler of any delivery of this process.
    [[nodiscard]] static bool isInsideHandler();

private:
    void deliverShare(std::size_t firstIndex, std::size_t step, const std::stop_token &stop);
    void deliver(const PlannedResponse &planned);
    void finishBy(std::int64_t lastTime);

    SiteState &m_site;
    ResponseReceiver m_receiver;
    std::vector<PlannedResponse> m_plan;
    std::atomic<std::int64_t> m_lastTime = std::numeric_limits<std::int64_t>::max();
    std::vector<std::jthread> m_threads;
};

} // namespace sdk::demo
