// Events of the simulated port agent, reported on a separate thread.
#pragma once

#include "sdk/p2pagentlibrary.h"

#include <QByteArray>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace sdk {
class Clock;
}

namespace sdk::demo {

/// Reports events to one handler, in the order of their addition. Thread-safe, except that the caller must
/// not run start() and stop() at the same time. The destructor waits for a running handler.
class AgentEvents
{
public:
    /// The time from start() to the event ServiceConnected, on the site's clock. Added events are reported
    /// after it.
    static constexpr std::chrono::milliseconds connectTime{100};

    /// `clock` must outlive the events.
    explicit AgentEvents(Clock &clock) : m_clock(clock) {}

    /// Sets the handler of the events that are reported from now on; without one (null) they are dropped.
    /// Does not wait for a running call of the previous handler.
    void setHandler(P2PAgentMessageHandler handler, void *user);

    /// Starts the thread, on which the handler is called; it reports ServiceConnected after connectTime. To
    /// be called while it does not run. Returns false if the host provides no thread.
    [[nodiscard]] bool start();

    /// Ends the thread: drops unreported events and waits for a running handler. No effect if the thread does
    /// not run. Must not be called from a handler. start() may follow.
    void stop();

    /// Adds an event and returns immediately. `deviceId` is the P2P ID of the device, `localPort` the mapped
    /// local port. An event that is added while the thread does not run is reported after the next start().
    void add(P2PAgentEvent event, const QByteArray &deviceId, int localPort);

    /// Whether the calling thread is inside a handler of any port agent of this process.
    [[nodiscard]] static bool isInsideHandler();

private:
    struct Entry
    {
        P2PAgentEvent event;
        QByteArray deviceId;
        int localPort;
    };
    void run(std::int64_t connected, const std::stop_token &stop);
    void report(const Entry &entry);

    Clock &m_clock;
    std::mutex m_mutex;
    std::condition_variable_any m_added;
    std::deque<Entry> m_entries;
    P2PAgentMessageHandler m_handler = nullptr;
    void *m_user = nullptr;
    std::jthread m_thread;
};

} // namespace sdk::demo
