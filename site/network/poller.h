// Waits for sockets and times on one thread.
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
/// the thread; times that have not come by then are forgotten.
class Poller
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Handler = std::function<void()>;

    Poller();
    ~Poller();
    Poller(const Poller &) = delete;
    Poller &operator=(const Poller &) = delete;

    /// Ends the thread: no handler runs any more after the return.
    void stop();

    /// Calls `readable` whenever there is something to read, until remove().
    void watch(int socket, Handler readable);

    /// The handler runs no more after the return; so this must not be called from one.
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
    std::mutex m_mutex;   // of the two
    std::map<int, std::shared_ptr<Handler>> m_handlers;
    std::multimap<Time, Handler> m_times;
    std::jthread m_thread; // last: it uses all of them
};

} // namespace site
