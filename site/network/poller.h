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

/// Thread-safe. Handlers run on the poller's thread, one at a time, and must not block. They may call
/// watch(), at() and after().
class Poller
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Handler = std::function<void()>;

    /// Starts the thread.
    Poller();

    /// As stop().
    ~Poller();
    Poller(const Poller &) = delete;
    Poller &operator=(const Poller &) = delete;

    /// Ends the thread, and waits for a handler that is running: no handler runs after the call. Pending
    /// timers are discarded. It cannot be started again. Must not be called by a handler.
    void stop();

    /// Calls `readable` whenever the socket is readable, until remove(). `socket` is its number; the caller
    /// keeps it open until then. `readable` must read from it or accept its connection; otherwise it is
    /// called again at once.
    void watch(int socket, Handler readable);

    /// Ends watch(). Waits for a handler that is running; that of the socket does not run after the call.
    /// Must not be called by a handler.
    void remove(int socket);

    /// Calls `handler` once at `time`, or at once if that is in the past. It cannot be cancelled.
    void at(Time time, Handler handler);
    /// Calls `handler` once after `duration`.
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
