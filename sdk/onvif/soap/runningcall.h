// Calls of a session that another thread can end.
#pragma once

#include <mutex>
#include <stop_token>

namespace sdk::onvif {

/// One call of an operation on the thread that creates and destroys the object; it lasts as long as the
/// object. A thread has at most one object at a time. When `stop` is stopped by any thread, waits for the
/// device on the call's thread end within a fraction of a second: HttpClient and LiveStream::start() check
/// it.
class RunningCall
{
public:
    explicit RunningCall(std::stop_token stop);
    ~RunningCall();
    RunningCall(const RunningCall &) = delete;
    RunningCall &operator=(const RunningCall &) = delete;

    /// The stop token of the calling thread's call. Outside of a call, a token that is never stopped.
    [[nodiscard]] static std::stop_token stopOfThisThread();
};

/// Ends the calls of one session: provides the stop tokens for their RunningCall objects. Thread-safe.
class RunningCalls
{
public:
    /// The stop token for a call that starts now.
    [[nodiscard]] std::stop_token stop() const;

    /// Stops the tokens that stop() has returned before, without waiting for the calls to end. Tokens of
    /// later calls are not affected.
    void cancel();

private:
    mutable std::mutex m_mutex;
    std::stop_source m_stop; ///< for the calls since the last cancellation
};

} // namespace sdk::onvif
