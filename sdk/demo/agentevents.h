// Events of the simulated port agent, told on a thread of their own.
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

/// Thread-safe, except that start() and stop() exclude each other by their caller.
class AgentEvents
{
public:
    /// From the start until the service is connected, on the site's clock. Later events come after that one.
    static constexpr std::chrono::milliseconds connectTime{100};

    /// `clock` must outlive the events.
    explicit AgentEvents(Clock &clock) : m_clock(clock) {}

    void setHandler(P2PAgentMessageHandler handler, void *user);

    /// Returns false when the computer gives no thread.
    [[nodiscard]] bool start();

    /// Drops what has not been told yet, and waits for a running handler. Must not be called from one.
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
    void tell(const Entry &entry);

    Clock &m_clock;
    std::mutex m_mutex;
    std::condition_variable_any m_added;
    std::deque<Entry> m_entries;
    P2PAgentMessageHandler m_handler = nullptr;
    void *m_user = nullptr;
    std::jthread m_thread;
};

} // namespace sdk::demo
