// A port of 127.0.0.1 that speaks HTTP.
#pragma once

#include "sdk/demo/http/loopbacklistener.h"

#include <list>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>

namespace sdk::demo {

class HttpResponder;

/// Listens on a thread of its own and serves each connection on another. The destructor closes the port and
/// ends the connections at once, in the middle of an answer too; it must not hold a lock that the answers
/// need.
class HttpPort
{
public:
    /// Further clients are turned away.
    static constexpr std::size_t mostConnections = 128;

    enum class Role
    {
        Proxy,  ///< of the whole site
        Tunnel, ///< to the device behind a local port of the port agent
    };

    /// Listens at `port`, 0 for any that is free. Returns null when it is taken or the computer gives no
    /// socket or thread. `responder` must outlive the port.
    [[nodiscard]] static std::unique_ptr<HttpPort> open(HttpResponder &responder, Role role, int port);

    ~HttpPort();
    HttpPort(const HttpPort &) = delete;
    HttpPort &operator=(const HttpPort &) = delete;

    [[nodiscard]] int port() const { return m_listener->port(); }

private:
    struct Connection
    {
        int socket;
        std::thread thread = {};
        bool isOver = false; // its thread returns at once, and its socket is closed
    };

    HttpPort(HttpResponder &responder, Role role) : m_responder(responder), m_role(role) {}
    void take(int socket, int localPort);
    void serve(Connection &connection, int localPort);

    HttpResponder &m_responder;
    const Role m_role;
    std::stop_source m_stop;
    std::mutex m_mutex;
    std::list<Connection> m_connections;
    std::unique_ptr<LoopbackListener> m_listener; // last: it brings connections until it is gone
};

} // namespace sdk::demo
