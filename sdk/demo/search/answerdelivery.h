// Brings the planned answers of one search to its handler, on threads of their own.
#pragma once

#include "sdk/demo/search/answerplan.h"
#include "sdk/demo/search/searchtally.h"
#include "sdk/searchblocks.h"

#include <atomic>
#include <limits>
#include <thread>
#include <vector>

namespace sdk::demo {

/// Who receives the answers of a search.
struct AnswerReceiver
{
    SearchAnswerHandler handler = nullptr;
    void *user = nullptr;
    std::int64_t searchHandle = 0;
    QString localAddress; ///< asked to search from; empty or "0.0.0.0" for every address of this computer
    SearchTally *tally = nullptr; ///< counts the answers; outlives the delivery
};

/// Answers run on up to four threads at a time, each waiting on the site's clock for its share. One of the
/// finish... functions ends them all; the destructor does as finishAtOnce. None may be called from a handler.
class AnswerDelivery
{
public:
    /// `site` must outlive the delivery.
    AnswerDelivery(SiteState &site, AnswerReceiver receiver, std::vector<PlannedAnswer> plan);
    ~AnswerDelivery();
    AnswerDelivery(const AnswerDelivery &) = delete;
    AnswerDelivery &operator=(const AnswerDelivery &) = delete;

    /// Starts the threads; a delivery starts once. Returns false when the computer gives none.
    [[nodiscard]] bool start();

    /// Waits until the whole plan is delivered.
    void finishPlan();

    /// Delivers what is due by now, and nothing after it: what a stopped search has found depends on the
    /// clock alone, not on how fast threads are.
    void finishDue();

    /// Waits for running handlers only.
    void finishAtOnce();

    /// Whether the calling thread is inside a handler of any delivery of this process.
    [[nodiscard]] static bool isInsideHandler();

private:
    void deliverShare(std::size_t firstPlace, std::size_t step, const std::stop_token &stop);
    void deliver(const PlannedAnswer &planned);
    void finishBy(std::int64_t lastTime);

    SiteState &m_site;
    AnswerReceiver m_receiver;
    std::vector<PlannedAnswer> m_plan;
    std::atomic<std::int64_t> m_lastTime = std::numeric_limits<std::int64_t>::max();
    std::vector<std::jthread> m_threads;
};

} // namespace sdk::demo
