// A real port of 127.0.0.1.
#pragma once

#include <memory>
#include <thread>

namespace sdk::demo {

/// Accepts connections on a thread of its own, and for now closes each at once. The destructor closes the
/// port and joins the thread.
class LoopbackListener
{
public:
    /// Listens at `port`, 0 for any that is free. Returns null when it is taken or the computer gives no
    /// socket or thread.
    [[nodiscard]] static std::unique_ptr<LoopbackListener> open(int port);

    ~LoopbackListener();
    LoopbackListener(const LoopbackListener &) = delete;
    LoopbackListener &operator=(const LoopbackListener &) = delete;

    [[nodiscard]] int port() const { return m_port; }

private:
    LoopbackListener(int socket, int wakeUp, int port) : m_socket(socket), m_wakeUp(wakeUp), m_port(port) {}
    void acceptConnections() const;

    int m_socket;
    int m_wakeUp; // becomes readable when the thread is to end
    int m_port;
    std::thread m_thread;
};

} // namespace sdk::demo
