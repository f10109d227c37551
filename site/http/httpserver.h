// The connections to the web services of all devices.
#pragma once

#include "sdk/demo/http/encryption.h"
#include "site/http/httpexchange.h"
#include "site/network/filedescriptor.h"

#include <list>
#include <mutex>
#include <stop_token>
#include <thread>

namespace sdk {
class Clock;
}

namespace site {

/// Serves each connection on a separate thread, by a HttpService. It opens no ports: the owners of the
/// listening sockets call accept(). Thread-safe.
class HttpServer
{
public:
    /// The limit of connections of one device; further ones are closed.
    static constexpr int mostConnectionsOfDevice = 16;

    /// `service` and `clock` must outlive the server. `clock` times the delays of responses.
    HttpServer(HttpService &service, sdk::Clock &clock) : m_service(service), m_clock(clock) {}

    /// Ends the connections, even during a response, and waits for their threads.
    ~HttpServer();
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    /// Accepts the pending connection of `listener`, the number of a non-blocking listening socket of the
    /// device, and serves it on a thread. With `key`, the connection uses TLS. No effect if no connection is
    /// pending. A connection over the limit, or without a thread, is closed at once.
    void accept(int listener, const QString &mac,
                const std::shared_ptr<const sdk::demo::DeviceKey> &key = {});

    /// Ends the connections to the device, even during a response, and waits for their threads. Must not be
    /// called on these threads.
    void closeAllOf(const QString &mac);

private:
    struct Connection
    {
        FileDescriptor socket;
        HttpReceiver receiver;
        std::shared_ptr<const sdk::demo::DeviceKey> key; // null without TLS
        std::stop_source stop = {};
        bool isOver = false; // set by its thread, which returns immediately afterwards
        std::thread thread = {};
    };

    void serve(Connection &connection);
    void close(const std::function<bool(const Connection &)> &isMeant);

    HttpService &m_service;
    sdk::Clock &m_clock;
    std::mutex m_mutex;                  // guards m_connections
    std::list<Connection> m_connections; // also those that are over, until the next accept()
};

} // namespace site
