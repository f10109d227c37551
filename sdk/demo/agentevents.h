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

/// Thread-safe, except that the caller must not run start() and stop() at the same time.
class AgentEvents
{
public:
    /// The time from the start to the connection of the service, on the site's clock. Other events follow it.
    static constexpr std::chrono::milliseconds connectTime{100};

    /// `clock` must outlive the events.
    explicit AgentEvents(Clock &clock) : m_clock(clock) {}

    void setHandler(P2PAgentMessageHandler handler, void *user);

    /// Returns false if the host provides no thread.
    [[nodiscard]] bool start();

    /// Drops unreported events and waits for a running handler. Must not be called from a handler.
    void stop();

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
