// A TCP port of 127.0.0.1.
#pragma once

#include <functional>
#include <memory>
#include <thread>

namespace sdk::demo {

/// Accepts connections on a separate thread. The destructor closes the port and joins the thread, so it waits
/// for a running ConnectionTaker; it does not close accepted connections.
class LoopbackListener
{
public:
    /// Takes the ownership of a connected, blocking socket that was accepted at `port`, the port of the
    /// listener. Called on the listener's thread, which accepts the next connection after the return.
    using ConnectionTaker = std::function<void(int socket, int port)>;

    /// Listens at `port`, 0 for any free port. `taker` must not be empty. Returns null if the port is in use,
    /// or the host provides no socket or thread.
    [[nodiscard]] static std::unique_ptr<LoopbackListener> open(int port, ConnectionTaker taker);

    ~LoopbackListener();
    LoopbackListener(const LoopbackListener &) = delete;
    LoopbackListener &operator=(const LoopbackListener &) = delete;

    /// The port that was opened.
    [[nodiscard]] int port() const { return m_port; }

private:
    LoopbackListener(int socket, int wakeUp, ConnectionTaker taker)
        : m_taker(std::move(taker)), m_socket(socket), m_wakeUp(wakeUp)
    {
    }
    void acceptConnections() const;

    const ConnectionTaker m_taker;
    const int m_socket;
    const int m_wakeUp; // becomes readable to end the thread
    int m_port = 0;
    std::thread m_thread;
};

} // namespace sdk::demo
