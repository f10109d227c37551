// A port of 127.0.0.1 that serves HTTP.
#pragma once

#include "sdk/demo/http/loopbacklistener.h"

#include <list>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>

namespace sdk::demo {

class HttpResponder;

/// Listens on one thread and serves each connection on a separate thread. The destructor closes the port,
/// ends the connections, even during a response, and joins the threads. Its caller must not hold a lock that
/// the responses need, such as that of the site, and must not be one of these threads.
class HttpPort
{
public:
    /// The number of simultaneous connections. A further connection is closed immediately.
    static constexpr std::size_t mostConnections = 128;

    enum class Role
    {
        Proxy,  ///< to the web services of all devices of the site
        Tunnel, ///< a local port of the port agent: to the web service of one device
    };

    /// Listens at `port`, 0 for any free port. Returns null if the port is in use, or the host provides no
    /// socket or thread. `responder` must outlive the port.
    [[nodiscard]] static std::unique_ptr<HttpPort> open(HttpResponder &responder, Role role, int port);

    ~HttpPort();
    HttpPort(const HttpPort &) = delete;
    HttpPort &operator=(const HttpPort &) = delete;

    /// The port that was opened.
    [[nodiscard]] int port() const { return m_listener->port(); }

private:
    struct Connection
    {
        int socket;
        std::thread thread = {};
        bool isOver = false; // its socket is closed and its thread returns immediately
    };

    HttpPort(HttpResponder &responder, Role role) : m_responder(responder), m_role(role) {}
    void take(int socket, int localPort);
    void serve(Connection &connection, int localPort);

    HttpResponder &m_responder;
    const Role m_role;
    std::stop_source m_stop;
    std::mutex m_mutex;
    std::list<Connection> m_connections;
    std::unique_ptr<LoopbackListener> m_listener; // last: it adds connections until it is destroyed
};

} // namespace sdk::demo
