#include "sdk/onvif/soap/runningcall.h"

#include <utility>

namespace sdk::onvif {

namespace {

thread_local std::stop_token stopOfThread;

}

RunningCall::RunningCall(std::stop_token stop)
{
    stopOfThread = std::move(stop);
}

RunningCall::~RunningCall()
{
    stopOfThread = {};
}

std::stop_token RunningCall::stopOfThisThread()
{
    return stopOfThread;
}

std::stop_token RunningCalls::stop() const
{
    const std::scoped_lock lock(m_mutex);
    return m_stop.get_token();
}

void RunningCalls::cancel()
{
    std::unique_lock lock(m_mutex);
    std::stop_source stop = std::exchange(m_stop, std::stop_source());
    lock.unlock(); // the stop callbacks run on this thread
    stop.request_stop();
}

} // namespace sdk::onvif
