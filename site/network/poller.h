// Waits for sockets and timers on one thread.
#pragma once

#include "site/network/filedescriptor.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace site {

/// Thread-safe. Handlers run on the poller's thread, one at a time, and must not block. The destructor ends
/// the thread and discards pending timers.
class Poller
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Handler = std::function<void()>;

    Poller();
    ~Poller();
    Poller(const Poller &) = delete;
    Poller &operator=(const Poller &) = delete;

    /// Ends the thread: no handler runs after the call.
    void stop();

    /// Calls `readable` whenever the socket is readable, until remove().
    void watch(int socket, Handler readable);

    /// The handler does not run after the call. Must not be called by a handler.
    void remove(int socket);

    /// Calls `handler` once at `time`.
    void at(Time time, Handler handler);
    void after(std::chrono::milliseconds duration, Handler handler)
    {
        at(std::chrono::steady_clock::now() + duration, std::move(handler));
    }

private:
    void run(const std::stop_token &stop);
    void wake() const;
    [[nodiscard]] int millisecondsToNext();
    void runDue();
    void runReadable(int socket);

    FileDescriptor m_epoll;
    FileDescriptor m_wakeUp;
    std::mutex m_running; // held while a handler runs
    std::mutex m_mutex;   // guards the two members below
    std::map<int, std::shared_ptr<Handler>> m_handlers;
    std::multimap<Time, Handler> m_times;
    std::jthread m_thread; // the last member: it uses the others
};

} // namespace site
