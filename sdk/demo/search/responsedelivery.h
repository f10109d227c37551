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
    SearchResponseHandler handler = nullptr; ///< not null
    void *user = nullptr;
    std::int64_t searchHandle = 0; ///< of a local search; 0 for a search of addresses
    QString localAddress; ///< source address of the search, which responses report as their receiver; empty
                          ///< or "0.0.0.0": the address of this host that receives messages of the device
    SearchTally *tally = nullptr; ///< counts the responses; outlives the delivery; null for none
};

/// Up to four threads deliver the responses, each a share of them, at the times of the site's clock. The
/// handler is called on these threads. A response contains the present state of its device. A device that was
/// removed or has got Fault::NoAnswer since the start of the search does not respond.
///
/// Used by one thread, which calls start() and then one of the finish... functions. That function returns
/// when all threads have ended. The destructor calls finishImmediately(). None of them may be called from a
/// handler.
class ResponseDelivery
{
public:
    /// `site` must outlive the delivery.
    ResponseDelivery(SiteState &site, ResponseReceiver receiver, std::vector<PlannedResponse> plan);
    ~ResponseDelivery();
    ResponseDelivery(const ResponseDelivery &) = delete;
    ResponseDelivery &operator=(const ResponseDelivery &) = delete;

    /// Starts the threads. To be called once. Returns false, with no thread running, if the host provides too
    /// few threads.
    [[nodiscard]] bool start();

    /// Waits on the site's clock until the complete plan is delivered.
    void finishPlan();

    /// Delivers the responses whose time has come but no later ones, without waiting for their times: the
    /// result of a stopped search depends only on the clock, not on the speed of the threads.
    void finishDue();

    /// Drops all responses that are not delivered yet, and waits for running handlers.
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
