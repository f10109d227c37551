// Calls of a session that another thread can end.
#pragma once

#include <mutex>
#include <stop_token>

namespace sdk::onvif {

/// One call, on its caller's thread, from its begin to its end. What waits for the device on that thread also
/// ends when stopOfThisThread() is stopped.
class RunningCall
{
public:
    explicit RunningCall(std::stop_token stop);
    ~RunningCall();
    RunningCall(const RunningCall &) = delete;
    RunningCall &operator=(const RunningCall &) = delete;

    /// Of the call that the calling thread is in. Outside of calls a token that is never stopped.
    [[nodiscard]] static std::stop_token stopOfThisThread();
};

/// The calls of one session. Thread-safe.
class RunningCalls
{
public:
    /// For a call that begins now.
    [[nodiscard]] std::stop_token stop() const;

    /// Stops the calls that run now.
    void cancel();

private:
    mutable std::mutex m_mutex;
    std::stop_source m_stop; ///< of the calls since the last cancellation
};

} // namespace sdk::onvif
